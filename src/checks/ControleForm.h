// The dialog of a check: the optional tests, the walk over the file, the report and its viewer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <string_view>
#include <vector>

#include "checks/BevindingLijst.h"
#include "checks/ControleSoorten.h"
#include "checks/Controleur.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// Walks the whole file, without a way to stop it, shows what is wrong, and closes. Changes no record
// and no tracker of a current record.
class ControleForm final : public WerkFormulier {
 public:
  ControleForm(const ControleSoort& soort, Hoofdmodule& hoofd);

  std::deque<Vinkje> Opties;
  Teller Gedaan;
  Knop OKButton{*this, "OKButton", "Start Controle"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // How many lines the last check wrote, and what the first of them tell, in their order.
  [[nodiscard]] std::size_t Aantal() const {
    return gevonden_.size() + buiten_.opLaatste + buiten_.erna;
  }
  [[nodiscard]] const std::vector<Bevinding>& Gevonden() const { return gevonden_; }

 protected:
  void BijLaden() override;
  void Werk() override;

 private:
  [[nodiscard]] ControleKeuzen Keuzen() const;
  void SchrijfKop(TekstSchrijver& uit, std::string_view pad) const;
  void Loop(Controleur& regels, std::int16_t laatste, TekstSchrijver& uit);
  void Onthoud(Bevinding bevinding);
  void ToonVerslag(const std::filesystem::path& pad, Controleur& regels);

  const ControleSoort& soort_;
  std::vector<Bevinding> gevonden_;
  BuitenLijst buiten_;
};

}  // namespace lb77
