// A change of one field leaves what nobody touched byte for byte, however odd it is.
#include <string>

#include "entry/WijzigToets.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

// A date that no calendar has, and that does not come back from its text.
void ZetVreemdeDatum(const std::filesystem::path& pad, std::size_t plaats) {
  std::string bytes = LeesBytes(pad);
  bytes.replace(plaats, 4, std::string("\xFB\xFF\x39\x30", 4));
  SchrijfBytes(pad, bytes);
}

// The bytes without those of that field.
std::string Zonder(std::string bytes, std::size_t record, const Veld& veld) {
  return bytes.erase(record + veld.plaats, veld.breedte);
}

class PersoonBewaartTest : public WijzigPersoonToets {};
class RelatieBewaartTest : public WijzigRelatieToets {};

TEST_F(PersoonBewaartTest, EenAndereVoornaamLaatEenVreemdeDatumStaan) {
  Bouw().Man("Jan", "Vos");
  constexpr std::size_t kRecord = persoonveld::kLengte;
  ZetVreemdeDatum(Paden().prs, kRecord + persoonveld::DoopDagMaand.plaats);
  const std::string voor = Zonder(LeesBytes(Paden().prs), kRecord, persoonveld::Voornaam);
  SlaatOp(2, "vul VoorNm Klaas");
  EXPECT_EQ(VanPersoon(2, persoonveld::Voornaam), "Klaas");
  EXPECT_EQ(Zonder(LeesBytes(Paden().prs), kRecord, persoonveld::Voornaam), voor);
}

TEST_F(RelatieBewaartTest, EenAndereSoortLaatEenVreemdeDatumStaan) {
  Bouw().Man("Jan", "Vos");
  Bouw().Vrouw("Anna", "Bos");
  Bouw().Relatie(2, 3);
  constexpr std::size_t kRecord = relatieveld::kLengte;
  ZetVreemdeDatum(Paden().rlt, kRecord + relatieveld::OtrDagMaand.plaats);
  const std::string voor = Zonder(LeesBytes(Paden().rlt), kRecord, relatieveld::HuwSoort);
  SlaatOp(2, "vul HuwSoortCode HA");
  EXPECT_EQ(VanRelatie(2, relatieveld::HuwSoort), "HA");
  EXPECT_EQ(Zonder(LeesBytes(Paden().rlt), kRecord, relatieveld::HuwSoort), voor);
}

}  // namespace
}  // namespace lb77
