// Characters that Windows-1252 has and the records do not: told, counted, and kept in the rest file.
#include <gtest/gtest.h>

#include "exchange/ImpTekens.h"
#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

std::string Regels(const ImpTekens& tekens) {
  std::string uit;
  tekens.Noteer([&](std::string_view regel) { uit.append(regel).append("\n"); });
  return uit;
}

TEST(ImpTekens, VoegtTellingenSamenMetDeEersteRegelVanBeide) {
  ImpTekens tekens;
  tekens.Tel(0x17E, 9);
  tekens.Tel(0x17E, 4);
  tekens.Tel(0x17E, 5);
  ImpTekens andere;
  andere.TelRegel();
  andere.TelRegel();
  andere.Tel(0x17E);
  andere.Tel(0xF0);
  tekens.Voeg(andere);
  EXPECT_EQ(Regels(tekens),
            "LET OP: teken U+00F0 niet overgenomen: 1 keer, voor het eerst in regel 2\n"
            "LET OP: teken U+017E niet overgenomen: 4 keer, voor het eerst in regel 2\n");
}

class ImpTekensTest : public ImportToets {
 protected:
  // The lines of the rest file between its head and its end.
  [[nodiscard]] std::string Kern() const {
    std::string rest = Rest();
    constexpr std::string_view kKop = "0 HEAD\n1 CHAR UTF-8\n";
    constexpr std::string_view kSlot = "0 TRLR\n";
    if (rest.size() < kKop.size() + kSlot.size()) return rest;
    return rest.substr(kKop.size(), rest.size() - kKop.size() - kSlot.size());
  }
};

// HEAD is line 1.
TEST_F(ImpTekensTest, NamenDieVervormdZijnOpgeslagenStaanInHetVerslagEnDeRest) {
  Antwoord("Ja");
  Importeer(GedIn("UTF-8", R"(
      0 @I1@ INDI
      1 NAME Božena /Guðrúnsdóttir/
      2 GIVN Božena
      2 SPFX þor
      2 SURN Smit
      1 SEX F
      0 @I2@ INDI
      1 NAME Žofie /Škoda/
      1 OCCU kožešník
      0 @I3@ INDI
      1 NAME Jan /þ Vos/
      2 SPFX þ
    )"));
  EXPECT_EQ(Persoon(2), "voor Bo?ena; achter Smit; seks V");
  EXPECT_EQ(Persoon(3), "voor Zofie; achter Skoda; beroep ko?esn\xEDk");
  EXPECT_EQ(LogRegels(),
            "LET OP: naam overschreven door een latere: 1 keer, voor het eerst in regel 7\n"
            "LET OP: teken U+00F0 niet overgenomen: 1 keer, voor het eerst in regel 4\n"
            "LET OP: teken U+00FE niet overgenomen: 3 keer, voor het eerst in regel 6\n"
            "LET OP: teken U+017E niet overgenomen: 3 keer, voor het eerst in regel 4\n");
  EXPECT_EQ(Kern(),
            "0 @I1@ INDI\n1 REFN 2\n1 NAME Božena /Guðrúnsdóttir/\n2 GIVN Božena\n2 SPFX þor\n"
            "0 @I2@ INDI\n1 REFN 3\n1 OCCU kožešník\n"
            "0 @I3@ INDI\n1 REFN 4\n1 NAME Jan /þ Vos/\n2 SPFX þ\n");
}

TEST_F(ImpTekensTest, OokInPlaatsenReligiesEnOpmerkingen) {
  Antwoord("Ja");
  Importeer(GedIn("UTF-8", R"(
      0 @I1@ INDI
      1 NAME Jan /Smit/
      1 BIRT
      2 PLAC Žižkov
      2 RELI þ
      1 RELI þ
      1 NOTE goed
      1 NOTE een regel
      2 CONT en een žena
      2 CONC , þ
      1 NOTE É
      0 @F1@ FAM
      1 MARR
      2 PLAC Žižkov
      2 TYPE ð
    )"));
  EXPECT_EQ(Plaats(2), "Zi?kov");
  EXPECT_EQ(OpmBijPersoon(2), "4096 goed\n4096 een regel en een ?ena, ?\n4096 \xC9\n");
  EXPECT_EQ(LogRegels(),
            "P-I1 - Onbekende tag: INDI-BIRT-RELI : \xFE\n"
            "LET OP: teken U+00F0 niet overgenomen: 1 keer, voor het eerst in regel 17\n"
            "LET OP: teken U+00FE niet overgenomen: 2 keer, voor het eerst in regel 8\n"
            "LET OP: teken U+017E niet overgenomen: 3 keer, voor het eerst in regel 6\n");
  EXPECT_EQ(Kern(),
            "0 @I1@ INDI\n1 REFN 2\n1 BIRT\n2 PLAC Žižkov\n2 RELI þ\n1 RELI þ\n1 NOTE een regel\n"
            "2 CONT en een žena\n2 CONC , þ\n0 @F1@ FAM\n1 REFN 2\n1 MARR\n2 PLAC Žižkov\n"
            "2 TYPE ð\n");
}

TEST_F(ImpTekensTest, OokUitEenBestandDatGeenUnicodeIs) {
  Importeer(GedIn("WIN",
                  "0 @I1@ INDI\n1 NAME Bo\x9E"
                  "ena //\n1 OCCU 1\xAA\n1 NOTE 1\xBA"));
  EXPECT_EQ(LogRegels(),
            "LET OP: teken U+00AA niet overgenomen: 1 keer, voor het eerst in regel 5\n"
            "LET OP: teken U+00BA niet overgenomen: 1 keer, voor het eerst in regel 6\n"
            "LET OP: teken U+017E niet overgenomen: 1 keer, voor het eerst in regel 4\n");
  EXPECT_EQ(Kern(), "0 @I1@ INDI\n1 REFN 2\n1 NAME Božena //\n1 OCCU 1ª\n1 NOTE 1º\n");
  // Nothing is converted once more for the count: a box a text.
  const std::string box =
      "! info \"Codepage 860 wordt nog niet ondersteund.\\nCodepage 437 wordt gebruikt\"\n";
  Importeer(GedIn("CP850", "0 @I1@ INDI\n1 NAME Gu\xD0run /Bos/\n1 NOTE \xD0"), box + box + box);
  EXPECT_EQ(LogRegels(),
            "LET OP: teken U+00F0 niet overgenomen: 2 keer, voor het eerst in regel 4\n");
  EXPECT_EQ(Kern(), "0 @I1@ INDI\n1 REFN 3\n1 NAME Guðrun /Bos/\n1 NOTE ð\n");
}

TEST_F(ImpTekensTest, EenGewoonVraagtekenIsGeenVerlies) {
  Importeer(GedIn("WIN", "0 @I1@ INDI\n1 NAME Jan? /\xC9?/\n1 OCCU caf\xE9?\n1 NOTE \xE9?"));
  EXPECT_EQ(Log(), "Importeren voltooid\r\n");
}

TEST_F(ImpTekensTest, OokWatInEenEigenTagStaat) {
  Importeer(
      "0 HEAD\n1 _LBVORM 1\n1 CHAR WIN\n0 @P1@ _LBPLTS\n1 _LBPROV \xF0H\n1 NAME \x9E\n"
      "0 @I1@ INDI\n1 NAME A /B/\n2 _LBVOOR \xFE\n2 _LBACHT 12345678901234567890123456\n"
      "1 _LBGEZ abc\n0 TRLR\n");
  EXPECT_EQ(LogRegels(),
            "LET OP: teken U+00F0 niet overgenomen: 1 keer, voor het eerst in regel 5\n"
            "LET OP: teken U+00FE niet overgenomen: 1 keer, voor het eerst in regel 9\n"
            "LET OP: teken U+017E niet overgenomen: 1 keer, voor het eerst in regel 6\n");
  EXPECT_EQ(Kern(),
            "0 @P1@ _LBPLTS\n1 _LBPROV ðH\n1 NAME ž\n0 @I1@ INDI\n1 REFN 2\n"
            "1 NAME A /B/\n2 _LBVOOR þ\n2 _LBACHT 12345678901234567890123456\n1 _LBGEZ abc\n");
}

}  // namespace
}  // namespace lb77
