// Files that no number is left for: the run ends in order, and what was stored stays readable.
#include <gtest/gtest.h>

#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "exchange/ImportToets.h"
#include "store/OpmVelden.h"
#include "store/PersoonVelden.h"
#include "store/PlaatsVelden.h"
#include "store/RelatieVelden.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::string_view kMaximum = "! stop \"Het maximum van 32767 records is bereikt\"\n";

class ImpMaximum : public ImportToets {
 protected:
  // Brings a file to `aantal` records by repeating its last one, which `eerste` made.
  void Vul(std::string_view soort, std::size_t lengte, std::size_t telling, int aantal, int erbij) {
    const auto pad = Map() / "PROEF" / ("PROEF." + std::string(soort));
    std::string bytes = LeesBytes(pad);
    const std::string laatste = bytes.substr(bytes.size() - lengte);
    bytes.reserve(lengte * static_cast<std::size_t>(aantal));
    while (bytes.size() < lengte * static_cast<std::size_t>(aantal)) bytes += laatste;
    const int telwaarde = aantal + erbij;
    bytes[telling] = static_cast<char>(telwaarde & 255);
    bytes[telling + 1] = static_cast<char>(telwaarde >> 8);
    SchrijfBytes(pad, bytes);
  }
};

TEST_F(ImpMaximum, PersonenDieNietPassenWordenGeweigerdVoorErIetsGeschrevenIs) {
  Bouw().Man("Jan", "Jansen");
  Vul("PRS", 128, persoonveld::GebPlaatsNr.plaats, 32766, -1);
  const std::string voor = LeesBytes(Map() / "PROEF/PROEF.PRS");
  ImporteerMet(Ged("0 @I1@ INDI\n1 NAME Piet //\n0 @I2@ INDI"), kMaximum, false);
  EXPECT_EQ(LeesBytes(Map() / "PROEF/PROEF.PRS"), voor);
}

TEST_F(ImpMaximum, DeLaatstePersoonPastNog) {
  Bouw().Man("Jan", "Jansen");
  Vul("PRS", 128, persoonveld::GebPlaatsNr.plaats, 32766, -1);
  Importeer(Ged("0 @I1@ INDI\n1 NAME Piet //"));
  EXPECT_EQ(Aantallen(), "32767 1 1 1");
  EXPECT_EQ(Persoon(32767), "voor Piet");
}

TEST_F(ImpMaximum, RelatiesDieNietPassenWordenGeweigerdVoorErIetsGeschrevenIs) {
  Bouw().Relatie(0, 0);
  Vul("RLT", 64, relatieveld::ManNr.plaats, 32766, -1);
  const std::string voor = LeesBytes(Map() / "PROEF/PROEF.RLT");
  ImporteerMet(Ged("0 @I1@ INDI\n0 @F1@ FAM\n0 @F2@ FAM"), kMaximum, false);
  EXPECT_EQ(LeesBytes(Map() / "PROEF/PROEF.RLT"), voor);
  EXPECT_EQ(Aantallen(), "1 32766 1 1");
}

TEST_F(ImpMaximum, EenVierdeRelatieDieGeenRecordMeerKrijgtWordtVoorafGeweigerd) {
  Bouw().Man("Jan", "Jansen");
  Vul("PRS", 128, persoonveld::GebPlaatsNr.plaats, 32766, -1);
  const std::string voor = LeesBytes(Map() / "PROEF/PROEF.PRS");
  ImporteerMet(Ged(R"(
      0 @I1@ INDI
      1 NAME Piet //
      1 FAMS @F1@
      1 FAMS @F2@
      1 FAMS @F3@
      1 FAMS @F4@
      0 @F1@ FAM
      0 @F2@ FAM
      0 @F3@ FAM
      0 @F4@ FAM
    )"),
               kMaximum, false);
  EXPECT_EQ(LeesBytes(Map() / "PROEF/PROEF.PRS"), voor);
}

TEST_F(ImpMaximum, EenVierdeRelatieMagHetLaatsteRecordNemen) {
  Bouw().Man("Jan", "Jansen");
  Vul("PRS", 128, persoonveld::GebPlaatsNr.plaats, 32765, -1);
  Importeer(
      Ged("0 @I1@ INDI\n1 NAME Piet //\n1 FAMS @F1@\n1 FAMS @F1@\n1 FAMS @F1@\n1 FAMS @F1@\n"
          "1 FAMS @F1@\n0 @F1@ FAM"));
  EXPECT_EQ(Persoon(32766), "voor Piet; rel1 2; rel2 2; rel3 -32767");
  EXPECT_EQ(Persoon(32767), "geb Z   -  -    ; rel1 2; rel2 2; rel3 2");
}

TEST_F(ImpMaximum, EenZestiendeKindDatGeenRecordMeerKrijgtWordtVoorafGeweigerd) {
  Bouw().Relatie(0, 0);
  Vul("RLT", 64, relatieveld::ManNr.plaats, 32766, -1);
  const std::string voor = LeesBytes(Map() / "PROEF/PROEF.RLT");
  std::string regels = "0 @I1@ INDI\n0 @F1@ FAM\n";
  for (int i = 0; i < 16; ++i) regels += "1 CHIL @I1@\n";
  ImporteerMet(Ged(regels), kMaximum, false);
  EXPECT_EQ(LeesBytes(Map() / "PROEF/PROEF.RLT"), voor);
}

TEST_F(ImpMaximum, EenZestiendeKindMagHetLaatsteRecordNemen) {
  Bouw().Relatie(0, 0);
  Vul("RLT", 64, relatieveld::ManNr.plaats, 32765, -1);
  std::string regels = "0 @I1@ INDI\n0 @F1@ FAM\n";
  for (int i = 0; i < 17; ++i) regels += "1 CHIL @I1@\n";
  Importeer(Ged(regels));
  EXPECT_EQ(Relatie(32766), "kind 2 2 2 2 2 2 2 2 2 2 2 2 2 2 -32767");
}

TEST_F(ImpMaximum, VollePlaatsenWordenEenmaalGemeldEnBekendeGevonden) {
  Bouw().Plaats("Delft");
  Vul("PLT", 27, plaatsveld::Prov.plaats, 9999, -1);
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 BIRT
      2 PLAC Aa
      1 DEAT
      2 PLAC Bb
      0 @I2@ INDI
      1 BIRT
      2 PLAC Cc
      1 DEAT
      2 PLAC Delft
      1 BURI
      2 PLAC aa
    )"),
            "! stop \"Het maximum van 10000 plaatsen is bereikt\"\n");
  EXPECT_EQ(LogRegels(), "P-I1 - Plaats niet opgeslagen: Bb\nP-I2 - Plaats niet opgeslagen: Cc\n");
  EXPECT_EQ(
      Rest(),
      "0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 REFN 2\n1 DEAT\n2 PLAC Bb\n0 @I2@ INDI\n1 REFN 3\n"
      "1 BIRT\n2 PLAC Cc\n0 TRLR\n");
  EXPECT_EQ(Persoon(2), "te 10000");
  EXPECT_EQ(Persoon(3), "te 2; te 10000");
  EXPECT_EQ(Plaats(2), "Delft");
}

TEST_F(ImpMaximum, OpmerkingenDiePassenWordenOpgeslagenEnDeImportStopt) {
  Bouw().OpmerkingBijPersoon(Bouw().Man("Jan", "Jansen"), 4096, {"oud"});
  Vul("OPM", 96, opmveld::Rubriek.plaats, 32766, 0);
  InSessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(hoofd.Opmerking.LeesAdmin());
    ASSERT_TRUE(hoofd.Opmerking.SchrijfAdm(32766, 32767, 32765));
  });
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 NAME Piet //
      1 NOTE een
      1 NOTE twee
      2 CONT lang
      1 XYZ iets
      1 NOTE drie
      0 @I2@ INDI
      1 NOTE vier
      0 @F1@ FAM
      1 NOTE vijf
    )") + "1 NOTE zes\n",
            std::string(kMaximum) + "! uitroep \"Schrijffout bij Persoon 3\"");
  EXPECT_EQ(Persoon(3), "voor Piet; opm 4096");
  EXPECT_EQ(OpmBijPersoon(3), "4096 een\n");
  EXPECT_EQ(OpmBijPersoon(2), "4096 oud\n");
  EXPECT_EQ(LogRegels(),
            "P-I1 - Onbekende tag: INDI-XYZ : iets\n"
            "Opmerkingen vanaf persoon 3 zijn niet opgeslagen: het maximum van 32767 records is "
            "bereikt\n");
  // What no longer fitted is kept, on the line that failed and behind it.
  EXPECT_EQ(Rest(),
            "0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 REFN 3\n1 NOTE twee\n2 CONT lang\n1 XYZ iets\n"
            "1 NOTE drie\n0 @I2@ INDI\n1 REFN 4\n1 NOTE vier\n0 @F1@ FAM\n1 REFN 2\n1 NOTE vijf\n"
            "0 NOTE achter TRLR\n1 NOTE zes\n0 TRLR\n");
}

TEST_F(ImpMaximum, DeTellingBlijftWaarDeOpmerkingenOphielden) {
  Bouw().OpmerkingBijPersoon(Bouw().Man("Jan", "Jansen"), 4096, {"oud"});
  Vul("OPM", 96, opmveld::Rubriek.plaats, 32767, 0);
  InSessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(hoofd.Opmerking.LeesAdmin());
    ASSERT_TRUE(hoofd.Opmerking.SchrijfAdm(32767, 0, 32766));
  });
  SchrijfBytes(Bestand(), Ged("0 @I1@ INDI\n1 NOTE een\n0 @I2@ INDI\n0 @I3@ INDI"));
  const Taak taak = [](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    ImpGedcom form(hoofd);
    hoofd.gesprek.ToonModaal(form);
  };
  Verwacht(
      "vul Bestandsnaam " + Bestand().string() +
          "\ndruk OKButton\ndruk BackButton\ntoon RegelNr\ntoon AantalPersonen\ndruk BackButton",
      taak, "+ ImpGedcom \"Importeer Gegevens - Gedcom\"\n" + std::string(kMaximum) + R"(
      ! uitroep "Schrijffout bij Persoon 3"
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      = RegelNr "4"
      = AantalPersonen "2"
      - ImpGedcom
    )");
}

}  // namespace
}  // namespace lb77
