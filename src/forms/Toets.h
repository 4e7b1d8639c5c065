// Key presses as the forms see them, whatever the toolkit calls them.
#pragma once

#include "text/Tekens.h"

namespace lb77 {

// Virtual key codes; the values are those of the platform's virtual keys that the older data-entry
// programs used, so that the key tables of the entry fields can be read beside each other.
namespace toets {
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpatie = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLinks = 37;
inline constexpr int kOmhoog = 38;
inline constexpr int kRechts = 39;
inline constexpr int kOmlaag = 40;
inline constexpr int kInsert = 45;
inline constexpr int kDelete = 46;
inline constexpr int kNum0 = 96;  // to 105, the keypad digits
inline constexpr int kNum9 = 105;
inline constexpr int kNumEnter = 108;
inline constexpr int kF1 = 112;  // to 123
inline constexpr int kF2 = 113;
inline constexpr int kF8 = 119;
inline constexpr int kF9 = 120;
inline constexpr int kF10 = 121;
inline constexpr int kF12 = 123;
inline constexpr int kNumLock = 144;
}  // namespace toets

// One key going down. `teken` is the Windows-1252 character that it would type, 0 for none.
// A handler that has dealt with the key sets `verwerkt`; then neither the form nor the field acts.
struct ToetsGebeurtenis {
  int code = 0;
  bool shift = false;
  char teken = 0;
  bool verwerkt = false;
};

// The key that types `teken`. Letters and digits have the code of their capital; a line feed is the
// Enter key; every other character has code 0, as its own byte would be the code of another key.
[[nodiscard]] constexpr ToetsGebeurtenis ToetsVanTeken(char teken) {
  const char groot = Hoofdletter(teken);
  const bool letter = groot >= 'A' && groot <= 'Z';
  if (letter) return {.code = groot, .shift = teken == groot, .teken = teken};
  if (teken == '\n') return {.code = toets::kEnter, .teken = teken};
  const bool eigen = IsCijfer(teken) || teken == ' ';
  return {.code = eigen ? teken : 0, .teken = teken};
}

}  // namespace lb77
