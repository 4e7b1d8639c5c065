#include "app/Klok.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <system_error>

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

Tijdstip Lokaal(std::time_t moment) {
  // The program has one thread, so that the shared buffer of localtime does no harm.
  const std::tm* delen = std::localtime(&moment);  // NOLINT(concurrency-mt-unsafe)
  if (!delen) return {};
  return {delen->tm_year + 1900, delen->tm_mon + 1, delen->tm_mday,
          delen->tm_hour,        delen->tm_min,     delen->tm_sec};
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

std::string DagTekst(const Tijdstip& tijd) {
  constexpr std::array<std::string_view, 12> kMaanden = {
      "januari", "februari", "maart",     "april",   "mei",      "juni",
      "juli",    "augustus", "september", "oktober", "november", "december"};
  const auto maand = static_cast<std::size_t>(tijd.maand - 1);
  return GetalTekst(tijd.dag) + " " + std::string(kMaanden.at(maand)) + " " + GetalTekst(tijd.jaar);
}

std::string DagEnUurTekst(const Tijdstip& tijd) {
  return DagTekst(tijd) + " om " + GetalTekst(tijd.uur) + ":" + NulGevuld(tijd.minuut, 2);
}

std::optional<Tijdstip> WijzigMoment(const std::filesystem::path& pad) {
  std::error_code code;
  const std::filesystem::file_time_type tijd = std::filesystem::last_write_time(pad, code);
  if (code) return std::nullopt;
  const auto seconden =
      std::chrono::floor<std::chrono::seconds>(std::chrono::file_clock::to_sys(tijd));
  const Tijdstip moment = Lokaal(std::chrono::system_clock::to_time_t(seconden));
  return moment.maand > 0 ? std::optional(moment) : std::nullopt;
}

Tijdstip SysteemKlok::Nu() const {
  return Lokaal(std::time(nullptr));
}

}  // namespace lb77
