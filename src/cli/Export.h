// The commands that write selected records to files of other programs.
#pragma once

#include <functional>
#include <string_view>

#include "cli/Opdrachten.h"
#include "cli/Werk.h"

namespace lb77 {

// A menu entry, the dialog behind it, and the button that starts it.
struct ExportVorm {
  std::string_view menuKeuze;
  std::string_view formulier;
  std::string_view start;
};

// Selects the persons and relations of the command line, all there are when it names neither, and
// starts; prints the log. `vulIn` fills in what the dialog asks beside that.
[[nodiscard]] int VoerExport(const ExportVorm& vorm, const Omgeving& omgeving,
                             const OpdrachtArgumenten& argumenten,
                             const std::function<void(Formulier&, Werk&)>& vulIn);

// Puts a path in a field.
void ZetPadIn(Formulier& formulier, std::string_view naam, const std::filesystem::path& pad);

}  // namespace lb77
