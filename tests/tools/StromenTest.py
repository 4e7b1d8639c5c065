#!/usr/bin/env python3
"""Commands that were started with closed standard streams, as by `>&-`: no file of a family takes their place.

Arguments: the command line program, a GEDCOM file.
"""
import itertools
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAMMA, GEDCOM = (pathlib.Path(p).resolve() for p in sys.argv[1:3])
del sys.argv[1:3]
OMGEVING = dict(os.environ, LSAN_OPTIONS="detect_leaks=0")


def lb77(werk, *woorden, dicht=()):
    """Runs a command; the streams of these numbers are closed to it."""
    def sluit():
        for stroom in dicht:
            os.close(stroom)
    return subprocess.run([PROGRAMMA, "--map", werk, *woorden], env=OMGEVING, capture_output=True,
                          stdin=subprocess.DEVNULL, preexec_fn=sluit)


def familie(werk):
    return {pad.name: pad.read_bytes() for pad in (werk / "DATA" / "FAM").glob("FAM.*")}


class Stromen(unittest.TestCase):
    def setUp(self):
        tijdelijk = tempfile.TemporaryDirectory(prefix="lb77-stromen-")
        self.addCleanup(tijdelijk.cleanup)
        self.basis = pathlib.Path(tijdelijk.name) / "basis"
        self.basis.mkdir()
        for woorden in (("nieuw", "FAM"), ("importeer", "FAM", GEDCOM)):
            self.assertEqual(lb77(self.basis, *woorden).returncode, 0)
        self.werk = self.basis.parent / "werk"

    def doe(self, *woorden, dicht):
        shutil.rmtree(self.werk, ignore_errors=True)
        shutil.copytree(self.basis, self.werk)
        return lb77(self.werk, *woorden, dicht=dicht)

    def test_wat_alleen_leest_laat_de_familie_zoals_zij_is(self):
        voor = familie(self.basis)
        self.assertEqual(sorted(voor), ["FAM.OPM", "FAM.PLT", "FAM.PRS", "FAM.RLT"])
        keuzen = [dicht for n in (1, 2, 3) for dicht in itertools.combinations((0, 1, 2), n)]
        for dicht in keuzen:
            for woorden in (("kwartierstaat", "FAM", "2"), ("kwartierstaat", "FAM", "999"), ("zoek", "FAM", "a"),
                            ("exporteer", "FAM", str(self.werk / "uit.ged")), ("sets",)):
                with self.subTest(dicht=dicht, woorden=woorden):
                    uit = self.doe(*woorden, dicht=dicht)
                    self.assertEqual(familie(self.werk), voor)
                    if 1 in dicht and woorden[0] in ("kwartierstaat", "zoek", "sets"):
                        self.assertEqual(uit.returncode, 1)

    def test_een_import_komt_heel_over(self):
        for dicht in ((1,), (2,), (1, 2), (0, 1, 2)):
            self.doe("importeer", "FAM", GEDCOM, dicht=())
            goed = familie(self.werk)
            with self.subTest(dicht=dicht):
                self.doe("importeer", "FAM", GEDCOM, dicht=dicht)
                self.assertEqual(familie(self.werk), goed)

    def test_een_rapport_in_een_bestand_heeft_geen_uitvoer_nodig(self):
        uit = self.werk / "uit.txt"
        self.assertEqual(self.doe("kwartierstaat", "FAM", "2", "--uit", str(uit), dicht=()).returncode, 0)
        goed = uit.read_bytes()
        self.assertEqual(self.doe("kwartierstaat", "FAM", "2", "--uit", str(uit), dicht=(1, 2)).returncode, 0)
        self.assertEqual(uit.read_bytes(), goed)


if __name__ == "__main__":
    unittest.main()
