#include "entry/HuwActies.h"

#include <optional>
#include <string>

#include "app/Hoofdmodule.h"
#include "app/NietVeilig.h"
#include "entry/KindActies.h"
#include "entry/KoppelVragen.h"
#include "entry/Koppelingen.h"
#include "entry/Ordenen.h"
#include "store/Codes.h"
#include "store/Handeling.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// Both partners, as they go into the record.
struct Paar {
  std::int16_t man = 0;
  std::int16_t vrouw = 0;
};

// Has the person whose record is at hand a free place? False after a message, or after a failure.
bool HeeftPlaats(Hoofdmodule& hoofd) {
  const std::int32_t vervolg = -std::int32_t{hoofd.Persoon.relatie3()};
  if (vervolg <= 0) return true;
  if (vervolg > kMaxRecords || !hoofd.Persoon.Lees(static_cast<std::int16_t>(vervolg)))
    return false;
  if (hoofd.Persoon.relatie3() <= 0) return true;
  hoofd.gesprek.Waarschuw("De Partner heeft al 5 relaties.");
  return false;
}

// Who is the man and who the woman; nothing when it can't be. Two men come out with the partner
// first, two women with the person first.
std::optional<Paar> MaakPaar(Hoofdmodule& hoofd, std::int16_t persoon, std::int16_t partner) {
  if (!hoofd.Persoon.Lees(partner > 0 ? partner : persoon)) return std::nullopt;
  const std::string geslacht = hoofd.Persoon.Geslacht();
  // Nobody counts as of the other sex.
  bool partnerIsVrouw = IsCode(geslacht, geslacht::kMan);
  if (partner > 0) {
    if (IsCode(geslacht, geslacht::kOnbekend)) {
      hoofd.gesprek.Waarschuw("Partner van onbekend geslacht is niet toegestaan");
      return std::nullopt;
    }
    if (!HeeftPlaats(hoofd)) return std::nullopt;
    partnerIsVrouw = IsCode(geslacht, geslacht::kVrouw);
  }
  return partnerIsVrouw ? Paar{persoon, partner} : Paar{partner, persoon};
}

bool SchrijfRelatie(Hoofdmodule& hoofd, std::int16_t relatie, const Paar& paar) {
  if (!hoofd.Relatie.Nieuw(relatie)) return false;
  hoofd.Relatie.Zet("ManNr", GetalTekst(paar.man));
  hoofd.Relatie.Zet("VrouwNr", GetalTekst(paar.vrouw));
  if (hoofd.Relatie.Schrijf(relatie)) return true;
  hoofd.gesprek.Fout("Fout bij het schrijven van het Relatierecord");
  hoofd.volgers.HuidigRelatieNr = hoofd.volgers.RelBufNr = -1;
  return false;
}

void MaakRelatie(Hoofdmodule& hoofd, const Paar& paar) {
  const std::int32_t nieuw = hoofd.Relatie.AantalRecords() + 1;
  if (nieuw > kMaxRecords) return hoofd.gesprek.Fout(kMaximumBereikt);
  const auto relatie = static_cast<std::int16_t>(nieuw);
  Handeling handeling(hoofd.bestanden, "Relatie " + GetalTekst(relatie) + " toegevoegd");
  if (SchrijfRelatie(hoofd, relatie, paar)) {
    for (const std::int16_t nr : {paar.man, paar.vrouw}) {
      // What fails has its own message, or none: the relation stands all the same.
      if (nr > 0) static_cast<void>(Koppelwerk(hoofd).VoegRelatieToe(nr, relatie));
    }
  }
  MeldNietVeilig(hoofd.gesprek, handeling.Voltooi());
}

}  // namespace

void OrdenRelaties(Hoofdmodule& hoofd, std::int16_t persoon) {
  Handeling handeling(hoofd.bestanden, "Relaties van persoon " + GetalTekst(persoon) + " geordend");
  Huwtab tab{};
  const OrdenTaak taak{
      .plaatsen = PlaatsenVan(tab),
      .lees = [&] { return StaatVan(hoofd.Persoon.VulHuwtab(persoon, tab)); },
      .sorteer = [&](std::int16_t aantal) { return SorteerHuwtab(hoofd.Relatie, tab, aantal); },
      .schrijf = [&] { return Koppelwerk(hoofd).SchrijfHuwtab(persoon, tab); },
      .vraagWie =
          [&] {
            HuwSchuif vraag(hoofd);
            hoofd.gesprek.ToonModaal(vraag);
            return vraag.Nr();
          },
      .vraagPlaats =
          [&] {
            VolgnummerVraag vraag(kVolgNrHuw, hoofd);
            hoofd.gesprek.ToonModaal(vraag);
            return vraag.VolgNr();
          },
      .nietErin = "Deze Relatie is niet van deze Persoon",
  };
  const bool gelezen = Orden(hoofd.gesprek, taak);
  hoofd.volgers.HuidigPersoonNr = gelezen ? persoon : std::int16_t{-1};
  MeldNietVeilig(hoofd.gesprek, handeling.Voltooi());
}

void NieuweRelatieVan(Hoofdmodule& hoofd, std::int16_t persoon) {
  if (!hoofd.gesprek.Vraag("Nieuwe Relatie voor deze Persoon toevoegen ?")) return;
  PersoonKeuze vraag(kVraagPartner, hoofd);
  hoofd.gesprek.ToonModaal(vraag);
  if (const auto partner = vraag.Nr()) {
    if (const auto paar = MaakPaar(hoofd, persoon, *partner)) MaakRelatie(hoofd, *paar);
  }
  hoofd.volgers.HuidigPersoonNr = persoon;
}

}  // namespace lb77
