// The user picks the row of a place that the contact service knows otherwise.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "contact/GciFilter.h"
#include "contact/GciPlaatsToets.h"
#include "contact/GciTabellen.h"
#include "forms/Formulier.h"
#include "forms/Regels.h"

namespace lb77 {

class Gesprek;

class ExpGCICorr final : public Formulier {
 public:
  static constexpr int kRijen = 10;

  // `tabellen` must outlive the form.
  ExpGCICorr(Gesprek& gesprek, const GciTabellen& tabellen, const GciPlaats& plaats);

  // The row of the table of places that was picked; 0 for none.
  [[nodiscard]] std::int16_t Gekozen() const { return gekozen_; }

  // One row of the table of places; its button shows its number.
  struct GciRegel {
    GciRegel(Formulier& formulier, int nummer);
    void Toon(const GciTabellen& tabellen, int rij, const std::string& gezocht);
    void Verberg();

    Verwijzing GCICodeKnop;
    Teller GCIPltsNm;
    Teller GCIProvNm;
    Teller GCILandNm;

   private:
    void ZetZichtbaar(bool zichtbaar);
  };

  Teller LB77Pltscode{*this, "LB77Pltscode", "Plaatscode:"};
  Teller LB77PltsNm{*this, "LB77PltsNm", "Plaatsnaam:"};
  Teller LB77ProvCode{*this, "LB77ProvCode", "Provinciecode:"};
  Tekstvak FilterPlaatsnaam{*this, "FilterPlaatsnaam", "Plaatsnaam:", GciPlaatsen::kNaam + 1};
  Tekstvak FilterProv{*this, "FilterProv", "Provincie:"};
  Teller FilterProvAfk{*this, "FilterProvAfk"};
  Tekstvak FilterLand{*this, "FilterLand", "Land:"};
  Teller FilterLandAfk{*this, "FilterLandAfk"};
  Knop FilterButton{*this, "FilterButton", "Filter Uit"};
  Label GeenPlaatsGevondenLabel{*this, "GeenPlaatsGevondenLabel",
                                "Geen geldige Plaats voor de Contactdienst gevonden."};
  Regels<GciRegel, kRijen> Plaatsen{*this, 1};
  Knop VorigeButton{*this, "VorigeButton", "Vori&ge"};
  Knop VolgendeButton{*this, "VolgendeButton", "Vo&lgende"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  [[nodiscard]] bool FilterPlaatsnaamVerlaten();
  [[nodiscard]] bool FilterProvVerlaten();
  [[nodiscard]] bool FilterLandVerlaten();
  // What a changed filter shows. False swallows the click that left the field.
  [[nodiscard]] bool FilterAnders();
  void FilterButtonKlik();
  void VorigeButtonKlik();
  void VolgendeButtonKlik();
  void GCICodeKnopKlik(int nummer);
  // Filters anew, from the first row of the table.
  void Filter(bool aan);
  void ToonVanaf(int rij);

  Gesprek& gesprek_;
  const GciTabellen& tabellen_;
  GciPlaats plaats_;
  GciFilter filter_;
  std::string provTekst_;  // the texts that were looked up last
  std::string landTekst_;
  std::vector<std::int16_t> getoond_;
  std::int16_t gekozen_ = 0;
};

}  // namespace lb77
