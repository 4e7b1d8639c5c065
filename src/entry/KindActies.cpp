#include "entry/KindActies.h"

#include <optional>
#include <string>

#include "app/Hoofdmodule.h"
#include "app/NietVeilig.h"
#include "entry/KoppelVragen.h"
#include "entry/Koppelingen.h"
#include "entry/Ordenen.h"
#include "entry/WijzigPersoon.h"
#include "store/Handeling.h"
#include "store/PersoonVelden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// The child that the user names; 0 for none.
std::int16_t VraagKind(Hoofdmodule& hoofd, const PersoonKeuzeSoort& soort) {
  hoofd.volgers.HuidigPersoonNr = -1;
  PersoonKeuze vraag(soort, hoofd);
  hoofd.gesprek.ToonModaal(vraag);
  return vraag.Nr().value_or(std::int16_t{0});
}

// Both sides of the link, as one action: the lists, and then the parents of the child.
void Verplaats(Hoofdmodule& hoofd, std::int16_t kind, std::int16_t oud, std::int16_t nieuw,
               std::string_view label) {
  Handeling handeling(hoofd.bestanden, label);
  if (!Koppelwerk(hoofd).VerplaatsKind(kind, oud, nieuw)) {
    hoofd.volgers.HuidigPersoonNr = -1;
  } else {
    // A failure has its own message.
    static_cast<void>(hoofd.Persoon.Wijzig(kind, {{persoonveld::RelNrOuders, nieuw}}));
  }
  MeldNietVeilig(hoofd.gesprek, handeling.Voltooi());
}

std::string Omschrijving(std::string_view wat, std::int16_t kind, std::int16_t relatie) {
  return "Kind " + GetalTekst(kind) + std::string(wat) + GetalTekst(relatie);
}

// The relation that the child has to leave, 0 for none; nothing when it stays where it is.
std::optional<std::int16_t> OudeOuders(Hoofdmodule& hoofd, std::int16_t kind,
                                       std::int16_t relatie) {
  if (!hoofd.Persoon.Lees(kind)) return std::nullopt;
  const std::int16_t oud = hoofd.Persoon.RelNrOuders();
  if (oud == relatie) {
    hoofd.gesprek.Waarschuw("Dit kind is al aanwezig in deze relatie");
    return std::nullopt;
  }
  if (oud <= 0) return std::int16_t{0};
  const Antwoord antwoord = hoofd.gesprek.Bericht(
      BerichtSoort::Uitroep, Knoppen::JaNee,
      "Dit kind heeft al andere ouders.\nDe verbinding met die ouders verbreken ?");
  if (antwoord != Antwoord::Ja) return std::nullopt;
  return oud;
}

}  // namespace

Koppelingen Koppelwerk(Hoofdmodule& hoofd) {
  return {hoofd.Persoon, hoofd.Relatie, hoofd.volgers, hoofd.gesprek};
}

void VoegKindToe(Hoofdmodule& hoofd, std::int16_t relatie) {
  if (const std::int16_t kind = VraagKind(hoofd, kKindErbij); kind > 0) {
    if (const auto oud = OudeOuders(hoofd, kind, relatie)) {
      Verplaats(hoofd, kind, *oud, relatie,
                Omschrijving(" toegevoegd aan relatie ", kind, relatie));
    }
  }
  hoofd.volgers.HuidigRelatieNr = relatie;
}

void VoegKindToeZonderVraag(Hoofdmodule& hoofd, std::int16_t relatie) {
  if (const std::int16_t kind = VraagKind(hoofd, kKindErbij); kind > 0) {
    Verplaats(hoofd, kind, 0, relatie, Omschrijving(" toegevoegd aan relatie ", kind, relatie));
  }
  hoofd.volgers.HuidigRelatieNr = relatie;
}

void VoerKindIn(Hoofdmodule& hoofd, std::int16_t relatie) {
  hoofd.volgers.HuidigPersoonNr = -1;
  hoofd.gesprek.Toon<WijzigPersoon>(hoofd, relatie);
  hoofd.volgers.HuidigRelatieNr = relatie;
}

void HaalKindWeg(Hoofdmodule& hoofd, std::int16_t relatie, bool metKindErbij) {
  if (const std::int16_t kind = VraagKind(hoofd, metKindErbij ? kKindErbij : kKindEraf); kind > 0) {
    Verplaats(hoofd, kind, relatie, 0, Omschrijving(" verwijderd uit relatie ", kind, relatie));
  }
  hoofd.volgers.HuidigRelatieNr = relatie;
}

void OrdenKinderen(Hoofdmodule& hoofd, std::int16_t relatie) {
  Handeling handeling(hoofd.bestanden, "Kinderen van relatie " + GetalTekst(relatie) + " geordend");
  Kindtab tab{};
  const OrdenTaak taak{
      .plaatsen = PlaatsenVan(tab),
      .lees = [&] { return StaatVan(hoofd.Relatie.VulKindtab(relatie, tab)); },
      .sorteer = [&](std::int16_t aantal) { return SorteerKindtab(hoofd.Persoon, tab, aantal); },
      .schrijf = [&] { return Koppelwerk(hoofd).SchrijfKindtab(relatie, tab); },
      .vraagWie = [&]() -> std::optional<std::int16_t> { return VraagKind(hoofd, kKindSchuif); },
      .vraagPlaats =
          [&] {
            VolgnummerVraag vraag(kVolgnrKind, hoofd);
            hoofd.gesprek.ToonModaal(vraag);
            return vraag.VolgNr();
          },
      .nietErin = "Deze Persoon is geen Kind in deze Relatie",
  };
  const bool gelezen = Orden(hoofd.gesprek, taak);
  hoofd.volgers.HuidigRelatieNr = gelezen ? relatie : std::int16_t{-1};
  MeldNietVeilig(hoofd.gesprek, handeling.Voltooi());
}

}  // namespace lb77
