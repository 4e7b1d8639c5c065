#!/usr/bin/env python3
"""tools/tidy hands clang-tidy the sources that a change touches, through headers too."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

TIDY = pathlib.Path(__file__).resolve().parent.parent.parent / "tools" / "tidy"
BOOM = {
    "src/app/A.h": "#pragma once\n",
    "src/app/B.h": '#pragma once\n#include "app/A.h"\n',
    "src/app/C.h": "#pragma once\n",
    "src/app/EenB.cpp": '#include "app/B.h"\n',
    "src/app/EenC.cpp": '#include "app/C.h"\n',
    "src/app/TweeC.cpp": '#include "app/C.h"\n',
}
# In the place of the tools that it calls: each source that clang-tidy gets, and no build.
STUKKEN = {"clang-tidy": 'for laatste; do :; done; echo "gezien $laatste"', "cmake": ":",
           "ninja": ":"}


class Tidy(unittest.TestCase):
    def setUp(self):
        plek = tempfile.TemporaryDirectory()
        self.addCleanup(plek.cleanup)
        self.boom = pathlib.Path(plek.name) / "boom"
        self.stukken = pathlib.Path(plek.name) / "bin"
        self.stukken.mkdir()
        for naam, inhoud in STUKKEN.items():
            (self.stukken / naam).write_text(f"#!/bin/sh\n{inhoud}\n", encoding="utf-8")
            (self.stukken / naam).chmod(0o755)
        for naam, inhoud in {**BOOM, "tools/pakketten": "#!/bin/sh\n"}.items():
            self.schrijf(naam, inhoud)
        (self.boom / "tools/pakketten").chmod(0o755)
        shutil.copy(TIDY, self.boom / "tools/tidy")
        self.git("init", "-q")
        self.leg_vast()

    def schrijf(self, naam, inhoud):
        (self.boom / naam).parent.mkdir(parents=True, exist_ok=True)
        (self.boom / naam).write_text(inhoud, encoding="utf-8")

    def git(self, *woorden):
        subprocess.run(["git", "-c", "user.name=x", "-c", "user.email=x@x", *woorden],
                       cwd=self.boom, check=True, stdout=subprocess.DEVNULL)

    def leg_vast(self):
        self.git("add", "-A")
        self.git("commit", "-q", "--allow-empty", "-m", "x")

    def gezien(self, *woorden):
        omgeving = {**os.environ, "PATH": f"{self.stukken}:{os.environ['PATH']}"}
        uit = subprocess.run(["tools/tidy", *woorden], cwd=self.boom, env=omgeving, check=True,
                             text=True, stdout=subprocess.PIPE).stdout
        return sorted(regel.split("/")[-1] for regel in uit.split("\n") if "gezien" in regel)

    def na_wijziging(self, *namen):
        self.leg_vast()
        for naam in namen:
            self.schrijf(naam, BOOM[naam] + "// changed\n")
        self.leg_vast()
        return self.gezien()

    def test_een_gewijzigde_bron(self):
        self.assertEqual(self.na_wijziging("src/app/EenC.cpp"), ["EenC.cpp"])

    def test_een_gewijzigde_kop_gaat_langs_de_bronnen_die_hem_gebruiken(self):
        self.assertEqual(self.na_wijziging("src/app/C.h"), ["EenC.cpp", "TweeC.cpp"])

    def test_een_kop_die_alleen_koppen_gebruiken_gaat_langs_hun_bronnen(self):
        self.assertEqual(self.na_wijziging("src/app/A.h"), ["EenB.cpp"])

    def test_een_bron_komt_een_keer_langs(self):
        self.assertEqual(self.na_wijziging("src/app/C.h", "src/app/EenC.cpp"),
                         ["EenC.cpp", "TweeC.cpp"])

    def test_zonder_wijziging_is_er_niets_te_doen(self):
        self.assertEqual(self.na_wijziging(), [])

    def test_alles(self):
        self.assertEqual(self.gezien("--alles"), ["EenB.cpp", "EenC.cpp", "TweeC.cpp"])

    def test_wat_genoemd_is(self):
        self.assertEqual(self.gezien("src/app/EenC.cpp"), ["EenC.cpp"])


if __name__ == "__main__":
    unittest.main()
