// The dialog ahead of the export: its fields, their checks, and what is kept.
#include "app/Start.h"
#include "contact/ContactToets.h"
#include "contact/ExpGCIParam.h"

namespace lb77 {
namespace {

class ExpGCIParamTest : public ContactToets {
 protected:
  void Speel(const std::string& draaiboek, std::string_view verslag, bool gekozen = false,
             const Plek& plek = Plek::current()) {
    const Taak taak = [&](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      ExpGCIParam form(hoofd, opties_);
      EXPECT_EQ(form.HulpOnderwerp(), "contactdienst");
      hoofd.gesprek.ToonModaal(form);
      EXPECT_EQ(form.Gekozen(), gekozen);
    };
    Verwacht(draaiboek, taak,
             "+ ExpGCIParam \"Exporteer in HSK Contactdienst formaat (GCI)\"\n" + Regels(verslag) +
                 "- ExpGCIParam\n",
             plek);
  }
  [[nodiscard]] std::string Ini() const { return LeesBytes(Map() / "LIJNBOOM.INI"); }
  // What stands in a number field that opened with this stored value.
  void Toont(const std::string& sleutel, const std::string& waarde, const std::string& vak,
             const std::string& getal) {
    SchrijfIni(sleutel + "=" + waarde + "\r\n");
    Speel("toon " + vak + "\ndruk BackButton", "= " + vak + " \"" + getal + "\"\n");
  }
  void Weigert(const std::string& vak, const std::string& waarde, const std::string& melding) {
    Speel("vul " + vak + " " + waarde + "\ndruk BackButton", "! uitroep \"" + melding + "\"\n");
  }
  void Neemt(const std::string& vak, const std::string& waarde) {
    Speel("vul " + vak + " " + waarde + "\ndruk BackButton", "");
  }
};

TEST_F(ExpGCIParamTest, BegintMetDeStandaard) {
  Speel("toon\ndruk BackButton", R"~(
    : ExpGCIParam "Exporteer in HSK Contactdienst formaat (GCI)"
    = MinAantalPersonen "1"
    = MinAantalJaren "0"
    = MaxGatJaren "50"
    = MaxJaartal "1900"
    = OokCorrectiesBox uit
    = OokMoedersWoonplaatsBox aan
    = GeslachtBox "Man"
    = PublicatieBox "Nee"
    = EmailAdres "naam@example.org"
    = StartExportButton "&Start Export"
    = BackButton "&Terug"
    * MinAantalPersonen
  )~");
}

TEST_F(ExpGCIParamTest, ToontWatBewaardIs) {
  SchrijfIni(
      "AantalPersonen=3\r\nMinJaren=10\r\nMaxGat=20\r\nMaxJaartal=1850\r\nMetCorrectie=J\r\n"
      "GebPlaatsKind=N\r\nPublicatieMag=1\r\n[Gebruiker]\r\nGeslacht=V\r\n"
      "[INTERNET]\r\nEmail=ik@example.org\r\n");
  Speel("toon\ndruk BackButton", R"~(
    : ExpGCIParam "Exporteer in HSK Contactdienst formaat (GCI)"
    = MinAantalPersonen "3"
    = MinAantalJaren "10"
    = MaxGatJaren "20"
    = MaxJaartal "1850"
    = OokCorrectiesBox aan
    = OokMoedersWoonplaatsBox uit
    = GeslachtBox "Vrouw"
    = PublicatieBox "Ja"
    = EmailAdres "ik@example.org"
    = StartExportButton "&Start Export"
    = BackButton "&Terug"
    * MinAantalPersonen
  )~");
}

TEST_F(ExpGCIParamTest, EenBewaardeWaardeBuitenDeGrenzenIsDeStandaard) {
  for (const char* waarde : {"", "0", "100", "abc", "-5", "3x"}) {
    Toont("AantalPersonen", waarde, "MinAantalPersonen", "1");
  }
  for (const char* waarde : {"", "100", "x"}) {
    Toont("MinJaren", waarde, "MinAantalJaren", "0");
    Toont("MaxGat", waarde, "MaxGatJaren", "50");
  }
  for (const char* waarde : {"", "1799", "2001", "99999999999"}) {
    Toont("MaxJaartal", waarde, "MaxJaartal", "1900");
  }
  for (const char* waarde : {"", "0", "3"})
    Toont("PublicatieMag", waarde, "PublicatieBox", "Nee\"\n#0 \"Ja\"\n#1 \"Nee");
}

TEST_F(ExpGCIParamTest, EenBewaardeWaardeOpDeGrensBlijft) {
  Toont("AantalPersonen", "99", "MinAantalPersonen", "99");
  Toont("MinJaren", "99", "MinAantalJaren", "99");
  Toont("MaxGat", "0", "MaxGatJaren", "0");
  Toont("MaxGat", "99", "MaxGatJaren", "99");
  Toont("MaxJaartal", "1800", "MaxJaartal", "1800");
  Toont("MaxJaartal", "2000", "MaxJaartal", "2000");
}

TEST_F(ExpGCIParamTest, WeigertWatBuitenDeGrenzenLigt) {
  for (const char* waarde : {"", "0"}) {
    Weigert("MinAantalPersonen", waarde, "Onjuist minimum aantal personen (1-99)");
  }
  for (const char* waarde : {"", "1799", "2001"}) {
    Weigert("MaxJaartal", waarde, "Jaartal (1800-2000)");
  }
  Weigert("EmailAdres", "naam", "Onjuist e-mail adres");
  Weigert("EmailAdres", "", "Onjuist e-mail adres");
}

TEST_F(ExpGCIParamTest, NeemtWatErbinnenLigt) {
  Neemt("MinAantalPersonen", "1");
  Neemt("MinAantalPersonen", "99");
  for (const char* waarde : {"", "0", "99"}) {
    Neemt("MinAantalJaren", waarde);
    Neemt("MaxGatJaren", waarde);
  }
  Neemt("MaxJaartal", "1800");
  Neemt("MaxJaartal", "2000");
  Neemt("EmailAdres", "@");
}

TEST_F(ExpGCIParamTest, ElkVeldHeeftZijnBijschrift) {
  const Taak taak = [&](Hoofdmodule& hoofd) {
    const ExpGCIParam form(hoofd, opties_);
    EXPECT_EQ(form.MinAantalPersonen.Prompt(), "Minimum aantal personen per achternaam (1-99):");
    EXPECT_EQ(form.MinAantalJaren.Prompt(), "Minimum aantal jaren per reeks (0-99):");
    EXPECT_EQ(form.MaxGatJaren.Prompt(), "Maximum aantal jaren als gat in een reeks (0-99):");
    EXPECT_EQ(form.MaxJaartal.Prompt(), "Reeksen niet vermelden na (jaartal):");
  };
  Verwacht("", taak, "");
}

// No two characters are outside, so the fields are filled from a setting that takes any.
TEST_F(ExpGCIParamTest, WeigertJarenDieNietTeTypenZijn) {
  const Taak taak = [&](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    ExpGCIParam form(hoofd, opties_);
    ASSERT_TRUE(form.Laad());
    for (GrensVak* vak : {&form.MinAantalJaren, &form.MaxGatJaren}) {
      form.GaNaar(*vak);
      vak->ZetTekst("100");
      EXPECT_FALSE(form.VerlaatVeld());
      vak->ZetTekst("99");
      EXPECT_TRUE(form.VerlaatVeld());
    }
  };
  Verwacht("", taak, R"~(
    ! uitroep "Onjuist minimum aantal jaren (0-99)"
    ! uitroep "Onjuist maximum aantal jaren (0-99)"
  )~");
}

TEST_F(ExpGCIParamTest, InDeGetallenGaanAlleenCijfers) {
  Speel(
      "typ MinAantalPersonen a1b2c3\ntoon MinAantalPersonen\n"
      "typ MinAantalJaren 1x23\ntoon MinAantalJaren\ntyp MaxGatJaren 456\ntoon MaxGatJaren\n"
      "typ MaxJaartal 18-50.1\ntoon MaxJaartal\nvul MaxJaartal 1850\ndruk BackButton",
      R"(
    = MinAantalPersonen "12"
    = MinAantalJaren "12"
    = MaxGatJaren "45"
    = MaxJaartal "1850"
  )");
}

constexpr std::string_view kVul =
    "vul MinAantalPersonen 2\nvul MinAantalJaren 3\nvul MaxGatJaren 4\nvul MaxJaartal 1850\n"
    "stel OokCorrectiesBox aan\nstel OokMoedersWoonplaatsBox uit\nstel GeslachtBox Vrouw\n"
    "stel PublicatieBox Ja\nvul EmailAdres \" ik@example.org \"\n";

TEST_F(ExpGCIParamTest, GeeftEnBewaartDeKeuzes) {
  Speel(std::string(kVul) + "druk StartExportButton", "", true);
  EXPECT_EQ(opties_.aantalPersonen, 2);
  EXPECT_EQ(opties_.minJaren, 3);
  EXPECT_EQ(opties_.maxGat, 4);
  EXPECT_EQ(opties_.maxJaartal, 1850);
  EXPECT_FALSE(opties_.gebPlaatsKind);
  EXPECT_EQ(opties_.geslacht, "V");
  EXPECT_EQ(opties_.email, "ik@example.org");
  EXPECT_NE(Ini().find("[GCI]\r\nData=gci\r\nAantalPersonen=2\r\nMinJaren=3\r\nMaxGat=4\r\n"
                       "MaxJaartal=1850\r\nMetCorrectie=J\r\nGebPlaatsKind=N\r\n"
                       "PublicatieMag=1\r\n"),
            std::string::npos);
  EXPECT_NE(Ini().find("[INTERNET]\r\nEmail=ik@example.org\r\n"), std::string::npos);
  EXPECT_NE(Ini().find("\r\nGeslacht=V\r\n"), std::string::npos);
}

TEST_F(ExpGCIParamTest, HetAndereVanElkeKeuze) {
  Speel(
      "stel OokCorrectiesBox uit\nstel GeslachtBox Man\nstel PublicatieBox Nee\n"
      "druk StartExportButton",
      "", true);
  EXPECT_TRUE(opties_.gebPlaatsKind);
  EXPECT_EQ(opties_.geslacht, "M");
  EXPECT_NE(Ini().find("\r\nMetCorrectie=N\r\nGebPlaatsKind=J\r\nPublicatieMag=2\r\n"),
            std::string::npos);
  EXPECT_NE(Ini().find("\r\nGeslacht=M\r\n"), std::string::npos);
}

TEST_F(ExpGCIParamTest, HetVoorbeeldadresTeltAlsLeeg) {
  Speel("druk StartExportButton", "", true);
  EXPECT_EQ(opties_.email, "");
  EXPECT_NE(Ini().find("[INTERNET]\r\nEmail=\r\n"), std::string::npos);
}

// No other text without an address passes the field.
TEST_F(ExpGCIParamTest, HetVoorbeeldadresHaaltEenBewaardAdresWeg) {
  SchrijfIni("MaxGat=20\r\n[INTERNET]\r\nEmail=ik@example.org\r\n");
  Speel("vul EmailAdres naam@example.org\ndruk StartExportButton", "", true);
  EXPECT_EQ(opties_.email, "");
  EXPECT_NE(Ini().find("[INTERNET]\r\nEmail=\r\n"), std::string::npos) << Ini();
}

// The settings of the user take any text.
TEST_F(ExpGCIParamTest, EenBewaardAdresZonderApenstaartjeIsGeen) {
  SchrijfIni("MaxGat=20\r\n[INTERNET]\r\nEmail=geenadres\r\n");
  Speel("toon EmailAdres\ndruk StartExportButton", "= EmailAdres \"naam@example.org\"\n", true);
  EXPECT_EQ(opties_.email, "");
}

TEST_F(ExpGCIParamTest, StartNeemtGeenAdresDatNietIsNagekeken) {
  const Taak taak = [&](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    ExpGCIParam form(hoofd, opties_);
    ASSERT_TRUE(form.Laad());
    form.EmailAdres.ZetTekst("geenadres");
    EXPECT_TRUE(form.Klik(form.StartExportButton));
    EXPECT_FALSE(form.Gekozen());
  };
  Verwacht("", taak, "! uitroep \"Onjuist e-mail adres\"\n");
}

TEST_F(ExpGCIParamTest, BewaartNietsAlsDatNietIsGewenst) {
  SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\nOpslaanVelden=N\r\n");
  const std::string voor = Ini();
  Speel(std::string(kVul) + "druk StartExportButton", "", true);
  EXPECT_EQ(opties_.maxJaartal, 1850);
  EXPECT_EQ(Ini(), voor);
}

TEST_F(ExpGCIParamTest, TerugKiestNietsEnBewaartNiets) {
  const std::string voor = Ini();
  Speel(std::string(kVul) + "druk BackButton", "");
  EXPECT_EQ(opties_.maxJaartal, 1900);
  EXPECT_EQ(Ini(), voor);
}

}  // namespace
}  // namespace lb77
