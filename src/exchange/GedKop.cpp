#include "exchange/GedKop.h"

#include <algorithm>
#include <array>

namespace lb77 {

namespace {

struct Kop {
  std::string_view tag;
  GedSoort soort;
  std::string_view context;
  bool metId;
};
constexpr std::array kKoppen = {
    Kop{"HEAD", GedSoort::Hoofd, "H-Header", false},
    Kop{"INDI", GedSoort::Persoon, "P-", true},
    Kop{"FAM", GedSoort::Relatie, "R-", true},
    Kop{"SOUR", GedSoort::Bron, "A-", true},
    Kop{"REPO", GedSoort::Bewaarplaats, "", false},
    Kop{"SUBN", GedSoort::Inzending, "I-Inzending ", true},
    Kop{"SUBM", GedSoort::Inzender, "Z-Inzender ", true},
    Kop{"TRLR", GedSoort::Einde, "T-Einde", false},
    Kop{"", GedSoort::Anders, "?-", true},
};

}  // namespace

GedSoort GedSoortVan(std::string_view tag) {
  const auto* kop = std::ranges::find(kKoppen, tag, &Kop::tag);
  return kop == kKoppen.end() ? GedSoort::Anders : kop->soort;
}

std::string GedContext(GedSoort soort, std::string_view id) {
  const auto* kop = std::ranges::find(kKoppen, soort, &Kop::soort);
  std::string context(kop->context);
  if (kop->metId) context += id;
  return context;
}

}  // namespace lb77
