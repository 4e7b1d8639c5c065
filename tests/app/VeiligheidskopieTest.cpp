#include "app/KopieBestanden.h"
#include "app/KopieTerugzetten.h"
#include "app/VeiligToets.h"
#include "app/Veiligheidskopie.h"

namespace lb77 {
namespace {

class Kopieen : public VeiligToets {
 protected:
  void Speelt(std::string_view script, std::string_view verslag) {
    Verwacht(std::string(script) + "\nsluit", Sessie(),
             "+ MenuWindow \"LB77 voor Windows\"\n" + MetMap(verslag) + "\n- MenuWindow");
  }
  // Does something with the copies of EEN, in which nothing shows.
  void Doe(const std::function<void(Hoofdmodule&, Veiligheidskopie&)>& doe) {
    Verwacht("", MetMenu([&doe](Hoofdmodule& hoofd, MenuWindow& menu) {
               ASSERT_TRUE(menu.Laad());
               Veiligheidskopie kopie = KopieVan(hoofd);
               doe(hoofd, kopie);
             }),
             "");
  }
  void MaakLeeg(std::string_view naam) const {
    std::filesystem::create_directories(map_ / "KOPIE/EEN");
    std::filesystem::copy(map_ / "DATA/EEN", map_ / "KOPIE/EEN" / naam,
                          std::filesystem::copy_options::recursive);
  }
};

TEST_F(Kopieen, BevatDeVierBestandenEnDeTeksten) {
  Schrijf("DATA/EEN/TEKST/verslag.txt", "tekst");
  Speelt("kies VeiligKopie",
         R"~(! info "Veiligheidskopie gemaakt: <map>/KOPIE/EEN/2026-01-02_030405")~");
  for (const char* naam : {"EEN.PRS", "EEN.RLT", "EEN.OPM", "EEN.PLT", "TEKST/verslag.txt"}) {
    EXPECT_EQ(Inhoud(std::filesystem::path("KOPIE/EEN/2026-01-02_030405") / naam),
              Inhoud(std::filesystem::path("DATA/EEN") / naam))
        << naam;
  }
  EXPECT_FALSE(Bestaat("KOPIE/EEN/BEZIG"));
}

TEST_F(Kopieen, EenMislukteKopieWordtGemeldEnLaatNietsAchter) {
  Schrijf("KOPIE", "geen directory");
  Speelt("kies VeiligKopie",
         R"~(! stop "De veiligheidskopie is niet gemaakt\nPad niet gevonden")~");
}

TEST_F(Kopieen, TweeInEenSecondeStaanNaastElkaar) {
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.Maak());
    ASSERT_FALSE(kopie.Maak());
    EXPECT_EQ(kopie.Laatste(), "2026-01-02_030405_02");
    ASSERT_FALSE(kopie.MaakZonodig());
    EXPECT_EQ(kopie.Lijst().size(), 2U);
  });
}

TEST_F(Kopieen, DeLaatsteTienBlijvenEnEenPerMaandTweeJaarLang) {
  for (const char* naam : {"2025-12-31_010101", "2025-12-30_010101", "2024-03-02_010101",
                           "2024-03-01_010101", "2024-01-31_010101", "2023-05-05_010101"}) {
    MaakLeeg(naam);
  }
  Schrijf("KOPIE/EEN/van mij.txt", "blijft");
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    for (int i = 0; i < 10; ++i) ASSERT_FALSE(kopie.Maak());
    std::string namen;
    for (const KopieRij& rij : kopie.Lijst()) {
      if (!rij.naam.starts_with("2026")) namen += rij.naam + "\n";
    }
    EXPECT_EQ(namen, "2025-12-31_010101\n2024-03-02_010101\n");
    EXPECT_EQ(kopie.Lijst().size(), 12U);
  });
  EXPECT_TRUE(Bestaat("KOPIE/EEN/van mij.txt"));
}

TEST_F(Kopieen, DeLijstTelt) {
  MaakGeschiedenis();
  Schrijf("KOPIE/EEN/2020-01-01_000000/EEN.PRS", "");
  Speelt("kies VeiligTerugzetten\ntoon KopieLijst\ndruk OKButton\ndruk BackButton",
         R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
             = KopieLijst ""
             #0 "2026-01-02 03:04:05  0 personen, 0 relaties, 0 plaatsen, 0 opmerkingregels"
             #1 "2020-01-01 00:00:00  niet te openen"
             ! uitroep "Geen veiligheidskopie gekozen"
             - KopieTerugzetten)~");
  NoteerGetoond(verslag_);
}

TEST_F(Kopieen, TerugzettenIsEenBewerkingDieOngedaanKan) {
  MaakGeschiedenis();
  const std::string voor = Inhoud("DATA/EEN/EEN.PRS");
  Speelt(
      "antwoord Nee Ja\nkies VeiligTerugzetten\nstel KopieLijst #0\ndruk OKButton\n"
      "druk OKButton",
      R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
             ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Nee
             ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Ja
             ! info "De veiligheidskopie is teruggezet"
             - KopieTerugzetten)~");
  EXPECT_EQ(Inhoud("DATA/EEN/EEN.PRS"), Inhoud("KOPIE/EEN/2026-01-02_030405/EEN.PRS"));
  EXPECT_EQ(Inhoud("KOPIE/EEN/2026-01-02_030405_02/EEN.PRS"), voor);
  Speelt(
      "antwoord Ja\nkies VeiligOngedaan",
      R"~(? vraag Ja/Nee "De bewerking \"Veiligheidskopie teruggezet: 2026-01-02 03:04:05\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             ! info "Ongedaan gemaakt: Veiligheidskopie teruggezet: 2026-01-02 03:04:05")~");
  EXPECT_EQ(Inhoud("DATA/EEN/EEN.PRS"), voor);
}

TEST_F(Kopieen, EenLangereEnEenAfgekapteKopieKomenByteVoorByteTerug) {
  std::string lang = Inhoud("DATA/EEN/EEN.RLT");
  for (int i = 0; i < 200; ++i) lang += std::string(64, static_cast<char>('a' + i % 26));
  lang += "half";
  const std::string kort = Inhoud("DATA/EEN/EEN.RLT");
  Doe([&](Hoofdmodule& hoofd, Veiligheidskopie&) {
    ASSERT_FALSE(VervangInhoud(hoofd.bestanden, {{BestandSoort::Relaties, lang}}, "Langer"));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), lang);
    ASSERT_FALSE(VervangInhoud(hoofd.bestanden, {{BestandSoort::Relaties, kort}}, "Korter"));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), kort);
    Journaal& journaal = *hoofd.bestanden.HetJournaal();
    EXPECT_TRUE(journaal.MaakOngedaan(2));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), lang);
    EXPECT_TRUE(journaal.MaakOngedaan(1));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), kort);
  });
}

TEST_F(Kopieen, EenKopieDieNietHeelIsWordtNietTeruggezet) {
  MaakGeschiedenis();
  std::filesystem::remove(map_ / "KOPIE/EEN/2026-01-02_030405/EEN.PLT");
  Speelt("antwoord Ja\nkies VeiligTerugzetten\nstel KopieLijst #0\ndruk OKButton\ndruk BackButton",
         R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
             ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Ja
             ! stop "De veiligheidskopie is niet teruggezet\nBestand niet gevonden"
             - KopieTerugzetten)~");
  EXPECT_EQ(Voornaam(), "Piet");
}

TEST_F(Kopieen, EenNaamDieErgensAndersHeenWijstIsErNiet) {
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    for (const char* naam : {"../TWEE/2026-01-02_030405", "..", "", "2026-01-02_030405x/.."}) {
      EXPECT_EQ(kopie.ZetTerug(naam).tekst, "Deze veiligheidskopie is er niet") << naam;
    }
  });
}

TEST_F(Kopieen, VanEenVerwijderdeSetBlijvenZijEnGaatHetJournaalMee) {
  MaakGeschiedenis();
  Speelt("kies VerwijderSet\ndruk DeleteJa\ndruk OKButton",
         "+ VerwijderSetForm \"Verwijder Bestandendset\"\n"
         "! info \"De veiligheidskopie\xC3\xABn van EEN zijn er nog: <map>/KOPIE/EEN\"\n"
         "- VerwijderSetForm");
  EXPECT_FALSE(Bestaat("DATA/EEN"));
  EXPECT_TRUE(Bestaat("KOPIE/EEN/2026-01-02_030405/EEN.PRS"));
}

TEST_F(Kopieen, EenSetDieEldersInGebruikIsWordtNietVerwijderd) {
  Bestandenset ander;
  ASSERT_FALSE(ander.OpenSet(SetPaden::Van(map_ / "DATA", "TWEE")));
  ASSERT_TRUE(ander.NeemInGebruik());
  Speelt("kies VerwijderSet\nstel SetPicklist #1\ndruk DeleteJa\ndruk OKButton",
         R"~(+ VerwijderSetForm "Verwijder Bestandendset"
             ! uitroep "Deze bestandenset is al in gebruik."
             - VerwijderSetForm)~");
  EXPECT_TRUE(Bestaat("DATA/TWEE/TWEE.PRS"));
  EXPECT_TRUE(IniHeeft("Set2=TWEE,de tweede"));
}

}  // namespace
}  // namespace lb77
