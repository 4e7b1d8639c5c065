// The fixture that plays scripts in the entry form and in the main window of the player's tests.
#pragma once

#include <string>
#include <string_view>

#include "script/SpeelFormulieren.h"
#include "steun/SpeelToets.h"

namespace lb77 {

class InvoerToets : public SpeelToets {
 protected:
  // Plays a script in the entry form and expects what comes behind "+ Invoer ...".
  void InInvoer(std::string_view draaiboek, std::string_view verslag,
                const Plek& plek = Plek::current()) {
    Verwacht(draaiboek, ToonInvoer, "+ Invoer \"Invoer\"\n" + std::string(verslag), plek);
  }
  void InvoerWeigert(std::string_view draaiboek, std::string_view reden,
                     const Plek& plek = Plek::current()) {
    VerwachtFout(draaiboek, ToonInvoer, reden, plek);
  }
  static void ToonInvoer(Gesprek& gesprek) {
    Invoer invoer(gesprek);
    gesprek.ToonModaal(invoer);
  }
  static void ToonHoofd(Gesprek& gesprek) {
    Hoofd hoofd(gesprek);
    gesprek.ToonModaal(hoofd);
  }
  // The last line of a `toon` of the whole form at the end of a script.
  std::string LaatsteVan(std::string_view draaiboek) {
    static_cast<void>(Speel(std::string(draaiboek) + "\ntoon", ToonInvoer));
    const std::size_t eind = verslag_.rfind('\n', verslag_.size() - 2);
    return verslag_.substr(eind + 1, verslag_.size() - eind - 2);
  }
};

}  // namespace lb77
