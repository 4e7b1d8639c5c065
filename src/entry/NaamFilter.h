// The name filter of the list of persons.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Upper and lower case are told apart. An empty text passes everybody; a final "*" passes the names
// that begin so; any other text passes only the same name.
struct NaamFilter {
  bool FilterAan = false;
  std::string FilterVoorNm;
  std::string FilterAchterNm;

  // Does a person of these names pass? Everybody does while the filter is off.
  [[nodiscard]] bool LaatDoor(std::string_view voornaam, std::string_view achternaam) const;
};

}  // namespace lb77
