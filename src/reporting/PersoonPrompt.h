// The first form of every report on a person: it asks the number, by number or by name.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "entry/PersoonVak.h"
#include "reporting/KetenFormulier.h"

namespace lb77 {

// What tells one prompt from another.
struct PersoonPromptSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view vraag;
};

// A derived form runs the report's chain of forms in Keten(). The prompt closes behind it.
class PersoonPrompt : public KetenFormulier {
 public:
  Label VraagLabel;
  PersoonVak Persoon;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop ZoekButton{*this, "ZoekButton", "&Zoek Persoon"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  PersoonPrompt(const PersoonPromptSoort& soort, Hoofdmodule& hoofd);

  void BijLaden() override;
  // The forms behind the prompt. HuidigPersoonNr is `persoonNr` on entry.
  virtual void Keten(std::int16_t persoonNr) = 0;
  // The end of a chain that came to a report: shows it. HuidigPersoonNr is 0 then.
  void ToonVerslag(const std::filesystem::path& pad, std::string_view titel, bool inHTML);

 private:
  void OKButtonKlik();
  void ZoekButtonKlik();
};

}  // namespace lb77
