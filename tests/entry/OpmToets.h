// Remarks of a small family, and the dialogs on them played by scripts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/OpmVraag.h"
#include "entry/ToonOpm.h"
#include "entry/WijzigOpm.h"
#include "steun/FamilieToets.h"
#include "store/Rubrieken.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"

namespace lb77 {

// Person 2 is Jan de Vries, person 3 Anna Bos; relation 2 is theirs.
class OpmToets : public FamilieToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "de Vries");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Relatie(2, 3);
  }

  [[nodiscard]] std::filesystem::path OpmBestand() const {
    return SetPaden::Van(Map(), "PROEF").opm;
  }
  // Replaces two bytes of a record of a remark.
  void ZetGetal(int record, std::size_t plaats, std::int16_t waarde) {
    std::string bytes = LeesBytes(OpmBestand());
    ZetGetalOp(bytes, (static_cast<std::size_t>(record) - 1) * 96 + plaats, waarde);
    SchrijfBytes(OpmBestand(), bytes);
  }

  // A remark on the first names of person 2.
  static OpmVraag Voornaam() { return OpmVraagOpKaart(2, persoonrubriek::kVoornaam, "Jan"); }

  void Toont(std::string_view draaiboek, const OpmVraag& vraag, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek, [&](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<ToonOpm>(hoofd, vraag); }, verslag,
        plek);
  }
  // What stands between the opening and the closing of WijzigOpm.
  void Wijzigt(std::string_view draaiboek, const OpmVraag& vraag, std::string_view verslag = "",
               std::int16_t regel = 1, const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek, [&](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<WijzigOpm>(hoofd, vraag, regel); },
        "+ WijzigOpm \"Wijzig Opmerking\"\n" + Regels(verslag) + "- WijzigOpm\n", plek);
  }

  // "2: rubriek 2 van 2 prog 1 > 3 & 0 'tekst'" for each record of the file.
  std::string Records() {
    std::string uit = "\n";
    Stil([&](Hoofdmodule& hoofd) {
      OpmLB77& opm = hoofd.Opmerking;
      const std::int16_t aantal = opm.AantalRecords();
      for (std::int16_t nr = 2; nr <= aantal; ++nr) {
        EXPECT_TRUE(opm.Lees(nr));
        uit += GetalTekst(nr) + ": rubriek " + GetalTekst(opm.Rubriek()) + " van " +
               GetalTekst(opm.BijRecord()) + " prog " + GetalTekst(opm.BijProg()) + " > " +
               GetalTekst(opm.VolgRegel()) + " & " + GetalTekst(opm.BijZelfde()) + " '" +
               opm.Tekstregel() + "'\n";
      }
    });
    return uit;
  }
  // First record and code of person 2.
  std::string Eigenaar() {
    std::string uit;
    Stil([&](Hoofdmodule& hoofd) {
      EXPECT_TRUE(hoofd.Persoon.Lees(2));
      uit = GetalTekst(hoofd.Persoon.OpmRecord()) + " " + GetalTekst(hoofd.Persoon.OpmCode());
    });
    return uit;
  }
};

}  // namespace lb77
