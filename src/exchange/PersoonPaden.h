// What becomes of each line below a person.
#pragma once

#include <span>
#include <string_view>

namespace lb77 {

enum class PersoonActie {
  Naam,        // given name and surname
  Voornaam,    // 30 characters
  Achternaam,  // 25 characters
  Geslacht,
  GebDatum,   // with its qualifier; the second date goes to the baptism
  DoopDatum,  // sets the qualifier of the birth
  OvlDatum,   // with its qualifier; the second date goes to the burial
  BegrDatum,  // sets the qualifier of the death
  Plaats,
  DoopPlaats,  // passed over when the baptism date holds the end of the birth's period
  BegrPlaats,  // passed over when the burial date holds the end of the death's period
  Gezindte,
  Beroep,  // 30 characters
  Ouders,
  Relatie,  // the next of at most five
  // Tags of our own. The fields that they set stay as they tell.
  Eigen,        // the value as it stands
  EigenPlaats,  // a link to a place of the file
  EigenZeker,   // the qualifier of the place just linked to
  Niets         // known, and passed over
};

// `veld` is the name by which Zet knows the field, where an action has one.
struct PersoonPad {
  std::string_view pad;
  PersoonActie actie;
  std::string_view veld;
};

[[nodiscard]] std::span<const PersoonPad> AllePersoonPaden();

}  // namespace lb77
