import assert from "node:assert/strict";
import { cpSync, mkdirSync, readdirSync, readFileSync, rmSync, symlinkSync, writeFileSync } from "node:fs";
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

/// Runs git in a folder, with nothing of whoever runs this.
function git(folder, ...words) {
  const { status, stderr } = spawnSync("git", ["-c", "user.name=A", "-c", "user.email=a@b", ...words], { cwd: folder, encoding: "utf8" });
  assert.equal(status, 0, stderr);
}

/// Changes the lines, or the files, of a catalogue: every third one gets another name, every seventh is gone.
function change(folder) {
  let number = 0;
  const changed = (text) => (++number % 7 === 0 ? "" : number % 3 === 0 ? text.replace(/("name",\s*"value":\s*")/, "$1New ") : text);
  for (const entry of readdirSync(folder, { recursive: true, withFileTypes: true })) {
    const file = `${entry.path ?? entry.parentPath}/${entry.name}`;
    if (entry.isFile() && /\.(json|ndjson)$/.test(entry.name)) {
      const text = readFileSync(file, "utf8");
      const lines = entry.name.endsWith(".json") ? [text] : text.split("\n").filter(Boolean);
      writeFileSync(file, lines.map(changed).filter(Boolean).join("\n") || "{}");
    }
  }
}

for (const [name, catalogue] of [["the example catalogue", process.env.OSTRA_EXAMPLES], ["a large catalogue", process.env.OSTRA_CATALOGUE]]) {
  test(`two revisions of ${name} are compared in the formats of code hosts`, { skip: !catalogue }, () => {
    rmSync("revisions", { recursive: true, force: true });
    cpSync(catalogue, "revisions/catalogue", { recursive: true, filter: (source) => !source.endsWith(".git") });
    git("revisions", "init", "-q");
    git("revisions", "add", ".");
    git("revisions", "commit", "-q", "-m", "As it was");
    change("revisions/catalogue");
    const compare = (format) =>
      spawnSync(process.env.OSTRA_PARAMS, ["diff", "--breaking", "--against", "HEAD", "--format", format, "catalogue"], {
        cwd: "revisions",
        encoding: "utf8",
        maxBuffer: 1 << 30,
      });
    const log = compare("sarif");
    assert.equal(log.status, 1);
    const sarif = JSON.parse(log.stdout);
    assert.ok(isValid(sarif), JSON.stringify(isValid.errors));
    const { results, tool } = sarif.runs[0];
    assert.ok(results.length > 10);
    for (const result of results) {
      assert.equal(tool.driver.rules[result.ruleIndex].id, result.ruleId);
    }
    assert.equal(new Set(results.map((result) => result.partialFingerprints["ostraFault/v1"])).size, results.length);
    const json = JSON.parse(compare("json").stdout);
    const shown = json.verdicts.filter((verdict) => verdict.severity !== "safe");
    assert.deepEqual(results.map((result) => result.ruleId), shown.map((verdict) => verdict.code));
    const commands = compare("github").stdout.trimEnd().split("\n");
    assert.equal(commands.length, results.length);
    for (const command of commands) {
      assert.match(command, /^::(error|warning) file=[^,:]+(,line=\d+,col=\d+,endLine=\d+,endColumn=\d+)?,title=[a-z-]+::[^\r]+$/);
    }
  });
}

test("the schema refuses what is no log", () => {
  assert.equal(isValid({ version: "2.1.0" }), false);
});
