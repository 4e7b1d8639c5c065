#include "contact/GciScan.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::int32_t kEerste = 2;

}  // namespace

GciScan::GciScan(PersoonLB77& persoon, RelatieLB77& relatie, GciReeksen& reeksen, bool kinderen,
                 Keur keur)
    : persoon_(persoon),
      relatie_(relatie),
      reeksen_(reeksen),
      kinderen_(kinderen),
      keur_(std::move(keur)) {}

Uitslag GciScan::Voer(const Verloop& verloop) {
  for (std::int32_t nr = kEerste; nr <= kMaxRecords; ++nr) {
    if (verloop.afbreken()) return Einde::Afgebroken;
    const auto persoonNr = static_cast<std::int16_t>(nr);
    if (!persoon_.Lees(persoonNr)) {
      gestoptBij_ = persoonNr;
      break;
    }
    verloop.toon(nr - kEerste + 1, reeksen_.Aantal());
    if (persoon_.IsVolgRecord()) continue;
    const Wie wie{persoon_.AchterNaamTrue(), persoonNr, persoon_.Geslacht() == "V"};
    const NaamOordeel oordeel = keur_(wie.naam);
    if (oordeel == NaamOordeel::Afbreken) return Einde::Afgebroken;
    if (oordeel == NaamOordeel::Overslaan || wie.naam.empty()) continue;
    if (!TelPersoon(wie) || !TelRelaties(wie)) return Einde::Vol;
  }
  return Einde::Klaar;
}

bool GciScan::Tel(const Wie& wie, std::int16_t plaats, std::int16_t jaar) {
  return reeksen_.ReeksBij(wie.naam, plaats, jaar, wie.nr);
}

// The birth and baptism of the person in the buffer.
bool GciScan::TelGeboorte(const Wie& wie) {
  if (!persoon_.GebCorr().empty()) return true;
  return Tel(wie, persoon_.GebPlaatsNr(), persoon_.GebJaar()) &&
         Tel(wie, persoon_.DoopPlaatsNr(), persoon_.DoopJaar());
}

bool GciScan::TelPersoon(const Wie& wie) {
  if (!TelGeboorte(wie)) return false;
  if (!persoon_.OvlCorr().empty()) return true;
  return Tel(wie, persoon_.OvlPlaatsNr(), persoon_.OvJaar()) &&
         Tel(wie, persoon_.BegrPlaatsNr(), persoon_.BegrJaar());
}

bool GciScan::TelRelaties(const Wie& wie) {
  Huwtab tab{};
  static_cast<void>(persoon_.VulHuwtab(wie.nr, tab));
  for (const std::int16_t nr : tab) {
    if (nr >= kEerste && !TelRelatie(wie, nr)) return false;
  }
  return true;
}

bool GciScan::TelRelatie(const Wie& wie, std::int16_t relatieNr) {
  if (!relatie_.Lees(relatieNr)) return true;
  if (!Tel(wie, relatie_.OtrPlaatsNr(), relatie_.OtrJaar())) return false;
  if (relatie_.HuwCorr().empty() && !(Tel(wie, relatie_.WetHuwPlaatsNr(), relatie_.WetHuwJaar()) &&
                                      Tel(wie, relatie_.KHuwPlaatsNr(), relatie_.KHuwJaar()))) {
    return false;
  }
  if (!kinderen_ || !wie.vrouw) return true;
  Kindtab tab{};
  static_cast<void>(relatie_.VulKindtab(relatieNr, tab));
  for (const std::int16_t kind : tab) {
    if (kind >= kEerste && persoon_.Lees(kind) && !TelGeboorte(wie)) return false;
  }
  return true;
}

bool LigtErMeer(RecordBestand& personen, std::int16_t nr) {
  const std::size_t lengte = personen.RecordLengte();
  const std::uint64_t records = personen.Lengte() / lengte;
  auto laatste = static_cast<std::int32_t>(std::min<std::uint64_t>(records, kMaxRecords));
  std::string bytes(lengte, '\0');
  // A part that was never written is no person.
  for (; laatste > nr; --laatste) {
    const Leesuitslag uitslag = personen.Lees(laatste, bytes);
    if (uitslag.fout || bytes.find_first_not_of('\0') != std::string::npos) return true;
  }
  return false;
}

}  // namespace lb77
