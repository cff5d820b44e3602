#!/usr/bin/env python3
"""page_test.py L2FIB_SHOW SOURCE_DIR: what l2fib-show page writes, as a parser reads it. The browser's part is in
browser_test.py."""

import base64
import collections
import glob
import hashlib
import html.parser
import json
import os
import re
import subprocess
import sys
import tempfile

show, source = map(os.path.abspath, sys.argv[1:3])
failures = 0


def expect(what, truth):
    global failures
    if not truth:
        print("not so: " + what)
        failures += 1


class Page(html.parser.HTMLParser):
    """Reads a page, and notes what is not as it should be: each element that is opened has to be closed."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.open, self.faults, self.tags, self.ids, self.links = [], [], set(), [], []
        self.embedded, self.texts, self.attributes = {}, [], set()
        self.feed(text)
        self.close()
        self.faults += ["left open: " + tag for tag in self.open]
        self.faults += ["an id twice: " + name for name, count in collections.Counter(self.ids).items() if count > 1]
        ids = set(self.ids)
        self.faults += ["leads nowhere: " + link for link in self.links if link[:1] != "#" or link[1:] not in ids]

    def handle_starttag(self, tag, attributes):
        self.tags.add(tag)
        self.attributes |= {name for name, _ in attributes}
        for name, value in attributes:
            if name == "id":
                self.ids.append(value)
            elif name == "href":
                self.links.append(value)
        if tag == "meta":
            self.policy = dict(attributes).get("content") if ("http-equiv", "Content-Security-Policy") in attributes \
                else getattr(self, "policy", None)
        else:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append("</%s> at %s" % (tag, self.getpos()))

    def handle_data(self, text):
        if self.open and self.open[-1] in ("script", "style"):
            self.embedded.setdefault(self.open[-1], []).append(text)
        else:
            self.texts.append(text)


def write_page(*arguments, data=None):
    done = subprocess.run([show, "page", *arguments], input=data, capture_output=True, check=False)
    return done.returncode, done.stdout.decode("ascii"), done.stderr.decode()


def check_form(name, text):
    page = Page(text)
    expect("%s is well formed: %s" % (name, page.faults[:5]), not page.faults)
    known = set("a article b body details div h1 h2 h3 h4 head header html i main meta noscript p script section small"
                " span style summary table td th title tr".split())
    expect("%s has only the page's own elements: %s" % (name, page.tags - known), page.tags <= known)
    known = set("charset class colspan content href http-equiv id lang name scope".split())
    expect("%s has only the page's own attributes: %s" % (name, page.attributes - known), page.attributes <= known)
    for kind in ("script", "style"):
        content = "".join(page.embedded.get(kind, []))
        with open(source + "/client/page/page." + ("js" if kind == "script" else "css"), encoding="ascii") as file:
            expect("the %s of %s is the file" % (kind, name), content == file.read())
        digest = base64.b64encode(hashlib.sha256(content.encode()).digest()).decode()
        expect("the policy of %s allows the %s" % (name, kind), "%s-src 'sha256-%s'" % (kind, digest) in page.policy)
    expect("%s has one script" % name, text.count("<script") == 1)
    return page


samples = sorted(glob.glob(source + "/examples/*.jsonl"))
planted = source + "/examples/faults/planted.jsonl"
work = tempfile.TemporaryDirectory()
os.chdir(work.name)

# The samples, and the planted faults.
status, text, _ = write_page(*samples)
page = check_form("the page of the samples", text)
check = subprocess.run([show, "check", *samples], capture_output=True, check=False)
expect("the status is that of check", status == check.returncode)
expect("each sample has its object", all("o%d" % n in page.ids for n in range(1, len(samples) + 1)))

status, text, _ = write_page(planted)
check_form("the page of the planted faults", text)
lines = subprocess.run([show, "check", "--json", planted], capture_output=True, check=False).stdout.splitlines()
summary = json.loads(lines[-1])
wanted = "%(disagreeing)d of %(objects)d objects disagree, %(across)d disagreements across objects" % summary
expect("planted faults are found: " + wanted, status == 1 and wanted in text)
headings = re.findall(r"<h4 class=\"[en]\">(.*?)</h4>", text)
findings = [f for line in map(json.loads, lines[:-1]) for f in line.get("findings", [])]
expect("each finding of check has its heading", len(headings) == len(findings) and
       all(any(f["who"] in h for h in headings) for f in findings))
expect("findings come first", re.findall("<h2>([A-Za-z ]+) ", text) == ["Across objects", "Findings", "Nothing found"])

# The size that 100 objects may have.
many = b"".join(open(name, "rb").read() for name in samples)
many = b"\n".join((many * 6).splitlines()[:100]) + b"\n"
status, text, _ = write_page("-", data=many)
expect("100 objects are %d bytes, at most 2,000,000" % len(text), len(text) <= 2_000_000)

# Standard input, a selection, and what cannot be checked.
with open(planted, "rb") as file:
    captures = file.read()
status, text, _ = write_page("--object", "mac", "--node", "0", data=captures)
expect("a selection is named, and holds", "Only --object mac --node 0" in text and "h3>ac " not in text)
short = captures.splitlines()[0].decode()
short = re.sub(r'("show_data":"[0-9a-f]{800})[0-9a-f]*', r"\1", short).encode()
status, text, _ = write_page(data=short)
check_form("the page of short show data", text)
expect("short show data could not be checked", status == 2 and "234 of 3956 bytes" in text)
status, text, error = write_page(data=b"")
check_form("a page of nothing", text)
expect("nothing is no failure", status == 0 and error == "")
status, _, error = write_page("missing")
expect("a missing file is told", status == 2 and error == "l2fib-show: missing: No such file or directory\n")
with open("/dev/full", "wb") as full:
    done = subprocess.run([show, "page", planted], stdout=full, stderr=subprocess.PIPE, check=False)
    expect("a full disk is told", done.returncode == 2 and b"No space left" in done.stderr)

# Markup in file names and show data is text.
hostile = "</noscript><script>alert(1)</script><img src=x onerror=alert(2)>\"'&amp;\x1b[2J\u202e\xff.jsonl"
hostile = hostile.replace("/", "\u2215").encode() + b"\x80\xfe"
with open(hostile, "wb") as file:
    file.write(captures)
status, text, _ = write_page(os.fsdecode(hostile))
page = check_form("a page of a file with a hostile name", text)
expect("the name is on the page as text", any("<script>alert(1)<" in t and "\\x1b[2J" in t for t in page.texts))

# Show data that says markup in all its bytes: each field that holds text, or none.
markup = b"</noscript></td><script>alert(1)</script><!--" * 3000
for number, sample in enumerate(samples):
    capture = json.loads(open(sample, encoding="ascii").readline())
    data = bytearray.fromhex(capture["show_data"])
    for at in range(number % 7, len(data) - 64, 97):
        data[at:at + 48] = markup[:48]
    capture["show_data"] = data.hex()
    check_form("hostile show data of " + sample, write_page(data=json.dumps(capture).encode())[1])
report = json.loads(open(source + "/examples/inconsistent-ac.jsonl", encoding="ascii").readline())
data = bytearray.fromhex(report["show_data"])
for at, name in [(m.start(), m.group()) for m in re.finditer(rb"[A-Za-z ]{8,}", bytes(data))]:
    data[at:at + len(name)] = (b"<script>&\"'" * 9)[:len(name)]
report["show_data"] = data.hex()
page = check_form("a hostile report", write_page(data=json.dumps(report).encode())[1])
expect("its strings are on the page as text", any("<script>" in t for t in page.texts))

sys.exit(failures > 0)
