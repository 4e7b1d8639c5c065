#include "qt/Automatisch.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "forms/Rijnaam.h"

namespace lb77 {

namespace {

// A run of controls of one row.
struct Reeks {
  std::string naam;
  std::vector<Bediening*> leden;
  std::vector<int> nummers;
};

// Rows that are declared number by number come out family by family, as the others do.
std::vector<Reeks> InReeksen(const std::vector<Bediening*>& bedieningen) {
  std::vector<Reeks> uit;
  std::size_t begin = 0;  // of the rows that stand together
  for (Bediening* bediening : bedieningen) {
    const auto lid = OntleedRijnaam(bediening->Naam());
    const std::string naam(lid ? lid->familie : std::string_view());
    const auto vanaf = uit.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto reeks =
        std::find_if(vanaf, uit.end(), [&](const Reeks& r) { return r.naam == naam; });
    if (lid && reeks != uit.end()) {
      reeks->leden.push_back(bediening);
      reeks->nummers.push_back(lid->nummer);
    } else {
      uit.push_back({naam, {bediening}, {lid ? lid->nummer : 0}});
    }
    if (!lid) begin = uit.size();
  }
  return uit;
}

class Maker {
 public:
  void Neem(const std::vector<Reeks>& reeksen) {
    for (std::size_t i = 0; i < reeksen.size(); ++i) {
      if (reeksen[i].naam.empty()) {
        Bediening* volgende = i + 1 < reeksen.size() ? reeksen[i + 1].leden.front() : nullptr;
        if (NeemEen(*reeksen[i].leden.front(), volgende)) ++i;
      } else {
        NeemReeks(reeksen, i);
      }
    }
  }

  Blok Klaar() {
    SluitVelden();
    if (!knoppen_.empty()) delen_.push_back(indeling::Knoppen(std::move(knoppen_)));
    return indeling::Kolom(std::move(delen_));
  }

 private:
  // True when the next control was taken too: a label that is the prompt of a value.
  bool NeemEen(Bediening& bediening, const Bediening* volgende) {
    const Blok blok = indeling::Veld(bediening.Naam());
    if (bediening.Soort() == BedieningSoort::Knop && bediening.Prompt().empty()) {
      knoppen_.push_back(blok);
    } else if (bediening.Soort() == BedieningSoort::Tekstpagina ||
               bediening.Soort() == BedieningSoort::Beeldvlak) {
      SluitVelden();
      delen_.push_back(blok);
    } else if (IsPaar(bediening, volgende)) {
      velden_.push_back(indeling::Rij({blok, indeling::Veld(volgende->Naam())}));
      return true;
    } else {
      velden_.push_back(blok);
    }
    return false;
  }

  static bool IsPaar(const Bediening& label, const Bediening* volgende) {
    if (!volgende || label.Soort() != BedieningSoort::Label) return false;
    const bool waarde = volgende->Soort() == BedieningSoort::Teller ||
                        volgende->Soort() == BedieningSoort::Tekstvak ||
                        volgende->Soort() == BedieningSoort::Padvak ||
                        volgende->Soort() == BedieningSoort::Keuzevak;
    return waarde && volgende->Bijschrift().empty() && label.Bijschrift().ends_with(':');
  }

  // Takes all rows that follow with the same numbers; leaves `i` at the last one.
  void NeemReeks(const std::vector<Reeks>& reeksen, std::size_t& i) {
    std::vector<Blok> kolommen = {indeling::Veld(reeksen[i].naam + "(*)")};
    const Reeks& eerste = reeksen[i];
    while (i + 1 < reeksen.size() && !reeksen[i + 1].naam.empty() &&
           reeksen[i + 1].nummers == eerste.nummers) {
      kolommen.push_back(indeling::Veld(reeksen[++i].naam + "(*)"));
    }
    if (kolommen.size() == 1 && eerste.leden.front()->Soort() == BedieningSoort::Knop) {
      for (const Bediening* lid : eerste.leden) knoppen_.push_back(indeling::Veld(lid->Naam()));
      return;
    }
    SluitVelden();
    delen_.push_back(indeling::Tabel(std::move(kolommen)));
  }

  void SluitVelden() {
    if (!velden_.empty()) delen_.push_back(indeling::Velden(std::exchange(velden_, {})));
  }

  std::vector<Blok> delen_;
  std::vector<Blok> velden_;
  std::vector<Blok> knoppen_;
};

}  // namespace

Blok AutomatischeIndeling(const std::vector<Bediening*>& bedieningen) {
  Maker maker;
  maker.Neem(InReeksen(bedieningen));
  return maker.Klaar();
}

}  // namespace lb77
