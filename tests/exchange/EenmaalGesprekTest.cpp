#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exchange/EenmaalGesprek.h"
#include "steun/NepGesprek.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

TEST(EenmaalGesprekTest, ToontEenMeldingEenmaal) {
  NepGesprek gebruiker;
  EenmaalGesprek eenmaal(gebruiker);
  eenmaal.Fout("vol");
  eenmaal.Fout("vol");
  eenmaal.Waarschuw("anders");
  eenmaal.Fout("vol");
  EXPECT_THAT(gebruiker.Regels(), ElementsAre("! stop \"vol\"", "! uitroep \"anders\""));
}

TEST(EenmaalGesprekTest, DeEersteRegelZegtOfEenMeldingDezelfdeIs) {
  NepGesprek gebruiker;
  EenmaalGesprek eenmaal(gebruiker);
  eenmaal.Waarschuw("Aantal is onjuist\nGevonden:4");
  eenmaal.Waarschuw("Aantal is onjuist\nGevonden:5");
  EXPECT_THAT(gebruiker.Regels(), ElementsAre("! uitroep \"Aantal is onjuist\\nGevonden:4\""));
}

TEST(EenmaalGesprekTest, OpnieuwToontAllesNogEens) {
  NepGesprek gebruiker;
  EenmaalGesprek eenmaal(gebruiker);
  eenmaal.Fout("vol");
  eenmaal.Opnieuw();
  eenmaal.Fout("vol");
  EXPECT_EQ(gebruiker.Regels().size(), 2U);
}

TEST(EenmaalGesprekTest, ZonderNummersZijnMeldingenOverAndereRecordsDezelfde) {
  NepGesprek gebruiker;
  EenmaalGesprek eenmaal(gebruiker, Gelijkenis::ZonderNummers);
  eenmaal.Fout("Record 3 van 9\nFout 1");
  eenmaal.Fout("Record 14 van 9");
  eenmaal.Fout("Relatie 3 van 9");
  EXPECT_THAT(gebruiker.Regels(),
              ElementsAre("! stop \"Record 3 van 9\\nFout 1\"", "! stop \"Relatie 3 van 9\""));
}

TEST(EenmaalGesprekTest, VraagtElkeKeer) {
  NepGesprek gebruiker;
  gebruiker.Antwoordt(Antwoord::Ja);
  gebruiker.Antwoordt(Antwoord::Nee);
  EenmaalGesprek eenmaal(gebruiker);
  EXPECT_TRUE(eenmaal.Vraag("Toevoegen ?"));
  EXPECT_FALSE(eenmaal.Vraag("Toevoegen ?"));
}

TEST(EenmaalGesprekTest, GeeftDeRestDoor) {
  NepGesprek gebruiker;
  EenmaalGesprek eenmaal(gebruiker);
  EXPECT_FALSE(eenmaal.BerichtMetVinkje("met vinkje", "Niet meer tonen"));
  EXPECT_TRUE(eenmaal.DrukAf({}));
  EXPECT_THAT(gebruiker.Regels(), ElementsAre("! info \"met vinkje\"", "% afdruk 0"));
}

}  // namespace
}  // namespace lb77
