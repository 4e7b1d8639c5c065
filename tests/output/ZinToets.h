// A file set, and what is told of it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "output/Verteller.h"
#include "output/ZinOpties.h"
#include "steun/ProefSet.h"

namespace lb77 {

// Dates are written with "-". Denominations: "NH" is "Ned.Herv.", "RK" is "Rooms & Kath.".
class ZinToets : public ::testing::Test {
 protected:
  using Taak = std::function<void(Verteller&)>;

  ZinToets();

  // A man "Jan Bos" with these fields; his name plays no part.
  std::int16_t Man(VeldWaarden velden) { return bouw_.Man("Jan", "Bos", velden); }
  // A relation of which the fields alone count.
  std::int16_t Huwelijk(VeldWaarden velden) { return bouw_.Relatie(0, 0, {}, velden); }
  // Changes fields of a remark record.
  void WijzigOpm(std::int16_t nr, VeldWaarden velden);

  // What a report of this width holds after the task.
  std::string Rapport(const ZinOpties& opties, const Taak& taak, int breedte = 9999);
  // The same for one person or relation; "<afgebroken>" when it could not be read.
  std::string Verteld(std::int16_t persoon, const ZinOpties& opties = {});
  std::string VerteldeRelatie(std::int16_t relatie, const ZinOpties& opties = {}, int volgNr = 1);

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  Gegevens bronnen_{set_.Persoon,   set_.Relatie, set_.Plaats,
                    set_.Opmerking, set_.volgers, set_.schrijfwijze};
};

}  // namespace lb77
