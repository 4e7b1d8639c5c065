#include "app/OudeSetForm.h"

#include <cstddef>
#include <string>

#include "app/Bestandensets.h"
#include "app/SetOpenen.h"
#include "store/Paden.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kNietGekopieerd = "De bestanden zijn niet gekopieerd\n";
constexpr std::string_view kNietTerPlaatse =
    "De bestanden kunnen niet worden gebruikt waar ze staan; kies voor een kopie\n";

SetPaden PadenVan(const OudeSet& set) {
  SetPaden paden;
  paden.map = set.map;
  paden.prs = set.Pad(BestandSoort::Personen);
  return paden;
}

}  // namespace

OudeSetForm::OudeSetForm(Hoofdmodule& hoofd, MenuWindow& menu)
    : Formulier("OudeSetForm", "Oude Bestanden Openen"), hoofd_(hoofd), menu_(menu) {
  ZetHulpOnderwerp("oude-bestanden");
  ZetEersteVeld(OudeMap);
  OudeMap.BijVerlaten([this] { return OudeMapVerlaten(); });
  BrowseOudeMap.BijKlik([this] { BrowseOudeMapKlik(); });
  GevondenLijst.BijWijziging([this] { GevondenLijstWijziging(); });
  Kopieren.BijWijziging([this] { KopierenWijziging(); });
  TerPlaatse.BijWijziging([this] { TerPlaatseWijziging(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void OudeSetForm::BijLaden() {
  Kopieren.Zet(true);
}

void OudeSetForm::BrowseOudeMapKlik() {
  const auto map =
      hoofd_.gesprek.VraagBestand({.wijze = BestandsWijze::Map,
                                   .filter = "Directories (*.)|*.dir|Alle Bestanden (*.*)|*.*",
                                   .beginmap = OudeMap.Pad()});
  if (!map) return;
  OudeMap.ZetPad(*map);
  Zoek();
}

bool OudeSetForm::OudeMapVerlaten() {
  if (!Trim(OudeMap.Tekst()).empty() && OudeMap.Pad() != gezocht_) Zoek();
  return true;
}

void OudeSetForm::Zoek() {
  gezocht_ = OudeMap.Pad();
  // A relative path is one in the program's directory.
  const std::filesystem::path map = VindPad(hoofd_.programmaMap / gezocht_);
  gevonden_ = ZoekOudeSets(map);
  GevondenLijst.MaakLeeg();
  for (const OudeSet& set : gevonden_) {
    GevondenLijst.VoegToe(set.naam + "   " + PadTekst(set.map));
  }
  GevondenLijst.ZetIndex(gevonden_.empty() ? -1 : 0);
  StelNaamVoor();
  if (!gevonden_.empty()) return;
  hoofd_.gesprek.Waarschuw("In de map " + PadTekst(map) +
                           " staan geen bestanden van een familie (.PRS)");
}

void OudeSetForm::GevondenLijstWijziging() {
  StelNaamVoor();
}

void OudeSetForm::KopierenWijziging() {
  StelNaamVoor();
}

void OudeSetForm::TerPlaatseWijziging() {
  StelNaamVoor();
}

// Files that stay where they are keep their name.
void OudeSetForm::StelNaamVoor() {
  SetNaam.ZetAlleenLezen(TerPlaatse.Gekozen());
  const int index = GevondenLijst.Index();
  if (index < 0) return SetNaam.ZetTekst("");
  const std::string& naam = gevonden_.at(static_cast<std::size_t>(index)).naam;
  SetNaam.ZetTekst(TerPlaatse.Gekozen() ? naam : VrijeSetNaam(hoofd_, naam));
}

void OudeSetForm::OKButtonKlik() {
  const int index = GevondenLijst.Index();
  if (index < 0) {
    hoofd_.gesprek.Waarschuw(kGeenSetGekozen);
    return ZetFocus(OudeMap);
  }
  const OudeSet& set = gevonden_.at(static_cast<std::size_t>(index));
  const std::string naam = Hoofdletters(Trim(SetNaam.Tekst()));
  if (!MagOvernemen(set, naam) || !NeemOver(set, naam)) return;
  if (!MaakSet(hoofd_, menu_, naam, std::string(Trim(SetOmsch.Tekst())))) return;
  menu_.ZetMenu();
  Sluit();
}

bool OudeSetForm::MagOvernemen(const OudeSet& set, const std::string& naam) {
  if (!KanNieuweSetZijn(hoofd_, naam)) return false;
  if (hoofd_.Ini.BestandenSetIndex(naam) != 0) {
    hoofd_.gesprek.Waarschuw("Deze bestandenset bestaat al");
    return false;
  }
  if (IsElders(PadenVan(set))) {
    hoofd_.gesprek.Waarschuw("Deze bestandenset is al in gebruik.");
    return false;
  }
  const std::string ontbreekt = Ontbrekend(set);
  return ontbreekt.empty() ||
         hoofd_.gesprek.Vraag("Van " + set.naam + " ontbreekt: " + ontbreekt +
                              ".\nWat ontbreekt wordt leeg aangemaakt. Doorgaan ?");
}

bool OudeSetForm::NeemOver(const OudeSet& set, const std::string& naam) {
  const SetPaden paden = SetPaden::Van(hoofd_.Ini.DataDir(), naam);
  return TerPlaatse.Gekozen() ? Gebruik(set, paden) : Kopieer(set, paden);
}

bool OudeSetForm::Kopieer(const OudeSet& set, const SetPaden& paden) {
  const SysteemFout fout = KopieerOudeSet(set, paden);
  if (fout) hoofd_.gesprek.Fout(std::string(kNietGekopieerd) + fout.tekst);
  return !fout;
}

bool OudeSetForm::Gebruik(const OudeSet& set, const SetPaden& paden) {
  if (!set.centraal.empty() &&
      !hoofd_.gesprek.Vraag("De plaatsen van " + set.naam + " staan in " + PadTekst(set.centraal) +
                            ", ook voor andere families.\n" + set.naam +
                            " krijgt er een eigen kopie van. Doorgaan ?")) {
    return false;
  }
  const SysteemFout fout = KoppelOudeSet(set, paden);
  if (fout) hoofd_.gesprek.Fout(std::string(kNietTerPlaatse) + fout.tekst);
  return !fout;
}

}  // namespace lb77
