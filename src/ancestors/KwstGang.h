// The walk over an ancestor table: its couples in order, and who of them is told.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "ancestors/KwstOpties.h"
#include "ancestors/KwstTabel.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// One parent; index -1 for one who is not known.
struct KwstOuder {
  int index = -1;
  std::int16_t nr = 0;  // the person, also behind a repeat
  bool herhaling = false;
  bool geschreven = false;  // known, and not below the first number asked for

  // Is he told here, and not only referred to?
  [[nodiscard]] bool Verteld() const { return geschreven && !herhaling; }
};

// The known parents of one child.
struct KwstStel {
  KwstOuder vader;
  KwstOuder moeder;
  std::int16_t relatie = 0;  // the one that the child's record names
};

// A child, and its slot among those of its parents, from 1, which gives its letter.
struct KwstKind {
  int plaats = 0;
  std::int16_t nr = 0;
};

// One walk, for one report.
class KwstGang {
 public:
  KwstGang(const KwstTabel& tabel, const KwstOpties& opties, const Gegevens& bronnen,
           const Verloop& verloop)
      : tabel_(tabel), opties_(opties), bronnen_(bronnen), verloop_(verloop) {}

  // The person of an entry.
  [[nodiscard]] KwstOuder Ouder(int index) const;
  // Hands each couple to `schrijf`, whose end other than Klaar is the end of the walk. The stop is
  // tested before each; a child that can't be read ends the walk too.
  [[nodiscard]] Uitslag Loop(const std::function<Uitslag(const KwstStel&)>& schrijf) const;
  // The children of relation `relNr`, the parents of `nr`. He himself is left out, unless he is the
  // proband. HuidigRelatieNr and the buffer may stand on the relation's continuation afterwards.
  [[nodiscard]] std::vector<KwstKind> Kinderen(std::int16_t relNr, std::int16_t nr) const;

 private:
  const KwstTabel& tabel_;
  const KwstOpties& opties_;
  Gegevens bronnen_;
  const Verloop& verloop_;
};

// What every ancestor report begins with: the proband, read into the buffer, the margin, and in HTML
// the head of the page. Klaar, or the read that failed.
[[nodiscard]] Uitslag BeginKwst(const KwstOpties& opties, PersoonLB77& persoon,
                                TekstSchrijver& uit);

}  // namespace lb77
