// Layouts: what they miss, what is added, what a form without one gets.
#include <gmock/gmock.h>

#include <QScrollArea>

#include "Proefvorm.h"
#include "Vensterproef.h"
#include "qt/Automatisch.h"
#include "qt/Indelingskeuze.h"
#include "qt/indeling/Indelingen.h"

namespace lb77 {
namespace {

using namespace indeling;
using testing::ElementsAre;
using testing::IsEmpty;

class Klein final : public Formulier {
 public:
  Klein() : Formulier("Klein", "Klein") {}
  Tekstvak A{*this, "A", "A:"};
  lb77::Rij<Tekstvak, 2> B{*this, "B", 1};
  Knop OKButton{*this, "OKButton", "&OK"};
};

std::vector<std::string> Namen(const Formulier& vorm, const Blok& blok) {
  std::vector<std::string> uit;
  for (const Bediening* een : Genoemd(vorm, blok)) uit.push_back(een->Naam());
  return uit;
}

TEST(Indeling, EenVolledigeIndelingHeeftGeenFouten) {
  const Klein vorm;
  const Blok blok = Kolom({Velden({"A"}), Tabel({"B(*)"}), indeling::Knoppen({"OKButton"})});
  EXPECT_THAT(LayoutFouten(vorm, blok), IsEmpty());
}

TEST(Indeling, VergetenDubbeleEnOnbekendeBedieningenWordenGenoemd) {
  const Klein vorm;
  EXPECT_THAT(LayoutFouten(vorm, Kolom({"A", "A", "B(1)", "X", "OKButton"})),
              ElementsAre("X bestaat niet", "A staat dubbel", "B(2) ontbreekt"));
}

TEST(Indeling, EenFormulierZonderIndelingHeeftGeenFouten) {
  const Klein vorm;
  EXPECT_FALSE(GeschrevenIndeling("Klein"));
  EXPECT_THAT(LayoutFouten(vorm), IsEmpty());
}

TEST(Indeling, WatVergetenIsKomtVoorDeKnoppenErbij) {
  const Klein vorm;
  const Blok blok = Aangevuld(vorm, Kolom({"X", Velden({"A", "A"}), indeling::Knoppen({})}));
  EXPECT_THAT(Namen(vorm, blok), ElementsAre("A", "B(1)", "B(2)", "OKButton"));
  EXPECT_EQ(blok.delen.back().soort, Blok::Soort::Knoppen);
}

TEST(Indeling, WatVergetenIsKomtErOokZonderKnoppenBij) {
  const Klein vorm;
  EXPECT_THAT(Namen(vorm, Aangevuld(vorm, Velden({"A"}))),
              ElementsAre("A", "B(1)", "B(2)", "OKButton"));
}

TEST(Indeling, RijenMetDezelfdeNummersKomenVanzelfBijElkaar) {
  QtGesprek gesprek;
  const Proefvorm vorm(gesprek);
  const Blok blok = IndelingVoor(vorm);
  EXPECT_THAT(LayoutFouten(vorm, blok), IsEmpty());
  const auto tabel = std::find_if(blok.delen.begin(), blok.delen.end(), [](const Blok& deel) {
    return deel.soort == Blok::Soort::Tabel;
  });
  ASSERT_NE(tabel, blok.delen.end());
  EXPECT_EQ(tabel->delen.size(), 2U);
}

TEST(Indeling, EenLabelKomtVanzelfVoorZijnWaarde) {
  class Waarden final : public Formulier {
   public:
    Waarden() : Formulier("Waarden", "Waarden") {}
    Label PersNrLabel{*this, "PersNrLabel", "Bezig met persoon:"};
    Teller PersoonsNr{*this, "PersoonsNr"};
    Label Slot{*this, "Slot", "Even geduld a.u.b."};
    lb77::Rij<Knop, 2> Move{*this, "Move", 1, "m"};
  } vorm;
  const Blok blok = IndelingVoor(vorm);
  ASSERT_EQ(blok.delen.size(), 2U);
  EXPECT_EQ(blok.delen[0].delen[0].soort, Blok::Soort::Rij);
  EXPECT_EQ(blok.delen[1].soort, Blok::Soort::Knoppen);
  EXPECT_THAT(LayoutFouten(vorm, blok), IsEmpty());
}

TEST(Indeling, GeenFormulierHeeftTweeIndelingen) {
  std::vector<std::string> namen;
  for (const lb77::Indeling& een : Alle()) namen.push_back(een.formulier);
  std::sort(namen.begin(), namen.end());
  EXPECT_EQ(std::adjacent_find(namen.begin(), namen.end()), namen.end());
}

class GroteVorm : public Vensterproef {};

TEST_F(GroteVorm, EenFormulierGroterDanHetSchermRolt) {
  class Groot final : public Formulier {
   public:
    Groot() : Formulier("Groot", "Groot") {}
    lb77::Rij<Tekstvak, 60> Veel{*this, "Veel", 1};
  } vorm;
  Voer(vorm, {[&] {
         EXPECT_TRUE(Bovenste().findChild<QScrollArea*>());
         EXPECT_LE(Bovenste().height(), Bovenste().screen()->availableSize().height());
         Bovenste().close();
       }});
}

}  // namespace
}  // namespace lb77
