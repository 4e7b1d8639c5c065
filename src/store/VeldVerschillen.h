// What changed in a record, field by field, in words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/Journaal.h"

namespace lb77 {

// One field: its name and its two values, in Windows-1252; numbers and codes as they are stored.
struct VeldVerschil {
  std::string_view naam;
  std::string voor;  // empty when the record was not there
  std::string na;    // empty when it is no longer there
};

// The fields that differ, in file order; a date is one field, written with `scheider`. None when
// the bytes after are not known.
[[nodiscard]] std::vector<VeldVerschil> VeldVerschillen(const RecordWijziging& wijziging,
                                                        char scheider);

}  // namespace lb77
