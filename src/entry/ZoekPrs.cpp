#include "entry/ZoekPrs.h"

#include <algorithm>
#include <initializer_list>

#include "app/Hoofdmodule.h"
#include "entry/PersInfoForm.h"
#include "entry/VraagFilter.h"
#include "entry/VraagRecordNr.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::int32_t kEersteNr = 2;
// From the last of a page to the first of the one before.
constexpr std::int32_t kTerug = 2 * ZoekPrs::kRijen - 1;

constexpr std::string_view kStartFilter = "Start Filter";
constexpr std::string_view kFilterUit = "Filter Uit";

void ToonOuder(Knop& knop, std::int16_t nr) {
  knop.ZetBijschrift(NrTekst(nr));
  knop.ZetZichtbaar(nr > 0);
}

}  // namespace

ZoekRij::ZoekRij(Formulier& formulier, int nummer)
    : RecordNrPrs(formulier, Genummerd("RecordNrPrs", nummer), ""),
      VoorNmPrs(formulier, Genummerd("VoorNmPrs", nummer)),
      AchterNmPrs(formulier, Genummerd("AchterNmPrs", nummer)),
      Periode(formulier, Genummerd("Periode", nummer)),
      InfoPersoon(formulier, Genummerd("InfoPersoon", nummer), "i"),
      NaarPa(formulier, Genummerd("NaarPa", nummer), ""),
      NaarMa(formulier, Genummerd("NaarMa", nummer), "") {}

void ZoekRij::Toon(PersoonLB77& persoon, std::int16_t nr) {
  ZetZichtbaar(true);
  RecordNrPrs.ZetBijschrift(NrTekst(nr));
  VoorNmPrs.ZetTekst(persoon.VoorNaamTrue());
  AchterNmPrs.ZetTekst(persoon.AchterNaamTrue());
  Periode.ZetTekst(persoon.Periode(nr));
}

void ZoekRij::ToonOuders(std::int16_t pa, std::int16_t ma) {
  ToonOuder(NaarPa, pa);
  ToonOuder(NaarMa, ma);
}

void ZoekRij::ZetZichtbaar(bool zichtbaar) {
  for (Bediening* deel : std::initializer_list<Bediening*>{
           &RecordNrPrs, &VoorNmPrs, &AchterNmPrs, &Periode, &InfoPersoon, &NaarPa, &NaarMa}) {
    deel->ZetZichtbaar(zichtbaar);
  }
}

ZoekPrs::ZoekPrs(Hoofdmodule& hoofd) : Formulier("ZoekPrs", "Zoek Persoon"), hoofd_(hoofd) {
  ZetHulpOnderwerp("zoeken");
  Personen.Elk([this](int, ZoekRij& rij) {
    rij.RecordNrPrs.BijKlik([this, &rij] { RecordNrPrsKlik(rij); });
    rij.InfoPersoon.BijKlik([this, &rij] { InfoPersoonKlik(rij); });
    rij.NaarPa.BijKlik([this, &rij] { NaarPaKlik(rij); });
    rij.NaarMa.BijKlik([this, &rij] { NaarMaKlik(rij); });
  });
  Vorige.BijKlik([this] { VorigeKlik(); });
  Volgende.BijKlik([this] { VolgendeKlik(); });
  NaarNr.BijKlik([this] { NaarNrKlik(); });
  FilterButton.BijKlik([this] { FilterButtonKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
  ZetEersteVeld(Volgende);
}

void ZoekPrs::BijLaden() {
  LaadPagina();
}

void ZoekPrs::LaadPagina() {
  std::int16_t& huidig = hoofd_.volgers.HuidigPersoonNr;
  std::int32_t nr = std::max<std::int32_t>(huidig, kEersteNr);
  huidig = static_cast<std::int16_t>(nr);
  int rij = 0;
  for (; rij < kRijen && nr <= kMaxRecords; ++nr) {
    const auto kandidaat = static_cast<std::int16_t>(nr);
    if (!hoofd_.Persoon.Lees(kandidaat)) break;
    if (!IsToonbaar()) continue;
    VulRij(Personen(++rij), kandidaat);
    huidig = kandidaat;
  }
  while (rij < kRijen) Personen(++rij).Verberg();
}

// Does the person in the buffer belong in the list?
bool ZoekPrs::IsToonbaar() const {
  const PersoonLB77& persoon = hoofd_.Persoon;
  return !persoon.IsVolgRecord() &&
         filter_.LaatDoor(persoon.VoorNaamTrue(), persoon.AchterNaamTrue());
}

void ZoekPrs::VulRij(ZoekRij& rij, std::int16_t nr) {
  const std::int16_t ouders = hoofd_.Persoon.RelNrOuders();
  rij.Toon(hoofd_.Persoon, nr);
  const bool bekend = ouders > 0 && hoofd_.Relatie.Lees(ouders);
  rij.ToonOuders(bekend ? hoofd_.Relatie.ManNr() : std::int16_t{0},
                 bekend ? hoofd_.Relatie.VrouwNr() : std::int16_t{0});
}

// Starts the page at `nr`; one past the end shows the last records instead.
void ZoekPrs::BeginBij(std::int32_t nr) {
  const std::int32_t laatste = hoofd_.Persoon.AantalRecords();
  if (nr > laatste) nr = laatste - (kRijen - 1);
  GaNaarRecord(nr);
}

void ZoekPrs::GaNaarRecord(std::int32_t nr) {
  hoofd_.volgers.HuidigPersoonNr = static_cast<std::int16_t>(std::max(nr, kEersteNr));
  LaadPagina();
}

void ZoekPrs::VolgendeKlik() {
  BeginBij(hoofd_.volgers.HuidigPersoonNr + 1);
}

void ZoekPrs::VorigeKlik() {
  GaNaarRecord(filter_.FilterAan ? VorigeMetFilter() : hoofd_.volgers.HuidigPersoonNr - kTerug);
}

// As many persons back as without a filter, but only those that pass count.
std::int32_t ZoekPrs::VorigeMetFilter() {
  std::int16_t nr = hoofd_.volgers.HuidigPersoonNr;
  for (int geteld = 0; geteld < kTerug && nr > kEersteNr;) {
    --nr;
    if (hoofd_.Persoon.Lees(nr) && IsToonbaar()) ++geteld;
  }
  return nr;
}

void ZoekPrs::NaarNrKlik() {
  VraagRecordNr vraag("Ga naar Persoonsrecord");
  hoofd_.gesprek.ToonModaal(vraag);
  if (vraag.Nr() >= kEersteNr) {
    BeginBij(vraag.Nr());
  } else {
    GaNaarRecord(hoofd_.volgers.HuidigPersoonNr - (kRijen - 1));
  }
}

void ZoekPrs::FilterButtonKlik() {
  filter_ = {.FilterAan = !filter_.FilterAan, .FilterVoorNm = {}, .FilterAchterNm = {}};
  if (filter_.FilterAan) {
    hoofd_.gesprek.Toon<VraagFilter>(filter_);
    filter_.FilterAan = !filter_.FilterVoorNm.empty() || !filter_.FilterAchterNm.empty();
    if (filter_.FilterAan) hoofd_.volgers.HuidigPersoonNr = kEersteNr;
  }
  FilterButton.ZetBijschrift(filter_.FilterAan ? kFilterUit : kStartFilter);
  LaadPagina();
}

void ZoekPrs::RecordNrPrsKlik(const ZoekRij& rij) {
  ZetHuidig(rij);
  Sluit();
}

// kept: a step to the next or the previous page starts from this person afterwards.
void ZoekPrs::InfoPersoonKlik(const ZoekRij& rij) {
  ZetHuidig(rij);
  hoofd_.gesprek.Toon<PersInfoForm>(hoofd_);
}

void ZoekPrs::NaarPaKlik(const ZoekRij& rij) {
  GaNaarRecord(Getalwaarde(rij.NaarPa.Bijschrift()));
}

void ZoekPrs::NaarMaKlik(const ZoekRij& rij) {
  GaNaarRecord(Getalwaarde(rij.NaarMa.Bijschrift()));
}

void ZoekPrs::ZetHuidig(const ZoekRij& rij) {
  const auto nr = NaarInt16(Getalwaarde(rij.RecordNrPrs.Bijschrift()));
  hoofd_.volgers.HuidigPersoonNr = nr.value_or(std::int16_t{0});
}

void ZoekPrs::BackButtonKlik() {
  hoofd_.volgers.HuidigPersoonNr = 0;
  Sluit();
}

}  // namespace lb77
