// What becomes of the sets when the user chooses another data directory.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"

namespace lb77 {

// The list of sets holds names alone: in another directory each of them must be found there too. For
// one visit to the settings dialog, in the session of a user.
class DataVerhuizing {
 public:
  DataVerhuizing(Hoofdmodule& hoofd, MenuWindow& menu) : hoofd_(hoofd), menu_(menu) {}

  // To be asked before the setting changes. Where sets would get lost from sight the user is asked
  // whether they are to be copied; what he has there by the same names is used. Nothing is written
  // over, and the sets stay where they were too. False, with everything as it was, when he says No or,
  // after a message, when something could not be copied. Else no set is open any more.
  [[nodiscard]] bool Mag(const std::filesystem::path& nieuw);
  // To be called when the setting has changed: opens in the new place the set that was open.
  void RondAf();

 private:
  // How the sets of the list are divided over the two directories.
  struct Verdeling {
    std::vector<std::string> mee;   // lie in the old one alone
    std::vector<std::string> daar;  // lie in the new one
    std::vector<std::string> weg;   // lie in neither
  };
  [[nodiscard]] Verdeling Verdeel(const std::filesystem::path& nieuw) const;
  [[nodiscard]] bool Kopieer(const std::vector<std::string>& namen,
                             const std::filesystem::path& nieuw);

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
  std::string eerder_;  // the set that was open
};

}  // namespace lb77
