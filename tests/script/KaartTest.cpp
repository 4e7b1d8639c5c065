// Walking from card to card.
#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "script/Kaartproef.h"
#include "steun/SpeelToets.h"

namespace lb77 {
namespace {

class KaartTest : public SpeelToets {
 protected:
  Programma Vanaf(int persoonNr) {
    return [this, persoonNr](Gesprek& gesprek) {
      LoopKaarten(gesprek, PersoonOp(doos_, persoonNr));
      gesprek.Informeer("klaar");
    };
  }

  Kaartendoos doos_;
};

std::string Herhaald(int keer, const std::string& tekst) {
  std::string uit;
  for (int i = 0; i < keer; ++i) uit += tekst;
  return uit;
}

TEST_F(KaartTest, EenKaartDieVoorNietsAndersWordtVerlatenIsHetEinde) {
  Verwacht("druk BackButton", Vanaf(3), R"(
    + Persoon "Persoon"
    - Persoon
    ! info "klaar"
  )");
}

TEST_F(KaartTest, EenKaartErbovenopMaaktPlaatsEnDeEersteKeertTerug) {
  Verwacht("druk Ander\ntoon RecordNr\ndruk BackButton\ntoon RecordNr\ndruk BackButton", Vanaf(3),
           R"(
    + Persoon "Persoon"
    - Persoon
    + Relatie "Relatie"
    = RecordNr "3"
    - Relatie
    + Persoon "Persoon"
    = RecordNr "3"
    - Persoon
    ! info "klaar"
  )");
}

TEST_F(KaartTest, EenKaartDieWordtVervangenKeertNietTerug) {
  Verwacht("druk Ander\ndruk Weg\ntoon RecordNr\ndruk BackButton\ntoon RecordNr", Vanaf(3), R"(
    + Persoon "Persoon"
    - Persoon
    + Relatie "Relatie"
    - Relatie
    + Persoon "Persoon"
    = RecordNr "30"
    - Persoon
    + Persoon "Persoon"
    = RecordNr "3"
  )");
}

TEST_F(KaartTest, DeKaartenKerenInOmgekeerdeVolgordeTerug) {
  Verwacht(
      "druk Ander\ndruk Ander\ndruk BackButton\ntoon RecordNr\ndruk BackButton\ndruk BackButton",
      Vanaf(2), R"(
    + Persoon "Persoon"
    - Persoon
    + Relatie "Relatie"
    - Relatie
    + Persoon "Persoon"
    - Persoon
    + Relatie "Relatie"
    = RecordNr "2"
    - Relatie
    + Persoon "Persoon"
    - Persoon
    ! info "klaar"
  )");
}

TEST_F(KaartTest, BinnenEenKaartLaadtDezelfdeOpnieuw) {
  Verwacht("druk Volgende\ntoon", Vanaf(3), R"(
    + Persoon "Persoon"
    : Persoon "Persoon"
    = RecordNr "4"
    = Volgende "&Volgende"
    = Ander "&Ander"
    = Weg "&Weg"
    = BackButton "&Terug"
    * RecordNr
  )");
}

TEST_F(KaartTest, EenKaartKeertTerugOpHetRecordWaarZijHeenWasGegaan) {
  Verwacht("druk Volgende\ndruk Ander\ndruk BackButton\ntoon RecordNr", Vanaf(3), R"(
    + Persoon "Persoon"
    - Persoon
    + Relatie "Relatie"
    - Relatie
    + Persoon "Persoon"
    = RecordNr "4"
  )");
}

TEST_F(KaartTest, EenGetyptNummerGeldtVoorDeKnopDieDaarnaWordtGedrukt) {
  Verwacht("typ RecordNr 8\ndruk Ander\ntoon RecordNr", Vanaf(3), R"(
    + Persoon "Persoon"
    - Persoon
    + Relatie "Relatie"
    = RecordNr "8"
  )");
}

TEST_F(KaartTest, EenKaartDieBijHetLadenSluitIsNooitTeZien) {
  Verwacht("", Vanaf(0), R"(! info "klaar")");
  Verwacht("vul RecordNr 0\n", Vanaf(5), "+ Persoon \"Persoon\"\n- Persoon\n! info \"klaar\"");
}

TEST_F(KaartTest, TienduizendStappenLatenEenKaartEnGroeienNiet) {
  constexpr int kKeer = 2500;
  const auto uitslag = Speel(Herhaald(kKeer, "druk Ander\ndruk Ander\nvul RecordNr 2\n") +
                                 Herhaald(2 * kKeer + 1, "druk BackButton\n"),
                             Vanaf(1));
  EXPECT_EQ(uitslag.reden, "");
  EXPECT_EQ(doos_.geladen, 4 * kKeer + 1 + kKeer);
  EXPECT_EQ(doos_.meest, 1);
  EXPECT_EQ(doos_.levend, 0);
  EXPECT_EQ(doos_.kader, doos_.eersteKader);
  EXPECT_EQ(std::count(verslag_.begin(), verslag_.end(), '+'), 4 * kKeer + 1);
}

}  // namespace
}  // namespace lb77
