#!/usr/bin/env python3
"""What the manual says of the program is so: captions, menu paths, commands, settings, pictures and
links. Arguments: the program lb77-cli, and the page made of the manual when there is one."""
import pathlib
import re
import subprocess
import sys
import unittest

WORTEL = pathlib.Path(__file__).resolve().parent.parent.parent
PAGINA = pathlib.Path(sys.argv.pop(2)) if len(sys.argv) > 2 and not sys.argv[2].startswith("-") else None
PROGRAMMA = pathlib.Path(sys.argv.pop(1)).resolve()
HANDLEIDING = (WORTEL / "docs" / "handleiding.md").read_text("utf-8")


def zonder_blokken(tekst):
    return re.sub(r"^```.*?^```", "", tekst, flags=re.S | re.M)


def plat(tekst):
    return re.sub(r"\s+", " ", tekst)


TEKST = plat(zonder_blokken(HANDLEIDING))
PROZA = re.sub(r"`[^`]*`|<a [^>]*>", " ", TEKST)


def letters(stuk):
    """What a literal of the sources spells."""
    return stuk.replace('\\"', '"').replace("\\\\", "\\").replace("\\n", "\n")


def teksten_van_het_programma():
    """All literals of the sources, those that stand side by side as one, without accelerators."""
    een = r'(?:R"~?\((?:.*?)\)~?"|"(?:[^"\\\n]|\\.)*")'
    uit = []
    for bron in sorted((WORTEL / "src").rglob("*")):
        if bron.suffix not in (".cpp", ".h"):
            continue
        inhoud = re.sub(r"^\s*#include.*$|//.*$", "", bron.read_text("utf-8"), flags=re.M)
        for reeks in re.findall(rf"{een}(?:\s*{een})*", inhoud, re.S):
            stukken = re.findall(r'"((?:[^"\\\n]|\\.)*)"', reeks)
            uit.append(plat("".join(map(letters, stukken))).replace("&", ""))
    return "\n".join(uit)


def menu():
    """The captions of a user's menu as paths: "Bestand > Afsluiten"."""
    bovenaan, paden = {}, set()
    regels = [regel for naam in ("MENU.TXT", "MENU_ERBIJ.TXT")
              for regel in (WORTEL / "tests" / "gouden" / naam).read_text("utf-8").splitlines()]
    for regel in regels:
        if regel.count("|") != 2:
            continue
        boven, naam, bijschrift = (deel.strip().replace("&", "") for deel in regel.split("|"))
        pad = (bovenaan[boven] + " > " if boven else "") + bijschrift
        bovenaan[naam] = pad
        paden.add(pad)
    return paden


def hulp(*woorden):
    return subprocess.run([PROGRAMMA, *woorden, "--help"], capture_output=True, check=True,
                          timeout=60).stdout.decode("utf-8")


def opdrachten_van_het_programma():
    achter = hulp().split("\n")
    begin = next(i for i, regel in enumerate(achter) if re.match(r"Opdrachten|Subcommands", regel))
    return {m.group(1) for regel in achter[begin + 1:] if (m := re.match(r"  ([a-z][a-z-]*)\b", regel))}


def hoofdstuk(naam):
    return HANDLEIDING.split(f"\n## {naam}\n", 1)[1].split("\n## ", 1)[0]


def opdrachten_van_de_handleiding():
    """The rows of the table of commands: the command, and what is written behind it."""
    tabel = hoofdstuk("De opdrachtregel").split("### ")[0]
    return dict(re.findall(r"^\| `([a-z][a-z-]*)(?: [^`]*)?` \| (.*) \|$", tabel, re.M))


class Beweringen(unittest.TestCase):
    def test_elk_bijschrift_staat_in_het_programma(self):
        bron = teksten_van_het_programma()
        gezegd = re.findall(r'"([^"]+)"', PROZA)
        self.assertGreater(len(gezegd), 150)
        self.assertEqual([], sorted({een for een in gezegd
                                     if een not in bron and een != "aanhalingstekens"}))

    def test_elke_melding_van_de_controles_wordt_uitgelegd(self):
        bron = (WORTEL / "src" / "checks" / "Bevinding.cpp").read_text("utf-8")
        namen = re.findall(r'\{BevindingSoort::\w+,\s*"([^"]*)"\}', bron)
        self.assertGreater(len(namen), 30)
        controle = hoofdstuk("Controle")
        self.assertEqual([naam for naam in namen if f'"{naam}"' not in controle], [])

    def test_de_aanhalingstekens_komen_in_paren(self):
        for alinea in re.sub(r"`[^`]*`|<a [^>]*>", " ", zonder_blokken(HANDLEIDING)).split("\n\n"):
            self.assertEqual(alinea.count('"') % 2, 0, alinea)

    def test_elk_menupad_is_er(self):
        gezegd = set(re.findall(r"\*\*([^*]+ > [^*]+)\*\*", TEKST))
        self.assertGreater(len(gezegd), 40)
        self.assertEqual(set(), gezegd - menu())

    def test_alles_wat_het_menu_doet_wordt_verteld(self):
        """The last of each path is named, but what this version does not do."""
        niet = {"Bestand > Importeer Gegevens > dBase", "Bestand > Importeer Gegevens > ASCII",
                "Bestand > Exporteer Gegevens > VVFContact", "Tonen > Akten", "Tonen > Referenties",
                "Bestand > Exporteer Gegevens > Tine Tafel (TT)", "Tekstuitvoer > Akten",
                "Tekstuitvoer > Verwantschap", "Help > Over LB77 voor Windows"}
        gezegd = set(re.findall(r"\*\*([^*]+ > [^*]+)\*\*", TEKST))
        for pad in sorted(menu() - niet):
            verteld = any(een == pad or een.startswith(pad + " > ") or pad.startswith(een + " > ")
                          or een.rsplit(" > ", 1)[0] == pad.rsplit(" > ", 1)[0] for een in gezegd)
            self.assertTrue(verteld or " > " not in pad, pad)

    def test_de_opdrachten_zijn_die_van_het_programma(self):
        self.assertEqual(set(opdrachten_van_de_handleiding()), opdrachten_van_het_programma())

    def test_de_keuzes_van_een_opdracht_zijn_die_van_het_programma(self):
        for opdracht, uitleg in opdrachten_van_de_handleiding().items():
            kent = hulp(opdracht)
            for keuze in re.findall(r"`(--[a-z0-9]+)", uitleg):
                self.assertIn(keuze, kent, opdracht)

    def test_de_andere_keuzes_zijn_er(self):
        alles = hulp() + "".join(hulp(een) for een in opdrachten_van_het_programma())
        for keuze in set(re.findall(r"(?<![\w-])--[a-z][a-z0-9]*", HANDLEIDING)):
            self.assertIn(keuze, alles)

    def test_de_opdrachten_van_een_draaiboek_zijn_er(self):
        bron = (WORTEL / "src" / "script" / "Instructie.cpp").read_text("utf-8")
        tabel = hoofdstuk("De opdrachtregel").split("### Draaiboeken")[1]
        woorden = re.findall(r"^\| `([a-z]+)[^`]*` \|", tabel, re.M)
        self.assertEqual(len(woorden), 12)
        for woord in woorden:
            self.assertIn(f'"{woord}"', bron)

    def test_de_instellingen_zijn_die_van_het_bestand(self):
        kop, sleutels = "", set()
        for regel in (WORTEL / "tests/gouden/LIJNBOOM.INI").read_text("cp1252").splitlines():
            if regel.startswith("["):
                kop = regel.strip("[]")
            elif "=" in regel:
                sleutels.add((kop, regel.split("=")[0]))
        rijen = re.findall(r"^\| `(\w+)` \| (`\w+`(?:, `\w+`)*) \|", hoofdstuk("Instellingen"), re.M)
        self.assertGreater(len(rijen), 5)
        for kop, namen in rijen:
            for naam in re.findall(r"`(\w+)`", namen):
                self.assertIn((kop, naam), sleutels)

    def test_de_bestanden_zijn_die_van_het_programma(self):
        bron = teksten_van_het_programma()
        genoemd = set(re.findall(r"`([A-Z0-9_!]*\.[A-Z0-9]{3})`", HANDLEIDING))
        self.assertGreater(len(genoemd), 15)
        for naam in sorted(genoemd):
            stam, uitgang = naam.rsplit(".", 1)
            samen = naam in bron or (stam in bron and uitgang in bron)
            self.assertTrue(samen, naam)
        for map_ in set(re.findall(r"`((?:DATA|KOPIE|TEMP|TEKST|INDEX|JOURNAAL))`", HANDLEIDING)):
            self.assertIn(map_, bron)


class Bladzijde(unittest.TestCase):
    def plekken(self):
        koppen = re.findall(r"^#+ (.*)$", zonder_blokken(HANDLEIDING), re.M)
        gewoon = {re.sub(r"[^\w -]", "", kop.lower()).replace(" ", "-") for kop in koppen}
        return gewoon | set(re.findall(r'<a id="([^"]+)"></a>', HANDLEIDING))

    def test_elke_verwijzing_leidt_ergens_heen(self):
        verwijzingen = set(re.findall(r"\]\(#([^)]+)\)", HANDLEIDING))
        self.assertGreater(len(verwijzingen), 25)
        self.assertEqual(set(), verwijzingen - self.plekken())

    def test_elk_hoofdstuk_staat_in_de_inhoud(self):
        inhoud = hoofdstuk("Inhoud")
        for kop in re.findall(r"^## (.*)$", zonder_blokken(HANDLEIDING), re.M):
            if kop not in ("Inhoud", "Uw eerste familie"):
                self.assertIn(f"[{kop}](#", inhoud)

    def test_elk_beeld_is_er_en_wordt_gebruikt(self):
        gebruikt = set(re.findall(r"!\[[^\]]+\]\(beeld/([^)]+)\)", HANDLEIDING))
        leesmij = set(re.findall(r"\(docs/beeld/([^)]+)\)", (WORTEL / "README.md").read_text("utf-8")))
        aanwezig = {pad.name for pad in (WORTEL / "docs" / "beeld").iterdir()}
        self.assertGreater(len(gebruikt), 30)
        self.assertEqual(set(), (gebruikt | leesmij) - aanwezig)
        self.assertEqual(set(), aanwezig - gebruikt - leesmij)

    @unittest.skipUnless(PAGINA and PAGINA.exists(), "no page was made: cmark-gfm is not there")
    def test_de_bladzijde_heeft_haar_plekken_en_beelden(self):
        html = PAGINA.read_text("utf-8")
        plekken = set(re.findall(r'\bid="([^"]+)"', html))
        self.assertEqual(set(), set(re.findall(r'href="#([^"]+)"', html)) - plekken)
        self.assertIn("<title>Handleiding van LB77</title>", html)
        self.assertEqual(set(re.findall(r"!\[[^\]]+\]\((beeld/[^)]+)\)", HANDLEIDING)),
                         set(re.findall(r'<img\s+src="([^"]+)"', html)))


if __name__ == "__main__":
    unittest.main()
