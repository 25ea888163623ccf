import assert from "node:assert/strict";
import { test } from "node:test";
import { group, many, page, parameter } from "./catalogues.mjs";
import { at, close, discharge, example, open, picture, rows, shows } from "./tab.mjs";

test("opens with what the catalogue holds", async () => {
  const tab = await open(example());
  assert.match(await tab.textContent("#totals"), /^\d+ objects(, \d+ warnings)?$/);
  assert.match(await tab.textContent("#card"), /What the catalogue holds/);
  assert.ok(await rows(tab).count() > 5);
  await picture(tab, "overview");
  await close(tab);
});

test("finds as one types, in names, typeids and descriptions", async () => {
  const tab = await open(example());
  for (const words of ["Rated Discharge", "rateddischarge", "turbine at its rated head"]) {
    await tab.fill("#query", words);
    assert.match(await rows(tab).first().textContent(), /Rated Discharge/);
    assert.match(await tab.textContent("#count"), /^1 of /);
  }
  await tab.fill("#query", "no such thing");
  assert.ok(await tab.isVisible("#none"));
  await picture(tab, "nothing");
  await tab.click("#clear-too");
  assert.ok(await rows(tab).count() > 5);
  await close(tab);
});

test("filters by kind, group and discipline", async () => {
  const tab = await open(example());
  await tab.selectOption("#kind", "=measurable-parameter");
  for (const kind of await tab.locator(".row .kind").allTextContents()) {
    assert.equal(kind, "measurable parameter");
  }
  await tab.selectOption("#group", "=Operation");
  const both = await rows(tab).count();
  await tab.selectOption("#discipline", "=Civil Works");
  const all = await rows(tab).count();
  assert.ok(all > 0 && all <= both);
  await tab.click("#clear");
  assert.equal(await tab.inputValue("#kind"), "");
  await close(tab);
});

test("follows links along dependencies in both directions, and back", async () => {
  const tab = await open(example(), at(discharge));
  await shows(tab, "Rated Discharge");
  await picture(tab, "object");
  await tab.locator("dd a", { hasText: /^Discharge$/ }).click();
  await shows(tab, "Discharge");
  await tab.locator(".links a", { hasText: "Rated Discharge" }).click();
  await shows(tab, "Rated Discharge");
  await tab.goBack();
  await shows(tab, "Discharge");
  await close(tab);
});

test("draws what an object depends on, with links", async () => {
  const tab = await open(example(), at(discharge));
  const boxes = await tab.locator(".box b").allTextContents();
  assert.ok(boxes.includes("Rated Discharge") && boxes.includes("Operation") && boxes.includes("Discharge"));
  await tab.locator("a.box", { hasText: "Operation" }).click();
  await shows(tab, "Operation");
  await close(tab);
});

test("works by keyboard alone", async () => {
  const tab = await open(example());
  await tab.keyboard.press("/");
  await tab.keyboard.type("rated");
  await tab.keyboard.press("Enter");
  const first = await tab.textContent("#title");
  await tab.keyboard.press("ArrowDown");
  const second = await tab.textContent("#title");
  assert.notEqual(first, second);
  assert.equal(await tab.getAttribute("#list", "aria-activedescendant"), "row1");
  await tab.keyboard.press("End");
  await tab.keyboard.press("Home");
  await shows(tab, first);
  await tab.keyboard.press("Enter");
  assert.equal(await tab.evaluate(() => document.activeElement.id), "card");
  await tab.locator("dd a").first().focus();
  await tab.keyboard.press("Enter");
  await tab.waitForFunction((text) => document.getElementById("title")?.textContent !== text, first);
  assert.equal(await tab.evaluate(() => document.activeElement.id), "card", "the focus is not lost with the link");
  await tab.keyboard.press("/");
  assert.equal(await tab.evaluate(() => document.activeElement.id), "query");
  await close(tab);
});

test("has landmarks and names for screen readers", async () => {
  const tab = await open(example());
  for (const role of ["banner", "search", "main"]) {
    assert.equal(await tab.getByRole(role).count(), 1, role);
  }
  assert.equal(await tab.getByRole("listbox", { name: "Objects" }).count(), 1);
  assert.equal(await tab.getByRole("navigation", { name: "Objects" }).count(), 1);
  assert.equal(await tab.getByRole("combobox", { name: "Kind" }).count(), 1);
  const option = rows(tab).first();
  assert.equal(await option.getAttribute("aria-posinset"), "1");
  assert.ok(Number(await option.getAttribute("aria-setsize")) > 50);
  await close(tab);
});

test("shows what a hostile catalogue says and runs none of it", async () => {
  const hostile = "</script><script>alert(1)</script><img src=x onerror=alert(2)>";
  const tab = await open(page("hostile", [
    group("@SCRIPT@", "@DATA@"), group("constructor", "__proto__"), group(`"'><script>alert(3)</script>`, hostile),
    parameter("javascript:alert(4)", hostile, `"'><script>alert(3)</script>`, "<!-- <script> \u2028 ]]> &lt;"),
  ]), at("javascript:alert(4)"));
  await shows(tab, hostile);
  assert.match(await tab.textContent("dl"), /<!-- <script> \u2028 \]\]> &lt;/);
  await tab.fill("#query", "<script>");
  assert.equal(await rows(tab).count(), 2);
  assert.equal(await tab.locator("main img, main script").count(), 0);
  await tab.locator(".links a").first().click();
  await shows(tab, hostile);
  await picture(tab, "hostile");
  await close(tab);
});

test("lists what was left out as faulty", async () => {
  const file = page("faulty-base", [group("g", "G")]).slice("file://".length);
  assert.ok(file.endsWith(".html"));
  const { execFileSync } = await import("node:child_process");
  const { writeFileSync } = await import("node:fs");
  writeFileSync("faulty.ndjson", JSON.stringify(group("g", "G")) + "\n" + JSON.stringify(parameter("p", "P", "missing")));
  assert.throws(() => execFileSync(process.env.OSTRA_PARAMS, ["report", "faulty.ndjson", "-o", "faulty.html"], { stdio: "ignore" }));
  const tab = await open(`file://${process.cwd()}/faulty.html`);
  assert.match(await tab.textContent(".faults"), /faulty\.ndjson:2:\d+ Dependency missing in schema p is missing/);
  await close(tab);
});

test("lists warnings with links to the objects, and hints", async () => {
  const odd = parameter("p", "P", "g");
  odd.constants.push({ id: "readonly", value: true });
  const tab = await open(page("warned", [group("g", "G"), odd]));
  assert.equal(await tab.textContent("#totals"), "2 objects, 1 warning");
  assert.match(await tab.textContent(".faults"), /Perhaps not meant.*:2:\d+ Nothing reads constant readonly.*Hint: did you mean readOnly\?/s);
  await tab.locator(".faults a").first().click();
  await shows(tab, "P");
  await close(tab);
});

test("keeps no more of 20,000 objects in the page than are in sight", async () => {
  const tab = await open(page("many", many(20000)));
  assert.equal(await tab.textContent("#totals"), "20,000 objects");
  assert.ok(await rows(tab).count() < 60);
  await tab.fill("#query", "Parameter 19979");
  assert.equal(await tab.textContent("#count"), "1 of 20,000");
  await rows(tab).first().click();
  await shows(tab, "Parameter 19979");
  await tab.locator("dd a", { hasText: /^Group/ }).click();
  await tab.locator("#title", { hasText: /^Group/ }).waitFor();
  assert.ok(await tab.locator("#card .links li").count() < 60);
  await tab.getByRole("button", { name: "Show 949 more" }).click();
  assert.equal(await tab.locator("#card .links li").count(), 999);
  await tab.click("#clear");
  await tab.locator("#list").focus();
  await tab.keyboard.press("End");
  await shows(tab, "Group 9");
  await picture(tab, "many");
  await close(tab);
});
