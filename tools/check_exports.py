#!/usr/bin/env python3
"""The export bookkeeping, checked against the built library.

- the library's dynamic symbols are exactly the implemented exports;
- implemented plus pending is the whole list, and they do not meet;
- every implemented export has a prototype in include/veks.h equal to its
  row of the list (white space folded), and no pending one has;
- every implemented name is written literally in src/ (its table row);
- neither library needs the C++ runtime at run time;
- no instruction beyond SSE4.1 is in the library.
"""
import argparse
import pathlib
import re
import subprocess
import sys


def fold(s):
    s = re.sub(r"\s+", " ", s.strip())
    s = re.sub(r"\s*\*\s*", "* ", s).replace("* ,", "*,").replace("* )", "*)")
    return re.sub(r"\s*,\s*", ", ", s).strip()


def read_list(root):
    rows = {}
    for f in ("api/exports.tsv", "api/families_exports.tsv"):
        lines = (root / f).read_text().splitlines()
        for line in lines[1:]:
            if not line.strip():
                continue
            name, family, ret, args = line.split("\t")
            rows[name] = (family, fold(ret), fold(args))
    return rows


def dynamic_symbols(lib):
    out = subprocess.run(["nm", "-D", "--defined-only", lib], capture_output=True, text=True, check=True).stdout
    syms = set()
    for line in out.splitlines():
        parts = line.split()
        if len(parts) >= 3 and parts[1] in "TtWiDdBbRrVv" and parts[1].isupper():
            syms.add(parts[2].split("@")[0])
    return syms


def header_prototypes(root):
    text = (root / "include/veks.h").read_text()
    text = re.sub(r"/\*.*?\*/", " ", text, flags=re.S)
    protos = {}
    for m in re.finditer(r"VEKS_API\s+([^;()]*?)\b(veks\w+)\s*\(([^;]*?)\)\s*;", text, flags=re.S):
        ret, name, args = m.group(1), m.group(2), m.group(3)
        if name in protos:
            protos[name] = None  # declared twice
        else:
            protos[name] = (fold(ret), fold(args))
    return protos


def needed(lib):
    out = subprocess.run(["readelf", "-d", lib], capture_output=True, text=True, check=True).stdout
    return re.findall(r"\(NEEDED\).*\[(.*)\]", out)


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--lib", required=True)
    ap.add_argument("--core", required=True)
    ap.add_argument("--root", required=True)
    a = ap.parse_args()
    root = pathlib.Path(a.root)
    errors = []

    rows = read_list(root)
    pending = [l.strip() for l in (root / "api/pending.txt").read_text().splitlines() if l.strip()]
    pend = set(pending)
    if len(pend) != len(pending):
        errors.append("pending list names an export twice")
    exported = dynamic_symbols(a.lib)
    veks_syms = {s for s in exported if s.startswith("veks")}
    others = exported - veks_syms
    if others:
        errors.append("symbols exported beside veks*: " + " ".join(sorted(others)[:10]))

    implemented = set(rows) - pend
    for n in sorted(pend - set(rows)):
        errors.append(f"pending name not in the list: {n}")
    for n in sorted(veks_syms - set(rows)):
        errors.append(f"exported but not in the list: {n}")
    for n in sorted(veks_syms & pend):
        errors.append(f"exported but still pending: {n}")
    for n in sorted(implemented - veks_syms):
        errors.append(f"neither exported nor pending: {n}")

    protos = header_prototypes(root)
    for n in sorted(implemented):
        _, ret, args = rows[n]
        p = protos.get(n, "missing")
        if p == "missing":
            errors.append(f"no prototype in veks.h: {n}")
        elif p is None:
            errors.append(f"declared twice in veks.h: {n}")
        elif p != (ret, args):
            errors.append(f"prototype of {n} differs: header '{p[0]} ({p[1]})', list '{ret} ({args})'")
    for n in sorted(set(protos) - implemented):
        errors.append(f"prototype without implementation: {n}")

    src = "\n".join(p.read_text() for p in (root / "src").rglob("*") if p.suffix in (".cpp", ".h", ".inc"))
    written = set(re.findall(r"\bveks\w+", src))
    for n in sorted(implemented - written):
        errors.append(f"not written literally in src/ (token-pasted?): {n}")

    for lib in (a.lib, a.core):
        for dep in needed(lib):
            if dep.startswith(("libstdc++", "libgcc_s")):
                errors.append(f"{pathlib.Path(lib).name} needs {dep} at run time")

    dis = subprocess.run(["objdump", "-d", "--no-show-raw-insn", a.lib], capture_output=True, text=True,
                         check=True).stdout
    # Whole mnemonics only: andnps and pextrd are SSE, andn and pext are not.
    beyond = re.compile(r"\t(v[a-z0-9]+\s.*%[xyz]mm|.*%[yz]mm|(crc32[bwlq]?|pcmpgtq|pcmp[ei]stri|pcmp[ei]strm|"
                        r"popcnt[wlq]?|lzcnt[wlq]?|tzcnt[wlq]?|andn[lq]?|bextr[lq]?|shlx[lq]?|shrx[lq]?|sarx[lq]?|"
                        r"pdep[lq]?|pext[lq]?|movbe[wlq]?)\s)")
    hits = [l for l in dis.splitlines() if beyond.search(l)]
    if hits:
        errors.append("instructions beyond SSE4.1: " + "; ".join(h.strip() for h in hits[:5]))

    total = len(rows)
    print(f"exports: {len(implemented)} implemented, {len(pend)} pending, {total} listed")
    if errors:
        print("\n".join(errors[:200]))
        if len(errors) > 200:
            print(f"... and {len(errors) - 200} more")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
