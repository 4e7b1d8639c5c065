#include "app/Bestandensets.h"

#include <algorithm>
#include <optional>

#include "store/Bestandenset.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// Names that are devices on some system, whatever stands behind a full stop.
constexpr std::string_view kApparaten[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::string_view kPoorten[] = {"COM", "LPT"};
constexpr std::string_view kHogeCijfers = "\xB9\xB2\xB3";  // one, two and three raised count too

bool IsApparaat(std::string_view naam) {
  const std::string stam = Hoofdletters(TrimRechts(naam.substr(0, naam.find('.'))));
  if (std::ranges::find(kApparaten, stam) != std::end(kApparaten)) return true;
  return stam.size() == 4 &&
         (IsCijfer(stam[3]) || kHogeCijfers.find(stam[3]) != std::string_view::npos) &&
         std::ranges::find(kPoorten, stam.substr(0, 3)) != std::end(kPoorten);
}

bool IsNaamTeken(char teken) {
  constexpr std::string_view kVerboden = "/\\:*?\"<>|";
  const auto byte = static_cast<unsigned char>(teken);
  return byte >= 32 && byte != 127 && kVerboden.find(teken) == std::string_view::npos;
}

}  // namespace

bool IsSetNaam(std::string_view naam) {
  if (naam.empty() || naam != Trim(naam) || naam.front() == '.' || naam.back() == '.') return false;
  return std::ranges::all_of(naam, IsNaamTeken) && naam.find("..") == std::string_view::npos &&
         !IsApparaat(naam);
}

std::string SetNaamFout(std::string_view naam) {
  return "\"" + std::string(naam) + "\" is geen geldige naam voor een bestandenset";
}

int IndexActieveSet(Hoofdmodule& hoofd) {
  if (hoofd.ActieveSetNaam == kGeenSetActief) return 0;
  const int index = hoofd.Ini.BestandenSetIndex(hoofd.ActieveSetNaam);
  if (index == 0) {
    hoofd.gesprek.Waarschuw("LIJNBOOM.INI geeft ongeldige actieve bestandenset");
    hoofd.ActieveSetNaam = kGeenSetActief;
  }
  return index;
}

void LaadSetPicklist(Hoofdmodule& hoofd, MenuWindow& menu, Keuzelijst& picklist) {
  picklist.MaakLeeg();
  for (int i = 1;; ++i) {
    std::string rij = hoofd.Ini.bestandenset(i);
    if (rij.empty()) break;
    const std::string omschrijving = hoofd.Ini.BestandenSetOms(i);
    if (!omschrijving.empty()) rij += "," + omschrijving;
    picklist.VoegToe(rij);
  }
  const int index = IndexActieveSet(hoofd);
  if (index > 0) picklist.ZetIndex(index - 1);
  menu.ZetStatus();
}

void KiesSet(Hoofdmodule& hoofd, std::string_view rij) {
  const std::string_view naam = rij.substr(0, rij.find(','));
  const bool geen = naam == kGeenSetAanwezig || naam == kGeenSetActief;
  hoofd.ActieveSetNaam = geen ? std::string(naam) : Hoofdletters(naam);
  if (naam.empty()) hoofd.ActieveSetNaam = kGeenSetActief;
}

void OpenBestanden(Hoofdmodule& hoofd, SetGebruik gebruik) {
  hoofd.volgers = {};  // the numbers of another set mean nothing in this one
  hoofd.gezien = {};
  if (!IsSetNaam(hoofd.ActieveSetNaam)) {
    hoofd.gesprek.Waarschuw(SetNaamFout(hoofd.ActieveSetNaam));
    hoofd.ActieveSetNaam = kGeenSetActief;
    return;
  }
  const SetPaden paden = SetPaden::Van(hoofd.Ini.DataDir(), hoofd.ActieveSetNaam);
  GeefJournaal(hoofd);
  if (const std::optional<OpenFout> fout = hoofd.bestanden.OpenSet(paden)) {
    hoofd.gesprek.Fout(OpenFoutTekst(*fout));
    hoofd.ActieveSetNaam = kGeenSetActief;
  } else if (!MagGebruiken(hoofd, gebruik)) {
    hoofd.bestanden.SluitAlles();
    hoofd.ActieveSetNaam = kGeenSetActief;
  }
}

bool OpenSetVanRij(Hoofdmodule& hoofd, MenuWindow& menu, std::string_view rij) {
  KiesSet(hoofd, rij);
  if (hoofd.ActieveSetNaam == kGeenSetActief) {
    hoofd.gesprek.Waarschuw(kGeenSetGekozen);
    return false;
  }
  if (hoofd.SetActief()) OpenBestanden(hoofd, menu.Gebruik());
  const std::string omschrijving =
      hoofd.Ini.BestandenSetOms(hoofd.Ini.BestandenSetIndex(hoofd.ActieveSetNaam));
  menu.ZetStatus(omschrijving);
  if (hoofd.SetActief()) {
    hoofd.Ini.IniZet("Systeem", "Set", hoofd.ActieveSetNaam);
    hoofd.Ini.IniZet("Systeem", "SetOms", omschrijving);
    hoofd.Ini.IniSchrijf();
  }
  menu.ZetMenu();
  return true;
}

std::string OpenSetNaam(const Hoofdmodule& hoofd) {
  return hoofd.SetActief() ? hoofd.ActieveSetNaam : std::string();
}

void HeropenSet(Hoofdmodule& hoofd, MenuWindow& menu, const std::string& naam) {
  if (naam.empty() || hoofd.SetActief()) return;
  static_cast<void>(OpenSetVanRij(hoofd, menu, naam));
}

void HaalUitLijst(Hoofdmodule& hoofd, int index) {
  const auto sleutel = [](int nummer) { return "Set" + GetalTekst(nummer); };
  const int aantal = hoofd.Ini.AantalBestandenSets();
  for (int j = index; j < aantal; ++j) {
    hoofd.Ini.IniZet("Sets", sleutel(j),
                     hoofd.Ini.bestandenset(j + 1) + "," + hoofd.Ini.BestandenSetOms(j + 1));
  }
  hoofd.Ini.IniZet("Sets", sleutel(aantal), "");
  hoofd.Ini.IniZet("Systeem", "Set", "");
  hoofd.Ini.IniZet("Systeem", "SetOms", "");
  hoofd.Ini.IniSchrijf();
}

}  // namespace lb77
