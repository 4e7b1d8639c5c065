// Windows over a set of one family.
#pragma once

#include "Formulierproef.h"
#include "app/Klok.h"
#include "program/Programma.h"
#include "steun/BouwFamilie.h"
#include "steun/TijdelijkeMap.h"
#include "store/SetPaden.h"

namespace lb77 {

// Jan (2) and Anna (3) are relation 2; of their child Kees (4) the sex is not known.
class Gezinsproef : public Formulierproef {
 protected:
  void SetUp() override {
    Antwoord({"OK"});
    ASSERT_TRUE(programma_.Start());
    boxen.clear();
    const SetPaden paden = SetPaden::Van(map_ / "DATA", "PROEF");
    std::filesystem::create_directories(paden.tekst);
    ASSERT_FALSE(Hoofd().bestanden.OpenSet(paden));
    ASSERT_TRUE(Hoofd().Persoon.NieuwAdm() && Hoofd().Relatie.NieuwAdm() &&
                Hoofd().Opmerking.NieuwAdm() && Hoofd().Plaats.NieuwAdm());
    BouwFamilie bouw(Hoofd().Persoon, Hoofd().Relatie, Hoofd().Plaats, Hoofd().Opmerking);
    const auto jan = bouw.Man("Jan", "Vos");
    const auto anna = bouw.Vrouw("Anna", "Bos");
    static_cast<void>(bouw.Relatie(jan, anna, {bouw.Persoon('O', "Kees", "Vos")}));
  }
  Hoofdmodule& Hoofd() { return programma_.Hoofd(); }

 private:
  TijdelijkeMap map_;
  VasteKlok klok_{{2026, 1, 2, 3, 4, 5}};
  Programma programma_{gesprek, klok_, map_.Pad()};
};

}  // namespace lb77
