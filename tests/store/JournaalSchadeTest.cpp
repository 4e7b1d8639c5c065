// Damaged journals: cut at every length, every byte changed. The four files never suffer.
#include <gtest/gtest.h>

#include "store/JournaalToets.h"

using namespace lb77;

namespace {

class JournaalSchadeTest : public JournaalToets {
 protected:
  JournaalSchadeTest() {
    Vul();
    EXPECT_FALSE(DoeAlles('w'));
    begin_ = Stand();
    EXPECT_FALSE(DoeAlles('x'));
    klaar_ = Stand();
    heel_ = schijf.Bytes("00000002.HND");
  }

  // Reads all that can be read, and undoes: the files are as before, or the undo was refused.
  void Probeer(const std::string& bytes, std::size_t plaats) {
    Zet(klaar_);
    schijf.Bytes("00000002.HND") = bytes;
    EXPECT_FALSE(Dagboek().Onvoltooid()) << plaats;
    ASSERT_EQ(Dagboek().Geschiedenis().size(), 2U);
    static_cast<void>(Dagboek().Wijzigingen(2));
    const bool gelukt = static_cast<bool>(Dagboek().MaakOngedaan(2));
    EXPECT_EQ(gelukt, bytes == heel_) << plaats;
    EXPECT_EQ(Stand(), gelukt ? begin_ : klaar_) << plaats;
    EXPECT_FALSE(Dagboek().MaakOngedaan(1)) << plaats;
    EXPECT_EQ(Stand(), klaar_) << plaats;
  }

  VierBestanden begin_;
  VierBestanden klaar_;
  std::string heel_;
};

}  // namespace

TEST_F(JournaalSchadeTest, EenHandelingDieAfIsOpElkeLengteAfgekapt) {
  for (std::size_t lengte = 0; lengte < heel_.size(); ++lengte) {
    Probeer(heel_.substr(0, lengte), lengte);
  }
}

TEST_F(JournaalSchadeTest, EenHandelingDieAfIsMetElkByteVeranderd) {
  for (std::size_t plaats = 0; plaats < heel_.size(); ++plaats) {
    for (const int bit : {1, 255}) {
      std::string bytes = heel_;
      bytes[plaats] = static_cast<char>(bytes[plaats] ^ bit);
      Probeer(bytes, plaats);
    }
  }
}

TEST_F(JournaalSchadeTest, EenOnvoltooideHandelingGeldtZoverZijHeelIs) {
  const std::size_t einde = OntleedJournaal(heel_).heel;
  for (std::size_t lengte = 0; lengte <= einde; ++lengte) {
    schijf.Verwijder("00000002.HND");
    schijf.Bytes("00000002.BEZ") = heel_.substr(0, lengte);
    const JournaalInhoud inhoud = OntleedJournaal(heel_.substr(0, lengte));
    Zet(klaar_);
    ASSERT_FALSE(Dagboek().Herstel());
    const VierBestanden stand = Stand();
    for (const BestandSoort soort : kBestandSoorten) {
      for (std::size_t i = 0; i < stand.at(soort).size(); ++i) {
        const char byte = stand.at(soort)[i];
        const bool oud = i < begin_.at(soort).size() && byte == begin_.at(soort)[i];
        EXPECT_TRUE(oud || byte == klaar_.at(soort)[i]) << lengte;
      }
    }
    for (const JournaalBeeld& beeld : inhoud.beelden) {
      EXPECT_EQ(stand.at(beeld.plek.soort).substr(BeginVan(beeld.plek), beeld.bytes.size()),
                beeld.bytes);
    }
    EXPECT_FALSE(Dagboek().Onvoltooid());
  }
  EXPECT_EQ(Stand(), begin_);
}
