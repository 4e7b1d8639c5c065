#include "contact/ExpGCICorr.h"

#include <cstddef>
#include <optional>

#include "contact/GciProvNamen.h"
#include "forms/Gesprek.h"
#include "text/Getallen.h"

namespace lb77 {

ExpGCICorr::GciRegel::GciRegel(Formulier& formulier, int nummer)
    : GCICodeKnop(formulier, Genummerd("GCICodeKnop", nummer), {},
                  "Kies regel " + GetalTekst(nummer) + ", plaats"),
      GCIPltsNm(formulier, Genummerd("GCIPltsNm", nummer)),
      GCIProvNm(formulier, Genummerd("GCIProvNm", nummer)),
      GCILandNm(formulier, Genummerd("GCILandNm", nummer)) {
  const std::string plek = " op regel " + GetalTekst(nummer);
  GCIPltsNm.ZetLeesnaam("Plaatsnaam" + plek);
  GCIProvNm.ZetLeesnaam("Provincie" + plek);
  GCILandNm.ZetLeesnaam("Land" + plek);
}

void ExpGCICorr::GciRegel::ZetZichtbaar(bool zichtbaar) {
  GCICodeKnop.ZetZichtbaar(zichtbaar);
  for (Teller* teller : {&GCIPltsNm, &GCIProvNm, &GCILandNm}) teller->ZetZichtbaar(zichtbaar);
}

void ExpGCICorr::GciRegel::Toon(const GciTabellen& tabellen, int rij, const std::string& gezocht) {
  const GciPlaatsen& plaatsen = tabellen.plaatsen;
  GCICodeKnop.ZetNr(rij);
  GCIPltsNm.ZetTekst(plaatsen.Naam(rij));
  GCIProvNm.ZetTekst(
      ProvincieNaam(plaatsen.Prov(rij), plaatsen.Land(rij), tabellen.provincies, gezocht));
  GCILandNm.ZetTekst(LandNaam(plaatsen.Land(rij), tabellen.landen));
  ZetZichtbaar(true);
}

void ExpGCICorr::GciRegel::Verberg() {
  GCICodeKnop.ZetNr(0);
  for (Teller* teller : {&GCIPltsNm, &GCIProvNm, &GCILandNm}) teller->ZetTekst("");
  ZetZichtbaar(false);
}

ExpGCICorr::ExpGCICorr(Gesprek& gesprek, const GciTabellen& tabellen, const GciPlaats& plaats)
    : Formulier("ExpGCICorr",
                "Corrigeer Plaatsnamen voor Export in HSK Contactdienst formaat (GCI)"),
      gesprek_(gesprek),
      tabellen_(tabellen),
      plaats_(plaats) {
  ZetHulpOnderwerp("contactdienst");
  ZetEersteVeld(FilterPlaatsnaam);
  FilterProvAfk.ZetLeesnaam("Code van de provincie");
  FilterLandAfk.ZetLeesnaam("Code van het land");
  FilterPlaatsnaam.BijVerlaten([this] { return FilterPlaatsnaamVerlaten(); });
  FilterProv.BijVerlaten([this] { return FilterProvVerlaten(); });
  FilterLand.BijVerlaten([this] { return FilterLandVerlaten(); });
  FilterButton.BijKlik([this] { FilterButtonKlik(); });
  Plaatsen.Elk([this](int nummer, GciRegel& regel) {
    regel.GCICodeKnop.BijKlik([this, nummer] { GCICodeKnopKlik(nummer); });
  });
  VorigeButton.BijKlik([this] { VorigeButtonKlik(); });
  VolgendeButton.BijKlik([this] { VolgendeButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void ExpGCICorr::BijLaden() {
  LB77Pltscode.ZetTekst(GetalTekst(plaats_.nr));
  LB77PltsNm.ZetTekst(plaats_.eigenNaam);
  LB77ProvCode.ZetTekst(plaats_.eigenCode);
  const GciGebied& gebied = plaats_.gebied;
  filter_ = {plaats_.naam, gebied.prov, gebied.land};
  provTekst_ = ProvincieNaam(gebied.prov, gebied.land, tabellen_.provincies);
  landTekst_ = LandNaam(gebied.land, tabellen_.landen);
  FilterPlaatsnaam.ZetTekst(plaats_.naam);
  FilterProv.ZetTekst(provTekst_);
  FilterLand.ZetTekst(landTekst_);
  Filter(true);
}

void ExpGCICorr::Filter(bool aan) {
  filter_.aan = aan;
  FilterButton.ZetBijschrift(aan ? "Filter Uit" : "Start Filter");
  FilterProvAfk.ZetTekst(filter_.prov);
  FilterLandAfk.ZetTekst(filter_.land);
  ToonVanaf(1);
}

void ExpGCICorr::ToonVanaf(int rij) {
  getoond_ = RijenVanaf(tabellen_.plaatsen, filter_, rij, kRijen);
  Plaatsen.Elk([this](int nummer, GciRegel& regel) {
    const auto plek = static_cast<std::size_t>(nummer - 1);
    if (plek < getoond_.size()) {
      regel.Toon(tabellen_, getoond_[plek], FilterProv.Tekst());
    } else {
      regel.Verberg();
    }
  });
  const bool leeg = getoond_.empty();
  GeenPlaatsGevondenLabel.ZetZichtbaar(leeg);
  VorigeButton.ZetIngeschakeld(
      !leeg && !RijenVoor(tabellen_.plaatsen, filter_, getoond_.front(), 1).empty());
  VolgendeButton.ZetIngeschakeld(
      !leeg && !RijenVanaf(tabellen_.plaatsen, filter_, getoond_.back() + 1, 1).empty());
}

// The button of the filter does that itself. A click on what has changed meanwhile is swallowed: it was
// meant for what stood there before.
bool ExpGCICorr::FilterAnders() {
  if (Doel() == &FilterButton) return true;
  Filter(true);
  bool geraakt = Doel() == &VorigeButton || Doel() == &VolgendeButton;
  Plaatsen.Elk([&](int, const GciRegel& regel) { geraakt |= Doel() == &regel.GCICodeKnop; });
  return !geraakt;
}

// A field that was only passed through leaves the page as it is.
bool ExpGCICorr::FilterPlaatsnaamVerlaten() {
  if (FilterPlaatsnaam.Tekst() == filter_.naam) return true;
  filter_.naam = FilterPlaatsnaam.Tekst();
  return FilterAnders();
}

bool ExpGCICorr::FilterProvVerlaten() {
  if (FilterProv.Tekst() == provTekst_) return true;
  auto code = ProvincieCode(FilterProv.Tekst(), filter_.land, tabellen_.provincies);
  if (!code) code = tabellen_.plaatsen.MetProv(FilterProv.Tekst());
  if (!code) {
    gesprek_.Waarschuw("Onbekende provincienaam");
    return false;
  }
  filter_.prov = *code;
  provTekst_ = ProvincieNaamBij(*code, filter_.land, tabellen_.provincies, FilterProv.Tekst());
  // A code that only the places have is all there is to show.
  if (provTekst_ == kNaamloos) provTekst_ = *code;
  FilterProv.ZetTekst(provTekst_);
  return FilterAnders();
}

bool ExpGCICorr::FilterLandVerlaten() {
  if (FilterLand.Tekst() == landTekst_) return true;
  const auto code = LandCode(FilterLand.Tekst(), tabellen_.landen);
  if (!code) {
    gesprek_.Waarschuw("Onbekend land");
    return false;
  }
  filter_.land = *code;
  landTekst_ = LandNaam(*code, tabellen_.landen);
  FilterLand.ZetTekst(landTekst_);
  return FilterAnders();
}

void ExpGCICorr::FilterButtonKlik() {
  Filter(!filter_.aan);
}

void ExpGCICorr::VorigeButtonKlik() {
  if (getoond_.empty()) return;
  const auto rijen = RijenVoor(tabellen_.plaatsen, filter_, getoond_.front(), kRijen);
  if (!rijen.empty()) ToonVanaf(rijen.front());
}

void ExpGCICorr::VolgendeButtonKlik() {
  if (getoond_.empty()) return;
  ToonVanaf(getoond_.back() + 1);
}

void ExpGCICorr::GCICodeKnopKlik(int nummer) {
  gekozen_ = static_cast<std::int16_t>(Plaatsen(nummer).GCICodeKnop.Nr());
  Sluit();
}

}  // namespace lb77
