// The three statistics as they are written.
#include "reports/LijstFamilie.h"
#include "reports/LijstToets.h"
#include "reports/Statistieken.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

class StatistiekToets : public LijstToets {
 protected:
  std::string Takken(std::int16_t wie, Einde einde = Einde::Klaar) {
    return Lijst([&](TekstSchrijver& uit,
                     const Verloop& verloop) { return SchrijfTakken(wie, bron_, uit, verloop); },
                 einde);
  }
  std::string Families(int minimum, Einde einde = Einde::Klaar) {
    return Lijst(
        [&](TekstSchrijver& uit, const Verloop& verloop) {
          return SchrijfFamilies(minimum, bron_, uit, verloop);
        },
        einde);
  }
  std::string Tijdbalk(std::int16_t wie, Einde einde = Einde::Klaar) {
    return Lijst([&](TekstSchrijver& uit,
                     const Verloop& verloop) { return SchrijfTijdbalk(wie, bron_, uit, verloop); },
                 einde);
  }
  // The lines of the periods of person 2.
  std::string Periodes() {
    std::string tekst = Tijdbalk(2);
    tekst.erase(0, tekst.find("\n\n") + 2);
    return tekst.substr(0, tekst.find("\nTotaal"));
  }
};

TEST_F(StatistiekToets, DeTakkenAlsBestand) {
  BouwLijstFamilie(bouw_);
  Takken(2);
  VerwachtGouden("statistiek_takken.txt", Bytes());
}

TEST_F(StatistiekToets, DeFamiliesAlsBestand) {
  BouwLijstFamilie(bouw_);
  Families(1);
  VerwachtGouden("statistiek_families.txt", Bytes());
}

TEST_F(StatistiekToets, DeTijdbalkAlsBestand) {
  BouwLijstFamilie(bouw_);
  Tijdbalk(2);
  VerwachtGouden("statistiek_tijdbalk.txt", Bytes());
}

TEST_F(StatistiekToets, EenTakVanEenEnEenTotaalVanEenStaanInHetEnkelvoud) {
  bouw_.Man("Jan", "Smit");
  bouw_.Relatie(2, 0, {bouw_.Man("Kind", "Smit")});
  EXPECT_EQ(Takken(2),
            "Takkenverdeling van afstammelingen van Jan Smit (P2)\n\n"
            "tak 1 (P3)  : 1 afstammeling\n\nTotaal 1 nazaat gevonden.\n\n");
}

TEST_F(StatistiekToets, DeNummersVanTakkenStaanRechtsEnLangePersoonsnummersBlijvenHeel) {
  bouw_.Man("", "Smit");
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 10; ++i) kinderen.push_back(bouw_.Man("Kind", "Smit"));
  const auto gezin = bouw_.Relatie(2, 0, kinderen);
  const std::string tekst = Takken(2);
  EXPECT_EQ(tekst.find("Takkenverdeling van afstammelingen van Smit (P2)\n"), 0U);
  EXPECT_NE(tekst.find("\ntak  1 (P3)  : 1 afstammeling\n"), std::string::npos);
  EXPECT_NE(tekst.find("\ntak  8 (P10) : 1 afstammeling\n"), std::string::npos);
  EXPECT_NE(tekst.find("\ntak 10 (P12) : 1 afstammeling\n"), std::string::npos);
  bouw_.WijzigRelatie(gezin, {{"Kind1", "12345"}});
  EXPECT_NE(Takken(2).find("\ntak  1 (P12345) : 0 afstammeling\n"), std::string::npos);
}

TEST_F(StatistiekToets, DeStamouderInZijnEigenTakTeltNiet) {
  bouw_.Man("Jan", "Smit");
  const auto kind = bouw_.Man("Kind", "Smit");
  bouw_.Relatie(2, 0, {kind});
  const auto kring = bouw_.Relatie(kind, 0);
  bouw_.WijzigRelatie(kring, {{"Kind1", "2"}});
  EXPECT_NE(Takken(2).find("tak 1 (P3)  : 1 afstammeling\n\nTotaal 1 nazaat"), std::string::npos);
  EXPECT_NE(Takken(3).find("tak 1 (P2)  : 1 afstammeling\n\nTotaal 1 nazaat"), std::string::npos);
}

TEST_F(StatistiekToets, ElkeTakTeltVoorZich) {
  bouw_.Man("Jan", "Smit");
  const auto zoon = bouw_.Man("Zoon", "Smit");
  const auto dochter = bouw_.Vrouw("Dochter", "Smit");
  bouw_.Relatie(2, 0, {zoon, dochter});
  bouw_.Relatie(zoon, dochter, {bouw_.Man("Kind", "Smit")});
  EXPECT_EQ(Takken(2),
            "Takkenverdeling van afstammelingen van Jan Smit (P2)\n\n"
            "tak 1 (P3)  : 2 afstammelingen\ntak 2 (P4)  : 2 afstammelingen\n\n"
            "Totaal 4 nazaten gevonden.\n\n");
}

TEST_F(StatistiekToets, AlleenNamenMetGenoegDragersWordenGetoond) {
  BouwLijstFamilie(bouw_);
  EXPECT_EQ(Families(2),
            "Verdeling familienamen\n\n4: van Dam\n2: Vos\n\nTotaal 4 namen aanwezig.\n"
            "Totaal 2 namen gevonden.\n\n");
  EXPECT_EQ(Families(4),
            "Verdeling familienamen\n\n4: van Dam\n\nTotaal 4 namen aanwezig.\n"
            "Totaal 1 naam gevonden.\n\n");
  EXPECT_EQ(Families(5),
            "Verdeling familienamen\n\n\nTotaal 4 namen aanwezig.\nTotaal 0 namen gevonden.\n\n");
}

TEST_F(StatistiekToets, EenBestandZonderPersonenHeeftGeenNamen) {
  EXPECT_EQ(Families(1),
            "Verdeling familienamen\n\n\nTotaal 0 namen aanwezig.\nTotaal 0 namen gevonden.\n\n");
}

TEST_F(StatistiekToets, VervolgrecordsDragenGeenNaam) {
  bouw_.Man("Jan", "Smit");
  bouw_.Man("", "Vervolg", {{"GebCorr", "Z"}});
  EXPECT_EQ(Families(1),
            "Verdeling familienamen\n\n1: Smit\n\nTotaal 1 naam aanwezig.\n"
            "Totaal 1 naam gevonden.\n\n");
}

TEST_F(StatistiekToets, HetAantalNamenTotNuToeWordtGetoond) {
  bouw_.Man("Jan", "Smit");
  bouw_.Man("Piet", "SMIT");
  bouw_.Man("Kees", "Vos");
  static_cast<void>(Families(1));
  EXPECT_EQ(getoond_, (std::vector<int>{1, 1, 2}));
}

TEST_F(StatistiekToets, EenZekerLevenInEenPeriodeTeltEenKeer) {
  bouw_.Man("Jan", "Smit", {{"GebDatum", "00-00-1800"}, {"OvlDatum", "00-00-1849"}});
  EXPECT_EQ(Periodes(), "Periode : 1800-1849 : 1 (waarvan zeker 1)\n");
}

TEST_F(StatistiekToets, VanEenLangLevenTellenAlleenBeginEnEinde) {
  bouw_.Man("Jan", "Smit", {{"GebDatum", "00-00-1799"}, {"OvlDatum", "00-00-1900"}});
  EXPECT_EQ(Periodes(),
            "Periode : 1750-1799 : 1 (waarvan zeker 1)\n"
            "Periode : 1900-1949 : 1 (waarvan zeker 1)\n");
}

TEST_F(StatistiekToets, EenJaarDatOntbreektIsEenKopieVanHetAndere) {
  bouw_.Man("Jan", "Smit", {{"OvlDatum", "00-00-1900"}});
  EXPECT_EQ(Periodes(), "Periode : 1900-1949 : 1 (waarvan zeker 0)\n");
  EXPECT_NE(Tijdbalk(2).find("\nTotaal : 1 afstammeling\n"), std::string::npos);
}

TEST_F(StatistiekToets, HetEindeIsHetHoogsteJaarVanHuwelijkenEnKinderen) {
  bouw_.Man("Jan", "Smit", {{"GebDatum", "00-00-1790"}});
  bouw_.Relatie(2, 0, {bouw_.Man("Kind", "Smit", {{"GebDatum", "00-00-1860"}})},
                {{"WHuwDatum", "00-00-1820"}});
  EXPECT_EQ(Periodes(),
            "Periode : 1750-1799 : 1 (waarvan zeker 0)\n"
            "Periode : 1850-1899 : 2 (waarvan zeker 0)\n");
}

TEST_F(StatistiekToets, HetBeginIsHetLaagsteJaarVanHuwelijkenEnKinderen) {
  bouw_.Man("Jan", "Smit", {{"OvlDatum", "00-00-1910"}});
  bouw_.Relatie(2, 0, {}, {{"OtrDatum", "00-00-1849"}});
  bouw_.Relatie(2, 0, {}, {{"KHuwDatum", "00-00-1880"}});
  EXPECT_EQ(Periodes(),
            "Periode : 1800-1849 : 1 (waarvan zeker 0)\n"
            "Periode : 1900-1949 : 1 (waarvan zeker 0)\n");
}

TEST_F(StatistiekToets, EenDoopVanEenKindIsGeenGeboorte) {
  bouw_.Man("Jan", "Smit");
  bouw_.Relatie(2, 0, {bouw_.Man("Kind", "Smit", {{"DoopDatum", "00-00-1860"}})});
  EXPECT_EQ(Periodes(), "Periode : 1850-1899 : 1 (waarvan zeker 0)\n");
}

TEST_F(StatistiekToets, ZonderEnigJaarTeltEenPersoonAlleenInHetTotaal) {
  bouw_.Man("Jan", "Smit");
  bouw_.Relatie(2, 0, {bouw_.Man("Kind", "Smit")});
  EXPECT_EQ(Tijdbalk(2),
            "Populatiegrafiek van afstammelingen van Jan Smit (P2)\n\n\n"
            "Totaal : 2 afstammelingen\n\n");
}

TEST_F(StatistiekToets, DePeriodesStaanOpVolgordeVanJaren) {
  bouw_.Man("Jan", "Smit", {{"GebDatum", "00-00-1900"}, {"OvlDatum", "00-00-1950"}});
  bouw_.Relatie(2, 0, {bouw_.Man("Kind", "Smit", {{"GebDatum", "00-00-1800"}})});
  EXPECT_EQ(Periodes(),
            "Periode : 1800-1849 : 1 (waarvan zeker 0)\n"
            "Periode : 1900-1949 : 1 (waarvan zeker 1)\n"
            "Periode : 1950-1999 : 1 (waarvan zeker 1)\n");
}

TEST_F(StatistiekToets, WieLangsTweeWegenKomtTeltInZijnPeriodeTweeKeer) {
  bouw_.Man("Jan", "Smit");
  const auto zoon = bouw_.Man("Zoon", "Smit");
  const auto dochter = bouw_.Vrouw("Dochter", "Smit");
  bouw_.Relatie(2, 0, {zoon, dochter});
  bouw_.Relatie(
      zoon, dochter,
      {bouw_.Man("Kind", "Smit", {{"GebDatum", "00-00-1860"}, {"OvlDatum", "00-00-1870"}})});
  const std::string tekst = Tijdbalk(2);
  EXPECT_NE(tekst.find("Periode : 1850-1899 : 4 (waarvan zeker 2)\n"), std::string::npos) << tekst;
  EXPECT_NE(tekst.find("Totaal : 5 afstammelingen\n"), std::string::npos);
}

TEST_F(StatistiekToets, EenBeschadigdJaarVoorNulHeeftZijnEigenPeriode) {
  bouw_.Man("Jan", "Smit", {{"GebDatum", "01-01-1800"}});
  bouw_.WijzigPersoon(2, {{"GebJaar", "-1"}});
  EXPECT_EQ(Periodes(), "Periode : -50--1 : 1 (waarvan zeker 0)\n");
  bouw_.WijzigPersoon(2, {{"GebJaar", "-50"}});
  EXPECT_EQ(Periodes(), "Periode : -50--1 : 1 (waarvan zeker 0)\n");
  bouw_.WijzigPersoon(2, {{"GebJaar", "-32768"}});
  EXPECT_EQ(Periodes(), "Periode : -32800--32751 : 1 (waarvan zeker 0)\n");
}

TEST_F(StatistiekToets, EenVerzoekOmTeStoppenEindigtElkVanDeDrie) {
  BouwLijstFamilie(bouw_);
  stopBij_ = 1;
  EXPECT_EQ(Takken(2, Einde::Afgebroken).find("tak"), std::string::npos);
  tests_ = 0;
  EXPECT_EQ(Families(1, Einde::Afgebroken), "Verdeling familienamen\n\n");
  tests_ = 0;
  EXPECT_EQ(Tijdbalk(2, Einde::Afgebroken).find("Periode"), std::string::npos);
}

}  // namespace
}  // namespace lb77
