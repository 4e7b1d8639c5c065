#include "descendants/GenFamilie.h"
#include "descendants/GenSchrijver.h"
#include "descendants/GenSchrijverToets.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

TEST_F(GenSchrijverToets, VerteltEenFamiliePerTak) {
  EXPECT_EQ(Schrijf(BouwGenFamilie(bouw_).stamouder), Einde::Klaar);
  VerwachtGouden("gen_tekst_tak.txt", uit_);
}

TEST_F(GenSchrijverToets, VerteltAllesWatHetKanPerGeneratie) {
  opties_.GenOokOpm = opties_.GenOokNrs = opties_.GenVerwijzing = opties_.GenPerGeneratie = true;
  opties_.GenVolgHerh = true;
  opties_.teksten.titel = "Parenteel van Jan Kok";
  opties_.teksten.inleiding[0] = "Inleiding";
  opties_.teksten.copyrightRegel = "Copyright (2026) Jan Jansen";
  opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  EXPECT_EQ(Schrijf(BouwGenFamilie(bouw_).stamouder), Einde::Klaar);
  VerwachtGouden("gen_tekst_generatie.txt", uit_);
}

TEST_F(GenSchrijverToets, VerteltEenFamilieInHTML) {
  opties_.GenInHTML = opties_.GenOokOpm = opties_.GenVerwijzing = opties_.GenPerGeneratie = true;
  opties_.teksten.titel = "Parenteel van Jan & Anna";
  opties_.teksten.inleiding[0] = "Inleiding";
  EXPECT_EQ(Schrijf(BouwGenFamilie(bouw_).stamouder), Einde::Klaar);
  VerwachtGouden("gen_html.txt", uit_);
}

}  // namespace
}  // namespace lb77
