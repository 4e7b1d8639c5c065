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

    def vul_aan(self, *woorden):
        script = (f'. "{self.deel}/bash-completion/completions/lb77-cli"; COMP_WORDS=("$@"); '
                  'COMP_CWORD=$(($# - 1)); _lb77_cli; printf "%s\\n" "${COMPREPLY[@]}"')
        return loop("bash", "-c", script, "-", self.cli, *woorden, cwd=self.hier).split()

    def test_de_aanvulling_kent_opdrachten_keuzes_en_sets(self):
        self.assertIn("kwartierstaat", self.vul_aan("kw"))
        self.assertEqual(sorted(set(self.opdrachten()) - set(self.vul_aan(""))), [])
        self.assertIn("--html", self.vul_aan("kwartierstaat", "--h"))
        werk = self.hier / "werk"
        werk.mkdir()
        loop(self.cli, "--map", str(werk), "nieuw", "ORANJE")
        self.assertEqual(self.vul_aan("--map", str(werk), "toon", ""), ["ORANJE"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
