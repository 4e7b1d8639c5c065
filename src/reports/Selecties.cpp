#include "reports/Selecties.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

#include "output/TekstSchrijver.h"
#include "reporting/RecordBron.h"
#include "reporting/RecordGang.h"
#include "store/Codes.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kNummer = 5;
constexpr std::size_t kNaam = 50;

// "P:" or "R:" and a number, as each line begins.
std::string Begin(char soort, std::int16_t nr) {
  return std::string(1, soort) + ":" + Kolom(nr, kNummer, Richting::Rechts);
}

// Part of a text, upper and lower case alike; an empty one is in all.
class Deel {
 public:
  explicit Deel(std::string_view tekst) : groot_(Hoofdletters(tekst)) {}
  [[nodiscard]] bool In(std::string_view tekst) const {
    return groot_.empty() || Hoofdletters(tekst).find(groot_) != std::string::npos;
  }

 private:
  std::string groot_;
};

class NaamToets {
 public:
  explicit NaamToets(const NaamKeus& keus) : voor_(keus.voornaam), achter_(keus.achternaam) {}
  [[nodiscard]] bool Past(const PersoonLB77& persoon) const {
    return voor_.In(persoon.VoorNaamTrue()) && achter_.In(persoon.AchterNaamTrue());
  }

 private:
  Deel voor_;
  Deel achter_;
};

bool IsVan(const PersoonLB77& persoon, bool gevraagd, char geslacht) {
  return gevraagd && IsCode(persoon.Geslacht(), geslacht);
}

bool PastGeslacht(const GeslachtKeus& keus, const PersoonLB77& persoon) {
  return IsVan(persoon, keus.man, geslacht::kMan) || IsVan(persoon, keus.vrouw, geslacht::kVrouw);
}

// The count, between empty lines.
void SchrijfAantal(TekstSchrijver& uit, int aantal, std::string_view wat) {
  uit.LegeRegel();
  uit.VolleRegel(GetalTekst(aantal) + std::string(wat));
  uit.LegeRegel();
}

std::string PersoonRegel(PersoonLB77& persoon, std::int16_t nr, bool metBeroep) {
  const std::string naam = persoon.VoorNaamTrue() + " " + persoon.AchterNaamTrue();
  std::string regel = Begin('P', nr) + " : " + Links(TrimLinks(naam), kNaam);
  regel.append(" ").append(persoon.Periode(nr));
  if (metBeroep) regel.append(" ").append(persoon.beroep());
  return regel;
}

std::string RelatieRegel(const RelatieLB77& relatie, std::int16_t nr) {
  return Begin('R', nr) + " " + relatie.OtrDatum10() + " " + relatie.WetHuwDatum10() + " " +
         relatie.KHuwDatum10() + " P:" + GetalTekst(relatie.ManNr()) +
         " x P:" + GetalTekst(relatie.VrouwNr());
}

// An event of a record: whether it is asked for, where it was, and when.
template <class Record>
struct Gebeurtenis {
  bool PlaatsKeus::*gevraagd;
  std::int16_t (Record::*plaats)() const;
  std::string (Record::*datum)() const;
  std::string_view label;
};

constexpr Gebeurtenis<PersoonLB77> kVanPersoon[] = {
    {&PlaatsKeus::geb, &PersoonLB77::GebPlaatsNr, &PersoonLB77::GebDatum10, " Geb:  "},
    {&PlaatsKeus::doop, &PersoonLB77::DoopPlaatsNr, &PersoonLB77::DoopDatum10, " Doop: "},
    {&PlaatsKeus::ov, &PersoonLB77::OvlPlaatsNr, &PersoonLB77::OvlDatum10, " Ov:   "},
    {&PlaatsKeus::begr, &PersoonLB77::BegrPlaatsNr, &PersoonLB77::BegrDatum10, " Begr: "},
};

constexpr Gebeurtenis<RelatieLB77> kVanRelatie[] = {
    {&PlaatsKeus::otr, &RelatieLB77::OtrPlaatsNr, &RelatieLB77::OtrDatum10, " Otr:  "},
    {&PlaatsKeus::wetHuw, &RelatieLB77::WetHuwPlaatsNr, &RelatieLB77::WetHuwDatum10, " WHuw: "},
    {&PlaatsKeus::kerkHuw, &RelatieLB77::KHuwPlaatsNr, &RelatieLB77::KHuwDatum10, " KHuw: "},
};

template <class Record, std::size_t N>
Uitslag SchrijfVanPlaats(const PlaatsKeus& keus, const Gebeurtenis<Record> (&lijst)[N], char soort,
                         const Lezer<Record>& lezer, TekstSchrijver& uit, const Verloop& verloop) {
  const auto gevraagd = [&](const Gebeurtenis<Record>& wat) { return keus.*wat.gevraagd; };
  if (std::none_of(std::begin(lijst), std::end(lijst), gevraagd)) return Einde::Klaar;
  const Record& record = lezer.record;
  return LoopRecords(lezer, verloop, [&](std::int16_t nr) {
    for (const Gebeurtenis<Record>& wat : lijst) {
      if (!gevraagd(wat) || (record.*wat.plaats)() != keus.plaats) continue;
      uit.VolleRegel(Begin(soort, nr) + std::string(wat.label) + (record.*wat.datum)());
    }
  });
}

}  // namespace

Uitslag SelecteerPersonen(const PersoonKeus& keus, RecordBron& bron, TekstSchrijver& uit,
                          const Verloop& verloop) {
  PersoonLB77& persoon = bron.Personen().record;
  const NaamToets naam(keus.naam);
  const Deel beroep(keus.beroep);
  const auto past = [&] {
    return PastGeslacht(keus.geslacht, persoon) && naam.Past(persoon) &&
           (keus.geboorte.Bevat(persoon.GebDatum10()) ||
            keus.geboorte.Bevat(persoon.DoopDatum10())) &&
           (keus.overlijden.Bevat(persoon.OvlDatum10()) ||
            keus.overlijden.Bevat(persoon.BegrDatum10())) &&
           beroep.In(persoon.beroep());
  };
  int aantal = 0;
  const Uitslag uitslag = LoopRecords(bron.Personen(), verloop, [&](std::int16_t nr) {
    if (!past()) return;
    uit.VolleRegel(PersoonRegel(persoon, nr, !keus.beroep.empty()));
    ++aantal;
  });
  if (uitslag == Einde::Klaar) SchrijfAantal(uit, aantal, " Personen gevonden.");
  return uitslag;
}

Uitslag SelecteerRelaties(const RelatieKeus& keus, RecordBron& bron, TekstSchrijver& uit,
                          const Verloop& verloop) {
  RelatieLB77& relatie = bron.Relaties().record;
  PersoonLB77& persoon = bron.Personen().record;
  const NaamToets naam(keus.naam);
  const auto partner = [&](bool gevraagd, std::int16_t nr, char geslacht) {
    return gevraagd && LeesHoofdrecord(persoon, nr) && IsVan(persoon, gevraagd, geslacht) &&
           naam.Past(persoon);
  };
  const auto past = [&] {
    return (keus.huwelijk.Bevat(relatie.OtrDatum10()) ||
            keus.huwelijk.Bevat(relatie.WetHuwDatum10()) ||
            keus.huwelijk.Bevat(relatie.KHuwDatum10())) &&
           (partner(keus.geslacht.man, relatie.ManNr(), geslacht::kMan) ||
            partner(keus.geslacht.vrouw, relatie.VrouwNr(), geslacht::kVrouw));
  };
  int aantal = 0;
  const Uitslag uitslag = LoopRecords(bron.Relaties(), verloop, [&](std::int16_t nr) {
    if (!past()) return;
    uit.VolleRegel(RelatieRegel(relatie, nr));
    ++aantal;
  });
  if (uitslag == Einde::Klaar) SchrijfAantal(uit, aantal, " Relaties gevonden.");
  return uitslag;
}

Uitslag SelecteerPlaatsen(const PlaatsKeus& keus, RecordBron& bron, TekstSchrijver& uit,
                          const Verloop& verloop) {
  const Uitslag uitslag = SchrijfVanPlaats(keus, kVanPersoon, 'P', bron.Personen(), uit, verloop);
  if (!(uitslag == Einde::Klaar)) return uitslag;
  return SchrijfVanPlaats(keus, kVanRelatie, 'R', bron.Relaties(), uit, verloop);
}

Uitslag SelecteerOpmerkingen(const OpmKeus& keus, RecordBron& bron, TekstSchrijver& uit,
                             const Verloop& verloop) {
  const OpmLB77& opmerking = bron.Opmerkingen().record;
  const Deel deel(keus.tekst);
  const Uitslag uitslag = LoopRecords(bron.Opmerkingen(), verloop, [&](std::int16_t) {
    const std::string regel = opmerking.Tekstregel();
    const bool past = keus.kast ? regel.find(keus.tekst) != std::string::npos : deel.In(regel);
    if (!past) return;
    // The rubric tells of a person or a relation, but the owner's number is never negative.
    const std::int16_t nr = opmerking.BijRecord();
    uit.VolleRegel(Begin(nr < 0 ? 'R' : 'P', nr) + " " + regel);
  });
  if (uitslag == Einde::Klaar) uit.LegeRegel();
  return uitslag;
}

}  // namespace lb77
