// The kinds of option rows, each through the settings and back.
#include <gtest/gtest.h>

#include <utility>

#include "forms/Formulier.h"
#include "reporting/OptieTabel.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

enum class Volgorde : std::int16_t { Eerste = 1, Tweede = 2 };

struct Keuzen {
  bool nummers = false;
  bool perGeneratie = false;
  Volgorde volgorde = Volgorde::Eerste;
  int datums = 0;
  int leeftijd = 0;
};

class Optievorm final : public Formulier {
 public:
  explicit Optievorm(Keuzen& keuzen) : Formulier("Optievorm", "Opties"), keuzen_(keuzen) {}
  JaNeeVak OokNrsBox{*this, "OokNrsBox", "Nummers ?"};
  Keuzevak PerTakBox{*this, "PerTakBox", "Volgorde:", {"Per tak", "Per generatie"}};
  Keuzevak ZonenBox{*this, "ZonenBox", "Zonen:", {"Een", "Twee"}};
  Keuzevak DatumsBox{*this, "DatumsBox", "Datums:", {"Nee", "Jaartallen", "Volledig"}};
  Tekstvak Leeftijd{*this, "Leeftijd", "Leeftijd:", 2};

 private:
  Keuzen& keuzen_;

 public:
  OptieTabel tabel{"GEN",
                   {{OokNrsBox, "OokNummers", true, keuzen_.nummers},
                    {PerTakBox, "PerGeneratie", false, keuzen_.perGeneratie},
                    {ZonenBox, "VolgZonen", 1, keuzen_.volgorde},
                    {DatumsBox, "VolgDochters", 0, keuzen_.datums},
                    {Leeftijd, "Leeftijd", {11, 50}, 15, keuzen_.leeftijd}}};
};

class OptieTabelToets : public FamilieToets {
 protected:
  // Fills the controls from these values.
  void Laad(Hoofdmodule& hoofd, const std::array<std::string_view, 5>& waarden) {
    for (std::size_t i = 0; i < kTags.size(); ++i) hoofd.Ini.IniZet("GEN", kTags[i], waarden[i]);
    vorm_.tabel.Laad(hoofd.Ini);
  }
  static constexpr std::array<std::string_view, 5> kTags{"OokNummers", "PerGeneratie", "VolgZonen",
                                                         "VolgDochters", "Leeftijd"};

  Keuzen keuzen_;
  Optievorm vorm_{keuzen_};
};

TEST_F(OptieTabelToets, ToontWatBewaardIsEnVultDeOpties) {
  Stil([this](Hoofdmodule& hoofd) {
    Laad(hoofd, {"N", "J", "2", "2", "30"});
    EXPECT_FALSE(vorm_.OokNrsBox.Ja());
    EXPECT_EQ(vorm_.PerTakBox.Tekst(), "Per generatie");
    EXPECT_EQ(vorm_.ZonenBox.Tekst(), "Twee");
    EXPECT_EQ(vorm_.DatumsBox.Tekst(), "Volledig");
    EXPECT_EQ(vorm_.Leeftijd.Tekst(), "30");
    keuzen_.nummers = true;
    vorm_.tabel.Neem();
    EXPECT_FALSE(keuzen_.nummers);
    EXPECT_TRUE(keuzen_.perGeneratie);
    EXPECT_EQ(keuzen_.volgorde, Volgorde::Tweede);
    EXPECT_EQ(keuzen_.datums, 2);
    EXPECT_EQ(keuzen_.leeftijd, 30);
  });
}

TEST_F(OptieTabelToets, NeemtVoorEenWaardeDieGeenIsDeStandaard) {
  Stil([this](Hoofdmodule& hoofd) {
    for (const std::string_view waarde : {"", "?", "-3", "99999999999"}) {
      Laad(hoofd, {waarde, waarde, waarde, waarde, waarde});
      EXPECT_TRUE(vorm_.OokNrsBox.Ja()) << waarde;
      EXPECT_EQ(vorm_.PerTakBox.Tekst(), "Per tak") << waarde;
      EXPECT_EQ(vorm_.ZonenBox.Tekst(), "Een") << waarde;
      EXPECT_EQ(vorm_.DatumsBox.Tekst(), "Nee") << waarde;
      EXPECT_EQ(vorm_.Leeftijd.Tekst(), "15") << waarde;
    }
  });
}

TEST_F(OptieTabelToets, NeemtEenGetalBinnenZijnBereikAlleen) {
  Stil([this](Hoofdmodule& hoofd) {
    const std::pair<std::string_view, std::string_view> gevallen[] = {
        {"10", "15"}, {"11", "11"}, {"50", "50"}, {"51", "15"}};
    for (const auto& [bewaard, getoond] : gevallen) {
      Laad(hoofd, {"", "", "", "", bewaard});
      EXPECT_EQ(vorm_.Leeftijd.Tekst(), getoond) << bewaard;
    }
  });
}

TEST_F(OptieTabelToets, BewaartWatGekozenIs) {
  Stil([this](Hoofdmodule& hoofd) {
    Laad(hoofd, {"N", "N", "1", "0", "20"});
    vorm_.OokNrsBox.ZetJa(true);
    vorm_.PerTakBox.ZetIndex(1);
    vorm_.ZonenBox.ZetIndex(1);
    vorm_.DatumsBox.ZetIndex(1);
    vorm_.Leeftijd.ZetTekst("44");
    vorm_.tabel.Bewaar(hoofd.Ini);
    const std::array<std::string_view, 5> verwacht{"J", "J", "2", "1", "44"};
    for (std::size_t i = 0; i < kTags.size(); ++i) {
      EXPECT_EQ(hoofd.Ini.IniWaarde("GEN", kTags[i]), verwacht[i]) << kTags[i];
    }
  });
}

class Bladvorm final : public Formulier {
 public:
  Bladvorm() : Formulier("Bladvorm", "Opties") {}
  Keuzevak Box{*this, "Box", "Layout ?", {"CBG", "HSK"}};
  Volgorde keuze = Volgorde::Eerste;
  OptieTabel tabel{"KWBLD", {{Box, "HSK_CBG", keuze}}};
};

TEST_F(OptieTabelToets, EenKeuzeKanOnderHaarTekstBewaardWorden) {
  Stil([](Hoofdmodule& hoofd) {
    Bladvorm vorm;
    for (const auto& [waarde, getoond] :
         {std::pair{"HSK", "HSK"}, {"CBG", "CBG"}, {"", "CBG"}, {"hsk", "CBG"}, {"1", "CBG"}}) {
      hoofd.Ini.IniZet("KWBLD", "HSK_CBG", waarde);
      vorm.tabel.Laad(hoofd.Ini);
      EXPECT_EQ(vorm.Box.Tekst(), getoond) << waarde;
    }
    vorm.Box.ZetIndex(1);
    vorm.tabel.Neem();
    EXPECT_EQ(static_cast<int>(vorm.keuze), 1);
    vorm.tabel.Bewaar(hoofd.Ini);
    EXPECT_EQ(hoofd.Ini.IniWaarde("KWBLD", "HSK_CBG"), "HSK");
  });
}

}  // namespace
}  // namespace lb77
