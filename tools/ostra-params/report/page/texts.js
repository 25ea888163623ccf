// ---- what the search looks at: names, typeids and whatever else objects say, and where they stand
const notSearched = new Set(["read-only", "ranged"]);
const separator = "\n";

// The texts of the values that stand in several places, in lower case; of an object that is named, if it is a unit.
const sharedTexts = lazy(() => data.values.map((value) => (Array.isArray(value) ? value : [value]).map((each) => {
  const named = typeof each === "number" ? objectOf(each) : null;
  if (named === null) {
    return each;
  }
  return named.kind?.id === "unit" ? [named.name, ...named.shape.properties.flatMap((_, i) => named.values(i))].join(separator) : "";
}).join(separator).toLowerCase()));

// Many texts behind one another: searching them takes a fraction of what searching each would.
class Texts {
  constructor(texts) {
    this.texts = texts;
    this.starts = new Uint32Array(texts.length + 1);
    texts.forEach((text, number) => { this.starts[number + 1] = this.starts[number] + text.length + separator.length; });
    this.all = texts.join(separator);
  }
  // Calls back with the number of each that has a text, and with how far that is from its beginning.
  find(text, note, begin = 0, end = this.starts.length - 1) {
    const { starts } = this;
    const first = starts[begin];
    const run = this.all.slice(first, starts[end]);
    let number = begin;
    for (let found = run.indexOf(text); found >= 0 && number < end; found = run.indexOf(text, starts[number] - first)) {
      for (let step = 1; step > 0;) { // in larger steps and smaller ones again, to the text that has it
        if (number + step < end && starts[number + step] - first <= found) {
          number += step;
          step *= 2;
        } else {
          step >>= 1;
        }
      }
      note(number, first + found - starts[number]);
      ++number;
    }
  }
}

// The texts of each object that stand nowhere else, in lower case, its name and typeid first. They are read in slices.
const ownTexts = [];
const heads = new Uint32Array(objects.length); // how long name and typeid are
function readOn(end) {
  for (let number = ownTexts.length; number < end; ++number) {
    const object = objects[number];
    let text = object.title.toLowerCase() + separator + object.typeId.toLowerCase();
    heads[number] = text.length;
    for (const column of searchedColumns().get(object.shape)) {
      const cell = object.cell(column);
      if (typeof cell === "string") {
        text += separator + cell.toLowerCase();
      }
    }
    ownTexts.push(text);
  }
}
const allTexts = lazy(() => {
  readOn(objects.length);
  return new Texts(ownTexts);
});

// Letters and digits are within words, which are few beside the texts; once these have been read, the words are searched.
const wordsIn = (text) => text.match(/[\p{L}\p{N}]+/gu) ?? [];
const isWord = (text) => /^[\p{L}\p{N}]+$/u.test(text);
const numberOfWord = new Map();
const holdersOfWord = []; // for each the objects that have it, or the one: twice the number, one more where it is in the head
let learnt = 0;
function learnOn(end) {
  for (; learnt < end; ++learnt) {
    for (const [part, isHead] of [[ownTexts[learnt].slice(0, heads[learnt]), 1], [ownTexts[learnt].slice(heads[learnt]), 0]]) {
      for (const word of wordsIn(part)) {
        const number = numberOfWord.get(word) ?? holdersOfWord.length;
        const known = holdersOfWord[number];
        if (known === undefined) {
          numberOfWord.set(word, number);
          holdersOfWord.push(2 * learnt + isHead);
        } else if (typeof known === "number") {
          holdersOfWord[number] = known >> 1 === learnt ? known : [known, 2 * learnt + isHead];
        } else if (known.at(-1) >> 1 !== learnt) {
          known.push(2 * learnt + isHead);
        }
      }
    }
  }
}
const allWords = lazy(() => {
  readOn(objects.length);
  learnOn(objects.length);
  return new Texts([...numberOfWord.keys()]);
});

// What all files have in common at the beginnings of their paths tells nothing of any of them.
const fileTexts = lazy(() => {
  const [first] = files;
  const folders = first === undefined ? 0 : first.lastIndexOf("/") + 1;
  let shared = folders;
  for (const file of files) {
    while (!file.startsWith(first.slice(0, shared))) {
      shared = first.lastIndexOf("/", shared - 2) + 1;
    }
  }
  return files.map((file) => file.slice(shared).toLowerCase());
});
const searchedColumns = lazy(() => new Map(shapes.map((each) => [each, each.properties.flatMap(({ name }, column) => (
  notSearched.has(name) ? [] : [column]))])));
// For each value that stands in several places and has a text, the objects that have it, in lists; of others there are none.
const holders = lazy(() => {
  const all = data.values.map(() => []);
  const isSearched = (cell) => typeof cell === "number" && sharedTexts()[cell] !== "";
  for (const each of shapes) {
    for (const column of searchedColumns().get(each)) {
      const cells = each.cells[column];
      if (isSearched(cells)) { // which all of the shape have
        all[cells].push(each.objects);
      } else if (Array.isArray(cells)) {
        const numbers = new Map();
        for (let row = 0; row < cells.length; ++row) {
          if (isSearched(cells[row])) {
            if (!numbers.has(cells[row])) {
              numbers.set(cells[row], []);
              all[cells[row]].push(numbers.get(cells[row]));
            }
            numbers.get(cells[row]).push(each.objects[row]);
          }
        }
      }
    }
  }
  return all;
});
const searchedValues = lazy(() => [...holders().keys()].filter((value) => holders()[value].length > 0));

// How typeids begin, up to their last part, and end, with their version: few texts, which many have.
const typeIdEnds = lazy(() => {
  const numberOf = new Map();
  const numbered = (text) => numberOf.get(text) ?? numberOf.set(text, numberOf.size).get(text);
  const begins = new Uint32Array(objects.length);
  const versions = new Uint32Array(objects.length);
  for (let number = 0; number < objects.length; ++number) {
    const typeId = typeIds[number].toLowerCase();
    const version = typeId.lastIndexOf("-");
    begins[number] = numbered(typeId.slice(0, Math.max(typeId.lastIndexOf(".", version), typeId.indexOf(":")) + 1));
    versions[number] = numbered(version < 0 ? "" : typeId.slice(version));
  }
  return { texts: numberOf.size < objects.length / 8 ? [...numberOf.keys()] : [], begins, versions };
});
