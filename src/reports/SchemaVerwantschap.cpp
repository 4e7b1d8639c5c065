#include "reports/SchemaVerwantschap.h"

#include "entry/VolgersBewaker.h"
#include "forms/Rijnaam.h"
#include "reports/VerwantRapport.h"
#include "reports/VerwantSchrijver.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr PersoonVakSoort kPersoon = {.naamInvoer = false,
                                      .nr = "PersNr",
                                      .nrBijschrift = "Persoonsnummer:",
                                      .voorBijschrift = "Voornamen:",
                                      .achterBijschrift = "Achternaam:"};

}  // namespace

VerwantPersoon::VerwantPersoon(InvoerFormulier& formulier, int nummer)
    : Persoon(formulier, Genummerd("", nummer), kPersoon),
      ZoekButton(formulier, Genummerd("ZoekButton", nummer), "&Zoek Persoon") {}

SchemaVerwantschap::SchemaVerwantschap(Hoofdmodule& hoofd)
    : WerkFormulier("SchemaVerwantschap", "Schema Verwantschap", hoofd, WerkBegin::OpKnop) {
  ZetHulpOnderwerp("verwantschap");
  ZetEersteVeld(Personen(0).Persoon.RecordNr);
  Personen.Elk([this](int, VerwantPersoon& rij) {
    rij.Persoon.BijGevonden([this] { NaGevonden(); });
    rij.ZoekButton.BijKlik([this, &rij] { ZoekButtonKlik(rij); });
  });
  Koppel(OKButton, BackButton);
}

void SchemaVerwantschap::BijLaden() {
  Personen.Elk([](int, VerwantPersoon& rij) { rij.Persoon.MaakLeeg(); });
  PersonenGedaan.ZetTekst("");
}

void SchemaVerwantschap::Werk() {
  PersonenGedaan.ZetTekst("");
  if (!TweePersonen()) return;
  std::vector<std::string> regels;
  if (!MaakVerslag({VerwantBestandenVan(Hoofd()).verslag},
                   [&](TekstSchrijver& uit) { return ZoekEnSchrijf(uit, regels); })) {
    return;
  }
  VerwantRapport rapport(Hoofd(), MaakUitvoer(regels));
  ZetBezig(false);
  rapport.ZetTitel("Schema Verwantschap");
  Hoofd().gesprek.ToonModaal(rapport);
}

void SchemaVerwantschap::ZoekButtonKlik(VerwantPersoon& rij) {
  if (rij.Persoon.Zoek()) NaGevonden();
}

// To the person who is still asked for.
void SchemaVerwantschap::NaGevonden() {
  for (const int nummer : {0, 1}) {
    InvoerVak& nr = Personen(nummer).Persoon.RecordNr;
    if (nr.Tekst().empty()) return static_cast<void>(GaNaar(nr));
  }
  GaNaar(OKButton);
}

bool SchemaVerwantschap::TweePersonen() {
  const std::string& een = Personen(0).Persoon.RecordNr.Tekst();
  const std::string& ander = Personen(1).Persoon.RecordNr.Tekst();
  if (!een.empty() && !ander.empty() && een != ander) return true;
  Hoofd().gesprek.Waarschuw(een.empty() || ander.empty()
                                ? "Geen 2 personen opgegeven. Verwantschap niet mogelijk."
                                : "Geef 2 verschillende personen op a.u.b.");
  ZetFocus(Personen(0).Persoon.RecordNr);
  return false;
}

// The report is shown without it, too.
bool SchemaVerwantschap::MaakUitvoer(const std::vector<std::string>& regels) {
  const auto schrijf = [&regels](TekstSchrijver& uit) -> Uitslag {
    SchrijfVerwantTekst(uit, regels);
    return Einde::Klaar;
  };
  return SchrijfVerslag({VerwantBestandenVan(Hoofd()).uitvoer}, Hoofd().gesprek, schrijf) ==
         Einde::Klaar;
}

Uitslag SchemaVerwantschap::ZoekEnSchrijf(TekstSchrijver& uit, std::vector<std::string>& regels) {
  const VolgersBewaker bewaker(Hoofd().volgers);
  VerwantRij rij;
  const Verloop verloop{[this] { return Afbreken(); },
                        [this](int, int index) {
                          PersonenGedaan.ZetTekst(GetalTekst(index));
                          Ververs();
                        }};
  const Uitslag uitslag =
      ZoekVerwanten(rij, Personen(0).Persoon.Nr(), Hoofd().Persoon, Hoofd().Relatie, verloop);
  if (!(uitslag == Einde::Klaar)) return uitslag;
  regels = VerwantTekst(rij.Keten(Personen(1).Persoon.Nr()), Hoofd().Persoon);
  SchrijfVerwantTekst(uit, regels);
  return uitslag;
}

}  // namespace lb77
