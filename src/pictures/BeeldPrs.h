// The pictures, each from the question for the person to the picture.
#pragma once

#include <cstdint>

#include "pictures/BeeldForm.h"
#include "reporting/BerekenForm.h"
#include "reporting/PersoonPrompt.h"
#include "reports/Statistieken.h"

namespace lb77 {

// What tells one picture of ancestors from another.
struct KwartierPrsSoort {
  PersoonPromptSoort prompt;
  const BeeldSoort& beeld;
  int vorm;  // at first
  Tekening (*teken)(const BeeldPersonen&, const BeeldKeuzen&, const std::string& titel);
};

extern const KwartierPrsSoort kWaaierPrs;
extern const KwartierPrsSoort kKwartierPrs;

// Asks for the proband. Who occurs again has his ancestors again, as in the other charts.
class KwartierBeeldPrs final : public PersoonPrompt {
 public:
  KwartierBeeldPrs(const KwartierPrsSoort& soort, Hoofdmodule& hoofd);

 protected:
  void Keten(std::int16_t persoonNr) override;

 private:
  const KwartierPrsSoort& soort_;
};

// Asks for the stamouder, and the options of the character chart.
class StamBeeldPrs final : public PersoonPrompt {
 public:
  explicit StamBeeldPrs(Hoofdmodule& hoofd);

 protected:
  void Keten(std::int16_t persoonNr) override;
};

// Asks whose descendants are counted.
class TijdBeeldPrs final : public PersoonPrompt {
 public:
  explicit TijdBeeldPrs(Hoofdmodule& hoofd);

 protected:
  void Keten(std::int16_t persoonNr) override;
};

// Counts them.
class TijdBereken final : public BerekenForm {
 public:
  TijdBereken(Hoofdmodule& hoofd, std::int16_t stamouder, Tijdbalk& tijdbalk);
};

// The picture of a count.
[[nodiscard]] Tekening TekenTijdbalk(const Tijdbalk& tijdbalk, const BeeldKeuzen& keuzen,
                                     const std::string& titel);

}  // namespace lb77
