// The form that writes the ancestor report to its file.
#pragma once

#include <filesystem>

#include "ancestors/KwstTabel.h"
#include "reporting/SchrijfForm.h"

namespace lb77 {

// Writes `pad`. HuidigPersoonNr is -1 afterwards when there is no whole report to show.
class KwstMaakTemp final : public SchrijfForm {
 public:
  KwstMaakTemp(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel,
               const std::filesystem::path& pad);
};

}  // namespace lb77
