#include "entry/PlaatsVak.h"
#include "entry/VakToets.h"

namespace lb77 {
namespace {

class PlaatsVakToets : public VakToets {
 protected:
  void SetUp() override {
    Bouw().Plaats("Amsterdam", "NH");
    Bouw().Plaats("Delft", "ZH");
  }
  void Speelt(std::int16_t begin, std::string_view draaiboek, std::int16_t nr,
              std::string_view verslag, const Plek& plek = Plek::current()) {
    SpeeltOp(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          Vakscherm<PlaatsVak> scherm(hoofd, "GebPlts", "te:");
          scherm.Vak.Toon(begin);
          hoofd.gesprek.ToonModaal(scherm);
          EXPECT_EQ(scherm.Vak.PlaatsNr(), nr) << plek.line();
        },
        verslag, plek);
  }
};

TEST_F(PlaatsVakToets, EenNaamWordtZonderVraagOpgezocht) {
  Speelt(0, "vul GebPltsNm delft\ntoon GebPltsNm\ntoon GebPltsNr", 3, R"(
    = GebPltsNm "Delft"
    = GebPltsNr "3"
  )");
}

TEST_F(PlaatsVakToets, EenOnbekendeNaamVraagtEersteEnDanDeProvincie) {
  Speelt(0, "antwoord Ja\nvul GebPltsNm Leiden\nvul ProvCode zh\ndruk OKButton", 4, R"(
    ? vraag Ja/Nee "Plaats \"Leiden\" is onbekend.\nPlaats toevoegen aan het Plaatsbestand ?" -> Ja
    + VraagProv "Invoer Plaats - Provinciecode"
    - VraagProv
  )");
}

TEST_F(PlaatsVakToets, NeeHoudtDeFocusBijDeNaam) {
  Speelt(3, "antwoord Nee\nvul GebPltsNm Leiden\ntoon", 3, R"(
    ? vraag Ja/Nee "Plaats \"Leiden\" is onbekend.\nPlaats toevoegen aan het Plaatsbestand ?" -> Nee
    : Vakscherm "Proef"
    = GebPltsNm "Leiden"
    = GebPltsNr "3"
    = Volgend ""
    = BackButton "&Terug"
    * GebPltsNm
  )");
}

TEST_F(PlaatsVakToets, EenLegeNaamIsGeenPlaats) {
  Speelt(3, "vul GebPltsNm\ntoon GebPltsNr", 0, R"(= GebPltsNr "")");
}

TEST_F(PlaatsVakToets, DeEigenNaamHoudtDeAanduidingVanHetNummer) {
  Speelt(10003, "vul GebPltsNm delft\ntoon GebPltsNm", 10003, R"(= GebPltsNm "Delft")");
  Speelt(10003, "vul GebPltsNm Amsterdam", 2, "");
}

TEST_F(PlaatsVakToets, EenGetyptNummerBrengtZijnNaam) {
  Speelt(0, "vul GebPltsNr 20002\ntoon GebPltsNm", 20002, R"(= GebPltsNm "Amsterdam")");
  Speelt(3, "vul GebPltsNr\ntoon GebPltsNm", 0, R"(= GebPltsNm "")");
}

TEST_F(PlaatsVakToets, EenNummerZonderPlaatsHoudtDeFocus) {
  Speelt(3, "vul GebPltsNr 9\nvul GebPltsNr 40000\ntoon GebPltsNr", 3, R"(
    ! uitroep "Recordnummer bestaat niet"
    ! uitroep "Recordnummer bestaat niet"
    = GebPltsNr "40000"
  )");
}

TEST_F(PlaatsVakToets, EenNummerWaarvanDePlaatsOntbreektBlijftStaan) {
  Speelt(77, "toon GebPltsNm\ntoets GebPltsNm Tab\ntoets Tab\ntyp Volgend x", 77,
         R"(= GebPltsNm "")");
  Speelt(-5, "toets GebPltsNm Tab\ntoets Tab\ntyp Volgend x", -5, "");
}

TEST_F(PlaatsVakToets, NaamEnNummerVerdwijnenSamen) {
  Stil([](Hoofdmodule& hoofd) {
    Vakscherm<PlaatsVak> scherm(hoofd, "GebPlts", "");
    scherm.Vak.ZetZichtbaar(false);
    EXPECT_FALSE(scherm.Zoek("GebPltsNm")->Zichtbaar());
    EXPECT_FALSE(scherm.Zoek("GebPltsNr")->Zichtbaar());
  });
}

}  // namespace
}  // namespace lb77
