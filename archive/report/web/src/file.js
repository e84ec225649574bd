// The page of one file: every command that was converted, or should have been.
import { chartPicture } from './chartpicture.js';
import { codeView } from './codeview.js';
import { counted, element, embedded, fill, shownSize } from './dom.js';
import { STATUSES } from './status.js';
import { tablePicture, tablePictures } from './tablepicture.js';

const KINDS = {
  tables: 'TABLES', igraph: 'IGRAPH', comment: 'Comment', document: 'DOCUMENT', data: 'Data block',
  other: 'Other command',
};

const file = embedded('report');

function toneOf({ error, warnings, missedLines }) {
  return error !== null ? 'bad' : warnings.length + missedLines.length > 0 ? 'warn' : 'good';
}

function outcomeOf(command) {
  const { error, warnings, missedLines } = command;
  if (error !== null) {
    return 'not converted';
  }
  if (missedLines.length > 0) {
    return 'may hide commands';
  }
  return warnings.length > 0 ? counted(warnings.length, 'warning') : 'converted';
}

function placeOf({ firstLine, lastLine }) {
  return firstLine === lastLine ? `line ${firstLine}` : `lines ${firstLine} to ${lastLine}`;
}

function pictures({ error, oldPicture, newPicture, chartSketch }) {
  if (oldPicture !== null && newPicture !== null) {
    return tablePictures(oldPicture, newPicture);
  }
  if (oldPicture !== null) {
    return element('div', { class: 'tables' },
      error !== null ? null : element('p', { class: 'mark plain' },
        'The new command cannot be drawn: compare its text with this table.'),
      element('div', { class: 'panel' },
        element('h3', {}, 'Table of the old command'), tablePicture(oldPicture, 'Table')));
  }
  return chartSketch === null ? null : chartPicture(chartSketch);
}

function section(command, i) {
  return element('section', { id: `command-${i + 1}`, 'aria-labelledby': `heading-${i + 1}` },
    element('h2', { id: `heading-${i + 1}` }, `${KINDS[command.kind]}, ${placeOf(command)} `,
      element('span', { class: `badge ${toneOf(command)}` }, outcomeOf(command))),
    codeView(command), pictures(command));
}

function contents() {
  return element('nav', { 'aria-label': 'Commands', class: 'contents' }, element('ol', {},
    file.commands.map((command, i) => element('li', {},
      element('a', { href: `#command-${i + 1}` }, `${KINDS[command.kind]}, ${placeOf(command)}`),
      ' ', element('span', { class: `badge ${toneOf(command)}` }, outcomeOf(command))))));
}

function facts() {
  const { name, tone, says } = STATUSES[file.status];
  const known = [
    ['Outcome', element('span', { class: `badge ${tone}` }, name), ` ${says}`],
    ['Size', shownSize(file.sourceSize)],
    ['Encoding', file.encoding],
    ['Commands of other kinds, copied', file.copied.toLocaleString('en')],
  ];
  return element('dl', { class: 'facts' }, known.filter(([, value]) => value !== '').map(
    ([term, ...value]) => element('div', {}, element('dt', {}, term), element('dd', {}, value))));
}

const content = document.getElementById('content');
content.replaceChildren();
fill(content, [
  element('nav', { 'aria-label': 'Report' },
    element('a', { href: '../index.html' }, 'All files')),
  element('h1', {}, file.path), facts(),
  file.message === '' ? null : element('p', { class: 'message bad' }, file.message),
  file.notes.map((note) => element('p', { class: 'message warn' }, note)),
  file.commands.length > 1 ? contents() : null,
  file.commands.map(section),
]);
if (location.hash !== '') {
  document.getElementById(location.hash.slice(1))?.scrollIntoView();
}
