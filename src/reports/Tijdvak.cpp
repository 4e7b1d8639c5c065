#include "reports/Tijdvak.h"

#include <cstddef>

namespace lb77 {
namespace {

constexpr std::size_t kDatum10 = 10;
constexpr std::string_view kGeenDag = "        ";
constexpr std::string_view kVroegst = "00000000";
constexpr std::string_view kLaatst = "99999999";

std::string_view OfGrens(std::string_view dag, std::string_view grens) {
  return dag == kGeenDag ? grens : dag;
}

}  // namespace

std::string Jaardag(std::string_view datum10) {
  if (datum10.size() != kDatum10) return std::string(kGeenDag);
  std::string uit(datum10.substr(6, 4));
  uit.append(datum10.substr(3, 2)).append(datum10.substr(0, 2));
  return uit;
}

bool Tijdvak::IsLeeg() const {
  return van_ == kGeenDag && tot_ == kGeenDag;
}

bool Tijdvak::Bevat(std::string_view datum10) const {
  if (IsLeeg()) return true;
  const std::string dag = Jaardag(datum10);
  if (dag == kGeenDag) return false;
  return OfGrens(van_, kVroegst) <= dag && dag <= OfGrens(tot_, kLaatst);
}

}  // namespace lb77
