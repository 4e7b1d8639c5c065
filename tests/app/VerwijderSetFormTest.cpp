#include "app/SessieToets.h"
#include "app/VerwijderSetForm.h"

namespace lb77 {
namespace {

class VerwijderSetVenster : public SessieToets {
 protected:
  void ZetSets(std::initializer_list<const char*> namen) {
    std::string ini = "[Sets]\n";
    int nummer = 0;
    for (const char* naam : namen) {
      MaakSet(naam);
      ini += "Set" + std::to_string(++nummer) + "=" + naam + ",oms " + naam + "\n";
    }
    ZetIni(ini);
  }
  void Speelt(std::string_view script, std::string_view verslag) {
    Verwacht(
        "kies VerwijderSet\n" + std::string(script) + "\ntoon Statusbalk\nsluit", Sessie(),
        "+ MenuWindow \"LB77 voor Windows\"\n+ VerwijderSetForm \"Verwijder Bestandendset\"\n" +
            MetMap(verslag) + "\n- MenuWindow");
  }
};

TEST_F(VerwijderSetVenster, HetVensterBegintVoorzichtig) {
  ZetSets({"EEN"});
  Speelt("toon\ndruk DeleteJa\ntoon DeleteNee\ntoon DeleteJa\ndruk CancelButton",
         R"(: VerwijderSetForm "Verwijder Bestandendset"
            = SetPicklist "EEN,oms EEN"
            = DeleteNee aan
            = DeleteJa uit
            = OKButton "&OK"
            = CancelButton "&Annuleren"
            * SetPicklist
            = DeleteNee uit
            = DeleteJa aan
            - VerwijderSetForm
            = Statusbalk "Actieve bestandenset: EEN")");
}

TEST_F(VerwijderSetVenster, DeEnigeSetVerwijderenMaaktDeLijstLeegEnZetOpenenUit) {
  ZetSets({"EEN"});
  Speelt("druk OKButton\ntoon OpenSet\ntoon MenuInvoer",
         R"(- VerwijderSetForm
            = OpenSet "&Open Bestandenset" [uit]
            = MenuInvoer "&Tonen" [uit]
            = Statusbalk "Actieve bestandenset: <geen bestandenset aanwezig>")");
  EXPECT_EQ(Ini().find("Set1="), std::string::npos);
  EXPECT_TRUE(IniHeeft("Set="));
  EXPECT_TRUE(IniHeeft("SetOms="));
}

TEST_F(VerwijderSetVenster, NeeLaatAlleBestandenStaan) {
  ZetSets({"EEN"});
  Speelt("druk DeleteNee\ndruk OKButton",
         R"(- VerwijderSetForm
            = Statusbalk "Actieve bestandenset: <geen bestandenset aanwezig>")");
  for (const char* achter : {".PRS", ".RLT", ".OPM", ".PLT"}) {
    EXPECT_TRUE(Bestaat("DATA/EEN/EEN" + std::string(achter)));
  }
}

TEST_F(VerwijderSetVenster, DeTweedeVanDrieVerwijderenSchuiftDeDerdeOp) {
  ZetSets({"EEN", "TWEE", "DRIE"});
  Speelt("stel SetPicklist #1\ndruk OKButton\ntoon OpenSet",
         R"(- VerwijderSetForm
            = OpenSet "&Open Bestandenset"
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")");
  EXPECT_TRUE(IniHeeft("Set1=EEN,oms EEN"));
  EXPECT_TRUE(IniHeeft("Set2=DRIE,oms DRIE"));
  EXPECT_EQ(Ini().find("Set3="), std::string::npos);
}

TEST_F(VerwijderSetVenster, JaVerwijdertDeSetVanDeSchijfEnNietsAnders) {
  ZetSets({"EEN", "TWEE"});
  Schrijf("DATA/EEN/TEKST/diep/dieper/a.txt", "x");
  Schrijf("DATA/EEN/INDEX/b.txt", "x");
  Schrijf("DATA/PLAATS.PLT", "x");
  Speelt("druk DeleteJa\ndruk OKButton",
         R"(- VerwijderSetForm
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")");
  EXPECT_FALSE(Bestaat("DATA/EEN"));
  EXPECT_TRUE(Bestaat("DATA/TWEE/TWEE.PRS"));
  EXPECT_TRUE(Bestaat("DATA/PLAATS.PLT"));
  EXPECT_TRUE(IniHeeft("Set1=TWEE,oms TWEE"));
}

TEST_F(VerwijderSetVenster, NaHetVerwijderenIsGeenBestandMeerOpenEnZijnErGeenVolgers) {
  ZetSets({"EEN", "TWEE"});
  Verwacht("stel SetPicklist #1\ndruk OKButton", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             EXPECT_TRUE(menu.Laad());
             hoofd.volgers.HuidigPersoonNr = 12;
             EXPECT_TRUE(hoofd.bestanden.IsOpen(BestandSoort::Personen));
             Toont<VerwijderSetForm>(hoofd, menu)(hoofd.gesprek);
             for (const BestandSoort soort : kBestandSoorten) {
               EXPECT_FALSE(hoofd.bestanden.IsOpen(soort));
             }
             EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
             EXPECT_FALSE(menu.Zoek("MenuInvoer")->Ingeschakeld());
           }),
           R"(+ VerwijderSetForm "Verwijder Bestandendset"
              - VerwijderSetForm)");
}

TEST_F(VerwijderSetVenster, ZonderKeuzeBlijftHetVensterStaan) {
  ZetSets({"EEN"});
  std::filesystem::remove_all(map_ / "DATA");
  Verwacht(
      "kies VerwijderSet\ndruk OKButton\ndruk CancelButton\ntoon OpenSet\nsluit", Sessie(),
      MetMap(
          R"~(! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/EEN/EEN.PRS, 53 Bestand niet gevonden)"
              + MenuWindow "LB77 voor Windows"
              + VerwijderSetForm "Verwijder Bestandendset"
              ! uitroep "Geen Bestandenset gekozen"
              - VerwijderSetForm
              = OpenSet "&Open Bestandenset"
              - MenuWindow)~"));
}

TEST_F(VerwijderSetVenster, EenLegeLijstHeeftNietsTeVerwijderen) {
  ZetSets({});
  Speelt("druk OKButton\ndruk CancelButton",
         R"(! uitroep "Geen Bestandenset gekozen"
            - VerwijderSetForm
            = Statusbalk "Actieve bestandenset: <geen bestandenset aanwezig>")");
}

TEST_F(VerwijderSetVenster, EenSetDieUitDeLijstVerdwenenIsGeeftEenWaarschuwing) {
  ZetSets({"EEN"});
  Verwacht("stel SetPicklist #0\ndruk DeleteJa\ndruk OKButton",
           MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             hoofd.ActieveSetNaam = "EEN";
             VerwijderSetForm venster(hoofd, menu);
             venster.DeleteJa.BijWijziging([&] { hoofd.Ini.IniZet("Sets", "Set1", "ANDER"); });
             hoofd.gesprek.ToonModaal(venster);
             EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset actief>");
           }),
           R"(+ VerwijderSetForm "Verwijder Bestandendset"
              ! uitroep "Bestandenset niet gevonden in LIJNBOOM.INI"
              - VerwijderSetForm)");
  EXPECT_TRUE(Bestaat("DATA/EEN/EEN.PRS"));
}

TEST_F(VerwijderSetVenster, WieHetProgrammaStoptHoudtZijnBestanden) {
  ZetSets({"EEN"});
  Verwacht("kies VerwijderSet\ndruk DeleteJa\nantwoord Annuleren\ndruk OKButton",
           MetMenu([this](Hoofdmodule& hoofd, MenuWindow& menu) {
             menu.Hang("VerwijderSet", [&] {
               // from here on no new settings can be made
               std::filesystem::create_directories(map_ / "LIJNBOOM.TMP");
               Toont<VerwijderSetForm>(hoofd, menu)(hoofd.gesprek);
             });
             hoofd.gesprek.ToonModaal(menu);
           }),
           R"(+ MenuWindow "LB77 voor Windows"
         + VerwijderSetForm "Verwijder Bestandendset"
         ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nPad is een directory" -> Annuleren
         - VerwijderSetForm
         - MenuWindow)");
  EXPECT_TRUE(Bestaat("DATA/EEN/EEN.PRS"));
}

TEST_F(VerwijderSetVenster, EenNaamDieErgensAndersHeenWijstGaatAlleenUitDeLijst) {
  Schrijf("BUITEN/BUITEN.PRS", "x");
  ZetIni("[Sets]\nSet1=../BUITEN,x\n");
  Verwacht("kies VerwijderSet\nstel SetPicklist #0\ndruk DeleteJa\ndruk OKButton\nsluit", Sessie(),
           R"(! uitroep "\"../BUITEN\" is geen geldige naam voor een bestandenset"
              + MenuWindow "LB77 voor Windows"
              + VerwijderSetForm "Verwijder Bestandendset"
              ! uitroep "\"../BUITEN\" is geen geldige naam voor een bestandenset"
              - VerwijderSetForm
              - MenuWindow)");
  EXPECT_TRUE(Bestaat("BUITEN/BUITEN.PRS"));
  EXPECT_EQ(Ini().find("Set1="), std::string::npos);
}

}  // namespace
}  // namespace lb77
