#include "exchange/ImpRestGang.h"

#include <string_view>

#include "text/Tekens.h"

namespace lb77 {

namespace {

// A pass that ended in front of it has not come to know the character set.
void NeemTekenset(ImpLoop& loop, const GedDelen& delen, GedSoort record) {
  if (loop.omgezet || delen.level != 1 || delen.tag != "CHAR") return;
  if (record != GedSoort::Hoofd && record != GedSoort::Inzender) return;
  loop.tekenset = GedTekensetVan(delen.waarde);
}

// The lines up to the end of the records.
class Rest {
 public:
  Rest(ImpLoop& loop, const RegelLezer& lezer, std::int32_t vanaf)
      : loop_(loop), lezer_(lezer), vanaf_(vanaf) {}

  // False at the end of the records.
  [[nodiscard]] bool Neem(std::string_view regel) {
    ++loop_.stand.regels;
    const GedDelen delen = GedRegel(regel);
    if (!delen.fout.empty()) {
      if (!Trim(regel).empty()) loop_.rest.SchrijfVreemd(lezer_.Bron());
      return true;
    }
    if (delen.level == 0) {
      record_ = loop_.Kop(delen);
      if (record_ == GedSoort::Einde) return false;
    }
    NeemTekenset(loop_, delen, record_);
    if (delen.level == 0 && record_ == GedSoort::Hoofd && loop_.stand.regels > 1) {
      loop_.rest.NeemTweedeHoofd();
    } else {
      NeemInRest(loop_, lezer_, delen, delen.level == 0 ? record_ : GedSoort::Anders);
    }
    if (loop_.stand.regels >= vanaf_) {
      loop_.rest.Schrijf();
    } else {
      SchrijfInRest(loop_, lezer_);
    }
    return true;
  }

 private:
  ImpLoop& loop_;
  const RegelLezer& lezer_;
  std::int32_t vanaf_;
  GedSoort record_ = GedSoort::Anders;
};

}  // namespace

void NeemInRest(ImpLoop& loop, const RegelLezer& lezer, const GedDelen& delen, GedSoort soort) {
  const std::string_view bron = lezer.Bron();
  if (delen.level > 0) {
    loop.rest.Neem(delen.level, bron);
    return;
  }
  std::int16_t nr = 0;
  if (soort == GedSoort::Persoon) nr = loop.PersoonNr();
  if (soort == GedSoort::Relatie) nr = loop.RelatieNr();
  loop.rest.NeemKop(bron, soort, nr);
}

void SchrijfInRest(ImpLoop& loop, const RegelLezer& lezer) {
  if (loop.merken.Heeft(loop.stand.regels) || lezer.VerloorTekens()) loop.rest.Schrijf();
}

void LeesInRest(ImpLoop& loop, RegelLezer& lezer, std::int32_t vanaf) {
  const ImpStand stand = loop.stand;
  Rest rest(loop, lezer, vanaf);
  std::string_view regel;
  while (lezer.Volgende(regel) && rest.Neem(regel)) {
  }
  LeesSlotInRest(loop, lezer);
  loop.stand = stand;
}

void LeesSlotInRest(ImpLoop& loop, RegelLezer& lezer) {
  loop.rest.BeginAchterSlot();
  std::string_view regel;
  while (lezer.Volgende(regel)) {
    if (!Trim(regel).empty()) loop.rest.SchrijfAchterSlot(lezer.Bron());
  }
}

void LeesAllesInRest(ImpLoop& loop, RegelLezer& lezer, std::int32_t vanaf) {
  const ImpStand stand = loop.stand;
  lezer.Begin();
  loop.BeginGang();
  LeesInRest(loop, lezer, vanaf);
  loop.stand = stand;
}

}  // namespace lb77
