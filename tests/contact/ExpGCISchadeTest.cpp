// Exports of damaged sets, and of as much as fits.
#include <random>

#include "contact/ContactToets.h"
#include "contact/ExpGCI.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class ExpGCISchade : public ContactToets {
 protected:
  ExpGCISchade() {
    MaakTabellen({PlaatsRij("Delft", "ZH", "NL"), PlaatsRij("Breda", "NB", "NL")});
    Bouw().Plaats("Delft", "ZH");
    Bouw().Plaats("Breda", "NB");
  }
};

TEST_F(ExpGCISchade, KringenInDeVerwijzingenHoudenNietsOp) {
  const auto vrouw = Bouw().Vrouw("Els", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  const auto relatie = Bouw().Relatie(0, vrouw, {vrouw, vrouw});
  Bouw().WijzigPersoon(vrouw, {{"Relatie2", GetalTekst(relatie)}, {"Relatie3", "-2"}});
  Bouw().WijzigRelatie(relatie, {{"Kind15", "-2"}});
  Lukt();
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
}

TEST_F(ExpGCISchade, VerwijzingenNaarNergensTellenNiet) {
  const auto vrouw = Bouw().Vrouw("Els", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  const auto relatie = Bouw().Relatie(0, vrouw, {});
  Bouw().WijzigPersoon(vrouw, {{"Relatie2", "900"}, {"Relatie3", "1"}});
  Bouw().WijzigRelatie(relatie, {{"Kind1", "900"}, {"Kind2", "1"}, {"Kind3", "-4"}});
  Lukt();
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
}

TEST_F(ExpGCISchade, WatNietTeLezenIsEindigtDeGangOverDePersonen) {
  for (const char* naam : {"Vos", "Bos", "Mos"}) {
    Bouw().Man("Jan", naam, {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  }
  MaakOnleesbaar(BestandSoort::Personen, 3);
  Exporteer("druk BackButton", R"(
    ! stop "Fout bij het lezen van Persoonsrecord 3\nFout van de schijf"
    ! uitroep "LET OP: gestopt bij persoonsrecord 3; de personen daarachter zijn niet meegenomen"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
}

TEST_F(ExpGCISchade, EenGatInDePersonenWordtGemeldEnStaatInHetLog) {
  for (const char* naam : {"Vos", "Bos", "Mos"}) {
    Bouw().Man("Jan", naam, {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  }
  MaakGat(3);
  Exporteer("druk BackButton", R"(
    ! uitroep "LET OP: gestopt bij persoonsrecord 3; de personen daarachter zijn niet meegenomen"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
  EXPECT_TRUE(LogRegels().starts_with(
      "LET OP: gestopt bij persoonsrecord 3; de personen daarachter zijn niet meegenomen\n"
      "Geen achternamen overgeslagen\n"))
      << LogRegels();
}

TEST_F(ExpGCISchade, EenOnleesbareAchterEenGatIsOokIemand) {
  for (const char* naam : {"Vos", "Bos", "Mos"}) {
    Bouw().Man("Jan", naam, {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  }
  MaakGat(3);
  MaakOnleesbaar(BestandSoort::Personen, 4);
  Exporteer("druk BackButton", R"(
    ! uitroep "LET OP: gestopt bij persoonsrecord 3; de personen daarachter zijn niet meegenomen"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
}

TEST_F(ExpGCISchade, EenGatAanHetEindeIsHetEinde) {
  Bouw().Man("Jan", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  for (int n = 0; n < 2; ++n) Bouw().Man("Jan", "Bos");
  MaakGat(3);
  MaakGat(4);
  Lukt();
  EXPECT_TRUE(LogRegels().starts_with("Geen achternamen overgeslagen\n")) << LogRegels();
}

TEST_F(ExpGCISchade, EenGatVoorHetLaatsteRecordWordtGezien) {
  Bouw().Man("Jan", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  for (int n = 0; n < 3; ++n) Bouw().Man("Jan", "Bos");
  MaakGat(3);
  MaakGat(5);
  Exporteer("druk BackButton", R"(
    ! uitroep "LET OP: gestopt bij persoonsrecord 3; de personen daarachter zijn niet meegenomen"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
}

TEST_F(ExpGCISchade, EenOnleesbareRelatieOfPlaatsWordtOvergeslagen) {
  const auto man = Bouw().Man("Jan", "Vos",
                              {{"GebPlaats", "3"},
                               {"GebDatum", "00-00-1800"},
                               {"OvlPlaats", "2"},
                               {"OvlDatum", "00-00-1800"}});
  Bouw().Relatie(man, 0, {}, {{"OtrPlaats", "2"}, {"OtrDatum", "00-00-1825"}});
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  MaakOnleesbaar(BestandSoort::Plaatsen, 3);
  Exporteer("druk BackButton", R"(
    ! stop "Fout bij het lezen van Relatierecord 2\nFout van de schijf"
    ! stop "Fout bij het lezen van Plaatsrecord 3\nFout van de schijf"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
  EXPECT_EQ(
      LogRegels().substr(0, 83),
      "Geen achternamen overgeslagen\nPlaats overgeslagen: 3\nTotaal: 1 plaats overgeslagen\n");
}

TEST_F(ExpGCISchade, WillekeurigeBytesInElkBestandLatenHetNietVastlopen) {
  for (int n = 0; n < 40; ++n) {
    const auto vrouw = Bouw().Vrouw("Els", "Vos(s)/Bos", {{"GebPlaats", "2"}});
    const auto man = Bouw().Man("Jan", "Mos", {{"OvlPlaats", "3"}, {"OvlDatum", "00-00-1800"}});
    Bouw().Relatie(man, vrouw, {man, vrouw}, {{"OtrPlaats", "2"}, {"OtrDatum", "00-00-1825"}});
  }
  std::mt19937 toeval(77);
  const SetPaden paden = SetPaden::Van(Map(), "PROEF");
  for (int ronde = 0; ronde < 40; ++ronde) {
    for (const auto& pad : {paden.prs, paden.rlt, paden.plt, Gci() / "GCIPLT!!.DBF"}) {
      std::string bytes = LeesBytes(pad);
      for (int keer = 0; keer < 20; ++keer) {
        bytes[toeval() % bytes.size()] = static_cast<char>(toeval());
      }
      SchrijfBytes(pad, bytes);
    }
    NeeGesprek gesprek;
    MetGesprek(gesprek, [this](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<ExpGCI>(hoofd, opties_); });
    EXPECT_GT(gesprek.Getoond(), 0);
  }
}

// 32,000 series at once, as the largest sets have them.
TEST_F(ExpGCISchade, TweeendertigduizendReeksenGaanInEenKeer) {
  constexpr int kPersonen = 8000;
  for (int n = 0; n < kPersonen; ++n) {
    const std::string jaar = GetalTekst(1000 + n % 400);
    Bouw().Man("Jan", "Naam" + GetalTekst(n / 400),
               {{"GebPlaats", "2"},
                {"GebDatum", "00-00-" + jaar},
                {"DoopPlaats", "3"},
                {"DoopDatum", "00-00-" + jaar},
                {"OvlPlaats", "2"},
                {"OvlDatum", "00-00-" + GetalTekst(1400 + n % 400)},
                {"BegrPlaats", "3"},
                {"BegrDatum", "00-00-" + GetalTekst(1400 + n % 400)}});
  }
  opties_.maxGat = 0;
  Lukt();
  EXPECT_NE(LogRegels().find("Totaal: 32000 reeksen "), std::string::npos);
  EXPECT_EQ(Fam().size(), 32000U * 72U);
  opties_.maxGat = 1;
  Lukt();
  EXPECT_NE(LogRegels().find("Totaal: 40 reeksen "), std::string::npos);
}

TEST_F(ExpGCISchade, MeerReeksenDanErPassenEindigtHetWerk) {
  // Each name has 4,096 forms, in 40 years twelve times as many as there is room for.
  for (int n = 0; n < 400; ++n) {
    Bouw().Man("Jan", "()()()()()()()()()()()()a",
               {{"GebPlaats", "2"}, {"GebDatum", "00-00-" + GetalTekst(1000 + n)}});
  }
  Exporteer("druk BackButton", R"(
    ! stop "Het maximum van 1000000 reeksen is bereikt"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(LogRegels(),
            "Geen achternamen overgeslagen\nGeen plaatsnamen overgeslagen\n"
            "Het maximum van 1000000 reeksen is bereikt\nVerwerking afgebroken.\n"
            "Geen uitvoerbestanden aangemaakt.\n");
  EXPECT_FALSE(HeeftUitvoer());
}

TEST_F(ExpGCISchade, MeerPersonenInEenReeksDanTeTellenZijnEindigtHetWerk) {
  // Sixteen times the same form: 2,100 persons become 33,600.
  for (int n = 0; n < 2100; ++n) {
    Bouw().Man("Jan", "Bos,Bos,Bos,Bos,Bos", {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  }
  for (int n = 0; n < 2; ++n) {
    Bouw().Man("Jan", "(a)(a)(a)(a)(a)(a)(a)(a)", {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  }
  Lukt();
  for (int n = 0; n < 500; ++n) {
    Bouw().Man("Jan", "(a)(a)(a)(a)(a)(a)(a)(a)", {{"GebPlaats", "2"}, {"GebDatum", "00-00-1800"}});
  }
  Exporteer("druk BackButton", R"(
    ! stop "Het maximum van 32767 personen in een reeks is bereikt"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(LogRegels(),
            "Geen achternamen overgeslagen\nGeen plaatsnamen overgeslagen\n"
            "Het maximum van 32767 personen in een reeks is bereikt\nVerwerking afgebroken.\n"
            "Geen uitvoerbestanden aangemaakt.\n");
}

}  // namespace
}  // namespace lb77
