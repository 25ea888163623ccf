import assert from "node:assert/strict";
import { readFileSync, writeFileSync } from "node:fs";
import { spawnSync } from "node:child_process";
import { test } from "node:test";
import Ajv from "ajv/dist/2020.js";
import addFormats from "ajv-formats";
import { group, parameter } from "./catalogues.mjs";

const schema = JSON.parse(readFileSync("node_modules/@microsoft/sarif-multitool-linux/sarif-2.1.0.json", "utf8"));
const ajv = new Ajv({ strict: false });
addFormats(ajv);
const isValid = ajv.compile(schema);

function logOf(lines) {
  writeFileSync("a b.ndjson", lines);
  return JSON.parse(spawnSync(process.env.OSTRA_PARAMS, ["check", "--format", "sarif", "a b.ndjson"]).stdout);
}

test("the log of a faulty catalogue is as the schema says", () => {
  const log = logOf(`]\n${JSON.stringify(parameter("p", "P", "missing"))}\n{}\n`);
  assert.equal(log.runs[0].results.length, 3);
  assert.ok(isValid(log), JSON.stringify(isValid.errors));
});

test("the log of a sound catalogue is, too", () => {
  const log = logOf(JSON.stringify(group("g", "G")));
  assert.equal(log.runs[0].results.length, 0);
  assert.ok(isValid(log), JSON.stringify(isValid.errors));
});

test("the schema refuses what is no log", () => {
  assert.equal(isValid({ version: "2.1.0" }), false);
});
