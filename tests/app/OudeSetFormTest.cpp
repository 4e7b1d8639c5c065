#include "app/OudeSetForm.h"
#include "app/SessieToets.h"
#include "steun/Bestandsstelsel.h"
#include "store/Platform.h"

namespace lb77 {
namespace {

constexpr const char* kOpen = "+ OudeSetForm \"Oude Bestanden Openen\"\n";

class OudeSetVenster : public SessieToets {
 protected:
  std::string actief_;
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

}  // namespace
}  // namespace lb77
