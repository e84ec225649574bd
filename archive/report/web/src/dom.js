// Elements out of plain values. Texts are always texts, never markup.

/**
 * @param {string} name of the element
 * @param {Object<string, *>} attributes `on...` are listeners; null and false are left out
 * @param {...(Node|string|null)} children
 */
export function element(name, attributes = {}, ...children) {
  return filled(document.createElement(name), attributes, children);
}

function filled(node, attributes, children) {
  for (const [key, value] of Object.entries(attributes)) {
    if (key.startsWith('on')) {
      node.addEventListener(key.slice(2), value);
    } else if (value !== null && value !== false) {
      node.setAttribute(key, value === true ? '' : value);
    }
  }
  fill(node, children);
  return node;
}

/** Puts children behind those of a node: one by one, for no call takes any number of them. */
export function fill(node, children) {
  for (const child of children.flat(Infinity)) {
    if (child !== null && child !== '') {
      node.append(child);
    }
  }
}

/** What a page carries as JSON in the script element of the id. */
export function embedded(id) {
  return JSON.parse(document.getElementById(id).textContent);
}

/** `3 files`, `1 file`. */
export function counted(number, noun, nouns = `${noun}s`) {
  return `${number.toLocaleString('en')} ${number === 1 ? noun : nouns}`;
}

const SIZES = ['B', 'kB', 'MB', 'GB'];

export function shownSize(bytes) {
  let size = bytes;
  let unit = 0;
  while (size >= 1000 && unit + 1 < SIZES.length) {
    size /= 1000;
    unit += 1;
  }
  return `${unit > 0 && size < 10 ? size.toFixed(1) : Math.round(size)} ${SIZES[unit]}`;
}
