// The overview, and what is shown of one object.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync, readdirSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";
import { group, page, parameter } from "./catalogues.mjs";
import { at, close, discharge, example, open, picture, shows, sizes } from "./tab.mjs";

const tool = (args, input) => execFileSync(process.env.OSTRA_PARAMS, args, { input, encoding: "utf8" });

test("the overview counts by kind, group, discipline and file, parameters first and units last, with links into the list", async () => {
  const tab = await open(example());
  const card = (title) => tab.locator("section.card", { has: tab.getByRole("heading", { name: title, exact: true }) });
  const kinds = await card("Kinds").locator("a").allTextContents();
  assert.match(kinds[0], /parameters$/);
  assert.equal(kinds.at(-1), "units");
  for (const [title, entry] of [["Kinds", "measurable parameters"], ["Largest groups", "Operation"], ["Disciplines", "Civil Works"], ["Folders", /string-parameters\/$/]]) {
    const item = card(title).locator("li", { has: tab.getByRole("link", { name: entry, exact: typeof entry === "string" }) });
    const number = await item.locator(".number").textContent();
    await item.locator("a").click();
    assert.match(await tab.textContent("#count"), new RegExp(`^${number} of `), title);
    await tab.goBack();
    assert.match(await tab.textContent("#count"), /^\d+ objects$/);
  }
  await picture(tab, "overview");
  await close(tab);
});

test("the overview tells how many parameters are described, and what nothing names", async () => {
  const tab = await open(page("covered", [group("g", "Named"), group("h", "Unnamed"), parameter("p:1", "Plain", "g"), parameter("p:2", "Told", "g", "Described"), parameter("p:3", "Too", "g", "Likewise")]));
  assert.match(await tab.textContent("#card"), /1 parameter without a description of 3\./);
  assert.match(await tab.locator(".coverage tbody tr").textContent(), /Boolean parameters66 %0 %/);
  await tab.getByRole("link", { name: "1 parameter without a description" }).click();
  assert.deepEqual(await tab.locator(".row b > span:first-child").allTextContents(), ["Plain"]);
  await tab.goBack();
  await tab.locator("section.card", { hasText: "Named by nothing" }).getByRole("link", { name: "groups" }).click();
  assert.deepEqual(await tab.locator(".row b > span:first-child").allTextContents(), ["Unnamed"]);
  await close(tab);
});

test("the overview shows the first faults, and the rest when asked", async () => {
  const odd = Array.from({ length: 8 }, (_, i) => ({ ...group(`g:${i}`, `G ${i}`), constants: [{ id: "name", value: `G ${i}` }, { id: `colour${i}`, value: 1 }] }));
  const tab = await open(page("odd", odd));
  assert.equal(await tab.locator(".faults li").count(), 5);
  await tab.getByRole("button", { name: "Show 3 more" }).click();
  assert.equal(await tab.locator(".faults li").count(), 8);
  await close(tab);
});

// As the page has each object's schema in its data as pieces and values.
const schemaTexts = (tab) => tab.evaluate(async () => {
  const texts = {};
  for (const typeId of [...document.querySelectorAll("#list [role=option] small")].map((each) => each.textContent)) {
    const arrived = new Promise((resolve) => { window.addEventListener("popstate", resolve, { once: true }); });
    location.hash = encodeURIComponent(typeId);
    await arrived;
    texts[document.querySelector(".typeid code").textContent] = document.querySelector(".schema").textContent;
  }
  return texts;
});
const inOneLine = (text) => text.match(/"(?:[^"\\]|\\.)*"|[^\s"]+/g).join("");

test("the schema text is that which the tool writes, laid out as it lays texts out", async () => {
  const tab = await open(example(), "", { viewport: { width: 1280, height: 20000 } });
  const texts = await schemaTexts(tab);
  tool(["export", process.env.OSTRA_EXAMPLES, "-o", "exported"]);
  tool(["fmt", "exported"]);
  const files = readdirSync("exported", { recursive: true }).filter((file) => file.endsWith(".json"));
  assert.equal(files.length, Object.keys(texts).length);
  const exported = tool(["export", process.env.OSTRA_EXAMPLES, "-o", "-"]).trim().split("\n");
  assert.deepEqual(Object.values(texts).map(inOneLine).sort(), exported.sort());
  let compared = 0;
  for (const laidOut of files.map((file) => readFileSync(join("exported", file), "utf8"))) {
    const text = texts[JSON.parse(laidOut).typeid];
    if (inOneLine(text) === inOneLine(laidOut)) { // else authors write it in another order than the library does
      assert.equal(text, laidOut);
      ++compared;
    }
  }
  assert.ok(compared > 0.8 * files.length, String(compared));
  await close(tab);
});

test("the schema text of odd names, numbers and nesting is exact, too", async () => {
  const unit = '{"typeid":"u:odd","inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"name","value":"a\\u001fb\\"c\\\\ u001f \u2028"},{"id":"symbol","value":"x"}],"more":{"1":[1.50e+3,-0,{"a":{"b":{"c":[]}}},{}],"0":null}}';
  const deep = `{"typeid":"u:deep","inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"name","value":"deep"}],"more":${"[".repeat(200)}${"]".repeat(200)}}`;
  writeFileSync("odd-units.ndjson", `${unit}\n${deep}\n`);
  const tab = await open(page("odd-units", "odd-units.ndjson"));
  const texts = await schemaTexts(tab);
  for (const typeId of ["u:odd", "u:deep"]) {
    assert.equal(texts[typeId], tool(["fmt", "-"], tool(["show", "--schema", typeId, "odd-units.ndjson"])));
  }
  await close(tab);
});

test("typeids in the schema text are links", async () => {
  const tab = await open(example(), at(discharge));
  await tab.locator(".schema a", { hasText: "hydro.group:operation-1.0.0" }).click();
  await shows(tab, "Operation");
  await close(tab);
});

test("a button copies the typeid, and says that it did", async () => {
  const tab = await open(example(), at(discharge));
  await tab.context().grantPermissions(["clipboard-read", "clipboard-write"]);
  await tab.getByRole("button", { name: "Copy the typeid" }).click();
  await tab.waitForFunction(() => document.getElementById("told").textContent !== "");
  assert.equal(await tab.evaluate(() => navigator.clipboard.readText()), discharge);
  assert.equal(await tab.textContent("#told"), `Copied ${discharge}`);
  await close(tab);
});

test("enumerations and ranges are known by what they hold", async () => {
  const tab = await open(example(), at("hydro.enumeration:gateType-1.0.0"));
  await shows(tab, "Radial, Roller, Slide, Stop Log");
  assert.equal(await tab.locator(".typeid code").textContent(), "hydro.enumeration:gateType-1.0.0");
  await tab.locator(".links a").first().click();
  await shows(tab, "Gate Type");
  assert.equal(await tab.locator("dt", { hasText: "enumeration" }).locator("xpath=following-sibling::dd[1]").textContent(), "Radial, Roller, Slide, Stop Log");
  await close(tab);
});

test("an object tells its file, and leads to all that is there", async () => {
  const tab = await open(example(), at(discharge));
  assert.match(await tab.textContent("dl"), /rated-discharge\.json:1:1/);
  await tab.getByRole("link", { name: "all in this folder" }).click();
  assert.match(await tab.textContent("#count"), /^7 of /);
  await close(tab);
});

test("what depends on nothing says so in a line", async () => {
  const tab = await open(page("alone", [group("g", "Alone")]), at("g"));
  assert.equal(await tab.textContent(".alone"), "Depends on nothing. Named by nothing.");
  assert.deepEqual(await tab.locator("#card h3").allTextContents(), ["Schema"]);
  await close(tab);
});

test("the picture uses the room there is, and grows with its neighbours", async () => {
  const crowd = (count) => [group("g", "Crowd"), ...Array.from({ length: count }, (_, i) => parameter(`p:${i}`, `Member ${i}`, "g"))];
  const look = async (name, count, size) => {
    const tab = await open(page(name, crowd(count)), at("g"), size);
    const seen = await tab.evaluate(() => {
      const canvas = document.querySelector(".canvas").getBoundingClientRect();
      const boxes = [...document.querySelectorAll(".box")].map((box) => box.getBoundingClientRect());
      const overlap = boxes.some((a, i) => boxes.some((b, j) => i < j && a.left < b.right - 1 && b.left < a.right - 1 && a.top < b.bottom - 1 && b.top < a.bottom - 1));
      return { height: canvas.height, used: (Math.max(...boxes.map((box) => box.right)) - Math.min(...boxes.map((box) => box.left))) / canvas.width, boxes: boxes.length, overlap,
        rest: document.querySelector(".box.rest")?.textContent ?? "" };
    });
    await picture(tab, name);
    await close(tab);
    return seen;
  };
  const few = await look("few", 2, sizes.desk);
  const many = await look("crowd", 200, sizes.desk);
  const small = await look("crowd-phone", 200, sizes.phone);
  assert.equal(few.boxes, 3);
  assert.ok(many.height > few.height && many.boxes > 20, "more neighbours, more room");
  assert.ok(many.used > 0.8 && small.used > 0.8, "all the width is used");
  assert.ok(small.boxes < many.boxes);
  assert.equal(many.rest, `and ${200 - (many.boxes - 2)} more`);
  assert.ok(!few.overlap && !many.overlap && !small.overlap);
});

// ---- on paper
const pagesOf = (pdf) => (pdf.toString("latin1").match(/\/Type\s*\/Page\b/g) ?? []).length;

test("printing an object prints that object", async () => {
  const tab = await open(example(), at(discharge, "?kind=measurable-parameter"));
  assert.ok(pagesOf(await tab.pdf()) <= 2);
  await tab.emulateMedia({ media: "print" });
  await tab.evaluate(() => window.dispatchEvent(new Event("beforeprint")));
  assert.ok(await tab.isVisible("#title"));
  assert.equal(await tab.locator("#print tr").count(), 0);
  for (const hidden of ["#objects", "search", "#ways", ".copy"]) {
    assert.ok(await tab.isHidden(hidden), hidden);
  }
  await picture(tab, "print-object");
  await close(tab);
});

test("printing a list prints the list", async () => {
  const tab = await open(example(), "#?kind=measurable-parameter");
  await tab.emulateMedia({ media: "print" });
  await tab.evaluate(() => window.dispatchEvent(new Event("beforeprint")));
  assert.equal(await tab.locator("#print tbody tr").count(), 7);
  assert.match(await tab.textContent("#print h2"), /^7 of \d+: measurable parameters$/);
  assert.ok(await tab.isHidden("#card"));
  await picture(tab, "print-list");
  await tab.evaluate(() => window.dispatchEvent(new Event("afterprint")));
  assert.equal(await tab.locator("#print tr").count(), 0);
  await close(tab);
});

test("printing the overview prints the overview", async () => {
  const tab = await open(example());
  await tab.emulateMedia({ media: "print" });
  await tab.evaluate(() => window.dispatchEvent(new Event("beforeprint")));
  assert.match(await tab.locator("#card").innerText(), /What the catalogue holds/);
  assert.equal(await tab.locator("#print tr").count(), 0);
  await close(tab);
});
