// Verbs that fill a file set: persons, relations, places and remarks with all their links.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "store/OpmLB77.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"
#include "store/VeldWaarde.h"

namespace lb77 {

using VeldWaarden = std::initializer_list<VeldWaarde>;

// Works on the record classes of a session; a failure fails the test. Numbers start at 2.
class BouwFamilie {
 public:
  BouwFamilie(PersoonLB77& persoon, RelatieLB77& relatie, PlaatsLB77& plaats, OpmLB77& opmerking)
      : persoon_(persoon), relatie_(relatie), plaats_(plaats), opmerking_(opmerking) {}

  // Each makes a record behind the last and gives its number. A sex of '?' stays blank.
  std::int16_t Persoon(char geslacht, std::string_view voornaam, std::string_view achternaam,
                       VeldWaarden velden = {});
  std::int16_t Man(std::string_view voornaam, std::string_view achternaam,
                   VeldWaarden velden = {}) {
    return Persoon('M', voornaam, achternaam, velden);
  }
  std::int16_t Vrouw(std::string_view voornaam, std::string_view achternaam,
                     VeldWaarden velden = {}) {
    return Persoon('V', voornaam, achternaam, velden);
  }
  std::int16_t Plaats(std::string_view naam, std::string_view prov = "");

  // A relation with its children, linked both ways: with continuation records for the fourth
  // relation of a partner and the sixteenth child. A partner of 0 is not known.
  std::int16_t Relatie(std::int16_t man, std::int16_t vrouw,
                       const std::vector<std::int16_t>& kinderen = {}, VeldWaarden velden = {});

  // A remark of up to ten lines behind the remarks of its owner; prog 23 is all output.
  void OpmerkingBijPersoon(std::int16_t nr, std::int16_t rubriek,
                           const std::vector<std::string>& regels, std::int16_t prog = 23);
  void OpmerkingBijRelatie(std::int16_t nr, std::int16_t rubriek,
                           const std::vector<std::string>& regels, std::int16_t prog = 23);

  // Changes fields of a record.
  void WijzigPersoon(std::int16_t nr, VeldWaarden velden);
  void WijzigRelatie(std::int16_t nr, VeldWaarden velden);
  // Has record 1 state another number of persons.
  void ZetAantalPersonen(std::int16_t aantal);

 private:
  void VoegRelatieBij(std::int16_t persoon, std::int16_t relatie);
  void ZetKinderen(std::int16_t relatie, const std::vector<std::int16_t>& kinderen);
  std::int16_t NieuwePersoon();
  std::int16_t NieuweRelatie();

  PersoonLB77& persoon_;
  RelatieLB77& relatie_;
  PlaatsLB77& plaats_;
  OpmLB77& opmerking_;
};

}  // namespace lb77
