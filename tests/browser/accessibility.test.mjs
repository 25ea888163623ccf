// What axe finds, and what it cannot: the keyboard, links told from text, motion.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import { group, many, page, parameter } from "./catalogues.mjs";
import { at, close, discharge, example, open, picture, sizes } from "./tab.mjs";

const axe = readFileSync("node_modules/axe-core/axe.min.js", "utf8");
const looks = { light: {}, dark: { colorScheme: "dark" }, "forced colours": { forcedColors: "active" } };
const states = {
  overview: "", search: "#?q=rated&kind=measurable-parameter", object: at(discharge), forgiven: "#?q=dischrage",
  nothing: "#?q=nosuchthing", enumeration: at("hydro.enumeration:condition-1.0.0"), missing: at("no such thing"),
};

async function findings(tab) {
  await tab.evaluate(axe);
  const { violations } = await tab.evaluate(() => globalThis.axe.run());
  return violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ target }) => target).join(" ")}`);
}

for (const [size, viewport] of Object.entries(sizes)) {
  for (const [look, colours] of Object.entries(looks)) {
    test(`axe finds nothing: ${size}, ${look}`, async () => {
      const tab = await open(example(), "", { ...viewport, ...colours, reducedMotion: "reduce" });
      for (const [state, hash] of Object.entries(states).slice(0, look === "light" ? Infinity : 3)) { // the rest has no colours of its own
        await tab.evaluate((to) => { location.hash = to; }, hash);
        await tab.waitForFunction((to) => location.hash === to, hash);
        assert.deepEqual(await findings(tab), [], state);
        await picture(tab, `${state}-${size}-${look}`);
      }
      await close(tab);
    });
  }
}

test("axe finds nothing on the page of what changed", async () => {
  const before = [group("g", "G"), parameter("p", "P", "g", "One thing"), parameter("q-1.0.0", "Q", "g")];
  const after = [group("g", "G"), parameter("p", "P", "g", "Another thing"), parameter("q-2.0.0", "Q", "g"), group("h", "H")];
  for (const size of Object.values(sizes)) {
    for (const colours of Object.values(looks)) {
      const tab = await open(page("accessible-review", after, before), "#?view=review", { ...size, ...colours, reducedMotion: "reduce" });
      await tab.locator("summary").first().click();
      assert.deepEqual(await findings(tab), []);
      await close(tab);
    }
  }
});

test("links are told from text by more than their colour", async () => {
  for (const hash of ["", at(discharge), at("no such thing")]) {
    const tab = await open(example(), hash);
    const plain = await tab.evaluate(() => [...document.querySelectorAll("#card a:not(.box), #totals a")]
      .filter((link) => getComputedStyle(link).textDecorationLine !== "underline").map((link) => link.outerHTML));
    assert.deepEqual(plain, []);
    await close(tab);
  }
});

test("the keyboard reaches everything that can be clicked, and shows where it is", async () => {
  for (const size of [sizes.desk, sizes.phone]) {
    const tab = await open(example(), at(discharge), size);
    const wanted = await tab.evaluate(() => [...document.querySelectorAll("a[href], button, select, input")].filter((each) => each.offsetParent !== null).length);
    const reached = new Set();
    const unmarked = [];
    for (let i = 0; i < wanted + 5; ++i) {
      await tab.keyboard.press("Tab");
      const place = await tab.evaluate(() => {
        const each = document.activeElement;
        const isMarked = getComputedStyle(each).outlineStyle !== "none";
        return each === document.body ? null : { isMarked, isControl: each.matches("a, button, select, input"), name: each.outerHTML.slice(0, 200), number: [...document.querySelectorAll("*")].indexOf(each) };
      });
      if (place?.isControl) {
        reached.add(place.number);
      }
      if (place && !place.isMarked) {
        unmarked.push(place.name);
      }
    }
    assert.equal(reached.size, wanted);
    assert.deepEqual(unmarked, []);
    await close(tab);
  }
});

test("nothing moves for those who do not want that", async () => {
  const moving = (tab) => tab.evaluate(() => document.getAnimations().length +
    [...document.querySelectorAll("*")].filter((each) => getComputedStyle(each).transitionDuration !== "0s" || getComputedStyle(each).animationName !== "none").length);
  const still = await open(example(), at(discharge), { reducedMotion: "reduce" });
  assert.equal(await moving(still), 0);
  await close(still);
  const tab = await open(example(), at(discharge), { reducedMotion: "no-preference" });
  assert.ok(await moving(tab) > 0);
  await close(tab);
});

test("axe finds nothing on the page of many objects", async () => {
  const tab = await open(page("accessible-many", many(2000)), at("g:1"), { reducedMotion: "reduce" });
  assert.deepEqual(await findings(tab), []);
  await close(tab);
});
