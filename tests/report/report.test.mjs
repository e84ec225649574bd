// What users do with a report: scripts/check-report makes one and runs this.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { fill } from '../../archive/report/web/src/dom.js';
import {
  barriers, closeBrowser, openBrowser, openFile, screenshot, seeAll, withReport,
} from './browser.mjs';

before(openBrowser);
after(closeBrowser);

const MADE_UP = 10000;
const FILES = MADE_UP + 12;
const ROWS_A_PAGE = 100;

const rows = (page) => page.locator('table.files tbody tr');
const found = (page) => page.getByRole('status');
const paths = (page) => page.locator('table.files tbody th').allInnerTexts();
const column = (page, number) =>
  page.locator(`table.files tbody tr > :nth-child(${number})`).allInnerTexts();

test('the list shows its files a page at a time', () => withReport(async (page) => {
  assert.equal(await rows(page).count(), ROWS_A_PAGE);
  assert.equal(await found(page).innerText(), `${FILES.toLocaleString('en')} files`);
  const first = await paths(page);
  await page.getByRole('button', { name: 'Next' }).click();
  const second = await paths(page);
  assert.ok(second.every((path) => !first.includes(path)));
  await page.getByRole('button', { name: 'Last' }).click();
  assert.equal(await rows(page).count(), FILES % ROWS_A_PAGE);
  assert.ok(await page.getByRole('button', { name: 'Next' }).isDisabled());
}));

test('the list filters by words and by outcome', () => withReport(async (page) => {
  await page.getByLabel('Search').fill('EXAMPLES .syn');
  assert.deepEqual(await paths(page),
    ['examples/charts.syn', 'examples/customers.syn', 'examples/household.syn']);
  await page.getByLabel('Show').selectOption('incomplete');
  assert.deepEqual(await paths(page), ['examples/charts.syn']);
  await page.getByRole('button', { name: 'Reset' }).click();
  assert.equal(await found(page).innerText(), `${FILES.toLocaleString('en')} files`);
  await page.getByLabel('Show').selectOption('what needs a look');
  // Of made-up files the outcome is the remainder of the number by six: 0 and 1 need no look.
  await page.getByLabel('Search').fill('file123');
  assert.deepEqual(await paths(page), ['23/file123', '32/file1232', '33/file1233', '34/file1234',
    '35/file1235', '38/file1238', '39/file1239'].map((name) => `made-up/${name}.syn`));
  await page.getByLabel('Search').fill('pictures/'); // one of these has a warning
  assert.deepEqual(await paths(page), ['pictures/disagree.syn']);
  await page.getByLabel('Search').fill('pages/'); // and this may hide a command
  assert.deepEqual(await paths(page), ['pages/long.syn']);
  await page.getByLabel('Search').fill('no file is called that');
  assert.equal(await rows(page).count(), 0);
}));

const UNITS = { B: 1, kB: 1e3, MB: 1e6 };

/** What a cell says, to be compared: `1.2 kB` is 1200, and words are words. */
function valueOf(text) {
  const [, number, unit] = /^([\d,.]+)(?: (B|kB|MB))?$/.exec(text) ?? [];
  return number === undefined ? text : Number(number.replaceAll(',', '')) * (UNITS[unit] ?? 1);
}

const isSorted = (values, isDescending) => values.every((value, i) => i === 0 ||
  (isDescending ? value <= values[i - 1] : value >= values[i - 1]));

/** The values of a column on the first page of the list and on its last one. */
async function ends(page, number) {
  const first = await column(page, number);
  await page.getByRole('button', { name: 'Last' }).click();
  return [...first, ...await column(page, number)].map(valueOf);
}

test('the list sorts by every column, both ways', () => withReport(async (page) => {
  const headers = await page.locator('table.files thead th').all();
  assert.equal(headers.length, 8);
  for (const [i, header] of headers.entries()) {
    const directions = [];
    for (let click = 0; click < 2; click += 1) {
      await header.getByRole('button').click();
      const direction = await header.getAttribute('aria-sort');
      const values = await ends(page, i + 1);
      assert.ok(isSorted(values, direction === 'descending'), `column ${i + 1}, ${direction}`);
      assert.notEqual(values.at(0), values.at(-1));
      directions.push(direction);
    }
    assert.deepEqual(directions.sort(), ['ascending', 'descending']);
  }
}));

test('outcomes are sorted as they are called', () => withReport(async (page) => {
  await page.getByLabel('Search').fill('file123');
  await page.getByRole('columnheader', { name: 'Outcome' }).getByRole('button').click();
  const outcomes = await column(page, 2);
  assert.equal(new Set(outcomes).size, 6);
  assert.ok(isSorted(outcomes, false), outcomes);
}));

test('going back finds the list as it was', () => withReport(async (page) => {
  await page.getByLabel('Search').fill('examples');
  await page.getByLabel('Show').selectOption('incomplete');
  const back = async () => {
    await page.getByRole('link', { name: 'examples/charts.syn' }).click();
    await page.getByRole('heading', { level: 1, name: 'examples/charts.syn' }).waitFor();
    await page.goBack();
  };
  await back();
  assert.equal(await page.getByLabel('Search').inputValue(), 'examples');
  assert.equal(await page.getByLabel('Show').inputValue(), 'incomplete');
  assert.deepEqual(await paths(page), ['examples/charts.syn']);

  await page.getByRole('button', { name: 'Reset' }).click();
  const header = page.getByRole('columnheader', { name: 'Not converted' });
  await header.getByRole('button').click();
  await header.getByRole('button').click();
  const sorted = await paths(page);
  assert.equal(sorted[0], 'examples/charts.syn');
  await back();
  assert.deepEqual(await paths(page), sorted);
  assert.equal(await header.getAttribute('aria-sort'), 'descending');
}));

test('a file shows old and new side by side, with the lines of the input', () =>
  withReport(async (page) => {
    await openFile(page, 'examples/customers.syn');
    const section = page.getByRole('region', { name: 'TABLES, lines 39 to 44' });
    const [old, converted] = await section.locator('ol.code').all();
    assert.equal(await old.getAttribute('start'), '39');
    assert.equal(await old.locator('li').count(), 6);
    assert.match(await converted.innerText(), /^CTABLES/);
    assert.ok((await old.locator('del').allInnerTexts()).includes('CPCT'));
    assert.ok((await converted.locator('ins').allInnerTexts()).includes('CTABLES'));
    assert.ok((await converted.locator('u').allInnerTexts()).includes("'All customers'"));
    const boxes = await Promise.all([old, converted].map((one) => one.boundingBox()));
    assert.ok(boxes[0].x + boxes[0].width <= boxes[1].x);
    assert.match(await page.getByText('Obsolete form').innerText(), /has been ignored/);
  }));

test('of a command of very many lines the first are shown', () => withReport(async (page) => {
  await openFile(page, 'pages/long.syn');
  assert.equal(await page.locator('ol.code li').count(), 20000);
  assert.equal(await page.locator('ol.code li').last().innerText(), 'COMPUTE x20000 = 20000');
  assert.equal(await page.locator('.panel .caption').innerText(), 'and 130,000 more lines');
  assert.equal(await page.locator('.note').innerText(), 'possibly swallowed');
}));

test('an element takes any number of children', () => {
  const children = [];
  fill({ append: (...some) => children.push(...some) }, [Array(300000).fill('child'), null, '']);
  assert.equal(children.length, 300000);
});

test('both pictures of a table are there and agree', () => withReport(async (page) => {
  await openFile(page, 'examples/customers.syn');
  const section = page.getByRole('region', { name: 'TABLES, lines 49 to 57' });
  assert.equal(await section.locator('.mark').innerText(), 'Old and new make the same table.');
  const tables = await section.locator('table.skeleton').all();
  assert.equal(tables.length, 2);
  for (const table of tables) {
    const headers = await table.locator('th').allInnerTexts();
    for (const header of ['Reason for complaint', 'Wanted contact', 'Any', '% of answers']) {
      assert.ok(headers.includes(header), header);
    }
  }
}));

test('pictures that differ are told, with the part', () => withReport(async (page) => {
  await openFile(page, 'pictures/disagree.syn');
  assert.equal(await page.locator('.mark').first().innerText(), 'Old and new differ: title');
}));

test('pictures that are too large to be compared are not called the same', () =>
  withReport(async (page) => {
    await openFile(page, 'pictures/toolarge.syn');
    assert.deepEqual(await page.locator('.mark').allInnerTexts(),
      ['Too large to be compared: rows']);
    assert.equal(await page.getByText('This table is too large to be drawn.').count(), 2);
    await screenshot(page, 'toolarge');
  }));

test('a new command that cannot be drawn is told of', () => withReport(async (page) => {
  await openFile(page, 'pictures/unread.syn');
  assert.equal(await page.locator('.mark').innerText(),
    'The new command cannot be drawn: compare its text with this table.');
  assert.equal(await page.locator('table.skeleton').count(), 1);
}));

test('a wide table is cut, also inside its headers', () => withReport(async (page) => {
  const most = 80;
  await openFile(page, 'pictures/wide.syn');
  assert.equal(await page.locator('.mark').innerText(), 'Old and new make the same table.');
  const tables = await page.locator('table.skeleton').all();
  assert.equal(tables.length, 2);
  for (const table of tables) {
    assert.equal(await table.locator('tbody tr').count(), most + 1);
    assert.equal(await table.locator('tbody td').count(), (most + 1) ** 2);
    assert.deepEqual(await table.locator('th.more').allInnerTexts(), Array(2).fill('and 120 more'));
    assert.equal(await table.locator('tbody tr').last().locator('td').first().innerText(), '…');
  }
  await screenshot(page, 'wide');
}));

test('cells show the shape of their numbers', () => withReport(async (page) => {
  await openFile(page, 'pictures/formats.syn');
  const shapes = [
    ['00', '$00.00', '00.000', '00.0', '00', `00.${'0'.repeat(16)}`],
    ['00.0', '00.00%', '00%', '00.00'],
    ['00', '00.0%'],
  ];
  const tables = await page.locator('table.skeleton').all();
  assert.equal(tables.length, 2 * shapes.length);
  for (const [i, table] of tables.entries()) {
    assert.deepEqual(await table.locator('tbody tr').first().locator('td').allInnerTexts(),
      shapes[Math.floor(i / 2)]);
  }
}));

test('a command that cannot be converted says why', () => withReport(async (page) => {
  await openFile(page, 'examples/charts.syn');
  const section = page.getByRole('region', { name: 'IGRAPH, line 69' });
  assert.match(await section.locator('.message.bad').innerText(), /cannot be converted/);
}));

test('a control character in a text of a chart leaves its sketch whole', () =>
  withReport(async (page) => {
    await openFile(page, 'charts/control.syn');
    await seeAll(page);
    assert.ok((await page.locator('figure svg text').allTextContents()).includes('bell\uFFFD'));
    assert.equal(await page.locator('parsererror').count(), 0);
  }));

/**
 * How many marks the made-up data make at least: X has four categories, COLOR three, STYLE two, and
 * there are two panels. In the order of the charts: bars, slices in panels, boxes, means with
 * their errors, eight bars and a curve in panels, twenty points and a line for each colour,
 * areas, lines with points, bars and lines.
 */
const LEAST_MARKS = [4 * 3, 2 * 3, 4 * 3, 4, 2 * (8 + 1), 3 * (20 + 1), 3, 2 * (1 + 4), 4 * 3 + 3];

/** How many marks of data a sketch shows; those of axes, legends and backgrounds are none. */
const dataMarks = (sketch) => sketch
  .locator(['rect', 'symbol', 'line', 'area', 'arc']
    .map((kind) => `.mark-${kind}.role-mark path`).join(', '))
  .evaluateAll((paths) => paths.map((path) => path.getBBox())
    .filter(({ width, height }) => width + height > 0).length);

for (const colorScheme of ['light', 'dark']) {
  test(`every chart has a sketch, ${colorScheme}`, () => withReport(async (page) => {
    await openFile(page, 'examples/charts.syn');
    await seeAll(page);
    const charts = await page.getByRole('region', { name: /^IGRAPH/ }).count();
    assert.equal(charts, LEAST_MARKS.length);
    const sketches = page.getByRole('img', { name: /^Sketch: / });
    assert.equal(await sketches.count(), charts);
    for (const [i, sketch] of (await sketches.all()).entries()) {
      const drawn = await dataMarks(sketch);
      assert.ok(drawn >= LEAST_MARKS[i], `${drawn} marks in sketch ${i + 1}`);
    }
    await screenshot(page, `charts-${colorScheme}`);
  }, { colorScheme }));

  test(`lists and tables are accessible, ${colorScheme}`, () => withReport(async (page) => {
    assert.deepEqual(await barriers(page), []);
    await screenshot(page, `index-${colorScheme}`);
    await openFile(page, 'examples/household.syn');
    assert.deepEqual(await barriers(page), []);
    await screenshot(page, `tables-${colorScheme}`);
  }, { colorScheme }));
}

test('sketches of charts are accessible', () => withReport(async (page) => {
  await openFile(page, 'examples/charts.syn');
  await seeAll(page);
  assert.deepEqual(await barriers(page), []);
}));

test('light and dark look different', async () => {
  const papers = [];
  for (const colorScheme of ['light', 'dark']) {
    await withReport(async (page) => {
      papers.push(await page.evaluate(() => getComputedStyle(document.body).backgroundColor));
    }, { colorScheme });
  }
  assert.notEqual(papers[0], papers[1]);
});

test('hostile names and texts are shown as texts', () => withReport(async (page) => {
  const markup = "<script>document.title='broken'</script>&amp;\"'";
  const link = page.locator('table.files a').first();
  assert.ok((await link.innerText()).startsWith(`${markup}/`));
  await link.click();
  const heading = page.getByRole('heading', { level: 1 });
  assert.ok((await heading.innerText()).startsWith(`${markup}/`));
  assert.notEqual(await page.title(), 'broken');
  assert.equal(await page.getByText(markup, { exact: true }).count(), 4);
  assert.match(await page.locator('.message.bad').nth(1).innerText(), /^Line \d+, column 1: /);
  assert.ok((await page.locator('.message.bad').nth(1).innerText()).endsWith(`: ${markup}`));
  assert.equal(await page.locator('main script').count(), 0);
  await screenshot(page, 'hostile');
}));

test('markup in tables and charts is shown as text', () => withReport(async (page) => {
  const texts = (...numbers) => numbers.map((number) => `<b>&"'${number}`);
  const hasAll = (shown, wanted) => assert.deepEqual(
    wanted.filter((text) => !shown.includes(text)), [], `shown: ${shown.join(' | ')}`);
  await openFile(page, 'texts/markup.syn');
  await seeAll(page);
  const old = page.locator('.pair .picture').first();
  hasAll(await old.locator('th').allInnerTexts(), texts(1, 2, 3));
  hasAll(await old.locator('caption, .corner, p.caption, .layers li').allInnerTexts(),
    texts(4, 5, 6, 7));
  assert.match(await old.locator('.remarks').innerText(), /missing ones “<b>&"'8”/);
  assert.match(await page.locator('ol.code').nth(1).innerText(), /LABEL='<b>&"''2'/);
  hasAll(await page.locator('figure svg :is(text, tspan)').allTextContents(),
    texts(1, 2, 3, 4, 5));
  hasAll(await page.locator('figure .caption').allInnerTexts(), texts(6));
  assert.equal(await page.locator('b').count(), 0);
  await screenshot(page, 'markup');
}));

test('everything can be done with the keyboard', () => withReport(async (page) => {
  const focused = () => page.evaluate(() => document.activeElement.innerText);
  await page.keyboard.press('Tab');
  assert.equal(await focused(), 'Skip to the content');
  await page.keyboard.press('Enter');
  await page.keyboard.press('Tab');
  await page.keyboard.type('examples');
  assert.equal(await rows(page).count(), 3);
  await page.keyboard.press('Tab');
  await page.keyboard.press('Tab');
  assert.equal(await focused(), 'Reset');
  await page.keyboard.press('Tab');
  assert.equal(await focused(), 'File');
  await page.keyboard.press('Enter');
  assert.equal((await paths(page))[0], 'examples/household.syn');
  for (let i = 0; await focused() !== 'examples/household.syn'; i += 1) {
    assert.ok(i < 20);
    await page.keyboard.press('Tab');
  }
  await page.keyboard.press('Enter');
  await page.getByRole('heading', { level: 1, name: 'examples/household.syn' }).waitFor();
  await page.keyboard.press('Tab');
  await page.keyboard.press('Tab');
  assert.equal(await focused(), 'All files');
  await page.keyboard.press('Enter');
  await found(page).waitFor();
}));
