// Walking over the sheets on the screen.
#include <gtest/gtest.h>

#include "ancestors/KwstBladKeten.h"
#include "ancestors/KwstBladen.h"
#include "app/Hoofdmodule.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class KwstBladenToets : public KwstBladKeten {};

TEST_F(KwstBladenToets, ToontDeProbandEnZijnVoorouders) {
  OpBlad("toon", R"(
      : KwstBladen "Kwartierblad"
      = (*) KW_Index KW_Nr Proband Kwartier InfoPersoon Periode Kwartier_A
      = (1) - - "1" "Gerrit van Dam" "i" "1810-    " -
      = (2) - - "2" "Dirk van Dam" "i" "1780-    " -
      = (3) - - "3" "Femke van Dam" "i" "    -1850" -
      = (4) - - "4" "Adriaan van Dam" "i" "1750-1820" -
      = (5) - - "5" "Barbara Blom" "i" "1755-    " -
      = (6) - - "6" "Adriaan van Dam" "i" "1750-1820" -
      = (7) - - "7" "Cornelia Cool" "i" "    -    " -
      = (8) - - "8" "" "i" "" -
      = (9) - - "9" "" "i" "" -
      = (10) - - "10" "" "i" "" -
      = (11) - - "11" "" "i" "" -
      = (12) - - "12" "" "i" "" -
      = (13) - - "13" "" "i" "" -
      = (14) - - "14" "Klaas Cool" "i" "    -    " ">"
      = (15) - - "15" "" "i" "" -
      = NaarKind "Naar &Kind"
      = UitvoerButton "Opslaan / Afdrukken"
      = OKButton "&OK"
      = BackButton "&Terug"
      * NaarKind
    )");
  EXPECT_EQ(gebleven_, 0);
}

TEST_F(KwstBladenToets, HoudtIndexEnNummerOnzichtbaarBij) {
  OpBlad("toon KW_Index(1)\ntoon KW_Index(6)\ntoon KW_Index(8)\ntoon KW_Nr(14)\ntoon KW_Nr(15)", R"(
      = KW_Index(1) "0" [verborgen]
      = KW_Index(6) "5" [verborgen]
      = KW_Index(8) "0" [verborgen]
      = KW_Nr(14) "14" [verborgen]
      = KW_Nr(15) "" [verborgen]
    )");
}

TEST_F(KwstBladenToets, LooptNaarBovenEnTerug) {
  OpBlad(R"(
      druk Proband(3)
      toon KW_Nr(1)
      toon Kwartier(1)
      toon KW_Nr(6)
      toon Kwartier(6)
      toon KW_Nr(14)
      toon Kwartier(14)
      druk Proband(12)
      toon Kwartier(1)
      toon KW_Nr(1)
      toon Kwartier(2)
      druk NaarKind
      toon Kwartier(1)
      druk NaarKind
      toon Kwartier(1)
      druk NaarKind
      druk NaarKind
      toon Kwartier(1)
      druk NaarKind
      toon Kwartier(1)
    )",
         R"(
      = KW_Nr(1) "3" [verborgen]
      = Kwartier(1) "Femke van Dam"
      = KW_Nr(6) "14" [verborgen]
      = Kwartier(6) "Klaas Cool"
      = KW_Nr(14) "" [verborgen]
      = Kwartier(14) ""
      = Kwartier(1) "Verre Cool"
      = KW_Nr(1) "28" [verborgen]
      = Kwartier(2) ""
      = Kwartier(1) "Klaas Cool"
      = Kwartier(1) "Cornelia Cool"
      = Kwartier(1) "Gerrit van Dam"
      = Kwartier(1) "Gerrit van Dam"
    )");
}

TEST_F(KwstBladenToets, EenLegePlaatsLeidtNergensHeen) {
  OpBlad("druk Proband(8)\ntoon Kwartier(1)\ndruk InfoPersoon(8)\ntoon Kwartier(1)", R"(
      = Kwartier(1) "Gerrit van Dam"
      = Kwartier(1) "Gerrit van Dam"
    )");
}

TEST_F(KwstBladenToets, ToontDePersoonEnDaarnaHetBladOpnieuw) {
  OpBlad(R"(
      druk InfoPersoon(2)
      toon RecordNr
      druk WijzigButton
      vul VoorNm Diederik
      druk Opslaan
      druk BackButton
      toon Kwartier(2)
    )",
         R"(
      + ToonPersoon "Toon Persoon"
      = RecordNr "6"
      + WijzigPersoon "Wijzig Persoon"
      - WijzigPersoon
      - ToonPersoon
      = Kwartier(2) "Diederik van Dam"
    )");
  EXPECT_EQ(gebleven_, 0);
}

TEST_F(KwstBladenToets, WieNietTeLezenIsLaatZijnPlaatsLeeg) {
  const auto kind = Bouw().Man("Kind", "A");
  const auto relatie = Bouw().Relatie(0, 0, {kind});
  Bouw().WijzigRelatie(relatie, {{"ManNr", "900"}});
  const std::string nummer = GetalTekst(kind);
  Speel(
      Weg()
          .In("KwstBldPrs", "vul RecordNr " + nummer + "\ndruk OKButton")
          .Zegt(
              "KwstBereken",
              R"(! stop "Persoonsrecord 900 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("KwstBereken"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstBladenToets, WieNaDeOpbouwNietMeerTeLezenIsLaatZijnPlaatsLeeg) {
  KwstTabel tabel;
  tabel.Begin(familie_.proband, true, Kwartiernummer("1"));
  ASSERT_TRUE(tabel.VoegToe(900, 0, false));
  const Taak taak = [&](Hoofdmodule& hoofd) {
    KwstBladen bladen(hoofd, KwstOpties(), tabel);
    hoofd.gesprek.ToonModaal(bladen);
  };
  Verwacht("toon Kwartier(2)\ntoon Periode(2)\ntoon KW_Index(2)\ndruk OKButton", taak, R"(
      + KwstBladen "Kwartierblad"
      = Kwartier(2) ""
      = Periode(2) ""
      = KW_Index(2) "1" [verborgen]
      - KwstBladen
    )");
}

TEST_F(KwstBladenToets, EenOnbekendeNaamStaatErZo) {
  Bouw().WijzigPersoon(familie_.vader, {{"Voornaam", ""}});
  Bouw().WijzigPersoon(familie_.moeder, {{"Achternaam", ""}});
  OpBlad("toon Kwartier(2)\ntoon Kwartier(3)", R"(
      = Kwartier(2) "<onbekend> van Dam"
      = Kwartier(3) "Femke <onbekend>"
    )");
}

TEST_F(KwstBladenToets, ElkeWegTerugLaatNulAchter) {
  for (const std::string_view weg : {"druk OKButton", "druk BackButton", "toets Escape", "sluit"}) {
    gebleven_ = 7;
    Speel(Weg().In("KwstBladen", weg));
    EXPECT_EQ(gebleven_, 0) << weg;
  }
  Speel(Weg().In("KwstBldPrs", "druk BackButton").Tot("KwstBldPrs"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstBladenToets, EenGestopteOpbouwToontGeenBlad) {
  Speel(Weg()
            .In("KwstBldPrs", "onderbreek 2\nantwoord Ja\nvul RecordNr 9\ndruk OKButton")
            .In("KwstBereken", "druk BackButton", R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja)")
            .Tot("KwstBereken"));
  EXPECT_EQ(gebleven_, -1);
}

// A loop of parents fills the table; each sheet leads to the next.
TEST_F(KwstBladenToets, EenKringVanOudersLooptDoor) {
  const auto kind = Bouw().Man("Kring", "Loop");
  const auto relatie = Bouw().Relatie(kind, 0, {kind});
  Bouw().WijzigRelatie(relatie, {{"VrouwNr", GetalTekst(kind)}});
  Speel(Weg()
            .In("KwstBldPrs", "vul RecordNr " + GetalTekst(kind) + "\ndruk OKButton")
            .Zegt("KwstBereken", R"(! uitroep "Maximum aantal kwartieren (10000) bereikt...")")
            .In("KwstBladen", R"(
                toon Kwartier_A(8)
                druk Proband(15)
                druk Proband(15)
                toon KW_Nr(15)
                toon Kwartier_A(15)
                druk BackButton
              )",
                R"(
                = Kwartier_A(8) ">"
                = KW_Nr(15) "1023" [verborgen]
                = Kwartier_A(15) ">"
              )"));
}

}  // namespace
}  // namespace lb77
