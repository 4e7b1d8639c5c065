// The dialog that lists the actions of the active set, tells what each changed, and undoes them.
#pragma once

#include <optional>
#include <vector>

#include "app/Hoofdmodule.h"
#include "forms/Formulier.h"
#include "store/Journaal.h"

namespace lb77 {

// The last action stands first.
class Geschiedenis final : public Formulier {
 public:
  explicit Geschiedenis(Hoofdmodule& hoofd);

  Keuzelijst HandelingLijst{*this, "HandelingLijst", "Bewerkingen:"};
  Keuzelijst InhoudLijst{*this, "InhoudLijst", "Gewijzigd:"};
  Knop OngedaanButton{*this, "OngedaanButton", "&Ongedaan maken t/m deze"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void Vul();
  void HandelingLijstWijziging();
  void HandelingLijstDubbelklik();
  void OngedaanButtonKlik();
  [[nodiscard]] std::optional<HandelingRegel> Gekozen() const;

  Hoofdmodule& hoofd_;
  std::vector<HandelingRegel> regels_;  // as the list
};

}  // namespace lb77
