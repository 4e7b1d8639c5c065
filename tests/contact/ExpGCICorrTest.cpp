// The dialog in which a place is picked by hand.
#include "contact/ContactToets.h"
#include "contact/ExpGCICorr.h"

namespace lb77 {
namespace {

class ExpGCICorrTest : public FamilieToets {
 protected:
  ExpGCICorrTest() {
    tabellen_.provincies = GciCodes({CodeRij("DR", "Drenthe"), CodeRij("BLG", "Luik")});
    tabellen_.landen = GciCodes({CodeRij("B", "Belgi\xEB"), CodeRij("F", "Frankrijk")});
    for (int n = 1; n <= 25; ++n) {
      const std::string nummer = std::to_string(n);
      Voeg("Oord " + std::string(n < 10 ? "0" : "") + nummer, n % 2 == 0 ? "NH" : "ZH", "NL");
    }
    Voeg("Bergen", "", "B");
    Voeg("Bergen", "LI", "NL");
    Voeg("Luik", "BLG", "B");
    Voeg("Troyes", "FR", "F");
  }
  void Voeg(const std::string& naam, std::string_view prov, std::string_view land) {
    EXPECT_GT(tabellen_.plaatsen.VoegToe(naam, prov, land), 0);
  }
  // Plays between opening and closing, and expects that row.
  void Speel(std::string_view draaiboek, std::string_view verslag, std::int16_t gekozen = 0,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          ExpGCICorr form(hoofd.gesprek, tabellen_, plaats_);
          EXPECT_EQ(form.HulpOnderwerp(), "contactdienst");
          hoofd.gesprek.ToonModaal(form);
          EXPECT_EQ(form.Gekozen(), gekozen);
        },
        "+ ExpGCICorr \"Corrigeer Plaatsnamen voor Export in HSK Contactdienst formaat (GCI)\"\n" +
            Regels(verslag) + "- ExpGCICorr\n",
        plek);
  }

  GciTabellen tabellen_;
  GciPlaats plaats_{12, "Oord", "ZH", "Oord", {"ZH", "NL"}};
};

// The code may mean another province elsewhere; the user sees what he typed.
TEST_F(ExpGCICorrTest, ZonderLandBlijftDeProvincieDieGevraagdIs) {
  Speel(R"(
      vul FilterLand
      vul FilterProv bern
      toon FilterProv
      toon FilterProvAfk
      vul FilterProv lincolnshire
      toon FilterProv
      toon FilterProvAfk
      vul FilterLand Nederland
      vul FilterProv bern
      toon FilterProv
      druk BackButton
    )",
        R"(
      = FilterProv "Bern"
      = FilterProvAfk "BE"
      = FilterProv "Lincolnshire"
      = FilterProvAfk "LI"
      = FilterProv "Bengkulu"
    )");
}

TEST_F(ExpGCICorrTest, OpentMetDeEigenPlaatsEnDeFilterAan) {
  plaats_ = {12, "Berg", "L", "Berg", {"LI", "NL"}};
  Speel("toon\ndruk BackButton", R"~(
    : ExpGCICorr "Corrigeer Plaatsnamen voor Export in HSK Contactdienst formaat (GCI)"
    = LB77Pltscode "12"
    = LB77PltsNm "Berg"
    = LB77ProvCode "L"
    = FilterPlaatsnaam "Berg"
    = FilterProv "Limburg"
    = FilterProvAfk "LI"
    = FilterLand "Nederland"
    = FilterLandAfk "NL"
    = FilterButton "Filter Uit"
    = GeenPlaatsGevondenLabel "Geen geldige Plaats voor de Contactdienst gevonden." [verborgen]
    = (*) GCICodeKnop GCIPltsNm GCIProvNm GCILandNm
    = (1) "27" "Bergen" "Limburg" "Nederland"
    = (2-10) [verborgen]
    = VorigeButton "Vori&ge" [uit]
    = VolgendeButton "Vo&lgende" [uit]
    = BackButton "&Terug"
    * FilterPlaatsnaam
  )~");
}

TEST_F(ExpGCICorrTest, EenProvinciecodeDieAlleenDePlaatsenHebbenMagOok) {
  Voeg("Cleve", "DNW", "D");
  Voeg("Keulen", "DNW", "D");
  plaats_ = {12, "Kleef", "D", "Kleef", {"", "D"}};
  Speel(R"(
      vul FilterPlaatsnaam ""
      vul FilterProv dnx
      vul FilterProv dnw
      toon FilterProv
      toon FilterProvAfk
      toon GCIPltsNm(1)
      toon GCIPltsNm(2)
      vul FilterProv ""
      toon FilterProvAfk
      druk BackButton
    )",
        R"(
    ! uitroep "Onbekende provincienaam"
    = FilterProv "DNW"
    = FilterProvAfk "DNW"
    = GCIPltsNm(1) "Cleve"
    = GCIPltsNm(2) "Keulen"
    = FilterProvAfk ""
  )");
}

TEST_F(ExpGCICorrTest, ZegtHetAlsErNietsIs) {
  plaats_ = {12, "Dorp", "ZH", "Dorp", {"ZH", "NL"}};
  Speel(
      "toon GeenPlaatsGevondenLabel\ntoon GCICodeKnop(1)\nvul FilterPlaatsnaam Oord\n"
      "toon GeenPlaatsGevondenLabel\ntoon GCICodeKnop(1)\ndruk BackButton",
      R"~(
    = GeenPlaatsGevondenLabel "Geen geldige Plaats voor de Contactdienst gevonden."
    = GCICodeKnop(1) "" [verborgen]
    = GeenPlaatsGevondenLabel "Geen geldige Plaats voor de Contactdienst gevonden." [verborgen]
    = GCICodeKnop(1) "1"
  )~");
}

TEST_F(ExpGCICorrTest, EenKnopGeeftZijnRij) {
  Speel("toon GCICodeKnop(2)\ndruk GCICodeKnop(2)", "= GCICodeKnop(2) \"3\"\n", 3);
  Speel("druk GCICodeKnop(10)", "", 19);
}

TEST_F(ExpGCICorrTest, BladertHeenEnTerug) {
  Speel(R"(
      toon VorigeButton
      druk VolgendeButton
      toon GCICodeKnop(1)
      toon GCICodeKnop(3)
      toon GCICodeKnop(4)
      toon VolgendeButton
      druk VorigeButton
      toon GCICodeKnop(1)
      toon VorigeButton
      toon VolgendeButton
      druk BackButton
    )",
        R"(
    = VorigeButton "Vori&ge" [uit]
    = GCICodeKnop(1) "21"
    = GCICodeKnop(3) "25"
    = GCICodeKnop(4) "" [verborgen]
    = VolgendeButton "Vo&lgende" [uit]
    = GCICodeKnop(1) "1"
    = VorigeButton "Vori&ge" [uit]
    = VolgendeButton "Vo&lgende"
  )");
}

TEST_F(ExpGCICorrTest, EenLaatsteRijHeeftHaarEigenBladzijde) {
  for (const char* naam : {"Venlo", "Weert"}) Voeg(naam, "LI", "NL");
  Speel(R"(
      druk FilterButton
      druk VolgendeButton
      druk VolgendeButton
      toon VolgendeButton
      druk VolgendeButton
      toon GCIPltsNm(1)
      toon GCIPltsNm(2)
      toon VolgendeButton
      druk BackButton
    )",
        R"(
    = VolgendeButton "Vo&lgende"
    = GCIPltsNm(1) "Weert"
    = GCIPltsNm(2) "" [verborgen]
    = VolgendeButton "Vo&lgende" [uit]
  )");
}

TEST_F(ExpGCICorrTest, DeFilterGaatUitEnWeerAan) {
  Speel(R"(
      druk FilterButton
      toon FilterButton
      toon GCICodeKnop(2)
      druk VolgendeButton
      druk VolgendeButton
      toon GCIPltsNm(9)
      toon VolgendeButton
      druk VorigeButton
      toon GCICodeKnop(1)
      druk FilterButton
      toon FilterButton
      toon GCICodeKnop(2)
      druk BackButton
    )",
        R"(
    = FilterButton "Start Filter"
    = GCICodeKnop(2) "2"
    = GCIPltsNm(9) "Troyes"
    = VolgendeButton "Vo&lgende" [uit]
    = GCICodeKnop(1) "11"
    = FilterButton "Filter Uit"
    = GCICodeKnop(2) "3"
  )");
}

TEST_F(ExpGCICorrTest, EenFilterveldVerlatenFiltertOpnieuw) {
  Speel(R"(
      vul FilterProv noord - holland
      toon FilterProv
      toon FilterProvAfk
      toon GCICodeKnop(1)
      vul FilterProv
      toon FilterProvAfk
      toon GCICodeKnop(2)
      vul FilterPlaatsnaam berg*
      toon GCICodeKnop(1)
      vul FilterLand belgie
      druk BackButton
    )",
        R"(
    = FilterProv "Noord - Holland"
    = FilterProvAfk "NH"
    = GCICodeKnop(1) "2"
    = FilterProvAfk ""
    = GCICodeKnop(2) "2"
    = GCICodeKnop(1) "27"
    ! uitroep "Onbekend land"
  )");
}

TEST_F(ExpGCICorrTest, LandEnProvincieWordenOpgezocht) {
  Speel(R"(
      vul FilterPlaatsnaam
      vul FilterProv Nergens
      vul FilterProv blg
      toon FilterProv
      vul FilterLand b
      toon FilterLand
      toon FilterLandAfk
      toon GCICodeKnop(1)
      toon GCIProvNm(1)
      toon GCILandNm(1)
      vul FilterLand Frankrijk
      vul FilterProv Frosinone
      toon FilterProvAfk
      toon GCIPltsNm(1)
      toon GCIProvNm(1)
      vul FilterProv Fribourg
      toon GCIProvNm(1)
      druk BackButton
    )",
        R"(
    ! uitroep "Onbekende provincienaam"
    = FilterProv "Luik"
    = FilterLand "België"
    = FilterLandAfk "B"
    = GCICodeKnop(1) "28"
    = GCIProvNm(1) "Luik"
    = GCILandNm(1) "België"
    = FilterProvAfk "FR"
    = GCIPltsNm(1) "Troyes"
    = GCIProvNm(1) "Frosinone"
    = GCIProvNm(1) "Fribourg"
  )");
}

TEST_F(ExpGCICorrTest, EenVeldDatNietVeranderdIsLaatDeBladzijdeStaan) {
  Speel(
      "druk VolgendeButton\ntoets FilterProv Tab\ntoets FilterLand Tab\ntoon GCICodeKnop(1)\n"
      "toets FilterPlaatsnaam Tab\ntoon GCICodeKnop(1)\ndruk BackButton",
      "= GCICodeKnop(1) \"21\"\n= GCICodeKnop(1) \"21\"\n");
}

TEST_F(ExpGCICorrTest, EenNaamDieNietsIsWordtPasBijVeranderenOpgezocht) {
  plaats_ = {12, "Oord", "QQ", "Oord", {"QQ", "XX"}};
  Speel(
      "toon FilterProv\ntoon FilterLand\ntoets FilterProv Tab\ntoets FilterLand Tab\n"
      "druk FilterButton\ndruk BackButton",
      "= FilterProv \"???\"\n= FilterLand \"???\"\n");
}

// As a screen reader says them, which sees no table.
TEST_F(ExpGCICorrTest, WatGeenBijschriftHeeftHeeftEenLeesnaam) {
  const auto taak = [this](Hoofdmodule& hoofd) {
    const ExpGCICorr form(hoofd.gesprek, tabellen_, plaats_);
    for (const auto& [naam, leesnaam] : {std::pair{"FilterProvAfk", "Code van de provincie"},
                                         {"FilterLandAfk", "Code van het land"},
                                         {"GCIPltsNm(3)", "Plaatsnaam op regel 3"},
                                         {"GCIProvNm(10)", "Provincie op regel 10"},
                                         {"GCILandNm(1)", "Land op regel 1"}}) {
      EXPECT_EQ(form.Zoek(naam)->Leesnaam(), leesnaam) << naam;
    }
  };
  Verwacht("", taak, "");
}

TEST_F(ExpGCICorrTest, EenVeldHoudtDeFocusAlleenAlsHetNietKlopt) {
  const auto naTab = [this](const std::string& typen, std::string_view verslag = "") {
    std::string focus;
    Verwacht(
        typen + "\ntoets Tab\ntoets Escape",
        [&](Hoofdmodule& hoofd) {
          ExpGCICorr form(hoofd.gesprek, tabellen_, plaats_);
          hoofd.gesprek.ToonModaal(form);
          focus = form.FocusVeld()->Naam();
        },
        "+ ExpGCICorr \"Corrigeer Plaatsnamen voor Export in HSK Contactdienst formaat (GCI)\"\n" +
            std::string(verslag) + "- ExpGCICorr\n");
    return focus;
  };
  EXPECT_EQ(naTab("typ FilterPlaatsnaam Oord"), "FilterProv");
  EXPECT_EQ(naTab("typ FilterPlaatsnaam Oord 2"), "FilterProv");
  EXPECT_EQ(naTab("typ FilterProv Zuid-Holland"), "FilterLand");
  EXPECT_EQ(naTab("typ FilterProv Drenthe"), "FilterLand");
  EXPECT_EQ(naTab("typ FilterProv Nergens", "! uitroep \"Onbekende provincienaam\"\n"),
            "FilterProv");
  EXPECT_EQ(naTab("typ FilterLand Nederland"), "FilterButton");
  EXPECT_EQ(naTab("typ FilterLand Frankrijk"), "FilterButton");
  EXPECT_EQ(naTab("typ FilterLand Nergens", "! uitroep \"Onbekend land\"\n"), "FilterLand");
}

// What stands in the row when the key arrives is not what the user saw.
TEST_F(ExpGCICorrTest, EenKlikOpWatIntussenVeranderdeTeltNiet) {
  for (const char* knop : {"GCICodeKnop(1)", "VolgendeButton", "VorigeButton"}) {
    const std::string vooraf = *knop == 'V' && knop[2] == 'r' ? "druk VolgendeButton\n" : "";
    Speel(vooraf + "typ FilterPlaatsnaam Oord 2\ndruk " + knop +
              "\ntoon GCICodeKnop(1)\ntoon FilterPlaatsnaam\ndruk BackButton",
          "= GCICodeKnop(1) \"21\"\n= FilterPlaatsnaam \"Oord 2\"\n");
  }
  // Its page is the first one, although there are more.
  Speel("typ FilterPlaatsnaam Oo\ndruk VolgendeButton\ntoon GCICodeKnop(1)\ndruk BackButton",
        "= GCICodeKnop(1) \"1\"\n");
}

TEST_F(ExpGCICorrTest, DeFilterknopZietOokWatNogNetIsGetypt) {
  Speel(
      "druk FilterButton\ntyp FilterPlaatsnaam Troyes\ndruk FilterButton\ntoon FilterButton\n"
      "toon GeenPlaatsGevondenLabel\ntyp FilterProv\ndruk FilterButton\ntoon FilterButton\n"
      "toon GCICodeKnop(1)\ndruk BackButton",
      R"(
    = FilterButton "Filter Uit"
    = GeenPlaatsGevondenLabel "Geen geldige Plaats voor de Contactdienst gevonden."
    = FilterButton "Start Filter"
    = GCICodeKnop(1) "1"
  )");
}

TEST_F(ExpGCICorrTest, EenLegeTabelHeeftGeenBladzijden) {
  tabellen_.plaatsen = GciPlaatsen();
  Speel("druk FilterButton\ntoon VorigeButton\ntoon VolgendeButton\ntoets Escape", R"(
    = VorigeButton "Vori&ge" [uit]
    = VolgendeButton "Vo&lgende" [uit]
  )");
}

}  // namespace
}  // namespace lb77
