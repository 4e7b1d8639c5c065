// The form that writes a report to its file and shows how far it is.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "reporting/TellerRegel.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// What tells one writing from another.
struct SchrijfSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view schrijven;
  TellerSoort aantal;
  bool metPersoon = false;  // shows the person being written too
};

// A report on a person: its file, whether its lines are never wrapped (else they are as wide as the
// settings say), and the person on whom the session stands meanwhile.
struct PersoonVerslag {
  std::filesystem::path pad;
  bool doorlopend = false;
  std::int16_t persoonNr = 0;
};

// Runs `schrijf` on the open file. The chain is stopped behind it when there is no whole report.
class SchrijfForm : public WerkFormulier {
 public:
  using Schrijf = std::function<Uitslag(TekstSchrijver&, const Verloop&)>;

  SchrijfForm(const SchrijfSoort& soort, Hoofdmodule& hoofd, PersoonVerslag verslag,
              Schrijf schrijf);

  Label SchrijfLabel;
  TellerRegel Aantal;
  std::optional<TellerRegel> Persoon;
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void Werk() override;

 private:
  PersoonVerslag verslag_;
  Schrijf schrijf_;
};

}  // namespace lb77
