// Taking the files and directories of a file set from the disk.
#pragma once

#include <filesystem>
#include <string_view>

#include "forms/Gesprek.h"

namespace lb77 {

// Deletes what is ours of the set `naam` under the data directory: its four files, then TEKST,
// INDEX and its journal with all that is in them, then its own directory when nothing else lies in it. Each failure
// shows its message, and the rest goes on. Nothing outside <data>/<SET> is touched: a symbolic link
// goes, what it points to stays, and a set whose own directory is a link stays whole.
// Precondition: IsSetNaam(naam), and its files are closed.
void VerwijderSetVanSchijf(Gesprek& gesprek, const std::filesystem::path& data,
                           std::string_view naam);

}  // namespace lb77
