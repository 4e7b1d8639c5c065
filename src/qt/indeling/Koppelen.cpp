// The dialogs that ask which person, which relation, or which place in a list.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok PersoonKeuze() {
  return Kolom({
      "VraagLabel",
      Velden({"RecordNr", "VoorNm", "AchterNm"}),
      Knoppen({"ZoekButton"}, {"OKButton", "BackButton"}),
  });
}

Blok Nummer(const char* veld) {
  return Kolom({Velden({veld}), Knoppen({"OKButton", "BackButton"})});
}

}  // namespace

std::vector<Indeling> Koppelen() {
  return {
      {"KindErbij", PersoonKeuze()},     {"KindEraf", PersoonKeuze()},
      {"KindSchuif", PersoonKeuze()},    {"VraagPartner", PersoonKeuze()},
      {"HuwSchuif", Nummer("RecordNr")}, {"VolgnrKind", Nummer("VolgNum")},
      {"VolgNrHuw", Nummer("VolgNum")},
  };
}

}  // namespace lb77::indeling
