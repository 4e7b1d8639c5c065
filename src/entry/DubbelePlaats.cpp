#include "entry/DubbelePlaats.h"

#include <cstddef>
#include <string>

#include "store/PlaatsVelden.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// The text as it will be read back from that field.
std::string AlsOpgeslagen(std::string_view tekst, const Veld& veld) {
  const std::string dos = WindowsNaarDos(Trim(tekst));
  return DosNaarWindows(Trim(std::string_view(dos).substr(0, veld.breedte)));
}

// One name with two provinces: the question about it.
std::string Vraagtekst(const std::string& naam, const std::string& prov, const std::string& andere,
                       std::int16_t nr) {
  const std::string einde = " (" + GetalTekst(nr) + "). Corrigeren ?";
  if (andere.empty()) return "Plaatsnaam " + naam + " komt al voor zonder provinciecode" + einde;
  const std::string_view hoe = prov.empty() ? "al" : "ook";
  return "Plaatsnaam " + naam + " komt " + std::string(hoe) + " voor met provinciecode " + andere +
         einde;
}

}  // namespace

bool MagPlaatsHeten(PlaatsLB77& plaats, Gesprek& gesprek, std::int16_t nr, std::string_view naam,
                    std::string_view prov, std::int16_t laatste) {
  const std::string nieuweNaam = AlsOpgeslagen(naam, plaatsveld::Naam);
  const std::string nieuweProv = AlsOpgeslagen(prov, plaatsveld::Prov);
  for (std::int32_t i = 2; i <= laatste; ++i) {
    const auto ander = static_cast<std::int16_t>(i);
    if (ander == nr || !plaats.Lees(ander)) continue;
    if (plaats.Waarde(plaatsveld::Naam) != nieuweNaam) continue;
    const std::string anderProv = plaats.Waarde(plaatsveld::Prov);
    if (anderProv == nieuweProv) {
      gesprek.Waarschuw("Plaatsnaam " + nieuweNaam + " komt al voor met deze provinciecode (" +
                        GetalTekst(ander) + ")");
      return false;
    }
    if (gesprek.Vraag(Vraagtekst(nieuweNaam, nieuweProv, anderProv, ander))) return false;
  }
  return true;
}

}  // namespace lb77
