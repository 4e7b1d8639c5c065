// Storing a remark is one action of the journal.
#include "entry/OpmToets.h"
#include "store/Journaal.h"

namespace lb77 {
namespace {

class OpmHandelingTest : public OpmToets {
 protected:
  // The labels of what the script did to `vraag`; undoing the last of them gives back the files.
  std::vector<std::string> Labels(const std::string& draaiboek, const OpmVraag& vraag) {
    const SetPaden paden = SetPaden::Van(Map(), "PROEF");
    const std::string opm = LeesBytes(paden.opm);
    const std::string prs = LeesBytes(paden.prs);
    const std::string rlt = LeesBytes(paden.rlt);
    std::vector<std::string> labels;
    const SpeelUitslag uitslag = Speel(draaiboek, [&](Gesprek& gesprek) {
      Hoofdmodule hoofd(gesprek, klok_, Map());
      hoofd.bestanden.ZetJournaal({[] { return std::string("2000-01-01 00:00:00"); }, {}, {}});
      ASSERT_FALSE(hoofd.bestanden.OpenSet(paden));
      gesprek.Toon<WijzigOpm>(hoofd, vraag, std::int16_t{1});
      Journaal& journaal = *hoofd.bestanden.HetJournaal();
      for (const HandelingRegel& regel : journaal.Geschiedenis()) labels.push_back(regel.label);
      if (labels.empty()) return;
      EXPECT_NE(LeesBytes(paden.opm), opm);
      static_cast<void>(journaal.MaakOngedaan(journaal.Geschiedenis().back().nummer));
    });
    EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
    EXPECT_EQ(LeesBytes(paden.opm), opm);
    EXPECT_EQ(LeesBytes(paden.prs), prs);
    EXPECT_EQ(LeesBytes(paden.rlt), rlt);
    std::filesystem::remove_all(paden.opm.parent_path() / "JOURNAAL");
    return labels;
  }

  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
};

using Namen = std::vector<std::string>;

TEST_F(OpmHandelingTest, OpslaanIsEenHandelingDieInEensOngedaanGaat) {
  const std::string lang(200, 'x');
  EXPECT_EQ(Labels("vul OpmTekst " + lang + "\ndruk Opslaan", Voornaam()),
            Namen{"Opmerking bij Persoon 2 gewijzigd"});
  EXPECT_EQ(Labels("vul OpmTekst " + lang + "\ndruk Opslaan",
                   MaakOpmVraag(2, relatierubriek::kAlgemeen, "")),
            Namen{"Opmerking bij Relatie 2 gewijzigd"});
}

TEST_F(OpmHandelingTest, LeegmakenGaatOokInEensOngedaan) {
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"een", "twee", "drie"});
  EXPECT_EQ(Labels("vul OpmTekst\ndruk Opslaan", Voornaam()),
            Namen{"Opmerking bij Persoon 2 gewijzigd"});
}

TEST_F(OpmHandelingTest, ZonderWijzigingIsErGeenHandeling) {
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"een"});
  EXPECT_EQ(Labels("druk Opslaan", Voornaam()), Namen{});
  EXPECT_EQ(Labels("typ OpmTekst anders\ndruk BackButton", Voornaam()), Namen{});
}

}  // namespace
}  // namespace lb77
