// ---- the address is the state: "#<typeid>?q=<words>&kind=<id>..."
const parts = ["q", "kind", "group", "discipline", "file", "only", "sort", "view", "fate", "severity"];
const home = Object.fromEntries([["object", null], ...parts.map((part) => [part, ""])]);

function stateOf(address) {
  const [typeId, query] = address.replace(/^#/, "").split(/\?(.*)/s);
  const given = new URLSearchParams(query ?? "");
  const state = { ...home };
  for (const part of parts) {
    state[part] = given.get(part) ?? "";
  }
  try {
    state.object = decodeURIComponent(typeId) || null;
  } catch {
    state.object = typeId; // which is no address of anything, and is told to be so
  }
  return state;
}
function addressOf(state) {
  const given = new URLSearchParams(parts.filter((part) => state[part]).map((part) => [part, state[part]])).toString();
  return "#" + (state.object === null ? "" : encodeURIComponent(state.object)) + (given ? "?" + given : "");
}
const linkTo = (change) => addressOf({ ...home, ...change });

let state = stateOf(location.hash);
let follow = () => {}; // what shows the state
let lastManner = "";
let unwritten = 0;

// Browsers refuse addresses that change too often, as while a key is held down.
function writeAddress() {
  clearTimeout(unwritten);
  unwritten = 0;
  history.replaceState(null, "", addressOf(state));
}
// Goes on to another state. What is done again in one manner, such as typing, is one step for Back.
function go(change, manner = "") {
  const next = { ...state, ...change };
  if (addressOf(next) === addressOf(state)) {
    return;
  }
  if (manner !== "" && manner === lastManner) {
    unwritten ||= setTimeout(writeAddress, 300);
    state = next;
  } else {
    if (unwritten) {
      writeAddress();
    }
    state = next;
    history.pushState(null, "", addressOf(state));
  }
  lastManner = manner;
  follow();
}
function arrive() {
  clearTimeout(unwritten);
  unwritten = 0;
  lastManner = "";
  state = stateOf(location.hash);
  follow();
}
history.scrollRestoration = "manual";
window.addEventListener("popstate", arrive);
window.addEventListener("pagehide", () => unwritten && writeAddress());

// A link to an object keeps what is searched for; one that is opened elsewhere, or copied, is of the object alone.
document.addEventListener("click", (event) => {
  const link = event.target.closest?.("a[href^='#']");
  if (link && event.button === 0 && !event.ctrlKey && !event.metaKey && !event.shiftKey && !event.altKey) {
    event.preventDefault();
    const target = stateOf(link.getAttribute("href"));
    go(target.object === null ? target : { object: target.object, view: "", fate: "", severity: "" });
  }
});
