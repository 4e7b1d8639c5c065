#include <gtest/gtest.h>

#include <type_traits>

#include "store/PersoonVelden.h"
#include "store/RaamProef.h"
#include "store/RelatieVelden.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

template <class Proef>
struct WijzigTest : ::testing::Test {
  WijzigTest() {
    for (std::int16_t nr = 2; nr <= 3; ++nr) {
      EXPECT_TRUE(Klasse().Nieuw(nr));
      Klasse().Zet(Proef::kVeld, "AB");
      if constexpr (std::is_same_v<Proef, OpmProef>) Klasse().Zet("Rubriek", "1");
      EXPECT_TRUE(Proef::Schrijf(set, nr));
    }
    set.volgers.HuidigPersoonNr = set.volgers.HuidigRelatieNr = set.volgers.HuidigOpmNr = 3;
  }
  auto& Klasse() { return Proef::Van(set); }
  const std::filesystem::path& Pad() { return PadVanSoort(set.paden, Proef::kSoort); }
  std::string TekstVan(std::int16_t nr) {
    EXPECT_TRUE(Proef::Lees(set, nr));
    return Proef::Tekst(Klasse());
  }

  Storing storing;
  ProefSet set{FalendeOpener(storing)};
};

using Proeven = ::testing::Types<PersoonProef, RelatieProef, PlaatsProef, OpmProef>;
TYPED_TEST_SUITE(WijzigTest, Proeven, RaamNamen);

struct WijzigVeldenTest : ::testing::Test {
  ProefSet set;
};

}  // namespace

TYPED_TEST(WijzigTest, HetNummerTeltEnNietDeVolger) {
  ASSERT_TRUE(this->Klasse().Wijzig(2, {{TypeParam::kVeld, "CD"}}));
  EXPECT_EQ(TypeParam::BufNr(this->set), 2);
  EXPECT_EQ(TypeParam::Tekst(this->Klasse()), "CD");
  EXPECT_EQ(this->TekstVan(2), "CD");
  EXPECT_EQ(this->TekstVan(3), "AB");
  EXPECT_EQ(this->set.volgers.HuidigPersoonNr, 3);
  EXPECT_EQ(this->set.volgers.HuidigRelatieNr, 3);
  EXPECT_EQ(this->set.volgers.HuidigOpmNr, 3);
}

TYPED_TEST(WijzigTest, SchrijvenOpNummerLaatDeVolgersStaan) {
  ASSERT_TRUE(TypeParam::Lees(this->set, 3));
  this->Klasse().Zet(TypeParam::kVeld, "CD");
  ASSERT_TRUE(TypeParam::Schrijf(this->set, 2));
  EXPECT_EQ(this->TekstVan(2), "CD");
  EXPECT_EQ(this->TekstVan(3), "AB");
  EXPECT_EQ(this->set.volgers.HuidigPersoonNr, 3);
  EXPECT_EQ(this->set.volgers.HuidigRelatieNr, 3);
  EXPECT_EQ(this->set.volgers.HuidigOpmNr, 3);
}

TYPED_TEST(WijzigTest, WatNietGenoemdIsBlijftZoalsHetWas) {
  const std::string voor = LeesBytes(this->Pad());
  ASSERT_TRUE(this->Klasse().Wijzig(2, {{TypeParam::kVeld, "AB"}}));
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
}

TYPED_TEST(WijzigTest, EenRecordDatErNietIsKomtErNiet) {
  const std::string voor = LeesBytes(this->Pad());
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{-1, 0, 1, 4, 32767}) {
    EXPECT_FALSE(this->Klasse().Wijzig(nr, {{TypeParam::kVeld, "CD"}})) << nr;
    EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
  }
  EXPECT_EQ(this->set.Getoond(), Boxen{});
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
}

TYPED_TEST(WijzigTest, EenOnbekendVeldSchrijftNiets) {
  const std::string voor = LeesBytes(this->Pad());
  EXPECT_FALSE(this->Klasse().Wijzig(2, {{TypeParam::kVeld, "CD"}, {"Schoenmaat", "41"}}));
  EXPECT_EQ(this->set.Getoond(),
            Boxen{"! uitroep \"Opslaan van Schoenmaat is nog niet geprogrammeerd\""});
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
  EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
}

TYPED_TEST(WijzigTest, EenFoutHeeftZijnMeldingEnLaatDeBufferLeeg) {
  const std::string voor = LeesBytes(this->Pad());
  for (const auto& [bij, melding] :
       {std::pair(1, std::string(TypeParam::kLees) + "2\\nFout van de schijf"),
        std::pair(2, std::string(TypeParam::kSchrijf) + "2\\nSchijf vol")}) {
    this->storing = {.bij = bij};
    EXPECT_FALSE(this->Klasse().Wijzig(2, {{TypeParam::kVeld, "CD"}}));
    EXPECT_EQ(this->set.Getoond(), Boxen{"! stop \"" + melding + "\""});
    EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
    EXPECT_EQ(TypeParam::Tekst(this->Klasse()), "");
  }
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
}

TEST_F(WijzigVeldenTest, EenVeldUitDeTabelHeeftGeenNaamNodig) {
  const auto man = set.bouw.Man("Jan", "Bos");
  ASSERT_TRUE(set.Persoon.Wijzig(man, {{persoonveld::DoopJaar, 1803},
                                       {persoonveld::Geslacht, 'V'},
                                       {persoonveld::beroep, "boer"}}));
  ASSERT_TRUE(set.Persoon.Lees(man));
  EXPECT_EQ(set.Persoon.DoopJaar(), 1803);
  EXPECT_EQ(set.Persoon.Geslacht(), "V");
  EXPECT_EQ(set.Persoon.beroep(), "boer");
}

TEST_F(WijzigVeldenTest, EenGetalDatNietPastSchrijftNiets) {
  const auto man = set.bouw.Man("Jan", "Bos");
  EXPECT_FALSE(set.Persoon.Wijzig(man, {{"Beroep", "boer"}, {"Relatie1", 32768}}));
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Het maximum van 32767 records is bereikt\""});
  ASSERT_TRUE(set.Persoon.Lees(man));
  EXPECT_EQ(set.Persoon.beroep(), "");
}

TEST_F(WijzigVeldenTest, DeWoordenVoorDeSoortVanEenBandGeldenOokHier) {
  const auto nr = set.bouw.Relatie(0, 0);
  RecordRaam& raam = set.Relatie;
  ASSERT_TRUE(raam.Wijzig(nr, {{"HuwSwPs", " Ps "}}));
  EXPECT_EQ(set.Relatie.HuwSwPs(), "P");
  ASSERT_TRUE(raam.Wijzig(nr, {{relatieveld::HuwSwPs, "Sw"}}));
  EXPECT_EQ(set.Relatie.HuwSwPs(), "S");
}

TEST_F(WijzigVeldenTest, HetRaamTeltOpmerkingenZoalsHunKlasse) {
  RecordRaam& raam = set.Opmerking;
  EXPECT_EQ(raam.AantalInAdmin(), 1);
  EXPECT_EQ(raam.AantalRecords(), 1);
  EXPECT_EQ(set.Getoond(), Boxen{});
}
