// ---- where words are in objects, and what the state selects
const nowhere = 0;
const elsewhere = 1;
const inHead = 2; // in the name or the typeid

// Notes where letters and digits are; returns the numbers of the words that have them, if they are few: what has more
// letters is among these.
function placesInWords(text, places, among) {
  const having = among?.filter((number) => allWords().texts[number].includes(text)) ?? [];
  if (among === undefined) {
    allWords().find(text, (number) => having.push(number));
  }
  const note = (holder) => { places[holder >> 1] = Math.max(places[holder >> 1], holder & 1 ? inHead : elsewhere); };
  for (const number of having) {
    const holders = holdersOfWord[number];
    if (typeof holders === "number") {
      note(holders);
    } else {
      holders.forEach(note);
    }
  }
  return having.length < 1000 ? having : undefined;
}
// Notes where any text is, among the objects that have its beginning if that was looked for.
function placesInTexts(text, places, beginning) {
  const { texts, begins, versions } = typeIdEnds();
  const has = texts.map((each) => each.includes(text));
  if (has.includes(true)) {
    for (let number = 0; number < objects.length; ++number) {
      if (has[begins[number]] || has[versions[number]]) {
        places[number] = inHead;
      }
    }
  }
  const isOpen = (number) => places[number] !== inHead && (!beginning || beginning[number] !== nowhere);
  const note = (number, place) => { places[number] = Math.max(places[number], place < heads[number] ? inHead : elsewhere); };
  for (let number = 0, end = 0; number < objects.length; number = end) {
    const open = isOpen(number);
    for (end = number + 1; end < objects.length && isOpen(end) === open; ++end);
    if (open) {
      allTexts().find(text, note, number, end);
    }
  }
}
function placesIn(text, places, beginning) {
  if (learnt === objects.length && isWord(text)) {
    return placesInWords(text, places, beginning?.words);
  }
  placesInTexts(text, places, beginning?.own);
  return undefined;
}
// Returns which of some values have one of some texts.
function placesAmongValues(texts, places, values = searchedValues()) {
  const having = values.filter((value) => texts.some((text) => sharedTexts()[value].includes(text)));
  for (const value of having) {
    for (const numbers of holders()[value]) {
      for (let i = 0; i < numbers.length; ++i) {
        places[numbers[i]] = places[numbers[i]] || elsewhere;
      }
    }
  }
  return having;
}
function placesInFiles(texts, places) {
  const has = fileTexts().map((file) => texts.some((text) => file.includes(text)));
  if (has.includes(true) && has.includes(false)) {
    for (let number = 0; number < objects.length; ++number) {
      if (places[number] === nowhere && has[data.file[number]]) {
        places[number] = elsewhere;
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
// Returns where a word is, or what may be meant by it if it is nowhere; of the words that were looked for last it knows,
// and who types a word has just looked for its beginning.
const lately = new Map();
const recent = []; // which of them are forgotten again: all but single letters
function placesOfWord(word) {
  if (!lately.has(word)) {
    let beginning;
    for (let end = word.length - 1; end > 0 && !beginning; --end) {
      beginning = lately.get(word.slice(0, end));
    }
    const own = new Uint8Array(objects.length);
    const words = placesIn(word, own, beginning);
    const values = placesAmongValues([word], own, beginning?.values);
    placesInFiles([word], own);
    const near = own.includes(inHead) || own.includes(elsewhere) ? [] : nearTexts(word);
    lately.set(word, { own, words, values, near, places: near.length > 0 ? placesOf(near) : own });
    if (word.length > 1 && recent.push(word) > 20) {
      lately.delete(recent.shift());
    }
  }
  return lately.get(word);
}

const whenIdle = window.requestIdleCallback ?? ((act) => setTimeout(act, 20));
// Does a part of the work when there is nothing else to do, and comes back for the rest.
function readAtLeisure(deadline) {
  while (learnt < objects.length && (deadline?.timeRemaining() ?? 5) > 2) {
    readOn(Math.min(ownTexts.length + 500, objects.length));
    if (ownTexts.length === objects.length) {
      learnOn(Math.min(learnt + 500, objects.length));
    }
  }
  if (learnt < objects.length) {
    whenIdle(readAtLeisure);
  } else {
    [searchedValues, allWords, allTexts, typeIdEnds].forEach((make) => whenIdle(() => make()));
    // What is typed begins with one of these.
    "abcdefghijklmnopqrstuvwxyz0123456789".split("").forEach((letter) => whenIdle(() => placesOfWord(letter)));
  }
}

// ---- one wrong letter is forgiven where a word is found nowhere
const vocabulary = lazy(() => {
  allWords();
  return [...new Set([...numberOfWord.keys(), ...sharedTexts().flatMap(wordsIn)])];
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
  order.numbers = lazy(() => Uint32Array.from(objects.map((object) => [order.of(object), object.number])
    .sort(([a], [b]) => compare(a, b)).map(([, number]) => number)));
}

const allNumbers = Uint32Array.from(objects.keys());
const selection = new Uint32Array(objects.length); // for what is selected, while it is made
let found = { numbers: allNumbers, words: [], corrected: [] };
const foundAt = (index) => objects[found.numbers[index]];

// Returns those of some numbers that have a place, first those whose place is not below another one.
function inOrder(numbers, places, first) {
  let firsts = 0;
  let others = selection.length; // which are put at the end, backwards
  for (let i = 0; i < numbers.length; ++i) {
    const place = places[numbers[i]];
    if (place >= first) {
      selection[firsts++] = numbers[i];
    } else if (place !== nowhere) {
      selection[--others] = numbers[i];
    }
  }
  selection.subarray(others).reverse();
  selection.copyWithin(firsts, others);
  return selection.slice(0, firsts + selection.length - others);
}
// Returns the numbers of the objects that a state selects, the texts that are looked for, and the words that others stand
// for.
function select({ q, kind, group, discipline, file, only, sort }) {
  let selected = orders[sort]?.numbers() ?? allNumbers;
  const keep = (holds) => { selected = selected.filter((number) => holds(objects[number])); };
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
    return { numbers: selected, words, corrected: [] };
  }
  const searched = words.map((word) => ({ word, ...placesOfWord(word) }));
  const places = searched.map((each) => each.places).reduce((all, more) => all.map((place, number) => Math.min(place, more[number])));
  return {
    numbers: inOrder(selected, places, sort ? elsewhere : inHead),
    words: searched.flatMap(({ word, near }) => (near.length > 0 ? near : [word])),
    corrected: searched.filter(({ near }) => near.length > 0).map(({ word, near }) => [word, near]),
  };
}
