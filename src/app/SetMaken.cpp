#include "app/SetMaken.h"

#include <algorithm>
#include <cstdint>
#include <system_error>

#include "app/Bestandensets.h"
#include "store/Bestandenset.h"
#include "store/Paden.h"
#include "store/Platform.h"
#include "store/PlatformNamen.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr int kMaxSets = 99;

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

// What a program that was stopped leaves behind before the first record is written.
bool IsLeeg(const std::filesystem::path& pad) {
  std::error_code code;
  const std::uintmax_t lengte = std::filesystem::file_size(pad, code);
  return !code && lengte == 0;
}

// Makes the file when it is not there, and tells whether it did. Of what is there nothing is looked
// at first: a file that cannot be looked at is not absent.
SysteemFout MaakNieuw(const std::filesystem::path& pad, bool& gemaakt) {
  Bestandsgreep greep;
  SysteemFout fout = greep.Open(pad, Openwijze::Nieuw);
  gemaakt = !fout;
  return fout.nummer == kBestandBestaatAl ? SysteemFout{} : fout;
}

// Opens the file, with its record 1 when it is empty. False after a message.
bool OpenMetAdmin(Hoofdmodule& hoofd, BestandSoort soort, const std::filesystem::path& pad) {
  if (const SysteemFout fout = hoofd.bestanden.Open(soort, pad)) {
    hoofd.gesprek.Fout(OpenFoutTekst({soort, pad, fout}));
    return false;
  }
  if (!IsLeeg(pad) || MaakAdmin(hoofd, soort)) return true;
  hoofd.bestanden.Sluit(soort);
  std::error_code code;
  std::filesystem::resize_file(pad, 0, code);
  return false;
}

// An existing file is adopted as it is; a new or an empty one gets its record 1. When that can't be
// written the file is again as it was, so that a next attempt does not take it for an old one. The
// central place file is no help here: its record 1 would be lost.
bool NeemBestand(Hoofdmodule& hoofd, BestandSoort soort, const SetPaden& paden) {
  hoofd.bestanden.Sluit(soort);
  const std::filesystem::path pad = VindPad(PadVanSoort(paden, soort));
  bool gemaakt = false;
  if (const SysteemFout fout = MaakNieuw(pad, gemaakt)) {
    hoofd.gesprek.Fout(OpenFoutTekst({soort, pad, fout}));
    return false;
  }
  if (OpenMetAdmin(hoofd, soort, pad)) return true;
  std::error_code code;
  if (gemaakt) static_cast<void>(VerwijderVanSchijf(pad, code));
  return false;
}

// On the disk before the set is in the list: of one that is listed no file may be empty. False after
// a message.
bool LegVast(Hoofdmodule& hoofd, const SetPaden& paden) {
  SysteemFout fout = hoofd.bestanden.Veiligstellen();
  for (const auto& map : {paden.map, paden.map.parent_path()}) {
    if (!fout) fout = MapVeiligstellen(VindPad(map));
  }
  if (fout) hoofd.gesprek.Fout("Fout bij het veiligstellen van de bestanden\n" + fout.tekst);
  return !fout;
}

// Without a journal: the records 1 of a new set are nothing to be undone.
bool MaakBestanden(Hoofdmodule& hoofd, const SetPaden& paden) {
  hoofd.bestanden.SluitAlles();
  NeemJournaalWeg(hoofd);
  if (!MaakMap(hoofd.gesprek, paden.map) || !MaakMap(hoofd.gesprek, paden.tekst)) return false;
  for (const BestandSoort soort : kBestandSoorten) {
    if (!NeemBestand(hoofd, soort, paden)) return false;
  }
  return LegVast(hoofd, paden);
}

// Puts the set in the list and in the settings; nothing of it when it could not be made.
void MaakActief(Hoofdmodule& hoofd, MenuWindow& menu, const std::string& omschrijving) {
  if (!hoofd.SetActief()) {
    menu.ZetStatus();
    return;
  }
  const std::string& naam = hoofd.ActieveSetNaam;
  if (hoofd.Ini.BestandenSetIndex(naam) == 0) {
    const int nummer = hoofd.Ini.AantalBestandenSets() + 1;
    hoofd.Ini.IniZet("Sets", "Set" + GetalTekst(nummer), naam + "," + omschrijving);
  }
  menu.ZetStatus(omschrijving);
  hoofd.Ini.IniZet("Systeem", "Set", naam);
  hoofd.Ini.IniZet("Systeem", "SetOms", omschrijving);
  hoofd.Ini.IniSchrijf();
}

// Letters and digits in capitals: what any system takes for a name.
std::string Stam(std::string_view basis) {
  std::string uit;
  for (const char teken : Hoofdletters(basis)) {
    const bool letter = teken >= 'A' && teken <= 'Z';
    if ((letter || IsCijfer(teken)) && uit.size() < kMaxSetNaam) uit += teken;
  }
  return IsSetNaam(uit) ? uit : "FAMILIE";
}

bool IsVrij(const Hoofdmodule& hoofd, const std::string& naam) {
  const std::filesystem::path map = VindPad(SetPaden::Van(hoofd.Ini.DataDir(), naam).map);
  std::error_code code;
  return hoofd.Ini.BestandenSetIndex(naam) == 0 &&
         std::filesystem::symlink_status(map, code).type() == std::filesystem::file_type::not_found;
}

}  // namespace

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

bool KanNieuweSetZijn(Hoofdmodule& hoofd, const std::string& naam) {
  if (!IsSetNaam(naam)) {
    hoofd.gesprek.Waarschuw(SetNaamFout(naam));
    return false;
  }
  if (hoofd.Ini.AantalBestandenSets() < kMaxSets || hoofd.Ini.BestandenSetIndex(naam) != 0) {
    return true;
  }
  hoofd.gesprek.Waarschuw("De lijst met bestandensets is vol");
  return false;
}

bool MaakSet(Hoofdmodule& hoofd, MenuWindow& menu, const std::string& naam,
             const std::string& omschrijving) {
  hoofd.volgers = {};
  const bool gelukt = MaakBestanden(hoofd, SetPaden::Van(hoofd.Ini.DataDir(), naam));
  hoofd.ActieveSetNaam = gelukt ? naam : std::string(kGeenSetActief);
  if (gelukt) OpenBestanden(hoofd, menu.Gebruik());
  MaakActief(hoofd, menu, omschrijving);
  return hoofd.SetActief();
}

std::string VrijeSetNaam(const Hoofdmodule& hoofd, std::string_view basis) {
  const std::string stam = Stam(basis);
  std::string naam = stam;
  for (int i = 2; i <= kMaxSets && !IsVrij(hoofd, naam); ++i) {
    const std::string cijfers = GetalTekst(i);
    naam = stam.substr(0, kMaxSetNaam - cijfers.size()) + cijfers;
  }
  return naam;
}

}  // namespace lb77
