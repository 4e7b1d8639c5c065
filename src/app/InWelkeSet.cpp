#include "app/InWelkeSet.h"

#include <string>
#include <system_error>
#include <utility>

#include "app/Bestandensets.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

InWelkeSet::InWelkeSet(Hoofdmodule& hoofd, MenuWindow& menu, std::filesystem::path bestand)
    : Formulier("InWelkeSet", "GEDCOM Inlezen"),
      hoofd_(hoofd),
      menu_(menu),
      bestand_(std::move(bestand)) {
  ZetHulpOnderwerp("gedcom");
  ZetEersteVeld(SetNaam);
  SetPicklist.ZetLeesnaam("Bestandenset");
  NieuweOptie.BijWijziging([this] { NieuweOptieWijziging(); });
  BestaandeOptie.BijWijziging([this] { BestaandeOptieWijziging(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void InWelkeSet::BijLaden() {
  BestandLabel.ZetBijschrift("Waarin wordt " + PadTekst(bestand_.filename()) + " ingelezen ?");
  SetNaam.ZetTekst(VrijeSetNaam(hoofd_, PadTekst(bestand_.stem())));
  const bool aanwezig = hoofd_.Ini.AantalBestandenSets() > 0;
  if (aanwezig) LaadSetPicklist(hoofd_, menu_, SetPicklist);
  BestaandeOptie.ZetIngeschakeld(aanwezig);
  NieuweOptie.Zet(true);
  ToonKeuze();
}

void InWelkeSet::NieuweOptieWijziging() {
  ToonKeuze();
}

void InWelkeSet::BestaandeOptieWijziging() {
  ToonKeuze();
}

void InWelkeSet::ToonKeuze() {
  const bool nieuw = NieuweOptie.Gekozen();
  SetNaam.ZetIngeschakeld(nieuw);
  SetOmsch.ZetIngeschakeld(nieuw);
  SetPicklist.ZetIngeschakeld(!nieuw);
}

void InWelkeSet::OKButtonKlik() {
  gekozen_ = NieuweOptie.Gekozen() ? MaakNieuwe() : OpenBestaande();
  menu_.ZetMenu();
  if (gekozen_) Sluit();
}

bool InWelkeSet::MaakNieuwe() {
  const std::string naam = Hoofdletters(Trim(SetNaam.Tekst()));
  if (!KanNieuweSetZijn(hoofd_, naam)) {
    ZetFocus(SetNaam);
    return false;
  }
  if (hoofd_.Ini.BestandenSetIndex(naam) != 0) {
    hoofd_.gesprek.Waarschuw("Deze bestandenset bestaat al");
    ZetFocus(SetNaam);
    return false;
  }
  std::error_code code;
  const std::filesystem::path map = VindPad(SetPaden::Van(hoofd_.Ini.DataDir(), naam).map);
  nieuw_ =
      std::filesystem::symlink_status(map, code).type() == std::filesystem::file_type::not_found;
  return MaakSet(hoofd_, menu_, naam, std::string(Trim(SetOmsch.Tekst())));
}

bool InWelkeSet::OpenBestaande() {
  nieuw_ = false;
  const std::string rij = SetPicklist.Tekst();
  // The one that is open stays so.
  if (rij.substr(0, rij.find(',')) == hoofd_.ActieveSetNaam && hoofd_.SetActief()) return true;
  return OpenSetVanRij(hoofd_, menu_, rij) && hoofd_.SetActief();
}

}  // namespace lb77
