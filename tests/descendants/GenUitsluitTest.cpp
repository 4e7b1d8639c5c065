#include <gtest/gtest.h>

#include <algorithm>

#include "descendants/GenUitsluit.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class GenUitsluitToets : public FamilieToets {
 protected:
  GenUitsluitToets() {
    Bouw().Man("Jan", "Kok", {{"GebDatum", "00-00-1800"}});  // 2
    Bouw().Vrouw("", "Pot");                                 // 3
  }
  // Plays a script in the dialog.
  void Vraag(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [this](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = 2;
          hoofd.gesprek.Toon<GenUitsluit>(kGenTxtUitsluit, hoofd, opties_);
          gebleven_ = hoofd.volgers.HuidigPersoonNr;
        },
        "+ GenTxtUitsluit \"Takken uitsluiten\"\n" + std::string(verslag) + "\n- GenTxtUitsluit\n",
        plek);
  }

  GenOpties opties_;
  std::int16_t gebleven_ = 0;
};

TEST_F(GenUitsluitToets, OKNeemtDeVijftienNummers) {
  Vraag("vul RecordNrVolgNiet(1) 2\nvul RecordNrVolgNiet(15) 3\ndruk OKButton", "");
  std::array<std::int16_t, 15> verwacht{};
  verwacht.front() = 2;
  verwacht.back() = 3;
  EXPECT_EQ(opties_.GenVolgNiet, verwacht);
  EXPECT_EQ(gebleven_, 2);
}

TEST_F(GenUitsluitToets, EenNummerToontWieHetIs) {
  Vraag(R"(
      vul RecordNrVolgNiet(2) 2
      toon VoorNmVolgNiet(2)
      toon AchterNmVolgNiet(2)
      toon PeriodeVolgNiet(2)
      vul RecordNrVolgNiet(3) 3
      toon VoorNmVolgNiet(3)
      toon AchterNmVolgNiet(3)
      druk BackButton
    )",
        R"(
      = VoorNmVolgNiet(2) "Jan"
      = AchterNmVolgNiet(2) "Kok"
      = PeriodeVolgNiet(2) "1800-    "
      = VoorNmVolgNiet(3) "<onbekend>"
      = AchterNmVolgNiet(3) "Pot"
    )");
}

TEST_F(GenUitsluitToets, EenLeegNummerMaaktDeRijLeeg) {
  Vraag(R"(
      vul RecordNrVolgNiet(1) 2
      vul RecordNrVolgNiet(1)
      toon VoorNmVolgNiet(1)
      toon AchterNmVolgNiet(1)
      toon PeriodeVolgNiet(1)
      druk OKButton
    )",
        R"(
      = VoorNmVolgNiet(1) ""
      = AchterNmVolgNiet(1) ""
      = PeriodeVolgNiet(1) ""
    )");
  EXPECT_EQ(opties_.GenVolgNiet, (std::array<std::int16_t, 15>{}));
}

TEST_F(GenUitsluitToets, TerugNeemtNietsEnStoptDeKeten) {
  Vraag("vul RecordNrVolgNiet(1) 2\ntoets Escape", "");
  EXPECT_EQ(opties_.GenVolgNiet, (std::array<std::int16_t, 15>{}));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenUitsluitToets, NaHetZoekenStaatDeFocusOpOK) {
  for (const std::string_view zoek : {"druk ZoekButton(4)", "toets RecordNrVolgNiet(4) F2"}) {
    Vraag(std::string(zoek) + "\ndruk RecordNrPrs(1)\ntoets Enter",
          "+ ZoekPrs \"Zoek Persoon\"\n- ZoekPrs");
    EXPECT_EQ(opties_.GenVolgNiet[3], 2);
  }
}

TEST_F(GenUitsluitToets, DeKnopZoektEenPersoon) {
  Vraag(R"(
      druk ZoekButton(4)
      druk RecordNrPrs(1)
      toon RecordNrVolgNiet(4)
      druk OKButton
    )",
        R"(
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
      = RecordNrVolgNiet(4) "2"
    )");
  EXPECT_EQ(opties_.GenVolgNiet[3], 2);
}

}  // namespace
}  // namespace lb77
