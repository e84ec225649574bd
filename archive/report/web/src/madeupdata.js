// Data for the sketches of charts: always the same, and plainly nobody's.

/** Numbers from 0 to 1 that look drawn at random. */
function generator(seed) {
  let state = seed;
  return () => {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return state / 2 ** 32;
  };
}

const CATEGORIES = {
  x: ['A', 'B', 'C', 'D'], z: ['I', 'II', 'III'], y: ['low', 'high'], color: ['a', 'b', 'c'],
  style: ['1', '2'], size: ['s', 'm'], panel1: ['p', 'q'], panel2: ['r', 's'],
};

const CASES = 6;

/** The fields of a sketch that have categories, as `x` or `panel2`. */
function categoryFields(sketch) {
  const dimensions = Object.keys(CATEGORIES).filter((name) => sketch[name]?.category);
  return [...dimensions, ...sketch.panels.slice(0, 2).map((_, i) => `panel${i + 1}`)];
}

/**
 * Cases with a value for every dimension; `x`, `y`, `z` and `size` lie between 0 and 100 where they
 * have no categories, and `summary`, which is what is summarised of Y, always does.
 */
export function madeUpCases(sketch) {
  const random = generator(7);
  let cells = [{}];
  for (const field of categoryFields(sketch)) {
    cells = cells.flatMap((cell) =>
      CATEGORIES[field].map((value) => ({ ...cell, [field]: value })));
  }
  const count = Math.max(CASES, Math.ceil(60 / cells.length));
  return cells.flatMap((cell, i) => Array.from({ length: count }, () => {
    const x = 10 + 80 * random();
    const level = 25 + ((i * 37) % 40);
    const normal = (random() + random() + random()) / 3;
    const summary = sketch.x?.category === false ? 0.6 * x + 40 * normal : level + 30 * normal;
    return {
      x, z: 10 + 80 * random(), size: 100 * random(), color: x, style: '1', y: summary, summary,
      ...cell,
    };
  }));
}

const BINS = 8;
const WIDTH = 100 / BINS;

/** The bars of a histogram: {from, to, count} for each group of cases. */
export function madeUpBins(sketch, isCumulative) {
  const groups = sketch.color?.category ? CATEGORIES.color : [null];
  return groups.flatMap((color, g) => {
    let sum = 0;
    return Array.from({ length: BINS }, (_, i) => {
      const middle = (i + 0.5) * WIDTH;
      const count = Math.round(40 * Math.exp(-(((middle - 45 - 8 * g) / 22) ** 2)));
      sum += count;
      return { from: i * WIDTH, to: (i + 1) * WIDTH, color, count: isCumulative ? sum : count };
    });
  });
}

/** A normal curve over those bars. */
export function madeUpCurve() {
  return Array.from({ length: 51 }, (_, i) => ({
    x: 2 * i, y: 40 * Math.exp(-(((2 * i - 45) / 22) ** 2)),
  }));
}
