// Where the journal of a set lies, when its directory may hold other sets as well.
#pragma once

#include <filesystem>
#include <string_view>

namespace lb77 {

// True when the directory holds the person file of no other set than `set` (Windows-1252, any case).
// One that cannot be read is taken to hold others.
[[nodiscard]] bool IsEnigeSet(const std::filesystem::path& map, std::string_view set);

// The directory of the journal of `set`, whose files lie in `map`; it need not be there. It is JOURNAAL
// where the directory itself has the name of the set. Where it has another, because a link leads there,
// it is JOURNAAL.<SET>: a journal says what stood in a record of the persons, not of whose persons, so
// that two sets must never share one.
[[nodiscard]] std::filesystem::path JournaalPlek(const std::filesystem::path& map,
                                                 std::string_view set);

}  // namespace lb77
