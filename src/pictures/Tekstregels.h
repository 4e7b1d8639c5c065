// The lines that are told of a person, each made to fit the room that it has.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "pictures/BeeldPersoon.h"
#include "pictures/Lettermaat.h"
#include "pictures/Penseel.h"

namespace lb77 {

struct Regel {
  std::string tekst;
  Schrift schrift;
};

// For three lines: first names, surname, dates; for two: name, dates; for one: all of it.
[[nodiscard]] std::vector<Schrift> Schriften(int regels, double grootte);

// `ruimte` gives the width of a line of `schriften`, from 0. A line with nothing in it is left out, and
// so are dates that do not fit; names are shortened.
[[nodiscard]] std::vector<Regel> MaakRegels(const BeeldPersoon& persoon,
                                            const std::vector<Schrift>& schriften,
                                            const std::function<double(std::size_t)>& ruimte,
                                            const Lettermaat& maat);

[[nodiscard]] double HoogteVan(const std::vector<Schrift>& schriften);
[[nodiscard]] double HoogteVan(const std::vector<Regel>& regels);
// Where a line begins, below the top of the block.
[[nodiscard]] double BovenVan(const std::vector<Schrift>& schriften, std::size_t regel);

}  // namespace lb77
