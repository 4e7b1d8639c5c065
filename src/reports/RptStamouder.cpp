#include "reports/RptStamouder.h"

#include "entry/VolgersBewaker.h"
#include "entry/ZoekPersoon.h"
#include "reporting/RecordGang.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::size_t kCijfers = 5;

}  // namespace

RptStamouder::RptStamouder(const LijstSoort& soort, Hoofdmodule& hoofd, std::string_view uitleg)
    : LijstForm(soort, hoofd),
      UitlegLabel(*this, "UitlegLabel", uitleg),
      PersNr(*this, "PersNr", "Persoonsnummer:", kCijfers, InvoerSoort::Persoon) {
  PersNr.ZetFilter(AlleenCijfers);
  PersNr.ZetDanOK();
  ZoekButton.BijKlik([this] { ZoekButtonKlik(); });
}

std::int16_t RptStamouder::Stamouder() const {
  return NaarInt16(Getalwaarde(PersNr.Tekst())).value_or(std::int16_t{0});
}

bool RptStamouder::IsGenoeg() {
  return LeesHoofdrecord(Hoofd().Persoon, Stamouder());
}

void RptStamouder::ZoekButtonKlik() {
  const VolgersBewaker bewaker(Hoofd().volgers);
  const std::int32_t nr = VraagZoekPersoon(Hoofd());
  if (nr < 1) return;
  Bewerkt(PersNr, NrTekst(nr));
  if (Bediening* const ok = Zoek("OKButton")) ZetFocus(*ok);
}

}  // namespace lb77
