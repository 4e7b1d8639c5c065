#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "text/Datum.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string Genormaliseerd(std::string_view tekst, char scheider = '-') {
  return DatumGeldig(tekst, scheider).tekst;
}

void VerwachtGeldig(std::string_view tekst, std::string_view vorm) {
  const DatumOordeel oordeel = DatumGeldig(tekst, '-');
  EXPECT_TRUE(oordeel.geldig) << tekst;
  EXPECT_THAT(oordeel.meldingen, IsEmpty()) << tekst;
  EXPECT_EQ(oordeel.tekst, vorm) << tekst;
}

void VerwachtMelding(std::string_view tekst, std::string_view melding) {
  const DatumOordeel oordeel = DatumGeldig(tekst, '-');
  EXPECT_FALSE(oordeel.geldig) << tekst;
  EXPECT_THAT(oordeel.meldingen, ElementsAre(melding)) << tekst;
}

TEST(DatumGeldigTest, LeestAchtCijfersZonderScheider) {
  VerwachtGeldig("12031850", "12-03-1850");
  VerwachtGeldig("1031850", "01-03-1850");
}

TEST(DatumGeldigTest, LeestVierCijfersAlsJaar) {
  VerwachtGeldig("1850", "00-00-1850");
}

TEST(DatumGeldigTest, HoudtVanEenLangeTekstZonderScheiderDeLaatsteAchtTekens) {
  VerwachtGeldig("9912031850", "12-03-1850");
}

TEST(DatumGeldigTest, LeestMaandEnJaarAchterEnkeleScheider) {
  VerwachtGeldig("3-051850", "03-05-1850");
  VerwachtGeldig("3- 051850", "03-05-1850");
}

TEST(DatumGeldigTest, LeestDagEnMaandZonderJaarAlsJaarNul) {
  VerwachtGeldig("3-05", "03-05-0000");
  VerwachtMelding("3-5", "Maand bestaat niet");
}

TEST(DatumGeldigTest, LeestDrieStukkenMetBlanksEromheen) {
  VerwachtGeldig(" 3 - 5 - 850 ", "03-05-0850");
}

TEST(DatumGeldigTest, HoudtVanTeLangeStukkenDeLaatsteTekens) {
  VerwachtGeldig("103-105-11850", "03-05-1850");
  VerwachtGeldig("103-051850", "03-05-1850");
}

TEST(DatumGeldigTest, TeltBlanksOmEenTekstZonderScheiderEnOmEenLosseDagNietMee) {
  VerwachtGeldig("12031850 ", "12-03-1850");
  VerwachtGeldig("12 -031850", "12-03-1850");
}

TEST(DatumGeldigTest, MaaktVanAllesNulDeLegeInvoervorm) {
  for (const std::string_view tekst : {"0", "00-00-0000", "", "  -  -    ", "        "}) {
    VerwachtGeldig(tekst, "  -  -    ");
  }
}

TEST(DatumGeldigTest, KentAlleenDeIngesteldeScheider) {
  EXPECT_EQ(Genormaliseerd("3.5.1850", '.'), "03.05.1850");
  EXPECT_EQ(Genormaliseerd("0", '.'), "  .  .    ");
}

TEST(DatumGeldigTest, LeestEenAndereScheiderAlsGewoonTeken) {
  VerwachtGeldig("12.03.1850", "00-03-1850");
}

TEST(DatumGeldigTest, StaatOnbekendeDelenToe) {
  VerwachtGeldig("00-05-1850", "00-05-1850");
  VerwachtGeldig("25-00-1850", "25-00-1850");
  VerwachtGeldig("25-06-0000", "25-06-0000");
  VerwachtGeldig("00-00-1850", "00-00-1850");
}

TEST(DatumGeldigTest, LeestLettersAlsOnbekend) {
  VerwachtGeldig("xx-05-1850", "00-05-1850");
}

TEST(DatumGeldigTest, WeigertEenSchrikkeldagInEenGewoonJaar) {
  VerwachtMelding("29-02-1900", "Het jaar is geen schrikkeljaar");
  VerwachtMelding("29-02-1903", "Het jaar is geen schrikkeljaar");
}

TEST(DatumGeldigTest, StaatEenSchrikkeldagToeOokVoorDeGregoriaanseKalender) {
  VerwachtGeldig("29-02-2000", "29-02-2000");
  VerwachtGeldig("29-02-1904", "29-02-1904");
  VerwachtGeldig("29-02-1204", "29-02-1204");
  VerwachtMelding("29-02-1300", "Het jaar is geen schrikkeljaar");
  VerwachtGeldig("29-02-0000", "29-02-0000");
}

TEST(DatumGeldigTest, WeigertDag31InEenMaandVanDertigDagen) {
  for (const std::string_view tekst : {"31-04-1820", "31-06-1820", "31-09-1820", "31-11-1820"}) {
    VerwachtMelding(tekst, "Dag bestaat niet");
  }
  VerwachtGeldig("31-12-1820", "31-12-1820");
  VerwachtGeldig("30-04-1820", "30-04-1820");
}

TEST(DatumGeldigTest, WeigertDag30InFebruari) {
  VerwachtMelding("30-02-1904", "Dag bestaat niet");
}

TEST(DatumGeldigTest, WeigertDagBoven31EnOnderNul) {
  VerwachtMelding("32-01-1850", "Dag bestaat niet");
  EXPECT_THAT(DatumGeldig("-5.01.1850", '.').meldingen, ElementsAre("Dag bestaat niet"));
}

TEST(DatumGeldigTest, MeldtEenDagDieNergensBestaatInEenKorteMaandNietTweemaal) {
  VerwachtMelding("32-04-1850", "Dag bestaat niet");
  VerwachtMelding("30-02-1903", "Dag bestaat niet");
}

TEST(DatumGeldigTest, LeestEenLeegStukAlsOnbekend) {
  VerwachtGeldig("3--1850", "03-00-1850");
  VerwachtGeldig("--1850", "00-00-1850");
  VerwachtGeldig("3-5-", "03-05-0000");
}

TEST(DatumGeldigTest, LeestVanMeerScheidersAlleenDeEersteTwee) {
  VerwachtGeldig("3-5-1850-1", "03-05-0050");
}

TEST(DatumGeldigTest, MeldtDag32InFebruariTweemaal) {
  EXPECT_THAT(DatumGeldig("32-02-1850", '-').meldingen,
              ElementsAre("Dag bestaat niet", "Dag bestaat niet"));
}

TEST(DatumGeldigTest, WeigertMaand13EnBouwtDeTekstTochOpnieuw) {
  VerwachtMelding("15-13-1850", "Maand bestaat niet");
  EXPECT_EQ(Genormaliseerd("15-13-1850"), "15-13-1850");
  EXPECT_EQ(Genormaliseerd("5-13-850"), "05-13-0850");
}

TEST(DatumGeldigTest, WeigertEenNegatieveMaand) {
  const DatumOordeel oordeel = DatumGeldig("12.-3.1850", '.');
  EXPECT_THAT(oordeel.meldingen, ElementsAre("Maand bestaat niet"));
  EXPECT_EQ(oordeel.tekst, "12.-3.1850");
}

TEST(DatumGeldigTest, StaatJarenVanNulTot2100Toe) {
  VerwachtGeldig("01-01-2100", "01-01-2100");
  VerwachtMelding("01-01-2101", "Alleen Jaartallen tussen 0 en 2100 toegestaan");
  EXPECT_THAT(DatumGeldig("1.1.-500", '.').meldingen,
              ElementsAre("Alleen Jaartallen tussen 0 en 2100 toegestaan"));
}

TEST(DatumGeldigTest, MeldtAllesWatErMisIsInVasteVolgorde) {
  EXPECT_THAT(DatumGeldig("99-99-9999", '-').meldingen,
              ElementsAre("Alleen Jaartallen tussen 0 en 2100 toegestaan", "Maand bestaat niet",
                          "Dag bestaat niet"));
}

TEST(DatumTekstTest, LaatOnbekendeDelenWegEnVultNietAan) {
  EXPECT_EQ(DatumTekst(3, 5, 1850, '-'), "3-5-1850");
  EXPECT_EQ(DatumTekst(0, 5, 1850, '-'), "5-1850");
  EXPECT_EQ(DatumTekst(0, 0, 1850, '-'), "1850");
  EXPECT_EQ(DatumTekst(3, 0, 1850, '.'), "3.1850");
}

TEST(DatumTekstTest, SchrijftEenJaarNulAlsNul) {
  EXPECT_EQ(DatumTekst(3, 5, 0, '-'), "3-5-0");
  EXPECT_EQ(DatumTekst(0, 0, 0, '-'), "0");
}

TEST(Datum10Test, VultDagMaandEnJaarMetNullen) {
  EXPECT_EQ(Datum10(305, 850, '-'), "03-05-0850");
  EXPECT_EQ(Datum10(6, 1850, '.'), "00.06.1850");
  EXPECT_EQ(Datum10(2500, 1850, '.'), "25.00.1850");
}

TEST(Datum10Test, SchrijftJaarNulMetEenMaandAlsVierNullen) {
  EXPECT_EQ(Datum10(5, 0, '-'), "00-05-0000");
}

TEST(Datum10Test, GeeftVoorEenLegeDatumHetLegeMasker) {
  EXPECT_EQ(Datum10(0, 0, '-'), "  -  -    ");
  EXPECT_EQ(Datum10(0, 0, '.'), "  .  .    ");
  EXPECT_EQ(LegeDatum('.').size(), 10U);
}

TEST(Datum10Test, ToontBeschadigdeGetallenHeel) {
  EXPECT_EQ(Datum10(32767, 32767, '-'), "327-67-32767");
  EXPECT_EQ(Datum10(-32768, -32768, '-'), "-327--68--32768");
}

TEST(DatumGetalTest, ZetJaarMaandEnDagAchterElkaar) {
  EXPECT_EQ(DatumGetal(2506, 1850), 18500625);
  EXPECT_EQ(DatumGetal(6, 1850), 18500600);
  EXPECT_EQ(DatumGetal(2500, 1850), 18500025);
  EXPECT_EQ(DatumGetal(0, 0), 0);
  EXPECT_EQ(DatumGetal(32767, 32767), 327677027);
}

void VerwachtDelen(std::string_view tekst, int dag, int maand, int jaar) {
  const DatumDelen delen = OntleedDatum10(tekst);
  EXPECT_EQ(delen.dag, dag) << tekst;
  EXPECT_EQ(delen.maand, maand) << tekst;
  EXPECT_EQ(delen.jaar, jaar) << tekst;
}

TEST(OntleedDatum10Test, LeestVastePlaatsenWatErOokTussenStaat) {
  VerwachtDelen("12-05-1900", 12, 5, 1900);
  VerwachtDelen("12?05!1900", 12, 5, 1900);
  VerwachtDelen("12905819007", 12, 5, 1900);
  VerwachtDelen("  -  -    ", 0, 0, 0);
  VerwachtDelen("12-05-19001", 12, 5, 1900);
}

TEST(OntleedDatum10Test, LeestEenTeKorteTekstAlsOnbekend) {
  VerwachtDelen("", 0, 0, 0);
  VerwachtDelen("12-0", 12, 0, 0);
}

TEST(DatumIsNaTest, VergelijktEerstDeJaren) {
  EXPECT_TRUE(DatumIsNa("12-05-1900", "00-00-1899"));
  EXPECT_FALSE(DatumIsNa("00-00-1899", "12-05-1900"));
}

TEST(DatumIsNaTest, KlaagtNooitOverEenOnbekendDeel) {
  EXPECT_FALSE(DatumIsNa("00-05-1900", "10-05-1900"));
  EXPECT_FALSE(DatumIsNa("10-05-1900", "00-05-1900"));
  EXPECT_FALSE(DatumIsNa("12-00-1900", "11-00-1900"));
  EXPECT_FALSE(DatumIsNa("12-06-1900", "11-00-1900"));
  EXPECT_FALSE(DatumIsNa("12-06-0000", "11-05-1900"));
  EXPECT_FALSE(DatumIsNa("12-06-1900", "  -  -    "));
}

TEST(DatumIsNaTest, VergelijktBijGelijkeJarenDeMaandenEnDanDeDagen) {
  EXPECT_TRUE(DatumIsNa("01-06-1900", "30-05-1900"));
  EXPECT_FALSE(DatumIsNa("30-05-1900", "01-06-1900"));
  EXPECT_TRUE(DatumIsNa("13-05-1900", "12-05-1900"));
  EXPECT_FALSE(DatumIsNa("12-05-1900", "13-05-1900"));
}

TEST(DatumIsNaTest, VergelijktOokHetJaarEenEnDeMaandEen) {
  EXPECT_TRUE(DatumIsNa("01-06-0001", "01-05-0001"));
  EXPECT_TRUE(DatumIsNa("02-01-1900", "01-01-1900"));
}

TEST(DatumIsNaTest, VindtGelijkeDatumsNietLater) {
  EXPECT_FALSE(DatumIsNa("12-05-1900", "12-05-1900"));
}

TEST(DatumIsNaTest, LeestBlanksAlsNullenEnElkeScheider) {
  EXPECT_TRUE(DatumIsNa(" 2.06.1900", " 1-06-1900"));
  EXPECT_TRUE(DatumIsNa("1 -06-1900", "09-06-1900"));
}

}  // namespace
}  // namespace lb77
