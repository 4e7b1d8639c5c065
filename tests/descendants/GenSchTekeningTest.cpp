// The two drawings of a descendant chart.
#include <algorithm>

#include "descendants/GenSchTekening.h"
#include "descendants/GenSchToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

// Columns of 11 characters: first names of 6 and the connection.
class GenSchTekeningToets : public GenSchToets {
 protected:
  GenSchTekeningToets() {
    opties_.GenPosVNamen = 6;
    opties_.GenPosANamen = 0;
  }
  std::int16_t Drie() {
    const auto jan = Kind("Jan");
    Gezin(jan, {Kind("Piet"), Kind("Klaas"), Kind("Kees")});
    return jan;
  }
  // Five generations: a family of two, four, one and two.
  std::int16_t Vijf() {
    const auto jan = Kind("Jan");
    const auto piet = Kind("Piet");
    const auto klaas = Kind("Klaas");
    Gezin(jan, {piet, klaas});
    const auto bep = Kind("Bep");
    Gezin(piet, {Kind("Ad"), bep, Kind("Cor"), Kind("Dik")});
    const auto eva = Kind("Eva");
    Gezin(bep, {eva});
    Gezin(eva, {Kind("Fop"), Kind("Gea")});
    Gezin(klaas, {Kind("Hans"), Kind("Ine")});
    return jan;
  }
};

TEST_F(GenSchTekeningToets, EenStamouderAlleenIsEenRegel) {
  const auto jan = Kind("Jan");
  EXPECT_EQ(Tekening(jan), "Jan\n");
  opties_.GenVertikaal = true;
  EXPECT_EQ(Tekening(jan), "Jan\n");
}

TEST_F(GenSchTekeningToets, EenEnigKindStaatAchterZijnOuder) {
  const auto jan = Kind("Jan");
  Gezin(jan, {Kind("Piet")});
  for (const bool centreren : {false, true}) {
    opties_.GenCentreren = centreren;
    opties_.GenVertikaal = false;
    EXPECT_EQ(Tekening(jan), "Jan--------=-Piet\n");
    opties_.GenVertikaal = true;
    EXPECT_EQ(Tekening(jan), "Jan\n|\n|\n|\nPiet\n");
  }
}

TEST_F(GenSchTekeningToets, DrieKinderenHangenElkAanHunKnoop) {
  const auto jan = Drie();
  EXPECT_EQ(Tekening(jan),
            "Jan-------</-Piet\n"
            "           +-Klaas\n"
            "           \\-Kees\n");
  opties_.GenCentreren = true;
  EXPECT_EQ(Tekening(jan),
            "           /-Piet\n"
            "Jan-------<+-Klaas\n"
            "           \\-Kees\n");
}

TEST_F(GenSchTekeningToets, DrieKinderenStaanOnderHunOuder) {
  const auto jan = Drie();
  opties_.GenVertikaal = true;
  EXPECT_EQ(Tekening(jan),
            "Jan\n"
            "|\n"
            "/------+------\\\n"
            "|      |      |\n"
            "Piet   Klaas  Kees\n");
  opties_.GenCentreren = true;
  EXPECT_EQ(Tekening(jan),
            "       Jan\n"
            "       |\n"
            "/------+------\\\n"
            "|      |      |\n"
            "Piet   Klaas  Kees\n");
}

TEST_F(GenSchTekeningToets, EenLijnLooptDoorLangsDeNeven) {
  EXPECT_EQ(Tekening(Vijf()),
            "Jan-------</-Piet----</-Ad\n"
            "           |          +-Bep------=-Eva-----</-Fop\n"
            "           |          |                     \\-Gea\n"
            "           |          +-Cor\n"
            "           |          \\-Dik\n"
            "           \\-Klaas---</-Hans\n"
            "                      \\-Ine\n");
}

TEST_F(GenSchTekeningToets, GecentreerdStaatEenOuderTussenZijnKinderen) {
  opties_.GenCentreren = true;
  EXPECT_EQ(Tekening(Vijf()),
            "                      /-Ad\n"
            "                      +-Bep------=-Eva-----</-Fop\n"
            "           /-Piet----<|                     \\-Gea\n"
            "Jan-------<|          +-Cor\n"
            "           |          \\-Dik\n"
            "           \\-Klaas---</-Hans\n"
            "                      \\-Ine\n");
}

TEST_F(GenSchTekeningToets, VerticaalIsElkeGeneratieEenGroepRegels) {
  opties_.GenVertikaal = true;
  EXPECT_EQ(Tekening(Vijf()),
            "Jan\n"
            "|\n"
            "/----------------------------------\\\n"
            "|                                  |\n"
            "Piet                               Klaas\n"
            "|                                  |\n"
            "/------+-------------+------\\      /------\\\n"
            "|      |             |      |      |      |\n"
            "Ad     Bep           Cor    Dik    Hans   Ine\n"
            "       |\n"
            "       |\n"
            "       |\n"
            "       Eva\n"
            "       |\n"
            "       /------\\\n"
            "       |      |\n"
            "       Fop    Gea\n");
}

TEST_F(GenSchTekeningToets, VerticaalKomtDeLijnVanEenOuderTussenDeKinderenAan) {
  opties_.GenVertikaal = opties_.GenCentreren = true;
  EXPECT_EQ(Tekening(Vijf()),
            "                     Jan\n"
            "                     |\n"
            "              /------+-------------\\\n"
            "              |                    |\n"
            "              Piet                 Klaas\n"
            "              |                    |\n"
            "/------+------+------+------\\      /------\\\n"
            "|      |             |      |      |      |\n"
            "Ad     Bep           Cor    Dik    Hans   Ine\n"
            "       |\n"
            "       |\n"
            "       |\n"
            "       Eva\n"
            "       |\n"
            "       /------\\\n"
            "       |      |\n"
            "       Fop    Gea\n");
}

TEST_F(GenSchTekeningToets, EenHerhalingHeeftHaarMerk) {
  const auto jan = Kind("Jan");
  const auto piet = Kind("Piet");
  Gezin(jan, {piet});
  Gezin(jan, {piet});
  EXPECT_EQ(Tekening(jan), "Jan-------</-Piet\n           \\-= Piet\n");
  opties_.GenOokVolgNrs = true;
  EXPECT_EQ(Tekening(jan),
            "I       Jan-------</-IIa     Piet\n"
            "                   \\-IIb     = IIa Piet\n");
  opties_.GenVertikaal = true;
  EXPECT_EQ(Tekening(jan),
            "I\nJan\n|\n/----------\\\n|          |\nIIa        IIb = IIa\nPiet       Piet\n");
  opties_.GenOokVolgNrs = false;
  EXPECT_EQ(Tekening(jan), "Jan\n|\n/-----\\\n|     |\nPiet  =\n      Piet\n");
}

// A text of somebody with children has all of his column but the joint, a dash, and two places.
TEST_F(GenSchTekeningToets, EenVolleKolomHoudtTweeTekensLijn) {
  opties_.GenPosANamen = 5;
  const auto jan = Kind("Jan");
  const auto piet = bouw_.Man("Pieter", "Visser");
  Gezin(jan, {piet});
  Gezin(piet, {Kind("Ad"), Kind("Bep")});
  EXPECT_EQ(Tekening(jan),
            "Jan-------------=-Pieter Visse-</-Ad\n"
            "                                \\-Bep\n");
}

TEST_F(GenSchTekeningToets, WatNietPastGaatOpEenBlancoVerderOpDeVolgendeRegel) {
  opties_.GenPosANamen = 5;
  opties_.GenPartners = GenPartnerWijze::NaastElkaar;
  opties_.GenOokRelNrs = true;
  const auto jan = Kind("Jan");
  const auto piet = Kind("Piet");
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Visser"), {piet});
  bouw_.Relatie(piet, bouw_.Vrouw("Anna", "Visser"), {Kind("Ad")});
  EXPECT_EQ(Tekening(jan),
            "Jan-------------=-Piet----------=-Ad\n"
            "x[2] Anna         x[3] Anna\n"
            "Visse             Visse\n");
}

TEST_F(GenSchTekeningToets, EenWoordDatNergensPastWordtGebroken) {
  opties_.GenPosANamen = 0;
  opties_.GenPosVNamen = 30;
  opties_.GenVoorNamen = GenVoornaamWijze::AlleenEerste;  // of which a column counts ten
  const auto jan = Kind("Wilhelminadina");
  Gezin(jan, {Kind("Wilhelminadina")});
  EXPECT_EQ(Tekening(jan), "Wilhelminadin--=-Wilhelminadina\na\n");
}

TEST_F(GenSchTekeningToets, ZonderNamenHebbenOokDePartnersErGeen) {
  opties_.GenVoorNamen = GenVoornaamWijze::Nee;
  opties_.GenPartners = GenPartnerWijze::OnderElkaar;
  opties_.GenOokPrsNrs = true;
  const auto jan = Kind("Jan");
  Gezin(jan, {});
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Visser"));
  EXPECT_EQ(Tekening(jan), "[2] x(1),x(2)\n");
}

TEST_F(GenSchTekeningToets, PartnersNaastIemandMogenHogerZijnDanHijzelf) {
  opties_.GenVertikaal = true;
  opties_.GenPosANamen = 5;
  opties_.GenPartners = GenPartnerWijze::NaastElkaar;
  const auto jan = Kind("Jan");
  bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Vis"), {Kind("Piet")});
  EXPECT_EQ(Tekening(jan), "Jan  x Anna\n|      Vis\n|\n|\n|\nPiet\n");
}

// The widths of the options, one by one.
TEST(SchemaKolom, TeltWatErGevraagdIs) {
  GenOpties opties;
  opties.GenVoorNamen = GenVoornaamWijze::Nee;
  opties.GenPosANamen = 0;
  EXPECT_EQ(SchemaKolom(opties), 5);
  const auto erbij = [&opties](auto zet) {
    GenOpties anders = opties;
    zet(anders);
    return SchemaKolom(anders) - 5;
  };
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenOokVolgNrs = true; }), 8);
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenOokPrsNrs = true; }), 9);
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenOokRelNrs = true; }), 0);
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenPosANamen = 25; }), 25);
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenToonDatums = GenDatums::Jaartallen; }), 12);
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenToonDatums = GenDatums::Volledig; }), 30);
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenPartners = GenPartnerWijze::OnderElkaar; }), 45);
  EXPECT_EQ(erbij([](GenOpties& o) { o.GenPartners = GenPartnerWijze::NaastElkaar; }), 0);
}

TEST(SchemaKolom, TeltVoornamenTotHunHoogste) {
  GenOpties opties;
  opties.GenPosANamen = 0;
  const auto breedte = [&opties](GenVoornaamWijze wijze, int posities) {
    opties.GenVoorNamen = wijze;
    opties.GenPosVNamen = posities;
    return SchemaKolom(opties) - 5;
  };
  EXPECT_EQ(breedte(GenVoornaamWijze::AlleenEerste, 30), 10);
  EXPECT_EQ(breedte(GenVoornaamWijze::AlleenEerste, 7), 7);
  EXPECT_EQ(breedte(GenVoornaamWijze::Voorletters, 30), 8);
  EXPECT_EQ(breedte(GenVoornaamWijze::Voorletters, 7), 7);
  EXPECT_EQ(breedte(GenVoornaamWijze::Volledig, 30), 30);
}

}  // namespace
}  // namespace lb77
