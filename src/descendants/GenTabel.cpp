#include "descendants/GenTabel.h"

#include "descendants/GenLabel.h"
#include "store/Codes.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

int GeslachtBit(std::string_view geslacht) {
  if (IsCode(geslacht, geslacht::kMan)) return GenTabel::kGenMan;
  return IsCode(geslacht, geslacht::kVrouw) ? GenTabel::kGenVrouw : 0;
}

}  // namespace

int GenTabel::GenPersoon(int i) const {
  return i < GenAantal() ? persoon_[Plaats(i)] : 0;
}

std::int16_t GenTabel::Persoon(int i) const {
  int persoon = GenPersoon(i);
  while (persoon < 0) persoon = GenPersoon(-persoon);
  return static_cast<std::int16_t>(persoon);
}

int GenTabel::Vind(std::int16_t persoon) const {
  if (persoon <= 0 || GenAantal() == 0) return -1;
  if (Bevat(persoon)) return eerste_[static_cast<std::size_t>(persoon)];
  return GenPersoon(0) == persoon ? 0 : -1;
}

std::string GenTabel::Label(int i) const {
  return GenLabel(Generatie(i), GenVolgNr(i), false);
}

int GenTabel::VolgendKind(int i) const {
  const int volgende = i + 1;
  return volgende < GenAantal() && GenOuderIndex(volgende) == GenOuderIndex(i) ? volgende : 0;
}

int GenTabel::VolgendeInTak(int i) const {
  if (const int kind = EersteKind(i)) return kind;
  for (int nu = i; nu > 0; nu = GenOuderIndex(nu)) {
    if (const int broer = VolgendKind(nu)) return broer;
  }
  return 0;
}

void GenTabel::Begin(std::int16_t stamouder, std::string_view geslacht) {
  persoon_.assign(1, stamouder);
  ouderIndex_.assign(1, -1);
  genSoort_.assign(1, static_cast<std::int16_t>(1 + GeslachtBit(geslacht)));
  volgNr_.assign(1, 0);
  eersteKind_.assign(1, 0);
  eerste_.assign(static_cast<std::size_t>(kMaxRecords) + 1, 0);
}

void GenTabel::VoegToe(std::int16_t persoon, int ouder, std::string_view geslacht) {
  const int vorige = GenAantal() - 1;
  const auto nieuw = static_cast<std::int16_t>(GenAantal());
  const int generatie = Generatie(ouder) + 1;
  std::int16_t& eerste = eerste_[static_cast<std::size_t>(persoon)];
  persoon_.push_back(eerste > 0 ? static_cast<std::int16_t>(-eerste) : persoon);
  if (eerste == 0) eerste = nieuw;
  ouderIndex_.push_back(static_cast<std::int16_t>(ouder));
  volgNr_.push_back(
      static_cast<std::int16_t>(Generatie(vorige) == generatie ? GenVolgNr(vorige) + 1 : 1));
  genSoort_.push_back(static_cast<std::int16_t>(generatie + GeslachtBit(geslacht)));
  eersteKind_.push_back(0);
  std::int16_t& eersteKind = eersteKind_[Plaats(ouder)];
  if (eersteKind == 0) eersteKind = nieuw;
}

}  // namespace lb77
