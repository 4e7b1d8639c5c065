// Scripts played on cards.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/MeerKinderen.h"
#include "entry/ToonKinderen.h"
#include "entry/ToonPersoon.h"
#include "entry/ToonRelatie.h"
#include "steun/FamilieToets.h"

namespace lb77 {

class KaartToets : public FamilieToets {
 protected:
  // From the card on, until the last one is left or the script ends.
  static Taak Loop(KaartVraag (*vraag)(Hoofdmodule&, std::int16_t), std::int16_t nr) {
    return [vraag, nr](Hoofdmodule& hoofd) { LoopKaarten(hoofd.gesprek, vraag(hoofd, nr)); };
  }
  // The line of its opening goes by itself.
  void OpPersoon(std::string_view draaiboek, std::int16_t nr, std::string_view verslag,
                 const Plek& plek = Plek::current()) {
    Verwacht(draaiboek, Loop(ToonPersoonVraag, nr), kPersoonOpen + Regels(verslag), plek);
  }
  void OpRelatie(std::string_view draaiboek, std::int16_t nr, std::string_view verslag,
                 const Plek& plek = Plek::current()) {
    Verwacht(draaiboek, Loop(ToonRelatieVraag, nr), kRelatieOpen + Regels(verslag), plek);
  }
  // Jan (2) and Anna (3) with Kees (4), in relation 2.
  void Gezin() {
    const auto jan = Bouw().Man("Jan", "Vos");
    const auto anna = Bouw().Vrouw("Anna", "Bos");
    Bouw().Relatie(jan, anna, {Bouw().Man("Kees", "Vos")});
  }
  // The tasks that look at the session behind a script.
  static Taak Daarna(Taak eerst, Taak dan) {
    return [eerst = std::move(eerst), dan = std::move(dan)](Hoofdmodule& hoofd) {
      eerst(hoofd);
      dan(hoofd);
    };
  }

  inline static const std::string kPersoonOpen = "+ ToonPersoon \"Toon Persoon\"\n";
  inline static const std::string kRelatieOpen = "+ ToonRelatie \"Toon Relatie\"\n";
};

// A script many times over.
inline std::string Keer(int aantal, std::string_view draaiboek) {
  std::string uit;
  for (int i = 0; i < aantal; ++i) uit.append(draaiboek);
  return uit;
}

}  // namespace lb77
