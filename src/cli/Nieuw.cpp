// `nieuw`: makes a file set.
#include "cli/Opdrachten.h"
#include "cli/Sessie.h"

namespace lb77 {

namespace {

constexpr std::size_t kSetNaam = 8;

}  // namespace

int Nieuw(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorLater);
  // The set that was used last opens too, and is none of its business.
  sessie.Menu().ZetGebruik(SetGebruik::Lezen);
  bool gemaakt = false;
  if (argumenten.woorden[0].size() > kSetNaam) {
    sessie.bediener.Mislukt("De naam van een bestandenset heeft hoogstens 8 tekens");
    return sessie.bediener.Status();
  }
  sessie.bediener.Bij("NieuweSet", [&](Formulier& form) {
    Werk werk(sessie.bediener, form);
    if (!werk.Zet("SetNaam", argumenten.woorden[0])) return;
    if (!werk.Zet("SetOmsch", argumenten.woorden[1])) return;
    werk.Druk("OKButton");
    gemaakt = form.Gesloten() && sessie.Hoofd().SetActief();
  });
  return sessie.Voer([&](Werk& menu) {
    menu.Kies("MaakSet");
    if (!gemaakt) sessie.bediener.Mislukt("De bestandenset is niet gemaakt");
  });
}

}  // namespace lb77
