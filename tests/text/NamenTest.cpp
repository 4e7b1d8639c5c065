#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "text/Letterlijk.h"
#include "text/Namen.h"
#include "text/Schrijfwijze.h"

namespace lb77 {
namespace {

std::string Sorteer(std::string_view naam) {
  return NaamSorteer(naam, Voorvoegsels{});
}

TEST(NaamSorteerTest, ZetVoorvoegselsAchterDeNaam) {
  EXPECT_EQ(Sorteer("van der Berg"), "Berg, van der");
  EXPECT_EQ(Sorteer("de Vries"), "Vries, de");
  EXPECT_EQ(Sorteer("ter Horst"), "Horst, ter");
}

TEST(NaamSorteerTest, LaatEenNaamZonderVoorvoegselStaan) {
  EXPECT_EQ(Sorteer("Jansen"), "Jansen");
  EXPECT_EQ(Sorteer("Jansen op de Haar"), "Jansen op de Haar");
  EXPECT_EQ(Sorteer(""), "");
}

TEST(NaamSorteerTest, VindtVoorvoegselsInHoofdlettersEnSchrijftZeKlein) {
  EXPECT_EQ(Sorteer("Van Dijk"), "Dijk, van");
  EXPECT_EQ(Sorteer("VAN DEN Berg"), "Berg, van den");
}

TEST(NaamSorteerTest, KentVoorvoegselsMetEenApostrof) {
  EXPECT_EQ(Sorteer("'s Gravesande"), "Gravesande, 's");
  EXPECT_EQ(Sorteer("van 't Hoff"), "Hoff, van 't");
}

TEST(NaamSorteerTest, LaatEenNaamZonderBlankStaan) {
  EXPECT_EQ(Sorteer("d'Ancona"), "d'Ancona");
}

TEST(NaamSorteerTest, VerliestEenTweedeWoordDatGeenVoorvoegselIs) {
  EXPECT_EQ(Sorteer("van Mijn Naam"), "Naam, van");
}

TEST(NaamSorteerTest, HoudtVanEenNaamUitTweeVoorvoegselsHetTweedeAlsHoofdwoord) {
  EXPECT_EQ(Sorteer("van der"), "der, van");
}

TEST(NaamSorteerTest, VerplaatstHoogstensTweeVoorvoegsels) {
  EXPECT_EQ(Sorteer("van de la Court"), "la Court, van de");
}

TEST(NaamSorteerTest, SlaatMeerBlanksTussenWoordenOver) {
  EXPECT_EQ(Sorteer("van  der   Berg "), "Berg, van der");
  EXPECT_EQ(Sorteer("van  Dijk"), "Dijk, van");
}

TEST(NaamSorteerTest, LeestLijstenMetBlanksAchterDeKommas) {
  const Voorvoegsels lijsten{"van , op ,  aan", " der, den"};
  EXPECT_EQ(NaamSorteer("aan den Rijn", lijsten), "Rijn, aan den");
  EXPECT_EQ(NaamSorteer("op der Kolk", lijsten), "Kolk, op der");
}

TEST(NaamSorteerTest, VindtNietsInEenLegeLijst) {
  EXPECT_EQ(NaamSorteer("van Dijk", {"", ""}), "van Dijk");
  EXPECT_EQ(NaamSorteer("van der Berg", {"van", ""}), "Berg, van");
  EXPECT_EQ(NaamSorteer(" Dijk", {"van,,op", ""}), " Dijk");
}

TEST(VoorvoegselsTest, BeginnenMetDeLijstenVanDeInstellingen) {
  const Schrijfwijze schrijfwijze;
  EXPECT_EQ(schrijfwijze.voorvoegsels.Voor1,
            "van,von,op,ter,ten,'s,onder,aan,de,in,la,l',le,zum,am,zur,auf");
  EXPECT_EQ(schrijfwijze.voorvoegsels.Voor2, "de,den,der,het,du,la,'t,d',dem");
  EXPECT_EQ(schrijfwijze.DatumScheider, '.');
}

TEST(LinksTest, KaptAfOfVultAan) {
  EXPECT_EQ(Links("Jansen", 4), "Jans");
  EXPECT_EQ(Links("Jan", 5), "Jan  ");
  EXPECT_EQ(Links("Jan", 3), "Jan");
  EXPECT_EQ(Links("Jan", 0), "");
}

TEST(LinksTest, VultMetHetEersteTekenVanDeVulling) {
  EXPECT_EQ(Links("Jan", 6, ".-"), "Jan...");
  EXPECT_EQ(Links("Jan", 5, ""), "Jan  ");
}

TEST(RechtsTest, VultVooraanOfVerliestVooraan) {
  EXPECT_EQ(Rechts("12", 4), "  12");
  EXPECT_EQ(Rechts("12345", 4), "2345");
  EXPECT_EQ(Rechts("", 2), "  ");
  EXPECT_EQ(Rechts("12", 4, '0'), "0012");
}

TEST(KolomTest, VerliestRechtsDeLinkerCijfers) {
  EXPECT_EQ(Kolom(1234567, 4, Richting::Rechts), "4567");
  EXPECT_EQ(Kolom(12, 4, Richting::Rechts), "  12");
  EXPECT_EQ(Kolom(0, 2, Richting::Rechts), " 0");
}

TEST(KolomTest, VultEnKaptLinksAchteraan) {
  EXPECT_EQ(Kolom(12, 4, Richting::Links), "12  ");
  EXPECT_EQ(Kolom(12345, 4, Richting::Links), "1234");
}

void VerwachtPlaats(std::string_view invoer, std::string_view tekst, std::string_view prov,
                    std::string_view rest) {
  const PlaatsDelen delen = SplitsPlaats(invoer);
  EXPECT_EQ(delen.tekst, tekst) << invoer;
  EXPECT_EQ(delen.prov, prov) << invoer;
  EXPECT_EQ(delen.rest, rest) << invoer;
}

TEST(SplitsPlaatsTest, NeemtDeProvincieUitHaakjes) {
  VerwachtPlaats("Amsterdam (NH)", "Amsterdam", "NH", "");
  VerwachtPlaats("Breda {nb}", "Breda", "NB", "");
  VerwachtPlaats("Breda [ nb ]", "Breda", "NB", "");
  VerwachtPlaats("Breda <fryslân>"_w, "Breda", "FRYSLÂN"_w, "");
}

TEST(SplitsPlaatsTest, ZoektDeHaakjesInVasteVolgorde) {
  VerwachtPlaats("Breda [nb] (z)", "Breda [nb]", "Z", "");
}

TEST(SplitsPlaatsTest, NeemtZonderSluithaakjeAllesAchterHetHaakje) {
  VerwachtPlaats("Breda (nb", "Breda", "NB", "");
  VerwachtPlaats("Breda (nb]", "Breda", "NB]", "");
  VerwachtPlaats(") Breda (nb", ") Breda", "NB", "");
}

TEST(SplitsPlaatsTest, VergeetWatAchterDeHaakjesStaat) {
  VerwachtPlaats("Breda (nb), Nederland", "Breda", "NB", "");
}

TEST(SplitsPlaatsTest, MaaktVanAlleenHaakjesDePlaatsZelf) {
  VerwachtPlaats("(NH)", "NH", "", "");
  VerwachtPlaats("()", "", "", "");
}

TEST(SplitsPlaatsTest, NeemtDeProvincieAchterDeKomma) {
  VerwachtPlaats("Amsterdam, NH, Nederland", "Amsterdam", "NH", "Nederland");
  VerwachtPlaats("Amsterdam , NH ", "Amsterdam", "NH", "");
  VerwachtPlaats("A, B, C , D ", "A", "B, C", "D");
  VerwachtPlaats("A,B,C", "A", "B", "C");
  VerwachtPlaats("A,", "A", "", "");
}

TEST(SplitsPlaatsTest, LaatEenTekstZonderHaakjeOfKommaHeel) {
  VerwachtPlaats(" Amsterdam ", "Amsterdam", "", "");
  VerwachtPlaats("", "", "", "");
}

}  // namespace
}  // namespace lb77
