#!/usr/bin/env python3
"""A real kill -9 at the file operations of commands that write, and what can be done about it afterwards.

Arguments: the command line program, the preload library, a GEDCOM file.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAMMA, BIBLIOTHEEK, GEDCOM = (pathlib.Path(p).resolve() for p in sys.argv[1:4])
del sys.argv[1:4]
BESTANDEN = ("FAM.PRS", "FAM.RLT", "FAM.OPM", "FAM.PLT")


def lb77(werk, *woorden, omgeving=None):
    env = dict(os.environ, ASAN_OPTIONS="verify_asan_link_order=0", LSAN_OPTIONS="detect_leaks=0")
    env.update(omgeving or {})
    return subprocess.run([PROGRAMMA, "--map", werk, *woorden], env=env, capture_output=True)


def inhoud(werk):
    return [(werk / "DATA" / "FAM" / naam).read_bytes() for naam in BESTANDEN]


def zonder_tijd(bytes_):
    """An exported file without the moment at which it was made."""
    return re.sub(rb"(?m)^(2 TIME |0 @FAM)[0-9:]+", rb"\1", bytes_)


class Sterf(unittest.TestCase):
    def setUp(self):
        self.tijdelijk = tempfile.TemporaryDirectory(prefix="lb77-sterf-")
        self.addCleanup(self.tijdelijk.cleanup)
        self.basis = pathlib.Path(self.tijdelijk.name) / "basis"
        self.basis.mkdir()
        for woorden in (("nieuw", "FAM"), ("importeer", "FAM", GEDCOM)):
            uit = lb77(self.basis, *woorden)
            self.assertEqual(uit.returncode, 0, uit.stderr.decode())
        self.voor = inhoud(self.basis)

    def sterf(self, bij, naam, *woorden, onder="DATA/FAM", stromen=False):
        """A copy of the set in which a command, an import at first, was killed; whether it was."""
        werk = self.basis.parent / naam
        shutil.rmtree(werk, ignore_errors=True)
        shutil.copytree(self.basis, werk)
        uit = lb77(werk, *(woorden or ("importeer", "FAM", GEDCOM)), omgeving={
            "LD_PRELOAD": str(BIBLIOTHEEK), "STERF_BIJ": str(bij),
            "STERF_MAP": str(werk / onder), **({"STERF_STROMEN": "1"} if stromen else {})})
        return werk, uit.returncode == -9

    def operaties(self):
        """All of the first and the last ones, and some in between."""
        werk = self.basis.parent / "geteld"
        shutil.copytree(self.basis, werk)
        telling = self.basis.parent / "telling"
        lb77(werk, "importeer", "FAM", GEDCOM, omgeving={
            "LD_PRELOAD": str(BIBLIOTHEEK), "STERF_TEL": str(telling),
            "STERF_MAP": str(werk / "DATA" / "FAM")})
        aantal = int(telling.read_text())
        self.assertGreater(aantal, 40, "the library did not see the operations")
        self.aantal, self.heel = aantal, inhoud(werk)
        return sorted(set(range(1, 13)) | set(range(13, aantal - 12, aantal // 12)) |
                      set(range(aantal - 12, aantal + 1)))

    def test_ongedaan_geeft_elk_byte_terug(self):
        for bij in self.operaties():
            werk, gestorven = self.sterf(bij, "ongedaan")
            self.assertTrue(gestorven, f"operation {bij}")
            lb77(werk, "herstel", "FAM")
            na = inhoud(werk)
            # Behind the end of the action only its name in the journal was still to change.
            if na != self.heel or bij < self.aantal - 2:
                self.assertEqual(na, self.voor, f"operation {bij}")
            self.assertEqual(lb77(werk, "zoek", "FAM", "*").returncode, 0, f"operation {bij}")

    def test_behouden_laat_een_set_die_opent(self):
        for bij in self.operaties()[::3]:
            werk, _ = self.sterf(bij, "behouden")
            lb77(werk, "herstel", "FAM", "--behoud")
            self.assertEqual(lb77(werk, "zoek", "FAM", "*").returncode, 0, f"operation {bij}")
            for oud, nu, lengte in zip(self.voor, inhoud(werk), (128, 64, 96, 27)):
                # All but the record that counts.
                self.assertEqual(nu[lengte:len(oud)], oud[lengte:], f"operation {bij}")


    def test_ook_terugzetten_en_ongedaan_maken_zijn_geheel_of_niet(self):
        kopie = lb77(self.basis, "terugzetten", "FAM").stdout.decode().splitlines()[-1].split()[0]
        for woorden in (("ongedaan", "FAM"), ("terugzetten", "FAM", kopie)):
            gestorven, bij, operaties = True, 1, 0
            while gestorven:
                werk, gestorven = self.sterf(bij, "terug", *woorden)
                lb77(werk, "herstel", "FAM")
                na = inhoud(werk)
                if na != self.voor:
                    self.assertEqual([len(b) for b in na], [128, 64, 96, 27], f"{woorden} {bij}")
                # It opens, and nothing is asked.
                uit = lb77(werk, "geschiedenis", "FAM")
                self.assertEqual(uit.returncode, 0, f"{woorden} {bij}: {uit.stderr.decode()}")
                bij, operaties = bij + 4, operaties + 1
            self.assertNotEqual(na, self.voor)
            self.assertGreater(operaties, 5)

    def test_een_nieuwe_set_komt_er_na_elke_dood_alsnog(self):
        gestorven, bij = True, 1
        while gestorven:
            werk, gestorven = self.sterf(bij, "nieuw", "nieuw", "ANDER", onder=".")
            self.assertIn(b"FAM", lb77(werk, "sets").stdout, f"operation {bij}")
            if b"ANDER" not in lb77(werk, "sets").stdout:
                uit = lb77(werk, "nieuw", "ANDER")
                self.assertEqual(uit.returncode, 0, f"operation {bij}: {uit.stderr.decode()}")
            namen = [werk / "DATA" / "ANDER" / f"ANDER.{soort}" for soort in ("PRS", "RLT", "OPM", "PLT")]
            self.assertEqual([naam.stat().st_size for naam in namen], [128, 64, 96, 27], f"operation {bij}")
            self.assertEqual(inhoud(werk), self.voor)
            bij += 1
        self.assertGreater(bij, 8)

    def test_een_uitvoer_is_de_vorige_of_heel(self):
        (self.basis / "UIT").mkdir()
        (self.basis / "UIT" / "uit.ged").write_bytes(b"eerder")
        gestorven, bij, nieuwe = True, 1, 0
        while gestorven:
            naar = self.basis.parent / "uitvoer" / "UIT" / "uit.ged"
            _, gestorven = self.sterf(bij, "uitvoer", "exporteer", "FAM", "--utf8", naar, onder="UIT")
            bytes_ = naar.read_bytes()
            if bytes_ != b"eerder":
                nieuwe += 1
                self.assertTrue(bytes_.endswith(b"\r\n0 TRLR\r\n"), f"operation {bij}")
            bij += 1
        self.assertGreater(bij, 3)
        self.assertGreater(nieuwe, 0)

    def export(self, *woorden, map_, namen, heel, log):
        """Kills an export at each of its operations. Each file that it writes is then the earlier one,
        the new one or, when not `heel`, the first part of it; nothing else was touched. The next run
        makes all files whole and leaves nothing beside them."""
        def uitvoer(werk):
            return {naam: zonder_tijd((werk / map_ / naam).read_bytes()) for naam in namen}

        def anders(werk):
            return {pad.relative_to(werk): pad.read_bytes() for pad in werk.rglob("*")
                    if pad.is_file() and not (pad.parent == werk / map_ and
                                              pad.name.startswith((*namen, log)))}
        (self.basis / map_).mkdir(exist_ok=True)
        for naam in namen:
            (self.basis / map_ / naam).write_bytes(b"eerder " + naam.encode())
        eerder, rest = uitvoer(self.basis), anders(self.basis)
        gestorven, bij, gezien = True, 1, set()
        nieuw = None
        while gestorven:
            # A whole run first: it tells what the new files are.
            werk, gestorven = self.sterf(bij if nieuw else 10 ** 6, "export", *woorden, onder=".", stromen=True)
            if nieuw is None:
                nieuw, gestorven = uitvoer(werk), True
                for naam in namen:
                    self.assertNotEqual(nieuw[naam], eerder[naam])
                continue
            for naam, bytes_ in uitvoer(werk).items():
                soort = ("eerder" if bytes_ == eerder[naam] else "nieuw" if bytes_ == nieuw[naam] else
                         "deel" if nieuw[naam].startswith(bytes_) else "stuk")
                gezien.add(soort)
                self.assertIn(soort, ("eerder", "nieuw") if heel else ("eerder", "nieuw", "deel"),
                              f"{naam}, operation {bij}")
            self.assertEqual(anders(werk), rest, f"operation {bij}")
            if gestorven:
                uit = lb77(werk, *woorden)
                self.assertEqual(uit.returncode, 0, f"operation {bij}: {uit.stderr.decode()}")
                self.assertEqual(uitvoer(werk), nieuw, f"operation {bij}")
            over = {pad.name for pad in (werk / map_).iterdir() if pad.name.startswith(tuple(namen))}
            self.assertEqual(over, set(namen), f"operation {bij}")
            bij += 1
        self.assertEqual(gezien, {"eerder", "nieuw"} | (set() if heel else {"deel"}))
        return bij

    def test_de_drie_bestanden_van_ascii_zijn_elk_het_vorige_of_heel(self):
        namen = [f"FAM_{soort}.TXT" for soort in ("PRS", "RLT", "OPM")]
        self.assertGreater(self.export("ascii", "FAM", map_="DATA/FAM/TEKST", namen=namen, heel=True,
                                       log="EXPORT.LOG"), 15)

    def test_gedcom_utf8_is_het_vorige_of_heel(self):
        naar = self.basis.parent / "export" / "DATA/FAM/TEKST/uit.ged"
        self.export("exporteer", "FAM", "--utf8", naar, map_="DATA/FAM/TEKST", namen=["uit.ged"], heel=True,
                    log="GEDCOM.LOG")

    def test_de_bestanden_voor_de_contactdienst_zijn_elk_het_vorige_of_heel(self):
        for naam, kop, breedte, rij in (("PLT", 130, 31, "Delft                       NL "),
                                        ("PRV", 98, 23, "ZH Zuid-Holland"), ("LND", 98, 23, "B  Belgie")):
            tabel = bytearray(kop)
            tabel[4] = 1
            (self.basis / f"GCI{naam}!!.DBF").write_bytes(tabel + b" " + rij.encode().ljust(breedte))
        self.export("contactdienst", "FAM", map_="DATA/FAM/TEKST", namen=["CONTACT.INZ", "CONTACT.FAM"],
                    heel=True, log="GCI.LOG")

    def test_van_gedcom_blijft_staan_wat_geschreven_is(self):
        naar = self.basis.parent / "export" / "DATA/FAM/TEKST/uit.ged"
        self.export("exporteer", "FAM", naar, map_="DATA/FAM/TEKST", namen=["uit.ged"], heel=False,
                    log="GEDCOM.LOG")

    def test_van_een_uitdraai_blijft_staan_wat_geschreven_is(self):
        namen = [f"FAM_{soort}.TXT" for soort in ("PRS", "RLT", "PLT", "OPM")]
        self.export("uitdraai", "FAM", map_="DATA/FAM/TEKST", namen=namen, heel=False, log="UITDRAAI.LOG")


if __name__ == "__main__":
    unittest.main()
