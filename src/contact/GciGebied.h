// From a place of the file set to the province and country by which the contact service knows it.
#pragma once

#include <string>
#include <string_view>

#include "contact/GciTabellen.h"

namespace lb77 {

inline constexpr std::string_view kNederland = "NL";

// Codes of the contact service; the province is empty when it is not known.
struct GciGebied {
  std::string prov;
  std::string land;

  [[nodiscard]] bool operator==(const GciGebied&) const = default;
};

// The province and country that an own province code stands for.
[[nodiscard]] GciGebied GebiedVan(std::string_view eigenCode, const GciProvincies& provincies,
                                  const GciLanden& landen);

// How the contact service calls a place that others call otherwise.
struct GciSynoniem {
  std::string_view naam;
  std::string_view prov;
  std::string_view land;
};

// Null for a name that has no synonym.
[[nodiscard]] const GciSynoniem* SynoniemVan(std::string_view naam);

}  // namespace lb77
