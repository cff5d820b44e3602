#!/usr/bin/env python3
"""browser_test.py L2FIB_SHOW SOURCE_DIR OUTPUT_DIR: the page of l2fib-show as Chromium shows it. Leaves pictures of it
in OUTPUT_DIR."""

import os
import subprocess
import sys
import time

from browser import Browser

show, source, output = map(os.path.abspath, sys.argv[1:4])
os.makedirs(output, exist_ok=True)
os.chdir(output)
failures = 0


def expect(what, truth):
    global failures
    if not truth:
        print("not so: " + what)
        failures += 1


def write_page(name, *arguments):
    with open(name, "wb") as file:
        subprocess.run([show, "page", *arguments], stdout=file, check=False)
    return name


def read_lines(*names):
    return [line for name in names for line in open(name, "rb").read().splitlines()]


# The contrast of each text with what is behind it; and what a reader who sees no colours is told.
CONTRAST = """
(() => {
  const light = ([r, g, b]) => {
    const part = c => (c /= 255) <= 0.04045 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4;
    return 0.2126 * part(r) + 0.7152 * part(g) + 0.0722 * part(b);
  };
  const parts = colour => colour.match(/[0-9.]+/g).map(Number);
  const behind = element => {
    for (; element; element = element.parentElement) {
      const colour = parts(getComputedStyle(element).backgroundColor);
      if (colour.length < 4 || colour[3] === 1) return colour;
    }
    return [255, 255, 255];
  };
  let worst = 21;
  for (const element of document.querySelectorAll("h1,h2,h3,h4,p,a,i,b,small,span,summary,td,th")) {
    if (!element.checkVisibility() || !element.textContent.trim()) continue;
    const [a, b] = [light(parts(getComputedStyle(element).color)), light(behind(element))].sort((x, y) => y - x);
    worst = Math.min(worst, (a + 0.05) / (b + 0.05));
  }
  return worst;
})()
"""

planted = write_page("planted.html", source + "/examples/faults/planted.jsonl")
with Browser() as browser:
    browser.size(1400, 1000)
    browser.open(planted)
    browser.screenshot("light.png")
    expect("nothing is unfolded at first", browser.value("document.querySelectorAll('.s').length") == 0)

    # From a finding to its bytes, to their value, and back, by keyboard.
    browser.value("document.querySelector('#o3 .f .x a').focus()")
    browser.press("Enter")
    where = "document.activeElement.closest('tr').id"
    expect("Enter on a finding leads to its bytes", browser.value(where) == "3bcbe")
    expect("the bytes are in sight", browser.value(
        "(r => r.top > 0 && r.bottom < innerHeight)(document.activeElement.getBoundingClientRect())"))
    marked = "[...document.querySelectorAll('.on')].map(e => e.textContent).join('|')"
    expect("value and bytes are marked", "VFI Enabled" in browser.value(marked) and "00 00 00 01" in browser.value(marked))
    browser.press("Enter")
    expect("Enter on bytes leads to their value", browser.value("document.activeElement.textContent") == "VFI Enabled")
    browser.press("ArrowDown")
    down = browser.value("document.activeElement.textContent")
    browser.press("ArrowUp")
    expect("the arrows go from value to value", down != "VFI Enabled" and
           browser.value("document.activeElement.textContent") == "VFI Enabled")
    browser.press("Enter")
    expect("Enter on a value leads to its bytes", browser.value(where) == "3bcbe")

    # By pointing.
    browser.point_at('#o3 .v a[href="#3b22"]')
    expect("pointing at a value marks its bytes", browser.value("byId('3b22').classList.contains('on')"))
    browser.point_at('[id="3b1a"] a')
    expect("pointing at bytes marks all their values", browser.value(
        "[...document.querySelectorAll('#o3 .v a.on')].every(a => a.hash === '#3b1a') &&"
        " document.querySelectorAll('#o3 .v a.on').length") >= 2)

    browser.value("byId('o3').scrollIntoView()")
    for theme in ("light", "dark"):
        browser.theme(theme)
        browser.screenshot("open-%s.png" % theme)
        contrast = browser.value(CONTRAST)
        expect("the %s page has a contrast of %.2f, at least 4.5" % (theme, contrast), contrast >= 4.5)
    browser.size(420, 900)
    browser.screenshot("narrow.png")
    expect("a narrow page is not wider than its window",
           browser.value("document.documentElement.scrollWidth <= innerWidth"))

    # The search looks into what is folded, and not at markup.
    for text, found in (("storm_control", True), ("href=", False), ("planted.jsonl:74", True)):
        shown = browser.value(
            "new Promise(done => { const field = document.querySelector('input'); field.value = %r;"
            " field.dispatchEvent(new Event('input'));"
            " setTimeout(() => done([...document.querySelectorAll('article')].filter(e => !e.hidden).length), 400) })"
            % text)
        expect("a search for %s shows %d objects" % (text, shown), (0 < shown < 75) == found)
    expect("the browser has nothing to complain about: %s" % browser.complaints(), not browser.complaints())

    browser.open(planted, "#74v3")
    expect("a link to a value opens its object", browser.value("document.activeElement.id") == "74v3")

    # A script that show data could bring would not run.
    text = open(planted, encoding="ascii").read()
    with open("injected.html", "w", encoding="ascii") as file:
        file.write(text.replace("<main>", "<main><script>window.hit = 1</script><img src=x onerror='window.hit = 2'>"))
    browser.open("injected.html")
    expect("the policy stops other scripts", browser.value("window.hit === undefined"))

    # Thousands of objects.
    lines = read_lines(source + "/examples/faults/planted.jsonl", *(
        os.path.join(source, "examples", name) for name in sorted(os.listdir(source + "/examples"))
        if name.endswith(".jsonl")))
    with open("many.jsonl", "wb") as file:
        file.write(b"\n".join((lines * 60)[:5000]) + b"\n")
    many = write_page("many.html", "many.jsonl")
    started = time.monotonic()
    browser.open(many)
    seconds = time.monotonic() - started
    scroll = browser.value(
        "new Promise(done => { const begin = performance.now(); scrollTo(0, document.body.scrollHeight);"
        " requestAnimationFrame(() => requestAnimationFrame(() => done(performance.now() - begin))) })")
    print("5000 objects: %.1f MB, open after %.1f s, at the end after %.0f ms"
          % (os.path.getsize(many) / 1e6, seconds, scroll))
    expect("5000 objects open and scroll within seconds", seconds < 10 and scroll < 2000)
    os.remove("many.html")
    os.remove("many.jsonl")

# All is there for readers without scripts.
with Browser(scripts=False) as browser:
    browser.open(planted)
    expect("no script has run", browser.value("document.querySelector('input') === null"))
    browser.open(planted, "#3bcbe")
    expect("a link leads into what is folded",
           browser.value("document.querySelector('#o3 > details:last-child').open && document.querySelector(':target').id") == "3bcbe")
    browser.screenshot("no-script.png")

sys.exit(failures > 0)
