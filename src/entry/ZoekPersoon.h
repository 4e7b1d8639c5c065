// The two ways to a person by name: the list to browse, and the search for a typed name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lb77 {

class Hoofdmodule;

// Shows the list of persons. The number of the one who was chosen, which is HuidigPersoonNr then;
// 0 when nobody was.
[[nodiscard]] std::int32_t VraagZoekPersoon(Hoofdmodule& hoofd);

// Searches the file for a name, upper and lower case alike, and has the user confirm each hit. A
// final "*" matches whatever begins so; `geslacht` is "M", "V", or "*" for anybody. The number, and
// both names as they are stored; 0 when nobody was chosen, and the names are only trimmed then.
[[nodiscard]] std::int16_t ZoekPersoonOpNaam(Hoofdmodule& hoofd, std::string& voornaam,
                                             std::string& achternaam, std::string_view geslacht);

// Asks whether this is the person who is meant. HuidigPersoonNr is `nr` for Yes, 0 for No. The
// buffers of persons, relations and places change.
[[nodiscard]] bool ToonOKPersoon(Hoofdmodule& hoofd, std::int16_t nr, std::string_view voornaam,
                                 std::string_view achternaam);

}  // namespace lb77
