#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "script/Verslag.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

class VerslagTest : public ::testing::Test {
 protected:
  Formulier formulier_{"Proef", "Titel \"1\""};
};

TEST(Verslag, NoemtElkeSoortBericht) {
  EXPECT_EQ(Woord(BerichtSoort::Geen), "geen");
  EXPECT_EQ(Woord(BerichtSoort::Info), "info");
  EXPECT_EQ(Woord(BerichtSoort::Uitroep), "uitroep");
  EXPECT_EQ(Woord(BerichtSoort::Vraag), "vraag");
  EXPECT_EQ(Woord(BerichtSoort::Stop), "stop");
}

TEST(Verslag, NoemtKnoppenVanLinksNaarRechts) {
  EXPECT_EQ(Woorden(Knoppen::OK), "OK");
  EXPECT_EQ(Woorden(Knoppen::OKAnnuleren), "OK/Annuleren");
  EXPECT_EQ(Woorden(Knoppen::JaNee), "Ja/Nee");
  EXPECT_EQ(Woorden(Knoppen::JaNeeAnnuleren), "Ja/Nee/Annuleren");
  EXPECT_EQ(Woorden(Knoppen::NeeJa), "Ja/Nee");
}

TEST(Verslag, KentElkAntwoordBijZijnWoord) {
  for (const Antwoord antwoord : Keuzen(Knoppen::JaNeeAnnuleren)) {
    EXPECT_EQ(AntwoordVan(Woord(antwoord)), antwoord);
  }
  EXPECT_EQ(AntwoordVan("OK"), Antwoord::OK);
  EXPECT_EQ(AntwoordVan("Misschien"), std::nullopt);
}

TEST(Verslag, NoemtElkeBestandsvraag) {
  EXPECT_EQ(Woord(BestandsWijze::Openen), "openen");
  EXPECT_EQ(Woord(BestandsWijze::Opslaan), "opslaan");
  EXPECT_EQ(Woord(BestandsWijze::Map), "map");
}

TEST(Verslag, HaaltTekstenAanMetOntsnappingen) {
  EXPECT_EQ(Aangehaald(""), "\"\"");
  EXPECT_EQ(Aangehaald("zeg \"a\\b\""), R"("zeg \"a\\b\"")");
  EXPECT_EQ(Aangehaald("Zoë"_w), "\"Zoë\"");
}

TEST(Verslag, ElkRegeleindeWordtHetzelfde) {
  EXPECT_EQ(Aangehaald("a\nb\r\nc\rd"), R"("a\nb\nc\nd")");
  EXPECT_EQ(Aangehaald("a\r\n\r\nb"), R"("a\n\nb")");
}

TEST_F(VerslagTest, ToontElkeSoortBedieningOpZijnManier) {
  Tekstvak veld(formulier_, "Veld", "&Veld");
  veld.ZetTekst("abc");
  const Knop knop(formulier_, "Knop", "&Terug");
  Vinkje vink(formulier_, "Vink", "&Vink");
  Optie optie(formulier_, "Optie", "&Optie");
  optie.Zet(true);
  Keuzevak keuze(formulier_, "Keuze", "&Keuze", {"een", "twee"});
  keuze.ZetIndex(1);
  EXPECT_EQ(BedieningRegel(veld), "= Veld \"abc\"");
  EXPECT_EQ(BedieningRegel(knop), "= Knop \"&Terug\"");
  EXPECT_EQ(BedieningRegel(vink), "= Vink uit");
  EXPECT_EQ(BedieningRegel(optie), "= Optie aan");
  EXPECT_EQ(BedieningRegel(keuze), "= Keuze \"twee\"");
}

TEST_F(VerslagTest, ZegtWatUitgeschakeldOfVerborgenIs) {
  Knop knop(formulier_, "Knop", "K");
  knop.ZetIngeschakeld(false);
  EXPECT_EQ(BedieningRegel(knop), "= Knop \"K\" [uit]");
  knop.ZetZichtbaar(false);
  EXPECT_EQ(BedieningRegel(knop), "= Knop \"K\" [uit] [verborgen]");
  knop.ZetIngeschakeld(true);
  EXPECT_EQ(BedieningRegel(knop), "= Knop \"K\" [verborgen]");
}

TEST_F(VerslagTest, EenLijstToontHaarRijenErbij) {
  Keuzelijst lijst(formulier_, "Lijst");
  EXPECT_THAT(BedieningRegels(lijst), ElementsAre("= Lijst \"\""));
  lijst.ZetRijen({"een", "twee"});
  lijst.ZetIndex(0);
  EXPECT_THAT(BedieningRegels(lijst), ElementsAre("= Lijst \"een\"", "#0 \"een\"", "#1 \"twee\""));
}

TEST_F(VerslagTest, EenFormulierBegintMetNaamEnTitelEnEindigtMetDeFocus) {
  Tekstvak veld(formulier_, "Veld");
  Keuzelijst lijst(formulier_, "Lijst");
  lijst.ZetRijen({"een"});
  EXPECT_THAT(FormulierRegels(formulier_),
              ElementsAre(R"(: Proef "Titel \"1\"")", "= Veld \"\"", "= Lijst \"\""));
  formulier_.GaNaar(veld);
  EXPECT_EQ(FormulierRegels(formulier_).back(), "* Veld");
}

TEST(Verslag, NoemtDeRegelOfHetBegin) {
  EXPECT_EQ(OpRegel(3, "reden"), "regel 3: reden");
  EXPECT_EQ(OpRegel(0, "reden"), "voor de eerste instructie: reden");
}

}  // namespace
}  // namespace lb77
