// The dialogs that ask which person, which relation, or which place in a list.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Nummer(const char* veld) {
  return Kolom({Velden({veld}), Knoppen({"OKButton", "BackButton"})});
}

}  // namespace

std::vector<Indeling> Koppelen() {
  return {
      {"KindErbij", PersoonPrompt()},    {"KindEraf", PersoonPrompt()},
      {"KindSchuif", PersoonPrompt()},   {"VraagPartner", PersoonPrompt()},
      {"HuwSchuif", Nummer("RecordNr")}, {"VolgnrKind", Nummer("VolgNum")},
      {"VolgNrHuw", Nummer("VolgNum")},
  };
}

}  // namespace lb77::indeling
