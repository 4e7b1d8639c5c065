// The two forms of the grammar say the same.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "output/Verteller.h"
#include "output/ZinToets.h"
#include "output/Zinnen.h"

namespace lb77 {
namespace {

// Records with fields at random: known or not, whole or in part, with any correction and remark.
class ZinvormenTest : public ZinToets {
 protected:
  ZinvormenTest() {
    for (const std::string_view naam : {"Edam", "Hoorn", "Oud Ade"}) bouw_.Plaats(naam);
  }

  int Tot(unsigned n) { return static_cast<int>(toeval_() % n); }
  bool Soms(unsigned n) { return Tot(n) == 0; }

  std::string Plaats() {
    const int offset = Soms(4) ? 10000 * (1 + Tot(2)) : 0;
    return Soms(2) ? "0" : std::to_string(2 + Tot(3) + offset);
  }
  std::string Datum() {
    if (Soms(3)) return "00-00-0000";
    const std::string dag = Soms(3) ? "00" : std::to_string(10 + Tot(3));
    const std::string maand = Soms(3) ? "00" : std::to_string(10 + Tot(3));
    return dag + "-" + maand + "-" + (Soms(6) ? "0000" : std::to_string(1800 + Tot(3)));
  }
  std::string Corr() { return std::string(1, " CVNTT"[Tot(6)]); }

  std::int16_t WillekeurigePersoon() {
    return bouw_.Man("Jan", "Bos",
                     {{"GebPlaats", Plaats()},
                      {"GebDatum", Datum()},
                      {"GebCorr", Corr()},
                      {"DoopPlaats", Plaats()},
                      {"DoopDatum", Datum()},
                      {"DoopReligie", Soms(2) ? "NH" : ""},
                      {"Beroep", Soms(2) ? "smid" : ""},
                      {"OvlPlaats", Plaats()},
                      {"OvlDatum", Datum()},
                      {"OvlCorr", Corr()},
                      {"BegrPlaats", Plaats()},
                      {"BegrDatum", Datum()},
                      {"BegrCrem", Soms(3) ? "1" : "0"},
                      {"OpmCode", std::to_string(Soms(2) ? 0 : Tot(8192))}});
  }
  std::int16_t WillekeurigeRelatie() {
    return Huwelijk({{"OtrPlaats", Plaats()},
                     {"OtrDatum", Datum()},
                     {"WHuwPlaats", Plaats()},
                     {"WHuwDatum", Datum()},
                     {"HuwCorr", Corr()},
                     {"KHuwPlaats", Plaats()},
                     {"KHuwDatum", Datum()},
                     {"Religie", Soms(2) ? "NH" : ""},
                     {"HuwSoort", Soms(2) ? "BS" : ""},
                     {"KHuwSch", Soms(4) ? "1" : "0"},
                     {"HuwSwPs", std::to_string(Tot(3))},
                     {"OpmCode", std::to_string(Soms(2) ? 0 : -Tot(512))}});
  }

  std::mt19937 toeval_{1602};
};

// The string has the number glued to the name, the report behind a blank; all else is the same.
TEST_F(ZinvormenTest, EenPersoonLeestInBeideVormenGelijk) {
  ZinOpties opties;
  opties.ookOpm = opties.ookNrs = true;
  for (int i = 0; i < 400; ++i) {
    const std::int16_t nr = WillekeurigePersoon();
    const std::string getal = std::to_string(nr);
    const std::string kop = "Jan Bos(" + getal + ")";
    const std::string zin = Zinnen(bronnen_).PersoonZin(nr);
    ASSERT_EQ(zin.substr(0, kop.size()), kop);
    ASSERT_EQ(Verteld(nr, opties), "Jan Bos [" + getal + "]" + zin.substr(kop.size()));
  }
}

TEST_F(ZinvormenTest, ZonderOpmerkingenLeestEenPersoonAlsEenZonder) {
  for (int i = 0; i < 200; ++i) {
    const std::int16_t nr = WillekeurigePersoon();
    const std::string met = Verteld(nr);
    bouw_.WijzigPersoon(nr, {{"OpmCode", "0"}});
    ASSERT_EQ(met, Verteld(nr));
    const std::string zin = Zinnen(bronnen_).PersoonZin(nr);
    ASSERT_EQ(met, "Jan Bos" + zin.substr(zin.find(')') + 1));
  }
}

TEST_F(ZinvormenTest, EenRelatieLeestInBeideVormenGelijk) {
  for (int i = 0; i < 600; ++i) {
    ZinOpties opties;
    opties.ookOpm = true;
    opties.ookNrs = Soms(2);
    opties.toonTrouw = std::to_string(Tot(3));
    const std::int16_t nr = WillekeurigeRelatie();
    const int volgNr = 1 + Tot(3);
    const std::string zin = Zinnen(bronnen_, opties).RelatieZin(nr, volgNr, volgNr == 1);
    ASSERT_EQ(VerteldeRelatie(nr, opties, volgNr), zin);
    ASSERT_EQ(zin.find(",,"), std::string::npos) << zin;
    ASSERT_EQ(zin.find("  "), std::string::npos) << zin;
    ASSERT_EQ(zin.substr(0, 2), ", ");
  }
}

}  // namespace
}  // namespace lb77
