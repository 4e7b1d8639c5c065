#include "exchange/GedcomOpmerkingen.h"

#include <string_view>

#include "exchange/GedcomRegels.h"
#include "text/Getallen.h"

namespace lb77 {

void GedcomOpmerkingen::Neem(const std::string& id, std::int16_t opmRecord, std::int16_t opmCode) {
  id_ = id;
  opmRecord_ = opmRecord;
  code_ = opmCode;
  geteld_.clear();
  // Without a rubric nothing of the chain is looked at, whatever it may hold.
  reeks_.Lees(code_ == 0 ? std::int16_t{0} : opmRecord_);
}

void GedcomOpmerkingen::SchrijfOpmRegels(int niveau, std::int16_t rubriek) {
  if (!reeks_.Heeft(code_, rubriek)) return;  // as nearly always
  const OpmReeks::Inhoud inhoud = reeks_.Rubriek(code_, rubriek);
  std::string begin = GetalTekst(niveau) + " NOTE ";
  for (const std::string& tekst : inhoud.regels) {
    // kept: also a remark that begins so by itself.
    if (tekst.starts_with(">> ")) {
      begin.append(id_).append(" ").append(tekst);
      log_.Regel(begin + " (opm-reeks start bij opm-record: " + GetalTekst(opmRecord_) + ")");
      return;
    }
    uit_.Regel(begin + GedcomTekst(tekst));
    begin = GetalTekst(niveau + 1) + " CONT ";
  }
  if (rubriek > 0 && geteld_.insert(rubriek).second) weggelaten_ += inhoud.over;
}

void GedcomOpmerkingen::SlaOver(std::int16_t rubriek) {
  if (reeks_.Heeft(code_, rubriek)) overgeslagen_ += reeks_.Koppen(rubriek).size();
}

}  // namespace lb77
