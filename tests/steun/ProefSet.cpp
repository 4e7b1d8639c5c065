#include "steun/ProefSet.h"

#include <gtest/gtest.h>

namespace lb77 {

void ProefSet::MaakNieuw() {
  std::filesystem::create_directories(paden.map);
  EXPECT_FALSE(bestanden.OpenSet(paden));
  EXPECT_TRUE(Persoon.NieuwAdm() && Relatie.NieuwAdm() && Plaats.NieuwAdm() &&
              Opmerking.NieuwAdm());
  volgers = {};
}

void ProefSet::Heropen() {
  EXPECT_FALSE(bestanden.OpenSet(paden));
  Persoon.LeegPersBuffer();
  Relatie.LeegRelBuffer();
  Plaats.LeegPltsBuffer();
  Opmerking.LeegOpmBuffer();
  volgers = {};
}

}  // namespace lb77
