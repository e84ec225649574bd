// The list of files as values: what is shown of it, in which order.
import { STATUSES } from './status.js';

/** The columns of a row, which the page carries as an array. */
export const COLUMNS = [
  { key: 'path', name: 'File', isText: true },
  { key: 'status', name: 'Outcome', isText: true },
  { key: 'converted', name: 'Converted' },
  { key: 'failed', name: 'Not converted' },
  { key: 'warnings', name: 'Warnings' },
  { key: 'missed', name: 'Possibly missed' },
  { key: 'copied', name: 'Copied' },
  { key: 'size', name: 'Size' },
];

const FIELDS = ['path', 'page', 'status', 'converted', 'failed', 'copied', 'warnings', 'missed',
  'size', 'message'];

export function rowsOf(arrays) {
  return arrays.map((values) => {
    const row = Object.fromEntries(FIELDS.map((field, i) => [field, values[i]]));
    row.searched = `${row.path}\n${row.message}`.toLowerCase();
    return row;
  });
}

export function needsLook(row) {
  return row.failed + row.warnings + row.missed > 0 ||
    !['converted', 'copied'].includes(row.status);
}

/** What a user asked for; `words` must all stand in a file's path or message. */
export const EVERYTHING = { words: '', status: '', sort: 'path', descending: false, page: 0 };

export function filtered(rows, { words, status }) {
  const wanted = words.toLowerCase().split(/\s+/).filter(Boolean);
  return rows.filter((row) =>
    (status === '' || (status === 'look' ? needsLook(row) : row.status === status)) &&
    wanted.every((word) => row.searched.includes(word)));
}

export function sorted(rows, { sort, descending }) {
  const direction = descending ? -1 : 1;
  const { isText } = COLUMNS.find(({ key }) => key === sort);
  const order = isText ? (a, b) => (a < b ? -1 : a > b ? 1 : 0) : (a, b) => a - b;
  const valueOf = sort === 'status' ? ({ status }) => STATUSES[status].name : (row) => row[sort];
  const byPath = (a, b) => (a.path < b.path ? -1 : 1);
  return [...rows].sort((a, b) => direction * order(valueOf(a), valueOf(b)) || byPath(a, b));
}

/** The request as a fragment of an address, so that going back finds the list as it was. */
export function toFragment(request) {
  const changed = Object.entries(request).filter(([key, value]) => value !== EVERYTHING[key]);
  return new URLSearchParams(changed).toString();
}

export function fromFragment(fragment) {
  const given = new URLSearchParams(fragment.replace(/^#/, ''));
  const sort = given.get('sort');
  return {
    words: given.get('words') ?? '',
    status: given.get('status') ?? '',
    sort: COLUMNS.some(({ key }) => key === sort) ? sort : EVERYTHING.sort,
    descending: given.get('descending') === 'true',
    page: Math.max(0, Number.parseInt(given.get('page') ?? '0', 10) || 0),
  };
}
