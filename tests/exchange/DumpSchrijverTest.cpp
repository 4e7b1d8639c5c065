// The dumps of the four files, column by column.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "exchange/DumpSchrijver.h"
#include "exchange/FaalUitvoer.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The lines, "|" for each TAB.
std::string Leesbaar(std::string tekst) {
  std::ranges::replace(tekst, '\t', '|');
  return tekst;
}

class DumpSchrijverTest : public ::testing::Test {
 protected:
  DumpSchrijverTest() {
    set_.schrijfwijze.DatumScheider = '-';
    set_.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  }

  BouwFamilie& Bouw() { return set_.bouw; }
  std::string Dump(const DumpSoort& soort) {
    const Gegevens gegevens{set_.Persoon,   set_.Relatie, set_.Plaats,
                            set_.Opmerking, set_.volgers, set_.schrijfwijze};
    aantal_ = SchrijfDump(soort, gegevens, uit_, log_,
                          {[this] { return !uit_.Fout(); },
                           [this](std::int32_t aantal) { getoond_.push_back(aantal); }});
    return Leesbaar(uit_.Neem());
  }
  // The record's bytes become those of a part of the file that was never written.
  void MaakGat(const std::filesystem::path& pad, std::size_t lengte, std::size_t nr) {
    std::string bytes = LeesBytes(pad);
    bytes.replace(lengte * (nr - 1), lengte, lengte, '\0');
    SchrijfBytes(pad, bytes);
    set_.Heropen();
  }

  ProefSet set_;
  FaalUitvoer uit_;
  FaalUitvoer log_;
  std::int32_t aantal_ = -1;
  std::vector<std::int32_t> getoond_;
};

TEST_F(DumpSchrijverTest, EenPersoonHeeftVierentwintigKolommen) {
  Bouw().Vrouw("Anna", "van Dam",
               {{"Beroep", "naaister"},
                {"GebCorr", "C"},
                {"GebDatum", "01-02-1800"},
                {"GebPlaats", "20002"},
                {"DoopDatum", "00-03-1800"},
                {"DoopPlaats", "3"},
                {"OvlCorr", "N"},
                {"OvlDatum", "00-00-1870"},
                {"OvlPlaats", "4"},
                {"BegrDatum", "05-06-1870"},
                {"BegrPlaats", "5"},
                {"BegrCrem", "1"},
                {"DoopReligie", "NH"},
                {"Ouders", "6"},
                {"Relatie1", "7"},
                {"Relatie2", "8"},
                {"Relatie3", "9"},
                {"OpmRecord", "10"},
                {"OpmCode", "4096"}});
  EXPECT_EQ(Dump(kDumpPers),
            "2|V|Anna|van Dam|naaister|C|01-02-1800|20002|00-03-1800|3|N|00-00-1870|4|05-06-1870|5|"
            "Crematie|NH|Nederlands Hervormd|6|7|8|9|10|4096|\n");
  EXPECT_EQ(aantal_, 1);
}

TEST_F(DumpSchrijverTest, ZonderDatumsBlijvenDeTabs) {
  Bouw().Persoon('?', "", "");
  Bouw().Man("Jan", "", {{"BegrDatum", "00-00-1870"}});
  EXPECT_EQ(Dump(kDumpPers),
            "2|O||||||0||0|||0||0||||0|0|0|0|0|0|\n"
            "3|M|Jan|||||0||0|||0|00-00-1870|0|Begraven|||0|0|0|0|0|0|\n");
}

TEST_F(DumpSchrijverTest, EenVervolgVanEenPersoonHeeftAlleenZijnVerwijzingen) {
  const auto man = Bouw().Man("Jan", "Jansen");
  for (int i = 0; i < 5; ++i) Bouw().Relatie(man, 0);
  ASSERT_TRUE(set_.Persoon.Wijzig(3, {{"Beroep", "smid"},
                                      {"OvlCorr", "C"},
                                      {"BegrCrem", "1"},
                                      {"BegrDatum", "01-01-1900"},
                                      {"DoopReligie", "NH"}}));
  EXPECT_EQ(Dump(kDumpPers),
            "2|M|Jan|Jansen||||0||0|||0||0||||0|2|3|-3|0|0|\n"
            "3|||||Z||0||0|||0|01-01-1900|0||||0|4|5|6|0|0|\n");
}

TEST_F(DumpSchrijverTest, EenRelatieHeeftDrieendertigKolommen) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 15; ++i) kinderen.push_back(Bouw().Man("Kind", ""));
  Bouw().Relatie(3, 4, kinderen,
                 {{"OtrDatum", "01-04-1825"},
                  {"OtrPlaats", "10002"},
                  {"HuwCorr", "V"},
                  {"WHuwDatum", "20-04-1825"},
                  {"WHuwPlaats", "3"},
                  {"HuwSoort", "NH"},
                  {"KHuwDatum", "00-00-1826"},
                  {"KHuwPlaats", "4"},
                  {"Religie", "XX"},
                  {"OpmRecord", "5"},
                  {"OpmCode", "-8"}});
  EXPECT_EQ(
      Dump(kDumpRel),
      "2|3|4|01-04-1825|10002|V|20-04-1825|3|Huwelijk (wet)|NH|Nederlands Hervormd|00-00-1826|"
      "4|Huwelijk (kerk)|XX|01-04-1825|5|-8|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16|\n");
}

TEST_F(DumpSchrijverTest, EenRelatieNoemtBondEnScheiding) {
  for (const char* bond : {"0", "1", "2"}) {
    Bouw().Relatie(0, 0, {}, {{"HuwSwPs", bond}, {"KHuwSch", "1"}, {"Religie", "NH"}});
  }
  EXPECT_EQ(Dump(kDumpRel),
            "2|0|0||0|||0|Huwelijk (wet)||||0|Scheiding|Nederlands Hervormd||0|0|"
            "0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|\n"
            "3|0|0||0|||0|Samenwonen||||0|Scheiding|Nederlands Hervormd||0|0|"
            "0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|\n"
            "4|0|0||0|||0|Partnerschap||||0|Scheiding|Nederlands Hervormd||0|0|"
            "0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|\n");
}

TEST_F(DumpSchrijverTest, EenVervolgVanEenRelatieHeeftAlleenZijnVerwijzingen) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 16; ++i) kinderen.push_back(Bouw().Man("Kind", ""));
  Bouw().Relatie(0, 0, kinderen);
  ASSERT_TRUE(set_.Relatie.Wijzig(3, {{"HuwSoort", "NH"}, {"Religie", "NH"}}));
  const std::string dump = Dump(kDumpRel);
  EXPECT_EQ(dump.substr(dump.find('\n') + 1),
            "3|0|0||0|Z||0||||"
            "|0||||0|0|16|17|0|0|0|0|0|0|0|0|0|0|0|0|0|\n");
  EXPECT_NE(dump.find("|14|15|-3|\n"), std::string::npos) << dump;
}

TEST_F(DumpSchrijverTest, EenPlaatsHeeftDrieKolommen) {
  Bouw().Plaats("Delft", "ZH");
  Bouw().Plaats("'s-Gravenhage");
  EXPECT_EQ(Dump(kDumpPlts), "2|ZH|Delft|\n3||'s-Gravenhage|\n");
}

// A record behind the last number that a person can name is no place with a qualifier.
TEST_F(DumpSchrijverTest, EenPlaatsBovenTienduizendIsZichzelf) {
  constexpr std::size_t kLengte = 27;
  Bouw().Plaats("Delft", "ZH");
  std::string bytes = LeesBytes(set_.paden.plt);
  const std::string record = bytes.substr(kLengte, kLengte);
  for (int nr = 3; nr <= 10003; ++nr) bytes += record;
  bytes.replace(10002 * kLengte, 7, "NBBreda");
  bytes[0] = static_cast<char>(10003 % 256);
  bytes[1] = static_cast<char>(10003 / 256);
  SchrijfBytes(set_.paden.plt, bytes);
  set_.Heropen();
  EXPECT_TRUE(Dump(kDumpPlts).ends_with("\n10002|ZH|Delft|\n10003|NB|Breda|\n"));
}

TEST_F(DumpSchrijverTest, EenOpmerkingHeeftZesKolommen) {
  const auto man = Bouw().Man("Jan", "");
  Bouw().OpmerkingBijPersoon(man, 2, {"een", "twee"}, 23);
  Bouw().OpmerkingBijPersoon(man, 1, {"drie"}, 0);
  EXPECT_EQ(Dump(kDumpOpm), "2|2|23|3|4|een|\n3|2|23|0|0|twee|\n4|2|0|0|0|drie|\n");
}

TEST_F(DumpSchrijverTest, StuurtekensBrekenGeenKolom) {
  Bouw().Man("Jan\tPiet", "\rvan Dam\n");
  EXPECT_TRUE(Dump(kDumpPers).starts_with("2|M|Jan Piet|van Dam ||"));
}

TEST_F(DumpSchrijverTest, EenOnleesbaarRecordStaatInHetLogEnHoudtZijnTabs) {
  const auto man = Bouw().Man("A", "");
  Bouw().Man("B", "");
  Bouw().Man("C", "");
  Bouw().Relatie(0, 0);
  Bouw().Relatie(0, 0);
  Bouw().Plaats("Delft");
  Bouw().Plaats("Breda");
  Bouw().OpmerkingBijPersoon(man, 2, {"een", "twee"});
  MaakGat(set_.paden.prs, 128, 3);
  MaakGat(set_.paden.rlt, 64, 2);
  MaakGat(set_.paden.plt, 27, 2);
  MaakGat(set_.paden.opm, 96, 2);
  const std::string personen = Dump(kDumpPers);
  EXPECT_NE(personen.find("\n3" + std::string(24, '|') + "\n4|M|C|"), std::string::npos)
      << personen;
  EXPECT_EQ(aantal_, 3);
  EXPECT_TRUE(Dump(kDumpRel).starts_with("2" + std::string(33, '|') + "\n3|"));
  EXPECT_EQ(Dump(kDumpPlts), "2|||\n3||Breda|\n");
  const std::string opmerkingen = Dump(kDumpOpm);
  EXPECT_TRUE(opmerkingen.starts_with("2" + std::string(6, '|') + "\n3|")) << opmerkingen;
  EXPECT_EQ(log_.Regels(),
            "Leesfout bij Persoonsrecord 3. Record niet ge\xEBxporteerd.\n"
            "Leesfout bij Relatierecord 2. Record niet ge\xEBxporteerd.\n"
            "Leesfout bij Plaatsrecord 2. Record niet ge\xEBxporteerd.\n"
            "Leesfout bij Opmerkingenrecord 2. Record niet ge\xEBxporteerd.\n");
}

TEST_F(DumpSchrijverTest, EenLeegBestandHeeftGeenRegels) {
  EXPECT_EQ(Dump(kDumpPers), "");
  EXPECT_EQ(aantal_, 0);
  EXPECT_THAT(getoond_, IsEmpty());
}

TEST_F(DumpSchrijverTest, TeltElkRecordEnStoptBijEenVolleSchijf) {
  for (int i = 0; i < 5; ++i) Bouw().Man("A", "");
  Dump(kDumpPers);
  EXPECT_THAT(getoond_, ElementsAre(1, 2, 3, 4, 5));
  const Gegevens gegevens{set_.Persoon,   set_.Relatie, set_.Plaats,
                          set_.Opmerking, set_.volgers, set_.schrijfwijze};
  for (std::size_t ruimte = 0; ruimte < 5; ++ruimte) {
    FaalUitvoer klein(ruimte);
    const std::int32_t aantal = SchrijfDump(kDumpPers, gegevens, klein, log_,
                                            {[&klein] { return !klein.Fout(); }, [](int) {}});
    EXPECT_EQ(aantal, static_cast<std::int32_t>(ruimte) + 1);
    EXPECT_EQ(klein.Aantal(), ruimte);
  }
}

TEST_F(DumpSchrijverTest, HetLogVerteltDeKolommenEnHetTotaal) {
  SchrijfDumpSlot(kDumpPlts, "C:\\TEKST\\A_PLT.TXT", 12, log_);
  EXPECT_EQ(log_.Regels(),
            "De structuur van het exportbestand (C:\\TEKST\\A_PLT.TXT) is:\n"
            "kolom 1: recordnummer plaatsrecord (sleutelveld)\n"
            "kolom 2: code provincie\n"
            "kolom 3: plaatsnaam\n"
            "Totaal 12 Plaatsen ge\xEBxpoteerd\n"
            "Exporteren voltooid\n");
}

}  // namespace
}  // namespace lb77
