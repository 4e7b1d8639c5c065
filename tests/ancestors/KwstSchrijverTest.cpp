#include <gtest/gtest.h>

#include "ancestors/KwstSchrijver.h"
#include "ancestors/KwstSchrijverToets.h"
#include "steun/Gouden.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

TEST_F(KwstSchrijverToets, VerteltEenFamilieAlsTekst) {
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  VerwachtGouden("kwst_tekst.txt", uit_);
}

TEST_F(KwstSchrijverToets, VerteltAllesWatHetKanAlsTekst) {
  opties_.KwOokOpm = opties_.KwOokNrs = opties_.KwVolgHerh = true;
  opties_.KwBroerZus = BroerZus::Alle;
  opties_.teksten.titel = "Titel";
  opties_.teksten.inleiding[0] = "Inleiding";
  opties_.teksten.copyrightRegel = "Copyright (2026) Jan Jansen";
  opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  VerwachtGouden("kwst_tekst_alles.txt", uit_);
  EXPECT_FALSE(Bevat("Titel"));
  EXPECT_FALSE(Bevat("Inleiding"));
}

TEST_F(KwstSchrijverToets, VerteltEenFamilieInHTML) {
  opties_.KwInHTML = opties_.KwOokOpm = true;
  opties_.teksten.titel = "Kwartierstaat van Gerrit & zijn zus";
  opties_.teksten.inleiding = {"Eerste regel", "", "Derde regel"};
  opties_.teksten.copyrightRegel = "Copyright (2026) Jan Jansen";
  opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  opties_.teksten.email = "jan@example.org";
  opties_.teksten.emailTekst = "Schrijf me";
  opties_.teksten.homePage = "http://www.example.org/jan";
  opties_.teksten.homePageLabel = "Naar";
  opties_.teksten.homePageTekst = "mijn home page";
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  VerwachtGouden("kwst_html.txt", uit_);
}

TEST_F(KwstSchrijverToets, ZetBroersEnZussenInHTMLInLijsten) {
  opties_.KwInHTML = opties_.KwOokOpm = true;
  opties_.KwBroerZus = BroerZus::Alle;
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  VerwachtGouden("kwst_html_broerzus.txt", uit_);
}

TEST_F(KwstSchrijverToets, ZetAlleenDeProbandTussenZijnBroersEnZussen) {
  opties_.KwBroerZus = BroerZus::VanProband;
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  EXPECT_TRUE(Bevat("     a.  Gerrit van Dam"));
  EXPECT_TRUE(Bevat("     b.  Hanna van Dam"));
  EXPECT_FALSE(Bevat("Eva van Dam"));
}

TEST_F(KwstSchrijverToets, BegintBijHetGevraagdeEersteNummer) {
  opties_.KwVanafNr = Kwartiernummer("4");
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  EXPECT_FALSE(Bevat("Gerrit"));
  EXPECT_FALSE(Bevat("Femke"));
  EXPECT_EQ(uit_.rfind("Generatie III\r\n\r\n     4  Adriaan van Dam", 0), 0U);
}

TEST_F(KwstSchrijverToets, EenEersteNummerBovenAlleLaatDeSlotregels) {
  opties_.KwVanafNr = Kwartiernummer("1000");
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  EXPECT_EQ(uit_, "\r\n\r\n\r\n");
}

TEST_F(KwstSchrijverToets, EenProbandMetNummerVijfBegintBijGeneratieDrie) {
  opties_.KwBeginNr = Kwartiernummer("5");
  opties_.KwVanafNr = Kwartiernummer("5");
  EXPECT_EQ(Schrijf(Familie().proband), Einde::Klaar);
  EXPECT_EQ(uit_.rfind("Generatie III\r\n\r\n     5  Gerrit van Dam", 0), 0U);
  EXPECT_TRUE(Bevat("\r\n    10  Dirk van Dam"));
}

TEST_F(KwstSchrijverToets, EenNummerVanZesCijfersOfMeerStaatAanDeMarge) {
  opties_.KwBeginNr = opties_.KwVanafNr = Kwartiernummer("1234567");
  EXPECT_EQ(Schrijf(set_.bouw.Man("Jan", "Jansen")), Einde::Klaar);
  EXPECT_TRUE(Bevat("\r\n1234567  Jan Jansen."));
}

TEST_F(KwstSchrijverToets, EenPaarZonderGegevensHeeftNietsErtussen) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto moeder = set_.bouw.Vrouw("Moeder", "B");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, moeder, {kind});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Vader A\r\n     3  Moeder B.\r\n"));
}

TEST_F(KwstSchrijverToets, EenSamenwonendPaarStaatErZonderGebeurtenissen) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto moeder = set_.bouw.Vrouw("Moeder", "B");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, moeder, {kind}, {{"HuwSwPs", "2"}});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Vader A, partnerschap.\r\n     3  Moeder B.\r\n"));
}

TEST_F(KwstSchrijverToets, MeerDanZesentwintigKinderenHebbenTweeLetters) {
  const auto vader = set_.bouw.Man("Vader", "A");
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 28; ++i) kinderen.push_back(set_.bouw.Man("Kind", "A"));
  set_.bouw.Relatie(vader, 0, kinderen);
  opties_.KwBroerZus = BroerZus::VanProband;
  EXPECT_EQ(Schrijf(kinderen[0]), Einde::Klaar);
  EXPECT_TRUE(Bevat("\r\n     z.  Kind A."));
  EXPECT_TRUE(Bevat("\r\n    aa.   Kind A."));
  EXPECT_TRUE(Bevat("\r\n    ab.   Kind A."));
}

TEST_F(KwstSchrijverToets, EenStopLaatHetBestandZoverAlsHetWas) {
  int test = 0;
  verloop_.afbreken = [&test] { return ++test == 2; };
  EXPECT_EQ(Bereken(Familie().proband), Einde::Afgebroken);
  verloop_.afbreken = [] { return false; };
  EXPECT_EQ(Bereken(opties_.KwProbandNr), Einde::Klaar);
  test = 0;
  verloop_.afbreken = [&test] { return ++test == 2; };
  EXPECT_EQ(SchrijfTabel(), Einde::Afgebroken);
  EXPECT_TRUE(Bevat("Femke"));
  EXPECT_FALSE(Bevat("Adriaan"));
}

TEST_F(KwstSchrijverToets, EenOnleesbarePartnerEindigtHetVerslag) {
  const auto man = set_.bouw.Man("Jan", "Jansen");
  const auto relatie = set_.bouw.Relatie(man, 0);
  set_.bouw.WijzigRelatie(relatie, {{"VrouwNr", "500"}});
  EXPECT_EQ(Schrijf(man), Einde::Leesfout);
}

// As an import leaves a list whose other families are not in its file.
TEST_F(KwstSchrijverToets, EenLegeLijstMetVervolgIsMeerDanEenRelatie) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto relatie = set_.bouw.Relatie(vader, set_.bouw.Vrouw("Moeder", "B"), {kind},
                                         {{"WHuwDatum", "01-04-1900"}});
  const auto vervolg = set_.bouw.Man("", "", {{"GebCorr", "Z"}});
  set_.bouw.WijzigPersoon(
      vader,
      {{"Relatie1", "0"}, {"Relatie2", GetalTekst(relatie)}, {"Relatie3", GetalTekst(-vervolg)}});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Vader A, tr.(2) 1.4.1900."));
  set_.bouw.WijzigPersoon(vader, {{"Relatie3", "0"}});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Vader A, tr. 1.4.1900."));
}

TEST_F(KwstSchrijverToets, EenPartnerVanHetzelfdeGeslachtIsDeAnderVanDeTwee) {
  const auto een = set_.bouw.Man("Een", "A");
  const auto twee = set_.bouw.Man("Twee", "B");
  set_.bouw.Relatie(een, twee, {}, {{"WHuwDatum", "01-04-2001"}});
  EXPECT_EQ(Schrijf(twee), Einde::Klaar);
  EXPECT_TRUE(Bevat("     1  Twee B, tr. 1.4.2001 Een A."));
}

}  // namespace
}  // namespace lb77
