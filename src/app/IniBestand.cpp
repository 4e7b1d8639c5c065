#include "app/IniBestand.h"

#include <chrono>
#include <optional>
#include <utility>

#include "app/IniSchade.h"
#include "store/Paden.h"
#include "store/PlatformSlot.h"

namespace lb77 {

namespace {

// Where the lines are written until they are complete.
constexpr std::string_view kInWording = "LIJNBOOM.TMP";
// A file that was cut short, after another one took its place.
constexpr std::string_view kAfgebroken = "LIJNBOOM.OUD";
// How long another program may be busy with the file.
constexpr std::chrono::milliseconds kGeduld(2000);

// The files of the settings. `huidig` and `doel` differ where the name has another case.
struct Plek {
  std::filesystem::path huidig;     // the file as it is found, at the end of all links
  std::filesystem::path doel;       // as it will be called
  std::filesystem::path inWording;  // beside it
  std::filesystem::path reserve;
  std::filesystem::path afgebroken;
};

bool HeeftNaam(const std::filesystem::path& pad) {
  std::error_code code;
  return std::filesystem::exists(std::filesystem::symlink_status(pad, code));
}

// Where the links lead that begin with this name; a name that is none, itself.
std::filesystem::path EindeVanKoppelingen(std::filesystem::path pad) {
  constexpr int kMaxKoppelingen = 40;
  std::error_code code;
  for (int i = 0; i < kMaxKoppelingen && std::filesystem::is_symlink(pad, code); ++i) {
    pad = pad.parent_path() / std::filesystem::read_symlink(pad, code);
  }
  return pad;
}

Plek PlekVan(const std::filesystem::path& map) {
  const std::filesystem::path eigen = map / kIniBestand;
  const std::filesystem::path naam = HeeftNaam(eigen) ? eigen : VindPad(eigen);
  const std::filesystem::path huidig = EindeVanKoppelingen(naam);
  Plek plek{huidig, eigen, map / kInWording, map / kIniReserve, map / kAfgebroken};
  if (huidig != naam) {
    plek.doel = huidig;
    plek.inWording = huidig;
    plek.inWording += ".TMP";
  }
  return plek;
}

// A directory in which nothing new can be made, with a file that may still be written.
bool MoetErOverheen(const SchrijfUitslag& uitslag, const std::filesystem::path& doel) {
  std::error_code code;
  return uitslag.stap == SchrijfStap::Openen && uitslag.fout.nummer == kGeenToegang &&
         std::filesystem::is_regular_file(doel, code);
}

// Writes over the last file, and puts its lines back when that fails halfway.
SchrijfUitslag SchrijfErOverheen(const std::filesystem::path& doel, std::string_view inhoud,
                                 Bestandswerk& werk) {
  std::string oud;
  const bool gelezen = !LeesHeelBestand(doel, oud);
  SchrijfUitslag uitslag = werk.Overschrijf(doel, inhoud);
  if (uitslag.stap == SchrijfStap::Schrijven && gelezen) {
    static_cast<void>(werk.Overschrijf(doel, oud));
  }
  return uitslag;
}

// Writes the file beside the one whose place it will take, and brings it to the disk.
SchrijfUitslag SchrijfErnaast(const Plek& plek, std::string_view inhoud, Bestandswerk& werk) {
  SchrijfUitslag uitslag = werk.Maak(plek.inWording, inhoud);
  if (uitslag.stap == SchrijfStap::Openen) return uitslag;
  std::error_code code;
  const std::filesystem::file_status oud = std::filesystem::status(plek.huidig, code);
  if (std::filesystem::exists(oud)) {
    std::filesystem::permissions(plek.inWording, oud.permissions(), code);
  }
  if (uitslag.stap == SchrijfStap::Klaar) {
    SysteemFout fout = werk.Veiligstellen(plek.inWording);
    if (fout) uitslag = {SchrijfStap::Schrijven, std::move(fout)};
  }
  if (uitslag.stap != SchrijfStap::Klaar) static_cast<void>(werk.Verwijder(plek.inWording));
  return uitslag;
}

// Gives the present file that name too. Where a file can have one name only, a copy is made. A
// failure holds nothing up: the file itself is whole.
void Bewaar(const std::filesystem::path& huidig, const std::filesystem::path& naam,
            Bestandswerk& werk) {
  static_cast<void>(werk.Verwijder(naam));
  if (!werk.Koppel(huidig, naam)) return;
  std::string inhoud;
  if (LeesHeelBestand(huidig, inhoud)) return;
  if (werk.Maak(naam, inhoud).stap == SchrijfStap::Schrijven) {
    static_cast<void>(werk.Verwijder(naam));
  }
}

SysteemFout Verwissel(const Plek& plek, Bestandswerk& werk) {
  if (SysteemFout fout = werk.Hernoem(plek.inWording, plek.doel)) {
    static_cast<void>(werk.Verwijder(plek.inWording));
    return fout;
  }
  if (plek.huidig != plek.doel) static_cast<void>(werk.Verwijder(plek.huidig));
  // where this fails the renaming is not lost, only later
  static_cast<void>(werk.VeiligstellenMap(plek.doel.parent_path()));
  return {};
}

// A copy from which the file can be made again.
struct Kopie {
  std::string_view naam;
  std::string inhoud;
};

std::optional<Kopie> ZoekKopie(const Plek& plek) {
  Kopie kopie{kInWording, {}};
  if (!LeesHeelBestand(plek.inWording, kopie.inhoud) && IsHeelIni(kopie.inhoud)) return kopie;
  kopie.naam = kIniReserve;
  const bool gelezen = !LeesHeelBestand(VindPad(plek.reserve), kopie.inhoud);
  if (gelezen && !IsLeegIni(kopie.inhoud)) return kopie;
  return std::nullopt;
}

bool IsAfgebroken(const std::string& inhoud, const Plek& plek) {
  if (IsHeelIni(inhoud) || !IsBeginVanIni(inhoud)) return false;
  const std::optional<Kopie> kopie = ZoekKopie(plek);
  return kopie && IsHeelIni(kopie->inhoud);
}

// What is wrong with the file, in the words of the message; empty when nothing is.
std::string_view SchadeVan(const IniGelezen& gelezen, const Plek& plek) {
  if (gelezen.fout) {
    return gelezen.fout.nummer == kBestandNietGevonden ? "is niet gevonden" : "";
  }
  if (IsLeegIni(gelezen.inhoud)) return "is leeg";
  return IsAfgebroken(gelezen.inhoud, plek) ? "is niet volledig" : "";
}

// Puts the copy in the place of the file. When that fails the next reading does it again.
void ZetTerug(const Plek& plek, const Kopie& kopie, Bestandswerk& werk) {
  if (kopie.naam == kIniReserve &&
      SchrijfErnaast(plek, kopie.inhoud, werk).stap != SchrijfStap::Klaar) {
    return;
  }
  static_cast<void>(Verwissel(plek, werk));
}

// Another program may be just writing, so that a file is looked at again when its turn is over.
IniGelezen LeesOfRed(const Plek& plek, Bestandswerk* werk) {
  Slot slot;
  const bool vrij = slot.Neem(plek.doel.parent_path(), kGeduld).tekst != FoutInGebruik().tekst;
  IniGelezen gelezen;
  gelezen.fout = LeesHeelBestand(plek.huidig, gelezen.inhoud);
  const std::string_view schade = SchadeVan(gelezen, plek);
  const std::optional<Kopie> kopie = schade.empty() ? std::nullopt : ZoekKopie(plek);
  if (!kopie || !vrij) return gelezen;
  gelezen.melding = "Het IniBestand (" + std::string(kIniBestand) + ") " + std::string(schade) +
                    ".\nDe instellingen komen uit " + std::string(kopie->naam) + ".";
  if (werk != nullptr && !IsLeegIni(gelezen.inhoud)) {
    Bewaar(plek.huidig, plek.afgebroken, *werk);
    gelezen.melding += "\nHet onvolledige bestand heet nu " + std::string(kAfgebroken) + ".";
  }
  if (werk != nullptr) ZetTerug(plek, *kopie, *werk);
  gelezen.fout = {};
  gelezen.inhoud = kopie->inhoud;
  return gelezen;
}

IniGelezen Gelezen(const Plek& plek, Bestandswerk* werk) {
  IniGelezen gelezen;
  gelezen.fout = LeesHeelBestand(plek.huidig, gelezen.inhoud);
  if (SchadeVan(gelezen, plek).empty()) return gelezen;
  return LeesOfRed(plek, werk);
}

}  // namespace

bool HeeftInstellingen(const std::filesystem::path& map) {
  const Plek plek = PlekVan(map);
  std::error_code code;
  return std::filesystem::exists(plek.huidig, code) || ZoekKopie(plek).has_value();
}

IniGelezen LeesIniBestand(const std::filesystem::path& map, Bestandswerk& werk) {
  return Gelezen(PlekVan(map), &werk);
}

IniGelezen LeesIniBestand(const std::filesystem::path& map, bool herstel) {
  Bestandswerk werk;
  return Gelezen(PlekVan(map), herstel ? &werk : nullptr);
}

SchrijfUitslag SchrijfIniBestand(const std::filesystem::path& map, const IniMaker& maker,
                                 Bestandswerk& werk) {
  const Plek plek = PlekVan(map);
  Slot slot;
  SysteemFout fout = slot.Neem(plek.doel.parent_path(), kGeduld);
  if (fout.tekst == FoutInGebruik().tekst) return {SchrijfStap::Openen, std::move(fout)};
  IniGelezen gelezen;
  gelezen.fout = LeesHeelBestand(plek.huidig, gelezen.inhoud);
  const bool erIsEen = !gelezen.fout;
  if (!erIsEen && gelezen.fout.nummer != kBestandNietGevonden) {
    return {SchrijfStap::Openen, std::move(gelezen.fout)};
  }
  const bool goed = SchadeVan(gelezen, plek).empty() && erIsEen;
  const std::string inhoud = maker(goed ? &gelezen.inhoud : nullptr);
  SchrijfUitslag uitslag = SchrijfErnaast(plek, inhoud, werk);
  if (MoetErOverheen(uitslag, plek.huidig)) return SchrijfErOverheen(plek.huidig, inhoud, werk);
  if (uitslag.stap != SchrijfStap::Klaar) return uitslag;
  if (erIsEen && (goed || !HeeftNaam(plek.reserve))) Bewaar(plek.huidig, plek.reserve, werk);
  fout = Verwissel(plek, werk);
  if (fout) return {SchrijfStap::Openen, std::move(fout)};
  return {};
}

SchrijfUitslag SchrijfIniBestand(const std::filesystem::path& map, const IniMaker& maker) {
  Bestandswerk werk;
  return SchrijfIniBestand(map, maker, werk);
}

}  // namespace lb77
