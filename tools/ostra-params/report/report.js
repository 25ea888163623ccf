"use strict";
(() => {
  const data = JSON.parse(document.getElementById("data").textContent);
  const byId = (id) => document.getElementById(id);
  const rowHeight = 52;

  // Texts come from schemas: they become text nodes, never markup.
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

  // ---- the catalogue
  const kinds = data.kinds;
  const objects = data.objects.map(([typeId, kind, name, properties, place]) => (
    { typeId, kind, name, properties, place, dependencies: [], dependents: [] }));
  const byTypeId = new Map(objects.map((object) => [object.typeId, object]));
  for (const object of objects) {
    const texts = [object.name, object.typeId];
    for (const [property, values, isOwn] of object.properties) {
      if (property === "description") {
        texts.push(values[0][0]);
      }
      if (property === "group") {
        object.group = values[0][0];
      }
      if (property === "discipline" || property === "disciplines") {
        object.disciplines = values.map(([text]) => text);
      }
      for (const [text, typeId] of values) {
        if (isOwn && typeId !== undefined) {
          object.dependencies.push({ role: property, typeId, text });
          byTypeId.get(typeId)?.dependents.push({ role: property, typeId: object.typeId, text: object.name });
        }
      }
    }
    object.haystack = texts.join("\n").toLowerCase();
    object.title = object.name || object.typeId.slice(object.typeId.lastIndexOf(":") + 1) || object.typeId;
  }
  const count = (number) => number.toLocaleString("en");
  const link = (typeId) => "#" + encodeURIComponent(typeId);

  // ---- search and filters
  const query = byId("query");
  const filters = ["kind", "group", "discipline"].map(byId);
  let shown = objects;
  let words = [];

  function fillFilter(select, all, values) {
    const counts = new Map();
    for (const value of values) {
      counts.set(value, (counts.get(value) ?? 0) + 1);
    }
    select.append(element("option", { value: "" }, all));
    const names = select.id === "kind" ? kinds.map((kind) => kind.plural).filter((name) => counts.has(name))
                                       : [...counts.keys()].sort((a, b) => a.localeCompare(b));
    for (const name of names) {
      // The values of options never collide with "all", whatever a group is called.
      select.append(element("option", { value: "=" + name }, `${name} (${count(counts.get(name))})`));
    }
  }
  function search() {
    words = query.value.toLowerCase().split(/\s+/).filter(Boolean);
    const [kind, group, discipline] = filters.map((select) => select.value);
    shown = objects.filter((object) =>
      (!kind || "=" + kinds[object.kind].plural === kind) &&
      (!group || "=" + object.group === group) &&
      (!discipline || (object.disciplines ?? []).some((name) => "=" + name === discipline)) &&
      words.every((word) => object.haystack.includes(word)));
    byId("count").textContent = `${count(shown.length)} of ${count(objects.length)}`;
    byId("none").hidden = shown.length > 0;
    list.hidden = shown.length === 0;
    rows.style.height = shown.length * rowHeight + "px";
    list.scrollTop = 0;
    reveal(shown.indexOf(current));
    render();
  }
  function clear() {
    query.value = "";
    for (const select of filters) {
      select.value = "";
    }
    search();
    query.focus();
  }

  // ---- the list: only the rows in sight are in the page
  const list = byId("list");
  const rows = byId("rows");
  let current = null;

  function marked(text) {
    const spans = [];
    const lower = text.toLowerCase();
    for (const word of lower.length === text.length ? words : []) {
      for (let at = lower.indexOf(word); at >= 0; at = lower.indexOf(word, at + word.length)) {
        spans.push([at, at + word.length]);
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
  function row(object, index) {
    const made = element("div", {
      class: "row", role: "option", id: "row" + index, style: `top:${index * rowHeight}px`,
      "aria-selected": object === current, "aria-setsize": shown.length, "aria-posinset": index + 1,
    }, element("b", null, element("span", null, ...marked(object.title)),
               element("span", { class: "kind" }, kinds[object.kind].label)),
       element("small", null, ...marked(object.typeId)));
    made.addEventListener("click", () => { location.hash = link(object.typeId); });
    return made;
  }
  function render() {
    const first = Math.max(0, Math.floor(list.scrollTop / rowHeight) - 5);
    const last = Math.min(shown.length, Math.ceil((list.scrollTop + list.clientHeight) / rowHeight) + 5);
    rows.replaceChildren(...shown.slice(first, last).map((object, i) => row(object, first + i)));
    const index = shown.indexOf(current);
    if (index >= first && index < last) {
      list.setAttribute("aria-activedescendant", "row" + index);
    } else {
      list.removeAttribute("aria-activedescendant");
    }
  }
  function reveal(index) {
    if (index < 0) {
      return;
    }
    const top = index * rowHeight;
    if (top < list.scrollTop) {
      list.scrollTop = top;
    } else if (top + rowHeight > list.scrollTop + list.clientHeight) {
      list.scrollTop = top + rowHeight - list.clientHeight;
    }
  }
  function choose(index) {
    if (shown.length > 0) {
      const object = shown[Math.min(Math.max(index, 0), shown.length - 1)];
      history.replaceState(null, "", link(object.typeId));
      show();
    }
  }

  // ---- the card of the object shown
  function valueOf([text, typeId]) {
    if (typeId === undefined) {
      return [text];
    }
    return byTypeId.has(typeId)
      ? [element("a", { href: link(typeId) }, text || typeId)]
      : [text || typeId, " ", element("span", { class: "builtin" }, "built in")];
  }
  function propertyList(object) {
    const made = element("dl");
    for (const [property, values] of object.properties) {
      if (values.length > 0) {
        made.append(element("dt", null, property),
          values.length === 1 ? element("dd", null, ...valueOf(values[0]))
                              : element("dd", null, element("ul", { class: values.length > 8 ? "many" : "" }, ...values.map((value) => element("li", null, ...valueOf(value))))));
      }
    }
    made.append(element("dt", null, "defined in"), element("dd", null, element("code", null, object.place)));
    return made;
  }
  function linkList(title, links) {
    const part = 50;
    const made = element("ul", { class: "links" });
    const add = (from, to) => {
      for (const { role, typeId, text } of links.slice(from, to)) {
        made.append(element("li", null, element("span", { class: "role" }, role),
          element("span", null, ...valueOf([text, typeId]), text ? element("code", null, typeId) : "")));
      }
    };
    add(0, part);
    const section = element("section", { class: "card" }, element("h3", null, `${title} ${links.length ? count(links.length) : "nothing"}`), made);
    if (links.length > part) {
      const more = element("button", { type: "button" }, `Show ${count(links.length - part)} more`);
      more.addEventListener("click", () => { add(part); more.remove(); });
      section.append(more);
    }
    return section;
  }
  function filterButton(kind) {
    const made = element("button", { type: "button" }, kind.plural);
    made.addEventListener("click", () => { byId("kind").value = "=" + kind.plural; search(); list.focus(); });
    return made;
  }
  function faultItem([place, message, hint, rest, , typeId]) {
    const below = [hint && `Hint: ${hint}`, rest].filter(Boolean).map((text) => element("div", null, text));
    const shown = element("code", null, place);
    return element("li", null, byTypeId.has(typeId) ? element("a", { href: link(typeId) }, shown) : shown, " ", message, ...below);
  }
  function overview() {
    const counts = kinds.map(() => 0);
    objects.forEach((object) => { counts[object.kind] += 1; });
    const card = element("section", { class: "card" }, element("h2", null, "What the catalogue holds"),
      element("p", { class: "is" }, "Choose an object, or search: ", element("kbd", null, "/"), " goes to the search, ",
        element("kbd", null, "\u2191"), " ", element("kbd", null, "\u2193"), " walk through the list, ",
        element("kbd", null, "Enter"), " goes to the object, ", element("kbd", null, "Esc"), " back."),
      element("ul", { class: "counts" }, ...kinds.map((kind, i) => [kind, counts[i]]).filter(([, number]) => number)
        .map(([kind, number]) => element("li", null, filterButton(kind), element("span", null, count(number))))));
    const parts = [card];
    for (const [isError, title] of [[true, "Left out, as it is faulty"], [false, "Perhaps not meant"]]) {
      const found = data.faults.filter((fault) => fault[4] === isError);
      if (found.length > 0) {
        parts.push(element("section", { class: "card faults" }, element("h3", null, title),
          element("ul", null, ...found.map(faultItem))));
      }
    }
    return parts;
  }
  function show() {
    let typeId = "";
    try {
      typeId = decodeURIComponent(location.hash.slice(1));
    } catch {
      // A broken address shows what there is.
    }
    if (typeId === "card") { // where the skip link goes
      byId("card").focus();
      return;
    }
    current = byTypeId.get(typeId) ?? null;
    const card = byId("card");
    if (current === null) {
      document.title = "Parameter catalogue";
      card.replaceChildren(...overview());
    } else {
      document.title = current.title + " \u2013 Parameter catalogue";
      const picture = element("section", { class: "card picture" }, element("h3", null, "Dependencies"), pictureOf(current));
      card.replaceChildren(
        element("article", { class: "card", "aria-labelledby": "title" }, element("h2", { id: "title" }, current.title),
          element("p", { class: "is" }, kinds[current.kind].label, " \u00b7 ", element("code", null, current.typeId)), propertyList(current)),
        picture, linkList("Depends on", current.dependencies), linkList("Named by", current.dependents));
    }
    card.scrollTop = 0;
    reveal(shown.indexOf(current));
    render();
  }

  // ---- the picture: what names the object on the left, what it needs on the right, a column for each step
  const box = { width: 190, height: 40, gapX: 64, gapY: 12 };

  function columnsAround(object) {
    const most = 7;
    const node = (typeId, text) => ({ typeId, object: byTypeId.get(typeId), text: byTypeId.get(typeId)?.title ?? (text || typeId) });
    const self = node(object.typeId);
    const placed = new Map([[object.typeId, self]]);
    const edges = [];
    const right = [];
    for (let column = [self]; column.length > 0;) {
      const next = [];
      for (const from of column) {
        for (const { typeId, text } of from.object?.dependencies ?? []) {
          if (!placed.has(typeId) && next.length < 12) {
            placed.set(typeId, node(typeId, text));
            next.push(placed.get(typeId));
          }
          if (placed.has(typeId) && !edges.some(([a, b]) => a === from && b === placed.get(typeId))) {
            edges.push([from, placed.get(typeId)]);
          }
        }
      }
      column = next;
      right.push(next);
    }
    right.pop();
    const users = [...new Set(object.dependents.map(({ typeId }) => typeId))].filter((typeId) => !placed.has(typeId));
    const left = users.slice(0, users.length > most ? most - 1 : most).map((typeId) => node(typeId));
    left.forEach((user) => edges.push([user, self]));
    if (users.length > left.length) {
      left.push({ text: `and ${count(users.length - left.length)} more`, isRest: true });
      edges.push([left.at(-1), self]);
    }
    return { columns: [...(left.length ? [left] : []), [self], ...right], edges, self };
  }
  const shortened = (text, length) => (text.length > length ? text.slice(0, length - 1) + "\u2026" : text);

  function boxOf(node, self) {
    const kind = node.isRest ? "" : node.object ? kinds[node.object.kind].label : "built in";
    const group = shape("g", { class: node === self ? "self" : "" }, shape("title", null, node.typeId ?? node.text),
      shape("rect", { x: node.x, y: node.y, width: box.width, height: box.height, rx: 7 }),
      shape("text", { x: node.x + 10, y: node.y + (kind ? 17 : 25) }, shortened(node.text, 27)),
      shape("text", { x: node.x + 10, y: node.y + 32, class: "sub" }, kind));
    return node.object && node !== self ? shape("a", { href: link(node.typeId) }, group) : group;
  }
  function pictureOf(object) {
    const { columns, edges, self } = columnsAround(object);
    const height = (column) => column.length * (box.height + box.gapY) - box.gapY;
    const tallest = Math.max(...columns.map(height));
    columns.forEach((column, i) => column.forEach((node, j) => {
      node.x = 2 + i * (box.width + box.gapX);
      node.y = 2 + (tallest - height(column)) / 2 + j * (box.height + box.gapY);
    }));
    const width = columns.length * (box.width + box.gapX) - box.gapX + 4;
    const lines = edges.map(([from, to]) => {
      const [x1, y1] = [from.x + box.width, from.y + box.height / 2];
      // Within a column, and backwards, a line goes around on the right.
      const [x2, y2] = [to.x > from.x ? to.x : to.x + box.width, to.y + box.height / 2];
      const bend = to.x > from.x ? Math.max(30, (x2 - x1) / 2) : 40;
      return shape("path", { d: `M${x1} ${y1}C${x1 + bend} ${y1} ${x2 + (to.x > from.x ? -bend : bend)} ${y2} ${x2} ${y2}`, "marker-end": "url(#tip)" });
    });
    const tip = shape("marker", { id: "tip", viewBox: "0 0 8 8", refX: 7, refY: 4, markerWidth: 7, markerHeight: 7, orient: "auto" },
      shape("path", { d: "M1 1L7 4L1 7" }));
    return shape("svg", { viewBox: `0 0 ${width} ${tallest + 4}`, width, height: tallest + 4, role: "group", "aria-label": "What the object depends on and what names it" },
      shape("defs", null, tip), ...lines, ...columns.flat().map((node) => boxOf(node, self)));
  }

  // ---- on paper: the object shown, then all that the search found
  window.addEventListener("beforeprint", () => {
    const body = element("tbody", null, ...shown.map((object) => element("tr", null, element("td", null, object.name),
      element("td", null, kinds[object.kind].label), element("td", null, element("code", null, object.typeId)))));
    byId("print").replaceChildren(element("h2", null, `Objects: ${byId("count").textContent}`), element("table", null,
      element("thead", null, element("tr", null, ...["Name", "Kind", "Typeid"].map((title) => element("th", null, title)))), body));
  });
  window.addEventListener("afterprint", () => byId("print").replaceChildren());

  // ---- keyboard
  list.addEventListener("keydown", (event) => {
    const page = Math.max(1, Math.floor(list.clientHeight / rowHeight) - 1);
    const index = shown.indexOf(current);
    const steps = { ArrowDown: index + 1, ArrowUp: index - 1, PageDown: index + page, PageUp: index - page, Home: 0, End: shown.length - 1 };
    if (event.key in steps) {
      event.preventDefault();
      choose(steps[event.key]);
    } else if (event.key === "Enter") {
      event.preventDefault();
      byId("card").focus();
    }
  });
  query.addEventListener("keydown", (event) => {
    if (event.key === "ArrowDown" || event.key === "Enter") {
      event.preventDefault();
      list.focus();
      if (!shown.includes(current)) {
        choose(0);
      }
    }
  });
  document.addEventListener("keydown", (event) => {
    if (event.key === "/" && !["INPUT", "SELECT"].includes(document.activeElement.tagName)) {
      event.preventDefault();
      query.focus();
      query.select();
    } else if (event.key === "Escape") {
      (byId("card").contains(document.activeElement) ? list : query).focus();
    }
  });

  // ---- begin
  fillFilter(filters[0], "all", objects.map((object) => kinds[object.kind].plural));
  fillFilter(filters[1], "all", objects.flatMap((object) => object.group ?? []));
  fillFilter(filters[2], "all", objects.flatMap((object) => object.disciplines ?? []));
  byId("totals").append(`${count(objects.length)} objects`);
  const warnings = data.faults.filter((fault) => !fault[4]).length;
  for (const [number, what] of [[data.leftOut, "left out as faulty"], [warnings, warnings === 1 ? "warning" : "warnings"]]) {
    if (number > 0) {
      byId("totals").append(", ", element("a", { class: "bad", href: "#" }, `${count(number)} ${what}`));
    }
  }
  query.addEventListener("input", search);
  filters.forEach((select) => select.addEventListener("change", search));
  byId("clear").addEventListener("click", clear);
  byId("clear-too").addEventListener("click", clear);
  list.addEventListener("scroll", render, { passive: true });
  window.addEventListener("resize", render);
  window.addEventListener("hashchange", show);
  search();
  show();
})();
