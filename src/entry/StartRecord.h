// Where showing persons and relations begins: the number of one, or a new one.
#pragma once

#include <cstdint>

#include "entry/InvoerVak.h"
#include "forms/Kaart.h"
#include "forms/Weergave.h"

namespace lb77 {

// What the menu starts: the question, or the card of a new person when the persons can't be counted.
void ToonPersonenEnRelaties(Hoofdmodule& hoofd);

// A number is checked when its field is left; "N" is a new record. When the cards have been left it
// waits for the next number.
class StartRecord final : public InvoerFormulier {
 public:
  explicit StartRecord(Hoofdmodule& hoofd);

  Label VraagLabel{*this, "VraagLabel", "Geef een Persoonsnummer of een Relatienummer"};
  InvoerVak PersNr;
  Teller PersRange{*this, "PersRange"};
  InvoerVak RelNr;
  Teller RelRange{*this, "RelRange"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop ZoekButton{*this, "ZoekButton", "&Zoek Persoon"};
  Knop NwPersButton{*this, "NwPersButton", "Nieuwe &Persoon"};
  Knop NwRelButton{*this, "NwRelButton", "Nieuwe &Relatie"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  [[nodiscard]] bool PersNrVerlaten();
  [[nodiscard]] bool RelNrVerlaten();
  void OKButtonKlik();
  void ZoekButtonKlik();
  void NwPersButtonKlik();
  void NwRelButtonKlik();
  // Shows the cards from that one on, until they have all been left.
  void Loop(KaartVraag eerste);
};

}  // namespace lb77
