#!/usr/bin/env python3
"""Each rule of the house about files together can fail, and says where."""
import importlib.util
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
boomregels = huisregels.boomregels

FORMULIER = "class Formulier {\n};\n"
FORM = "class Mijn final : public Formulier {\n public:\n  Mijn();\n};\n"
RIJ = '    {"Mijn", [](Programma&) { return Maak<Mijn>(); }},\n'
LIJST = "src/program/formulieren/App.cpp"


class Boomregel(unittest.TestCase):
    def bevindingen(self, regel, bestanden):
        with tempfile.TemporaryDirectory() as naam:
            wortel = pathlib.Path(naam)
            for pad, tekst in bestanden.items():
                (wortel / pad).parent.mkdir(parents=True, exist_ok=True)
                (wortel / pad).write_text(tekst, encoding="utf-8")
            bronnen = [huisregels.Bron(pad, tekst) for pad, tekst in bestanden.items()
                       if pad.endswith((".h", ".cpp"))]
            return list(regel(boomregels.Boom(wortel, bronnen)))

    def verwacht(self, regel, bestanden, pad, nr, woord):
        gevonden = self.bevindingen(regel, bestanden)
        self.assertEqual([v[:2] for v in gevonden], [(pad, nr)], gevonden)
        self.assertIn(woord, gevonden[0][2])

    def schoon(self, regel, bestanden):
        self.assertEqual(self.bevindingen(regel, bestanden), [])


class InCMake(Boomregel):
    def met(self, lijst, *bestanden):
        return {"tests/app/CMakeLists.txt": lijst, **{b: "" for b in bestanden}}

    def test_een_toets_die_genoemd_is_mag(self):
        self.schoon(boomregels.regel_in_cmake,
                    self.met("lb77_toets(app BRONNEN XTest.cpp sub/YTest.cpp ZTest.py)",
                             "tests/app/XTest.cpp", "tests/app/sub/YTest.cpp",
                             "tests/app/ZTest.py"))

    def test_een_toets_die_niemand_noemt(self):
        for bestand in ("tests/app/XTest.cpp", "tests/app/XTest.py", "bench/XTest.cpp"):
            self.verwacht(boomregels.regel_in_cmake, self.met("lb77_toets(app)", bestand), bestand,
                          1, "CMakeLists.txt")

    def test_een_langere_naam_of_commentaar_noemt_hem_niet(self):
        for lijst in ("AndereXTest.cpp", "sub/XTest.cpp.in", "# XTest.cpp"):
            self.verwacht(boomregels.regel_in_cmake, self.met(lijst, "tests/app/XTest.cpp"),
                          "tests/app/XTest.cpp", 1, "CMakeLists.txt")


class AlleFormulieren(Boomregel):
    def test_een_formulier_zonder_rij(self):
        self.verwacht(boomregels.regel_alle_formulieren,
                      {"src/app/Mijn.h": FORMULIER + FORM, LIJST: ""}, "src/app/Mijn.h", 3, "Mijn")

    def test_een_formulier_met_een_rij_mag(self):
        self.schoon(boomregels.regel_alle_formulieren,
                    {"src/app/Mijn.h": FORMULIER + FORM, LIJST: RIJ})

    def test_ook_een_formulier_van_een_ander_afgeleid(self):
        kop = FORMULIER + ("class Basis : public Formulier {\n};\n"
                           "class Mijn : public sub::Basis, private Ding {\n};\n")
        self.verwacht(boomregels.regel_alle_formulieren, {"src/app/Mijn.h": kop, LIJST: ""},
                      "src/app/Mijn.h", 5, "Mijn")

    def test_een_basis_en_het_hoofdvenster_hebben_geen_rij(self):
        kop = FORMULIER + ("class Basis : public Formulier {\n protected:\n  Basis();\n};\n"
                           "class MenuWindow final : public Formulier {\n};\n"
                           "class Ding final : public Gewoon {\n};\n")
        self.schoon(boomregels.regel_alle_formulieren, {"src/app/Mijn.h": kop, LIJST: ""})

    def test_een_rij_in_commentaar_telt_niet(self):
        self.verwacht(boomregels.regel_alle_formulieren,
                      {"src/app/Mijn.h": FORMULIER + FORM, LIJST: "// " + RIJ}, "src/app/Mijn.h", 3,
                      "Mijn")


class Indeling(Boomregel):
    def test_een_rij_zonder_indeling(self):
        self.verwacht(boomregels.regel_indeling,
                      {LIJST: "\n" + RIJ, "src/qt/indeling/Sets.cpp": '// "Mijn"\n{"Ander", V()}\n'},
                      LIJST, 2, "Mijn")

    def test_een_rij_met_indeling_mag(self):
        for indeling in ('{"Mijn", Kolom({})},', 'return {\n  {"Mijn",\n   Kolom({})},', '{"Mijn", V()}'):
            self.schoon(boomregels.regel_indeling,
                        {LIJST: RIJ, "src/qt/indeling/Sets.cpp": indeling + "\n"})

    def test_wie_alleen_genoemd_wordt_heeft_geen_indeling(self):
        for indeling in ('{"Ander", Kolom({"Mijn"})},', '{"Ander", Groep("Mijn", {"A"})},',
                         '{"Ander", Kolom({"Mijn", Rij({"A"})})},', 'F("Mijn");',
                         '// {"Mijn", Kolom({})},'):
            self.verwacht(boomregels.regel_indeling,
                          {LIJST: RIJ, "src/qt/indeling/Sets.cpp": indeling + "\n"}, LIJST, 1,
                          "Mijn")

    def test_ook_een_rij_over_meer_regels(self):
        rij = '{\n     "Mijn",\n     [](Programma&) { return Maak<Mijn>(); }},\n'
        self.verwacht(boomregels.regel_indeling, {LIJST: rij}, LIJST, 1, "Mijn")
        self.schoon(boomregels.regel_indeling, {LIJST: "// " + RIJ})

    def test_een_naam_die_er_niet_letterlijk_staat(self):
        self.verwacht(boomregels.regel_indeling, {LIJST: RIJ.replace('"Mijn"', "kMijn")}, LIJST, 1,
                      "kMijn")


class HoofdmoduleNemen(Boomregel):
    def test_een_functie_neemt_de_hele_sessie_niet(self):
        self.verwacht(boomregels.regel_hoofdmodule,
                      {"src/output/X.h": "\nint F(const Hoofdmodule& hoofd);\n"}, "src/output/X.h", 2,
                      "Hoofdmodule")

    def test_een_formulier_een_soort_bediening_en_een_groep_mogen(self):
        neemt = "  X(Hoofdmodule& hoofd);\n"
        self.schoon(boomregels.regel_hoofdmodule, {
            "src/app/A.h": "class A final : public Formulier {\n" + neemt + "};\n",
            "src/app/A.cpp": "A::A(Hoofdmodule& hoofd) {}\n",
            "src/app/B.h": "class B : public Bediening {\n" + neemt + "};\n",
            "src/app/C.h": "struct C {\n" + neemt + "  Rij<B, 3> b{1};\n};\n",
            "src/app/D.h": "struct D {\n" + neemt + "  C c;\n};\n"})

    def test_programma_voorkanten_en_toetsen_mogen(self):
        self.schoon(boomregels.regel_hoofdmodule,
                    {pad: "void F(Hoofdmodule& hoofd);\n"
                     for pad in ("src/program/X.h", "src/cli/X.h", "tests/app/X.h")})

    def test_een_uitzondering_die_niet_meer_nodig_is(self):
        oud = boomregels.HOOFDMODULE_MAG
        boomregels.HOOFDMODULE_MAG = {"src/app/X": "reason"}
        self.addCleanup(setattr, boomregels, "HOOFDMODULE_MAG", oud)
        self.schoon(boomregels.regel_hoofdmodule, {"src/app/X.h": "void F(Hoofdmodule& hoofd);\n"})
        self.verwacht(boomregels.regel_hoofdmodule, {"src/app/X.h": "void F();\n"}, "src/app/X.h", 1,
                      "niet meer nodig")


class Behandelaars(Boomregel):
    def met(self, regel):
        return {"src/app/X.cpp": "X::X() {\n  " + regel + "\n}\n"}

    def test_een_behandelaar_heet_naar_bediening_en_gebeurtenis(self):
        for regel in ("OKButton.BijKlik([this] { OKButtonKlik(); });",
                      "Naar(rij).BijKlik([this, rij] { NaarKlik(rij); });",
                      "Nr.BijVerlaten([this] { return NrVerlaten(); });",
                      "Partners(rij).Nr.BijKlik([this] { PartnersNrKlik(); });",
                      "vorige_->BijKlik([this] { VorigeKlik(); });",
                      "keuzes_[*rij].BijKlik([this, doe = std::move(doe)] { KeuzesKlik(doe); });",
                      "Nr.BijVerlaten([this, nrVerlaten] { return nrVerlaten(Nr.Tekst()); });",
                      "Naam.BijWijziging([this] { OKButton.ZetIngeschakeld(true); });",
                      "Naam.BijBetreden([this, naam] { oud_ = naam->Tekst(); });",
                      "BijVerlaten([this] { return Verlaten(); });",
                      "} void X::BijToets(ToetsGebeurtenis& toets) { Ga(1); Ga(2);",
                      "BackButton.BijKlik([this] { Sluit(); });"):
            self.schoon(boomregels.regel_behandelaars, self.met(regel))

    def test_een_andere_naam(self):
        for regel, goed in (("OKButton.BijKlik([this] { KlaarKlik(); });", "OKButtonKlik"),
                            ("Naar(rij).BijKlik([this, rij] { GaKlik(rij); });", "NaarKlik"),
                            ("Nr.BijVerlaten([this] { return NrKlik(); });", "NrVerlaten"),
                            ("Vorige.BijKlik([this] { Stap(-1, Vorige); });", "VorigeKlik"),
                            ("Pa.Nr.BijKlik([this] { this->Naar(Pa.Nr.Nr(), {}); });", "PaNrKlik"),
                            ("Nr.BijVerlaten([this] { Zoek(); return true; });", "NrVerlaten"),
                            ("Nr.BijBetreden([this] { if (leeg_) Nr.Wis(); });", "NrBetreden"),
                            ("Nr.BijToets([this](ToetsGebeurtenis& t) { Kijk(t); });", "NrToets"),
                            ("Nr.BijKlik(std::bind(&X::Ga, this));", "NrKlik"),
                            ("BijVerlaten([this] { return Geldt(); });", "Verlaten"),
                            ("knop->BijDubbelklik([this, knop] { Ga(*knop); });",
                             "KnopDubbelklik")):
            self.verwacht(boomregels.regel_behandelaars, self.met(regel), "src/app/X.cpp", 2, goed)


    def test_een_uitzondering_die_niet_meer_nodig_is(self):
        oud = boomregels.BEHANDELAAR_MAG
        boomregels.BEHANDELAAR_MAG = {"Ga": ("src/app/Y", "reason")}
        self.addCleanup(setattr, boomregels, "BEHANDELAAR_MAG", oud)
        hangt = self.met("Nr.BijKlik([this] { Ga(); });")
        self.schoon(boomregels.regel_behandelaars, hangt | {"src/app/Y.h": ""})
        self.verwacht(boomregels.regel_behandelaars, {"src/app/Y.h": ""}, "src/app/Y.h", 1,
                      "niet meer nodig")


class ToetsnaamInPython(Boomregel):
    def test_een_nederlandse_zin_mag(self):
        self.schoon(boomregels.regel_toetsnaam_python,
                    {"tests/tools/XTest.py": "def test_een_rij_mag(self):\ndef reads(x):\n"})

    def test_een_engelse_niet(self):
        self.verwacht(boomregels.regel_toetsnaam_python,
                      {"tests/tools/XTest.py": "\n    def test_reads_rows(self):\n"},
                      "tests/tools/XTest.py", 2, "reads")


class Leesmij(Boomregel):
    def met(self, tekst):
        return {"src/app/README.md": "# app\n" + tekst + "\n", "src/app/sub/MijnForm.h": "",
                "src/app/X.cpp": 'int EenFunctie() { return F("TEKST", "een zin"); }  // Verdwenen\n',
                "src/ander/MijnBron.h": "", "src/app/CMakeLists.txt": "doel  # Opmerking\n"}

    def test_wat_er_is_mag(self):
        for stuk in ("`MijnForm`", "`MijnForm.h`, `sub/`", "`EenFunctie`", "`TEKST`", "`...Form`",
                     "`Mijn…`", "`*Form.h`", "`ander/MijnBron.h`", "`MijnBron`", "`doel`",
                     "`EenFunctie(…)`", "Verdwenen"):
            self.schoon(boomregels.regel_leesmij, self.met(stuk))

    def test_wat_er_niet_meer_is(self):
        for stuk in ("`Verdwenen`", "`Weg.h`", "`weg/`", "`Een`", "`Weg…`", "`EenFunctie Weg`",
                      "`zin`", "`Opmerking`", "`MijnBron.h`", "`Functie…`", "`…Een`", "`EenFunctie(Weg…)`"):
            self.verwacht(boomregels.regel_leesmij, self.met("\n" + stuk), "src/app/README.md", 3,
                          stuk)


if __name__ == "__main__":
    unittest.main()
