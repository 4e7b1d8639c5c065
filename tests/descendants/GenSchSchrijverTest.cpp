// The descendant chart as it stands in its file.
#include <set>

#include "descendants/GenSchSchrijver.h"
#include "descendants/GenSchTekening.h"
#include "descendants/GenSchToets.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class GenSchSchrijverToets : public GenSchToets {
 protected:
  std::int16_t TweeKinderen() {
    const auto jan = Kind("Jan");
    Gezin(jan, {Kind("Piet"), Kind("Klaas")});
    return jan;
  }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }
  // The lines of the file.
  [[nodiscard]] std::vector<std::string> Regels() const {
    std::vector<std::string> uit;
    for (std::size_t van = 0; van < uit_.size();) {
      const std::size_t tot = uit_.find("\r\n", van);
      uit.push_back(uit_.substr(van, tot - van));
      van = tot + 2;
    }
    return uit;
  }
  // So many generations of one child, and so many children in the last one.
  std::int16_t Ketting(int generaties, int kinderen) {
    const auto eerste = Kind("Eerste");
    std::int16_t ouder = eerste;
    for (int generatie = 2; generatie < generaties; ++generatie) {
      const auto kind = Kind("Kind");
      Gezin(ouder, {kind});
      ouder = kind;
    }
    for (int gezin = 0; kinderen > 0; ++gezin) {
      std::vector<std::int16_t> lijst;
      for (; kinderen > 0 && lijst.size() < 29; --kinderen) lijst.push_back(Kind("Laatste"));
      Gezin(ouder, lijst);
    }
    return eerste;
  }
};

TEST_F(GenSchSchrijverToets, TitelEnSlotStaanMetEenLegeRegelOmHetSchema) {
  opties_.teksten.titel = "Genealogie van Jan";
  opties_.teksten.inleiding = {"Een", "", "Drie"};
  opties_.teksten.copyrightRegel = "Copyright (2000) Jan";
  opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  EXPECT_EQ(Teken(TweeKinderen()),
            "Genealogie van Jan\r\nEen\r\nDrie\r\n\r\n"
            "Jan---------------</-Piet\r\n"
            "                   \\-Klaas\r\n\r\n"
            "          Copyright (2000) Jan\r\n          Gemaakt met LB77 voor Windows\r\n");
}

TEST_F(GenSchSchrijverToets, ZonderTitelBegintHetBestandMetHetSchema) {
  EXPECT_EQ(Teken(Kind("Jan")), "Jan\r\n\r\n");
}

TEST_F(GenSchSchrijverToets, InHTMLStaatElkeNaamBijZijnDoel) {
  opties_.GenInHTML = opties_.GenOokVolgNrs = true;
  const auto jan = bouw_.Man("René"_w, "");
  const auto piet = Kind("Piet");
  Gezin(jan, {piet, Kind("Klaas")});
  Gezin(jan, {piet});
  Teken(jan);
  EXPECT_TRUE(Bevat("<TITLE>\r\nGenealogie Ren&eacute; \r\n</TITLE>"));
  EXPECT_TRUE(
      Bevat("<BR>\r\n<PRE>\r\n"
            "<A NAME=\"I\">I</A>       Ren&eacute;--------------&lt;/-<A NAME=\"IIa\">IIa</A>     "
            "Piet\r\n"
            "                           +-<A NAME=\"IIb\">IIb</A>     Klaas\r\n"
            "                           \\-<A NAME=\"IIc\">IIc</A>     = <A HREF=\"#IIa\">IIa</A> "
            "Piet\r\n"
            "\r\n</PRE>\r\n"));
  EXPECT_TRUE(uit_.ends_with("</BODY>\r\n</HTML>\r\n\r\n"));
}

TEST_F(GenSchSchrijverToets, InHTMLVerticaalStaanDoelEnVerwijzingOpDeEersteRegel) {
  opties_.GenInHTML = opties_.GenOokVolgNrs = opties_.GenVertikaal = true;
  const auto jan = Kind("Jan");
  const auto piet = Kind("Piet");
  Gezin(jan, {piet});
  Gezin(jan, {piet});
  Teken(jan);
  EXPECT_TRUE(
      Bevat("<A NAME=\"I\">I</A>\r\nJan\r\n|\r\n/----------\\\r\n|          |\r\n"
            "<A NAME=\"IIa\">IIa</A>        <A NAME=\"IIb\">IIb</A> = "
            "<A HREF=\"#IIa\">IIa</A>\r\nPiet       Piet\r\n"));
}

TEST_F(GenSchSchrijverToets, ZonderVolgnummersHeeftHetSchemaGeenDoelen) {
  opties_.GenInHTML = true;
  Teken(TweeKinderen());
  EXPECT_FALSE(Bevat("<A NAME=\"I"));
}

TEST_F(GenSchSchrijverToets, ElkKindStaatOpEenRegel) {
  const auto jan = Ketting(2, 5 * 29);  // all the relations that somebody can have
  Teken(jan);
  EXPECT_EQ(Regels().size(), 146U);
  opties_.GenVertikaal = true;
  Teken(jan);
  EXPECT_EQ(Regels().size(), 6U);
  EXPECT_EQ(Regels()[2].size(), 144U * 9 + 1);
}

TEST_F(GenSchSchrijverToets, TachtigGeneratiesStaanOpEenRegelHoeLangOok) {
  opties_.GenPosVNamen = 30;
  opties_.GenPosANamen = 25;
  opties_.GenOokVolgNrs = opties_.GenOokPrsNrs = true;
  opties_.GenToonDatums = GenDatums::Volledig;
  opties_.GenPartners = GenPartnerWijze::OnderElkaar;
  const auto eerste = Ketting(80, 2);
  Teken(eerste);
  ASSERT_EQ(tabel_.GenAantal(), 81);
  const auto regels = Regels();
  ASSERT_EQ(regels.size(), 3U);
  const auto kolom = static_cast<std::size_t>(79 * SchemaKolom(opties_));
  EXPECT_GT(kolom, 9999U);
  EXPECT_EQ(regels[0].substr(kolom - 2), "-</-LXXXa   Laatste [81]");
  EXPECT_EQ(regels[1].substr(kolom - 2), "  \\-LXXXb   Laatste [82]");
}

TEST_F(GenSchSchrijverToets, EenVolleTabelWordtInBeideVormenGetekend) {
  const auto kring = Kind("Kring");
  bouw_.Relatie(kring, 0, {kring, kring});
  opties_.GenVolgHerh = opties_.GenOokVolgNrs = true;
  for (const bool verticaal : {false, true}) {
    opties_.GenVertikaal = verticaal;
    Teken(kring);
    EXPECT_EQ(tabel_.GenAantal(), kMaxHoofdpersonen);
    for (int i = 0; i < tabel_.GenAantal(); i += 111) EXPECT_TRUE(Bevat(tabel_.Label(i))) << i;
  }
}

TEST_F(GenSchSchrijverToets, ElkeRegelKanHetSchemaStoppen) {
  Plaats(Ketting(3, 4));
  int tests = 0;
  std::vector<std::pair<int, int>> getoond;
  verloop_.afbreken = [&] { return ++tests == 3; };
  verloop_.toon = [&](int persoon, int rij) { getoond.emplace_back(persoon, rij); };
  EXPECT_EQ(Schrijf(), Einde::Afgebroken);
  EXPECT_EQ(Regels().size(), 2U);
  EXPECT_EQ(getoond, (std::vector<std::pair<int, int>>{{4, 0}, {3, 0}, {2, 0}, {5, 1}}));
}

TEST_F(GenSchSchrijverToets, VerticaalKanElkePersoonHetSchemaStoppen) {
  opties_.GenVertikaal = true;
  Plaats(Ketting(3, 4));
  int tests = 0;
  int laatste = 0;
  verloop_.afbreken = [&] { return ++tests == 3; };
  verloop_.toon = [&](int, int aantal) { laatste = aantal; };
  EXPECT_EQ(Schrijf(), Einde::Afgebroken);
  EXPECT_EQ(laatste, 2);
  EXPECT_EQ(uit_, "");
}

TEST_F(GenSchSchrijverToets, EenLeesfoutEindigtHetSchema) {
  const auto jan = TweeKinderen();
  opties_.GenPartners = GenPartnerWijze::OnderElkaar;
  Plaats(jan);
  bouw_.WijzigPersoon(tabel_.Persoon(2), {{"Relatie1", "99"}});
  for (const bool verticaal : {false, true}) {
    opties_.GenVertikaal = verticaal;
    const Uitslag uitslag = Schrijf();
    EXPECT_EQ(uitslag, Einde::Leesfout);
    EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Relaties, 99}));
  }
  EXPECT_FALSE(Bevat("Copyright"));
}

TEST_F(GenSchSchrijverToets, EenOnleesbareStamouderGeeftGeenSchema) {
  tabel_.Begin(99, "M");
  ASSERT_EQ(PlaatsGen(rijen_, tabel_, false, verloop_), Einde::Klaar);
  EXPECT_EQ(Schrijf().fout, (Leesfout{BestandSoort::Personen, 99}));
  EXPECT_EQ(uit_, "");
}

}  // namespace
}  // namespace lb77
