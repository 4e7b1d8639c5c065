#include "entry/PlaatsenToets.h"
#include "steun/FaalBestand.h"

namespace lb77 {
namespace {

// Amsterdam (2) becomes Leiden, and Goes is added behind Delft (3); a disk fails meanwhile.
class PlaatsenStoring : public ::testing::Test {
 protected:
  // What was shown and what stands in the file when operation `bij` of OK failed; false behind the
  // last of them.
  [[nodiscard]] bool Faalt(int bij) {
    ProefSet set;
    set.bouw.Plaats("Amsterdam", "NH");
    set.bouw.Plaats("Delft", "ZH");
    Storing storing;
    NepGesprek gesprek;
    const VasteKlok klok{{.jaar = 2000, .maand = 1, .dag = 1}};
    Hoofdmodule hoofd(gesprek, klok, set.map.Pad());
    hoofd.bestanden = Bestandenset(FalendeOpener(storing));
    EXPECT_FALSE(hoofd.bestanden.OpenSet(set.paden));
    ToonPlaatsen pagina(hoofd);
    EXPECT_TRUE(pagina.Laad());
    pagina.Activeer();
    pagina.Bewerkt(pagina.Plaatsen(0).PlaatsnaamTekst, "Leiden");
    pagina.Bewerkt(pagina.Plaatsen(2).PlaatsnaamTekst, "Goes");
    storing.teller = 0;
    storing.bij = bij;
    EXPECT_TRUE(pagina.Klik(pagina.OKButton));
    EXPECT_TRUE(pagina.Gesloten());
    getoond_ = gesprek.Neem();
    set.Heropen();
    plaatsen_ = PlaatsenIn(set.Plaats, 5);
    return storing.Geweest();
  }

  std::vector<std::string> getoond_;
  std::string plaatsen_;
};

TEST_F(PlaatsenStoring, ElkeBewerkingDieMisluktWordtGemeldEnKostGeenAnderePlaats) {
  int bij = 1;
  for (; Faalt(bij); ++bij) {
    SCOPED_TRACE(bij);
    EXPECT_FALSE(getoond_.empty());
    EXPECT_NE(plaatsen_.find("3 Delft ZH\n"), std::string::npos) << plaatsen_;
    const bool oud = plaatsen_.starts_with("2 Amsterdam NH\n");
    EXPECT_TRUE(oud || plaatsen_.starts_with("2 Leiden NH\n")) << plaatsen_;
  }
  EXPECT_EQ(plaatsen_, "2 Leiden NH\n3 Delft ZH\n4 Goes \n");
  EXPECT_TRUE(getoond_.empty());
  EXPECT_GT(bij, 15);
}

// An empty place stays where its name could not be written; the next new one has its number when it
// was not counted.
TEST_F(PlaatsenStoring, ElkeSchrijfactieDieMisluktHeeftZijnMelding) {
  struct Geval {
    int bij;
    std::string_view melding;
    std::string_view plaatsen;
  };
  constexpr Geval kGevallen[] = {
      {6, R"(! stop "Fout bij het schrijven van Plaatsrecord 2\nSchijf vol")",
       "2 Amsterdam NH\n3 Delft ZH\n4 Goes \n"},
      {13, R"(! stop "Fout bij het schrijven van Plaatsrecord 4\nSchijf vol")",
       "2 Leiden NH\n3 Delft ZH\n"},
      {15, R"(! stop "Fout bij het schrijven van het Administratierecord\nSchijf vol")",
       "2 Leiden NH\n3 Delft ZH\n4  \n"},
      {18, R"(! stop "Fout bij het schrijven van Plaatsrecord 4\nSchijf vol")",
       "2 Leiden NH\n3 Delft ZH\n4  \n"},
  };
  for (const auto& [bij, melding, plaatsen] : kGevallen) {
    ASSERT_TRUE(Faalt(bij)) << bij;
    EXPECT_EQ(getoond_, std::vector<std::string>{std::string(melding)}) << bij;
    EXPECT_EQ(plaatsen_, plaatsen) << bij;
  }
}

}  // namespace
}  // namespace lb77
