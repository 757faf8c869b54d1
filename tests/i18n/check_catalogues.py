#!/usr/bin/env python3
"""Checks the program's catalogues (translations/quovara_*.ts) against its texts.

    check_catalogues.py LUPDATE SOURCE_DIR

Fails (exit 1, one line per fault) when a catalogue
- lacks a text the sources have, or keeps one they no longer have (lupdate is run over the
  sources into a scratch catalogue to learn which texts there are);
- has a translation that is unfinished or empty (every plural form counts);
- has the wrong number of plural forms for its language;
- loses or adds a placeholder (%1, %2, ..., %n) or an accelerator (&);
- gives two texts of one window (one context) the same accelerator letter where the source
  texts have different letters.
"""
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

# As Qt counts them (Turkish puts a noun after a number in the singular: one form).
PLURAL_FORMS = {"cs": 3, "de": 2, "es": 2, "fr": 2, "it": 2, "ja": 1, "pl": 3, "pt_BR": 2,
                "ru": 3, "tr": 1, "uk": 3, "zh_CN": 1}
PLACEHOLDER = re.compile(r"%(?:n|L?\d+)")
ACCELERATOR = re.compile(r"&(?!&)(\w)")


def messages(path):
    tree = ET.parse(path)
    out = {}
    for context in tree.getroot().iter("context"):
        name = context.findtext("name")
        for m in context.iter("message"):
            source = m.findtext("source") or ""
            comment = m.findtext("comment") or ""
            out[(name, source, comment)] = m
    return tree.getroot().get("language", ""), out


def translations(message):
    t = message.find("translation")
    if t is None:
        return None, []
    forms = t.findall("numerusform")
    if forms:
        return t, [f.text or "" for f in forms]
    return t, [t.text or ""]


def main():
    lupdate, source_dir = sys.argv[1], sys.argv[2]
    faults = []
    with tempfile.TemporaryDirectory() as scratch:
        fresh = os.path.join(scratch, "fresh.ts")
        subprocess.run([lupdate, "-silent", "-locations", "none", os.path.join(source_dir, "src"),
                        "-ts", fresh], check=True, stdout=subprocess.DEVNULL)
        _, wanted = messages(fresh)
    folder = os.path.join(source_dir, "translations")
    catalogues = sorted(f for f in os.listdir(folder) if re.match(r"quovara_.*\.ts$", f))
    languages = [c[len("quovara_"):-3] for c in catalogues]
    if sorted(languages) != sorted(PLURAL_FORMS):
        faults.append("catalogues %s, expected %s" % (languages, sorted(PLURAL_FORMS)))
    for catalogue, language in zip(catalogues, languages):
        _, have = messages(os.path.join(folder, catalogue))
        for key in wanted:
            if key not in have:
                faults.append("%s: missing [%s] %r" % (catalogue, key[0], key[1]))
        for key, m in have.items():
            context, source, _ = key
            where = "%s: [%s] %r" % (catalogue, context, source)
            if key not in wanted:
                faults.append(where + ": obsolete (the sources no longer have it)")
                continue
            t, forms = translations(m)
            if t is None or t.get("type") in ("unfinished", "obsolete", "vanished"):
                faults.append(where + ": unfinished")
                continue
            if m.get("numerus") == "yes" and len(forms) != PLURAL_FORMS.get(language, 0):
                faults.append(where + ": %d plural forms, %s has %d"
                              % (len(forms), language, PLURAL_FORMS.get(language, 0)))
            for form in forms:
                if not form.strip() and source.strip():
                    faults.append(where + ": empty translation")
                if sorted(set(PLACEHOLDER.findall(form))) != sorted(set(PLACEHOLDER.findall(source))):
                    faults.append(where + ": placeholders %s, source has %s"
                                  % (sorted(set(PLACEHOLDER.findall(form))),
                                     sorted(set(PLACEHOLDER.findall(source)))))
                if bool(ACCELERATOR.search(form)) != bool(ACCELERATOR.search(source)):
                    faults.append(where + ": accelerator lost or added: %r" % form)
        # Accelerators within one window: letters that differ in the source differ in the
        # translation too.
        by_context = {}
        for (context, source, _), m in have.items():
            _, forms = translations(m)
            if not forms:
                continue
            s, t = ACCELERATOR.search(source), ACCELERATOR.search(forms[0])
            if s and t:
                by_context.setdefault(context, []).append((s.group(1).lower(), t.group(1).lower(),
                                                           source))
        for context, keys in by_context.items():
            for i, (s1, t1, src1) in enumerate(keys):
                for s2, t2, src2 in keys[i + 1:]:
                    if s1 != s2 and t1 == t2:
                        faults.append("%s: [%s] %r and %r share the accelerator %r"
                                      % (catalogue, context, src1, src2, t1))
    for f in faults:
        print(f)
    print("%d catalogues, %d texts each, %d faults" % (len(catalogues), len(wanted), len(faults)))
    return 1 if faults else 0


sys.exit(main())
