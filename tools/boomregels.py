"""The rules of tools/huisregels that need the whole tree: what one file says of another.

A rule takes a Boom and yields (path, line, text).
"""
import re

import toetsnamen

# A body file that takes the whole session, and is no form and no control. With its reason.
HOOFDMODULE_MAG = {
    "src/app/DataVerhuizing": "closes the set, and opens it in another directory",
    "src/app/Bestandensets": "what the forms of the file sets do alike, start-up included",
    "src/app/SetMaken": "makes a set with the record classes of the session, for three forms",
    "src/app/SetOpenen": "what a set needs of the session when it opens",
    "src/app/Start": "brings the session up",
    "src/entry/HuwActies": "shows the forms behind the buttons of the card of a person",
    "src/entry/KindActies": "shows the forms behind the buttons of the cards of children",
    "src/entry/VeldToets": "the keys of a field of a form, which show forms themselves",
    "src/entry/ZoekPersoon": "the door to the forms of the search",
}
# The main window is made by the program alone.
ZONDER_RIJ = {"MenuWindow"}
KLASSE = re.compile(r"\b(?:class|struct)\s+(\w+)(\s+final)?\s*(?::\s*([^;{()]+))?\{")
# What is hung on an event and has another name: where it is declared, and the reason.
BEHANDELAAR_MAG = {
    "Sluit": ("src/forms/Formulier", "closes the form, and nothing more"),
    "VeldToetsIn": ("src/entry/VeldToets", "the keys that every entry field has"),
    "Geldig": ("src/ancestors/KwstVelden", "the form asks the same of the field"),
}
GEBEURTENIS = re.compile(r"\bBij(Klik|Dubbelklik|Verlaten|Wijziging|Betreden|Toets)\(")


class Klasse:
    def __init__(self, naam, bron, regel, final, ouders, lijf):
        self.naam, self.bron, self.regel, self.lijf = naam, bron, regel, lijf
        self.final, self.ouders = final, ouders


class Boom:
    """All sources, by path, and what the rules want to know of them together."""

    def __init__(self, wortel, bronnen):
        self.wortel = wortel
        self.bronnen = {bron.pad: bron for bron in bronnen}
        self.klassen = [k for b in bronnen if b.is_bron for k in lees_klassen(b)]

    def erft(self, *stam):
        """The names of all classes that derive from these, directly or through another."""
        uit, vorige = set(stam), 0
        while vorige != len(uit):
            vorige = len(uit)
            uit |= {k.naam for k in self.klassen if uit.intersection(k.ouders)}
        return uit


def lees_klassen(bron):
    for m in KLASSE.finditer(bron.code):
        ouders = re.sub(r"<[^<>]*>|\b(public|protected|private|virtual)\b", " ", m[3] or "")
        lijf = bron.code[m.end():slot(bron.code, m.end())]
        yield Klasse(m[1], bron, bron.regel(m.start()), bool(m[2]),
                     [deel.strip().split("::")[-1] for deel in ouders.split(",")], lijf)


def slot(code, begin):
    """Where the brace closes that was opened before `begin`."""
    diepte = 1
    for m in re.compile(r"[{}]").finditer(code, begin):
        diepte += 1 if m.group() == "{" else -1
        if diepte == 0:
            return m.start()
    return len(code)


def te_maken_formulieren(boom):
    """The forms that a user can meet: not the bases, nor the main window."""
    namen = boom.erft("Formulier")
    bases = {ouder for k in boom.klassen for ouder in k.ouders}
    for k in boom.klassen:
        beschermd = re.search(rf"\bprotected:(?:(?!\bpublic:|\bprivate:).)*?[\s~]{k.naam}\(", k.lijf,
                              re.S)
        basis = not k.final and (k.naam in bases or beschermd)
        if k.naam in namen and k.naam != "Formulier" and not basis and k.naam not in ZONDER_RIJ:
            yield k


def regel_in_cmake(boom):
    """A source that no CMakeLists.txt names is not built, and a test in it never fails."""
    namen = {p.relative_to(boom.wortel).as_posix()
             for deel, patroon in (("src", "*.cpp"), ("tests", "*.cpp"), ("tests", "*Test.py"),
                                   ("fuzz", "*Test.cpp"), ("bench", "*Test.cpp"))
             for p in (boom.wortel / deel).rglob(patroon)}
    for naam in sorted(namen):
        pad = boom.wortel / naam
        genoemd = False
        for map_ in list(pad.parents)[:3]:
            lijst = map_ / "CMakeLists.txt"
            if lijst.exists():
                rest = re.escape(pad.relative_to(map_).as_posix())
                tekst = re.sub(r"#[^\n]*", "", lijst.read_text(encoding="utf-8"))
                genoemd |= re.search(rf"(?:\}}/|(?<![\w./-])){rest}(?![\w.])", tekst) is not None
        if not genoemd:
            yield naam, 1, "geen CMakeLists.txt noemt dit bestand"


def regel_alle_formulieren(boom):
    """Every form has a row in the list of all forms."""
    lijst = "\n".join(bron.code for pad, bron in boom.bronnen.items()
                      if re.match(r"src/program/(AlleFormulieren|formulieren/)", pad))
    for k in te_maken_formulieren(boom):
        if not re.search(rf"\b(?:Maak|make_unique)<(?:\w+::)*{k.naam}\b", lijst):
            yield k.bron.pad, k.regel, f"{k.naam} ontbreekt in de lijst van alle formulieren"


def rijnamen(bron, patroon):
    """Yields (line, name) of the rows of a table: what `patroon` finds in the source, comments and
    literals apart, when it stands in no argument of something else."""
    ruw = "\n".join(bron.regels)
    for m in re.finditer(patroon, ruw):
        voor = bron.code[:m.start()]
        if bron.code[m.start()] == "{" and voor.count("(") == voor.count(")"):
            yield bron.regel(m.start()), m[1]


def regel_indeling(boom):
    """Every row of the list has a layout, or else the window looks like nobody thought about it."""
    indelingen = {naam for pad, bron in boom.bronnen.items() if pad.startswith("src/qt/indeling/")
                  for _, naam in rijnamen(bron, r'\{\s*"(\w+)",\s*\w+\(')}
    for pad, bron in sorted(boom.bronnen.items()):
        if not re.match(r"src/program/formulieren/\w+\.cpp$", pad):
            continue
        for nr, naam in rijnamen(bron, r"\{\s*([^\s,{}]+),\s*\["):
            if not re.fullmatch(r'"\w+"', naam):
                yield pad, nr, f"{naam}: de naam van een formulier staat hier letterlijk"
            elif naam.strip('"') not in indelingen:
                yield pad, nr, f"{naam.strip(chr(34))} heeft geen indeling in src/qt/indeling"


def met_bedieningen(boom):
    """The classes that are controls, hold controls, or are forms."""
    soorten = boom.erft("Bediening") | {"Rij", "Regels"}
    groepen = set()
    vorige = -1
    while vorige != len(groepen):
        vorige = len(groepen)
        namen = "|".join(map(re.escape, soorten | groepen))
        lid = re.compile(rf"^\s*(?:\w+::)*(?:{namen})(?:<[^;{{}}]*>)?\s+\w+\s*[{{;=]", re.M)
        groepen |= {k.naam for k in boom.klassen if lid.search(k.lijf)}
    return soorten | groepen | boom.erft("Formulier")


def regel_hoofdmodule(boom):
    """Only forms and what belongs to their controls take the whole session."""
    eigen = met_bedieningen(boom)
    stammen = {re.sub(r"\.\w+$", "", k.bron.pad) for k in boom.klassen if k.naam in eigen}
    gebruikt = set()
    for pad, bron in sorted(boom.bronnen.items()):
        stam = re.sub(r"\.\w+$", "", pad)
        m = re.search(r"\bHoofdmodule\s*[&*]", bron.code)
        if not m or not bron.is_lijf or bron.map == "program" or stam in stammen \
                or stam == "src/app/Hoofdmodule":
            continue
        gebruikt.add(stam)
        if stam not in HOOFDMODULE_MAG:
            yield pad, bron.regel(m.start()), ("neemt Hoofdmodule, maar is geen formulier: vraag "
                                               "alleen het deel dat nodig is")
    for stam in sorted(set(HOOFDMODULE_MAG) - gebruikt):
        if stam + ".h" in boom.bronnen:
            yield stam + ".h", 1, "staat in HOOFDMODULE_MAG van tools/boomregels.py: niet meer nodig"


def sluithaak(code, begin):
    """Where the bracket closes that was opened before `begin`."""
    diepte = 1
    for m in re.compile(r"[][(){}]").finditer(code, begin):
        diepte += 1 if m.group() in "[({" else -1
        if diepte == 0:
            return m.start()
    return len(code)


def ontvanger(code, plaats):
    """The names before the event that begins there: of Partners(rij).RelNrP. these two."""
    namen = []
    while m := re.search(r"(?:\.|->)$", code[max(0, plaats - 2):plaats]):
        plaats -= len(m.group())
        while plaats and code[plaats - 1] in ")]":
            diepte = 1
            while diepte and plaats > 1:
                plaats -= 1
                diepte += (code[plaats - 1] in ")]") - (code[plaats - 1] in "([")
            plaats -= 1
        m = re.search(r"\w*$", code[max(0, plaats - 99):plaats])
        plaats -= len(m.group())
        naam = m.group().strip("_")
        if naam and naam != "this":
            namen.insert(0, naam[0].upper() + naam[1:])
    return namen


def lambdalijf(tekst):
    """The statements of a lambda; None for anything else."""
    if not tekst.startswith("["):
        return None
    kop = sluithaak(tekst, 1) + 1
    open_ = tekst.find("{", kop)
    return tekst[open_ + 1:sluithaak(tekst, open_ + 1)].strip() if open_ > 0 else None


def regel_behandelaars(boom):
    """A handler is named after the control that it hangs on, and the event."""
    gebruikt = set()
    for pad, bron in sorted(boom.bronnen.items()):
        for m in GEBEURTENIS.finditer(bron.code) if bron.is_lijf else ():
            namen = ontvanger(bron.code, m.start())
            hangt = bron.code[m.end():sluithaak(bron.code, m.end())].strip()
            if not namen and not hangt.startswith("["):
                continue  # where the event is declared, or a form's own override
            goed = {"".join(namen[i:]) + m[1] for i in range(len(namen))} or {m[1]}
            fout = behandelaar_fout(lambdalijf(hangt), goed, gebruikt)
            if fout:
                yield pad, bron.regel(m.start()), fout
    for sleutel in sorted(set(BEHANDELAAR_MAG) - gebruikt):
        kop = BEHANDELAAR_MAG[sleutel][0] + ".h"
        if kop in boom.bronnen:
            yield kop, 1, f"{sleutel} in BEHANDELAAR_MAG van tools/boomregels.py: niet meer nodig"


def behandelaar_fout(lijf, goed, gebruikt):
    """What is wrong with the body of a handler; None when nothing is. One call on a part is fine."""
    naam_hoort = f"hoort {sorted(goed, key=len)[-1]} te heten"
    if lijf is None:
        return f"deze behandelaar is geen lambda; een functie {naam_hoort}"
    zin = re.sub(r"\bthis\s*->\s*", "", lijf.rstrip("; \n"))
    if ";" in zin or re.match(r"(if|for|while|switch)\b", zin):
        return f"meer dan een opdracht: de behandelaar {naam_hoort}"
    m = re.match(r"(?:return\s+)?(?:\w+::)*(\w+)\(", zin)
    naam = m[1][0].upper() + m[1][1:] if m else None
    if naam is None or naam in goed:
        return None
    if naam in BEHANDELAAR_MAG:
        gebruikt.add(naam)
        return None
    return f"{m[1]} {naam_hoort}"


def regel_leesmij(boom):
    """What a README of src/ names between backticks is still there."""
    woorden = set()
    for pad, bron in boom.bronnen.items():
        if bron.is_bron:
            woorden.update(re.findall(r"\w+", bron.code))
            # A literal is a name when it is one word; the words of a sentence name nothing.
            woorden.update(naam[1] for _, tekst, _ in bron.letterlijk
                           if (naam := re.fullmatch(r'"(\w+)"', tekst)))
            woorden.add(pad.split("/")[-1].split(".")[0])
    for lijst in (boom.wortel / "src").rglob("CMakeLists.txt"):
        tekst = re.sub(r"#[^\n]*", "", lijst.read_text(encoding="utf-8"))
        woorden.update(re.findall(r"\w+", tekst))
    for leesmij in sorted((boom.wortel / "src").rglob("README.md")):
        naam = leesmij.relative_to(boom.wortel).as_posix()
        for nr, regel in enumerate(leesmij.read_text(encoding="utf-8").split("\n"), 1):
            for stuk in re.findall(r"`([^`]+)`", regel):
                if not bestaat(boom, leesmij.parent, stuk, woorden):
                    yield naam, nr, f"`{stuk}` is er niet meer"


def bestaat(boom, map_, stuk, woorden):
    """A directory, a file (also a pattern), or words of the sources; "..." stands for the rest."""
    if re.fullmatch(r"[\w/]+/", stuk):
        return any((van / stuk).is_dir() for van in (map_, boom.wortel / "src", boom.wortel))
    if re.search(r"\.(h|cpp|md|txt)$", stuk):
        # A bare name lies beside the README or below it; another's is named by its path.
        van = map_.rglob(stuk) if "/" not in stuk else (boom.wortel / "src").glob(stuk.strip("/"))
        return any(True for _ in van)
    rest = r"(?:\.\.\.|…|\*)"
    return all(past(re.sub(rest, "…", w), woorden)
               for w in re.findall(rf"\w*(?:{rest}\w*)+|\w+", stuk))


def past(woord, woorden):
    """Is it one of the words, "…" standing for the rest of one?"""
    if "…" not in woord:
        return woord in woorden
    vorm = re.compile(re.escape(woord).replace("…", r"\w*"))
    return woord == "…" or any(vorm.fullmatch(een) for een in woorden)


def regel_toetsnaam_python(boom):
    """The tests of the tools are named like the others."""
    for pad in sorted((boom.wortel / "tests").rglob("*Test.py")):
        tekst = pad.read_text(encoding="utf-8")
        for plaats, fout in toetsnamen.fouten(tekst, toetsnamen.PYTHON_TOETS):
            yield (pad.relative_to(boom.wortel).as_posix(), tekst.count("\n", 0, plaats) + 1, fout)


REGELS = [regel_in_cmake, regel_alle_formulieren, regel_indeling, regel_hoofdmodule,
          regel_behandelaars, regel_leesmij, regel_toetsnaam_python]


def controleer(wortel, bronnen):
    """All findings of the tree as (path, line, text)."""
    boom = Boom(wortel, bronnen)
    return [vondst for regel in REGELS for vondst in regel(boom)]
