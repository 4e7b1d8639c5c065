#include "steun/Keten.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "steun/SpeelToets.h"

namespace lb77 {

Keten::Keten(std::vector<KetenVorm> vormen) {
  for (KetenVorm& vorm : vormen) schakels_.push_back({std::move(vorm), {}});
}

Keten::Schakel* Keten::Vind(std::string_view naam) {
  const auto schakel = std::find_if(schakels_.begin(), schakels_.end(),
                                    [&](const Schakel& een) { return een.vorm.naam == naam; });
  if (schakel != schakels_.end()) return &*schakel;
  ADD_FAILURE() << naam << " is geen formulier van deze keten";
  return nullptr;
}

Keten& Keten::In(std::string_view naam, std::string_view doet, std::string_view verslag) {
  if (Schakel* schakel = Vind(naam)) {
    schakel->vorm.doet = doet;
    schakel->vorm.opDeWeg = true;
    schakel->verslag = verslag;
  }
  return *this;
}

Keten& Keten::Zegt(std::string_view naam, std::string_view verslag) {
  if (Schakel* schakel = Vind(naam)) schakel->verslag = verslag;
  return *this;
}

Keten& Keten::Tot(std::string_view naam) {
  if (const Schakel* schakel = Vind(naam)) {
    schakels_.resize(static_cast<std::size_t>(schakel - schakels_.data()) + 1);
  }
  return *this;
}

std::string Keten::Draaiboek() const {
  std::string uit;
  for (const Schakel& schakel : schakels_) {
    if (schakel.vorm.opDeWeg) uit += TranscriptRegels(schakel.vorm.doet);
  }
  return uit;
}

std::string Keten::Verslag() const {
  std::string uit;
  std::string slot;
  for (const Schakel& schakel : schakels_) {
    const KetenVorm& vorm = schakel.vorm;
    if (!vorm.opDeWeg) continue;
    const std::string dicht = "- " + vorm.naam + "\n";
    uit += "+ " + vorm.naam + " \"" + vorm.titel + "\"\n" + TranscriptRegels(schakel.verslag);
    if (&schakel == &schakels_.front()) {
      slot = dicht;
    } else {
      uit += dicht;
    }
  }
  return uit + slot;
}

}  // namespace lb77
