// The findings of a check, to be gone through one by one.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Hoofdmodule.h"
#include "checks/BevindingLijst.h"
#include "checks/Controleur.h"
#include "forms/Formulier.h"

namespace lb77 {

// Opens the card of the record on which a finding is mended, or the dialog that corrects the record of
// the finding itself. When anything was written there, the records of the list are tested again, and
// what was mended is marked.
class Bevindingen final : public Formulier {
 public:
  // `regels` and `lijst` outlive the form.
  Bevindingen(Hoofdmodule& hoofd, Controleur& regels, BevindingLijst& lijst);

  Keuzevak SoortBox{*this, "SoortBox", "Soort:"};
  Keuzelijst BevindingenLijst{*this, "BevindingenLijst", "Bevindingen:"};
  Teller Open{*this, "Open", "Nog te herstellen:"};
  Label MeerLabel{*this, "MeerLabel"};
  Knop KaartButton{*this, "KaartButton", "&Kaart"};
  Knop CorrigeerButton{*this, "CorrigeerButton", "&Corrigeren"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void VulSoorten();
  void VulLijst();
  void SoortBoxWijziging();
  void BevindingenLijstKlik();
  void BevindingenLijstDubbelklik();
  void KaartButtonKlik();
  void CorrigeerButtonKlik();
  // Lets the user mend the chosen finding, and tests again when that wrote anything.
  void Herstel(const std::function<void(const Bevinding&)>& toon);
  void ToonCorrectie(const RecordPlek& plek);
  void ToonKaart(const RecordPlek& plek);
  // Can it be read? Told when it can't.
  template <class Record>
  [[nodiscard]] bool Bestaat(Record& record, const RecordPlek& plek, std::string_view komtNietVoor);
  // The kind to be shown; none for all.
  [[nodiscard]] std::optional<BevindingSoort> Gekozen() const;

  Hoofdmodule& hoofd_;
  Controleur& regels_;
  BevindingLijst& lijst_;
  std::vector<BevindingSoort> soorten_;  // as the pick box behind its first item
  std::vector<Bevinding> getoond_;       // as the list
};

}  // namespace lb77
