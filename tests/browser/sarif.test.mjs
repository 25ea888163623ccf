import assert from "node:assert/strict";
import { mkdirSync, readFileSync, rmSync, symlinkSync, writeFileSync } from "node:fs";
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

test("the log of consequences, warnings and files that cannot be read is as the schema says", () => {
  const odd = group("g", "G");
  odd.constants.push({ id: "colour", value: "red" });
  const lines = [parameter("p", "P", "x"), { ...group("x", "X"), constants: [] }, odd].map((schema) => JSON.stringify(schema));
  const { results, tool } = logOf(lines.join("\n")).runs[0];
  assert.deepEqual(results.map((result) => result.level), ["error", "error", "warning"]);
  assert.equal(results[0].relatedLocations.length, 2);
  for (const result of results) {
    assert.equal(tool.driver.rules[result.ruleIndex].id, result.ruleId);
    assert.ok(tool.driver.rules[result.ruleIndex].help.text.length > 0);
    assert.ok(result.partialFingerprints["ostraFault/v1"]);
  }
  rmSync("links", { recursive: true, force: true });
  mkdirSync("links");
  symlinkSync("nowhere", "links/broken.json");
  const log = JSON.parse(spawnSync(process.env.OSTRA_PARAMS, ["check", "--format", "sarif", "links"]).stdout);
  assert.equal(log.runs[0].results[0].ruleId, "file-unreadable");
  for (const each of [log, logOf(lines.join("\n"))]) {
    assert.ok(isValid(each), JSON.stringify(isValid.errors));
  }
});

test("the log of a sound catalogue is, too", () => {
  const log = logOf(JSON.stringify(group("g", "G")));
  assert.equal(log.runs[0].results.length, 0);
  assert.ok(isValid(log), JSON.stringify(isValid.errors));
});

test("the schema refuses what is no log", () => {
  assert.equal(isValid({ version: "2.1.0" }), false);
});
