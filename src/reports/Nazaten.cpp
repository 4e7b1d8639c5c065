#include "reports/Nazaten.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "reporting/RecordGang.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::int32_t kOngelezen = -1;
constexpr std::int32_t kNiemand = -2;

int Eerste(int jaar, int anders) {
  return jaar != 0 ? jaar : anders;
}

}  // namespace

void Jaren::Neem(int jaar) {
  if (jaar == 0) return;
  laagste = laagste == 0 ? jaar : std::min(laagste, jaar);
  hoogste = hoogste == 0 ? jaar : std::max(hoogste, jaar);
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

// Everybody below the first of `leden`, each once, and the links between them.
bool Nazaten::MaakNet(std::vector<std::size_t>& leden, std::optional<std::size_t> boven,
                      const Verloop& verloop, Net& net) {
  constexpr std::size_t kBuiten = std::numeric_limits<std::size_t>::max();
  std::vector<std::size_t> plaats(lijst_.size(), kBuiten);
  plaats[leden.front()] = 0;
  for (std::size_t lid = 0; lid < leden.size(); ++lid) {
    net.emplace_back();
    for (std::size_t i = 0; i < lijst_[leden[lid]].kinderen.size(); ++i) {
      if (verloop.afbreken()) return false;
      const auto kind = Vind(lijst_[leden[lid]].kinderen[i]);
      if (!kind || kind == boven) continue;
      plaats.resize(lijst_.size(), kBuiten);
      if (plaats[*kind] == kBuiten) {
        plaats[*kind] = leden.size();
        leden.push_back(*kind);
      }
      net[lid].push_back(plaats[*kind]);
    }
  }
  return true;
}

bool Nazaten::Loop(std::size_t wie, std::optional<std::size_t> boven, const Verloop& verloop,
                   std::vector<Telling>& tellingen) {
  tellingen.clear();
  if (wie == boven) return true;
  std::vector<std::size_t> leden{wie};
  Net net;
  if (!MaakNet(leden, boven, verloop, net)) return false;
  tellingen = TelWegen(net);
  for (Telling& telling : tellingen) telling.wie = leden[telling.wie];
  return true;
}

}  // namespace lb77
