#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "script/Instructie.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// The one instruction of a one-line script.
Instructie Een(std::string_view regel) {
  const Draaiboek boek = LeesDraaiboek(regel);
  EXPECT_EQ(boek.fout, "");
  EXPECT_EQ(boek.instructies.size(), 1U);
  return boek.instructies.empty() ? Instructie() : boek.instructies.front();
}

std::string Fout(std::string_view draaiboek) {
  const Draaiboek boek = LeesDraaiboek(draaiboek);
  EXPECT_THAT(boek.instructies, IsEmpty());
  return boek.fout;
}

TEST(Draaiboek, SlaatLegeRegelsEnCommentaarOver) {
  const Draaiboek boek = LeesDraaiboek("# een\n\n  \t\r\n  # twee\ntoon\r\n\nsluit");
  ASSERT_EQ(boek.instructies.size(), 2U);
  EXPECT_EQ(boek.instructies[0].soort, InstructieSoort::Toon);
  EXPECT_EQ(boek.instructies[0].regel, 5);
  EXPECT_EQ(boek.instructies[1].soort, InstructieSoort::Sluit);
  EXPECT_EQ(boek.instructies[1].regel, 7);
}

TEST(Draaiboek, MagLeegZijnEnMetEenMerkBeginnen) {
  EXPECT_THAT(LeesDraaiboek("").instructies, IsEmpty());
  EXPECT_EQ(LeesDraaiboek("").fout, "");
  EXPECT_EQ(Een("\xEF\xBB\xBFtoon").soort, InstructieSoort::Toon);
}

TEST(Draaiboek, LeestDeInstructiesMetAlleenEenNaam) {
  EXPECT_EQ(Een("kies MaakSet").soort, InstructieSoort::Kies);
  EXPECT_EQ(Een("kies MaakSet").naam, "MaakSet");
  EXPECT_EQ(Een("druk OKButton").soort, InstructieSoort::Druk);
  EXPECT_EQ(Een("dubbelklik  BegrLabel ").soort, InstructieSoort::Dubbelklik);
  EXPECT_EQ(Een("dubbelklik  BegrLabel ").naam, "BegrLabel");
}

TEST(Draaiboek, LeestToonMetEnZonderNaam) {
  EXPECT_EQ(Een("toon").naam, "");
  EXPECT_EQ(Een("toon PersNr(0)").naam, "PersNr(0)");
}

TEST(Draaiboek, LeestVulEnTypMetDeRestVanDeRegel) {
  const Instructie vul = Een("vul RelNrP(3)   twee  woorden \"x\"  ");
  EXPECT_EQ(vul.soort, InstructieSoort::Vul);
  EXPECT_EQ(vul.naam, "RelNrP(3)");
  EXPECT_EQ(vul.argument, "twee  woorden \"x\"");
  EXPECT_FALSE(vul.aangehaald);
  EXPECT_EQ(Een("typ SetNaam x").soort, InstructieSoort::Typ);
}

TEST(Draaiboek, LeestEenLegeTekst) {
  EXPECT_EQ(Een("vul SetNaam").argument, "");
  EXPECT_EQ(Een("vul SetNaam \"\"").argument, "");
}

TEST(Draaiboek, AanhalingstekensHoudenBlankenEnOntsnappingen) {
  EXPECT_EQ(Een(R"(vul A "  x  ")").argument, "  x  ");
  EXPECT_TRUE(Een(R"(vul A "  x  ")").aangehaald);
  EXPECT_EQ(Een(R"(vul A "a\"b\\c\nd")").argument, "a\"b\\c\nd");
}

TEST(Draaiboek, ZonderAanhalingstekensIsEenSchuineStreepGewoon) {
  EXPECT_EQ(Een(R"(vul A c:\nieuw)").argument, R"(c:\nieuw)");
}

TEST(Draaiboek, WeigertVerkeerdeAanhalingstekens) {
  for (const auto* const regel :
       {R"(vul A ")", R"(vul A "x)", R"(vul A "x" y)", R"(vul A "x\y")", R"(vul A "x\)"}) {
    EXPECT_THAT(Fout(regel), HasSubstr("regel 1: de aanhalingstekens kloppen niet")) << regel;
  }
}

TEST(Draaiboek, ZetTekstOmNaarWindows1252) {
  EXPECT_EQ(Een("vul A Zoë €").argument, "Zoë €"_w);
  EXPECT_THAT(Fout("vul A 日本"), HasSubstr("past niet in Windows-1252"));
  EXPECT_THAT(Fout("vul A \xFF"), HasSubstr("past niet in Windows-1252"));
}

TEST(Draaiboek, LeestEenWaarde) {
  EXPECT_EQ(Een("stel HTML Ja").argument, "Ja");
  EXPECT_EQ(Een("stel HTML #0").argument, "#0");
  EXPECT_TRUE(Een("stel HTML \"#0\"").aangehaald);
  EXPECT_EQ(Fout("stel HTML"), "regel 1: de waarde ontbreekt");
}

TEST(Draaiboek, LeestEenToetsMetEnZonderNaam) {
  const Instructie zonder = Een("toets Enter");
  EXPECT_EQ(zonder.soort, InstructieSoort::Toets);
  EXPECT_EQ(zonder.naam, "");
  EXPECT_EQ(zonder.toets.code, toets::kEnter);
  const Instructie met = Een("toets SetNaam Shift+F3");
  EXPECT_EQ(met.naam, "SetNaam");
  EXPECT_EQ(met.toets.code, toets::kF1 + 2);
  EXPECT_TRUE(met.toets.shift);
  EXPECT_EQ(Fout("toets SetNaam Sprong"), "regel 1: onbekende toets: Sprong");
  EXPECT_EQ(Fout("toets"), "regel 1: onbekende toets: ");
}

TEST(Draaiboek, LeestAntwoordenInVolgorde) {
  EXPECT_THAT(Een("antwoord Ja Nee  OK Annuleren").antwoorden,
              ElementsAre(Antwoord::Ja, Antwoord::Nee, Antwoord::OK, Antwoord::Annuleren));
  EXPECT_EQ(Fout("antwoord"), "regel 1: het antwoord ontbreekt");
  EXPECT_EQ(Fout("antwoord Ja ja"), "regel 1: onbekend antwoord: ja");
}

TEST(Draaiboek, HoudtEenPadInUtf8) {
  EXPECT_EQ(Een("bestand map/日本 x.ged").argument, "map/日本 x.ged");
  EXPECT_EQ(Een("bestand \" x \"").argument, " x ");
  EXPECT_EQ(Een("bestand").argument, "");
}

TEST(Draaiboek, LeestEenAantalVanafEen) {
  EXPECT_EQ(Een("onderbreek 12").aantal, 12);
  for (const auto* const regel : {"onderbreek", "onderbreek 0", "onderbreek -1", "onderbreek 2x"}) {
    EXPECT_THAT(Fout(regel), HasSubstr("geen aantal vanaf 1")) << regel;
  }
}

TEST(Draaiboek, NoemtDeRegelVanEenOnbekendeInstructie) {
  EXPECT_EQ(Fout("toon\n\nklik OKButton"), "regel 3: onbekende instructie: klik");
  EXPECT_EQ(Fout("Toon"), "regel 1: onbekende instructie: Toon");
}

TEST(Draaiboek, WeigertEenInstructieZonderNaamOfMetTeVeel) {
  for (const auto* const woord : {"kies", "vul", "typ", "druk", "dubbelklik", "stel"}) {
    EXPECT_EQ(Fout(woord), "regel 1: de naam ontbreekt") << woord;
  }
  for (const auto* const regel :
       {"druk A B", "kies A B", "dubbelklik A B", "toon A B", "sluit B"}) {
    EXPECT_EQ(Fout(regel), "regel 1: hier hoort niets achter: B") << regel;
  }
}

TEST(Draaiboek, AntwoordBestandEnOnderbreekZettenKlaar) {
  EXPECT_TRUE(IsKlaarzetten(InstructieSoort::Antwoord));
  EXPECT_TRUE(IsKlaarzetten(InstructieSoort::Bestand));
  EXPECT_TRUE(IsKlaarzetten(InstructieSoort::Onderbreek));
  EXPECT_FALSE(IsKlaarzetten(InstructieSoort::Toon));
  EXPECT_FALSE(IsKlaarzetten(InstructieSoort::Druk));
}

}  // namespace
}  // namespace lb77
