// What the search looks at, and what it forgives.
import assert from "node:assert/strict";
import { mkdirSync, writeFileSync } from "node:fs";
import { test } from "node:test";
import { group, many, page, parameter } from "./catalogues.mjs";
import { close, example, open, picture } from "./tab.mjs";

const titles = (tab) => tab.locator(".row b > span:first-child").allTextContents();

for (const [what, words, title] of [
  ["a unit's symbol", "m³/s", "Rated Discharge"],
  ["a sample text", "24.5", "Rated Discharge"],
  ["a file", "rated-discharge", "Rated Discharge"],
  ["a choice", "kaplan", "Turbine Type"],
  ["a limit", "120.5", "Rated Discharge"],
  ["a description", "turbine at its rated head", "Rated Discharge"],
]) {
  test(`finds ${what}`, async () => {
    const tab = await open(example());
    await tab.fill("#query", words);
    assert.ok((await titles(tab)).includes(title));
    await close(tab);
  });
}

test("finds an allowed value, in the range and in what has it", async () => {
  const range = { typeid: "r:colours", inherits: ["norvex.range:range.string.set.static-1.0.0"], constants: [{ id: "allowedValues", value: ["ultramarine", "ochre"] }] };
  const tab = await open(page("values", [group("g", "G"), range]));
  await tab.fill("#query", "ultramarine");
  assert.deepEqual(await titles(tab), ["ultramarine, ochre"], "a range without a name is called by what it holds");
  await close(tab);
});

test("those that have it in their names come first", async () => {
  const tab = await open(page("ranked", [group("g", "G"), parameter("a", "Height", "g", "Not the pressure"), parameter("b", "Pressure", "g")]));
  await tab.fill("#query", "pressure");
  assert.deepEqual(await titles(tab), ["Pressure", "Height"]);
  await close(tab);
});

test("finds letter by letter what it finds at once", async () => {
  // Few begin with "se", in names, typeids and descriptions.
  const few = [parameter("sea", "North", "g"), parameter("b", "Seven", "g"), parameter("c", "South", "g", "beside the sea"), parameter("d", "East", "seas")];
  const others = Array.from({ length: 100 }, (_, i) => parameter(`p:${i}`, `Height ${i}`, "g"));
  const address = page("letters", [group("g", "G"), group("seas", "Sea"), ...few, ...others]);
  const atOnce = await open(address);
  const typed = await open(address);
  for (const word of ["sea", "seven", "sex", "height 7"]) {
    await atOnce.fill("#query", word);
    await typed.fill("#query", "");
    for (let end = 1; end <= word.length; ++end) {
      await typed.fill("#query", word.slice(0, end));
    }
    assert.deepEqual(await titles(typed), await titles(atOnce), word);
  }
  await typed.fill("#query", "sea");
  assert.deepEqual((await titles(typed)).sort(), ["North", "Sea", "South"]);
  await close(atOnce);
  await close(typed);
});

test("finds the same before and after the page has read its words at leisure", async () => {
  const descriptions = ["Beside the pump's outlet", "Stra\u00dfe 7, \u00fcber Nacht", "", "na\u00efve cafe\u0301 x_y", "1.0.0 of inlets"];
  const parameters = Array.from({ length: 50 }, (_, i) => (
    parameter(`plant.pump:P${i}Outlet-1.0.0`, `${["Inlet", "Outlet", "\u00c4rger"][i % 3]} ${i}`, "g", descriptions[i % 5] + (i % 2 ? ` ${i}` : ""))));
  const texts = parameters.map(({ typeid, constants: [name, description] }) => `${name.value}\n${typeid}\n${description.value}`.toLowerCase());
  const address = page("leisure", [group("g", "G"), ...parameters]);
  const unread = await open(address, "", { neverIdle: true });
  const read = await open(address);
  for (let i = 0; i < 3; ++i) { // what is put off puts off more
    await read.evaluate(() => new Promise((done) => { window.requestIdleCallback(() => done()); }));
  }
  for (const words of [
    "p", "pu", "outlet", "let 1", "p1", "\u00e4rger", "stra\u00dfe", "\u00fcber n", "cafe", "cafe\u0301", "f\u00e9", "x_y", "y", "1.0.0", "1.0.0 of", "0",
    "inlet", "oulet", "beside p2", "zz",
  ]) {
    for (let end = 1; end <= words.length; ++end) {
      await read.fill("#query", words.slice(0, end));
    }
    await unread.fill("#query", words);
    const meant = words.replace("oulet", "outlet").split(" ");
    const expected = texts.filter((text) => meant.every((word) => text.includes(word))).length;
    assert.equal(await read.textContent("#count"), `${expected} of 51`, words);
    assert.equal(await unread.textContent("#count"), `${expected} of 51`, words);
    assert.deepEqual((await titles(read)).slice(0, 20), (await titles(unread)).slice(0, 20), words);
  }
  await close(unread);
  await close(read);
});

test("takes a text that all of one shape have for what it is", async () => {
  // Of their shapes these are alone: what they say is no number of a value, nor a member of a list.
  const texts = ["length", "push", ...Array.from({ length: 12 }, (_, i) => String(i))];
  for (const text of texts) {
    const range = { typeid: `r:${text}`, inherits: ["norvex.range:range.string.regex-1.0.0"], constants: [{ id: "regex", value: text }] };
    const tab = await open(page(`alone-${text}`, [group("g", "G"), parameter("a", "North", "g", "Ochre"), parameter("b", "South", "g", "Ochre"), range]));
    await tab.fill("#query", "ochre");
    assert.deepEqual((await titles(tab)).sort(), ["North", "South"], text);
    await close(tab);
  }
});

test("finds what many typeids begin and end with, and what reaches beyond that", async () => {
  const typeIds = Array.from({ length: 60 }, (_, i) => [`plant.pump:part.n${i}-1.0.0`, `plant.fan:Blade${i}-2.0.0`, `n${i}`][i % 3]);
  const tab = await open(page("ends", [group("g", "G"), ...typeIds.map((typeId, i) => parameter(typeId, `P${i}x`, "g"))]));
  for (const words of ["pump", ":part", "part.n1", "art.n4", "-1.0", "fan:bl", "2.0.0", "7-", "lant", "n5", "blade2", "plant p4", "1.0 .n3"]) {
    const expected = typeIds.flatMap((typeId, i) => (words.split(" ").every((word) => `p${i}x\n${typeId.toLowerCase()}`.includes(word)) ? [`P${i}x`] : []));
    await tab.fill("#query", words);
    assert.equal(await tab.textContent("#count"), `${expected.length} of 61`, words);
    assert.deepEqual((await titles(tab)).every((title) => expected.includes(title)), true, words);
  }
  await close(tab);
});

test("shows the first of what is found, wherever the list was scrolled to, and as many as there is room for", async () => {
  const tab = await open(page("scrolled", many(300)));
  await tab.evaluate(() => { document.getElementById("list").scrollTop = 9000; });
  await tab.waitForSelector("#row170", { state: "attached" });
  await tab.fill("#query", "parameter");
  await tab.waitForSelector("#row0", { state: "attached" });
  assert.equal(await tab.evaluate(() => document.getElementById("list").scrollTop), 0);
  assert.equal(await tab.locator("#row30").count(), 0);
  await tab.setViewportSize({ width: 1280, height: 2400 });
  await tab.waitForSelector("#row35", { state: "attached" });
  await tab.fill("#query", "parameter 1");
  assert.equal(await tab.locator("#row35").count(), 1);
  await close(tab);
});

for (const [slip, word] of [["a wrong letter", "discherge"], ["a letter too few", "dicharge"], ["a letter too many", "disscharge"], ["two the wrong way round", "dischrage"], ["a wrong letter in a word half typed", "dischx"]]) {
  test(`forgives ${slip}, and says so`, async () => {
    const tab = await open(example());
    await tab.fill("#query", word);
    assert.ok((await titles(tab)).includes("Rated Discharge"));
    assert.match(await tab.textContent("#corrected"), new RegExp(`Nothing has “${word}”. Shown is what has disch`));
    assert.ok(await tab.locator(".row mark", { hasText: /^Disch/ }).count() > 0);
    await tab.fill("#query", "discharge");
    assert.equal(await tab.textContent("#corrected"), "");
    await close(tab);
  });
}

test("does not forgive two wrong letters, nor words that are there but not together", async () => {
  const tab = await open(example());
  for (const words of ["dxschxrge", "kaplan discharge"]) {
    await tab.fill("#query", words);
    assert.ok(await tab.isVisible("#none"), words);
    assert.equal(await tab.textContent("#corrected"), "");
  }
  await picture(tab, "nothing");
  await close(tab);
});

test("sorts by name, typeid, file, and by what names objects most", async () => {
  const tab = await open(page("sorted", [parameter("p:1", "Zulu", "h"), parameter("p:2", "Alpha", "h"), group("h", "Mike"), group("g", "November"), parameter("p:0", "Lima", "g")]));
  for (const [order, expected] of [
    ["", ["Lima", "Zulu", "Alpha", "November", "Mike"]], ["name", ["Alpha", "Lima", "Mike", "November", "Zulu"]],
    ["typeid", ["November", "Mike", "Lima", "Zulu", "Alpha"]], ["file", ["Zulu", "Alpha", "Mike", "November", "Lima"]],
    ["users", ["Mike", "November", "Lima", "Zulu", "Alpha"]],
  ]) {
    await tab.selectOption("#sort", order && "=" + order);
    assert.deepEqual(await titles(tab), expected, order);
  }
  await close(tab);
});

test("shows what has no description, what nothing names and what has a warning", async () => {
  const odd = parameter("p:odd", "Odd", "g", "Described");
  odd.constants.push({ id: "readonly", value: true });
  const tab = await open(page("only", [group("g", "Named"), group("h", "Unnamed"), parameter("p:1", "Plain", "g"), odd]));
  for (const [only, expected] of [["undescribed", ["Plain"]], ["unused", ["Unnamed"]], ["warned", ["Odd"]]]) {
    await tab.selectOption("#only", "=" + only);
    assert.deepEqual(await titles(tab), expected);
  }
  await close(tab);
});

test("filters by folder where there are many files", async () => {
  for (const folder of ["one", "two"]) {
    mkdirSync(`folders/${folder}`, { recursive: true });
    for (let i = 0; i < 60; ++i) {
      writeFileSync(`folders/${folder}/${i}.json`, JSON.stringify(group(`${folder}:${i}`, `${folder} ${i}`)));
    }
  }
  const tab = await open(page("foldered", "folders"));
  await tab.selectOption("#file", "=folders/two/");
  assert.equal(await tab.textContent("#count"), "60 of 120");
  assert.match((await titles(tab))[0], /^two/);
  await close(tab);
});
