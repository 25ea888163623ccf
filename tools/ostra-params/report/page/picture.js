// ---- the picture: what names the object on one side of it, what it needs on the other, a layer for each step
const layout = { gap: 44, small: 10, least: 150, most: 280, high: 46, low: 30, rows: 12 };

// Returns the layers, with all that there is in each, and the lines between them.
function layersAround(object) {
  const self = { object };
  const placed = new Map([[object, self]]);
  const edges = [];
  const needs = [];
  for (let layer = [self]; layer.length > 0 && needs.length < 6;) {
    const next = [];
    for (const from of layer) {
      const targets = from.object.isBuiltIn ? [] : dependenciesOf(from.object).map((each) => each.object);
      for (const target of new Set(targets)) {
        if (!placed.has(target)) {
          placed.set(target, { object: target });
          next.push(placed.get(target));
        }
        edges.push([from, placed.get(target)]);
      }
    }
    layer = next;
    needs.push(next);
  }
  needs.pop();
  const users = [...new Set(usersOf(object).map((each) => each.object))].filter((user) => !placed.has(user)).map((user) => ({ object: user }));
  users.forEach((user) => edges.push([user, self]));
  return { layers: [users, [self], ...needs].filter((layer) => layer.length > 0), edges, self };
}
// Leaves out what there is no room for, and says how much that is.
function fitted(layer, room) {
  return layer.length <= room ? layer : [...layer.slice(0, room - 1), { rest: layer.length - room + 1, layer }];
}

// Layers side by side; those with many objects get several columns if there is room.
function placeAcross(layers, width) {
  const columns = layers.map(() => 1);
  const total = () => columns.reduce((sum, number) => sum + number, 0);
  const least = () => total() * layout.least + (layers.length - 1) * layout.gap + (total() - layers.length) * layout.small;
  for (let more = true; more;) {
    const lacking = layers.map((layer, i) => layer.length / columns[i]);
    const worst = lacking.indexOf(Math.max(...lacking));
    columns[worst] += 1;
    more = lacking[worst] > layout.rows && least() <= width;
    columns[worst] -= more ? 0 : 1;
  }
  const wide = Math.min(layout.most, (width - least()) / total() + layout.least);
  const shown = layers.map((layer, i) => fitted(layer, columns[i] * layout.rows));
  const heights = shown.map((layer, i) => {
    const inColumn = Math.ceil(layer.length / columns[i]);
    const high = inColumn > 8 ? layout.low : layout.high;
    return { inColumn, high, all: inColumn * (high + layout.small) - layout.small };
  });
  const tallest = Math.max(...heights.map(({ all }) => all));
  const used = total() * wide + (total() - layers.length) * layout.small;
  const gap = layers.length > 1 ? Math.min(2 * layout.gap, (width - used) / (layers.length - 1)) : 0;
  let left = 0;
  shown.forEach((layer, i) => {
    const { inColumn, high, all } = heights[i];
    layer.forEach((node, j) => Object.assign(node, {
      x: left + Math.floor(j / inColumn) * (wide + layout.small), y: (tallest - all) / 2 + (j % inColumn) * (high + layout.small), wide, high }));
    left += columns[i] * (wide + layout.small) - layout.small + gap;
  });
  return { shown, crowds: shown.filter((_, i) => columns[i] > 1), width: left - gap, height: tallest, isAcross: true };
}
// Layers below each other, where there is no room for that.
function placeDown(layers, width) {
  const columns = Math.max(1, Math.floor((width + layout.small) / (130 + layout.small)));
  const wide = (width - (columns - 1) * layout.small) / columns;
  let top = 0;
  const shown = layers.map((layer) => fitted(layer, Math.max(4, columns * 4)));
  for (const layer of shown) {
    layer.forEach((node, j) => {
      const inRow = Math.min(columns, layer.length - Math.floor(j / columns) * columns);
      const begin = (width - inRow * (wide + layout.small) + layout.small) / 2;
      Object.assign(node, { x: begin + (j % columns) * (wide + layout.small), y: top + Math.floor(j / columns) * (layout.high + layout.small), wide, high: layout.high });
    });
    top += Math.ceil(layer.length / columns) * (layout.high + layout.small) - layout.small + layout.gap * 0.8;
  }
  return { shown, crowds: shown.filter((layer) => layer.length > columns), width, height: top - layout.gap * 0.8, isAcross: false };
}
// The frame around a layer whose objects do not all lie beside those that they hang together with.
function frameAround(layer) {
  const margin = layout.small / 2;
  const [left, top] = [Math.min(...layer.map((node) => node.x)), Math.min(...layer.map((node) => node.y))].map((least) => least - margin);
  return { x: left, y: top, wide: Math.max(...layer.map((node) => node.x + node.wide)) + margin - left, high: Math.max(...layer.map((node) => node.y + node.high)) + margin - top };
}
function lineBetween(from, to, isAcross) {
  const middle = (node, isAlong) => (isAlong ? node.x + node.wide / 2 : node.y + node.high / 2);
  const isOn = isAcross ? to.x > from.x + from.wide : to.y > from.y + from.high;
  if (isAcross) {
    const [x1, y1, y2] = [from.x + from.wide, middle(from), middle(to)];
    const x2 = isOn ? to.x : to.x + to.wide; // within a layer, and backwards, a line goes around
    const bend = isOn ? Math.max(18, (x2 - x1) / 2) : 36;
    return `M${x1} ${y1}C${x1 + bend} ${y1} ${x2 + (isOn ? -bend : bend)} ${y2} ${x2} ${y2}`;
  }
  const [x1, y1, x2] = [middle(from, true), from.y + from.high, middle(to, true)];
  const y2 = isOn ? to.y : to.y + to.high;
  const bend = isOn ? Math.max(14, (y2 - y1) / 2) : 30;
  return `M${x1} ${y1}C${x1} ${y1 + bend} ${x2} ${y2 + (isOn ? -bend : bend)} ${x2} ${y2}`;
}
function boxOf(node, self) {
  const style = `left:${node.x}px;top:${node.y}px;width:${node.wide}px;height:${node.high}px`;
  if (node.rest) {
    return element("span", { class: "box rest", style }, `and ${count(node.rest)} more`);
  }
  const { object } = node;
  const kind = object.isBuiltIn ? "built in" : object.kind.label;
  const inside = [element("b", null, ...titled(object, object.title)), ...(node.high < layout.high ? [] : [element("small", null, kind)])];
  const title = `${object.title}\n${kind}\n${object.typeId}`;
  return object === self || object.isBuiltIn
    ? element("span", { class: object === self ? "box self" : "box", style, title }, ...inside)
    : element("a", { class: "box", style, title, href: linkTo({ object: object.typeId }) }, ...inside);
}
function drawPicture(canvas, object, width) {
  const { layers, edges } = layersAround(object);
  const isAcross = layers.length * (layout.least + layout.gap) - layout.gap <= width;
  const placed = (isAcross ? placeAcross : placeDown)(layers, width);
  const drawn = placed.shown.flat();
  const self = drawn.find((node) => node.object === object);
  const ends = new Map(drawn.map((node) => [node, node])); // what a line begins or ends at
  const frames = placed.crowds.map((layer) => {
    const frame = frameAround(layer);
    layer.forEach((node) => ends.set(node, frame));
    return frame;
  });
  for (const rest of drawn.filter((node) => node.rest)) {
    edges.push(rest.layer === layers[0] && layers[0][0].object !== object ? [rest, self] : [self, rest]);
  }
  const lines = new Map();
  for (const [from, to] of edges.map((edge) => edge.map((node) => ends.get(node)))) {
    if (from && to && from !== to) {
      lines.set(from, (lines.get(from) ?? new Set()).add(to));
    }
  }
  const tip = shape("marker", { id: "tip", viewBox: "0 0 8 8", refX: 7, refY: 4, markerWidth: 7, markerHeight: 7, orient: "auto" }, shape("path", { d: "M1 1L7 4L1 7" }));
  canvas.style.height = placed.height + "px";
  canvas.replaceChildren(
    shape("svg", { width: placed.width, height: placed.height, "aria-hidden": "true" }, shape("defs", null, tip),
      ...frames.map((frame) => shape("rect", { x: frame.x, y: frame.y, width: frame.wide, height: frame.high, rx: 11 })),
      ...[...lines].flatMap(([from, targets]) => [...targets].map((to) => shape("path", { d: lineBetween(from, to, isAcross), "marker-end": "url(#tip)" })))),
    ...drawn.map((node) => boxOf(node, object)));
}

let drawn = null; // the picture in the page
const watch = new ResizeObserver(() => drawn?.draw());
function pictureOf(object) {
  const canvas = element("div", { class: "canvas" });
  let width = 0;
  watch.disconnect();
  drawn = {
    draw(forced) {
      const room = forced ?? canvas.clientWidth;
      if (room > 0 && room !== width) {
        width = room;
        drawPicture(canvas, object, width);
      }
    },
  };
  watch.observe(canvas);
  return canvas;
}
