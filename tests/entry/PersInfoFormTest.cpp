#include <gtest/gtest.h>

#include "entry/PersInfoForm.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class PersInfoFormTest : public FamilieToets {
 protected:
  void Toon(std::string_view draaiboek, std::int16_t nr, std::string_view verslag,
            const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [nr](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = nr;
          PersInfoForm info(hoofd);
          hoofd.gesprek.ToonModaal(info);
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, nr);
        },
        "+ PersInfoForm \"Info Persoon\"\n" + Regels(verslag) + "- PersInfoForm\n", plek);
  }
};

TEST_F(PersInfoFormTest, ToontNummerEnSamenvatting) {
  Bouw().Man("Jan", "Vos", {{"GebDatum", "01.05.1850"}, {"Beroep", "smid"}});
  Toon("toon\ndruk OKButton", 2, R"(
    : PersInfoForm "Info Persoon"
    = PNr "2"
    = InfoTekst "Jan Vos(2), geb. 1.5.1850, smid"
    = OKButton "&OK"
    * OKButton
  )");
}

TEST_F(PersInfoFormTest, InDeSamenvattingValtNietTeTypen) {
  Stil([](Hoofdmodule& hoofd) { EXPECT_TRUE(PersInfoForm(hoofd).InfoTekst.AlleenLezen()); });
}

TEST_F(PersInfoFormTest, EscapeEnEnterSluiten) {
  Bouw().Man("Jan", "Vos");
  Toon("toets Escape", 2, "");
  Toon("toets Enter", 2, "");
}

TEST_F(PersInfoFormTest, EenOnleesbarePersoonHeeftGeenGegevens) {
  Toon("toon InfoTekst\ndruk OKButton", 7, "= InfoTekst \"<< Geen gegevens gevonden >>\"");
}

TEST_F(PersInfoFormTest, DeInstellingVanDeTrouwdataGeldt) {
  const auto jan = Bouw().Man("Jan", "Vos");
  Bouw().Relatie(
      jan, Bouw().Vrouw("Anna", "Bos"), {},
      {{"OtrDatum", "01.06.1875"}, {"WHuwDatum", "03.06.1875"}, {"KHuwDatum", "05.06.1875"}});
  Verwacht(
      "toon InfoTekst\ndruk OKButton",
      [](Hoofdmodule& hoofd) {
        hoofd.volgers.HuidigPersoonNr = 2;
        hoofd.Ini.IniZet("Genealogie", "HuwData", "1");
        PersInfoForm info(hoofd);
        hoofd.gesprek.ToonModaal(info);
      },
      R"(
    + PersInfoForm "Info Persoon"
    = InfoTekst "Jan Vos(2), tr./tr.kerk 3/5.6.1875 Anna Bos(3) "
    - PersInfoForm
  )");
}

}  // namespace
}  // namespace lb77
