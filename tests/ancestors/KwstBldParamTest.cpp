// Printing and saving a sheet.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "ancestors/KwstBladKeten.h"
#include "ancestors/KwstBldParam.h"
#include "app/Hoofdmodule.h"
#include "forms/Bureaublad.h"

namespace lb77 {
namespace {

class KwstBldParamToets : public KwstBladKeten {
 protected:
  // What the user does in the dialog, from the sheet of the proband.
  void InOpties(const std::string& doet, const std::string& verslag,
                const Plek& plek = Plek::current()) {
    OpBlad("druk UitvoerButton\n" + doet,
           "+ KwstBldParam \"Kwartierbladen Uitvoeropties\"\n" + verslag, plek);
  }
  [[nodiscard]] std::filesystem::path Doel() const { return Map() / "BLAD.TXT"; }
  [[nodiscard]] std::string Opslaan() const {
    const std::string filter = "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt";
    return "> opslaan \"" + filter + "\" -> \"" + Doel().string() +
           "\"\n! info \"De tekst is opgeslagen.\"\n- KwstBldParam\n";
  }
};

TEST_F(KwstBldParamToets, OpentMetDeProbandEnDeStandaard) {
  InOpties("toon\ndruk BackButton", R"(
      : KwstBldParam "Kwartierbladen Uitvoeropties"
      = NrProband "9"
      = VoorNmProband "Gerrit"
      = AchterNmProband "van Dam"
      = Periode "1810-    "
      = HSK_CBG_Box "CBG"
      = OokNrsBox "Nee"
      = CopyrightBox "Ja"
      = OokLB77Box "Ja"
      = TitelTekst "Kwartierstaat van Gerrit van Dam"
      = Inleiding1 ""
      = Inleiding2 ""
      = Inleiding3 ""
      = UTF8Box uit
      = OKButton(1) "&Afdrukken"
      = OKButton(2) "&Opslaan"
      = BackButton "&Terug"
      * HSK_CBG_Box
      - KwstBldParam
    )");
  EXPECT_EQ(gebleven_, 0);
}

TEST_F(KwstBldParamToets, DruktHetGetoondeBladAf) {
  InOpties("druk OKButton(1)\ntoon Kwartier(1)", R"(
      % afdruk 1
      - KwstBldParam
      = Kwartier(1) "Gerrit van Dam"
    )");
  EXPECT_EQ(Verslag().rfind("Kwartierstaat van Gerrit van Dam\r\n\r\n      /- 8. ?????", 0), 0U);
  EXPECT_TRUE(
      Verslag().ends_with("\r\n          Copyright (2000) J. Jansen\r\n"
                          "          Gemaakt met Lijnboom/B77\r\n"));
}

TEST_F(KwstBldParamToets, BewaartHetGetoondeBlad) {
  OpBlad(
      "druk Proband(3)\ndruk UitvoerButton\nstel HSK_CBG_Box HSK\nstel OokNrsBox Ja\n"
      "stel CopyrightBox Nee\nstel OokLB77Box Nee\nvul TitelTekst Moederskant\nbestand " +
          Doel().string() + "\ndruk OKButton(2)\ntoon Kwartier(1)",
      "+ KwstBldParam \"Kwartierbladen Uitvoeropties\"\n" + Opslaan() +
          "= Kwartier(1) \"Femke van Dam\"\n");
  const std::string blad = LeesBytes(Doel());
  EXPECT_EQ(blad, Verslag());
  EXPECT_EQ(blad.rfind("Moederskant\r\n\r\n/-24. ?????", 0), 0U);
  EXPECT_NE(blad.find(" 3. Femke van Dam [8]\r\n"), std::string::npos);
  EXPECT_EQ(blad.find("Copyright"), std::string::npos);
  EXPECT_EQ(blad.find("Gemaakt met"), std::string::npos);
}

TEST_F(KwstBldParamToets, BeideKnoppenBewarenDeVierKeuzen) {
  const std::string voor =
      "stel HSK_CBG_Box HSK\nstel OokNrsBox Ja\nstel CopyrightBox Nee\nstel OokLB77Box Nee\n";
  InOpties(voor + "druk OKButton(1)", "% afdruk 1\n- KwstBldParam");
  const std::string bewaard =
      "[KWBLD]\r\nHSK_CBG=HSK\r\nOokNummers=J\r\nOokCopyRt=N\r\nOokLB77=N\r\n";
  EXPECT_NE(Ini().find(bewaard), std::string::npos);
  SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
  InOpties(voor + "bestand " + Doel().string() + "\ndruk OKButton(2)", Opslaan());
  EXPECT_NE(Ini().find(bewaard), std::string::npos);
  InOpties("toon HSK_CBG_Box\ndruk BackButton", R"(
      = HSK_CBG_Box "HSK"
      #0 "CBG"
      #1 "HSK"
      - KwstBldParam
    )");
}

TEST_F(KwstBldParamToets, ZonderOpslaanVeldenBlijftNiets) {
  std::string ini(kIni);
  ini.replace(ini.find("OpslaanVelden=J"), 15, "OpslaanVelden=N");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  InOpties("stel HSK_CBG_Box HSK\ndruk OKButton(1)", "% afdruk 1\n- KwstBldParam");
  EXPECT_EQ(Ini(), ini);
}

TEST_F(KwstBldParamToets, EenOnbekendeLayoutIsCBG) {
  for (const std::string_view waarde : {"", "hsk", "2"}) {
    SchrijfBytes(Map() / "LIJNBOOM.INI",
                 std::string(kIni) + "[KWBLD]\r\nHSK_CBG=" + std::string(waarde) + "\r\n");
    InOpties("toon HSK_CBG_Box\ndruk BackButton", R"(
        = HSK_CBG_Box "CBG"
        #0 "CBG"
        #1 "HSK"
        - KwstBldParam
      )");
  }
}

TEST_F(KwstBldParamToets, EenBewaardeWaardeDieGeenIsIsJa) {
  SchrijfBytes(Map() / "LIJNBOOM.INI",
               std::string(kIni) + "[KWBLD]\r\nOokNummers=x\r\nOokCopyRt=x\r\nOokLB77=x\r\n");
  InOpties("druk OKButton(1)", "% afdruk 1\n- KwstBldParam");
  EXPECT_NE(Ini().find("[KWBLD]\r\nHSK_CBG=CBG\r\nOokNummers=J\r\nOokCopyRt=J\r\nOokLB77=J\r\n"),
            std::string::npos)
      << Ini();
}

TEST_F(KwstBldParamToets, EenAfgebrokenBestandsvraagLaatHetSchermStaan) {
  InOpties("bestand\ndruk OKButton(2)\ndruk BackButton", R"(
      > opslaan "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt" -> -
      - KwstBldParam
    )");
}

TEST_F(KwstBldParamToets, EenBestandDatNietKanLaatHetSchermStaan) {
  std::filesystem::create_directories(Doel());
  InOpties("bestand " + Doel().string() + "\ndruk OKButton(2)\ndruk BackButton",
           "> opslaan \"Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt\" -> \"" +
               Doel().string() +
               "\"\n! stop \"Fout bij het opslaan van de tekst.\\nPad is een directory\"\n- "
               "KwstBldParam");
}

TEST_F(KwstBldParamToets, EenTijdelijkBestandDatNietKanLaatHetSchermStaan) {
  std::filesystem::create_directories(Map() / "TEMP" / "KWSTBLAD.TMP");
  const std::string pad = (Map() / "TEMP" / "KWSTBLAD.TMP").string();
  InOpties("druk OKButton(1)\ndruk BackButton",
           "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"\n- KwstBldParam");
}

TEST_F(KwstBldParamToets, ElkeWegTerugKomtBijHetzelfdeBlad) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    OpBlad("druk Proband(2)\ndruk UitvoerButton\n" + std::string(weg) + "\ntoon Kwartier(1)", R"(
        + KwstBldParam "Kwartierbladen Uitvoeropties"
        - KwstBldParam
        = Kwartier(1) "Dirk van Dam"
      )");
    EXPECT_EQ(gebleven_, 0) << weg;
  }
}

TEST_F(KwstBldParamToets, KanInUtf8Opslaan) {
  InOpties("vul TitelTekst Kwartierstaat van Zoë\nstel UTF8Box aan\nbestand " + Doel().string() +
               "\ndruk OKButton(2)",
           Opslaan());
  EXPECT_EQ(LeesBytes(Doel()).rfind("Kwartierstaat van Zo\xC3\xAB\r\n", 0), 0U);
}

// A printer that fails, or takes the file away before it is read.
class Drukker final : public Gesprek, public Bureaublad {
 public:
  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view tekst) override {
    berichten.emplace_back(tekst);
    return Antwoord::OK;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk& afdruk) override {
    afdrukken.push_back(afdruk);
    return werkt;
  }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }
  [[nodiscard]] bool OpenInBrowser(const std::filesystem::path&) override { return false; }
  [[nodiscard]] std::optional<std::filesystem::path> VraagOpslag(
      const BestandsVraag&, const std::filesystem::path& naam) override {
    voorstellen.push_back(naam);
    return std::nullopt;
  }

  bool werkt = false;
  std::vector<std::filesystem::path> voorstellen;
  std::vector<std::string> berichten;
  std::vector<Afdruk> afdrukken;

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier&) override {}
  void Dicht(Formulier&) override {}
};

TEST_F(KwstBldParamToets, EenPrinterDieWeigertLaatHetSchermStaan) {
  Drukker drukker;
  Sessie([&](Hoofdmodule& hoofd) {
    KwstTabel tabel;
    tabel.Begin(familie_.proband, true, Kwartiernummer("1"));
    KwstOpties opties;
    opties.KwProbandNr = familie_.proband;
    std::filesystem::create_directories(hoofd.Ini.TempDir());
    KwstBldParam param(hoofd, opties, tabel, 0);
    ASSERT_TRUE(param.Laad());
    EXPECT_TRUE(param.Klik(param.OKButton(1)));
    EXPECT_FALSE(param.Gesloten());
    EXPECT_TRUE(param.Klik(param.OKButton(2)));
    drukker.werkt = true;
    EXPECT_TRUE(param.Klik(param.OKButton(1)));
    EXPECT_TRUE(param.Gesloten());
  })(drukker);
  ASSERT_EQ(drukker.afdrukken.size(), 2U);
  EXPECT_EQ(drukker.afdrukken[0].titel, "Kwartierblad");
  ASSERT_EQ(drukker.afdrukken[0].paginas.size(), 1U);
  EXPECT_EQ(drukker.afdrukken[0].paginas[0][0], "Kwartierstaat van Gerrit van Dam");
  EXPECT_TRUE(drukker.berichten.empty());
  ASSERT_EQ(drukker.voorstellen.size(), 1U);
  EXPECT_EQ(drukker.voorstellen.front(), "Kwartierblad Gerrit van Dam.txt");
}

}  // namespace
}  // namespace lb77
