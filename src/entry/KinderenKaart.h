// What the two cards with the children of a relation have in common.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/KaartVelden.h"
#include "forms/Kaart.h"
#include "forms/Regels.h"

namespace lb77 {

// One child.
struct KindRij {
  KindRij(Formulier& formulier, int nummer);

  Label KindLabel;
  Verwijzing NaarKind;
  Teller VoorNmKind;
  Teller AchterNmKind;
  Teller KindPeriode;

  // 0, and a link that is no person's, leaves the line empty.
  void Toon(PersoonLB77& persoon, std::int16_t nr);
};

// Shows fifteen of them, from number `eerste` on. HuidigRelatieNr is the relation; one that can't be
// shown is told, and the card does not open.
class KinderenKaart : public KaartOp<InvoerFormulier> {
 public:
  static constexpr int kRijen = 15;

  Teller RecordNr{*this, "RecordNr", "Relatienummer:"};
  PersoonToon Man{*this, "NaarMan", "Man", "Man:", "Man"};
  PersoonToon Vrouw{*this, "NaarVrouw", "Vrouw", "Vrouw:", "Vrouw"};
  Regels<KindRij, kRijen> Kinderen;
  Knop ErbijButton{*this, "ErbijButton", "&Erbij"};
  Knop ErafButton{*this, "ErafButton", "Er&af"};
  Knop NieuwKindButton{*this, "NieuwKindButton", "Nieuw &Kind..."};

 protected:
  KinderenKaart(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd,
                std::int16_t relatie, int eerste);
  // For the card's constructor.
  void HangOp(Knop& terug);

  [[nodiscard]] std::int16_t RelatieNr() const { return relatie_; }
  // Behind an action of a button; the user stays on it.
  void LaadOpnieuw(Bediening& bij);
  void BijLaden() override;
  // Goes from the relation in the buffer to the record that holds the children of this card; False
  // after a message.
  [[nodiscard]] virtual bool NaarLijst() = 0;
  // What adds a child here, and what takes one away.
  virtual void VoegToe() = 0;
  virtual void HaalWeg() = 0;

 private:
  [[nodiscard]] bool MagTonen();
  void ToonKinderen();
  void ManNrKlik();
  void VrouwNrKlik();
  void NaarKindKlik(const KindRij& rij);
  void ErbijButtonKlik();
  void ErafButtonKlik();
  void NieuwKindButtonKlik();
  void TerugKlik();
  void NaarPersoon(int nr, std::string_view geen);

  std::int16_t relatie_;
  Knop* terug_ = nullptr;
};

}  // namespace lb77
