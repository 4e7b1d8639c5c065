#!/usr/bin/env python3
"""The commands that README.md shows do what a visitor expects. Argument: the program lb77-cli."""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

WORTEL = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAMMA = pathlib.Path(sys.argv.pop(1)).resolve()


def voorbeelden():
    """The lines of the blocks that are marked as shell."""
    blokken = re.findall(r"^```sh\n(.*?)^```", (WORTEL / "README.md").read_text("utf-8"), re.S | re.M)
    return [regel for blok in blokken for regel in blok.splitlines()]


class Leesmij(unittest.TestCase):
    def setUp(self):
        map_ = tempfile.TemporaryDirectory()
        self.addCleanup(map_.cleanup)
        self.map = pathlib.Path(map_.name)
        (self.map / "proef").mkdir()
        (self.map / "proef" / "lb77-cli").symlink_to(PROGRAMMA)
        (self.map / "voorbeeld").symlink_to(WORTEL / "voorbeeld")
        shutil.copy(WORTEL / "voorbeeld" / "LIJNBOOM.INI", self.map / "proef")
        for regel in ('nieuw ORANJE "Huis Oranje-Nassau"',
                      "importeer ORANJE voorbeeld/oranje-nassau.ged"):
            self.speel("proef/lb77-cli --map proef " + regel)

    def speel(self, regel):
        gedaan = subprocess.run(["sh", "-c", regel], cwd=self.map, capture_output=True, timeout=120)
        self.assertEqual(gedaan.returncode, 0, f"{regel}\n{gedaan.stderr.decode()}")
        return gedaan.stdout.decode("utf-8")

    def test_elk_voorbeeld_lukt(self):
        regels = voorbeelden()
        self.assertGreater(len(regels), 3)
        for regel in regels:
            with self.subTest(regel):
                self.speel(regel)

    def test_de_lijst_van_sets_noemt_de_voorbeeldfamilie(self):
        self.assertIn("ORANJE", self.speel("proef/lb77-cli --map proef sets"))

    def test_de_kwartierstaat_van_het_voorbeeld_heeft_generaties(self):
        uit = self.speel("proef/lb77-cli --map proef kwartierstaat ORANJE 2")
        self.assertIn("Generatie I", uit)
        self.assertIn("Generatie II", uit)


if __name__ == "__main__":
    unittest.main()
