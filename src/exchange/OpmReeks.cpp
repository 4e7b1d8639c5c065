#include "exchange/OpmReeks.h"

#include <algorithm>
#include <utility>

#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr int kRegelsInOpmerking = 10;

}  // namespace

OpmReeks::OpmReeks(OpmLB77& opmerking)
    : opmerking_(opmerking),
      aantal_(opmerking.AantalRecords()),
      schakels_(static_cast<std::size_t>(std::max<std::int16_t>(aantal_, 0)) + 1) {}

void OpmReeks::Lees(std::int16_t begin) {
  begin_ = begin;
  koppen_.clear();
  fout_.clear();
  ++gang_;
  std::int32_t stap = 0;
  for (std::int16_t nr = begin; nr != 0;) {
    Schakel geen;
    Schakel& schakel = nr > 0 && nr <= aantal_ ? schakels_[static_cast<std::size_t>(nr)] : geen;
    // A remark that comes back would come back for ever.
    const bool nieuw = schakel.gang != gang_;
    schakel.gang = gang_;
    if (!BetreedKop(nr, nieuw ? ++stap : aantal_, schakel)) return;
    koppen_[schakel.rubriek].push_back({nr, stap});
    nr = schakel.bijZelfde;
  }
}

bool OpmReeks::BetreedKop(std::int16_t nr, std::int32_t stap, Schakel& schakel) {
  if (schakel.gelezen && stap < aantal_) return true;
  if (!Betreed(nr, stap, fout_)) return false;
  schakel.rubriek = opmerking_.Rubriek();
  schakel.bijZelfde = opmerking_.BijZelfde();
  schakel.gelezen = true;
  return true;
}

std::size_t OpmReeks::Aantal() const {
  std::size_t aantal = 0;
  for (const auto& [rubriek, koppen] : koppen_) aantal += koppen.size();
  return aantal;
}

OpmReeks::Inhoud OpmReeks::Rubriek(std::int16_t code, std::int16_t rubriek) {
  Inhoud inhoud;
  if (!Heeft(code, rubriek)) return inhoud;
  const std::span<const Kop> koppen = Koppen(rubriek);
  for (std::size_t i = 0; i < koppen.size(); ++i) {
    const Einde einde = LeesRegels(koppen[i], inhoud.regels);
    if (einde == Einde::Vol) continue;
    if (einde == Einde::Kort) inhoud.over = koppen.size() - i - 1;
    return inhoud;
  }
  if (!fout_.empty()) inhoud.regels.push_back(fout_);
  return inhoud;
}

std::span<const OpmReeks::Kop> OpmReeks::Koppen(std::int16_t rubriek) const {
  const auto gevonden = koppen_.find(rubriek);
  return gevonden == koppen_.end() ? std::span<const Kop>()
                                   : std::span<const Kop>(gevonden->second);
}

OpmReeks::Einde OpmReeks::LeesRegels(const Kop& kop, std::vector<std::string>& regels) {
  std::int16_t nr = kop.nr;
  for (int regel = 0; regel < kRegelsInOpmerking; ++regel) {
    if (nr == 0) return Einde::Kort;
    std::string fout;
    if (!Betreed(nr, kop.stap + regel, fout)) {
      regels.push_back(fout);
      return Einde::Fout;
    }
    std::string tekst = opmerking_.Tekstregel();
    if (tekst.empty()) return Einde::Kort;
    regels.push_back(std::move(tekst));
    nr = opmerking_.VolgRegel();
  }
  return Einde::Vol;
}

// As the records of remarks know it: record 1 is none, so that a walk of as many steps as there are
// records goes round in a circle.
bool OpmReeks::Betreed(std::int16_t nr, std::int32_t stap, std::string& fout) {
  const bool bestaat = nr >= 2 && nr <= aantal_ && stap < aantal_;
  if (bestaat && opmerking_.Lees(nr)) return true;
  fout = std::string(bestaat ? ">> Leesfout" : ">> Verkeerde verwijzing:") + " opm-record " +
         GetalTekst(nr) + " bestaat niet <<";
  return false;
}

}  // namespace lb77
