#include "pictures/BeeldToets.h"
#include "pictures/Boombeeld.h"
#include "pictures/SvgSchrijver.h"
#include "pictures/Tijdbeeld.h"
#include "pictures/Waaier.h"
#include "steun/Gouden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

Tekening Leeg() {
  Tekening tekening;
  tekening.titel = "Proef";
  tekening.breedte = 100;
  tekening.hoogte = 50.5;
  return tekening;
}

// What stands behind the head of the file.
std::string Lijf(const Vorm& vorm) {
  Tekening tekening = Leeg();
  tekening.vormen.push_back(vorm);
  const std::string svg = SvgVan(tekening);
  const std::size_t begin = svg.find("</title>\n") + 9;
  return svg.substr(begin, svg.size() - begin - std::string_view("</svg>\n").size());
}

TEST(SvgSchrijver, DeKopNoemtMaatEnTitel) {
  EXPECT_EQ(SvgVan(Leeg()),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100pt\" height=\"50.5pt\" "
            "viewBox=\"0 0 100 50.5\" font-family=\"Liberation Sans, Arial, Helvetica, "
            "sans-serif\">\n<title>Proef</title>\n</svg>\n");
}

TEST(SvgSchrijver, ElkeVormHeeftZijnElement) {
  EXPECT_EQ(Lijf({.wat = Rechthoek{1, 2, 3, 4, 5}, .vulling = Kleur{255, 0, 16}}),
            "<rect x=\"1\" y=\"2\" width=\"3\" height=\"4\" rx=\"5\" fill=\"#ff0010\"/>\n");
  EXPECT_EQ(
      Lijf({.wat = Rechthoek{-1.006, 0, 3, 4}, .lijn = Kleur{}, .dikte = 0.8, .gestippeld = true}),
      "<rect x=\"-1.01\" y=\"0\" width=\"3\" height=\"4\" fill=\"none\" stroke=\"#000000\" "
      "stroke-width=\"0.8\" stroke-dasharray=\"3 2\"/>\n");
  EXPECT_EQ(Lijf({.wat = Ringdeel{{5, 6}, 0, 7, 0, 360}, .vulling = Kleur{}}),
            "<circle cx=\"5\" cy=\"6\" r=\"7\" fill=\"#000000\"/>\n");
  EXPECT_EQ(Lijf({.wat = Ringdeel{{0, 0}, 10, 20, 180, 360}, .vulling = Kleur{}}),
            "<path d=\"M-20 0A20 20 0 0 1 0 -20A20 20 0 0 1 20 0L10 0A10 10 0 0 0 0 -10"
            "A10 10 0 0 0 -10 0Z\" fill=\"#000000\"/>\n");
  EXPECT_EQ(Lijf({.wat = Lijnstuk{{{1, 2}, {3, 4}}}, .lijn = Kleur{}, .dikte = 1}),
            "<polyline points=\"1,2 3,4\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\" "
            "stroke-linejoin=\"round\"/>\n");
}

TEST(SvgSchrijver, TekstStaatErAlsTekst) {
  Opschrift tekst{{1, 2}, "Jan", 9, true, Tekstanker::Midden, 0, 20};
  EXPECT_EQ(Lijf({.wat = tekst, .vulling = Kleur{}}),
            "<text x=\"1\" y=\"2\" font-size=\"9\" font-weight=\"bold\" text-anchor=\"middle\" "
            "fill=\"#000000\">Jan</text>\n");
  tekst = {{1, 2}, "Jan", 9, false, Tekstanker::Eind, -90, 20};
  EXPECT_EQ(Lijf({.wat = tekst, .vulling = Kleur{}}),
            "<text transform=\"translate(1 2) rotate(-90)\" font-size=\"9\" text-anchor=\"end\" "
            "fill=\"#000000\">Jan</text>\n");
}

TEST(SvgSchrijver, TekensDieXmlNietKentStaanErAnders) {
  const Opschrift tekst{{0, 0}, std::string("<&>\"'\x01é…€"_w), 9, false, Tekstanker::Begin, 0, 20};
  const std::string lijf = Lijf({.wat = tekst, .vulling = Kleur{}});
  EXPECT_NE(lijf.find(">&#60;&#38;&#62;&#34;&#39;&#233;&#8230;&#8364;</text>"), std::string::npos)
      << lijf;
}

TEST(SvgSchrijver, ElkPersoonIsEenGroepMetZijnNaam) {
  Tekening tekening = Leeg();
  tekening.doelen = {{2, "Jan", 0}, {3, "Piet & Co", 1}};
  for (const int doel : {0, 0, 1, -1}) {
    tekening.vormen.push_back({.wat = Rechthoek{0, 0, 1, 1}, .doel = doel});
  }
  const std::string rect = "<rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"none\"/>\n";
  EXPECT_NE(SvgVan(tekening).find("<g><title>Jan</title>\n" + rect + rect +
                                  "</g>\n<g><title>Piet &#38; Co</title>\n" + rect + "</g>\n" +
                                  rect + "</svg>"),
            std::string::npos);
}

TEST(SvgSchrijver, DeBeeldenZienErZoUit) {
  VerwachtGouden(
      "beeld/waaier.svg",
      SvgVan(MaakWaaier(Voorouders(6, 6), {270, Kleurwijze::Generatie, "Kwartierstaat van Willem"},
                        Helveticamaat())));
  VerwachtGouden("beeld/kwartierboom.svg",
                 SvgVan(MaakBoom(Voorouders(4, 5),
                                 {Groei::Omhoog, Kleurwijze::Geslacht, "Kwartierstaat van Willem"},
                                 Helveticamaat())));
  VerwachtGouden("beeld/stamboom.svg",
                 SvgVan(MaakBoom(Nakomelingen(30),
                                 {Groei::Rechts, Kleurwijze::Generatie, "Nakomelingen van Jan"},
                                 Helveticamaat())));
  VerwachtGouden(
      "beeld/tijdbalk.svg",
      SvgVan(MaakTijdbeeld(
          {{"1700-1749", 3, 3}, {"1750-1799", 12, 9}, {"...", 0, 0}, {"1900-1949", 41, 12}},
          {true, "Nakomelingen van Jan", "Totaal: 56 afstammelingen"}, Helveticamaat())));
}

}  // namespace
}  // namespace lb77
