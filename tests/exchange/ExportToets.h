// The dialogs of exports by script, on a family of which every field is filled.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "app/Start.h"
#include "steun/FamilieToets.h"
#include "steun/KaartFamilie.h"
#include "store/Rubrieken.h"

namespace lb77 {

class ExportToets : public FamilieToets {
 protected:
  ExportToets() {
    SchrijfBytes(
        Map() / "LIJNBOOM.INI",
        "[Systeem]\r\nSet=PROEF\r\nData=" + Map().string() +
            "\r\n[Sets]\r\nSet1=PROEF,Proef\r\nSet2=ANDER,Ander\r\n"
            "[Genealogie]\r\nDatumForm=0\r\n[Namenfile]\r\nGez1=NHNederlands Hervormd\r\n");
  }
  // Persons 2 to 7, relations 2 to 6, places 2 and 3, and remarks.
  void MaakFamilie() {
    BouwKaartFamilie(Bouw());
    Bouw().WijzigPersoon(2, {{"OpmRecord", "0"}, {"OpmCode", "0"}});
    Bouw().WijzigRelatie(2, {{"OpmRecord", "0"}, {"OpmCode", "0"}, {"Religie", "NH"}});
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"Naar zijn", "grootvader"});
    Bouw().OpmerkingBijRelatie(2, relatierubriek::kWetHuwDatum, {"akte 12"});
  }

  // Shows a form of kind F, made with the session behind `args`, in a session on the set.
  template <class F, class... Args>
  void SpeelForm(std::string_view draaiboek, std::string_view verslag, const Plek& plek,
                 const Args&... args) {
    const Taak taak = [this, &args...](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.ActieveSetNaam = "PROEF";
      hoofd.schrijfwijze.DatumScheider = '-';
      hoofd.volgers.HuidigPersoonNr = 4;
      hoofd.gesprek.Toon<F>(args..., hoofd);
      huidig_ = hoofd.volgers.HuidigPersoonNr;
    };
    Verwacht(draaiboek, taak, verslag, plek);
  }

  [[nodiscard]] std::filesystem::path TekstMap() const { return Map() / "PROEF" / "TEKST"; }
  [[nodiscard]] std::string Tekst(std::string_view naam) const {
    return LeesBytes(TekstMap() / naam);
  }

  std::int16_t huidig_ = 0;
};

}  // namespace lb77
