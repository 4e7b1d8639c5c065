#include <utility>

#include "app/IniBestand.h"
#include "app/IniClass.h"
#include "app/IniSamen.h"

namespace lb77 {

IniBeeld IniClass::Beeld() const {
  IniBeeld beeld = instellingen_.waarden;
  for (std::size_t rij = 0; rij < beeld.size(); ++rij) {
    for (std::size_t nummer = 0; nummer < beeld[rij].size(); ++nummer) {
      beeld[rij][nummer] = Regel({rij, nummer});
    }
  }
  return beeld;
}

IniBeeld IniClass::BeeldVan(std::string_view inhoud) const {
  Instellingen instellingen;
  Schrijfwijze schrijfwijze;
  IniClass ander(instellingen, schrijfwijze, gesprek_, programmaMap_);
  ander.LeesRegels(inhoud);
  return ander.Beeld();
}

void IniClass::LeesRegels(std::string_view inhoud) {
  LeesIniRegels(inhoud, [this](std::string_view sectie, std::string_view sleutel,
                               std::string_view waarde) { PasToe(sectie, sleutel, waarde); });
  HerplaatsPaden();
}

void IniClass::Onthoud() {
  instellingen_.stand.eigen = Beeld();
  instellingen_.stand.schijf = instellingen_.stand.uit = instellingen_.stand.eigen;
}

bool IniClass::IniLees() {
  ZetStandaard();
  Onthoud();
  const std::string melding =
      "Fout bij het openen van het IniBestand (" + std::string(kIniBestand) + ")\n";
  IniGelezen gelezen = LeesIniBestand(programmaMap_, instellingen_.bewaren);
  if (gelezen.fout) {
    const std::string vraag = melding + gelezen.fout.tekst +
                              "\n\nDruk op OK om een nieuw IniBestand te maken\n"
                              "Druk op CANCEL om te stoppen";
    if (gesprek_.Bericht(BerichtSoort::Uitroep, Knoppen::OKAnnuleren, vraag) != Antwoord::OK) {
      return false;
    }
    if (!instellingen_.bewaren) return true;
    IniSchrijf();
    if (EindeGevraagd()) return false;
    gelezen = LeesIniBestand(programmaMap_);
  }
  if (gelezen.fout) {
    gesprek_.Fout(melding + gelezen.fout.tekst);
    return false;
  }
  if (!gelezen.melding.empty()) gesprek_.Waarschuw(gelezen.melding);
  LeesRegels(gelezen.inhoud);
  Onthoud();
  return true;
}

void IniClass::IniNieuw() {
  ZetStandaard();
  Onthoud();
  IniSchrijf();
}

std::string IniClass::NieuweTekst(const std::string* huidig, IniStand& stand) const {
  const IniStand& bekend = instellingen_.stand;
  stand.eigen = Beeld();
  stand.uit = VoegSamen(bekend, stand.eigen, huidig != nullptr ? BeeldVan(*huidig) : bekend.schijf);
  std::string tekst =
      IniRegels([&](SleutelPlaats plaats) { return stand.uit[plaats.rij].at(plaats.nummer); });
  stand.schijf = BeeldVan(tekst);
  return tekst;
}

// The sets of another run are in the list from now on. Its other choices stay its own: this run
// keeps the settings with which it began.
void IniClass::NeemSetsOver(IniStand& stand) {
  const std::size_t rij = VindSleutel("Sets", "Set1").value().rij;
  instellingen_.waarden[rij] = stand.eigen[rij] = stand.uit[rij];
}

void IniClass::IniSchrijf() {
  if (!instellingen_.bewaren) return;
  IniStand stand;
  const SchrijfUitslag uitslag = SchrijfIniBestand(
      programmaMap_, [&](const std::string* huidig) { return NieuweTekst(huidig, stand); });
  const std::string bestand = "(" + std::string(kIniBestand) + ")\n" + uitslag.fout.tekst;
  switch (uitslag.stap) {
    case SchrijfStap::Openen:
      if (gesprek_.Bericht(BerichtSoort::Uitroep, Knoppen::OKAnnuleren,
                           "Fout bij het openen van het IniBestand " + bestand) != Antwoord::OK) {
        instellingen_.eindeGevraagd = true;
      }
      break;
    case SchrijfStap::Schrijven:
      gesprek_.Fout("Fout bij het schrijven van het IniBestand " + bestand +
                    "\nDe vorige instellingen blijven bewaard.");
      break;
    case SchrijfStap::Klaar:
      NeemSetsOver(stand);
      instellingen_.stand = std::move(stand);
      break;
  }
}

}  // namespace lb77
