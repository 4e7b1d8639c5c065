// The present time, which a test or a script can fix.
#pragma once

#include <compare>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lb77 {

// A moment of the local calendar: month 1 to 12, day 1 to 31, hour 0 to 23.
struct Tijdstip {
  int jaar = 0;
  int maand = 0;
  int dag = 0;
  int uur = 0;
  int minuut = 0;
  int seconde = 0;

  // In order of time.
  // NOLINTNEXTLINE(modernize-use-nullptr): the zero is the compiler's own
  [[nodiscard]] auto operator<=>(const Tijdstip&) const = default;
};

// "JJJJ-MM-DD UU:MM:SS" as a moment; nothing when the text has another form or names no moment.
[[nodiscard]] std::optional<Tijdstip> LeesTijdstip(std::string_view tekst);

// "3 mei 2019", and with the time "3 mei 2019 om 9:05".
[[nodiscard]] std::string DagTekst(const Tijdstip& tijd);
[[nodiscard]] std::string DagEnUurTekst(const Tijdstip& tijd);

// The moment at which a file was last changed; nothing when the system does not tell.
[[nodiscard]] std::optional<Tijdstip> WijzigMoment(const std::filesystem::path& pad);

class Klok {
 public:
  Klok() = default;
  virtual ~Klok() = default;
  Klok(const Klok&) = delete;
  Klok& operator=(const Klok&) = delete;

  // The present moment in local time.
  [[nodiscard]] virtual Tijdstip Nu() const = 0;
};

// The clock of the computer.
class SysteemKlok final : public Klok {
 public:
  [[nodiscard]] Tijdstip Nu() const override;
};

// A clock that stands still.
class VasteKlok final : public Klok {
 public:
  explicit VasteKlok(Tijdstip nu) : nu_(nu) {}
  [[nodiscard]] Tijdstip Nu() const override { return nu_; }

 private:
  Tijdstip nu_;
};

}  // namespace lb77
