// Reads a reference table of the contact service from its dBase file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

class Gesprek;

// One of the three files, and what is said when it fails.
struct GciBestand {
  std::string_view naam;
  std::size_t kop;      // bytes before its first record
  std::size_t breedte;  // characters of a record, behind its deletion byte
  std::string_view nietOpen;
  std::string_view leeg;
};

// clang-format off
inline constexpr GciBestand kGciPlaatsenBestand{
    "GCIPLT!!.DBF", 130, 31, "Kan GCI-plaatsenbestand ", "Fout: geen plaatsen in GCI plaatsenbestand gevonden"};
inline constexpr GciBestand kGciProvinciesBestand{
    "GCIPRV!!.DBF", 98, 23, "Kan GCI-provinciebestand ", "Fout: geen provincies in GCI provinciebestand gevonden"};
inline constexpr GciBestand kGciLandenBestand{
    "GCILND!!.DBF", 98, 23, "Kan GCI-landenbestand ", "Fout: geen landen in GCI landenbestand gevonden"};
// clang-format on

// How a reading ended. Mislukt has been told.
enum class GciLezing { Gelezen, Mislukt, Gestopt };

// Reads the records of the file in `map` into `rijen`, as Windows-1252, deleted ones too. `verder` is
// called with the number read so far; its False stops. `rijen` is empty unless all were read.
[[nodiscard]] GciLezing LeesGciBestand(const GciBestand& bestand, const std::filesystem::path& map,
                                       Gesprek& gesprek, const std::function<bool(int)>& verder,
                                       std::vector<std::string>& rijen);

}  // namespace lb77
