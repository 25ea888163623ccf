import assert from "node:assert/strict";
import { test } from "node:test";
import Ajv from "ajv";
import { codesOf, examples, jsonSchema, kinds, mutantsOf, newOf, textsIn } from "./schemas.mjs";

const ajv = new Ajv({ strict: false });
const isValid = ajv.compile(jsonSchema);

test("the JSON schema is one of draft 7", () => {
  assert.equal(jsonSchema.$schema, "http://json-schema.org/draft-07/schema#");
  assert.ok(ajv.validateSchema(jsonSchema), JSON.stringify(ajv.errors));
});

test("every example, and every new schema, is accepted", () => {
  assert.ok(kinds.length > 20 && examples.length > 100);
  for (const text of [...examples, ...kinds.map(newOf)]) {
    assert.ok(isValid(JSON.parse(text)), text + JSON.stringify(isValid.errors));
  }
});

test("what the tool finds sound in the big catalogue is accepted", { skip: !process.env.OSTRA_CATALOGUE }, () => {
  const schemas = textsIn(process.env.OSTRA_CATALOGUE).map((text) => JSON.parse(text));
  const codes = codesOf(schemas);
  const sound = schemas.filter((_, i) => codes[i].length === 0);
  assert.ok(sound.length > 1000);
  for (const schema of sound) assert.ok(isValid(schema), JSON.stringify(schema) + JSON.stringify(isValid.errors));
});

// What is always found. The rest of the library's codes are of texts that are no JSON and of what hangs on others.
const found = `
  array-expected array-of-non-empty-strings-expected array-of-strings-expected array-of-typed-values-expected
  array-of-unique-strings-expected base-unrecognized boolean-expected constant-undefined constant-unknown
  definition-duplicate definition-id-missing definition-id-string-expected definition-object-expected
  definition-value-missing definitions-array-expected enumeration-empty enumeration-id-empty
  enumeration-integer-missing family-type-category-missing family-type-inline-missing
  family-type-object-expected inherits-missing inline-range-flag-missing inline-range-misplaced
  inline-range-missing inline-range-not-empty inline-range-object-expected inline-range-values-missing
  inline-spec-misplaced integer-expected member-unknown non-empty-string-expected number-expected
  property-unknown range-typeid-missing reference-spec-typeid-missing single-base-expected spec-typeid-missing
  spec-undefined spec-value-misplaced spec-value-missing string-expected typed-value-object-expected
  typed-value-typeid-empty typed-value-typeid-missing typed-value-typeid-only typeid-empty typeid-missing
  typeid-repeated value-ignored value-property-typeid-missing value-property-undefined`.trim().split(/\s+/);

// Warnings of what two values say together, and of a set without values.
const notFound = ["boundary-ignored", "boundary-missing", "range-empty"];

test("of schemas with one thing changed, it refuses no sound one, and all but a few sorts of faulty ones", () => {
  const ofEachBase = new Map(examples.map((text) => [JSON.parse(text).inherits[0], text]));
  const mutants = new Map(); // by their texts
  for (const text of [...kinds.map(newOf), ...ofEachBase.values()]) {
    const schema = JSON.parse(text);
    for (const mutant of mutantsOf(schema)) {
      const own = mutant?.typeid === schema.typeid ? { ...mutant, typeid: `${schema.typeid}~${mutants.size}` } : mutant;
      mutants.set(JSON.stringify(mutant), own);
    }
  }
  const all = [...mutants.values()];
  const codes = codesOf(all);
  const [seen, missed] = [new Set(), new Set()];
  let sound = 0;
  for (const [i, mutant] of all.entries()) {
    const accepted = isValid(mutant);
    if (codes[i].length === 0) {
      sound += 1;
      assert.ok(accepted, JSON.stringify(mutant) + JSON.stringify(isValid.errors));
    } else {
      seen.add(codes[i][0]);
      if (accepted) missed.add(codes[i][0]);
    }
  }
  assert.deepEqual([...missed].sort(), notFound);
  assert.ok(sound > 500, `${sound} sound ones`);
  assert.deepEqual([...seen].filter((code) => !missed.has(code)).sort(), found);
});

const group = (typeid, base) => ({ typeid, inherits: [base], constants: [{ id: "name", value: "N" }] });

test("a base counts in any minor version, wherever it stands, and in no other major version", () => {
  assert.ok(isValid(group("x", "norvex.parameter:group-1.7.2")));
  assert.ok(isValid(group("x", "own:norvex.parameter:group-1.0.0")));
  assert.equal(isValid(group("x", "norvex.parameter:group-2.0.0")), false);
  assert.equal(isValid(group("x", "norvex.parameter:group-10.0.0")), false);
  assert.equal(isValid(group("x", "norvex_parameter:group-1.0.0")), false);
});

test("a typeid with a built-in one in it is refused", () => {
  assert.equal(isValid(group("a norvex.spec:spec.bool-1.9 b", "norvex.parameter:group-1.0.0")), false);
  assert.ok(isValid(group("norvex.spec:spec.bool-2.0.0", "norvex.parameter:group-1.0.0")));
});
