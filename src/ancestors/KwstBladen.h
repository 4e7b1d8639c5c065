// The sheets of an ancestor table on the screen: one person with three generations of his ancestors.
#pragma once

#include <cstdint>

#include "ancestors/KwstBlad.h"
#include "ancestors/KwstOpties.h"
#include "forms/Regels.h"
#include "reporting/KetenFormulier.h"

namespace lb77 {

// One place. Index and number are for scripts; the button shows the number too.
struct KwartierRegel {
  KwartierRegel(Formulier& formulier, int nummer);

  Teller KW_Index;
  Teller KW_Nr;
  Knop Proband;
  Teller Kwartier;
  Knop InfoPersoon;
  Teller Periode;
  Label Kwartier_A;
};

// `Proband` makes the person of a place the root of the sheet, `NaarKind` goes back to the child of
// the root. HuidigPersoonNr is 0 afterwards.
class KwstBladen final : public KetenFormulier {
 public:
  KwstBladen(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel);

  Regels<KwartierRegel, kBladPlaatsen> Kwartieren{*this, 1};
  Knop NaarKind{*this, "NaarKind", "Naar &Kind"};
  Knop UitvoerButton{*this, "UitvoerButton", "Opslaan / Afdrukken"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // Who stands on a place; 0 for nobody.
  [[nodiscard]] std::int16_t Persoon(int p) const;

 protected:
  void BijLaden() override;
  void BijGesloten() override;

 private:
  void ToonBlad();
  void ToonPlaats(int p);
  void ProbandKlik(int p);
  void InfoPersoonKlik(int p);
  void NaarKindKlik();
  void UitvoerButtonKlik();

  KwstOpties opties_;
  const KwstTabel& tabel_;
  int wortel_ = 0;  // entry of place 1
  KwstBlad blad_;
};

}  // namespace lb77
