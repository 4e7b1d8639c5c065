#include "app/NieuweSet.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "app/Bestandensets.h"
#include "store/Bestandenset.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr int kMaxSets = 99;

// Makes a directory that is not there, and those above it. False after a message.
bool MaakMap(Gesprek& gesprek, const std::filesystem::path& gevraagd) {
  const std::filesystem::path map = VindPad(gevraagd);
  std::error_code code;
  if (std::filesystem::exists(map, code)) return true;
  std::filesystem::create_directories(map, code);
  if (!code) return true;
  gesprek.Fout("Fout bij het maken van de directory " + PadTekst(map) + "\n(" +
               FoutVan(code).tekst + ")");
  return false;
}

bool MaakAdmin(Hoofdmodule& hoofd, BestandSoort soort) {
  switch (soort) {
    case BestandSoort::Personen:
      return hoofd.Persoon.NieuwAdm();
    case BestandSoort::Relaties:
      return hoofd.Relatie.NieuwAdm();
    case BestandSoort::Opmerkingen:
      return hoofd.Opmerking.NieuwAdm();
    case BestandSoort::Plaatsen:
      break;
  }
  return hoofd.Plaats.NieuwAdm();
}

// Opens a file that was not there, with its record 1. When that can't be written the file goes
// again, so that a next attempt does not take it for an old one. The central place file is no help
// here: its record 1 would be lost.
bool MaakBestand(Hoofdmodule& hoofd, BestandSoort soort, const std::filesystem::path& pad) {
  if (const SysteemFout fout = hoofd.bestanden.Open(soort, pad)) {
    hoofd.gesprek.Fout(OpenFoutTekst({soort, pad, fout}));
    return false;
  }
  if (MaakAdmin(hoofd, soort)) return true;
  hoofd.bestanden.Sluit(soort);
  std::error_code code;
  std::filesystem::remove(pad, code);
  return false;
}

// An existing file is adopted as it is.
bool NeemBestand(Hoofdmodule& hoofd, BestandSoort soort, const SetPaden& paden) {
  hoofd.bestanden.Sluit(soort);
  const std::filesystem::path pad = VindPad(PadVanSoort(paden, soort));
  std::error_code code;
  if (!std::filesystem::exists(pad, code)) return MaakBestand(hoofd, soort, pad);
  const std::optional<OpenFout> fout = hoofd.bestanden.Open(soort, paden);
  if (fout) hoofd.gesprek.Fout(OpenFoutTekst(*fout));
  return !fout;
}

bool MaakSet(Hoofdmodule& hoofd, const SetPaden& paden) {
  if (!MaakMap(hoofd.gesprek, paden.map) || !MaakMap(hoofd.gesprek, paden.tekst)) return false;
  for (const BestandSoort soort : kBestandSoorten) {
    if (!NeemBestand(hoofd, soort, paden)) return false;
  }
  return true;
}

}  // namespace

NieuweSet::NieuweSet(Hoofdmodule& hoofd, MenuWindow& menu)
    : Formulier("NieuweSet", "Nieuwe Bestandenset"), hoofd_(hoofd), menu_(menu) {
  ZetEersteVeld(SetNaam);
  SetNaam.BijVerlaten([this] { return SetNaamVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

bool NieuweSet::SetNaamVerlaten() {
  SetNaam.ZetTekst(Hoofdletters(SetNaam.Tekst()));
  if (hoofd_.Ini.BestandenSetIndex(SetNaam.Tekst()) == 0) return true;
  hoofd_.gesprek.Waarschuw("Deze bestandenset bestaat al");
  return false;
}

// What can't become a set is refused before anything changes.
bool NieuweSet::Aanvaardbaar(const std::string& naam) {
  if (!IsSetNaam(naam)) {
    hoofd_.gesprek.Waarschuw(SetNaamFout(naam));
    return false;
  }
  if (hoofd_.Ini.AantalBestandenSets() < kMaxSets || hoofd_.Ini.BestandenSetIndex(naam) != 0) {
    return true;
  }
  hoofd_.gesprek.Waarschuw("De lijst met bestandensets is vol");
  return false;
}

void NieuweSet::OKButtonKlik() {
  const std::string_view tekst = SetNaam.Tekst();
  const std::string naam = Hoofdletters(Trim(tekst.substr(0, tekst.find(','))));
  if (naam.empty()) {
    hoofd_.ActieveSetNaam = kGeenSetActief;
    hoofd_.gesprek.Waarschuw(kGeenSetGekozen);
    menu_.ZetStatus();
  } else if (!Aanvaardbaar(naam)) {
    ZetFocus(SetNaam);
    return;
  } else {
    hoofd_.volgers = {};
    const bool gelukt = MaakSet(hoofd_, SetPaden::Van(hoofd_.Ini.DataDir(), naam));
    hoofd_.ActieveSetNaam = gelukt ? naam : std::string(kGeenSetActief);
    MaakActief(std::string(Trim(SetOmsch.Tekst())));
  }
  menu_.ZetMenu();
  Sluit();
}

// Puts the set in the list and in the settings; nothing of it when it could not be made.
void NieuweSet::MaakActief(const std::string& omschrijving) {
  if (!hoofd_.SetActief()) {
    menu_.ZetStatus();
    return;
  }
  const std::string& naam = hoofd_.ActieveSetNaam;
  if (hoofd_.Ini.BestandenSetIndex(naam) == 0) {
    const int nummer = hoofd_.Ini.AantalBestandenSets() + 1;
    hoofd_.Ini.IniZet("Sets", "Set" + GetalTekst(nummer), naam + "," + omschrijving);
  }
  menu_.ZetStatus(omschrijving);
  hoofd_.Ini.IniZet("Systeem", "Set", naam);
  hoofd_.Ini.IniZet("Systeem", "SetOms", omschrijving);
  hoofd_.Ini.IniSchrijf();
}

}  // namespace lb77
