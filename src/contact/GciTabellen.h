// The reference tables of the contact service, in memory: rows of text with fixed columns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lb77 {

// The places: name (25 characters), province (3) and country (3). Rows count from 1; a run adds those
// that its user wants.
class GciPlaatsen {
 public:
  static constexpr std::size_t kNaam = 25;
  static constexpr std::size_t kCode = 3;

  explicit GciPlaatsen(std::vector<std::string> rijen = {});

  [[nodiscard]] int Aantal() const { return static_cast<int>(rijen_.size()); }
  // Columns of a row, without the blanks around them. Precondition: 1 to Aantal().
  [[nodiscard]] std::string_view Naam(int rij) const;
  [[nodiscard]] std::string_view Prov(int rij) const;
  [[nodiscard]] std::string_view Land(int rij) const;
  // The rows of a name in capitals and small letters alike, in their order.
  [[nodiscard]] const std::vector<std::int16_t>& MetNaam(std::string_view naam) const;
  // The first province code that is that text, in capitals and small letters alike; nothing when no
  // row has it.
  [[nodiscard]] std::optional<std::string> MetProv(std::string_view code) const;
  // Adds a row of texts cut to their columns and gives its number; 0 when the table is full.
  [[nodiscard]] std::int16_t VoegToe(std::string_view naam, std::string_view prov,
                                     std::string_view land);

 private:
  [[nodiscard]] const std::string& Rij(int rij) const;
  void Onthoud(std::int16_t rij);

  std::vector<std::string> rijen_;
  std::unordered_map<std::string, std::vector<std::int16_t>> opNaam_;
  std::vector<std::int16_t> geen_;
};

// Codes of three characters with their names: the provinces, or the countries.
class GciCodes {
 public:
  explicit GciCodes(const std::vector<std::string>& rijen = {});

  // The first code that is, or whose name is, that text, in capitals and small letters alike;
  // nothing when there is none.
  [[nodiscard]] std::optional<std::string> MetCode(std::string_view code) const;
  [[nodiscard]] std::optional<std::string> MetNaam(std::string_view naam) const;
  // The name of the first row of that code.
  [[nodiscard]] std::optional<std::string> NaamVan(std::string_view code) const;

 private:
  struct Rij {
    std::string code;
    std::string naam;
  };
  [[nodiscard]] const Rij* Zoek(std::string Rij::*kolom, std::string_view tekst) const;

  std::vector<Rij> rijen_;
};

using GciProvincies = GciCodes;
using GciLanden = GciCodes;

struct GciTabellen {
  GciPlaatsen plaatsen;
  GciProvincies provincies;
  GciLanden landen;
};

}  // namespace lb77
