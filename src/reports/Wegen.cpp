#include "reports/Wegen.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace lb77 {
namespace {

constexpr std::size_t kGeen = std::numeric_limits<std::size_t>::max();

// One person on a path, and which of his links comes next.
struct Stap {
  std::size_t wie;
  std::size_t volgende;
};
// A stack of its own: a file can hold more generations than a call stack.
using Pad = std::vector<Stap>;

using Groep = std::vector<std::size_t>;

// Who are each other's descendants are one group; all others are a group each. Found in one walk, by
// the earliest person on the path to whom links lead back.
class Groepen {
 public:
  explicit Groepen(const Net& net)
      : net_(net), nummer_(net.size(), 0), vroegste_(net.size(), 0), groepVan_(net.size(), kGeen) {
    Betreed(0);
    while (!pad_.empty()) Verder();
    std::reverse(groepen_.begin(), groepen_.end());
  }

  // Parents ahead of their children.
  [[nodiscard]] const std::vector<Groep>& Alle() const { return groepen_; }
  [[nodiscard]] bool Samen(std::size_t een, std::size_t ander) const {
    return groepVan_[een] == groepVan_[ander];
  }

 private:
  void Betreed(std::size_t wie);
  void Verder();
  void Verlaat();
  void Sluit(std::size_t wie);

  const Net& net_;
  std::vector<std::size_t> nummer_;  // in which order each was met, from 1; 0 for not yet
  std::vector<std::size_t> vroegste_;
  std::vector<std::size_t> groepVan_;
  std::size_t laatste_ = 0;
  Pad pad_;
  Groep open_;  // met, and in no group yet
  std::vector<Groep> groepen_;
};

void Groepen::Betreed(std::size_t wie) {
  nummer_[wie] = vroegste_[wie] = ++laatste_;
  open_.push_back(wie);
  pad_.push_back({wie, 0});
}

void Groepen::Verder() {
  Stap& stap = pad_.back();
  if (stap.volgende == net_[stap.wie].size()) return Verlaat();
  const std::size_t kind = net_[stap.wie][stap.volgende++];
  if (nummer_[kind] == 0) return Betreed(kind);
  if (groepVan_[kind] != kGeen) return;
  vroegste_[stap.wie] = std::min(vroegste_[stap.wie], nummer_[kind]);
}

void Groepen::Verlaat() {
  const std::size_t wie = pad_.back().wie;
  pad_.pop_back();
  if (!pad_.empty()) {
    const std::size_t ouder = pad_.back().wie;
    vroegste_[ouder] = std::min(vroegste_[ouder], vroegste_[wie]);
  }
  if (vroegste_[wie] == nummer_[wie]) Sluit(wie);
}

// All who were met from `wie` on and lead back to him are his group.
void Groepen::Sluit(std::size_t wie) {
  auto begin = open_.end();
  while (*--begin != wie) {
  }
  Groep& groep = groepen_.emplace_back(begin, open_.end());
  open_.erase(begin, open_.end());
  for (const std::size_t lid : groep) groepVan_[lid] = groepen_.size();
}

class Wegentelling {
 public:
  Wegentelling(const Net& net, std::int64_t stappen)
      : net_(net),
        groepen_(net),
        over_(stappen),
        keer_(net.size(), 0),
        binnen_(net.size(), 0),
        opPad_(net.size(), false) {
    keer_.front() = 1;
  }

  [[nodiscard]] std::vector<Telling> Tel();

 private:
  void TelKnoop(const Groep& groep);
  [[nodiscard]] bool LoopAlle(const Groep& groep);
  [[nodiscard]] bool LoopVan(std::size_t begin);
  void GeefDoor(std::size_t wie);

  const Net& net_;
  Groepen groepen_;
  std::int64_t over_;
  std::vector<std::int64_t> keer_;
  std::vector<std::int64_t> binnen_;  // the ways within a knot
  std::vector<bool> opPad_;
};

std::vector<Telling> Wegentelling::Tel() {
  std::vector<Telling> uit;
  for (const Groep& groep : groepen_.Alle()) {
    if (groep.size() > 1) TelKnoop(groep);
    for (const std::size_t wie : groep) {
      uit.push_back({wie, keer_[wie]});
      GeefDoor(wie);
    }
  }
  return uit;
}

void Wegentelling::GeefDoor(std::size_t wie) {
  for (const std::size_t kind : net_[wie]) {
    if (!groepen_.Samen(wie, kind)) keer_[kind] = TelBij(keer_[kind], keer_[wie]);
  }
}

// So far the members have the ways that lead into the knot.
void Wegentelling::TelKnoop(const Groep& groep) {
  std::int64_t erin = 0;
  for (const std::size_t wie : groep) erin = TelBij(erin, keer_[wie]);
  const bool alle = LoopAlle(groep);
  for (const std::size_t wie : groep) keer_[wie] = alle ? binnen_[wie] : erin;
}

bool Wegentelling::LoopAlle(const Groep& groep) {
  return std::all_of(groep.begin(), groep.end(),
                     [this](std::size_t wie) { return keer_[wie] == 0 || LoopVan(wie); });
}

bool Wegentelling::LoopVan(std::size_t begin) {
  Pad pad;
  const auto betreed = [&](std::size_t wie) {
    opPad_[wie] = true;
    binnen_[wie] = TelBij(binnen_[wie], keer_[begin]);
    pad.push_back({wie, 0});
  };
  betreed(begin);
  while (!pad.empty()) {
    Stap& stap = pad.back();
    if (stap.volgende == net_[stap.wie].size()) {
      opPad_[stap.wie] = false;
      pad.pop_back();
      continue;
    }
    if (--over_ < 0) return false;
    const std::size_t kind = net_[stap.wie][stap.volgende++];
    if (groepen_.Samen(begin, kind) && !opPad_[kind]) betreed(kind);
  }
  return true;
}

}  // namespace

std::int64_t TelBij(std::int64_t aantal, std::int64_t erbij) {
  constexpr std::int64_t kMeeste = std::numeric_limits<std::int64_t>::max();
  return aantal > kMeeste - erbij ? kMeeste : aantal + erbij;
}

std::vector<Telling> TelWegen(const Net& net, std::int64_t stappen) {
  if (net.empty()) return {};
  return Wegentelling(net, stappen).Tel();
}

}  // namespace lb77
