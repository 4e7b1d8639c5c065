#include "descendants/GenFamilie.h"
#include "descendants/GenSchrijver.h"
#include "descendants/GenSchrijverToets.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

TEST_F(GenSchrijverToets, VerteltEenFamiliePerTak) {
  EXPECT_EQ(Schrijf(BouwGenFamilie(bouw_).stamouder), Einde::Klaar);
  VerwachtGouden("gen_tekst_tak.txt", uit_);
}

TEST_F(GenSchrijverToets, VerteltAllesWatHetKanPerGeneratie) {
  opties_.GenOokOpm = opties_.GenOokNrs = opties_.GenVerwijzing = opties_.GenPerGeneratie = true;
  opties_.GenVolgHerh = true;
  opties_.teksten.titel = "Parenteel van Jan Kok";
  opties_.teksten.inleiding[0] = "Inleiding";
  opties_.teksten.copyrightRegel = "Copyright (2026) Jan Jansen";
  opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  EXPECT_EQ(Schrijf(BouwGenFamilie(bouw_).stamouder), Einde::Klaar);
  VerwachtGouden("gen_tekst_generatie.txt", uit_);
}

TEST_F(GenSchrijverToets, VerteltEenFamilieInHTML) {
  opties_.GenInHTML = opties_.GenOokOpm = opties_.GenVerwijzing = opties_.GenPerGeneratie = true;
  opties_.teksten.titel = "Parenteel van Jan & Anna";
  opties_.teksten.inleiding[0] = "Inleiding";
  EXPECT_EQ(Schrijf(BouwGenFamilie(bouw_).stamouder), Einde::Klaar);
  VerwachtGouden("gen_html.txt", uit_);
}

TEST_F(GenSchrijverToets, AlleenWatErVanTitelEnInleidingIsStaatErboven) {
  opties_.teksten.inleiding[1] = "Tweede regel";
  EXPECT_EQ(Schrijf(bouw_.Man("Jan", "Kok")), Einde::Klaar);
  EXPECT_EQ(uit_, "Tweede regel\r\n\r\n      I.  Jan Kok.\r\n\r\n\r\n\r\n");
}

TEST_F(GenSchrijverToets, EenLabelVanAchtTekensOfMeerStaatAanDeMarge) {
  const auto kring = bouw_.Man("Kring", "Kok");
  bouw_.Relatie(kring, 0, {kring});
  opties_.GenVolgHerh = opties_.GenPerGeneratie = true;
  EXPECT_EQ(Schrijf(kring), Einde::Klaar);
  EXPECT_TRUE(Bevat("\r\n XXVIIa.  Kring Kok = IIa.\r\n"));
  EXPECT_TRUE(Bevat("\r\nXXXVIIa.  Kring Kok = IIa.\r\n"));
  EXPECT_TRUE(Bevat("\r\nLXXVIIIa.  Kring Kok = IIa.\r\n"));
  EXPECT_TRUE(Bevat("\r\nGeneratie LXXX\r\n"));
  EXPECT_FALSE(Bevat("LXXXI"));
}

TEST_F(GenSchrijverToets, WieZijnEigenNakomelingIsVolgtBijZijnTweedeKeer) {
  const auto kring = bouw_.Man("Kring", "Kok");
  bouw_.Relatie(kring, 0, {kring});
  EXPECT_EQ(Schrijf(kring), Einde::Klaar);
  EXPECT_TRUE(Bevat("      I.  Kring Kok"));
  EXPECT_TRUE(Bevat(" 1. Kring Kok, volgt IIa."));
  EXPECT_TRUE(Bevat("   IIIa.  Kring Kok = IIa."));
}

TEST_F(GenSchrijverToets, TweeduizendHoofdpersonenKrijgenElkHunPlaats) {
  const auto vader = bouw_.Man("Vader", "Kok");
  std::vector<std::int16_t> generatie{vader};
  for (const std::size_t gezinnen : {1U, 29U, 40U}) {
    std::vector<std::int16_t> volgende;
    for (std::size_t i = 0; i < gezinnen; ++i) {
      std::vector<std::int16_t> kinderen;
      for (int k = 0; k < 29; ++k) kinderen.push_back(bouw_.Man("Kind", "Kok"));
      bouw_.Relatie(generatie[i], 0, kinderen);
      volgende.insert(volgende.end(), kinderen.begin(), kinderen.end());
    }
    generatie = volgende;
  }
  EXPECT_EQ(Schrijf(vader), Einde::Klaar);
  std::size_t koppen = 0;
  std::size_t verwijzingen = 0;
  for (std::size_t plek = 0; (plek = uit_.find(".  ", plek)) != std::string::npos; ++plek) ++koppen;
  for (std::size_t plek = 0; (plek = uit_.find(", volgt ", plek)) != std::string::npos; ++plek) {
    ++verwijzingen;
  }
  EXPECT_EQ(koppen, 2000U);
  EXPECT_EQ(verwijzingen, 1999U);
  EXPECT_TRUE(Bevat(" IVaqk.  Kind Kok.\r\n"));
  EXPECT_TRUE(Bevat("27. Kind Kok, volgt IVaqk\r\n            28. Kind Kok\r\n"));
}

TEST_F(GenSchrijverToets, DeTellerVolgtWieGeschrevenWordt) {
  const auto vader = bouw_.Man("Vader", "Kok");
  const auto een = bouw_.Man("Een", "Kok");
  const auto twee = bouw_.Man("Twee", "Kok");
  bouw_.Relatie(vader, 0, {een, twee});
  EXPECT_EQ(Bouw(vader), Einde::Klaar);
  std::vector<std::pair<int, int>> getoond;
  verloop_.toon = [&](int persoon, int aantal) { getoond.emplace_back(persoon, aantal); };
  EXPECT_EQ(SchrijfTabel(), Einde::Klaar);
  EXPECT_EQ(getoond, (std::vector<std::pair<int, int>>{{vader, 1}, {een, 2}, {twee, 3}}));
}

TEST_F(GenSchrijverToets, EenStopLaatHetBestandZoverAlsHetWas) {
  const auto vader = bouw_.Man("Vader", "Kok");
  bouw_.Relatie(vader, 0, {bouw_.Man("Een", "Kok"), bouw_.Man("Twee", "Kok")});
  EXPECT_EQ(Bouw(vader), Einde::Klaar);
  int test = 0;
  verloop_.afbreken = [&test] { return ++test == 2; };
  EXPECT_EQ(SchrijfTabel(), Einde::Afgebroken);
  EXPECT_TRUE(Bevat("    IIa.  Een Kok."));
  EXPECT_FALSE(Bevat("    IIb.  "));
}

TEST_F(GenSchrijverToets, EenLegeOfBeschadigdePlaatsIsGeenKind) {
  const auto vader = bouw_.Man("Vader", "Kok");
  const auto relatie = bouw_.Relatie(vader, 0, {bouw_.Man("Een", "Kok")});
  bouw_.WijzigRelatie(relatie, {{"Kind2", "-7"}});
  EXPECT_EQ(Schrijf(vader), Einde::Klaar);
  EXPECT_TRUE(Bevat(" 1. Een Kok, volgt IIa.\r\n"));
}

TEST_F(GenSchrijverToets, EenNaamZonderAchternaamHeeftGeenBlancoAanHetEind) {
  const auto vader = bouw_.Man("Willem", "");
  bouw_.Relatie(vader, bouw_.Vrouw("Anna", "Vis"));
  EXPECT_EQ(Schrijf(vader), Einde::Klaar);
  EXPECT_TRUE(Bevat("          Willem, tr. Anna Vis.\r\n"));
}

TEST_F(GenSchrijverToets, InHTMLIsOokDeNaamAanHetHoofdVanEenRelatieGecodeerd) {
  const auto vader = bouw_.Man("Jan", "Kok & <Zn>");
  bouw_.Relatie(vader, bouw_.Vrouw("Anna", "Vis"));
  opties_.GenInHTML = true;
  EXPECT_EQ(Schrijf(vader), Einde::Klaar);
  EXPECT_TRUE(Bevat("\r\n          Jan Kok &amp; &lt;Zn&gt;, tr. <STRONG>Anna</STRONG>"));
}

TEST_F(GenSchrijverToets, InHTMLHeeftEenKindZonderPlaatsElkeRelatieOpHaarRegel) {
  const auto jan = bouw_.Man("Jan", "Kok");
  const auto een = bouw_.Vrouw("Een", "Kok");
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"), {een});
  bouw_.Relatie(bouw_.Man("Piet", "Pot"), een, {bouw_.Man("Kind", "Pot")});
  bouw_.Relatie(bouw_.Man("Klaas", "Bos"), een);
  opties_.GenInHTML = true;
  opties_.GenVolgDochters = GenDochters::Geen;
  EXPECT_EQ(Schrijf(jan), Einde::Klaar);
  EXPECT_TRUE(
      Bevat("<OL>\r\n            <LI><STRONG>Een</STRONG> <STRONG>Kok</STRONG>, tr. "
            "<STRONG>Piet</STRONG> <STRONG>Pot</STRONG><BR>\r\n               "
            "Een Kok, tr.(2) <STRONG>Klaas</STRONG> <STRONG>Bos</STRONG></OL>.\r\n"));
}

TEST_F(GenSchrijverToets, EenVerwijzingNaarOudersOnderNulIsErGeen) {
  const auto vader = bouw_.Man("Jan", "Kok", {{"Ouders", "-7"}});
  bouw_.Relatie(vader, bouw_.Vrouw("Anna", "Vis", {{"Ouders", "-7"}}));
  EXPECT_EQ(Schrijf(vader), Einde::Klaar);
  EXPECT_TRUE(Bevat("      I.  Jan Kok\r\n\r\n          Jan Kok, tr. Anna Vis.\r\n"));
}

// Records that the table does not need, and the report does.
class GenLeesfout : public GenSchrijverToets {
 protected:
  void Verwacht(std::int16_t stamouder, const Leesfout& fout) {
    EXPECT_EQ(Bouw(stamouder), Einde::Klaar);
    const Uitslag uitslag = SchrijfTabel();
    EXPECT_EQ(uitslag, Einde::Leesfout);
    EXPECT_EQ(uitslag.fout, fout);
  }
  std::int16_t vader_ = bouw_.Man("Vader", "Kok");
};

TEST_F(GenLeesfout, EenOnleesbarePartnerEindigtHetVerslag) {
  bouw_.WijzigRelatie(bouw_.Relatie(vader_, 0), {{"VrouwNr", "500"}});
  Verwacht(vader_, {BestandSoort::Personen, 500});
}

TEST_F(GenLeesfout, OnleesbareOudersVanEenPartnerEindigenHetVerslag) {
  bouw_.Relatie(vader_, bouw_.Vrouw("Anna", "Vis", {{"Ouders", "501"}}));
  Verwacht(vader_, {BestandSoort::Relaties, 501});
}

TEST_F(GenLeesfout, OnleesbareOudersVanDeStamouderEindigenHetVerslag) {
  bouw_.WijzigPersoon(vader_, {{"Ouders", "502"}});
  Verwacht(vader_, {BestandSoort::Relaties, 502});
}

TEST_F(GenLeesfout, EenOnleesbaarKindVanEenUitgeslotenTakEindigtHetVerslag) {
  const auto relatie = bouw_.Relatie(vader_, 0, {bouw_.Man("Een", "Kok")});
  bouw_.WijzigRelatie(relatie, {{"Kind2", "503"}});
  opties_.GenVolgNiet[0] = vader_;
  Verwacht(vader_, {BestandSoort::Personen, 503});
}

TEST_F(GenLeesfout, EenOnleesbareRelatieVanEenKindZonderPlaatsEindigtHetVerslag) {
  bouw_.Relatie(vader_, 0, {bouw_.Man("Een", "Kok", {{"Relatie1", "504"}})});
  opties_.GenVolgZonen = GenZonen::Geen;
  Verwacht(vader_, {BestandSoort::Relaties, 504});
}

TEST_F(GenLeesfout, EenOnleesbareRelatieVanEenUitgeslotenTakEindigtHetVerslag) {
  bouw_.WijzigPersoon(vader_, {{"Relatie1", "505"}});
  opties_.GenVolgNiet[0] = vader_;
  Verwacht(vader_, {BestandSoort::Relaties, 505});
}

TEST_F(GenLeesfout, EenStamouderDieWegIsEindigtHetVerslag) {
  EXPECT_EQ(Bouw(vader_), Einde::Klaar);
  opties_.GenStamouderNr = 506;
  EXPECT_EQ(SchrijfTabel(), Einde::Leesfout);
}

}  // namespace
}  // namespace lb77
