#include "output/Verteller.h"

#include <cstdlib>
#include <utility>

#include "output/Zinsbouw.h"
#include "text/Getallen.h"
#include "text/HTML.h"

namespace lb77 {

namespace {

constexpr int kInspringen = 4;

}  // namespace

// The sink of one person or relation: each element is a call of the writer.
class Verteller::InRapport final : public ZinUitvoer {
 public:
  InRapport(Verteller& verteller, std::int16_t opmRecord, std::int16_t opmCode)
      : verteller_(verteller), opmRecord_(opmRecord), opmCode_(opmCode) {}
  void Aan(std::string_view tekst) override {
    verteller_.schrijver_.Vast(verteller_.Gecodeerd(tekst));
  }
  void Los(std::string_view tekst) override {
    verteller_.schrijver_.Tekst(verteller_.Gecodeerd(tekst));
  }
  void Rubriek(int rubriek) override {
    verteller_.SchrijfRubriekOpm(opmRecord_, opmCode_, rubriek, false);
  }
  // What the choice of phrases goes by: without remarks nothing stands in their way.
  [[nodiscard]] int OpmCode() const { return verteller_.opties_.ookOpm ? opmCode_ : 0; }

 private:
  Verteller& verteller_;
  std::int16_t opmRecord_;
  std::int16_t opmCode_;
};

Verteller::Verteller(const Gegevens& bronnen, TekstSchrijver& schrijver, ZinOpties opties)
    : bronnen_(bronnen),
      schrijver_(schrijver),
      opties_(std::move(opties)),
      aantalOpm_(bronnen.opmerking.AantalRecords()) {
  schrijver_.ZetHTML(opties_.inHTML);
}

std::string Verteller::Gecodeerd(std::string_view tekst) const {
  return opties_.inHTML ? TekstNaarHTML(tekst) : std::string(tekst);
}

bool Verteller::LeesPersoon(std::int16_t nr) {
  if (bronnen_.persoon.Lees(nr)) return true;
  fout_ = {BestandSoort::Personen, nr};
  return false;
}

bool Verteller::LeesRelatie(std::int16_t relNr) {
  if (bronnen_.relatie.Lees(relNr)) return true;
  fout_ = {BestandSoort::Relaties, relNr};
  return false;
}

bool Verteller::SchrijfPersoon(std::int16_t nr) {
  const PersoonLB77& persoon = bronnen_.persoon;
  if (!LeesPersoon(nr)) return false;
  InRapport uit(*this, persoon.OpmRecord(), persoon.OpmCode());
  SchrijfNaam(persoon.VoorNaamTrue(), true);
  uit.Rubriek(persoonrubriek::kVoornaam);
  SchrijfNaam(persoon.AchterNaamTrue(), false);
  SchrijfNummer(nr);
  uit.Rubriek(persoonrubriek::kAchternaam);
  Zinsbouw(bronnen_, uit).Leven(uit.OpmCode());
  return true;
}

void Verteller::SchrijfNaam(std::string_view naam, bool vast) {
  const std::string gecodeerd = Gecodeerd(naam);
  schrijver_.TekstUit(opties_.inHTML ? "<STRONG>" + gecodeerd + "</STRONG>" : gecodeerd, false,
                      vast);
}

void Verteller::SchrijfNummer(std::int16_t nr) {
  if (opties_.ookNrs) schrijver_.Tekst("[" + GetalTekst(nr) + "]");
}

bool Verteller::SchrijfRelatie(std::int16_t relNr, int volgNr) {
  const RelatieLB77& relatie = bronnen_.relatie;
  if (!LeesRelatie(relNr)) return false;
  InRapport uit(*this, relatie.OpmRecord(), relatie.OpmCode());
  Zinsbouw(bronnen_, uit)
      .Relatie(std::abs(uit.OpmCode()),
               RelatieVoorvoegsel(relNr, volgNr, volgNr == 1, opties_.ookNrs), opties_.toonTrouw);
  return true;
}

PartnerVerteld Verteller::SchrijfPartner(const GezinBlik& gezin, bool metOuders) {
  if (!gezin.gelezen) {
    fout_ = {BestandSoort::Relaties, gezin.relNr};
    return PartnerVerteld::Onleesbaar;
  }
  if (gezin.partner == 0) return PartnerVerteld::Geen;
  if (!SchrijfRelatie(gezin.relNr, gezin.volgNr)) return PartnerVerteld::Onleesbaar;
  schrijver_.Tekst(" ");
  if (!SchrijfPersoon(gezin.partner)) return PartnerVerteld::Onleesbaar;
  const std::int16_t ouders = metOuders ? bronnen_.persoon.RelNrOuders() : std::int16_t{0};
  if (ouders > 0 && !SchrijfOuders(gezin.PartnerIsMan() ? 1 : 0, ouders)) {
    return PartnerVerteld::Onleesbaar;
  }
  return PartnerVerteld::Geschreven;
}

bool Verteller::SchrijfOuders(std::int16_t sexFlag, std::int16_t relNr) {
  if (!LeesRelatie(relNr)) return false;
  const std::int16_t vader = bronnen_.relatie.ManNr();
  const std::int16_t moeder = bronnen_.relatie.VrouwNr();
  if (vader == 0 && moeder == 0) return true;
  schrijver_.Vast(sexFlag == 1 ? ", zn. van" : ", dr. van");
  if (vader != 0) {
    if (!SchrijfOuder(vader, true)) return false;
    if (moeder != 0) schrijver_.Tekst("en");
  }
  // kept: the mother's occupation is told only with numbers on.
  return moeder == 0 || SchrijfOuder(moeder, opties_.ookNrs);
}

bool Verteller::SchrijfOuder(std::int16_t nr, bool metBeroep) {
  if (!LeesPersoon(nr)) return false;
  schrijver_.Tekst(Gecodeerd(bronnen_.persoon.NaamVoluit()));
  SchrijfNummer(nr);
  const std::string beroep = metBeroep ? bronnen_.persoon.beroep() : std::string{};
  if (!beroep.empty()) schrijver_.Vast(Gecodeerd(", " + beroep));
  return true;
}

bool Verteller::Algemeen(int rubriek) const {
  return rubriek == kRubriekPersoon || rubriek == kRubriekRelatie;
}

// Is the remark in the buffer of this rubric, and meant for this report?
bool Verteller::Gevraagd(int rubriek) const {
  const OpmLB77& opm = bronnen_.opmerking;
  return std::abs(int{opm.Rubriek()}) == std::abs(rubriek) &&
         (opm.BijProg() & opties_.opmMasker) != 0 && (opties_.inHTML || !opm.AlleenHTML());
}

// A walk of more steps than there are records goes round in a circle, and ends as a failed read.
bool Verteller::LeesOpm(std::int16_t nr, int& stappen) {
  if (++stappen > aantalOpm_) return false;
  bronnen_.volgers.HuidigOpmNr = nr;
  return bronnen_.opmerking.Lees();
}

void Verteller::SchrijfRubriekOpm(std::int16_t opmRecord, std::int16_t opmCode, int rubriek,
                                  bool regelEerst) {
  if (!opties_.ookOpm || opmRecord == 0 || opmRecord > aantalOpm_) return;
  if ((std::abs(int{opmCode}) & std::abs(rubriek)) == 0) return;
  bool ingesprongen = false;
  int stappen = 0;
  std::int16_t nr = opmRecord;
  while (nr != 0 && LeesOpm(nr, stappen)) {
    nr = bronnen_.opmerking.BijZelfde();
    if (!Gevraagd(rubriek)) continue;
    if (regelEerst && Algemeen(rubriek)) {
      schrijver_.EindeRegel();
      if (!ingesprongen) schrijver_.ZetMarge(false, kInspringen);
      ingesprongen = true;
    }
    if (!SchrijfOpmRegels(stappen)) break;
  }
  if (ingesprongen) schrijver_.ZetMarge(false, -kInspringen);
}

// The lines of the remark in the buffer; False when one of them can't be read.
bool Verteller::SchrijfOpmRegels(int& stappen) {
  const OpmLB77& opm = bronnen_.opmerking;
  do {
    const std::string regel = opm.Tekstregel();
    if (!regel.empty()) schrijver_.Tekst(Gecodeerd(regel));
    if (opm.VolgRegel() <= 0) return true;
  } while (LeesOpm(opm.VolgRegel(), stappen));
  return false;
}

void Verteller::SchrijfAlgemeneOpm(std::int16_t opmRecord, std::int16_t opmCode, int rubriek) {
  if (!opties_.ookOpm) return;
  const bool aanwezig = (std::abs(int{opmCode}) & std::abs(rubriek)) != 0;
  if (aanwezig) schrijver_.Tag("<UL>");
  SchrijfRubriekOpm(opmRecord, opmCode, rubriek, true);
  if (aanwezig) schrijver_.Tag("</UL>");
}

}  // namespace lb77
