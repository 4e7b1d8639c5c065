// Each operation of storing a remark fails in turn.
#include <map>

#include "entry/OpmToets.h"
#include "steun/FaalBestand.h"

namespace lb77 {
namespace {

class OpmFalenTest : public OpmToets {
 protected:
  // Plays the script on the first names of person 2 with a disk that fails at operation `bij` and
  // behind it; False when it never came to that.
  bool Speelt(const std::string& draaiboek, int bij) {
    Storing storing;
    const SpeelUitslag uitslag = Speel(draaiboek, [&](Gesprek& gesprek) {
      Hoofdmodule hoofd(gesprek, klok_, Map());
      hoofd.bestanden = Bestandenset(FalendeOpener(storing));
      hoofd.bestanden.ZetJournaal({[] { return std::string("2000-01-01 00:00:00"); }, {}, {}});
      ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
      WijzigOpm form(hoofd, Voornaam(), 1);
      form.OpmTekst.BijWijziging([&] {
        storing.teller = 0;
        storing.bij = bij;
      });
      gesprek.ToonModaal(form);
    });
    EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
    return storing.Geweest();
  }
  // Fails at each operation, from a set as it was before each time.
  void FaaltOveral(const std::string& draaiboek) {
    const SetPaden paden = SetPaden::Van(Map(), "PROEF");
    const std::string opm = LeesBytes(paden.opm);
    const std::string prs = LeesBytes(paden.prs);
    const std::string rlt = LeesBytes(paden.rlt);
    bool gefaald = true;
    bool nietVeilig = false;
    int bij = 1;
    for (; gefaald && bij < 200; ++bij) {
      gefaald = Speelt(draaiboek, bij);
      const bool gemeld = verslag_.find("! ") != std::string::npos;
      EXPECT_EQ(gemeld, gefaald) << bij << "\n" << verslag_;
      EXPECT_NE(verslag_.find("- WijzigOpm"), std::string::npos) << bij;
      EXPECT_EQ(LeesBytes(paden.rlt), rlt);
      nietVeilig |= verslag_.find("De wijziging is nog niet veilig opgeslagen\\nSchijf vol") !=
                    std::string::npos;
      const std::string na = LeesBytes(paden.opm);
      // The remark on another field stands as it was.
      EXPECT_EQ(na.substr(96 + 10, 80), opm.substr(96 + 10, 80)) << bij;
      SchrijfBytes(paden.opm, opm);
      SchrijfBytes(paden.prs, prs);
      std::filesystem::remove_all(paden.opm.parent_path() / "JOURNAAL");
    }
    EXPECT_TRUE(nietVeilig);
    EXPECT_GT(bij, 8);
    EXPECT_LT(bij, 200);
  }

  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
};

TEST_F(OpmFalenTest, BijEenNieuweOpmerkingVanDrieRegels) {
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"smid"});
  FaaltOveral("vul OpmTekst " + std::string(75, 'a') + " " + std::string(75, 'b') +
              " ccccccccc\ndruk Opslaan");
}

TEST_F(OpmFalenTest, BijHetKorterMakenEnHetLeegmaken) {
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"smid"});
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"een", "twee", "drie"});
  FaaltOveral("vul OpmTekst anders\ndruk Opslaan");
  FaaltOveral("vul OpmTekst\ndruk Opslaan");
}

}  // namespace
}  // namespace lb77
