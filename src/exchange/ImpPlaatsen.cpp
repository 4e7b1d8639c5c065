#include "exchange/ImpPlaatsen.h"

#include <utility>

#include "store/PlaatsIndex.h"
#include "store/PlaatsVelden.h"
#include "text/Tekens.h"

namespace lb77 {

namespace veld = plaatsveld;

std::string PlaatsGelijkenis(std::string_view naam, std::string_view prov) {
  const std::string plaats = PlaatsIndex::Sleutel(naam);
  return plaats.empty() ? plaats : Hoofdletters(Trim(prov)) + "," + plaats;
}

std::int16_t ImpPlaatsen::Neem(std::string_view naam, std::string_view prov) {
  if (!gelezen_) Lees();
  const auto rij = bekend_.find(PlaatsGelijkenis(naam, prov));
  if (rij == bekend_.end() || rij->second.empty()) return Nieuw(naam, prov);
  const std::int16_t nr = rij->second.back();
  rij->second.pop_back();
  return nr;
}

void ImpPlaatsen::Lees() {
  gelezen_ = true;
  laatste_ = plaats_.AantalRecords();
  for (std::int16_t nr = laatste_; nr >= 2; --nr) {
    std::string gelijkenis = PlaatsGelijkenis(plaats_.Naam(nr), plaats_.Prov(nr));
    if (!gelijkenis.empty()) bekend_[std::move(gelijkenis)].push_back(nr);
  }
}

std::int16_t ImpPlaatsen::Nieuw(std::string_view naam, std::string_view prov) {
  if (mislukt_) return 0;
  mislukt_ = !plaats_.Nieuw(laatste_ + 1);
  if (mislukt_) return 0;
  ++laatste_;
  plaats_.Zet(veld::Naam.naam, naam);
  plaats_.Zet(veld::Prov.naam, prov);
  mislukt_ = !plaats_.Schrijf(laatste_);
  return mislukt_ ? std::int16_t{0} : laatste_;
}

}  // namespace lb77
