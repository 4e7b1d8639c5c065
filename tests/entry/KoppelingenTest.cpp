#include "entry/Koppelingen.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

using Regels = std::vector<std::string>;

// Sets before and after, byte for byte.
class KoppelingenToets : public ::testing::Test {
 protected:
  using Stap = std::function<void(BouwFamilie&)>;
  using Daad = std::function<void(Koppelingen&)>;

  // Does something to a set that `voor` made, and expects what `voor` and `na` make of another.
  void Verwacht(const Stap& voor, const Daad& daad, const Stap& na) {
    ProefSet verwacht;
    voor(set_.bouw);
    voor(verwacht.bouw);
    na(verwacht.bouw);
    Koppelingen koppelingen(set_.Persoon, set_.Relatie, set_.volgers, set_.gesprek);
    daad(koppelingen);
    for (const BestandSoort soort : kBestandSoorten) {
      EXPECT_EQ(LeesBytes(PadVanSoort(set_.paden, soort)),
                LeesBytes(PadVanSoort(verwacht.paden, soort)))
          << BestandNaam(soort);
    }
    EXPECT_EQ(verwacht.Getoond(), Regels{});
  }
  void BlijftGelijk(const Stap& voor, const Daad& daad) {
    Verwacht(voor, daad, [](BouwFamilie&) {});
  }

  ProefSet set_;
};

constexpr std::string_view kOuders = "Ouders";
const Regels kGeenBoxen;

void Personen(BouwFamilie& bouw, int aantal) {
  for (int i = 0; i < aantal; ++i) bouw.Man("P", "Persoon");
}

// Children of the numbers `eerste` and up, without their own link to the parents.
std::vector<std::int16_t> Reeks(std::int16_t eerste, int aantal) {
  std::vector<std::int16_t> nummers(static_cast<std::size_t>(aantal));
  std::iota(nummers.begin(), nummers.end(), eerste);
  return nummers;
}

// Persons 2 to 41; relation 2 of 2 and 3 with that many children from 4 on.
KoppelingenToets::Stap;
