// The index on a Genealogie or Parenteel.
#include "descendants/GenIdxSchrijver.h"
#include "descendants/GenToets.h"
#include "output/TekstSchrijver.h"
#include "steun/Gouden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class GenIdxToets : public GenToets {
 protected:
  GenIdxToets() { opties_.GenHTMLFile = "GEN_DATA.HTM"; }

  Uitslag SchrijfTabel() {
    TekstSchrijver uit;
    EXPECT_TRUE(uit.Open(set_.map / "uit.txt"));
    uit.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
    const Gegevens bronnen{set_.Persoon,   set_.Relatie, set_.Plaats,
                           set_.Opmerking, set_.volgers, set_.schrijfwijze};
    const Uitslag uitslag = GenIdxSchrijver(tabel_, opties_, bronnen, uit, verloop_).Schrijf();
    EXPECT_TRUE(uit.Sluit());
    uit_ = LeesBytes(set_.map / "uit.txt");
    return uitslag;
  }
  // The whole index, as it stands in its file.
  const std::string& Schrijf(std::int16_t stamouder) {
    EXPECT_EQ(Bouw(stamouder), Einde::Klaar);
    EXPECT_EQ(SchrijfTabel(), Einde::Klaar);
    return uit_;
  }
  // The rows of an index in text: first name and label of each.
  std::vector<std::string> Rijen(std::int16_t stamouder) {
    Schrijf(stamouder);
    std::vector<std::string> uit;
    for (std::size_t van = 0; van < uit_.size();) {
      const std::size_t tot = uit_.find("\r\n", van);
      const std::string regel = uit_.substr(van, tot - van);
      if (regel.size() > 68) uit.push_back(std::string(1, regel[27]) + ' ' + regel.substr(68));
      van = tot + 2;
    }
    return uit;
  }
  // A (2) with partner B has C and D; C with E has F; D, married to F's namesake G and to H, has I;
  // F and I are the parents of J.
  std::int16_t Familie() {
    const auto a = bouw_.Man("A", "van der Berg", {{"GebDatum", "01-01-1800"}});
    const auto b = bouw_.Vrouw("B", "Vis");
    const auto c =
        bouw_.Man("C", "van der Berg", {{"GebDatum", "01-01-1825"}, {"OvlDatum", "02-02-1890"}});
    const auto d = bouw_.Vrouw("D", "van der Berg");
    bouw_.Relatie(a, b, {c, d});
    const auto f = bouw_.Man("F", "van der Berg");
    bouw_.Relatie(c, bouw_.Vrouw("E", "René"_w), {f});
    const auto i = bouw_.Vrouw("I", "Kok");
    bouw_.Relatie(bouw_.Man("G", "Kok"), d, {i});
    bouw_.Relatie(bouw_.Man("H", "Bos"), d);
    bouw_.Relatie(f, i, {bouw_.Man("J", "van der Berg")});
    return a;
  }

  std::string uit_;
};

TEST_F(GenIdxToets, EenEnkeleHoofdpersoonIsEenRij) {
  EXPECT_EQ(
      Schrijf(bouw_.Man("Jan", "Bos", {{"GebDatum", "01-01-1800"}})),
      "Bos                        Jan                            1800-     I\r\n\r\n\r\n\r\n");
}

TEST_F(GenIdxToets, NamenWordenAfgekaptEnKolommenRakenElkaarNiet) {
  opties_.GenOokNrs = true;
  EXPECT_EQ(Schrijf(bouw_.Man("Johannes Wilhelmus Hendrikusxx", "van der Hoogen-Middendorp",
                              {{"GebDatum", "01-01-1800"}, {"OvlDatum", "01-01-1870"}}))
                .substr(0, 79),
            "van der Hoogen-Middendorp  Johannes Wilhelmus Hendrikusxx [2]     1800-1870 I\r\n");
}

TEST_F(GenIdxToets, ElkeTakWordtAfgemaaktMetDePartnersVanIeder) {
  EXPECT_EQ(Rijen(Familie()), (std::vector<std::string>{
                                  "A I", "B I", "C IIa", "E IIa", "F IIIa", "I IIIa", "J IVa",
                                  "D IIb", "G IIb", "H IIb", "I IIIb", "F IIIb", "J IVb = IVa"}));
}

TEST_F(GenIdxToets, PerGeneratieIsDeVolgordeDieVanDeTabel) {
  opties_.GenPerGeneratie = true;
  EXPECT_EQ(Rijen(Familie()), (std::vector<std::string>{
                                  "A I", "B I", "C IIa", "E IIa", "D IIb", "G IIb", "H IIb",
                                  "F IIIa", "I IIIa", "I IIIb", "F IIIb", "J IVa", "J IVb = IVa"}));
}

TEST_F(GenIdxToets, WieNietGevolgdWordtHeeftGeenRijEnZijnPartnersNiet) {
  opties_.GenVolgDochters = GenDochters::Geen;
  EXPECT_EQ(Rijen(Familie()), (std::vector<std::string>{"A I", "B I", "C IIa", "E IIa", "F IIIa",
                                                        "I IIIa", "J IVa"}));
}

TEST_F(GenIdxToets, EenHerhalingHeeftGeenPartners) {
  const auto jan = bouw_.Man("Jan", "Bos");
  const auto piet = bouw_.Man("Piet", "Bos");
  bouw_.Relatie(jan, 0, {piet});
  bouw_.Relatie(jan, 0, {piet});
  bouw_.Relatie(piet, bouw_.Vrouw("Anna", "Vis"));
  EXPECT_EQ(Rijen(jan), (std::vector<std::string>{"J I", "P IIa", "A IIa", "P IIb = IIa"}));
}

TEST_F(GenIdxToets, EenPartnerVanTweePersonenHeeftTweeRijen) {
  const auto jan = bouw_.Man("Jan", "Bos");
  const auto een = bouw_.Man("Een", "Bos");
  const auto twee = bouw_.Man("Twee", "Bos");
  const auto vrouw = bouw_.Vrouw("Vrouw", "Vis");
  bouw_.Relatie(jan, 0, {een, twee});
  bouw_.Relatie(een, vrouw);
  bouw_.Relatie(twee, vrouw);
  EXPECT_EQ(Rijen(jan), (std::vector<std::string>{"J I", "E IIa", "V IIa", "T IIb", "V IIb"}));
}

TEST_F(GenIdxToets, TitelEnInleidingStaanErInTekstBovenEnHetSlotEronder) {
  opties_.teksten.titel = "Index Bos";
  opties_.teksten.inleiding = {"", "Tweede regel", ""};
  opties_.teksten.copyrightRegel = "Copyright (2000) Jan";
  opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  EXPECT_EQ(Schrijf(bouw_.Man("Jan", "Bos")),
            "Index Bos\r\nTweede regel\r\n"
            "Bos                        Jan                                -     I\r\n"
            "\r\n\r\n          Copyright (2000) Jan\r\n"
            "          Gemaakt met LB77 voor Windows\r\n\r\n");
}

TEST_F(GenIdxToets, DeIndexInTekst) {
  opties_.GenOokNrs = true;
  opties_.teksten.titel = "Index Van der Berg";
  VerwachtGouden("index_gen.txt", Schrijf(Familie()));
}

TEST_F(GenIdxToets, DeIndexVoorInternet) {
  opties_.GenOokNrs = opties_.GenInHTML = true;
  opties_.GenHTMLFile = " BERG.HTM ";
  opties_.teksten.titel = "Index Van der Berg";
  VerwachtGouden("index_gen_html.txt", Schrijf(Familie()));
}

TEST_F(GenIdxToets, EenVerwijzingVanEenHerhalingGaatNaarHaarEigenPlaats) {
  opties_.GenInHTML = true;
  Schrijf(Familie());
  EXPECT_NE(uit_.find("<A HREF=\"GEN_DATA.HTM#IVb\">IVb = IVa</A>"), std::string::npos);
}

TEST_F(GenIdxToets, EenOnleesbarePartnerHeeftGeenRij) {
  const auto jan = bouw_.Man("Jan", "Bos");
  bouw_.WijzigRelatie(bouw_.Relatie(jan, 0), {{"VrouwNr", "500"}});
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"));
  EXPECT_EQ(Rijen(jan), (std::vector<std::string>{"J I", "A I"}));
}

TEST_F(GenIdxToets, EenOnleesbareRelatieEindigtDeIndex) {
  const auto jan = bouw_.Man("Jan", "Bos", {{"Relatie1", "99"}});
  tabel_.Begin(jan, "M");
  const Uitslag uitslag = SchrijfTabel();
  EXPECT_EQ(uitslag, Einde::Leesfout);
  EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Relaties, 99}));
}

TEST_F(GenIdxToets, EenOnleesbareStamouderGeeftGeenIndex) {
  tabel_.Begin(99, "M");
  const Uitslag uitslag = SchrijfTabel();
  EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Personen, 99}));
  EXPECT_EQ(uit_, "");
}

TEST_F(GenIdxToets, ElkeHoofdpersoonKanHetStoppen) {
  ASSERT_EQ(Bouw(Familie()), Einde::Klaar);
  int tests = 0;
  std::vector<int> aantallen;
  verloop_.afbreken = [&] { return ++tests == 3; };
  verloop_.toon = [&](int, int aantal) { aantallen.push_back(aantal); };
  EXPECT_EQ(SchrijfTabel(), Einde::Afgebroken);
  EXPECT_EQ(aantallen, (std::vector<int>{1, 2}));
  EXPECT_NE(uit_.find("IIa"), std::string::npos);
  EXPECT_EQ(uit_.find("IIIa"), std::string::npos);
}

}  // namespace
}  // namespace lb77
