// The forms that write a descendant report to its file.
#pragma once

#include <filesystem>

#include "descendants/GenPrs.h"
#include "reporting/SchrijfForm.h"

namespace lb77 {

// What tells one of them from another.
struct GenTempSoort {
  SchrijfSoort vorm;
  bool doorlopend;  // lines are never wrapped, in text neither
  Uitslag (*schrijf)(Hoofdmodule&, const GenRun&, TekstSchrijver&, const Verloop&);
};

extern const GenTempSoort kGenMaakTemp;
extern const GenTempSoort kGenMaakIdxTemp;
extern const GenTempSoort kGenSchTemp;

// Writes `pad`. HuidigPersoonNr is -1 afterwards when there is no whole report to show.
class GenTemp final : public SchrijfForm {
 public:
  GenTemp(const GenTempSoort& soort, Hoofdmodule& hoofd, const GenRun& run,
          const std::filesystem::path& pad);
};

}  // namespace lb77
