// What becomes of each line below a relation.
#pragma once

#include <span>
#include <string_view>

namespace lb77 {

enum class RelatieActie {
  Persoon,
  Datum,          // the first date
  HuwDatum,       // civil marriage; a second date by the qualifier of the last death or burial
  HuwDatumEigen,  // civil marriage; a second date by the date's own qualifier
  Plaats,
  Gezindte,
  Bond,  // only the kind of the bond or the divorce
  Kind,  // the next of at most 29
  // Tags of our own, as for a person.
  Eigen,
  EigenHuwDatum,  // civil marriage with its own qualifier; a second date goes to the church
  EigenPlaats,
  EigenZeker,
  Niets  // known, and passed over
};

// `veld` is the name by which Zet knows the field, where an action has one. Before the action
// `vooraf`, when it is not empty, is set to `waarde`.
struct RelatiePad {
  std::string_view pad;
  RelatieActie actie;
  std::string_view veld;
  std::string_view vooraf;
  std::string_view waarde;
};

[[nodiscard]] std::span<const RelatiePad> AlleRelatiePaden();

}  // namespace lb77
