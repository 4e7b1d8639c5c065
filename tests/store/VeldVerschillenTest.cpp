#include <gtest/gtest.h>

#include "store/PersoonVelden.h"
#include "store/PlaatsVelden.h"
#include "store/VeldVerschillen.h"

using namespace lb77;
using enum BestandSoort;

namespace {

std::string Leeg() {
  return {persoonveld::kLeeg.data(), persoonveld::kLeeg.size()};
}

// "name: before > after", a line each.
std::string Verslag(const RecordWijziging& wijziging) {
  std::string uit;
  for (const VeldVerschil& verschil : VeldVerschillen(wijziging, '-')) {
    uit += std::string(verschil.naam) + ": " + verschil.voor + " > " + verschil.na + "\n";
  }
  return uit;
}

}  // namespace

TEST(VeldVerschillenTest, AlleenWatVerschilt) {
  std::string na = Leeg();
  ZetBytes(na, persoonveld::Achternaam, "Jansen");
  ZetGetalOp(na, persoonveld::GebPlaatsNr.plaats, 12);
  EXPECT_EQ(Verslag({{Personen, 7}, Leeg(), na}),
            "Achternaam:  > Jansen\nGeboorteplaats: 0 > 12\n");
  EXPECT_EQ(Verslag({{Personen, 7}, na, na}), "");
}

TEST(VeldVerschillenTest, EenDatumIsEenVeldOokAlsAlleenHetJaarVerschilt) {
  std::string voor = Leeg();
  ZetGetalOp(voor, persoonveld::GebDagMaand.plaats, 2506);
  ZetGetalOp(voor, persoonveld::GebJaar.plaats, 1802);
  std::string na = voor;
  ZetGetalOp(na, persoonveld::GebJaar.plaats, 1803);
  EXPECT_EQ(Verslag({{Personen, 7}, voor, na}), "Geboortedatum: 25-06-1802 > 25-06-1803\n");
}

TEST(VeldVerschillenTest, EenRecordDatErNietWasHeeftGeenWaarden) {
  const std::string plaats = "ZHDelft                    ";
  EXPECT_EQ(Verslag({{Plaatsen, 3}, "", plaats}), "Provincie:  > ZH\nPlaatsnaam:  > Delft\n");
  EXPECT_EQ(Verslag({{Plaatsen, 3}, plaats, ""}), "Provincie: ZH > \nPlaatsnaam: Delft > \n");
}

TEST(VeldVerschillenTest, WatNietMeerBekendIsVerschiltNiet) {
  EXPECT_EQ(Verslag({{Plaatsen, 3}, "x", std::nullopt}), "");
}

TEST(VeldVerschillenTest, InHetAdministratierecordStaanTellingen) {
  std::string voor(27, ' ');
  std::string na = voor;
  ZetGetalOp(voor, 0, 4);
  ZetGetalOp(na, 0, 5);
  EXPECT_EQ(Verslag({{Plaatsen, 1}, voor, na}), "Aantal plaatsen: 4 > 5\n");
  std::string opm(96, ' ');
  std::string later = opm;
  ZetGetalOp(later, 4, 3);
  EXPECT_EQ(Verslag({{Opmerkingen, 1}, opm, later}), "Eerste vrije opmerkingrecord: 8224 > 3\n");
}

TEST(VeldVerschillenTest, EenHalfRecordHeeftDeVeldenDieErZijn) {
  EXPECT_EQ(Verslag({{Plaatsen, 3}, "ZH", "ZH" + std::string(25, 'x')}),
            "Plaatsnaam:  > " + std::string(25, 'x') + "\n");
}
