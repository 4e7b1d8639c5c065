// The chain of forms of the family sheets.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Opties() {
  return Kolom({
      Groep("Gezinshoofd", {Velden({
                               Rij({"NrHoofd", "Periode"}),
                               Rij({"VoorNmHoofd", "AchterNmHoofd"}),
                           })}),
      Groep("Relatie", {Tabel({
                           Veld("KiesPartner(*)"),
                           Veld("RelNrPartner(*)", "Relatie", 6),
                           Veld("NrPartner(*)", "Partner", 6),
                           Veld("VoorNaamPartner(*)", "Voornamen", 25),
                           Veld("AchterNaamPartner(*)", "Achternaam", 22),
                           Veld("PeriodePartner(*)", "Periode", 12),
                       })}),
      Groep("Uitvoer", {Velden({"SoortBladBox", Rij({"OokNrsBox", "OokOpmBox"})})}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Gezinsblad() {
  return {
      {"GezinSchPrs", PersoonPrompt()},
      {"GezinSchParam", Opties()},
      {"GezinMaakTemp",
       Kolom({"SchrijfLabel", "GeduldLabel", Knoppen({"OKButton", "BackButton"})})},
  };
}

}  // namespace lb77::indeling
