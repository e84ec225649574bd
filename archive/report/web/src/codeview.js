// Old and new text of a command side by side.
import { firstLines, linesOf, markDifferences, piecesOf } from './code.js';
import { counted, element } from './dom.js';

function shownPiece({ kind, text, mark }, onlyHere) {
  const shown = kind === 'blank' || kind === 'sign' || kind === 'word' ? text
    : element('span', { class: kind }, text);
  return mark === undefined ? shown : element(mark === 'only' ? onlyHere : 'u', {}, shown);
}

function listing({ pieces, more }, firstLine, onlyHere, notes) {
  return [
    element('ol', { class: 'code', start: firstLine },
      linesOf(pieces).map((line, i) => element('li', {},
        element('code', {}, line.map((piece) => shownPiece(piece, onlyHere))),
        (notes.get(firstLine + i) ?? []).map((note) => note.cloneNode(true))))),
    more > 0 ? element('p', { class: 'caption' }, `and ${counted(more, 'more line')}`) : null,
  ];
}

function panel(name, content) {
  return element('div', { class: 'panel' }, element('h3', {}, name), content);
}

function messages(command) {
  const { error, warnings, missedLines } = command;
  const place = error && error.line > 0 ? `Line ${error.line}, column ${error.column}: ` : '';
  return [
    error === null ? null : element('p', { class: 'message bad' }, `${place}${error.text}`),
    warnings.map((text) => element('p', { class: 'message warn' }, text)),
    missedLines.length === 0 ? null : element('p', { class: 'message warn' },
      'Possibly a command that this one swallowed: ', missedLines.length > 1 ? 'lines ' : 'line ',
      missedLines.join(', ')),
  ];
}

/** What is said about single lines of the old text. */
function notesOnLines({ error, missedLines }) {
  const notes = new Map();
  const add = (line, tone, text) => notes.set(line,
    [...(notes.get(line) ?? []), element('em', { class: `note ${tone}` }, text)]);
  if (error !== null && error.line > 0) {
    add(error.line, 'bad', error.text);
  }
  missedLines.forEach((line) => add(line, 'warn', 'possibly swallowed'));
  return notes;
}

/** The new form as the output file has it: without blank lines. */
const asWritten = (text) => text.replace(/\n(?:[ \t\r]*\n)+/g, '\n');

/** What is shown of a text: the pieces of its first lines, and how many more lines it has. */
function shownPart(text) {
  const { first, more } = firstLines(text);
  return { pieces: piecesOf(first), more };
}

export function codeView(command) {
  const [oldPart, newPart] = [shownPart(command.oldText), shownPart(asWritten(command.newText))];
  if (command.newText !== '' && oldPart.more + newPart.more === 0) {
    markDifferences(oldPart.pieces, newPart.pieces);
  }
  const newForm = command.newText === '' ? messages(command)
    : [messages(command), listing(newPart, 1, 'ins', new Map())];
  const isConvertible = command.kind === 'tables' || command.kind === 'igraph';
  return element('div', { class: isConvertible ? 'pair' : 'pair single' },
    isConvertible ? null : messages(command),
    command.oldText === '' ? null : panel('Old',
      listing(oldPart, command.firstLine, 'del', notesOnLines(command))),
    isConvertible ? panel('New', newForm) : null,
    command.newText === '' ? null : element('p', { class: 'legend' },
      element('del', {}, 'only in the old command'), ' ',
      element('ins', {}, 'only in the new one'), ' ', element('u', {}, 'in another place')));
}
