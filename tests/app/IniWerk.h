// Settings files written by a test, and a disk that stops or fails at one operation.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "app/IniBestand.h"

namespace lb77 {

// Writes that text as the settings file of a directory.
inline SchrijfUitslag SchrijfIniIn(const std::filesystem::path& map, std::string_view tekst) {
  return SchrijfIniBestand(map, [&](const std::string*) { return std::string(tekst); });
}

// A whole settings file in which the description of the active set is this one.
inline std::string HeelIni(std::string_view omschrijving) {
  return IniRegels([&](SleutelPlaats plaats) {
    return std::string(AlleSleutels()[plaats.rij].naam == "SetOms" ? omschrijving : "");
  });
}

// Nothing is brought to the disk itself: for tests that write thousands of files.
class SnelWerk : public Bestandswerk {
 public:
  [[nodiscard]] SysteemFout Veiligstellen(const std::filesystem::path&) override { return {}; }
  [[nodiscard]] SysteemFout VeiligstellenMap(const std::filesystem::path&) override { return {}; }
};

// Stops as a power cut does, or fails, at operation `bij`, counted from 1. A writing has two: before
// it, and when half of it is on the disk.
class Breekwerk final : public Bestandswerk {
 public:
  enum class Wijze { Stopt, Faalt };
  struct Gestopt {};

  Breekwerk(Wijze wijze, int bij) : wijze_(wijze), bij_(bij) {}
  // True when the operation has come.
  [[nodiscard]] bool Geweest() const { return teller_ >= bij_; }

  [[nodiscard]] SchrijfUitslag Maak(const std::filesystem::path& pad,
                                    std::string_view inhoud) override {
    if (Treft()) return {SchrijfStap::Openen, Storing()};
    return Schrijf(inhoud, [&](std::string_view deel) { return Bestandswerk::Maak(pad, deel); });
  }
  [[nodiscard]] SchrijfUitslag Overschrijf(const std::filesystem::path& pad,
                                           std::string_view inhoud) override {
    if (Treft()) return {SchrijfStap::Openen, Storing()};
    return Schrijf(inhoud,
                   [&](std::string_view deel) { return Bestandswerk::Overschrijf(pad, deel); });
  }
  [[nodiscard]] SysteemFout Veiligstellen(const std::filesystem::path&) override {
    return Treft() ? Storing() : SysteemFout{};
  }
  [[nodiscard]] SysteemFout VeiligstellenMap(const std::filesystem::path&) override {
    return Treft() ? Storing() : SysteemFout{};
  }
  [[nodiscard]] SysteemFout Verwijder(const std::filesystem::path& pad) override {
    return Treft() ? Storing() : Bestandswerk::Verwijder(pad);
  }
  [[nodiscard]] SysteemFout Koppel(const std::filesystem::path& bestand,
                                   const std::filesystem::path& naam) override {
    return Treft() ? Storing() : Bestandswerk::Koppel(bestand, naam);
  }
  [[nodiscard]] SysteemFout Hernoem(const std::filesystem::path& van,
                                    const std::filesystem::path& naar) override {
    return Treft() ? Storing() : Bestandswerk::Hernoem(van, naar);
  }

 private:
  [[nodiscard]] bool Treft() { return ++teller_ == bij_; }
  [[nodiscard]] SysteemFout Storing() const {
    if (wijze_ == Wijze::Stopt) throw Gestopt{};
    return {kSchijfVol, "Schijf vol"};
  }
  SchrijfUitslag Schrijf(std::string_view inhoud,
                         const std::function<SchrijfUitslag(std::string_view)>& doe) {
    if (!Treft()) return doe(inhoud);
    static_cast<void>(doe(inhoud.substr(0, inhoud.size() / 2)));
    return {SchrijfStap::Schrijven, Storing()};
  }

  Wijze wijze_;
  int bij_;
  int teller_ = 0;
};

}  // namespace lb77
