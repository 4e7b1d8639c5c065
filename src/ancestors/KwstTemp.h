// The forms that write an ancestor report to its file.
#pragma once

#include <filesystem>

#include "ancestors/KwstTabel.h"
#include "reporting/SchrijfForm.h"

namespace lb77 {

// What tells one of them from another.
struct KwstTempSoort {
  SchrijfSoort vorm;
  bool doorlopend;  // lines are never wrapped, in text neither
  Uitslag (*schrijf)(Hoofdmodule&, const KwstOpties&, const KwstTabel&, TekstSchrijver&,
                     const Verloop&);
};

extern const KwstTempSoort kKwstMaakTemp;
extern const KwstTempSoort kKwstIdxTemp;
extern const KwstTempSoort kKwstSchTemp;

// Writes `pad`. HuidigPersoonNr is -1 afterwards when there is no whole report to show.
class KwstTemp final : public SchrijfForm {
 public:
  KwstTemp(const KwstTempSoort& soort, Hoofdmodule& hoofd, const KwstOpties& opties,
           const KwstTabel& tabel, const std::filesystem::path& pad);
};

}  // namespace lb77
