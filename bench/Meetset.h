// A program directory with one file set, worked by the commands of lb77-cli in this process.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "app/Klok.h"
#include "cli/Opdrachten.h"
#include "steun/TijdelijkeMap.h"
#include "store/SetPaden.h"

namespace lb77::bench {

// What the user would read goes nowhere. Each command is a whole session, from the settings file
// to the closing of the program. Throws std::runtime_error when a command fails.
class Meetset {
 public:
  // Makes the empty set MEET.
  Meetset();

  void Importeer(const std::filesystem::path& gedcom);
  // Writes a report on a person by its command to `naar`; `zet` are choices of its dialog.
  void Rapport(std::string_view opdracht, int persoon, const std::filesystem::path& naar,
               const std::vector<std::string>& zet = {});
  // The same by a command with other words behind the set.
  void Rapport(std::string_view opdracht, const std::vector<std::string>& woorden,
               const std::filesystem::path& naar, const std::vector<std::string>& zet = {});

  // Where its files lie.
  [[nodiscard]] SetPaden Paden() const;

 private:
  void Doe(std::string_view naam, const OpdrachtArgumenten& argumenten);

  TijdelijkeMap map_;
  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
};

}  // namespace lb77::bench
