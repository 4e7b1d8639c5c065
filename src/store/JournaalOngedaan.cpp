// The history of a journal, and undoing back to any of its actions.
#include <algorithm>
#include <functional>
#include <utility>

#include "store/Journaal.h"
#include "store/OngedaanMislukt.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

using Soort = OngedaanUitslag::Soort;

constexpr std::string_view kOngedaan = "Ongedaan: ";
constexpr std::string_view kOpnieuw = "Opnieuw: ";

// An undo of an undo does it again, and one of that undoes it again.
std::string OngedaanLabel(std::string_view label) {
  if (label.starts_with(kOngedaan)) {
    return std::string(kOpnieuw) + std::string(label.substr(kOngedaan.size()));
  }
  if (label.starts_with(kOpnieuw)) label.remove_prefix(kOpnieuw.size());
  return std::string(kOngedaan) + std::string(label);
}

OngedaanUitslag Geweigerd(Soort soort, std::uint32_t nummer = 0) {
  return {.soort = soort, .nummer = nummer, .plek = {}, .fout = {}};
}

// The row of an action of which nobody has looked yet whether it is undone.
HandelingRegel RegelVan(std::uint32_t nummer, const JournaalInhoud& inhoud) {
  HandelingRegel regel;
  regel.nummer = nummer;
  regel.gaaf = inhoud.IsCompleet();
  if (inhoud.einde) regel.records = inhoud.einde->standen.size();
  if (!inhoud.kop) return regel;
  regel.tijd = inhoud.kop->tijd;
  regel.label = inhoud.kop->label;
  regel.ongedaanVanaf = inhoud.kop->ongedaanVanaf;
  return regel;
}

}  // namespace

SysteemFout Journaal::LeesVoltooid(const JournaalPost& post, std::uint32_t vanaf,
                                   std::optional<Gelezen>& gelezen) {
  gelezen.reset();
  const auto naam = LeesJournaalNaam(post.naam);
  if (!naam || naam->nummer < vanaf) return {};
  std::string bytes;
  if (SysteemFout fout = map_->Lees(post.naam, bytes)) return fout;
  JournaalInhoud inhoud = OntleedJournaal(bytes);
  if (!naam->bezig || inhoud.einde) {
    gelezen = Gelezen{naam->nummer, post.naam, std::move(inhoud)};
  }
  return {};
}

SysteemFout Journaal::LeesVanaf(std::uint32_t vanaf, std::vector<Gelezen>& gelezen) {
  std::vector<JournaalPost> posten;
  if (SysteemFout fout = map_->Lijst(posten)) return fout;
  for (const JournaalPost& post : posten) {
    std::optional<Gelezen> deze;
    if (SysteemFout fout = LeesVoltooid(post, vanaf, deze)) return fout;
    if (deze) gelezen.push_back(std::move(*deze));
  }
  std::ranges::sort(gelezen, {}, &Gelezen::nummer);
  return {};
}

std::vector<HandelingRegel> Journaal::Geschiedenis() {
  std::vector<Gelezen> gelezen;
  static_cast<void>(LeesVanaf(1, gelezen));
  std::vector<HandelingRegel> regels;
  regels.reserve(gelezen.size());
  for (const Gelezen& deze : gelezen) regels.push_back(RegelVan(deze.nummer, deze.inhoud));
  // From the end: behind an undo everything from its first action on is undone.
  std::uint32_t vanaf = 0;
  for (auto regel = regels.rbegin(); regel != regels.rend(); ++regel) {
    regel->ongedaan = vanaf != 0 && regel->nummer >= vanaf;
    if (!regel->ongedaan) vanaf = regel->ongedaanVanaf;
  }
  return regels;
}

// Reads no further back than it must: a menu asks it after each action.
std::optional<HandelingRegel> Journaal::LaatsteTeOngedaan() {
  std::vector<JournaalPost> posten;
  static_cast<void>(map_->Lijst(posten));
  std::ranges::sort(posten, std::ranges::greater(), &JournaalPost::naam);
  std::uint32_t vanaf = 0;
  for (const JournaalPost& post : posten) {
    const auto naam = LeesJournaalNaam(post.naam);
    if (naam && vanaf != 0 && naam->nummer >= vanaf) continue;
    std::optional<Gelezen> deze;
    if (LeesVoltooid(post, 1, deze)) return std::nullopt;
    if (!deze) continue;
    HandelingRegel regel = RegelVan(deze->nummer, deze->inhoud);
    if (regel.ongedaanVanaf == 0) return regel;
    vanaf = regel.ongedaanVanaf;
  }
  return std::nullopt;
}

std::vector<RecordWijziging> Journaal::Wijzigingen(std::uint32_t nummer) {
  std::vector<Gelezen> gelezen;
  static_cast<void>(LeesVanaf(nummer, gelezen));
  if (gelezen.empty() || gelezen.front().nummer != nummer || !gelezen.front().inhoud.einde)
    return {};
  std::map<RecordPlek, RecordWijziging> wijzigingen;
  const JournaalInhoud& deze = gelezen.front().inhoud;
  for (const JournaalStand& stand : deze.einde->standen) {
    wijzigingen[stand.plek] = {stand.plek, {}, std::nullopt};
  }
  for (const JournaalBeeld& beeld : deze.beelden) {
    const auto gevonden = wijzigingen.find(beeld.plek);
    if (gevonden != wijzigingen.end()) gevonden->second.voor = beeld.bytes;
  }
  // What it left stands there still, or in the first action behind it that touched the record.
  std::map<RecordPlek, std::string> later;
  for (auto i = gelezen.begin() + 1; i != gelezen.end(); ++i) {
    for (const JournaalBeeld& beeld : i->inhoud.beelden) later.try_emplace(beeld.plek, beeld.bytes);
  }
  std::vector<RecordWijziging> uit;
  for (const JournaalStand& stand : deze.einde->standen) {
    RecordWijziging& wijziging = wijzigingen[stand.plek];
    const auto gevonden = later.find(stand.plek);
    std::string na;
    if (gevonden != later.end()) {
      na = gevonden->second;
    } else if (LeesNu(stand.plek, na)) {
      na.clear();
    }
    if (StandVan(stand.plek, na) == stand) wijziging.na = std::move(na);
    uit.push_back(std::move(wijziging));
  }
  return uit;
}

std::optional<OngedaanUitslag> Journaal::MaakPlan(const std::vector<Gelezen>& gelezen,
                                                  OngedaanPlan& plan) const {
  for (auto deze = gelezen.rbegin(); deze != gelezen.rend(); ++deze) {
    const JournaalInhoud& inhoud = deze->inhoud;
    if (!inhoud.IsCompleet()) return Geweigerd(Soort::Beschadigd, deze->nummer);
    const bool plaatsen = inhoud.lengten.at(IndexVan(BestandSoort::Plaatsen)) != kGeenLengte;
    if (plaatsen && inhoud.centraal != centraal_) return Geweigerd(Soort::Plaatsen);
    if (auto geweigerd = plan.Voeg(inhoud)) return geweigerd;
  }
  return std::nullopt;
}

OngedaanUitslag Journaal::MaakOngedaan(std::uint32_t nummer) {
  if (diepte_ > 0) return Geweigerd(Soort::Bezig);
  if (SysteemFout fout = SluitAf()) return OngedaanMislukt(std::move(fout));
  std::vector<Gelezen> gelezen;
  if (SysteemFout fout = LeesVanaf(nummer, gelezen)) return OngedaanMislukt(std::move(fout));
  if (gelezen.empty() || gelezen.front().nummer != nummer) return Geweigerd(Soort::NietAanwezig);
  OngedaanPlan plan([this](const RecordPlek& plek, std::string& b) { return LeesNu(plek, b); },
                    [this](BestandSoort soort, std::uint64_t& l) { return LengteNu(soort, l); });
  if (auto geweigerd = MaakPlan(gelezen, plan)) return *geweigerd;
  const std::uint64_t kaart = Begin(OngedaanLabel(gelezen.front().inhoud.kop->label));
  SysteemFout fout = Voer(plan, nummer);
  if (!fout) fout = Einde(kaart);
  if (!fout) return {};
  DraaiTerug();
  return OngedaanMislukt(std::move(fout));
}

// Half an undo is none: what it wrote is put back at once, from its own journal.
void Journaal::DraaiTerug() {
  diepte_ = 0;
  if (!lopend_) return;
  if (!lopend_->geschreven) {
    static_cast<void>(LaatVallen());
    return;
  }
  const std::uint64_t lengte = lopend_->lengte;
  const std::string naam = JournaalNaam(lopend_->kop.nummer, true);
  lopend_.reset();
  // An end that was written and not brought to the disk must not count.
  if (!map_->Open(naam)) static_cast<void>(map_->Kap(lengte));
  map_->Sluit();
  static_cast<void>(Herstel());
}

SysteemFout Journaal::Voer(const OngedaanPlan& plan, std::uint32_t vanaf) {
  if (SysteemFout fout = MaakLopend()) return fout;
  lopend_->kop.ongedaanVanaf = vanaf;
  lopend_->wachtend = CodeerKop(lopend_->kop);
  if (SysteemFout fout = NoteerPlan(plan)) return fout;
  if (SysteemFout fout = Spoel()) return fout;
  lopend_->geschreven = true;
  return SchrijfPlan(plan);
}

// All that will be replaced or cut off goes into the journal at once.
SysteemFout Journaal::NoteerPlan(const OngedaanPlan& plan) {
  for (const BestandSoort soort : kBestandSoorten) {
    if (plan.DeLengten().at(IndexVan(soort)) == kGeenLengte) continue;
    if (SysteemFout fout = NoteerLengte(soort)) return fout;
  }
  for (const auto& [plek, bytes] : plan.Records()) {
    MerkVan(plek).geschreven = true;
    MerkVan(plek).aantal = kAantalOnbekend;
    if (SysteemFout fout = NoteerBeeld(plek)) return fout;
  }
  for (const BestandSoort soort : kBestandSoorten) {
    const std::uint64_t straks = plan.DeLengten().at(IndexVan(soort));
    if (straks == kGeenLengte) continue;
    const std::uint64_t nu = lopend_->lengten.at(IndexVan(soort));
    const std::uint64_t lengte = RecordLengteVan(soort);
    for (auto nr = static_cast<std::int32_t>(std::min<std::uint64_t>(straks / lengte + 1, 32768));
         nr <= kMaxRecords && BeginVan({soort, nr}) < nu; ++nr) {
      MerkVan({soort, nr}).geschreven = true;
      MerkVan({soort, nr}).aantal = kAantalOnbekend;
      if (SysteemFout fout = NoteerBeeld({soort, nr})) return fout;
    }
  }
  return {};
}

SysteemFout Journaal::SchrijfPlan(const OngedaanPlan& plan) {
  for (const auto& [plek, bytes] : plan.Records()) {
    if (bytes.empty()) continue;
    if (SysteemFout fout = Ruw(plek.soort)->Schrijf(plek.nr, bytes)) return fout;
  }
  for (const BestandSoort soort : kBestandSoorten) {
    const std::uint64_t straks = plan.DeLengten().at(IndexVan(soort));
    if (straks == kGeenLengte) continue;
    std::uint64_t nu = 0;
    if (SysteemFout fout = LengteNu(soort, nu)) return fout;
    if (nu == straks) continue;
    if (SysteemFout fout = Ruw(soort)->Kap(straks)) return fout;
  }
  return {};
}

}  // namespace lb77
