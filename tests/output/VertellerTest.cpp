#include <gtest/gtest.h>

#include "output/Verteller.h"
#include "output/ZinToets.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class VertellerTest : public ZinToets {
 protected:
  std::string Ouders(std::int16_t sexFlag, std::int16_t relatie, const ZinOpties& opties = {}) {
    bool gelukt = false;
    const std::string uit = Rapport(
        opties, [&](Verteller& verteller) { gelukt = verteller.SchrijfOuders(sexFlag, relatie); });
    return gelukt ? uit : "<afgebroken>";
  }

  static ZinOpties MetNrs() { return Met(false, true); }
  static ZinOpties InHTML() { return Met(true, false); }

 private:
  static ZinOpties Met(bool html, bool nrs) {
    ZinOpties opties;
    opties.inHTML = html;
    opties.ookNrs = nrs;
    return opties;
  }
};

TEST_F(VertellerTest, EenPersoonZonderGebeurtenissenIsZijnNaam) {
  EXPECT_EQ(Verteld(Man({})), "Jan Bos");
}

TEST_F(VertellerTest, MetNummersVolgtHetNummerTussenHaken) {
  EXPECT_EQ(Verteld(Man({{"GebDatum", "00-00-1850"}}), MetNrs()), "Jan Bos [2], geb. 1850");
}

TEST_F(VertellerTest, EenOnleesbarePersoonEindigtHetVerslag) {
  EXPECT_EQ(Verteld(99), "<afgebroken>");
}

TEST_F(VertellerTest, DeBufferHoudtDaarnaDePersoon) {
  const std::int16_t jan = Man({{"GebDatum", "00-00-1850"}});
  Man({});
  EXPECT_EQ(Verteld(jan), "Jan Bos, geb. 1850");
  EXPECT_EQ(set_.volgers.PersBufNr, jan);
}

TEST_F(VertellerTest, InHtmlZijnNamenVetEnIsTekstGecodeerd) {
  const std::int16_t nr = bouw_.Man("Renée"_w, "Bos & Zn", {{"Beroep", "<smid>"}});
  EXPECT_EQ(Verteld(nr, InHTML()),
            "<STRONG>Ren&eacute;e</STRONG> <STRONG>Bos &amp; Zn</STRONG>, &lt;smid&gt;");
}

TEST_F(VertellerTest, InHtmlZijnZinnenGecodeerd) {
  const std::string plaats = std::to_string(bouw_.Plaats("Köln"_w));
  EXPECT_EQ(Verteld(Man({{"GebPlaats", plaats}, {"DoopPlaats", plaats}, {"DoopReligie", "RK"}}),
                    InHTML()),
            "<STRONG>Jan</STRONG> <STRONG>Bos</STRONG>, geb. K&ouml;ln, "
            "ged.Rooms &amp; Kath. K&ouml;ln");
  EXPECT_EQ(VerteldeRelatie(Huwelijk({{"WHuwPlaats", plaats}, {"HuwSoort", "RK"}}), InHTML()),
            ", tr.Rooms &amp; Kath. K&ouml;ln");
}

TEST_F(VertellerTest, EenAchternaamEnZijnKommaScheidenNooit) {
  const std::int16_t nr = Man({{"Beroep", "smid"}});
  const std::string uit = Rapport(
      {}, [&](Verteller& verteller) { EXPECT_TRUE(verteller.SchrijfPersoon(nr)); }, 7);
  EXPECT_EQ(uit, "Jan\r\nBos,\r\nsmid");
}

TEST_F(VertellerTest, TekstVolgtEenRelatieNaEenBlanco) {
  const std::int16_t jan = Man({});
  const std::int16_t relatie = Huwelijk({{"WHuwDatum", "00-00-1870"}});
  TekstSchrijver schrijver;
  ASSERT_TRUE(schrijver.Open(set_.map / "paar.txt"));
  Verteller verteller(bronnen_, schrijver, {});
  ASSERT_TRUE(verteller.SchrijfPersoon(jan));
  ASSERT_TRUE(verteller.SchrijfRelatie(relatie, 2));
  schrijver.Tekst(" ");
  ASSERT_TRUE(verteller.SchrijfPersoon(jan));
  schrijver.TekstUit(".", true, true);
  ASSERT_TRUE(schrijver.Sluit());
  EXPECT_EQ(LeesBytes(set_.map / "paar.txt"), "Jan Bos, tr.(2) 1870 Jan Bos.\r\n");
}

TEST_F(VertellerTest, OudersStaanErMetHetBeroepVanDeVader) {
  const std::int16_t vader = bouw_.Man("Piet", "Bos", {{"Beroep", "smid"}});
  const std::int16_t moeder = bouw_.Vrouw("Anna", "Dam", {{"Beroep", "naaister"}});
  const std::int16_t relatie = bouw_.Relatie(vader, moeder);
  EXPECT_EQ(Ouders(1, relatie), ", zn. van Piet Bos, smid en Anna Dam");
  EXPECT_EQ(Ouders(0, relatie), ", dr. van Piet Bos, smid en Anna Dam");
  EXPECT_EQ(Ouders(-1, relatie), ", dr. van Piet Bos, smid en Anna Dam");
  EXPECT_EQ(Ouders(1, relatie, MetNrs()), ", zn. van Piet Bos [2], smid en Anna Dam [3], naaister");
}

TEST_F(VertellerTest, EenOuderStaatErAlleen) {
  const std::int16_t vader = bouw_.Man("Piet", "Bos");
  const std::int16_t moeder = bouw_.Vrouw("Anna", "Dam");
  EXPECT_EQ(Ouders(1, bouw_.Relatie(vader, 0)), ", zn. van Piet Bos");
  EXPECT_EQ(Ouders(1, bouw_.Relatie(0, moeder)), ", zn. van Anna Dam");
}

TEST_F(VertellerTest, ZonderOudersStaatErNiets) {
  EXPECT_EQ(Ouders(1, bouw_.Relatie(0, 0)), "");
}

TEST_F(VertellerTest, EenOuderZonderNaamIsOnbekend) {
  EXPECT_EQ(Ouders(1, bouw_.Relatie(bouw_.Man("", ""), 0), InHTML()), ", zn. van &lt;onbekend&gt;");
}

TEST_F(VertellerTest, OnleesbareOudersEindigenHetVerslag) {
  EXPECT_EQ(Ouders(1, 99), "<afgebroken>");
  EXPECT_EQ(Ouders(1, Huwelijk({{"ManNr", "99"}})), "<afgebroken>");
  EXPECT_EQ(Ouders(1, Huwelijk({{"VrouwNr", "99"}})), "<afgebroken>");
}

}  // namespace
}  // namespace lb77
