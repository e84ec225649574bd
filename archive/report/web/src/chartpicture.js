// The sketch of a chart, drawn when it comes into sight.
import * as vega from 'vega';
import { compile } from 'vega-lite';
import { chartInWords, vegaChart } from './vegachart.js';
import { element } from './dom.js';

/** The page's colours, light or dark. */
function colours() {
  const style = getComputedStyle(document.documentElement);
  const [ink, faint] = ['--ink', '--line'].map((name) => style.getPropertyValue(name).trim());
  const lines = { domainColor: faint, gridColor: faint, tickColor: faint };
  const texts = { labelColor: ink, titleColor: ink };
  return {
    background: 'transparent', font: 'system-ui, sans-serif',
    view: { stroke: faint }, axis: { ...lines, ...texts }, legend: texts, header: texts,
    title: { color: ink, subtitleColor: ink },
    rule: { color: ink }, text: { color: ink },
  };
}

/** Texts may hold control characters; XML has no way to write them. */
const NOT_IN_XML = /[^\t\n\r\u{20}-\u{D7FF}\u{E000}-\u{FFFD}\u{10000}-\u{10FFFF}]/gu;

async function draw(sketch, place) {
  const { spec } = compile({ ...vegaChart(sketch), config: colours() }, {
    logger: vega.logger(vega.Error),
  });
  const view = new vega.View(vega.parse(spec), { renderer: 'svg', logLevel: vega.Error });
  const svg = (await view.toSVG()).replace(NOT_IN_XML, '\uFFFD');
  view.finalize();
  const parsed = new DOMParser().parseFromString(svg, 'image/svg+xml').documentElement;
  for (const part of parsed.querySelectorAll('[role], [aria-label]')) {
    ['role', 'aria-label', 'aria-roledescription'].forEach((name) => part.removeAttribute(name));
  }
  parsed.setAttribute('role', 'img'); // one picture, told in one sentence
  parsed.setAttribute('aria-label', `Sketch: ${chartInWords(sketch)}`);
  place.replaceChildren(document.importNode(parsed, true));
}

const dark = matchMedia('(prefers-color-scheme: dark)');

function drawWhenSeen(sketch, place) {
  new IntersectionObserver((entries, observer) => {
    if (entries.some(({ isIntersecting }) => isIntersecting)) {
      observer.disconnect();
      draw(sketch, place);
      dark.addEventListener('change', () => draw(sketch, place));
    }
  }, { rootMargin: '400px' }).observe(place);
}

export function chartPicture(sketch) {
  const place = element('div', {
    class: 'scroll', role: 'group', 'aria-label': 'Chart', tabindex: 0,
  });
  drawWhenSeen(sketch, place);
  const inDepth = sketch.form === 'three'
    ? ' Three dimensions are shown from above, the third as a colour.' : '';
  return element('figure', { class: 'panel picture' },
    element('h3', {}, 'Sketch of the chart'), place,
    element('figcaption', {}, `${chartInWords(sketch)}. The data are made up.${inDepth}`),
    sketch.caption.length > 0 ? element('p', { class: 'caption' }, sketch.caption.join('\n'))
      : null);
}
