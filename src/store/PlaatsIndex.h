// All place names in memory, so that a search need not read the file again.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lb77 {

// A place that the search can't use.
struct PlaatsStoring {
  enum class Soort { Onleesbaar, Naamloos };
  std::int16_t nr = 0;
  Soort soort = Soort::Onleesbaar;
};

// Names are kept as they compare. Numbers run from 2 in file order.
class PlaatsIndex {
 public:
  // The form in which names compare: as stored, cut to the field, in capitals.
  static std::string Sleutel(std::string_view windows);

  // Forgets everything.
  void Wis();
  // Adds the next place.
  void Voeg(std::string sleutel);
  // Adds the next place as one that can't be used.
  void VoegStoring(PlaatsStoring::Soort soort);

  // The highest number held; 1 when empty.
  std::int16_t Hoogste() const;
  // The numbers that have exactly this key, in order.
  std::span<const std::int16_t> Gelijke(const std::string& sleutel) const;
  // The numbers whose name begins with this key, in order.
  std::vector<std::int16_t> Beginnend(std::string_view begin) const;
  const std::vector<PlaatsStoring>& Storingen() const { return storingen_; }

 private:
  std::vector<std::string> namen_;
  std::unordered_map<std::string, std::vector<std::int16_t>> nummers_;
  std::vector<PlaatsStoring> storingen_;
};

}  // namespace lb77
