// Files in Unicode: the question, and what the answers make of them.
#include <gtest/gtest.h>

#include <algorithm>

#include "exchange/ImportToets.h"
#include "steun/Plekken.h"
#include "text/Letterlijk.h"
#include "text/Utf8.h"

namespace lb77 {
namespace {

constexpr std::string_view kBom = "\xEF\xBB\xBF";

// A text in UTF-16 with its byte-order mark.
std::string Utf16(std::string_view utf8, bool laagEerst) {
  std::string uit;
  const auto eenheid = [&](char32_t waarde) {
    const char hoog = static_cast<char>(waarde >> 8U);
    const char laag = static_cast<char>(waarde & 0xFFU);
    uit += laagEerst ? laag : hoog;
    uit += laagEerst ? hoog : laag;
  };
  eenheid(0xFEFF);
  for (std::size_t i = 0; i < utf8.size();) {
    const Utf8Teken teken = LeesUtf8(utf8, i);
    i += teken.lengte;
    if (teken.codepunt < 0x10000) {
      eenheid(teken.codepunt);
    } else {
      eenheid(0xD800 + ((teken.codepunt - 0x10000) >> 10U));
      eenheid(0xDC00 + ((teken.codepunt - 0x10000) & 0x3FFU));
    }
  }
  return uit;
}

constexpr std::string_view kTekst = R"(
    0 @I1@ INDI
    1 NAME Zoë /Łódź/
    1 BIRT
    2 DATE 3 décembre 1850
    2 PLAC Köln
    1 NOTE „Één” 中 e)"
                                    "\u0301"
                                    R"(n 😀
    2 CONT 中
  )";
constexpr std::string_view kVerlies =
    "LET OP: teken U+4E2D niet overgenomen: 2 keer, voor het eerst in regel 7\n"
    "LET OP: teken U+1F600 niet overgenomen: 1 keer, voor het eerst in regel 7\n";

class ImpUnicodeTest : public ImportToets {
 protected:
  // What a record tells, up to its links.
  static std::string Naam(const std::string& persoon) {
    return persoon.substr(0, std::min(persoon.find("; ouders"), persoon.find("; rel1")));
  }
  // The first person whose names begin so.
  std::string OpNaam(std::string_view naam) {
    std::string uit;
    InSessie([&](Hoofdmodule& hoofd) {
      for (std::int16_t nr = 2; uit.empty() && hoofd.Persoon.Lees(nr); ++nr) {
        const std::string namen =
            hoofd.Persoon.VoorNaamTrue() + " " + hoofd.Persoon.AchterNaamTrue();
        if (namen.starts_with(naam)) uit = namen;
      }
    });
    return uit;
  }
  void VerwachtOmgezet() {
    EXPECT_EQ(Persoon(2),
              "voor Zo\xEB; achter L\xF3"
              "dz; geb 03-12-1850; te 2; opm 4096");
    EXPECT_EQ(Plaats(2), "K\xF6ln");
    EXPECT_EQ(OpmBijPersoon(2), std::string("4096 ,,\xC9\xE9n\" ? \xE9n ? ?\n"));
    EXPECT_EQ(LogRegels(), kVerlies);
  }
};

TEST_F(ImpUnicodeTest, Utf8MetVolgordeteken) {
  Antwoord("Ja");
  Importeer(std::string(kBom) + Ged(kTekst));
  VerwachtOmgezet();
}

TEST_F(ImpUnicodeTest, Utf8ZonderVolgordetekenEnZonderNaam) {
  Antwoord("Ja");
  Importeer(Ged(kTekst));
  VerwachtOmgezet();
}

TEST_F(ImpUnicodeTest, Utf16InBeideVolgorden) {
  Antwoord("Ja");
  Importeer(Utf16(Ged(kTekst), true));
  VerwachtOmgezet();
}

TEST_F(ImpUnicodeTest, Utf16MetDeHogeByteVoorop) {
  Antwoord("Ja");
  Importeer(Utf16(Ged(kTekst), false));
  VerwachtOmgezet();
}

TEST_F(ImpUnicodeTest, DeNaamInDeKopTeltNietMeerAlsErIsOmgezet) {
  Antwoord("Ja");
  Importeer(std::string(kBom) + GedIn("ANSEL", "0 @I1@ INDI\n1 NAME Zoë //\n1 BIRT\n2 PLAC Ås"));
  EXPECT_EQ(Persoon(2), "voor Zo\xEB; te 2");
  EXPECT_EQ(Plaats(2), "\xC5s");
}

TEST_F(ImpUnicodeTest, MetNeeBlijvenDeBytesZoalsZeZijn) {
  constexpr std::string_view kPersoon = "0 @I1@ INDI\n1 NAME Zoë 中 //";
  Antwoord("Nee");
  Importeer(GedIn("UTF-8", kPersoon));
  EXPECT_EQ(LogRegels(),
            "LET OP: Unicode is niet omgezet; letters met accenten kunnen "
            "verkeerd zijn\n");
  Antwoord("");
  Importeer(GedIn("WIN", kPersoon));
  EXPECT_EQ(LogRegels(), "");
  EXPECT_EQ(Persoon(2), Persoon(3));
  EXPECT_NE(Persoon(2), "voor Zo\xEB ?");
}

TEST_F(ImpUnicodeTest, MetNeeIsUtf16GeenGedcom) {
  Antwoord("Nee");
  Importeer(Utf16(Ged(kTekst), true),
            "! uitroep \"Fout: Header van GEDCOM-bestand niet gevonden\"");
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpUnicodeTest, AnsiMetEnkeleBytesIsGeenVraag) {
  Importeer(GedIn("ANSI", "0 @I1@ INDI\n1 NAME Zo\xEB //"));
  EXPECT_EQ(Persoon(2), "voor Zo\xEB");
}

TEST_F(ImpUnicodeTest, EenOngeldigeByteIsVanWindows) {
  Antwoord("Ja");
  Importeer(GedIn("UTF-8", "0 @I1@ INDI\n1 NAME Zo\xEB Zoë //"));
  EXPECT_EQ(Persoon(2), "voor Zo\xEB Zo\xEB");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpUnicodeTest, EenAfgekaptBestandInUtf16HoudtZijnHeleTekens) {
  Antwoord("Ja");
  const std::string heel = Utf16(Ged("0 @I1@ INDI\n1 NAME Zoë //"), true);
  Importeer(heel.substr(0, heel.size() - 1));
  EXPECT_EQ(Persoon(2), "voor Zo\xEB");
}

TEST_F(ImpUnicodeTest, DePlaatsenWordenOmgezetGeteld) {
  Importeer(Ged("0 @I1@ INDI\n1 BIRT\n2 PLAC K\xF6ln"));
  Antwoord("Ja");
  Importeer(GedIn("UTF-8", "0 @I1@ INDI\n1 BIRT\n2 PLAC Köln"));
  EXPECT_EQ(Aantallen(), "3 1 2 1");
}

std::string Bron(std::string_view naam) {
  return LeesBytes(BronMap() / "../shared/data" / naam);
}

TEST_F(ImpUnicodeTest, EenBestandMetTremasKomtBinnenMetZijnAccenten) {
  const std::string bytes = Bron("bronte.ged");
  if (bytes.empty()) GTEST_SKIP() << "bronte.ged is absent";
  Antwoord("Ja");
  Importeer(bytes);
  EXPECT_TRUE(Persoon(2).starts_with("voor Patrick; achter Bront\xEB")) << Persoon(2);
}

TEST_F(ImpUnicodeTest, EenZweedsBestandKomtInElkeCoderingEenderBinnen) {
  const std::string bytes = Bron("vendor-gramps.ged");
  if (bytes.empty()) GTEST_SKIP() << "vendor-gramps.ged is absent";
  Antwoord("Ja");
  Importeer(bytes);
  Importeer(Utf16(bytes, true));
  Importeer(Utf16(bytes, false));
  EXPECT_EQ(Plaats(3), "G\xF6teborg, V\xE4stra G\xF6taland");
  for (std::int16_t nr = 2; nr <= 6; ++nr) {
    for (const int verder : {5, 10}) {
      const auto ander = static_cast<std::int16_t>(nr + verder);
      EXPECT_EQ(Naam(Persoon(nr)), Naam(Persoon(ander)));
    }
  }
}

TEST_F(ImpUnicodeTest, EenGrootBestandVerteltWelkTekenVerlorenGing) {
  const std::string bytes = Bron("queen.ged");
  if (bytes.empty()) GTEST_SKIP() << "queen.ged is absent";
  Antwoord("Ja");
  Importeer(bytes,
            "! uitroep \"Meer dan 5 relaties voor Persoon 321\"\n"
            "! uitroep \"Meer dan 5 relaties voor Persoon 740\"");
  EXPECT_TRUE(LogRegels().ends_with(
      "\nLET OP: teken U+00F0 niet overgenomen: 4 keer, voor het eerst in regel 413\n"
      "LET OP: teken U+00FE niet overgenomen: 2 keer, voor het eerst in regel 8776\n"
      "LET OP: teken U+FFFD niet overgenomen: 5 keer, voor het eerst in regel 8074\n"));
  EXPECT_EQ(LogRegels().find("teken U+"), LogRegels().find("teken U+00F0"));
  EXPECT_NE(OpNaam("Torf Einarr").find("R\xF6gnvaldarson"), std::string::npos);
}

}  // namespace
}  // namespace lb77
