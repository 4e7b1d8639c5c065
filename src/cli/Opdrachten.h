// The everyday commands: a table of what each takes and does.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/Klok.h"

namespace lb77 {

// Where a command runs and where its output goes. Standard output and error take UTF-8.
struct Omgeving {
  std::filesystem::path programmaMap;
  const Klok& klok;
  std::ostream& uit;
  std::ostream& fout;
};

// The words of the command line. Texts are Windows-1252; a path is itself.
struct OpdrachtArgumenten {
  std::vector<std::string> woorden;  // in the order of the command's words; left-out ones are ""
  std::filesystem::path bestand;     // of `importeer`
  bool html = false;
  std::optional<std::filesystem::path> naar;  // --uit
  std::vector<std::string> zet;               // NAAM=WAARDE
};

// What a command accepts beside its words.
enum class Extra { Geen, Bestand, Rapport };

struct Opdracht {
  std::string_view naam;
  std::string_view uitleg;
  std::vector<std::string_view> woorden;  // the names of its words; one in brackets may be left out
  Extra extra;
  std::function<int(const Omgeving&, const OpdrachtArgumenten&)> doe;  // the exit status
};

// All commands but `speel`, in the order of the help.
[[nodiscard]] const std::vector<Opdracht>& Opdrachten();

// `speel`: plays the script `utf8` and prints its transcript. Relative paths in it are resolved
// against `basismap`.
[[nodiscard]] int SpeelDraaiboek(const Omgeving& omgeving, std::string_view utf8,
                                 const std::filesystem::path& basismap);

}  // namespace lb77
