// Where a report goes that a command has made: standard output, or the file of --uit.
#pragma once

#include <filesystem>

#include "cli/Opdrachten.h"

namespace lb77 {

class Bediener;
class Sessie;

// Before any work: may --uit be written? Told when it would replace a part of the program's own.
[[nodiscard]] bool MagNaar(Sessie& sessie, const Omgeving& omgeving,
                           const OpdrachtArgumenten& argumenten);

// Delivers the text file `pad`; a failure is told.
void Lever(const std::filesystem::path& pad, Bediener& bediener, const Omgeving& omgeving,
           const OpdrachtArgumenten& argumenten);

}  // namespace lb77
