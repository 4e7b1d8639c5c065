// What all layouts of a family sheet tell alike: names and phrases.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "descendants/GezinOpties.h"
#include "output/Blik.h"
#include "store/Gegevens.h"

namespace lb77 {

// A word for a man, for a woman, and for whose sex is not known.
struct NaarGeslacht {
  std::string_view man;
  std::string_view vrouw;
  std::string_view anders;

  [[nodiscard]] std::string_view Voor(const PersoonBlik& persoon) const;
};

// What stands for a person or a relation that can't be read.
inline constexpr std::string_view kOnleesbaar = "?";
// Nobody, or somebody without a name.
inline constexpr std::string_view kNietBekend = "N.N.";
inline constexpr std::string_view kGeenRelatie = "geen relatie aanwezig";

// Two events of which the second date may be the end of a span: birth with baptism, death with
// burial, civil with church marriage.
struct Gebeurtenispaar {
  std::string label1;
  std::string label2;
  Gebeurtenis een;
  Gebeurtenis twee;
  std::string corr;

  // Are the two dates the bounds of one span? With a bound missing they are not.
  [[nodiscard]] bool IsSpan() const;
};

// `gedoopt` is the label of the baptism.
[[nodiscard]] Gebeurtenispaar GeboortePaar(const Levensloop& leven, std::string_view gedoopt);
// kept: a cremation is told as a burial.
[[nodiscard]] Gebeurtenispaar OverlijdenPaar(const Levensloop& leven);

// One marriage of a child.
struct KindHuwelijk {
  std::string volgNr;  // "(2)" where there is more than one, else empty
  std::string partner;
};

// The buffers of persons, relations and places change.
// The text behind another: a blank before it, none before an empty one.
[[nodiscard]] std::string MetBlanco(std::string_view tekst);

class GezinDelen {
 public:
  GezinDelen(const Gegevens& bronnen, const GezinOpties& opties)
      : bronnen_(bronnen), opties_(opties) {}

  // The child in the list of children, without his number.
  [[nodiscard]] std::string KindNaam(const PersoonBlik& kind) const;
  // Both names of person `nr`, and his number.
  [[nodiscard]] std::string Naam(std::int16_t nr);
  // "[12]" with numbers on, else empty.
  [[nodiscard]] std::string Nummer(std::int16_t nr) const;
  // " [rel.nr. 12]" with numbers on and a relation, else empty.
  [[nodiscard]] std::string RelatieNummer() const;
  // The two events in one phrase; empty when neither is known.
  [[nodiscard]] std::string Zin(const Gebeurtenispaar& paar);
  [[nodiscard]] std::string GezindteVan(std::string_view code) const;
  [[nodiscard]] std::vector<KindHuwelijk> Huwelijken(std::int16_t kind);

 private:
  Gegevens bronnen_;
  const GezinOpties& opties_;
};

}  // namespace lb77
