#include "entry/ZoekPrs.h"

#include <algorithm>
#include <initializer_list>

#include "app/Hoofdmodule.h"
#include "entry/PersInfoForm.h"
#include "entry/VraagFilter.h"
#include "entry/VraagRecordNr.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::int32_t kEersteNr = 2;
// From the last of a page to the first of the one before.
constexpr std::int32_t kTerug = 2 * ZoekPrs::kRijen - 1;
constexpr std::size_t kPagina = ZoekPrs::kRijen;

constexpr std::string_view kStartFilter = "Start Filter";
constexpr std::string_view kFilterUit = "Filter Uit";

std::string TreffersTekst(std::size_t aantal, bool inFilter) {
  std::string uit = aantal == 0 ? "Geen persoon gevonden"
                    : aantal == 1
                        ? "1 persoon gevonden"
                        : GetalTekst(static_cast<std::int64_t>(aantal)) + " personen gevonden";
  if (inFilter) uit += " binnen het filter";
  return uit;
}

std::int32_t NrVan(const ZoekRij& rij) {
  return Getalwaarde(rij.RecordNrPrs.Bijschrift());
}

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
  Zoeknaam.BijWijziging([this] { ZoeknaamWijziging(); });
  Zoeknaam.BijToets([this](ToetsGebeurtenis& toets) { ZoeknaamToets(toets); });
  Personen.Elk([this](int, ZoekRij& rij) {
    rij.RecordNrPrs.BijKlik([this, &rij] { RecordNrPrsKlik(rij); });
    for (Teller* deel : {&rij.VoorNmPrs, &rij.AchterNmPrs, &rij.Periode}) {
      deel->BijDubbelklik([this, &rij] { DeelDubbelklik(rij); });
    }
    rij.InfoPersoon.BijKlik([this, &rij] { InfoPersoonKlik(rij); });
    rij.NaarPa.BijKlik([this, &rij] { NaarPaKlik(rij); });
    rij.NaarMa.BijKlik([this, &rij] { NaarMaKlik(rij); });
  });
  Vorige.BijKlik([this] { VorigeKlik(); });
  Volgende.BijKlik([this] { VolgendeKlik(); });
  NaarNr.BijKlik([this] { NaarNrKlik(); });
  FilterButton.BijKlik([this] { FilterButtonKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
  ZetEersteVeld(Zoeknaam);
}

void ZoekPrs::BijLaden() {
  LaadPagina();
}

void ZoekPrs::LaadPagina() {
  std::int16_t& huidig = hoofd_.volgers.HuidigPersoonNr;
  std::int32_t nr = std::max<std::int32_t>(huidig, kEersteNr);
  huidig = static_cast<std::int16_t>(nr);
  int rij = 0;
  for (nr = Vanaf(nr); rij < kRijen && nr <= kMaxRecords; nr = Vanaf(nr + 1)) {
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
  if (ZoektNaam()) return BeginBijTreffer(eersteTreffer_ + kRijen);
  BeginBij(hoofd_.volgers.HuidigPersoonNr + 1);
}

void ZoekPrs::VorigeKlik() {
  if (ZoektNaam()) return BeginBijTreffer(eersteTreffer_ - std::min(eersteTreffer_, kPagina));
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
  if (vraag.Nr() >= kEersteNr) WisZoeknaam();
  if (ZoektNaam()) return;
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
  if (ZoektNaam()) return ZoekTreffers();
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
  WisZoeknaam();
  GaNaarRecord(Getalwaarde(rij.NaarPa.Bijschrift()));
}

void ZoekPrs::NaarMaKlik(const ZoekRij& rij) {
  WisZoeknaam();
  GaNaarRecord(Getalwaarde(rij.NaarMa.Bijschrift()));
}

void ZoekPrs::ZetHuidig(const ZoekRij& rij) {
  const auto nr = NaarInt16(NrVan(rij));
  hoofd_.volgers.HuidigPersoonNr = nr.value_or(std::int16_t{0});
}

void ZoekPrs::ZoeknaamWijziging() {
  zoekt_ = Zoeknaam.Tekst().find_first_not_of(" ,") != std::string::npos;
  if (ZoektNaam()) return ZoekTreffers();
  WisZoeknaam();
  GaNaarRecord(kEersteNr);
}

void ZoekPrs::ZoekTreffers() {
  if (!namen_.IsGebouwd()) namen_.Bouw(hoofd_.bestanden.Bestand(BestandSoort::Personen));
  treffers_ = namen_.Zoek(Zoeknaam.Tekst(), filter_);
  NeemNummer();
  Treffers.ZetBijschrift(TreffersTekst(treffers_.size(), filter_.FilterAan));
  eersteTreffer_ = 0;
  GaNaarRecord(treffers_.empty() ? kEersteNr : treffers_.front());
}

// Whoever knows the number of a person types that.
void ZoekPrs::NeemNummer() {
  const std::string_view tekst = Trim(Zoeknaam.Tekst());
  const bool cijfers = std::ranges::all_of(tekst, IsCijfer);
  const auto nr = cijfers ? NaarInt16(Getalwaarde(tekst)) : std::nullopt;
  if (!nr || *nr < kEersteNr || *nr > hoofd_.Persoon.AantalRecords()) return;
  if (!hoofd_.Persoon.Lees(*nr) || !IsToonbaar()) return;
  const auto plek = std::ranges::lower_bound(treffers_, *nr);
  if (plek == treffers_.end() || *plek != *nr) treffers_.insert(plek, *nr);
}

void ZoekPrs::WisZoeknaam() {
  zoekt_ = false;
  treffers_.clear();
  Zoeknaam.ZetTekst("");
  Treffers.ZetBijschrift("");
}

std::int32_t ZoekPrs::Vanaf(std::int32_t nr) const {
  if (!ZoektNaam()) return nr;
  const auto treffer = std::ranges::lower_bound(treffers_, nr);
  return treffer == treffers_.end() ? kMaxRecords + 1 : *treffer;
}

// Behind the last page there is none.
void ZoekPrs::BeginBijTreffer(std::size_t treffer) {
  if (treffer >= treffers_.size()) return;
  eersteTreffer_ = treffer;
  GaNaarRecord(treffers_[treffer]);
}

// Enter does what the user means by it: page on as long as nothing is sought, take the only hit, or
// go to the hits.
void ZoekPrs::ZoeknaamToets(ToetsGebeurtenis& toets) {
  if (toets.code != toets::kEnter && toets.code != toets::kNumEnter) return;
  toets.verwerkt = true;
  if (!ZoektNaam()) {
    VolgendeKlik();
  } else if (treffers_.size() == 1 && LaatsteRij() == 1) {
    RecordNrPrsKlik(Personen(1));
  } else {
    ZetFocusOpRij(1);
  }
}

void ZoekPrs::BijToets(ToetsGebeurtenis& toets) {
  if (toets.code == toets::kOmlaag || toets.code == toets::kOmhoog) {
    StapRij(toets.code == toets::kOmlaag ? 1 : -1);
  } else if (toets.code == toets::kPageDown || toets.code == toets::kPageUp) {
    Blader(toets.code == toets::kPageDown ? 1 : -1);
  } else {
    return;
  }
  toets.verwerkt = true;
}

void ZoekPrs::Blader(int stap) {
  stap > 0 ? VolgendeKlik() : VorigeKlik();
  HerstelFocus();
}

// 0 when the focus stands elsewhere.
int ZoekPrs::RijMetFocus() const {
  for (int nummer = 1; nummer <= kRijen; ++nummer) {
    const ZoekRij& rij = Personen(nummer);
    for (const Knop* knop : {&rij.RecordNrPrs, &rij.InfoPersoon, &rij.NaarPa, &rij.NaarMa}) {
      if (knop == FocusVeld()) return nummer;
    }
  }
  return 0;
}

// Of those that show somebody; 0 when the list is empty.
int ZoekPrs::LaatsteRij() const {
  int laatste = kRijen;
  while (laatste > 0 && !Personen(laatste).RecordNrPrs.Zichtbaar()) --laatste;
  return laatste;
}

// Past an edge of the page the list turns it, and the focus goes on to the next person.
void ZoekPrs::StapRij(int stap) {
  const int hier = RijMetFocus();
  const int rij = hier + stap;
  if (hier == 0 || (rij >= 1 && rij <= LaatsteRij())) {
    return ZetFocusOpRij(hier == 0 && stap < 0 ? LaatsteRij() : rij);
  }
  const std::int32_t nr = NrVan(Personen(hier));
  stap > 0 ? VolgendeKlik() : VorigeKlik();
  int doel = 0;
  for (int kandidaat = 1; kandidaat <= LaatsteRij(); ++kandidaat) {
    const std::int32_t daar = NrVan(Personen(kandidaat));
    if (stap > 0 ? doel == 0 && daar > nr : daar < nr) doel = kandidaat;
  }
  if (doel == 0) doel = stap > 0 ? LaatsteRij() : 0;
  ZetFocusOpRij(doel);
}

// Row 0 is the field above the list, where also an empty list leads.
void ZoekPrs::ZetFocusOpRij(int rij) {
  if (rij < 1 || rij > LaatsteRij()) {
    ZetFocus(Zoeknaam);
  } else {
    ZetFocus(Personen(rij).RecordNrPrs);
  }
}

// A row that has gone takes the focus with it.
void ZoekPrs::HerstelFocus() {
  if (RijMetFocus() > 0 && !FocusVeld()->Bruikbaar()) {
    ZetFocusOpRij(std::min(RijMetFocus(), LaatsteRij()));
  }
}

void ZoekPrs::BackButtonKlik() {
  hoofd_.volgers.HuidigPersoonNr = 0;
  Sluit();
}

}  // namespace lb77
