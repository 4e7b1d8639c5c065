// What the dialogs on one remark share: whose it is, and for which output.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "entry/OpmVraag.h"
#include "forms/Keuzen.h"
#include "forms/Weergave.h"

namespace lb77 {

class Gesprek;
struct Gegevens;

// The owner of a remark, as far as a dialog shows and needs him.
struct OpmEigenaar {
  std::string naam;     // the person, or the man of the relation
  std::string partner;  // the woman of a relation
  std::int16_t opmCode = 0;
  std::int16_t opmRecord = 0;
};

// Reads the person or relation that the question is about. When there is none that is told, and
// HuidigPersoonNr or HuidigRelatieNr is -1.
[[nodiscard]] std::optional<OpmEigenaar> LeesOpmEigenaar(const Gegevens& gegevens, Gesprek& gesprek,
                                                         const OpmVraag& vraag);

// The lines above a remark: its owner and the field.
struct OpmKop {
  explicit OpmKop(Formulier& formulier);

  void Toon(const OpmVraag& vraag, const OpmEigenaar& eigenaar);

  Teller RecordNr;
  Teller Naam;
  Teller NaamPartner;
  Label VeldLabel;
  Teller VeldWaarde;
};

// The boxes of BijProg. The bits that have no box stay as they are.
struct OpmVinkjes {
  explicit OpmVinkjes(Formulier& formulier);

  void Toon(std::int16_t prog);
  // What is ticked, over what is stored. The box of the family sheet stands for two bits, and keeps
  // those of them that are set.
  [[nodiscard]] std::int16_t Prog(std::int16_t opgeslagen);
  // They only show.
  void ZetUit();

  Vinkje BijKWST;
  Vinkje BijSTRK;
  Vinkje BijGEN;
  Vinkje BijGEZIN;
  Vinkje BijHTML;

 private:
  using Bits = std::pair<Vinkje*, std::int16_t>;
  [[nodiscard]] std::array<Bits, 4> MetEenBit();
};

}  // namespace lb77
