// The page is complete without this. It shows which values and bytes belong together, keeps what is folded out of the
// way until it is wanted, and finds objects by any text in them.
"use strict";

const byId = id => document.getElementById(id);

// A folded part is one text until now: see ObjectArticle::write.
function unfold(details) {
  const folded = details.querySelector(":scope > noscript");
  if (folded) folded.outerHTML = folded.textContent;
}

// Opens what an element is in. "3b28a" and "3v17" are of the object "o3".
function reach(id) {
  const object = byId("o" + parseInt(id));
  if (object) {
    const details = object.querySelector(":scope > details:last-child");
    unfold(details);
    details.open = true;
  }
  return byId(id);
}

function goTo(id, event) {
  const target = reach(id);
  if (!target) return;
  event?.preventDefault();
  if (location.hash !== "#" + id) history.pushState(null, "", "#" + id);
  const link = target.matches("a") ? target : target.querySelector("a") ?? target;
  link.focus({ preventScroll: true });
  target.scrollIntoView({ block: "center" });
}

// The row of bytes that a link in the panes leads to, or is in.
function bytesOf(link) {
  return /^#\d+b/.test(link.hash) ? byId(link.hash.slice(1)) : link.closest("tr[id]");
}

let marked = [];
function mark(link) {
  for (const element of marked) element.classList.remove("on");
  marked = [];
  const panes = link?.closest(".s");
  const row = panes && bytesOf(link);
  if (!row) return;
  marked = [row, ...panes.querySelectorAll(`a[href="#${row.id}"]`)];
  for (const element of marked) element.classList.add("on");
  show(row.contains(link) ? marked[1] : row);
}

// Scrolls the pane of an element, and nothing else, until it is in sight.
function show(element) {
  const pane = element?.closest("section");
  if (!pane) return;
  const inner = element.getBoundingClientRect();
  const outer = pane.getBoundingClientRect();
  if (inner.top < outer.top + 24 || inner.bottom > outer.bottom) {
    pane.scrollTop += inner.top - outer.top - outer.height / 2;
  }
}

addEventListener("toggle", event => unfold(event.target), true);
addEventListener("click", event => {
  const link = event.target.closest?.("a");
  if (link) goTo(link.hash.slice(1), event);
});
addEventListener("mouseover", event => {
  const link = event.target.closest?.(".s a, .s tr")?.closest("a, tr");
  if (link) mark(link.matches("a") ? link : link.querySelector("a"));
});
addEventListener("focusin", event => mark(event.target.closest("a")));
addEventListener("hashchange", () => goTo(location.hash.slice(1)));
addEventListener("popstate", () => goTo(location.hash.slice(1)));

// The arrows go from link to link within a pane.
addEventListener("keydown", event => {
  const step = { ArrowDown: 1, ArrowUp: -1 }[event.key];
  const link = event.target.closest?.(".s a");
  if (!step || !link) return;
  const links = [...link.closest("section").querySelectorAll("a")];
  const next = links[links.indexOf(link) + step];
  if (next) next.focus();
  event.preventDefault();
});

// What is searched is the text as it is read, not the markup that is folded.
function hasText(object, wanted) {
  const text = object.textContent;
  return text.toLowerCase().includes(wanted) && text.replace(/<[^>]*>/g, " ").toLowerCase().includes(wanted);
}

function addSearch() {
  const label = document.createElement("label");
  const field = document.createElement("input");
  const count = document.createElement("output");
  field.type = "search";
  label.append("Find objects with ", field, " ", count);
  document.querySelector("header").append(label);
  let delay;
  field.addEventListener("input", () => {
    clearTimeout(delay);
    delay = setTimeout(() => {
      const wanted = field.value.trim().toLowerCase();
      let found = 0;
      for (const object of document.querySelectorAll("article")) {
        object.hidden = wanted !== "" && !hasText(object, wanted);
        found += object.hidden ? 0 : 1;
      }
      count.textContent = wanted === "" ? "" : found + " found";
    }, 150);
  });
}

addSearch();
if (location.hash) goTo(location.hash.slice(1));
