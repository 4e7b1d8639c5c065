#include "forms/Kaart.h"

#include <vector>

namespace lb77 {

void LoopKaarten(Gesprek& gesprek, KaartVraag eerste) {
  std::vector<KaartVraag> wachtend{std::move(eerste)};
  while (!wachtend.empty()) {
    const std::unique_ptr<Kaart> kaart = wachtend.back()();
    wachtend.pop_back();
    gesprek.ToonModaal(kaart->Vorm());
    Kaart::Vervolg vervolg = kaart->NeemVervolg();
    if (vervolg.keertTerug) wachtend.push_back(kaart->Opnieuw());
    if (vervolg.kaart) wachtend.push_back(std::move(vervolg.kaart));
  }
}

}  // namespace lb77
