#include "script/Rijtabel.h"

#include <algorithm>
#include <cstddef>

#include "forms/Rijnaam.h"
#include "script/Verslag.h"
#include "text/Getallen.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

// The controls of one family, in the order of their numbers.
struct Familie {
  std::string naam;
  std::vector<int> nummers;
  std::vector<const Bediening*> leden;
};

// Families with the same numbers.
using Tabel = std::vector<Familie>;

bool IsVerborgen(const Tabel& tabel, std::size_t rij) {
  return std::none_of(tabel.begin(), tabel.end(),
                      [rij](const Familie& een) { return een.leden[rij]->Zichtbaar(); });
}

std::string Kop(const Tabel& tabel) {
  std::string uit = "= (*)";
  for (const Familie& familie : tabel) uit += " " + WindowsNaarUtf8(familie.naam);
  return uit;
}

std::string Rijregel(const Tabel& tabel, std::size_t rij) {
  std::string uit = "= (" + GetalTekst(tabel.front().nummers[rij]) + ")";
  for (const Familie& familie : tabel) {
    const Bediening& cel = *familie.leden[rij];
    uit += " " + (cel.Zichtbaar() ? WaardeTekst(cel) : "-");
    if (cel.Zichtbaar() && !cel.Ingeschakeld()) uit += " [uit]";
  }
  return uit;
}

std::string Verborgenregel(const std::vector<int>& nummers, std::size_t van, std::size_t tot) {
  std::string uit = "= (" + GetalTekst(nummers[van]);
  if (tot > van + 1) uit += "-" + GetalTekst(nummers[tot - 1]);
  return uit + ") [verborgen]";
}

void Tel(const Tabel& tabel, std::vector<std::string>& uit) {
  const std::vector<int>& nummers = tabel.front().nummers;
  uit.push_back(Kop(tabel));
  for (std::size_t rij = 0; rij < nummers.size();) {
    std::size_t tot = rij;
    while (tot < nummers.size() && IsVerborgen(tabel, tot)) ++tot;
    uit.push_back(tot > rij ? Verborgenregel(nummers, rij, tot) : Rijregel(tabel, rij));
    rij = std::max(tot, rij + 1);
  }
}

void TelLos(const Tabel& tabel, std::vector<std::string>& uit) {
  for (const Familie& familie : tabel) {
    for (const Bediening* een : familie.leden) uit.push_back(BedieningRegel(*een));
  }
}

// The rows that stand together, until a control comes that is in none.
class Rijen {
 public:
  void Neem(const Rijlid& lid, const Bediening& bediening) {
    auto familie = std::find_if(families_.begin(), families_.end(),
                                [&](const Familie& een) { return een.naam == lid.familie; });
    if (familie == families_.end()) {
      familie = families_.insert(families_.end(), {std::string(lid.familie), {}, {}});
    }
    familie->nummers.push_back(lid.nummer);
    familie->leden.push_back(&bediening);
  }

  void Leeg(std::vector<std::string>& uit) {
    for (std::size_t i = 0; i < families_.size();) {
      Tabel tabel;
      const std::vector<int> nummers = families_[i].nummers;
      while (i < families_.size() && families_[i].nummers == nummers)
        tabel.push_back(families_[i++]);
      if (nummers.size() > 1 && tabel.size() > 1) {
        Tel(tabel, uit);
      } else {
        TelLos(tabel, uit);
      }
    }
    families_.clear();
  }

 private:
  std::vector<Familie> families_;
};

}  // namespace

std::vector<std::string> BedieningenRegels(const std::vector<Bediening*>& bedieningen) {
  std::vector<std::string> uit;
  Rijen rijen;
  for (const Bediening* bediening : bedieningen) {
    if (const auto lid = OntleedRijnaam(bediening->Naam())) {
      rijen.Neem(*lid, *bediening);
    } else {
      rijen.Leeg(uit);
      uit.push_back(BedieningRegel(*bediening));
    }
  }
  rijen.Leeg(uit);
  return uit;
}

}  // namespace lb77
