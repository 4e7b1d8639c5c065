// In which order the dialogs say what they have against dates and sex.
#include "entry/WijzigToets.h"

namespace lb77 {
namespace {

class PersoonVolgordeTest : public WijzigPersoonToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Relatie(2, 3);
  }
};
using RelatieVolgordeTest = WijzigRelatieToets;

TEST_F(PersoonVolgordeTest, DeVragenOverDeVolgordeKomenAchterElkaar) {
  SlaatOp(-1, R"(
    vul GebDatum 01-01-1903
    vul DoopDatum 01-01-1902
    vul OvlDatum 01-01-1901
    vul BegrDatum 01-01-1900
    antwoord Nee Nee Nee Nee Nee Nee
  )",
          R"(
    ? vraag Ja/Nee "Geboorte is na de doop !\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Geboorte is na het overlijden !\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Geboorte is na het begraven !\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Doop is na het overlijden !\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Doop is na het begraven !\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Overlijden is na het begraven !\nCorrigeren ?" -> Nee
  )");
}

TEST_F(PersoonVolgordeTest, HetGeslachtKomtVoorDeVolgorde) {
  Speelt(2, "vul GebDatum 01-01-1903\nvul DoopDatum 01-01-1902\nvul Geslacht v\ndruk Opslaan", R"(
    ! geen "Geslacht wijzigen niet toegestaan: er zijn al relaties"
    ! uitroep "Persoon heeft al relatie(s).\nGeslacht niet te wijzigen"
  )");
}

TEST_F(RelatieVolgordeTest, DeVragenOverDeVolgordeKomenAchterElkaar) {
  SlaatOp(-1, R"(
    vul OtrDatum 01-01-1902
    vul WetHuwDatum 01-01-1901
    vul KHuwDatum 01-01-1900
    antwoord Nee Nee Nee
  )",
          R"(
    ? vraag Ja/Nee "Ondertrouw is na het wettelijk huwelijk.\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Ondertrouw is na het kerkelijk huwelijk.\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Wettelijk huwelijk is na het kerkelijk huwelijk.\nCorrigeren ?" -> Nee
  )");
}

}  // namespace
}  // namespace lb77
