// What a printed sheet tells of the person on a place.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "ancestors/KwstBlad.h"
#include "store/Gegevens.h"

namespace lb77 {

// One place. The events are "" when nothing is known of them, but for the birth of a known person.
struct BladTekst {
  std::string nummer;     // "12."
  std::string voornamen;  // "?????" for a name that is not known
  std::string achternaam;
  std::string achter;   // behind the name: "[7]", and ">" when the ancestors lie on a further sheet
  std::string geboren;  // "* 12-05-1850 Delft", or "~ ..." of a baptism
  std::string overleden;  // "+ 01-02-1900 Breda", of a burial "+ begr. ..."
  std::string gehuwd;     // of a father: "oo ...", with the mother of the next place

  // Number, name and what stands behind it.
  [[nodiscard]] std::string Kop() const;
  // The same in so many characters: first names become initials, the last ones first.
  [[nodiscard]] std::string Kop(std::size_t breedte) const;
  // The events that are told, in order.
  [[nodiscard]] std::vector<std::string> Gebeurtenissen() const;
};

// By place, from 1.
using BladTeksten = std::array<BladTekst, kBladPlaatsen + 1>;

// Reads the persons of a sheet; one who can't be read leaves his place as if nobody were known.
[[nodiscard]] BladTeksten LeesBlad(const KwstBlad& blad, const KwstTabel& tabel, bool ookNrs,
                                   const Gegevens& bronnen);

// The text in lines of at most `breedte` characters, at most `hoogste` of them; all but the first are
// indented by two blanks.
[[nodiscard]] std::vector<std::string> BreekTekst(std::string_view tekst, std::size_t breedte,
                                                  std::size_t hoogste);

}  // namespace lb77
