#!/usr/bin/env python3
"""Checks the reference of libzovqmi.

Builds the reference (Doxygen over include/zovqmi.h and docs/pages) in a build
directory of its own and fails when

  - Doxygen warns (every warning is an error),
  - an exported function lacks a brief, a @param for one of its parameters or
    a @return (functions returning void need none),
  - a record, record field, enumerated constant or macro lacks a description,
  - the number of documented functions differs from the number of exports
    declared with ZOVQMI_API in the header,
  - a manual page in man/ makes `man --warnings` complain.

Each of these is one "test"; the closing line has ctest's form
("100% tests passed, 0 tests failed out of N") so that scripts/test.sh counts
it, and the counts follow: documented functions, exports and the number of
"@note Deliberate:" lines of the header.

  docs/check_docs.py                     the whole check, as CI runs it
  docs/check_docs.py --sections ctl,wds  only the named header sections count
                                         (while other sections are still
                                         undocumented); Doxygen warnings of
                                         the other sections are ignored
  --build-dir DIR   where to configure and build (default build/docs)
  --no-man          leave the manual pages out

Sections are the header's banner comments: file (the file comment), codes,
records, device, framing, ctl, wds, dms, nas, wms, pds, pbm, qos.
"""

import argparse
import glob
import os
import re
import subprocess
import sys
import xml.etree.ElementTree as ET

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
HEADER = os.path.join(ROOT, "include", "zovqmi.h")
SECTIONS = ["file", "codes", "records", "device", "framing", "ctl", "wds", "dms", "nas", "wms", "pds", "pbm", "qos"]


def header_sections():
    """Maps each header line (1-based) to its section name, or None."""
    with open(HEADER, encoding="utf-8") as f:
        lines = f.read().split("\n")
    banner = re.compile(r"^/\* -{4,} (end )?([A-Za-z]+)[^*]* -- \*/$")
    current = "file"
    names = [None]
    for line in lines:
        m = banner.match(line)
        if m:
            current = None if m.group(1) else m.group(2).lower()
        names.append(current)
    return names, lines


def header_exports(names, lines, wanted, everything=False):
    """The functions declared with ZOVQMI_API in the wanted sections (or anywhere)."""
    exports = []
    text = "\n".join(lines)
    for m in re.finditer(r"^ZOVQMI_API\b[^;]*?\b(\w+)\s*\(", text, re.M):
        line = text.count("\n", 0, m.start()) + 1
        if everything or names[line] in wanted:
            exports.append(m.group(1))
    return exports


def run(cmd, **kw):
    p = subprocess.run(cmd, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **kw)
    return p.returncode, p.stdout


def text_of(node):
    return "".join(node.itertext()).strip() if node is not None else ""


class Checks:
    def __init__(self):
        self.results = []

    def add(self, name, problems):
        self.results.append((name, problems))
        status = "Passed" if not problems else "***Failed"
        print(f"{len(self.results):3d}/ check: {name:<52} {status}")
        for p in problems[:40]:
            print(f"      {p}")
        if len(problems) > 40:
            print(f"      ... and {len(problems) - 40} more")

    def close(self):
        failed = sum(1 for _, p in self.results if p)
        total = len(self.results)
        percent = 100 * (total - failed) // total if total else 0
        print()
        print(f"{percent}% tests passed, {failed} tests failed out of {total}")
        return failed


def main():
    ap = argparse.ArgumentParser(description="Builds and checks the reference of libzovqmi.")
    ap.add_argument("--build-dir", default=os.path.join(ROOT, "build", "docs"))
    ap.add_argument("--sections", help="comma-separated header sections to check (default: all)")
    ap.add_argument("--no-man", action="store_true", help="do not check the manual pages")
    args = ap.parse_args()

    wanted = SECTIONS if not args.sections else [s.strip().lower() for s in args.sections.split(",") if s.strip()]
    unknown = [s for s in wanted if s not in SECTIONS]
    if unknown:
        ap.error(f"unknown sections {unknown}; known: {', '.join(SECTIONS)}")
    partial = set(wanted) != set(SECTIONS)
    names, lines = header_sections()
    checks = Checks()
    build = os.path.abspath(args.build_dir)

    # 1. The build: configure (nothing is compiled) and run Doxygen.
    rc, out = run(["cmake", "-S", ROOT, "-B", build, "-DZOVQMI_BUILD_TESTS=OFF", "-DZOVQMI_BUILD_TOOLS=OFF",
                   "-DZOVQMI_BUILD_BENCH=OFF", "-DZOVQMI_BUILD_DOCS=ON"])
    problems = [] if rc == 0 else ["cmake configure failed:"] + out.splitlines()[-20:]
    doxyfile = os.path.join(build, "docs", "Doxyfile")
    if not problems and not os.path.exists(doxyfile):
        problems = ["no docs/Doxyfile in the build directory: Doxygen was not found"]
    if not problems:
        if not partial:
            rc, out = run(["cmake", "--build", build, "--target", "docs"])
            warnings = [l for l in out.splitlines() if re.search(r"\b(warning|error)\b", l, re.I)]
            if rc != 0 and not warnings:
                warnings = ["the docs target failed:"] + out.splitlines()[-20:]
        else:
            # Warnings do not stop this run; only those of the wanted sections
            # (and of the pages) count.
            for d in ("html", "xml"):
                run(["cmake", "-E", "remove_directory", os.path.join(build, "docs", d)])
            with open(doxyfile, encoding="utf-8") as f:
                config = f.read() + "\nWARN_AS_ERROR = NO\n"
            p = subprocess.run(["doxygen", "-"], input=config, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               text=True, cwd=ROOT)
            warnings = []
            for l in p.stdout.splitlines():
                m = re.match(r"^(.*?):(\d+): ", l)
                if m and os.path.abspath(m.group(1)) == HEADER:
                    line = int(m.group(2))
                    if line < len(names) and names[line] in wanted:
                        warnings.append(l)
                elif "warning" in l.lower() or "error" in l.lower():
                    warnings.append(l)
        problems = warnings
    checks.add("Doxygen builds the reference without warnings", problems)

    # 2. The XML output: every function, record, field and constant.
    xmldir = os.path.join(build, "docs", "xml")
    members = {}
    compounds = {}
    for path in sorted(glob.glob(os.path.join(xmldir, "*.xml"))):
        if os.path.basename(path) in ("index.xml", "Doxyfile.xml"):
            continue
        try:
            tree = ET.parse(path)
        except ET.ParseError as e:
            print(f"cannot parse {path}: {e}")
            continue
        for cd in tree.getroot().iter("compounddef"):
            if cd.get("kind") in ("struct", "union"):
                compounds[cd.get("id")] = cd
        for md in tree.getroot().iter("memberdef"):
            members.setdefault(md.get("id"), md)

    def in_wanted(node):
        loc = node.find("location")
        # Locations are given relative to the include directory (STRIP_FROM_PATH).
        if loc is None or os.path.basename(loc.get("file", "")) != os.path.basename(HEADER):
            return False
        if not partial:
            return True  # the whole header counts, wherever a declaration stands
        line = int(loc.get("line", "0"))
        return 0 < line < len(names) and names[line] in wanted

    functions = [md for md in members.values() if md.get("kind") == "function" and in_wanted(md)]
    no_brief, no_param, no_return = [], [], []
    documented = set()
    for md in functions:
        name = md.findtext("name")
        brief = text_of(md.find("briefdescription"))
        detail = md.find("detaileddescription")
        params = []
        for p in md.findall("param"):
            decl = p.findtext("declname")
            if decl:
                params.append(decl)
        described = set()
        for pl in detail.iter("parameterlist") if detail is not None else []:
            if pl.get("kind") != "param":
                continue
            for item in pl.findall("parameteritem"):
                desc = text_of(item.find("parameterdescription"))
                for pn in item.iter("parametername"):
                    if desc:
                        described.add(text_of(pn))
        returns = [s for s in (detail.iter("simplesect") if detail is not None else []) if s.get("kind") == "return"]
        rtype = text_of(md.find("type"))
        ok = True
        if not brief:
            no_brief.append(name)
            ok = False
        missing = [p for p in params if p not in described]
        if missing:
            no_param.append(f"{name}: {', '.join(missing)}")
            ok = False
        if rtype != "void" and not any(text_of(s) for s in returns):
            no_return.append(name)
            ok = False
        if ok:
            documented.add(name)
    checks.add("every function has a brief description", no_brief)
    checks.add("every parameter has a @param", no_param)
    checks.add("every non-void function has a @return", no_return)

    undocumented = []
    for md in members.values():
        kind = md.get("kind")
        if kind not in ("enum", "define", "typedef", "variable") or not in_wanted(md):
            continue
        name = md.findtext("name") or ""
        if kind == "enum":
            # Anonymous enums (the codes) need only their constants described.
            for ev in md.findall("enumvalue"):
                if not text_of(ev.find("briefdescription")) and not text_of(ev.find("detaileddescription")):
                    undocumented.append(f"constant {ev.findtext('name')}")
            if re.match(r"^@\d+$", name):
                continue
        if kind == "define" and name in ("ZOVQMI_H",):
            continue
        if not text_of(md.find("briefdescription")) and not text_of(md.find("detaileddescription")):
            undocumented.append(f"{kind} {name}")
    for cd in compounds.values():
        if not in_wanted(cd):
            continue
        if not text_of(cd.find("briefdescription")) and not text_of(cd.find("detaileddescription")):
            undocumented.append(f"record {cd.findtext('compoundname')}")
        for md in cd.iter("memberdef"):
            if not text_of(md.find("briefdescription")) and not text_of(md.find("detaileddescription")):
                undocumented.append(f"field {cd.findtext('compoundname')}::{md.findtext('name')}")
    checks.add("every record, field and constant is described", sorted(set(undocumented)))

    exports = header_exports(names, lines, wanted, everything=not partial)
    missing = sorted(set(exports) - documented)
    count_problems = []
    if len(documented) != len(exports):
        count_problems.append(f"{len(documented)} documented functions, {len(exports)} exports in the header")
        count_problems += [f"not (fully) documented: {n}" for n in missing]
    checks.add("documented functions = exports of the header", count_problems)

    # 3. The manual pages.
    if not args.no_man:
        pages = sorted(glob.glob(os.path.join(ROOT, "man", "*.[1-8]")))
        if not pages:
            checks.add("manual pages exist in man/", ["no pages in man/"])
        for page in pages:
            env = dict(os.environ, MANWIDTH="80", LC_ALL="C.UTF-8")
            p = subprocess.run(["man", "--warnings", "-l", "-Tutf8", page], stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE, text=True, env=env)
            problems = p.stderr.splitlines()
            if p.returncode != 0 and not problems:
                problems = [f"man exited with {p.returncode}"]
            checks.add(f"man page {os.path.relpath(page, ROOT)} renders without warnings", problems)

    failed = checks.close()
    scope = "all sections" if not partial else "sections " + ",".join(wanted)
    deliberate = sum(1 for i, l in enumerate(lines, 1) if "@note Deliberate:" in l and (not partial or names[i] in wanted))
    print(f"documented functions: {len(documented)} of {len(exports)} exports ({scope})")
    print(f"deliberate oddities stated (@note Deliberate:): {deliberate}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
