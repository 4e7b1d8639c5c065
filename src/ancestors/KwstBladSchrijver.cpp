#include "ancestors/KwstBladSchrijver.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "ancestors/KwstBladTekening.h"
#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {
namespace {

constexpr std::size_t kSlotInspringing = 10;  // of the closing lines

// How many of the lines around the sheet take two: they may be longer than it is wide.
int GebrokenRegels(const PaginaTeksten& teksten) {
  const auto breekt = [](std::string_view regel, std::size_t inspringing) {
    return regel.size() + inspringing > std::size_t{kBladBreedte};
  };
  const auto gebroken =
      std::count_if(teksten.inleiding.begin(), teksten.inleiding.end(),
                    [&breekt](std::string_view regel) { return breekt(regel, 0); });
  return static_cast<int>(gebroken) + (breekt(teksten.titel, 0) ? 1 : 0) +
         (breekt(teksten.copyrightRegel, kSlotInspringing) ? 1 : 0);
}

}  // namespace

void SchrijfBlad(const KwstTabel& tabel, int wortel, const KwstOpties& opties,
                 const Gegevens& bronnen, TekstSchrijver& uit) {
  const KwstBlad blad(tabel, wortel);
  SchrijfSchemaKop(uit, opties.teksten, {}, {}, {});
  TekenBlad(LeesBlad(blad, tabel, opties.KwOokNrs, bronnen), opties.KwBldHSK,
            kBladRijen - GebrokenRegels(opties.teksten))
      .Schrijf(uit);
  SchrijfSchemaSlot(uit, opties.teksten);
}

}  // namespace lb77
