#include "reports/Nazaten.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "reports/RecordGang.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::int32_t kOngelezen = -1;
constexpr std::int32_t kNiemand = -2;

// How far the walk is with a person.
enum class Toestand : std::uint8_t { Nieuw, OpHetPad, Klaar };

int Eerste(int jaar, int anders) {
  return jaar != 0 ? jaar : anders;
}

}  // namespace

void Jaren::Neem(int jaar) {
  if (jaar == 0) return;
  laagste = laagste == 0 ? jaar : std::min(laagste, jaar);
  hoogste = hoogste == 0 ? jaar : std::max(hoogste, jaar);
}

std::int64_t TelBij(std::int64_t aantal, std::int64_t erbij) {
  constexpr std::int64_t kMeeste = std::numeric_limits<std::int64_t>::max();
  return aantal > kMeeste - erbij ? kMeeste : aantal + erbij;
}

std::optional<std::size_t> Nazaten::Vind(std::int16_t nr) {
  if (nr < kEersteRecord) return std::nullopt;
  if (plek_.empty()) plek_.assign(static_cast<std::size_t>(kMaxRecords) + 1, kOngelezen);
  std::int32_t& plek = plek_[static_cast<std::size_t>(nr)];
  if (plek == kOngelezen) {
    plek = kNiemand;
    if (LeesHoofdrecord(persoon_, nr)) {
      plek = static_cast<std::int32_t>(lijst_.size());
      lijst_.push_back(Lees(nr));
    }
  }
  if (plek == kNiemand) return std::nullopt;
  return static_cast<std::size_t>(plek);
}

// The person is in the buffer.
Nazaat Nazaten::Lees(std::int16_t nr) {
  Nazaat nazaat;
  nazaat.nr = nr;
  nazaat.geboorte = persoon_.GebJaar();
  nazaat.begin = Eerste(nazaat.geboorte, persoon_.DoopJaar());
  nazaat.einde = Eerste(persoon_.OvJaar(), persoon_.BegrJaar());
  Huwtab huwtab{};
  // A list that can't be read to its end gives what it has.
  static_cast<void>(persoon_.VulHuwtab(nr, huwtab));
  for (std::size_t plaats = 1; plaats < huwtab.size(); ++plaats) {
    LeesGezin(huwtab[plaats], nazaat);
  }
  return nazaat;
}

void Nazaten::LeesGezin(std::int16_t relNr, Nazaat& nazaat) {
  if (!LeesHoofdrecord(relatie_, relNr)) return;
  const int kerkOfOndertrouw = Eerste(relatie_.KHuwJaar(), relatie_.OtrJaar());
  nazaat.huwelijken.Neem(Eerste(relatie_.WetHuwJaar(), kerkOfOndertrouw));
  Kindtab kindtab{};
  static_cast<void>(relatie_.VulKindtab(relNr, kindtab));
  std::copy_if(kindtab.begin() + 1, kindtab.end(), std::back_inserter(nazaat.kinderen),
               [](std::int16_t kind) { return kind >= kEersteRecord; });
}

// One person on the path, and which of his children comes next.
struct Nazaten::Stap {
  std::size_t wie;
  std::size_t kind;
};

// Everybody once, each ahead of those whom the walk reached through him. A stack of its own: a file
// can hold more generations than a call stack.
bool Nazaten::Orden(std::size_t wie, std::optional<std::size_t> boven, const Verloop& verloop,
                    std::vector<std::size_t>& volgorde) {
  std::vector<Toestand> toestand(lijst_.size(), Toestand::Nieuw);
  if (boven) toestand[*boven] = Toestand::OpHetPad;
  if (toestand[wie] == Toestand::OpHetPad) return true;
  toestand[wie] = Toestand::OpHetPad;
  std::vector<Stap> pad{{wie, 0}};
  while (!pad.empty()) {
    Stap& stap = pad.back();
    if (stap.kind == lijst_[stap.wie].kinderen.size()) {
      toestand[stap.wie] = Toestand::Klaar;
      volgorde.push_back(stap.wie);
      pad.pop_back();
      continue;
    }
    const auto kind = Vind(lijst_[stap.wie].kinderen[stap.kind++]);
    if (verloop.afbreken()) return false;
    toestand.resize(lijst_.size(), Toestand::Nieuw);
    if (!kind || toestand[*kind] != Toestand::Nieuw) continue;
    toestand[*kind] = Toestand::OpHetPad;
    pad.push_back({*kind, 0});
  }
  std::reverse(volgorde.begin(), volgorde.end());
  return true;
}

bool Nazaten::Loop(std::size_t wie, std::optional<std::size_t> boven, const Verloop& verloop,
                   std::vector<Telling>& tellingen) {
  std::vector<std::size_t> volgorde;
  tellingen.clear();
  if (!Orden(wie, boven, verloop, volgorde)) return false;
  constexpr std::size_t kBuiten = std::numeric_limits<std::size_t>::max();
  std::vector<std::size_t> plaats(lijst_.size(), kBuiten);
  for (std::size_t i = 0; i < volgorde.size(); ++i) {
    plaats[volgorde[i]] = i;
    tellingen.push_back({volgorde[i], i == 0 ? 1 : 0});
  }
  for (std::size_t i = 0; i < tellingen.size(); ++i) {
    for (const std::int16_t nr : lijst_[tellingen[i].wie].kinderen) {
      const auto kind = Vind(nr);
      // Who stands ahead of his parent closes a loop.
      if (!kind || plaats[*kind] == kBuiten || plaats[*kind] <= i) continue;
      std::int64_t& keer = tellingen[plaats[*kind]].keer;
      keer = TelBij(keer, tellingen[i].keer);
    }
  }
  return true;
}

}  // namespace lb77
