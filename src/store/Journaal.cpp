#include "store/Journaal.h"

#include <algorithm>
#include <utility>

#include "text/Getallen.h"

namespace lb77 {

namespace {

// From so many separate images on an action is taken for a job that goes on: what lies behind a
// record is then kept with it, so that the disk is waited for less often.
constexpr std::size_t kVeelBeelden = 16;
constexpr std::int32_t kVooruit = 64;

// A file that says it is empty and is not.
SysteemFout FoutLengte() {
  return FoutVan(std::make_error_code(std::errc::io_error));
}

}  // namespace

Journaal::Journaal(std::unique_ptr<JournaalMap> map, Tijd tijd, VreemdMelding bijVreemd)
    : map_(std::move(map)), tijd_(std::move(tijd)), bijVreemd_(std::move(bijVreemd)) {}

Journaal::~Journaal() {
  // Nobody is left to tell; what has no end is asked about at the next opening.
  static_cast<void>(SluitAf());
}

void Journaal::Koppel(BestandSoort soort, RecordBestand& bestand, bool centraal) {
  ruw_.at(IndexVan(soort)) = &bestand;
  if (soort == BestandSoort::Plaatsen) centraal_ = centraal;
  stempels_.at(IndexVan(soort)) = {bestand.Lengte(), bestand.Wijzigtijd()};
}

void Journaal::Ontkoppel(BestandSoort soort) {
  if (lopend_ && Ruw(soort) != nullptr) {
    SysteemFout fout = RondAf(soort);
    if (fout) lopend_->verloren = std::move(fout);
  }
  ruw_.at(IndexVan(soort)) = nullptr;
}

std::uint64_t Journaal::Begin(std::string_view label) {
  if (diepte_++ == 0) {
    label_ = label;
    ++kaart_;
  }
  return kaart_;
}

SysteemFout Journaal::Einde(std::uint64_t kaart) {
  // The ticket of an action that was ended meanwhile, for instance with its set.
  if (kaart != kaart_ || diepte_ == 0) return {};
  if (--diepte_ > 0) return {};
  return SluitAf();
}

SysteemFout Journaal::SluitAf() {
  diepte_ = 0;
  label_.clear();
  return lopend_ ? SluitLopendAf() : SysteemFout{};
}

Journaal::Merk& Journaal::MerkVan(const RecordPlek& plek) {
  std::vector<Merk>& merken = lopend_->merken.at(IndexVan(plek.soort));
  const auto index = static_cast<std::size_t>(plek.nr);
  if (merken.size() <= index) merken.resize(index + 1);
  return merken[index];
}

SysteemFout Journaal::LeesNu(const RecordPlek& plek, std::string& bytes) {
  bytes.assign(RecordLengteVan(plek.soort), '\0');
  RecordBestand* bestand = Ruw(plek.soort);
  Leesuitslag uitslag = bestand ? bestand->Lees(plek.nr, bytes) : Leesuitslag{0, FoutNietOpen()};
  bytes.resize(uitslag.gelezen);
  return std::move(uitslag.fout);
}

SysteemFout Journaal::LengteNu(BestandSoort soort, std::uint64_t& lengte) {
  if (Ruw(soort) == nullptr) return FoutNietOpen();
  lengte = Ruw(soort)->Lengte();
  if (lengte > 0) return {};
  // A length that can't be told reads as 0 too; taken as one, all records would be cut off.
  std::string bytes;
  if (SysteemFout fout = LeesNu({soort, 1}, bytes)) return fout;
  return bytes.empty() ? SysteemFout{} : FoutLengte();
}

SysteemFout Journaal::Voor(const RecordPlek& plek) {
  SysteemFout fout = VoorbereidSchrijven(plek);
  // What was refused leaves nothing behind when nobody began an action for it.
  if (fout && diepte_ == 0) static_cast<void>(SluitAf());
  return fout;
}

SysteemFout Journaal::VoorbereidSchrijven(const RecordPlek& plek) {
  if (plek.nr < 1 || plek.nr > kMaxRecords) return FoutRecordNummer();
  if (SysteemFout fout = MaakLopend()) return fout;
  if (SysteemFout fout = NoteerLengte(plek.soort)) return fout;
  if (SysteemFout fout = NoteerBeeld(plek)) return fout;
  return Spoel();
}

SysteemFout Journaal::Na(const RecordPlek& plek, std::span<const char> bytes, bool gelukt) {
  Merk& merk = MerkVan(plek);
  const JournaalStand stand = StandVan(plek, {bytes.data(), bytes.size()});
  merk.geschreven = true;
  merk.aantal = gelukt ? stand.aantal : kAantalOnbekend;
  merk.som = stand.som;
  lopend_->geschreven = true;
  return diepte_ == 0 ? SluitAf() : SysteemFout{};
}

SysteemFout Journaal::MaakLopend() {
  if (lopend_ && lopend_->af) {
    if (SysteemFout fout = SluitLopendAf()) return fout;
  }
  if (lopend_) return {};
  std::vector<JournaalPost> posten;
  if (SysteemFout fout = RuimOnvoltooid(posten)) return fout;
  MeldVreemd();
  const auto laatste = posten.empty() ? std::nullopt : LeesJournaalNaam(posten.back().naam);
  lopend_ = Lopend{};
  lopend_->kop.nummer = laatste ? laatste->nummer + 1 : 1;
  lopend_->kop.tijd = tijd_();
  lopend_->kop.label = diepte_ > 0 ? label_ : std::string(kLosseHandeling);
  lopend_->wachtend = CodeerKop(lopend_->kop);
  lopend_->posten = std::move(posten);
  return {};
}

void Journaal::MeldVreemd() {
  for (const BestandSoort soort : kBestandSoorten) {
    RecordBestand* bestand = Ruw(soort);
    Stempel& stempel = stempels_.at(IndexVan(soort));
    if (bestand == nullptr) continue;
    const Stempel nu{bestand->Lengte(), bestand->Wijzigtijd()};
    if (std::exchange(stempel, nu) != nu && bijVreemd_) bijVreemd_(soort);
  }
}

void Journaal::Stempelen() {
  for (const BestandSoort soort : kBestandSoorten) {
    if (RecordBestand* bestand = Ruw(soort)) {
      stempels_.at(IndexVan(soort)) = {bestand->Lengte(), bestand->Wijzigtijd()};
    }
  }
}

SysteemFout Journaal::NoteerLengte(BestandSoort soort) {
  std::uint64_t& lengte = lopend_->lengten.at(IndexVan(soort));
  if (lengte != kGeenLengte) return {};
  std::uint64_t nu = 0;
  if (SysteemFout fout = LengteNu(soort, nu)) return fout;
  lengte = nu;
  lopend_->wachtend += CodeerLengte({soort, soort == BestandSoort::Plaatsen && centraal_, nu});
  return {};
}

SysteemFout Journaal::NoteerBeeld(const RecordPlek& plek) {
  if (BeginVan(plek) >= lopend_->lengten.at(IndexVan(plek.soort))) return NoteerStaart(plek.soort);
  if (MerkVan(plek).beeld) return {};
  JournaalBeeld beeld{plek, {}};
  if (SysteemFout fout = LeesNu(plek, beeld.bytes)) return fout;
  lopend_->wachtend += CodeerBeeld(beeld);
  MerkVan(plek).beeld = true;
  if (++lopend_->losse > kVeelBeelden) LeesVooruit(plek);
  return {};
}

// A write behind a last record that is cut short fills that record up.
SysteemFout Journaal::NoteerStaart(BestandSoort soort) {
  const std::uint64_t lengte = lopend_->lengten.at(IndexVan(soort));
  const std::uint64_t heel = lengte / RecordLengteVan(soort);
  if (lengte % RecordLengteVan(soort) == 0 || heel >= static_cast<std::uint64_t>(kMaxRecords))
    return {};
  const RecordPlek staart{soort, static_cast<std::int32_t>(heel) + 1};
  Merk& merk = MerkVan(staart);
  if (!merk.geschreven) merk.aantal = kAantalOnbekend;
  merk.geschreven = true;
  return NoteerBeeld(staart);
}

void Journaal::LeesVooruit(const RecordPlek& plek) {
  const std::int32_t tot = std::min(plek.nr + kVooruit, kMaxRecords);
  for (std::int32_t nr = plek.nr + 1; nr <= tot; ++nr) {
    const RecordPlek volgende{plek.soort, nr};
    if (BeginVan(volgende) >= lopend_->lengten.at(IndexVan(plek.soort))) return;
    JournaalBeeld beeld{volgende, {}};
    if (MerkVan(volgende).beeld || LeesNu(volgende, beeld.bytes)) continue;
    lopend_->wachtend += CodeerBeeld(beeld);
    MerkVan(volgende).beeld = true;
  }
}

SysteemFout Journaal::Spoel() {
  Lopend& lopend = *lopend_;
  if (lopend.wachtend.empty()) return {};
  if (!lopend.gemaakt) {
    if (SysteemFout fout = map_->Maak(JournaalNaam(lopend.kop.nummer, true))) return fout;
    lopend.gemaakt = true;
  }
  if (SysteemFout fout = map_->Schrijf(lopend.lengte, lopend.wachtend)) return fout;
  if (SysteemFout fout = map_->Veiligstellen()) return fout;
  if (!lopend.opSchijf) {
    if (SysteemFout fout = map_->StelNamenVeilig()) return fout;
  }
  lopend.opSchijf = true;
  lopend.lengte += lopend.wachtend.size();
  lopend.wachtend.clear();
  return {};
}

// The file is brought to the disk, and what stands in it noted for the end of the journal.
SysteemFout Journaal::RondAf(BestandSoort soort) {
  RecordBestand* bestand = Ruw(soort);
  if (lopend_->lengten.at(IndexVan(soort)) == kGeenLengte || bestand == nullptr) return {};
  if (SysteemFout fout = bestand->Veiligstellen()) return fout;
  std::vector<Merk>& merken = lopend_->merken.at(IndexVan(soort));
  for (std::size_t i = 1; i < merken.size(); ++i) {
    Merk& merk = merken[i];
    if (!merk.geschreven || merk.aantal != kAantalOnbekend) continue;
    const RecordPlek plek{soort, static_cast<std::int32_t>(i)};
    std::string bytes;
    // What the disk refuses once it may give the next time; an action that is not known can't be
    // undone.
    if (LeesNu(plek, bytes) && LeesNu(plek, bytes)) continue;
    const JournaalStand stand = StandVan(plek, bytes);
    merk.aantal = stand.aantal;
    merk.som = stand.som;
  }
  return LengteNu(soort, lopend_->eindLengten.at(IndexVan(soort)));
}

std::string Journaal::MaakEinde() const {
  JournaalEinde einde;
  einde.lengten = lopend_->eindLengten;
  for (const BestandSoort soort : kBestandSoorten) {
    const std::vector<Merk>& merken = lopend_->merken.at(IndexVan(soort));
    for (std::size_t i = 1; i < merken.size(); ++i) {
      const RecordPlek plek{soort, static_cast<std::int32_t>(i)};
      if (merken[i].geschreven) einde.standen.push_back({plek, merken[i].aantal, merken[i].som});
    }
  }
  return CodeerEinde(einde);
}

SysteemFout Journaal::LaatVallen() {
  const bool gemaakt = lopend_->gemaakt;
  const std::string naam = JournaalNaam(lopend_->kop.nummer, true);
  lopend_.reset();
  map_->Sluit();
  return gemaakt ? map_->Verwijder(naam) : SysteemFout{};
}

SysteemFout Journaal::SluitLopendAf() {
  if (!lopend_->geschreven) return LaatVallen();
  lopend_->af = true;
  if (lopend_->verloren) {
    // Not to be mended here: the set is as after a crash.
    SysteemFout fout = std::move(lopend_->verloren);
    lopend_.reset();
    map_->Sluit();
    return fout;
  }
  for (const BestandSoort soort : kBestandSoorten) {
    if (SysteemFout fout = RondAf(soort)) return fout;
  }
  const std::string einde = MaakEinde();
  if (SysteemFout fout = map_->Schrijf(lopend_->lengte, einde)) return fout;
  if (SysteemFout fout = map_->Veiligstellen()) return fout;
  // From here on the action has ended, also if it keeps its old name.
  const std::uint32_t nummer = lopend_->kop.nummer;
  map_->Sluit();
  static_cast<void>(map_->Hernoem(JournaalNaam(nummer, true), JournaalNaam(nummer, false)));
  RuimOud(lopend_->lengte + einde.size());
  lopend_.reset();
  Stempelen();
  return {};
}

void Journaal::RuimOud(std::uint64_t grootte) {
  std::uint64_t samen = grootte;
  for (const JournaalPost& post : lopend_->posten) samen += post.grootte;
  std::size_t aantal = lopend_->posten.size() + 1;
  for (const JournaalPost& post : lopend_->posten) {
    if (aantal <= kMeesteHandelingen && samen <= kMeesteJournaal) return;
    static_cast<void>(map_->Verwijder(post.naam));
    samen -= post.grootte;
    --aantal;
  }
}

}  // namespace lb77
