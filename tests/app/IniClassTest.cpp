#include <map>
#include <string>
#include <utility>
#include <vector>

#include "app/IniClass.h"
#include "app/SessieToets.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class IniKlasse : public SessieToets {
 protected:
  // Reads the settings of a file and does something with them, without a message.
  void Lees(std::string_view ini, const std::function<void(IniClass&)>& doe) {
    ZetIni(ini);
    Verwacht("", Met([&](Hoofdmodule& hoofd) {
               ASSERT_TRUE(hoofd.Ini.IniLees());
               doe(hoofd.Ini);
             }),
             "");
  }
  // The same without a file: the defaults of a program that has read nothing.
  void Ongelezen(const std::function<void(IniClass&)>& doe) {
    Verwacht("", Met([&](Hoofdmodule& hoofd) { doe(hoofd.Ini); }), "");
  }
};

TEST_F(IniKlasse, EenWaardeStaatOnderSectieEnSleutel) {
  Lees("[KWST]\nHTML=J\n[GEN]\nHTML=N\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("KWST", "HTML"), "J");
    EXPECT_EQ(ini.IniWaarde("GEN", "HTML"), "N");
    ini.IniZet("GEN", "HTML", "J");
    EXPECT_EQ(ini.IniWaarde("GEN", "HTML"), "J");
  });
}

TEST_F(IniKlasse, NaarEenOnbekendeSleutelVragenGeeftEenMelding) {
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             EXPECT_EQ(hoofd.Ini.IniWaarde("Sets", "Set100"), "???");
             EXPECT_EQ(hoofd.Ini.IniWaarde("Niets", "Iets"), "???");
           }),
           R"(! stop "Onbekende Sectie/Tag:Sets,Set100"
              ! stop "Onbekende Sectie/Tag:Niets,Iets")");
}

TEST_F(IniKlasse, EenOnbekendeSleutelZettenGeeftEenMelding) {
  Verwacht("", Met([](Hoofdmodule& hoofd) { hoofd.Ini.IniZet("Sets", "Set100", "x"); }),
           R"(! stop "Onbekende Sectie/Tag (in IniZet):Sets,Set100")");
}

TEST_F(IniKlasse, DeEditorHeetInHetBestandAndersDanInEenVraag) {
  Lees("[Systeem]\nEdit=VI\nEditor=EMACS\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Systeem", "Editor"), "VI");
    ini.IniZet("Systeem", "Editor", "ED");
    ini.IniSchrijf();
  });
  EXPECT_TRUE(IniHeeft("Edit=ED"));
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             EXPECT_EQ(hoofd.Ini.IniWaarde("Systeem", "Edit"), "???");
             hoofd.Ini.IniZet("Systeem", "Edit", "x");
           }),
           R"(! stop "Onbekende Sectie/Tag:Systeem,Edit"
              ! stop "Onbekende Sectie/Tag (in IniZet):Systeem,Edit")");
}

TEST_F(IniKlasse, ToonTrouwIsEenAndereNaamVanHuwDataBehalveInEenVraag) {
  Lees("[Genealogie]\nToonTrouw=2\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Genealogie", "HuwData"), "2");
    ini.IniZet("Genealogie", "ToonTrouw", "0");
    EXPECT_EQ(ini.ToonTrouw(), "0");
    ini.IniZet("Genealogie", "HuwData", "");
    EXPECT_EQ(ini.ToonTrouw(), "2");
  });
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             EXPECT_EQ(hoofd.Ini.IniWaarde("Genealogie", "ToonTrouw"), "???");
           }),
           R"(! stop "Onbekende Sectie/Tag:Genealogie,ToonTrouw")");
}

TEST_F(IniKlasse, KWBLDDeeltDrieWaardenMetKWST) {
  Lees("[KWST]\nOokNummers=N\n[KWBLD]\nOokNummers=J\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("KWST", "OokNummers"), "J");  // the later line wins
    ini.IniZet("KWBLD", "OokCopyRt", "N");
    EXPECT_EQ(ini.IniWaarde("KWST", "OokCopyRt"), "N");
    ini.IniZet("KWST", "OokLB77", "N");
    EXPECT_EQ(ini.IniWaarde("KWBLD", "OokLB77"), "N");
  });
}

TEST_F(IniKlasse, HetMailadresWordtAlleenUitINTERNETTeruggelezen) {
  Lees("[Gebruiker]\nEmail=a@example.org\n",
       [](IniClass& ini) { EXPECT_EQ(ini.IniWaarde("INTERNET", "Email"), ""); });
  Lees("[Gebruiker]\nE-mail=oud@example.org\n",
       [](IniClass& ini) { EXPECT_EQ(ini.IniWaarde("INTERNET", "Email"), "oud@example.org"); });
  Lees("[INTERNET]\nEmail=b@example.org\n[Gebruiker]\nE-mail=oud@example.org\n",
       [](IniClass& ini) { EXPECT_EQ(ini.IniWaarde("Gebruiker", "Email"), "b@example.org"); });
  Lees("[Gebruiker]\nE-mail=oud@example.org\n[INTERNET]\nEmail=b@example.org\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("INTERNET", "Email"), "b@example.org");
    ini.IniZet("Gebruiker", "Email", "c@example.org");
    EXPECT_EQ(ini.IniWaarde("INTERNET", "Email"), "c@example.org");
    ini.IniSchrijf();
  });
  EXPECT_NE(Ini().find("Geslacht=\r\nEmail=c@example.org\r\n\r\n[INTERNET]\r\nEmail=c@example.org"),
            std::string::npos);
}

TEST_F(IniKlasse, OokHSKHomeVanDeParenteelWordtNooitGelezen) {
  Lees("[GEN]\nOokHSKHome=J\n[GENB]\nOokHSKHome=J\n[KWST]\nOokHSKHome=J\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("GEN", "OokHSKHome"), "N");
    EXPECT_EQ(ini.IniWaarde("GENB", "OokHSKHome"), "N");
    EXPECT_EQ(ini.IniWaarde("KWST", "OokHSKHome"), "J");
    ini.IniZet("GEN", "OokHSKHome", "J");
    EXPECT_EQ(ini.IniWaarde("GEN", "OokHSKHome"), "J");
  });
}

TEST_F(IniKlasse, ZonderGelezenBestandIsHetScheidingstekenEenPunt) {
  Ongelezen([](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Genealogie", "DatumForm"), "1");
    EXPECT_EQ(ini.separator(), ".");
  });
}

TEST_F(IniKlasse, DatumFormGaatMetNulOfEenInEnUit) {
  Lees("[Genealogie]\nDatumForm=0\n", [this](IniClass& ini) {
    EXPECT_EQ(ini.separator(), "-");
    EXPECT_EQ(ini.IniWaarde("Genealogie", "DatumForm"), "0");
    ini.IniZet("Genealogie", "DatumForm", "1");
    EXPECT_EQ(ini.separator(), ".");
    ini.IniSchrijf();
    EXPECT_TRUE(IniHeeft("DatumForm=1"));
    ini.IniZet("Genealogie", "DatumForm", "0");
    EXPECT_EQ(ini.separator(), "-");
    ini.IniSchrijf();
    EXPECT_TRUE(IniHeeft("DatumForm=0"));
  });
  Lees("[Genealogie]\nDatumForm=7\n", [](IniClass& ini) { EXPECT_EQ(ini.separator(), "."); });
  Lees("[Genealogie]\nDatumForm=-\n", [](IniClass& ini) { EXPECT_EQ(ini.separator(), "-"); });
}

TEST_F(IniKlasse, DePlaatsVanHetVensterBlijftBinnenHaarGrenzen) {
  struct Geval {
    const char* x;
    const char* y;
    const char* wordtX;
    const char* wordtY;
  };
  for (const Geval& g : {Geval{"30", "30", "50", "100"}, Geval{"50000", "50000", "50", "100"},
                         Geval{"50", "100", "50", "100"}, Geval{"49", "99", "50", "100"},
                         Geval{"40000", "40000", "40000", "40000"}, Geval{"x", "", "50", "100"},
                         Geval{"99999999999", "-1", "50", "100"}}) {
    Lees("[Scherm]\nMainX=" + std::string(g.x) + "\nMainY=" + g.y + "\n", [&](IniClass& ini) {
      EXPECT_EQ(ini.IniWaarde("Scherm", "MainX"), g.wordtX) << g.x;
      EXPECT_EQ(ini.IniWaarde("Scherm", "MainY"), g.wordtY) << g.y;
    });
  }
  Lees("", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Scherm", "MainX"), "100");
    EXPECT_EQ(ini.IniWaarde("Scherm", "MainY"), "50");
  });
}

TEST_F(IniKlasse, TekstbrEnTekstRegHebbenEenOndergrensAlsZeErStaan) {
  Lees("[Printer]\nTekstbr=5\nTekstReg=4\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Printer", "Tekstbr"), "80");
    EXPECT_EQ(ini.IniWaarde("Printer", "TekstReg"), "60");
  });
  Lees("[Printer]\nTekstbr=10\nTekstReg=5\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Printer", "Tekstbr"), "10");
    EXPECT_EQ(ini.IniWaarde("Printer", "TekstReg"), "5");
  });
  Lees("", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Printer", "Tekstbr"), "0");
    EXPECT_EQ(ini.IniWaarde("Printer", "TekstReg"), "0");
  });
}

TEST_F(IniKlasse, DeMargesZijnGetallen) {
  Lees("[Printer]\nMarge= 12x\nBovMar=-3\nOndMar=99999\n", [](IniClass& ini) {
    EXPECT_EQ(ini.IniWaarde("Printer", "Marge"), "12");
    EXPECT_EQ(ini.IniWaarde("Printer", "BovMar"), "-3");
    EXPECT_EQ(ini.IniWaarde("Printer", "OndMar"), "32767");
    ini.IniZet("Printer", "Marge", "7 mm");
    EXPECT_EQ(ini.IniWaarde("Printer", "Marge"), "7");
  });
}

TEST_F(IniKlasse, NummersBuitenDeLijstWordenBijHetLezenOvergeslagen) {
  Lees("[Sets]\nSet100=X\nSet0=Y\nSet2=B\n[Shell]\nProg11=p\nProg10=q\n[Funktietoetsen]\nF13=r\n",
       [](IniClass& ini) {
         EXPECT_EQ(ini.SetOmschrijving(2), "B");
         EXPECT_EQ(ini.IniWaarde("Shell", "Prog10"), "q");
         ini.IniSchrijf();
       });
  EXPECT_EQ(Ini().find("Set100"), std::string::npos);
  EXPECT_TRUE(IniHeeft("Set2=B"));
  EXPECT_EQ(Ini().find("Prog11"), std::string::npos);
}

// All settings that callers may ask for and that come back from the file, each as section and key.
std::vector<std::pair<Sleutel, std::string>> AlleTags() {
  std::vector<std::pair<Sleutel, std::string>> uit;
  for (const Sleutel& sleutel : AlleSleutels()) {
    const bool vast = sleutel.sectie == "Systeem" && sleutel.naam == "Prog";
    if (vast || sleutel.soort == SleutelSoort::NooitGelezen) continue;
    const std::string naam(sleutel.naam == "Edit" ? "Editor" : sleutel.naam);
    if (sleutel.aantal == 0) uit.emplace_back(sleutel, naam);
    for (int i = 1; i <= sleutel.aantal; ++i) uit.emplace_back(sleutel, naam + std::to_string(i));
  }
  return uit;
}

// A value that the setting can hold, another one for each `nummer`.
std::string Proefwaarde(const Sleutel& sleutel, int nummer) {
  const std::string getal = std::to_string(100 + nummer);  // inside the bounds of every number
  switch (sleutel.soort) {
    case SleutelSoort::Getal:
    case SleutelSoort::Positie:
      return getal;
    case SleutelSoort::Scheider:
      return "1";
    case SleutelSoort::DosTekst:
      return std::string("[één] = "_w) + getal;
    case SleutelSoort::Tekst:
    case SleutelSoort::Pad:
    case SleutelSoort::Gedeeld:
    case SleutelSoort::NooitGelezen:
      break;
  }
  return "[x] = " + getal;
}

TEST_F(IniKlasse, ElkeWaardeKomtUitHetBestandTerug) {
  std::map<std::string, std::string> gezet;
  Lees("", [&](IniClass& ini) {
    int nummer = 0;
    for (const auto& [sleutel, tag] : AlleTags()) {
      ini.IniZet(sleutel.sectie, tag, Proefwaarde(sleutel, ++nummer));
    }
    for (const auto& [sleutel, tag] : AlleTags()) {  // of shared ones the last value counts
      gezet[std::string(sleutel.sectie) + "/" + tag] = ini.IniWaarde(sleutel.sectie, tag);
    }
    ini.IniSchrijf();
  });
  EXPECT_EQ(gezet.at("Lijnboom/Versie"), "[x] = 101");
  EXPECT_EQ(gezet.at("KWBLD/OokLB77"), gezet.at("KWST/OokLB77"));
  Verwacht("", Met([&](Hoofdmodule& hoofd) {
             ASSERT_TRUE(hoofd.Ini.IniLees());
             for (const auto& [sleutel, tag] : AlleTags()) {
               const std::string plek = std::string(sleutel.sectie) + "/" + tag;
               EXPECT_EQ(hoofd.Ini.IniWaarde(sleutel.sectie, tag), gezet.at(plek)) << plek;
             }
           }),
           "");
}

TEST_F(IniKlasse, EenOnbekendeRegelVerdwijntBijHetSchrijven) {
  Lees("[Systeem]\nOnbekend=x\nSetOms=y\n[Vreemd]\nSetOms=z\n",
       [](IniClass& ini) { ini.IniSchrijf(); });
  EXPECT_EQ(Ini().find("Onbekend"), std::string::npos);
  EXPECT_EQ(Ini().find("Vreemd"), std::string::npos);
  EXPECT_TRUE(IniHeeft("SetOms=y"));
}

TEST_F(IniKlasse, GemerkteTekstenStaanInHetBestandInDeTekensetVanDeBestanden) {
  Lees(
      "[Gebruiker]\nNaam=Andr\x82\nLand=Belgi\x89\n[Namenfile]\nGez1=NINederlands Isra\x89litisch\n"
      "[Funktietoetsen]\nF1=\x82\x82n\n",
      [](IniClass& ini) {
        EXPECT_EQ(ini.IniWaarde("Gebruiker", "Naam"), "André"_w);
        EXPECT_EQ(ini.IniWaarde("Gebruiker", "Land"), "Belgi\x89");  // passes as it is
        EXPECT_EQ(ini.IniWaarde("Namenfile", "Gez1"), "NINederlands Israëlitisch"_w);
        EXPECT_EQ(ini.TekstF(1), "één"_w);
        ini.IniZet("Gebruiker", "Plaats", "Curaçao"_w);
        ini.IniSchrijf();
      });
  EXPECT_TRUE(IniHeeft("Naam=Andr\x82"));
  EXPECT_TRUE(IniHeeft("Land=Belgi\x89"));
  EXPECT_TRUE(
      IniHeeft("Plaats=Cura\x87"
               "ao"));
  EXPECT_TRUE(IniHeeft("F1=\x82\x82n"));
}

TEST_F(IniKlasse, DeVoorvoegselsStaanInDeGedeeldeSchrijfwijze) {
  ZetIni("[Namenfile]\nVoor1=af,auf\n");
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             ASSERT_TRUE(hoofd.Ini.IniLees());
             EXPECT_EQ(hoofd.schrijfwijze.voorvoegsels.Voor1, "af,auf");
             EXPECT_EQ(hoofd.schrijfwijze.voorvoegsels.Voor2, "de,den,der,het,du,la,'t,d',dem");
             hoofd.Ini.IniZet("Namenfile", "Voor2", "den");
             EXPECT_EQ(hoofd.schrijfwijze.voorvoegsels.Voor2, "den");
             EXPECT_EQ(hoofd.Ini.IniWaarde("Namenfile", "Voor2"), "den");
           }),
           "");
}

TEST_F(IniKlasse, EenTweedeExemplaarZietDezelfdeWaarden) {
  ZetIni("[KWGR]\nBreedte=12\n");
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             ASSERT_TRUE(hoofd.Ini.IniLees());
             IniClass eigen(hoofd.instellingen, hoofd.schrijfwijze, hoofd.gesprek,
                            hoofd.programmaMap);
             EXPECT_EQ(eigen.IniWaarde("KWGR", "Breedte"), "12");
             eigen.IniZet("KWGR", "Breedte", "9");
             EXPECT_EQ(hoofd.Ini.IniWaarde("KWGR", "Breedte"), "9");
           }),
           "");
}

TEST_F(IniKlasse, OpnieuwLezenBegintWeerBijDeStandaard) {
  Lees("[KWGR]\nBreedte=12\n[Sets]\nSet1=A\n", [this](IniClass& ini) {
    ZetIni("[KWGR]\nOokJaren=J\n");
    EXPECT_TRUE(ini.IniLees());
    EXPECT_EQ(ini.IniWaarde("KWGR", "Breedte"), "8");
    EXPECT_EQ(ini.AantalBestandenSets(), 0);
  });
}

TEST_F(IniKlasse, ZonderSetsIsErGeenBestandensetAanwezig) {
  Lees("[Sets]\n", [](IniClass& ini) {
    EXPECT_EQ(ini.bestandenset(1), "<geen bestandenset aanwezig>");
    EXPECT_EQ(ini.bestandenset(2), "");
    EXPECT_EQ(ini.AantalBestandenSets(), 0);
    EXPECT_EQ(ini.BestandenSetIndex("ABC"), 0);
  });
}

TEST_F(IniKlasse, EenSetIsEenNaamEenKommaEnEenOmschrijving) {
  Lees("[Sets]\nSet1=ABC,mijn familie\nSet2=abc\nSet3=D,a,b\n", [](IniClass& ini) {
    EXPECT_EQ(ini.bestandenset(1), "ABC");
    EXPECT_EQ(ini.BestandenSetOms(1), "mijn familie");
    EXPECT_EQ(ini.bestandenset(2), "ABC");
    EXPECT_EQ(ini.BestandenSetOms(2), "");
    EXPECT_EQ(ini.BestandenSetOms(3), "a,b");
    EXPECT_EQ(ini.SetOmschrijving(3), "D,a,b");
    EXPECT_EQ(ini.BestandenSetIndex("D"), 3);
    EXPECT_EQ(ini.AantalBestandenSets(), 3);
  });
}

TEST_F(IniKlasse, VoorbijEenGatInDeLijstWordtNietGekeken) {
  Lees("[Sets]\nSet1=A\nSet3=C\n", [](IniClass& ini) {
    EXPECT_EQ(ini.AantalBestandenSets(), 1);
    EXPECT_EQ(ini.BestandenSetIndex("C"), 0);
    EXPECT_EQ(ini.bestandenset(3), "C");
  });
}

TEST_F(IniKlasse, EenIndexBuitenDeLijstGeeftNiets) {
  Ongelezen([](IniClass& ini) {
    EXPECT_EQ(ini.bestandenset(0), "");
    EXPECT_EQ(ini.bestandenset(100), "");
    EXPECT_EQ(ini.BestandenSetOms(-1), "");
  });
}

TEST_F(IniKlasse, DeActieveSetKentEenNaamVoorGeen) {
  Lees("[Systeem]\nSet=abc\nSetOms=oms\n", [](IniClass& ini) {
    EXPECT_EQ(ini.ActieveSet(), "ABC");
    EXPECT_EQ(ini.ActieveSetOms(), "oms");
  });
  Lees("[Systeem]\nSet=*???*\nSetOms=*???*\n", [](IniClass& ini) {
    EXPECT_EQ(ini.ActieveSet(), "<geen bestandenset actief>");
    EXPECT_EQ(ini.ActieveSetOms(), "");
  });
  Lees("", [](IniClass& ini) { EXPECT_EQ(ini.ActieveSet(), "<geen bestandenset actief>"); });
}

}  // namespace
}  // namespace lb77
