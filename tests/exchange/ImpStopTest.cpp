// An import that ends before its time: the log says where, and the rest file has all that was not stored.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "exchange/ImportToets.h"
#include "steun/FaalBestand.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::string_view kGeenLevel = "GEDCOM Fout: Regel begint niet met een levelnummer";
constexpr std::string_view kFoutLevel = "GEDCOM Fout: Onjuist levelnummer";

class ImpStop : public ImportToets {
 protected:
  void Mislukt(std::string_view bytes, std::string_view fout, const Plek& plek = Plek::current()) {
    Importeer(bytes, "! uitroep \"" + std::string(fout) + "\"", plek);
  }
  [[nodiscard]] std::string Kern() const {
    const std::string rest = Rest();
    constexpr std::string_view kKop = "0 HEAD\n1 CHAR UTF-8\n";
    constexpr std::string_view kSlot = "0 TRLR\n";
    EXPECT_TRUE(rest.starts_with(kKop) && rest.ends_with(kSlot)) << rest;
    return rest.substr(kKop.size(), rest.size() - kKop.size() - kSlot.size());
  }
};

// A note whose second line has no number, an empty line, and a file behind the end.
TEST_F(ImpStop, EenRegelZonderNummerHoudtAlleRegelsInDeRest) {
  Mislukt(
      "0 HEAD\n1 SOUR ANDER\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Andr\xE2"
      "e /Bos/\n0 @I2@ INDI\n1 NOTE eerste regel\nzonder nummer\n\n  en nog een\n1 SEX M\n"
      "0 @I3@ INDI\n1 BIRT\n2 DATE 1850\n0 @F1@ FAM\n1 HUSB @I1@\n0 TRLR\n1 NOTE los\n",
      kFoutLevel);
  EXPECT_EQ(Kern(),
            "1 SOUR ANDER\n0 @I1@ INDI\n1 REFN 2\n1 NAME André /Bos/\n0 @I2@ INDI\n1 REFN 3\n"
            "1 NOTE eerste regel\n2 CONT zonder nummer\n2 CONT   en nog een\n1 SEX M\n"
            "0 @I3@ INDI\n1 BIRT\n2 DATE 1850\n0 @F1@ FAM\n1 HUSB @I1@\n"
            "0 NOTE achter TRLR\n1 NOTE los\n");
  EXPECT_EQ(Log(),
            "LET OP: gestopt bij regel 8: GEDCOM Fout: Onjuist levelnummer\r\n"
            "LET OP: zonder gegevens gebleven: 2 personen en 0 relaties\r\n"
            "LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 13 regels\r\n"
            "Importeren voltooid\r\n");
}

// So that the user can mend it and read it in.
TEST_F(ImpStop, DeRestIsZelfGedcom) {
  const std::string diep = GetalTekst(kHoogsteLevel) + " XYZ diep\n";
  Mislukt("0 HEAD\nvreemd\n0 @I1@ INDI\nvreemd\n1 NAME Jan /Bos/\n2 CONT een\nvreemd\n" + diep +
              "vreemd\nvreemd\n0 @F1@ FAM\n",
          kGeenLevel);
  EXPECT_EQ(Kern(),
            "1 CONT vreemd\n0 @I1@ INDI\n1 CONT vreemd\n1 NAME Jan /Bos/\n2 CONT een\n"
            "2 CONT vreemd\n" +
                diep + "99 CONT vreemd\n99 CONT vreemd\n0 @F1@ FAM\n");
  const std::string rest = Rest();
  Antwoord("Ja");
  Importeer(rest);
  EXPECT_EQ(Persoon(2), "voor Jan; achter Bos");
}

TEST_F(ImpStop, EenTweedeHoofdIsInDeRestEenNote) {
  Mislukt(
      "0 HEAD\n1 CHAR WIN\n0 @I1@ INDI\n1 NAME \xC9\xE9n //\n0 @F1@ FAM\n0 HEAD\n1 CHAR CP437\n"
      "0 @I1@ INDI\n1 NAME Andr\x82 //\n0 TRLR\n",
      "GEDCOM Fout: bestand heeft 2 headers");
  EXPECT_EQ(Kern(),
            "0 @I1@ INDI\n1 REFN 2\n1 NAME Één //\n0 @F1@ FAM\n1 REFN 2\n0 NOTE HEAD\n"
            "1 CHAR CP437\n0 @I1@ INDI\n1 NAME André //\n");
  EXPECT_TRUE(
      Log().starts_with("LET OP: gestopt bij regel 6: GEDCOM Fout: bestand heeft 2 headers\r\n"
                        "LET OP: zonder gegevens gebleven: 1 persoon en 1 relatie\r\n"))
      << Log();
}

TEST_F(ImpStop, EenOmgezetBestandHoudtZijnTekens) {
  Antwoord("Ja");
  Mislukt("0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 NAME Zoë 中 //\nnog een 中\n", kFoutLevel);
  EXPECT_EQ(Kern(), "0 @I1@ INDI\n1 REFN 2\n1 NAME Zoë 中 //\n2 CONT nog een 中\n");
}

TEST_F(ImpStop, WatGeenGedcomIsHeeftGeenRest) {
  Mislukt("Beste Jan,\nHier is het bestand.\n", "Fout: Header van GEDCOM-bestand niet gevonden");
  EXPECT_EQ(Log(),
            "LET OP: gestopt bij regel 1: Fout: Header van GEDCOM-bestand niet gevonden\r\n"
            "Importeren voltooid\r\n");
  EXPECT_EQ(Rest(), "");
}

class ImpStopBijStoring : public ImpStop {
 protected:
  // An import in which the k-th operation on the files fails. What the user saw.
  std::string Draai(int k, bool blijvend) {
    storing_ = {.bij = k, .blijvend = blijvend};
    const VasteKlok klok({.jaar = 2000, .maand = 1, .dag = 1});
    const auto programma = [&](Gesprek& gesprek) {
      Hoofdmodule hoofd(gesprek, klok, Map());
      hoofd.bestanden = Bestandenset(FalendeOpener(storing_));
      ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
      ASSERT_TRUE(Start(hoofd));
      ImpGedcom form(hoofd);
      gesprek.ToonModaal(form);
    };
    verslag_.clear();
    const SpeelUitslag uitslag =
        Speel("vul Bestandsnaam " + Bestand().string() + "\ndruk OKButton", programma);
    EXPECT_EQ(uitslag.reden, "");
    return verslag_;
  }
  void ZetTerug() {
    for (const auto& [pad, bytes] : bewaard_) SchrijfBytes(pad, bytes);
  }
  void Bewaar() {
    for (const char* soort : {"PRS", "RLT", "OPM", "PLT"}) {
      const auto pad = Map() / "PROEF" / ("PROEF." + std::string(soort));
      bewaard_[pad] = LeesBytes(pad);
    }
  }
  // A line whose text is in no record stands in the rest file.
  void VerwachtBewaard(const std::string& opgeslagen, const std::string& tekst,
                       const std::string& regel) {
    if (opgeslagen.find(tekst) != std::string::npos) return;
    EXPECT_NE(rest_.find(regel + "\n"), std::string::npos) << regel << "\n" << rest_ << Log();
  }
  void VerwachtAlles();
  void NoteerLeeg() {
    constexpr std::string_view kBegin = "LET OP: zonder gegevens gebleven: ";
    const std::string log = Log();
    const std::size_t plek = log.find(kBegin);
    if (plek == std::string::npos) return;
    const std::size_t begin = plek + kBegin.size();
    leeg_.insert(log.substr(begin, log.find('\r', begin) - begin));
  }

  Storing storing_;
  std::string rest_;
  std::set<std::string> leeg_;  // what the logs told of records without data
  std::map<std::filesystem::path, std::string> bewaard_;
};

std::string Personen(int aantal) {
  std::string uit;
  for (int i = 1; i <= aantal; ++i) {
    const std::string nr = GetalTekst(i);
    uit += "0 @I" + nr + "@ INDI\n1 NAME P" + nr + " //\n1 NOTE n" + nr + "\n";
    for (int r = 1; r <= 5; ++r) uit += "1 FAMS @F" + GetalTekst(r) + "@\n";
  }
  for (int r = 1; r <= 5; ++r) uit += "0 @F" + GetalTekst(r) + "@ FAM\n1 HUSB @I1@\n";
  return uit;
}

void ImpStopBijStoring::VerwachtAlles() {
  rest_ = Rest();
  for (std::int16_t i = 1; i <= 3; ++i) {
    const std::string nr = GetalTekst(i);
    const auto record = static_cast<std::int16_t>(i + 1);
    const std::string persoon = Persoon(record);
    VerwachtBewaard(persoon, "voor P" + nr, "1 NAME P" + nr + " //");
    const bool leesbaar = persoon != "onleesbaar";
    VerwachtBewaard(leesbaar ? OpmBijPersoon(record) : "", "n" + nr, "1 NOTE n" + nr);
    VerwachtBewaard(persoon, "rel1 ", "1 FAMS @F1@");
    VerwachtBewaard(persoon, "rel3 -", "1 FAMS @F5@");
  }
}

TEST_F(ImpStopBijStoring, StaatElkeRegelInEenRecordOfInDeRest) {
  SchrijfBytes(Bestand(), Ged(Personen(3)));
  Bewaar();
  int gestopt = 0;
  for (const bool blijvend : {false, true}) {
    bool geweest = true;
    for (int k = 1; geweest; ++k) {
      SCOPED_TRACE(k);
      ZetTerug();
      const std::string gezien = Draai(k, blijvend);
      geweest = storing_.Geweest();
      const bool voltooid = gezien.find("Importeren voltooid") != std::string::npos;
      const bool verteld = Log().find("LET OP: gestopt bij regel ") != std::string::npos;
      EXPECT_TRUE(voltooid || verteld) << gezien << Log();
      gestopt += verteld ? 1 : 0;
      NoteerLeeg();
      VerwachtAlles();
    }
  }
  EXPECT_GT(gestopt, 50);
  // In the first pass and in the second.
  for (const char* leeg :
       {"2 personen en 0 relaties", "3 personen en 1 relatie", "2 personen en 5 relaties",
        "1 persoon en 5 relaties", "0 personen en 4 relaties", "0 personen en 1 relatie"}) {
    EXPECT_TRUE(leeg_.contains(leeg)) << leeg;
  }
  EXPECT_FALSE(leeg_.contains("3 personen en 5 relaties"));
}

}  // namespace
}  // namespace lb77
