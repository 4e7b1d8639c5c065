#include "exchange/ExportForm.h"

#include "entry/VolgersBewaker.h"
#include "exchange/ExpMaakLyst.h"
#include "exchange/ExpSel.h"
#include "output/ToonTekst.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

std::string AantalTekst(const SelectieLijst& lijst) {
  return GetalTekst(static_cast<std::int64_t>(lijst.Aantal()));
}

}  // namespace

ExportForm::ExportForm(const ExportSoort& soort, Hoofdmodule& hoofd)
    : UitvoerForm(soort.uitvoer, hoofd),
      Keuze(soort.keuze.empty()
                ? std::nullopt
                : std::optional<Vinkje>(std::in_place, *this, soort.keuze, soort.keuzeTekst)),
      StartButton(*this, soort.start, "&Start Export") {
  Koppel(StartButton, BackButton);
  KiesAllesButton.BijKlik([this] { KiesAllesButtonKlik(); });
  KiesPersButton.BijKlik([this] { KiesPersButtonKlik(); });
  KiesRelButton.BijKlik([this] { KiesRelButtonKlik(); });
  ToonLijstButton.BijKlik([this] { ToonLijstButtonKlik(); });
  // Nothing is behind these.
  for (Knop* knop : {&KiesGenButton, &KiesKwstButton, &KiesBronButton}) {
    knop->ZetIngeschakeld(false);
  }
}

void ExportForm::BijLaden() {
  UitvoerForm::BijLaden();
  ToonAantallen();
}

std::int16_t ExportForm::AantalRecords() {
  return Hoofd().Persoon.AantalRecords();
}

bool ExportForm::MagBeginnen() {
  if (!selectie_.IsLeeg()) return true;
  Hoofd().gesprek.Waarschuw("Geen gegevens geselecteerd");
  return false;
}

void ExportForm::Schrijf(UitvoerBestanden& bestanden) {
  schrijver_ = MaakSchrijver(bestanden);
  telling_ = LoopSelectie(*schrijver_, selectie_,
                          {[this, &bestanden] { return Doorgaan(bestanden); },
                           [this](const ExpTelling& telling) {
                             ToonGedaan(telling);
                             Hoofd().gesprek.Ververs(*this);
                           }});
}

void ExportForm::SchrijfLogSlot(ExpUitvoer& log) {
  schrijver_->LogSlot(telling_);
  if (!vol_) return;
  log.Regel("LET OP: niet alle gekozen records zijn uitgevoerd: een lijst houdt er " +
            GetalTekst(static_cast<std::int64_t>(SelectieLijst::kHoogsteAantal)));
}

void ExportForm::MeldVoltooid() {
  Hoofd().gesprek.Informeer(kExporterenVoltooid);
}

void ExportForm::KiesAllesButtonKlik() {
  Hoofd().gesprek.Waarschuw("Druk in de volgende schermen steeds op VOEG TOE");
  KiesPersButtonKlik();
  KiesRelButtonKlik();
}

void ExportForm::KiesPersButtonKlik() {
  Kies(kExpSelPers, selectie_.SelPersonen);
}

void ExportForm::KiesRelButtonKlik() {
  Kies(kExpSelRel, selectie_.SelRelaties);
}

void ExportForm::Kies(const ExpSelSoort& soort, SelectieLijst& lijst) {
  ExpSel kiezen(soort, Hoofd(), lijst);
  Hoofd().gesprek.ToonModaal(kiezen);
  vol_ = vol_ || kiezen.Vol();
  ToonAantallen();
}

void ExportForm::ToonLijstButtonKlik() {
  const VolgersBewaker bewaker(Hoofd().volgers);
  ExpMaakLyst maken(Hoofd(), selectie_);
  Hoofd().gesprek.ToonModaal(maken);
  if (!maken.Gelukt()) return;
  Hoofd().gesprek.Toon<ToonTekst>(Hoofd(), maken.Pad(), "Exporteren - Geselecteerde records");
}

void ExportForm::ToonAantallen() {
  AantalPersonen.ZetTekst(AantalTekst(selectie_.SelPersonen));
  AantalRelaties.ZetTekst(AantalTekst(selectie_.SelRelaties));
  AantalBronnen.ZetTekst("0");
}

void ExportForm::ToonGedaan(const ExpTelling& telling) {
  const auto toon = [this, &telling](Teller& teller, std::int32_t ExpTelling::*aantal) {
    if (getoond_ && *getoond_.*aantal == telling.*aantal) return;
    teller.ZetTekst(GetalTekst(telling.*aantal));
  };
  toon(PersonenGedaan, &ExpTelling::personen);
  toon(RelatiesGedaan, &ExpTelling::relaties);
  toon(BronnenGedaan, &ExpTelling::bronnen);
  getoond_ = telling;
}

}  // namespace lb77
