#include "descendants/GenRegels.h"

#include <cstddef>

#include "store/Codes.h"

namespace lb77 {
namespace {

constexpr std::int32_t kJaar = 10000;
constexpr std::int32_t kMaand = 100;
constexpr std::int32_t kEeuw = 1000000;

// kept: what a comparison of days came down to: 1 behind the middle of a century, else 0.
int Helft(std::int32_t datum) {
  return datum % kEeuw > kEeuw / 2 ? 1 : 0;
}

enum class Partner { Iedereen, GeenMan };

// Has the person a child in one of his relations? A relation that can't be read ends the search.
bool HeeftKind(std::int16_t nr, Partner partner, PersoonLB77& persoon, RelatieLB77& relatie) {
  Huwtab huwtab{};
  static_cast<void>(persoon.VulHuwtab(nr, huwtab));
  for (std::size_t plaats = 1; plaats < huwtab.size(); ++plaats) {
    const std::int16_t relNr = huwtab[plaats];
    if (relNr <= 0) continue;
    if (!relatie.Lees(relNr)) return false;
    if (partner == Partner::GeenMan && relatie.ManNr() != 0) continue;
    Kindtab kindtab{};
    if (relatie.VulKindtab(relNr, kindtab).aantal > 0) return true;
  }
  return false;
}

bool HeeftRelatie(std::int16_t nr, PersoonLB77& persoon) {
  Huwtab huwtab{};
  return persoon.VulHuwtab(nr, huwtab).aantal >= 1;
}

// The person in the buffer.
bool IsOuderDan(const PersoonLB77& persoon, int grens) {
  return OuderDan(persoon.GebDatum(), persoon.DoopDatum(), persoon.OvlDatum(), persoon.BegrDatum(),
                  grens);
}

bool VolgtZoon(std::int16_t nr, const GenOpties& opties, PersoonLB77& persoon,
               RelatieLB77& relatie) {
  switch (opties.GenVolgZonen) {
    case GenZonen::Geen:
      return false;
    case GenZonen::MetNageslacht:
      return HeeftKind(nr, Partner::Iedereen, persoon, relatie);
    case GenZonen::MetRelatie:
      return HeeftRelatie(nr, persoon);
    case GenZonen::OuderDan:
      return IsOuderDan(persoon, opties.GenGrensLeeftijd);
    case GenZonen::Alle:
      return true;
  }
  return false;
}

bool VolgtDochter(std::int16_t nr, const GenOpties& opties, PersoonLB77& persoon,
                  RelatieLB77& relatie) {
  switch (opties.GenVolgDochters) {
    case GenDochters::Geen:
      return false;
    case GenDochters::MetNageslacht:
      return HeeftKind(nr, Partner::Iedereen, persoon, relatie);
    case GenDochters::MetRelatie:
      return HeeftRelatie(nr, persoon);
    case GenDochters::OngehuwdeMoeders:
      return HeeftKind(nr, Partner::GeenMan, persoon, relatie);
    case GenDochters::OuderDan:
      return IsOuderDan(persoon, opties.GenGrensLeeftijd);
    case GenDochters::Alle:
      return true;
  }
  return false;
}

// Of unknown sex: followed when the same rule holds for sons and for daughters.
bool VolgtOnbekend(const GenOpties& opties, const PersoonLB77& persoon) {
  if (opties.GenVolgZonen == GenZonen::Alle) return opties.GenVolgDochters == GenDochters::Alle;
  return opties.GenVolgZonen == GenZonen::OuderDan &&
         opties.GenVolgDochters == GenDochters::OuderDan &&
         IsOuderDan(persoon, opties.GenGrensLeeftijd);
}

}  // namespace

bool OuderDan(std::int32_t geb, std::int32_t doop, std::int32_t ovl, std::int32_t begr, int grens) {
  const std::int32_t begin = geb != 0 ? geb : doop;
  const std::int32_t eind = ovl != 0 ? ovl : begr;
  const std::int32_t beginJaar = begin / kJaar;
  const std::int32_t eindJaar = eind / kJaar;
  if (beginJaar == 0 || eindJaar == 0) return true;
  const std::int32_t leeftijd = eindJaar - beginJaar;
  if (leeftijd != grens) return leeftijd > grens;
  const std::int32_t beginMaand = (begin % kJaar) / kMaand;
  const std::int32_t eindMaand = (eind % kJaar) / kMaand;
  if (beginMaand != eindMaand) return eindMaand > beginMaand;
  return Helft(eind) > Helft(begin);
}

bool VolgKind(std::int16_t kindNr, const GenOpties& opties, PersoonLB77& persoon,
              RelatieLB77& relatie) {
  if (!persoon.Lees(kindNr)) return true;
  const std::string geslacht = persoon.Geslacht();
  if (IsCode(geslacht, geslacht::kOnbekend)) return VolgtOnbekend(opties, persoon);
  if (IsCode(geslacht, geslacht::kMan)) return VolgtZoon(kindNr, opties, persoon, relatie);
  if (IsCode(geslacht, geslacht::kVrouw)) return VolgtDochter(kindNr, opties, persoon, relatie);
  return false;
}

}  // namespace lb77
