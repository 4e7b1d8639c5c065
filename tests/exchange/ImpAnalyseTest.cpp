// The first pass: which files are refused, and the records that are made before that shows.
#include <gtest/gtest.h>

#include "exchange/GedRegel.h"
#include "exchange/ImportToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class ImpAnalyseTest : public ImportToets {
 protected:
  // Expects that the file is refused with this text at that line (0: without one), which the log tells,
  // and the end of the run all the same.
  void Geweigerd(std::string_view bytes, std::string_view fout, int regel = 1,
                 const Plek& plek = Plek::current()) {
    Importeer(bytes, "! uitroep \"" + std::string(fout) + "\"", plek);
    const std::string waar = regel == 0 ? "" : "gestopt bij regel " + GetalTekst(regel) + ": ";
    EXPECT_TRUE(Log().starts_with("LET OP: " + waar + std::string(fout) + "\r\n")) << Log();
    EXPECT_TRUE(Log().ends_with("\nImporteren voltooid\r\n")) << Log();
  }
};

constexpr std::string_view kGeenLevel = "GEDCOM Fout: Regel begint niet met een levelnummer";
constexpr std::string_view kFoutLevel = "GEDCOM Fout: Onjuist levelnummer";
constexpr std::string_view kGeenHeader = "Fout: Header van GEDCOM-bestand niet gevonden";

TEST_F(ImpAnalyseTest, EenLeegBestand) {
  Geweigerd("", "GEDCOM Fout: Leeg bestand", 0);
  for (const char* antwoord : {"Ja", "Nee"}) {
    Antwoord(antwoord);
    Geweigerd("\xEF\xBB\xBF", "GEDCOM Fout: Leeg bestand", 0);
  }
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpAnalyseTest, EenBestandZonderHoofd) {
  Geweigerd("0 @I1@ INDI\n0 TRLR\n", kGeenHeader);
  Geweigerd("\n0 HEAD\n0 TRLR\n", kGeenHeader);
  Geweigerd("zomaar een tekst", kGeenHeader);
  Geweigerd("HEAD", kGeenHeader);
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpAnalyseTest, TweeHoofdenHoudenDeGemaakteRecords) {
  Geweigerd("0 HEAD\n0 @I1@ INDI\n1 NAME Jan //\n0 HEAD\n0 @I2@ INDI\n0 TRLR\n",
            "GEDCOM Fout: bestand heeft 2 headers", 4);
  EXPECT_EQ(Aantallen(), "2 1 1 1");
  EXPECT_EQ(Persoon(2), "");
}

TEST_F(ImpAnalyseTest, EenRegelDieNietGesplitstKanWorden) {
  Geweigerd("0 HEAD\n0 @I1@ INDI\nrommel\n0 @I2@ INDI\n0 TRLR\n", kGeenLevel, 3);
  Geweigerd("0 HEAD\n\n0 TRLR\n", kGeenLevel, 2);
  Geweigerd("0 HEAD\n1 \n0 TRLR\n", kGeenLevel, 2);
  Geweigerd("0 HEAD\n100 NOTE\n0 TRLR\n", kFoutLevel, 2);
  Geweigerd("0 HEAD\n-1 NOTE\n0 TRLR\n", kFoutLevel, 2);
  Geweigerd("0 HEAD\nx NOTE\n0 TRLR\n", kFoutLevel, 2);
  Geweigerd("0 HEAD\n99999999999 NOTE\n0 TRLR\n", kFoutLevel, 2);
  EXPECT_EQ(Aantallen(), "2 1 1 1");
}

TEST_F(ImpAnalyseTest, NiveauNulMagMetMeerNullen) {
  Importeer("00 HEAD\n000 @I1@ INDI\n01 NAME Jan //\n0 TRLR\n");
  EXPECT_EQ(Persoon(2), "voor Jan");
}

TEST_F(ImpAnalyseTest, NulBytesGaanErZonderSchadeDoor) {
  using namespace std::string_literals;
  Geweigerd("\0\0\0\0"s, kGeenHeader);
  Geweigerd("0 HEAD\n\0\0\0\n0 TRLR\n"s, kGeenLevel, 2);
  Importeer("0 HEAD\n0 @I\0@ INDI\n1 NAME J\0an //\n1 NOTE a\0b\n0 TRLR\n"s);
  EXPECT_EQ(Aantallen(), "2 1 1 2");
  EXPECT_EQ(Persoon(2), "voor J\0an; opm 4096"s);
}

TEST_F(ImpAnalyseTest, AlleSoortenRegeleinden) {
  for (const std::string_view eind : {"\n", "\r\n", "\r"}) {
    std::string bytes;
    for (const std::string_view regel :
         {"0 HEAD", "0 @I1@ INDI", "1 NAME Jan /Jansen/", "0 TRLR"}) {
      bytes.append(regel).append(eind);
    }
    Importeer(bytes);
  }
  Importeer("0 HEAD\r0 @I1@ INDI\n1 NAME Jan /Jansen/\r\n0 TRLR");
  for (std::int16_t nr = 2; nr <= 5; ++nr) EXPECT_EQ(Persoon(nr), "voor Jan; achter Jansen");
  EXPECT_EQ(Aantallen(), "5 1 1 1");
}

TEST_F(ImpAnalyseTest, RegelsMogenInspringen) {
  Importeer("  0 HEAD\n 0 @I1@ INDI\n    1 NAME Jan //\n0 TRLR\n");
  EXPECT_EQ(Persoon(2), "voor Jan");
}

TEST_F(ImpAnalyseTest, RegelsVanEenMegabyte) {
  const std::string lang(1 << 20, 'x');
  Importeer("0 HEAD\n0 @" + lang + "@ INDI\n1 NAME " + lang + " /" + lang + "/\n1 OCCU " + lang +
            "\n1 BIRT\n2 PLAC " + lang + "\n2 DATE " + lang + "\n1 SEX " + lang + "\n1 NOTE " +
            lang + "\n0 @F1@ FAM\n1 HUSB @" + lang + "@\n1 MARR\n2 TYPE " + lang + "\n0 TRLR\n");
  EXPECT_EQ(Aantallen(), "2 2 2 2");
  EXPECT_EQ(Persoon(2), "voor " + lang.substr(0, 30) + "; achter " + lang.substr(0, 25) +
                            "; te 2; beroep " + lang.substr(0, 30));
  EXPECT_EQ(Plaats(2), lang.substr(0, 25));
  EXPECT_EQ(OpmBijRelatie(2), "-256 TYPE:\n");  // and there it stops, at a word that is too long
  EXPECT_EQ(LogRegels(),
            "LET OP: plaatsnaam afgekapt: 1 keer, voor het eerst in regel 6\n"
            "LET OP: naam afgekapt: 1 keer, voor het eerst in regel 3\n"
            "LET OP: beroep afgekapt: 1 keer, voor het eerst in regel 4\n"
            "LET OP: opmerking afgekapt na tien regels: 2 keer, voor het eerst in regel 9\n");
}

TEST_F(ImpAnalyseTest, EenLangeRegelOnderEenOnbekendLabelStaatHeelInHetVerslag) {
  const std::string lang(1 << 20, 'x');
  Importeer("0 HEAD\n1 ABCD " + lang + "\n1 " + lang + "\n0 TRLR\n");
  EXPECT_EQ(LogRegels(), "H-Header - Onbekende tag: HEAD-ABCD : " + lang +
                             "\nH-Header - Onbekende tag: HEAD-" + lang.substr(0, kLangsteTag) +
                             " : \n");
}

TEST_F(ImpAnalyseTest, RecordsKrijgenDeNummersAchterHetHoogste) {
  Reeks(3);
  Bouw().Relatie(2, 3);
  Importeer(Ged("0 @I7@ INDI\n1 NAME Zes //\n1 FAMS @F1@\n0 @F1@ FAM\n1 HUSB @I7@"));
  EXPECT_EQ(Persoon(2), "voor A1; achter Reeks; seks M; rel1 2");
  EXPECT_EQ(Persoon(5), "voor Zes; rel1 3");
  EXPECT_EQ(Relatie(3), "man 5");
}

TEST_F(ImpAnalyseTest, EenVerkeerdAantalWordtInDeEersteEnDerdeGangGemeld) {
  const auto pad = Map() / "PROEF" / "PROEF.PRS";
  std::string bytes = LeesBytes(pad);
  bytes[55] = 5;
  SchrijfBytes(pad, bytes);
  constexpr std::string_view kOnjuist =
      "! uitroep \"Aantal persoonsrecords in administratierecord is onjuist\\nGevonden:1\\n"
      "Volgens administratierecord:6\"\n";
  Importeer(Ged(""), std::string(kOnjuist) + std::string(kOnjuist));
}

}  // namespace
}  // namespace lb77
