// ---- what the state looks like
const query = byId("query");
const selects = ["kind", "group", "discipline", "file", "only", "sort"].map(byId);
const card = byId("card");
const title = "Parameter catalogue";

function paneOf({ object, view, q, kind, group, discipline, file, only, sort }) {
  return object !== null || (review && view === "review") ? "card" : view === "list" || q || kind || group || discipline || file || only || sort ? "list" : "home";
}
function fill(select, all, options) {
  // The values of options never collide with "all", whatever a group is called.
  select.append(element("option", { value: "" }, all), ...options.map(([value, text]) => element("option", { value: "=" + value }, text)));
}
function fillSelects() {
  const [kind, group, discipline, file, only, sort] = selects;
  fill(kind, "All kinds", kinds.filter((each) => each.count > 0).map((each) => [each.id, `${each.plural} (${count(each.count)})`]));
  for (const [select, facet] of [[group, facets.group], [discipline, facets.discipline], [file, facets.file]]) {
    const counts = [...facet.counts()].sort((a, b) => a.title.localeCompare(b.title));
    fill(select, `All ${facet.plural}`, counts.map((each) => [each.title, `${each.title} (${count(each.objects)})`]));
    select.parentElement.hidden = counts.length < 2;
  }
  fill(only, "All objects", Object.entries(onlyKinds).map(([value, { title: text }]) => [value, `Those ${text}`]));
  fill(sort, "Sorted by kind", Object.entries(orders).map(([value, { title: text }]) => [value, `Sorted ${text}`]));
}
function showState(before) {
  const isOther = (parts) => before === null || parts.some((part) => state[part] !== before[part]);
  const pane = paneOf(state);
  const wasPane = document.body.dataset.pane;
  let seen = null;
  if (isOther(["q", "kind", "group", "discipline", "file", "only", "sort"])) {
    if (before !== null && !isNarrow.matches && !list.hidden && seenBeside !== null) {
      const [top, ...rest] = seenBeside;
      if (top > 0) {
        list.scrollTop = 0;
      }
      seen = [0, ...rest];
    }
    found = select(state);
    if (query.value !== state.q) {
      query.value = state.q;
    }
    for (const each of selects.filter(({ id }) => isOther([id]))) {
      each.value = state[each.id] && "=" + state[each.id];
      each.classList.toggle("set", each.value !== "");
    }
    byId("clear").hidden = !["q", "kind", "group", "discipline", "file", "only"].some((part) => state[part]);
    active = -1;
    listTop = 0;
    showFound();
  }
  if (pane !== wasPane) {
    document.body.dataset.pane = pane;
  }
  const isSame = before !== null && ["object", "view", "fate", "severity"].every((part) => state[part] === before[part]) && card.childElementCount > 0;
  if (!isSame) {
    const hadFocus = card.contains(document.activeElement);
    showCard();
    if (hadFocus || (isNarrow.matches && pane === "card" && before !== null)) {
      card.focus({ preventScroll: true });
    }
  }
  active = current === null ? -1 : found.numbers.indexOf(current.number);
  if (isNarrow.matches && pane !== wasPane) {
    window.scrollTo(0, pane === "list" ? listTop : 0);
  } else if (isNarrow.matches && !isSame && pane === "card") {
    window.scrollTo(0, 0);
  }
  render(true, seen);
  if (!isNarrow.matches) {
    reveal(active);
  } else if (pane === "list" && wasPane === "card" && before !== null) {
    active = found.numbers.findIndex((number) => typeIds[number] === before.object);
    reveal(active);
    render(true);
    list.focus({ preventScroll: true });
  }
  showWays(pane);
}
function showCard() {
  current = state.object === null ? null : findObject(state.object) ?? null;
  drawn = null;
  const isMissing = state.object !== null && current === null;
  document.title = (current ? `${current.title} \u2013 ` : isMissing ? "Not in this catalogue \u2013 " : "") + title;
  const isReview = review && state.view === "review";
  document.title = (isReview && !current ? "What changed \u2013 " : "") + document.title;
  card.replaceChildren(...(current ? objectCards(current) : isMissing ? missingCards(state.object) : isReview ? reviewCards(state) : overviewCards()));
  card.scrollTop = 0;
  drawn?.draw();
}
// The bar below one pane: where one can go from there.
function showWays(pane) {
  const ways = byId("ways");
  const index = current === null ? -1 : found.numbers.indexOf(current.number);
  const to = (text, target, attributes) => element("a", { href: addressOf(target), ...attributes }, text);
  const changes = review ? [to(`Changes (${count(review.changes.length)})`, { ...home, view: "review" }, state.view === "review" ? { "aria-current": "page" } : {})] : [];
  if (pane === "card" && state.view !== "review") {
    const beside = (text, other, label) => (other && index >= 0 ? to(text, { ...state, object: other.typeId }, { "aria-label": label }) : element("span"));
    ways.replaceChildren(to("\u2039 List", { ...state, object: null, view: "list" }), beside("Previous", foundAt(index - 1), "Previous object"), beside("Next", foundAt(index + 1), "Next object"));
  } else {
    ways.replaceChildren(to("Overview", home, pane === "home" ? { "aria-current": "page" } : {}),
      to(`List (${count(found.numbers.length)})`, { ...state, object: null, view: "list" }, pane === "list" ? { "aria-current": "page" } : {}), ...changes);
  }
}
function clear() {
  go({ q: "", kind: "", group: "", discipline: "", file: "", only: "" });
  query.focus();
}

query.addEventListener("input", () => go({ q: query.value, ...(isNarrow.matches ? { object: null, view: "list" } : {}) }, "type"));
for (const each of selects) {
  each.addEventListener("change", () => go({ [each.id]: each.value.slice(1), ...(isNarrow.matches ? { object: null, view: "list" } : {}) }));
}
byId("clear").addEventListener("click", clear);
byId("clear-too").addEventListener("click", clear);
byId("more-filters").addEventListener("click", (event) => {
  const isOpen = byId("filters").classList.toggle("open");
  event.currentTarget.setAttribute("aria-expanded", isOpen);
});
byId("skip").addEventListener("click", (event) => {
  event.preventDefault();
  event.stopPropagation();
  card.focus();
});
query.addEventListener("keydown", (event) => {
  if (event.key === "ArrowDown" || event.key === "Enter") {
    event.preventDefault();
    list.focus();
    if (active < 0) {
      walkTo(0);
    }
  }
});
document.addEventListener("keydown", (event) => {
  const isAt = document.activeElement;
  if (event.key === "/" && !["INPUT", "SELECT", "TEXTAREA"].includes(isAt.tagName) && !event.ctrlKey && !event.metaKey && !event.altKey) {
    event.preventDefault();
    if (isNarrow.matches && state.object !== null) {
      go({ object: null, view: "list" });
    }
    query.focus();
    query.select();
  } else if (event.key === "Escape") {
    if (isNarrow.matches && state.object !== null) {
      go({ object: null, view: "list" });
    } else {
      (card.contains(isAt) ? list : query).focus();
    }
  }
});
isNarrow.addEventListener("change", () => showState(null));

let before = null;
follow = () => {
  const last = before;
  before = state;
  showState(last);
};
byId("totals").append(counted(objects.length, "object"));
const warnings = data.faults.filter(({ isError }) => !isError).length;
for (const text of [data.leftOut > 0 && `${count(data.leftOut)} left out as faulty`, warnings > 0 && counted(warnings, "warning")]) {
  if (text) {
    byId("totals").append(", ", element("a", { class: "bad", href: "#" }, text));
  }
}
if (review) {
  byId("totals").append(", ", element("a", { href: linkTo({ view: "review" }) }, counted(review.changes.length, "change")));
}
fillSelects();
follow();
whenIdle(readAtLeisure);
