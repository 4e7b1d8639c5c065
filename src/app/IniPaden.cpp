#include "app/IniPaden.h"

#include <algorithm>
#include <vector>

#include "text/Pad.h"
#include "text/Utf8.h"

namespace lb77 {

namespace {

std::string Utf8Tekst(const std::filesystem::path& pad) {
  const std::u8string tekst = pad.u8string();
  return {tekst.begin(), tekst.end()};
}

std::filesystem::path VanUtf8(std::string_view tekst) {
  return {std::u8string(tekst.begin(), tekst.end())};
}

bool IsUtf8MetAccenten(std::string_view tekst) {
  bool accent = false;
  for (std::size_t i = 0; i < tekst.size();) {
    const Utf8Teken teken = LeesUtf8(tekst, i);
    if (teken.lengte == 0) return false;
    accent = accent || teken.lengte > 1;
    i += teken.lengte;
  }
  return accent;
}

// The names of a path; what stands before a leading separator is an empty first name.
std::vector<std::string> Namen(const std::string& tekst, std::string_view scheiders) {
  std::vector<std::string> namen;
  for (std::size_t i = 0; i <= tekst.size();) {
    const std::size_t eind = std::min(tekst.find_first_of(scheiders, i), tekst.size());
    if (eind > i || i == 0) namen.push_back(tekst.substr(i, eind - i));
    i = eind + 1;
  }
  return namen;
}

}  // namespace

std::filesystem::path PadVanRegel(std::string_view regel) {
  return IsUtf8MetAccenten(regel) ? VanUtf8(regel) : PadVan(regel);
}

std::string PadRegel(const std::filesystem::path& pad) {
  std::string windows = PadTekst(pad);
  return PadVanRegel(windows) == pad ? windows : Utf8Tekst(pad);
}

std::filesystem::path Herplaatst(const std::filesystem::path& pad, const std::filesystem::path& oud,
                                 const std::filesystem::path& nieuw) {
  if (oud.empty()) return pad;
  const std::string begin = Utf8Tekst(oud);
  const bool vreemd = begin.find('\\') != std::string::npos;
  const std::string_view scheiders = vreemd ? "/\\" : "/";
  const std::vector<std::string> voor = Namen(begin, scheiders);
  const std::vector<std::string> heel = Namen(Utf8Tekst(pad), scheiders);
  if (heel.size() < voor.size() || !std::equal(voor.begin(), voor.end(), heel.begin())) return pad;
  std::filesystem::path uit = nieuw;
  for (std::size_t i = voor.size(); i < heel.size(); ++i) uit /= VanUtf8(heel[i]);
  return uit;
}

}  // namespace lb77
