#include "qt/Automatisch.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace lb77 {

namespace {

struct Rijlid {
  std::string rij;     // "PersNr" of "PersNr(0)", empty for a control by itself
  std::string nummer;  // "0"
};

Rijlid Ontleed(const std::string& naam) {
  const std::size_t haak = naam.find('(');
  if (haak == std::string::npos || !naam.ends_with(')')) return {};
  return {naam.substr(0, haak), naam.substr(haak + 1, naam.size() - haak - 2)};
}

// A run of controls of one row.
struct Reeks {
  std::string naam;
  std::vector<Bediening*> leden;

  [[nodiscard]] bool ZelfdeNummers(const Reeks& ander) const {
    if (leden.size() != ander.leden.size()) return false;
    for (std::size_t i = 0; i < leden.size(); ++i) {
      if (Ontleed(leden[i]->Naam()).nummer != Ontleed(ander.leden[i]->Naam()).nummer) return false;
    }
    return true;
  }
};

std::vector<Reeks> InReeksen(const std::vector<Bediening*>& bedieningen) {
  std::vector<Reeks> uit;
  for (Bediening* bediening : bedieningen) {
    const std::string rij = Ontleed(bediening->Naam()).rij;
    if (rij.empty() || uit.empty() || uit.back().naam != rij) uit.push_back({rij, {}});
    uit.back().leden.push_back(bediening);
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
    if (bediening.Soort() == BedieningSoort::Knop) {
      knoppen_.push_back(blok);
    } else if (bediening.Soort() == BedieningSoort::Tekstpagina) {
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
           reeksen[i + 1].ZelfdeNummers(eerste)) {
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
