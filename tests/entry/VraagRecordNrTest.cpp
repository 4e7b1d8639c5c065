#include <gtest/gtest.h>

#include "entry/VraagRecordNr.h"
#include "steun/SpeelToets.h"

namespace lb77 {
namespace {

class VraagRecordNrTest : public SpeelToets {
 protected:
  std::int32_t Vraag(std::string_view draaiboek, std::string_view verslag,
                     const VraagRecordNr::Controle& controle = {}) {
    std::int32_t nr = -1;
    Verwacht(
        draaiboek,
        [&](Gesprek& gesprek) {
          VraagRecordNr vraag("Ga naar Relatierecord", controle);
          gesprek.ToonModaal(vraag);
          nr = vraag.Nr();
        },
        "+ VraagRecordNr \"Ga naar Relatierecord\"\n" + Regels(verslag) + "- VraagRecordNr\n");
    return nr;
  }
};

TEST_F(VraagRecordNrTest, GeeftHetNummerBijOKEnBijEnter) {
  EXPECT_EQ(Vraag("vul RecordNr 17\ndruk OKButton", ""), 17);
  EXPECT_EQ(Vraag("typ RecordNr 17\ntoets Enter", ""), 17);
  EXPECT_EQ(Vraag("toets 1\ntoets 7\ntoets Enter", ""), 17);
}

TEST_F(VraagRecordNrTest, AlleenVijfCijfersPassen) {
  EXPECT_EQ(
      Vraag("vul RecordNr a1b2345x678\ntoon RecordNr\ndruk OKButton", R"(= RecordNr "12345")"),
      12345);
}

TEST_F(VraagRecordNrTest, ZonderNummerOfNaTerugIsHetNul) {
  EXPECT_EQ(Vraag("druk OKButton", ""), 0);
  EXPECT_EQ(Vraag("vul RecordNr 17\ndruk BackButton", ""), 0);
  EXPECT_EQ(Vraag("vul RecordNr 17\ntoets Escape", ""), 0);
  EXPECT_EQ(Vraag("vul RecordNr 17\nsluit", ""), 0);
}

TEST_F(VraagRecordNrTest, EenControleVanDeAanroeperHoudtHetVeldVast) {
  const auto controle = [](std::string_view tekst) { return tekst == "12"; };
  EXPECT_EQ(Vraag(R"(
    vul RecordNr 11
    druk OKButton
    toon
    vul RecordNr 12
    druk OKButton
  )",
                  R"(
    : VraagRecordNr "Ga naar Relatierecord"
    = RecordNr "11"
    = OKButton "&OK"
    = BackButton "&Terug"
    * RecordNr
  )",
                  controle),
            12);
}

}  // namespace
}  // namespace lb77
