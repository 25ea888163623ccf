// A browser, pages opened in it, and what tests ask of them.
import assert from "node:assert/strict";
import { after, before } from "node:test";
import { join } from "node:path";
import { chromium } from "playwright-core";
import { page } from "./catalogues.mjs";

let browser;
before(async () => {
  browser = await chromium.launch({ executablePath: process.env.CHROMIUM, args: ["--no-sandbox", "--disable-gpu"] });
});
after(() => browser.close());

export const sizes = {
  phone: { viewport: { width: 390, height: 844 }, hasTouch: true },
  tablet: { viewport: { width: 768, height: 1024 }, hasTouch: true },
  desk: { viewport: { width: 1440, height: 900 } },
};

// Opens a page that must neither complain nor ask the network for anything; one that is never idle puts off for ever what
// can be put off.
export async function open(address, hash = "", { neverIdle = false, ...options } = {}) {
  const tab = await browser.newPage({ viewport: { width: 1280, height: 860 }, ...options });
  if (neverIdle) {
    await tab.addInitScript(() => { window.requestIdleCallback = () => 0; });
  }
  tab.complaints = [];
  tab.on("pageerror", (error) => tab.complaints.push(String(error)));
  tab.on("console", (message) => message.type() === "error" && tab.complaints.push(message.text()));
  tab.on("request", (request) => request.url().startsWith("file:") || tab.complaints.push(request.url()));
  tab.on("dialog", (dialog) => { tab.complaints.push("dialog"); dialog.dismiss(); });
  await tab.goto(address + hash);
  return tab;
}
export async function close(tab) {
  assert.deepEqual(tab.complaints, []);
  await tab.close();
}
// Waits until the object of that title is shown: the page follows a link a moment after the click.
export async function shows(tab, title) {
  try {
    await tab.waitForFunction((text) => document.getElementById("title")?.textContent === text, title, { timeout: 5000 });
  } catch {
    assert.equal(await tab.textContent("#title"), title);
  }
}
export async function picture(tab, name) {
  if (process.env.OSTRA_SCREENSHOTS) {
    await tab.screenshot({ path: join(process.env.OSTRA_SCREENSHOTS, `${name}.png`) });
  }
}
export const rows = (tab) => tab.locator("#list [role=option]");
export const address = (tab) => tab.evaluate(() => decodeURIComponent(location.hash));
export const at = (typeId, query = "") => "#" + encodeURIComponent(typeId) + query;
export const discharge = "hydro.parameter:ratedDischarge-1.0.0";

let written;
export const example = () => (written ??= page("example", process.env.OSTRA_EXAMPLES));
