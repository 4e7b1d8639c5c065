#include "OpdrachtToets.h"
#include "app/Hoofdmodule.h"
#include "steun/NepGesprek.h"
#include "store/OpmVelden.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n0 @I1@ INDI\n1 NAME Jan //\n1 NOTE een\n0 @I2@ INDI\n1 NOTE twee\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n0 TRLR\n";
constexpr std::size_t kOpmRecord = 96;
constexpr std::int16_t kOpEenNaVol = 32766;

class ImporteerVolToets : public OpdrachtToets {
 protected:
  // Leaves room for one more remark.
  void VulOpmerkingen() {
    const SetPaden paden = SetPaden::Van(map_ / "DATA", "FAMILIE");
    std::string bytes = LeesBytes(paden.opm);
    const std::string laatste = bytes.substr(bytes.size() - kOpmRecord);
    while (bytes.size() < kOpmRecord * kOpEenNaVol) bytes += laatste;
    bytes[opmveld::Rubriek.plaats] = static_cast<char>(kOpEenNaVol & 255);
    bytes[opmveld::Rubriek.plaats + 1] = static_cast<char>(kOpEenNaVol >> 8);
    SchrijfBytes(paden.opm, bytes);
    NepGesprek niemand;
    Hoofdmodule hoofd(niemand, klok_, map_.Pad());
    ASSERT_FALSE(hoofd.bestanden.OpenSet(paden));
    ASSERT_TRUE(hoofd.Opmerking.LeesAdmin());
    ASSERT_TRUE(hoofd.Opmerking.SchrijfAdm(kOpEenNaVol, kOpEenNaVol + 1, kOpEenNaVol - 1));
  }
};

TEST_F(ImporteerVolToets, EenVolOpmerkingenbestandZegtWatWelIsOpgeslagen) {
  MaakFamilie(kGedcom);
  VulOpmerkingen();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / "familie.ged";
  EXPECT_EQ(Doe("importeer", argumenten), 1);
  EXPECT_EQ(uit_,
            "Opmerkingen vanaf persoon 5 zijn niet opgeslagen: het maximum van 32767 records is "
            "bereikt\n"
            "LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 1 regel\n"
            "Importeren voltooid\n");
  EXPECT_NE(
      fout_.find("Opgeslagen zijn 2 personen en 1 relaties, en een deel van de opmerkingen\n"),
      std::string::npos)
      << fout_;
}

class ImporteerHalfToets : public OpdrachtToets {};

TEST_F(ImporteerHalfToets, EenRegelDieGeenGedcomIsEindigtMetEenEnZegtWaarHetStaat) {
  MaakFamilie(kGedcom);
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / "half.ged";
  SchrijfBytes(argumenten.bestand, "0 HEAD\n0 @I1@ INDI\n1 NOTE een\ntwee\n0 TRLR\n");
  EXPECT_EQ(Doe("importeer", argumenten), 1);
  EXPECT_EQ(uit_,
            "LET OP: gestopt bij regel 4: GEDCOM Fout: Regel begint niet met een levelnummer\n"
            "LET OP: zonder gegevens gebleven: 1 persoon en 0 relaties\n"
            "LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 3 regels\n"
            "Importeren voltooid\n");
  EXPECT_NE(fout_.find("Het bestand is niet heel ingelezen: GEDCOM.LOG en GEDCOM.RST zeggen wat er "
                       "ontbreekt\n"),
            std::string::npos)
      << fout_;
}

class ImporteerUnicodeToets : public OpdrachtToets {};

TEST_F(ImporteerUnicodeToets, EenBestandInUnicodeWordtOmgezet) {
  MaakFamilie(
      "\xEF\xBB\xBF"
      "0 HEAD\n0 @I1@ INDI\n1 NAME Zoë /中/\n0 TRLR\n");
  EXPECT_NE(fout_.find("Omzetten naar de tekenset van het programma ? -> Ja\n"), std::string::npos);
  EXPECT_EQ(uit_,
            "LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 1 regel\n"
            "LET OP: teken U+4E2D niet overgenomen: 1 keer, voor het eerst in regel 3\n"
            "Importeren voltooid\n");
  EXPECT_EQ(Doe("toon", {"familie", "2"}), 0) << fout_;
  EXPECT_NE(uit_.find("Zoë"), std::string::npos);
}

}  // namespace
}  // namespace lb77
