// The first page: totals, and the list of files a page at a time.
import { counted, element, embedded, shownSize } from './dom.js';
import {
  COLUMNS, EVERYTHING, filtered, fromFragment, needsLook, rowsOf, sorted, toFragment,
} from './filelist.js';
import { STATUSES } from './status.js';

const ROWS_A_PAGE = 100;

const { heading, totals, files } = embedded('report');
const rows = rowsOf(files);
let request = fromFragment(location.hash);

function card(number, name, tone, about) {
  return element('div', { class: `card ${number > 0 ? tone : 'plain'}` },
    element('dt', {}, name),
    element('dd', {}, number.toLocaleString('en'), element('small', {}, about)));
}

function cards() {
  const looks = rows.filter(needsLook).length;
  return element('dl', { class: 'cards' },
    card(totals.files, 'Files', 'plain', `${counted(looks, 'file')} to look at`),
    card(totals.commandsConverted, 'Commands converted', 'good',
      `${totals.commandsCopied.toLocaleString('en')} others copied`),
    card(totals.commandsNotConverted, 'Commands not converted', 'bad',
      `in ${counted(totals.filesIncomplete, 'file')}`),
    card(totals.warnings, 'Warnings', 'warn', 'something was left out'),
    card(totals.missedLines, 'Possibly missed', 'warn', 'commands that others swallowed'),
    card(totals.filesFailed + totals.filesSkipped, 'Files not converted', 'bad',
      `${counted(totals.filesFailed, 'failure')}, ${totals.filesSkipped} skipped`));
}

function facts() {
  return element('dl', { class: 'facts' }, Object.entries(heading).map(([name, value]) =>
    element('div', {}, element('dt', {}, name), element('dd', {}, value))));
}

function ask(changes) {
  request = { ...request, page: 0, ...changes };
  history.replaceState(null, '', `#${toFragment(request)}`);
  showList();
}

const words = element('input', {
  type: 'search', id: 'words', autocomplete: 'off', spellcheck: 'false', value: request.words,
  oninput: () => ask({ words: words.value }),
});

const status = element('select', { id: 'status', onchange: () => ask({ status: status.value }) },
  element('option', { value: '' }, 'all files'),
  element('option', { value: 'look' }, 'what needs a look'),
  Object.entries(STATUSES).map(([value, { name }]) => element('option', { value }, name)));
status.value = request.status;

const found = element('p', { class: 'found', role: 'status', 'aria-live': 'polite' });
const body = element('tbody');
const pages = element('nav', { class: 'pages', 'aria-label': 'Pages of the list' });

function sortBy(key) {
  ask({ sort: key, descending: request.sort === key && !request.descending });
}

const headers = COLUMNS.map(({ key, name, isText }) => element('th', {
  scope: 'col', class: isText ? null : 'number', 'data-key': key,
}, element('button', { type: 'button', onclick: () => sortBy(key) }, name)));

function number(value, tone) {
  return element('td', { class: `number ${value > 0 ? tone : 'none'}` },
    value.toLocaleString('en'));
}

function listRow(row) {
  const { name, tone, says } = STATUSES[row.status];
  const file = row.page === '' ? row.path : element('a', { href: row.page }, row.path);
  return element('tr', {},
    element('th', { scope: 'row' }, file,
      row.message === '' ? null : element('small', {}, row.message)),
    element('td', {}, element('span', { class: `badge ${tone}`, title: says }, name)),
    number(row.converted, 'good'), number(row.failed, 'bad'), number(row.warnings, 'warn'),
    number(row.missed, 'warn'), number(row.copied, ''),
    element('td', { class: 'number' }, shownSize(row.size)));
}

function pageButton(page, name, isPossible) {
  return element('button', {
    type: 'button', disabled: !isPossible,
    onclick: () => { ask({ page }); body.closest('table').scrollIntoView(); },
  }, name);
}

function showList() {
  const list = sorted(filtered(rows, request), request);
  const last = Math.max(0, Math.ceil(list.length / ROWS_A_PAGE) - 1);
  const page = Math.min(request.page, last);
  body.replaceChildren(...list.slice(page * ROWS_A_PAGE, (page + 1) * ROWS_A_PAGE).map(listRow));
  found.textContent = list.length === rows.length ? counted(rows.length, 'file')
    : `${list.length.toLocaleString('en')} of ${counted(rows.length, 'file')}`;
  for (const header of headers) {
    const isSorted = header.dataset.key === request.sort;
    header.setAttribute('aria-sort',
      !isSorted ? 'none' : request.descending ? 'descending' : 'ascending');
  }
  pages.hidden = last === 0;
  pages.replaceChildren(
    pageButton(0, 'First', page > 0), pageButton(page - 1, 'Previous', page > 0),
    element('span', {}, `page ${page + 1} of ${last + 1}`),
    pageButton(page + 1, 'Next', page < last), pageButton(last, 'Last', page < last));
}

document.getElementById('content').replaceChildren(
  element('h1', {}, 'Converted files'), facts(),
  element('section', { 'aria-label': 'Totals' }, cards()),
  element('section', { 'aria-labelledby': 'files' },
    element('h2', { id: 'files' }, 'Files'),
    element('form', { class: 'filter', onsubmit: (event) => event.preventDefault() },
      element('label', { for: 'words' }, 'Search'), words,
      element('label', { for: 'status' }, 'Show'), status,
      element('button', {
        type: 'reset',
        onclick: () => { words.value = ''; status.value = ''; ask(EVERYTHING); },
      }, 'Reset'),
      found),
    element('div', { class: 'scroll' }, element('table', { class: 'files' },
      element('caption', { class: 'hidden' }, 'Files and what became of them'),
      element('thead', {}, element('tr', {}, headers)), body)),
    pages));
showList();
