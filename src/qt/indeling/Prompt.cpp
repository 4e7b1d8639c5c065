#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

Blok PersoonPrompt() {
  return Kolom({
      "VraagLabel",
      Velden({"RecordNr", "VoorNm", "AchterNm"}),
      Knoppen({"ZoekButton"}, {"OKButton", "BackButton"}),
  });
}

}  // namespace lb77::indeling
