// What the log of a GEDCOM 5.5.1 file tells at the end.
#include <gtest/gtest.h>

#include "exchange/Ged551Toets.h"
#include "store/Rubrieken.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class Ged551Verslag : public ::testing::Test {
 protected:
  ProefSet set;
};

TEST_F(Ged551Verslag, WatBeschadigdIsWordtGeteld) {
  const std::int16_t nr = set.bouw.Man(
      "", "A\tB", {{"GebPlaats", "77"}, {"GebJaar", "-5"}, {"OpmRecord", "99"}, {"Ouders", "9"}});
  const std::int16_t vol = set.bouw.Man("", "Y", {{"Relatie3", "-2"}});
  set.bouw.Relatie(0, 0, {}, {{"Kind15", "-9"}});
  ExpSelectie selectie = AllesVan(set);
  ASSERT_TRUE(selectie.SelPersonen.Voeg(50));
  ASSERT_TRUE(selectie.SelRelaties.Voeg(50));
  const Ged551Uitvoer uitvoer = Exporteer551(set, selectie);
  EXPECT_EQ(uitvoer.Van("0 @I" + GetalTekst(nr) + "@ INDI"),
            "1 NAME /A B/\n2 SURN A B\n1 SEX M\n1 BIRT\n");
  EXPECT_EQ(uitvoer.Van("0 @I" + GetalTekst(vol) + "@ INDI"), "1 NAME /Y/\n2 SURN Y\n1 SEX M\n");
  EXPECT_EQ(uitvoer.log,
            "Soort bestand: GEDCOM 5.5.1, tekenset UTF-8\n"
            "Leesfout bij Persoonsrecord 50. Record niet geëxporteerd.\n"
            "Leesfout bij Relatierecord 50. Record niet geëxporteerd.\n"
            "Totaal 2 Personen geëxporteerd\nTotaal 1 Relaties geëxporteerd\n"
            "Totaal 0 Plaatsen geëxporteerd\n"
            "LET OP: verwijzing naar een record dat niet mee is uitgevoerd: 1 keer\n"
            "LET OP: verwijzing naar een plaats die er niet is: 1 keer\n"
            "LET OP: datum met getallen die geen datum zijn: 1 keer\n"
            "LET OP: vervolgrecord dat niet te lezen is: 2 keer\n"
            "LET OP: opmerking die niet te lezen is of al bij een ander staat: 1 keer\n"
            "LET OP: stuurteken in een tekst, een spatie geworden: 2 keer\n"
            "Exporteren voltooid\n"_w);
}

TEST_F(Ged551Verslag, HetVerslagNoemtWatAndereProgrammasOverslaan) {
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  const std::int16_t delft = set.bouw.Plaats("Delft");
  const std::int16_t nr = set.bouw.Man("", "X",
                                       {{"GebPlaats", delft + 10000},
                                        {"GebCorr", "X"},
                                        {"OvlDatum", "12-00-1890"},
                                        {"DoopReligie", "NH"}});
  const std::int16_t kind = set.bouw.Persoon('Q', "", "Y");
  set.bouw.Relatie(nr, 0, {kind, kind}, {{"HuwSoort", "NH"}});
  set.bouw.Relatie(nr, 0);
  set.bouw.WijzigPersoon(nr, {{"Relatie1", "0"}});
  set.bouw.WijzigRelatie(2, {{"Kind1", "0"}});
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kVoornaam, {"een"}, 1);
  EXPECT_EQ(Exporteer551(set).log,
            "Soort bestand: GEDCOM 5.5.1, tekenset UTF-8\nTotaal 2 Personen geëxporteerd\n"
            "Totaal 2 Relaties geëxporteerd\nTotaal 1 Plaatsen geëxporteerd\n"
            "Andere programma's slaan deze eigen tags over:\n"
            " _LBZEKER - onzekere plaats: 1 keer\n"
            " _LBCORR - correctiecode die DATE niet kent: 1 keer\n"
            " _LBDATUM - datum die de standaard niet kent (staat er als zin): 1 keer\n"
            " _LBGEZ - code van een gezindte (RELI of TYPE geeft de naam): 1 keer\n"
            " _LBSOORT - code van een soort huwelijk (TYPE geeft de naam): 1 keer\n"
            " _LBGESL - ander geslacht dan man of vrouw: 1 keer\n"
            " _LBRUBR - rubriek van een opmerking: 1 keer\n"
            " _LBPROG - uitvoer waarin een opmerking staat: 1 keer\n"
            " _LBFAMS - lege plek tussen de relaties: 1 keer\n"
            " _LBCHIL - lege plek tussen de kinderen: 1 keer\n"
            "Exporteren voltooid\n"_w);
}

}  // namespace
}  // namespace lb77
