// The run: its steps, its files, and each way in which it can end.
#include "app/Start.h"
#include "contact/ContactToets.h"
#include "contact/ExpGCI.h"
#include "steun/VolleSchijf.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class ExpGCITest : public ContactToets {
 protected:
  ExpGCITest() {
    MaakTabellen({PlaatsRij("Delft", "ZH", "NL"), PlaatsRij("Breda", "NB", "NL")});
    Bouw().Plaats("Delft", "ZH");
    Bouw().Plaats("Breda", "NB");
  }
  // A man who was born in that place and year.
  std::int16_t Geboren(std::string_view naam, int jaar, int plaats = 2) {
    return Bouw().Man(
        "Jan", naam,
        {{"GebPlaats", GetalTekst(plaats)}, {"GebDatum", "00-00-" + GetalTekst(jaar)}});
  }
  // No files, and no log.
  void Mislukt(const std::string& melding, const Plek& plek = Plek::current()) {
    Exporteer("", "! " + melding + "\n", plek);
    EXPECT_FALSE(HeeftUitvoer());
    EXPECT_EQ(Log(), "");
  }
  [[nodiscard]] std::string Pad(const char* naam) const { return (TekstMap() / naam).string(); }
};

const std::string kNiets =
    R"(! uitroep "Geen reeksen gevonden.\nGeen uitvoerbestanden aangemaakt."
       + ToonTekst "Exporteren - Resultaat"
       - ToonTekst
    )";
const std::string kAfgebroken =
    R"(! uitroep "Verwerking afgebroken.\nGeen uitvoerbestanden aangemaakt."
       + ToonTekst "Exporteren - Resultaat"
       - ToonTekst
    )";

TEST_F(ExpGCITest, SchrijftDeInzenderEnDeReeksen) {
  SchrijfIni(
      "[Gebruiker]\r\nLidnr=4711\r\nNaam=de Boer\r\nVoornaam=A.\r\nAdres=Laan 1\r\n"
      "Postcode=1000 AA\r\nPlaats=Breda\r\nLand=Nederland\r\nGeslacht=M\r\n");
  opties_.geslacht = "V";
  opties_.email = "ik@example.org";
  Geboren("van der Berg", 1800);
  Geboren("van der Berg", 1850);
  Lukt();
  EXPECT_EQ(Inz(),
            "4711  de Boer                  A.        VLaan 1                      1000 AABreda   "
            "                 NL             ik@example.org                     \r\n");
  EXPECT_EQ(Fam(), "VAN DER BERG             Delft                    ZH NL 180018504711  \r\n");
  EXPECT_EQ(LogRegels(),
            "Geen achternamen overgeslagen\nGeen plaatsnamen overgeslagen\nTotaal: 1 reeksen "
            "ge\xEBxporteerd\nUitvoerbestanden: " +
                Pad("CONTACT.INZ") + "\n              en: " + Pad("CONTACT.FAM") +
                "\nExport voltooid\n");
}

TEST_F(ExpGCITest, ToontHoeVerHetIs) {
  Geboren("Vos", 1800);
  Geboren("Vos", 1870);
  Geboren("Bos", 1800);
  Geboren("Bos", 1810);
  Geboren("Abel", 1800);
  const Taak taak = [this](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    ExpGCI form(hoofd, opties_);
    EXPECT_EQ(form.HulpOnderwerp(), "contactdienst");
    hoofd.gesprek.ToonModaal(form);
    EXPECT_EQ(form.PlaatsenGedaan.Tekst(), "2");
    EXPECT_EQ(form.ProvinciesGedaan.Tekst(), "3");
    EXPECT_EQ(form.LandenGedaan.Tekst(), "4");
    EXPECT_EQ(form.PersonenGedaan.Tekst(), "5");
    EXPECT_EQ(form.ReeksenGedaan.Tekst(), "4");
    EXPECT_EQ(form.NamenGedaan.Tekst(), "3");
    for (const char* nummer : {"1", "2", "3", "4", "5", "6"}) {
      const std::string pass = std::string("Pass") + nummer;
      EXPECT_EQ(form.Zoek(pass + "box")->Waarde(), "aan");
      EXPECT_FALSE(form.Zoek(pass + "Label")->Zichtbaar());
    }
  };
  Verwacht("druk BackButton", taak, R"~(
    + ExpGCI "Exporteer in HSK Contactdienst formaat (GCI)"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
    - ExpGCI
  )~");
}

// Which label shows, and which steps are ticked, each time that this changes.
class Stappenteller final : public NeeGesprek {
 public:
  void Ververs(Formulier& formulier) override {
    std::string nu;
    for (const char nummer : std::string("123456")) {
      const std::string pass = std::string("Pass") + nummer;
      if (formulier.Zoek(pass + "Label")->Zichtbaar()) nu.insert(0, 1, nummer);
      nu += formulier.Zoek(pass + "box")->Waarde() == "aan" ? 'x' : '.';
    }
    if (gezien_.empty() || gezien_.back() != nu) gezien_.push_back(nu);
  }
  [[nodiscard]] const std::vector<std::string>& Gezien() const { return gezien_; }

 private:
  std::vector<std::string> gezien_;
};

TEST_F(ExpGCITest, VinktDeStappenAfEnZegtWaarHetMeeBezigIs) {
  Geboren("Vos", 1800);
  Stappenteller teller;
  MetGesprek(teller, [this](Hoofdmodule& hoofd) {
    ExpGCI form(hoofd, opties_);
    hoofd.gesprek.ToonModaal(form);
    EXPECT_TRUE(form.Gelukt());
  });
  EXPECT_EQ(teller.Gezien(), (std::vector<std::string>{"1......", "2x.....", "3xx....", "4xxx...",
                                                       "5xxxx..", "6xxxxx."}));
}

TEST_F(ExpGCITest, IsNietBezigZolangDeGebruikerKiestOfLeest) {
  Bouw().Plaats("Dorp", "ZH");
  Geboren("Vos", 1800);
  Geboren("Vos", 1800, 4);
  Corrector corrector;
  MetGesprek(corrector, [this](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<ExpGCI>(hoofd, opties_); });
  EXPECT_EQ(corrector.Bezig(), "ExpGCICorr wacht. ToonTekst wacht. ");
}

TEST_F(ExpGCITest, SamenvoegenEnZevenAanHunGrenzen) {
  Geboren("Vos", 1800);
  Geboren("Vos", 1850);
  Geboren("Bos", 1800);
  Geboren("Bos", 1851);
  Geboren("Mos", 1900);
  Geboren("Mos", 1901);
  Geboren("Kos", 1901);
  Lukt();
  EXPECT_EQ(Reeksen(),
            "BOS Delft ZH NL 18001800\nBOS Delft ZH NL 18511851\nMOS Delft ZH NL 19001900\n"
            "VOS Delft ZH NL 18001850\n");
  opties_.aantalPersonen = 2;
  opties_.maxGat = 51;
  Lukt();
  EXPECT_EQ(Reeksen(),
            "BOS Delft ZH NL 18001851\nMOS Delft ZH NL 19001900\nVOS Delft ZH NL 18001850\n");
  opties_.minJaren = 51;
  Lukt();
  EXPECT_EQ(Reeksen(), "BOS Delft ZH NL 18001851\n");
}

TEST_F(ExpGCITest, EenNaamMetEenStreepKommaOfHaakjesGeeftErTwee) {
  Geboren("Vos/Wolf", 1800);
  Geboren("Bos, Mos", 1800);
  Geboren("Jans(s)en", 1800);
  Lukt();
  EXPECT_EQ(Reeksen(),
            "BOS Delft ZH NL 18001800\nJANSEN Delft ZH NL 18001800\nJANSSEN Delft ZH NL 18001800\n"
            "MOS Delft ZH NL 18001800\nVOS Delft ZH NL 18001800\nWOLF Delft ZH NL 18001800\n");
}

TEST_F(ExpGCITest, EenOnevenAantalHaakjesWordtPerNaamGemeld) {
  Geboren("Jans(en", 1800);
  Geboren("Jans(en", 1801);
  Geboren("Bos]", 1801);
  Geboren("Vos", 1801);
  Exporteer("druk BackButton", R"~(
    ! uitroep "Ongeldige naam: Jans(en (oneven aantal haakjes)"
    ! uitroep "Ongeldige naam: Bos] (oneven aantal haakjes)"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )~");
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18011801\n");
  EXPECT_TRUE(
      LogRegels().starts_with("Naam overgeslagen: Jans(en (oneven aantal haakjes)\n"
                              "Naam overgeslagen: Bos] (oneven aantal haakjes)\nGeen plaatsnamen "))
      << LogRegels();
}

TEST_F(ExpGCITest, EenOngeldigTekenWordtPerPersoonGevraagd) {
  Geboren("V<s", 1800);
  Geboren("V<s", 1801);
  Geboren("{Bos", 1801);
  Geboren("Vos", 1801);
  Exporteer("antwoord OK OK OK\ndruk BackButton", R"(
    ? uitroep OK/Annuleren "Ongeldig teken < in achternaam: V<s\nAchternaam wordt overgeslagen." -> OK
    ? uitroep OK/Annuleren "Ongeldig teken < in achternaam: V<s\nAchternaam wordt overgeslagen." -> OK
    ? uitroep OK/Annuleren "Ongeldig teken { in achternaam: {Bos\nAchternaam wordt overgeslagen." -> OK
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18011801\n");
  EXPECT_TRUE(LogRegels().starts_with(
      "Naam overgeslagen: V<s\nNaam overgeslagen: V<s\nNaam overgeslagen: {Bos\n"
      "Geen plaatsnamen overgeslagen\nTotaal: 1 "))
      << LogRegels();
}

TEST_F(ExpGCITest, AnnulerenBijEenNaamBreektAfMetWatIsOvergeslagenInHetLog) {
  Geboren("V<s", 1800);
  Geboren("B>s", 1801);
  Exporteer("antwoord OK Annuleren\ndruk BackButton", R"(
    ? uitroep OK/Annuleren "Ongeldig teken < in achternaam: V<s\nAchternaam wordt overgeslagen." -> OK
    ? uitroep OK/Annuleren "Ongeldig teken > in achternaam: B>s\nAchternaam wordt overgeslagen." -> Annuleren
  )" + kAfgebroken);
  EXPECT_EQ(LogRegels(),
            "Naam overgeslagen: V<s\nGeen plaatsnamen overgeslagen\nVerwerking afgebroken.\n"
            "Geen uitvoerbestanden aangemaakt.\n");
  EXPECT_FALSE(HeeftUitvoer());
}

TEST_F(ExpGCITest, AnnulerenBijEenPlaatsBreektAfMetWatIsOvergeslagenInHetLog) {
  Bouw().Plaats("Dorp", "ZH");
  Bouw().Plaats("Oord", "ZH");
  Geboren("Vos", 1800, 4);
  Geboren("Vos", 1800, 5);
  Exporteer("antwoord Nee Nee Annuleren\ndruk BackButton", R"(
    ? vraag Ja/Nee/Annuleren "Dorp, ZH, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaats onbekend: Dorp.\nPlaats toch mee uitvoeren ?" -> Nee
    ? vraag Ja/Nee/Annuleren "Oord, ZH, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Annuleren
  )" + kAfgebroken);
  EXPECT_EQ(
      LogRegels(),
      "Geen achternamen overgeslagen\nPlaats overgeslagen: Dorp\nTotaal: 1 plaats overgeslagen\n"
      "Verwerking afgebroken.\nGeen uitvoerbestanden aangemaakt.\n");
}

TEST_F(ExpGCITest, ZonderReeksenZijnErGeenBestanden) {
  Exporteer("druk BackButton", kNiets);
  EXPECT_EQ(LogRegels(),
            "Geen achternamen overgeslagen\nGeen plaatsnamen overgeslagen\nGeen reeksen gevonden.\n"
            "Geen uitvoerbestanden aangemaakt.\n");
  EXPECT_FALSE(HeeftUitvoer());
  Geboren("Vos", 1901);
  Exporteer("druk BackButton", kNiets);
}

TEST_F(ExpGCITest, WatErLagBlijftAlsErNietsKomt) {
  SchrijfBytes(Pad("CONTACT.INZ"), "oud");
  SchrijfBytes(Pad("CONTACT.FAM"), "oud");
  Exporteer("druk BackButton", kNiets);
  EXPECT_EQ(Inz(), "oud");
  EXPECT_EQ(Fam(), "oud");
}

TEST_F(ExpGCITest, StoptInElkeStapAlsDeGebruikerDatWil) {
  for (int n = 0; n < 3; ++n) Geboren("Vos", 1800 + 60 * n / 2);
  // Two places, three provinces and four countries; four persons, of whom the last is not there;
  // three series to place, and one to write.
  for (int bij = 1; bij <= 17; ++bij) {
    Exporteer("onderbreek " + std::to_string(bij) + "\nantwoord Ja\ndruk BackButton",
              "? vraag Ja/Nee \"Opbouw Afbreken ?\" -> Ja\n" + kAfgebroken);
    EXPECT_FALSE(HeeftUitvoer()) << bij;
    EXPECT_EQ(LogRegels(),
              "Geen achternamen overgeslagen\nGeen plaatsnamen overgeslagen\n"
              "Verwerking afgebroken.\nGeen uitvoerbestanden aangemaakt.\n");
  }
  EXPECT_EQ(Fam(), "");
}

TEST_F(ExpGCITest, GaatVerderNaNee) {
  Geboren("Vos", 1800);
  Exporteer("onderbreek 5\nantwoord Nee\ndruk BackButton", R"(
    ? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
}

TEST_F(ExpGCITest, EenTabelDieErNietIsGeeftZijnMeldingEnGeenBestanden) {
  Geboren("Vos", 1800);
  struct Rij {
    const char* bestand;
    const char* melding;
  };
  for (const Rij& rij :
       {Rij{"GCILND!!.DBF", "landenbestand "}, Rij{"GCIPRV!!.DBF", "provinciebestand "},
        Rij{"GCIPLT!!.DBF", "plaatsenbestand "}}) {
    std::filesystem::remove(Gci() / rij.bestand);
    Mislukt("stop \"Kan GCI-" + std::string(rij.melding) + (Gci() / rij.bestand).string() +
            " niet openen\"");
  }
}

TEST_F(ExpGCITest, EenAfgekapteTabelOfEenTeGroteTellingGeeftZijnMeldingEnGeenBestanden) {
  Geboren("Vos", 1800);
  const std::string heel = LeesBytes(Gci() / "GCILND!!.DBF");
  SchrijfBytes(Gci() / "GCILND!!.DBF", heel.substr(0, heel.size() - 1));
  Mislukt("stop \"Het bestand is korter dan het zelf zegt\"");
  SchrijfBytes(Gci() / "GCIPRV!!.DBF", Dbf(98, 23, {CodeRij("ZH", "Zuid-Holland")}, 2));
  Mislukt("stop \"Het bestand is korter dan het zelf zegt\"");
  SchrijfBytes(Gci() / "GCIPLT!!.DBF", Dbf(130, 31, {}));
  Mislukt("uitroep \"Fout: geen plaatsen in GCI plaatsenbestand gevonden\"");
}

TEST_F(ExpGCITest, EenRelatieveMapLigtInDieVanHetProgrammaEnEenVolledigeIsZichzelf) {
  Geboren("Vos", 1800);
  const TijdelijkeMap elders;
  std::filesystem::rename(Gci(), elders / "tabellen");
  SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\nData=" + Map().string() +
                                           "\r\n[GCI]\r\nData=" + (elders / "tabellen").string() +
                                           "\r\n");
  Lukt();
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
}

TEST_F(ExpGCITest, EenUitvoerbestandDatNietKanHeeftZijnMeldingOokInHetLog) {
  Geboren("Vos", 1800);
  std::filesystem::create_directories(Pad("CONTACT.INZ"));
  const std::string melding =
      "Fout: Kan uitvoerbestand voor inzendergegevens " + Pad("CONTACT.INZ") + " niet openen";
  Exporteer("druk BackButton", "! stop \"" + melding + R"(\nPad is een directory"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(LogRegels(), "Geen achternamen overgeslagen\nGeen plaatsnamen overgeslagen\n" +
                             melding +
                             "\nPad is een directory\nGeen uitvoerbestanden aangemaakt.\n");
  EXPECT_FALSE(std::filesystem::exists(Pad("CONTACT.FAM")));
}

TEST_F(ExpGCITest, EenVolleSchijfLaatNietsHalfs) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  for (int n = 0; n < 20; ++n) Geboren("Vos" + std::to_string(n), 1800);
  {
    const VolleSchijf vol(1000);
    Exporteer("druk BackButton", "! stop \"Fout bij het schrijven van " + Pad("CONTACT.FAM") +
                                     R"(\nBestand te groot"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  }
  EXPECT_FALSE(HeeftUitvoer());
}

TEST_F(ExpGCITest, EenLogDatNietKanHeeftZijnMelding) {
  Geboren("Vos", 1800);
  std::filesystem::create_directories(Pad("GCI.LOG"));
  const Taak taak = [this](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    ExpGCI form(hoofd, opties_);
    hoofd.gesprek.ToonModaal(form);
    EXPECT_TRUE(form.Gelukt());
  };
  Verwacht("", taak,
           R"~(
    + ExpGCI "Exporteer in HSK Contactdienst formaat (GCI)"
    ! info "Export voltooid"
    ! stop "Fout bij het schrijven van )~" +
               Pad("GCI.LOG") + R"~(\nPad is een directory"
    - ExpGCI
  )~");
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
}

TEST_F(ExpGCITest, DeVragenGaanDichtVoordatHetWerkOpent) {
  Geboren("Vos", 1800);
  bool gelukt = false;
  const Taak taak = [&gelukt](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.volgers.HuidigPersoonNr = 2;
    gelukt = ExporteerContact(hoofd);
    EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
  };
  Verwacht("vul MaxJaartal 1850\ndruk StartExportButton\ndruk BackButton", taak, R"~(
    + ExpGCIParam "Exporteer in HSK Contactdienst formaat (GCI)"
    - ExpGCIParam
    + ExpGCI "Exporteer in HSK Contactdienst formaat (GCI)"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
    - ExpGCI
  )~");
  EXPECT_TRUE(gelukt);
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18001800\n");
  Verwacht("druk BackButton", taak, R"~(
    + ExpGCIParam "Exporteer in HSK Contactdienst formaat (GCI)"
    - ExpGCIParam
  )~");
  EXPECT_FALSE(gelukt);
}

}  // namespace
}  // namespace lb77
