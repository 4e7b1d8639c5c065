// The parameter dialog of a report on a person, but for the fields of its own.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "reporting/KetenFormulier.h"
#include "reporting/OptieTabel.h"
#include "reporting/PersoonKop.h"
#include "reporting/TitelVelden.h"

namespace lb77 {

// What tells one dialog from another.
struct VerslagParamSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view hulp;       // chapter of the manual
  std::string_view wie;        // what the person is called in the names of his controls: "Proband"
  std::string_view opschrift;  // of the report, before his names: "Kwartierstaat van "
};

// Shows the person, and loads and keeps the choices. A derived form declares its fields, the texts
// around the report and its buttons, and hands them over.
class VerslagParam : public KetenFormulier {
 public:
  PersoonKop Persoon;

 protected:
  // `nr` and `teksten` are those of the run.
  VerslagParam(const VerslagParamSoort& soort, Hoofdmodule& hoofd, const std::int16_t& nr,
               PaginaTeksten& teksten);

  // Parts of the derived form, which outlive these calls. `terug` stops the chain.
  void Koppel(const OptieTabel& keuzen, TitelVelden& titels, Knop& terug);
  void Koppel(const OptieTabel& keuzen) { keuzen_.push_back(&keuzen); }
  void BijLaden() override;
  // The choices and the texts into the options, and into the settings when the user wants them kept.
  void Bewaar();

 private:
  std::string_view opschrift_;
  const std::int16_t& nr_;
  PaginaTeksten& teksten_;
  std::vector<const OptieTabel*> keuzen_;
  TitelVelden* titels_ = nullptr;
};

}  // namespace lb77
