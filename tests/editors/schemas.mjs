// Schemas for the tests, and what the tool says of them.
import { spawnSync } from "node:child_process";
import { readdirSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";

export const run = (...options) => spawnSync(process.env.OSTRA_PARAMS, options, { encoding: "utf8", maxBuffer: 1 << 30 });

export const jsonSchema = JSON.parse(run("json-schema").stdout);

// The ids of all sorts of schemas, as the verb "new" knows them.
export const kinds = Object.keys(jsonSchema.definitions);

export const newOf = (kind) => run("new", kind, `x:${kind}-1.0.0`).stdout;

// Returns the schema texts of the files in a folder and below.
export function textsIn(folder) {
  return readdirSync(folder, { recursive: true }).sort().flatMap((name) => {
    const lines = /\.(ndjson|jsonl)$/.test(name);
    if (!lines && !name.endsWith(".json")) return [];
    const text = readFileSync(join(folder, name), "utf8");
    return lines ? text.split("\n").filter((line) => line.trim()) : [text];
  });
}

export const examples = textsIn(process.env.OSTRA_EXAMPLES);

// Returns the codes of what the tool finds in each of some schemas, which are checked together. What hangs on other
// schemas is left out.
const ofOthers = ["dependency-missing", "unit-missing", "parent-not-major", "typeid-taken"];
export function codesOf(schemas) {
  writeFileSync("checked.ndjson", schemas.map((schema) => JSON.stringify(schema)).join("\n"));
  const { faults } = JSON.parse(run("check", "--all", "--format", "json", "checked.ndjson").stdout);
  const codes = schemas.map(() => []);
  for (const { code, line } of faults) {
    if (!ofOthers.includes(code)) codes[line - 1].push(code);
  }
  return codes;
}

const others = [null, true, 1, 0.5, -7, "", "other", [], ["a", "a"], {}, { typeid: "other" }, { typeid: "" },
  { typeid: "other", value: {} }, { typeid: "other", value: { a: 1 } }, [{ typeid: "other" }],
  { typeid: "norvex.talmo.spec:familyType-1.7.0" },
  { typeid: "norvex.talmo.spec:familyType-1.0.0", typedValue: { category: { typeid: "other" } } },
  { typeid: "norvex.range:range.int64.bounded.static-1.0.0", value: { fromBottom: false, fromTop: false } },
  { typeid: "norvex.range:range.float64.bounded.static-1.2.0", value: { fromBottom: false, fromTop: "" } },
  { typeid: "norvex.range:range.string-1.0.0", value: {} },
  { typeid: "norvex.range:range.string.set.static-1.0.0", value: { allowedValues: [] } },
  { typeid: "norvex.range:range.string.regex-1.0.0", value: { regex: "a" } }];

// Returns a schema with one thing changed, for each thing and each change.
export function* mutantsOf(schema) {
  function* within(value, put) {
    for (const other of others) yield put(other);
    if (Array.isArray(value)) {
      yield put([...value, { id: "other", value: 1 }]);
      if (value.length > 0) yield put([...value, value[0]]);
    }
    if (value === null || typeof value !== "object") return;
    const entries = Object.entries(value);
    const made = (parts) => (Array.isArray(value) ? parts.map(([, part]) => part) : Object.fromEntries(parts));
    if (!Array.isArray(value)) yield put({ ...value, other: 1 });
    for (const [place, [name, part]] of entries.entries()) {
      const replaced = (by) => made(entries.map((entry, i) => (i === place ? by : entry)));
      yield put(made(entries.filter((_, i) => i !== place)));
      if (!Array.isArray(value)) {
        yield put(replaced([name.toUpperCase(), part]));
        for (const twin of ["value", "typedValue"]) {
          yield put(replaced([twin, part]));
          if (!(twin in value)) yield put({ ...value, [twin]: part });
        }
      }
      yield* within(part, (changed) => put(replaced([name, changed])));
    }
  }
  yield* within(schema, (changed) => changed);
}
