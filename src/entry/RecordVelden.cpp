#include "entry/RecordVelden.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "entry/DatumVak.h"
#include "entry/GezindteVak.h"
#include "entry/PlaatsVak.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfers = 5;

}  // namespace

void RecordVelden::Bind(const Veld& veld, Toner toner, Lezer lezer) {
  bindingen_.push_back({&veld, std::move(toner), std::move(lezer), {}});
}

void RecordVelden::Bind(const Veld& veld, Invoerveld& vak) {
  vak.ZetMaxLengte(IsGetal(veld) ? kCijfers : veld.breedte);
  Bind(
      veld, [&vak](const std::string& waarde) { vak.ZetTekst(waarde); },
      [&vak] { return vak.Tekst(); });
}

// An empty date reads alike, with the focus on it and without.
void RecordVelden::Bind(const Veld& veld, DatumVak& vak) {
  Bind(
      veld, [&vak](const std::string& waarde) { vak.Toon(waarde); },
      [&vak] { return vak.IsLeeg() ? std::string() : vak.Tekst(); });
}

void RecordVelden::Bind(const Veld& veld, PlaatsVak& vak) {
  Bind(
      veld,
      [&vak](const std::string& waarde) {
        vak.Toon(static_cast<std::int16_t>(Getalwaarde(waarde)));
      },
      [&vak] { return NrTekst(vak.PlaatsNr()); });
}

void RecordVelden::Bind(const Veld& veld, GezindteVak& vak) {
  vak.Code.ZetMaxLengte(veld.breedte);
  Bind(
      veld, [&vak](const std::string& waarde) { vak.Toon(waarde); },
      [&vak] { return vak.Code.Tekst(); });
}

// All values are taken before the first is shown: showing one may read another record.
void RecordVelden::Toon(const RecordRaam& record) {
  std::vector<std::string> waarden;
  std::transform(bindingen_.begin(), bindingen_.end(), std::back_inserter(waarden),
                 [&](const Binding& binding) { return record.Waarde(*binding.veld); });
  for (std::size_t i = 0; i < bindingen_.size(); ++i) bindingen_[i].toon(waarden[i]);
  Onthoud();
}

void RecordVelden::Onthoud() {
  for (Binding& binding : bindingen_) binding.getoond = binding.lees();
}

// Leaving a field trims it, which is no change.
bool RecordVelden::IsAnders(const Binding& binding) {
  return Trim(binding.lees()) != Trim(binding.getoond);
}

bool RecordVelden::Gewijzigd() const {
  return std::any_of(bindingen_.begin(), bindingen_.end(), IsAnders);
}

void RecordVelden::ZetGewijzigde(RecordRaam& record) const {
  for (const Binding& binding : bindingen_) {
    if (IsAnders(binding)) record.Zet(binding.veld->naam, binding.lees());
  }
}

void RecordVelden::ZetAlle(RecordRaam& record) const {
  for (const Binding& binding : bindingen_) record.Zet(binding.veld->naam, binding.lees());
}

}  // namespace lb77
