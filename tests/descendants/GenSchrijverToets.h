// Computes and writes a descendant report without a form.
#pragma once

#include <string>
#include <string_view>

#include "descendants/GenSchrijver.h"
#include "descendants/GenToets.h"
#include "output/TekstSchrijver.h"
#include "store/Codes.h"

namespace lb77 {

class GenSchrijverToets : public GenToets {
 protected:
  GenSchrijverToets() {
    set_.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
    set_.schrijfwijze.DatumScheider = '-';
  }

  // Computes and writes; the file is in uit_ afterwards.
  Uitslag Schrijf(std::int16_t stamouder) {
    const Uitslag uitslag = Bouw(stamouder);
    EXPECT_TRUE(uitslag == Einde::Klaar || uitslag == Einde::Vol);
    return SchrijfTabel();
  }
  Uitslag SchrijfTabel() {
    ZinOpties zin;
    zin.ookOpm = opties_.GenOokOpm;
    zin.ookNrs = opties_.GenOokNrs;
    zin.inHTML = opties_.GenInHTML;
    zin.opmMasker = uitvoer::kGenealogie;
    TekstSchrijver schrijver;
    EXPECT_TRUE(schrijver.Open(set_.map / "uit.txt"));
    schrijver.ZetRechterMarge(opties_.GenInHTML ? TekstSchrijver::kGeenRechterMarge : 78);
    const Gegevens bronnen{set_.Persoon,   set_.Relatie, set_.Plaats,
                           set_.Opmerking, set_.volgers, set_.schrijfwijze};
    const Uitslag uitslag =
        GenSchrijver(tabel_, opties_, bronnen, zin, schrijver, verloop_).Schrijf();
    EXPECT_TRUE(schrijver.Sluit());
    uit_ = LeesBytes(set_.map / "uit.txt");
    return uitslag;
  }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }

  std::string uit_;
};

}  // namespace lb77
