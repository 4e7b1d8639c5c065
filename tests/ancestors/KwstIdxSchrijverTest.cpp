// The rows of the ancestor index: who has one, under which number, with which code.
#include <gtest/gtest.h>

#include "ancestors/KwstFamilies.h"
#include "ancestors/KwstIdxToets.h"

namespace lb77 {
namespace {

TEST_F(KwstIdxToets, NoemtEenFamilie) {
  opties_.teksten.titel = "Index van Gerrit & zijn zus";
  opties_.teksten.inleiding = {"Eerste regel", "", ""};
  opties_.teksten.copyrightRegel = "Copyright (2026) Jan Jansen";
  opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  VerwachtIndex(Familie().proband, "familie");
}

TEST_F(KwstIdxToets, NoemtEenFamilieMetNummersEnAlleBroersEnZussen) {
  opties_.KwOokNrs = true;
  opties_.KwBroerZus = BroerZus::Alle;
  VerwachtIndex(Familie().proband, "familie_alles");
}

TEST_F(KwstIdxToets, EenHerhalingHeeftGeenRij) {
  VerwachtIndex(BouwNeefEnNicht(set_.bouw), "neven");
}

TEST_F(KwstIdxToets, OokEenHerhalingDieGevolgdWordtHeeftGeenRij) {
  opties_.KwVolgHerh = true;
  const std::int16_t proband = BouwNeefEnNicht(set_.bouw);
  VerwachtIndex(proband, "neven");
  EXPECT_EQ(tabel_.KwNummer(tabel_.KwstAantal() - 1).Tekst(), "30");
}

TEST_F(KwstIdxToets, WieNietBekendIsLaatGeenGatenInDeNummers) {
  VerwachtIndex(BouwHalveOuders(set_.bouw), "halve_ouders");
}

TEST_F(KwstIdxToets, NummersGaanUitVanDatVanDeProband) {
  opties_.KwBeginNr = opties_.KwVanafNr = Kwartiernummer("5");
  VerwachtIndex(Familie().proband, "nummer_vijf");
}

TEST_F(KwstIdxToets, BeginMiddenInEenPaarLaatWieErvoorStaatWeg) {
  opties_.KwVanafNr = Kwartiernummer("5");
  VerwachtIndex(BouwNeefEnNicht(set_.bouw), "vanaf_vijf");
}

TEST_F(KwstIdxToets, ZonderBroersEnZussen) {
  VerwachtIndex(BouwBroersEnZussen(set_.bouw), "broerzus_1");
}

TEST_F(KwstIdxToets, MetDeBroersEnZussenVanDeProband) {
  opties_.KwBroerZus = BroerZus::VanProband;
  VerwachtIndex(BouwBroersEnZussen(set_.bouw), "broerzus_2");
}

TEST_F(KwstIdxToets, ZonderOudersStaatDeProbandErZelfMetZijnPartners) {
  const auto proband = set_.bouw.Man("Een", "A");
  set_.bouw.Relatie(proband, set_.bouw.Vrouw("Eerste", "B"));
  set_.bouw.Relatie(proband, set_.bouw.Vrouw("Tweede", "C"));
  for (const BroerZus welke : {BroerZus::VanProband, BroerZus::Alle}) {
    opties_.KwBroerZus = welke;
    EXPECT_EQ(Schrijf(proband), Einde::Klaar);
    EXPECT_EQ(Rijen(), "1 K Een\n1 P Eerste\n1 P Tweede\n");
  }
}

TEST_F(KwstIdxToets, MetAlleBroersEnZussen) {
  opties_.KwBroerZus = BroerZus::Alle;
  VerwachtIndex(BouwBroersEnZussen(set_.bouw), "broerzus_3");
}

TEST_F(KwstIdxToets, MeerDanZesentwintigKinderenHebbenTweeLetters) {
  opties_.KwBroerZus = BroerZus::VanProband;
  VerwachtIndex(BouwGrootGezin(set_.bouw), "groot_gezin");
}

TEST_F(KwstIdxToets, EenTweedePartnerHeeftEenRijOnderHetzelfdeNummer) {
  opties_.KwOokNrs = true;
  VerwachtIndex(BouwHertrouwden(set_.bouw), "hertrouwden");
}

TEST_F(KwstIdxToets, EenProbandOnderHetEersteNummerStaatErNiet) {
  opties_.KwVanafNr = Kwartiernummer("2");
  EXPECT_EQ(Schrijf(BouwHalveOuders(set_.bouw)), Einde::Klaar);
  EXPECT_EQ(Rijen(), "2 M Vic\n5 V Moe\n10 M Opa\n");
}

TEST_F(KwstIdxToets, EenEersteNummerBovenAlleLaatDeSlotregels) {
  opties_.KwVanafNr = Kwartiernummer("1000");
  EXPECT_EQ(Schrijf(BouwHalveOuders(set_.bouw)), Einde::Klaar);
  EXPECT_EQ(uit_, "\r\n\r\n\r\n");
}

TEST_F(KwstIdxToets, EenEnkeleRelatieGeeftGeenPartnerOokDeProbandNiet) {
  const auto proband = set_.bouw.Vrouw("Een", "A");
  set_.bouw.Relatie(set_.bouw.Man("Man", "B"), proband);
  EXPECT_EQ(Schrijf(proband), Einde::Klaar);
  EXPECT_EQ(Rijen(), "1 K Een\n");
}

TEST_F(KwstIdxToets, VanOnbekendGeslachtIsDeAnderVanDeTweePartner) {
  const auto proband = set_.bouw.Persoon('?', "Iemand", "A");
  set_.bouw.Relatie(proband, set_.bouw.Vrouw("Eerste", "B"));
  set_.bouw.Relatie(set_.bouw.Man("Tweede", "C"), proband);
  EXPECT_EQ(Schrijf(proband), Einde::Klaar);
  EXPECT_EQ(Rijen(), "1 K Iemand\n1 P Eerste\n1 P Tweede\n");
}

TEST_F(KwstIdxToets, EenProbandDieZijnEigenVoorouderIsHeeftTweeRijen) {
  const auto kind = set_.bouw.Man("Kring", "A");
  set_.bouw.Relatie(kind, 0, {kind});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_EQ(Rijen(), "1 K Kring\n2 M Kring\n");
}

// The father is told at his first number, so that his brothers and sisters are too; those of the
// mother don't wait for him.
TEST_F(KwstIdxToets, BroersEnZussenHorenBijWieZelfGeenHerhalingIs) {
  const auto opa = set_.bouw.Man("Opa", "A");
  const auto oudoom = set_.bouw.Man("Oudoom", "A");
  set_.bouw.Relatie(set_.bouw.Man("Stam", "A"), 0, {opa, oudoom});
  const auto oma = set_.bouw.Vrouw("Oma", "B");
  const auto oudtante = set_.bouw.Vrouw("Oudtante", "B");
  set_.bouw.Relatie(set_.bouw.Man("Stam", "B"), 0, {oma, oudtante});
  const auto vader = set_.bouw.Man("Vader", "A");
  set_.bouw.Relatie(opa, 0, {vader});
  const auto moeder = set_.bouw.Vrouw("Moeder", "A");
  set_.bouw.Relatie(opa, oma, {moeder});
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, moeder, {kind});
  opties_.KwBroerZus = BroerZus::Alle;
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_EQ(Rijen(),
            "1a BZ Kind\n2 M Vader\n3 V Moeder\n4 M Opa\n4 P Oma\n4 SO Stam\n4b BZ Oudoom\n"
            "7 V Oma\n7b BZ Oudtante\n8 M Stam\n14 M Stam\n");
}

TEST_F(KwstIdxToets, EenLangNummerHoudtZijnCijfersEnDeBlancoVoorDeCode) {
  std::int16_t kind = set_.bouw.Man("Kind", "A");
  const std::int16_t proband = kind;
  for (int i = 0; i < 10; ++i) {
    const std::int16_t vader = set_.bouw.Man("Vader", "A");
    set_.bouw.Relatie(vader, 0, {kind});
    kind = vader;
  }
  opties_.KwBeginNr = opties_.KwVanafNr = Kwartiernummer("999999999999999999999999");
  opties_.KwMaxGen = 200;
  EXPECT_EQ(Schrijf(proband), Einde::Klaar);
  EXPECT_TRUE(Bevat("  999999999999999999999999 K       -    \r\n")) << uit_;
  EXPECT_TRUE(Bevat("1023999999999999999999998976 M       -    \r\n")) << uit_;
}

TEST_F(KwstIdxToets, NamenStaanInHTMLGecodeerdEnHetBestandZoalsHetHeet) {
  opties_.KwInHTML = true;
  opties_.KwHTMLFile = "oma.html";
  EXPECT_EQ(Schrijf(set_.bouw.Vrouw("Zo\xEB", "de Wit&Zn")), Einde::Klaar);
  EXPECT_TRUE(Bevat("<TR>\r\n<TD>Wit&amp;Zn, de" + std::string(20, ' ') + "</TD><TD>Zo&euml;" +
                    std::string(28, ' ') + "</TD><TD><A HREF=\"oma.html#1\">1</A></TD>" +
                    "<TD>K   </TD><TD>    -    </TD>\r\n</TR>\r\n</TABLE>\r\n"))
      << uit_;
}

}  // namespace
}  // namespace lb77
