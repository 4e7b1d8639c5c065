// `contactdienst` as a command.
#include "cli/OpdrachtToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n"
    "0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1860\n2 PLAC Delft\n"
    "0 @I2@ INDI\n1 NAME Els /Vos/\n1 SEX F\n1 BIRT\n2 DATE 1 FEB 1870\n2 PLAC Dorp\n"
    "0 TRLR\n";

// Records of a width behind a header of a length, as the service has them.
std::string Tabel(std::size_t kop, std::size_t breedte, std::string_view rij) {
  std::string uit(kop, '\0');
  uit[4] = 1;
  uit += " " + std::string(rij);
  uit.resize(kop + 1 + breedte, ' ');
  return uit;
}

class ContactdienstToets : public OpdrachtToets {
 protected:
  void SetUp() override {
    MaakFamilie(kGedcom);
    SchrijfBytes(map_ / "GCIPLT!!.DBF", Tabel(130, 31, "Delft                       NL "));
    SchrijfBytes(map_ / "GCIPRV!!.DBF", Tabel(98, 23, "ZH Zuid-Holland"));
    SchrijfBytes(map_ / "GCILND!!.DBF", Tabel(98, 23, "B  Belgie"));
  }
  int Contact(std::vector<std::string> zet = {}) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie"};
    argumenten.zet = std::move(zet);
    return Doe("contactdienst", argumenten);
  }
  [[nodiscard]] std::filesystem::path Tekst(const char* naam) const {
    return map_ / "DATA" / "FAMILIE" / "TEKST" / naam;
  }
};

TEST_F(ContactdienstToets, MaaktDeBestandenEnDruktHetLogAf) {
  EXPECT_EQ(Contact(), 0) << fout_;
  EXPECT_EQ(LeesBytes(Tekst("CONTACT.FAM")),
            "VAN DAM                  Delft                       NL 18601860      \r\n");
  EXPECT_EQ(LeesBytes(Tekst("CONTACT.INZ")).size(), 154U);
  EXPECT_EQ(uit_, "Log-file: " + Tekst("GCI.LOG").string() +
                      "\nStart export (20261121120000)\nGeen achternamen overgeslagen\n"
                      "Plaats overgeslagen: Dorp\nTotaal: 1 plaats overgeslagen\n"
                      "Totaal: 1 reeksen ge\xC3\xABxporteerd\nUitvoerbestanden: " +
                      Tekst("CONTACT.INZ").string() + "\n              en: " +
                      Tekst("CONTACT.FAM").string() + "\nExport voltooid\n");
  EXPECT_EQ(fout_,
            "Dorp, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ? -> Nee\n"
            "Plaats onbekend: Dorp.\nPlaats toch mee uitvoeren ? -> Nee\nExport voltooid\n");
}

// As real tables have it: imported places know no province.
TEST_F(ContactdienstToets, EenPlaatsZonderProvincieKrijgtDeEnigeVanDieNaam) {
  SchrijfBytes(map_ / "GCIPLT!!.DBF", Tabel(130, 31, "Delft                    ZH NL "));
  EXPECT_EQ(Contact(), 0) << fout_;
  EXPECT_EQ(LeesBytes(Tekst("CONTACT.FAM")),
            "VAN DAM                  Delft                    ZH NL 18601860      \r\n");
  EXPECT_TRUE(
      fout_.starts_with("De enige van die naam voor plaatscode 2 - Delft\n"
                        "Gevonden: Delft, ZH, NL\n"))
      << fout_;
}

TEST_F(ContactdienstToets, EenAchternaamMetEenVerkeerdTekenWordtOvergeslagen) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / "meer.ged";
  SchrijfBytes(argumenten.bestand,
               "0 HEAD\n0 @I1@ INDI\n1 NAME Jan /V<s/\n1 BIRT\n2 DATE 1860\n2 PLAC Delft\n"
               "0 @I2@ INDI\n1 NAME Piet /V<s/\n0 @I3@ INDI\n1 NAME Els /Vos/\n1 BIRT\n"
               "2 DATE 1860\n2 PLAC Delft\n0 TRLR\n");
  ASSERT_EQ(Doe("importeer", argumenten), 0) << fout_;
  EXPECT_EQ(Contact(), 0) << fout_;
  EXPECT_NE(
      uit_.find("\nNaam overgeslagen: V<s\nNaam overgeslagen: V<s\nPlaats overgeslagen: Dorp\n"),
      std::string::npos)
      << uit_;
  EXPECT_NE(uit_.find("\nTotaal: 2 reeksen "), std::string::npos);
}

TEST_F(ContactdienstToets, NeemtKeuzesEnBewaartZeNiet) {
  const std::string voor = LeesBytes(map_ / "LIJNBOOM.INI");
  EXPECT_EQ(Contact({"MaxJaartal=1859"}), 1);
  EXPECT_NE(uit_.find("Geen reeksen gevonden.\nGeen uitvoerbestanden aangemaakt.\n"),
            std::string::npos);
  EXPECT_NE(fout_.find("\nEr zijn geen bestanden voor de Contactdienst gemaakt\n"),
            std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(Tekst("CONTACT.FAM")));
  EXPECT_EQ(LeesBytes(map_ / "LIJNBOOM.INI"), voor);
}

TEST_F(ContactdienstToets, EenKeuzeDieNietKanEindigtHetWerk) {
  EXPECT_EQ(Contact({"MaxJaartal=1700"}), 1);
  EXPECT_NE(fout_.find("Jaartal (1800-2026)\n"), std::string::npos) << fout_;
  EXPECT_EQ(uit_, "");
}

TEST_F(ContactdienstToets, ZonderTabelZijnErGeenBestanden) {
  std::filesystem::remove(map_ / "GCIPRV!!.DBF");
  EXPECT_EQ(Contact(), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(fout_, "Kan GCI-provinciebestand " + (map_ / "GCIPRV!!.DBF").string() +
                       " niet openen\nEr zijn geen bestanden voor de Contactdienst gemaakt\n");
}

TEST_F(ContactdienstToets, HetLogGaatOokNaarEenBestand) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.naar = map_ / "log.txt";
  EXPECT_EQ(Doe("contactdienst", argumenten), 0) << fout_;
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(LeesBytes(map_ / "log.txt"), LeesBytes(Tekst("GCI.LOG")));
}

}  // namespace
}  // namespace lb77
