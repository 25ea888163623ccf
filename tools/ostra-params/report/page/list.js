// ---- the list: only the rows in sight are in the page
const list = byId("list");
const rows = byId("rows");
const isNarrow = window.matchMedia("(max-width: 50rem)");
let current = null; // the object shown
let active = -1;    // the row that the keyboard is at
let listTop = 0;    // how far the list was scrolled when it was left
let seenBeside = null; // what was in sight when the list was last laid out: asking for it costs another layout

const rowHeight = () => parseFloat(getComputedStyle(list).getPropertyValue("--row")) * parseFloat(getComputedStyle(document.documentElement).fontSize);

function marked(text) {
  const spans = [];
  const lower = text.toLowerCase();
  for (const word of lower.length === text.length ? found.words : []) {
    for (let place = lower.indexOf(word); place >= 0; place = lower.indexOf(word, place + word.length)) {
      spans.push([place, place + word.length]);
    }
  }
  const pieces = [];
  let done = 0;
  for (const [begin, end] of spans.sort((a, b) => a[0] - b[0])) {
    if (begin >= done) {
      pieces.push(text.slice(done, begin), element("mark", null, text.slice(begin, end)));
      done = end;
    }
  }
  return [...pieces, text.slice(done)];
}
const emptyRow = element("div", { class: "row", role: "option" },
  element("b", null, element("span"), element("span", { class: "kind" })), element("small")); // a copy is quicker than another
function row(index, height) {
  const object = foundAt(index);
  const made = emptyRow.cloneNode(true);
  const [{ children: [title, kind] }, typeId] = made.children;
  made.id = "row" + index;
  made.style.top = index * height + "px";
  made.classList.toggle("active", index === active);
  for (const [name, value] of [["selected", object === current], ["setsize", found.numbers.length], ["posinset", index + 1]]) {
    made.setAttribute("aria-" + name, value);
  }
  title.append(...titled(object, ...marked(object.title)));
  kind.textContent = object.kind.label;
  typeId.append(...marked(object.typeId));
  return made;
}
rows.addEventListener("click", (event) => {
  const clicked = event.target.closest(".row");
  if (clicked) {
    active = Number(clicked.id.slice("row".length));
    go({ object: foundAt(active).typeId, view: "" });
  }
});
// How far the list was scrolled, how much of it is in sight, and how high a row is. The list scrolls where there is room
// beside the object; else the page does.
function sight() {
  if (!isNarrow.matches) {
    return [list.scrollTop, list.clientHeight, rowHeight()];
  }
  const top = -rows.getBoundingClientRect().top;
  return [Math.max(0, top), Math.max(0, Math.min(top, 0) + window.innerHeight), rowHeight()];
}
// Keeps the rows that stay in sight, as one of them may be about to be clicked; all become others when they may differ.
// What is in sight need not be asked for anew where it is known.
function render(isOther = false, seen = null) {
  if (isNarrow.matches && byId("objects").offsetParent === null) {
    return;
  }
  const [top, room, height] = seen ?? sight();
  rows.style.height = found.numbers.length * height + "px";
  const first = Math.max(0, Math.floor(top / height) - 5);
  const last = Math.min(found.numbers.length, Math.ceil((top + room) / height) + 5);
  const there = new Map(isOther ? [] : [...rows.children].map((each) => [each.id, each]));
  const wanted = Array.from({ length: Math.max(0, last - first) }, (_, i) => there.get("row" + (first + i)) ?? row(first + i, height));
  if (isOther) {
    rows.replaceChildren(...wanted);
  } else {
    for (const each of [...rows.children]) {
      if (!wanted.includes(each)) {
        each.remove();
      }
    }
    wanted.forEach((each, i) => rows.children[i] === each || rows.insertBefore(each, rows.children[i] ?? null));
  }
  if (active >= first && active < last) {
    list.setAttribute("aria-activedescendant", "row" + active);
  } else {
    list.removeAttribute("aria-activedescendant");
  }
}
function scrollTo(top) {
  if (isNarrow.matches) {
    window.scrollTo(0, rows.getBoundingClientRect().top + window.scrollY + top);
  } else {
    list.scrollTop = top;
  }
}
function reveal(index) {
  if (index < 0) {
    return;
  }
  const [top, room, height] = sight();
  const begin = index * height;
  if (begin < top) {
    scrollTo(begin);
  } else if (begin + height > top + room) {
    scrollTo(begin + height - room);
  }
}
// Goes to a row: to its object, too, where both are in sight.
function walkTo(index) {
  if (found.numbers.length === 0) {
    return;
  }
  active = Math.min(Math.max(index, 0), found.numbers.length - 1);
  if (isNarrow.matches) {
    reveal(active);
    render(true);
  } else {
    go({ object: foundAt(active).typeId, view: "" }, "walk");
  }
}
function showFound() {
  const { numbers: shown, corrected } = found;
  byId("count").textContent = shown.length === objects.length ? counted(objects.length, "object") : `${count(shown.length)} of ${count(objects.length)}`;
  byId("corrected").replaceChildren(...corrected.map(([word, near]) => element("p", null,
    `Nothing has \u201c${word}\u201d. Shown is what has `, ...near.slice(0, 3).flatMap((text, i) => [i ? " or " : "", element("b", null, text)]), near.length > 3 ? " and the like." : ".")));
  byId("none").hidden = shown.length > 0;
  list.hidden = shown.length === 0;
}

list.addEventListener("keydown", (event) => {
  const [, room, height] = sight();
  const page = Math.max(1, Math.floor(room / height) - 1);
  const steps = { ArrowDown: active + 1, ArrowUp: active - 1, PageDown: active + page, PageUp: active - page, Home: 0, End: found.numbers.length - 1 };
  if (event.key in steps) {
    event.preventDefault();
    walkTo(steps[event.key]);
  } else if (event.key === "Enter" && active >= 0) {
    event.preventDefault();
    go({ object: foundAt(active).typeId, view: "" });
    byId("card").focus();
  }
});
function renderMore() {
  seenBeside = sight();
  render(false, seenBeside);
}
list.addEventListener("scroll", renderMore, { passive: true });
new ResizeObserver(renderMore).observe(list);
window.addEventListener("scroll", () => {
  if (isNarrow.matches && document.body.dataset.pane === "list") {
    listTop = window.scrollY;
    render();
  }
}, { passive: true });
window.addEventListener("resize", () => render(true));
