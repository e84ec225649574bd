// Command syntax as pieces: for colouring, and for telling an old command from its new form.
import { diffArrays } from 'diff';

const PIECE = new RegExp([
  /(?<blank>[ \t\r\n]+)/,
  /(?<comment>\/\*(?:(?!\*\/)[^\n])*(?:\*\/)?)/,
  /(?<text>'(?:[^'\n]|'')*'?|"(?:[^"\n]|"")*"?)/,
  /(?<subcommand>\/[ \t]*[A-Za-z]\w*)/,
  /(?<number>\d+(?:\.\d+)?(?![\w.]))/,
  /(?<word>[\p{L}@#$_](?:[\p{L}\d@#$_.]*[\p{L}\d@#$_])?)/u,
  /(?<sign>.)/su,
].map(({ source }) => source).join('|'), 'gsu');

const LINE_END = /\r\n|\r|\n/;

/** More lines of one command are not shown: browsers take too long for them. */
const MOST_LINES = 20000;

/** The lines of a text that are shown, and how many more it has. */
export function firstLines(text) {
  const lines = text.split(LINE_END);
  return {
    first: lines.slice(0, MOST_LINES).join('\n'), more: Math.max(0, lines.length - MOST_LINES),
  };
}

/** The pieces of a text: {kind, text}, in their order; they make up the whole text. */
export function piecesOf(text) {
  const pieces = [];
  for (const match of text.matchAll(PIECE)) {
    const kind = Object.keys(match.groups).find((name) => match.groups[name] !== undefined);
    pieces.push({ kind, text: match[0] });
  }
  if (pieces.length > 0 && pieces[0].kind === 'word') {
    pieces[0].kind = 'subcommand'; // the command's own name
  }
  return pieces;
}

/** What a piece says, whatever its case and quotes. */
const meaning = ({ kind, text }) => (kind === 'text' ? text.slice(1, -1) : text)
  .toUpperCase().replace(/\s/g, '');

/** Commands of more pieces are not compared. */
const MOST_COMPARED = 4000;

/**
 * Gives the pieces that are not alike in both texts a `mark`: `only` where the other text does not
 * have the piece at all, `moved` where it has it in another place. Signs get none; nearly all of
 * them differ and none says anything by itself.
 */
export function markDifferences(oldPieces, newPieces) {
  if (oldPieces.length + newPieces.length > MOST_COMPARED) {
    return;
  }
  const telling = (pieces) => pieces.filter(({ kind }) => kind !== 'blank' && kind !== 'sign');
  const [left, right] = [telling(oldPieces), telling(newPieces)];
  const [leftMeanings, rightMeanings] = [left.map(meaning), right.map(meaning)];
  const mark = (piece, others) => {
    piece.mark = others.has(meaning(piece)) ? 'moved' : 'only';
  };
  const [inLeft, inRight] = [new Set(leftMeanings), new Set(rightMeanings)];
  let [i, j] = [0, 0];
  for (const { added, removed, count } of diffArrays(leftMeanings, rightMeanings)) {
    if (removed) {
      left.slice(i, i + count).forEach((piece) => mark(piece, inRight));
    }
    if (added) {
      right.slice(j, j + count).forEach((piece) => mark(piece, inLeft));
    }
    i += added ? 0 : count;
    j += removed ? 0 : count;
  }
}

/** The pieces line by line; one that goes over several lines is cut at their ends. */
export function linesOf(pieces) {
  const lines = [[]];
  for (const piece of pieces) {
    piece.text.split(LINE_END).forEach((text, i) => {
      if (i > 0) {
        lines.push([]);
      }
      if (text !== '') {
        lines.at(-1).push({ ...piece, text });
      }
    });
  }
  return lines;
}
