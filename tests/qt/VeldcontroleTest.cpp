// Leave checks of the entry dialogs in their windows.
#include <gmock/gmock.h>

#include <memory>
#include <ostream>

#include "Gezinsproef.h"
#include "entry/KoppelVragen.h"
#include "entry/StartRecord.h"
#include "entry/VraagPlaatsnr.h"
#include "entry/WijzigPersoon.h"
#include "entry/WijzigRelatie.h"

namespace lb77 {
namespace {

using Maker = std::unique_ptr<Formulier> (*)(Hoofdmodule&);

// What is typed into a field that does not take it.
struct Weigering {
  Maker maak;
  const char* veld;
  const char* tekst;
  const char* melding;
  const char* opslaan;
};

void PrintTo(const Weigering& geval, std::ostream* os) {
  *os << geval.veld << " " << geval.tekst;
}

template <class Form>
std::unique_ptr<Formulier> Vorm(Hoofdmodule& hoofd) {
  hoofd.volgers.HuidigPersoonNr = hoofd.volgers.HuidigRelatieNr = 2;
  return std::make_unique<Form>(hoofd);
}
std::unique_ptr<Formulier> VormKind(Hoofdmodule& hoofd) {
  return std::make_unique<PersoonKeuze>(kKindErbij, hoofd);
}
std::unique_ptr<Formulier> VormVolgnr(Hoofdmodule& hoofd) {
  return std::make_unique<VolgnummerVraag>(kVolgnrKind, hoofd);
}

class Veldcontrole : public Gezinsproef, public testing::WithParamInterface<Weigering> {
 protected:
  // As a user who never touches the mouse.
  void GaNaar(const std::string& veld) {
    for (int i = 0; i < 100 && Focus() != veld; ++i) Toets(Qt::Key_Tab);
    ASSERT_EQ(Focus(), veld);
  }
};

TEST_P(Veldcontrole, HoudtHetVeldEnMeldtElkePogingEenmaal) {
  const Weigering& geval = GetParam();
  const auto formulier = geval.maak(Hoofd());
  Voer(*formulier, {[&] {
                      GaNaar(geval.veld);
                      Toets(Qt::Key_A, Qt::ControlModifier);
                      Typ(geval.tekst);
                      Toets(Qt::Key_Tab);
                    },
                    [&] {
                      EXPECT_THAT(boxen, testing::ElementsAre(geval.melding));
                      EXPECT_EQ(Focus(), geval.veld);
                      QTest::mouseClick(&Vind(geval.opslaan), Qt::LeftButton);
                    },
                    [&] {
                      EXPECT_THAT(boxen, testing::ElementsAre(geval.melding, geval.melding));
                      EXPECT_EQ(Focus(), geval.veld);
                      EXPECT_FALSE(formulier->Gesloten());
                      Toets(Qt::Key_Escape);
                      EXPECT_TRUE(formulier->Gesloten());
                    }});
  EXPECT_EQ(boxen.size(), 2U);
}

constexpr const char* kCorrecties = "Alleen C (Circa), V (Voor), N (Na) of T (Tussen) toegestaan";
constexpr const char* kBestaatNiet = "Recordnummer bestaat niet";

INSTANTIATE_TEST_SUITE_P(
    Invoer, Veldcontrole,
    testing::Values(Weigering{Vorm<WijzigPersoon>, "Geslacht", "x",
                              "Alleen O (Onbekend), M (Mannelijk) of V (Vrouwelijk) toegestaan",
                              "Opslaan"},
                    Weigering{Vorm<WijzigPersoon>, "GebCorr", "x", kCorrecties, "Opslaan"},
                    Weigering{Vorm<WijzigPersoon>, "GebPltsNr", "99", kBestaatNiet, "Opslaan"},
                    Weigering{Vorm<WijzigPersoon>, "OvlCorr", "x", kCorrecties, "Opslaan"},
                    Weigering{Vorm<WijzigPersoon>, "RelNrOuders", "99", kBestaatNiet, "Opslaan"},
                    Weigering{Vorm<WijzigPersoon>, "RecordNrPa", "99", kBestaatNiet, "Opslaan"},
                    Weigering{Vorm<WijzigPersoon>, "RecordNrMa", "1", kBestaatNiet, "Opslaan"},
                    Weigering{Vorm<WijzigRelatie>, "RecordNrMan", "99", kBestaatNiet, "Opslaan"},
                    Weigering{Vorm<WijzigRelatie>, "RecordNrVrouw", "4",
                              "Persoon met onbekend Geslacht niet toegestaan", "Opslaan"},
                    Weigering{Vorm<WijzigRelatie>, "HuwCorr", "x", kCorrecties, "Opslaan"},
                    Weigering{Vorm<StartRecord>, "PersNr", "99",
                              "Het opgegeven Persoonsnummer komt niet voor", "OKButton"},
                    Weigering{Vorm<StartRecord>, "RelNr", "99",
                              "Het opgegeven Relatienummer komt niet voor", "OKButton"},
                    Weigering{Vorm<HuwSchuif>, "RecordNr", "99", kBestaatNiet, "OKButton"},
                    Weigering{Vorm<VraagPlaatsnr>, "RecordNr", "99", kBestaatNiet, "OKButton"},
                    Weigering{VormKind, "RecordNr", "99", kBestaatNiet, "OKButton"},
                    Weigering{VormVolgnr, "VolgNum", "30", "Volgnummer moet tussen 1 en 29 liggen",
                              "OKButton"}));

using Veldgang = Veldcontrole;

// The order in which the focus goes on when numbers hold.
TEST_F(Veldgang, PartnersLeidenNaarElkaarEnNaarDeOndertrouw) {
  const auto formulier = Vorm<WijzigRelatie>(Hoofd());
  Hoofd().volgers.HuidigRelatieNr = -1;
  Voer(*formulier, {[&] {
    GaNaar("RecordNrMan");
    Typ("2");
    Toets(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "RecordNrVrouw");
    Typ("3");
    Toets(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "OtrDatum");
    Toets(Qt::Key_Escape);
  }});
  EXPECT_TRUE(boxen.empty());
}

TEST_F(Veldgang, DeRelatieVanDeOudersLeidtNaarTerug) {
  const auto formulier = Vorm<WijzigPersoon>(Hoofd());
  Voer(*formulier, {[&] {
    GaNaar("RelNrOuders");
    Typ("2");
    Toets(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "BackButton");
    Toets(Qt::Key_Escape);
  }});
  EXPECT_TRUE(boxen.empty());
}

}  // namespace
}  // namespace lb77
