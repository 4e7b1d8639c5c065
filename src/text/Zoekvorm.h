// The form of a text by which it is found: small letters without accents.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lb77 {

// Two texts that a reader takes for the same have the same form; a letter that is two ("ß", "æ")
// becomes those two, so that the form may be longer than the text.
[[nodiscard]] std::string Zoekvorm(std::string_view tekst);

// Where a text holds another, in characters of the text itself.
struct Zoekplek {
  std::size_t begin = std::string_view::npos;
  std::size_t lengte = 0;
  [[nodiscard]] bool Gevonden() const { return begin != std::string_view::npos; }
};

// The first place from `vanaf` on where the form of `tekst` holds `vorm`, which is a form already.
// An empty form stands nowhere.
[[nodiscard]] Zoekplek VindVorm(std::string_view tekst, std::string_view vorm,
                                std::size_t vanaf = 0);

}  // namespace lb77
