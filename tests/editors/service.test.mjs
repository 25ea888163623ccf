// What VS Code shows and offers, by the library that it has for JSON.
import assert from "node:assert/strict";
import { test } from "node:test";
import json from "vscode-json-languageservice";
import { codesOf, examples, jsonSchema, kinds, newOf } from "./schemas.mjs";

const { getLanguageService, TextDocument } = json;
const service = getLanguageService({ clientCapabilities: { textDocument: { completion: { completionItem: {
  snippetSupport: true, documentationFormat: ["markdown", "plaintext"] } } } } });
service.configure({ validate: true, schemas: [{ uri: "test://schema", fileMatch: ["*.json"], schema: jsonSchema }] });

const bases = Object.fromEntries(kinds.map((kind) => [kind, JSON.parse(newOf(kind)).inherits[0]]));
const open = (text) => {
  const document = TextDocument.create("file:///schema.json", "json", 1, text);
  return [document, service.parseJSONDocument(document)];
};

// Each takes a text with "|" where the cursor is.
async function at(marked, ask) {
  const [document, parsed] = open(marked.replace("|", ""));
  return ask(document, document.positionAt(marked.indexOf("|")), parsed);
}
const completions = async (marked) => (await at(marked, service.doComplete)).items;
const hover = async (marked) => (await at(marked, service.doHover))?.contents.join("\n").replace(/\\(.)/g, "$1") ?? "";
async function problems(text) {
  return (await service.doValidation(...open(text))).map(({ message }) => message);
}

// Returns what a snippet is when nothing is filled in.
const filled = (snippet) => snippet.replace(/\$\{\d+:([^}]*)\}/g, "$1").replace(/\$\{\d+\|([^,]*)[^}]*\|\}/g, "$1");

const textOf = (base, constants) => `{ "typeid": "x", "inherits": ["${base}"], "constants": [${constants}] }`;

test("nothing is said of examples and of new schemas", async () => {
  for (const text of [...examples, ...kinds.map(newOf)]) assert.deepEqual(await problems(text), [], text);
});

test("an empty file is offered a schema of each kind, which lacks nothing", async () => {
  const offered = await completions("|");
  for (const kind of kinds) {
    const label = jsonSchema.definitions[kind].title;
    const item = offered.find((each) => each.label === label);
    assert.ok(item, label);
    const text = filled(item.textEdit.newText);
    assert.deepEqual(await problems(text), [], text);
    assert.deepEqual(codesOf([JSON.parse(text)]), [[]], text);
    assert.equal(JSON.parse(text).inherits[0], bases[kind]);
  }
});

test("all bases are offered, with what they are", async () => {
  const offered = await completions(`{ "typeid": "x", "inherits": [|] }`);
  for (const base of Object.values(bases)) {
    const item = offered.find((each) => each.label === base);
    assert.equal(item?.textEdit.newText, JSON.stringify(base));
    assert.match(String(item.documentation?.value ?? item.documentation), /: .*\./);
  }
});

for (const kind of kinds) {
  const { constants = [], properties = [] } = JSON.parse(newOf(kind));

  test(`${kind}: the base tells what it is, in any minor version`, async () => {
    const text = textOf(bases[kind].replace(/0$/, "4"), "").replace(`": ["`, `": ["|`);
    assert.ok((await hover(text)).includes(jsonSchema.definitions[kind].description));
  });

  test(`${kind}: constants are offered, and lack nothing when they are taken`, async () => {
    const offered = await completions(textOf(bases[kind], "|"));
    const ids = await completions(textOf(bases[kind], `{ "id": | }`));
    assert.deepEqual(new Set(constants.map(({ id }) => id).filter((id) => !ids.some(({ label }) => label === `"${id}"`))), new Set());
    for (const { id } of constants) {
      const item = offered.find(({ label }) => label === id);
      assert.ok(item, id);
      const others = constants.filter((each) => each.id !== id).map((each) => JSON.stringify(each));
      const schema = { ...JSON.parse(textOf(bases[kind], [...others, filled(item.textEdit.newText)].join())), properties };
      assert.deepEqual(await problems(JSON.stringify(schema)), []);
      assert.deepEqual(codesOf([schema])[0].filter((code) => !code.startsWith("boundary-")), []);
    }
  });

  test(`${kind}: each constant tells what it is`, async () => {
    for (const constant of constants) {
      const text = textOf(bases[kind], JSON.stringify(constant));
      assert.match(await hover(text.replace(`"id":"`, `"id":"|`)), new RegExp(`^\`${constant.id}\`: .*\\.$`));
    }
  });

  test(`${kind}: what is missing and what is unknown is told`, async () => {
    const unknown = await problems(textOf(bases[kind], `{ "id": "colour", "value": 1 }`));
    assert.ok(unknown.some((message) => message.includes(constants.length > 0 ? "Valid values" : "has no constants")), unknown);
    const told = await problems(textOf(bases[kind], ""));
    for (const { id } of constants) {
      const others = constants.filter((each) => each.id !== id).map((each) => JSON.stringify(each)).join();
      const schema = { ...JSON.parse(textOf(bases[kind], others)), properties };
      const isRequired = codesOf([schema])[0].some((code) => code.endsWith("-undefined"));
      assert.equal(told.includes(`${id} must stand among the constants of this kind.`), isRequired, id);
    }
  });
}

test("a wrong base is told in a sentence", async () => {
  assert.deepEqual(await problems(textOf("norvex.parameter:gruop-1.0.0", "")),
                   ["This is none of the bases that can be inherited."]);
});
