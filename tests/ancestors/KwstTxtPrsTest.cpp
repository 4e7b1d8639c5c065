// The prompt for the proband.
#include <gtest/gtest.h>

#include "ancestors/KwstKeten.h"

namespace lb77 {
namespace {

class KwstPrompt : public KwstKeten {};

TEST_F(KwstPrompt, EenLegeVraagVraagtOmEenNummer) {
  Speel(R"(
      druk OKButton
      toon
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      ! uitroep "Geen Persoonsnummer opgegeven"
      : KwstTxtPrs "Nummer Proband"
      = VraagLabel "Geef het Persoonsnummer van de Proband"
      = RecordNr ""
      = VoorNm ""
      = AchterNm ""
      = OKButton "&OK"
      = ZoekButton "&Zoek Persoon"
      = BackButton "&Terug"
      * RecordNr
      - KwstTxtPrs
    )");
}

TEST_F(KwstPrompt, EenNaamAlleenWordtGezocht) {
  Speel(R"(
      vul VoorNm Ger*
      druk OKButton
      druk JaButton
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + OKPersoon "Zoek Persoon op Naam"
      - OKPersoon
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      - KwstTxtPrs
    )");
}

TEST_F(KwstPrompt, EenOnbekendNummerToontVraagtekensEnEindigtInDeOpbouw) {
  Speel(R"(
      vul RecordNr 500
      toon VoorNm
      toon AchterNm
      druk OKButton
      druk OKButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      = VoorNm "?????"
      = AchterNm "?????"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      ! stop "Persoonsrecord 500 kan niet worden gelezen. Er is geen verslag gemaakt."
      - KwstBereken
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstPrompt, MetHetNummerGaatWatZegtDatHetVanNiemandIs) {
  Speel(R"(
      vul RecordNr 500
      vul RecordNr
      toon VoorNm
      toon AchterNm
      vul RecordNr 9
      vul RecordNr
      toon VoorNm
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      = VoorNm ""
      = AchterNm ""
      = VoorNm "Gerrit"
      - KwstTxtPrs
    )");
}

TEST_F(KwstPrompt, HetRecordOverHetBestandIsNiemand) {
  Speel(R"(
      vul RecordNr 1
      toon VoorNm
      toon AchterNm
      druk OKButton
      druk OKButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      = VoorNm "?????"
      = AchterNm "?????"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      ! stop "Persoonsrecord 1 kan niet worden gelezen. Er is geen verslag gemaakt."
      - KwstBereken
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstPrompt, EenNaamDieNiemandHeeftWordtGemeld) {
  Speel(R"(
      vul AchterNm Niemand
      druk OKButton
      toon AchterNm
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      ! uitroep "Persoon niet gevonden"
      ! uitroep "Geen Persoonsnummer opgegeven"
      = AchterNm "Niemand"
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstPrompt, EnterGaatVerder) {
  Speel(R"(
      vul RecordNr 9
      toets RecordNr Enter
      toets Enter
      toets Enter
      toets Enter
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      - KwstTxtPrs
    )");
}

TEST_F(KwstPrompt, EenTeHoogNummerWordtGeweigerd) {
  Speel(R"(
      vul RecordNr 40000
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      ! stop "Het maximum van 32767 records is bereikt"
      - KwstTxtPrs
    )");
}

TEST_F(KwstPrompt, DeZoekknopEnF2VullenHetNummer) {
  Speel(R"(
      druk ZoekButton
      druk RecordNrPrs(8)
      toon RecordNr
      toets RecordNr F2
      druk BackButton
      toon VoorNm
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
      = RecordNr "9"
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
      = VoorNm "Gerrit"
      - KwstTxtPrs
    )");
}

TEST_F(KwstPrompt, WieGekozenHeeftStaatOpOK) {
  for (const std::string zoek : {"druk ZoekButton", "toets RecordNr F2"}) {
    Speel(zoek + "\ndruk RecordNrPrs(8)\ntoon\ntoets Escape", R"(
      + KwstTxtPrs "Nummer Proband"
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
      : KwstTxtPrs "Nummer Proband"
      = VraagLabel "Geef het Persoonsnummer van de Proband"
      = RecordNr "9"
      = VoorNm "Gerrit"
      = AchterNm "van Dam"
      = OKButton "&OK"
      = ZoekButton "&Zoek Persoon"
      = BackButton "&Terug"
      * OKButton
      - KwstTxtPrs
    )");
  }
}

}  // namespace
}  // namespace lb77
