#!/usr/bin/env python3
"""Each rule of tools/huisregels can fail, and says so at the right line."""
import contextlib
import importlib.util
import io
import pathlib
import sys
import tempfile
import unittest
from importlib.machinery import SourceFileLoader

sys.dont_write_bytecode = True
WORTEL = pathlib.Path(__file__).resolve().parent.parent.parent
LADER = SourceFileLoader("huisregels", str(WORTEL / "tools" / "huisregels"))
huisregels = importlib.util.module_from_spec(importlib.util.spec_from_loader("huisregels", LADER))
LADER.exec_module(huisregels)

SCHOON_H = "// One thing.\n#pragma once\n\n#include <string>\n\nnamespace lb77 {\nint Een();\n}\n"


def bevindingen(pad, tekst):
    return huisregels.controleer_bron(pad, tekst)


class Regel(unittest.TestCase):
    def verwacht(self, pad, tekst, regel, woord):
        """Exactly one finding, at that line, with that word in it."""
        gevonden = bevindingen(pad, tekst)
        self.assertEqual([nr for nr, _ in gevonden], [regel], gevonden)
        self.assertIn(woord, gevonden[0][1])

    def schoon(self, pad, tekst):
        self.assertEqual(bevindingen(pad, tekst), [])


class Lagen(Regel):
    def test_een_lagere_map_mag(self):
        self.schoon("src/app/X.cpp", '#include "app/X.h"\n#include "store/Y.h"\n')

    def test_een_hogere_map_mag_niet(self):
        self.verwacht("src/store/X.cpp", '\n#include "app/Y.h"\n', 2, "app")

    def test_een_buurman_op_dezelfde_rij_mag_niet(self):
        self.verwacht("src/ancestors/X.cpp", '#include "exchange/Y.h"\n', 1, "exchange")

    def test_de_voorkanten_kennen_elkaar_niet(self):
        self.verwacht("src/cli/X.cpp", '#include "qt/Y.h"\n', 1, "qt")

    def test_een_include_noemt_zijn_map(self):
        self.verwacht("src/store/X.cpp", '#include "Y.h"\n', 1, "map/Bestand.h")
        self.verwacht("src/store/X.cpp", '#include "../text/Y.h"\n', 1, "map/Bestand.h")

    def test_een_toets_volgt_zijn_map_en_mag_ook_script(self):
        self.schoon("tests/forms/XTest.cpp", '#include "script/Y.h"\n#include "steun/Z.h"\n')
        self.verwacht("tests/forms/XTest.cpp", '#include "store/Y.h"\n', 1, "store")


class Includes(Regel):
    def test_de_eigen_kop_staat_voorop(self):
        self.verwacht("src/text/X.cpp", '#include <string>\n#include "text/X.h"\n', 2, "eerste")

    def test_een_kop_heeft_pragma_once(self):
        self.verwacht("src/text/X.h", "int Een();\n", 1, "#pragma once")

    def test_qt_blijft_in_qt(self):
        self.schoon("src/qt/X.cpp", "#include <QDialog>\n#include <QtGlobal>\n")
        self.verwacht("src/app/X.cpp", "#include <QDialog>\n", 1, "Qt")
        self.verwacht("tests/app/XTest.cpp", "#include <QtTest>\n", 1, "Qt")

    def test_het_besturingssysteem_blijft_in_het_platformbestand(self):
        self.schoon("src/store/PlatformPosix.cpp", "#include <unistd.h>\n#include <sys/stat.h>\n")
        self.verwacht("src/store/X.cpp", "#include <fcntl.h>\n", 1, "Platform")
        self.verwacht("src/cli/X.cpp", "#include <sys/types.h>\n", 1, "Platform")

    def test_verwijderen_en_hernoemen_gaat_door_het_platformbestand(self):
        for naam in ("remove", "remove_all", "rename"):
            code = f"void F() {{ std::filesystem::{naam}(pad, code); }}\n"
            self.schoon("src/store/PlatformNamen.cpp", code)
            self.schoon("tests/store/XTest.cpp", code)
            self.verwacht("src/app/X.cpp", code, 1, "PlatformNamen")
            self.verwacht("src/app/X.cpp", code.replace("std::filesystem", "fs"), 1, "PlatformNamen")
        self.schoon("src/app/X.cpp", "void F() { std::erase(tekst, x); std::ranges::remove(l, x); }\n")

    def test_het_lijf_heeft_alleen_de_standaardbibliotheek(self):
        self.schoon("src/cli/X.cpp", "#include <CLI/CLI.hpp>\n")
        self.verwacht("src/app/X.cpp", "#include <CLI/CLI.hpp>\n", 1, "standaardbibliotheek")


class Tekst(Regel):
    def test_een_teken_buiten_ascii_heeft_w(self):
        self.schoon("src/app/X.cpp", 'auto f() { return "geëxporteerd"_w; }\n')
        self.verwacht("src/app/X.cpp", 'auto f() { return "geëxporteerd"; }\n', 1, "_w")
        self.verwacht("src/app/X.cpp", "\nauto f() { return 'ë'; }\n", 2, "_w")

    def test_een_tekst_in_stukken_heeft_een_w_voor_alle(self):
        self.schoon("src/app/X.cpp", 'auto f() {\n  return "ë "\n         "é"\n         " "_w;\n}\n')
        self.verwacht("src/app/X.cpp", 'auto f() {\n  return g("ë ", "é"_w);\n}\n', 2, "_w")

    def test_commentaar_en_voorkanten_mogen_unicode_hebben(self):
        self.schoon("src/app/X.cpp", "// De ë van geëxporteerd.\n")
        self.schoon("src/qt/X.cpp", 'auto f() { return "geëxporteerd"; }\n')

    def test_getallen_en_letters_gaan_door_text(self):
        for naam in ("toupper(c)", "std::isdigit(c)", "std::stoi(s)", "std::to_string(n)",
                     "std::strtol(s, e, 10)", "snprintf(b, 4, s)", "setlocale(0, s)"):
            self.verwacht("src/store/X.cpp", "\nint f() {\n  return " + naam + ";\n}\n", 3,
                          "src/text")
            self.schoon("src/text/X.cpp", "int f() {\n  return " + naam + ";\n}\n")
        self.verwacht("src/cli/X.cpp", "void f() {\n  std::ostringstream uit;\n}\n", 2, "src/text")

    def test_een_verboden_naam_in_commentaar_of_tekst_telt_niet(self):
        self.schoon("src/store/X.cpp", '// not toupper\nauto f() { return "stoi"; }\n')


class Commentaar(Regel):
    def test_geen_werkwoorden(self):
        for woord in ("TO" + "DO", "FIX" + "ME", "X" * 3, "HA" + "CK"):
            self.verwacht("src/app/X.cpp", f"\n// {woord}: finish this\n", 2, woord)

    def test_een_romeins_getal_in_een_tekst_mag(self):
        self.schoon("tests/app/XTest.cpp", 'auto f() { return "' + "X" * 3 + '"; }\n')

    def test_geen_uitgezette_code(self):
        for regel in ("Lees(nr);", "persoon.Lees(nr);", "int n = 3;", "return n;", "if (n > 3) {",
                      "} else {", "#include <string>", "}"):
            self.verwacht("src/app/X.cpp", "// " + regel + "\n", 1, "uitgezette code")

    def test_gewone_zinnen_met_puntkomma_mogen(self):
        for regel in ("kept: the caller decides;", "Lees(1) gives the admin record; see there",
                      "the first free record, or 0;", "if the read fails, the buffer is empty"):
            self.schoon("src/app/X.cpp", "// " + regel + "\n")


class Merk(Regel):
    def test_twee_schuine_strepen_zijn_het_ene_merk(self):
        self.schoon("src/app/X.h", "#pragma once  // kept: http://x ///\nconst char* f = \"/// */\";\n")
        for regel, merk in (("/// Doc.", "///"), ("//! Doc.", "//!"), ("int f();  ///< Doc.", "///<"),
                            ("/* Doc. */", "/*"), ("/** Doc. */", "/**")):
            self.verwacht("src/app/X.cpp", f"\n{regel}\n", 2, f"niet met {merk}")


class Toetsnaam(Regel):
    def test_een_nederlandse_zin_mag(self):
        for naam in ("EenNaamDieOntbreektIsOnbekend", "RecordNulIsErNiet", "HetLastGeenAnder",
                     "OpenIsGewoonOpen", "InDeTest", "NaHTMLKomtTekst", "SetsBlijvenWatZeZijn"):
            self.schoon("tests/app/XTest.cpp", f"TEST_F(X, {naam}) {{}}\n")

    def test_een_engelse_niet(self):
        for naam, woord in (("ShowsItsName", "shows"), ("AFileThatIsGone", "file"),
                            ("EndsWithOne", "ends"), ("AnUnknownSetIsTold", "an"),
                            ("HandlesEmptyInput", "empty"), ("EenFileIsWeg", "file"),
                            ("sorts_names", "sorts")):
            for soort in ("TEST", "TEST_F", "TEST_P", "TYPED_TEST", "  TEST", "GTEST_TEST"):
                self.verwacht("tests/app/XTest.cpp", f"\n{soort}(X, {naam}) {{}}\n", 2, woord)
        self.verwacht("bench/XTest.cpp", "TEST(X, ReadsAll) {}\n", 1, "reads")

    def test_een_naam_zonder_een_nederlands_woord(self):
        for naam in ("RejectsBadDates", "Roundtrip", "sortsnames", "OpenIsOpen", "WipesDisks"):
            self.verwacht("tests/app/XTest.cpp", f"TEST(X, {naam}) {{}}\n", 1, "Nederlandse zin")


def functie(regels, kop="int F() {"):
    return kop + "\n" + "  g();\n" * (regels - 2) + "}\n"


class Maten(Regel):
    def test_een_bestand_van_hoogstens_400_regels(self):
        self.schoon("src/app/X.cpp", "\n" * 400)
        self.verwacht("src/app/X.cpp", "\n" * 401, 401, "bestand van 401")
        self.verwacht("tests/app/XTest.cpp", "\n" * 401, 401, "bestand van 401")

    def test_een_uitzondering_die_niet_meer_nodig_is(self):
        oud = huisregels.LANGE_BESTANDEN
        huisregels.LANGE_BESTANDEN = {"src/text/Tabel.cpp"}
        self.addCleanup(setattr, huisregels, "LANGE_BESTANDEN", oud)
        self.schoon("src/text/Tabel.cpp", "\n" * 401)
        self.verwacht("src/text/Tabel.cpp", "\n" * 10, 1, "onnodig")

    def test_een_functie_van_hoogstens_60_regels(self):
        self.schoon("src/app/X.cpp", functie(60))
        self.verwacht("src/app/X.cpp", functie(61), 1, "functie van 61")

    def test_alle_soorten_functies_worden_gezien(self):
        for kop in ("X::X(int a) : a_(a), b_{a, 2} {", "X::X(int a) : a_{a} {",
                    "auto F(int a) -> std::vector<int> {", "bool X::F() const noexcept {",
                    "TEST_F(Reeks, EenZin) {", "bool operator==(const X& a, const X& b) {",
                    "template <typename T>\nT F(T a) {", "void F(int a = g()) {"):
            self.verwacht("src/app/X.cpp", "namespace lb77 {\n" + functie(70, kop) + "}\n", 2,
                          "functie van")
        self.verwacht("src/app/X.cpp", "class X {\n public:\n" + functie(70, "int F() {") + "};\n",
                      3, "functie van")

    def test_een_tabel_of_klasse_is_geen_functie(self):
        self.schoon("src/app/X.cpp", "constexpr int kTabel[] = {\n" + "  1,\n" * 80 + "};\n")
        self.schoon("src/app/X.cpp", "class X {\n" + "  int a_;\n" * 80 + "};\n")

    def test_een_blok_in_een_functie_telt_bij_haar_mee(self):
        lus = "  for (;;) {\n" + "    g();\n" * 30 + "  }\n"
        tekst = "int F() {\n" + lus + lus + "}\n"
        self.assertEqual(list(huisregels.functies(huisregels.Bron("src/a/X.cpp", tekst))), [(1, 66)])

    def test_de_maten_van_alle_functies_samen(self):
        self.assertEqual(huisregels.controleer_maten([5] * 100)[0], [])
        self.assertIn("mediaan", huisregels.controleer_maten([12] * 100)[0][0])
        self.assertIn("95 van 100", huisregels.controleer_maten([5] * 94 + [50] * 6)[0][0])


class Veranderlijken(Regel):
    def test_geen_losse_veranderlijke(self):
        for zin in ("int teller = 0;", "std::string naam;", "static std::vector<int> lijst{1, 2};",
                    "inline int teller;", "thread_local Klok klok;", "Klok* klok = nullptr;"):
            self.verwacht("src/app/X.cpp", f"namespace lb77 {{\n{zin}\n}}\n", 2, "veranderlijke")

    def test_geen_blijvende_veranderlijke_in_functie_of_klasse(self):
        self.verwacht("src/app/X.cpp", "int F() {\n  static int teller = 0;\n  return 1;\n}\n", 2,
                      "veranderlijke")
        self.verwacht("src/app/X.cpp", "class X {\n  static int teller_;\n};\n", 2, "veranderlijke")

    def test_constanten_en_gewone_leden_mogen(self):
        self.schoon("src/app/X.cpp", "namespace lb77 {\nconst int kEen = 1;\nconstexpr int kTwee{2};\n"
                    "using Rij = int;\nint F(int a);\nclass X;\nclass Y {\n  int a_ = 0;\n"
                    "  static constexpr int kDrie = 3;\n  static int G(int a);\n};\n"
                    "int F(int a) {\n  int b = a;\n  static const int kVier = 4;\n  return b;\n}\n}\n")


class Boom(unittest.TestCase):
    def controleer(self, bestanden):
        with tempfile.TemporaryDirectory() as naam:
            for pad, tekst in bestanden.items():
                doel = pathlib.Path(naam) / pad
                doel.parent.mkdir(parents=True, exist_ok=True)
                doel.write_text(tekst, encoding="utf-8")
            uit = io.StringIO()
            with contextlib.redirect_stdout(uit):
                aantal = huisregels.controleer_boom(pathlib.Path(naam))
            return aantal, uit.getvalue()

    def test_een_schone_boom(self):
        aantal, uit = self.controleer({"src/text/Een.h": SCHOON_H})
        self.assertEqual(aantal, 0, uit)
        self.assertIn("geen bevindingen", uit)

    def test_elke_bevinding_is_een_regel_met_bestand_en_nummer(self):
        aantal, uit = self.controleer({"src/text/Een.h": SCHOON_H,
                                       "src/store/Twee.cpp": '\n#include "app/Drie.h"\n',
                                       "src/store/CMakeLists.txt": "lb77_map(store Twee.cpp)"})
        self.assertEqual(aantal, 1)
        self.assertIn("src/store/Twee.cpp:2: ", uit)

    def test_ook_wat_bestanden_van_elkaar_zeggen_telt_mee(self):
        aantal, uit = self.controleer({"src/text/Een.h": SCHOON_H, "tests/text/EenTest.cpp": ""})
        self.assertEqual(aantal, 1)
        self.assertIn("tests/text/EenTest.cpp:1: geen CMakeLists.txt", uit)

    def test_een_uitzondering_zonder_bestand(self):
        oud = huisregels.LANGE_BESTANDEN
        huisregels.LANGE_BESTANDEN = {"src/text/Weg.cpp"}
        self.addCleanup(setattr, huisregels, "LANGE_BESTANDEN", oud)
        aantal, uit = self.controleer({"src/text/Een.h": SCHOON_H})
        self.assertEqual(aantal, 1)
        self.assertIn("src/text/Weg.cpp:1: ", uit)


if __name__ == "__main__":
    unittest.main()
