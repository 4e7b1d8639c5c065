// What every form must be able to do in a window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Vensterproef.h"
#include "qt/Binder.h"
#include "qt/VensterInstellingen.h"

namespace lb77 {

// Opens a form that has been loaded, without making it active, so that one that works by itself
// stays; looks at it, keeps a picture of it, and closes it by Escape.
class Formulierproef : public Vensterproef {
 protected:
  void Beproef(Formulier& formulier);

  // Captions whose accelerators a form has twice by its own texts: "Formulier A B".
  void StaDubbelToe(std::vector<std::string> dubbel) { toegestaan_ = std::move(dubbel); }

  // Keeps a picture of the window in the build directory.
  static void Bewaar(QWidget& venster, std::string_view naam);

 private:
  void ElkeBedieningStaatErEenmaal(const Formulier& formulier);
  void NietsLigtOverElkaar(const Formulier& formulier);
  void SneltoetsenZijnUniek(const Formulier& formulier);
  void TabKomtOveral(const Formulier& formulier);

  VensterInstellingen instellingen_{{}};
  std::vector<std::string> toegestaan_;
};

}  // namespace lb77
