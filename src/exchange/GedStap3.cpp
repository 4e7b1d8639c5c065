#include "exchange/GedStap3.h"

#include <algorithm>
#include <array>

#include "exchange/GedDatum.h"
#include "exchange/GedNaam.h"
#include "exchange/GedOpmerking.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kNote = "NOTE";

// Tags that are remarks under another name, and what stands before their text.
struct Wisseling {
  std::string_view tag;
  std::string_view voorvoegsel;
};
constexpr Wisseling kWisselingen[] = {
    {"_COMM", ""},
    {"_ALIA", "alias "},
    {"ADDR", "Adres: "},
    {"RFN", "Extern nummer (RFN): "},
    {"AFN", "Ancestral File Number (AFN): "},
    {"TYPE", "TYPE: "},
    {"SOUR", "Bron: "},
    {"CAUS", "Oorzaak: "},
    {"TEXT", ""},
};

constexpr std::int16_t kAlleUitvoer = 23;

std::string Samen(std::string_view a, std::string_view b, std::string_view c = {},
                  std::string_view d = {}) {
  return std::string(a).append(b).append(c).append(d);
}

}  // namespace

GedStap3::Lezing GedStap3::Lees(const GedcomRegel& regel) {
  if (regel.niveau > 0) {
    for (const Wisseling& wisseling : kWisselingen) {
      if (wisseling.tag == regel.tag) return {kNote, Samen(wisseling.voorvoegsel, regel.waarde)};
    }
  }
  return {regel.tag, std::string(regel.waarde)};
}

GedStap::Verloop GedStap3::Verwerk(const GedcomRegel& regel) {
  if (regel.niveau > 0 && (regel.tag == "CONC" || regel.tag == "CONT")) {
    Vervolg(regel);
    return Verloop::Verder;
  }
  Lezing lezing = Lees(regel);
  pad_.Zet(regel.niveau, lezing.tag);
  if (pad_.Pad(regel.niveau) == "INDI-NAME") ToonNaam(lezing);
  const Verloop geschreven = SchrijfOpmerking();
  if (geschreven != Verloop::Verder) return geschreven;
  if (regel.niveau == 0) return NieuwRecord(regel);
  const std::string_view ouder = pad_.Ouder(regel.niveau);
  MaakOpmerking(lezing, ouder);
  // A TYPE under an event tells its path without the tag, which its text names already.
  if (EindigtOp(ouder, "EVEN")) {
    const bool type = regel.tag == "TYPE";
    lezing = {kNote, type ? Samen(ouder, " : ", lezing.waarde)
                          : Samen(Samen(ouder, "-", lezing.tag), " : ", lezing.waarde)};
  }
  if (lezing.tag == kNote) Neem(lezing, ouder);
  return Verloop::Verder;
}

// A line that goes on with the one above it.
void GedStap3::Vervolg(const GedcomRegel& regel) {
  const std::string_view ouder = pad_.Ouder(regel.niveau);
  if (EindigtOp(ouder, kNote)) {
    if (regel.tag == "CONT") tekst_ += ' ';
    tekst_ += regel.waarde;
  } else if (ouder != "SUBM" && ouder != "SUBM-ADDR") {
    loop_.log.Regel("Vervolgregels worden alleen voor NOTES ondersteund...");
    loop_.log.Regel(Samen(context_, "\t", Samen(ouder, "-", regel.tag), "\t").append(regel.waarde));
  }
}

void GedStap3::ToonNaam(const Lezing& lezing) {
  const GedcomNaam naam = GedNaam(lezing.waarde);
  loop_.voortgang.Naam(loop_.Tekst(naam.voornaam), loop_.Tekst(naam.achternaam));
}

GedStap::Verloop GedStap3::NieuwRecord(const GedcomRegel& regel) {
  if (regel.tag == "REPO") return Verloop::Verder;
  context_ = GedLoop::Context(regel.tag, regel.id);
  if (regel.tag == "TRLR") return Verloop::Einde;
  if (regel.tag == "INDI") persoon_ = loop_.personen.Nummer(personen_++);
  if (regel.tag == "FAM") relatie_ = loop_.relaties.Nummer(relaties_++);
  return Verloop::Verder;
}

// Lines under an address or an adoption are told as remarks.
void GedStap3::MaakOpmerking(Lezing& lezing, std::string_view ouder) {
  if (EindigtOp(ouder, "ADDR")) {
    lezing = {kNote, Samen("Adres: ", lezing.waarde)};
  } else if (ouder == "INDI-ADOP") {
    std::string tekst = lezing.waarde;
    if (lezing.tag == "DATE") {
      const GedcomDatum datum = GedDatum(lezing.waarde, context_);
      for (const std::string& melding : datum.meldingen) loop_.log.Regel(melding);
      tekst = Samen({&datum.correctie, 1}, " ", GedDatumTekst(datum.een));
    }
    lezing = {kNote, Samen("Adoptie: ", tekst)};
  }
}

void GedStap3::Neem(const Lezing& lezing, std::string_view ouder) {
  const GedRubriek plaats = GedRubriekVan(ouder);
  tekst_ = Samen(plaats.voorvoegsel, lezing.waarde);
  rubriek_ = plaats.rubriek;
}

// Stores the remark that has grown to its end, if there is one.
GedStap::Verloop GedStap3::SchrijfOpmerking() {
  if (rubriek_ == 0) return Verloop::Verder;
  GedBronnen& bronnen = loop_.bronnen;
  const bool bijPersoon = rubriek_ > 0;
  if (bijPersoon ? !bronnen.persoon.Lees(persoon_) : !bronnen.relatie.Lees(relatie_)) {
    return Fout(bijPersoon ? "Leesfout bij Persoon " + GetalTekst(persoon_)
                           : "Leesfout bij Relatie " + GetalTekst(relatie_));
  }
  const std::int16_t begin = bijPersoon ? bronnen.persoon.OpmRecord() : bronnen.relatie.OpmRecord();
  OpmRegels regels;
  const std::vector<std::string> gevuld = GedOpmRegels(loop_.Tekst(tekst_));
  std::copy(gevuld.begin(), gevuld.end(), regels.begin());
  const bool ok =
      gevuld.empty() || bronnen.opmerking.SchrijfOpmerking(
                            regels, OpmRecnrs{}, 0, bijPersoon ? persoon_ : std::int16_t{0},
                            bijPersoon ? std::int16_t{0} : relatie_, begin, kAlleUitvoer, rubriek_);
  rubriek_ = 0;
  if (ok) return Verloop::Verder;
  return Fout("Niet alle opmerkingen konden worden opgeslagen: het inlezen stopt bij " + context_);
}

}  // namespace lb77
