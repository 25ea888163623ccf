// What changed since an earlier catalogue.
import assert from "node:assert/strict";
import { test } from "node:test";
import { group, page, parameter } from "./catalogues.mjs";
import { at, close, open, picture, shows, sizes } from "./tab.mjs";

const enumeration = (typeid, choices) => ({ typeid, inherits: ["Enum"], properties: Object.entries(choices).map(([id, value]) => ({ id, value })) });
const before = [
  group("g:one-1.0.0", "One"), group("g:gone-1.0.0", "Gone"), parameter("p:same-1.0.0", "Same", "g:one-1.0.0"),
  parameter("p:told-1.0.0", "Told", "g:one-1.0.0", "The depth of the old water"), parameter("p:next-1.0.0", "Next", "g:one-1.0.0"),
  enumeration("e:states-1.0.0", { Open: 1, Shut: 2, Ajar: 3 }), parameter("p:uses-1.0.0", "Uses", "g:gone-1.0.0"),
];
const after = [
  group("g:one-1.0.0", "One"), group("g:new-1.0.0", "New"), parameter("p:same-1.0.0", "Same", "g:one-1.0.0"),
  parameter("p:told-1.0.0", "Told", "g:new-1.0.0", "The depth of the water <b>now</b>"), parameter("p:next-2.0.0", "Next", "g:one-1.0.0"),
  enumeration("e:states-1.0.0", { Open: 1, Shut: 4, Locked: 5 }), parameter("p:uses-1.0.0", "Uses", "g:new-1.0.0"),
];
const address = () => page("reviewed", after, before);
const change = (tab, text) => tab.locator(".change", { hasText: text }).first();

test("tells what was added, removed and changed, the worst first, with rules and reasons", async () => {
  const tab = await open(address(), "#?view=review", sizes.desk);
  await shows(tab, "What changed");
  const cards = await tab.locator(".change").allInnerTexts();
  assert.equal(cards.length, 6);
  const breaks = cards.map((text) => text.includes("breaks"));
  assert.deepEqual(breaks, [...breaks].sort((a, b) => b - a), "what breaks something comes first");
  assert.match(await change(tab, "g:gone-1.0.0").innerText(), /removed.*group\s+Gone.*breaks documents.*object-removed/s);
  assert.match(await change(tab, "g:new-1.0.0").innerText(), /\+ added/);
  assert.match(await change(tab, "p:next-2.0.0").innerText(), /new version.*p:next-1\.0\.0\s+→\s+p:next-2\.0\.0/s);
  assert.match(await change(tab, "e:states-1.0.0").innerText(), /choice-integer-changed/);
  assert.equal(await tab.locator(".change", { hasText: "p:same-1.0.0" }).count(), 0);
  await picture(tab, "review");
  await close(tab);
});

test("tells who is affected along dependencies", async () => {
  const tab = await open(address(), "#?view=review");
  assert.match(await change(tab, "g:gone-1.0.0").innerText(), /1 object depends on it: Uses\./);
  await change(tab, "g:gone-1.0.0").getByRole("link", { name: "Uses" }).click();
  await shows(tab, "Uses");
  await close(tab);
});

test("marks the words that differ, in constants and in both texts, and none of it is markup", async () => {
  const tab = await open(address(), "#?view=review");
  const told = change(tab, "p:told-1.0.0");
  const row = told.locator("tr", { hasText: "description" });
  assert.deepEqual(await row.locator("del").allTextContents(), ["old"]);
  assert.equal((await row.locator("ins").allTextContents()).join(""), "<b>now</b>");
  await told.getByText("Both texts").click();
  await told.locator(".sides pre").nth(1).waitFor(); // they are made a moment later
  const [old, now] = await told.locator(".sides pre").allTextContents();
  assert.match(old, /"value": "The depth of the old water"/);
  assert.match(now, /"value": "The depth of the water <b>now<\/b>"/);
  assert.deepEqual(await told.locator(".sides del").allTextContents(), ["old", "one"]);
  const [left, right] = await Promise.all([0, 1].map((i) => told.locator(".sides pre").nth(i).boundingBox()));
  assert.ok(left.x + left.width <= right.x && left.y === right.y, "side by side");
  assert.equal(await tab.locator(".change b").count(), 0);
  await close(tab);
});

test("tells choices one by one", async () => {
  const tab = await open(address(), "#?view=review");
  const items = await change(tab, "e:states-1.0.0").locator(".constants li").allInnerTexts();
  assert.deepEqual([...items].sort(), ["+ Locked = 5", "Shut = 2 → Shut = 4", "− Ajar = 3"].sort());
  await close(tab);
});

test("chooses by what became of objects and by how bad it is, in the address", async () => {
  const tab = await open(address(), "#?view=review");
  await tab.getByRole("link", { name: "removed 1" }).click();
  assert.equal(await tab.locator(".change").count(), 1);
  await tab.getByRole("link", { name: /^breaks documents/ }).click();
  assert.match(new URL(tab.url()).hash, /severity=breaks\+documents/);
  assert.ok(await tab.locator(".change").count() > 1);
  await tab.goBack();
  assert.equal(await tab.locator(".change").count(), 1);
  await close(tab);
});

test("the overview, the list and an object tell of it, too", async () => {
  const tab = await open(address());
  assert.match(await tab.textContent("#card"), /6 changes since .*reviewed-before\.ndjson, 3 breaking\./);
  await tab.selectOption("#only", "=added");
  assert.deepEqual((await tab.locator(".row b > span:first-child").allTextContents()).sort(), ["New", "Next"]);
  await tab.selectOption("#only", "=breaking");
  assert.ok((await tab.locator(".row small").allTextContents()).includes("e:states-1.0.0"));
  await tab.goto(address() + at("p:told-1.0.0"));
  assert.match(await tab.textContent("#card"), /Changed since .*description-changed/s);
  await tab.goto(address() + at("g:gone-1.0.0"));
  await shows(tab, "Not in this catalogue");
  await tab.getByRole("link", { name: "It is among what changed" }).click();
  await shows(tab, "What changed");
  await close(tab);
});

test("on a phone it is a pane of its own", async () => {
  const tab = await open(address(), "", sizes.phone);
  await tab.locator("#ways").getByRole("link", { name: "Changes (6)" }).tap();
  await shows(tab, "What changed");
  assert.ok(await tab.evaluate(() => document.documentElement.scrollWidth <= window.innerWidth));
  await tab.locator(".change h3 a").first().tap();
  await tab.goBack();
  await shows(tab, "What changed");
  await picture(tab, "review-phone");
  await close(tab);
});

test("without an earlier catalogue there is nothing of it", async () => {
  const tab = await open(page("unreviewed", after), "#?view=review");
  await shows(tab, "What the catalogue holds");
  assert.equal(await tab.locator("#only option[value='=changed']").count(), 0);
  await close(tab);
});
