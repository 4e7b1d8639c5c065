// The places.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Plaatsen() {
  return {
      {"ToonPlaatsen",
       Kolom({
           "KopLabel",
           Tabel({
               Veld("PlaatsnrTekst(*)", "Code", 6),
               Veld("PlaatsnaamTekst(*)", "Plaatsnaam", 26),
               Veld("ProvcodeTekst(*)", "Provincie", 4),
           }),
           Knoppen({"VorigeButton", "VolgendeButton", "NaarNaamButton", "NaarNrButton"},
                   {"OKButton", "BackButton"}),
       })},
      {"VraagPlaatsnm", Kolom({
                            Velden({"PlaatsnaamTekst", "PlaatsnrTekst", "ProvcodeTekst"}),
                            Knoppen({"OKButton", "BackButton"}),
                        })},
      {"VraagPlaatsnr", Kolom({
                            Velden({"RecordNr", "PlaatsNm"}),
                            Knoppen({"OKButton", "BackButton"}),
                        })},
  };
}

}  // namespace lb77::indeling
