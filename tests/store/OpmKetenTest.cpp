// The walks along chains of remarks.
#include <gtest/gtest.h>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

struct OpmKetenTest : ::testing::Test {
  ~OpmKetenTest() override { EXPECT_EQ(set.Getoond(), Boxen{}); }

  // Writes records from 2 on as they are told: rubric, next line, next remark, prog.
  struct Regel {
    int rubriek;
    int volgRegel;
    int bijZelfde;
    int prog = 23;
  };
  void Bouw(const std::vector<Regel>& regels) {
    for (std::size_t i = 0; i < regels.size(); ++i) {
      ASSERT_TRUE(set.Opmerking.Nieuw(static_cast<std::int32_t>(i + 2)));
      set.Opmerking.Zet("Rubriek", std::to_string(regels[i].rubriek));
      set.Opmerking.Zet("BijRecord", "2");
      set.Opmerking.Zet("VolgRegel", std::to_string(regels[i].volgRegel));
      set.Opmerking.Zet("BijZelfde", std::to_string(regels[i].bijZelfde));
      set.Opmerking.Zet("BijProg", std::to_string(regels[i].prog));
      set.Opmerking.ZetTekst("tekst " + std::to_string(i + 2));
      ASSERT_TRUE(set.Opmerking.Schrijf());
    }
  }
  std::string Tekst(int rubriek, int regel, bool nietHTML = false, int begin = 2,
                    int code = 0x7FFF) {
    return set.Opmerking.OpmerkingTekst(Kort(code), Kort(begin), Kort(rubriek), Kort(regel),
                                        nietHTML);
  }
  std::string Progs(int rubriek, int regel, bool nietHTML = false, int begin = 2,
                    int code = 0x7FFF) {
    return set.Opmerking.OpmerkingProgs(Kort(code), Kort(begin), Kort(rubriek), Kort(regel),
                                        nietHTML);
  }
  std::pair<int, int> Plek(int rubriek, int regel, int begin = 2) {
    const OpmVindplaats plek =
        set.Opmerking.OpmRecordNr(0x7FFF, Kort(begin), Kort(rubriek), Kort(regel), false);
    return {plek.Nr, plek.Vorige};
  }
  static std::int16_t Kort(int getal) { return static_cast<std::int16_t>(getal); }

  Storing storing;
  ProefSet set{FalendeOpener(storing)};
};

using Paar = std::pair<int, int>;

}  // namespace

TEST_F(OpmKetenTest, DeRegelsVanEenOpmerkingOpNummer) {
  Bouw({{4096, 3, 0}, {4096, 4, 0}, {4096, 0, 0}});
  EXPECT_EQ(Tekst(4096, 1), "tekst 2");
  EXPECT_EQ(Tekst(4096, 2), "tekst 3");
  EXPECT_EQ(Tekst(4096, 3), "tekst 4");
  EXPECT_EQ(Tekst(4096, 4), "");
  EXPECT_EQ(Tekst(4096, 10), "");
  EXPECT_EQ(Tekst(4096, 0), "");
  EXPECT_EQ(Tekst(4096, -1), "");
}

TEST_F(OpmKetenTest, AndereRubriekenWordenOvergeslagen) {
  Bouw({{1, 3, 4}, {1, 0, 0}, {8, 0, 5}, {4096, 0, 0}});
  EXPECT_EQ(Tekst(1, 2), "tekst 3");
  EXPECT_EQ(Tekst(8, 1), "tekst 4");
  EXPECT_EQ(Tekst(4096, 1), "tekst 5");
  EXPECT_EQ(Tekst(2, 1), "");
}

TEST_F(OpmKetenTest, Regel11IsDeVolgendeOpmerkingVanDeRubriekEnGeenElfdeRegel) {
  Bouw({{1, 3, 4}, {1, 0, 0}, {8, 0, 5}, {1, 6, 7}, {1, 0, 0}, {1, 0, 0}});
  EXPECT_EQ(Tekst(1, 11), "tekst 5");
  EXPECT_EQ(Tekst(1, 12), "tekst 6");
  EXPECT_EQ(Tekst(1, 21), "tekst 7");
  EXPECT_EQ(Tekst(1, 31), "");
  EXPECT_EQ(Progs(1, 31), "255");
}

TEST_F(OpmKetenTest, ZonderBeginOfZonderDeRubriekIsErNiets) {
  Bouw({{1, 0, 0}});
  EXPECT_EQ(Tekst(1, 1, false, 0), "");
  EXPECT_EQ(Progs(1, 1, false, 0), "0");
  EXPECT_EQ(Tekst(1, 1, false, 2, 2), "");
  EXPECT_EQ(Progs(1, 1, false, 2, 2), "0");
  EXPECT_EQ(Plek(1, 1, 0), Paar(0, 0));
}

TEST_F(OpmKetenTest, CodeEnRubriekVergelijkenZonderTeken) {
  Bouw({{-256, 0, 0}});
  EXPECT_EQ(Tekst(-256, 1, false, 2, -257), "tekst 2");
  EXPECT_EQ(Tekst(-256, 1, false, 2, 256), "tekst 2");
  EXPECT_EQ(Tekst(-1, 1, false, 2, -256), "");
}

TEST_F(OpmKetenTest, EenOpmerkingAlleenVoorHTMLWordtOvergeslagenAlsErGeenHTMLIs) {
  Bouw({{1, 0, 3, 64}, {1, 0, 0, 23}});
  EXPECT_EQ(Tekst(1, 1), "tekst 2");
  EXPECT_EQ(Progs(1, 1), "64");
  EXPECT_EQ(Tekst(1, 1, true), "tekst 3");
  EXPECT_EQ(Progs(1, 1, true), "23");
  EXPECT_EQ(Tekst(1, 11, true), "");
}

TEST_F(OpmKetenTest, EenVerkeerdeVerwijzingStaatInDeTekst) {
  Bouw({{1, 77, -3}, {8, 0, 1}});
  EXPECT_EQ(Tekst(1, 2), ">> Verkeerde verwijzing: opm-record 77 bestaat niet <<");
  EXPECT_EQ(Progs(1, 2), "0");
  EXPECT_EQ(Tekst(8, 1), ">> Verkeerde verwijzing: opm-record -3 bestaat niet <<");
  EXPECT_EQ(Tekst(2, 1, false, 3), ">> Verkeerde verwijzing: opm-record 1 bestaat niet <<");
  EXPECT_EQ(Tekst(1, 1, false, 4), ">> Verkeerde verwijzing: opm-record 4 bestaat niet <<");
  EXPECT_EQ(Plek(8, 1), Paar(0, 2));
}

TEST_F(OpmKetenTest, EenLeesfoutStaatInDeTekst) {
  Bouw({{1, 3, 0}, {1, 0, 0}, {1, 0, 0}});
  // Record 1, the last record, then the chain.
  storing = {.bij = 3};
  EXPECT_EQ(Tekst(1, 1), ">> Leesfout opm-record 2 bestaat niet <<");
  storing = {.bij = 4};
  EXPECT_EQ(Progs(1, 2), "0");
  const std::string melding = "! stop \"Fout bij het lezen van Opmrecord ";
  EXPECT_EQ(set.Getoond(),
            (Boxen{melding + "2\\nFout van de schijf\"", melding + "3\\nFout van de schijf\""}));
}

TEST_F(OpmKetenTest, EenKringEindigtInEenVerkeerdeVerwijzing) {
  Bouw({{1, 3, 3}, {1, 2, 2}, {1, 0, 0}});
  EXPECT_EQ(Tekst(1, 2), "tekst 3");
  EXPECT_EQ(Tekst(1, 10), ">> Verkeerde verwijzing: opm-record 3 bestaat niet <<");
  EXPECT_EQ(Tekst(8, 1), ">> Verkeerde verwijzing: opm-record 3 bestaat niet <<");
  EXPECT_EQ(Progs(8, 1), "0");
}

TEST_F(OpmKetenTest, DeVindplaatsVanElkeRegelEnDeOpmerkingErvoor) {
  Bouw({{1, 3, 4}, {1, 0, 0}, {8, 0, 5}, {1, 6, 0}, {1, 0, 0}});
  EXPECT_EQ(Plek(1, 1), Paar(2, 0));
  EXPECT_EQ(Plek(1, 2), Paar(3, 0));
  EXPECT_EQ(Plek(1, 3), Paar(0, 0));
  EXPECT_EQ(Plek(8, 1), Paar(4, 2));
  EXPECT_EQ(Plek(1, 11), Paar(5, 4));
  EXPECT_EQ(Plek(1, 12), Paar(6, 4));
  EXPECT_EQ(Plek(2, 1), Paar(0, 5)) << "zonder vondst: achter de laatste opmerking";
}

TEST_F(OpmKetenTest, HetEindeVanDeKettingIsDeLaatsteOpmerking) {
  Bouw({{1, 3, 4}, {1, 0, 0}, {8, 0, 5}, {1, 0, 0}});
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(0), 0);
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(5), 5);
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(2), 5);
}

TEST_F(OpmKetenTest, DeOpmCodeVanEenKetting) {
  Bouw({{1, 0, 3}, {4096, 0, 4}, {8, 0, 0}, {-1, 0, 6}, {-256, 0, 0}});
  EXPECT_EQ(set.Opmerking.BepaalOpmCode(2), 4105);
  EXPECT_EQ(set.Opmerking.BepaalOpmCode(5), -257);
  EXPECT_EQ(set.Opmerking.BepaalOpmCode(0), 0);
}

TEST_F(OpmKetenTest, EenSlechteKettingWordtGemeld) {
  Bouw({{1, 0, 99}, {1, 0, 0}});
  const Boxen melding{"! uitroep \"Verkeerde verwijzing: opm-record 99 bestaat niet\""};
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(2), -1);
  EXPECT_EQ(set.Getoond(), melding);
  EXPECT_EQ(set.Opmerking.BepaalOpmCode(2), 0);
  EXPECT_EQ(set.Getoond(), melding);
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(1), -1);
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(-4), -1);
  EXPECT_EQ(set.Getoond(), (Boxen{"! uitroep \"Verkeerde verwijzing: opm-record 1 bestaat niet\"",
                                  "! uitroep \"Verkeerde verwijzing: opm-record -4 bestaat "
                                  "niet\""}));
}

TEST_F(OpmKetenTest, EenKettingDieNietTeLezenIsWordtGemeld) {
  Bouw({{1, 0, 3}, {1, 0, 0}});
  storing = {.bij = 3};
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(2), -1);
  EXPECT_EQ(set.Getoond(),
            (Boxen{"! stop \"Fout bij het lezen van Opmrecord 2\\nFout van de schijf\"",
                   "! uitroep \"Leesfout opm-record 2 bestaat niet\""}));
}

TEST_F(OpmKetenTest, EenKringInDeKettingEindigtInEenMelding) {
  Bouw({{1, 0, 3}, {8, 0, 2}});
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(2), -1);
  EXPECT_EQ(set.Opmerking.BepaalOpmCode(3), 0);
  EXPECT_EQ(set.Getoond().size(), 2U);
}

TEST_F(OpmKetenTest, EenKettingDieAlleRecordsGebruiktKomtHeelDoor) {
  std::vector<Regel> regels;
  for (int nr = 2; nr <= 200; ++nr) regels.push_back({1, 0, nr == 200 ? 0 : nr + 1});
  regels.back().rubriek = 8;
  Bouw(regels);
  EXPECT_EQ(Tekst(8, 1), "tekst 200");
  EXPECT_EQ(set.Opmerking.RecordnrEindeKetting(2), 200);
}
