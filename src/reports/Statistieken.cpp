#include "reports/Statistieken.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "output/TekstSchrijver.h"
#include "reporting/RecordBron.h"
#include "reporting/RecordGang.h"
#include "reports/Nazaten.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

std::string MetNr(std::string_view naam, std::int16_t nr) {
  return std::string(naam) + " (P" + GetalTekst(nr) + ")";
}

// Both names; the person is read.
std::string NaamVan(PersoonLB77& persoon, std::int16_t nr) {
  if (!persoon.Lees(nr)) return {};
  return persoon.VoorNaamTrue() + " " + persoon.AchterNaamTrue();
}

std::string Afstammelingen(std::int64_t aantal) {
  return GetalTekst(aantal) + " afstammeling" + (aantal >= 2 ? "en" : "");
}

// "Totaal 2 namen gevonden."
std::string Totaal(std::int64_t aantal, std::string_view een, std::string_view meer,
                   std::string_view slot) {
  return "Totaal " + GetalTekst(aantal) + " " + std::string(aantal == 1 ? een : meer) +
         std::string(slot);
}

std::int64_t Som(const std::vector<Telling>& tellingen) {
  std::int64_t som = 0;
  for (const Telling& telling : tellingen) som = TelBij(som, telling.keer);
  return som;
}

// What it is called in a branch's line: a longer one stays whole.
std::string Taknummer(std::int16_t kind) {
  constexpr std::size_t kBreedte = 6;
  std::string uit = MetNr("", kind);
  if (uit.size() < kBreedte) uit.resize(kBreedte, ' ');
  return uit;
}

struct Familie {
  std::string naam;  // as it was met first
  int aantal = 0;
};

// By the name in capitals.
using Families = std::map<std::string, Familie>;

void Tel(Families& families, std::string naam) {
  Familie& familie = families[Hoofdletters(naam)];
  if (familie.aantal++ == 0) familie.naam = std::move(naam);
}

// From which year to which somebody lived; 0 for not known.
struct Leven {
  int begin = 0;
  int einde = 0;
  bool zeker = false;
};

// A year that is missing is taken from weddings and the births of children.
Leven LevenVan(const Nazaat& nazaat, Nazaten& nazaten) {
  Leven leven{nazaat.begin, nazaat.einde, nazaat.begin != 0 && nazaat.einde != 0};
  if (leven.zeker) return leven;
  Jaren gezien = nazaat.huwelijken;
  for (const std::int16_t nr : nazaat.kinderen) {
    if (const auto kind = nazaten.Vind(nr)) gezien.Neem(nazaten[*kind].geboorte);
  }
  if (leven.einde == 0) leven.einde = gezien.hoogste;
  if (leven.begin == 0) leven.begin = gezien.laagste;
  if (leven.einde == 0) leven.einde = leven.begin;
  if (leven.begin == 0) leven.begin = leven.einde;
  return leven;
}

// By the first year of the period.
using Periodes = std::map<int, Periodetelling>;

// The first year of the period of a year, also of one before the year 0.
int PeriodeVan(int jaar) {
  const int rest = jaar % kTijdbalkPeriode;
  return jaar - (rest < 0 ? rest + kTijdbalkPeriode : rest);
}

// kept: only where a life begins and where it ends, not what lies between.
void Tel(Periodes& periodes, const Leven& leven, std::int64_t keer) {
  if (leven.begin == 0) return;
  const auto tel = [&](int periode) {
    Periodetelling& telling = periodes[periode];
    telling.aantal = TelBij(telling.aantal, keer);
    if (leven.zeker) telling.zeker = TelBij(telling.zeker, keer);
  };
  const int eerste = PeriodeVan(leven.begin);
  const int laatste = PeriodeVan(leven.einde);
  tel(eerste);
  if (laatste != eerste) tel(laatste);
}

}  // namespace

Uitslag SchrijfTakken(std::int16_t stamouder, RecordBron& bron, TekstSchrijver& uit,
                      const Verloop& verloop) {
  const std::string naam(Trim(NaamVan(bron.Personen().record, stamouder)));
  uit.VolleRegel("Takkenverdeling van afstammelingen van " + MetNr(naam, stamouder));
  uit.LegeRegel();
  Nazaten nazaten(bron.Personen().record, bron.Relaties().record);
  const auto wie = nazaten.Vind(stamouder);
  if (!wie) return Einde::Klaar;
  const std::vector<std::int16_t> takken = nazaten[*wie].kinderen;
  const std::size_t breedte = GetalTekst(static_cast<std::int64_t>(takken.size())).size();
  std::int64_t totaal = 0;
  std::vector<Telling> tellingen;
  for (std::size_t tak = 0; tak < takken.size(); ++tak) {
    tellingen.clear();
    const auto kind = nazaten.Vind(takken[tak]);
    if (kind && !nazaten.Loop(*kind, wie, verloop, tellingen)) return Einde::Afgebroken;
    const std::int64_t aantal = Som(tellingen);
    totaal = TelBij(totaal, aantal);
    uit.VolleRegel("tak " + Rechts(GetalTekst(static_cast<std::int64_t>(tak) + 1), breedte) +
                   Taknummer(takken[tak]) + " : " + Afstammelingen(aantal));
  }
  uit.LegeRegel();
  uit.VolleRegel(Totaal(totaal, "nazaat", "nazaten", " gevonden."));
  uit.LegeRegel();
  return Einde::Klaar;
}

Uitslag SchrijfFamilies(int minimum, RecordBron& bron, TekstSchrijver& uit,
                        const Verloop& verloop) {
  uit.VolleRegel("Verdeling familienamen");
  uit.LegeRegel();
  Families families;
  const Uitslag uitslag = LoopRecords(bron.Personen(), verloop, [&](std::int16_t nr) {
    const std::string naam = bron.Personen().record.AchterNaamTrue();
    Tel(families, naam.empty() ? "<onbekend>" : naam);
    verloop.toon(nr, static_cast<int>(families.size()));
  });
  if (!(uitslag == Einde::Klaar)) return uitslag;
  int getoond = 0;
  for (const auto& [sleutel, familie] : families) {
    if (familie.aantal < minimum) continue;
    uit.VolleRegel(GetalTekst(familie.aantal) + ": " + familie.naam);
    ++getoond;
  }
  uit.LegeRegel();
  uit.VolleRegel(Totaal(static_cast<std::int64_t>(families.size()), "naam", "namen", " aanwezig."));
  uit.VolleRegel(Totaal(getoond, "naam", "namen", " gevonden."));
  uit.LegeRegel();
  return Einde::Klaar;
}

bool TelTijdbalk(std::int16_t stamouder, RecordBron& bron, const Verloop& verloop,
                 Tijdbalk& tijdbalk) {
  Nazaten nazaten(bron.Personen().record, bron.Relaties().record);
  const auto wie = nazaten.Vind(stamouder);
  std::vector<Telling> tellingen;
  if (wie && !nazaten.Loop(*wie, std::nullopt, verloop, tellingen)) return false;
  for (const Telling& telling : tellingen) {
    Tel(tijdbalk.periodes, LevenVan(nazaten[telling.wie], nazaten), telling.keer);
  }
  tijdbalk.afstammelingen = Som(tellingen);
  return true;
}

Uitslag SchrijfTijdbalk(std::int16_t stamouder, RecordBron& bron, TekstSchrijver& uit,
                        const Verloop& verloop) {
  uit.VolleRegel("Populatiegrafiek van afstammelingen van " +
                 MetNr(NaamVan(bron.Personen().record, stamouder), stamouder));
  uit.LegeRegel();
  Tijdbalk tijdbalk;
  if (!TelTijdbalk(stamouder, bron, verloop, tijdbalk)) return Einde::Afgebroken;
  for (const auto& [periode, telling] : tijdbalk.periodes) {
    uit.VolleRegel("Periode : " + GetalTekst(periode) + "-" +
                   GetalTekst(periode + kTijdbalkPeriode - 1) + " : " + GetalTekst(telling.aantal) +
                   " (waarvan zeker " + GetalTekst(telling.zeker) + ")");
  }
  uit.LegeRegel();
  uit.VolleRegel("Totaal : " + Afstammelingen(tijdbalk.afstammelingen));
  uit.LegeRegel();
  return Einde::Klaar;
}

}  // namespace lb77
