#include "app/OudeSetForm.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"
#include "store/JournaalVorm.h"
#include "store/Platform.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr const char* kOpen = "+ OudeSetForm \"Oude Bestanden Openen\"\n";

class OudeSetVenster : public SessieToets {
 protected:
  std::string actief_;
  std::string eersteGezindte_;
  void SetUp() override {
    ZetIni("");
    basismap_ = map_;
    // A family as it comes from a disk: lower case, no TEKST.
    MaakSet("OUD");
    std::filesystem::create_directories(map_ / "disk/oud");
    for (const char* soort : {"prs", "rlt", "opm"}) {
      std::string groot(soort);
      for (char& teken : groot) teken = static_cast<char>(teken - 'a' + 'A');
      std::filesystem::copy(map_ / ("DATA/OUD/OUD." + groot),
                            map_ / ("disk/oud/oud." + std::string(soort)));
    }
    std::filesystem::rename(map_ / "DATA/OUD/OUD.PLT", map_ / "disk/plaats.plt");
    std::filesystem::remove_all(map_ / "DATA");
  }
  void Speelt(std::string_view script, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    Verwacht(script, MetMenu([this](Hoofdmodule& hoofd, MenuWindow& menu) {
               Toont<OudeSetForm>(hoofd, menu)(hoofd.gesprek);
               actief_ = hoofd.ActieveSetNaam;
               eersteGezindte_ = hoofd.schrijfwijze.gezindten[1];
             }),
             kOpen + MetMap(verslag), plek);
  }
};

TEST_F(OudeSetVenster, EenGekozenMapWordtDoorzochtEnEenKopieGeopend) {
  Speelt(R"(bestand disk
            druk BrowseOudeMap
            toon
            vul SetOmsch Van vroeger
            druk OKButton)",
         R"~(> map "Directories (*.)|*.dir|Alle Bestanden (*.*)|*.*" -> "disk"
             : OudeSetForm "Oude Bestanden Openen"
             = MapUitleg "Geef de map waarin de bestanden van de familie staan (.PRS, .RLT, .OPM en .PLT):"
             = OudeMap "<map>/disk"
             = BrowseOudeMap "&Bladeren..."
             = GevondenLijst "OUD   <map>/disk/oud"
             = Kopieren aan
             = TerPlaatse uit
             = SetNaam "OUD"
             = SetOmsch ""
             = OKButton "&OK"
             = BackButton "&Terug"
             * BrowseOudeMap
             - OudeSetForm)~");
  EXPECT_EQ(actief_, "OUD");
  EXPECT_TRUE(IniHeeft("Set1=OUD,Van vroeger"));
  EXPECT_EQ(Inhoud("DATA/OUD/OUD.PRS"), Inhoud("disk/oud/oud.prs"));
  EXPECT_EQ(Inhoud("DATA/OUD/OUD.PLT"), Inhoud("disk/plaats.plt"));
  EXPECT_TRUE(Bestaat("DATA/OUD/TEKST"));
  EXPECT_FALSE(Bestaat("disk/oud/TEKST"));
}

TEST_F(OudeSetVenster, EenGetypteMapWordtDoorzochtBijHetVerlaten) {
  Speelt("vul OudeMap disk\ntoon SetNaam\ndruk BackButton", R"(= SetNaam "OUD"
                                                           - OudeSetForm)");
  EXPECT_FALSE(Bestaat("DATA"));
}

TEST_F(OudeSetVenster, EenMapZonderFamilieWordtGemeld) {
  std::filesystem::create_directories(map_ / "leeg");
  Speelt("vul OudeMap leeg\ndruk OKButton\ndruk BackButton",
         R"~(! uitroep "In de map <map>/leeg staan geen bestanden van een familie (.PRS)"
             ! uitroep "Geen Bestandenset gekozen"
             - OudeSetForm)~");
}

TEST_F(OudeSetVenster, TerPlaatseBlijvenZijWaarZijStaanEnHoudenHunNaam) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  Speelt(R"(antwoord Nee Ja
            vul OudeMap disk
            druk TerPlaatse
            toon SetNaam
            druk OKButton
            druk OKButton)",
         R"~(= SetNaam "OUD"
             ? vraag Ja/Nee "De plaatsen van OUD staan in <map>/disk/plaats.plt, ook voor andere families.\nOUD krijgt er een eigen kopie van. Doorgaan ?" -> Nee
             ? vraag Ja/Nee "De plaatsen van OUD staan in <map>/disk/plaats.plt, ook voor andere families.\nOUD krijgt er een eigen kopie van. Doorgaan ?" -> Ja
             - OudeSetForm)~");
  EXPECT_EQ(actief_, "OUD");
  EXPECT_TRUE(std::filesystem::is_symlink(map_ / "DATA/OUD"));
  EXPECT_TRUE(Bestaat("disk/oud/TEKST"));
}

TEST_F(OudeSetVenster, EenNaamDieVastligtIsNietTeTypen) {
  const auto programma = MetMenu(
      [](Hoofdmodule& hoofd, MenuWindow& menu) { Toont<OudeSetForm>(hoofd, menu)(hoofd.gesprek); });
  EXPECT_EQ(Speel("vul OudeMap disk\ntyp SetNaam X\ndruk BackButton", programma).status, 0);
  EXPECT_EQ(Speel("vul OudeMap disk\ndruk TerPlaatse\ntyp SetNaam X", programma).status, 1);
}

TEST_F(OudeSetVenster, EenNaamDieErAlIsKrijgtEenAndereEnWordtNietAangenomen) {
  MaakSet("OUD");
  ZetIni("[Sets]\nSet1=OUD,er al\n");
  Speelt(
      "vul OudeMap disk\ntoon SetNaam\nvul SetNaam oud\ndruk OKButton\nvul SetNaam a/b\ndruk "
      "OKButton\ndruk BackButton",
      R"(= SetNaam "OUD2"
            ! uitroep "Deze bestandenset bestaat al"
            ! uitroep "\"A/B\" is geen geldige naam voor een bestandenset"
            - OudeSetForm)");
}

TEST_F(OudeSetVenster, EenMapDieErAlIsWordtNietOverschreven) {
  Schrijf("DATA/ANDERS/brief.txt", "van mij");
  Speelt("vul OudeMap disk\nvul SetNaam anders\ndruk OKButton\ndruk TerPlaatse\ndruk BackButton",
         R"(! stop "De bestanden zijn niet gekopieerd\nBestand bestaat al"
            - OudeSetForm)");
  EXPECT_EQ(Inhoud("DATA/ANDERS/brief.txt"), "van mij");
}

TEST_F(OudeSetVenster, WaarGeenKoppelingKanStaatDatErbij) {
  Schrijf("DATA/OUD/brief.txt", "van mij");
  Schrijf("disk/oud/oud.plt", Inhoud("disk/plaats.plt"));
  Speelt(
      "vul OudeMap disk\ndruk TerPlaatse\ndruk OKButton\ndruk BackButton",
      R"(! stop "De bestanden kunnen niet worden gebruikt waar ze staan; kies voor een kopie\nBestand bestaat al"
            - OudeSetForm)");
}

TEST_F(OudeSetVenster, WatOntbreektWordtGevraagd) {
  std::filesystem::remove(map_ / "disk/plaats.plt");
  std::filesystem::remove(map_ / "disk/oud/oud.opm");
  Speelt(
      "antwoord Nee Ja\nvul OudeMap disk\ndruk OKButton\ndruk OKButton",
      R"(? vraag Ja/Nee "Van OUD ontbreekt: Opmerkingenbestand, Plaatsbestand.\nWat ontbreekt wordt leeg aangemaakt. Doorgaan ?" -> Nee
            ? vraag Ja/Nee "Van OUD ontbreekt: Opmerkingenbestand, Plaatsbestand.\nWat ontbreekt wordt leeg aangemaakt. Doorgaan ?" -> Ja
            - OudeSetForm)");
  EXPECT_EQ(Inhoud("DATA/OUD/OUD.OPM").size(), 96U);
}

TEST_F(OudeSetVenster, EenSetDieEldersInGebruikIsWordtNietGenomen) {
  Bestandsgreep ander;
  ASSERT_FALSE(ander.Open(map_ / "disk/oud/oud.prs"));
  ASSERT_FALSE(ander.Vergrendel());
  Speelt("vul OudeMap disk\ndruk OKButton\ndruk BackButton",
         R"(! uitroep "Deze bestandenset is al in gebruik."
            - OudeSetForm)");
  EXPECT_FALSE(Bestaat("DATA"));
}

TEST_F(OudeSetVenster, EenMapDieErNietIsHeetNietLeeg) {
  Speelt("vul OudeMap weg\ntoets OudeMap Tab\ndruk BackButton",
         R"(! uitroep "De map <map>/weg is er niet"
            - OudeSetForm)");
}

TEST_F(OudeSetVenster, EenMapDieNietGelezenMagWordenOokNiet) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  const ZonderRechten rechten(map_ / "disk/oud", std::filesystem::perms(0));
  Speelt("vul OudeMap disk\ntoets OudeMap Tab\ndruk BackButton",
         R"(! stop "De map <map>/disk/oud kan niet worden gelezen\nGeen toegang"
            - OudeSetForm)");
}

TEST_F(OudeSetVenster, MeerFamiliesInEenMapWordenErNietGebruikt) {
  Schrijf("disk/oud/oud.plt", Inhoud("disk/plaats.plt"));
  Schrijf("disk/oud/zus.prs", Inhoud("disk/oud/oud.prs"));
  Speelt(
      R"(vul OudeMap disk
         stel GevondenLijst #0
         druk TerPlaatse
         druk OKButton
         druk Kopieren
         druk OKButton)",
      R"(! uitroep "In de map <map>/disk/oud staat meer dan een familie. Daar kan OUD niet worden gebruikt; kies voor een kopie"
         - OudeSetForm)");
  EXPECT_EQ(actief_, "OUD");
  EXPECT_FALSE(std::filesystem::is_symlink(map_ / "DATA/OUD"));
}

// A directory on a disk that can only be read, and a set that was open.
class OudeSetOpSlot : public OudeSetVenster {
 protected:
  void SetUp() override {
    OudeSetVenster::SetUp();
    Schrijf("disk/oud/oud.plt", Inhoud("disk/plaats.plt"));
    MaakSet("EERDER");
    ZetIni("[Systeem]\nSet=EERDER\n[Sets]\nSet1=EERDER,\n");
  }
  // Whoever runs the test may be nobody in it.
  void MagAlles() const {
    std::filesystem::permissions(map_, std::filesystem::perms(0777));
    for (const auto& plek : std::filesystem::recursive_directory_iterator(map_)) {
      std::filesystem::permissions(plek.path(), std::filesystem::perms(0777));
    }
  }
  void SpeeltMetEerder(std::string_view script, std::string_view verslag,
                       const Plek& plek = Plek::current()) {
    Verwacht(script, MetMenu([this](Hoofdmodule& hoofd, MenuWindow& menu) {
               ASSERT_TRUE(menu.Laad());
               Toont<OudeSetForm>(hoofd, menu)(hoofd.gesprek);
               actief_ = hoofd.ActieveSetNaam;
               EXPECT_TRUE(hoofd.bestanden.IsOpen(BestandSoort::Personen));
             }),
             kOpen + MetMap(verslag), plek);
  }
};

TEST_F(OudeSetOpSlot, TerPlaatseLaatNietsAchterEnHeropentDeSetVanEerder) {
  if (!ZonderRechten::kKan || !kKoppelingen) GTEST_SKIP() << ZonderRechten::kWaarom;
  MagAlles();
  const ZonderRechten rechten(map_ / "disk/oud");
  SpeeltMetEerder(
      R"(antwoord Nee
                     vul OudeMap disk
                     druk TerPlaatse
                     druk OKButton
                     druk BackButton)",
      R"~(! stop "Fout bij het maken van de directory <map>/DATA/OUD/TEKST\n(Geen toegang)"
                      ? vraag Ja/Nee "De bestanden van OUD zijn niet geopend waar ze staan.\nEen kopie maken ?" -> Nee
                      - OudeSetForm)~");
  EXPECT_EQ(actief_, "EERDER");
  EXPECT_TRUE(IniHeeft("Set=EERDER"));
  EXPECT_FALSE(std::filesystem::is_symlink(map_ / "DATA/OUD"));
}

TEST_F(OudeSetOpSlot, OfWordtAlsnogEenKopieOnderZijnEigenNaam) {
  if (!ZonderRechten::kKan || !kKoppelingen) GTEST_SKIP() << ZonderRechten::kWaarom;
  MagAlles();
  const ZonderRechten rechten(map_ / "disk/oud");
  SpeeltMetEerder(
      R"(antwoord Ja
                     vul OudeMap disk
                     druk TerPlaatse
                     druk OKButton)",
      R"~(! stop "Fout bij het maken van de directory <map>/DATA/OUD/TEKST\n(Geen toegang)"
                      ? vraag Ja/Nee "De bestanden van OUD zijn niet geopend waar ze staan.\nEen kopie maken ?" -> Ja
                      - OudeSetForm)~");
  EXPECT_EQ(actief_, "OUD");
  EXPECT_EQ(Inhoud("DATA/OUD/OUD.PRS"), Inhoud("disk/oud/oud.prs"));
}

// What a crash left there can't be put back.
TEST_F(OudeSetOpSlot, EenKopieDieNietOpengaatVerdwijntWeer) {
  Schrijf("disk/oud/JOURNAAL/00000001.BEZ", CodeerKop({1, 0, "2026-01-01 00:00:00", "Invoer"}) +
                                                CodeerLengte({BestandSoort::Plaatsen, true, 999}));
  SpeeltMetEerder(
      R"(antwoord Ja
                     vul OudeMap disk
                     druk OKButton
                     druk BackButton)",
      R"~(? vraag Ja/Nee "De vorige bewerking (Invoer, 2026-01-01 00:00:00) is niet voltooid.\nOngedaan maken ?" -> Ja
                      ! stop "Ongedaan maken is niet gelukt\nHet plaatsbestand is een ander dan toen"
                      - OudeSetForm)~");
  EXPECT_EQ(actief_, "EERDER");
  EXPECT_FALSE(Bestaat("DATA/OUD"));
  EXPECT_TRUE(Bestaat("disk/oud/JOURNAAL/00000001.BEZ"));
}

TEST_F(OudeSetVenster, GezindtenUitDeOudeInstellingenKomenMee) {
  Schrijf("disk/lijnboom.ini",
          "[Namenfile]\r\nGez1=RKRooms-Katholiek\r\nGez3=LUEvang. Luth\x82rs\r\n");
  Speelt("vul OudeMap disk\ndruk OKButton", "- OudeSetForm");
  EXPECT_TRUE(IniHeeft("Gez1=RKRooms-Katholiek")) << Ini();
  EXPECT_TRUE(IniHeeft("Gez2=LUEvang. Luth\x82rs")) << Ini();
  EXPECT_EQ(eersteGezindte_, "RKRooms-Katholiek");  // also in what is written from now on
}

TEST_F(OudeSetVenster, WatHierIetsAndersBetekentWordtGenoemd) {
  ZetIni("[Namenfile]\nGez1=RKRooms-Katholiek\nGez2=DGDoopsgezind\n");
  Schrijf("disk/oud/LIJNBOOM.INI",
          "[Namenfile]\r\nGez1=DGDuits Geref.\r\nGez2=RKRooms-Katholiek\r\nGez3=LULuthers\r\n"
          "[Andere]\r\nGez4=XXNiet\r\n");
  Speelt(
      "vul OudeMap disk\ndruk OKButton",
      R"~(! uitroep "Deze gezindten uit <map>/disk/oud/LIJNBOOM.INI zijn niet overgenomen, omdat hun code hier iets anders betekent of de lijst vol is:\nDG (Duits Geref.)"
          - OudeSetForm)~");
  EXPECT_TRUE(IniHeeft("Gez2=DGDoopsgezind"));
  EXPECT_TRUE(IniHeeft("Gez3=LULuthers"));
  EXPECT_FALSE(IniHeeft("Gez4=XXNiet"));
}

TEST_F(OudeSetVenster, DeEigenInstellingenZijnGeenOude) {
  ZetIni("[Namenfile]\nGez1=\nGez2=DGDoopsgezind\n");
  std::filesystem::rename(map_ / "disk", map_ / "DATA");
  const auto programma = MetMenu(
      [](Hoofdmodule& hoofd, MenuWindow& menu) { Toont<OudeSetForm>(hoofd, menu)(hoofd.gesprek); });
  EXPECT_EQ(Speel("vul OudeMap DATA\nvul SetNaam NIEUW\ndruk OKButton", programma).reden, "");
  EXPECT_FALSE(IniHeeft("Gez1=DGDoopsgezind"));
}

TEST_F(OudeSetVenster, EenVolleLijstNeemtNietsMeer) {
  std::string vol = "[Namenfile]\n";
  for (int i = 1; i <= 20; ++i) {
    vol += "Gez" + GetalTekst(i) + "=" + GetalTekst(10 + i) + "Naam\n";
  }
  ZetIni(vol);
  std::filesystem::create_directories(map_ / "diep");
  std::filesystem::rename(map_ / "disk", map_ / "diep/disk");
  Schrijf("diep/LIJNBOOM.INI", "[Namenfile]\r\nGez1=RKRooms-Katholiek\r\n");
  const auto programma = MetMenu(
      [](Hoofdmodule& hoofd, MenuWindow& menu) { Toont<OudeSetForm>(hoofd, menu)(hoofd.gesprek); });
  EXPECT_EQ(Speel("vul OudeMap diep/disk\ndruk OKButton", programma).reden, "");
  EXPECT_NE(verslag_.find("lijst vol is:\\nRK (Rooms-Katholiek)"), std::string::npos) << verslag_;
  EXPECT_TRUE(IniHeeft("Gez20=30Naam"));
}

}  // namespace
}  // namespace lb77
