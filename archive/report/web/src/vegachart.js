// From the sketch of a chart to a description that the chart library draws.
import { madeUpBins, madeUpCases, madeUpCurve } from './madeupdata.js';

/** Numbers on an axis would be those of made-up data. */
const NO_NUMBERS = { labels: false, ticks: false };

const CURVES = {
  linear: 'linear', step: 'step', stepBefore: 'step-before', stepAfter: 'step-after',
  smooth: 'monotone',
};

function axis(dimension, field, more = {}) {
  if (!dimension) {
    return { datum: '', axis: null };
  }
  return {
    field, title: dimension.label,
    type: dimension.category ? 'nominal' : 'quantitative',
    ...dimension.category ? { axis: { labelAngle: 0 } } : { axis: NO_NUMBERS },
    ...more,
  };
}

function legend(dimension) {
  return dimension.legend
    ? { title: dimension.label, legend: dimension.category ? {} : { labelLimit: 1 } }
    : { legend: null };
}

function channel(sketch, field, more = {}) {
  const type = sketch[field].category ? 'nominal' : 'quantitative';
  return { field, type, ...legend(sketch[field]), ...more };
}

/** The channels beside the axes; those of filled marks cannot tell shapes apart. */
function aesthetics(sketch, isFilled, isPoint) {
  const channels = {};
  if (sketch.color) {
    channels.color = channel(sketch, 'color');
  }
  if (sketch.style) {
    const name = isFilled ? 'opacity' : isPoint ? 'shape' : 'strokeDash';
    channels[name] = channel(sketch, 'style', isFilled ? { scale: { range: [0.45, 1] } } : {});
  }
  if (sketch.size && isPoint) {
    channels.size = channel(sketch, 'size');
  }
  return channels;
}

/** Both axes; a chart that lies on its side has them exchanged. */
function placed(sketch, x, y, offset) {
  const cluster = offset && sketch.cluster !== null
    ? { [sketch.horizontal ? 'yOffset' : 'xOffset']: { field: sketch.cluster } } : {};
  return sketch.horizontal ? { x: y, y: x, ...cluster } : { x, y, ...cluster };
}

/** What summarises: of a stack's parts the sums add up, and a line beside it is as high. */
function summarised(sketch, stack) {
  const aggregate = sketch.stacked ? 'sum' : 'mean';
  return axis(sketch.y, 'summary', { aggregate, stack, type: 'quantitative', axis: NO_NUMBERS });
}

/** Lines and areas go along the axis of X. */
const orient = ({ horizontal }) => (horizontal ? 'horizontal' : 'vertical');

function stackOf(sketch, isStack) {
  return sketch.normalized ? 'normalize' : isStack ? 'zero' : null;
}

const isGrouped = ({ color, style }) => Boolean(color?.category || style?.category);

const ELEMENTS = {
  point: (sketch) => [{
    mark: { type: 'point', filled: true },
    encoding: {
      ...placed(sketch, axis(sketch.x, 'x'), axis(sketch.y, 'y')),
      ...aesthetics(sketch, false, true),
    },
  }],
  bar: (sketch) => [{
    mark: 'bar',
    encoding: {
      ...placed(sketch, axis(sketch.x, 'x'),
        summarised(sketch, stackOf(sketch, sketch.stacked)), true),
      ...aesthetics(sketch, true, false),
    },
  }],
  area: (sketch, { curve }) => [{
    mark: { type: 'area', interpolate: CURVES[curve], opacity: 0.7, orient: orient(sketch) },
    encoding: {
      ...placed(sketch, axis(sketch.x, 'x'),
        summarised(sketch, stackOf(sketch, isGrouped(sketch)))),
      ...aesthetics(sketch, true, false),
    },
  }],
  line: (sketch, { curve, points }) => [{
    mark: { type: 'line', interpolate: CURVES[curve], point: points, orient: orient(sketch) },
    encoding: {
      ...placed(sketch, axis(sketch.x, 'x'), summarised(sketch, null)),
      ...aesthetics(sketch, false, false),
    },
  }],
  dots: (sketch) => [{
    mark: { type: 'point', filled: true },
    encoding: {
      ...placed(sketch, axis(sketch.x, 'x'), summarised(sketch, null)),
      ...aesthetics(sketch, false, true),
    },
  }],
  pie: (sketch) => [{
    mark: { type: 'arc', stroke: 'white' },
    encoding: {
      theta: { field: 'summary', aggregate: 'sum' },
      color: {
        field: sketch.slice ?? 'color', type: 'nominal', ...legend(sketch[sketch.slice ?? 'color']),
      },
    },
  }],
  box: (sketch) => [{
    mark: { type: 'boxplot', size: sketch.cluster === null ? 24 : 10 },
    encoding: {
      ...placed(sketch, axis(sketch.x, 'x'), axis(sketch.y, 'y'), true),
      ...aesthetics(sketch, true, false),
    },
  }],
  errorBar: (sketch, { points }) => {
    const encoding = {
      ...placed(sketch, axis(sketch.x, 'x'), axis(sketch.y, 'y'), true),
      ...sketch.color ? { color: channel(sketch, 'color') } : {},
    };
    const mean = {
      ...encoding,
      ...placed(sketch, axis(sketch.x, 'x'), summarised(sketch, null), true),
    };
    const bars = { mark: { type: 'errorbar', extent: 'stdev', ticks: true }, encoding };
    return points ? [bars, { mark: { type: 'point', filled: true }, encoding: mean }] : [bars];
  },
  histogram: (sketch, { cumulative, density }) => {
    const from = axis(sketch.x, 'from', { bin: 'binned' });
    const bars = {
      data: { values: madeUpBins(sketch, cumulative) },
      mark: { type: 'bar', binSpacing: 1 },
      encoding: {
        ...placed(sketch, from, axis(sketch.y, 'count')),
        [sketch.horizontal ? 'y2' : 'x2']: { field: 'to' },
        ...sketch.color?.category ? { color: channel(sketch, 'color') } : {},
      },
    };
    const curve = {
      data: { values: madeUpCurve() },
      mark: { type: 'line', color: '#888', orient: orient(sketch) },
      encoding: placed(sketch, axis(sketch.x, 'x'), axis(sketch.y, 'y')),
    };
    return density ? [bars, curve] : [bars];
  },
  fitLine: (sketch, { method, groups }) => {
    const group = ['color', 'style', 'size'].find((name) => sketch[name]?.category);
    const groupby = groups && group ? [group] : [];
    const fit = {
      linear: { regression: 'y', on: 'x', groupby },
      loess: { loess: 'y', on: 'x', groupby },
      mean: { joinaggregate: [{ op: 'mean', field: 'y', as: 'y' }], groupby },
    };
    const { color } = sketch;
    return [{
      transform: [fit[method]],
      mark: { type: 'line', strokeWidth: 2.5, orient: orient(sketch) },
      encoding: {
        ...placed(sketch, axis(sketch.x, 'x'), axis(sketch.y, 'y')),
        ...groupby[0] === 'color' && color ? { color: channel(sketch, 'color') } : {},
        ...groupby.length > 0 && groupby[0] !== 'color' ? { detail: { field: groupby[0] } } : {},
      },
    }];
  },
};

/** Three dimensions, looked at from above: the third is a colour. */
function fromAbove(sketch) {
  const isBar = sketch.elements.some(({ type }) => type === 'bar');
  const height = { field: 'summary', type: 'quantitative', title: sketch.y.label };
  return [{
    mark: isBar ? 'rect' : { type: 'point', filled: true, size: 60 },
    encoding: {
      x: axis(sketch.x, 'x'), y: axis(sketch.z, 'z'),
      color: { ...height, ...isBar ? { aggregate: 'mean' } : {}, legend: { labelLimit: 1 } },
    },
  }];
}

/** Lines stand in the middle, with their values: the data are no better. */
function references(sketch) {
  return sketch.references.flatMap(({ axis: name, value }, i) => {
    const across = (name === 'y') === sketch.horizontal ? 'x' : 'y';
    const datum = { [across]: { datum: 55 + 8 * i } };
    return [
      { data: { values: [{}] }, mark: { type: 'rule', strokeDash: [4, 3] }, encoding: datum },
      {
        data: { values: [{}] },
        mark: { type: 'text', align: 'left', dx: 3, dy: -6, text: String(value) },
        encoding: { ...datum, ...across === 'y' ? { x: { value: 0 } } : { y: { value: 12 } } },
      },
    ];
  });
}

function faceted(sketch, layer) {
  const [first, second] = sketch.panels;
  const panel = (field, title) => ({ field, type: 'nominal', title });
  const spec = { width: 130, height: 110, layer };
  if (first === undefined) {
    return { width: 260, height: 190, layer };
  }
  return second === undefined
    ? { facet: panel('panel1', first), columns: 2, spec }
    : { facet: { column: panel('panel1', first), row: panel('panel2', second) }, spec };
}

/** The chart in the language of the chart library, with its data. */
export function vegaChart(sketch) {
  const layer = sketch.form === 'three' ? fromAbove(sketch)
    : sketch.elements.flatMap((one) => ELEMENTS[one.type](sketch, one));
  const isPlain = sketch.form !== 'pie' && sketch.form !== 'three';
  const title = sketch.title.length > 0
    ? { title: { text: sketch.title, subtitle: sketch.subtitle } } : {};
  return {
    $schema: 'vega-lite', data: { values: madeUpCases(sketch) }, ...title,
    ...faceted(sketch, isPlain ? [...layer, ...references(sketch)] : layer),
  };
}

/** What the chart is, for those who do not see it. */
export function chartInWords({ elements, form, x, y, color, style, panels, horizontal }) {
  const names = {
    area: 'areas', bar: 'bars', box: 'boxes', errorBar: 'error bars', fitLine: 'fit line',
    line: 'lines', point: 'points',
  };
  const parts = [elements.map(({ type }) => names[type] ?? type).join(', ')];
  if (form !== 'pie') {
    parts.push(`of ${y.label}${x ? ` by ${x.label}` : ''}`);
  }
  [color, style].filter(Boolean).forEach(({ label }) => parts.push(`grouped by ${label}`));
  parts.push(panels.length > 0 ? `in panels by ${panels.join(' and ')}` : '',
    horizontal ? 'lying on its side' : '');
  return parts.filter(Boolean).join(' ');
}
