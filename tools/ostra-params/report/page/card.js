// ---- the card of the object shown
function valueShown(value) {
  if (typeof value === "string") {
    return [value];
  }
  return value.isBuiltIn ? [value.title, " ", element("span", { class: "builtin" }, "built in")]
                         : [element("a", { href: linkTo({ object: value.typeId }) }, value.title)];
}
function propertyList(object) {
  const made = element("dl");
  object.shape.properties.forEach(({ name }, column) => {
    const values = object.values(column);
    if (values.length > 0) {
      made.append(element("dt", null, name), values.length === 1
        ? element("dd", null, ...valueShown(values[0]))
        : element("dd", null, ...firstOf(values, 30, element("ul", { class: values.length > 8 ? "many" : "" }), (value) => element("li", null, ...valueShown(value)))));
    }
  });
  const [place] = placesOfFiles[at(data.file, object.number)];
  made.append(element("dt", null, "defined in"), element("dd", null, element("code", null, object.place), " ",
    element("a", { class: "beside", href: linkTo({ file: place }) }, isByFolder ? "all in this folder" : "all in this file")));
  return made;
}
function linkItem({ role, object }) {
  return element("li", null, element("span", { class: "role" }, role), element("span", null, ...valueShown(object), element("code", null, object.typeId)));
}
// A card with links; of many, the first ones. Where all are of one role, their kinds tell more.
function linkCard(title, links) {
  const isOne = links.length > 1 && links.every(({ role }) => role === links[0].role);
  const shown = isOne ? links.map(({ object }) => ({ object, role: object.kind?.label ?? "" })) : links;
  return element("section", { class: "card" }, element("h3", null, `${title} ${count(links.length)}${isOne ? `, as ${links[0].role}` : ""}`),
    ...firstOf(shown, 50, element("ul", { class: "links" }), linkItem));
}
async function copy(text) {
  try {
    await navigator.clipboard.writeText(text);
  } catch { // as pages that are files may not, in some browsers
    const field = element("textarea", { class: "unseen", readonly: "" }, text);
    const before = document.activeElement;
    document.body.append(field);
    field.select();
    document.execCommand("copy");
    field.remove();
    before?.focus();
  }
}
function copyButton(text) {
  const made = button("Copy", async () => {
    await copy(text);
    made.textContent = "Copied";
    announce(`Copied ${text}`);
    setTimeout(() => { made.textContent = "Copy"; }, 1500);
  }, { class: "copy", "aria-label": "Copy the typeid" });
  return made;
}
function objectCards(object) {
  const needs = dependenciesOf(object);
  const users = usersOf(object);
  const alone = [needs.length === 0 && "Depends on nothing.", users.length === 0 && (object.kind.isParameter ? "Named by nothing, as parameters are for applications." : "Named by nothing.")].filter(Boolean).join(" ");
  const cards = [element("article", { class: "card", "aria-labelledby": "title" },
    element("p", { class: "is" }, ...titled(object), element("a", { href: linkTo({ kind: object.kind.id }) }, object.kind.label)),
    element("h2", { id: "title" }, object.title),
    element("p", { class: "typeid" }, element("code", null, object.typeId), copyButton(object.typeId)),
    propertyList(object),
    alone ? element("p", { class: "alone" }, alone) : "")];
  if (review && changeOf().has(object.typeId)) {
    const change = changeOf().get(object.typeId);
    cards.push(element("section", { class: "card change" }, element("h3", null, `${change.fate === "changed" ? "Changed" : "New"} since ${review.name}`), ...changeShown(change)));
  }
  if (needs.length + users.length > 0) {
    cards.push(element("section", { class: "card picture" }, element("h3", null, "What hangs together"), pictureOf(object)));
  }
  if (needs.length > 0) {
    cards.push(linkCard("Depends on", needs));
  }
  if (users.length > 0) {
    cards.push(linkCard("Named by", users));
  }
  cards.push(element("section", { class: "card" }, element("h3", null, "Schema"), schemaShown(object)));
  return cards;
}

// ---- where there is no object of a typeid
const goneAs = (typeId) => review.changes.find((change) => change.typeIdBefore === typeId || (change.typeId === typeId && !isThere(change)))?.fate;
function missingCards(typeId) {
  const stem = (text) => text.replace(/-\d+\.\d+\.\d+$/, "");
  const like = objects.filter((object) => stem(object.typeId) === stem(typeId)).slice(0, 10);
  const words = lastPart(stem(typeId));
  return [element("section", { class: "card" }, element("h2", { id: "title" }, "Not in this catalogue"),
    element("p", null, "There is no object ", element("code", null, typeId), ". It may have been removed or renamed, or was left out as faulty."),
    ...(review && goneAs(typeId) ? [element("p", null, element("a", { href: linkTo({ view: "review", fate: goneAs(typeId) }) }, "It is among what changed"), ".")] : []),
    ...(like.length > 0 ? [element("p", null, "Of that name, but of another version:"), element("ul", { class: "links" }, ...like.map((object) => linkItem({ role: object.kind.label, object })))] : []),
    element("p", null, element("a", { href: linkTo({ q: words }) }, `Search for \u201c${words}\u201d`), " \u00b7 ", element("a", { href: "#" }, "Overview")))];
}
