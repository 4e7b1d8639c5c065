// The dialog for branches to leave out; one class for all descendant reports.
#pragma once

#include <string_view>

#include "descendants/GenOpties.h"
#include "entry/PersoonVak.h"
#include "forms/Regels.h"
#include "reporting/KetenFormulier.h"

namespace lb77 {

// What tells one of these dialogs from another.
struct GenUitsluitSoort {
  std::string_view naam;
};

inline constexpr GenUitsluitSoort kGenTxtUitsluit{"GenTxtUitsluit"};
inline constexpr GenUitsluitSoort kGenIdxUitsluit{"GenIdxUitsluit"};
inline constexpr GenUitsluitSoort kGenSchUitsluit{"GenSchUitsluit"};

// Asks for up to fifteen persons who are told but not followed. The rows begin empty. OK puts the
// numbers into `opties`; BackButton stops the chain.
class GenUitsluit final : public KetenFormulier {
 public:
  GenUitsluit(const GenUitsluitSoort& soort, Hoofdmodule& hoofd, GenOpties& opties);

  struct Rij {
    Rij(InvoerFormulier& formulier, int nummer);

    PersoonVak VolgNiet;
    Knop ZoekButton;
  };
  Label VraagLabel{*this, "VraagLabel", "Geef de personen van wie de kinderen niet gevolgd worden"};
  Regels<Rij, kMaxVolgNiet> Rijen{*this, 1};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  void ZoekButtonKlik(Rij& rij);
  void OKButtonKlik();

  GenOpties& opties_;
};

}  // namespace lb77
