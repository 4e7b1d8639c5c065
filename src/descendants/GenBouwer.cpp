#include "descendants/GenBouwer.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "descendants/GenRegels.h"

namespace lb77 {
namespace {

// Record 1 tells about its file; it is nobody.
constexpr std::int16_t kEerstePersoon = 2;

// One run. A False result means a record that can't be read; fout_ tells which.
class Bouwer {
 public:
  Bouwer(GenTabel& tabel, const GenOpties& opties, PersoonLB77& persoon, RelatieLB77& relatie,
         const Verloop& verloop)
      : tabel_(tabel), opties_(opties), persoon_(persoon), relatie_(relatie), verloop_(verloop) {}

  [[nodiscard]] Uitslag Bouw();

 private:
  [[nodiscard]] bool WordtGevolgd(int i) const;
  [[nodiscard]] bool NeemKinderenVan(int i);
  [[nodiscard]] bool NeemKinderenUit(std::int16_t relNr, int i);
  [[nodiscard]] bool NeemKind(std::int16_t kind, int i);
  [[nodiscard]] bool LeesPersoon(std::int16_t nr);
  [[nodiscard]] bool LeesRelatie(std::int16_t relNr);

  GenTabel& tabel_;
  const GenOpties& opties_;
  PersoonLB77& persoon_;
  RelatieLB77& relatie_;
  const Verloop& verloop_;
  Leesfout fout_;
};

bool Bouwer::LeesPersoon(std::int16_t nr) {
  if (persoon_.Lees(nr)) return true;
  fout_ = {BestandSoort::Personen, nr};
  return false;
}

bool Bouwer::LeesRelatie(std::int16_t relNr) {
  if (relatie_.Lees(relNr)) return true;
  fout_ = {BestandSoort::Relaties, relNr};
  return false;
}

Uitslag Bouwer::Bouw() {
  verloop_.toon(0, tabel_.GenAantal());
  // Breadth first, so all later entries are at least as deep.
  for (int i = 0;
       i < tabel_.GenAantal() && !tabel_.IsVol() && tabel_.Generatie(i) < opties_.GenMaxGen; ++i) {
    if (verloop_.afbreken()) return Einde::Afgebroken;
    if (WordtGevolgd(i) && !NeemKinderenVan(i)) return fout_;
  }
  return tabel_.IsVol() ? Einde::Vol : Einde::Klaar;
}

bool Bouwer::WordtGevolgd(int i) const {
  if (tabel_.IsHerhaling(i) && !opties_.GenVolgHerh) return false;
  const std::int16_t nr = tabel_.Persoon(i);
  verloop_.toon(nr, tabel_.GenAantal());
  const auto& niet = opties_.GenVolgNiet;
  return std::find(niet.begin(), niet.end(), nr) == niet.end();
}

bool Bouwer::NeemKinderenVan(int i) {
  const std::int16_t nr = tabel_.Persoon(i);
  if (!LeesPersoon(nr)) return false;
  Huwtab huwtab{};
  static_cast<void>(persoon_.VulHuwtab(nr, huwtab));
  for (std::size_t plaats = 1; plaats < huwtab.size(); ++plaats) {
    if (huwtab[plaats] > 0 && !NeemKinderenUit(huwtab[plaats], i)) return false;
  }
  return true;
}

bool Bouwer::NeemKinderenUit(std::int16_t relNr, int i) {
  if (!LeesRelatie(relNr)) return false;
  Kindtab kindtab{};
  static_cast<void>(relatie_.VulKindtab(relNr, kindtab));
  for (std::size_t plaats = 1; plaats < kindtab.size(); ++plaats) {
    if (kindtab[plaats] > 0 && !NeemKind(kindtab[plaats], i)) return false;
  }
  return true;
}

bool Bouwer::NeemKind(std::int16_t kind, int i) {
  if (!LeesPersoon(kind)) return false;
  const std::string geslacht = persoon_.Geslacht();
  if (tabel_.IsVol()) return true;
  if (!tabel_.Bevat(kind) && !VolgKind(kind, opties_, persoon_, relatie_)) return true;
  tabel_.VoegToe(kind, i, geslacht);
  verloop_.toon(tabel_.Persoon(i), tabel_.GenAantal());
  return true;
}

}  // namespace

Uitslag BouwGen(GenTabel& tabel, const GenOpties& opties, PersoonLB77& persoon,
                RelatieLB77& relatie, Volgers& volgers, const Verloop& verloop) {
  const std::int16_t stamouder = opties.GenStamouderNr;
  volgers.HuidigPersoonNr = stamouder;
  if (stamouder < kEerstePersoon || !persoon.Lees(stamouder)) {
    volgers.HuidigPersoonNr = -1;
    return Leesfout{BestandSoort::Personen, stamouder};
  }
  tabel.Begin(stamouder, persoon.Geslacht());
  volgers.HuidigPersoonNr = 0;
  const Uitslag uitslag = Bouwer(tabel, opties, persoon, relatie, verloop).Bouw();
  const bool gelukt = uitslag == Einde::Klaar || uitslag == Einde::Vol;
  volgers.HuidigPersoonNr = gelukt ? std::int16_t{0} : std::int16_t{-1};
  return uitslag;
}

}  // namespace lb77
