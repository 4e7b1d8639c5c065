// The chain of forms of the family sheet, from prompt to viewer, by script.
#include <gtest/gtest.h>

#include <string>

#include "app/Start.h"
#include "descendants/GezinFamilie.h"
#include "descendants/GezinSchPrs.h"
#include "steun/FamilieToets.h"
#include "steun/Keten.h"
#include "steun/Kijker.h"

namespace lb77 {
namespace {

constexpr std::string_view kIni =
    "[Systeem]\r\nSet=PROEF\r\nOpslaanVelden=J\r\n[Genealogie]\r\nFamNaamWeerg=1\r\nDatumForm=0\r\n"
    "[GEZIN]\r\nSoortUitv=1\r\nOokNummers=J\r\nOokOpm=N\r\n[Printer]\r\nTekstbr=78\r\n";

// The head of the family is person 5.
class GezinKeten : public FamilieToets {
 protected:
  GezinKeten() {
    familie_ = BouwGezinFamilie(Bouw());
    SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
  }
  void Speel(const Keten& keten, const Plek& plek = Plek::current()) {
    const Taak taak = [this](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.schrijfwijze.DatumScheider = '-';
      hoofd.volgers.HuidigRelatieNr = familie_.tweede;  // of what the user did before
      GezinSchPrs prompt(hoofd);
      hoofd.gesprek.ToonModaal(prompt);
      gebleven_ = hoofd.volgers.HuidigPersoonNr;
      relatie_ = hoofd.volgers.HuidigRelatieNr;
    };
    Verwacht(keten.Draaiboek(), taak, keten.Verslag(), plek);
  }
  [[nodiscard]] static Keten Weg() {
    return Keten({
        {"GezinSchPrs", "Nummer Gezinshoofd", "vul RecordNr 5\ndruk OKButton"},
        {"GezinSchParam", "Gezinsblad Uitvoeropties", "druk OKButton"},
        {"GezinMaakTemp", "Gezinsblad Schrijven", ""},
        {"ToonTekst", "Gezinsblad", "druk BackButton"},
    });
  }
  void ZetIni(std::string_view oud, std::string_view nieuw) {
    std::string ini(kIni);
    ini.replace(ini.find(oud), oud.size(), nieuw);
    SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  }
  [[nodiscard]] std::string Ini() const { return LeesBytes(Map() / "LIJNBOOM.INI"); }
  [[nodiscard]] std::string Blad() const { return LeesBytes(Map() / "TEMP" / "GEZINTMP.TMP"); }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return Blad().find(tekst) != std::string::npos;
  }

  GezinFamilie familie_;
  std::int16_t gebleven_ = 0;
  std::int16_t relatie_ = 0;
};

TEST_F(GezinKeten, GaatVanNummerTotScherm) {
  Speel(Weg()
            .In("GezinSchPrs", "toon VraagLabel\nvul RecordNr 5\ndruk OKButton",
                R"(= VraagLabel "Geef het Persoonsnummer van het Gezinshoofd")")
            .In("ToonTekst", "toon XY_label\ndruk BackButton", R"(= XY_label "pagina 1,1")"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_TRUE(Blad().starts_with("Jan Pieter van Dam [5] [rel.nr. 4]\r\ngeb. Delft 1-2-1800\r\n"));
  EXPECT_TRUE(Blad().ends_with("\r\n 3. Kee van Dam [9]\r\n\r\n"));
}

TEST_F(GezinKeten, DeVraagVerdwijntVoorHetSchrijven) {
  Kijker kijker("5");
  Sessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    GezinSchPrs prompt(hoofd);
    hoofd.gesprek.ToonModaal(prompt);
  })(kijker);
  EXPECT_EQ(kijker.Gezien(), "+GezinSchParam -GezinMaakTemp -ToonTekst ");
}

TEST_F(GezinKeten, HetOptieschermToontHetHoofdEnZijnRelaties) {
  Speel(Weg()
            .In("GezinSchParam", "toon\ntoon SoortBladBox\ndruk BackButton", R"(
              : GezinSchParam "Gezinsblad Uitvoeropties"
              = NrHoofd "5"
              = VoorNmHoofd "Jan Pieter"
              = AchterNmHoofd "van Dam"
              = Periode "1800-1870"
              = (*) KiesPartner RelNrPartner NrPartner VoorNaamPartner AchterNaamPartner PeriodePartner
              = (1) aan "4" "6" "Cornelia" "Cool" "1805-1881"
              = (2) uit "5" "" "" "<onbekend>" ""
              = (3-5) [verborgen]
              = SoortBladBox "Uitgebreid"
              = OokNrsBox "Ja"
              = OokOpmBox "Nee"
              = OKButton "&OK"
              = BackButton "&Terug"
              * KiesPartner(1)
              = SoortBladBox "Uitgebreid"
              #0 "Compact"
              #1 "Uitgebreid"
              #2 "F6-Blad"
            )")
            .Tot("GezinSchParam"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GezinKeten, DeGekozenRelatieKomtOpHetBlad) {
  Speel(Weg().In("GezinSchParam", "druk KiesPartner(2)\ntoon KiesPartner(1)\ndruk OKButton",
                 "= KiesPartner(1) uit"));
  EXPECT_TRUE(Bevat("[rel.nr. 5]"));
  EXPECT_TRUE(Bevat("\r\nN.N.\r\n"));
  EXPECT_EQ(relatie_, 5);
}

TEST_F(GezinKeten, OokDeVijfdeRelatieKanWordenGekozen) {
  std::int16_t vijfde = 0;
  for (int i = 3; i <= 5; ++i) {
    vijfde = Bouw().Relatie(familie_.man, Bouw().Vrouw("Vrouw", "Nr" + std::to_string(i)));
  }
  Speel(Weg().In("GezinSchParam", "druk KiesPartner(5)\ntoon AchterNaamPartner(5)\ndruk OKButton",
                 R"(= AchterNaamPartner(5) "Nr5")"));
  EXPECT_TRUE(Bevat("[rel.nr. " + std::to_string(vijfde) + "]"));
  EXPECT_TRUE(Bevat("\r\nVrouw Nr5 ["));
}

TEST_F(GezinKeten, EenPersoonZonderRelatiesGeeftEenBladDatDatZegt) {
  Speel(Weg()
            .In("GezinSchPrs", "vul RecordNr 9\ndruk OKButton")
            .In("GezinSchParam", "toets Tab\ntoets Shift+Tab\ndruk OKButton"));
  EXPECT_EQ(Blad(),
            "Kee van Dam [9]\r\nged. 1-1-1831\r\nkind v. Jan Pieter van Dam [5] en van Cornelia "
            "Cool [6]\r\n"
            "\r\n\r\ngeen relatie aanwezig\r\n\r\n");
  EXPECT_EQ(relatie_, 0);
}

TEST_F(GezinKeten, ElkeSoortHeeftZijnBlad) {
  Speel(Weg().In("GezinSchParam", "stel SoortBladBox Compact\ndruk OKButton"));
  EXPECT_TRUE(Bevat("\r\nPersoonsnummers van kinderen :\r\n    7     8     9\r\n"));
  Speel(Weg().In("GezinSchParam", "stel SoortBladBox Uitgebreid\ndruk OKButton"));
  EXPECT_FALSE(Bevat("Persoonsnummers"));
  Speel(Weg().In("GezinSchParam", "stel SoortBladBox F6-Blad\ndruk OKButton"));
  EXPECT_TRUE(Blad().starts_with("GEZINSBLAD van Dam-Cool [rel.nr. 4]\r\n\r\nAchternaam   : van"));
  EXPECT_TRUE(Blad().ends_with("\r\n\r\n"));
}

TEST_F(GezinKeten, DeBreedteGeldtNietVoorHetF6Blad) {
  ZetIni("Tekstbr=78", "Tekstbr=30");
  Speel(Weg());
  EXPECT_TRUE(Bevat("Jan Pieter van Dam [5]\r\n[rel.nr. 4]\r\n"));
  Speel(Weg().In("GezinSchParam", "stel SoortBladBox F6-Blad\ndruk OKButton"));
  EXPECT_TRUE(Bevat("\r\nVoornamen    : Jan Pieter                       Voornamen    : Cornelia"));
}

TEST_F(GezinKeten, DeFamilienaamVanKinderenIsEenInstelling) {
  for (const auto& [waarde, kind] : {std::pair("0", " 3. Kee [9]\r\n"),
                                     {"", " 3. Kee [9]\r\n"},
                                     {"1", " 3. Kee van Dam [9]\r\n"}}) {
    ZetIni("FamNaamWeerg=1", std::string("FamNaamWeerg=") + waarde);
    Speel(Weg());
    EXPECT_TRUE(Bevat(kind)) << waarde;
  }
}

TEST_F(GezinKeten, KeuzenBlijvenInDeInstellingen) {
  Speel(Weg().In("GezinSchParam",
                 "stel SoortBladBox #2\nstel OokNrsBox Nee\nstel OokOpmBox Ja\ndruk OKButton"));
  EXPECT_NE(Ini().find("[GEZIN]\r\nSoortUitv=2\r\nOokNummers=N\r\nOokOpm=J\r\n"),
            std::string::npos);
}

TEST_F(GezinKeten, KeuzenWordenVergetenAlsDeInstellingenDatZeggen) {
  ZetIni("OpslaanVelden=J", "OpslaanVelden=N");
  const std::string ini = Ini();
  Speel(Weg().In("GezinSchParam",
                 "stel SoortBladBox #2\nstel OokNrsBox Nee\nstel OokOpmBox Ja\ndruk OKButton"));
  EXPECT_TRUE(Bevat("GEZINSBLAD van Dam-Cool\r\n"));
  EXPECT_EQ(Ini(), ini);
}

TEST_F(GezinKeten, EenBewaardeWaardeDieGeenIsIsJa) {
  ZetIni("OokNummers=J\r\nOokOpm=N", "OokNummers=x\r\nOokOpm=x");
  Speel(Weg());
  EXPECT_NE(Ini().find("[GEZIN]\r\nSoortUitv=1\r\nOokNummers=J\r\nOokOpm=J\r\n"), std::string::npos)
      << Ini();
}

TEST_F(GezinKeten, EenSoortDieErGeenIsIsDeEerste) {
  for (const std::string_view waarde : {"3", "-1", "x", "99999999999"}) {
    ZetIni("SoortUitv=1", "SoortUitv=" + std::string(waarde));
    Speel(Weg()
              .In("GezinSchParam", "toon SoortBladBox\nsluit", R"(
                = SoortBladBox "Compact"
                #0 "Compact"
                #1 "Uitgebreid"
                #2 "F6-Blad"
              )")
              .Tot("GezinSchParam"));
  }
}

TEST_F(GezinKeten, ElkeWegTerugStoptDeKeten) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    for (const std::string_view vorm : {"GezinSchPrs", "GezinSchParam"}) {
      gebleven_ = 0;
      Speel(Weg().In(vorm, weg).Tot(vorm));
      EXPECT_EQ(gebleven_, -1) << weg;
      EXPECT_EQ(Blad(), "") << weg;
    }
  }
}

TEST_F(GezinKeten, EenHoofdDatOnleesbaarIsStoptDeKeten) {
  MaakVervolg(10);
  for (const std::string nr : {"77", "1", "10"}) {
    gebleven_ = 0;
    Speel(Weg()
              .In("GezinSchPrs", "vul RecordNr " + nr + "\ndruk OKButton")
              .In("GezinSchParam", "", "! stop \"Leesfout bij persoonsrecord " + nr + "\"")
              .Tot("GezinSchParam"));
    EXPECT_EQ(gebleven_, -1) << nr;
  }
}

TEST_F(GezinKeten, WatOnleesbaarIsStaatMetVraagtekensOpHetOptiescherm) {
  Bouw().WijzigRelatie(familie_.relatie, {{"VrouwNr", "99"}});
  Bouw().WijzigPersoon(familie_.man, {{"Relatie2", "88"}, {"Relatie3", "-77"}});
  Speel(Weg()
            .In("GezinSchParam",
                "toon VoorNaamPartner(1)\ntoon PeriodePartner(1)\ntoon RelNrPartner(2)\n"
                "toon AchterNaamPartner(2)\ntoon KiesPartner(3)\ndruk BackButton",
                R"(
              ! stop "Leesfout bij persoonsrecord 77"
              = VoorNaamPartner(1) "?????"
              = PeriodePartner(1) "????-????"
              = RelNrPartner(2) "88"
              = AchterNaamPartner(2) "?????"
              = KiesPartner(3) uit [verborgen]
            )")
            .Tot("GezinSchParam"));
}

TEST_F(GezinKeten, EenOnleesbareRelatieGeeftGeenBlad) {
  Bouw().WijzigPersoon(familie_.man, {{"Relatie2", "88"}});
  Speel(
      Weg()
          .In("GezinSchParam", "druk KiesPartner(2)\ndruk OKButton")
          .Zegt("GezinMaakTemp",
                R"(! stop "Relatierecord 88 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("GezinMaakTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GezinKeten, EenTijdelijkBestandDatNietKanStoptDeKeten) {
  std::filesystem::create_directories(Map() / "TEMP" / "GEZINTMP.TMP");
  const std::string pad = (Map() / "TEMP" / "GEZINTMP.TMP").string();
  Speel(Weg()
            .Zegt("GezinMaakTemp", "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"")
            .Tot("GezinMaakTemp"));
  EXPECT_EQ(gebleven_, -1);
}

}  // namespace
}  // namespace lb77
