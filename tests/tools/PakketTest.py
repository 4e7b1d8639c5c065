#!/usr/bin/env python3
"""What `cmake --install` puts where, and whether it is what a desktop expects.

Arguments: cmake, the build directory.
"""
import gzip
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

CMAKE, BOUW = sys.argv[1:3]
del sys.argv[1:3]
ENV = dict(os.environ, LSAN_OPTIONS="detect_leaks=0")


def loop(*woorden, **meer):
    return subprocess.run(woorden, env=ENV, capture_output=True, text=True, check=True, **meer).stdout


class Pakket(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tijdelijk = tempfile.TemporaryDirectory(prefix="lb77-pakket-")
        cls.hier = pathlib.Path(cls.tijdelijk.name)
        loop(CMAKE, "--install", BOUW, "--prefix", str(cls.hier))
        cls.deel = cls.hier / "share"
        cls.cli = str(cls.hier / "bin" / "lb77-cli")

    @classmethod
    def tearDownClass(cls):
        cls.tijdelijk.cleanup()

    def opdrachten(self):
        hulp = loop(self.cli, "--help")
        return re.findall(r"^  (\S+)", hulp.split("Opdrachten:\n")[1], re.M)

    def test_alles_wat_erbij_hoort_ligt_op_zijn_plaats(self):
        for naam in ("bin/lb77", "bin/lb77-cli", "share/applications/lb77.desktop",
                     "share/icons/hicolor/scalable/apps/lb77.svg",
                     "share/icons/hicolor/64x64/apps/lb77.png",
                     "share/lb77/voorbeeld/oranje-nassau.ged", "share/lb77/voorbeeld/LIJNBOOM.INI",
                     "share/doc/lb77/copyright", "share/man/man1/lb77.1.gz"):
            self.assertTrue((self.hier / naam).stat().st_size, naam)
        papieren = list((self.deel / "doc" / "lb77").glob("handleiding.*"))
        self.assertTrue(papieren)

    def test_de_handpagina_noemt_elke_opdracht_met_zijn_uitleg(self):
        with gzip.open(self.deel / "man/man1/lb77-cli.1.gz", "rt", encoding="utf-8") as bestand:
            tekst = bestand.read().replace("\\-", "-")
        self.assertNotIn("@", tekst.replace("org.lb77", ""))
        opdrachten = self.opdrachten()
        self.assertIn("kwartierstaat", opdrachten)
        for opdracht in opdrachten:
            self.assertRegex(tekst, rf"\n\.TP\n\.B {re.escape(opdracht)}\n\S")

    def test_de_handpaginas_zijn_goed_gezet(self):
        if not shutil.which("groff"):
            self.skipTest("groff is niet aanwezig")
        for naam in ("lb77.1.gz", "lb77-cli.1.gz"):
            with gzip.open(self.deel / "man/man1" / naam) as bestand:
                uit = subprocess.run(["groff", "-man", "-ww", "-Kutf8", "-Tutf8"], input=bestand.read(),
                                     capture_output=True, check=True)
            self.assertEqual(uit.stderr.decode(), "", naam)

    def test_het_menu_en_de_beschrijving_worden_aanvaard(self):
        for programma, woorden in (
                ("desktop-file-validate", [self.deel / "applications/lb77.desktop"]),
                ("appstreamcli", ["validate", "--no-net",
                                  self.deel / "metainfo/org.lb77.LB77.metainfo.xml"])):
            if not shutil.which(programma):
                self.skipTest(programma + " is niet aanwezig")
            loop(programma, *map(str, woorden))

    def test_het_menu_wijst_naar_programma_en_icoon_die_er_liggen(self):
        tekst = (self.deel / "applications/lb77.desktop").read_text(encoding="utf-8")
        regels = dict(r.split("=", 1) for r in tekst.splitlines() if "=" in r)
        self.assertTrue((self.hier / "bin" / regels["Exec"].split()[0]).exists())
        self.assertTrue(list((self.deel / "icons").rglob(regels["Icon"] + ".svg")))
        self.assertIn("application/x-gedcom;", regels["MimeType"])

    def test_de_versies_zijn_gelijk(self):
        versie = loop(self.cli, "--version").split()[-1]
        beschrijving = (self.deel / "metainfo/org.lb77.LB77.metainfo.xml").read_text(encoding="utf-8")
        self.assertIn(f'version="{versie}"', beschrijving)
        with gzip.open(self.deel / "doc/lb77/changelog.gz", "rt") as bestand:
            self.assertTrue(bestand.readline().startswith(f"lb77 ({versie})"))
        with gzip.open(self.deel / "man/man1/lb77.1.gz", "rt", encoding="utf-8") as bestand:
            self.assertIn(f"LB77 {versie}", bestand.readline())

    def test_de_handpagina_noemt_elke_keuze_van_elke_opdracht(self):
        with gzip.open(self.deel / "man/man1/lb77-cli.1.gz", "rt", encoding="utf-8") as bestand:
            tekst = bestand.read().replace("\\-", "-")
        for opdracht in self.opdrachten():
            hulp = loop(self.cli, opdracht, "--help")
            deel = re.search(rf"\n\.B {re.escape(opdracht)}\n.*?\n\.RE", tekst, re.S).group()
            keuzes = re.findall(r"^  (--[a-z0-9-]+)", hulp, re.M)
            self.assertEqual(re.findall(r"^\.B (--[a-z0-9-]+)", deel, re.M), keuzes, opdracht)
            gebruik = re.search(rf"^Gebruik: .* ({re.escape(opdracht)} .*)$", hulp, re.M).group(1)
            self.assertIn(f"\n.I {gebruik}\n", deel)

    def test_de_handpagina_van_het_venster_noemt_elke_keuze(self):
        hulp = loop(str(self.hier / "bin" / "lb77"), "--help")
        keuzes = re.findall(r"^  (?:-h,)?(--[a-z]+)", hulp, re.M)
        self.assertIn("--map", keuzes)
        with gzip.open(self.deel / "man/man1/lb77.1.gz", "rt", encoding="utf-8") as bestand:
            tekst = bestand.read().replace("\\-", "-")
        for keuze in keuzes:
            self.assertRegex(tekst, rf"\n\.TP\n\.BI? (?:-h,)?{keuze}\b")
        self.assertEqual(sorted(self.vul_aan("--", programma="lb77")), sorted(keuzes))

    def vul_aan(self, *woorden, programma="lb77-cli"):
        script = (f'. "{self.deel}/bash-completion/completions/{programma}"; COMP_WORDS=("$@"); '
                  f'COMP_CWORD=$(($# - 1)); _{programma.replace("-", "_")}; '
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        uit = loop("bash", "-c", script, "-", str(self.hier / "bin" / programma), *woorden,
                   cwd=self.hier)
        return uit.splitlines() if uit.strip() else []

    def test_de_aanvulling_kent_opdrachten_keuzes_en_sets(self):
        self.assertIn("kwartierstaat", self.vul_aan("kw"))
        self.assertEqual(sorted(set(self.opdrachten()) - set(self.vul_aan(""))), [])
        self.assertIn("--html", self.vul_aan("kwartierstaat", "--h"))
        werk = self.hier / "werk"
        werk.mkdir()
        loop(self.cli, "--map", str(werk), "nieuw", "ORANJE")
        self.assertEqual(self.vul_aan("--map", str(werk), "toon", ""), ["ORANJE"])
        loop(self.cli, "--map", str(werk), "nieuw", "VAN DAM")
        self.assertEqual(self.vul_aan("--map", str(werk), "toon", "V"), ["VAN\\ DAM"])
        self.assertEqual(self.vul_aan("--map", str(werk), "toon", "--", "ORANJE", ""), [])

    def test_de_aanvulling_kent_elke_keuze_van_elke_opdracht(self):
        for opdracht in self.opdrachten():
            keuzes = re.findall(r"(?:^  |,)(--?[a-z0-9-]+)", loop(self.cli, opdracht, "--help"), re.M)
            self.assertEqual(sorted(self.vul_aan(opdracht, "-")), sorted(keuzes), opdracht)

    def test_de_aanvulling_geeft_bestanden_waar_een_bestand_hoort(self):
        werk = self.hier / "bestanden"
        (werk / "een map").mkdir(parents=True)
        (werk / "familie.ged").touch()
        (werk / "brief.txt").touch()
        begin = str(werk) + "/"
        alles = [begin + naam for naam in ("brief.txt", "een map", "familie.ged")]
        for woorden in (("importeer", "ORANJE", begin), ("speel", begin),
                        ("kwartierstaat", "--uit", begin)):
            self.assertEqual(sorted(self.vul_aan(*woorden)), alles)
        for woorden in (("--map", begin), ("kopie", "--naar", begin)):
            self.assertEqual(self.vul_aan(*woorden), [begin + "een map"])
        for woorden in (("kwartierstaat", "ORANJE", begin), ("exporteer", "--personen", begin),
                        ("--klok", begin)):
            self.assertEqual(self.vul_aan(*woorden), [])
        self.assertEqual(sorted(self.vul_aan(begin, programma="lb77")), alles[1:])
        self.assertEqual(self.vul_aan("--map", begin, programma="lb77"), [begin + "een map"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
