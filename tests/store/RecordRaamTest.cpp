#include <gtest/gtest.h>

#include <algorithm>

#include "store/RaamProef.h"
#include "store/RecordRaam.h"
#include "store/SchijfBestand.h"
#include "text/Getallen.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

const Boxen kGeenBoxen;

template <class Proef>
struct RecordRaamTest : ::testing::Test {
  ~RecordRaamTest() override { EXPECT_EQ(set.Getoond(), kGeenBoxen); }

  auto& Klasse() { return Proef::Van(set); }
  bool Lees(int nr) { return Proef::Lees(set, static_cast<std::int16_t>(nr)); }
  std::string Bytes() { return {Klasse().Bytes().data(), Klasse().Bytes().size()}; }
  std::string Leeg() {
    const typename Proef::Klasse& klasse = Klasse();
    typename Proef::Klasse leeg = [&] {
      if constexpr (std::is_same_v<Proef, OpmProef>) {
        return OpmLB77(set.opslag, set.Persoon, set.Relatie);
      } else {
        return typename Proef::Klasse(set.opslag);
      }
    }();
    EXPECT_EQ(klasse.Bytes().size(), leeg.Bytes().size());
    return {leeg.Bytes().data(), leeg.Bytes().size()};
  }
  void Maak(int nr, const char* tekst) {
    ASSERT_TRUE(Klasse().Nieuw(nr));
    Klasse().Zet(Proef::kVeld, tekst);
    if constexpr (std::is_same_v<Proef, OpmProef>) Klasse().Zet("Rubriek", "1");
    ASSERT_TRUE(Proef::Schrijf(set, static_cast<std::int16_t>(nr)));
  }
  void ZetTelling(std::int16_t aantal) {
    ASSERT_TRUE(Klasse().LeesAdmin());
    Klasse().ZetAantal(aantal);
    ASSERT_TRUE(Klasse().SchrijfAdmin());
  }
  std::filesystem::path Pad() const {
    const auto& p = set.paden;
    const std::array paden = {p.prs, p.rlt, p.opm, p.plt};
    return paden.at(static_cast<std::size_t>(Proef::kSoort) - 1);
  }
  void ZetBestand(const std::string& bytes) {
    set.bestanden.SluitAlles();
    SchrijfBytes(Pad(), bytes);
    set.Heropen();
  }
  static std::string Stop(const std::string& tekst) { return "! stop \"" + tekst + "\""; }
  // The count that stands for this highest record number.
  static std::int16_t Telling(int hoogste) {
    return static_cast<std::int16_t>(hoogste - 1 + Proef::kNieuwAantal);
  }

  Storing storing;
  ProefSet set{FalendeOpener(storing)};
};

using Proeven = ::testing::Types<PersoonProef, RelatieProef, PlaatsProef, OpmProef>;
TYPED_TEST_SUITE(RecordRaamTest, Proeven, RaamNamen);

}  // namespace

TYPED_TEST(RecordRaamTest, EenNieuwBestandHeeftEenRecordEnTeltEr) {
  EXPECT_EQ(this->Klasse().AantalInAdmin(), TypeParam::kNieuwAantal);
  EXPECT_EQ(this->Klasse().AantalRecords(), 1);
  EXPECT_EQ(this->Klasse().MaxRecordNr(), 1);
}

TYPED_TEST(RecordRaamTest, NieuwMaaktEenLeegRecordEnTeltHet) {
  ASSERT_TRUE(this->Klasse().Nieuw(2));
  EXPECT_EQ(TypeParam::BufNr(this->set), 2);
  EXPECT_EQ(this->Bytes(), this->Leeg());
  EXPECT_EQ(this->Klasse().AantalInAdmin(), TypeParam::kNieuwAantal + 1);
  EXPECT_EQ(this->Klasse().AantalRecords(), 2);
  EXPECT_EQ(TypeParam::BufNr(this->set), 2);
  EXPECT_EQ(this->Klasse().MaxRecordNr(), 2);
  EXPECT_EQ(LeesBytes(this->Pad()).size(), 2 * RecordLengteVan(TypeParam::kSoort));
}

TYPED_TEST(RecordRaamTest, WatGeschrevenIsLeestEenAndereZittingTerug) {
  this->Maak(2, "AB");
  EXPECT_EQ(TypeParam::BufNr(this->set), 2);
  this->set.Heropen();
  EXPECT_EQ(TypeParam::Tekst(this->Klasse()), "");
  ASSERT_TRUE(this->Lees(2));
  EXPECT_EQ(TypeParam::Tekst(this->Klasse()), "AB");
  EXPECT_EQ(TypeParam::BufNr(this->set), 2);
}

TYPED_TEST(RecordRaamTest, LezenVoorbijHetEindeIsStilEnLaatDeBufferLeeg) {
  this->Maak(2, "AB");
  for (const int nr : {3, 100, 32767}) {
    EXPECT_FALSE(this->Lees(nr)) << nr;
    EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
    EXPECT_EQ(this->Bytes(), this->Leeg());
  }
}

TYPED_TEST(RecordRaamTest, NummersDieGeenRecordKunnenZijnLezenAlsAfwezig) {
  for (const int nr : {0, -1, -32768}) EXPECT_FALSE(this->Lees(nr)) << nr;
}

TYPED_TEST(RecordRaamTest, EenTelVeldDatTeLaagIsWordtGeloofd) {
  for (int nr = 2; nr <= 6; ++nr) this->Maak(nr, "AB");
  this->ZetTelling(this->Telling(3));
  EXPECT_EQ(this->Klasse().AantalRecords(), 3);
  EXPECT_EQ(this->Klasse().MaxRecordNr(), 6);
}

TYPED_TEST(RecordRaamTest, EenNieuwRecordOverschrijftNooitEenRecordInGebruik) {
  for (int nr = 2; nr <= 4; ++nr) this->Maak(nr, "AB");
  this->ZetTelling(this->Telling(2));
  const std::string voor = LeesBytes(this->Pad());
  EXPECT_FALSE(this->Klasse().Nieuw(this->Klasse().AantalRecords() + 1));
  EXPECT_EQ(this->set.Getoond(),
            Boxen{this->Stop(std::string(TypeParam::kNaam) +
                             " 3 bestaat al: het aantal in het administratierecord is te laag")});
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
}

TYPED_TEST(RecordRaamTest, OokEenAfgekaptRecordDatErIsBlijftStaan) {
  for (int nr = 2; nr <= 3; ++nr) this->Maak(nr, "AB");
  this->ZetTelling(this->Telling(2));
  std::string bytes = LeesBytes(this->Pad());
  bytes.pop_back();
  this->ZetBestand(bytes);
  ASSERT_TRUE(this->Lees(3));
  EXPECT_FALSE(this->Klasse().Nieuw(3));
  EXPECT_EQ(this->set.Getoond().size(), 1U);
  EXPECT_EQ(LeesBytes(this->Pad()), bytes);
}

TYPED_TEST(RecordRaamTest, OokEenAfgekaptRecordWordtGevondenVanEenTellingDieTeHoogIs) {
  this->Maak(2, "AB");
  this->Maak(3, "AB");
  this->ZetTelling(this->Telling(1000));
  std::string bytes = LeesBytes(this->Pad());
  bytes.pop_back();
  this->ZetBestand(bytes);
  EXPECT_EQ(this->Klasse().AantalRecords(), 3);
  EXPECT_LE(this->set.Getoond().size(), 1U);
}

TYPED_TEST(RecordRaamTest, EenGrootteDieHetSysteemNietVertelt) {
  this->Maak(2, "AB");
  this->ZetTelling(this->Telling(1000));
  this->storing.zonderLengte = true;
  EXPECT_EQ(this->Klasse().AantalRecords(), 2);
  EXPECT_LE(this->set.Getoond().size(), 1U);
}

TYPED_TEST(RecordRaamTest, EenEnkelByteAanEenRandHoudtEenNieuwRecordTegen) {
  if constexpr (!std::is_same_v<TypeParam, OpmProef>) {
    for (const std::size_t rand : {std::size_t{0}, this->Leeg().size() - 1}) {
      std::string record = this->Leeg();
      record[rand] = 'Q';
      this->ZetBestand(LeesBytes(this->Pad()).substr(0, record.size()) + record);
      EXPECT_FALSE(this->Klasse().Nieuw(2)) << rand;
      EXPECT_EQ(this->set.Getoond().size(), 1U);
      EXPECT_EQ(LeesBytes(this->Pad()).substr(record.size()), record);
    }
  }
}

TYPED_TEST(RecordRaamTest, EenGatHoudtEenNieuwRecordNietTegen) {
  this->ZetBestand(LeesBytes(this->Pad()) + std::string(this->Leeg().size(), '\0'));
  EXPECT_TRUE(this->Klasse().Nieuw(2));
  EXPECT_EQ(this->Bytes(), this->Leeg());
}

TYPED_TEST(RecordRaamTest, EenLeesfoutHalverwegeIsEenLeesfout) {
  this->Maak(2, "AB");
  this->storing = {.bij = 1, .gelezen = true};
  EXPECT_FALSE(this->Lees(2));
  EXPECT_EQ(this->set.Getoond(),
            Boxen{this->Stop(std::string(TypeParam::kLees) + "2\\nFout van de schijf")});
  EXPECT_EQ(this->Bytes(), this->Leeg());
}

TYPED_TEST(RecordRaamTest, EenStompjeVoorbijHetEindeHoudtGeenNieuwRecordTegen) {
  this->Maak(2, "AB");
  this->ZetBestand(LeesBytes(this->Pad()) + "A");
  ASSERT_TRUE(this->Klasse().Nieuw(3));
  EXPECT_EQ(this->Bytes(), this->Leeg());
}

TYPED_TEST(RecordRaamTest, EenLeegRecordMagOpnieuwNieuwWorden) {
  ASSERT_TRUE(this->Klasse().Nieuw(2));
  this->ZetTelling(this->Telling(1));
  EXPECT_TRUE(this->Klasse().Nieuw(2));
  EXPECT_EQ(this->Klasse().AantalRecords(), 2);
}

TYPED_TEST(RecordRaamTest, EenTellingDieTeHoogIsGeeftHetGevondenAantal) {
  this->Maak(2, "AB");
  this->Maak(3, "AB");
  for (const int hoogste : {4, 1000, 32767, 32768}) {
    if (hoogste == 32768 && TypeParam::kNieuwAantal == 1) continue;
    this->ZetTelling(this->Telling(hoogste));
    EXPECT_EQ(this->Klasse().AantalRecords(), 3);
    EXPECT_EQ(TypeParam::BufNr(this->set), 3);
    const Boxen melding{"! uitroep \"" + std::string(TypeParam::kAantal) +
                        "\\nGevonden:3\\nVolgens administratierecord:" + GetalTekst(hoogste) +
                        "\""};
    EXPECT_EQ(this->set.Getoond(), TypeParam::kNieuwAantal == 1 ? kGeenBoxen : melding);
  }
}

TYPED_TEST(RecordRaamTest, EenNegatieveTellingIsGeenEindeloosZoeken) {
  this->Maak(2, "AB");
  this->ZetTelling(-5);
  EXPECT_EQ(this->Klasse().AantalRecords(), 1);
  const Boxen melding{"! uitroep \"" + std::string(TypeParam::kAantal) +
                      "\\nGevonden:1\\nVolgens administratierecord:-4\""};
  EXPECT_EQ(this->set.Getoond(), TypeParam::kNieuwAantal == 1 ? kGeenBoxen : melding);
}

TYPED_TEST(RecordRaamTest, HetLaatsteNummerIsVastgelegd) {
  this->ZetTelling(this->Telling(TypeParam::kHoogste - 1));
  ASSERT_TRUE(this->Klasse().Nieuw(TypeParam::kHoogste));
  EXPECT_EQ(this->Klasse().AantalRecords(), TypeParam::kHoogste);
  const std::string voor = LeesBytes(this->Pad());
  EXPECT_FALSE(this->Klasse().Nieuw(this->Klasse().AantalRecords() + 1));
  EXPECT_EQ(this->set.Getoond(), Boxen{this->Stop(TypeParam::kVol)});
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
}

TYPED_TEST(RecordRaamTest, EenTellingDieNietHogerKanBlijftStaan) {
  this->ZetTelling(32767);
  const std::string voor = LeesBytes(this->Pad());
  EXPECT_FALSE(this->Klasse().Nieuw(2));
  EXPECT_EQ(this->set.Getoond(), Boxen{this->Stop("Het maximum van 32767 records is bereikt")});
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
  EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
  EXPECT_EQ(this->Klasse().AantalInAdmin(), 32767);
}

TYPED_TEST(RecordRaamTest, HetAdministratierecordIsGeenNieuwRecord) {
  const std::string voor = LeesBytes(this->Pad());
  for (const int nr : {1, 0, -3}) {
    EXPECT_FALSE(this->Klasse().Nieuw(nr));
    EXPECT_EQ(this->set.Getoond(),
              Boxen{this->Stop(TypeParam::kSchrijf + GetalTekst(nr) + "\\nOnjuist recordnummer")});
  }
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
}

TYPED_TEST(RecordRaamTest, EenGatIsGeenRecord) {
  this->Maak(2, "AB");
  const std::size_t lengte = RecordLengteVan(TypeParam::kSoort);
  this->ZetBestand(LeesBytes(this->Pad()) + std::string(lengte, '\0'));
  EXPECT_FALSE(this->Lees(3));
  EXPECT_EQ(this->Bytes(), this->Leeg());
  EXPECT_EQ(this->Klasse().MaxRecordNr(), 2);
}

TYPED_TEST(RecordRaamTest, EenLeesfoutNoemtHetRecordEnDeReden) {
  this->Maak(2, "AB");
  this->storing = {.bij = 1};
  EXPECT_FALSE(this->Lees(2));
  EXPECT_EQ(this->set.Getoond(),
            Boxen{this->Stop(std::string(TypeParam::kLees) + "2\\nFout van de schijf")});
  EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
  EXPECT_EQ(this->Bytes(), this->Leeg());
}

TYPED_TEST(RecordRaamTest, EenSchrijffoutNoemtHetRecordEnDeRedenEnHoudtDeBuffer) {
  this->Maak(2, "AB");
  const std::string voor = this->Bytes();
  this->storing = {.bij = 1};
  EXPECT_FALSE(TypeParam::Schrijf(this->set, 2));
  EXPECT_EQ(this->set.Getoond(),
            Boxen{this->Stop(std::string(TypeParam::kSchrijf) + "2\\nSchijf vol")});
  EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
  EXPECT_EQ(this->Bytes(), voor);
}

TYPED_TEST(RecordRaamTest, SchrijvenZonderHuidigNummerIsEenFout) {
  const std::string voor = LeesBytes(this->Pad());
  EXPECT_FALSE(TypeParam::Schrijf(this->set, -1));
  EXPECT_EQ(this->set.Getoond(),
            Boxen{this->Stop(std::string(TypeParam::kSchrijf) + "-1\\nOnjuist recordnummer")});
  EXPECT_EQ(LeesBytes(this->Pad()), voor);
}

TYPED_TEST(RecordRaamTest, EenLeesfoutOpHetAdministratierecordNoemtHetBestand) {
  this->storing = {.bij = 1};
  EXPECT_FALSE(this->Klasse().LeesAdmin());
  EXPECT_EQ(this->set.Getoond(),
            Boxen{this->Stop(std::string(TypeParam::kLeesAdmin) + "\\nFout van de schijf")});
  this->storing = {.bij = 1};
  EXPECT_EQ(this->Klasse().AantalInAdmin(), 0);
  EXPECT_EQ(this->set.Getoond(),
            Boxen{this->Stop(std::string(TypeParam::kLeesAdmin) + "\\nFout van de schijf")});
}

TYPED_TEST(RecordRaamTest, EenAfwezigAdministratierecordHeeftEenMeldingZonderReden) {
  this->ZetBestand("");
  EXPECT_FALSE(this->Klasse().LeesAdmin());
  EXPECT_EQ(this->set.Getoond(), Boxen{this->Stop(TypeParam::kLeesAdmin)});
  EXPECT_EQ(TypeParam::BufNr(this->set), TypeParam::kGeenNr);
}

TYPED_TEST(RecordRaamTest, EenSchrijffoutOpHetAdministratierecordNoemtHetBestand) {
  this->storing = {.bij = 1};
  EXPECT_FALSE(this->Klasse().NieuwAdm());
  ASSERT_TRUE(this->Klasse().LeesAdmin());
  this->storing = {.bij = 1};
  EXPECT_FALSE(this->Klasse().SchrijfAdmin());
  const std::string melding = this->Stop(std::string(TypeParam::kSchrijfAdmin) + "\\nSchijf vol");
  EXPECT_EQ(this->set.Getoond(), (Boxen{melding, melding}));
}

TYPED_TEST(RecordRaamTest, EenBestandDatNietOpenIsMeldtDat) {
  this->set.bestanden.SluitAlles();
  EXPECT_FALSE(this->Lees(2));
  EXPECT_FALSE(this->Klasse().Nieuw(2));
  const std::string melding =
      this->Stop(std::string(TypeParam::kLees) + "2\\nBestand is niet open");
  EXPECT_EQ(this->set.Getoond(), (Boxen{melding, melding}));
}

TYPED_TEST(RecordRaamTest, EenSchijfDieBijHetZoekenSteedsFaaltMeldtDatEenKeer) {
  for (int nr = 2; nr <= 6; ++nr) this->Maak(nr, "AB");
  this->storing = {.bij = 2, .blijvend = true};
  EXPECT_LE(this->Klasse().AantalRecords(), 1);
  const Boxen boxen = this->set.Getoond();
  ASSERT_FALSE(boxen.empty());
  EXPECT_EQ(boxen[0], this->Stop(std::string(TypeParam::kLees) + "6\\nFout van de schijf"));
  EXPECT_LE(boxen.size(), 2U);
}

TYPED_TEST(RecordRaamTest, EenOnbekendVeldWordtGemeldEnVerandertNiets) {
  this->Maak(2, "AB");
  const std::string voor = this->Bytes();
  for (const char* naam : {"Schoenmaat", "", "voornaam"}) {
    this->Klasse().Zet(naam, "1");
    EXPECT_EQ(this->set.Getoond(), Boxen{"! uitroep \"Opslaan van " + std::string(naam) +
                                         " is nog niet geprogrammeerd\""});
  }
  EXPECT_EQ(this->Bytes(), voor);
}
