#include "ancestors/KwstTabel.h"

#include <optional>

#include "store/Codes.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

// Record 1 tells about its file; it is nobody.
constexpr std::int16_t kEerstePersoon = 2;

struct Ouders {
  std::int16_t vader = 0;
  std::int16_t moeder = 0;
  std::optional<Leesfout> fout;
};

Ouders LeesOuders(std::int16_t kind, PersoonLB77& persoon, RelatieLB77& relatie) {
  if (!persoon.Lees(kind)) return {.fout = Leesfout{BestandSoort::Personen, kind}};
  const std::int16_t ouders = persoon.RelNrOuders();
  if (ouders <= 0) return {};
  if (!relatie.Lees(ouders)) return {.fout = Leesfout{BestandSoort::Relaties, ouders}};
  return {relatie.ManNr(), relatie.VrouwNr(), std::nullopt};
}

Uitslag Mislukt(Volgers& volgers, const Leesfout& fout) {
  volgers.HuidigPersoonNr = -1;
  return fout;
}

}  // namespace

int KwstTabel::KwPersoon(int i) const {
  return i < KwstAantal() ? persoon_[Plaats(i)] : 0;
}

std::int16_t KwstTabel::Persoon(int i) const {
  int persoon = KwPersoon(i);
  while (persoon < 0) persoon = KwPersoon(-persoon);
  return static_cast<std::int16_t>(persoon);
}

KwstPaar KwstTabel::Paar(int i) const {
  if (i < KwstAantal() - 1 && KwKindIndex(i) == KwKindIndex(i + 1)) return {i, i + 1, i + 2};
  return IsMoeder(i) ? KwstPaar{0, i, i + 1} : KwstPaar{i, 0, i + 1};
}

void KwstTabel::Begin(std::int16_t proband, bool man, const Kwartiernummer& nummer) {
  persoon_.assign(1, proband);
  kindIndex_.assign(1, 0);
  genSoort_.assign(1, man ? 0 : 128);
  nummers_.assign(1, nummer);
  eerste_.assign(static_cast<std::size_t>(kMaxRecords) + 1, 0);
}

bool KwstTabel::VoegToe(std::int16_t persoon, int kind, bool moeder) {
  if (KwstAantal() >= kMaxKwartieren) return false;
  // The proband's own entry is never searched, so someone who is his own ancestor gets one positive
  // entry besides it.
  std::int16_t& eerste = eerste_[static_cast<std::size_t>(persoon)];
  const auto nieuw = static_cast<std::int16_t>(KwstAantal());
  persoon_.push_back(eerste ? static_cast<std::int16_t>(-eerste) : persoon);
  if (!eerste) eerste = nieuw;
  kindIndex_.push_back(static_cast<std::int16_t>(kind + 1));
  genSoort_.push_back(static_cast<std::uint8_t>(Generatie(kind) + 1 + (moeder ? 128 : 0)));
  nummers_.push_back(moeder ? nummers_[Plaats(kind)].Moeder() : nummers_[Plaats(kind)].Vader());
  return true;
}

Uitslag BouwKwst(KwstTabel& tabel, const KwstOpties& opties, PersoonLB77& persoon,
                 RelatieLB77& relatie, Volgers& volgers, const Verloop& verloop) {
  volgers.HuidigPersoonNr = opties.KwProbandNr;
  if (opties.KwProbandNr < kEerstePersoon || !persoon.Lees(opties.KwProbandNr)) {
    return Mislukt(volgers, {BestandSoort::Personen, opties.KwProbandNr});
  }
  tabel.Begin(opties.KwProbandNr, IsCode(persoon.Geslacht(), geslacht::kMan), opties.KwBeginNr);
  const int beginGeneratie = opties.KwBeginNr.Generatie();
  volgers.HuidigPersoonNr = 0;
  verloop.toon(0, 1);
  for (int i = 0; tabel.KwPersoon(i) != 0 && tabel.KwstAantal() < kMaxKwartieren; ++i) {
    // Breadth first, so all later entries are at least as deep.
    if (tabel.Generatie(i) + beginGeneratie >= opties.KwMaxGen) break;
    if (verloop.afbreken()) {
      volgers.HuidigPersoonNr = -1;
      return Einde::Afgebroken;
    }
    if (tabel.IsHerhaling(i) && !opties.KwVolgHerh) continue;
    const std::int16_t kind = tabel.Persoon(i);
    verloop.toon(kind, tabel.KwstAantal());
    volgers.HuidigPersoonNr = kind;
    const Ouders ouders = LeesOuders(kind, persoon, relatie);
    if (ouders.fout) return Mislukt(volgers, *ouders.fout);
    if (ouders.vader >= 1 && tabel.VoegToe(ouders.vader, i, false)) {
      verloop.toon(kind, tabel.KwstAantal());
    }
    if (ouders.moeder >= 1 && tabel.VoegToe(ouders.moeder, i, true)) {
      verloop.toon(kind, tabel.KwstAantal());
    }
  }
  return tabel.KwstAantal() == kMaxKwartieren ? Einde::Vol : Einde::Klaar;
}

}  // namespace lb77
