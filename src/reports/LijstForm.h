// The dialog of a report that is a list: what it asks, its file, and the viewer behind it.
#pragma once

#include <string_view>

#include "forms/Keuzen.h"
#include "forms/Weergave.h"
#include "reporting/RecordBron.h"
#include "reporting/WerkFormulier.h"
#include "reports/LijstSoorten.h"

namespace lb77 {

// OK writes the list and shows it; the dialog stays, for the next one. A derived form declares its
// fields and its buttons, and hands them over. No tracker of a current record moves.
class LijstForm : public WerkFormulier {
 protected:
  // `soort` must outlive the form.
  LijstForm(const LijstSoort& soort, Hoofdmodule& hoofd);

  // The focus begins at `eerste`, and comes back to it when nothing could be made of what was given;
  // `teller` shows how far the work is, and nothing before it.
  void Koppel(Bediening& eerste, Knop& ok, Knop& terug, Teller* teller = nullptr);
  void Werk() final;

  // Is there enough to begin with? Otherwise the message of the soort follows.
  [[nodiscard]] virtual bool IsGenoeg() = 0;
  // What else must hold; a False has been told.
  [[nodiscard]] virtual bool BereidVoor(RecordBron&, const Verloop&) { return true; }
  [[nodiscard]] virtual Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                        const Verloop& verloop) = 0;

 private:
  const LijstSoort& soort_;
  Bediening* eerste_ = nullptr;
  Teller* teller_ = nullptr;
};

}  // namespace lb77
