#include "store/Leesvenster.h"

#include <algorithm>

namespace lb77 {

namespace {

constexpr std::size_t kBlok = std::size_t{64} * 1024;

}  // namespace

bool Leesvenster::Bevat(std::uint64_t plaats, std::size_t lengte) const {
  const std::uint64_t binnen = plaats - begin_;  // far beyond the end for a place ahead of it
  return binnen <= bytes_.size() && lengte <= bytes_.size() - binnen;
}

// A stretch ends where reading fails: the records behind it are asked for one by one, and only the bad
// one fails.
void Leesvenster::Vul(const Bestandsgreep& greep, std::uint64_t plaats) {
  bytes_.resize(kBlok);
  begin_ = plaats;
  bytes_.resize(greep.Lees(plaats, bytes_).gelezen);
}

Leesuitslag Leesvenster::Lees(const Bestandsgreep& greep, std::uint64_t plaats,
                              std::span<char> doel) {
  if (plaats == volgende_ && !Bevat(plaats, doel.size())) Vul(greep, plaats);
  volgende_ = plaats + doel.size();
  if (!Bevat(plaats, doel.size())) return greep.Lees(plaats, doel);
  std::copy_n(bytes_.data() + (plaats - begin_), doel.size(), doel.data());
  return {doel.size(), {}};
}

}  // namespace lb77
