// ---- the catalogue, as the tool wrote it into the page: PageData.h tells how
const data = JSON.parse(document.getElementById("data").textContent);
document.getElementById("data").remove();

// Makes what is costly when it is first asked for, and keeps it.
function lazy(make) {
  let made;
  return () => (made ??= make());
}
const at = (column, row) => (Array.isArray(column) ? column[row] : column);

function withBeginnings({ shared, rest }) {
  let before = "";
  return rest.map((text, i) => (before = before.slice(0, shared[i]) + text));
}
const typeIds = withBeginnings(data.typeIds);
const files = withBeginnings(data.files);

const kinds = data.kinds;
for (const [number, kind] of kinds.entries()) {
  kind.number = number;
  kind.count = 0;
}
const kindOfId = new Map(kinds.map((kind) => [kind.id, kind]));
const shapes = data.shapes.map(({ kind, properties, schema, cells, literals }) => ({
  kind: kinds[kind], schema, cells, literals, length: 0, objects: [],
  properties: properties.map(([name, isOwn]) => ({ name, isOwn })),
  columnOf: new Map(properties.map(([name], i) => [name, i]).reverse()), // the first of one name
}));

// A cell is a text, or a number among the values.
const textOf = (cell) => (typeof cell === "string" ? cell : data.values[cell]);
function listOf(cell) {
  const value = textOf(cell);
  return Array.isArray(value) ? value : [value];
}

class CatalogueObject {
  constructor(number, shape) {
    this.number = number;
    this.shape = shape;
    this.row = shape.length++;
    shape.objects.push(number);
    shape.kind.count += 1;
  }
  get typeId() { return typeIds[this.number]; }
  get kind() { return this.shape.kind; }
  get name() { return textOf(at(data.names, this.number)); }
  // What has no name is known by what it holds.
  get title() { return this.name || contentsOf(this) || lastPart(this.typeId); }
  get file() { return files[at(data.file, this.number)]; }
  get place() { return `${this.file}:${at(data.line, this.number)}:${at(data.column, this.number)}`; }

  cell(column) { return at(this.shape.cells[column], this.row); }
  // The cell of a property, if the object has that.
  find(property) {
    const column = this.shape.columnOf.get(property);
    return column === undefined ? undefined : this.cell(column);
  }
  // What a property says: texts, and objects that it names.
  values(column) { return listOf(this.cell(column)).map((value) => (typeof value === "number" ? objectOf(value) : value)); }
}
// What a catalogue names without holding it.
class BuiltIn {
  constructor([typeId, name]) {
    this.typeId = typeId;
    this.title = name || typeId;
    this.isBuiltIn = true;
  }
}

const lastPart = (typeId) => typeId.slice(typeId.lastIndexOf(":") + 1) || typeId;
const shortened = (text, length) => (text.length > length ? text.slice(0, length - 1) + "\u2026" : text);

function contentsOf(object) {
  const texts = object.shape.properties.flatMap(({ name }, column) => (
    ["choices", "allowed values", "range", "regular expression"].includes(name) ? [[name, object.values(column)]] : []));
  if (texts.length === 0 || texts[0][1].length === 0) {
    return "";
  }
  const [name, values] = texts[0];
  const text = values.map((value) => (name === "choices" ? value.replace(/ = -?\d+$/, "") : value)).join(", ");
  return shortened(name === "regular expression" ? `/${text}/` : text === "any" ? "any value" : text, 80);
}

const objects = typeIds.map((_, number) => new CatalogueObject(number, shapes[at(data.shape, number)]));
const builtIns = data.builtIns.map((each) => new BuiltIn(each));
const objectOf = (number) => objects[number] ?? builtIns[number - objects.length];
const byTypeId = lazy(() => new Map(objects.map((object) => [object.typeId, object])));
const findObject = (typeId) => byTypeId().get(typeId);

// What an object names itself, with the properties that do.
function dependenciesOf(object) {
  return object.shape.properties.flatMap(({ name, isOwn }, column) => (
    isOwn ? object.values(column).filter((value) => typeof value !== "string").map((value) => ({ role: name, object: value })) : []));
}
// For each object, and each built-in one, what names it: numbers of objects and columns, one after the other.
const namedBy = lazy(() => {
  const users = [];
  const mayName = shapes.map(({ properties }) => properties.flatMap(({ isOwn }, column) => (isOwn ? [column] : [])));
  const numberOfShape = new Map(shapes.map((shape, i) => [shape, i]));
  for (const object of objects) {
    for (const column of mayName[numberOfShape.get(object.shape)]) {
      const cell = object.cell(column);
      const value = typeof cell === "string" ? cell : data.values[cell];
      for (const named of Array.isArray(value) ? value : [value]) {
        if (typeof named === "number") {
          (users[named] ??= []).push(object.number, column);
        }
      }
    }
  }
  return users;
});
function usersOf(object) {
  const users = namedBy()[object.number] ?? [];
  return Array.from({ length: users.length / 2 }, (_, i) => {
    const user = objects[users[2 * i]];
    return { role: user.shape.properties[users[2 * i + 1]].name, object: user };
  });
}
const countUsers = (object) => (namedBy()[object.number]?.length ?? 0) / 2;
const isUnused = (object) => !object.kind.isParameter && countUsers(object) === 0;
const isUndescribed = (object) => object.kind.isParameter && object.find("description") === undefined;

// ---- what objects are sorted into
const noTitles = [];
// Returns a function that tells the titles of what one of some properties names.
function titlesOf(...properties) {
  const known = new Map(); // few cells differ
  return (object) => {
    const cell = properties.map((name) => object.find(name)).find((each) => each !== undefined);
    if (cell === undefined) {
      return noTitles;
    }
    if (!known.has(cell)) {
      known.set(cell, listOf(cell).map((value) => (typeof value === "number" ? objectOf(value).title : value)));
    }
    return known.get(cell);
  };
}
// Files where there are not too many to choose from, else the folders that they lie in.
const isByFolder = files.length > 100;
const folderOf = (file) => file.slice(0, file.lastIndexOf("/") + 1) || "./";
const placesOfFiles = files.map((file) => [isByFolder ? folderOf(file) : file]);

const facets = {
  group: { plural: "groups", of: titlesOf("group") },
  discipline: { plural: "disciplines", of: titlesOf("discipline", "disciplines") },
  file: { plural: isByFolder ? "folders" : "files", of: (object) => placesOfFiles[at(data.file, object.number)] },
};
for (const facet of Object.values(facets)) {
  // How many objects, and how many parameters, there are of each title: those with most first.
  facet.counts = lazy(() => {
    const counts = new Map();
    for (const object of objects) {
      for (const title of facet.of(object)) {
        const count = counts.get(title) ?? { title, objects: 0 };
        count.objects += 1;
        counts.set(title, count);
      }
    }
    return [...counts.values()].sort((a, b) => b.objects - a.objects || (a.title < b.title ? -1 : 1));
  });
}
const warned = lazy(() => new Set(data.faults.map(({ typeId }) => typeId)));

const count = (number) => number.toLocaleString("en");
const counted = (number, one, many = one + "s") => `${count(number)} ${number === 1 ? one : many}`;
