#include "checks/OpmSchakels.h"

#include <cstddef>
#include <utility>

namespace lb77 {

namespace {

std::size_t Op(std::int16_t nr) {
  return static_cast<std::size_t>(nr);
}

}  // namespace

OpmSchakels::OpmSchakels(std::vector<std::int16_t> volgende)
    : volgende_(std::move(volgende)),
      geknipt_(volgende_.size(), 0),
      wortel_(volgende_.size(), 0),
      takken_(volgende_.size()) {
  for (std::int16_t& nr : volgende_) {
    if (nr < 0 || Op(nr) >= volgende_.size()) nr = 0;
  }
  BreekKringen();
  Nummer();
}

// Walks from each record until it meets what an earlier walk saw; meeting its own steps is a circle,
// which is cut at the step that closes it.
void OpmSchakels::BreekKringen() {
  std::vector<std::size_t> gezien(volgende_.size(), 0);  // the walk that came by; 0 for none
  for (std::size_t begin = 1; begin < volgende_.size(); ++begin) {
    std::size_t nr = begin;
    while (gezien[nr] == 0) {
      gezien[nr] = begin;
      const std::size_t verder = Op(volgende_[nr]);
      if (verder == 0) break;
      if (gezien[verder] == begin) {
        geknipt_[nr] = std::exchange(volgende_[nr], std::int16_t{0});
        break;
      }
      nr = verder;
    }
  }
}

// Goes down each tree from its root, so that what leads to a record has the numbers behind its own.
void OpmSchakels::Nummer() {
  std::vector<std::vector<std::int16_t>> voor(volgende_.size());
  for (std::size_t nr = 1; nr < volgende_.size(); ++nr) {
    voor[Op(volgende_[nr])].push_back(static_cast<std::int16_t>(nr));
  }
  int teller = 0;
  std::vector<std::pair<std::int16_t, std::size_t>> pad;  // record, and how many before it are done
  for (const std::int16_t wortel : voor.empty() ? std::vector<std::int16_t>{} : voor[0]) {
    pad.emplace_back(wortel, 0);
    while (!pad.empty()) {
      auto& [nr, gedaan] = pad.back();
      const std::size_t op = Op(nr);
      if (gedaan == 0) {
        takken_[op].eerste = ++teller;
        wortel_[op] = wortel;
      }
      if (gedaan < voor[op].size()) {
        pad.emplace_back(voor[op][gedaan++], 0);
      } else {
        takken_[op].laatste = teller;
        pad.pop_back();
      }
    }
  }
}

// Does `nr` lead to `boven`, or is it that?
bool OpmSchakels::Ligt(std::int16_t nr, std::int16_t boven) const {
  const int plaats = takken_[Op(nr)].eerste;
  return plaats >= takken_[Op(boven)].eerste && plaats <= takken_[Op(boven)].laatste;
}

bool OpmSchakels::Bereikt(std::int16_t begin, std::int16_t nr) const {
  const auto bestaat = [this](std::int16_t een) { return een > 0 && Op(een) < volgende_.size(); };
  if (!bestaat(begin) || !bestaat(nr)) return false;
  if (Ligt(begin, nr)) return true;
  const std::int16_t rond = geknipt_[Op(wortel_[Op(begin)])];
  return rond != 0 && Ligt(rond, nr);
}

}  // namespace lb77
