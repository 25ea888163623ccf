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

// The texts of each object that stand nowhere else, in lower case, its name and typeid first; made in slices.
const ownTexts = [];
const heads = new Uint32Array(objects.length); // where what is behind name and typeid begins
function readOn(end) {
  for (let number = ownTexts.length; number < end; ++number) {
    const object = objects[number];
    const name = object.name;
    let text = `${name || object.title}${separator}${object.typeId}`.toLowerCase();
    heads[number] = text.length;
    for (let column = 0; column < object.shape.cells.length; ++column) {
      const cell = object.cell(column);
      if (typeof cell === "string") {
        text += separator + cell.toLowerCase();
      }
    }
    ownTexts.push(text);
  }
}
function readAtLeisure(deadline) {
  while (ownTexts.length < objects.length && (deadline?.timeRemaining() ?? 5) > 2) {
    readOn(Math.min(ownTexts.length + 500, objects.length));
  }
  if (ownTexts.length < objects.length) {
    whenIdle(readAtLeisure);
  }
}
const whenIdle = window.requestIdleCallback ?? ((act) => setTimeout(act, 20));

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
  notSearched.has(name) || (!Array.isArray(each.cells[column]) && typeof each.cells[column] === "string") ? [] : [column]))])));

// Returns a function that tells where an object has one of some texts: 0 in its name or typeid, 1 elsewhere, -1 nowhere.
function finderOf(texts) {
  const has = (text) => texts.some((each) => text.includes(each));
  const values = sharedTexts().map(has);
  const isAmongValues = values.includes(true);
  const isInFile = fileTexts().map(has);
  return (object) => {
    const own = ownTexts[object.number];
    let found = -1;
    for (const text of texts) {
      const place = own.indexOf(text);
      if (place >= 0 && place < heads[object.number]) {
        return 0;
      }
      found = place >= 0 ? 1 : found;
    }
    if (found < 0 && isAmongValues) {
      found = searchedColumns().get(object.shape).some((column) => values[object.cell(column)]) ? 1 : -1;
    }
    return found < 0 && isInFile[at(data.file, object.number)] ? 1 : found;
  };
}

// ---- one wrong letter is forgiven where a word is found nowhere
const vocabulary = lazy(() => {
  const words = new Set();
  const read = (text) => {
    for (const word of text.match(/[\p{L}\p{N}]+/gu) ?? []) {
      words.add(word);
    }
  };
  ownTexts.forEach(read);
  sharedTexts().forEach(read);
  return [...words];
});
// Returns how long the beginning of a text is that a word differs from by one letter, or by two that changed places;
// 0 if there is none.
function nearBeginning(word, text) {
  let same = 0;
  while (same < word.length && word[same] === text[same]) {
    ++same;
  }
  const rest = word.slice(same);
  for (const [skipped, expected] of [
    [1, rest.slice(1)],                                                       // another letter
    [0, rest.slice(1)],                                                       // one too many
    [1, rest],                                                                // one too few
    [0, rest.length > 1 ? rest[1] + rest[0] + rest.slice(2) : rest.slice(1)], // two the wrong way round
  ]) {
    if (same + skipped <= text.length && text.startsWith(expected, same + skipped)) {
      return same + skipped + expected.length;
    }
  }
  return 0;
}
function nearTexts(word) {
  const near = new Set();
  for (const text of word.length < 4 ? [] : vocabulary()) {
    // Who errs hardly errs in the first letter; all words that are near to any other would be too many.
    if (text[0] === word[0] && near.size < 50) {
      const length = nearBeginning(word, text);
      if (length > 2) {
        near.add(text.slice(0, length));
      }
    }
  }
  return [...near];
}

// ---- what the state selects
const onlyKinds = {
  undescribed: { title: "without a description", holds: isUndescribed },
  unused: { title: "that nothing names", holds: isUnused },
  warned: { title: "with a warning", holds: (object) => warned().has(object.typeId) },
};
const orders = {
  name: { title: "by name", of: (object) => object.title.toLowerCase() },
  typeid: { title: "by typeid", of: (object) => object.typeId },
  file: { title: "by file", of: (object) => [at(data.file, object.number), at(data.line, object.number)] },
  users: { title: "by what names them most", of: (object) => -countUsers(object) },
};
const compare = (a, b) => (Array.isArray(a) ? a[0] - b[0] || a[1] - b[1] : a < b ? -1 : a > b ? 1 : 0);
for (const order of Object.values(orders)) {
  order.objects = lazy(() => objects.map((object) => [order.of(object), object])
    .sort(([a], [b]) => compare(a, b)).map(([, object]) => object));
}

let found = { objects, words: [], corrected: [] };

// Returns the objects that a state selects, the texts that are looked for, and the words that others stand for.
function select({ q, kind, group, discipline, file, only, sort }) {
  let selected = orders[sort]?.objects() ?? objects;
  const keep = (holds) => { selected = selected.filter(holds); };
  if (kind) {
    keep((object) => object.kind.id === kind);
  }
  for (const [facet, title] of [["group", group], ["discipline", discipline], ["file", file]]) {
    if (title) {
      keep((object) => facets[facet].of(object).includes(title));
    }
  }
  if (only) {
    keep(onlyKinds[only]?.holds ?? (() => false));
  }
  const words = q.toLowerCase().split(/\s+/).filter(Boolean);
  if (words.length === 0) {
    return { objects: selected, words, corrected: [] };
  }
  readOn(objects.length);
  const corrected = [];
  const texts = [];
  const firsts = [];
  const others = [];
  const finders = words.map((word) => {
    const finder = finderOf([word]);
    const near = objects.some((object) => finder(object) >= 0) ? [] : nearTexts(word);
    texts.push(...(near.length > 0 ? near : [word]));
    if (near.length > 0) {
      corrected.push([word, near]);
    }
    return near.length > 0 ? finderOf(near) : finder;
  });
  for (const object of selected) {
    let worst = 0;
    for (const finder of finders) {
      const place = finder(object);
      worst = place < 0 || worst < 0 ? -1 : Math.max(worst, place);
      if (worst < 0) {
        break;
      }
    }
    if (worst >= 0) {
      (worst === 0 || sort ? firsts : others).push(object);
    }
  }
  return { objects: firsts.concat(others), words: texts, corrected };
}
