// Two runs of the program on one settings file.
#include "app/IniSamen.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class IniSamen : public SessieToets {
 protected:
  // Two runs that have read the same file.
  void Samen(std::string_view ini, const std::function<void(IniClass&, IniClass&)>& doe) {
    ZetIni(ini);
    Verwacht("", Met([&](Hoofdmodule& een) {
               Hoofdmodule ander(een.gesprek, klok_, map_);
               ASSERT_TRUE(een.Ini.IniLees() && ander.Ini.IniLees());
               doe(een.Ini, ander.Ini);
             }),
             "");
  }
  // The lines of the list of sets, without their line ends.
  [[nodiscard]] std::string Sets() const {
    const std::string ini = Ini();
    const std::size_t begin = ini.find("[Sets]\r\n") + 8;
    std::string lijst = ini.substr(begin, ini.find("\r\n[", begin) - begin);
    for (std::size_t i; (i = lijst.find("\r\n")) != std::string::npos;) lijst.replace(i, 2, ";");
    return lijst;
  }
};

TEST_F(IniSamen, ElkeRunBewaartAlleenWatHijZelfVeranderde) {
  Samen("[KWST]\nHTML=N\n[KWGR]\nBreedte=8\n", [&](IniClass& een, IniClass& ander) {
    een.IniZet("KWST", "HTML", "J");
    een.IniSchrijf();
    ander.IniZet("KWGR", "Breedte", "12");
    ander.IniSchrijf();
    EXPECT_TRUE(IniHeeft("HTML=J"));
    EXPECT_TRUE(IniHeeft("Breedte=12"));
    EXPECT_EQ(ander.IniWaarde("KWST", "HTML"), "N");  // a run keeps the settings it began with
    een.IniSchrijf();
    ander.IniSchrijf();
    EXPECT_TRUE(IniHeeft("HTML=J"));
    EXPECT_TRUE(IniHeeft("Breedte=12"));
  });
}

TEST_F(IniSamen, WieHetLaatstVerandertHeeftGelijk) {
  Samen("[KWGR]\nBreedte=8\n", [&](IniClass& een, IniClass& ander) {
    een.IniZet("KWGR", "Breedte", "9");
    een.IniSchrijf();
    ander.IniZet("KWGR", "Breedte", "10");
    ander.IniSchrijf();
    EXPECT_TRUE(IniHeeft("Breedte=10"));
    een.IniSchrijf();
    EXPECT_TRUE(IniHeeft("Breedte=10"));
    een.IniZet("KWGR", "Breedte", "11");
    een.IniSchrijf();
    EXPECT_TRUE(IniHeeft("Breedte=11"));
  });
}

TEST_F(IniSamen, SetsVanBeideKomenInDeLijst) {
  Samen("[Sets]\nSet1=EEN,a\n", [&](IniClass& een, IniClass& ander) {
    een.IniZet("Sets", "Set2", "TWEE,b");
    een.IniSchrijf();
    ander.IniZet("Sets", "Set2", "DRIE,c");
    ander.IniSchrijf();
    EXPECT_EQ(Sets(), "Set1=EEN,a;Set2=TWEE,b;Set3=DRIE,c;");
    EXPECT_EQ(ander.BestandenSetIndex("DRIE"), 3);
    een.IniSchrijf();
    EXPECT_EQ(een.BestandenSetIndex("DRIE"), 3);
    EXPECT_EQ(Sets(), "Set1=EEN,a;Set2=TWEE,b;Set3=DRIE,c;");
  });
}

TEST_F(IniSamen, DezelfdeNieuweSetKomtEenmaalInDeLijst) {
  Samen("", [&](IniClass& een, IniClass& ander) {
    een.IniZet("Sets", "Set1", "ABC,a");
    een.IniSchrijf();
    ander.IniZet("Sets", "Set1", "abc,b");
    ander.IniSchrijf();
    EXPECT_EQ(Sets(), "Set1=ABC,a;");
  });
}

// Also a name that stands in it twice, and a row behind an empty one.
TEST_F(IniSamen, AlleenGewijzigdIsDeLijstDieVanDeRun) {
  Samen("[Sets]\nSet1=EEN,a\nSet2=TWEE,b\nSet3=EEN,c\nSet5=VIJF,d\n",
        [&](IniClass& een, IniClass& ander) {
          een.IniZet("Sets", "Set1", "TWEE,b");
          een.IniZet("Sets", "Set2", "EEN,c");
          een.IniZet("Sets", "Set3", "");
          een.IniSchrijf();
          EXPECT_EQ(Sets(), "Set1=TWEE,b;Set2=EEN,c;Set5=VIJF,d;");
          ander.IniSchrijf();
          EXPECT_EQ(Sets(), "Set1=TWEE,b;Set2=EEN,c;Set5=VIJF,d;");
        });
}

TEST_F(IniSamen, WatDeEneVerwijdertZetDeAndereNietTerug) {
  Samen("[Sets]\nSet1=EEN,a\nSet2=TWEE,b\nSet3=DRIE,c\n", [&](IniClass& een, IniClass& ander) {
    een.IniZet("Sets", "Set1", "TWEE,b");
    een.IniZet("Sets", "Set2", "DRIE,c");
    een.IniZet("Sets", "Set3", "");
    een.IniSchrijf();
    ander.IniZet("Sets", "Set4", "VIER,d");
    ander.IniSchrijf();
    EXPECT_EQ(Sets(), "Set1=TWEE,b;Set2=DRIE,c;Set3=VIER,d;");
    ander.IniZet("Sets", "Set2", "VIER,d");
    ander.IniZet("Sets", "Set3", "");
    een.IniZet("Sets", "Set3", "EEN,a");  // made again
    een.IniSchrijf();
    ander.IniSchrijf();
    EXPECT_EQ(Sets(), "Set1=TWEE,b;Set2=VIER,d;Set3=EEN,a;");
  });
}

TEST_F(IniSamen, EenAndereOmschrijvingBlijftBijHaarSet) {
  Samen("[Sets]\nSet1=EEN,a\nSet2=TWEE,b\n", [&](IniClass& een, IniClass& ander) {
    een.IniZet("Sets", "Set1", "TWEE,b");
    een.IniZet("Sets", "Set2", "");
    een.IniSchrijf();
    ander.IniZet("Sets", "Set1", "EEN,nieuw");  // of a set that is gone
    ander.IniZet("Sets", "Set2", "TWEE,nieuw");
    ander.IniSchrijf();
    EXPECT_EQ(Sets(), "Set1=TWEE,nieuw;");
  });
}

TEST_F(IniSamen, EenVolleLijstNeemtNietsMeerOp) {
  std::string lijst = "[Sets]\n";
  for (int i = 1; i <= 98; ++i)
    lijst += "Set" + std::to_string(i) + "=S" + std::to_string(i) + "\n";
  Samen(lijst, [&](IniClass& een, IniClass& ander) {
    een.IniZet("Sets", "Set99", "EEN");
    een.IniSchrijf();
    ander.IniZet("Sets", "Set99", "ANDER");
    ander.IniSchrijf();
    EXPECT_TRUE(IniHeeft("Set99=EEN"));
    EXPECT_EQ(Ini().find("ANDER"), std::string::npos);
  });
}

TEST_F(IniSamen, DeActieveSetEnHaarOmschrijvingBlijvenBijElkaar) {
  Samen("[Systeem]\nSet=EEN\nSetOms=zelfde\n", [&](IniClass& een, IniClass& ander) {
    een.IniZet("Systeem", "Set", "DRIE");
    een.IniZet("Systeem", "SetOms", "andere");
    een.IniSchrijf();
    ander.IniZet("Systeem", "Set", "TWEE");
    ander.IniSchrijf();
    EXPECT_TRUE(IniHeeft("Set=TWEE"));
    EXPECT_TRUE(IniHeeft("SetOms=zelfde"));
  });
}

TEST_F(IniSamen, OmEnOmGeschrevenGaatNietsVerloren) {
  Samen("", [&](IniClass& een, IniClass& ander) {
    for (int i = 1; i <= 12; ++i) {
      IniClass& deze = i % 2 == 0 ? een : ander;
      const std::string nummer = std::to_string(i);
      deze.IniZet("Funktietoetsen", "F" + nummer, "tekst " + nummer);
      deze.IniZet("Sets", "Set" + std::to_string(deze.AantalBestandenSets() + 1), "S" + nummer);
      deze.IniSchrijf();
    }
  });
  for (int i = 1; i <= 12; ++i) {
    const std::string nummer = std::to_string(i);
    EXPECT_TRUE(IniHeeft("F" + nummer + "=tekst " + nummer));
    EXPECT_TRUE(IniHeeft("Set" + nummer + "=S" + nummer));
  }
}

TEST_F(IniSamen, EenWaardeBuitenDeGrenzenWordtNietTweemaalAnders) {
  Samen("", [&](IniClass& een, IniClass&) {
    een.IniZet("Printer", "Tekstbr", "5");
    een.IniZet("GEN", "OokHSKHome", "J");
    een.IniSchrijf();
    een.IniZet("KWGR", "Breedte", "9");
    een.IniSchrijf();
    EXPECT_TRUE(IniHeeft("Tekstbr=5"));
    EXPECT_EQ(een.IniWaarde("GEN", "OokHSKHome"), "J");
  });
}

TEST_F(IniSamen, EenBestandDatIntussenWegRaakteKomtHeelTerug) {
  Samen("[Sets]\nSet1=EEN,a\n[KWGR]\nBreedte=12\n", [&](IniClass& een, IniClass&) {
    std::filesystem::remove(map_ / "LIJNBOOM.INI");
    een.IniZet("KWST", "HTML", "J");
    een.IniSchrijf();
    EXPECT_TRUE(IniHeeft("Set1=EEN,a"));
    EXPECT_TRUE(IniHeeft("Breedte=12"));
    EXPECT_TRUE(IniHeeft("HTML=J"));
  });
}

TEST_F(IniSamen, EenMislukteSchrijfpogingBlijftTeDoen) {
  ZetIni("[KWGR]\nBreedte=8\n");
  Speel("antwoord OK", Met([&](Hoofdmodule& hoofd) {
          ASSERT_TRUE(hoofd.Ini.IniLees());
          hoofd.Ini.IniZet("KWGR", "Breedte", "12");
          std::filesystem::rename(map_ / "LIJNBOOM.INI", map_ / "weg");
          std::filesystem::create_directory(map_ / "LIJNBOOM.INI");
          hoofd.Ini.IniSchrijf();
          std::filesystem::remove(map_ / "LIJNBOOM.INI");
          std::filesystem::rename(map_ / "weg", map_ / "LIJNBOOM.INI");
          hoofd.Ini.IniSchrijf();
        }));
  EXPECT_TRUE(IniHeeft("Breedte=12"));
}

TEST_F(IniSamen, ZonderStandIsAllesEigen) {
  const IniBeeld beeld{{"a"}};
  EXPECT_EQ(VoegSamen({}, beeld, {{"b"}}), beeld);
}

}  // namespace
}  // namespace lb77
