#include "reporting/OptieTabel.h"

#include <algorithm>
#include <cstdint>

namespace lb77 {

void OptieRij::ToonKeuze(Keuzevak& vak, int eerste, std::string_view waarde) {
  const std::int32_t getal = Getalwaarde(waarde);
  vak.ZetIndex(getal >= eerste ? getal - eerste : 0);
  if (vak.Index() < 0) vak.ZetIndex(0);
}

void OptieRij::ToonTekst(Keuzevak& vak, std::string_view waarde) {
  const std::vector<std::string>& rijen = vak.Rijen();
  const auto rij = std::find(rijen.begin(), rijen.end(), waarde);
  vak.ZetIndex(rij == rijen.end() ? 0 : static_cast<int>(rij - rijen.begin()));
}

void OptieTabel::Laad(const IniClass& ini) const {
  for (const OptieRij& rij : rijen_) rij.Toon(ini.IniWaarde(sectie_, rij.Tag()));
}

void OptieTabel::Neem() const {
  for (const OptieRij& rij : rijen_) rij.Neem();
}

void OptieTabel::Bewaar(IniClass& ini) const {
  for (const OptieRij& rij : rijen_) ini.IniZet(sectie_, rij.Tag(), rij.Waarde());
}

bool BewaartVelden(const IniClass& ini) {
  return ini.IniWaarde("Systeem", "OpslaanVelden") == "J";
}

}  // namespace lb77
