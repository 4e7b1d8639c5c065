#include "reports/Verwanten.h"

#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::int16_t kEerstePersoon = 2;  // record 1 is the admin record

// What one step of the search works with.
struct Stap {
  VerwantRij& rij;
  std::size_t index;
  std::int16_t nr;
  PersoonLB77& persoon;
  RelatieLB77& relatie;

  void Voeg(std::int16_t wie, VerwantSoort soort) const { rij.Voeg(wie, index, soort); }
};

void VoegOuders(const Stap& stap) {
  const std::int16_t ouders = stap.persoon.RelNrOuders();
  if (ouders <= 0 || !stap.relatie.Lees(ouders)) return;
  stap.Voeg(stap.relatie.ManNr(), VerwantSoort::Ouder);
  stap.Voeg(stap.relatie.VrouwNr(), VerwantSoort::Ouder);
}

void VoegGezin(const Stap& stap, std::int16_t relNr) {
  if (!stap.relatie.Lees(relNr)) return;
  const std::int16_t man = stap.relatie.ManNr();
  stap.Voeg(man == stap.nr ? stap.relatie.VrouwNr() : man, VerwantSoort::Partner);
  Kindtab kindtab{};
  // A list that can't be read to its end gives what it has.
  static_cast<void>(stap.relatie.VulKindtab(relNr, kindtab));
  for (std::size_t plaats = 1; plaats < kindtab.size(); ++plaats) {
    stap.Voeg(kindtab[plaats], VerwantSoort::Kind);
  }
}

void VoegGezinnen(const Stap& stap) {
  Huwtab huwtab{};
  static_cast<void>(stap.persoon.VulHuwtab(stap.nr, huwtab));
  for (std::size_t plaats = 1; plaats < huwtab.size(); ++plaats) {
    if (huwtab[plaats] > 0) VoegGezin(stap, huwtab[plaats]);
  }
}

}  // namespace

void VerwantRij::Begin(std::int16_t persoon) {
  lijst_.clear();
  plek_.clear();
  Zet({persoon, 0, VerwantSoort::Begin});
}

void VerwantRij::Voeg(std::int16_t persoon, std::size_t vorige, VerwantSoort soort) {
  if (persoon < kEerstePersoon || Bekend(persoon)) return;
  Zet({persoon, static_cast<std::int16_t>(vorige), soort});
}

bool VerwantRij::Bekend(std::int16_t persoon) const {
  const auto nr = static_cast<std::size_t>(persoon);
  return nr < plek_.size() && plek_[nr] >= 0;
}

void VerwantRij::Zet(const VerwantEntry& entry) {
  if (plek_.empty()) plek_.assign(static_cast<std::size_t>(kMaxRecords) + 1, std::int16_t{-1});
  if (entry.persoon >= 0) {
    plek_[static_cast<std::size_t>(entry.persoon)] = static_cast<std::int16_t>(lijst_.size());
  }
  lijst_.push_back(entry);
}

std::vector<VerwantEntry> VerwantRij::Keten(std::int16_t doel) const {
  std::vector<VerwantEntry> keten;
  if (doel < kEerstePersoon || !Bekend(doel)) return keten;
  auto index = static_cast<std::size_t>(plek_[static_cast<std::size_t>(doel)]);
  while (index != 0) {
    keten.push_back(lijst_[index]);
    index = static_cast<std::size_t>(lijst_[index].vorige);
  }
  keten.push_back(lijst_.front());
  return keten;
}

Uitslag ZoekVerwanten(VerwantRij& rij, std::int16_t begin, PersoonLB77& persoon,
                      RelatieLB77& relatie, const Verloop& verloop) {
  rij.Begin(begin);
  for (std::size_t index = 0; index < rij.Aantal(); ++index) {
    if (verloop.afbreken()) return Einde::Afgebroken;
    const std::int16_t nr = rij[index].persoon;
    if (!persoon.Lees(nr)) break;
    const Stap stap{rij, index, nr, persoon, relatie};
    VoegOuders(stap);
    VoegGezinnen(stap);
    verloop.toon(nr, static_cast<int>(index));
  }
  return Einde::Klaar;
}

}  // namespace lb77
