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

// Writes the page of schemas, or of a folder, and returns its address.
export function page(name, input) {
  const file = join(process.cwd(), folder, name);
  let path = input;
  if (Array.isArray(input)) {
    path = `${file}.ndjson`;
    writeFileSync(path, input.map((schema) => JSON.stringify(schema)).join("\n"));
  }
  execFileSync(process.env.OSTRA_PARAMS, ["report", path, "-o", `${file}.html`]);
  return `file://${file}.html`;
}
