#include <vector>

#include "entry/OpmTekst.h"
#include "entry/OpmToets.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

std::vector<std::string> Gebroken(const std::string& tekst, bool geheel = true) {
  const OpmAfgebroken uit = BreekOpmerkingAf(tekst);
  EXPECT_EQ(uit.geheel, geheel);
  std::vector<std::string> regels(uit.regels.begin(), uit.regels.end());
  while (!regels.empty() && regels.back().empty()) regels.pop_back();
  return regels;
}

using Rijen = std::vector<std::string>;

std::string Xen(std::size_t aantal) {
  return std::string(aantal, 'x');
}

TEST(BreekOpmerkingAf, WatOpEenRegelPastBlijftDaar) {
  EXPECT_EQ(Gebroken(""), Rijen{});
  EXPECT_EQ(Gebroken("   "), Rijen{});
  EXPECT_EQ(Gebroken("  Een woord  en nog een "), Rijen{"Een woord  en nog een"});
  EXPECT_EQ(Gebroken(Xen(80)), Rijen{Xen(80)});
}

TEST(BreekOpmerkingAf, EenWoordTotPrecies80BlijftOpDeEersteRegel) {
  EXPECT_EQ(Gebroken("aa " + Xen(77) + " volgende"), (Rijen{"aa " + Xen(77), "volgende"}));
  EXPECT_EQ(Gebroken("aa " + Xen(76) + "  volgende"), (Rijen{"aa " + Xen(76), "volgende"}));
}

TEST(BreekOpmerkingAf, EenWoordDatNietPastGaatNaarDeVolgendeRegel) {
  EXPECT_EQ(Gebroken("aa " + Xen(78)), (Rijen{"aa", Xen(78)}));
  EXPECT_EQ(Gebroken(Xen(40) + "   " + Xen(40)), (Rijen{Xen(40), Xen(40)}));
}

TEST(BreekOpmerkingAf, EenWoordLangerDanEenRegelWordtAfgekapt) {
  EXPECT_EQ(Gebroken(Xen(81)), (Rijen{Xen(80), "x"}));
  EXPECT_EQ(Gebroken("a " + Xen(170)), (Rijen{"a", Xen(80), Xen(80), Xen(10)}));
}

TEST(BreekOpmerkingAf, NaTienRegelsIsHetVol) {
  EXPECT_EQ(Gebroken(Xen(800)), Rijen(10, Xen(80)));
  EXPECT_EQ(Gebroken(Xen(800) + "   "), Rijen(10, Xen(80)));
  EXPECT_EQ(Gebroken(Xen(810), false), Rijen(10, Xen(80)));
  EXPECT_EQ(Gebroken(Xen(800) + " y", false), Rijen(10, Xen(80)));
}

TEST(BreekOpmerkingAf, EenRegeleindeIsEenBlanco) {
  EXPECT_EQ(Gebroken("een\ntwee\r\n\ndrie\tvier\n"), Rijen{"een twee   drie vier"});
  EXPECT_EQ(Gebroken(Xen(50) + "\n" + Xen(50)), (Rijen{Xen(50), Xen(50)}));
}

// The euro is stored as two characters.
TEST(BreekOpmerkingAf, EenRegelIsZoLangAlsHijWordtOpgeslagen) {
  const std::string euro("€"_w);
  const std::string e("é"_w);
  EXPECT_EQ(Gebroken(Xen(79) + euro), (Rijen{Xen(79) + "C", "="}));
  EXPECT_EQ(Gebroken(Xen(78) + e + euro), (Rijen{Xen(78) + e + "C", "="}));
  EXPECT_EQ(Gebroken(Xen(79) + e), Rijen{Xen(79) + e});
}

class LeesOpmerkingToets : public OpmToets {
 protected:
  OpmInhoud Lees(std::int16_t regel = 1) {
    OpmInhoud uit;
    Stil([&](Hoofdmodule& hoofd) {
      EXPECT_TRUE(hoofd.Persoon.Lees(2));
      const std::int16_t code = hoofd.Persoon.OpmCode();
      const std::int16_t begin = hoofd.Persoon.OpmRecord();
      uit = LeesOpmerking(hoofd.Opmerking, code, begin, persoonrubriek::kVoornaam, regel);
      tekst_ = OpmTekst(hoofd.Opmerking, code, begin, persoonrubriek::kVoornaam, regel);
    });
    return uit;
  }
  void Maak(const Rijen& regels) {
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, regels, 5);
  }
  std::string tekst_;
};

TEST_F(LeesOpmerkingToets, ZonderOpmerkingIsAllesLeeg) {
  const OpmInhoud inhoud = Lees();
  EXPECT_FALSE(inhoud.Bestaat());
  EXPECT_TRUE(inhoud.heel);
  EXPECT_EQ(inhoud.prog, 0);
  EXPECT_EQ(inhoud.Tekst() + tekst_, "");
}

TEST_F(LeesOpmerkingToets, VindtDeTweedeVanDeRubriekEnWatErVoorStaat) {
  Maak({"een", "twee"});
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"ander"});
  Maak({"drie"});
  const OpmInhoud inhoud = Lees(11);
  EXPECT_EQ(inhoud.recnrs, (OpmRecnrs{5}));
  EXPECT_EQ(inhoud.vorige, 4);
  EXPECT_EQ(inhoud.prog, 5);
  EXPECT_EQ(tekst_, "drie");
  EXPECT_EQ(Lees().Tekst(), "een twee");
  EXPECT_FALSE(Lees(21).Bestaat());
}

TEST_F(LeesOpmerkingToets, WatAchterEenLegeRegelStaatHoortErbijMaarWordtNietGetoond) {
  Maak({"een", "twee", "drie"});
  std::string bytes = LeesBytes(OpmBestand());
  bytes.replace(2 * 96 + 10, 80, 80, ' ');
  SchrijfBytes(OpmBestand(), bytes);
  EXPECT_EQ(Lees().Tekst(), "een drie");
  EXPECT_EQ(Lees().recnrs, (OpmRecnrs{2, 3, 4}));
  EXPECT_TRUE(Lees().heel);
  EXPECT_EQ(tekst_, "een");
}

TEST_F(LeesOpmerkingToets, EenFouteVerwijzingZegtDatEenKeer) {
  Maak({"een", "twee"});
  ZetGetal(3, 6, 99);
  EXPECT_FALSE(Lees().heel);
  EXPECT_EQ(tekst_, "een twee >> Verkeerde verwijzing: opm-record 99 bestaat niet <<");
}

TEST_F(LeesOpmerkingToets, EenKringVanRegelsIsNietHeel) {
  Maak({"een", "twee", "drie", "vier", "vijf", "zes", "zeven", "acht", "negen", "tien"});
  Maak({"nog een"});
  ZetGetal(3, 6, 2);
  const OpmInhoud inhoud = Lees();
  EXPECT_FALSE(inhoud.heel);
  EXPECT_EQ(inhoud.recnrs, (OpmRecnrs{2, 3, 2, 3, 2, 3, 2, 3, 2, 3}));
}

TEST_F(LeesOpmerkingToets, EenRegelVanEenAndereRubriekIsNietHeel) {
  Maak({"een"});
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"ander"});
  ZetGetal(2, 6, 3);
  EXPECT_FALSE(Lees().heel);
}

TEST_F(LeesOpmerkingToets, WatDeSchijfWeigertIsNietHeel) {
  Maak({"een", "twee", "drie"});
  MaakOnleesbaar(BestandSoort::Opmerkingen, 3);
  Verwacht(
      "",
      [](Hoofdmodule& hoofd) {
        const OpmInhoud inhoud = LeesOpmerking(hoofd.Opmerking, 2, 2, 2, 1);
        EXPECT_FALSE(inhoud.heel);
        EXPECT_EQ(inhoud.Tekst(), "een >> Leesfout opm-record 3 bestaat niet <<");
      },
      R"(
    ! stop "Fout bij het lezen van Opmrecord 3\nFout van de schijf"
    ! stop "Fout bij het lezen van Opmrecord 3\nFout van de schijf"
  )");
}

}  // namespace
}  // namespace lb77
