#include "exchange/ImpOpmerkingen.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "exchange/EigenPaden.h"
#include "exchange/GedNaam.h"
#include "exchange/GedRegel.h"
#include "exchange/ImpRestGang.h"
#include "exchange/OpmAfbreken.h"
#include "exchange/OpmTags.h"
#include "store/Codes.h"
#include "store/OpmVelden.h"
#include "store/Rubrieken.h"
#include "text/Bestandstekst.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// Tags that become a NOTE, and what goes before their value.
struct Tagwissel {
  std::string_view tag;
  std::string_view voor;
};
constexpr std::array kTagwissels = {
    Tagwissel{"_COMM", ""},
    Tagwissel{"_ALIA", "alias "},
    Tagwissel{"ADDR", "Adres: "},
    Tagwissel{"RFN", "Extern nummer (RFN): "},
    Tagwissel{"AFN", "Ancestral File Number (AFN): "},
    Tagwissel{"TYPE", "TYPE: "},
    Tagwissel{"SOUR", "Bron: "},
    Tagwissel{"CAUS", "Oorzaak: "},
    Tagwissel{"TEXT", ""},
};
constexpr std::string_view kNote = "NOTE";
constexpr std::size_t kRegelBreedte = 80;
// In which kinds of output an imported remark appears.
// kept: a bit without a meaning is among them, and that of the Gezinsblad is not.
constexpr std::int16_t kZonderBetekenis = 16;
constexpr std::int16_t kBijProg =
    uitvoer::kKwartierstaat | uitvoer::kStamreeks | uitvoer::kGenealogie | kZonderBetekenis;

// Is that a rubric, and of the same kind of owner?
bool IsRubriekVan(std::int16_t eigenaar, std::int16_t rubriek) {
  return (eigenaar > 0) == (rubriek > 0) && !RubriekOpschrift(rubriek).empty();
}

// Stored text may take more room than its line has.
bool PastInRecord(std::string_view regel) {
  return IsAscii(regel) || WindowsNaarDos(regel).size() <= kRegelBreedte;
}

}  // namespace

// A line while it may turn into a note.
struct ImpOpmerkingen::Regel {
  std::string_view ouder;  // the path above it
  std::string_view pad;    // its own path, after the change of its tag
  std::string_view bron;   // its tag in the file
  std::string_view tag;
  std::string waarde;
  std::string_view eigen;  // its value in the file
};

ImpOpmerkingen::ImpOpmerkingen(ImpLoop& loop) : loop_(loop), rubrieken_(AlleOpmRubrieken()) {}

ImpUitslag ImpOpmerkingen::Voer(RegelLezer& lezer) {
  loop_.BeginGang();
  lezer_ = &lezer;
  std::string_view regel;
  while (!einde_ && lezer.Volgende(regel)) {
    loop_.TelRegel();
    const GedDelen delen = loop_.Ontleed(regel);
    if (!delen.fout.empty()) return {.fout = std::string(delen.fout), .regel = loop_.stand.regels};
    ImpUitslag uitslag = delen.level == 0 ? NeemKop(delen) : NeemRegel(delen);
    if (!uitslag.Gelukt()) {
      // No further note is stored: what the second pass left to this one is lost.
      if (einde_) {
        LeesSlotInRest(loop_, lezer);
      } else {
        LeesInRest(loop_, lezer);
      }
      uitslag.regel = regel_;
      return uitslag;
    }
  }
  // A note that still waits goes nowhere.
  loop_.rest.NootKwijt();
  if (einde_) TelAchterSlot(lezer, loop_.stand.regels);
  return {};
}

void ImpOpmerkingen::TelAchterSlot(RegelLezer& lezer, std::int32_t regel) {
  loop_.rest.BeginAchterSlot();
  std::string_view tekst;
  while (lezer.Volgende(tekst)) {
    ++regel;
    if (Trim(tekst).empty()) continue;
    loop_.verliezen.Tel(Verlies::AchterSlot, regel);
    loop_.rest.SchrijfAchterSlot(lezer.Bron());
  }
}

ImpUitslag ImpOpmerkingen::NeemKop(const GedDelen& delen) {
  ImpUitslag uitslag = Bewaar();
  pad_.Zet(0, delen.tag);
  kwijt_ = delen.tag == kNote;
  if (kwijt_) loop_.TelVerlies(Verlies::NietOvergenomen);
  const GedSoort soort = loop_.Kop(delen);
  einde_ = soort == GedSoort::Einde;
  if (einde_) return uitslag;
  NeemInRest(loop_, *lezer_, delen, soort);
  SchrijfInRest(loop_, *lezer_);
  return uitslag;
}

ImpUitslag ImpOpmerkingen::NeemRegel(const GedDelen& delen) {
  if (IsVervolgTag(delen.tag)) {
    NeemInRest(loop_, *lezer_, delen, GedSoort::Anders);
    NeemVervolg(delen);
    return {};
  }
  if (NoemGebeurtenis(pad_, delen)) return {};
  if (HoortBijOpmerking(delen.tag)) {
    NeemEigen(delen);
    return {};
  }
  const auto* wissel = std::ranges::find(kTagwissels, delen.tag, &Tagwissel::tag);
  const bool gewisseld = wissel != kTagwissels.end();
  const std::string_view tag = gewisseld ? kNote : delen.tag;
  pad_.Zet(delen.level, tag);
  const std::string& pad = pad_.Van(delen.level);
  if (pad == "INDI-NAME") ToonNaam(delen.waarde);
  ImpUitslag uitslag = Bewaar();
  NeemInRest(loop_, *lezer_, delen, GedSoort::Anders);
  if (!uitslag.Gelukt()) {
    SchrijfInRest(loop_, *lezer_);
    return uitslag;
  }
  // The kind of an event that was named stands in tags of our own.
  if (delen.tag == "TYPE" && IsGenoemd(pad_.Ouder(delen.level))) return {};
  Regel regel{pad_.Ouder(delen.level), pad, delen.tag, tag, {}, delen.waarde};
  if (gewisseld) regel.waarde = wissel->voor;
  regel.waarde += delen.waarde;
  heel_ = !lezer_->VerloorTekens();
  if (!IsVreemd(regel.ouder)) {
    MaakOpmerking(regel);
    if (regel.tag == kNote) Wacht(regel);
  }
  kwijt_ = rubriek_ == 0 && regel.tag == kNote;
  if (rubriek_ == 0) {
    TelKwijt(regel.bron, regel.eigen);
    SchrijfInRest(loop_, *lezer_);
  }
  return {};
}

// Of a line that made no remark. What the second pass did not leave to this one it has dealt with.
void ImpOpmerkingen::TelKwijt(std::string_view bron, std::string_view waarde) {
  if (bron == kNote) {
    loop_.TelVerlies(Verlies::NietOvergenomen);
  } else if (WordtOpmerking(bron) && !Trim(waarde).empty() && pad_.Van(0) != "HEAD") {
    loop_.TelVerlies(Verlies::Tekst);
  }
}

// A level that was skipped may have a path that another kind of record left there.
bool ImpOpmerkingen::IsVreemd(std::string_view pad) const {
  return pad.substr(0, pad.find('-')) != pad_.Van(0);
}

void ImpOpmerkingen::NeemVervolg(const GedDelen& delen) {
  const std::string& ouder = pad_.Ouder(delen.level);
  const bool vanNoot = ouder.ends_with(kNote);
  if (vanNoot && rubriek_ != 0) {
    if (delen.tag == "CONT") tekst_ += ' ';
    tekst_ += delen.waarde;
    if (delen.tag == "CONT") regels_.emplace_back();
    regels_.back() += delen.waarde;
    heel_ = heel_ && !lezer_->VerloorTekens();
    TelTekens(delen.waarde);
    loop_.rest.VervolgNoot();
    return;
  }
  SchrijfInRest(loop_, *lezer_);
  if (vanNoot) {
    // Without a rubric the text goes nowhere; that of a note went with it.
    if (!kwijt_ && !Trim(delen.waarde).empty()) loop_.TelVerlies(Verlies::Vervolg);
  } else if (ouder != "SUBM" && ouder != "SUBM-ADDR") {
    loop_.delen.melder.Log("Vervolgregels worden alleen voor NOTES ondersteund...");
    std::string regel = "\t" + ouder + "-";
    regel.append(delen.tag).append("\t").append(delen.waarde);
    loop_.Log(regel);
  }
}

void ImpOpmerkingen::ToonNaam(std::string_view waarde) {
  const GedNaamDelen naam = GedNaam(waarde);
  loop_.stand.voornaam = GedNaarWindows(loop_.tekenset, naam.voornaam);
  loop_.stand.achternaam = GedNaarWindows(loop_.tekenset, naam.achternaam);
}

// What stands below an event, an address or an adoption is told as a note.
void ImpOpmerkingen::MaakOpmerking(Regel& regel) {
  if (regel.ouder.ends_with("EVEN")) {
    const std::string_view wat = regel.bron == "TYPE" ? regel.ouder : regel.pad;
    regel.waarde = std::string(wat) + " : " + regel.waarde;
  } else if (regel.ouder.ends_with("ADDR")) {
    regel.waarde = "Adres: " + regel.waarde;
  } else if (regel.ouder == "INDI-ADOP") {
    regel.waarde = "Adoptie: " + (regel.bron == "DATE" ? AdoptieDatum(regel.waarde) : regel.waarde);
  } else {
    return;
  }
  regel.tag = kNote;
}

std::string ImpOpmerkingen::AdoptieDatum(std::string_view waarde) {
  const GedDatumUitslag datum = loop_.Datum(waarde);
  // The second date of a period has no place in the text.
  heel_ = heel_ && datum.heel && datum.corr != correctie::kTussen;
  return std::string(1, datum.corr) + " " + GedDatumTekst(datum.eerste);
}

void ImpOpmerkingen::Wacht(const Regel& regel) {
  const OpmRubriek* rij = rubrieken_.Zoek(regel.ouder);
  rubriek_ = rij != nullptr ? rij->rubriek : AlgemeneRubriek(regel.ouder);
  tekst_ = rij != nullptr ? rij->voor : std::string_view();
  tekst_ += regel.waarde;
  regels_.assign(1, tekst_);
  regel_ = loop_.stand.regels;
  prog_ = kBijProg;
  vanOns_ = false;
  if (rubriek_ == 0) return;
  TelTekens(tekst_);
  loop_.rest.BeginNoot();
}

void ImpOpmerkingen::TelTekens(std::string_view tekst) {
  if (!IsAscii(tekst) && loop_.TelTekens(GedNaarWindows(loop_.tekenset, tekst))) heel_ = false;
}

void ImpOpmerkingen::NeemEigen(const GedDelen& delen) {
  NeemInRest(loop_, *lezer_, delen, GedSoort::Anders);
  if (rubriek_ == 0) return SchrijfInRest(loop_, *lezer_);
  loop_.rest.VervolgNoot();
  vanOns_ = true;
  const auto getal = NaarInt16(Getalwaarde(delen.waarde));
  if (delen.tag == eigen::kProg && getal) {
    prog_ = *getal;
  } else if (delen.tag == eigen::kRubriek && getal && IsRubriekVan(rubriek_, *getal)) {
    rubriek_ = *getal;
  } else {
    heel_ = false;
  }
}

OpmRegels ImpOpmerkingen::Regels() {
  OpmRegels regels;
  bool past = vanOns_ && regels_.size() <= regels.size();
  for (std::size_t i = 0; past && i < regels_.size(); ++i) {
    regels[i] = loop_.GedTekst(regels_[i]);
    past = regels[i].size() <= opmveld::Tekstregel.breedte;
  }
  if (!past) {
    const std::string tekst = loop_.GedTekst(tekst_);
    const bool geheel = PastGeheel(tekst);
    if (!geheel) loop_.verliezen.Tel(Verlies::OpmAfgekapt, regel_);
    heel_ = heel_ && geheel;
    regels = BreekAf(tekst);
  }
  heel_ = heel_ && std::ranges::all_of(regels, PastInRecord);
  return regels;
}

ImpUitslag ImpOpmerkingen::Bewaar() {
  if (rubriek_ == 0) return {};
  ImpUitslag uitslag = BewaarNoot();
  if (heel_ && uitslag.Gelukt()) {
    loop_.rest.NootBewaard();
  } else {
    loop_.rest.NootKwijt();
  }
  return uitslag;
}

ImpUitslag ImpOpmerkingen::BewaarNoot() {
  PersoonLB77& persoon = loop_.delen.persoon;
  RelatieLB77& relatie = loop_.delen.relatie;
  if (rubriek_ > 0) {
    const std::int16_t nr = loop_.PersoonNr();
    if (!persoon.Lees(nr)) return {.fout = "Leesfout bij Persoon " + GetalTekst(nr)};
    return Schrijf(persoon.OpmRecord(), nr, 0);
  }
  const std::int16_t nr = loop_.RelatieNr();
  if (!relatie.Lees(nr)) return {.fout = "Leesfout bij Relatie " + GetalTekst(nr)};
  return Schrijf(relatie.OpmRecord(), 0, nr);
}

ImpUitslag ImpOpmerkingen::Schrijf(std::int16_t begin, std::int16_t persoon, std::int16_t relatie) {
  OpmLB77& opmerking = loop_.delen.opmerking;
  const bool gelukt =
      opmerking.SchrijfOpmerking(Regels(), {}, 0, persoon, relatie, begin, prog_, rubriek_);
  rubriek_ = 0;
  if (gelukt) return {};
  // No later note would do better; where it stopped stands behind what the class has told.
  const bool bijPersoon = persoon != 0;
  const std::string nr = GetalTekst(bijPersoon ? persoon : relatie);
  if (opmerking.AantalRecords() >= kMaxRecords) {
    loop_.verliezen.ZetVol((bijPersoon ? "persoon " : "relatie ") + nr);
  }
  return {.fout = (bijPersoon ? "Schrijffout bij Persoon " : "Schrijffout bij Relatie ") + nr};
}

}  // namespace lb77
