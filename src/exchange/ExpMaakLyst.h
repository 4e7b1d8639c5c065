// The form that writes the list of the selected records, and shows how far it is.
#pragma once

#include <filesystem>

#include "exchange/SelectieLijst.h"
#include "forms/Keuzen.h"
#include "reporting/TellerRegel.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// Leaving it by Terug stops a chain as any step of one: who shows it keeps the trackers.
class ExpMaakLyst final : public WerkFormulier {
 public:
  ExpMaakLyst(Hoofdmodule& hoofd, const ExpSelectie& selectie);

  Label SchrijfLabel{*this, "SchrijfLabel", "Bezig met maken van de lijst"};
  TellerRegel Personen;
  TellerRegel PersoonsNr{*this, kPersoonsNr};
  TellerRegel Relaties;
  TellerRegel RelatieNr;
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The list, when all of it was written.
  [[nodiscard]] bool Gelukt() const { return gelukt_; }
  [[nodiscard]] std::filesystem::path Pad() const;

 protected:
  void Werk() override;

 private:
  [[nodiscard]] Verloop MaakVerloop(TellerRegel& aantal, TellerRegel& nummer);

  const ExpSelectie& selectie_;
  bool gelukt_ = false;
};

}  // namespace lb77
