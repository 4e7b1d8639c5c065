// Real files of other programs: each of their lines is stored, or holds nothing by itself, or stands
// in the rest file.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "exchange/GedBepaling.h"
#include "exchange/GedRegel.h"
#include "exchange/GedTekenset.h"
#include "exchange/ImportToets.h"
#include "exchange/RegelLezer.h"
#include "steun/Plekken.h"
#include "text/Bestandstekst.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Maanden.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

// Is a character lost in the records?
bool VerliestTeken(std::string_view windows) {
  return std::ranges::any_of(windows, [](const char& teken) {
    return teken != '?' && WindowsNaarDos({&teken, 1}) == "?";
  });
}

// As the records have it: what they have no character for is replaced, blanks stand alone.
std::string Opgeslagen(std::string_view windows) {
  std::string uit;
  for (const char teken : DosNaarWindows(WindowsNaarDos(windows))) {
    if (teken != ' ' || (!uit.empty() && uit.back() != ' ')) uit += teken;
  }
  return std::string(TrimRechts(uit));
}

struct Regel {
  int level = 0;
  std::string tag;
  std::string waarde;  // in Windows-1252
  std::string utf8;
};
struct Record {
  std::string soort;
  std::string id;
  std::vector<Regel> regels;  // below that of level 0
};

std::vector<Record> LeesRecords(const std::filesystem::path& pad, bool unicode) {
  std::vector<Record> records;
  RegelLezer lezer;
  EXPECT_FALSE(lezer.Open(pad));
  lezer.BeginMet(unicode ? Codering::Utf8 : Codering::Bytes);
  GedTekenset set = GedTekenset::Geen;
  std::string_view tekst;
  while (!unicode && set == GedTekenset::Geen && lezer.Volgende(tekst)) {
    const GedDelen delen = GedRegel(tekst);
    if (delen.tag == "CHAR") set = GedTekensetVan(delen.waarde);
  }
  lezer.Begin();
  while (lezer.Volgende(tekst)) {
    const GedDelen delen = GedRegel(tekst);
    const std::string windows = GedNaarWindows(set, delen.waarde);
    const std::string utf8 = unicode || IsAscii(tekst)
                                 ? std::string(lezer.Bron())
                                 : WindowsNaarUtf8(GedNaarWindows(set, tekst));
    if (delen.level == 0) {
      records.push_back({std::string(delen.tag), std::string(delen.id), {}});
      if (!Trim(windows).empty()) records.back().regels.push_back({0, "", windows, utf8});
    } else {
      records.back().regels.push_back({delen.level, std::string(delen.tag), windows, utf8});
    }
  }
  return records;
}

// What a record of the set holds, by the kind of line that can have brought it.
struct Inhoud {
  std::set<std::string> namen;
  std::string achternaam;
  std::set<std::string> datums;  // with the word of their qualifier, as a file has them
  std::set<std::string> plaatsen;
  std::set<std::string> verwijzingen;
  std::string seks;
  std::string beroep;
  std::string opmerkingen;
  bool gescheiden = false;
};

std::string GedVorm(std::string_view tien) {
  const int dag = Getalwaarde(tien.substr(0, 2));
  const int maand = Getalwaarde(tien.substr(3, 2));
  std::string uit = dag != 0 ? GetalTekst(dag) + " " : "";
  if (maand != 0) uit.append(kGedMaanden[static_cast<std::size_t>(maand) - 1]).append(" ");
  return uit + GetalTekst(Getalwaarde(tien.substr(6)));
}

std::string Woord(std::string_view corr) {
  for (const GedBepaling& bepaling : kGedBepalingen) {
    if (corr == std::string_view(&bepaling.corr, 1)) return std::string(bepaling.woord) + " ";
  }
  return "";
}

void VoegDatum(Inhoud& inhoud, std::string_view corr, const std::string& datum,
               const std::string& tweede = "") {
  const std::string eerste = GedVorm(datum);
  inhoud.datums.insert(Woord(corr) + eerste +
                       (corr == "T" ? " AND " + GedVorm(tweede) : std::string()));
}

// A date of a file in the form of GedVorm: capitals, no zeros in front, one word for each qualifier.
std::string Genormd(std::string_view waarde) {
  std::string uit;
  std::string woord;
  const auto klaar = [&] {
    if (woord.empty()) return;
    if (woord == "EST" || woord == "CAL" || woord == "ABOUT") woord = "ABT";
    if (woord == "BEFORE") woord = "BEF";
    if (woord.starts_with("AFT")) woord = "AFT";
    if (GedMaand(woord.substr(0, 3)) != 0) woord.resize(3);
    woord.erase(0, woord.find_first_not_of('0'));
    uit += (uit.empty() ? "" : " ") + woord;
    woord.clear();
  };
  for (const char teken : Hoofdletters(Trim(waarde))) {
    if (teken == ' ' || teken == '.') {
      klaar();
    } else {
      woord += teken;
    }
  }
  klaar();
  return uit;
}

class ImpRestBron : public ImportToets {
 protected:
  void Toets(std::string_view bestand, std::string_view gemeld, bool unicode);

 private:
  void LeesNummers(const std::vector<Record>& records);
  Inhoud Persoon(Hoofdmodule& hoofd, std::int16_t nr);
  Inhoud Relatie(Hoofdmodule& hoofd, std::int16_t nr);
  void Opmerkingen(Hoofdmodule& hoofd, std::int16_t begin, Inhoud& inhoud);
  void LeesRest();
  [[nodiscard]] bool IsOpgeslagen(const Regel& regel, const Inhoud& inhoud) const;
  void Vergelijk(const Record& record, std::string_view nr, const Inhoud& inhoud);

  std::map<std::string, std::string> personen_;  // numbers by pointer
  std::map<std::string, std::string> relaties_;
  // Of each record of the rest file, by its number or id, how often it has a line.
  std::map<std::string, std::map<std::string, int>> rest_;
  Hoofdmodule* hoofd_ = nullptr;
};

void ImpRestBron::LeesNummers(const std::vector<Record>& records) {
  int persoon = 1;
  int relatie = 1;
  for (const Record& record : records) {
    const std::string wijzer = "@" + record.id + "@";
    if (record.soort == "INDI") personen_.try_emplace(wijzer, GetalTekst(++persoon));
    if (record.soort == "FAM") relaties_.try_emplace(wijzer, GetalTekst(++relatie));
  }
}

void ImpRestBron::Opmerkingen(Hoofdmodule& hoofd, std::int16_t begin, Inhoud& inhoud) {
  OpmLB77& opm = hoofd.Opmerking;
  for (std::int16_t nr = begin; nr != 0;) {
    hoofd.volgers.HuidigOpmNr = nr;
    ASSERT_TRUE(opm.Lees());
    const std::int16_t zelfde = opm.BijZelfde();
    inhoud.opmerkingen += " " + std::string(Trim(opm.Tekstregel()));
    while (opm.VolgRegel() != 0) {
      hoofd.volgers.HuidigOpmNr = opm.VolgRegel();
      ASSERT_TRUE(opm.Lees());
      inhoud.opmerkingen += " " + std::string(Trim(opm.Tekstregel()));
    }
    nr = zelfde;
  }
  std::erase(inhoud.opmerkingen, ' ');
}

Inhoud ImpRestBron::Persoon(Hoofdmodule& hoofd, std::int16_t nr) {
  Inhoud inhoud;
  PersoonLB77& p = hoofd.Persoon;
  Huwtab huwelijken{};
  static_cast<void>(p.VulHuwtab(nr, huwelijken));
  for (const std::int16_t relatie : huwelijken) inhoud.verwijzingen.insert(GetalTekst(relatie));
  EXPECT_TRUE(p.Lees(nr));
  inhoud.verwijzingen.insert(GetalTekst(p.RelNrOuders()));
  const std::string voornaam = Opgeslagen(p.VoorNaamTrue());
  inhoud.achternaam = Opgeslagen(p.AchterNaamTrue());
  inhoud.namen = {voornaam, inhoud.achternaam, voornaam + "/" + inhoud.achternaam};
  inhoud.seks = p.Geslacht();
  inhoud.beroep = Opgeslagen(p.beroep());
  VoegDatum(inhoud, p.GebCorr(), p.GebDatum10(), p.DoopDatum10());
  VoegDatum(inhoud, p.OvlCorr(), p.OvlDatum10(), p.BegrDatum10());
  VoegDatum(inhoud, "", p.DoopDatum10());
  VoegDatum(inhoud, "", p.BegrDatum10());
  const std::vector<std::int16_t> plaatsen = {p.GebPlaatsNr(), p.DoopPlaatsNr(), p.OvlPlaatsNr(),
                                              p.BegrPlaatsNr()};
  const std::int16_t opm = p.OpmRecord();
  for (const std::int16_t plaats : plaatsen) {
    inhoud.plaatsen.insert(Hoofdletters(Opgeslagen(hoofd.Plaats.Naam(plaats))));
  }
  Opmerkingen(hoofd, opm, inhoud);
  return inhoud;
}

Inhoud ImpRestBron::Relatie(Hoofdmodule& hoofd, std::int16_t nr) {
  Inhoud inhoud;
  RelatieLB77& r = hoofd.Relatie;
  Kindtab kinderen{};
  static_cast<void>(r.VulKindtab(nr, kinderen));
  for (const std::int16_t kind : kinderen) inhoud.verwijzingen.insert(GetalTekst(kind));
  EXPECT_TRUE(r.Lees(nr));
  inhoud.verwijzingen.insert(GetalTekst(r.ManNr()));
  inhoud.verwijzingen.insert(GetalTekst(r.VrouwNr()));
  inhoud.gescheiden = r.KHuwSch();
  for (const std::string& datum : {r.OtrDatum10(), r.WetHuwDatum10(), r.KHuwDatum10()}) {
    VoegDatum(inhoud, "", datum);
  }
  const std::vector<std::int16_t> plaatsen = {r.OtrPlaatsNr(), r.WetHuwPlaatsNr(),
                                              r.KHuwPlaatsNr()};
  const std::int16_t opm = r.OpmRecord();
  for (const std::int16_t plaats : plaatsen) {
    inhoud.plaatsen.insert(Hoofdletters(Opgeslagen(hoofd.Plaats.Naam(plaats))));
  }
  Opmerkingen(hoofd, opm, inhoud);
  return inhoud;
}

void ImpRestBron::LeesRest() {
  SchrijfBytes(Map() / "REST.GED", LeesBytes(TekstMap() / "GEDCOM.RST"));
  int aantal = 0;
  for (const Record& record : LeesRecords(Map() / "REST.GED", true)) {
    std::string naam = record.soort + record.id;
    for (const Regel& regel : record.regels) {
      if (&regel == &record.regels.front() && regel.tag == "REFN")
        naam = record.soort + regel.waarde;
      ++rest_[naam][regel.utf8];
      ++aantal;
    }
  }
  EXPECT_GT(aantal, 0);
}

bool ImpRestBron::IsOpgeslagen(const Regel& regel, const Inhoud& inhoud) const {
  if (VerliestTeken(regel.waarde)) return false;
  const std::string waarde = Opgeslagen(regel.waarde);
  if (waarde.empty()) return true;
  const auto verwijst = [&](const std::map<std::string, std::string>& nummers) {
    const auto nummer = nummers.find(waarde);
    return nummer != nummers.end() && inhoud.verwijzingen.contains(nummer->second);
  };
  if (regel.tag == "FAMS" || regel.tag == "FAMC") return verwijst(relaties_);
  if (regel.tag == "HUSB" || regel.tag == "WIFE" || regel.tag == "CHIL") return verwijst(personen_);
  if (regel.tag == "SEX")
    return (inhoud.seks == "V" ? "F" : inhoud.seks) == waarde || waarde == "U";
  if (regel.tag == "OCCU" && inhoud.beroep == waarde) return true;
  if (regel.tag == "DIV" && inhoud.gescheiden && waarde == "Y") return true;
  if (regel.tag == "SPFX" && inhoud.achternaam.starts_with(waarde)) return true;
  if (regel.tag == "DATE" && inhoud.datums.contains(Genormd(waarde))) return true;
  if (regel.tag == "PLAC" && inhoud.plaatsen.contains(Hoofdletters(waarde))) return true;
  if (regel.tag == "NAME" || regel.tag == "GIVN" || regel.tag == "SURN") {
    std::string naam = waarde;
    const std::size_t schuin = naam.find('/');
    if (naam.ends_with('/') && schuin + 1 < naam.size()) {
      naam.pop_back();
      const std::string voor(Trim(naam.substr(0, schuin)));
      naam = voor + "/" + std::string(Trim(naam.substr(schuin + 1)));
    }
    if (inhoud.namen.contains(naam) || inhoud.namen.contains(naam + "/") ||
        inhoud.namen.contains("/" + naam)) {
      return true;
    }
  }
  std::string dicht = waarde;
  std::erase(dicht, ' ');
  return inhoud.opmerkingen.find(dicht) != std::string::npos;
}

void ImpRestBron::Vergelijk(const Record& record, std::string_view nr, const Inhoud& inhoud) {
  std::map<std::string, int>& rest = rest_[record.soort + std::string(nr)];
  for (const Regel& regel : record.regels) {
    const bool isTekenset = record.soort == "HEAD" && regel.tag == "CHAR" && regel.level == 1;
    if (rest[regel.utf8]-- > 0 || isTekenset) continue;
    EXPECT_TRUE(IsOpgeslagen(regel, inhoud))
        << record.soort << " " << record.id << " " << nr << ": " << regel.utf8;
  }
}

void ImpRestBron::Toets(std::string_view bestand, std::string_view gemeld, bool unicode) {
  const auto pad = BronMap() / "../shared/data" / bestand;
  if (!std::filesystem::exists(pad)) GTEST_SKIP() << pad << " is absent";
  if (unicode) Antwoord("Ja");
  Importeer(LeesBytes(pad), gemeld);
  const std::vector<Record> records = LeesRecords(pad, unicode);
  LeesNummers(records);
  LeesRest();
  InSessie([&](Hoofdmodule& hoofd) {
    std::int16_t persoon = 1;
    std::int16_t relatie = 1;
    for (const Record& record : records) {
      if (record.soort == "INDI") {
        ++persoon;
        Vergelijk(record, GetalTekst(persoon), Persoon(hoofd, persoon));
      } else if (record.soort == "FAM") {
        ++relatie;
        Vergelijk(record, GetalTekst(relatie), Relatie(hoofd, relatie));
      } else {
        Vergelijk(record, record.id, {});
      }
    }
  });
}

TEST_F(ImpRestBron, RoyalStaatErHelemaal) {
  Toets("royal92.ged", "! uitroep \"Meer dan 5 relaties voor Persoon 829\"", false);
}

TEST_F(ImpRestBron, EenDorpsregisterInCodepagina437StaatErHelemaal) {
  Toets("ibmpc-cp437-broskeep.ged", "", false);
}

TEST_F(ImpRestBron, EenBestandMetEigenLabelsStaatErHelemaal) {
  Toets("ansi-cp1252-ftm17.ged", "", false);
}

TEST_F(ImpRestBron, EenBestandInAnselStaatErHelemaal) {
  Toets("ansel-lf.ged", "! uitroep \"Meer dan 29 kinderen voor Relatie 2\"", false);
}

TEST_F(ImpRestBron, DeMartelproefStaatErHelemaal) {
  Toets("tgc55clf.ged", "", false);
}

TEST_F(ImpRestBron, BestandenInUtf8StaanErHelemaal) {
  Toets("kennedy.ged", "", true);
}

TEST_F(ImpRestBron, EenGrootBestandInUtf8StaatErHelemaal) {
  Toets("queen.ged",
        "! uitroep \"Meer dan 5 relaties voor Persoon 321\"\n"
        "! uitroep \"Meer dan 5 relaties voor Persoon 740\"",
        true);
}

TEST_F(ImpRestBron, EenKleinBestandInUtf8StaatErHelemaal) {
  Toets("bronte.ged", "", true);
}

TEST_F(ImpRestBron, EenBestandVanGrampsStaatErHelemaal) {
  Toets("vendor-gramps.ged", "", true);
}

TEST_F(ImpRestBron, VreemdeVormenStaanErHelemaal) {
  Toets("structural-edge-cases.ged", "", true);
}

}  // namespace
}  // namespace lb77
