#include "exchange/Ged551Opmerkingen.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::int16_t kEerste = 2;
constexpr std::size_t kHoogsteRegels = std::tuple_size_v<OpmRegels>;

bool IsVanSoort(std::int16_t rubriek, bool vanPersoon) {
  return vanPersoon ? rubriek > 0 : rubriek < 0;
}

}  // namespace

Ged551Opmerkingen::Ged551Opmerkingen(const Gegevens& gegevens)
    : gegevens_(gegevens),
      opmerking_(gegevens.opmerking),
      verteld_(static_cast<std::size_t>(kMaxRecords) + 1),
      eigen_(verteld_.size()) {}

bool Ged551Opmerkingen::IsVanAnder(std::int16_t nr, Ged551Eigenaar wie) {
  const Ged551Eigenaar genoemd{opmerking_.Rubriek() > 0, opmerking_.BijRecord()};
  if (genoemd == wie) return false;
  VolgEigen(genoemd);
  return eigen_[static_cast<std::size_t>(nr)] || !opmerking_.Lees(nr);
}

// Each remark once: it names one owner, and who was followed before has his first one marked.
void Ged551Opmerkingen::VolgEigen(Ged551Eigenaar wie) {
  PersoonLB77& persoon = gegevens_.persoon;
  RelatieLB77& relatie = gegevens_.relatie;
  const bool isEr = wie.persoon ? persoon.Lees(wie.nr) && !persoon.IsVolgRecord()
                                : relatie.Lees(wie.nr) && !relatie.IsVolgRecord();
  if (!isEr) return;
  std::int16_t nr = wie.persoon ? persoon.OpmRecord() : relatie.OpmRecord();
  while (nr >= kEerste && !eigen_[static_cast<std::size_t>(nr)] && opmerking_.Lees(nr)) {
    if (Ged551Eigenaar{opmerking_.Rubriek() > 0, opmerking_.BijRecord()} != wie) return;
    eigen_[static_cast<std::size_t>(nr)] = true;
    nr = opmerking_.BijZelfde();
  }
}

bool Ged551Opmerkingen::Betreed(std::int16_t nr) {
  const bool nieuw = nr >= kEerste && !verteld_[static_cast<std::size_t>(nr)];
  if (nieuw) verteld_[static_cast<std::size_t>(nr)] = true;
  if (nieuw && opmerking_.Lees(nr)) return true;
  ++verloren_;
  return false;
}

std::vector<std::string> Ged551Opmerkingen::LeesRegels() {
  std::vector<std::string> regels;
  while (true) {
    std::string tekst = opmerking_.Tekstregel();
    if (!tekst.empty()) regels.push_back(std::move(tekst));
    const std::int16_t volgende = opmerking_.VolgRegel();
    if (volgende == 0 || !Betreed(volgende)) return regels;
  }
}

std::vector<Ged551Opmerking> Ged551Opmerkingen::Lees(Ged551Eigenaar wie, std::int16_t begin) {
  std::vector<Ged551Opmerking> uit;
  for (std::int16_t nr = begin; nr != 0 && Betreed(nr);) {
    if (IsVanAnder(nr, wie)) {
      verteld_[static_cast<std::size_t>(nr)] = false;
      ++verloren_;
      break;
    }
    nr = opmerking_.BijZelfde();
    const std::int16_t rubriek = opmerking_.Rubriek();
    const std::int16_t prog = opmerking_.BijProg();
    const std::vector<std::string> regels = LeesRegels();
    if (!IsVanSoort(rubriek, wie.persoon)) {
      ++verloren_;
      continue;
    }
    // A chain of more lines than a remark has becomes several.
    for (std::size_t i = 0; i < regels.size(); i += kHoogsteRegels) {
      const std::size_t einde = std::min(i + kHoogsteRegels, regels.size());
      uit.push_back({rubriek,
                     prog,
                     {regels.begin() + static_cast<std::ptrdiff_t>(i),
                      regels.begin() + static_cast<std::ptrdiff_t>(einde)}});
    }
  }
  return uit;
}

}  // namespace lb77
