#include "store/OngedaanPlan.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "store/OngedaanMislukt.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

using Soort = OngedaanUitslag::Soort;

OngedaanUitslag Gewijzigd(const RecordPlek& plek) {
  return {.soort = Soort::Gewijzigd, .nummer = 0, .plek = plek, .fout = {}};
}

}  // namespace

std::string RecordNaam(const RecordPlek& plek) {
  constexpr std::array<std::string_view, 4> kNamen = {"Persoonsrecord", "Relatierecord",
                                                      "Opmerkingrecord", "Plaatsrecord"};
  return std::string(kNamen.at(IndexVan(plek.soort))) + " " + GetalTekst(plek.nr);
}

std::string OngedaanTekst(const OngedaanUitslag& uitslag) {
  switch (uitslag.soort) {
    case Soort::Gelukt:
      return {};
    case Soort::NietAanwezig:
      return "Deze bewerking staat niet in het journaal";
    case Soort::Bezig:
      return "Er is nog een bewerking bezig";
    case Soort::Beschadigd:
      return "Het journaal van bewerking " + GetalTekst(uitslag.nummer) + " is beschadigd";
    case Soort::Gewijzigd:
      return RecordNaam(uitslag.plek) + " is sindsdien door een ander programma gewijzigd";
    case Soort::Plaatsen:
      return "Het plaatsbestand is een ander dan toen";
    case Soort::Mislukt:
      break;
  }
  return "Ongedaan maken is niet gelukt\n" + uitslag.fout.tekst;
}

std::optional<OngedaanUitslag> OngedaanPlan::ControleerLengte(BestandSoort soort,
                                                              std::uint64_t na) {
  std::uint64_t nu = lengten_.at(IndexVan(soort));
  if (nu == kGeenLengte) {
    if (SysteemFout fout = leesLengte_(soort, nu)) return OngedaanMislukt(std::move(fout));
  }
  if (nu == na) return std::nullopt;
  const std::uint64_t eerste = std::min(nu, na) / RecordLengteVan(soort) + 1;
  const auto hoogste = static_cast<std::uint64_t>(kMaxRecords);
  return Gewijzigd({soort, static_cast<std::int32_t>(std::min(eerste, hoogste))});
}

std::optional<OngedaanUitslag> OngedaanPlan::ControleerRecord(const JournaalStand& stand) {
  const auto later = records_.find(stand.plek);
  std::string bytes;
  if (later != records_.end()) {
    bytes = later->second;
  } else if (SysteemFout fout = leesRecord_(stand.plek, bytes)) {
    return OngedaanMislukt(std::move(fout));
  }
  if (StandVan(stand.plek, bytes) == stand) return std::nullopt;
  return Gewijzigd(stand.plek);
}

std::optional<OngedaanUitslag> OngedaanPlan::Voeg(const JournaalInhoud& inhoud) {
  for (const JournaalStand& stand : inhoud.einde->standen) {
    if (auto fout = ControleerRecord(stand)) return fout;
  }
  for (const BestandSoort soort : kBestandSoorten) {
    const std::uint64_t na = inhoud.einde->lengten.at(IndexVan(soort));
    if (na == kGeenLengte) continue;
    if (auto fout = ControleerLengte(soort, na)) return fout;
    lengten_.at(IndexVan(soort)) = inhoud.lengten.at(IndexVan(soort));
  }
  // A record without an image lay behind the end of its file.
  for (const JournaalStand& stand : inhoud.einde->standen) records_[stand.plek].clear();
  for (const JournaalBeeld& beeld : inhoud.beelden) {
    // Not those that were only read ahead: this action has not written them.
    const bool geraakt =
        std::ranges::binary_search(inhoud.einde->standen, beeld.plek, {}, &JournaalStand::plek);
    if (geraakt) records_[beeld.plek] = beeld.bytes;
  }
  return std::nullopt;
}

}  // namespace lb77
