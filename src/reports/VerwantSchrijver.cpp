#include "reports/VerwantSchrijver.h"

#include <algorithm>
#include <string_view>

#include "reports/VerwantTekening.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

// Both names; of whom can't be read, the blank between them.
std::string Naam(PersoonLB77& persoon, std::int16_t nr) {
  if (!persoon.Lees(nr)) return " ";
  return persoon.VoorNaamTrue() + " " + persoon.AchterNaamTrue();
}

// What the person who was reached before is of this one, with a blank behind it.
std::string_view Betrekking(VerwantSoort soort) {
  switch (soort) {
    case VerwantSoort::Kind:
      return "ouder: ";
    case VerwantSoort::Partner:
      return "partner: ";
    case VerwantSoort::Ouder:
    case VerwantSoort::Begin:
      break;
  }
  return "kind: ";
}

}  // namespace

std::vector<std::string> VerwantTekst(const std::vector<VerwantEntry>& keten,
                                      PersoonLB77& persoon) {
  std::vector<std::string> uit{"Schema Verwantschap"};
  if (keten.empty()) {
    uit.emplace_back("Geen verwantschap gevonden");
    return uit;
  }
  uit.push_back("Verwantschap tussen " + Naam(persoon, keten.back().persoon) + " en " +
                Naam(persoon, keten.front().persoon) + ":");
  uit.emplace_back();
  for (const VerwantEntry& entry : keten) {
    if (!persoon.Lees(entry.persoon)) continue;
    const std::string naam = Naam(persoon, entry.persoon);
    const std::string nr = " (" + GetalTekst(entry.persoon) + ")";
    // kept: the line of the last one, and the title, have the blank of first names that are missing.
    if (entry.soort == VerwantSoort::Begin) {
      uit.push_back(naam + nr);
    } else {
      uit.push_back(std::string(Trim(naam)) + nr);
      uit.emplace_back(Betrekking(entry.soort));
    }
  }
  uit.emplace_back();
  std::vector<std::string> tekening = TekenVerwantschap(keten);
  if (tekening.empty()) uit.emplace_back("De tekening is te groot en daarom weggelaten.");
  for (std::string& regel : tekening) uit.push_back(std::move(regel));
  return uit;
}

void SchrijfVerwantTekst(TekstSchrijver& uit, const std::vector<std::string>& regels) {
  std::size_t breedste = TekstSchrijver::kGeenRechterMarge;
  for (const std::string& regel : regels) breedste = std::max(breedste, regel.size());
  uit.ZetRechterMarge(static_cast<int>(breedste));
  for (const std::string& regel : regels) uit.VolleRegel(regel);
}

}  // namespace lb77
