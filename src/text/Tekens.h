// Characters of Windows-1252: kinds, upper and lower case, and the trimming of texts.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// True for "0" to "9".
constexpr bool IsCijfer(char teken) {
  return teken >= '0' && teken <= '9';
}

namespace tekens {

// True for a lower-case letter whose capital lies 32 places before it.
constexpr bool IsKleinMetVasteAfstand(unsigned char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7);
}

// True for a capital whose small letter lies 32 places behind it.
constexpr bool IsGrootMetVasteAfstand(unsigned char byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
}

}  // namespace tekens

// The capital of a letter; every other character as it is (sharp s has no capital).
constexpr char Hoofdletter(char teken) {
  const auto byte = static_cast<unsigned char>(teken);
  if (tekens::IsKleinMetVasteAfstand(byte)) return static_cast<char>(byte - 32);
  if (byte == 0x9A || byte == 0x9C || byte == 0x9E) return static_cast<char>(byte - 16);
  return byte == 0xFF ? static_cast<char>(0x9F) : teken;
}

// The small letter of a capital; every other character as it is.
constexpr char KleineLetter(char teken) {
  const auto byte = static_cast<unsigned char>(teken);
  if (tekens::IsGrootMetVasteAfstand(byte)) return static_cast<char>(byte + 32);
  if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<char>(byte + 16);
  return byte == 0x9F ? static_cast<char>(0xFF) : teken;
}

// True for a letter of the alphabet, with or without an accent, and for sharp s.
constexpr bool IsLetter(char teken) {
  return Hoofdletter(teken) != teken || KleineLetter(teken) != teken ||
         static_cast<unsigned char>(teken) == 0xDF;
}

// The text in capitals.
std::string Hoofdletters(std::string_view tekst);

// The text in small letters.
std::string KleineLetters(std::string_view tekst);

// True when the texts are equal apart from upper and lower case.
[[nodiscard]] bool GelijkZonderKast(std::string_view a, std::string_view b);

// The text without blanks (byte 32 only) in front. The view lies in `tekst`.
constexpr std::string_view TrimLinks(std::string_view tekst) {
  while (!tekst.empty() && tekst.front() == ' ') tekst.remove_prefix(1);
  return tekst;
}

// The text without blanks (byte 32 only) at the end. The view lies in `tekst`.
constexpr std::string_view TrimRechts(std::string_view tekst) {
  while (!tekst.empty() && tekst.back() == ' ') tekst.remove_suffix(1);
  return tekst;
}

// The text without blanks (byte 32 only) on either side. The view lies in `tekst`.
constexpr std::string_view Trim(std::string_view tekst) {
  return TrimLinks(TrimRechts(tekst));
}

// True when `tekst` begins with `begin`, upper and lower case told apart.
[[nodiscard]] constexpr bool BegintMet(std::string_view tekst, std::string_view begin) {
  return tekst.starts_with(begin);
}

// True when `tekst` ends in `einde`, upper and lower case told apart.
[[nodiscard]] constexpr bool EindigtOp(std::string_view tekst, std::string_view einde) {
  return tekst.ends_with(einde);
}

}  // namespace lb77
