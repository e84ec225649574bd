// A table's skeleton, drawn as a table.
import { element } from './dom.js';
import { depthOf, drawnHeaders, leavesOf } from './tableheaders.js';

/** More rows or columns are not drawn, but for one that tells of them in each header. */
const MOST_DRAWN = 80;

const MOST_DECIMALS = 16;

/** The decimals that a format says, and the signs that its type writes. */
function sampleOf(format) {
  const [, type, decimals] = /^([a-z]+)\d+(?:\.(\d+))?$/i.exec(format) ?? [];
  const digits = Math.min(Number(decimals ?? 0), MOST_DECIMALS);
  return `${type === 'DOLLAR' ? '$' : ''}00${digits > 0 ? `.${'0'.repeat(digits)}` : ''}` +
    `${type === 'PCT' ? '%' : ''}`;
}

/** The shape of a statistic's numbers; without a format, of those it usually makes. */
function sample({ statistic }) {
  if (statistic === undefined) {
    return null;
  }
  const { name, format } = statistic;
  if (format !== null) {
    return sampleOf(format);
  }
  return /PCT/.test(name) ? '00.0%' : /COUNT|RESPONSES|VALIDN/.test(name) ? '00' : '00.0';
}

/**
 * The first of the headers, with as many innermost ones as there is room for; each list that was
 * cut ends in a header that tells how many more it has.
 */
function cut(headers, room = MOST_DRAWN) {
  const kept = [];
  let left = room;
  for (const header of headers) {
    if (left <= 0) {
      kept.push({ text: `and ${headers.length - kept.length} more`, role: 'more', inside: [] });
      break;
    }
    kept.push({ ...header, inside: cut(header.inside, left) });
    left -= leavesOf(kept.at(-1)).length;
  }
  return kept;
}

/** The rows of cells above the columns, from the outermost headers inwards. */
function columnHeaders(headers, depth) {
  const rows = Array.from({ length: depth }, () => []);
  const place = (header, level) => {
    const isInnermost = header.inside.length === 0;
    rows[level].push(element('th', {
      scope: isInnermost ? 'col' : 'colgroup', class: header.role,
      colspan: leavesOf(header).length, rowspan: isInnermost ? depth - level : 1,
    }, header.text));
    header.inside.forEach((inner) => place(inner, level + 1));
  };
  headers.forEach((header) => place(header, 0));
  return rows;
}

/** For each row the cells in front of it, from the outermost headers inwards. */
function rowHeaders(headers, depth) {
  const rows = [];
  const place = (header, level, cells) => {
    const isInnermost = header.inside.length === 0;
    const cell = element('th', {
      scope: isInnermost ? 'row' : 'rowgroup', class: header.role,
      rowspan: leavesOf(header).length, colspan: isInnermost ? depth - level : 1,
    }, header.text);
    if (isInnermost) {
      rows.push([...cells, cell]);
      return;
    }
    header.inside.forEach((inner, i) => place(inner, level + 1, i === 0 ? [...cells, cell] : []));
  };
  headers.forEach((header) => place(header, 0, []));
  return rows;
}

function layerLine(headers) {
  const names = (header) => header.inside.length === 0 ? [header.label ?? header.name]
    : header.inside.flatMap(names).map((inner) => `${header.label ?? header.name} > ${inner}`);
  return headers.flatMap(names).map((name) => element('li', {}, name));
}

const EMPTY = { text: '', role: 'empty', inside: [] };

function cellText(row, column) {
  return row.role === 'more' || column.role === 'more' ? '…'
    : sample(column) ?? sample(row) ?? '00';
}

function grid(table, name) {
  const [rows, columns] = [cut(drawnHeaders(table.rows)), cut(drawnHeaders(table.columns))];
  const columnDepth = Math.max(1, depthOf(columns));
  const rowDepth = Math.max(1, depthOf(rows));
  const top = columnHeaders(columns.length > 0 ? columns : [EMPTY], columnDepth);
  top[0].unshift(element('td', { class: 'corner', colspan: rowDepth, rowspan: columnDepth },
    table.corner.join('\n')));
  const columnLeaves = columns.length > 0 ? columns.flatMap(leavesOf) : [EMPTY];
  const rowLeaves = rows.length > 0 ? rows.flatMap(leavesOf) : [EMPTY];
  const front = rowHeaders(rows.length > 0 ? rows : [EMPTY], rowDepth);
  const body = rowLeaves.map((row, i) => element('tr', {}, front[i],
    columnLeaves.map((column) => element('td', {}, cellText(row, column)))));
  return element('table', { class: 'skeleton' },
    element('caption', {}, table.title.length > 0 ? table.title.join('\n')
      : element('span', { class: 'hidden' }, name)),
    element('thead', {}, top.map((cells) => element('tr', {}, cells))),
    element('tbody', {}, body));
}

function remarks(table, command) {
  const said = [];
  const { sorts, statisticsSide, statisticsNamed, movedLabels, caption } = table;
  said.push(statisticsNamed ? `names of statistics in the ${statisticsSide ?? 'usual place'}`
    : 'names of statistics hidden');
  if (movedLabels !== null) {
    said.push(`category labels of the ${movedLabels} on the opposite side`);
  }
  for (const { variable, ascending, key } of sorts) {
    said.push(`${variable} sorted by ${key}, ${ascending ? 'ascending' : 'descending'}`);
  }
  said.push(`missing values ${table.missingIncluded ? 'included' : 'excluded'}`);
  const missing = command.missingText === null ? '' : `, missing ones “${command.missingText}”`;
  said.push(`empty cells ${command.emptyCells}${missing}`);
  return [
    caption.length > 0 ? element('p', { class: 'caption' }, caption.join('\n')) : null,
    element('ul', { class: 'remarks' }, said.map((text) => element('li', {}, text))),
  ];
}

/** A part that may be wider than its place; it can be scrolled with the keyboard. */
function scrolled(part, name) {
  return element('div', { class: 'scroll', role: 'group', 'aria-label': name, tabindex: 0 }, part);
}

function drawnTable(table, command, name) {
  if ([table.rows, table.columns, table.layers].includes(null)) {
    return [element('p', {}, 'This table is too large to be drawn.')];
  }
  const layers = table.layers.length === 0 ? null
    : element('ul', { class: 'layers', 'aria-label': 'Layers' }, layerLine(table.layers));
  return [layers, scrolled(grid(table, name), name),
    ...remarks(table, command)];
}

/** The tables of a picture, one behind the other. */
export function tablePicture(picture, name) {
  return element('div', { class: 'picture' }, picture.tables.map((table, i) =>
    drawnTable(table, picture, picture.tables.length > 1 ? `${name}, table ${i + 1}` : name)));
}

const isEqual = (one, other) => JSON.stringify(one) === JSON.stringify(other);

/** `table 2: statistics side` for a member of the second of several tables. */
function partName(key, i, tables) {
  const name = key.replace(/[A-Z]/g, (letter) => ` ${letter.toLowerCase()}`);
  return tables.length > 1 ? `table ${i + 1}: ${name}` : name;
}

const partNames = ({ tables }, isMeant) => tables.flatMap((table, i) =>
  Object.keys(table).filter((key) => isMeant(key, i)).map((key) => partName(key, i, tables)));

/**
 * What a reader is told of two pictures: in which parts they differ, and which parts of tables
 * cannot be compared because one of them is too large to be there.
 */
function compared(one, other) {
  if (one.tables.length !== other.tables.length) {
    return { differences: ['number of tables'], uncompared: [] };
  }
  const isTooLarge = (key, i) => ['rows', 'columns', 'layers'].includes(key) &&
    (one.tables[i][key] === null || other.tables[i][key] === null);
  const differs = (key, i) => !isTooLarge(key, i) &&
    !isEqual(one.tables[i][key], other.tables[i][key]);
  const ofCommand = Object.keys(one)
    .filter((key) => key !== 'tables' && !isEqual(one[key], other[key]))
    .map((key) => partName(key, 0, []));
  return {
    differences: [...ofCommand, ...partNames(one, differs)],
    uncompared: partNames(one, isTooLarge),
  };
}

function marks({ differences, uncompared }) {
  if (differences.length + uncompared.length === 0) {
    return element('p', { class: 'mark good' }, 'Old and new make the same table.');
  }
  const mark = (tone, text, parts) => parts.length === 0 ? null
    : element('p', { class: `mark ${tone}` }, `${text}: ${parts.join(', ')}`);
  return [mark('bad', 'Old and new differ', differences),
    mark('plain', 'Too large to be compared', uncompared)];
}

/** Both pictures of a command side by side, with a mark that says whether they agree. */
export function tablePictures(oldPicture, newPicture) {
  return element('div', { class: 'tables' }, marks(compared(oldPicture, newPicture)),
    element('div', { class: 'pair' },
      element('div', { class: 'panel' }, element('h3', {}, 'Table of the old command'),
        tablePicture(oldPicture, 'Table of the old command')),
      element('div', { class: 'panel' }, element('h3', {}, 'Table of the new command'),
        tablePicture(newPicture, 'Table of the new command'))));
}
