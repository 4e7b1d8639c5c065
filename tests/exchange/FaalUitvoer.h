// Lines of an export in memory, on a disk that may be full.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "exchange/ExpUitvoer.h"

namespace lb77 {

// Keeps the lines, each ended by a line feed.
class FaalUitvoer final : public ExpUitvoer {
 public:
  FaalUitvoer() = default;
  // Takes that many lines; the next one finds a full disk.
  explicit FaalUitvoer(std::size_t regels) : ruimte_(regels) {}

  [[nodiscard]] const std::string& Regels() const { return regels_; }
  [[nodiscard]] std::size_t Aantal() const { return aantal_; }
  // The lines since the last time this was asked.
  [[nodiscard]] std::string Neem() {
    std::string uit;
    uit.swap(regels_);
    return uit;
  }

 private:
  void Schrijf(std::string_view regel) override {
    if (aantal_ >= ruimte_) return OnthoudFout({kSchijfVol, "Schijf vol"});
    ++aantal_;
    regels_.append(regel).append("\n");
  }

  std::size_t ruimte_ = std::numeric_limits<std::size_t>::max();
  std::size_t aantal_ = 0;
  std::string regels_;
};

}  // namespace lb77
