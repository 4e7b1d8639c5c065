#include "contact/GciNamen.h"

#include <cstddef>
#include <utility>

#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kOngeldig = "<>{}";
constexpr std::string_view kScheiders = ",/\\";
constexpr std::string_view kHaakjes[] = {"()", "[]", "{}", "<>"};

// The last row takes its place.
void LaatWeg(std::vector<GciReeks>& reeksen, std::size_t rij) {
  if (rij + 1 < reeksen.size()) reeksen[rij] = std::move(reeksen.back());
  reeksen.pop_back();
}

// A copy of the row under another name; none for an empty one. False when there is no room.
bool VoegVormToe(std::vector<GciReeks>& reeksen, std::size_t rij, std::string_view naam,
                 std::size_t hoogstens) {
  if (naam.empty()) return true;
  if (reeksen.size() >= hoogstens) return false;
  GciReeks nieuw = reeksen[rij];
  nieuw.naam = std::string(naam);
  reeksen.push_back(std::move(nieuw));
  return true;
}

// Where the first pair stands; `sluit` lies at or before `open` when there is none.
struct Paar {
  std::size_t open = 0;
  std::size_t sluit = 0;
  bool evenwichtig = true;
};

Paar ZoekPaar(std::string_view naam, std::string_view haakjes) {
  Paar paar;
  int diepte = 0;
  bool gesloten = false;
  for (std::size_t i = 0; i < naam.size(); ++i) {
    if (naam[i] == haakjes[0]) {
      if (diepte++ == 0 && !gesloten) paar.open = i;
    } else if (naam[i] == haakjes[1]) {
      if (--diepte < 0) break;
      if (diepte == 0 && !std::exchange(gesloten, true)) paar.sluit = i;
    }
  }
  paar.evenwichtig = diepte == 0;
  return paar;
}

enum class Vorm { Heel, Ongeldig, Vol };

// Takes the brackets out of one row, form by form.
Vorm LosOp(std::vector<GciReeks>& reeksen, std::size_t rij, std::size_t hoogstens) {
  for (const std::string_view haakjes : kHaakjes) {
    for (;;) {
      const std::string naam = reeksen[rij].naam;
      const Paar paar = ZoekPaar(naam, haakjes);
      if (!paar.evenwichtig) return Vorm::Ongeldig;
      if (paar.sluit <= paar.open) break;
      std::string met = naam;
      met.erase(paar.sluit, 1).erase(paar.open, 1);
      std::string zonder = naam;
      zonder.erase(paar.open, paar.sluit + 1 - paar.open);
      reeksen[rij].naam = std::string(Trim(met));
      if (!VoegVormToe(reeksen, rij, Trim(zonder), hoogstens)) return Vorm::Vol;
    }
  }
  return Vorm::Heel;
}

}  // namespace

std::optional<char> OngeldigTeken(std::string_view naam) {
  const std::size_t plek = naam.find_first_of(kOngeldig);
  return plek == std::string_view::npos ? std::nullopt : std::optional(naam[plek]);
}

bool SplitsNamen(std::vector<GciReeks>& reeksen, std::size_t hoogstens) {
  for (std::size_t rij = 0; rij < reeksen.size();) {
    for (;;) {
      const std::string naam = reeksen[rij].naam;
      const std::size_t plek = naam.find_first_of(kScheiders);
      if (plek == std::string::npos) break;
      if (!VoegVormToe(reeksen, rij, Trim(std::string_view(naam).substr(0, plek)), hoogstens)) {
        return false;
      }
      reeksen[rij].naam = std::string(Trim(std::string_view(naam).substr(plek + 1)));
    }
    if (reeksen[rij].naam.empty()) {
      LaatWeg(reeksen, rij);
    } else {
      ++rij;
    }
  }
  return true;
}

bool LosHaakjesOp(std::vector<GciReeks>& reeksen,
                  const std::function<void(const std::string& naam)>& ongeldig,
                  std::size_t hoogstens) {
  for (std::size_t rij = 0; rij < reeksen.size();) {
    const Vorm vorm = LosOp(reeksen, rij, hoogstens);
    if (vorm == Vorm::Vol) return false;
    if (vorm == Vorm::Ongeldig) ongeldig(reeksen[rij].naam);
    if (vorm == Vorm::Ongeldig || reeksen[rij].naam.empty()) {
      LaatWeg(reeksen, rij);
    } else {
      ++rij;
    }
  }
  return true;
}

}  // namespace lb77
