// Damaged records make no file that breaks the standard, and no run that does not end.
#include <gtest/gtest.h>

#include <random>

#include "exchange/Ged551Grammatica.h"
#include "exchange/Ged551Toets.h"
#include "exchange/Ged551Vulling.h"
#include "steun/FaalBestand.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

class Ged551Schade : public ::testing::TestWithParam<unsigned> {};

// Every third record of each file gets bytes that mean nothing.
void Beschadig(ProefSet& set, unsigned zaad) {
  std::mt19937 toeval(zaad);
  for (const BestandSoort soort : {BestandSoort::Personen, BestandSoort::Relaties,
                                   BestandSoort::Plaatsen, BestandSoort::Opmerkingen}) {
    RecordBestand& bestand = set.bestanden.Bestand(soort);
    std::string bytes(bestand.RecordLengte(), '\0');
    for (std::int32_t nr = 2; bestand.Lees(nr, bytes).gelezen == bytes.size(); ++nr) {
      if (toeval() % 3 != 0) continue;
      // Numbers that are often low lead from record to record.
      for (char& byte : bytes) byte = static_cast<char>(toeval() % (toeval() % 2 == 0 ? 4 : 256));
      ASSERT_FALSE(bestand.Schrijf(nr, bytes));
    }
  }
}

std::string MetCrLf(std::string_view regels) {
  std::string uit;
  for (const char teken : regels) uit.append(teken == '\n' ? "\r" : "").append(1, teken);
  return uit;
}

TEST_P(Ged551Schade, BreektDeStandaardNiet) {
  ProefSet set;
  VulMetToeval(set, GetParam());
  Beschadig(set, GetParam());
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(GrammaticaFouten(MetCrLf(uitvoer.bestand), false), std::vector<std::string>());
  static_cast<void>(set.Getoond());
  ProefSet nieuw;
  static_cast<void>(LeesIn(nieuw, uitvoer.bestand));
  static_cast<void>(nieuw.Getoond());
  EXPECT_GT(nieuw.Persoon.AantalRecords(), 2);
}

INSTANTIATE_TEST_SUITE_P(Zaden, Ged551Schade, ::testing::Range(1U, 9U));

// Is that record whole, or told as not read?
void VerwachtHeelOfGemeld(const Ged551Uitvoer& uitvoer, const std::string& begin,
                          const std::string& melding, int bij) {
  const bool heel = !uitvoer.Van(begin).empty();
  const bool gemeld = uitvoer.log.find(melding) != std::string::npos;
  EXPECT_NE(heel, gemeld) << bij << " " << begin;
}

TEST(Ged551Storing, WaarHetLezenOokMisluktHetBestandKloptEnHetVerslagZegtHet) {
  ProefSet set;
  const std::int16_t delft = set.bouw.Plaats("Delft");
  const std::int16_t man = set.bouw.Man("", "X", {{"GebPlaats", delft}});
  const std::int16_t kind = set.bouw.Man("", "Z");
  set.bouw.Relatie(man, set.bouw.Vrouw("", "Y"), {kind}, {{"OtrPlaats", delft}});
  set.bouw.OpmerkingBijPersoon(man, persoonrubriek::kAlgemeen, {"een", "twee"}, 1);
  const ExpSelectie selectie = AllesVan(set);
  for (const bool blijvend : {false, true}) {
    bool geweest = true;
    for (int bij = 1; geweest; ++bij) {
      Storing storing{.bij = bij, .blijvend = blijvend};
      set.bestanden = Bestandenset(FalendeOpener(storing));
      ASSERT_FALSE(set.bestanden.OpenSet(set.paden));
      const Ged551Uitvoer uitvoer = Exporteer551(set, selectie);
      geweest = storing.Geweest();
      EXPECT_EQ(GrammaticaFouten(MetCrLf(uitvoer.bestand), false), std::vector<std::string>())
          << bij;
      for (const char* nr : {"2", "3", "4"}) {
        VerwachtHeelOfGemeld(uitvoer, std::string("0 @I") + nr + "@ INDI",
                             std::string("Leesfout bij Persoonsrecord ") + nr + ".", bij);
      }
      VerwachtHeelOfGemeld(uitvoer, "0 @F2@ FAM", "Leesfout bij Relatierecord 2.", bij);
      static_cast<void>(set.Getoond());
    }
  }
}

TEST(Ged551Kring, EenKetenDieRondlooptEindigt) {
  ProefSet set;
  const std::int16_t nr = set.bouw.Man("", "X");
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"een", "twee"}, 1);
  const std::int16_t begin = 2;
  ASSERT_TRUE(set.Opmerking.Wijzig(3, {{"VolgRegel", begin}}));
  ASSERT_TRUE(set.Opmerking.Wijzig(begin, {{"BijZelfde", begin}}));
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(uitvoer.Van("0 @I2@ INDI"),
            "1 NAME /X/\n2 SURN X\n1 SEX M\n1 NOTE een\n2 CONT twee\n2 _LBPROG 1\n");
  EXPECT_NE(uitvoer.log.find("al bij een ander staat: 2 keer"), std::string::npos) << uitvoer.log;
}

TEST(Ged551Kring, HetEersteRecordIsGeenOpmerking) {
  ProefSet set;
  const std::int16_t jan = set.bouw.Man("", "Jan");
  const std::int16_t piet = set.bouw.Man("", "Piet");
  set.bouw.OpmerkingBijPersoon(jan, persoonrubriek::kAlgemeen, {"een"}, 1);
  ASSERT_TRUE(set.Opmerking.Wijzig(2, {{"VolgRegel", "1"}, {"BijZelfde", "1"}}));
  set.bouw.WijzigPersoon(piet, {{"OpmRecord", "1"}});
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(uitvoer.Van("0 @I2@ INDI"),
            "1 NAME /Jan/\n2 SURN Jan\n1 SEX M\n1 NOTE een\n2 _LBPROG 1\n");
  EXPECT_EQ(uitvoer.Van("0 @I3@ INDI"), "1 NAME /Piet/\n2 SURN Piet\n1 SEX M\n");
  EXPECT_NE(uitvoer.log.find("al bij een ander staat: 3 keer"), std::string::npos) << uitvoer.log;
}

// A remark that was removed keeps its links, and belongs to no field.
TEST(Ged551Kring, EenVrijRecordIsGeenOpmerking) {
  ProefSet set;
  const std::int16_t man = set.bouw.Man("", "X");
  const std::int16_t relatie = set.bouw.Relatie(0, 0);
  set.bouw.OpmerkingBijPersoon(man, persoonrubriek::kAlgemeen, {"weg"}, 1);
  set.bouw.OpmerkingBijPersoon(man, persoonrubriek::kAchternaam, {"een"}, 1);
  set.bouw.OpmerkingBijRelatie(relatie, relatierubriek::kAlgemeen, {"weg"}, 1);
  set.bouw.OpmerkingBijRelatie(relatie, relatierubriek::kOtrPlaats, {"twee"}, 1);
  ASSERT_TRUE(set.Opmerking.Wijzig(2, {{"Rubriek", "0"}}));
  ASSERT_TRUE(set.Opmerking.Wijzig(4, {{"Rubriek", "0"}}));
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(uitvoer.Van("0 @I2@ INDI"), "1 NAME /X/\n2 SURN X\n2 NOTE een\n3 _LBPROG 1\n1 SEX M\n");
  EXPECT_EQ(uitvoer.Van("0 @F2@ FAM"), "1 MARB\n2 NOTE twee\n3 _LBRUBR -1\n3 _LBPROG 1\n");
  EXPECT_NE(uitvoer.log.find("al bij een ander staat: 2 keer"), std::string::npos) << uitvoer.log;
}

// Persons come first, and leave a relation what is its own.
TEST(Ged551Kring, EenOpmerkingVanEenRelatieBlijftBijHaar) {
  ProefSet set;
  const std::int16_t man = set.bouw.Man("", "X");
  const std::int16_t eerste = set.bouw.Relatie(0, 0);
  const std::int16_t tweede = set.bouw.Relatie(0, 0);
  set.bouw.OpmerkingBijRelatie(tweede, relatierubriek::kAlgemeen, {"een"}, 1);
  set.bouw.OpmerkingBijRelatie(tweede, relatierubriek::kAlgemeen, {"twee"}, 1);
  set.bouw.WijzigPersoon(man, {{"OpmRecord", "2"}});
  set.bouw.WijzigRelatie(eerste, {{"OpmRecord", "3"}});
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(uitvoer.Van("0 @I2@ INDI"), "1 NAME /X/\n2 SURN X\n1 SEX M\n");
  EXPECT_EQ(uitvoer.Van("0 @F2@ FAM"), "");
  EXPECT_EQ(uitvoer.Van("0 @F3@ FAM"), "1 NOTE een\n2 _LBPROG 1\n1 NOTE twee\n2 _LBPROG 1\n");
  EXPECT_NE(uitvoer.log.find("al bij een ander staat: 2 keer"), std::string::npos) << uitvoer.log;
}

TEST(Ged551Kring, EenOpmerkingBlijftBijDeRelatieWaarEenAndereGeenRechtOpHeeft) {
  ProefSet set;
  const std::int16_t eigen = set.bouw.Relatie(0, 0);
  const std::int16_t ander = set.bouw.Relatie(0, 0);
  const std::int16_t vervolg = set.bouw.Relatie(0, 0, {}, {{"HuwCorr", "Z"}, {"OpmRecord", "2"}});
  // The number of a person who has it in his chain: that is another number.
  const std::int16_t man = set.bouw.Man("", "X");
  set.bouw.OpmerkingBijRelatie(eigen, relatierubriek::kAlgemeen, {"een"}, 1);
  set.bouw.WijzigPersoon(man, {{"OpmRecord", "2"}});
  ExpSelectie selectie;
  ASSERT_TRUE(selectie.SelRelaties.Voeg(eigen));
  for (const int naam : {int{ander}, int{vervolg}, 99, 1, 0, -5}) {
    ASSERT_TRUE(set.Opmerking.Wijzig(2, {{"BijRecord", std::to_string(naam)}}));
    EXPECT_EQ(Exporteer551(set, selectie).Van("0 @F2@ FAM"), "1 NOTE een\n2 _LBPROG 1\n") << naam;
  }
}

// Who has a remark is told by his chain up to where it leaves him.
TEST(Ged551Kring, WatAchterEenOpmerkingVanEenAnderLigtIsNietVanHem) {
  ProefSet set;
  const std::int16_t karel = set.bouw.Man("", "Karel");
  const std::int16_t jan = set.bouw.Man("", "Jan");
  const std::int16_t piet = set.bouw.Man("", "Piet");
  set.bouw.OpmerkingBijPersoon(karel, persoonrubriek::kAlgemeen, {"van Karel"}, 1);
  set.bouw.OpmerkingBijPersoon(jan, persoonrubriek::kAlgemeen, {"van Jan"}, 1);
  for (const char* tekst : {"van Piet", "verdwaald"}) {
    set.bouw.OpmerkingBijPersoon(piet, persoonrubriek::kAchternaam, {tekst}, 1);
  }
  ASSERT_TRUE(set.Opmerking.Wijzig(2, {{"BijZelfde", "5"}}));
  const std::string begin = "1 NAME /Karel/\n2 SURN Karel\n";
  EXPECT_EQ(Exporteer551(set).Van("0 @I2@ INDI"),
            begin + "1 SEX M\n1 NOTE van Karel\n2 _LBPROG 1\n");
  ASSERT_TRUE(set.Opmerking.Wijzig(4, {{"BijZelfde", "3"}}));
  ASSERT_TRUE(set.Opmerking.Wijzig(3, {{"BijZelfde", "5"}}));
  EXPECT_EQ(Exporteer551(set).Van("0 @I2@ INDI"),
            begin + "2 NOTE verdwaald\n3 _LBPROG 1\n1 SEX M\n1 NOTE van Karel\n2 _LBPROG 1\n");
}

TEST(Ged551Grens, OokDeHoogstePlaatsGaatMee) {
  ProefSet set;
  set.bouw.Man("", "X", {{"GebPlaats", "10000"}});
  RecordBestand& bestand = set.bestanden.Bestand(BestandSoort::Plaatsen);
  std::string bytes(bestand.RecordLengte(), '\0');
  ASSERT_EQ(bestand.Lees(set.bouw.Plaats("Delft"), bytes).gelezen, bytes.size());
  ASSERT_FALSE(bestand.Schrijf(10000, bytes));
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(uitvoer.Van("0 @P10000@ _LBPLTS"), "1 NAME Delft\n");
  EXPECT_EQ(uitvoer.Van("0 @I2@ INDI"),
            "1 NAME /X/\n2 SURN X\n1 SEX M\n1 BIRT\n2 _LBPLTS @P10000@\n2 PLAC Delft\n");
}

TEST(Ged551Kring, EenLegeRegelStaatErNiet) {
  ProefSet set;
  const std::int16_t nr = set.bouw.Man("", "X");
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"een", "twee", "drie"}, 1);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kBeroep, {"vier"}, 1);
  ASSERT_TRUE(set.Opmerking.Wijzig(3, {{"Tekstregel", " "}}));
  ASSERT_TRUE(set.Opmerking.Wijzig(5, {{"Tekstregel", " "}}));
  EXPECT_EQ(Exporteer551(set).Van("0 @I2@ INDI"),
            "1 NAME /X/\n2 SURN X\n1 SEX M\n1 NOTE een\n2 CONT drie\n2 _LBPROG 1\n");
}

TEST(Ged551Kring, TienRegelsZijnEenOpmerking) {
  ProefSet set;
  const std::int16_t nr = set.bouw.Man("", "X");
  const std::vector<std::string> tien(10, "r");
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, tien, 1);
  std::string verwacht = "1 NAME /X/\n2 SURN X\n1 SEX M\n1 NOTE r\n";
  for (int i = 1; i < 10; ++i) verwacht += "2 CONT r\n";
  EXPECT_EQ(Exporteer551(set).Van("0 @I2@ INDI"), verwacht + "2 _LBPROG 1\n");
}

TEST(Ged551Kring, EenKetenVanMeerDanTienRegelsWordtVerdeeld) {
  ProefSet set;
  const std::int16_t nr = set.bouw.Man("", "X");
  const std::vector<std::string> tien(10, "regel");
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, tien, 1);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"elf"}, 2);
  ASSERT_TRUE(set.Opmerking.Wijzig(11, {{"VolgRegel", 12}}));
  ASSERT_TRUE(set.Opmerking.Wijzig(2, {{"BijZelfde", 0}}));
  EXPECT_TRUE(Exporteer551(set)
                  .Van("0 @I2@ INDI")
                  .ends_with("2 CONT regel\n2 _LBPROG 1\n1 NOTE elf\n2 _LBPROG 1\n"));
}

}  // namespace
}  // namespace lb77
