// The ways to a family, from the button to the main window with the family in it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "app/Wegknoppen.h"

namespace lb77 {

class Wegen {
 public:
  // `installatie`: where to look for the sample family.
  Wegen(Hoofdmodule& hoofd, MenuWindow& menu, std::vector<std::filesystem::path> installatie);

  void Ga(Weg weg);
  // Asks into which set, and shows the import with the file filled in.
  void LeesGedcom(const std::filesystem::path& bestand);

 private:
  void VraagGedcom();
  // Whether the file can be read into a set; what is against it has been told.
  [[nodiscard]] bool IsBruikbaar(const std::filesystem::path& bestand);
  // Takes the set that was just made for a file from the list and the disk when nothing came into it,
  // and opens the one that was open before.
  void RuimLegeSet(const std::string& eerder);
  // Opens the sample family, made anew from its GEDCOM file when the list does not have it.
  void ToonVoorbeeld();

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
  const std::vector<std::filesystem::path> installatie_;
};

}  // namespace lb77
