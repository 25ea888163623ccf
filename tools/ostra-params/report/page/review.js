// ---- what changed since an earlier catalogue, and whom it breaks
const review = data.review;
const fates = {
  removed: ["\u2212", "removed"], added: ["+", "added"], succeeded: ["\u2197", "new version"], renamed: ["\u2192", "new typeid"],
  changed: ["~", "changed"], broken: ["!", "faulty now"], mended: ["\u2713", "faulty before"],
};
const severities = ["breaks documents", "breaks applications", "review", "safe"];
const severityClass = (severity) => "severity " + severity.split(" ").at(-1);
// What the schema text was, if there was one.
function textBefore({ typeId, before }) {
  if (!Array.isArray(before)) {
    return before;
  }
  const now = schemaTextOf(findObject(typeId));
  return now.slice(0, before[0]) + before[1] + now.slice(now.length - before[2]);
}
const isThere = ({ kind }) => kind === undefined;
const changeOf = lazy(() => new Map(review.changes.map((change) => [change.typeId, change])));
const isBreaking = (change) => change.rules.some((rule) => review.rules[rule].isBreaking);
const fatesOf = (...names) => (object) => names.includes(changeOf().get(object.typeId)?.fate);
if (review) {
  onlyKinds.added = { title: "that are new", holds: fatesOf("added", "succeeded", "renamed", "mended") };
  onlyKinds.changed = { title: "that changed", holds: fatesOf("changed") };
  onlyKinds.breaking = { title: "that break something", holds: (object) => changeOf().has(object.typeId) && isBreaking(changeOf().get(object.typeId)) };
}

// Cuts two texts into pieces, [text, whether it is in this one alone], by words; blanks between them do not count.
function differences(before, after) {
  const cut = (text) => [...text.matchAll(/([\p{L}\p{N}_]+|[^\p{L}\p{N}_\s]|^)(\s*)/gu)].map(([, word, blanks]) => ({ word, blanks }));
  const [old, now] = [cut(before), cut(after)];
  const pieces = [[], []];
  const add = (side, text, isAlone) => {
    const last = pieces[side].at(-1);
    if (last && last[1] === isAlone) {
      last[0] += text;
    } else if (text) {
      pieces[side].push([text, isAlone]);
    }
  };
  const take = (side, { word, blanks }, isAlone) => { add(side, word, isAlone); add(side, blanks, false); };

  let begin = 0;
  let ends = [old.length, now.length];
  while (begin < Math.min(...ends) && old[begin].word === now[begin].word) {
    take(0, old[begin], false);
    take(1, now[begin++], false);
  }
  while (Math.min(...ends) > begin && old[ends[0] - 1].word === now[ends[1] - 1].word) {
    ends = ends.map((end) => end - 1);
  }
  const [rows, columns] = ends.map((end) => end - begin);
  const width = columns + 1;
  // How many words are the same from here on; where there are too many, none are looked for.
  const common = rows * columns > 4e6 ? null : new Uint16Array((rows + 1) * width);
  for (let i = common ? rows - 1 : -1; i >= 0; --i) {
    for (let j = columns - 1; j >= 0; --j) {
      common[i * width + j] = old[begin + i].word === now[begin + j].word ? common[(i + 1) * width + j + 1] + 1
                                                                          : Math.max(common[(i + 1) * width + j], common[i * width + j + 1]);
    }
  }
  for (let i = 0, j = 0; i < rows || j < columns;) {
    if (common && i < rows && j < columns && old[begin + i].word === now[begin + j].word) {
      take(0, old[begin + i++], false);
      take(1, now[begin + j++], false);
    } else if (j === columns || (i < rows && (!common || common[(i + 1) * width + j] >= common[i * width + j + 1]))) {
      take(0, old[begin + i++], true);
    } else {
      take(1, now[begin + j++], true);
    }
  }
  old.slice(ends[0]).forEach((each) => take(0, each, false));
  now.slice(ends[1]).forEach((each) => take(1, each, false));
  return pieces;
}
const piecesShown = (pieces, name) => pieces.map(([text, isAlone]) => (isAlone ? element(name, null, text) : text));

// What a constant says.
function saidShown(value) {
  if (value === null || value === "") {
    return [element("span", { class: "builtin" }, "nothing")];
  }
  if (Array.isArray(value)) {
    return value.length === 0 ? saidShown(null) : value.flatMap((each, i) => [i > 0 ? ", " : "", ...saidShown(each)]);
  }
  const named = value.typeId && findObject(value.typeId);
  return named ? valueShown(named) : [value.typeId ? element("code", null, value.typeId) : value];
}
function constantRow({ id, from, before, after, elements, isReordered }) {
  const label = element("th", { scope: "row" }, id.replace(/[A-Z]/g, (letter) => " " + letter.toLowerCase()), ...(from ? [element("small", null, ` of its ${from}`)] : []));
  if (elements) {
    const items = elements.map(([old, now]) => element("li", null, ...(
      old === null ? ["+ ", element("ins", null, ...saidShown(now))] : now === null ? ["\u2212 ", element("del", null, ...saidShown(old))]
                   : [element("del", null, ...saidShown(old)), " \u2192 ", element("ins", null, ...saidShown(now))])));
    return element("tr", null, label, element("td", { colspan: "2" }, ...firstOf(items, 20, element("ul", { class: "plain" }), (item) => item), isReordered ? " In another order." : ""));
  }
  if (isReordered) {
    return element("tr", null, label, element("td", { colspan: "2" }, "The same in another order."));
  }
  const areTexts = typeof before === "string" && typeof after === "string" && before && after;
  const [old, now] = areTexts ? differences(before, after) : [];
  return element("tr", null, label,
    element("td", null, ...(areTexts ? piecesShown(old, "del") : saidShown(before))), element("td", null, ...(areTexts ? piecesShown(now, "ins") : saidShown(after))));
}
function textsShown(change) {
  const laidOut = (text) => linesOf(text).map((line) => line.join("")).join("\n");
  const object = findObject(change.typeId);
  const texts = [textBefore(change), isThere(change) ? schemaTextOf(object) : undefined].map((text) => text && laidOut(text));
  const pieces = texts[0] && texts[1] ? differences(...texts) : texts.map((text) => [[text, false]]);
  const side = (title, cut, name) => element("div", null, element("h4", null, title),
    element("pre", { class: "schema text", tabindex: "0", "aria-label": title }, element("code", null, ...piecesShown(cut, name))));
  return element("div", { class: "sides" }, ...(texts[0] ? [side("Before", pieces[0], "del")] : []), ...(texts[1] ? [side("Now", pieces[1], "ins")] : []));
}
function dependentsShown({ direct, total, isMore }) {
  return element("p", { class: "affected" }, `${isMore ? "More than " : ""}${total === 1 ? "1 object depends" : `${count(total)} objects depend`} on it: `,
    ...direct.slice(0, 5).flatMap((typeId, i) => [i > 0 ? ", " : "", ...saidShown({ typeId })]), total > Math.min(direct.length, 5) ? " \u2026" : ".");
}
// What is told of a change, without the object's name.
function changeShown(change) {
  const parts = [];
  if (change.rules.length > 0) {
    parts.push(element("ul", { class: "rules plain" }, ...change.rules.map((number) => review.rules[number]).map((rule) => element("li", null,
      element("span", { class: severityClass(rule.severity) }, rule.severity), " ", rule.what, " ", element("span", { class: "why" }, rule.why), " ", element("code", null, rule.code)))));
  }
  if (change.dependents) {
    parts.push(dependentsShown(change.dependents));
  }
  if (change.constants) {
    parts.push(element("table", { class: "constants" }, element("thead", null, element("tr", null, ...["", "Before", "Now"].map((title) => (title ? element("th", { scope: "col" }, title) : element("td"))))),
      element("tbody", null, ...change.constants.map(constantRow))));
  }
  const details = element("details", null, element("summary", null, change.before && isThere(change) ? "Both texts" : "The text"));
  details.addEventListener("toggle", () => details.childElementCount === 1 && details.append(textsShown(change)));
  return [...parts, details];
}
function changeCard(change) {
  const [sign, word] = fates[change.fate];
  const object = isThere(change) ? findObject(change.typeId) : null;
  const kind = object?.kind ?? kindOfId.get(change.kind);
  const title = object?.title ?? (change.name || lastPart(change.typeId));
  return element("article", { class: "card change" },
    element("p", { class: "is" }, element("span", { class: `fate ${change.fate}` }, `${sign} ${word}`), " ", ...titled({ kind }), kind.label),
    element("h3", null, object ? element("a", { href: linkTo({ object: change.typeId }) }, title) : title),
    element("p", { class: "typeid" }, ...(change.typeIdBefore ? [element("code", null, change.typeIdBefore), " \u2192 "] : []), element("code", null, change.typeId)),
    ...changeShown(change));
}

function reviewCards({ fate, severity }) {
  const chosen = review.changes.filter((change) => (!fate || change.fate === fate) && (!severity || change.rules.some((rule) => review.rules[rule].severity === severity)));
  const tally = (of) => { const counts = new Map(); review.changes.forEach((change) => of(change).forEach((each) => counts.set(each, (counts.get(each) ?? 0) + 1))); return counts; };
  const byFate = tally((change) => [change.fate]);
  const bySeverity = tally((change) => [...new Set(change.rules.map((rule) => review.rules[rule].severity))]);
  const choice = (text, change, isChosen) => element("a", { class: "choice", href: linkTo({ view: "review", ...change }), ...(isChosen ? { "aria-current": "true" } : {}) }, text);
  return [element("section", { class: "card" }, element("h2", { id: "title" }, "What changed"),
    element("p", { class: "is" }, "Since ", element("code", null, review.name), ".", review.leftOut > 0 ? ` ${counted(review.leftOut, "schema")} there ${review.leftOut === 1 ? "was" : "were"} left out as faulty.` : ""),
    element("p", { class: "choices" }, choice(`all ${count(review.changes.length)}`, {}, !fate && !severity),
      ...severities.filter((each) => bySeverity.has(each)).map((each) => choice(`${each === "review" ? "to be reviewed" : each} ${count(bySeverity.get(each))}`, { severity: each }, severity === each)),
      ...Object.keys(fates).filter((each) => byFate.has(each)).map((each) => choice(`${fates[each].join(" ")} ${count(byFate.get(each))}`, { fate: each }, fate === each))),
    chosen.length === 0 ? element("p", null, "Nothing changed.") : ""),
  ...firstOf(chosen, 20, element("div"), changeCard)];
}
// In the overview and with an object, where there is something to tell.
function reviewCard() {
  const breaking = review.changes.filter(isBreaking).length;
  return [element("section", { class: breaking > 0 ? "card faults bad" : "card" }, element("h3", null, "What changed"),
    element("p", null, element("a", { href: linkTo({ view: "review" }) }, counted(review.changes.length, "change")), " since ", element("code", null, review.name),
      breaking > 0 ? element("span", null, ", ", element("a", { href: linkTo({ only: "breaking" }) }, `${count(breaking)} breaking`)) : "", "."))];
}
