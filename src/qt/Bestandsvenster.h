// Questions for a file or a directory.
#pragma once

#include <QStringList>
#include <QWidget>
#include <filesystem>
#include <optional>
#include <string_view>

#include "forms/Gesprek.h"
#include "qt/VensterInstellingen.h"

namespace lb77 {

// Asks over `ouder` (may be null); empty when the user cancelled. A file that would be written
// over is asked about. It begins where the user last chose a file of such a kind, for opening or for
// saving; the first time where the question says if there is one to open, else among his downloads, or
// his documents. A directory is asked for from where the question says.
[[nodiscard]] std::optional<std::filesystem::path> KiesBestand(QWidget* ouder,
                                                               const BestandsVraag& vraag,
                                                               VensterInstellingen& instellingen);

// The same for a file to write that has a name already: it and its kind are filled in. It begins
// where the user last saved a file of such a kind, and the first time among his documents.
[[nodiscard]] std::optional<std::filesystem::path> KiesOpslag(QWidget* ouder,
                                                              const BestandsVraag& vraag,
                                                              const std::filesystem::path& naam,
                                                              VensterInstellingen& instellingen);

// "naam|patroon|naam|patroon" as the toolkit's filters. A pattern is given in lower and in upper
// case too, for file systems that tell them apart; "*.*" is every file.
[[nodiscard]] QStringList Naamfilters(std::string_view filter);

}  // namespace lb77
