// Text between the forms (Windows-1252) and the toolkit (Unicode).
#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

namespace lb77 {

// Windows-1252 as the toolkit's text, one character a byte.
[[nodiscard]] QString NaarQt(std::string_view windows);

// What came of a text that the user typed or pasted. `geweigerd` tells that characters without an
// equivalent, not even a transliteration, were left out.
struct Overgezet {
  std::string tekst;
  bool geweigerd = false;
};
[[nodiscard]] Overgezet VanQt(const QString& tekst);

[[nodiscard]] QString PadNaarQt(const std::filesystem::path& pad);
[[nodiscard]] std::filesystem::path PadVanQt(const QString& pad);

}  // namespace lb77
