#include "ancestors/KwstBlad.h"

namespace lb77 {

// The parents stand in the table in the order of their children.
int index_ouder(const KwstTabel& tabel, int kind, bool moeder) {
  int begin = 1;
  for (int einde = tabel.KwstAantal(); begin < einde;) {
    const int midden = begin + (einde - begin) / 2;
    if (tabel.KwKindIndex(midden) <= kind) {
      begin = midden + 1;
    } else {
      einde = midden;
    }
  }
  for (int i = begin; i < tabel.KwstAantal() && tabel.KwKindIndex(i) == kind + 1; ++i) {
    if (tabel.IsMoeder(i) == moeder) return i;
  }
  return 0;
}

KwstBlad::KwstBlad(const KwstTabel& tabel, int wortel) {
  plaatsen_[1] = {true, wortel, tabel.KwNummer(wortel), false};
  for (std::size_t p = 2; p < plaatsen_.size(); ++p) {
    const BladPlaats& kind = plaatsen_[p / 2];
    const bool moeder = p % 2 == 1;
    BladPlaats& plaats = plaatsen_[p];
    plaats.KW_Nr = moeder ? kind.KW_Nr.Moeder() : kind.KW_Nr.Vader();
    if (kind.bezet) plaats.KW_Index = index_ouder(tabel, kind.KW_Index, moeder);
    plaats.bezet = plaats.KW_Index > 0;
    plaats.Kwartier_A = plaats.bezet && p >= std::size_t{kBladLaatste} &&
                        (index_ouder(tabel, plaats.KW_Index, false) > 0 ||
                         index_ouder(tabel, plaats.KW_Index, true) > 0);
  }
}

}  // namespace lb77
