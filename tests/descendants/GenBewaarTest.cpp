// Which keys of the settings the option dialogs of the descendant reports write, and that they write no
// other: each test chooses everything otherwise.
#include <set>
#include <sstream>

#include "descendants/GenSchKeten.h"

namespace lb77 {
namespace {

// The lines of a settings file, each behind its section.
std::set<std::string> Regels(const std::string& ini) {
  std::set<std::string> uit;
  std::istringstream bron(ini);
  std::string sectie;
  for (std::string regel; std::getline(bron, regel);) {
    regel.erase(regel.find_last_not_of('\r') + 1);
    if (regel.starts_with("[")) {
      sectie = regel;
    } else {
      uit.insert(sectie + regel);
    }
  }
  return uit;
}

// The lines of `ini` that were not there in `vooraf`.
std::set<std::string> Nieuw(const std::string& vooraf, const std::string& ini) {
  const std::set<std::string> oud = Regels(vooraf);
  std::set<std::string> uit = Regels(ini);
  std::erase_if(uit, [&oud](const std::string& regel) { return oud.contains(regel); });
  return uit;
}

using Bewaard = std::set<std::string>;

constexpr std::string_view kRegels =
    "stel ZonenBox #3\nstel DochtersBox #1\nvul GrensLeeftijd 21\nstel PrsHerhaalBox Ja\n"
    "stel UitsluitBox Ja\nstel InHTMLBox Ja\nstel CopyrightBox Nee\nstel OokLB77Box Nee\n"
    "vul MaxGen 3\nvul TitelTekst Titel\nvul Inleiding1 Inleiding\n";
constexpr std::string_view kKoppelingen =
    "vul EmailAdres ik@example.org\nvul HomePageURL thuis.htm\ndruk OKButton";

// The address stands in two sections of the file.
const Bewaard kInternet{"[Gebruiker]Email=ik@example.org",
                        "[INTERNET]Email=ik@example.org",
                        "[INTERNET]EmailLabel=Schrijf me... (naam@example.org)",
                        "[INTERNET]HomePage=thuis.htm",
                        "[INTERNET]HomePageLabel=Naar",
                        "[INTERNET]HomePageLink=mijn home page (http://www.example.org)"};

Bewaard MetInternet(Bewaard sleutels) {
  sleutels.insert(kInternet.begin(), kInternet.end());
  return sleutels;
}

class GenTxtBewaar : public GenKeten {};

TEST_F(GenTxtBewaar, DeTekstBewaartHaarKeuzenEnNietsAnders) {
  for (int i = 0; i < 2; ++i) Speel(Weg());  // by then all other keys have their value
  const std::string vooraf = Ini();
  Speel(Weg()
            .In("GenTxtParam", std::string(kRegels) +
                                   "stel PerTakBox Per generatie\nstel OokNrsBox Ja\n"
                                   "stel OokOpmBox Nee\nstel VerwijsBox Nee\ndruk OKButton")
            .In("GenTxtUitsluit", "vul RecordNrVolgNiet(1) 7\ndruk OKButton")
            .In("GenHTMLParam", kKoppelingen));
  EXPECT_EQ(
      Nieuw(vooraf, Ini()),
      MetInternet({"[GEN]OokNummers=J", "[GEN]OokOpm=N", "[GEN]Verwijzing=N", "[GEN]Uitsluiten=J",
                   "[GEN]PerGeneratie=J", "[GEN]VolgZonen=4", "[GEN]VolgDochters=2",
                   "[GEN]VolgHerh=J", "[GEN]HTML=J", "[GEN]OokCopyRt=N", "[GEN]OokLB77=N",
                   "[GEN]Leeftijd=21", "[GEN]OokEmail=J", "[GEN]OokHomePage=J"}));
}

class GenIdxBewaar : public GenIdxKeten {};

TEST_F(GenIdxBewaar, DeIndexBewaartZijnKeuzenEnNietsAnders) {
  for (int i = 0; i < 2; ++i) Speel(Weg());  // by then all other keys have their value
  const std::string vooraf = Ini();
  Speel(Weg()
            .In("GenIdxParam", std::string(kRegels) +
                                   "stel PerTakBox Per generatie\nstel OokNrsBox Ja\n"
                                   "vul HTMLfileTekst jan.htm\ndruk OKButton")
            .In("GenIdxUitsluit", "vul RecordNrVolgNiet(1) 7\ndruk OKButton")
            .In("GenHTMLParam", kKoppelingen));
  EXPECT_EQ(Nieuw(vooraf, Ini()),
            MetInternet({"[GEN]OokNummers=J", "[GEN]Uitsluiten=J", "[GEN]PerGeneratie=J",
                         "[GEN]VolgZonen=4", "[GEN]VolgDochters=2", "[GEN]VolgHerh=J",
                         "[GEN]HTML=J", "[GEN]OokCopyRt=N", "[GEN]OokLB77=N", "[GEN]Leeftijd=21",
                         "[GEN]OokEmail=J", "[GEN]OokHomePage=J"}));
}

class GenSchBewaar : public GenSchKeten {};

TEST_F(GenSchBewaar, HetSchemaBewaartZijnKeuzenEnNietsAnders) {
  for (int i = 0; i < 2; ++i) Speel(Weg().In("GenSchParam", "stel CentreerBox Nee\ndruk OKButton"));
  const std::string vooraf = Ini();
  Speel(Weg()
            .In("GenSchParam", std::string(kRegels) +
                                   "stel HorVerBox Verticaal\nstel CentreerBox Ja\n"
                                   "stel OokDatumsBox Volledig\nstel OokVNamenBox Voorletters\n"
                                   "vul PosVNamen 12\nvul PosANamen 13\n"
                                   "stel OokPartnersBox Naast elkaar\nstel OokVNrsBox Ja\n"
                                   "stel OokPNrsBox Ja\nstel OokRNrsBox Ja\ndruk OKButton")
            .In("GenSchUitsluit", "vul RecordNrVolgNiet(1) 7\ndruk OKButton")
            .In("GenHTMLParam", kKoppelingen));
  EXPECT_EQ(Nieuw(vooraf, Ini()),
            MetInternet({"[GENB]OokPrsNrs=J",   "[GENB]OokRelNrs=J", "[GENB]OokVolgNrs=J",
                         "[GENB]Vertikaal=J",   "[GENB]Centreren=J", "[GENB]ToonDatums=2",
                         "[GENB]Partners=2",    "[GENB]VoorNamen=2", "[GENB]PosVNamen=12",
                         "[GENB]PosANamen=13",  "[GENB]VolgZonen=4", "[GENB]VolgDochters=2",
                         "[GENB]Uitsluiten=J",  "[GENB]VolgHerh=J",  "[GENB]HTML=J",
                         "[GENB]OokCopyRt=N",   "[GENB]OokLB77=N",   "[GENB]OokEmail=J",
                         "[GENB]OokHomePage=J", "[GEN]Leeftijd=21"}));
}

}  // namespace
}  // namespace lb77
