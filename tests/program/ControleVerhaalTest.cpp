// The family of four generations, entered through the dialogs, has nothing wrong with it.
#include <string>

#include "program/ProgrammaToets.h"
#include "steun/Verhaal.h"

namespace lb77 {
namespace {

class ControleVerhaal : public ProgrammaToets {};

TEST_F(ControleVerhaal, ElkeControleVindtNietsInHetVerhaal) {
  std::string draaiboek = VerhaalVanDeFamilie() + VerhaalVanDeOpmerkingen() + "druk BackButton\n";
  for (const std::string keuze : {"ContrPrs", "ContrRel", "ContrPlts", "ContrOpm"}) {
    draaiboek += "kies " + keuze + "\ndruk OKButton\ntoon UitvoerBox\ndruk BackButton\n";
  }
  const SpeelUitslag uitslag = Speel(draaiboek + "kies KeuzeAfsluiten\n", Sessie());
  ASSERT_EQ(uitslag.reden, "");
  int goed = 0;
  for (std::size_t plek = verslag_.find("= UitvoerBox"); plek != std::string::npos;
       plek = verslag_.find("= UitvoerBox", plek + 1)) {
    const std::string regel = verslag_.substr(plek, verslag_.find('\n', plek) - plek);
    EXPECT_TRUE(regel.ends_with("):\\n\\nGeen fouten gevonden\\n\"")) << regel;
    ++goed;
  }
  EXPECT_EQ(goed, 4);
}

}  // namespace
}  // namespace lb77
