// Small families, each drawn for one rule of the text report.
#include "descendants/GenSchrijverToets.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

class GenGouden : public GenSchrijverToets {
 protected:
  // Writes the report and compares it.
  void Verwacht(std::string_view naam, std::int16_t stamouder) {
    EXPECT_EQ(Schrijf(stamouder), Einde::Klaar);
    VerwachtGouden("gen/" + std::string(naam), uit_);
  }
  std::int16_t Zoon(std::string_view naam, VeldWaarden velden = {}) {
    return bouw_.Man(naam, "Kok", velden);
  }
  std::int16_t Dochter(std::string_view naam, VeldWaarden velden = {}) {
    return bouw_.Vrouw(naam, "Kok", velden);
  }
  // A stamouder whose son and daughter have children who marry each other.
  std::int16_t Nichtenhuwelijk() {
    const auto jan = Zoon("Jan");
    const auto zoon = Zoon("Zoon");
    const auto dochter = Dochter("Dochter");
    bouw_.Relatie(jan, 0, {zoon, dochter});
    const auto neef = Zoon("Neef");
    const auto nicht = bouw_.Vrouw("Nicht", "Pot");
    bouw_.Relatie(zoon, bouw_.Vrouw("Anna", "Vis"), {neef});
    bouw_.Relatie(bouw_.Man("Piet", "Pot"), dochter, {nicht});
    const auto kind = Zoon("Kind");
    bouw_.Relatie(neef, nicht, {kind});
    bouw_.Relatie(kind, bouw_.Vrouw("Els", "Bos"), {Dochter("Kleinkind")});
    return jan;
  }
};

TEST_F(GenGouden, EenHerhalingIsEenBlad) {
  Verwacht("herhaling.txt", Nichtenhuwelijk());
}

TEST_F(GenGouden, EenGevolgdeHerhalingWordtNogEensUitgeschreven) {
  opties_.GenVolgHerh = opties_.GenVerwijzing = opties_.GenPerGeneratie = true;
  Verwacht("herhaling_gevolgd.txt", Nichtenhuwelijk());
}

TEST_F(GenGouden, EenHerhalingInHTMLVerwijstNaarHaarEersteKeer) {
  opties_.GenInHTML = opties_.GenVerwijzing = true;
  Verwacht("herhaling_html.txt", Nichtenhuwelijk());
}

TEST_F(GenGouden, WieMeerRelatiesHeeftStaatErBijElkeMetZijnNaam) {
  const auto jan = Zoon("Jan", {{"GebDatum", "00-00-1700"}});
  bouw_.Relatie(jan, bouw_.Vrouw("Eerste", "Vrouw"), {Zoon("Een")}, {{"WHuwDatum", "00-00-1720"}});
  bouw_.Relatie(jan, bouw_.Vrouw("Tweede", "Vrouw"), {}, {{"WHuwDatum", "00-00-1730"}});
  const auto drie = Dochter("Drie");
  bouw_.Relatie(jan, bouw_.Vrouw("Derde", "Vrouw"), {Zoon("Twee"), drie},
                {{"WHuwDatum", "00-00-1740"}});
  bouw_.Relatie(jan, bouw_.Vrouw("Vierde", "Vrouw"), {Zoon("Vier")});
  bouw_.Relatie(bouw_.Man("Man", "Een"), drie, {}, {{"WHuwDatum", "00-00-1760"}});
  bouw_.Relatie(bouw_.Man("Man", "Twee"), drie, {}, {{"WHuwDatum", "00-00-1770"}});
  Verwacht("hertrouwd.txt", jan);
}

TEST_F(GenGouden, EenRelatieZonderPartnerHeeftAlleenHaarKinderen) {
  const auto jan = Zoon("Jan");
  const auto een = Zoon("Een");
  const auto twee = Dochter("Twee");
  bouw_.Relatie(jan, 0, {een});
  bouw_.Relatie(jan, 0, {twee});
  bouw_.Relatie(een, 0, {}, {{"WHuwDatum", "00-00-1750"}});
  bouw_.Relatie(een, 0);
  bouw_.Relatie(0, twee, {Zoon("Drie")});
  opties_.GenVolgDochters = GenDochters::Geen;
  Verwacht("zonder_partner.txt", jan);
}

TEST_F(GenGouden, DeKinderenHebbenHetNummerVanHunPlaats) {
  const auto jan = Zoon("Jan");
  std::vector<std::int16_t> kinderen;
  for (int i = 1; i <= 29; ++i) kinderen.push_back(Zoon("Kind " + std::to_string(i)));
  const auto relatie = bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"), kinderen);
  bouw_.WijzigRelatie(relatie, {{"Kind3", "0"}});
  Verwacht("kinderen.txt", jan);
}

TEST_F(GenGouden, HetGeslachtZegtWatIemandVanZijnOudersIs) {
  const auto anna = Dochter("Anna");
  bouw_.Relatie(bouw_.Man("Willem", "Kok"), bouw_.Vrouw("Griet", "Pan"), {anna});
  const auto zoon = Zoon("Zoon");
  const auto dochter = Dochter("Dochter");
  const auto kind = bouw_.Persoon('?', "Kind", "Kok");
  bouw_.Relatie(0, anna, {zoon, dochter, kind});
  // Of someone whose sex is not known the partner is the man of the relation.
  const auto man = bouw_.Man("Piet", "Pot");
  bouw_.Relatie(0, bouw_.Vrouw("Moeder", "Pot"), {man});
  bouw_.Relatie(man, kind, {bouw_.Persoon('K', "Kleinkind", "Pot")});
  // A partner is told by her own sex, wherever she stands.
  const auto vriendin = bouw_.Vrouw("Els", "Bos");
  bouw_.Relatie(bouw_.Man("Vader", "Bos"), 0, {vriendin});
  bouw_.Relatie(vriendin, dochter);
  opties_.GenVerwijzing = true;
  Verwacht("geslacht.txt", anna);
}

TEST_F(GenGouden, EenGenealogieMetOngehuwdeMoedersVolgtDieOok) {
  const auto jan = Zoon("Jan");
  const auto gehuwd = Dochter("Gehuwd");
  const auto ongehuwd = Dochter("Ongehuwd");
  const auto zoon = Zoon("Zoon");
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"), {gehuwd, ongehuwd, zoon});
  bouw_.Relatie(bouw_.Man("Piet", "Pot"), gehuwd, {bouw_.Man("Kind", "Pot")});
  bouw_.Relatie(0, ongehuwd, {Zoon("Buitenkind")});
  opties_.GenVolgDochters = GenDochters::OngehuwdeMoeders;
  Verwacht("ongehuwde_moeders.txt", jan);
}

TEST_F(GenGouden, EenUitgeslotenTakEindigtBijZijnHoofd) {
  const auto jan = Zoon("Jan");
  const auto een = Zoon("Een");
  const auto twee = Zoon("Twee");
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"), {een, twee});
  bouw_.Relatie(een, bouw_.Vrouw("Els", "Bos"), {Zoon("Drie")});
  bouw_.Relatie(twee, bouw_.Vrouw("Eva", "Dal"), {Zoon("Vier")});
  opties_.GenVolgNiet[0] = een;
  Verwacht("uitgesloten.txt", jan);
}

TEST_F(GenGouden, EenKindZonderPlaatsWordtMetZijnPartnersVerteld) {
  const auto jan = Zoon("Jan");
  const auto een = Dochter("Een", {{"GebDatum", "00-00-1750"}});
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"), {een, Dochter("Twee")});
  const auto man = bouw_.Man("Piet", "Pot", {{"Beroep", "pottenbakker"}});
  bouw_.Relatie(bouw_.Man("Oude Piet", "Pot"), 0, {man});
  const auto huwelijk =
      bouw_.Relatie(man, een, {bouw_.Man("Kind", "Pot")}, {{"WHuwDatum", "00-00-1775"}});
  bouw_.Relatie(bouw_.Man("Klaas", "Bos"), een, {}, {{"HuwSwPs", "2"}});
  bouw_.OpmerkingBijPersoon(een, 8, {"(niet hier)"});
  bouw_.OpmerkingBijPersoon(man, 2048, {"(in Delft)"});
  bouw_.OpmerkingBijRelatie(huwelijk, -256, {"Getuige was haar broer."});
  opties_.GenOokOpm = true;
  opties_.GenVolgDochters = GenDochters::Geen;
  Verwacht("kind_zonder_plaats.txt", jan);
}

TEST_F(GenGouden, EenRelatieBuitenHuwelijkHeetEenRelatie) {
  const auto jan = Zoon("Jan");
  const auto relatie = [&](std::string_view partner, std::string_view kind, VeldWaarden velden) {
    bouw_.Relatie(jan, bouw_.Vrouw(partner, "Vis"), {Zoon(kind)}, velden);
  };
  relatie("Gehuwd", "Een", {{"WHuwDatum", "00-00-1720"}});
  relatie("Samen", "Twee", {{"HuwSwPs", "1"}});
  relatie("Partner", "Drie", {{"HuwSwPs", "2"}, {"WHuwDatum", "00-00-1730"}});
  relatie("Gescheiden", "Vier",
          {{"WHuwDatum", "01-02-1740"}, {"KHuwDatum", "03-04-1750"}, {"KHuwSch", "1"}});
  Verwacht("relaties.txt", jan);
}

// One remark a bit, and one for each rubric.
class GenOpmGouden : public GenGouden {
 protected:
  GenOpmGouden() { opties_.GenOokOpm = true; }

  std::int16_t Familie() {
    bouw_.Plaats("Delft", "");  // 2
    const auto jan = Zoon("Jan", {{"GebDatum", "01-02-1700"},
                                  {"GebPlaats", "2"},
                                  {"DoopDatum", "03-02-1700"},
                                  {"DoopPlaats", "2"},
                                  {"DoopReligie", "NH"},
                                  {"Beroep", "kok"},
                                  {"OvlDatum", "04-05-1770"},
                                  {"OvlPlaats", "2"},
                                  {"BegrDatum", "07-05-1770"},
                                  {"BegrPlaats", "2"}});
    for (int rubriek = 1; rubriek <= 4096; rubriek *= 2) {
      bouw_.OpmerkingBijPersoon(jan, static_cast<std::int16_t>(rubriek),
                                {"(p" + std::to_string(rubriek) + ")"});
    }
    const auto relatie = bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"), {Masker()},
                                       {{"OtrDatum", "01-03-1725"},
                                        {"OtrPlaats", "2"},
                                        {"WHuwDatum", "20-03-1725"},
                                        {"WHuwPlaats", "2"},
                                        {"KHuwDatum", "21-03-1725"},
                                        {"KHuwPlaats", "2"}});
    for (int rubriek = 1; rubriek <= 256; rubriek *= 2) {
      bouw_.OpmerkingBijRelatie(relatie, static_cast<std::int16_t>(-rubriek),
                                {"(r" + std::to_string(rubriek) + ")"});
    }
    return jan;
  }
  std::int16_t Masker() {
    const auto zoon = Zoon("Zoon");
    for (int bit = 1; bit <= 128; bit *= 2) {
      bouw_.OpmerkingBijPersoon(zoon, 4096, {"bit " + std::to_string(bit)},
                                static_cast<std::int16_t>(bit));
    }
    bouw_.OpmerkingBijPersoon(zoon, 4096, {"bit 4 en 64"}, 4 + 64);
    bouw_.OpmerkingBijPersoon(zoon, 4096, {"alle bits zonder 4"}, 127 - 4);
    return zoon;
  }
};

TEST_F(GenOpmGouden, OpmerkingenStaanInTekstOpHunPlaats) {
  Verwacht("opmerkingen.txt", Familie());
}

TEST_F(GenOpmGouden, OpmerkingenStaanInHTMLOpHunPlaats) {
  opties_.GenInHTML = true;
  Verwacht("opmerkingen_html.txt", Familie());
}

TEST_F(GenOpmGouden, ZonderOpmerkingenWordenGebeurtenissenSamenVerteld) {
  opties_.GenOokOpm = false;
  Verwacht("zonder_opmerkingen.txt", Familie());
}

}  // namespace
}  // namespace lb77
