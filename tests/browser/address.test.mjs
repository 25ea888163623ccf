// The address is the state: what is searched for, filtered, sorted and shown.
import assert from "node:assert/strict";
import { test } from "node:test";
import { address, at, close, discharge, example, open, rows, shows } from "./tab.mjs";

test("search, filters, order and object are in the address, and come back from it", async () => {
  const tab = await open(example());
  await tab.fill("#query", "rated");
  await tab.selectOption("#kind", "=measurable-parameter");
  await tab.selectOption("#sort", "=typeid");
  await rows(tab).first().click();
  await shows(tab, "Rated Discharge");
  const state = `#${discharge}?q=rated&kind=measurable-parameter&sort=typeid`;
  assert.equal(await address(tab), state);
  const other = await open(example(), new URL(tab.url()).hash);
  await shows(other, "Rated Discharge");
  assert.equal(await other.inputValue("#query"), "rated");
  assert.equal(await other.inputValue("#kind"), "=measurable-parameter");
  assert.equal(await other.inputValue("#sort"), "=typeid");
  assert.equal(await rows(other).count(), await rows(tab).count());
  await close(other);
  await close(tab);
});

test("Back and Forward walk what was searched, filtered and shown, a search as one step", async () => {
  const tab = await open(example());
  await tab.locator("#query").pressSequentially("rated");
  await tab.selectOption("#kind", "=measurable-parameter");
  await rows(tab).first().click();
  await shows(tab, "Rated Discharge");
  await tab.locator("#list").focus();
  await tab.keyboard.press("ArrowDown");
  await shows(tab, "Rated Power");
  await tab.goBack();
  await shows(tab, "Rated Discharge");
  await tab.goBack();
  await shows(tab, "What the catalogue holds");
  assert.equal(await tab.inputValue("#kind"), "=measurable-parameter");
  await tab.goBack();
  assert.equal(await tab.inputValue("#kind"), "");
  assert.equal(await tab.inputValue("#query"), "rated");
  await tab.goBack();
  assert.equal(await tab.inputValue("#query"), "");
  for (let i = 0; i < 4; ++i) {
    await tab.goForward();
  }
  await shows(tab, "Rated Power");
  assert.equal(await tab.inputValue("#query"), "rated");
  await close(tab);
});

test("a link to an object keeps the search, and is a link to the object alone when copied", async () => {
  const tab = await open(example(), at(discharge, "?q=rated"));
  const link = tab.locator("dd a", { hasText: /^Operation$/ });
  assert.equal(await link.getAttribute("href"), at("hydro.group:operation-1.0.0"));
  await link.click();
  await shows(tab, "Operation");
  assert.equal(await address(tab), "#hydro.group:operation-1.0.0?q=rated");
  await close(tab);
});

test("a link to what is not there says so, and offers other versions and a search", async () => {
  const tab = await open(example(), at("hydro.parameter:ratedDischarge-2.0.0"));
  await shows(tab, "Not in this catalogue");
  assert.match(await tab.textContent("#card"), /There is no object hydro\.parameter:ratedDischarge-2\.0\.0/);
  await tab.getByRole("link", { name: "Search for" }).click();
  assert.equal(await tab.inputValue("#query"), "ratedDischarge");
  await tab.goBack();
  await tab.locator(".links a", { hasText: "Rated Discharge" }).click();
  await shows(tab, "Rated Discharge");
  await close(tab);
});

test("a broken address says so, too", async () => {
  const tab = await open(example(), "#%E0%A4%A");
  await shows(tab, "Not in this catalogue");
  await close(tab);
});

test("the title leads home", async () => {
  const tab = await open(example(), at(discharge, "?q=rated&kind=measurable-parameter"));
  await tab.getByRole("link", { name: "Parameter catalogue" }).click();
  await shows(tab, "What the catalogue holds");
  assert.equal(await address(tab), "");
  assert.equal(await tab.inputValue("#query"), "");
  assert.match(await tab.textContent("#count"), /^\d+ objects$/);
  await close(tab);
});

test("a key that is held down does not overrun the browser's history", async () => {
  const tab = await open(example());
  await tab.locator("#list").focus();
  for (let i = 0; i < 60; ++i) {
    await tab.keyboard.press("ArrowDown");
  }
  const title = await tab.textContent("#title");
  await tab.waitForFunction((text) => decodeURIComponent(location.hash).includes(text), await tab.textContent(".typeid code"));
  await tab.goBack();
  await shows(tab, "What the catalogue holds");
  await tab.goForward();
  await shows(tab, title);
  await close(tab);
});
