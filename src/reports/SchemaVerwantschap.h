// Kinship: asks two persons, searches the shortest chain between them, and shows it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "entry/PersoonVak.h"
#include "forms/Regels.h"
#include "reporting/WerkFormulier.h"
#include "reports/Verwanten.h"

namespace lb77 {

// One of the two, with the button that searches him.
struct VerwantPersoon {
  VerwantPersoon(InvoerFormulier& formulier, int nummer);

  PersoonVak Persoon;
  Knop ZoekButton;
};

// It stays behind the report, for another pair. The trackers stay where they were.
class SchemaVerwantschap final : public WerkFormulier {
 public:
  explicit SchemaVerwantschap(Hoofdmodule& hoofd);

  Label VraagLabel{*this, "VraagLabel", "Geef de Persoonsnummers van 2 verschillende personen"};
  Regels<VerwantPersoon, 2> Personen{*this, 0};
  Teller PersonenGedaan{*this, "PersonenGedaan", "Aantal Personen gecontroleerd"};
  Knop OKButton{*this, "OKButton", "&Start"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void Werk() override;

 private:
  void ZoekButtonKlik(VerwantPersoon& rij);
  void NaGevonden();
  [[nodiscard]] bool TweePersonen();
  [[nodiscard]] bool MaakUitvoer(const std::vector<std::string>& regels);
  [[nodiscard]] Uitslag ZoekEnSchrijf(TekstSchrijver& uit, std::vector<std::string>& regels);
};

}  // namespace lb77
