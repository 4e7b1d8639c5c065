#!/usr/bin/env python3
"""tools/ongetoond finds each road by which a text reaches the user, and nothing else."""
import importlib.util
import pathlib
import subprocess
import sys
import tempfile
import unittest
from importlib.machinery import SourceFileLoader

sys.dont_write_bytecode = True
WORTEL = pathlib.Path(__file__).resolve().parent.parent.parent
LADER = SourceFileLoader("ongetoond", str(WORTEL / "tools" / "ongetoond"))
ongetoond = importlib.util.module_from_spec(importlib.util.spec_from_loader("ongetoond", LADER))
LADER.exec_module(ongetoond)


def teksten(*bronnen, getoond=""):
    gelezen = [ongetoond.Bron(f"src/app/B{nr}.cpp", tekst) for nr, tekst in enumerate(bronnen)]
    return [tekst for _, _, tekst in ongetoond.ongetoond(gelezen, getoond)]


def lijf(code):
    return "void Doe(Gesprek& gesprek) {\n" + code + "\n}\n"


class Gevonden(unittest.TestCase):
    def test_een_letterlijke_tekst_van_elk_werkwoord(self):
        for woord in ("Waarschuw", "Fout", "Informeer", "Vraag"):
            self.assertEqual(teksten(lijf(f'hoofd_.gesprek.{woord}("een tekst");')), ["een tekst"])
        self.assertEqual(teksten(lijf('gesprek->Meld(BerichtSoort::Geen, "tekst");')), ["tekst"])
        self.assertEqual(teksten(lijf('Door().Bericht(a, b, "tekst");')), ["tekst"])

    def test_stukken_om_een_waarde_heen_zijn_eigen_teksten(self):
        self.assertEqual(teksten(lijf('gesprek.Fout("voor " + GetalTekst(n) + " achter");')),
                         [" achter", "voor "])

    def test_letterlijke_teksten_achter_elkaar_zijn_een_tekst(self):
        self.assertEqual(teksten(lijf('gesprek.Fout("een "\n  "twee"_w);')), ["een twee"])

    def test_ontsnappingen_en_rauwe_teksten(self):
        self.assertEqual(teksten(lijf(r'gesprek.Fout("zeg \"a\"\n");')), ['zeg "a"\n'])
        self.assertEqual(teksten(lijf('gesprek.Fout(R"x(rauw \\n)x");')), ["rauw \\n"])

    def test_een_constante_ook_uit_een_ander_bestand(self):
        self.assertEqual(teksten('constexpr std::string_view kTekst = "vast";\n',
                                 lijf("gesprek.Fout(kTekst);")), ["vast"])

    def test_een_veranderlijke_van_de_functie(self):
        self.assertEqual(teksten(lijf('std::string t = "een";\nt += "twee";\ngesprek.Fout(t);')),
                         ["een", "twee"])

    def test_wat_een_functie_teruggeeft(self):
        self.assertEqual(teksten('std::string Tekst(int n) { return n ? "ja!" : "nee!"; }\n' +
                                 lijf("gesprek.Fout(Tekst(1));")), ["ja!", "nee!"])

    def test_een_lid_van_een_tabelrij(self):
        self.assertEqual(teksten('constexpr Tabel kTabel = {.naam = "Naam", .fout = "Mis"};\n' +
                                 lijf("gesprek.Fout(tabel_.fout);")), ["Mis"])

    def test_een_argument_van_een_functie_die_het_doorgeeft(self):
        deur = ("void B::Klaag(int nr, std::string_view tekst) {\n"
                "  gesprek.Fout(fout ? std::string(tekst) + x : std::string(tekst));\n}\n"
                "void B::Verder(std::string_view wat) { Klaag(1, wat); }\n")
        self.assertEqual(teksten(deur, lijf('Verder("een"); Klaag(Nr("sleutel"), "twee");')),
                         ["een", "twee"])


class NietGevonden(unittest.TestCase):
    def test_wat_verschenen_is_ook_als_deel(self):
        self.assertEqual(teksten(lijf('gesprek.Fout("midden");'), getoond="een midden tekst"), [])

    def test_commentaar_en_andere_aanroepen(self):
        self.assertEqual(teksten(lijf('// gesprek.Fout("niet");\nschrijver.Tekst("ook niet");')), [])

    def test_tekens_zonder_woord(self):
        self.assertEqual(teksten(lijf('gesprek.Fout("\\n(" + a + ").");')), [])

    def test_een_deel_dat_achter_een_andere_tekst_komt(self):
        deur = ('void B::Zet(std::string_view sleutel) {\n'
                '  gesprek.Fout("Onbekend: " + std::string(sleutel));\n}\n')
        self.assertEqual(teksten(deur, lijf('Zet("MainX");')), ["Onbekend: "])


class Opdracht(unittest.TestCase):
    def speel(self, getoond, *opties):
        with tempfile.TemporaryDirectory() as tijdelijk:
            wortel = pathlib.Path(tijdelijk)
            (wortel / "src" / "app").mkdir(parents=True)
            (wortel / "src" / "app" / "A.cpp").write_text(
                lijf('gesprek.Fout("één\\n");\ngesprek.Fout("twee");'), encoding="utf-8")
            (wortel / "src" / "cli").mkdir()
            (wortel / "src" / "cli" / "C.cpp").write_text(lijf('gesprek.Fout("terminal");'))
            if getoond is not None:
                (wortel / "getoond.txt").write_text(getoond, encoding="utf-8")
            return subprocess.run(
                [sys.executable, WORTEL / "tools" / "ongetoond", wortel / "getoond.txt",
                 "--bron", wortel / "src", *opties], capture_output=True, encoding="utf-8")

    def test_noemt_plaats_tekst_en_aantal(self):
        uitslag = self.speel('"één\\n"\n')
        self.assertEqual(uitslag.returncode, 1)
        self.assertIn("src/app/A.cpp:3: 'twee'\n", uitslag.stdout)
        self.assertIn("ongetoond: 1 ", uitslag.stdout)

    def test_slaagt_bij_hoogstens_zoveel(self):
        self.assertEqual(self.speel('"één\\n"\n', "--hoogstens", "1").returncode, 0)
        self.assertEqual(self.speel('"één\\n"\n"en twee dus"\n').returncode, 0)

    def test_zonder_bestand_is_niets_verschenen(self):
        self.assertIn("ongetoond: 2 ", self.speel(None).stdout)


if __name__ == "__main__":
    unittest.main()
