// From the headers of a table's skeleton to the cells that are drawn.
//
// A drawn header is {text, role, inside: [drawn headers], statistic}: a variable holds its
// categories and its total, each of which holds what the variable nests, and what is innermost
// holds the statistics. `statistic` is there on the innermost ones of the side that has them.

const statisticsOf = (list) => list.map(({ function: name, label, format }) => ({
  text: label ?? name, role: 'statistic', inside: [], statistic: { name, format },
}));

/** What stands under a category or a total. */
function under(header, context) {
  if (header.inside.length > 0) {
    return header.inside.flatMap((inner) => drawn(inner, context));
  }
  return statisticsOf((context.isTotal ? context.totals : context.cells) ?? []);
}

function drawn(header, outer) {
  const hasOwn = header.statistics.length + header.totalStatistics.length > 0;
  const context = hasOwn
    ? { ...outer, cells: header.statistics, totals: header.totalStatistics } : outer;
  const text = header.label ?? header.name;
  if (header.kind === 'scale') {
    return [{ text, role: 'scale', inside: under(header, context) }];
  }
  const inside = [{ text: 'categories', role: 'categories', inside: under(header, context) }];
  if (header.total !== null) {
    const total = {
      text: header.total.label, role: 'total', inside: under(header, { ...context, isTotal: true }),
    };
    inside.splice(header.total.after ? 1 : 0, 0, total);
  }
  return [{ text, role: header.kind, inside }];
}

/** The drawn headers of one side of a table; null for a side that is too large. */
export function drawnHeaders(side) {
  return side === null ? null : side.flatMap((header) => drawn(header, { isTotal: false }));
}

export const depthOf = (headers) =>
  headers.reduce((depth, { inside }) => Math.max(depth, 1 + depthOf(inside)), 0);

export const leavesOf = (header) =>
  header.inside.length === 0 ? [header] : header.inside.flatMap(leavesOf);
