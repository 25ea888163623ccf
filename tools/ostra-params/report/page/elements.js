// ---- elements; what schemas say becomes text nodes, never markup
const byId = (id) => document.getElementById(id);

function element(name, attributes, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes ?? {})) {
    made.setAttribute(key, value);
  }
  made.append(...children);
  return made;
}
function shape(name, attributes, ...children) {
  const made = document.createElementNS("http://www.w3.org/2000/svg", name);
  for (const [key, value] of Object.entries(attributes ?? {})) {
    made.setAttribute(key, value);
  }
  made.append(...children);
  return made;
}
function button(text, act, attributes) {
  const made = element("button", { type: "button", ...attributes }, text);
  made.addEventListener("click", act);
  return made;
}
// Tells what happened to those who do not see it.
function announce(text) {
  byId("told").textContent = text;
}
// A title that tells by a mark, too, what family of kinds the object is of.
function titled(object, ...title) {
  return [element("span", { class: `mark ${familyOf(object)}`, "aria-hidden": "true" }), ...title];
}
function familyOf(object) {
  const id = object.kind?.id ?? "";
  return ["parameter", "spec", "range", "enumeration", "unit"].find((family) => id.endsWith(family)) ?? "order";
}
// Returns a list of items, and a button that shows those beyond the first ones.
function firstOf(things, most, made, itemOf) {
  made.append(...things.slice(0, most).map(itemOf));
  if (things.length <= most) {
    return [made];
  }
  const more = button(`Show ${count(things.length - most)} more`, () => {
    made.append(...things.slice(most).map(itemOf));
    more.remove();
    (made.children[most].querySelector("a") ?? card).focus();
  }, { class: "more" });
  return [made, more];
}
