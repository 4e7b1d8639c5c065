#include "program/Wegen.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "app/Bestandensets.h"
#include "app/GezindteRij.h"
#include "app/Gezindtebron.h"
#include "app/InWelkeSet.h"
#include "app/Installatie.h"
#include "app/NieuweSet.h"
#include "app/OudeSetForm.h"
#include "app/SetMaken.h"
#include "app/SetVerwijderen.h"
#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "store/Platform.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kVoorbeeldSet = "ORANJE";
constexpr std::string_view kVoorbeeldOms = "Huis Oranje-Nassau";

// The row of the sample family in the list of sets: the one that was made from its file. Empty when
// there is none.
std::string VoorbeeldRij(const IniClass& ini) {
  for (int i = 1; i <= ini.AantalBestandenSets(); ++i) {
    if (ini.BestandenSetOms(i) == kVoorbeeldOms) return ini.SetOmschrijving(i);
  }
  return {};
}

// True when what stands at the beginning is that of a GEDCOM file, in whatever encoding.
bool BegintAlsGedcom(std::string_view begin) {
  constexpr std::size_t kKop = 64;
  std::string tekens;  // without blanks, byte order marks and the zeros of UTF-16
  for (const char teken : begin.substr(0, kKop)) {
    if (teken > ' ' && teken <= '~') tekens += teken;
  }
  return Hoofdletters(tekens).starts_with("0HEAD");
}

SysteemFout LeesBegin(const std::filesystem::path& bestand, std::string& begin) {
  constexpr std::size_t kBegin = 256;
  Bestandsgreep greep;
  if (SysteemFout fout = greep.Open(bestand, Openwijze::AlleenLezen)) return fout;
  begin.resize(kBegin);
  Leesuitslag uitslag = greep.Lees(0, begin);
  begin.resize(uitslag.gelezen);
  return std::move(uitslag.fout);
}

// Nothing but the records 1.
bool IsLeeg(Bestandenset& bestanden) {
  return std::ranges::all_of(kBestandSoorten, [&bestanden](BestandSoort soort) {
    return bestanden.Bestand(soort).Lengte() <= RecordLengteVan(soort);
  });
}

}  // namespace

Wegen::Wegen(Hoofdmodule& hoofd, MenuWindow& menu, std::vector<std::filesystem::path> installatie)
    : hoofd_(hoofd), menu_(menu), installatie_(std::move(installatie)) {}

void Wegen::Ga(Weg weg) {
  switch (weg) {
    case Weg::NieuweFamilie:
      return hoofd_.gesprek.Toon<NieuweSet>(hoofd_, menu_);
    case Weg::Gedcom:
      return VraagGedcom();
    case Weg::OudeBestanden:
      return hoofd_.gesprek.Toon<OudeSetForm>(hoofd_, menu_);
    case Weg::Voorbeeld:
      return ToonVoorbeeld();
    case Weg::Teruggevonden:
      return;  // the main window has opened the first of them
  }
}

void Wegen::VraagGedcom() {
  const auto bestand = hoofd_.gesprek.VraagBestand(
      {.wijze = BestandsWijze::Openen, .filter = std::string(kGedcomFilter), .beginmap = {}});
  if (bestand) LeesGedcom(*bestand);
}

void Wegen::LeesGedcom(const std::filesystem::path& bestand) {
  if (!IsBruikbaar(bestand)) return;
  const std::string eerder = OpenSetNaam(hoofd_);
  InWelkeSet vraag(hoofd_, menu_, bestand);
  hoofd_.gesprek.ToonModaal(vraag);
  if (!vraag.Gekozen()) return HeropenSet(hoofd_, menu_, eerder);
  hoofd_.gesprek.Toon<ImpGedcom>(hoofd_, bestand);
  if (vraag.IsNieuw()) RuimLegeSet(eerder);
}

bool Wegen::IsBruikbaar(const std::filesystem::path& bestand) {
  Gesprek& gesprek = hoofd_.gesprek;
  const std::string naam = PadTekst(bestand);
  std::error_code code;
  const std::filesystem::file_type soort = std::filesystem::status(bestand, code).type();
  if (soort == std::filesystem::file_type::not_found) {
    gesprek.Waarschuw("Het bestand " + naam + " is er niet");
    return false;
  }
  if (soort == std::filesystem::file_type::directory) {
    gesprek.Waarschuw(naam + " is een map en geen GEDCOM-bestand");
    return false;
  }
  std::string begin;
  if (const SysteemFout fout = LeesBegin(bestand, begin)) {
    gesprek.Fout("Het bestand " + naam + " kan niet worden gelezen\n" + fout.tekst);
    return false;
  }
  if (begin.empty()) {
    gesprek.Waarschuw("Het bestand " + naam + " is leeg");
    return false;
  }
  return BegintAlsGedcom(begin) ||
         gesprek.VraagBedacht(naam +
                              " ziet er niet uit als een GEDCOM-bestand: het begint niet met "
                              "0 HEAD.\nToch inlezen ?");
}

// Whoever came to read a file has no use for it.
void Wegen::RuimLegeSet(const std::string& eerder) {
  if (!hoofd_.SetActief() || !IsLeeg(hoofd_.bestanden)) return;
  const std::string naam = hoofd_.ActieveSetNaam;
  hoofd_.bestanden.SluitAlles();
  if (const int index = hoofd_.Ini.BestandenSetIndex(naam); index > 0) HaalUitLijst(hoofd_, index);
  if (hoofd_.Ini.EindeGevraagd()) return;
  VerwijderSetVanSchijf(hoofd_.gesprek, hoofd_.Ini.DataDir(), naam);
  const bool leeg = hoofd_.Ini.AantalBestandenSets() == 0;
  hoofd_.ActieveSetNaam = leeg ? kGeenSetAanwezig : kGeenSetActief;
  menu_.ZetStatus();
  hoofd_.gesprek.Waarschuw("Er is niets ingelezen. De lege bestandenset " + naam +
                           " is weer weggehaald.");
  HeropenSet(hoofd_, menu_, eerder);
}

void Wegen::ToonVoorbeeld() {
  if (const std::string rij = VoorbeeldRij(hoofd_.Ini); !rij.empty()) {
    static_cast<void>(OpenSetVanRij(hoofd_, menu_, rij));
    return;
  }
  const auto bestand = VindInstallatie(installatie_, kVoorbeeldGedcom);
  if (!bestand) {
    hoofd_.gesprek.Waarschuw(
        "De voorbeeldfamilie (oranje-nassau.ged) is niet bij het programma gevonden");
    return;
  }
  const std::string naam = VrijeSetNaam(hoofd_, kVoorbeeldSet);
  if (!KanNieuweSetZijn(hoofd_, naam)) return;
  const std::string eerder = OpenSetNaam(hoofd_);
  if (!MaakSet(hoofd_, menu_, naam, std::string(kVoorbeeldOms))) {
    return HeropenSet(hoofd_, menu_, eerder);
  }
  // Without them the denominations of the sample would be cut to two letters.
  if (hoofd_.Ini.IniWaarde(kGezindteSectie, GezindteSleutel(0)).empty()) {
    static_cast<void>(NeemGezindten(hoofd_.Ini, bestand->parent_path() / "LIJNBOOM.INI"));
    VulGezindten(hoofd_);
  }
  hoofd_.gesprek.Toon<ImpGedcom>(hoofd_, *bestand, ImpWijze::Vanzelf);
  RuimLegeSet(eerder);
}

}  // namespace lb77
