#include "output/ZinToets.h"

#include "output/TekstSchrijver.h"

namespace lb77 {

namespace {

constexpr std::string_view kAfgebroken = "<afgebroken>";

}  // namespace

ZinToets::ZinToets() {
  set_.schrijfwijze.DatumScheider = '-';
  set_.schrijfwijze.gezindten[1] = "NHNed.Herv.";
  set_.schrijfwijze.gezindten[2] = "RKRooms & Kath.";
}

void ZinToets::WijzigOpm(std::int16_t nr, VeldWaarden velden) {
  EXPECT_TRUE(set_.Opmerking.Wijzig(nr, velden));
}

std::string ZinToets::Rapport(const ZinOpties& opties, const Taak& taak, int breedte) {
  TekstSchrijver schrijver;
  schrijver.ZetRechterMarge(breedte);
  EXPECT_TRUE(schrijver.Open(set_.map / "uit.txt"));
  Verteller verteller(bronnen_, schrijver, opties);
  taak(verteller);
  schrijver.EindeRegel();
  EXPECT_TRUE(schrijver.Sluit());
  std::string uit = LeesBytes(set_.map / "uit.txt");
  if (uit.ends_with("\r\n")) uit.resize(uit.size() - 2);
  return uit;
}

std::string ZinToets::Verteld(std::int16_t persoon, const ZinOpties& opties) {
  bool gelukt = false;
  std::string uit =
      Rapport(opties, [&](Verteller& verteller) { gelukt = verteller.SchrijfPersoon(persoon); });
  return gelukt ? uit : std::string(kAfgebroken);
}

std::string ZinToets::VerteldeRelatie(std::int16_t relatie, const ZinOpties& opties, int volgNr) {
  bool gelukt = false;
  std::string uit = Rapport(
      opties, [&](Verteller& verteller) { gelukt = verteller.SchrijfRelatie(relatie, volgNr); });
  return gelukt ? uit : std::string(kAfgebroken);
}

}  // namespace lb77
