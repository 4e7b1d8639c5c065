// Typed fields laid over the bytes of a record, and the proof that they fit.
//
// Integers are little-endian int16, wherever the program runs. Text is code page 437, left
// aligned, padded with blanks.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lb77 {

// How Zet stores a value in a field.
enum class VeldSoort { Tekst, Getal, Datum, Keuze, Vrij };

// One field: offset and width in bytes, and the name by which Zet knows it ("" when it doesn't).
struct Veld {
  std::size_t plaats = 0;
  std::size_t breedte = 0;
  std::string_view naam;
  VeldSoort soort = VeldSoort::Vrij;
  std::string_view keuzen;
  std::size_t anders = 0;  // of a choice: which one a character stands for that is none of them
};

// Text, trimmed when read and cut to its width when stored.
struct TekstVeld : Veld {
  constexpr TekstVeld(std::size_t plaats, std::size_t breedte, std::string_view naam)
      : Veld{plaats, breedte, naam, VeldSoort::Tekst, {}} {}
};

// A number of two bytes.
struct GetalVeld : Veld {
  constexpr GetalVeld(std::size_t plaats, std::size_t breedte, std::string_view naam)
      : Veld{plaats, breedte, naam, VeldSoort::Getal, {}} {}
};

// A number day * 100 + month, with its year in the field behind it. Its name stands for the whole
// date and takes text ‘dd?mm?jjjj’.
struct DatumVeld : Veld {
  constexpr DatumVeld(std::size_t plaats, std::size_t breedte, std::string_view naam)
      : Veld{plaats, breedte, naam, VeldSoort::Datum, {}} {}
};

// One character out of a list: a value read as a number chooses it, too high a number the last.
struct KeuzeVeld : Veld {
  constexpr KeuzeVeld(std::size_t plaats, std::size_t breedte, std::string_view naam,
                      std::string_view keuzen, std::size_t anders = 0)
      : Veld{plaats, breedte, naam, VeldSoort::Keuze, keuzen, anders} {}
};

// Bytes without a meaning, blank.
struct VrijVeld : Veld {
  constexpr VrijVeld(std::size_t plaats, std::size_t breedte)
      : Veld{plaats, breedte, {}, VeldSoort::Vrij, {}} {}
};

// True when the field holds a number of two bytes.
constexpr bool IsGetal(const Veld& veld) {
  return veld.soort == VeldSoort::Getal || veld.soort == VeldSoort::Datum;
}

// True when the fields, in file order, leave no gap, do not overlap and fill `lengte` bytes.
constexpr bool IsSluitend(std::span<const Veld> velden, std::size_t lengte) {
  std::size_t plaats = 0;
  for (const Veld& veld : velden) {
    if (veld.plaats != plaats || (IsGetal(veld) && veld.breedte != 2)) return false;
    if (veld.soort == VeldSoort::Keuze && veld.breedte != 1) return false;
    plaats += veld.breedte;
  }
  return plaats == lengte;
}

// An empty record: text blank, numbers 0.
template <std::size_t Lengte>
constexpr std::array<char, Lengte> LeegRecord(std::span<const Veld> velden) {
  std::array<char, Lengte> record{};
  for (const Veld& veld : velden) {
    if (IsGetal(veld)) continue;
    for (std::size_t i = 0; i < veld.breedte; ++i) record[veld.plaats + i] = ' ';
  }
  return record;
}

// The number at a byte of a record.
constexpr std::int16_t GetalOp(std::span<const char> record, std::size_t plaats) {
  const auto laag = static_cast<unsigned char>(record[plaats]);
  const auto hoog = static_cast<unsigned char>(record[plaats + 1]);
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(laag | (hoog << 8U)));
}

// Stores a number at a byte of a record.
constexpr void ZetGetalOp(std::span<char> record, std::size_t plaats, std::int16_t getal) {
  const auto bits = static_cast<std::uint16_t>(getal);
  record[plaats] = static_cast<char>(bits & 0xFFU);
  record[plaats + 1] = static_cast<char>(bits >> 8U);
}

// The stored bytes of a field.
constexpr std::string_view BytesVan(std::span<const char> record, const Veld& veld) {
  return {record.data() + veld.plaats, veld.breedte};
}

// Fills a field with stored text, cut or padded with blanks to its width.
void ZetBytes(std::span<char> record, const Veld& veld, std::string_view bytes);

}  // namespace lb77
