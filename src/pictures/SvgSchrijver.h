// A drawing as an SVG file.
#pragma once

#include <string>

#include "forms/Tekening.h"

namespace lb77 {

// The file's text, in ASCII: other characters are references. Its size is that of the drawing; each
// person is a group with his name as its title.
[[nodiscard]] std::string SvgVan(const Tekening& tekening);

}  // namespace lb77
