// What a crash left of an action: put back, or kept.
#include <algorithm>
#include <utility>

#include "store/Journaal.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

SysteemFout FoutOnvoltooid() {
  return {kGeenToegang, "De vorige bewerking is niet voltooid"};
}

SysteemFout FoutPlaatsen() {
  return {kGeenToegang, "Het plaatsbestand is een ander dan toen"};
}

bool OpNaam(const JournaalPost& een, const JournaalPost& ander) {
  return een.naam < ander.naam;
}

}  // namespace

SysteemFout Journaal::LeesOnvoltooid(std::vector<Gelezen>& gelezen) {
  std::vector<JournaalPost> posten;
  if (SysteemFout fout = map_->Lijst(posten)) return fout;
  std::ranges::sort(posten, [](const auto& a, const auto& b) { return OpNaam(b, a); });
  for (const JournaalPost& post : posten) {
    const auto naam = LeesJournaalNaam(post.naam);
    if (!naam || !naam->bezig || (lopend_ && lopend_->kop.nummer == naam->nummer)) continue;
    std::string bytes;
    if (SysteemFout fout = map_->Lees(post.naam, bytes)) return fout;
    gelezen.push_back({naam->nummer, post.naam, OntleedJournaal(bytes)});
  }
  return {};
}

// Without a head nothing had been written yet; with an end it was done.
bool Journaal::Verschilt(const JournaalInhoud& inhoud) {
  if (!inhoud.kop || inhoud.einde) return false;
  for (const BestandSoort soort : kBestandSoorten) {
    const std::uint64_t toen = inhoud.lengten.at(IndexVan(soort));
    std::uint64_t nu = 0;
    if (toen != kGeenLengte && (LengteNu(soort, nu) || nu != toen)) return true;
  }
  return std::ranges::any_of(inhoud.beelden, [this](const JournaalBeeld& beeld) {
    std::string bytes;
    return LeesNu(beeld.plek, bytes) || bytes != beeld.bytes;
  });
}

std::optional<OnvoltooideHandeling> Journaal::Onvoltooid() {
  // The file of an action that is running must stay the one that is written.
  if (lopend_) return std::nullopt;
  std::vector<Gelezen> gelezen;
  static_cast<void>(LeesOnvoltooid(gelezen));
  for (const Gelezen& deze : gelezen) {
    // Where it can't be done now, the next write does it, or is refused.
    if (deze.inhoud.einde) static_cast<void>(LegEindeVast(deze));
    if (Verschilt(deze.inhoud)) {
      return OnvoltooideHandeling{deze.inhoud.kop->label, deze.inhoud.kop->tijd};
    }
  }
  return std::nullopt;
}

// An end that a program which died has written need not be on the disk itself.
SysteemFout Journaal::LegEindeVast(const Gelezen& gelezen) {
  SysteemFout fout = map_->Open(gelezen.naam);
  if (!fout) fout = map_->Veiligstellen();
  map_->Sluit();
  return fout;
}

// The same goes for what it put back: the journal must not go before that is there.
SysteemFout Journaal::LegBestandenVast(const JournaalInhoud& inhoud) {
  for (const BestandSoort soort : kBestandSoorten) {
    if (inhoud.lengten.at(IndexVan(soort)) == kGeenLengte) continue;
    if (Ruw(soort) == nullptr) return FoutNietOpen();
    if (SysteemFout fout = Ruw(soort)->Veiligstellen()) return fout;
  }
  return {};
}

// Gives the ended actions, oldest first. What is left of others goes, or gets the name it lacks;
// one that changed something forbids all writes.
SysteemFout Journaal::RuimOnvoltooid(std::vector<JournaalPost>& posten) {
  std::vector<Gelezen> gelezen;
  if (SysteemFout fout = LeesOnvoltooid(gelezen)) return fout;
  for (const Gelezen& deze : gelezen) {
    if (Verschilt(deze.inhoud)) return FoutOnvoltooid();
    const bool af = deze.inhoud.einde.has_value();
    SysteemFout fout = af ? LegEindeVast(deze) : LegBestandenVast(deze.inhoud);
    if (fout) return fout;
    fout = af ? map_->Hernoem(deze.naam, JournaalNaam(deze.nummer, false))
              : map_->Verwijder(deze.naam);
    if (fout) return fout;
  }
  if (SysteemFout fout = map_->Lijst(posten)) return fout;
  std::erase_if(posten, [](const JournaalPost& post) { return !LeesJournaalNaam(post.naam); });
  std::ranges::sort(posten, OpNaam);
  return {};
}

// Central places that have grown may be those of other sets by now: they stay as they are.
SysteemFout Journaal::IsGegroeid(const JournaalInhoud& inhoud, bool& gegroeid) {
  const std::uint64_t toen = inhoud.lengten.at(IndexVan(BestandSoort::Plaatsen));
  if (!inhoud.centraal || toen == kGeenLengte) return {};
  std::uint64_t nu = 0;
  SysteemFout fout = LengteNu(BestandSoort::Plaatsen, nu);
  gegroeid = nu > toen;
  return fout;
}

SysteemFout Journaal::ZetTerug(const JournaalInhoud& inhoud) {
  const bool plaatsen = inhoud.lengten.at(IndexVan(BestandSoort::Plaatsen)) != kGeenLengte;
  if (plaatsen && inhoud.centraal != centraal_) return FoutPlaatsen();
  bool laatPlaatsen = false;
  if (SysteemFout fout = IsGegroeid(inhoud, laatPlaatsen)) return fout;
  for (const JournaalBeeld& beeld : inhoud.beelden) {
    if (laatPlaatsen && beeld.plek.soort == BestandSoort::Plaatsen) continue;
    std::string bytes;
    if (SysteemFout fout = LeesNu(beeld.plek, bytes)) return fout;
    if (bytes == beeld.bytes) continue;
    if (SysteemFout fout = Ruw(beeld.plek.soort)->Schrijf(beeld.plek.nr, beeld.bytes)) return fout;
  }
  for (const BestandSoort soort : kBestandSoorten) {
    const std::uint64_t toen = inhoud.lengten.at(IndexVan(soort));
    if (toen == kGeenLengte || (laatPlaatsen && soort == BestandSoort::Plaatsen)) continue;
    std::uint64_t nu = 0;
    if (SysteemFout fout = LengteNu(soort, nu)) return fout;
    if (nu == toen) continue;
    if (SysteemFout fout = Ruw(soort)->Kap(toen)) return fout;
  }
  return {};
}

SysteemFout Journaal::Herstel() {
  if (lopend_) return {};
  std::vector<Gelezen> gelezen;
  if (SysteemFout fout = LeesOnvoltooid(gelezen)) return fout;
  for (const Gelezen& deze : gelezen) {
    if (Verschilt(deze.inhoud)) {
      if (SysteemFout fout = ZetTerug(deze.inhoud)) return fout;
    }
    if (deze.inhoud.einde) continue;
    if (SysteemFout fout = LegBestandenVast(deze.inhoud)) return fout;
    if (SysteemFout fout = map_->Verwijder(deze.naam)) return fout;
    if (SysteemFout fout = map_->StelNamenVeilig()) return fout;
  }
  Stempelen();
  return {};
}

SysteemFout Journaal::StandNu(const JournaalInhoud& inhoud, JournaalEinde& einde) {
  std::map<RecordPlek, JournaalStand> standen;
  const auto noteer = [&](const RecordPlek& plek) {
    std::string bytes;
    SysteemFout fout = LeesNu(plek, bytes);
    standen[plek] = StandVan(plek, bytes);
    return fout;
  };
  for (const JournaalBeeld& beeld : inhoud.beelden) {
    if (SysteemFout fout = noteer(beeld.plek)) return fout;
  }
  for (const BestandSoort soort : kBestandSoorten) {
    const std::uint64_t toen = inhoud.lengten.at(IndexVan(soort));
    if (toen == kGeenLengte) continue;
    std::uint64_t& nu = einde.lengten.at(IndexVan(soort));
    if (SysteemFout fout = LengteNu(soort, nu)) return fout;
    const auto lengte = static_cast<std::uint64_t>(RecordLengteVan(soort));
    auto nr = static_cast<std::int32_t>(std::min<std::uint64_t>(toen / lengte + 1, kMaxRecords));
    for (; nr <= kMaxRecords && BeginVan({soort, nr}) < nu; ++nr) {
      if (SysteemFout fout = noteer({soort, nr})) return fout;
    }
  }
  for (const auto& [plek, stand] : standen) einde.standen.push_back(stand);
  return {};
}

SysteemFout Journaal::BehoudDeze(const Gelezen& gelezen) {
  JournaalEinde einde;
  if (SysteemFout fout = StandNu(gelezen.inhoud, einde)) return fout;
  if (SysteemFout fout = LegBestandenVast(gelezen.inhoud)) return fout;
  if (SysteemFout fout = map_->Open(gelezen.naam)) return fout;
  SysteemFout fout = map_->Kap(gelezen.inhoud.heel);
  if (!fout) fout = map_->Schrijf(gelezen.inhoud.heel, CodeerEinde(einde));
  if (!fout) fout = map_->Veiligstellen();
  map_->Sluit();
  if (fout) return fout;
  return map_->Hernoem(gelezen.naam, JournaalNaam(gelezen.nummer, false));
}

SysteemFout Journaal::Behoud() {
  if (lopend_) return {};
  std::vector<Gelezen> gelezen;
  if (SysteemFout fout = LeesOnvoltooid(gelezen)) return fout;
  for (const Gelezen& deze : gelezen) {
    if (!Verschilt(deze.inhoud)) continue;
    if (SysteemFout fout = BehoudDeze(deze)) return fout;
  }
  Stempelen();
  return {};
}

}  // namespace lb77
