// Reading ahead, for who goes through all records of a set.
#pragma once

#include "store/Bestandenset.h"

namespace lb77 {

// While it lives, a record that follows the last one read may come from memory: what another program
// writes meanwhile can be missed, what this one writes can't. One at a time; opening or closing a
// file meanwhile ends it for that file.
class VooruitLezen {
 public:
  explicit VooruitLezen(Bestandenset& bestanden) : bestanden_(bestanden) {
    bestanden_.LeesVooruit(true);
  }
  ~VooruitLezen() { bestanden_.LeesVooruit(false); }
  VooruitLezen(const VooruitLezen&) = delete;
  VooruitLezen& operator=(const VooruitLezen&) = delete;

 private:
  Bestandenset& bestanden_;
};

}  // namespace lb77
