// The form that writes the family sheet to its file.
#pragma once

#include <filesystem>

#include "descendants/GezinOpties.h"
#include "forms/Keuzen.h"
#include "forms/Weergave.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// Writes `pad`, and asks for no stop meanwhile. HuidigPersoonNr is -1 afterwards when there is no
// whole sheet to show.
class GezinMaakTemp final : public WerkFormulier {
 public:
  GezinMaakTemp(Hoofdmodule& hoofd, const GezinOpties& opties, std::filesystem::path pad);

  Label SchrijfLabel{*this, "SchrijfLabel", "Schrijven van het gezinsblad."};
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void Werk() override;

 private:
  // The sheet of the layout asked for.
  [[nodiscard]] Uitslag Schrijf(TekstSchrijver& uit);
  [[nodiscard]] Uitslag schrijf_compact_blad(TekstSchrijver& uit);
  [[nodiscard]] Uitslag schrijf_uitgebreid_blad(TekstSchrijver& uit);
  [[nodiscard]] Uitslag schrijf_f6_blad(TekstSchrijver& uit);

  const GezinOpties& opties_;
  std::filesystem::path pad_;
};

}  // namespace lb77
