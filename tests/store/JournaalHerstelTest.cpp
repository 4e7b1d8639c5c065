// A program that dies, or a disk that fails, at each single operation of the files and the journal.
#include <gtest/gtest.h>

#include <random>

#include "store/JournaalToets.h"

using namespace lb77;
using enum BestandSoort;

namespace {

using Wijze = ProefSchijf::Wijze;

class JournaalHerstelTest : public JournaalToets {
 protected:
  JournaalHerstelTest() {
    Vul();
    EXPECT_FALSE(DoeAlles('x'));
    schijf.MaakVast();
    begin_ = Stand();
    beginJournaal_ = schijf.Bytes("00000001.HND");
    EXPECT_FALSE(DoeAlles('y'));
    klaar_ = Stand();
  }

  // The set as it was before the task.
  void Terug() {
    for (const std::string& naam : schijf.Journalen()) schijf.Verwijder(naam);
    Zet(begin_);
    schijf.Bytes("00000001.HND") = beginJournaal_;
    schijf.MaakVast();
    Heropen();
  }

  // Dies at operation `k` of the task. False when the task has fewer.
  bool SterfBij(int k) {
    Terug();
    schijf.teller = 0;
    schijf.bij = k;
    schijf.wijze = Wijze::Dood;
    static_cast<void>(DoeAlles('y'));
    return schijf.Geweest();
  }

  VierBestanden begin_;
  VierBestanden klaar_;
  std::string beginJournaal_;
};

}  // namespace

TEST_F(JournaalHerstelTest, NaElkeOperatieGestorvenGeeftHerstelWatErStond) {
  int gevraagd = 0;
  int k = 1;
  for (; SterfBij(k); ++k) {
    Heropen();
    if (const auto handeling = Dagboek().Onvoltooid()) {
      ++gevraagd;
      EXPECT_EQ(handeling->label, "Alles");
      EXPECT_EQ(handeling->tijd, "1999-12-31 23:59:58");
      EXPECT_EQ(Schrijf(Personen, 2, 'q').tekst, "De vorige bewerking is niet voltooid");
      ASSERT_FALSE(Dagboek().Herstel());
      EXPECT_EQ(Stand(), begin_) << k;
    } else {
      EXPECT_TRUE(Stand() == begin_ || Stand() == klaar_) << k;
    }
    EXPECT_FALSE(Dagboek().Onvoltooid()) << k;
    EXPECT_FALSE(Schrijf(Personen, 2, 'q')) << k;
  }
  EXPECT_GT(k, 30);
  EXPECT_GT(gevraagd, 15);
}

TEST_F(JournaalHerstelTest, NaElkeOperatieGestorvenLaatBehoudStaanWatErStaat) {
  for (int k = 1; SterfBij(k); ++k) {
    Heropen();
    if (!Dagboek().Onvoltooid()) continue;
    const VierBestanden stand = Stand();
    ASSERT_FALSE(Dagboek().Behoud());
    EXPECT_EQ(Stand(), stand) << k;
    Heropen();
    EXPECT_FALSE(Dagboek().Onvoltooid()) << k;
    const auto regels = Dagboek().Geschiedenis();
    ASSERT_EQ(regels.size(), 2U) << k;
    EXPECT_TRUE(regels[1].gaaf);
    EXPECT_TRUE(Dagboek().MaakOngedaan(2)) << k;
    EXPECT_EQ(Stand(), begin_) << k;
  }
}

TEST_F(JournaalHerstelTest, OokHetHerstelZelfMagOpElkeOperatieSterven) {
  ASSERT_TRUE(SterfBij(25));
  Heropen();
  ASSERT_TRUE(Dagboek().Onvoltooid());
  int k = 1;
  for (bool verder = true; verder; ++k) {
    ASSERT_TRUE(SterfBij(25));
    Heropen();
    schijf.bij = schijf.teller + k;
    schijf.wijze = Wijze::Dood;
    static_cast<void>(Dagboek().Herstel());
    verder = schijf.Geweest();
    Heropen();
    if (Dagboek().Onvoltooid()) {
      EXPECT_FALSE(Dagboek().Herstel());
    }
    EXPECT_EQ(Stand(), begin_) << k;
  }
  EXPECT_GT(k, 10);
}

TEST_F(JournaalHerstelTest, StroomuitvalKostHoogstensDeLaatsteHandeling) {
  std::mt19937 toeval(77);
  for (int ronde = 0; ronde < 20; ++ronde) {
    for (int k = 1; SterfBij(k); ++k) {
      bestanden.reset();
      schijf.Stroomuitval(toeval);
      Open();
      if (Dagboek().Onvoltooid()) {
        ASSERT_FALSE(Dagboek().Herstel());
      }
      EXPECT_TRUE(Stand() == begin_ || Stand() == klaar_) << k;
      const auto regels = Dagboek().Geschiedenis();
      ASSERT_GE(regels.size(), 1U);
      EXPECT_TRUE(regels[0].gaaf);
    }
  }
}

TEST_F(JournaalHerstelTest, WatVoltooidIsOverleeftDeStroom) {
  std::mt19937 toeval(77);
  for (int ronde = 0; ronde < 200; ++ronde) {
    Terug();
    ASSERT_FALSE(DoeAlles('y'));
    bestanden.reset();
    schijf.Stroomuitval(toeval);
    Open();
    EXPECT_FALSE(Dagboek().Onvoltooid());
    EXPECT_EQ(Stand(), klaar_);
    EXPECT_TRUE(Dagboek().MaakOngedaan(2));
    EXPECT_EQ(Stand(), begin_);
  }
}

TEST_F(JournaalHerstelTest, EenOperatieDieMisluktLaatEenSetDieTerugKan) {
  for (const Wijze wijze : {Wijze::Fout, Wijze::Kort, Wijze::Vol}) {
    bool verder = true;
    for (int k = 1; verder; ++k) {
      Terug();
      schijf.teller = 0;
      schijf.bij = k;
      schijf.wijze = wijze;
      const SysteemFout fout = DoeAlles('y');
      verder = schijf.Geweest();
      Heropen();
      if (!fout) {
        EXPECT_EQ(Stand(), klaar_) << k;
      }
      if (Dagboek().Onvoltooid()) {
        ASSERT_FALSE(Dagboek().Herstel());
        EXPECT_EQ(Stand(), begin_) << k;
      } else if (Dagboek().Geschiedenis().size() > 1) {
        EXPECT_TRUE(Dagboek().MaakOngedaan(2)) << k;
        EXPECT_EQ(Stand(), begin_) << k;
      } else {
        EXPECT_EQ(Stand(), begin_) << k;
      }
    }
  }
}

// Another set may have added its places behind those of the action that died.
TEST_F(JournaalHerstelTest, EenCentraalPlaatsbestandDatGroeideBlijftStaan) {
  Terug();
  std::string& centraal = schijf.Bytes("PLAATS.PLT");
  centraal = begin_[Plaatsen];
  centraal.resize(4 * RecordLengteVan(Plaatsen));
  const std::string voor = centraal;
  schijf.MaakVast();
  const auto heropen = [this] {
    Heropen();
    ASSERT_FALSE(bestanden->Open(Plaatsen, "/data/PLAATS.PLT"));
  };
  heropen();
  int gegroeid = 0;
  for (int k = 1;; ++k) {
    schijf.teller = 0;
    schijf.bij = k;
    schijf.wijze = Wijze::Dood;
    static_cast<void>(Doe("Plaatsen", {{Personen, 3}, {Plaatsen, 2}, {Plaatsen, 5}}, 'z'));
    if (!schijf.Geweest()) break;
    heropen();
    if (!Dagboek().Onvoltooid()) continue;
    const std::string stond = centraal;
    ASSERT_FALSE(Dagboek().Herstel());
    EXPECT_EQ(centraal, stond.size() > voor.size() ? stond : voor) << k;
    gegroeid += stond.size() > voor.size() ? 1 : 0;
    EXPECT_EQ(schijf.Bytes("PROEF.PRS"), begin_[Personen]) << k;
    centraal = voor;
    schijf.MaakVast();
    heropen();
  }
  EXPECT_GT(gegroeid, 0);
}
