#include "exchange/ImpLoop.h"

#include <cstddef>
#include <utility>

#include "exchange/EigenPaden.h"
#include "exchange/GedGezindte.h"
#include "exchange/GedPlaatsNaam.h"
#include "text/Bestandstekst.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

constexpr std::int32_t kRegelsPerVerversing = 128;
constexpr std::size_t kPlaatsnaam = 25;

}  // namespace

ImpLoop::ImpLoop(const ImpDelen& delen_, std::int16_t laatstePersoon, std::int16_t laatsteRelatie)
    : delen(delen_),
      plaatsen_(delen_.plaats),
      laatstePersoon_(laatstePersoon),
      laatsteRelatie_(laatsteRelatie) {}

void ImpLoop::BeginGang() {
  // The names and the source stay, until a line of this pass brings others.
  stand.regels = stand.personen = stand.relaties = stand.bronnen = 0;
  context_ = "H-0";
  persoonNr_ = relatieNr_ = 0;
}

void ImpLoop::TelRegel() {
  if (++stand.regels % kRegelsPerVerversing == 0) delen.melder.Ververs(stand);
}

GedDelen ImpLoop::Ontleed(std::string_view regel) {
  GedDelen delen = GedRegel(regel);
  if (!eigen || delen.waarde.find("@@") == std::string_view::npos) return delen;
  waarde_ = MetEnkeleAt(delen.waarde);
  delen.waarde = waarde_;
  return delen;
}

GedSoort ImpLoop::Kop(const GedDelen& regel) {
  delen.melder.BijRecordEinde();
  const GedSoort soort = GedSoortVan(regel.tag);
  if (soort == GedSoort::Persoon) {
    persoonNr_ = GedPersId.Nr(static_cast<std::size_t>(stand.personen++));
  } else if (soort == GedSoort::Relatie) {
    relatieNr_ = GedRelId.Nr(static_cast<std::size_t>(stand.relaties++));
  } else if (soort == GedSoort::Bron) {
    ++stand.bronnen;
  }
  // A repository leaves the context where it stood.
  if (soort != GedSoort::Bewaarplaats) context_ = GedContext(soort, regel.id);
  return soort;
}

std::int16_t ImpLoop::NieuwePersoon() {
  if (!delen.persoon.Nieuw(laatstePersoon_ + 1)) return 0;
  return ++laatstePersoon_;
}

std::int16_t ImpLoop::NieuweRelatie() {
  if (!delen.relatie.Nieuw(laatsteRelatie_ + 1)) return 0;
  return ++laatsteRelatie_;
}

void ImpLoop::MerkOpslag(std::string_view windows, std::size_t breedte) {
  if (IsAscii(windows)) return;
  // Stored text may take more room: what it has no character for is written with two.
  const bool kwijt = TelTekens(windows);
  if (kwijt || WindowsNaarDos(windows).size() > breedte) Merk();
}

void ImpLoop::MerkEigen(std::string_view windows, std::size_t breedte) {
  if (windows.size() > breedte) Merk();
  MerkOpslag(windows, breedte);
}

bool ImpLoop::TelTekens(std::string_view windows) {
  bool kwijt = false;
  for (const char& teken : windows) {
    if (static_cast<unsigned char>(teken) < 0x80 || WindowsNaarDos({&teken, 1}) != "?") continue;
    tekens.Tel(CodepuntVan(teken), stand.regels);
    kwijt = true;
  }
  return kwijt;
}

std::string ImpLoop::BronUtf8(std::string_view bron) const {
  return omgezet ? HeelUtf8(bron) : WindowsNaarUtf8(GedNaarWindows(tekenset, bron));
}

std::string ImpLoop::GedTekst(std::string_view tekst) {
  if (tekenset == GedTekenset::CP850) delen.melder.MeldDos850();
  return GedNaarWindows(tekenset, tekst);
}

GedDatumUitslag ImpLoop::Datum(std::string_view waarde) {
  GedDatumUitslag datum = GedDatum(waarde, context_);
  if (!datum.log.empty()) {
    const std::string windows = GedNaarWindows(tekenset, waarde);
    datum = GedDatumOpnieuw(waarde, windows, context_, std::move(datum));
  }
  for (const std::string& regel : datum.log) delen.melder.Log(regel);
  return datum;
}

void ImpLoop::NeemPlaatsRecord(std::string_view id, std::string_view naam, std::string_view prov) {
  MerkEigen(naam, kPlaatsnaam);
  const std::int16_t nr = plaatsen_.Neem(naam, prov);
  if (nr == 0) Log(" - Plaats niet opgeslagen: " + std::string(naam));
  plaatsId_.Voeg(id, nr);
}

std::int16_t ImpLoop::EigenPlaats(std::string_view verwijzing) {
  const std::int16_t nr = plaatsId_.NrVan(verwijzing);
  if (nr == 0) TelVerlies(Verlies::Verwijzing);
  return nr;
}

std::string ImpLoop::GedPlaats(std::string_view waarde) {
  const std::string tekst = GedTekst(Trim(waarde));
  const std::string_view naam = GedPlaatsNaam(tekst);
  // What told that the place is not certain is lost.
  if (naam != tekst) Merk();
  if (naam.empty()) return "0";
  if (naam.size() > kPlaatsnaam) TelVerlies(Verlies::Plaatsnaam);
  MerkOpslag(naam, kPlaatsnaam);
  const std::int16_t nr = delen.plaats.NrOfNieuw(naam, "");
  if (nr > 0) return GetalTekst(nr);
  Merk();
  Log(" - Plaats niet opgeslagen: " + std::string(naam));
  return "0";
}

std::string ImpLoop::NrVan(const GedIdTabel& tabel, std::string_view verwijzing) {
  const std::int16_t nr = tabel.NrVan(verwijzing);
  if (nr == 0 && !Trim(verwijzing).empty()) TelVerlies(Verlies::Verwijzing);
  return GetalTekst(nr);
}

std::string ImpLoop::GedPersNr(std::string_view verwijzing) {
  return NrVan(GedPersId, verwijzing);
}

std::string ImpLoop::GedRelNr(std::string_view verwijzing) {
  return NrVan(GedRelId, verwijzing);
}

std::string ImpLoop::Gezindte(std::string_view waarde) {
  const Gezindten& gezindten = delen.schrijfwijze.gezindten;
  const std::string tekst = GedTekst(Trim(waarde));
  std::string code = GedGezindte(tekst, gezindten);
  // Of a word that the list does not have only the begin is stored.
  if (tekst.size() > code.size() && GezindteCode(tekst, gezindten) != code) Merk();
  if (TelTekens(code)) Merk();
  return code;
}

}  // namespace lb77
