// Runs everyday commands in a directory of their own, on a small family.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Opdrachten.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {

class OpdrachtToets : public ::testing::Test {
 protected:
  // Runs a command; its output lies in uit_ and fout_ then.
  int Doe(std::string_view naam, OpdrachtArgumenten argumenten) {
    argumenten.woorden.resize(kMeesteWoorden);
    std::ostringstream uit;
    std::ostringstream fout;
    const Omgeving omgeving{map_.Pad(), klok_, uit, fout};
    const auto alle = Opdrachten();
    const auto opdracht = std::find_if(alle.begin(), alle.end(),
                                       [naam](const Opdracht& o) { return o.naam == naam; });
    if (opdracht == alle.end()) {
      ADD_FAILURE() << "no command " << naam;
      return -1;
    }
    const int status = opdracht->doe(omgeving, argumenten);
    uit_ = uit.str();
    fout_ = fout.str();
    return status;
  }
  int Doe(std::string_view naam, std::vector<std::string> woorden) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = std::move(woorden);
    return Doe(naam, std::move(argumenten));
  }
  // The set FAMILIE with that GEDCOM.
  void MaakFamilie(std::string_view gedcom) {
    SchrijfBytes(map_ / "familie.ged", gedcom);
    ASSERT_EQ(Doe("nieuw", {"familie", "Mijn familie"}), 0) << fout_;
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"FAMILIE"};
    argumenten.bestand = map_ / "familie.ged";
    ASSERT_EQ(Doe("importeer", argumenten), 0) << fout_;
  }
  // Every file with its bytes, every directory with nothing.
  [[nodiscard]] std::map<std::filesystem::path, std::string> Inhoud() const {
    std::map<std::filesystem::path, std::string> uit;
    for (const auto& plek : std::filesystem::recursive_directory_iterator(map_.Pad())) {
      uit[plek.path()] = plek.is_regular_file() ? LeesBytes(plek.path()) : std::string();
    }
    return uit;
  }

  TijdelijkeMap map_;
  VasteKlok klok_{{2026, 11, 21, 12, 0, 0}};
  std::string uit_;
  std::string fout_;
};

}  // namespace lb77
