// The descendant reports, each from the question for the stamouder to the viewer.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string_view>

#include "descendants/GenOpties.h"
#include "descendants/GenRij.h"
#include "descendants/GenTabel.h"
#include "descendants/GenUitsluit.h"
#include "reporting/HTMLParam.h"
#include "reporting/PersoonPrompt.h"

namespace lb77 {

// What one run owns, and its forms hand along.
struct GenRun {
  GenOpties opties;
  GenTabel tabel;
  GenRij rijen;  // of a chart
};

// Makes a form of the chain; the run and the path of the report outlive it.
using GenStap = std::unique_ptr<Formulier> (*)(Hoofdmodule&, GenRun&, const std::filesystem::path&);

// What tells one descendant report from another: the name of its prompt, and the forms of its chain.
struct GenPrsSoort {
  std::string_view naam;
  GenStap opties;
  GenUitsluitSoort uitsluit;    // asked when the options want branches left out
  HTMLParamSoort links;         // asked when the options want HTML
  std::array<GenStap, 2> werk;  // behind the computation; null ends them
  std::string_view bestand;     // in the directory of temporary files
  std::string_view verslag;     // title of the viewer
};

extern const GenPrsSoort kGenTxtPrs;
extern const GenPrsSoort kGenIdxPrs;
extern const GenPrsSoort kGenSchPrs;

// Asks for the stamouder and runs the chain.
class GenPrs final : public PersoonPrompt {
 public:
  GenPrs(const GenPrsSoort& soort, Hoofdmodule& hoofd);

 protected:
  void Keten(std::int16_t persoonNr) override;

 private:
  const GenPrsSoort& soort_;
};

}  // namespace lb77
