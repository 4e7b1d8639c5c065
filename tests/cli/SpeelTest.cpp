#include <gtest/gtest.h>

#include <sstream>

#include "cli/Opdrachten.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

class SpeelDraaiboekToets : public ::testing::Test {
 protected:
  int Speel(std::string_view draaiboek, bool echo = false) {
    std::ostringstream uit;
    std::ostringstream fout;
    const int status = SpeelDraaiboek({map_.Pad(), klok_, uit, fout}, draaiboek,
                                      {.basismap = map_.Pad(), .echo = echo});
    uit_ = uit.str();
    fout_ = fout.str();
    return status;
  }

  TijdelijkeMap map_;
  VasteKlok klok_{{2026, 11, 21, 12, 0, 0}};
  std::string uit_;
  std::string fout_;
};

TEST_F(SpeelDraaiboekToets, DruktHetVerslagAf) {
  EXPECT_EQ(Speel("antwoord OK\nkies AboutLB77\ndruk OKButton\nkies KeuzeAfsluiten\n"), 0);
  EXPECT_NE(
      uit_.find("\n+ OverLB77Form \"Over LB77 voor Windows\"\n- OverLB77Form\n- MenuWindow\n"),
      std::string::npos);
  EXPECT_EQ(fout_, "");
}

TEST_F(SpeelDraaiboekToets, EchoZetElkeInstructieInHetVerslag) {
  EXPECT_EQ(Speel("antwoord OK\n  kies AboutLB77\ndruk OKButton\n", true), 0);
  EXPECT_EQ(uit_.rfind("$ antwoord OK\n", 0), 0U) << uit_;
  EXPECT_NE(uit_.find("\n$ kies AboutLB77\n+ OverLB77Form"), std::string::npos) << uit_;
}

TEST_F(SpeelDraaiboekToets, EenDraaiboekDatNietGaatEindigtMetEenEnZijnRegel) {
  EXPECT_EQ(Speel("antwoord OK\ndruk Onbekend\n"), 1);
  EXPECT_NE(uit_.find("+ MenuWindow"), std::string::npos);
  EXPECT_NE(fout_.find("regel 2"), std::string::npos);
}

TEST_F(SpeelDraaiboekToets, EenOnbekendeOpdrachtWordtVoorHetBeginGemeld) {
  EXPECT_EQ(Speel("dans\n"), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_NE(fout_.find("regel 1"), std::string::npos);
}

TEST_F(SpeelDraaiboekToets, WatNietIsGebruiktWordtGemeld) {
  EXPECT_EQ(Speel("antwoord OK Ja\ntoon Statusbalk\n"), 0);
  EXPECT_NE(fout_.find("niet gebruikt: "), std::string::npos);
}

TEST_F(SpeelDraaiboekToets, AnnulerenZonderInstellingenEindigtHetProgramma) {
  EXPECT_EQ(Speel("antwoord Annuleren\n"), 0);
  EXPECT_EQ(uit_.find("+ MenuWindow"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(map_ / "LIJNBOOM.INI"));
}

}  // namespace
}  // namespace lb77
