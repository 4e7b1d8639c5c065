#include <gmock/gmock.h>

#include "app/Handleiding.h"
#include "forms/Hulpgever.h"
#include "forms/StilGesprek.h"
#include "steun/NepGesprek.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"
#include "steun/Vergelijkbaar.h"
#include "text/Pad.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// A user with a browser, or with one that does not start.
class Bladeraar final : public Gesprek, public Hulpgever {
 public:
  bool start = true;
  std::vector<std::filesystem::path> getoond;
  std::vector<std::string> gemeld;

  bool OpenInBrowser(const std::filesystem::path& pad) override {
    getoond.push_back(pad);
    return start;
  }
  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view tekst) override {
    gemeld.emplace_back(tekst);
    NoteerGetoond(WindowsNaarUtf8(tekst));
    return Antwoord::OK;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier&) override {}
  void Dicht(Formulier&) override {}
};

class HandleidingTest : public testing::Test {
 protected:
  void Toon(Gesprek& gesprek, std::string_view onderwerp = {}) {
    ToonHandleiding(gesprek, {map_ / "weg", map_ / "bij ons"}, map_ / "TEMP", onderwerp);
  }
  [[nodiscard]] std::filesystem::path Zet(const char* naam) {
    SchrijfBytes(map_ / "bij ons" / naam, "x");
    return map_ / "bij ons" / naam;
  }
  void MaakTemp() { std::filesystem::create_directories(map_ / "TEMP"); }

  TijdelijkeMap map_;
  Bladeraar gebruiker_;
};

TEST_F(HandleidingTest, DieErNietIsWordtGezegd) {
  NepGesprek gesprek;
  Toon(gesprek);
  EXPECT_THAT(gesprek.Neem(),
              ElementsAre("! uitroep \"De handleiding (handleiding.html) is niet bij het "
                          "programma gevonden\""));
}

TEST_F(HandleidingTest, ZonderBureaubladWordtGezegdWaarZijStaat) {
  const std::filesystem::path pad = Zet("handleiding.html");
  NepGesprek gesprek;
  Toon(gesprek, "zoeken");
  const std::vector<std::string> gemeld = gesprek.Neem();
  ASSERT_EQ(gemeld.size(), 1U);
  EXPECT_EQ(Vergelijkbaar(gemeld[0]),
            "! info \"De handleiding staat in " + PadTekst(pad.generic_u8string()) + "\"");
}

TEST_F(HandleidingTest, ZonderOnderwerpGaatZijOpenAanHetBegin) {
  MaakTemp();
  const std::filesystem::path pad = Zet("handleiding.html");
  Toon(gebruiker_);
  EXPECT_THAT(gebruiker_.getoond, ElementsAre(pad));
  EXPECT_THAT(gebruiker_.gemeld, ElementsAre());
  EXPECT_FALSE(std::filesystem::exists(map_ / "TEMP/HULP.HTM"));
}

TEST_F(HandleidingTest, EenWegwijzerLeidtNaarHetOnderwerp) {
  MaakTemp();
  static_cast<void>(Zet("handleiding.html"));
  Toon(gebruiker_, "veilig-werken");
  EXPECT_THAT(gebruiker_.getoond, ElementsAre(map_ / "TEMP/HULP.HTM"));
  const std::string pagina = LeesBytes(map_ / "TEMP/HULP.HTM");
  EXPECT_THAT(pagina, HasSubstr("content=\"0; url=file:///"));
  EXPECT_THAT(pagina, HasSubstr("/bij%20ons/handleiding.html#veilig-werken\""));
  Toon(gebruiker_, "zoeken");
  EXPECT_THAT(LeesBytes(map_ / "TEMP/HULP.HTM"), HasSubstr("html#zoeken\""));
}

TEST_F(HandleidingTest, ZonderPlaatsVoorDeWegwijzerGaatZijOpenAanHetBegin) {
  const std::filesystem::path pad = Zet("handleiding.html");
  Toon(gebruiker_, "zoeken");
  EXPECT_THAT(gebruiker_.getoond, ElementsAre(pad));
}

TEST_F(HandleidingTest, DeGeschrevenTekstIsErVoorWieGeenPaginaHeeft) {
  MaakTemp();
  const std::filesystem::path tekst = Zet("handleiding.md");
  Toon(gebruiker_, "zoeken");
  const std::filesystem::path pagina = Zet("handleiding.html");
  Toon(gebruiker_);
  EXPECT_THAT(gebruiker_.getoond, ElementsAre(tekst, pagina));
}

TEST_F(HandleidingTest, ZonderBrowserWordtGezegdWaarZijStaat) {
  const std::filesystem::path pad = Zet("handleiding.html");
  gebruiker_.start = false;
  Toon(gebruiker_);
  EXPECT_THAT(gebruiker_.gemeld,
              ElementsAre("Er is geen browser gevonden om de handleiding te tonen. Zij staat in " +
                          PadTekst(pad)));
}

}  // namespace
}  // namespace lb77
