#include "exchange/ExpLyst.h"

#include <string>
#include <string_view>

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kVolgrecord = "<volgrecord>";
constexpr std::string_view kNomenNescio = "N.N.";

std::string Naam(const PersoonLB77& persoon) {
  const std::string naam = persoon.VoorNaamTrue() + " " + persoon.AchterNaamTrue();
  return std::string(TrimLinks(naam));
}

// A person who can't be read has no name.
std::string PersoonTekst(PersoonLB77& persoon, std::int16_t nr) {
  if (!persoon.Lees(nr)) return {};
  return persoon.IsVolgRecord() ? std::string(kVolgrecord) : Naam(persoon);
}

std::string Partner(PersoonLB77& persoon, std::int16_t nr) {
  return nr != 0 && persoon.Lees(nr) ? Naam(persoon) : std::string(kNomenNescio);
}

void SchrijfRelatie(TekstSchrijver& uit, const Gegevens& gegevens, std::int16_t nr) {
  const bool gelezen = gegevens.relatie.Lees(nr);
  if (gelezen && gegevens.relatie.IsVolgRecord()) {
    uit.TekstUit(kVolgrecord, true, false);
    return;
  }
  const std::int16_t man = gelezen ? gegevens.relatie.ManNr() : std::int16_t{0};
  const std::int16_t vrouw = gelezen ? gegevens.relatie.VrouwNr() : std::int16_t{0};
  uit.Tekst(TrimLinks(Partner(gegevens.persoon, man) + " x"));
  uit.TekstUit(Partner(gegevens.persoon, vrouw), true, false);
}

// `schrijf` writes what follows the number, and ends the line.
template <class Schrijf>
Uitslag SchrijfLijst(TekstSchrijver& uit, std::string_view kop, const SelectieLijst& lijst,
                     const Verloop& verloop, Schrijf schrijf) {
  uit.VolleRegel(kop);
  int aantal = 0;
  for (const std::int16_t nr : lijst.Nummers()) {
    if (verloop.afbreken()) return Einde::Afgebroken;
    verloop.toon(nr, ++aantal);
    uit.Vast(GetalTekst(nr) + ":");
    schrijf(nr);
  }
  return Einde::Klaar;
}

}  // namespace

Uitslag SchrijfPersonenLyst(TekstSchrijver& uit, const Gegevens& gegevens,
                            const SelectieLijst& SelPersonen, const Verloop& verloop) {
  return SchrijfLijst(
      uit, "Geselecteerde Persoonsrecords:", SelPersonen, verloop,
      [&](std::int16_t nr) { uit.TekstUit(PersoonTekst(gegevens.persoon, nr), true, false); });
}

Uitslag SchrijfRelatiesLyst(TekstSchrijver& uit, const Gegevens& gegevens,
                            const SelectieLijst& SelRelaties, const Verloop& verloop) {
  return SchrijfLijst(uit, "Geselecteerde Relatierecords:", SelRelaties, verloop,
                      [&](std::int16_t nr) { SchrijfRelatie(uit, gegevens, nr); });
}

}  // namespace lb77
