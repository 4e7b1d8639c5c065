// A family of four generations, entered from nothing through the dialogs.
#include <gmock/gmock.h>

#include <map>
#include <sstream>
#include <string>

#include "program/ProgrammaToets.h"
#include "steun/Verhaal.h"

namespace lb77 {
namespace {

using ::testing::Pair;

class Verhaal : public ProgrammaToets {
 protected:
  void SpeelHeel() {
    const std::string draaiboek = VerhaalVanDeFamilie() + VerhaalVanDeOpmerkingen() +
                                  "druk BackButton\nkies KeuzeAfsluiten\n";
    const SpeelUitslag uitslag = Speel(draaiboek, Sessie());
    ASSERT_EQ(uitslag.reden, "") << verslag_.substr(verslag_.size() - 1000);
    EXPECT_THAT(uitslag.ongebruikt, ::testing::IsEmpty());
  }
  [[nodiscard]] std::string Bestand(std::string_view soort) const {
    return LeesBytes(Map() / "DATA" / "VERHAAL" / ("VERHAAL." + std::string(soort)));
  }
  // Each box that appeared, and how often.
  [[nodiscard]] std::map<std::string, int> Boxen() const {
    std::map<std::string, int> uit;
    std::istringstream regels(verslag_);
    for (std::string regel; std::getline(regels, regel);) {
      if (regel.starts_with('!') || regel.starts_with('?')) ++uit[regel];
    }
    return uit;
  }
};

TEST_F(Verhaal, VanNietsNaarVierGeneraties) {
  ASSERT_NO_FATAL_FAILURE(SpeelHeel());
  for (const VerhaalBestand& bestand : VerwachteBestanden()) {
    EXPECT_EQ(EersteVerschil(bestand, Bestand(bestand.soort)), "");
  }
}

TEST_F(Verhaal, VraagtEnMeldtNietMeerDanNodigIs) {
  ASSERT_NO_FATAL_FAILURE(SpeelHeel());
  const auto plaats = [](const std::string& naam) {
    return Pair("? vraag Ja/Nee \"Plaats \\\"" + naam +
                    "\\\" is onbekend.\\nPlaats toevoegen aan het Plaatsbestand ?\" -> Ja",
                1);
  };
  EXPECT_THAT(
      Boxen(),
      ::testing::UnorderedElementsAre(
          Pair(R"(! uitroep "Er is hier geen Opmerking aanwezig")", 23),
          Pair(
              R"(? uitroep Ja/Nee "Dit kind heeft al andere ouders.\nDe verbinding met die ouders verbreken ?" -> Ja)",
              1),
          Pair(R"(? uitroep Ja/Nee "Opgegeven Persoon is een Man. Doorgaan ?" -> Ja)", 1),
          Pair(
              R"(? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden\n\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL om te stoppen" -> OK)",
              1),
          Pair(
              R"(? vraag Ja/Nee "Geen relatie bekend tussen deze partners.\nRelatie aanmaken ?" -> Ja)",
              1),
          Pair(R"(? vraag Ja/Nee "Moet de koppeling met de ouders verbroken worden ?" -> Ja)", 1),
          Pair(R"(? vraag Ja/Nee "Moet de volgorde Automatisch bepaald worden ?" -> Ja)", 3),
          Pair(R"(? vraag Ja/Nee "Moet de volgorde Automatisch bepaald worden ?" -> Nee)", 4),
          Pair(R"(? vraag Ja/Nee "Nieuwe Relatie voor deze Persoon toevoegen ?" -> Ja)", 10),
          plaats("Delft"), plaats("Leiden"), plaats("Utrecht"), plaats("Haarlem"),
          plaats("'s-Gravenhage"), plaats("Alkmaar"), plaats("Zwolle")));
}

}  // namespace
}  // namespace lb77
