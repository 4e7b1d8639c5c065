#include "app/InWelkeSet.h"
#include "app/SessieToets.h"
#include "app/SetMaken.h"

namespace lb77 {
namespace {

constexpr const char* kOpen = "+ InWelkeSet \"GEDCOM Inlezen\"\n";

class InWelkeSetVenster : public SessieToets {
 protected:
  bool gekozen_ = false;
  std::string actief_;
  void SetUp() override { ZetIni(""); }
  void Speelt(std::string_view script, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    Verwacht(script, MetMenu([this](Hoofdmodule& hoofd, MenuWindow& menu) {
               ASSERT_TRUE(menu.Laad());
               InWelkeSet vraag(hoofd, menu, "/elders/Mijn familie (1).ged");
               hoofd.gesprek.ToonModaal(vraag);
               gekozen_ = vraag.Gekozen();
               actief_ = hoofd.ActieveSetNaam;
             }),
             kOpen + MetMap(verslag), plek);
  }
};

TEST_F(InWelkeSetVenster, EenNieuweSetIsDeGewoneKeuze) {
  Speelt("toon\nvul SetOmsch Van Jan\ndruk OKButton", R"(
      : InWelkeSet "GEDCOM Inlezen"
      = BestandLabel "Waarin wordt Mijn familie (1).ged ingelezen ?"
      = NieuweOptie aan
      = SetNaam "MIJNFAMI"
      = SetOmsch ""
      = BestaandeOptie uit [uit]
      = SetPicklist "" [uit]
      = OKButton "&OK"
      = BackButton "&Terug"
      * SetNaam
      - InWelkeSet)");
  EXPECT_TRUE(gekozen_);
  EXPECT_EQ(actief_, "MIJNFAMI");
  EXPECT_TRUE(IniHeeft("Set1=MIJNFAMI,Van Jan"));
}

TEST_F(InWelkeSetVenster, TerugKiestNiets) {
  Speelt("druk BackButton", "- InWelkeSet");
  EXPECT_FALSE(gekozen_);
  EXPECT_FALSE(Bestaat("DATA"));
}

TEST_F(InWelkeSetVenster, EenBestaandeSetWordtGeopend) {
  MaakSet("EEN");
  MaakSet("TWEE");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\nSet2=TWEE,Tweede\n");
  Speelt(R"(druk BestaandeOptie
            toon SetNaam
            toon SetPicklist
            stel SetPicklist #1
            druk OKButton)",
         R"(= SetNaam "MIJNFAMI" [uit]
            = SetPicklist "EEN"
            #0 "EEN"
            #1 "TWEE,Tweede"
            - InWelkeSet)");
  EXPECT_TRUE(gekozen_);
  EXPECT_EQ(actief_, "TWEE");
  EXPECT_TRUE(IniHeeft("Set=TWEE"));
}

TEST_F(InWelkeSetVenster, DeActieveSetBlijftOpen) {
  MaakSet("EEN");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\n");
  Speelt("druk BestaandeOptie\ndruk OKButton", "- InWelkeSet");
  EXPECT_TRUE(gekozen_);
  EXPECT_EQ(actief_, "EEN");
}

TEST_F(InWelkeSetVenster, EenNaamDieNietKanHoudtHetVensterOpen) {
  MaakSet("EEN");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\n");
  Speelt("vul SetNaam een\ndruk OKButton\nvul SetNaam\ndruk OKButton\ndruk BackButton",
         R"(! uitroep "Deze bestandenset bestaat al"
            ! uitroep "\"\" is geen geldige naam voor een bestandenset"
            - InWelkeSet)");
  EXPECT_FALSE(gekozen_);
  EXPECT_EQ(actief_, "EEN");
}

class SetNamen : public SessieToets {
 protected:
  std::string Vrij(std::string_view basis) {
    std::string uit;
    Speel("", MetMenu([&](Hoofdmodule& hoofd, MenuWindow&) { uit = VrijeSetNaam(hoofd, basis); }));
    return uit;
  }
};

TEST_F(SetNamen, EenVoorstelIsEenNaamDieNiemandHeeft) {
  ZetIni("[Sets]\nSet1=ORANJE,\n");
  Schrijf("DATA/familie1/x", "");
  EXPECT_EQ(Vrij("oranje"), "ORANJE2");
  EXPECT_EQ(Vrij("familie1"), "FAMILIE2");
  EXPECT_EQ(Vrij("Jansen & Zn. uit Delft"), "JANSENZN");
  EXPECT_EQ(Vrij("con"), "FAMILIE");
  EXPECT_EQ(Vrij("..."), "FAMILIE");
}

}  // namespace
}  // namespace lb77
