#include "store/Veld.h"

#include <algorithm>

namespace lb77 {

void ZetBytes(std::span<char> record, const Veld& veld, std::string_view bytes) {
  const std::span<char> doel = record.subspan(veld.plaats, veld.breedte);
  const std::size_t lengte = std::min(bytes.size(), doel.size());
  std::copy_n(bytes.begin(), lengte, doel.begin());
  std::fill(doel.begin() + static_cast<std::ptrdiff_t>(lengte), doel.end(), ' ');
}

}  // namespace lb77
