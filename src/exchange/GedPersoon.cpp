#include "exchange/GedPersoon.h"

#include <algorithm>
#include <iterator>

#include "exchange/GedNaam.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

enum class Actie {
  Naam,
  Voornaam,
  Achternaam,
  Geslacht,
  GebDatum,
  DoopDatum,
  OvlDatum,
  BegrDatum,
  Plaats,
  DoopPlaats,
  BegrPlaats,
  Gezindte,
  Beroep,
  Ouders,
  Relatie,
  Voorbij
};

constexpr std::size_t kVoornaam = 30;
constexpr std::size_t kAchternaam = 25;
constexpr std::size_t kBeroep = 30;

}  // namespace

struct GedPersoonPad {
  std::string_view pad;
  Actie actie;
  std::string_view veld = {};
};

namespace {

constexpr GedPersoonPad kPaden[] = {
    {"INDI-NAME", Actie::Naam},
    {"INDI-NAME-GIVN", Actie::Voornaam},
    {"INDI-NAME-SURN", Actie::Achternaam},
    {"INDI-NAME-SPFX", Actie::Voorbij},
    {"INDI-SEX", Actie::Geslacht},
    {"INDI-BIRT-DATE", Actie::GebDatum},
    {"INDI-BIRT-PLAC", Actie::Plaats, "GebPlaats"},
    {"INDI-CHR-DATE", Actie::DoopDatum},
    {"INDI-BAPM-DATE", Actie::DoopDatum},
    {"INDI-BAPT-DATE", Actie::DoopDatum},
    {"INDI-CHR-PLAC", Actie::DoopPlaats, "DoopPlaats"},
    {"INDI-BAPM-PLAC", Actie::DoopPlaats, "DoopPlaats"},
    {"INDI-BAPT-PLAC", Actie::DoopPlaats, "DoopPlaats"},
    {"INDI-CHR-RELI", Actie::Gezindte, "DoopReligie"},
    {"INDI-BAPM-RELI", Actie::Gezindte, "DoopReligie"},
    {"INDI-BAPT-RELI", Actie::Gezindte, "DoopReligie"},
    {"INDI-RELI", Actie::Gezindte, "DoopReligie"},
    {"INDI-DEAT-DATE", Actie::OvlDatum},
    {"INDI-DEAT-PLAC", Actie::Plaats, "OvlPlaats"},
    {"INDI-BURI-DATE", Actie::BegrDatum},
    {"INDI-BURR-DATE", Actie::BegrDatum},
    {"INDI-BURI-PLAC", Actie::BegrPlaats, "BegrPlaats"},
    {"INDI-BURR-PLAC", Actie::BegrPlaats, "BegrPlaats"},
    {"INDI-OCCU", Actie::Beroep},
    {"INDI-FAMC", Actie::Ouders},
    {"INDI-FAMS", Actie::Relatie},
    {"INDI-BIRT", Actie::Voorbij},
    {"INDI-CHR", Actie::Voorbij},
    {"INDI-BAPM", Actie::Voorbij},
    {"INDI-BAPT", Actie::Voorbij},
    {"INDI-DEAT", Actie::Voorbij},
    {"INDI-BURI", Actie::Voorbij},
    {"INDI-BURR", Actie::Voorbij},
    {"INDI-EVEN", Actie::Voorbij},
    {"INDI-ADDR", Actie::Voorbij},
    {"INDI-CHAN", Actie::Voorbij},
    {"INDI-CHAN-DATE", Actie::Voorbij},
};

}  // namespace

bool GedPersoon::Begin(std::int16_t nr) {
  nr_ = nr;
  vervolg_ = 0;
  relaties_ = 0;
  gebCorrectie_ = ovlCorrectieHier_ = ' ';
  voornaam_.clear();
  achternaam_.clear();
  return LeesZelf();
}

bool GedPersoon::LeesZelf() {
  loop_.bronnen.volgers.HuidigPersoonNr = nr_;
  return loop_.bronnen.persoon.Lees(nr_);
}

bool GedPersoon::Schrijf() {
  loop_.bronnen.volgers.HuidigPersoonNr = nr_;
  return loop_.bronnen.persoon.Schrijf();
}

GedGevolg GedPersoon::Verwerk(std::string_view pad, std::string_view waarde,
                              std::string_view context) {
  const auto* const rij = std::find_if(std::begin(kPaden), std::end(kPaden),
                                       [pad](const GedPersoonPad& p) { return p.pad == pad; });
  if (rij == std::end(kPaden)) return GedGevolg::Onbekend;
  if (rij->actie == Actie::Relatie) {
    return ZetRelatie(loop_.relaties.Zoek(waarde)) ? GedGevolg::Gedaan : GedGevolg::Stil;
  }
  Doe(*rij, waarde, context);
  return GedGevolg::Gedaan;
}

void GedPersoon::Doe(const GedPersoonPad& rij, std::string_view waarde, std::string_view context) {
  PersoonLB77& persoon = loop_.bronnen.persoon;
  switch (rij.actie) {
    case Actie::Naam:
      return ZetNaam(rij.pad, waarde, context);
    case Actie::Voornaam:
      voornaam_ = loop_.Veld(waarde, kVoornaam);
      persoon.Zet("Voornaam", voornaam_);
      return ToonNaam();
    case Actie::Achternaam:
      achternaam_ = loop_.Veld(waarde, kAchternaam);
      persoon.Zet("Achternaam", achternaam_);
      return ToonNaam();
    case Actie::Geslacht:
      return ZetGeslacht(waarde);
    case Actie::GebDatum:
    case Actie::DoopDatum:
    case Actie::OvlDatum:
    case Actie::BegrDatum:
      return ZetDatum(rij, waarde, context);
    case Actie::DoopPlaats:
      if (gebCorrectie_ != 'T') persoon.Zet(rij.veld, loop_.Plaats(waarde));
      return;
    case Actie::BegrPlaats:
      if (ovlCorrectieHier_ != 'T') persoon.Zet(rij.veld, loop_.Plaats(waarde));
      return;
    case Actie::Plaats:
      return persoon.Zet(rij.veld, loop_.Plaats(waarde));
    case Actie::Gezindte:
      return persoon.Zet(rij.veld, loop_.Gezindte(waarde));
    case Actie::Beroep:
      return persoon.Zet("Beroep", loop_.Veld(waarde, kBeroep));
    case Actie::Ouders:
      return persoon.Zet("Ouders", GetalTekst(loop_.relaties.Zoek(waarde)));
    case Actie::Relatie:
    case Actie::Voorbij:
      return;
  }
}

void GedPersoon::ZetNaam(std::string_view pad, std::string_view waarde, std::string_view context) {
  const GedcomNaam naam = GedNaam(waarde);
  if (!naam.rest.empty()) {
    loop_.log.Regel(std::string(context)
                        .append("\t")
                        .append(pad)
                        .append("\t")
                        .append(waarde)
                        .append("\t")
                        .append(naam.rest));
  }
  voornaam_ = loop_.Tekst(naam.voornaam);
  achternaam_ = loop_.Tekst(naam.achternaam);
  loop_.bronnen.persoon.Zet("Voornaam", voornaam_);
  loop_.bronnen.persoon.Zet("Achternaam", achternaam_);
  ToonNaam();
}

void GedPersoon::ToonNaam() {
  loop_.voortgang.Naam(voornaam_, achternaam_);
}

void GedPersoon::ZetGeslacht(std::string_view waarde) {
  const char letter = waarde.empty() ? ' ' : Hoofdletter(waarde.front());
  loop_.bronnen.persoon.Zet("Geslacht", letter == 'M' ? "M" : letter == 'F' ? "V" : "O");
}

void GedPersoon::ZetDatum(const GedPersoonPad& rij, std::string_view waarde,
                          std::string_view context) {
  PersoonLB77& persoon = loop_.bronnen.persoon;
  const GedcomDatum datum = GedDatum(waarde, context);
  for (const std::string& melding : datum.meldingen) loop_.log.Regel(melding);
  const std::string een = GedDatumTekst(datum.een);
  const std::string twee = GedDatumTekst(datum.twee);
  const std::string_view correctie(&datum.correctie, 1);
  const bool overlijden = rij.actie == Actie::OvlDatum || rij.actie == Actie::BegrDatum;
  if (overlijden) {
    ovlCorrectie_ = ovlCorrectieHier_ = datum.correctie;
  } else {
    gebCorrectie_ = datum.correctie;
  }
  if (rij.actie == Actie::DoopDatum) return persoon.Zet("DoopDatum", een);
  if (rij.actie == Actie::BegrDatum) return persoon.Zet("BegrDatum", een);
  persoon.Zet(overlijden ? "OvlCorr" : "GebCorr", correctie);
  persoon.Zet(overlijden ? "OvlDatum" : "GebDatum", een);
  if (datum.correctie == 'T') persoon.Zet(overlijden ? "BegrDatum" : "DoopDatum", twee);
}

bool GedPersoon::ZetRelatie(std::int16_t relatie) {
  ++relaties_;
  if (relaties_ <= 3) {
    loop_.bronnen.persoon.Zet("Relatie" + GetalTekst(relaties_), GetalTekst(relatie));
    return true;
  }
  if (relaties_ == 4) return MaakVervolg(relatie);
  if (relaties_ == 5) return ZetInVervolg(relatie);
  if (relaties_ == 6) {
    loop_.bronnen.gesprek.Waarschuw("Meer dan 5 relaties voor Persoon " + GetalTekst(nr_));
  }
  return true;
}

// The fourth relation: the third one and this one go into a continuation record.
bool GedPersoon::MaakVervolg(std::int16_t relatie) {
  PersoonLB77& persoon = loop_.bronnen.persoon;
  const std::string derde = GetalTekst(persoon.relatie3());
  const std::int32_t nieuw = loop_.laatstePersoon + 1;
  // The main record first: the continuation record takes the buffer.
  if (!Schrijf() || !persoon.Nieuw(nieuw)) return false;
  loop_.laatstePersoon = vervolg_ = static_cast<std::int16_t>(nieuw);
  persoon.Zet("GebCorr", "Z");
  persoon.Zet("Relatie1", derde);
  persoon.Zet("Relatie2", GetalTekst(relatie));
  persoon.Zet("Relatie3", "0");
  loop_.bronnen.volgers.HuidigPersoonNr = vervolg_;
  if (!persoon.Schrijf() || !LeesZelf()) return false;
  persoon.Zet("Relatie3", GetalTekst(-vervolg_));
  return Schrijf();
}

bool GedPersoon::ZetInVervolg(std::int16_t relatie) {
  PersoonLB77& persoon = loop_.bronnen.persoon;
  if (!Schrijf() || !persoon.Lees(vervolg_)) return false;
  persoon.Zet("Relatie3", GetalTekst(relatie));
  loop_.bronnen.volgers.HuidigPersoonNr = vervolg_;
  return persoon.Schrijf() && LeesZelf();
}

}  // namespace lb77
