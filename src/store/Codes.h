// The letters and bits that records store, by name.
#pragma once

#include <cstdint>
#include <string_view>

namespace lb77 {

// True when the text of a field of one character is this code.
constexpr bool IsCode(std::string_view tekst, char code) {
  return tekst.size() == 1 && tekst.front() == code;
}

// GebCorr, OvlCorr, HuwCorr: what its date is worth.
namespace correctie {

inline constexpr char kGeen = ' ';
inline constexpr char kCirca = 'C';
inline constexpr char kNa = 'N';
inline constexpr char kVoor = 'V';
inline constexpr char kTussen = 'T';   // between this date and that of the event behind it
inline constexpr char kVervolg = 'Z';  // no date: a continuation record

}  // namespace correctie

// Geslacht of a person; blank reads as kOnbekend.
namespace geslacht {

inline constexpr char kMan = 'M';
inline constexpr char kVrouw = 'V';
inline constexpr char kOnbekend = 'O';

}  // namespace geslacht

// HuwSwPs of a relation; blank for a marriage.
namespace bond {

inline constexpr char kSamenwonen = 'S';
inline constexpr char kPartnerschap = 'P';

}  // namespace bond

// The marks of BegrCrem and KHuwSch.
inline constexpr char kGecremeerd = 'C';
inline constexpr char kGescheiden = 'S';

// BijProg of a remark: the output in which it is used.
namespace uitvoer {

inline constexpr std::int16_t kKwartierstaat = 1;
inline constexpr std::int16_t kStamreeks = 2;
inline constexpr std::int16_t kGenealogie = 4;
inline constexpr std::int16_t kGezinsblad = 8;
inline constexpr std::int16_t kAlleenHTML = 64;

}  // namespace uitvoer

}  // namespace lb77
