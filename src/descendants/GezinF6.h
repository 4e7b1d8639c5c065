// Writes the family sheet of fixed lines: the man on the left, the woman on the right.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "descendants/GezinDelen.h"
#include "descendants/GezinOpties.h"
#include "output/TekstSchrijver.h"
#include "reporting/Verloop.h"

namespace lb77 {

// One run, without remarks. The file is open and stays so, and does not wrap its lines. A person who
// can't be read leaves an empty column.
class GezinF6 {
 public:
  GezinF6(const GezinOpties& opties, const Gegevens& bronnen, TekstSchrijver& uit)
      : opties_(opties), bronnen_(bronnen), uit_(uit), delen_(bronnen, opties) {}

  // Klaar with all lines ended, or the relation of the sheet when it can't be read.
  [[nodiscard]] Uitslag Schrijf();

 private:
  static constexpr std::size_t kRegels = 16;
  using Kolom = std::array<std::string, kRegels>;
  // Left and right.
  struct Paar {
    std::optional<PersoonBlik> man;
    std::optional<PersoonBlik> vrouw;
  };
  struct Ouder {
    std::string naam;
    std::string gegevens;  // years and occupation
  };
  struct Ouders {
    Ouder vader;
    Ouder moeder;
  };

  [[nodiscard]] std::optional<PersoonBlik> LeesPersoon(std::int16_t nr);
  [[nodiscard]] Paar LeesPaar(const std::optional<GezinBlik>& gezin);
  [[nodiscard]] Ouder LeesOuder(std::int16_t nr);
  [[nodiscard]] Ouders LeesOuders(const PersoonBlik& persoon);

  void SchrijfKop(const Paar& paar);
  void SchrijfPaar(const Paar& paar);
  // The labels, each with its value; nothing at all for a missing person.
  [[nodiscard]] Kolom KolomVan(const std::optional<PersoonBlik>& persoon);
  void SchrijfVerbintenis(const Verbintenis& verbintenis);
  void SchrijfKinderen(const KinderenBlik& kinderen);
  void SchrijfKind(int plaats, std::int16_t nr);

  const GezinOpties& opties_;
  Gegevens bronnen_;
  TekstSchrijver& uit_;
  GezinDelen delen_;
};

// A date of this sheet: day, month and year with "-" between them, 0 for an unknown part.
[[nodiscard]] std::string BladDatum(std::int16_t dagMaand, std::int16_t jaar);

}  // namespace lb77
