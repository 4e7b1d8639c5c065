// The form that computes the table of a report and shows how far it is.
#pragma once

#include <functional>
#include <string_view>

#include "reporting/TellerRegel.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// What tells one computation from another.
struct BerekenSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view opbouw;
  TellerSoort aantal;
  std::string_view maximum;  // the label that a full table makes visible
};

// Runs `reken` with a Verloop of its own. The chain is stopped behind it when no report can follow.
class BerekenForm : public WerkFormulier {
 public:
  using Reken = std::function<Uitslag(const Verloop&)>;

  // `bijVol` is said of a full table, in a box; an empty one is not.
  BerekenForm(const BerekenSoort& soort, Hoofdmodule& hoofd, Reken reken, std::string_view bijVol);

  Label OpbouwLabel;
  TellerRegel Persoon;
  TellerRegel Aantal;
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Label MaximumLabel;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void Werk() override;

 private:
  Reken reken_;
  std::string bijVol_;
};

}  // namespace lb77
