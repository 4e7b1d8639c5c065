#!/usr/bin/env python3
"""Reports for the Internet open in a browser, and their links lead where they should: Chromium opens
each page and clicks them all. Argument: the program lb77-cli. Exit status 77 without Chromium.
"""
import functools
import http.server
import json
import os
import pathlib
import queue
import shutil
import subprocess
import sys
import tempfile
import threading
import unittest

WORTEL = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAMMA = pathlib.Path(sys.argv.pop(1)).resolve()
CHROMIUM = shutil.which("chromium")
OVERGESLAGEN = 77

PROBAND = "2"
STAMOUDER = "137"

# A report, its index, whom they are about, the file that the index leads to, and the choices of both.
VERSLAGEN = [
    ("kwartierstaat", "index-kwartierstaat", PROBAND, "KWSTDATA.HTM", []),
    ("kwartierstaat", "index-kwartierstaat", PROBAND, "KWSTDATA.HTM",
     ["BroerZusBox=Met Alle Broers en Zussen", "KwHerhaalBox=Ja", "OokNrsBox=Ja"]),
    ("parenteel", "index-parenteel", STAMOUDER, "GEN_DATA.HTM", []),
    ("parenteel", "index-parenteel", STAMOUDER, "GEN_DATA.HTM",
     ["PerTakBox=Per generatie", "PrsHerhaalBox=Ja", "OokNrsBox=Ja"]),
]

# Opens a page in a frame and clicks every link to a place in this set of pages, those to another page
# in a second frame. What a click did not bring into view is told; the links of the foot lead
# elsewhere and are left alone.
PROEF = """<!DOCTYPE html>
<iframe id="lijst" width="900" height="400"></iframe>
<iframe id="ander" name="ander" width="900" height="400"></iframe>
<script>
const lijst = document.getElementById('lijst');
const ander = document.getElementById('ander');
const wacht = async (klaar) => {
  for (const begin = Date.now(); !klaar();) {
    if (Date.now() - begin > 20000) throw new Error('duurt te lang');
    await new Promise((door) => setTimeout(door, 1));
  }
};
const toont = (frame, adres) => frame.contentDocument && frame.contentDocument.URL === adres &&
    frame.contentDocument.readyState === 'complete';
async function klik(a) {
  const hier = a.pathname === lijst.contentWindow.location.pathname;
  const frame = hier ? lijst : ander;
  if (!hier) a.target = 'ander';
  a.click();
  await wacht(() => toont(frame, a.href));
  const doel = frame.contentDocument.querySelector(':target');
  if (!doel) return false;
  const boven = doel.getBoundingClientRect().top;
  return boven >= -1 && boven <= frame.contentWindow.innerHeight;
}
async function proef(naam) {
  lijst.src = naam;
  await wacht(() => toont(lijst, new URL(naam, location.href).href));
  const doc = lijst.contentDocument;
  // The text of a page that is not laid out yet is not the one that is seen.
  await wacht(() => doc.body.getClientRects().length > 0);
  const uit = {rijen: [...doc.querySelectorAll('tr')].map((rij) => rij.cells.length),
               tekst: doc.body.innerText, geklikt: 0, mis: []};
  const gezien = new Set();
  for (const a of [...doc.links]) {
    if (!a.hash || a.origin !== location.origin || gezien.has(a.href)) continue;
    gezien.add(a.href);
    if (!await klik(a)) uit.mis.push(a.href);
    ++uit.geklikt;
  }
  return uit;
}
proef(decodeURIComponent(location.hash.slice(1)))
    .catch((fout) => ({fout: String(fout)}))
    .then((uit) => fetch('/uitslag' + location.search, {method: 'POST', body: JSON.stringify(uit)}));
</script>"""


class Dienst(http.server.SimpleHTTPRequestHandler):
    """Gives the pages of a directory, and takes what the browser found."""

    def __init__(self, *overige, uitslagen, **namen):
        self.uitslagen = uitslagen
        super().__init__(*overige, **namen)

    def do_POST(self):
        uitslag = json.loads(self.rfile.read(int(self.headers["Content-Length"])))
        self.uitslagen.put((self.path.partition("?")[2], uitslag))
        self.send_response(204)
        self.end_headers()

    def end_headers(self):
        self.send_header("Cache-Control", "no-store")
        super().end_headers()

    def log_message(self, *_):
        pass


class Browser(unittest.TestCase):
    def setUp(self):
        map_ = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(map_.cleanup)
        self.map = pathlib.Path(map_.name)
        (self.map / "bladen").mkdir()
        (self.map / "bladen" / "proef.html").write_text(PROEF, "utf-8")
        shutil.copy(WORTEL / "voorbeeld" / "LIJNBOOM.INI", self.map)
        self.lb77("nieuw", "ORANJE")
        self.lb77("importeer", "ORANJE", WORTEL / "voorbeeld" / "oranje-nassau.ged")
        self.uitslagen = queue.Queue()
        self.keer = 0
        self.dienst = http.server.ThreadingHTTPServer(
            ("127.0.0.1", 0), functools.partial(Dienst, directory=self.map / "bladen",
                                                uitslagen=self.uitslagen))
        threading.Thread(target=self.dienst.serve_forever, daemon=True).start()
        self.addCleanup(self.dienst.server_close)
        self.addCleanup(self.dienst.shutdown)

    def lb77(self, *woorden):
        gedaan = subprocess.run([PROGRAMMA, "--map", self.map, *woorden], capture_output=True,
                                timeout=120, check=False)
        self.assertEqual(gedaan.returncode, 0, gedaan.stderr.decode())

    def bekijk(self, blad):
        """What the browser found on a page, this time: one that ends slowly may tell of the last one again."""
        self.keer += 1
        adres = f"http://127.0.0.1:{self.dienst.server_address[1]}/proef.html?{self.keer}#{blad}"
        opdracht = [CHROMIUM, "--headless", "--disable-gpu", "--no-first-run", "--disable-ipc-flooding-protection",
                    f"--user-data-dir={self.map / f'chromium{self.keer}'}"]
        if os.geteuid() == 0:
            opdracht.append("--no-sandbox")
        with subprocess.Popen(opdracht + ["--remote-debugging-port=0", adres],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as chromium:
            try:
                keer = ""
                while keer != str(self.keer):
                    keer, uitslag = self.uitslagen.get(timeout=120)
                return uitslag
            finally:
                chromium.terminate()

    def test_alle_verwijzingen_komen_uit(self):
        for verslag, index, persoon, bestand, keuzen in VERSLAGEN:
            zet = [deel for keuze in keuzen for deel in ("--zet", keuze)]
            for opdracht, naam in ((verslag, bestand), (index, "index.htm")):
                self.lb77(opdracht, "ORANJE", persoon, "--html", *zet,
                          "--uit", self.map / "bladen" / naam)
            for naam in (bestand, "index.htm"):
                with self.subTest(verslag=verslag, blad=naam, keuzen=keuzen):
                    self.keur(naam, self.bekijk(naam))

    def test_een_schema_toont_zijn_regels(self):
        for richting in ("Horizontaal", "Verticaal"):
            zet = ("--zet", "OokVNrsBox=Ja", "--zet", f"HorVerBox={richting}")
            self.lb77("schema-parenteel", "ORANJE", STAMOUDER, *zet, "--uit", self.map / "schema.txt")
            self.lb77("schema-parenteel", "ORANJE", STAMOUDER, *zet, "--html",
                      "--uit", self.map / "bladen" / "schema.htm")
            tekst = (self.map / "schema.txt").read_text("cp1252").splitlines()
            # kept: an apostrophe goes to a page as a double quote
            tekening = [regel.replace("'", '"') for regel in tekst[2:tekst.index("", 2)]]
            self.assertGreater(len(tekening), 3)
            getoond = self.bekijk("schema.htm")["tekst"].splitlines()
            self.assertIn(tekening[0], getoond)
            begin = getoond.index(tekening[0])
            self.assertEqual(getoond[begin:begin + len(tekening)], tekening)

    def keur(self, naam, uitslag):
        self.assertNotIn("fout", uitslag)
        self.assertEqual(uitslag["mis"], [])
        self.assertGreater(uitslag["geklikt"], 20)
        self.assertIn("Terug naar de top", uitslag["tekst"])
        bytes_ = (self.map / "bladen" / naam).read_bytes()
        self.assertEqual(len(uitslag["rijen"]), bytes_.count(b"<TR>"))
        self.assertLessEqual(len(set(uitslag["rijen"])), 1, "rijen van verschillende lengte")


if __name__ == "__main__":
    if CHROMIUM is None:
        print("Chromium is er niet")
        sys.exit(OVERGESLAGEN)
    unittest.main()
