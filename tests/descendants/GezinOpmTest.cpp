// Remarks on the sheet, and sheets of damaged and of large families.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "descendants/GezinToets.h"

namespace lb77 {
namespace {

class GezinOpm : public GezinToets {
 protected:
  GezinOpm() { opties_.GezinOokOpm = true; }
};

// "<4>" stands where the remark of rubric 4 is told.
std::string Merk(int rubriek) {
  return "<" + std::to_string(rubriek) + ">";
}

constexpr std::int16_t kPersoonRubriekNrs[] = {1,   2,   4,   8,    16,   32,  64,
                                               128, 256, 512, 1024, 2048, 4096};

TEST_F(GezinOpm, HoofdEnPartnerHebbenElkeRubriekAchterHaarElement) {
  bouw_.Plaats("Delft");
  const VeldWaarden velden = {{"GebDatum", "01-01-1800"},  {"GebPlaats", "2"},
                              {"DoopDatum", "02-01-1800"}, {"DoopPlaats", "2"},
                              {"DoopReligie", "NH"},       {"OvlDatum", "01-01-1870"},
                              {"OvlPlaats", "2"},          {"BegrDatum", "04-01-1870"},
                              {"BegrPlaats", "2"},         {"Beroep", "smid"}};
  const auto man = bouw_.Man("Jan", "Bos", velden);
  const auto vrouw = bouw_.Vrouw("Els", "Vos", velden);
  const auto relatie = bouw_.Relatie(man, vrouw);
  for (const std::int16_t wie : {man, vrouw}) {
    for (const std::int16_t rubriek : kPersoonRubriekNrs) {
      bouw_.OpmerkingBijPersoon(wie, rubriek, {Merk(rubriek)}, 8);
    }
  }
  opties_.GezinOokNrs = true;
  const std::string leven =
      "geb. Delft <4> 1-1-1800 <8>\n"
      "ged.Nederlands Hervormd <64> Delft <16> 2-1-1800 <32>\n"
      "ovl. Delft <128> 1-1-1870 <256>\n"
      "begr. Delft <512> 4-1-1870 <1024>\n"
      "smid <2048>\n"
      "    <4096>\n";
  EXPECT_TRUE(Blad(man, relatie)
                  .starts_with("Jan <2> Bos [2] [rel.nr. 2] <1>\n" + leven +
                               "\nEls <2> Vos [3] <1>\n" + leven + "\n\n"))
      << uit_;
}

TEST_F(GezinOpm, EenKindHeeftAlleenDeRubriekenVanZijnDatums) {
  bouw_.Plaats("Delft");
  const auto man = bouw_.Man("Jan", "Bos");
  const auto kind = bouw_.Man("Piet", "Bos",
                              {{"GebDatum", "01-01-1800"},
                               {"GebPlaats", "2"},
                               {"DoopDatum", "02-01-1800"},
                               {"DoopReligie", "NH"},
                               {"OvlDatum", "01-01-1870"},
                               {"BegrPlaats", "2"},
                               {"Beroep", "smid"}});
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  for (const std::int16_t rubriek : kPersoonRubriekNrs) {
    bouw_.OpmerkingBijPersoon(kind, rubriek, {Merk(rubriek)}, 8);
  }
  EXPECT_TRUE(Blad(man, relatie)
                  .ends_with("\n 1. Piet\n"
                             "      geb. Delft <4> 1-1-1800 <8>, ged.Nederlands Hervormd <16> "
                             "2-1-1800 <32>\n"
                             "      ovl. <128> 1-1-1870 <256>, begr. Delft <512> <1024>\n"))
      << uit_;
}

TEST_F(GezinOpm, VanEenSpanGaatGeenOpmerkingVerloren) {
  bouw_.Plaats("Delft");
  const VeldWaarden velden = {{"GebCorr", "T"},
                              {"GebPlaats", "2"},
                              {"GebDatum", "01-01-1800"},
                              {"DoopDatum", "02-02-1801"}};
  const auto man = bouw_.Man("Jan", "Bos", velden);
  const auto kind = bouw_.Man("Piet", "Bos", velden);
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  for (const std::int16_t wie : {man, kind}) {
    for (const int rubriek : {4, 8, 16, 32, 64}) {
      bouw_.OpmerkingBijPersoon(wie, static_cast<std::int16_t>(rubriek), {Merk(rubriek)}, 8);
    }
  }
  const std::string span = "geb. Delft <4> tussen 1-1-1800 <8> en 2-2-1801";
  Blad(man, relatie);
  EXPECT_TRUE(uit_.starts_with("Jan Bos\n" + span + " <64> <16> <32>\n\n")) << uit_;
  EXPECT_TRUE(uit_.ends_with("\n 1. Piet\n      " + span + " <16> <32>\n")) << uit_;
  bouw_.WijzigPersoon(kind, {{"DoopDatum", "00-00-0000"}});
  EXPECT_TRUE(Blad(man, relatie).ends_with("\n      geb. Delft <4> 1-1-1800 <8>\n")) << uit_;
}

TEST_F(GezinOpm, EenRelatieHeeftElkeRubriekAchterHaarElement) {
  bouw_.Plaats("Delft");
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, 0, {},
                                     {{"OtrDatum", "01-01-1800"},
                                      {"OtrPlaats", "2"},
                                      {"WHuwDatum", "02-01-1800"},
                                      {"WHuwPlaats", "2"},
                                      {"HuwSoort", "BS"},
                                      {"KHuwDatum", "03-01-1800"},
                                      {"KHuwPlaats", "2"},
                                      {"Religie", "NH"}});
  for (const int rubriek : {1, 2, 4, 8, 16, 32, 64, 128, 256}) {
    bouw_.OpmerkingBijRelatie(relatie, static_cast<std::int16_t>(-rubriek), {Merk(rubriek)}, 16);
  }
  EXPECT_TRUE(Blad(man, relatie)
                  .starts_with("Jan Bos\n"
                               "ondertr. Delft <1> 1-1-1800 <2>\n"
                               "tr. burgerlijk <16> Delft <4> 2-1-1800 <8>\n"
                               "tr.k. Nederlands Hervormd Delft <32> 3-1-1800 <64>\n"
                               "    <256>\n"
                               "\n"))
      << uit_;
  bouw_.WijzigRelatie(relatie, {{"HuwCorr", "T"}});
  Blad(man, relatie);
  EXPECT_TRUE(Bevat("\ntr. burgerlijk <16> Delft <4> tussen 2-1-1800 <8> en 3-1-1800 <32> <64>\n"));
}

TEST_F(GezinOpm, DeTweeBitsVanHetGezinsbladTellen) {
  const auto man = bouw_.Man("Jan", "Bos", {{"Beroep", "smid"}});
  for (const int bit : {1, 2, 4, 8, 16, 32}) {
    bouw_.OpmerkingBijPersoon(man, 2048, {Merk(bit)}, static_cast<std::int16_t>(bit));
  }
  bouw_.OpmerkingBijPersoon(man, 2048, {"html"}, 8 + 64);
  EXPECT_TRUE(Blad(man, 0).starts_with("Jan Bos\nsmid <8> <16>\n\n"));
  opties_.GezinOokOpm = false;
  EXPECT_TRUE(Blad(man, 0).starts_with("Jan Bos\nsmid\n\n"));
}

TEST_F(GezinOpm, EenAlgemeneOpmerkingSpringtInEnWordtAfgebroken) {
  const auto man = bouw_.Man("Jan", "Bos");
  bouw_.OpmerkingBijPersoon(man, 4096, {std::string(40, 'a'), std::string(40, 'b')}, 8);
  EXPECT_TRUE(Blad(man, 0).starts_with("Jan Bos\n    " + std::string(40, 'a') + "\n    " +
                                       std::string(40, 'b') + "\n\n\n"))
      << uit_;
}

class GezinRand : public GezinToets {};

TEST_F(GezinRand, ZestienKinderenStaanAllenOpHetBlad) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 16; ++i) kinderen.push_back(bouw_.Man("Kind", "Bos"));
  const auto relatie = bouw_.Relatie(man, 0, kinderen);
  Blad(man, relatie);
  EXPECT_TRUE(
      Bevat("\nPersoonsnummers van kinderen :\n"
            "    3     4     5     6     7     8     9    10    11    12    13    14    15\n"
            "16    17    18\nKinderen:\n"))
      << uit_;
  EXPECT_TRUE(Bevat("\n 9. Kind [11]\n10. Kind [12]\n"));
  EXPECT_TRUE(uit_.ends_with("\n16. Kind [18]\n"));
}

// Wherever the line ends, no two numbers become one.
TEST_F(GezinRand, DeNummersVanDeKinderenBlijvenUitElkaar) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 29; ++i) kinderen.push_back(bouw_.Man("K", "Bos"));
  const auto relatie = bouw_.Relatie(man, 0, kinderen);
  std::string verwacht;
  for (const std::int16_t kind : kinderen) verwacht += std::to_string(kind) + " ";
  for (breedte_ = 30; breedte_ <= 90; ++breedte_) {
    Blad(man, relatie);
    const std::size_t begin = uit_.find(" :\n") + 3;
    std::istringstream in(uit_.substr(begin, uit_.find("Kinderen:") - begin));
    std::string gelezen;
    for (std::string nummer; in >> nummer;) gelezen += nummer + " ";
    EXPECT_EQ(gelezen, verwacht) << breedte_;
  }
}

TEST_F(GezinRand, EenGatInDeKinderenLaatHunNummersStaan) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(
      man, 0, {bouw_.Man("Een", "Bos"), bouw_.Man("Twee", "Bos"), bouw_.Man("Drie", "Bos")});
  bouw_.WijzigRelatie(relatie, {{"Kind2", "0"}});
  EXPECT_TRUE(Blad(man, relatie).ends_with("Kinderen:\n 1. Een\n 3. Drie\n"));
}

TEST_F(GezinRand, WieOnleesbaarIsStaatErAlsVraagteken) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto vrouw = bouw_.Vrouw("Els", "Vos");
  const auto kind = bouw_.Man("Piet", "Bos");
  const auto relatie = bouw_.Relatie(man, vrouw, {kind});
  bouw_.Relatie(kind, bouw_.Vrouw("Mia", "Mos"));
  EXPECT_EQ(Blad(999, relatie), "?\n\nJan Bos\n\n\nKinderen:\n 1. Piet\n      tr. Mia Mos\n");
  bouw_.WijzigRelatie(relatie, {{"VrouwNr", "999"}});
  EXPECT_EQ(Blad(man, relatie), "Jan Bos\n\n?\n\n\nKinderen:\n 1. Piet\n      tr. Mia Mos\n");
  bouw_.WijzigRelatie(3, {{"VrouwNr", "999"}});
  EXPECT_TRUE(Blad(man, relatie).ends_with("\n 1. Piet\n      tr. ?\n"));
  bouw_.WijzigPersoon(kind, {{"Relatie1", "999"}});
  EXPECT_TRUE(Blad(man, relatie).ends_with("\n 1. Piet\n      tr. ?\n"));
  bouw_.WijzigRelatie(relatie, {{"Kind1", "999"}});
  EXPECT_TRUE(Blad(man, relatie).ends_with("Kinderen:\n 1. ?\n"));
}

TEST_F(GezinRand, OudersDieOnleesbaarZijnStaanErAlsVraagteken) {
  const auto vader = bouw_.Man("Adam", "Bos");
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(vader, 0, {man});
  bouw_.WijzigRelatie(relatie, {{"VrouwNr", "999"}});
  EXPECT_TRUE(Blad(man, 0).starts_with("Jan Bos\nzn. v. Adam Bos en van ?\n\n"));
  bouw_.WijzigPersoon(man, {{"Ouders", "999"}});
  EXPECT_TRUE(Blad(man, 0).starts_with("Jan Bos\nzn. v. ?\n\n"));
}

TEST_F(GezinRand, EenOnleesbareRelatieGeeftGeenBlad) {
  const auto man = bouw_.Man("Jan", "Bos");
  for (const BladSoort soort : {BladSoort::Compact, BladSoort::Uitgebreid, BladSoort::F6}) {
    opties_.GezinSoort = soort;
    const Uitslag uitslag = Schrijf(man, 99);
    EXPECT_TRUE(uitslag == Einde::Leesfout);
    EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Relaties, 99}));
  }
}

TEST_F(GezinRand, EenLijstDieAfbreektEindigtMetEenVraagteken) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, 0, {bouw_.Man("Piet", "Bos")});
  bouw_.WijzigRelatie(relatie, {{"Kind15", "-99"}});
  EXPECT_TRUE(Blad(man, relatie).ends_with("Kinderen:\n 1. Piet\n?\n"));
}

TEST_F(GezinRand, EenKringInDeGegevensEindigt) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, 0, {man});
  bouw_.WijzigRelatie(relatie, {{"VrouwNr", "2"}});
  EXPECT_EQ(Blad(man, relatie),
            "Jan Bos\nzn. v. Jan Bos en van Jan Bos\n\nJan Bos\nzn. v. Jan Bos en van Jan Bos\n\n\n"
            "Kinderen:\n 1. Jan\n      tr. Jan Bos\n");
}

}  // namespace
}  // namespace lb77
