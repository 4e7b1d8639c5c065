#include "entry/PersoonVak.h"
#include "entry/VakToets.h"
#include "forms/Rij.h"

namespace lb77 {
namespace {

constexpr PersoonVakSoort kVader = {.periode = "Periode"};
constexpr PersoonVakSoort kTonen = {.controle = PersoonControle::Tonen};
constexpr PersoonVakSoort kRapport = {.controle = PersoonControle::Tonen,
                                      .naamInvoer = false,
                                      .onbekend = "<onbekend>",
                                      .periode = "Periode"};

class PersoonVakToets : public VakToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos", {{"GebJaar", "1802"}});
    Bouw().Vrouw("", "Kok");
    MaakVervolg(Bouw().Man("", ""));
  }
  void Speelt(const PersoonVakSoort& soort, std::string_view draaiboek, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    SpeeltOp(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = 3;
          hoofd.volgers.HuidigRelatieNr = 7;
          Vakscherm<PersoonVak> scherm(hoofd, "Pa", soort);
          hoofd.gesprek.ToonModaal(scherm);
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 3) << plek.line();
          EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, 7) << plek.line();
          nr_ = scherm.Vak.Nr();
        },
        verslag, plek);
  }

  std::int16_t nr_ = -1;
};

TEST_F(PersoonVakToets, EenNummerBrengtNamenEnJaren) {
  Speelt(kVader, "typ RecordNrPa 2\ntoets Tab\ntoon", R"(
    : Vakscherm "Proef"
    = RecordNrPa "2"
    = VoorNmPa "Jan"
    = AchterNmPa "Vos"
    = PeriodePa "1802-    "
    = Volgend ""
    = BackButton "&Terug"
    * VoorNmPa
  )");
  EXPECT_EQ(nr_, 2);
}

TEST_F(PersoonVakToets, EenOngeldigNummerHoudtDeFocus) {
  Speelt(kVader, "vul RecordNrPa 4\nvul RecordNrPa 9", R"(
    ! uitroep "Record is een vervolgrecord"
    ! uitroep "Recordnummer bestaat niet"
  )");
}

// A field that only shows whom it means has nothing to say of it, and takes digits alone.
TEST_F(PersoonVakToets, EenNummerMetLettersIsNietNumeriek) {
  Speelt(kVader, "typ RecordNrPa 2a\ntoets Tab\ntoon VoorNmPa",
         "! uitroep \"Recordnummer is niet numeriek\"\n= VoorNmPa \"\"");
  Speelt(kTonen, "typ RecordNrPa 2a\ntoets Tab\ntoon VoorNmPa", "= VoorNmPa \"Jan\"");
  EXPECT_EQ(nr_, 2);
}

TEST_F(PersoonVakToets, EenLeegNummerWistDeNamenTenzijZeBlijvenMogen) {
  Speelt(kVader, "vul RecordNrPa 2\nvul RecordNrPa\ntoon VoorNmPa", R"(= VoorNmPa "")");
  Speelt({.leegWist = false}, "vul VoorNmPa Jan\ntoets RecordNrPa Tab\ntoon VoorNmPa",
         R"(= VoorNmPa "Jan")");
}

TEST_F(PersoonVakToets, F2BrengtDeGekozenPersoonEnLaatDeVolgersStaan) {
  Speelt(kVader, "toets RecordNrPa F2\ndruk RecordNrPrs(1)\ntoon RecordNrPa\ntoon AchterNmPa", R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = RecordNrPa "2"
    = AchterNmPa "Vos"
  )");
  Speelt(kVader, "vul RecordNrPa 3\ntoets RecordNrPa F2\ndruk BackButton\ntoon RecordNrPa", R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = RecordNrPa "3"
  )");
}

TEST_F(PersoonVakToets, WieNietTeLezenIsHeeftVraagtekens) {
  Speelt(kTonen,
         "vul RecordNrPa 9\ntoon VoorNmPa\nvul RecordNrPa 1\n"
         "toon AchterNmPa\nvul RecordNrPa 3\ntoon VoorNmPa",
         R"(
    = VoorNmPa "?????"
    = AchterNmPa "?????"
    = VoorNmPa ""
  )");
}

TEST_F(PersoonVakToets, EenRapportNoemtHemOnbekend) {
  Speelt(kRapport,
         "vul RecordNrPa 3\ntoon VoorNmPa\ntoon AchterNmPa\ntoon PeriodePa\n"
         "vul RecordNrPa 9\ntoon AchterNmPa\ntoon PeriodePa",
         R"(
    = VoorNmPa "<onbekend>"
    = AchterNmPa "Kok"
    = PeriodePa "    -    "
    = AchterNmPa "<onbekend>"
    = PeriodePa ""
  )");
}

TEST_F(PersoonVakToets, EenNummerBuitenHetBereikIsNiemand) {
  Speelt(kTonen, "vul RecordNrPa 40000", R"(! stop "Het maximum van 32767 records is bereikt")");
  EXPECT_EQ(nr_, 0);
}

TEST_F(PersoonVakToets, ZonderEigenControleGaatAllesDoor) {
  Speelt({.controle = PersoonControle::Geen}, "vul RecordNrPa 9\ntoon VoorNmPa",
         R"(= VoorNmPa "")");
  EXPECT_EQ(nr_, 9);
}

TEST_F(PersoonVakToets, EenRijVanPersonenHeeftHunNummersInDeNamen) {
  struct Scherm final : InvoerFormulier {
    explicit Scherm(Hoofdmodule& hoofd) : InvoerFormulier("Scherm", "", hoofd) {}
    Rij<PersoonVak, 2> P{*this, "P", 1, kVader};
  };
  Stil([](Hoofdmodule& hoofd) {
    Scherm scherm(hoofd);
    EXPECT_EQ(scherm.P(2).RecordNr.Naam(), "RecordNrP(2)");
    EXPECT_EQ(scherm.P(2).VoorNm.MaxLengte(), 30U);
    EXPECT_EQ(scherm.P(2).AchterNm.MaxLengte(), 25U);
    scherm.P(2).ZetZichtbaar(false);
    for (const char* naam : {"RecordNrP(2)", "VoorNmP(2)", "AchterNmP(2)", "PeriodeP(2)"}) {
      EXPECT_FALSE(scherm.Zoek(naam)->Zichtbaar()) << naam;
    }
    EXPECT_TRUE(scherm.Zoek("RecordNrP(1)")->Zichtbaar());
  });
}

}  // namespace
}  // namespace lb77
