// Which records a selection of persons or relations takes, and the line of each.
#include <algorithm>
#include <sstream>

#include "reports/LijstToets.h"
#include "reports/Selecties.h"
#include "text/Namen.h"

namespace lb77 {
namespace {

constexpr std::string_view kGeenDatum = "  -  -    ";

class SelectiePersonen : public LijstToets {
 protected:
  // The persons that are taken, one a line, and nothing of the closing lines.
  std::string Selecteer(Einde einde = Einde::Klaar) {
    return Lijst(
        [this](TekstSchrijver& uit, const Verloop& verloop) {
          return SelecteerPersonen(keus_, bron_, uit, verloop);
        },
        einde);
  }
  // The first names of those who are taken.
  std::string Wie() {
    std::string uit;
    std::istringstream regels(Selecteer());
    for (std::string regel; std::getline(regels, regel);) {
      if (regel.rfind("P:", 0) == 0) uit += regel.substr(10, regel.find(' ', 10) - 10) + " ";
    }
    return uit;
  }

  PersoonKeus keus_;
};

TEST_F(SelectiePersonen, DeRegelHeeftNummerNaamEnPeriode) {
  bouw_.Man("Jan", "Smit",
            {{"GebDatum", "01-02-1800"}, {"OvlDatum", "00-00-1870"}, {"Beroep", "smid"}});
  keus_.naam.achternaam = "Smit";
  const std::string naam = Links("Jan Smit", 50);
  EXPECT_EQ(Selecteer(), "P:    2 : " + naam + " 1800-1870\n\n1 Personen gevonden.\n\n");
  keus_.beroep = "smid";
  EXPECT_EQ(Selecteer(), "P:    2 : " + naam + " 1800-1870 smid\n\n1 Personen gevonden.\n\n");
}

TEST_F(SelectiePersonen, EenLangeNaamWordtAfgekapt) {
  bouw_.Man("Johannes Cornelis Petrus Maria", "van der Bergh tot Heemsted");
  keus_.naam.achternaam = "Bergh";
  EXPECT_EQ(Selecteer(),
            "P:    2 : Johannes Cornelis Petrus Maria van der Bergh tot H     -    \n\n"
            "1 Personen gevonden.\n\n");
}

TEST_F(SelectiePersonen, ZonderVoornaamBegintDeAchternaamVooraan) {
  bouw_.Man("", "Smit");
  keus_.naam.achternaam = "smit";
  EXPECT_EQ(Selecteer(),
            "P:    2 : " + Links("Smit", 50) + "     -    \n\n1 Personen gevonden.\n\n");
}

TEST_F(SelectiePersonen, NiemandGeeftAlleenDeSlotregels) {
  keus_.naam.achternaam = "Smit";
  EXPECT_EQ(Selecteer(), "\n0 Personen gevonden.\n\n");
}

TEST_F(SelectiePersonen, EenDeelVanDeNaamIsGenoegInElkeKast) {
  bouw_.Man("Jan Pieter", "van Dam");
  bouw_.Man("Piet", "Damman");
  bouw_.Man("Kees", "Vos");
  keus_.naam.achternaam = "DAM";
  EXPECT_EQ(Wie(), "Jan Piet ");
  keus_.naam.voornaam = "pieter";
  EXPECT_EQ(Wie(), "Jan ");
  keus_.naam.achternaam = "";
  EXPECT_EQ(Wie(), "Jan ");
  keus_.naam.voornaam = "ie";
  EXPECT_EQ(Wie(), "Jan Piet ");
}

TEST_F(SelectiePersonen, LettersMetAccentenTellenInElkeKast) {
  bouw_.Man("Ren\xe9", "Vos");
  keus_.naam.voornaam = "REN\xc9";
  EXPECT_EQ(Wie(), "Ren\xe9 ");
}

TEST_F(SelectiePersonen, HetGeslachtMoetAangevinktZijn) {
  bouw_.Man("Jan", "Smit");
  bouw_.Vrouw("Els", "Smit");
  bouw_.Persoon('?', "Kind", "Smit");
  bouw_.Persoon('X', "Rest", "Smit");
  keus_.naam.achternaam = "Smit";
  EXPECT_EQ(Wie(), "Jan Els ");
  keus_.geslacht = {true, false};
  EXPECT_EQ(Wie(), "Jan ");
  keus_.geslacht = {false, true};
  EXPECT_EQ(Wie(), "Els ");
  keus_.geslacht = {false, false};
  EXPECT_EQ(Wie(), "");
}

TEST_F(SelectiePersonen, GeboorteOfDoopLigtInDePeriode) {
  bouw_.Man("Geb", "Smit", {{"GebDatum", "05-05-1800"}});
  bouw_.Man("Doop", "Smit", {{"GebDatum", "05-05-1799"}, {"DoopDatum", "06-05-1800"}});
  bouw_.Man("Later", "Smit", {{"GebDatum", "05-05-1810"}, {"DoopDatum", "06-05-1810"}});
  bouw_.Man("Ov", "Smit", {{"OvlDatum", "05-05-1800"}, {"BegrDatum", "05-05-1800"}});
  bouw_.Man("Geen", "Smit");
  keus_.geboorte = Tijdvak("01-01-1800", "31-12-1800");
  EXPECT_EQ(Wie(), "Geb Doop ");
  keus_.geboorte = Tijdvak("01-01-1801", kGeenDatum);
  EXPECT_EQ(Wie(), "Later ");
}

TEST_F(SelectiePersonen, OverlijdenOfBegravenLigtInDePeriode) {
  bouw_.Man("Ov", "Smit", {{"OvlDatum", "05-05-1870"}});
  bouw_.Man("Begr", "Smit", {{"OvlDatum", "05-05-1869"}, {"BegrDatum", "06-05-1870"}});
  bouw_.Man("Later", "Smit", {{"OvlDatum", "05-05-1880"}});
  bouw_.Man("Geb", "Smit", {{"GebDatum", "05-05-1870"}, {"DoopDatum", "05-05-1870"}});
  keus_.overlijden = Tijdvak("01-01-1870", "31-12-1870");
  EXPECT_EQ(Wie(), "Ov Begr ");
}

TEST_F(SelectiePersonen, HetBeroepBevatDeTekst) {
  bouw_.Man("Jan", "Smit", {{"Beroep", "Meesterbakker"}});
  bouw_.Man("Piet", "Smit", {{"Beroep", "slager"}});
  bouw_.Man("Bakker", "Bakker");
  keus_.beroep = "BAKKER";
  EXPECT_EQ(Wie(), "Jan ");
}

TEST_F(SelectiePersonen, AlleToetsenMoetenHouden) {
  bouw_.Man("Jan", "Smit", {{"GebDatum", "05-05-1800"}, {"Beroep", "smid"}});
  keus_.naam.achternaam = "Smit";
  keus_.beroep = "smid";
  keus_.geboorte = Tijdvak("01-01-1800", kGeenDatum);
  EXPECT_EQ(Wie(), "Jan ");
  keus_.overlijden = Tijdvak("01-01-1800", kGeenDatum);
  EXPECT_EQ(Wie(), "");
}

TEST_F(SelectiePersonen, EenBeschadigdeDatumLigtInGeenPeriode) {
  bouw_.Man("Jan", "Smit", {{"GebDatum", "05-05-1800"}});
  bouw_.WijzigPersoon(2, {{"GebJaar", "-300"}});
  keus_.geboorte = Tijdvak("01-01-0001", "31-12-2100");
  EXPECT_EQ(Wie(), "");
}

TEST_F(SelectiePersonen, VervolgrecordsEnGatenTellenNiet) {
  bouw_.Man("Jan", "Smit");
  bouw_.Man("Vervolg", "Smit", {{"GebCorr", "Z"}});
  bouw_.Man("Gat", "Smit");
  bouw_.Man("Els", "Smit");
  std::string bytes = LeesBytes(set_.paden.prs);
  bytes.replace(3 * 128, 128, 128, '\0');
  SchrijfBytes(set_.paden.prs, bytes);
  set_.Heropen();
  keus_.naam.achternaam = "Smit";
  EXPECT_EQ(Wie(), "Jan Els ");
  EXPECT_TRUE(set_.Getoond().empty());
}

TEST_F(SelectiePersonen, EenVerzoekOmTeStoppenEindigtDeLijst) {
  for (int i = 0; i < 4; ++i) bouw_.Man("Jan", "Smit");
  keus_.naam.achternaam = "Smit";
  stopBij_ = 3;
  const std::string tekst = Selecteer(Einde::Afgebroken);
  EXPECT_EQ(std::count(tekst.begin(), tekst.end(), '\n'), 2);
}

TEST_F(SelectiePersonen, HetGeslachtAlleenIsGeenKeus) {
  EXPECT_TRUE(keus_.IsLeeg());
  keus_.geslacht = {true, false};
  EXPECT_TRUE(keus_.IsLeeg());
  for (const auto& zet :
       {+[](PersoonKeus& k) { k.naam.voornaam = "a"; },
        +[](PersoonKeus& k) { k.naam.achternaam = "a"; }, +[](PersoonKeus& k) { k.beroep = "a"; },
        +[](PersoonKeus& k) { k.geboorte = Tijdvak("01-01-1800", ""); },
        +[](PersoonKeus& k) { k.overlijden = Tijdvak("", "01-01-1800"); }}) {
    PersoonKeus keus;
    zet(keus);
    EXPECT_FALSE(keus.IsLeeg());
  }
}

class SelectieRelaties : public LijstToets {
 protected:
  std::string Selecteer(Einde einde = Einde::Klaar) {
    return Lijst(
        [this](TekstSchrijver& uit, const Verloop& verloop) {
          return SelecteerRelaties(keus_, bron_, uit, verloop);
        },
        einde);
  }
  // The numbers of those that are taken.
  std::string Welke() {
    std::string uit;
    std::istringstream regels(Selecteer());
    for (std::string regel; std::getline(regels, regel);) {
      if (regel.rfind("R:", 0) == 0) uit += regel.substr(2, 5);
    }
    return uit;
  }

  std::int16_t jan_ = bouw_.Man("Jan", "van Dam");
  std::int16_t els_ = bouw_.Vrouw("Els", "Vos");
  RelatieKeus keus_;
};

TEST_F(SelectieRelaties, DeRegelHeeftDeDriedatumsEnBeidePartners) {
  bouw_.Relatie(jan_, els_, {}, {{"OtrDatum", "01-02-1830"}, {"KHuwDatum", "00-00-1830"}});
  keus_.naam.voornaam = "Jan";
  EXPECT_EQ(Selecteer(),
            "R:    2 01-02-1830   -  -     00-00-1830 P:2 x P:3\n\n1 Relaties gevonden.\n\n");
}

TEST_F(SelectieRelaties, EenOnbekendePartnerHeeftNummerNul) {
  bouw_.Relatie(jan_, 0);
  keus_.naam.voornaam = "Jan";
  EXPECT_EQ(Selecteer(),
            "R:    2   -  -       -  -       -  -     P:2 x P:0\n\n1 Relaties gevonden.\n\n");
}

TEST_F(SelectieRelaties, ElkVanDeDrieDatumsIsGenoeg) {
  bouw_.Relatie(jan_, els_, {}, {{"OtrDatum", "01-02-1830"}});
  bouw_.Relatie(jan_, els_, {}, {{"OtrDatum", "01-02-1820"}, {"WHuwDatum", "01-02-1830"}});
  bouw_.Relatie(jan_, els_, {}, {{"WHuwDatum", "01-02-1840"}, {"KHuwDatum", "01-02-1830"}});
  bouw_.Relatie(jan_, els_, {}, {{"WHuwDatum", "01-02-1840"}});
  bouw_.Relatie(jan_, els_);
  keus_.huwelijk = Tijdvak("01-01-1830", "31-12-1830");
  EXPECT_EQ(Welke(), "    2    3    4");
}

TEST_F(SelectieRelaties, DeNaamIsDieVanEenPartnerVanHetGeslacht) {
  bouw_.Relatie(jan_, els_);
  keus_.naam = {"jan", "dam"};
  EXPECT_EQ(Welke(), "    2");
  keus_.naam = {"els", "vos"};
  EXPECT_EQ(Welke(), "    2");
  keus_.naam = {"jan", "vos"};
  EXPECT_EQ(Welke(), "");
  keus_.naam = {"jan", ""};
  keus_.geslacht = {false, true};
  EXPECT_EQ(Welke(), "");
  keus_.naam = {"els", ""};
  EXPECT_EQ(Welke(), "    2");
  keus_.geslacht = {true, false};
  EXPECT_EQ(Welke(), "");
  keus_.geslacht = {false, false};
  EXPECT_EQ(Welke(), "");
}

TEST_F(SelectieRelaties, DeManMoetEenManZijnEnDeVrouwEenVrouw) {
  const auto kind = bouw_.Persoon('?', "Jan", "van Dam");
  bouw_.Relatie(kind, 0);
  bouw_.Relatie(els_, jan_);
  keus_.huwelijk = Tijdvak();
  keus_.naam.achternaam = "a";
  EXPECT_EQ(Welke(), "");
  keus_.naam.achternaam = "o";
  EXPECT_EQ(Welke(), "");
}

TEST_F(SelectieRelaties, EenPartnerDieErNietIsPastNiet) {
  const auto gezin = bouw_.Relatie(jan_, 0, {}, {{"WHuwDatum", "01-02-1830"}});
  bouw_.WijzigRelatie(gezin, {{"ManNr", "1"}, {"VrouwNr", "99"}});
  keus_.huwelijk = Tijdvak("01-01-1830", kGeenDatum);
  EXPECT_EQ(Welke(), "");
  bouw_.WijzigRelatie(gezin, {{"ManNr", "2"}});
  EXPECT_EQ(Welke(), "    2");
}

TEST_F(SelectieRelaties, EenPartnerDieEenVervolgrecordIsPastNiet) {
  bouw_.Relatie(jan_, 0);
  bouw_.WijzigPersoon(jan_, {{"GebCorr", "Z"}});
  keus_.naam.voornaam = "Jan";
  EXPECT_EQ(Welke(), "");
}

TEST_F(SelectieRelaties, EenVervolgrecordTeltNiet) {
  bouw_.Relatie(jan_, els_, {}, {{"HuwCorr", "Z"}});
  keus_.naam.voornaam = "Jan";
  EXPECT_EQ(Welke(), "");
}

TEST_F(SelectieRelaties, EenVerzoekOmTeStoppenEindigtDeLijst) {
  for (int i = 0; i < 3; ++i) bouw_.Relatie(jan_, els_);
  keus_.naam.voornaam = "Jan";
  stopBij_ = 2;
  const std::string tekst = Selecteer(Einde::Afgebroken);
  EXPECT_EQ(std::count(tekst.begin(), tekst.end(), '\n'), 1);
}

TEST_F(SelectieRelaties, HetGeslachtAlleenIsGeenKeus) {
  keus_.geslacht = {true, false};
  EXPECT_TRUE(keus_.IsLeeg());
  keus_.huwelijk = Tijdvak("01-01-1830", kGeenDatum);
  EXPECT_FALSE(keus_.IsLeeg());
  RelatieKeus naam;
  naam.naam.achternaam = "a";
  EXPECT_FALSE(naam.IsLeeg());
}

}  // namespace
}  // namespace lb77
