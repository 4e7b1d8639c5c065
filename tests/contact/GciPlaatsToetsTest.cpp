// The check of the places: every question answered both ways.
#include <gtest/gtest.h>

#include "contact/ContactToets.h"
#include "contact/GciPlaatsToets.h"
#include "steun/ProefSet.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using Regels = std::vector<std::string>;

constexpr Antwoord kJa = Antwoord::Ja;
constexpr Antwoord kNee = Antwoord::Nee;

class GciPlaatsToetsTest : public ::testing::Test {
 protected:
  // The row of a place of that name and province; the questions get these answers.
  std::int16_t Rij(std::string_view naam, std::string_view prov,
                   std::initializer_list<Antwoord> antwoorden = {}) {
    for (const Antwoord antwoord : antwoorden) set_.gesprek.Antwoordt(antwoord);
    return toets_.Rij(set_.bouw.Plaats(naam, prov));
  }

  ProefSet set_;
  GciTabellen tabellen_{
      GciPlaatsen({PlaatsRij("Bergen", "LI", "NL"), PlaatsRij("Bergen", "", "B"),
                   PlaatsRij("Delft", "ZH", "NL"), PlaatsRij("Gravenhage, 's-", "ZH", "NL"),
                   PlaatsRij("Bergen", "NH", "NL"), PlaatsRij("Jakarta", "DJX", "RI")}),
      GciCodes({CodeRij("ZH", "Zuid-Holland")}), GciCodes({CodeRij("B", "Belgie")})};
  std::int16_t keus_ = 0;  // what is picked by hand
  std::vector<GciPlaats> gecorrigeerd_;
  GciPlaatsToets toets_{tabellen_, set_.Plaats, set_.gesprek, [this](const GciPlaats& plaats) {
                          gecorrigeerd_.push_back(plaats);
                          return keus_;
                        }};
};

constexpr const char* kDorp =
    R"(? vraag Ja/Nee/Annuleren "Dorp, ZH, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> )";
constexpr const char* kDorpToch =
    R"(? vraag Ja/Nee "Plaats onbekend: Dorp.\nPlaats toch mee uitvoeren ?" -> )";

TEST_F(GciPlaatsToetsTest, DeEnigeVanEenNaamKanZonderVraagGenomenWorden) {
  toets_.NeemEnige();
  EXPECT_EQ(Rij("Jakarta", ""), 6);
  EXPECT_EQ(Rij("Delft", ""), 3);
  EXPECT_EQ(
      set_.Getoond(),
      (Regels{
          R"(! info "De enige van die naam voor plaatscode 2 - Jakarta\nGevonden: Jakarta, DJX, RI")",
          R"(! info "De enige van die naam voor plaatscode 3 - Delft\nGevonden: Delft, ZH, NL")"}));
  // Not with a code of its own, and not when there are more.
  EXPECT_EQ(Rij("Delft", "NB", {kJa}), 3);
  EXPECT_EQ(Rij("Bergen", "", {kNee, kNee, kJa}), 5);
}

TEST_F(GciPlaatsToetsTest, EenRijDieKloptVraagtNiets) {
  EXPECT_EQ(Rij("delft", "ZH"), 3);
  EXPECT_EQ(Rij("BERGEN", "NH"), 5);
  EXPECT_EQ(Rij("Bergen", "B"), 2);
  EXPECT_EQ(set_.Getoond(), Regels{});
}

TEST_F(GciPlaatsToetsTest, ElkeRijVanDezelfdeNaamWordtOpVolgordeGevraagd) {
  EXPECT_EQ(Rij("Bergen", "NB", {kNee, kJa}), 2);
  EXPECT_EQ(
      set_.Getoond(),
      (Regels{
          R"(? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 2 - Bergen ?\nGevonden: Bergen, LI, NL" -> Nee)",
          R"(? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 2 - Bergen ?\nGevonden: Bergen, B" -> Ja)"}));
}

TEST_F(GciPlaatsToetsTest, EenAnderLandIsEenVraag) {
  EXPECT_EQ(Rij("Bergen", "", {kNee, kJa}), 2);
  EXPECT_EQ(set_.Getoond().size(), 2U);
}

TEST_F(GciPlaatsToetsTest, NaNeeOpAlleRijenVolgtDeCorrectie) {
  EXPECT_EQ(Rij("Bergen", "NB", {kNee, kNee, kNee, kNee, kNee}), 0);
  EXPECT_EQ(set_.Getoond().size(), 5U);
  EXPECT_EQ(toets_.Overgeslagen(), Regels{"Bergen"});
}

TEST_F(GciPlaatsToetsTest, EenSynoniemMetJaVindtZijnRij) {
  EXPECT_EQ(Rij("Den Haag", "ZH", {kJa}), 4);
  EXPECT_EQ(
      set_.Getoond(),
      Regels{
          R"(? vraag Ja/Nee "Is dit de juiste plaatsnaam voor plaatscode 2 - Den Haag ?\nGevonden: Gravenhage, 's-, ZH, NL" -> Ja)"});
}

TEST_F(GciPlaatsToetsTest, EenSynoniemMetNeeLaatDeNaamZoals) {
  EXPECT_EQ(Rij("Den Haag", "ZH", {kNee, kNee, kNee}), 0);
  EXPECT_EQ(
      set_.Getoond().at(1),
      R"(? vraag Ja/Nee/Annuleren "Den Haag, ZH, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Nee)");
  EXPECT_EQ(toets_.Overgeslagen(), Regels{"Den Haag"});
}

TEST_F(GciPlaatsToetsTest, EenAangenomenSynoniemZonderRijGaatVerderMetZijnNaam) {
  EXPECT_EQ(Rij("Luik", "B", {kJa, kJa, kJa}), 7);
  EXPECT_EQ(
      set_.Getoond(),
      (Regels{"? vraag Ja/Nee \"Is dit de juiste plaatsnaam voor plaatscode 2 - Luik "
              "?\\nGevonden: Li\xC3\xA8ge, BLG, B\" -> Ja",
              "? vraag Ja/Nee/Annuleren \"Li\xC3\xA8ge, BLG, B\\nis niet een juiste combinatie "
              "voor de Contactdienst\\nCorrigeren ?\" -> Ja",
              "? vraag Ja/Nee \"Plaats onbekend: Li\xC3\xA8ge.\\nPlaats toch mee uitvoeren "
              "?\" -> Ja"}));
  ASSERT_EQ(gecorrigeerd_.size(), 1U);
  EXPECT_EQ(gecorrigeerd_[0].nr, 2);
  EXPECT_EQ(gecorrigeerd_[0].eigenNaam, "Luik");
  EXPECT_EQ(gecorrigeerd_[0].eigenCode, "B");
  EXPECT_EQ(gecorrigeerd_[0].naam, "Liège"_w);
  EXPECT_EQ(gecorrigeerd_[0].gebied, (GciGebied{"BLG", "B"}));
  EXPECT_EQ(tabellen_.plaatsen.Naam(7), "Liège"_w);
  EXPECT_EQ(tabellen_.plaatsen.Prov(7), "BLG");
  EXPECT_EQ(tabellen_.plaatsen.Land(7), "B");
}

TEST_F(GciPlaatsToetsTest, EenAangenomenSynoniemWordtMetZijnNaamOvergeslagen) {
  EXPECT_EQ(Rij("Luik", "B", {kJa, kNee, kNee}), 0);
  static_cast<void>(set_.Getoond());
  EXPECT_EQ(toets_.Overgeslagen(), Regels{"Li\xE8ge"});
}

TEST_F(GciPlaatsToetsTest, EenAangenomenSynoniemVraagtOokNaarAndereProvincies) {
  EXPECT_EQ(Rij("Batavia", "", {kJa, kJa}), 6);
  EXPECT_EQ(
      set_.Getoond().at(1),
      R"(? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 2 - Jakarta ?\nGevonden: Jakarta, DJX, RI" -> Ja)");
}

TEST_F(GciPlaatsToetsTest, EenMetDeHandGekozenRijTelt) {
  keus_ = 3;
  EXPECT_EQ(Rij("Dorp", "ZH", {kJa}), 3);
  EXPECT_EQ(set_.Getoond(), Regels{std::string(kDorp) + "Ja"});
  EXPECT_EQ(toets_.Overgeslagen(), Regels{});
}

TEST_F(GciPlaatsToetsTest, ZonderKeusVolgtDeVraagOfDePlaatsTochMeegaat) {
  EXPECT_EQ(Rij("Dorp", "ZH", {kJa, kNee}), 0);
  EXPECT_EQ(set_.Getoond(), (Regels{std::string(kDorp) + "Ja", std::string(kDorpToch) + "Nee"}));
  EXPECT_EQ(toets_.Overgeslagen(), Regels{"Dorp"});
  EXPECT_EQ(tabellen_.plaatsen.Aantal(), 6);
}

TEST_F(GciPlaatsToetsTest, ZonderCorrectieKomtDePlaatsErEenKeerBij) {
  EXPECT_EQ(Rij("Dorp", "ZH", {kNee, kJa}), 7);
  EXPECT_EQ(set_.Getoond(), (Regels{std::string(kDorp) + "Nee", std::string(kDorpToch) + "Ja"}));
  EXPECT_TRUE(gecorrigeerd_.empty());
  EXPECT_EQ(tabellen_.plaatsen.Prov(7), "ZH");
  EXPECT_EQ(Rij("DORP", "zh"), 7);
  EXPECT_EQ(tabellen_.plaatsen.Aantal(), 7);
}

TEST_F(GciPlaatsToetsTest, AnnulerenEindigtHetWerk) {
  EXPECT_EQ(Rij("Dorp", "ZH", {Antwoord::Annuleren}), -2);
  EXPECT_EQ(set_.Getoond(), Regels{std::string(kDorp) + "Annuleren"});
}

TEST_F(GciPlaatsToetsTest, WatEenKeerBeantwoordIsWordtNietMeerGevraagd) {
  EXPECT_EQ(Rij("Dorp", "ZH", {kNee, kNee}), 0);
  EXPECT_EQ(toets_.Rij(2), 0);
  EXPECT_EQ(set_.Getoond().size(), 2U);
  EXPECT_EQ(toets_.Overgeslagen(), Regels{"Dorp"});
}

TEST_F(GciPlaatsToetsTest, EenPlaatsDieErNietIsWordtZonderVraagWeggelaten) {
  EXPECT_EQ(toets_.Rij(500), 0);
  EXPECT_EQ(toets_.Overgeslagen(), Regels{"500"});
}

TEST_F(GciPlaatsToetsTest, EenVolleTabelEindigtHetWerk) {
  tabellen_.plaatsen = GciPlaatsen(std::vector<std::string>(32767, "Oord"));
  EXPECT_EQ(Rij("Dorp", "ZH", {kNee, kJa}), -2);
  EXPECT_EQ(set_.Getoond().back(),
            "! stop \"Het maximum van 32767 plaatsen voor de Contactdienst is bereikt\"");
}

}  // namespace
}  // namespace lb77
