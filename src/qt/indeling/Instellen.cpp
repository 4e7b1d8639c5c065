// The settings dialogs and the box with the version.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Voorkeur() {
  return Kolom({
      Velden({
          "NaamCapsBox",
          "FamNaamUitvoerBox",
          "DatumSeparatorBox",
          "CapsZoekenBox",
          "HuwInkortenBox",
      }),
      "HuwInkortenUitleg",
      "DOSUitleg",
      "InvoerUitleg",
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Systeem() {
  return Kolom({
      Velden({
          "ProgDirTekst",
          "ProgDirUitleg",
          Rij({"DataDirTekst", "BrowseDataDir"}),
          "DataDirUitleg",
          Rij({"TempDirTekst", "BrowseTempDir"}),
          "TempDirUitleg",
          Rij({"GCIDirTekst", "BrowseGCIDir"}),
          "LB77EditorTekst",
          "LB77EditorUitleg",
          "OpslaanParamsBox",
      }),
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Instellen() {
  return {
      {"IniGebruiker", Kolom({
                           Velden({
                               "HSKLidTekst",
                               Rij({"VoorlettersTekst", "VoorlettersUitleg"}),
                               Rij({"AchternaamTekst", "AchternaamUitleg"}),
                               Rij({"AdresTekst", "AdresUitleg"}),
                               Rij({"PostcodeTekst", "WoonplaatsTekst"}),
                               "LandTekst",
                               "TelefoonTekst",
                               "GeslachtBox",
                               "EmailTekst",
                           }),
                           Knoppen({"OKButton", "BackButton"}),
                       })},
      {"IniGezindte",
       Kolom({
           "GezindtenLabel",
           Tabel({Veld("GezAfkTekst(*)", "Code", 4), Veld("GezTekst(*)", "Naam", 30)}),
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"IniVoorvoeg", Kolom({
                          Velden({"Voorvoeg1Tekst", "Voorvoeg2Tekst"}),
                          Knoppen({"OKButton", "BackButton"}),
                      })},
      {"IniVoorkeur", Voorkeur()},
      {"IniFunctie",
       Kolom({
           "DefinieerLabel",
           Velden({"FtoetsTekst(1)", "FtoetsTekst(2)", "FtoetsTekst(3)", "FtoetsTekst(4)",
                   "FtoetsTekst(5)", "FtoetsTekst(6)", "FtoetsTekst(7)", "FtoetsTekst(8)"}),
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"IniSysteem", Systeem()},
      {"OverLB77Form", Kolom({
                           Velden({"Programma", "Versie"}),
                           Knoppen({"OKButton"}),
                       })},
  };
}

}  // namespace lb77::indeling
