#include "app/Klok.h"

#include <array>
#include <cstddef>
#include <ctime>

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kVorm = "JJJJ-MM-DD UU:MM:SS";

bool HeeftVorm(std::string_view tekst) {
  if (tekst.size() != kVorm.size()) return false;
  for (std::size_t i = 0; i < tekst.size(); ++i) {
    const bool cijfer = kVorm[i] >= 'A' && kVorm[i] <= 'Z';
    if (cijfer ? !IsCijfer(tekst[i]) : tekst[i] != kVorm[i]) return false;
  }
  return true;
}

int DagenIn(int jaar, int maand) {
  constexpr std::array<int, 12> kDagen = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool schrikkel = (jaar % 4 == 0 && jaar % 100 != 0) || jaar % 400 == 0;
  return kDagen[static_cast<std::size_t>(maand - 1)] + (maand == 2 && schrikkel ? 1 : 0);
}

bool Bestaat(const Tijdstip& t) {
  if (t.jaar < 1 || t.maand < 1 || t.maand > 12) return false;
  if (t.dag < 1 || t.dag > DagenIn(t.jaar, t.maand)) return false;
  return t.uur < 24 && t.minuut < 60 && t.seconde < 60;
}

}  // namespace

std::optional<Tijdstip> LeesTijdstip(std::string_view tekst) {
  if (!HeeftVorm(tekst)) return std::nullopt;
  const auto deel = [&](std::size_t plaats, std::size_t lengte) {
    return static_cast<int>(Getalwaarde(tekst.substr(plaats, lengte)));
  };
  const Tijdstip t{deel(0, 4), deel(5, 2), deel(8, 2), deel(11, 2), deel(14, 2), deel(17, 2)};
  return Bestaat(t) ? std::optional(t) : std::nullopt;
}

Tijdstip SysteemKlok::Nu() const {
  const std::time_t nu = std::time(nullptr);
  // The program has one thread, so that the shared buffer of localtime does no harm.
  const std::tm* delen = std::localtime(&nu);  // NOLINT(concurrency-mt-unsafe)
  if (!delen) return {};
  return {delen->tm_year + 1900, delen->tm_mon + 1, delen->tm_mday,
          delen->tm_hour,        delen->tm_min,     delen->tm_sec};
}

}  // namespace lb77
