// The places, ten a page: to rename one, to change its province, and to add one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/InvoerVak.h"
#include "forms/Regels.h"

namespace lb77 {

// Starts at PlaatsBufNr. A page is stored before each move and by OK, and only what the user changed
// on it; a row behind the last place makes a new one.
class ToonPlaatsen final : public InvoerFormulier {
 public:
  static constexpr int kRijen = 10;

  explicit ToonPlaatsen(Hoofdmodule& hoofd);

  // One place, or room for a new one.
  struct PlaatsRegel {
    PlaatsRegel(InvoerFormulier& formulier, int nummer);

    Teller PlaatsnrTekst;
    InvoerVak PlaatsnaamTekst;
    InvoerVak ProvcodeTekst;

    // Shows a place; `plaatsNr` is 0 when there is none of that code yet.
    void Toon(std::int32_t code, std::int16_t plaatsNr, std::string_view naam,
              std::string_view prov);
    // Does it hold something to store? Without a name there is no new place.
    [[nodiscard]] bool IsGewijzigd() const;

    std::int16_t nr = 0;     // of the place; 0 as long as there is none
    std::string plaatsnaam;  // both as stored
    std::string provcode;
  };

  Label KopLabel{*this, "KopLabel", "Plaatscodes, Plaatsnamen en Provinciecodes:"};
  Regels<PlaatsRegel, kRijen> Plaatsen{*this, 0};
  Knop VorigeButton{*this, "VorigeButton", "Vo&rige"};
  Knop VolgendeButton{*this, "VolgendeButton", "&Volgende"};
  Knop NaarNaamButton{*this, "NaarNaamButton", "Naar &naam"};
  Knop NaarNrButton{*this, "NaarNrButton", "Naar &code"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void BijActiveren() override;

 private:
  void ToonPagina(std::int32_t laatste);
  // False when the user is to mend a row first; the focus is there then.
  [[nodiscard]] bool SlaPaginaOp();
  // The same for one row. A place that could not be written is told, and lost for this time.
  [[nodiscard]] bool SlaRegelOp(PlaatsRegel& regel);
  [[nodiscard]] bool IsLeesbaar(std::int16_t nr);
  [[nodiscard]] bool MaakPlaats(PlaatsRegel& regel, std::int32_t nr);
  void SchrijfPlaats(PlaatsRegel& regel);
  void WisGebruikteCodes(std::int16_t nr);
  void BeginBij(std::int32_t nr);
  void VorigeButtonKlik();
  void VolgendeButtonKlik();
  void NaarNaamButtonKlik();
  void NaarNrButtonKlik();
  void OKButtonKlik();

  std::int32_t eerste_ = 0;  // the first code of the page
};

}  // namespace lb77
