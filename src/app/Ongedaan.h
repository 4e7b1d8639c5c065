// Undoing actions of the active set, with the user's word.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/Veiligheidskopie.h"
#include "forms/Gesprek.h"
#include "store/Opslag.h"

namespace lb77 {

inline constexpr std::string_view kNietsOngedaan = "Er is niets ongedaan te maken";

// Undoes back to and including that action. A refusal tells itself, with the record that stands in
// the way. True when it was done.
[[nodiscard]] bool MaakOngedaan(const Opslag& opslag, std::uint32_t nummer);

// Asks about the last action that is not undone yet, by its label, and undoes it.
void MaakLaatsteOngedaan(const Opslag& opslag);

// That the place for safety copies is not there, and where they are made instead; empty when it is.
[[nodiscard]] std::string PlekWegTekst(const Veiligheidskopie& kopie);
void MeldPlekWeg(const Veiligheidskopie& kopie, Gesprek& gesprek);

// Makes a safety copy, and tells where it lies.
void MaakVeiligheidskopie(Veiligheidskopie kopie, Gesprek& gesprek);

}  // namespace lb77
