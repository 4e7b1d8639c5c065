// The ancestor reports, each from the question for the proband to the viewer.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "ancestors/KwstOpties.h"
#include "ancestors/KwstTabel.h"
#include "reporting/HTMLParam.h"
#include "reporting/PersoonPrompt.h"

namespace lb77 {

// What tells one ancestor report from another: the name of its prompt, and the forms of its chain.
struct KwstPrsSoort {
  std::string_view naam;
  // Asks for the options; null when there are none to ask.
  std::unique_ptr<Formulier> (*opties)(Hoofdmodule&, KwstOpties&);
  const HTMLParamSoort* links;  // asked when the options want HTML
  // Works with the table: writes the file of that path, or shows the table itself.
  std::unique_ptr<Formulier> (*werk)(Hoofdmodule&, const KwstOpties&, const KwstTabel&,
                                     const std::filesystem::path&);
  std::string_view bestand;  // in the directory of temporary files
  std::string_view verslag;  // title of the viewer; without one nothing is viewed
  bool volgHerh = false;     // repeats are followed where no options are asked
};

extern const KwstPrsSoort kKwstTxtPrs;
extern const KwstPrsSoort kKwstIdxPrs;
extern const KwstPrsSoort kKwstSchPrs;
extern const KwstPrsSoort kKwstBldPrs;

// Asks for the proband and runs the chain. A run owns its options and its table.
class KwstPrs final : public PersoonPrompt {
 public:
  KwstPrs(const KwstPrsSoort& soort, Hoofdmodule& hoofd);

 protected:
  void Keten(std::int16_t persoonNr) override;

 private:
  const KwstPrsSoort& soort_;
};

}  // namespace lb77
