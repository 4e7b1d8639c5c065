#include "exchange/GedRelatie.h"

#include <algorithm>
#include <iterator>

#include "exchange/GedDatum.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

enum class Actie {
  Partner,
  Datum,       // the first date in the field
  HuwDatum,    // with a second date as church date, by the qualifier of another date
  EigenDatum,  // the same, by its own qualifier
  Plaats,
  Gezindte,
  Scheiding,
  Kind,
  Voorbij
};

// The child slots of a main record, and the number of the first child beyond them.
constexpr int kHoofdKinderen = 15;
constexpr int kLaatsteKind = 30;

}  // namespace

// `bond` is the kind of bond that the line sets, empty for none.
struct GedRelatiePad {
  std::string_view pad;
  Actie actie;
  std::string_view veld = {};
  std::string_view bond = {};
  bool scheiding = false;
};

namespace {

constexpr GedRelatiePad kPaden[] = {
    {"FAM-HUSB", Actie::Partner, "ManNr"},
    {"FAM-WIFE", Actie::Partner, "VrouwNr"},
    {"FAM-ENGA-DATE", Actie::Datum, "OtrDatum"},
    {"FAM-MARB-DATE", Actie::Datum, "OtrDatum"},
    {"FAM-MARL-DATE", Actie::Datum, "OtrDatum"},
    {"FAM-ENGA-PLAC", Actie::Plaats, "OtrPlaats"},
    {"FAM-MARB-PLAC", Actie::Plaats, "OtrPlaats"},
    {"FAM-MARL-PLAC", Actie::Plaats, "OtrPlaats"},
    {"FAM-MARC-DATE", Actie::HuwDatum, "WHuwDatum", "Sw"},
    {"FAM-MARC-PLAC", Actie::Plaats, "KHuwPlaats"},
    {"FAM-MARC-AGNC", Actie::Gezindte, "HuwSoort"},
    {"FAM-MARC-TYPE", Actie::Gezindte, "HuwSoort"},
    {"FAM-MARS-DATE", Actie::EigenDatum, "WHuwDatum", "Ps"},
    {"FAM-MARS-PLAC", Actie::Plaats, "WHuwPlaats", "Ps"},
    {"FAM-MARS-AGNC", Actie::Gezindte, "HuwSoort"},
    {"FAM-MARS-TYPE", Actie::Gezindte, "HuwSoort"},
    {"FAM-MARR-DATE", Actie::HuwDatum, "WHuwDatum", " "},
    {"FAM-MARR-PLAC", Actie::Plaats, "WHuwPlaats"},
    {"FAM-MARR-RELI", Actie::Gezindte, "Religie"},
    {"FAM-MARR-LMAR", Actie::Gezindte, "HuwSoort"},
    {"FAM-MARR-AGNC", Actie::Gezindte, "HuwSoort"},
    {"FAM-MARR-TYPE", Actie::Gezindte, "HuwSoort"},
    {"FAM-ORDI-DATE", Actie::Datum, "KHuwDatum"},
    // kept: the place of a church marriage lands with the civil one.
    {"FAM-ORDI-PLAC", Actie::Plaats, "WHuwPlaats"},
    {"FAM-ORDI-RELI", Actie::Gezindte, "Religie"},
    {"FAM-ORDI-AGNC", Actie::Gezindte, "Religie"},
    {"FAM-ORDI-TYPE", Actie::Gezindte, "Religie"},
    {"FAM-ANUL", Actie::Scheiding},
    {"FAM-DIV", Actie::Scheiding},
    {"FAM-DIVF", Actie::Scheiding},
    {"FAM-ANUL-DATE", Actie::Datum, "KHuwDatum", {}, true},
    {"FAM-DIV-DATE", Actie::Datum, "KHuwDatum", {}, true},
    {"FAM-DIVF-DATE", Actie::Datum, "KHuwDatum", {}, true},
    {"FAM-ANUL-PLAC", Actie::Plaats, "KHuwPlaats"},
    {"FAM-DIV-PLAC", Actie::Plaats, "KHuwPlaats"},
    {"FAM-DIVF-PLAC", Actie::Plaats, "KHuwPlaats"},
    {"FAM-CHIL", Actie::Kind},
    {"FAM-ENGA", Actie::Voorbij},
    {"FAM-MARB", Actie::Voorbij},
    {"FAM-MARL", Actie::Voorbij},
    {"FAM-MARC", Actie::Voorbij},
    {"FAM-MARS", Actie::Voorbij},
    {"FAM-MARR", Actie::Voorbij},
    {"FAM-ORDI", Actie::Voorbij},
    {"FAM-ENGA-AGNC", Actie::Voorbij},
    {"FAM-ENGA-TYPE", Actie::Voorbij},
    {"FAM-MARB-AGNC", Actie::Voorbij},
    {"FAM-MARB-TYPE", Actie::Voorbij},
    {"FAM-MARL-AGNC", Actie::Voorbij},
    {"FAM-MARL-TYPE", Actie::Voorbij},
    {"FAM-EVEN", Actie::Voorbij},
    {"FAM-CHAN", Actie::Voorbij},
    {"FAM-CHAN-DATE", Actie::Voorbij},
};

}  // namespace

bool GedRelatie::Begin(std::int16_t nr) {
  nr_ = nr;
  vervolg_ = 0;
  kinderen_ = 0;
  return LeesZelf();
}

bool GedRelatie::LeesZelf() {
  loop_.bronnen.volgers.HuidigRelatieNr = nr_;
  return loop_.bronnen.relatie.Lees(nr_);
}

bool GedRelatie::Schrijf() {
  loop_.bronnen.volgers.HuidigRelatieNr = nr_;
  return loop_.bronnen.relatie.Schrijf();
}

GedGevolg GedRelatie::Verwerk(std::string_view pad, std::string_view waarde,
                              std::string_view context, char ovlCorrectie) {
  const auto* const rij = std::find_if(std::begin(kPaden), std::end(kPaden),
                                       [pad](const GedRelatiePad& p) { return p.pad == pad; });
  if (rij == std::end(kPaden)) return GedGevolg::Onbekend;
  if (rij->actie == Actie::Kind) {
    return ZetKind(loop_.personen.Zoek(waarde)) ? GedGevolg::Gedaan : GedGevolg::Stil;
  }
  Doe(*rij, waarde, context, ovlCorrectie);
  return GedGevolg::Gedaan;
}

void GedRelatie::Doe(const GedRelatiePad& rij, std::string_view waarde, std::string_view context,
                     char ovlCorrectie) {
  RelatieLB77& relatie = loop_.bronnen.relatie;
  if (!rij.bond.empty()) relatie.Zet("HuwSwPs", rij.bond);
  if (rij.scheiding || rij.actie == Actie::Scheiding) relatie.Zet("KHuwSch", "1");
  switch (rij.actie) {
    case Actie::Partner:
      return relatie.Zet(rij.veld, GetalTekst(loop_.personen.Zoek(waarde)));
    case Actie::Datum:
    case Actie::HuwDatum:
    case Actie::EigenDatum:
      return ZetDatum(rij, waarde, context, ovlCorrectie);
    case Actie::Plaats:
      return relatie.Zet(rij.veld, loop_.Plaats(waarde));
    case Actie::Gezindte:
      return relatie.Zet(rij.veld, loop_.Gezindte(waarde));
    case Actie::Scheiding:
    case Actie::Kind:
    case Actie::Voorbij:
      return;
  }
}

// kept: the correction code of a relation is never set from a date, and whether a marriage date is a
// span is told by the last date of death or burial.
void GedRelatie::ZetDatum(const GedRelatiePad& rij, std::string_view waarde,
                          std::string_view context, char ovlCorrectie) {
  const GedcomDatum datum = GedDatum(waarde, context);
  for (const std::string& melding : datum.meldingen) loop_.log.Regel(melding);
  loop_.bronnen.relatie.Zet(rij.veld, GedDatumTekst(datum.een));
  const bool tussen = (rij.actie == Actie::HuwDatum && ovlCorrectie == 'T') ||
                      (rij.actie == Actie::EigenDatum && datum.correctie == 'T');
  if (tussen) loop_.bronnen.relatie.Zet("KHuwDatum", GedDatumTekst(datum.twee));
}

bool GedRelatie::ZetKind(std::int16_t kind) {
  ++kinderen_;
  if (kinderen_ <= kHoofdKinderen) {
    loop_.bronnen.relatie.Zet("Kind" + GetalTekst(kinderen_), GetalTekst(kind));
    return true;
  }
  if (kinderen_ == kHoofdKinderen + 1) return MaakVervolg(kind);
  if (kinderen_ <= kLaatsteKind) return ZetInVervolg(kind);
  if (kinderen_ == kLaatsteKind + 1) {
    loop_.bronnen.gesprek.Waarschuw("Meer dan 29 kinderen voor Relatie " + GetalTekst(nr_));
  }
  return true;
}

// The sixteenth child: the fifteenth and this one go into a continuation record.
bool GedRelatie::MaakVervolg(std::int16_t kind) {
  RelatieLB77& relatie = loop_.bronnen.relatie;
  const std::string laatste = relatie.kind(kHoofdKinderen);
  const std::int32_t nieuw = loop_.laatsteRelatie + 1;
  // The main record first: the continuation record takes the buffer.
  if (!Schrijf() || !relatie.Nieuw(nieuw)) return false;
  loop_.laatsteRelatie = vervolg_ = static_cast<std::int16_t>(nieuw);
  relatie.Zet("HuwCorr", "Z");
  relatie.Zet("Kind1", laatste);
  relatie.Zet("Kind2", GetalTekst(kind));
  loop_.bronnen.volgers.HuidigRelatieNr = vervolg_;
  if (!relatie.Schrijf() || !LeesZelf()) return false;
  relatie.Zet("Kind15", GetalTekst(-vervolg_));
  return Schrijf();
}

// kept: the thirtieth child has no slot, which the record class tells.
bool GedRelatie::ZetInVervolg(std::int16_t kind) {
  RelatieLB77& relatie = loop_.bronnen.relatie;
  if (!Schrijf() || !relatie.Lees(vervolg_)) return false;
  relatie.Zet("Kind" + GetalTekst(kinderen_ - kHoofdKinderen + 1), GetalTekst(kind));
  loop_.bronnen.volgers.HuidigRelatieNr = vervolg_;
  return relatie.Schrijf() && LeesZelf();
}

}  // namespace lb77
