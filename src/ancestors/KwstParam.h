// What the parameter dialogs of the ancestor reports share.
#pragma once

#include <string_view>

#include "ancestors/KwstOpties.h"
#include "reporting/KetenFormulier.h"
#include "reporting/OptieTabel.h"
#include "reporting/PersoonKop.h"
#include "reporting/TitelVelden.h"

namespace lb77 {

// Shows the proband, and loads and keeps the choices. A derived form declares its fields, the texts
// around the report and its buttons, and hands them to Koppel.
class KwstParam : public KetenFormulier {
 public:
  PersoonKop Proband;

 protected:
  KwstParam(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd, KwstOpties& opties);

  // Parts of the derived form, which outlive this call. `terug` stops the chain.
  void Koppel(const OptieTabel& keuzen, TitelVelden& titels, Knop& terug);
  void BijLaden() override;
  // The choices and the texts into the options, and into the settings when the user wants them kept.
  void Bewaar();
  [[nodiscard]] KwstOpties& Opties() { return opties_; }

 private:
  KwstOpties& opties_;
  const OptieTabel* keuzen_ = nullptr;
  TitelVelden* titels_ = nullptr;
};

}  // namespace lb77
