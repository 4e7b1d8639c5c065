// The rubrics: to which field of its owner a remark belongs. A bit a field, as remarks and the
// OpmCode of their owners store it; negative for a relation.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace lb77 {

namespace persoonrubriek {

inline constexpr std::int16_t kAchternaam = 1;
inline constexpr std::int16_t kVoornaam = 2;
inline constexpr std::int16_t kGebPlaats = 4;
inline constexpr std::int16_t kGebDatum = 8;
inline constexpr std::int16_t kDoopPlaats = 16;
inline constexpr std::int16_t kDoopDatum = 32;
inline constexpr std::int16_t kReligie = 64;
inline constexpr std::int16_t kOvlPlaats = 128;
inline constexpr std::int16_t kOvlDatum = 256;
inline constexpr std::int16_t kBegrPlaats = 512;
inline constexpr std::int16_t kBegrDatum = 1024;
inline constexpr std::int16_t kBeroep = 2048;
inline constexpr std::int16_t kAlgemeen = 4096;

}  // namespace persoonrubriek

namespace relatierubriek {

inline constexpr std::int16_t kOtrPlaats = -1;
inline constexpr std::int16_t kOtrDatum = -2;
inline constexpr std::int16_t kWetHuwPlaats = -4;
inline constexpr std::int16_t kWetHuwDatum = -8;
inline constexpr std::int16_t kHuwSoort = -16;
inline constexpr std::int16_t kKHuwPlaats = -32;
inline constexpr std::int16_t kKHuwDatum = -64;
inline constexpr std::int16_t kReligie = -128;
inline constexpr std::int16_t kAlgemeen = -256;

}  // namespace relatierubriek

// The bits of rubrics together, as they compare with the absolute value of an OpmCode.
template <class... Rubriek>
constexpr int RubriekBits(Rubriek... rubriek) {
  return (... | (rubriek < 0 ? -int{rubriek} : int{rubriek}));
}

// A rubric, and how a dialog on its remarks heads the field.
struct RubriekNaam {
  std::int16_t rubriek;
  std::string_view opschrift;
};

// All rubrics of a person, in the order of their bits.
inline constexpr std::array kPersoonRubrieken = {
    RubriekNaam{persoonrubriek::kAchternaam, ">> Achternaam"},
    RubriekNaam{persoonrubriek::kVoornaam, ">> Voornaam"},
    RubriekNaam{persoonrubriek::kGebPlaats, ">> Geb Plaats"},
    RubriekNaam{persoonrubriek::kGebDatum, ">> Geb Datum"},
    RubriekNaam{persoonrubriek::kDoopPlaats, ">> Doop Plaats"},
    RubriekNaam{persoonrubriek::kDoopDatum, ">> Doop Datum"},
    RubriekNaam{persoonrubriek::kReligie, ">> Religie"},
    RubriekNaam{persoonrubriek::kOvlPlaats, ">> Ov Plaats"},
    RubriekNaam{persoonrubriek::kOvlDatum, ">> Ov Datum"},
    RubriekNaam{persoonrubriek::kBegrPlaats, ">> Begr Plaats"},
    RubriekNaam{persoonrubriek::kBegrDatum, ">> Begr Datum"},
    RubriekNaam{persoonrubriek::kBeroep, ">> Beroep"},
    RubriekNaam{persoonrubriek::kAlgemeen, ">> Algemeen"},
};

// kept: the card of a person writes this one of them otherwise.
inline constexpr std::string_view kOvlDatumOpKaart = ">> Ov datum";

// All rubrics of a relation, in the order of their bits.
inline constexpr std::array kRelatieRubrieken = {
    RubriekNaam{relatierubriek::kOtrPlaats, ">> Ondertrouw Plaats"},
    RubriekNaam{relatierubriek::kOtrDatum, ">> Ondertrouw Datum"},
    RubriekNaam{relatierubriek::kWetHuwPlaats, ">> Wettelijk Huwelijk Plaats"},
    RubriekNaam{relatierubriek::kWetHuwDatum, ">> Wettelijk Huwelijk Datum"},
    RubriekNaam{relatierubriek::kHuwSoort, ">> Soort Huwelijk"},
    RubriekNaam{relatierubriek::kKHuwPlaats, ">> Kerkelijk Huwelijk Plaats"},
    RubriekNaam{relatierubriek::kKHuwDatum, ">> Kerkelijk Huwelijk Datum"},
    RubriekNaam{relatierubriek::kReligie, ">> Religie"},
    RubriekNaam{relatierubriek::kAlgemeen, ">> Algemeen"},
};

// The heading of a rubric; empty for a number that is none.
constexpr std::string_view RubriekOpschrift(std::int16_t rubriek) {
  for (const RubriekNaam& naam : kPersoonRubrieken) {
    if (naam.rubriek == rubriek) return naam.opschrift;
  }
  for (const RubriekNaam& naam : kRelatieRubrieken) {
    if (naam.rubriek == rubriek) return naam.opschrift;
  }
  return {};
}

}  // namespace lb77
