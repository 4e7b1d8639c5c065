#include "app/VerwijderSetForm.h"

#include <filesystem>
#include <system_error>

#include "app/AantalTekst.h"
#include "app/Bestandensets.h"
#include "app/KopiePlek.h"
#include "app/SetTelling.h"
#include "app/SetVerwijderen.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "text/Letterlijk.h"
#include "text/Pad.h"

namespace lb77 {

VerwijderSetForm::VerwijderSetForm(Hoofdmodule& hoofd, MenuWindow& menu)
    // kept: the title is spelled as users know it
    : Formulier("VerwijderSetForm", "Verwijder Bestandendset"), hoofd_(hoofd), menu_(menu) {
  ZetHulpOnderwerp("bestandensets");
  ZetEersteVeld(SetPicklist);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  CancelButton.BijKlik([this] { CancelButtonKlik(); });
}

void VerwijderSetForm::BijLaden() {
  LaadSetPicklist(hoofd_, menu_, SetPicklist);
  DeleteNee.Zet(true);
  // What a user removes he has pointed at himself.
  if (menu_.VoorGebruiker()) SetPicklist.ZetIndex(-1);
}

void VerwijderSetForm::CancelButtonKlik() {
  menu_.ZetMenu();
  Sluit();
}

// Before anything changes. A script says what it wants.
bool VerwijderSetForm::Bevestigd() {
  if (!menu_.VoorGebruiker()) return true;
  const std::string rij = SetPicklist.Tekst();
  if (rij.empty()) {
    hoofd_.gesprek.Waarschuw(kGeenSetGekozen);
    return false;
  }
  const std::string naam = rij.substr(0, rij.find(','));
  if (!DeleteJa.Gekozen() || !IsSetNaam(naam)) return true;
  const std::string oms = hoofd_.Ini.BestandenSetOms(hoofd_.Ini.BestandenSetIndex(naam));
  const SetPaden paden = SetPaden::Van(hoofd_.Ini.DataDir(), naam);
  const auto personen = AantalPersonen(paden.prs, hoofd_.gesprek, hoofd_.schrijfwijze);
  const std::string hoeveel =
      personen ? AantalTekst(*personen, "persoon", "personen") : "een onbekend aantal personen";
  return hoofd_.gesprek.VraagBedacht("Bestandenset " + naam +
                                     (oms.empty() ? "" : " (" + oms + ")") + " met " + hoeveel +
                                     " wordt vernietigd, met alle bestanden in\n" +
                                     PadTekst(VindPad(paden.map)) + "\nVernietigen ?");
}

void VerwijderSetForm::OKButtonKlik() {
  if (!Bevestigd()) return;
  KiesSet(hoofd_, SetPicklist.Tekst());
  const bool gekozen = hoofd_.SetActief();
  if (gekozen) {
    Verwijder();
  } else {
    hoofd_.gesprek.Waarschuw(kGeenSetGekozen);
  }
  const bool leeg = hoofd_.Ini.SetOmschrijving(1).empty();
  hoofd_.ActieveSetNaam = leeg ? kGeenSetAanwezig : kGeenSetActief;
  menu_.ZetStatus();
  menu_.ZetMenu();
  if (gekozen) Sluit();
}

void VerwijderSetForm::Verwijder() {
  hoofd_.bestanden.SluitAlles();
  hoofd_.volgers = {};
  const std::string naam = hoofd_.ActieveSetNaam;
  const int index = hoofd_.Ini.BestandenSetIndex(naam);
  if (index == 0) {
    hoofd_.gesprek.Waarschuw("Bestandenset niet gevonden in LIJNBOOM.INI");
    return;
  }
  const bool geldig = IsSetNaam(naam);
  if (DeleteJa.Gekozen() && geldig && IsElders(SetPaden::Van(hoofd_.Ini.DataDir(), naam))) {
    hoofd_.gesprek.Waarschuw("Deze bestandenset is al in gebruik.");
    return;
  }
  HaalUitLijst(hoofd_, index);
  // Whoever ends the program over a list that could not be written keeps his files.
  if (!DeleteJa.Gekozen() || hoofd_.Ini.EindeGevraagd()) return;
  if (geldig) {
    VerwijderBestanden(naam);
  } else {
    hoofd_.gesprek.Waarschuw(SetNaamFout(naam));
  }
}

// The safety copies stay.
void VerwijderSetForm::VerwijderBestanden(const std::string& naam) {
  VerwijderSetVanSchijf(hoofd_.gesprek, hoofd_.Ini.DataDir(), naam);
  const std::filesystem::path& programma = hoofd_.programmaMap;
  std::string waar;
  for (const auto& map : KopieMappenIn(programma, KopiePlek(programma), naam).mappen) {
    std::error_code code;
    if (std::filesystem::exists(map, code)) waar += (waar.empty() ? "" : ", ") + PadTekst(map);
  }
  if (waar.empty()) return;
  hoofd_.gesprek.Informeer(std::string("De veiligheidskopieën van "_w) + naam +
                           " zijn er nog: " + waar);
}

}  // namespace lb77
