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

// The texts of each object that stand nowhere else, in lower case, its name and typeid first: one text for all objects,
// as searching it takes a fraction of what searching many does. It is made in slices.
const ownTexts = [];
const starts = new Uint32Array(objects.length + 1);
const heads = new Uint32Array(objects.length); // where what is behind name and typeid begins
function readOn(end) {
  for (let number = ownTexts.length; number < end; ++number) {
    const object = objects[number];
    let text = `${object.title}${separator}${object.typeId}`.toLowerCase();
    heads[number] = starts[number] + text.length;
    for (const column of searchedColumns().get(object.shape)) {
      const cell = object.cell(column);
      if (typeof cell === "string") {
        text += separator + cell.toLowerCase();
      }
    }
    ownTexts.push(text);
    starts[number + 1] = starts[number] + text.length + separator.length;
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
const allTexts = lazy(() => {
  readOn(objects.length);
  return ownTexts.join(separator);
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

const nowhere = 0;
const elsewhere = 1;
const inHead = 2; // in the name or the typeid

function placesIn(text, places) {
  const all = allTexts();
  let number = 0;
  for (let found = all.indexOf(text); found >= 0; found = number < objects.length ? all.indexOf(text, starts[number]) : -1) {
    let step = 1; // in ever larger steps, as objects that have it lie close together or far apart
    while (number + step <= objects.length && starts[number + step] <= found) {
      number += step;
      step *= 2;
    }
    while (step > 0) {
      if (number + step <= objects.length && starts[number + step] <= found) {
        number += step;
      } else {
        step >>= 1;
      }
    }
    places[number] = found < heads[number] ? inHead : Math.max(places[number], elsewhere);
    ++number;
  }
}
function placesAmongValues(texts, places) {
  const has = sharedTexts().map((shared) => texts.some((text) => shared.includes(text)));
  if (!has.includes(true)) {
    return;
  }
  for (const [each, columns] of searchedColumns()) {
    for (const cells of columns.map((column) => each.cells[column])) {
      for (let row = 0; row < each.length; ++row) {
        if (has[Array.isArray(cells) ? cells[row] : cells]) {
          places[each.objects[row]] ||= elsewhere;
        }
      }
    }
  }
}
function placesInFiles(texts, places) {
  const has = fileTexts().map((file) => texts.some((text) => file.includes(text)));
  if (has.includes(true)) {
    for (let number = 0; number < objects.length; ++number) {
      if (has[at(data.file, number)]) {
        places[number] ||= elsewhere;
      }
    }
  }
}
// Returns for each object where it has one of some texts.
function placesOf(texts) {
  const places = new Uint8Array(objects.length);
  texts.forEach((text) => placesIn(text, places));
  placesAmongValues(texts, places);
  placesInFiles(texts, places);
  return places;
}
// Returns where a word is, or what may be meant by it if it is nowhere; of the words that were looked for last it knows.
const lately = new Map();
function placesOfWord(word) {
  if (!lately.has(word)) {
    const places = placesOf([word]);
    const near = places.some((place) => place !== nowhere) ? [] : nearTexts(word);
    lately.set(word, { near, places: near.length > 0 ? placesOf(near) : places });
    if (lately.size > 20) {
      lately.delete(lately.keys().next().value);
    }
  }
  return lately.get(word);
}

// ---- one wrong letter is forgiven where a word is found nowhere
const vocabulary = lazy(() => {
  const words = new Set();
  const read = (text) => {
    for (const word of text.match(/[\p{L}\p{N}]+/gu) ?? []) {
      words.add(word);
    }
  };
  allTexts();
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
  const searched = words.map((word) => ({ word, ...placesOfWord(word) }));
  // Those that have all words in their names come first.
  const firsts = [];
  const others = [];
  for (const object of selected) {
    let least = inHead;
    for (const { places } of searched) {
      least = Math.min(least, places[object.number]);
    }
    if (least !== nowhere) {
      (least === inHead || sort ? firsts : others).push(object);
    }
  }
  return {
    objects: firsts.concat(others),
    words: searched.flatMap(({ word, near }) => (near.length > 0 ? near : [word])),
    corrected: searched.filter(({ near }) => near.length > 0).map(({ word, near }) => [word, near]),
  };
}
