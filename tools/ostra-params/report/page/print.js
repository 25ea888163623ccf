// ---- on paper: what is shown; a list as a table of all that was found
window.addEventListener("beforeprint", () => {
  const isList = document.body.dataset.pane === "list";
  document.body.classList.toggle("list-on-paper", isList);
  if (isList) {
    const { group, discipline, file, kind, only, q } = state;
    const chosen = [q && `\u201c${q}\u201d`, kindOfId.get(kind)?.plural, group, discipline, file, onlyKinds[only]?.title].filter(Boolean).join(", ");
    byId("print").replaceChildren(element("h2", null, `${byId("count").textContent}${chosen ? `: ${chosen}` : ""}`), element("table", null,
      element("thead", null, element("tr", null, ...["Name", "Kind", "Typeid"].map((title) => element("th", null, title)))),
      element("tbody", null, ...Array.from(found.numbers, (number) => objects[number]).map((object) => element("tr", null, element("td", null, object.title),
        element("td", null, object.kind.label), element("td", null, element("code", null, object.typeId)))))));
  }
  drawn?.draw(640); // a sheet is no wider
});
window.addEventListener("afterprint", () => {
  document.body.classList.remove("list-on-paper");
  byId("print").replaceChildren();
  drawn?.draw();
});
