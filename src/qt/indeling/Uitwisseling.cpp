// Import and export.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Uitwisseling() {
  return {};
}

}  // namespace lb77::indeling
