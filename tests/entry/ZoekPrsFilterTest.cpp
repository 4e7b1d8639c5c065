#include <gtest/gtest.h>

#include <string>

#include "entry/ZoekPrsToets.h"

namespace lb77 {
namespace {

using ZoekPrsFilterTest = ZoekPrsToets;

TEST_F(ZoekPrsFilterTest, HetFilterToontAlleenWiePast) {
  Bouw().Man("Jan", "de Vries");
  Bouw().Man("Jan", "De Vries");
  Bouw().Man("Jannes", "de Vries");
  Bouw().Man("Piet", "de Vries");
  const std::string_view aan =
      "druk FilterButton\nvul VoorNm Jan*\nvul AchterNm de*\ndruk OKButton";
  EXPECT_EQ(Pagina(aan), "2 4 ");
  EXPECT_EQ(Pagina("druk FilterButton\nvul AchterNm de\ndruk OKButton"), "");
}

TEST_F(ZoekPrsFilterTest, HetFilterBegintBijRecordTweeEnDeKnopZegtDatHetUitKan) {
  Reeks(40);
  Speelt(R"(
    druk Volgende
    druk FilterButton
    vul AchterNm Reeks
    druk OKButton
    toon FilterButton
    toon RecordNrPrs(1)
    druk FilterButton
    toon FilterButton
    toon RecordNrPrs(1)
  )",
         R"(
    + VraagFilter "Zoek Persoon - Filter op Naam"
    - VraagFilter
    = FilterButton "Filter Uit"
    = RecordNrPrs(1) "2"
    = FilterButton "Start Filter"
    = RecordNrPrs(1) "16"
  )");
}

TEST_F(ZoekPrsFilterTest, EenLeegFilterStaatUit) {
  Reeks(40);
  Speelt("druk FilterButton\ndruk OKButton\ntoon FilterButton\ntoon RecordNrPrs(1)", R"(
    + VraagFilter "Zoek Persoon - Filter op Naam"
    - VraagFilter
    = FilterButton "Start Filter"
    = RecordNrPrs(1) "16"
  )");
  Speelt("druk FilterButton\nvul VoorNm A1\ndruk BackButton\ntoon FilterButton", R"(
    + VraagFilter "Zoek Persoon - Filter op Naam"
    - VraagFilter
    = FilterButton "Start Filter"
  )");
}

TEST_F(ZoekPrsFilterTest, BladerenMetFilterTeltAlleenWiePast) {
  for (int n = 0; n < 50; ++n) {
    Bouw().Man("Even", "Vos");
    Bouw().Man("Oneven", "Vos");
  }
  const std::string aan = "druk FilterButton\nvul VoorNm Oneven\ndruk OKButton\n";
  const auto oneven = [](int van, int tot) {
    std::string uit;
    for (int nr = van; nr <= tot; nr += 2) uit += GetalTekst(nr) + " ";
    return uit;
  };
  EXPECT_EQ(Pagina(aan), oneven(3, 31));
  EXPECT_EQ(Pagina(aan + "druk Volgende"), oneven(33, 61));
  EXPECT_EQ(Pagina(aan + "druk Volgende\ndruk Volgende\ndruk Vorige"), oneven(33, 61));
  EXPECT_EQ(Pagina(aan + "druk Volgende\ndruk Vorige"), oneven(3, 31));
  EXPECT_EQ(Pagina(aan + "druk Vorige"), oneven(3, 31));
}

TEST_F(ZoekPrsFilterTest, TerugbladerenMetFilterSlaatEenOnleesbaarRecordOver) {
  Reeks(60);
  MaakGat(20);
  const std::string aan = "druk FilterButton\nvul AchterNm Reeks\ndruk OKButton\n";
  const std::string verder = aan + "druk Volgende\ndruk Volgende\ndruk Volgende\n";
  EXPECT_EQ(Pagina(verder), Nummers(21, 35));
  EXPECT_EQ(Pagina(verder + "druk Vorige"), Nummers(5, 19));
}

TEST_F(ZoekPrsFilterTest, VolgendeVoorbijHetEindeToontMetFilterWiePastOnderDeLaatsteVijftien) {
  Reeks(40);
  const std::string aan = "druk FilterButton\nvul VoorNm A4*\ndruk OKButton\n";
  EXPECT_EQ(Pagina(aan), "5 41 ");
  EXPECT_EQ(Pagina(aan + "druk Volgende"), "41 ");
}

TEST_F(ZoekPrsFilterTest, EenPaginaMetFilterLeestNietMeerDanNodigIs) {
  Reeks(100);
  Bouw().Man("Jan", "Vos");
  static_cast<void>(Pagina(""));
  const int zonder = Gelezen(BestandSoort::Personen);
  EXPECT_EQ(zonder, 15);
  static_cast<void>(Pagina("druk FilterButton\nvul AchterNm Reeks\ndruk OKButton"));
  EXPECT_EQ(Gelezen(BestandSoort::Personen) - zonder, 15);
  static_cast<void>(Pagina("druk FilterButton\nvul AchterNm Vos\ndruk OKButton"));
  EXPECT_EQ(Gelezen(BestandSoort::Personen) - zonder, 102);
}

}  // namespace
}  // namespace lb77
