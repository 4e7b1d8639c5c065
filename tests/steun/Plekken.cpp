#include "steun/Plekken.h"

namespace lb77 {

std::filesystem::path BronMap() {
  return LB77_BRONMAP;
}

std::filesystem::path BouwMap() {
  return LB77_BOUWMAP;
}

}  // namespace lb77
