// The links of a family in the records: a person's relations, a relation's children.
#pragma once

#include <cstdint>

#include "entry/Koppeltabel.h"
#include "forms/Gesprek.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"

namespace lb77 {

// Changes one side of a link; the caller writes the other. The buffers and the tracker of the record
// class that is written change. What was written before a failure stays. A list that could not be
// read whole is never written: that is told, and fails.
class Koppelingen {
 public:
  Koppelingen(PersoonLB77& persoon, RelatieLB77& relatie, Volgers& volgers, Gesprek& gesprek)
      : persoon_(persoon), relatie_(relatie), volgers_(volgers), gesprek_(gesprek) {}

  // Writes the children of a relation, with a continuation record from the sixteenth on; `tab` loses
  // its doubles and gaps. A continuation that is not needed any more stays in the file, where
  // nothing names it. HuidigRelatieNr is `relatie` afterwards.
  [[nodiscard]] bool SchrijfKindtab(std::int16_t relatie, Kindtab& tab);
  // The same for the relations of a person, from the fourth on. HuidigPersoonNr is `persoon`.
  [[nodiscard]] bool SchrijfHuwtab(std::int16_t persoon, Huwtab& tab);

  // Puts a relation into the first free place of a person's list. False when the list is full, can't
  // be read whole, or can't be written.
  [[nodiscard]] bool VoegRelatieToe(std::int16_t persoon, std::int16_t relatie);
  // Takes a relation out of a person's list; one that is not in it is no failure, an empty list is.
  [[nodiscard]] bool HaalRelatieUit(std::int16_t persoon, std::int16_t relatie);

  // Takes a child out of the list of relation `oud` and puts it behind that of `nieuw`; 0 is none.
  // A removal stays when the addition fails. The messages are shown here.
  [[nodiscard]] bool VerplaatsKind(std::int16_t kind, std::int16_t oud, std::int16_t nieuw);

  // The relation of both partners; when there is none the user is asked, and one is made. 0 when
  // there is none after all. A partner of 0 is not known; both unknown give 0.
  [[nodiscard]] std::int16_t ZoekRelatie(std::int16_t vader, std::int16_t moeder);

 private:
  [[nodiscard]] bool HaalWeg(std::int16_t kind, std::int16_t oud);
  [[nodiscard]] bool VulVerdicht(std::int16_t relatie, Kindtab& tab);
  [[nodiscard]] bool LeesRelaties(std::int16_t persoon, Huwtab& tab);
  [[nodiscard]] std::int16_t ManVan(const Huwtab& vanMoeder);
  [[nodiscard]] std::int16_t MaakRelatie(std::int16_t vader, Huwtab& vanVader, std::int16_t moeder,
                                         Huwtab& vanMoeder);
  void Koppel(std::int16_t persoon, Huwtab& tab, std::int16_t relatie, std::string_view veld);

  PersoonLB77& persoon_;
  RelatieLB77& relatie_;
  Volgers& volgers_;
  Gesprek& gesprek_;
};

}  // namespace lb77
