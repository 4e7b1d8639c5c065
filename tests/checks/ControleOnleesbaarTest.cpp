// Checks of files of which the system refuses a record: it is passed over in silence.
#include "checks/ControleSessie.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

class ControleOnleesbaar : public ControleSessie {
 protected:
  static constexpr std::string_view kGeen = "Geen fouten gevonden\r\n\r\n";
};

TEST_F(ControleOnleesbaar, EenGebruikDatNietTeLezenIsIsGeenGebruik) {
  for (int i = 0; i < 2; ++i) Bouw().Plaats(i == 0 ? "Delft" : "Leiden", "ZH");
  Bouw().Man("Jan", "Proef", {{"GebPlaats", "2"}});
  Bouw().Man("Piet", "Proef");
  Bouw().Relatie(0, 0, {}, {{"KHuwPlaats", "3"}});
  Bouw().Relatie(0, 0);
  EXPECT_EQ(Resultaat(kControlePlts), kGeen);
  MaakOnleesbaar(BestandSoort::Personen, 2);
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  EXPECT_EQ(
      Resultaat(kControlePlts),
      "Plaats 2(Delft,ZH) wordt niet gebruikt\r\nPlaats 3(Leiden,ZH) wordt niet gebruikt\r\n\r\n");
}

TEST_F(ControleOnleesbaar, EenPlaatsWordtMetNietsVergeleken) {
  for (int i = 0; i < 3; ++i) Bouw().Plaats("Delft", "ZH");
  Bouw().Man("Jan", "Proef", {{"GebPlaats", "2"}, {"OvlPlaats", "4"}});
  MaakOnleesbaar(BestandSoort::Plaatsen, 3);
  EXPECT_EQ(Resultaat(kControlePlts), "Plaats 2(Delft,ZH) komt ook voor bij plaatscode 4\r\n\r\n");
}

TEST_F(ControleOnleesbaar, EenRelatieWordtOvergeslagen) {
  Bouw().Man("Jan", "Proef");
  Bouw().Relatie(2, 0, {}, {{"VrouwNr", "99"}});
  Bouw().Relatie(2, 0);
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  EXPECT_EQ(Resultaat(kControleRel), kGeen);
}

// As one that is absent, not as one with other parents.
TEST_F(ControleOnleesbaar, EenKindStaatErMetEenP) {
  const std::int16_t kind = Bouw().Man("Kind", "Proef");
  Bouw().Relatie(0, 0, {kind});
  MaakOnleesbaar(BestandSoort::Personen, kind);
  EXPECT_EQ(Resultaat(kControleRel), "Relatie 2: Verwijzing naar kind (P2) klopt niet\r\n\r\n");
}

// What lies behind a line that can't be read is not found from the owner.
TEST_F(ControleOnleesbaar, EenOpmerkingWordtOvergeslagenEnWatErachterLigtIsLos) {
  Bouw().Man("Jan", "Proef");
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"een", "twee"});
  EXPECT_EQ(Resultaat(kControleOpm), kGeen);
  MaakOnleesbaar(BestandSoort::Opmerkingen, 2);
  EXPECT_EQ(Resultaat(kControleOpm), "Opmerking 3 verwijst niet naar P2\r\n\r\n");
}

}  // namespace
}  // namespace lb77
