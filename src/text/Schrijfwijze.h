// How the user wants names and dates written, as the record classes are told it.
#pragma once

#include "text/Gezindte.h"
#include "text/Namen.h"

namespace lb77 {

// Filled from the settings; the defaults are those of a program that has read no settings yet.
struct Schrijfwijze {
  char DatumScheider = '.';  // "-" or "."
  Voorvoegsels voorvoegsels;
  Gezindten gezindten;
};

}  // namespace lb77
