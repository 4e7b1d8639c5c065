// A whole import: three passes over one file, and the log.
#pragma once

#include <filesystem>

#include "exchange/GedLoop.h"

namespace lb77 {

// Who shows which pass runs.
class GedToeschouwer : public GedVoortgang {
 public:
  // Pass 1, 2 or 3 begins; the passes before it are done. 4 is the end.
  virtual void Stap(int nr) = 0;
};

// How an import ended. `fout` is a failure of the system that ended it.
struct GedImportUitslag {
  GedUitslag uitslag = GedUitslag::Klaar;
  std::string melding;  // the error text of a pass, Windows-1252
  SysteemFout fout;
};

// Reads `bestand` into the open set and writes `log`. What was stored stays, however it ends.
[[nodiscard]] GedImportUitslag ImporteerGedcom(const std::filesystem::path& bestand,
                                               const std::filesystem::path& log,
                                               const GedBronnen& bronnen,
                                               GedToeschouwer& toeschouwer);

}  // namespace lb77
