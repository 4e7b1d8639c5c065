#include "output/Zinnen.h"

#include <cstddef>
#include <cstdlib>
#include <string_view>

#include "output/Zinsbouw.h"
#include "store/Codes.h"
#include "store/Partner.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::string_view kGeenGegevens = "<< Geen gegevens gevonden >>";
constexpr std::string_view kGeenPartner = "<<Geen partnergegevens gevonden>>";

// Gathers the words; remarks have no place here.
class InTekst final : public ZinUitvoer {
 public:
  explicit InTekst(std::string begin) : tekst_(std::move(begin)) {}
  void Aan(std::string_view tekst) override { tekst_ += tekst; }
  void Los(std::string_view tekst) override { tekst_.append(" ").append(tekst); }
  void Rubriek(int) override {}
  [[nodiscard]] const std::string& Tekst() const { return tekst_; }

 private:
  std::string tekst_;
};

}  // namespace

std::string Zinnen::PersoonZin(std::int16_t nr) {
  PersoonLB77& persoon = bronnen_.persoon;
  bronnen_.volgers.HuidigPersoonNr = nr;
  if (!persoon.Lees(nr)) return std::string(kGeenGegevens);
  // kept: no blank before the bracket.
  InTekst uit(persoon.VoorNaamTrue() + " " + persoon.AchterNaamTrue() + "(" + GetalTekst(nr) + ")");
  Zinsbouw(bronnen_, uit).Leven(persoon.OpmCode());
  return uit.Tekst();
}

std::string Zinnen::RelatieZin(std::int16_t relNr, int volgNr, bool nummerIsEen) {
  if (!bronnen_.relatie.Lees(relNr)) return {};
  InTekst uit({});
  Zinsbouw(bronnen_, uit)
      .Relatie(std::abs(int{bronnen_.relatie.OpmCode()}),
               RelatieVoorvoegsel(relNr, volgNr, nummerIsEen, opties_.ookNrs), opties_.toonTrouw);
  return uit.Tekst();
}

std::string Zinnen::PartnersZin(std::int16_t nr, bool isVrouwKant) {
  Huwtab huwtab{};
  if (!bronnen_.persoon.Lees(nr)) return {};
  // kept: of relations that can't be read the sentence has no word, whether their own record fails or
  // the one that lists them; the card of the person tells.
  static_cast<void>(bronnen_.persoon.VulHuwtab(nr, huwtab));
  std::string uit;
  for (std::size_t i = 1; i < huwtab.size(); ++i) {
    const std::int16_t relNr = huwtab[i];
    if (relNr <= 1 || !bronnen_.relatie.Lees(relNr)) continue;
    const std::int16_t partner = PartnerVan(bronnen_.relatie, nr, !isVrouwKant);
    if (partner == 0) continue;
    uit += RelatieZin(relNr, static_cast<int>(i), i == 1) + " ";
    uit += PartnerZin(partner);
  }
  return uit;
}

std::string Zinnen::PartnerZin(std::int16_t partner) {
  if (!bronnen_.persoon.Lees(partner)) return std::string(kGeenPartner);
  return PersoonZin(partner) + " ";
}

std::string Zinnen::PersoonInfoTekst(std::int16_t nr) {
  std::string uit = PersoonZin(nr);
  if (bronnen_.volgers.PersBufNr == nr) {
    uit += PartnersZin(nr, IsCode(bronnen_.persoon.Geslacht(), geslacht::kVrouw));
  }
  bronnen_.volgers.HuidigPersoonNr = nr;  // the partners have taken it
  return uit;
}

}  // namespace lb77
