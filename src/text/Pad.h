// Paths as text of the program, and back.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lb77 {

// The path for messages and fields, in Windows-1252; "?" for what cannot be written in it.
[[nodiscard]] std::string PadTekst(const std::filesystem::path& pad);

// The path that a Windows-1252 text names.
[[nodiscard]] std::filesystem::path PadVan(std::string_view tekst);

}  // namespace lb77
