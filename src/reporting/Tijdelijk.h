// The temporary file of a report: opening and closing it with their messages.
#pragma once

#include <filesystem>

#include "forms/Gesprek.h"
#include "output/TekstSchrijver.h"

namespace lb77 {

// Makes the file; the message for a failure is shown here.
[[nodiscard]] bool OpenTijdelijk(TekstSchrijver& uit, const std::filesystem::path& pad,
                                 Gesprek& gesprek);

// Closes the file. False, with a message, when not all of it could be written.
[[nodiscard]] bool SluitTijdelijk(TekstSchrijver& uit, const std::filesystem::path& pad,
                                  Gesprek& gesprek);

}  // namespace lb77
