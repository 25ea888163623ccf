// ---- what one sees first
function bar(share, label) {
  return element("span", { class: "bar", style: `--share:${Math.round(share * 1000) / 10}%`, ...(label ? { role: "img", "aria-label": label } : { "aria-hidden": "true" }) });
}
// A list of links with a number for each, and a bar beside it that compares them.
function countList(entries, most = 10) {
  const highest = Math.max(...entries.map(({ number }) => number), 1);
  const item = ({ title, number, change, mark }) => element("li", null,
    element("a", { href: linkTo(change) }, mark ?? "", title), element("span", { class: "number" }, count(number)), bar(number / highest));
  return firstOf(entries, most, element("ul", { class: "counts" }), item);
}
function section(title, ...children) {
  return element("section", { class: "card" }, element("h3", null, title), ...children);
}
function faultItem({ place, message, hint, rest, typeId }) {
  const shown = element("code", null, place);
  return element("li", null,
    element("div", { class: "where" }, findObject(typeId) ? element("a", { href: linkTo({ object: typeId }) }, shown) : shown), " ",
    element("div", null, message),
    ...(hint ? [element("div", { class: "hint" }, `Hint: ${hint}`)] : []), ...(rest ? [element("div", { class: "rest" }, rest)] : []));
}
function faultCards() {
  return [[true, "Left out, as it is faulty"], [false, "Perhaps not meant"]].flatMap(([isError, title]) => {
    const faults = data.faults.filter((fault) => fault.isError === isError);
    return faults.length > 0 ? [element("section", { class: isError ? "card faults bad" : "card faults" }, element("h3", null, title), ...firstOf(faults, 5, element("ul"), faultItem))] : [];
  });
}
function kindCard() {
  return section("Kinds", ...countList(kinds.filter((kind) => kind.count > 0).map((kind) => (
    { title: kind.plural, number: kind.count, change: { kind: kind.id }, mark: element("span", { class: `mark ${familyOf({ kind })}`, "aria-hidden": "true" }) })), kinds.length));
}
function facetCard(name, title) {
  const counts = facets[name].counts();
  return counts.length > 0 ? [section(title, ...countList(counts.map((each) => ({ title: each.title, number: each.objects, change: { [name]: each.title } }))))] : [];
}
function descriptionCard() {
  const tally = kinds.filter((kind) => kind.isParameter && kind.count > 0).map((kind) => ({ kind, described: 0, sampled: 0 }));
  const byKind = new Map(tally.map((each) => [each.kind, each]));
  for (const { kind, columnOf, length } of shapes) {
    if (kind.isParameter) {
      byKind.get(kind).described += columnOf.has("description") ? length : 0;
      byKind.get(kind).sampled += columnOf.has("sample text") ? length : 0;
    }
  }
  if (tally.length === 0) {
    return [];
  }
  const all = tally.reduce((sum, { kind }) => sum + kind.count, 0);
  const described = tally.reduce((sum, each) => sum + each.described, 0);
  const share = (part, whole) => `${Math.floor((100 * part) / whole)} %`;
  const cell = (part, whole) => element("td", null, bar(part / whole), share(part, whole));
  return [section("Descriptions",
    element("p", null, described === all ? "Each parameter has a description." : element("a", { href: linkTo({ only: "undescribed" }) }, `${counted(all - described, "parameter")} without a description`),
      described === all ? "" : ` of ${count(all)}.`),
    element("table", { class: "coverage" }, element("thead", null, element("tr", null, ...["Kind", "Described", "With sample text"].map((title) => element("th", { scope: "col" }, title)))),
      element("tbody", null, ...tally.map(({ kind, described: some, sampled }) => element("tr", null, element("th", { scope: "row" }, kind.plural), cell(some, kind.count), cell(sampled, kind.count))))))];
}
function unusedCard() {
  const unused = new Map();
  for (const object of objects) {
    if (isUnused(object)) {
      unused.set(object.kind, (unused.get(object.kind) ?? 0) + 1);
    }
  }
  const entries = [...unused].map(([kind, number]) => ({ title: kind.plural, number, change: { only: "unused", kind: kind.id } }));
  return section("Named by nothing", ...(entries.length > 0 ? countList(entries, kinds.length)
    : [element("p", null, "Everything but parameters is named by something.")]));
}
function overviewCards() {
  return [
    element("section", { class: "card welcome" }, element("h2", { id: "title" }, "What the catalogue holds"),
      element("p", { class: "is" }, `${counted(objects.length, "object")} in ${counted(files.length, "file")}`, data.leftOut > 0 ? `, ${count(data.leftOut)} left out as faulty` : "", "."),
      element("p", { class: "keys" }, element("kbd", null, "/"), " goes to the search, ", element("kbd", null, "\u2191"), " ", element("kbd", null, "\u2193"),
        " walk through the list, ", element("kbd", null, "Enter"), " goes to the object, ", element("kbd", null, "Esc"), " back.")),
    ...(review ? reviewCard() : []),
    ...faultCards(),
    element("div", { class: "cards" }, kindCard(), ...facetCard("group", "Largest groups"), ...facetCard("discipline", "Disciplines"),
      ...descriptionCard(), unusedCard(), ...facetCard("file", isByFolder ? "Folders" : "Files")),
  ];
}
