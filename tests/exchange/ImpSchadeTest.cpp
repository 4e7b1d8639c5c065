// Files that are cut off and disks that fail: the run ends, and what was stored stays readable.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <tuple>

#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "exchange/ImportToets.h"
#include "steun/FaalBestand.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

// Two families with a fourth marriage, a sixteenth child, places and remarks.
std::string Voorbeeld() {
  std::string uit =
      "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Jan /Jansen/\n1 BIRT\n2 DATE 3 MAY 1801\n"
      "2 PLAC Delft\n1 FAMS @F1@\n1 FAMS @F2@\n1 FAMS @F3@\n1 FAMS @F4@\n1 FAMS @F5@\n"
      "1 NOTE Een lang verhaal over Jan\n2 CONT en de zijnen\n0 @F1@ FAM\n1 HUSB @I1@\n";
  for (int i = 0; i < 17; ++i) uit += "1 CHIL @I2@\n";
  uit += "1 MARR\n2 PLAC Breda\n1 NOTE Nog een\n";
  for (int i = 2; i <= 5; ++i) uit += "0 @F" + GetalTekst(i) + "@ FAM\n1 HUSB @I1@\n";
  return uit + "0 @I2@ INDI\n1 NAME Kind //\n1 FAMC @F1@\n1 NOTE Derde\n0 TRLR\n";
}

int Tel(std::string_view tekst, std::string_view woord) {
  int aantal = 0;
  for (std::size_t p = tekst.find(woord); p != std::string_view::npos;
       p = tekst.find(woord, p + 1)) {
    ++aantal;
  }
  return aantal;
}

class ImpSchade : public ImportToets {
 protected:
  // Plays an import to where the dialog is ready, whatever it shows.
  void Draai(const std::function<Bestandenset()>& maak) {
    const VasteKlok klok({.jaar = 2000, .maand = 1, .dag = 1});
    const auto programma = [&](Gesprek& gesprek) {
      Hoofdmodule hoofd(gesprek, klok, Map());
      hoofd.bestanden = maak();
      ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
      ASSERT_TRUE(Start(hoofd));
      ImpGedcom form(hoofd);
      gesprek.ToonModaal(form);
    };
    const SpeelUitslag uitslag =
        Speel("vul Bestandsnaam " + Bestand().string() + "\ndruk OKButton", programma);
    EXPECT_EQ(uitslag.reden, "");
  }

  // Every record can be read, no link leads outside the files, and each remark has its chain.
  void VerwachtHeel() {
    InSessie([](Hoofdmodule& hoofd) {
      const std::int16_t personen = hoofd.Persoon.MaxRecordNr();
      const std::int16_t relaties = hoofd.Relatie.MaxRecordNr();
      for (std::int16_t nr = 2; nr <= personen; ++nr) {
        ASSERT_TRUE(hoofd.Persoon.Lees(nr));
        EXPECT_LE(hoofd.Persoon.RelNrOuders(), relaties);
        EXPECT_LE(-hoofd.Persoon.relatie3(), personen);
        EXPECT_NE(hoofd.Persoon.OpmRecord() != 0, hoofd.Persoon.OpmCode() == 0);
        Huwtab huwelijken{};
        const TabUitslag uitslag = hoofd.Persoon.VulHuwtab(nr, huwelijken);
        EXPECT_TRUE(uitslag.heel);
        EXPECT_LE(*std::max_element(huwelijken.begin(), huwelijken.end()), relaties);
        EXPECT_LE(uitslag.aantal, 5);
      }
      for (std::int16_t nr = 2; nr <= relaties; ++nr) {
        Kindtab kinderen{};
        EXPECT_TRUE(hoofd.Relatie.VulKindtab(nr, kinderen).heel);
        EXPECT_LE(*std::max_element(kinderen.begin(), kinderen.end()), personen);
      }
    });
  }

  // The record files as they are now, and put back.
  void Bewaar() {
    for (const std::string_view soort : {"PRS", "RLT", "OPM", "PLT"}) {
      bewaard_[std::string(soort)] = LeesBytes(Pad(soort));
    }
  }
  void ZetTerug() {
    for (const auto& [soort, bytes] : bewaard_) SchrijfBytes(Pad(soort), bytes);
  }
  [[nodiscard]] std::filesystem::path Pad(std::string_view soort) const {
    return Map() / "PROEF" / ("PROEF." + std::string(soort));
  }
  std::map<std::string, std::string> bewaard_;
};

TEST_F(ImpSchade, EenBestandDatErgensIsAfgekaptWordtGelezenZoverHetGaat) {
  const std::string heel = Voorbeeld();
  Bewaar();
  for (std::size_t lengte = 0; lengte <= heel.size(); ++lengte) {
    SCOPED_TRACE(lengte);
    ZetTerug();
    const std::string_view stuk = std::string_view(heel).substr(0, lengte);
    SchrijfBytes(Bestand(), stuk);
    Draai([] { return Bestandenset(); });
    EXPECT_EQ(Tel(verslag_, "! info \"Importeren voltooid\"\n+ ToonTekst"), 1);
    EXPECT_LE(Tel(verslag_, "! "), 2);
    const std::string personen = std::to_string(1 + Tel(stuk, " INDI\n"));
    const std::string aantallen = Aantallen();
    EXPECT_TRUE(aantallen.starts_with(personen) || stuk.ends_with("INDI") ||
                Tel(stuk, "1 FAMS") >= 4)
        << aantallen;
    VerwachtHeel();
  }
}

class ImpStoringTest : public ImpSchade,
                       public ::testing::WithParamInterface<std::tuple<bool, bool>> {};

TEST_P(ImpStoringTest, EindigtBijElkeBewerkingMetEenMeldingEnHoudtWatErWas) {
  const std::int16_t oud = Bouw().Man("Oude", "Man");
  Bouw().Plaats("Delft");
  Bouw().OpmerkingBijPersoon(oud, 4096, {"oude opmerking"});
  Bewaar();
  SchrijfBytes(Bestand(), Voorbeeld());
  const std::string voorheen = Persoon(oud);
  bool geweest = true;
  int operaties = 0;
  for (int k = 1; geweest; ++k) {
    SCOPED_TRACE(k);
    ZetTerug();
    Storing storing{.bij = k, .kort = std::get<0>(GetParam()), .blijvend = std::get<1>(GetParam())};
    Draai([&] { return Bestandenset(FalendeOpener(storing)); });
    geweest = storing.Geweest();
    const int boxen = Tel(verslag_, "! stop ") + Tel(verslag_, "! uitroep ");
    EXPECT_EQ(boxen > 0, geweest);
    EXPECT_LE(boxen, storing.blijvend ? 20 : 6) << verslag_;
    EXPECT_EQ(Persoon(oud), voorheen);
    EXPECT_EQ(OpmBijPersoon(oud), "4096 oude opmerking\n");
    EXPECT_EQ(Plaats(2), "Delft");
    if (!storing.kort) VerwachtHeel();
    operaties = storing.teller;
  }
  EXPECT_GT(operaties, 100);
}

// A write that fails has done nothing, or half; one operation fails, or all from there on.
INSTANTIATE_TEST_SUITE_P(Kort, ImpStoringTest,
                         ::testing::Combine(::testing::Bool(), ::testing::Bool()));

}  // namespace
}  // namespace lb77
