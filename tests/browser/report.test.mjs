import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { join } from "node:path";
import { chromium } from "playwright-core";
import { group, many, page, parameter } from "./catalogues.mjs";

let browser;
before(async () => {
  browser = await chromium.launch({ executablePath: process.env.CHROMIUM, args: ["--no-sandbox", "--disable-gpu"] });
});
after(() => browser.close());

// Opens a page that must neither complain nor ask the network for anything.
async function open(address, hash = "", options = {}) {
  const tab = await browser.newPage({ viewport: { width: 1280, height: 860 }, ...options });
  tab.complaints = [];
  tab.on("pageerror", (error) => tab.complaints.push(String(error)));
  tab.on("console", (message) => message.type() === "error" && tab.complaints.push(message.text()));
  tab.on("request", (request) => request.url().startsWith("file:") || tab.complaints.push(request.url()));
  tab.on("dialog", (dialog) => { tab.complaints.push("dialog"); dialog.dismiss(); });
  await tab.goto(address + hash);
  return tab;
}
async function close(tab) {
  assert.deepEqual(tab.complaints, []);
  await tab.close();
}
// Waits until the object of that title is shown: the page follows a link a moment after the click.
async function shows(tab, title) {
  try {
    await tab.waitForFunction((text) => document.getElementById("title")?.textContent === text, title, { timeout: 5000 });
  } catch {
    assert.equal(await tab.textContent("#title"), title);
  }
}
async function picture(tab, name) {
  if (process.env.OSTRA_SCREENSHOTS) {
    await tab.screenshot({ path: join(process.env.OSTRA_SCREENSHOTS, `${name}.png`) });
  }
}
const example = page("example", process.env.OSTRA_EXAMPLES);
const rows = (tab) => tab.locator("#list [role=option]");
const at = (typeId) => "#" + encodeURIComponent(typeId);
const discharge = "hydro.parameter:ratedDischarge-1.0.0";

test("opens with what the catalogue holds", async () => {
  const tab = await open(example);
  assert.match(await tab.textContent("#totals"), /^\d+ objects(, \d+ warnings)?$/);
  assert.match(await tab.textContent("#card"), /What the catalogue holds/);
  assert.ok(await rows(tab).count() > 5);
  await picture(tab, "overview");
  await close(tab);
});

test("finds as one types, in names, typeids and descriptions", async () => {
  const tab = await open(example);
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
  const tab = await open(example);
  await tab.selectOption("#kind", "=measurable parameters");
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
  const tab = await open(example, at(discharge));
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
  const tab = await open(example, at(discharge));
  const boxes = await tab.locator("svg g text:first-of-type").allTextContents();
  assert.ok(boxes.includes("Rated Discharge") && boxes.includes("Operation") && boxes.includes("Discharge"));
  await tab.locator("svg a", { hasText: "Operation" }).click();
  await shows(tab, "Operation");
  await close(tab);
});

test("works by keyboard alone", async () => {
  const tab = await open(example);
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
  await tab.keyboard.press("Tab");
  await tab.keyboard.press("Enter");
  await tab.waitForFunction((text) => document.getElementById("title")?.textContent !== text, first);
  await tab.keyboard.press("/");
  assert.equal(await tab.evaluate(() => document.activeElement.id), "query");
  await close(tab);
});

test("has landmarks and names for screen readers", async () => {
  const tab = await open(example);
  for (const role of ["banner", "search", "navigation", "main"]) {
    assert.equal(await tab.getByRole(role).count(), 1, role);
  }
  assert.equal(await tab.getByRole("listbox", { name: "Objects" }).count(), 1);
  assert.equal(await tab.getByLabel("Kind").count(), 1);
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
  assert.equal(await tab.locator("main img, main script, nav img, nav script").count(), 0);
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
  await tab.locator("dd a").first().click();
  await tab.locator("#title", { hasText: /^Group/ }).waitFor();
  assert.ok(await tab.locator("#card .links li").count() < 60);
  await tab.getByRole("button", { name: "Show 949 more" }).click();
  assert.equal(await tab.locator("#card .links li").count(), 999);
  await tab.click("#clear");
  await tab.locator("#list").focus();
  await tab.keyboard.press("End");
  await shows(tab, "Parameter 9999");
  await picture(tab, "many");
  await close(tab);
});

test("prints the object shown, then all that was found", async () => {
  const tab = await open(example, at(discharge));
  await tab.fill("#query", "rated");
  await tab.emulateMedia({ media: "print" });
  await tab.evaluate(() => window.dispatchEvent(new Event("beforeprint")));
  assert.ok(await tab.isVisible("#title"));
  assert.ok(await tab.isHidden("nav"));
  assert.ok(await tab.locator("#print tbody tr").count() > 1);
  await picture(tab, "print");
  await tab.evaluate(() => window.dispatchEvent(new Event("afterprint")));
  assert.equal(await tab.locator("#print tr").count(), 0);
  await close(tab);
});

test("is dark where that is preferred, and one column on a small screen", async () => {
  const tab = await open(example, at(discharge), { colorScheme: "dark" });
  await picture(tab, "dark");
  await tab.setViewportSize({ width: 420, height: 900 });
  assert.ok(await tab.evaluate(() => document.documentElement.scrollWidth <= 420));
  const [totals, found] = await Promise.all(["#totals", "#count"].map((id) => tab.locator(id).boundingBox()));
  assert.ok(totals.y + totals.height <= found.y, "the counts lie apart");
  await picture(tab, "small");
  await close(tab);
});
