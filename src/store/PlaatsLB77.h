// One place: a record of the .PLT file, and the search for a place by its name.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/Opslag.h"
#include "store/PlaatsIndex.h"
#include "store/PlaatsVraag.h"
#include "store/RecordRaam.h"

namespace lb77 {

// The last place that a person or relation can name: a higher number would carry a qualifier.
inline constexpr std::int16_t kHoogstePlaats = 10000;

// The record number in a place number: without the offsets of its qualifier.
std::int16_t PlaatsRecordNr(std::int16_t plaatsNr);

// Holds one place. A place number may carry an offset: 10000 presumed, 20000 questionable.
class PlaatsLB77 final : public RecordRaam {
 public:
  explicit PlaatsLB77(const Opslag& opslag);

  // Reads place `Nr`, from 2. False, silently, for a lower number or an absent record;
  // PlaatsBufNr is 0 then.
  [[nodiscard]] bool Lees(std::int16_t Nr);
  // Writes the buffer to place `Nr`.
  [[nodiscard]] bool Schrijf(std::int16_t Nr);
  // Empties the buffer; PlaatsBufNr is 0 after it.
  void LeegPltsBuffer();

  // Reads the place and gives its name, without a qualifier; empty for 0 and for a failure.
  std::string Naam(std::int16_t PlaatsNr);
  // The name with its qualifier: "verm. " before it or "(?)" behind it; empty as Naam.
  std::string Naam2(std::int16_t PlaatsNr);
  // Reads the place and gives its province code; empty for a failure.
  std::string Prov(std::int16_t PlaatsNr);

  // Makes an empty place at `Nr` (from 2, AantalRecords() + 1) and reads it. Above kHoogstePlaats
  // it refuses with a message.
  [[nodiscard]] bool Nieuw(std::int32_t Nr);
  // Writes record 1 of a new file.
  [[nodiscard]] bool NieuwAdm();

  // Searches a place by name and gives its number; -1 when none was chosen.
  // `Gedeeltelijk`: 0 takes the first equal name; -1 compares with the beginning of names and asks
  // at each match; any other value compares whole names and asks.
  // `Toevoegen`, when none was found: 1 adds it with `Prov`; 0 asks first, and for the province;
  // -1 says that the name was not found. Places above kHoogstePlaats are not found.
  std::int16_t Nr(std::string_view Naam, std::int16_t Gedeeltelijk, std::string_view Prov,
                  std::int16_t Toevoegen, PlaatsVraag& vraag);
  // The place of exactly this name, added with `Prov` when there is none; asks nothing.
  std::int16_t NrOfNieuw(std::string_view Naam, std::string_view Prov);

 private:
  struct Zoekvraag;

  bool IsGat(Soort soort) const override;
  bool MagSchildwachtZijn(Soort soort) const override;
  void WerkIndexBij(std::int16_t hoogste);
  void MeldStoring(const PlaatsStoring& storing);
  std::optional<std::int16_t> Doorzoek(const Zoekvraag& zoek);
  std::int16_t VoegToe(const Zoekvraag& zoek, std::int32_t nr);
  std::string NaamVan(std::int16_t recordNr);

  PlaatsIndex index_;
  std::optional<std::uint64_t> indexStand_;  // the file's state that the index tells of
};

}  // namespace lb77
