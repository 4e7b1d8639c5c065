#include "exchange/Ged551Schrijver.h"

#include <string>
#include <string_view>
#include <utility>

#include "exchange/EigenPaden.h"
#include "exchange/Ged551Kop.h"
#include "exchange/Ged551Persoon.h"
#include "exchange/Ged551Relatie.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"

namespace lb77 {

namespace {

// What other programs miss because only a tag of our own tells it.
struct EigenBetekenis {
  std::string_view tag;
  std::string_view tekst;
};
constexpr EigenBetekenis kBetekenissen[] = {
    {eigen::kZeker, "onzekere plaats"},
    {eigen::kCorr, "correctiecode die DATE niet kent"},
    {eigen::kDatum, "datum die de standaard niet kent (staat er als zin)"},
    {eigen::kGezindte, "code van een gezindte (RELI of TYPE geeft de naam)"},
    {eigen::kSoort, "code van een soort huwelijk (TYPE geeft de naam)"},
    {eigen::kGeslacht, "ander geslacht dan man of vrouw"},
    {eigen::kRubriek, "rubriek van een opmerking"},
    {eigen::kProg, "uitvoer waarin een opmerking staat"},
    {eigen::kRelatie, "lege plek tussen de relaties"},
    {eigen::kKind, "lege plek tussen de kinderen"},
};

std::string Keer(std::string_view tekst, int aantal) {
  return std::string(tekst) + ": " + GetalTekst(aantal) + " keer";
}

}  // namespace

Ged551Schrijver::Ged551Schrijver(ExpUitvoer& uit, ExpUitvoer& log, const Gegevens& gegevens,
                                 const ExpSelectie& selectie, GedKopGegevens kop)
    : uit_(uit),
      log_(log),
      gegevens_(gegevens),
      selectie_(selectie),
      kop_(std::move(kop)),
      regels_(uit),
      opmerkingen_(gegevens),
      velden_(gegevens, regels_, opmerkingen_, gemis_) {}

void Ged551Schrijver::Kop() {
  log_.Regel("Soort bestand: GEDCOM 5.5.1, tekenset UTF-8");
  mee_ = std::make_unique<const Ged551Mee>(Verken(gegevens_, selectie_));
  SchrijfGed551Kop(kop_, regels_);
  Plaatsen();
}

void Ged551Schrijver::Plaatsen() {
  for (std::int32_t getal = 2; getal <= kHoogstePlaats; ++getal) {
    const auto nr = static_cast<std::int16_t>(getal);
    if (!mee_->plaatsen.Bevat(nr)) continue;
    const std::string naam = gegevens_.plaats.Naam(nr);
    regels_.Record('P', nr, eigen::kPlaats);
    // Before the name: the import makes the place when it reads that.
    velden_.Veld(1, eigen::kProv, gegevens_.plaats.Prov(nr));
    regels_.Regel(1, "NAME", naam);
  }
}

void Ged551Schrijver::Persoon(std::int16_t nr) {
  const bool gaat = mee_->personen.Bevat(nr);
  if (gaat && SchrijfGed551Persoon(nr, velden_, *mee_)) {
    ++personen_;
  } else if (gaat || !gegevens_.persoon.Lees(nr) || !gegevens_.persoon.IsVolgRecord()) {
    log_.Regel(NietUitgevoerd(kPersoonLeesfout, nr));
  }
}

void Ged551Schrijver::Relatie(std::int16_t nr) {
  const bool gaat = mee_->relaties.Bevat(nr);
  if (gaat && SchrijfGed551Relatie(nr, velden_, *mee_)) {
    ++relaties_;
  } else if (gaat || !gegevens_.relatie.Lees(nr) || !gegevens_.relatie.IsVolgRecord()) {
    log_.Regel(NietUitgevoerd(kRelatieLeesfout, nr));
  }
}

void Ged551Schrijver::Slot() {
  uit_.Regel("0 TRLR");
}

void Ged551Schrijver::LogSlot(const ExpTelling&) {
  log_.Regel(Totaal(personen_, "Personen geëxporteerd"_w));
  log_.Regel(Totaal(relaties_, "Relaties geëxporteerd"_w));
  log_.Regel(Totaal(mee_->plaatsen.Aantal(), "Plaatsen geëxporteerd"_w));
  LogVerlies();
  LogEigenTags();
  log_.Regel(kExporterenVoltooid);
}

void Ged551Schrijver::LogVerlies() {
  const std::pair<std::string_view, int> verliezen[] = {
      {"verwijzing naar een record dat niet mee is uitgevoerd", gemis_.verwijzingen},
      {"verwijzing naar een plaats die er niet is", gemis_.plaatsen},
      {"datum met getallen die geen datum zijn", gemis_.datums},
      {"vervolgrecord dat niet te lezen is", gemis_.records},
      {"opmerking die niet te lezen is of al bij een ander staat", opmerkingen_.Verloren()},
      {"stuurteken in een tekst, een spatie geworden", regels_.Stuurtekens()},
  };
  for (const auto& [tekst, aantal] : verliezen) {
    if (aantal > 0) log_.Regel("LET OP: " + Keer(tekst, aantal));
  }
}

void Ged551Schrijver::LogEigenTags() {
  const auto& tags = regels_.EigenTags();
  bool kop = false;
  for (const EigenBetekenis& deze : kBetekenissen) {
    const auto gevonden = tags.find(deze.tag);
    if (gevonden == tags.end()) continue;
    if (!std::exchange(kop, true)) log_.Regel("Andere programma's slaan deze eigen tags over:");
    log_.Regel(" " + std::string(deze.tag) + " - " + Keer(deze.tekst, gevonden->second));
  }
}

}  // namespace lb77
