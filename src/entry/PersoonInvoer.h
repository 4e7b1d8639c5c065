// What saving asks of typed data: are the dates in order, and who are the persons?
#pragma once

#include <string_view>

namespace lb77 {

class DatumVak;
class Gesprek;
class Hoofdmodule;
class PersoonVak;

// True when the first date lies behind the second and the user, asked with `melding`, wants to mend
// that.
[[nodiscard]] bool WilCorrigeren(Gesprek& gesprek, const DatumVak& eerst, const DatumVak& later,
                                 std::string_view melding);

// Searches the person by his names when no number stands there; `geslacht` is "M", "V", or "*" for
// anybody. False when a name stands there and nobody was chosen. The trackers stay.
[[nodiscard]] bool VulNrUitNaam(Hoofdmodule& hoofd, PersoonVak& vak, std::string_view geslacht);

// Are the names that stand there those of the number? Without a number they are. The buffer of
// persons changes.
[[nodiscard]] bool NrHoortBijNaam(Hoofdmodule& hoofd, const PersoonVak& vak);

}  // namespace lb77
