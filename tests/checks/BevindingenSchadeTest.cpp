// The window of findings on damaged files.
#include "app/Start.h"
#include "checks/Bereik.h"
#include "checks/Bevindingen.h"
#include "checks/ControleSessie.h"

namespace lb77 {
namespace {

class BevindingenSchade : public ControleSessie {
 protected:
  BevindingenSchade() {
    for (int i = 0; i < 2; ++i) Bouw().Man("Jan", "Proef");
  }
};

// One message, not a page that begins elsewhere.
TEST_F(BevindingenSchade, EenPlaatsDieNietTeLezenIsOpentGeenBladzijde) {
  Bouw().Plaats("Delft", "ZH");
  Bouw().Plaats("Leiden", "ZH");
  const Taak taak = [&](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    RecordBron bron(hoofd.MaakOpslag());
    const std::unique_ptr<Controleur> regels = kControlePlts.maak(bron, {});
    std::vector<Bevinding> gevonden;
    for (const std::int32_t nr : {3, 9}) {
      const RecordPlek plek{BestandSoort::Plaatsen, nr};
      gevonden.push_back({plek, plek, BevindingSoort::Ongebruikt, "Plaats " + std::to_string(nr)});
    }
    BevindingLijst lijst(std::move(gevonden));
    hoofd.gesprek.Toon<lb77::Bevindingen>(hoofd, *regels, lijst);
  };
  MaakOnleesbaar(BestandSoort::Plaatsen, 3);
  Verwacht("druk KaartButton\nstel BevindingenLijst #1\ndruk KaartButton\ndruk BackButton\n", taak,
           R"(
    + Bevindingen "Bevindingen"
    ! stop "Fout bij het lezen van Plaatsrecord 3\nFout van de schijf"
    ! uitroep "Het opgegeven Plaatsnummer komt niet voor"
    - Bevindingen
  )");
}

TEST_F(BevindingenSchade, HetAantalNaastDeLijstVolgtEenHerstel) {
  Bouw().Relatie(0, 0);
  Bouw().WijzigPersoon(3, {{"Ouders", "2"}});
  const Taak taak = [](Hoofdmodule& hoofd) {
    RecordBron bron(hoofd.MaakOpslag());
    const std::unique_ptr<Controleur> regels = kControlePrs.maak(bron, {});
    const RecordPlek plek{BestandSoort::Personen, 3};
    BevindingLijst lijst({{plek, plek, BevindingSoort::NietBijOuders, "Persoon 3"}},
                         {.opLaatste = 2, .erna = 1});
    hoofd.gesprek.Toon<lb77::Bevindingen>(hoofd, *regels, lijst);
  };
  Verwacht(R"(
    toon MeerLabel
    druk CorrigeerButton
    vul RelNrOuders
    druk OKButton
    toon MeerLabel
    druk BackButton
  )",
           taak, R"(
    + Bevindingen "Bevindingen"
    = MeerLabel "3 bevindingen meer staan alleen in het verslag"
    + CorrPrsAlg "Corrigeer Verwijzingen Persoonsrecord"
    - CorrPrsAlg
    = MeerLabel "1 bevinding meer staat alleen in het verslag"
    - Bevindingen
  )");
}

// Also that of the files in which a check of places looks for their use.
TEST_F(BevindingenSchade, EenVerkeerdeTellingWordtNaEenHerstelNietHerhaald) {
  Bouw().Plaats("Delft", "ZH");
  Bouw().Plaats("Delft", "ZH");
  Bouw().WijzigPersoon(2, {{"GebPlaats", "2"}});
  Bouw().ZetAantalPersonen(9);
  Speel(kControlePlts, R"~(
    antwoord Ja
    druk OKButton
    druk Bevindingen
    druk CorrigeerButton
    vul PlaatsNrOud 2
    vul PlaatsNrNieuw 3
    druk OKButton
    druk OKButton
    toon BevindingenLijst
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControlePlts "Controleer Plaatsbestand"
    ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:3\nVolgens administratierecord:10"
    + ToonTekst "Controle Plaatsbestand"
    + Bevindingen "Bevindingen"
    + CorrPltsAlg "Vervang Plaatscode"
    ? vraag Ja/Nee "Vervang 2(Delft,ZH) ==> 3(Delft,ZH) in alle Persoonsrecords en Relatierecords ?" -> Ja
    + CorrPltsTemp "Vervang Plaatscode"
    ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:3\nVolgens administratierecord:10"
    - CorrPltsTemp
    - CorrPltsAlg
    = BevindingenLijst "Plaats 2(Delft,ZH) komt ook voor bij plaatscode 3"
    #0 "Plaats 2(Delft,ZH) komt ook voor bij plaatscode 3"
    #1 "Plaats 2(Delft,ZH) wordt niet gebruikt"
    #2 "[hersteld] Plaats 3(Delft,ZH) wordt niet gebruikt"
    - Bevindingen
    - ToonTekst
    - ControlePlts
  )~");
}

// Of its own file; what was added meanwhile lies within the walk.
TEST_F(BevindingenSchade, HetBereikGroeitMeeZonderWaarschuwing) {
  Stil([](Hoofdmodule& hoofd) {
    Bereik bereik;
    EXPECT_EQ(bereik.Tot(hoofd.Persoon, hoofd.Persoon), 3);
    EXPECT_TRUE(hoofd.Persoon.Nieuw(4));
    EXPECT_EQ(bereik.Tot(hoofd.Persoon, hoofd.Persoon), 4);
    ASSERT_TRUE(hoofd.Persoon.LeesAdmin());
    hoofd.Persoon.ZetAantal(1);
    ASSERT_TRUE(hoofd.Persoon.SchrijfAdmin());
    EXPECT_EQ(bereik.Tot(hoofd.Persoon, hoofd.Persoon), 4);
    hoofd.Persoon.ZetAantal(3);
    ASSERT_TRUE(hoofd.Persoon.SchrijfAdmin());
  });
  Bouw().ZetAantalPersonen(32767);
  Verwacht(
      "",
      [](Hoofdmodule& hoofd) {
        Bereik bereik;
        EXPECT_EQ(bereik.Tot(hoofd.Persoon, hoofd.Persoon), 4);
        EXPECT_EQ(bereik.Tot(hoofd.Persoon, hoofd.Persoon), 32767);
      },
      R"(
    ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:4\nVolgens administratierecord:32768"
  )");
}

}  // namespace
}  // namespace lb77
