// Phones, tablets, and pages that are magnified: one pane at a time.
import assert from "node:assert/strict";
import { test } from "node:test";
import { page } from "./catalogues.mjs";
import { at, close, discharge, example, open, picture, rows, shows, sizes } from "./tab.mjs";

const operation = "hydro.group:operation-1.0.0";
// A window of 1280 by 1024 pixels has as much room when it is magnified.
const magnified = {
  "200 %": { viewport: { width: 640, height: 512 }, deviceScaleFactor: 2 },
  "400 %": { viewport: { width: 320, height: 256 }, deviceScaleFactor: 4 },
};
const narrow = { phone: sizes.phone, tablet: sizes.tablet, ...magnified };
const fits = (tab) => tab.evaluate(() => document.documentElement.scrollWidth <= window.innerWidth);
const isInSight = async (tab, selector) => {
  const box = await tab.locator(selector).boundingBox();
  return box !== null && box.y >= 0 && box.y < tab.viewportSize().height;
};

for (const [name, size] of Object.entries(narrow)) {
  test(`${name}: a row opens its object in place of the list, and there is a way back to that row`, async () => {
    const tab = await open(example(), "#?view=list", size);
    assert.ok(await tab.isHidden("#card"));
    await rows(tab).first().waitFor();
    const third = rows(tab).nth(2);
    const title = await third.locator("b > span").first().textContent();
    await third.click();
    await shows(tab, title);
    assert.ok(await tab.isHidden("#list"));
    assert.ok(await isInSight(tab, "#title"), "the object is in sight");
    await tab.getByRole("link", { name: "List" }).click();
    assert.ok(await tab.isHidden("#card"));
    assert.ok(await rows(tab).nth(2).isVisible());
    await tab.goBack();
    await shows(tab, title);
    await close(tab);
  });

  test(`${name}: a deep link shows its object`, async () => {
    const tab = await open(example(), at(discharge), size);
    await shows(tab, "Rated Discharge");
    assert.ok(await isInSight(tab, "#title"));
    await tab.getByRole("link", { name: "Next object" }).click();
    assert.notEqual(await tab.textContent("#title"), "Rated Discharge");
    await tab.getByRole("link", { name: "Previous object" }).click();
    await shows(tab, "Rated Discharge");
    await picture(tab, `object-${name}`);
    await close(tab);
  });

  test(`${name}: nothing scrolls sideways`, async () => {
    for (const hash of ["", "#?view=list", at(discharge), at(operation), at("hydro.enumeration:condition-1.0.0"), at("no such thing")]) {
      const tab = await open(example(), hash, size);
      assert.ok(await fits(tab), hash);
      const outside = await tab.evaluate(() => [...document.querySelectorAll("#card *, #objects *, header *, search *")]
        .filter((each) => !each.closest(".unseen, .skip, svg") && each.getBoundingClientRect().right > window.innerWidth + 1).map((each) => each.outerHTML.slice(0, 80)));
      assert.deepEqual(outside, [], hash);
      await close(tab);
    }
  });
}

for (const [name, size] of [["phone", sizes.phone], ["tablet", sizes.tablet]]) {
  test(`${name}: whatever can be touched is as large as a thumb`, async () => {
    for (const hash of ["", "#?view=list", at(discharge), at(operation), at("no such thing")]) {
      const tab = await open(example(), hash, size);
      if (hash === "#?view=list") {
        await tab.click("#more-filters");
      }
      const small = await tab.evaluate(() => [...document.querySelectorAll("a, button, select, input, [role=option]")]
        .filter((each) => each.offsetParent !== null && !each.closest(".skip, .schema"))
        .filter((each) => each.getBoundingClientRect().height < 44)
        .map((each) => `${each.outerHTML.slice(0, 100)} ${each.getBoundingClientRect().height}`));
      assert.deepEqual(small, [], hash);
      await close(tab);
    }
  });
}

test("typing on a phone shows what is found, and filters are a touch away", async () => {
  const tab = await open(example(), "", sizes.phone);
  assert.ok(await tab.isVisible("#card"), "the overview comes first");
  await tab.fill("#query", "rated");
  assert.ok(await tab.isHidden("#card"));
  assert.equal(await rows(tab).count(), 2);
  assert.ok(await tab.isHidden("#kind"));
  await tab.getByRole("button", { name: "Filters" }).tap();
  await tab.selectOption("#kind", "=group");
  assert.ok(await tab.isVisible("#none"));
  await picture(tab, "phone-filters");
  await tab.getByRole("link", { name: "Overview" }).tap();
  await shows(tab, "What the catalogue holds");
  await close(tab);
});

test("with a keyboard on a page that is magnified the arrows walk the rows, and Enter opens one", async () => {
  const tab = await open(example(), "#?view=list", magnified["200 %"]);
  await tab.locator("#list").focus();
  for (let i = 0; i < 20; ++i) {
    await tab.keyboard.press("ArrowDown");
  }
  assert.equal(await tab.getAttribute("#list", "aria-activedescendant"), "row19");
  assert.ok(await isInSight(tab, "#row19"));
  const title = await tab.textContent("#row19 b > span");
  await tab.keyboard.press("Enter");
  await shows(tab, title);
  assert.equal(await tab.evaluate(() => document.activeElement.id), "card");
  await tab.keyboard.press("Escape");
  assert.equal(await tab.evaluate(() => document.activeElement.id), "list");
  assert.equal(await tab.getAttribute("#list", "aria-activedescendant"), "row19");
  assert.ok(await isInSight(tab, "#row19"));
  await close(tab);
});

test("the list of a phone is as long as the catalogue and holds only the rows in sight", async () => {
  const tab = await open(page("long", Array.from({ length: 3000 }, (_, i) => (
    { typeid: `g:${i}`, inherits: ["norvex.parameter:group-1.0.0"], constants: [{ id: "name", value: `Group ${String(i).padStart(4, "0")}` }] }))), "#?view=list&sort=name", sizes.phone);
  await tab.evaluate(() => window.scrollTo(0, document.documentElement.scrollHeight));
  await rows(tab).filter({ hasText: "Group 2999" }).tap();
  await shows(tab, "Group 2999");
  await tab.getByRole("link", { name: "List" }).tap();
  assert.ok(await rows(tab).filter({ hasText: "Group 2999" }).isVisible());
  assert.ok(await rows(tab).count() < 40);
  await close(tab);
});
