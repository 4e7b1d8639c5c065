#include "entry/CorrectieVak.h"
#include "entry/GezindteVak.h"
#include "entry/RecordNrVak.h"
#include "entry/VakToets.h"
#include "forms/Rij.h"

namespace lb77 {
namespace {

// The fields of a code and of a number.
class CodeVakToets : public VakToets {
 protected:
  void SpeeltCorrectie(std::string_view draaiboek, std::string_view verslag,
                       const Plek& plek = Plek::current()) {
    SpeeltOp(
        draaiboek,
        [](Hoofdmodule& hoofd) {
          hoofd.Ini.IniZet("Funktietoetsen", "F1", "v");
          Vakscherm<CorrectieVak> scherm(hoofd, "GebCorr");
          hoofd.gesprek.ToonModaal(scherm);
        },
        verslag, plek);
  }
  void SpeeltNr(std::string_view draaiboek, Vervolgtest vervolgtest, std::string_view verslag,
                const Plek& plek = Plek::current()) {
    SpeeltOp(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          Vakscherm<RecordNrVak> scherm(hoofd, "RecordNr", "Nummer:", BestandSoort::Personen,
                                        vervolgtest);
          scherm.Vak.ToonNr(0);
          hoofd.volgers.HuidigPersoonNr = 7;
          hoofd.gesprek.ToonModaal(scherm);
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 7);
          nr_ = scherm.Vak.Nr();
        },
        verslag, plek);
  }

  std::int16_t nr_ = -1;
};

TEST_F(CodeVakToets, DeVierCodesEnEenLeegVeldGaanDoor) {
  for (const char* code : {"c", "V", "n", "T"}) {
    SpeeltCorrectie(std::string("typ GebCorr ") + code + "\ntoets Tab\ntyp Volgend x", "");
  }
  SpeeltCorrectie("toets GebCorr Tab\ntyp Volgend x", "");
}

TEST_F(CodeVakToets, EenLetterWordtEenHoofdletterOokUitEenFunctietoets) {
  SpeeltCorrectie("typ GebCorr t\ntoon GebCorr", R"(= GebCorr "T")");
  SpeeltCorrectie("toets GebCorr Shift+F1\ntoets Tab\ntoon GebCorr", R"(= GebCorr "V")");
}

TEST_F(CodeVakToets, EenAndereLetterHoudtDeFocus) {
  SpeeltCorrectie("typ GebCorr z\ntoets Tab\ntoon", R"(
    ! uitroep "Alleen C (Circa), V (Voor), N (Na) of T (Tussen) toegestaan"
    : Vakscherm "Proef"
    = GebCorr "Z"
    = Volgend ""
    = BackButton "&Terug"
    * GebCorr
  )");
}

TEST_F(CodeVakToets, TussenIsDeLetterT) {
  Stil([](Hoofdmodule& hoofd) {
    Vakscherm<CorrectieVak> scherm(hoofd, "GebCorr");
    EXPECT_FALSE(scherm.Vak.IsTussen());
    scherm.Vak.ZetTekst("T");
    EXPECT_TRUE(scherm.Vak.IsTussen());
  });
}

TEST_F(CodeVakToets, DeGezindteStaatNaastHaarCode) {
  SpeeltOp(
      "toon ReligieTekst\nvul ReligieCode rk\ntoon ReligieTekst\n"
      "vul ReligieCode XX\ntoon ReligieTekst",
      [](Hoofdmodule& hoofd) {
        hoofd.schrijfwijze.gezindten[1] = "NHNed. Hervormd";
        hoofd.schrijfwijze.gezindten[2] = "RKRooms Katholiek";
        Vakscherm<GezindteVak> scherm(hoofd, "Religie", "Gezindte:");
        scherm.Vak.Toon("NH");
        hoofd.gesprek.ToonModaal(scherm);
      },
      R"(
    = ReligieTekst "Ned. Hervormd"
    = ReligieTekst "Rooms Katholiek"
    = ReligieTekst "XX"
  )");
}

TEST_F(CodeVakToets, DeGezindteVerdwijntInHaarGeheel) {
  Stil([](Hoofdmodule& hoofd) {
    Vakscherm<GezindteVak> scherm(hoofd, "Religie", "");
    scherm.Vak.ZetZichtbaar(false);
    EXPECT_FALSE(scherm.Zoek("ReligieCode")->Zichtbaar());
    EXPECT_FALSE(scherm.Zoek("ReligieTekst")->Zichtbaar());
  });
}

TEST_F(CodeVakToets, EenRecordnummerMoetBestaan) {
  Bouw().Man("Jan", "Vos");
  MaakVervolg(Bouw().Man("", ""));
  SpeeltNr("typ RecordNr 4\ntoets Tab", Vervolgtest::GeenVervolg,
           R"(! uitroep "Recordnummer bestaat niet")");
  SpeeltNr("typ RecordNr 3\ntoets Tab", Vervolgtest::GeenVervolg,
           R"(! uitroep "Record is een vervolgrecord")");
  SpeeltNr("typ RecordNr 2\ntoets Tab", Vervolgtest::Vervolg,
           R"(! uitroep "Record is geen vervolgrecord")");
  SpeeltNr("typ RecordNr 2x\ntoets Tab", Vervolgtest::GeenVervolg,
           R"(! uitroep "Recordnummer is niet numeriek")");
  SpeeltNr("typ RecordNr 2\ntoets Tab\ntyp Volgend y", Vervolgtest::GeenVervolg, "");
  EXPECT_EQ(nr_, 2);
}

TEST_F(CodeVakToets, EenLeegRecordnummerIsNul) {
  SpeeltNr("toets RecordNr Tab\ntyp Volgend y", Vervolgtest::GeenVervolg, "");
  EXPECT_EQ(nr_, 0);
}

TEST_F(CodeVakToets, F2ZoektInEenVeldVoorPersonen) {
  Bouw().Man("Jan", "Vos");
  SpeeltNr("toets RecordNr F2\ndruk RecordNrPrs(1)", Vervolgtest::Geen, R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
  )");
  EXPECT_EQ(nr_, 2);
}

TEST_F(CodeVakToets, EenRijNeemtVeldenDieDeSessieKennen) {
  struct Scherm final : InvoerFormulier {
    explicit Scherm(Hoofdmodule& hoofd) : InvoerFormulier("Scherm", "", hoofd) {}
    Rij<CorrectieVak, 2> Corr{*this, "Corr", 1, "Code:"};
  };
  Stil([](Hoofdmodule& hoofd) {
    Scherm scherm(hoofd);
    EXPECT_EQ(scherm.Corr(2).Naam(), "Corr(2)");
    EXPECT_EQ(scherm.Corr(2).Bijschrift(), "Code:");
  });
}

}  // namespace
}  // namespace lb77
