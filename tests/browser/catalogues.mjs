// Catalogues for the tests, and pages made of them.
import { execFileSync } from "node:child_process";
import { mkdtempSync, writeFileSync } from "node:fs";
import { join } from "node:path";

const folder = mkdtempSync("pages-");
const value = (id, value) => ({ id, value });
const named = (id, typeid) => ({ id, typedValue: { typeid } });

export const group = (typeid, name) =>
  ({ typeid, inherits: ["norvex.parameter:group-1.0.0"], constants: [value("name", name)] });
export const parameter = (typeid, name, groupTypeId, description = "") => ({
  typeid, inherits: ["norvex.parameter:parameter.bool-2.0.0"],
  constants: [value("name", name), value("description", description), named("group", groupTypeId)],
});

export function many(count) {
  const groups = Array.from({ length: 20 }, (_, i) => group(`g:${i}`, `Group ${i}`));
  return [...groups, ...Array.from({ length: count - 20 }, (_, i) => parameter(`p:${i}`, `Parameter ${i}`, `g:${i % 20}`))];
}

const pathOf = (name, input) => {
  if (!Array.isArray(input)) {
    return input;
  }
  const path = `${join(process.cwd(), folder, name)}.ndjson`;
  writeFileSync(path, input.map((schema) => JSON.stringify(schema)).join("\n"));
  return path;
};

// Writes the page of schemas, or of a folder, and returns its address; with what changed since others, if there are any.
export function page(name, input, against) {
  const file = `${join(process.cwd(), folder, name)}.html`;
  const since = against === undefined ? [] : ["--against", pathOf(`${name}-before`, against)];
  execFileSync(process.env.OSTRA_PARAMS, ["report", pathOf(name, input), "-o", file, ...since]);
  return `file://${file}`;
}
