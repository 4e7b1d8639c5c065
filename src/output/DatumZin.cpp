#include "output/DatumZin.h"

#include <algorithm>
#include <cstddef>

#include "store/Codes.h"
#include "text/Datum.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// One of the two events, with its texts.
struct Kant {
  std::string_view voor;
  std::int16_t plaatsNr = 0;
  std::int16_t dagMaand = 0;
  std::int16_t jaar = 0;
  std::string plaats;
  std::string datum;

  [[nodiscard]] bool DatumBekend() const { return dagMaand != 0 || jaar != 0; }
  [[nodiscard]] bool Bekend() const { return plaatsNr != 0 || DatumBekend(); }
  [[nodiscard]] bool ZelfdeDatum(const Kant& ander) const {
    return dagMaand == ander.dagMaand && jaar == ander.jaar;
  }
};

std::string DatumVan(const Kant& kant, char scheider) {
  return DatumTekst(kant.dagMaand / 100, kant.dagMaand % 100, kant.jaar, scheider);
}

// The phrase under construction. The order of the questions is that of the older reports, whose
// wording is kept down to its odd corners.
class Bouw {
 public:
  explicit Bouw(const DatumZinDelen& delen);

  void ZoekNamen(PlaatsLB77& plaats);
  [[nodiscard]] std::string Zin(char scheider);

 private:
  [[nodiscard]] bool Evenwijdig() const;
  void Erbij(std::string_view tekst);
  void Plaats(const Kant& kant);
  void Datum(const Kant& kant);
  void Plaatsen();
  void Correctie();
  void Eerste();
  void AlleenTweede();
  void Paar();
  void PaarMetTweeData();
  void KortEersteDatumIn();

  Kant een_;
  Kant twee_;
  std::string_view woord_;
  std::string_view corr_;
  bool gedwongen_;
  std::string zin_;
};

Bouw::Bouw(const DatumZinDelen& delen)
    : een_{delen.Voor1, delen.Plaats1, delen.DagMaand1, delen.Jaar1, {}, {}},
      twee_{delen.Voor2, delen.Plaats2, delen.DagMaand2, delen.Jaar2, {}, {}},
      woord_(delen.Woord),
      corr_(delen.Corr.empty() ? " " : delen.Corr),
      gedwongen_(delen.Plaats1 == kAlleenDatum) {
  if (gedwongen_) een_.plaatsNr = 0;
  if (!een_.Bekend()) {
    een_.voor = {};
    corr_ = " ";
  }
  if (!twee_.Bekend()) {
    twee_.voor = {};
    if (IsCode(corr_, correctie::kTussen)) corr_ = " ";
  }
  if (IsCode(corr_, correctie::kTussen)) {  // a range has one place
    twee_.voor = {};
    twee_.plaatsNr = 0;
  }
}

void Bouw::ZoekNamen(PlaatsLB77& plaats) {
  if (een_.plaatsNr != 0) een_.plaats = plaats.Naam2(een_.plaatsNr);
  if (twee_.plaatsNr != 0) twee_.plaats = plaats.Naam2(twee_.plaatsNr);
}

std::string Bouw::Zin(char scheider) {
  if (een_.voor.empty() && twee_.voor.empty() && !gedwongen_) return {};
  een_.datum = DatumVan(een_, scheider);
  twee_.datum = DatumVan(twee_, scheider);
  if (Evenwijdig() && corr_ == " ") {
    Paar();
  } else {
    Eerste();
  }
  return zin_;
}

bool Bouw::Evenwijdig() const {
  if (twee_.voor.empty()) return false;
  if (een_.plaatsNr == 0 && twee_.plaatsNr == 0) return twee_.DatumBekend();
  return een_.plaatsNr != 0 && twee_.plaatsNr != 0 && een_.DatumBekend() && twee_.DatumBekend();
}

void Bouw::Erbij(std::string_view tekst) {
  if (!zin_.empty()) zin_ += ' ';
  zin_ += tekst;
}

void Bouw::Plaats(const Kant& kant) {
  if (kant.plaatsNr != 0) Erbij(kant.plaats);
}

void Bouw::Datum(const Kant& kant) {
  if (kant.DatumBekend()) Erbij(kant.datum);
}

void Bouw::Correctie() {
  if (IsCode(corr_, correctie::kCirca)) Erbij("ca.");
  if (IsCode(corr_, correctie::kNa)) Erbij("na");
  if (IsCode(corr_, correctie::kVoor)) Erbij("voor");
  if (IsCode(corr_, correctie::kTussen)) Erbij("tussen");
}

void Bouw::Eerste() {
  zin_.append(een_.voor).append(woord_);
  Plaats(een_);
  Correctie();
  Datum(een_);
  if (IsCode(corr_, correctie::kTussen)) {
    Erbij("en");
    Erbij(twee_.datum);
  }
  if (twee_.voor.empty()) return;
  if (een_.voor.empty()) {
    AlleenTweede();
    return;
  }
  zin_.append(", ").append(twee_.voor);
  Plaats(twee_);
  Datum(twee_);
}

void Bouw::AlleenTweede() {
  zin_ = twee_.voor;
  zin_ += woord_;
  Plaats(twee_);
  Datum(twee_);
}

void Bouw::Plaatsen() {
  Plaats(een_);
  if (twee_.plaatsNr != 0 && twee_.plaatsNr != een_.plaatsNr) zin_.append("/").append(twee_.plaats);
}

void Bouw::Paar() {
  if (een_.voor.empty()) {
    AlleenTweede();
  } else if (een_.ZelfdeDatum(twee_)) {
    zin_.append(een_.voor).append(" en ").append(twee_.voor);  // kept: without the word
    Plaatsen();
    Erbij(twee_.datum);
  } else {
    PaarMetTweeData();
  }
}

void Bouw::PaarMetTweeData() {
  zin_.append(een_.voor).append("/").append(twee_.voor).append(woord_);
  Plaatsen();
  Datum(een_);
  if (een_.DatumBekend() && twee_.DatumBekend()) {
    if (een_.jaar == twee_.jaar) KortEersteDatumIn();
    zin_ += '/';
  }
  zin_ += twee_.datum;
}

// What both dates end in is told once: ‘12-5/14-6-1850’, ‘12/14-5-1850’. kept: on the text, so that
// a date without a day or a month may go with the blank before it, but never more.
void Bouw::KortEersteDatumIn() {
  std::size_t staart = GetalTekst(een_.jaar).size() + 1;
  if (een_.dagMaand % 100 == twee_.dagMaand % 100) {
    staart += GetalTekst(een_.dagMaand % 100).size() + 1;
  }
  zin_.resize(zin_.size() - std::min(staart, een_.datum.size() + 1));
}

}  // namespace

DatumZinDelen DelenVan(std::string_view voor1, const Gebeurtenis& een, std::string_view corr,
                       std::string_view voor2, const Gebeurtenis& twee) {
  return {voor1,         voor2,         {},       een.plaatsNr, een.dagMaand, een.jaar, corr,
          twee.plaatsNr, twee.dagMaand, twee.jaar};
}

std::string DatumZin(const DatumZinDelen& delen, PlaatsLB77& plaats, char scheider) {
  Bouw bouw(delen);
  bouw.ZoekNamen(plaats);
  return bouw.Zin(scheider);
}

std::string KaleDatum(std::int16_t dagMaand, std::int16_t jaar, std::string_view corr,
                      char scheider) {
  DatumZinDelen delen;
  delen.Plaats1 = kAlleenDatum;
  delen.DagMaand1 = dagMaand;
  delen.Jaar1 = jaar;
  delen.Corr = corr;
  return Bouw(delen).Zin(scheider);
}

}  // namespace lb77
