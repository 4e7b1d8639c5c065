// The paths of the settings, the golden file of defaults, and the failures of reading and writing.
#include <random>

#include "app/IniClass.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"
#include "steun/Gouden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class IniKlassePad : public SessieToets {
 protected:
  void Lees(std::string_view ini, const std::function<void(IniClass&)>& doe) {
    ZetIni(MetMap(ini));
    Verwacht("", Met([&](Hoofdmodule& hoofd) {
               ASSERT_TRUE(hoofd.Ini.IniLees());
               doe(hoofd.Ini);
             }),
             "");
  }
};

constexpr std::string_view kGeenBestand =
    R"(? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden\n\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL om te stoppen" -> )";

TEST_F(IniKlassePad, ZonderBestandMaaktOKEenBestandVanStandaardwaarden) {
  Verwacht("antwoord OK", Met([](Hoofdmodule& hoofd) {
             EXPECT_TRUE(hoofd.Ini.IniLees());
             EXPECT_EQ(hoofd.Ini.separator(), "-");
             EXPECT_EQ(hoofd.instellingen.Tekstbr(), 80);
           }),
           std::string(kGeenBestand) + "OK");
  std::string geschreven = Ini();
  for (std::size_t i; (i = geschreven.find(map_.string())) != std::string::npos;) {
    geschreven.replace(i, map_.string().size(), "<prog>");
  }
  for (std::size_t i; (i = geschreven.find("<prog>\\")) != std::string::npos;) {
    geschreven.replace(i, 7, "<prog>/");
  }
  VerwachtGouden("LIJNBOOM.INI", geschreven);
  EXPECT_TRUE(IniHeeft("DatumForm=0"));
}

TEST_F(IniKlassePad, ZonderBestandHoudtAnnulerenHetProgrammaTegen) {
  Verwacht("antwoord Annuleren", Met([](Hoofdmodule& hoofd) { EXPECT_FALSE(hoofd.Ini.IniLees()); }),
           std::string(kGeenBestand) + "Annuleren");
  EXPECT_FALSE(Bestaat("LIJNBOOM.INI"));
}

TEST_F(IniKlassePad, WatNietGeschrevenKanWordenHoudtHetProgrammaTegen) {
  map_ /= "weg";
  Verwacht("antwoord OK OK", Met([](Hoofdmodule& hoofd) { EXPECT_FALSE(hoofd.Ini.IniLees()); }),
           std::string(kGeenBestand) + R"(OK
             ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden" -> OK
             ! stop "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden")");
  map_ = map_.parent_path();
}

TEST_F(IniKlassePad, AnnulerenBijHetSchrijvenVraagtHetEindeVanHetProgramma) {
  map_ /= "weg";
  Verwacht(
      "antwoord Annuleren", Met([](Hoofdmodule& hoofd) {
        EXPECT_FALSE(hoofd.Ini.EindeGevraagd());
        hoofd.Ini.IniSchrijf();
        EXPECT_TRUE(hoofd.Ini.EindeGevraagd());
      }),
      R"(? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden" -> Annuleren)");
  Verwacht("antwoord OK Annuleren",
           Met([](Hoofdmodule& hoofd) { EXPECT_FALSE(hoofd.Ini.IniLees()); }),
           std::string(kGeenBestand) + R"(OK
             ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden" -> Annuleren)");
  map_ = map_.parent_path();
}

TEST_F(IniKlassePad, EenBestandZonderRechtenHoudtHetProgrammaTegenEnBlijftStaan) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  ZetIni("[Systeem]\nSetOms=bewaard\n");
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0));
  {
    const ZonderRechten rechten(map_);
    Verwacht(
        "antwoord OK OK", Met([](Hoofdmodule& hoofd) { EXPECT_FALSE(hoofd.Ini.IniLees()); }),
        R"~(? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nGeen toegang\n\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL om te stoppen" -> OK
                ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nGeen toegang" -> OK
                ! stop "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nGeen toegang")~");
  }
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0644));
  EXPECT_TRUE(IniHeeft("SetOms=bewaard"));
}

TEST_F(IniKlassePad, WatGeenBestandIsHoudtHetProgrammaTegenEnBlijftStaan) {
  Schrijf("LIJNBOOM.INI/vol", "x");
  Verwacht(
      "antwoord OK OK", Met([](Hoofdmodule& hoofd) { EXPECT_FALSE(hoofd.Ini.IniLees()); }),
      R"(? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nPad is een directory\n\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL om te stoppen" -> OK
         ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nPad is een directory" -> OK
         ! stop "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nPad is een directory")");
  EXPECT_TRUE(Bestaat("LIJNBOOM.INI/vol"));
}

TEST_F(IniKlassePad, EenBestandVolOnzinWordtGelezenEnGaatAlsReserveNietVerloren) {
  std::mt19937 toeval(77);
  for (int keer = 0; keer < 50; ++keer) {
    std::string onzin(static_cast<std::size_t>(toeval() % 5000), '\0');
    if (keer > 0) {
      for (char& teken : onzin) teken = static_cast<char>(toeval());
    }
    Schrijf("LIJNBOOM.INI", onzin);
    Speel("", Met([](Hoofdmodule& hoofd) {
            EXPECT_TRUE(hoofd.Ini.IniLees());
            hoofd.Ini.IniSchrijf();
            EXPECT_TRUE(hoofd.Ini.IniLees());
          }));
    EXPECT_EQ(verslag_, "");
    EXPECT_EQ(Inhoud("LB77_INI.BAK"), onzin);
  }
}

TEST_F(IniKlassePad, OpElkeLengteAfgekaptKomtHetBestandNogTerug) {
  ZetIni("[Systeem]\nSet=ABC\nData=/d\n[Sets]\nSet1=ABC,oms\n[Scherm]\nMainX=300\n");
  const std::string heel = Ini();
  for (std::size_t lengte = 0; lengte <= heel.size(); ++lengte) {
    Schrijf("LIJNBOOM.INI", heel.substr(0, lengte));
    Verwacht("", Met([](Hoofdmodule& hoofd) { EXPECT_TRUE(hoofd.Ini.IniLees()); }), "");
  }
}

TEST_F(IniKlassePad, DePadenLiggenInDeDirectoryVanHetProgramma) {
  Lees("", [this](IniClass& ini) {
    EXPECT_EQ(ini.DataDir(), map_ / "DATA");
    EXPECT_EQ(ini.TempDir(), map_ / "TEMP");
    EXPECT_EQ(ini.ProgDir(), map_);
    EXPECT_EQ(ini.IniPad("GCI", "Data"), std::filesystem::path());
    EXPECT_EQ(ini.IniWaarde("Systeem", "Data"), (map_ / "DATA").string());
  });
}

TEST_F(IniKlassePad, TekstEnIndexLiggenInDeActieveSet) {
  Lees("[Systeem]\nSet=abc\nData=/ergens\n", [this](IniClass& ini) {
    EXPECT_EQ(ini.TekstDir(), map_ / "/ergens/ABC/TEKST");
    EXPECT_EQ(ini.IndexDir(), map_ / "/ergens/ABC/INDEX");
  });
}

TEST_F(IniKlassePad, EenDirectoryOnderEenAndereKastWordtGevonden) {
  if (!kKastTelt) GTEST_SKIP() << kZonderKast;
  std::filesystem::create_directories(map_ / "Data/Abc/Tekst");
  std::filesystem::create_directories(map_ / "Data/Abc/Index");
  std::filesystem::create_directories(map_ / "Temp");
  Lees("[Systeem]\nSet=abc\n", [this](IniClass& ini) {
    EXPECT_EQ(ini.TekstDir(), map_ / "Data/Abc/Tekst");
    EXPECT_EQ(ini.IndexDir(), map_ / "Data/Abc/Index");
    EXPECT_EQ(ini.TempDir(), map_ / "Temp");
  });
}

TEST_F(IniKlassePad, EenRelatiefOfLeegPadHoortBijHetProgramma) {
  Lees("[Systeem]\nData=GEGEVENS\nTempdir=\n", [this](IniClass& ini) {
    EXPECT_EQ(ini.DataDir(), map_ / "GEGEVENS");
    EXPECT_EQ(ini.TempDir(), map_);
    EXPECT_EQ(ini.IniWaarde("Systeem", "Data"), "GEGEVENS");
  });
}

TEST_F(IniKlassePad, EenPadBuitenWindows1252BlijftBestaanInGeheugenEnBestand) {
  const std::filesystem::path pad = map_ / u8"/home/Иван/DATA";
  Lees("", [&](IniClass& ini) {
    ini.IniZetPad("Systeem", "Data", pad);
    EXPECT_EQ(ini.DataDir(), pad);
    const std::string getoond = ini.IniWaarde("Systeem", "Data");
    ini.IniZet("Systeem", "Data", getoond);  // a dialog stores what it showed
    EXPECT_EQ(ini.DataDir(), pad);
    ini.IniSchrijf();
    EXPECT_TRUE(ini.IniLees());
    EXPECT_EQ(ini.DataDir(), pad);
    ini.IniZet("Systeem", "Data", "/elders/é"_w);
    EXPECT_EQ(ini.DataDir(), map_ / u8"/elders/é");
    ini.IniSchrijf();
  });
  EXPECT_TRUE(IniHeeft("Data=/elders/\xE9"));
}

TEST_F(IniKlassePad, EenPadZettenDatGeenPadIsDoetNiets) {
  Lees("", [](IniClass& ini) {
    ini.IniZetPad("Systeem", "Set", "/x");
    ini.IniZetPad("Geen", "Sleutel", "/x");
    EXPECT_EQ(ini.IniWaarde("Systeem", "Set"), "");
    EXPECT_EQ(ini.IniPad("Geen", "Sleutel"), std::filesystem::path());
  });
}

TEST_F(IniKlassePad, EenVerhuisdProgrammaNeemtZijnPadenMee) {
  Lees(
      "[Systeem]\nProg=/media/oud\nData=/media/oud/DATA\nTempdir=/tmp/x\n[GCI]\nData=/media/oud/"
      "g\n",
      [this](IniClass& ini) {
        EXPECT_EQ(ini.ProgDir(), map_);
        EXPECT_EQ(ini.DataDir(), map_ / "DATA");
        EXPECT_EQ(ini.TempDir(), map_ / "/tmp/x");
        EXPECT_EQ(ini.IniPad("GCI", "Data"), map_ / "g");
      });
  Lees("[Systeem]\nProg=<map>\nData=/media/oud/DATA\n",
       [this](IniClass& ini) { EXPECT_EQ(ini.DataDir(), map_ / "/media/oud/DATA"); });
}

TEST_F(IniKlassePad, EenBestandVanEenOudereVersieZonderProgHoudtZijnPaden) {
  Lees("[Systeem]\nProg=\nData=/elders\n", [this](IniClass& ini) {
    EXPECT_EQ(ini.ProgDir(), map_);
    EXPECT_EQ(ini.DataDir(), map_ / "/elders");
  });
}

}  // namespace
}  // namespace lb77
