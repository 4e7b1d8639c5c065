// The temporary file of a report: made, written, closed and checked, with the messages for failures.
#pragma once

#include <filesystem>
#include <functional>

#include "forms/Gesprek.h"
#include "output/TekstSchrijver.h"
#include "reporting/Verloop.h"

namespace lb77 {

// Where a report is made, and the last usable column of its text.
struct VerslagBestand {
  std::filesystem::path pad;
  int breedte = TekstSchrijver::kGeenRechterMarge;
};

// Makes the file, has `schrijf` write it, and closes it. A file that can't be made or written gives
// Schrijffout behind its message; what was written stands, however it ended.
[[nodiscard]] Uitslag SchrijfVerslag(const VerslagBestand& bestand, Gesprek& gesprek,
                                     const std::function<Uitslag(TekstSchrijver&)>& schrijf);

}  // namespace lb77
