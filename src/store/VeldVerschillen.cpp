#include "store/VeldVerschillen.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "store/OpmVelden.h"
#include "store/PersoonVelden.h"
#include "store/PlaatsVelden.h"
#include "store/RelatieVelden.h"
#include "text/Datum.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// The names that a user knows, field by field in the order of the byte table. The year of a date
// has none: it is told with its day and month.
constexpr std::string_view kJaar;

constexpr auto kPersoon = std::to_array<std::string_view>({"Achternaam",
                                                           "Voornaam",
                                                           "Geboorteplaats",
                                                           "Geboortedatum",
                                                           kJaar,
                                                           "Correctiecode geboorte",
                                                           "Doopplaats",
                                                           "Doopdatum",
                                                           kJaar,
                                                           "Plaats van overlijden",
                                                           "Datum van overlijden",
                                                           kJaar,
                                                           "Correctiecode overlijden",
                                                           "Plaats van begraven",
                                                           "Datum van begraven",
                                                           kJaar,
                                                           "Gezindte",
                                                           "Geslacht",
                                                           "Relatie 1",
                                                           "Relatie 2",
                                                           "Relatie 3",
                                                           "Relatie van de ouders",
                                                           "Beroep",
                                                           "Eerste opmerking",
                                                           "Rubrieken met opmerkingen",
                                                           "Gecremeerd",
                                                           "Vrije byte"});
static_assert(kPersoon.size() == persoonveld::kVelden.size());

constexpr auto kRelatie = std::to_array<std::string_view>({"Man",
                                                           "Vrouw",
                                                           "Plaats van ondertrouw",
                                                           "Datum van ondertrouw",
                                                           kJaar,
                                                           "Plaats van wettelijk huwelijk",
                                                           "Datum van wettelijk huwelijk",
                                                           kJaar,
                                                           "Correctiecode huwelijk",
                                                           "Plaats van kerkelijk huwelijk",
                                                           "Datum van kerkelijk huwelijk",
                                                           kJaar,
                                                           "Gezindte",
                                                           "Kind 1",
                                                           "Kind 2",
                                                           "Kind 3",
                                                           "Kind 4",
                                                           "Kind 5",
                                                           "Kind 6",
                                                           "Kind 7",
                                                           "Kind 8",
                                                           "Kind 9",
                                                           "Kind 10",
                                                           "Kind 11",
                                                           "Kind 12",
                                                           "Kind 13",
                                                           "Kind 14",
                                                           "Kind 15",
                                                           "Soort relatie",
                                                           "Eerste opmerking",
                                                           "Rubrieken met opmerkingen",
                                                           "Einde kerkelijk huwelijk",
                                                           "Einde relatie",
                                                           "Vrije byte"});
static_assert(kRelatie.size() == relatieveld::kVelden.size());

constexpr auto kOpmerking =
    std::to_array<std::string_view>({"Rubriek", "Bij record", "Gebruik", "Volgende regel",
                                     "Volgende opmerking", "Tekst", "Vrije bytes"});
static_assert(kOpmerking.size() == opmveld::kVelden.size());

constexpr auto kPlaats = std::to_array<std::string_view>({"Provincie", "Plaatsnaam"});
static_assert(kPlaats.size() == plaatsveld::kVelden.size());

// Record 1 lies over the same fields, and counts in some of them.
struct AdminNaam {
  BestandSoort soort;
  std::size_t plaats;
  std::string_view naam;
};
constexpr std::array kAdmin = {
    AdminNaam{BestandSoort::Personen, persoonveld::GebPlaatsNr.plaats, "Aantal personen"},
    AdminNaam{BestandSoort::Relaties, relatieveld::ManNr.plaats, "Aantal relaties"},
    AdminNaam{BestandSoort::Opmerkingen, opmveld::Rubriek.plaats, "Aantal opmerkingrecords"},
    AdminNaam{BestandSoort::Opmerkingen, opmveld::BijRecord.plaats, "Opmerkingrecords in gebruik"},
    AdminNaam{BestandSoort::Opmerkingen, opmveld::BijProg.plaats, "Eerste vrije opmerkingrecord"},
    AdminNaam{BestandSoort::Plaatsen, plaatsveld::Prov.plaats, "Aantal plaatsen"},
};

struct Tabel {
  std::span<const Veld> velden;
  std::span<const std::string_view> namen;
};

Tabel TabelVan(BestandSoort soort) {
  switch (soort) {
    case BestandSoort::Personen:
      return {persoonveld::kVelden, kPersoon};
    case BestandSoort::Relaties:
      return {relatieveld::kVelden, kRelatie};
    case BestandSoort::Opmerkingen:
      return {opmveld::kVelden, kOpmerking};
    case BestandSoort::Plaatsen:
      break;
  }
  return {plaatsveld::kVelden, kPlaats};
}

// Its name in record 1; empty when it counts nothing there.
std::string_view AdminNaamVan(const RecordPlek& plek, const Veld& veld) {
  if (plek.nr != 1) return {};
  const auto gevonden = std::ranges::find_if(kAdmin, [&](const AdminNaam& naam) {
    return naam.soort == plek.soort && naam.plaats == veld.plaats;
  });
  return gevonden == kAdmin.end() ? std::string_view{} : gevonden->naam;
}

// The bytes that tell a field: with a date those of its year.
std::string_view Ruw(std::string_view record, const Veld& veld) {
  if (record.size() < veld.plaats) return {};
  return record.substr(veld.plaats, veld.soort == VeldSoort::Datum ? 4 : veld.breedte);
}

std::string Waarde(std::string_view ruw, const Veld& veld, bool telt, char scheider) {
  if (ruw.size() < veld.breedte) return {};
  if (veld.soort == VeldSoort::Datum && !telt) {
    return ruw.size() < 4 ? std::string{} : Datum10(GetalOp(ruw, 0), GetalOp(ruw, 2), scheider);
  }
  if (IsGetal(veld) || telt) return GetalTekst(GetalOp(ruw, 0));
  return DosNaarWindows(Trim(ruw));
}

}  // namespace

std::vector<VeldVerschil> VeldVerschillen(const RecordWijziging& wijziging, char scheider) {
  std::vector<VeldVerschil> verschillen;
  if (!wijziging.na) return verschillen;
  const Tabel tabel = TabelVan(wijziging.plek.soort);
  for (std::size_t i = 0; i < tabel.velden.size(); ++i) {
    const Veld& veld = tabel.velden[i];
    const std::string_view voor = Ruw(wijziging.voor, veld);
    const std::string_view na = Ruw(*wijziging.na, veld);
    if (voor == na || tabel.namen[i].empty()) continue;
    const std::string_view admin = AdminNaamVan(wijziging.plek, veld);
    const bool telt = !admin.empty();
    verschillen.push_back({telt ? admin : tabel.namen[i], Waarde(voor, veld, telt, scheider),
                           Waarde(na, veld, telt, scheider)});
  }
  return verschillen;
}

}  // namespace lb77
