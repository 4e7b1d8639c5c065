#include "app/OudeSetForm.h"

#include <cstddef>
#include <string>
#include <system_error>

#include "app/Bestandensets.h"
#include "app/Gezindtebron.h"
#include "app/SetOpenen.h"
#include "app/Start.h"
#include "store/JournaalPlek.h"
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
  OnleesbareMap onleesbaar;
  gevonden_ = ZoekOudeSets(map, &onleesbaar);
  GevondenLijst.MaakLeeg();
  for (const OudeSet& set : gevonden_) {
    GevondenLijst.VoegToe(set.naam + "   " + PadTekst(set.map));
  }
  GevondenLijst.ZetIndex(gevonden_.empty() ? -1 : 0);
  StelNaamVoor();
  if (gevonden_.empty()) MeldNiets(map, onleesbaar);
}

void OudeSetForm::MeldNiets(const std::filesystem::path& map, const OnleesbareMap& onleesbaar) {
  std::error_code code;
  const std::filesystem::file_status status = std::filesystem::status(map, code);
  if (status.type() == std::filesystem::file_type::not_found) {
    hoofd_.gesprek.Waarschuw("De map " + PadTekst(map) + " is er niet");
  } else if (onleesbaar.fout) {
    hoofd_.gesprek.Fout("De map " + PadTekst(onleesbaar.map) + " kan niet worden gelezen\n" +
                        onleesbaar.fout.tekst);
  } else {
    hoofd_.gesprek.Waarschuw("In de map " + PadTekst(map) +
                             " staan geen bestanden van een familie (.PRS)");
  }
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
  if (!MagOvernemen(set, naam)) return;
  const std::string eerder = OpenSetNaam(hoofd_);
  Afloop afloop = NeemOver(set, naam);
  if (afloop == Afloop::NietGeopend && TerPlaatse.Gekozen()) afloop = NeemAlsKopie(set);
  if (afloop != Afloop::Geopend) return HeropenSet(hoofd_, menu_, eerder);
  NeemGezindtenVan(set);
  menu_.ZetMenu();
  Sluit();
}

// Their codes stand in the records, and mean nothing without the names.
void OudeSetForm::NeemGezindtenVan(const OudeSet& set) {
  const std::filesystem::path bron = InstellingenBij(set.map, hoofd_.programmaMap);
  std::string over;
  for (const std::string& gezindte : NeemGezindten(hoofd_.Ini, bron)) {
    over.append(over.empty() ? "" : ", ").append(gezindte);
  }
  VulGezindten(hoofd_);
  if (over.empty()) return;
  hoofd_.gesprek.Waarschuw("Deze gezindten uit " + PadTekst(bron) +
                           " zijn niet overgenomen, omdat hun code hier iets anders betekent of de "
                           "lijst vol is:\n" +
                           over);
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

OudeSetForm::Afloop OudeSetForm::NeemOver(const OudeSet& set, const std::string& naam) {
  const SetPaden paden = SetPaden::Van(hoofd_.Ini.DataDir(), naam);
  const bool lagErAl = LigtErAl(set, paden);
  const bool kopie = !TerPlaatse.Gekozen();
  if (!(kopie ? Kopieer(set, paden) : Gebruik(set, paden))) return Afloop::NietOvergenomen;
  const Afloop afloop = Open(naam);
  if (afloop == Afloop::Geopend) return afloop;
  if (kopie) {
    RuimKopie(paden);
  } else {
    RuimKoppeling(set, paden, lagErAl);
  }
  return afloop;
}

OudeSetForm::Afloop OudeSetForm::Open(const std::string& naam) {
  if (MaakSet(hoofd_, menu_, naam, std::string(Trim(SetOmsch.Tekst())))) return Afloop::Geopend;
  hoofd_.bestanden.SluitAlles();
  return Afloop::NietGeopend;
}

OudeSetForm::Afloop OudeSetForm::NeemAlsKopie(const OudeSet& set) {
  if (!hoofd_.gesprek.Vraag("De bestanden van " + set.naam +
                            " zijn niet geopend waar ze staan.\nEen kopie maken ?")) {
    return Afloop::NietGeopend;
  }
  Kopieren.Zet(true);
  StelNaamVoor();
  return NeemOver(set, SetNaam.Tekst());
}

bool OudeSetForm::Kopieer(const OudeSet& set, const SetPaden& paden) {
  const SysteemFout fout = KopieerOudeSet(set, paden);
  if (fout) hoofd_.gesprek.Fout(std::string(kNietGekopieerd) + fout.tekst);
  return !fout;
}

bool OudeSetForm::Gebruik(const OudeSet& set, const SetPaden& paden) {
  // They would share the directories of texts beside them.
  if (!LigtErAl(set, paden) && !IsEnigeSet(set.map, set.naam)) {
    hoofd_.gesprek.Waarschuw("In de map " + PadTekst(set.map) +
                             " staat meer dan een familie. Daar kan " + set.naam +
                             " niet worden gebruikt; kies voor een kopie");
    return false;
  }
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
