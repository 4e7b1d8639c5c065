// The fixture of two sets whose actions stand in a journal.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "app/SessieToets.h"
#include "app/SetOpenen.h"
#include "steun/BouwFamilie.h"
#include "store/Handeling.h"
#include "store/SetPaden.h"

namespace lb77 {

// The set EEN is opened at the start, TWEE lies beside it.
class VeiligToets : public SessieToets {
 protected:
  void SetUp() override {
    MaakSet("EEN");
    MaakSet("TWEE");
    ZetIni("[Sets]\nSet1=EEN,de eerste\nSet2=TWEE,de tweede\n");
  }

  // The action "Persoon toegevoegd", that adds a man to the open set.
  static void VoegToe(Hoofdmodule& hoofd, std::string_view voornaam) {
    const Handeling handeling(hoofd.bestanden, "Persoon toegevoegd");
    BouwFamilie(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking)
        .Man(voornaam, "Jansen");
  }
  static void Hernoem(Hoofdmodule& hoofd, std::string_view voornaam) {
    const Handeling handeling(hoofd.bestanden, "Persoon 2 gewijzigd");
    BouwFamilie(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking)
        .WijzigPersoon(2, {{"Voornaam", voornaam}});
  }
  // An earlier session on EEN: adds Jan, and calls him Piet.
  void MaakGeschiedenis() {
    Speel("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
            ASSERT_TRUE(menu.Laad());
            VoegToe(hoofd, "Jan");
            Hernoem(hoofd, "Piet");
          }));
    ASSERT_EQ(verslag_, "");
  }
  // The program dies in the midst of an action that adds person 2.
  void LaatOnvoltooid(std::string_view set) {
    const std::filesystem::path map = map_ / "DATA" / set;
    const std::filesystem::path toen = map_ / "toen";
    Bestandenset bestanden;
    bestanden.ZetJournaal(
        {.tijd = [] { return std::string("2026-01-01 10:00:00"); }, .bijVreemd = {}, .map = {}});
    ASSERT_FALSE(bestanden.OpenSet(SetPaden::Van(map_ / "DATA", set)));
    {
      Handeling handeling(bestanden, "Persoon toegevoegd");
      RecordBestand& personen = bestanden.Bestand(BestandSoort::Personen);
      ASSERT_FALSE(personen.Schrijf(2, std::string(personen.RecordLengte(), ' ')));
      std::filesystem::copy(map, toen, std::filesystem::copy_options::recursive);
      ASSERT_FALSE(handeling.Voltooi());
    }
    bestanden.SluitAlles();
    std::filesystem::remove_all(map);
    std::filesystem::rename(toen, map);
  }
  // The voornaam of person 2 in EEN.
  [[nodiscard]] std::string Voornaam() const {
    const std::string bytes = Inhoud("DATA/EEN/EEN.PRS");
    return bytes.find("Piet") != std::string::npos   ? "Piet"
           : bytes.find("Jan ") != std::string::npos ? "Jan"
                                                     : "";
  }
};

}  // namespace lb77
