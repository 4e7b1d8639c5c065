#include "program/Wegen.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "app/Bestandensets.h"
#include "app/HeelBestand.h"
#include "app/InWelkeSet.h"
#include "app/Installatie.h"
#include "app/NieuweSet.h"
#include "app/OudeSetForm.h"
#include "app/SetMaken.h"
#include "app/Start.h"
#include "exchange/ImpGedcom.h"
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

// Who has no denominations yet gets those that the sample uses: without them their names would be
// cut to two letters.
void NeemGezindten(Hoofdmodule& hoofd, const std::filesystem::path& instellingen) {
  if (!hoofd.Ini.IniWaarde("Namenfile", "Gez1").empty()) return;
  std::string tekst;
  if (LeesHeelBestand(instellingen, tekst)) return;
  for (std::size_t begin = 0; begin < tekst.size();) {
    const std::size_t eind = std::min(tekst.find('\n', begin), tekst.size());
    std::string regel = tekst.substr(begin, eind - begin);
    begin = eind + 1;
    if (regel.ends_with('\r')) regel.pop_back();
    const std::size_t plek = regel.find('=');
    if (!regel.starts_with("Gez") || plek == std::string::npos) continue;
    hoofd.Ini.IniZet("Namenfile", regel.substr(0, plek), Trim(regel.substr(plek + 1)));
  }
  VulGezindten(hoofd);
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
  }
}

void Wegen::VraagGedcom() {
  const auto bestand = hoofd_.gesprek.VraagBestand(
      {.wijze = BestandsWijze::Openen, .filter = std::string(kGedcomFilter), .beginmap = {}});
  if (bestand) LeesGedcom(*bestand);
}

void Wegen::LeesGedcom(const std::filesystem::path& bestand) {
  std::error_code code;
  if (!std::filesystem::is_regular_file(bestand, code)) {
    hoofd_.gesprek.Waarschuw("Het bestand " + PadTekst(bestand) + " is er niet");
    return;
  }
  InWelkeSet vraag(hoofd_, menu_, bestand);
  hoofd_.gesprek.ToonModaal(vraag);
  if (vraag.Gekozen()) hoofd_.gesprek.Toon<ImpGedcom>(hoofd_, bestand);
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
  if (!MaakSet(hoofd_, menu_, naam, std::string(kVoorbeeldOms))) return;
  NeemGezindten(hoofd_, bestand->parent_path() / "LIJNBOOM.INI");
  hoofd_.gesprek.Toon<ImpGedcom>(hoofd_, *bestand, ImpWijze::Vanzelf);
}

}  // namespace lb77
