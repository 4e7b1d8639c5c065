#!/usr/bin/env python3
"""tools/pakketten says what it will install before it installs it, and nothing more."""
import os
import pathlib
import subprocess
import tempfile
import unittest

PAKKETTEN = pathlib.Path(__file__).resolve().parent.parent.parent / "tools" / "pakketten"
# In the place of the system: of the packages only "is-er" is installed.
STUKKEN = {
    "dpkg-query": 'case "$*" in *is-er) echo installed ;; *) exit 1 ;; esac',
    "apt-get": 'case "$*" in\n'
               "  *--print-uris*) echo \"'http://x/a.deb' a.deb 1500000 SHA256:0\"\n"
               "    echo \"'http://x/b.deb' b.deb 2500000 SHA256:0\" ;;\n"
               '  *) echo "[apt-get $*]" >&2 ;;\n'
               "esac",
    "id": "echo ${PROEF_UID:-0}",
    "sudo": 'echo "[sudo]" >&2; "$@"',
}


class Pakketten(unittest.TestCase):
    def vraag(self, *namen, zonder=(), **omgeving):
        with tempfile.TemporaryDirectory() as plek:
            for naam, inhoud in STUKKEN.items():
                if naam not in zonder:
                    pad = pathlib.Path(plek) / naam
                    pad.write_text(f"#!/bin/sh\n{inhoud}\n", encoding="utf-8")
                    pad.chmod(0o755)
            for naam in ("sh", "env", "awk"):
                for plaats in ("/usr/bin", "/bin"):
                    if os.path.exists(f"{plaats}/{naam}"):
                        os.symlink(f"{plaats}/{naam}", f"{plek}/{naam}")
                        break
            uit = subprocess.run(["/bin/sh", str(PAKKETTEN), *namen], text=True,
                                 env={"PATH": plek, **omgeving}, stdout=subprocess.PIPE,
                                 stderr=subprocess.STDOUT, check=False)
            return uit.returncode, uit.stdout

    def test_wat_er_is_blijft_ongenoemd(self):
        self.assertEqual(self.vraag("is-er"), (0, ""))

    def test_wat_ontbreekt_is_genoemd_voor_het_geinstalleerd_wordt(self):
        status, uit = self.vraag("is-er", "nieuw", "ander")
        self.assertEqual(status, 0)
        genoemd = uit.index("worden nu geïnstalleerd: nieuw ander\n")
        maat = uit.index("Op te halen: 2 pakketten, 4 MB\n")
        gedaan = uit.index("[apt-get install -y")
        self.assertLess(genoemd, maat)
        self.assertLess(maat, gedaan)
        self.assertIn("nieuw ander]", uit[gedaan:])
        self.assertNotIn("is-er", uit)

    def test_wie_geen_beheerder_is_gaat_door_sudo(self):
        status, uit = self.vraag("nieuw", PROEF_UID="1000")
        self.assertEqual(status, 0)
        self.assertEqual(uit.count("[sudo]"), 2)

    def test_zonder_sudo_zegt_hij_wat_er_te_doen_is(self):
        status, uit = self.vraag("nieuw", zonder=("sudo",), PROEF_UID="1000")
        self.assertEqual(status, 1)
        self.assertIn("apt-get install nieuw\n", uit)
        self.assertNotIn("[apt-get", uit)


if __name__ == "__main__":
    unittest.main()
