// The Parenteel of a big family: each label leads to the entry of the person beside it.
#include <map>
#include <set>
#include <sstream>

#include "OpdrachtToets.h"
#include "steun/Plekken.h"

namespace lb77 {
namespace {

constexpr std::string_view kLabelTekens = "IVXLCabcdefghijklmnopqrstuvwxyz";

// What stands between the first `begin` from `vanaf` on and the `einde` behind it; empty for none.
std::string Tussen(std::string_view tekst, std::string_view begin, std::string_view einde,
                   std::size_t vanaf = 0) {
  std::size_t van = tekst.find(begin, vanaf);
  if (van == std::string_view::npos) return {};
  van += begin.size();
  return std::string(tekst.substr(van, tekst.find(einde, van) - van));
}

// All of them.
std::multiset<std::string> Alle(std::string_view tekst, std::string_view begin,
                                std::string_view einde) {
  std::multiset<std::string> uit;
  for (std::size_t plek = tekst.find(begin); plek != std::string_view::npos;
       plek = tekst.find(begin, plek + 1)) {
    uit.insert(Tussen(tekst, begin, einde, plek));
  }
  return uit;
}

// The label with which a text begins.
std::string LabelAan(std::string_view tekst) {
  return std::string(tekst.substr(0, tekst.find_first_not_of(kLabelTekens)));
}

// What a report says: who has an entry, and who is told to have one.
struct Gelezen {
  std::map<std::string, std::string> koppen;                      // label, number of the person
  std::vector<std::pair<std::string, std::string>> verwijzingen;  // number of the child, label
  std::set<std::pair<std::string, std::string>> kinderen;         // label of the parent, number
  std::vector<std::pair<std::string, std::string>> ouders;        // label of the parent, number
};

class ParenteelToets : public OpdrachtToets {
 protected:
  void SetUp() override {
    const auto gedcom = BronMap() / "../shared/data/royal92.ged";
    if (!std::filesystem::exists(gedcom)) GTEST_SKIP() << gedcom << " is absent";
    MaakFamilie(LeesBytes(gedcom));
  }
  void Maak(bool html, std::vector<std::string> zet) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", "2"};
    argumenten.html = html;
    argumenten.zet = std::move(zet);
    argumenten.zet.insert(argumenten.zet.end(), {"OokNrsBox=Ja", "VerwijsBox=Ja"});
    ASSERT_EQ(Doe("parenteel", argumenten), 0) << fout_;
  }
  // A page: an entry and a child take a line each.
  [[nodiscard]] Gelezen LeesPagina() const {
    Gelezen uit;
    std::istringstream regels(uit_);
    std::string label;
    for (std::string regel; std::getline(regels, regel);) {
      const std::string nr = Tussen(regel, "[", "]");
      if (regel.find(".  <A NAME=") != std::string::npos) {
        label = Tussen(regel, "<A NAME=\"", "\"");
        uit.koppen[label] = nr;
        const std::string ouder = Tussen(regel, " van <A HREF=\"#", "\"");
        if (!ouder.empty()) uit.ouders.emplace_back(ouder, nr);
      } else if (regel.find("<LI>") != std::string::npos) {
        uit.kinderen.emplace(label, nr);
        const std::string naar = Tussen(regel, ", volgt <A HREF=\"#", "\"");
        if (!naar.empty()) uit.verwijzingen.emplace_back(nr, naar);
      }
    }
    return uit;
  }
  // A text: the same, of lines that go on below each other.
  [[nodiscard]] Gelezen LeesTekst() const {
    std::string plat;  // an entry begins with a line feed, all else is one line
    std::istringstream regels(uit_);
    for (std::string regel; std::getline(regels, regel);) {
      const std::size_t begin = regel.find_first_not_of(' ');
      if (begin == std::string::npos) continue;
      const std::string rest = regel.substr(begin);
      const std::string label = LabelAan(rest);
      const bool kop = !label.empty() && rest.compare(label.size(), 3, ".  ") == 0;
      plat.append(kop ? "\n" : " ").append(rest);
    }
    Gelezen uit;
    std::istringstream delen(plat);
    for (std::string deel; std::getline(delen, deel);) {
      const std::string label = LabelAan(deel);
      if (label.empty()) continue;  // what stands above the first entry
      uit.koppen[label] = Tussen(deel, "[", "]");
      for (std::size_t p = deel.find(", volgt "); p != std::string::npos;
           p = deel.find(", volgt ", p + 1)) {
        uit.verwijzingen.emplace_back(Tussen(deel, "[", "]", deel.rfind('[', p)),
                                      LabelAan(std::string_view(deel).substr(p + 8)));
      }
    }
    return uit;
  }
  // Each label leads to an entry of that person.
  static void Controleer(const Gelezen& gelezen) {
    EXPECT_EQ(gelezen.koppen.size(), 365U);
    EXPECT_GT(gelezen.verwijzingen.size(), 350U);
    for (const auto& [nr, label] : gelezen.verwijzingen) {
      const auto kop = gelezen.koppen.find(label);
      if (kop == gelezen.koppen.end()) {
        ADD_FAILURE() << "[" << nr << "], volgt " << label;
      } else {
        EXPECT_EQ(kop->second, nr) << label;
      }
    }
  }
};

TEST_F(ParenteelToets, ElkeVerwijzingInTekstHeeftHaarHoofdpersoon) {
  for (const char* volgorde : {"PerTakBox=Per tak", "PerTakBox=Per generatie"}) {
    Maak(false, {volgorde});
    Controleer(LeesTekst());
  }
}

TEST_F(ParenteelToets, ElkeVerwijzingInHTMLKomtErgensUit) {
  for (const char* volgorde : {"PerTakBox=Per tak", "PerTakBox=Per generatie"}) {
    Maak(true, {volgorde});
    const Gelezen gelezen = LeesPagina();
    Controleer(gelezen);
    for (const auto& ouder : gelezen.ouders) {
      EXPECT_TRUE(gelezen.kinderen.contains(ouder)) << ouder.second << " van " << ouder.first;
    }
    EXPECT_EQ(gelezen.ouders.size() + 1, gelezen.koppen.size());
    const auto ankers = Alle(uit_, "<A NAME=\"", "\"");
    for (const std::string& naam : Alle(uit_, "<A HREF=\"#", "\"")) {
      EXPECT_TRUE(ankers.contains(naam)) << naam;
    }
    for (const auto& [label, nr] : gelezen.koppen) {
      // Generation I and the stamouder share a name.
      EXPECT_TRUE(label == "I" || ankers.count(label) == 1) << label;
    }
  }
}

TEST_F(ParenteelToets, HerhalingenDieGevolgdWordenHebbenOokHunPlaats) {
  Maak(true, {"PrsHerhaalBox=Ja"});
  const auto ankers = Alle(uit_, "<A NAME=\"", "\"");
  const auto herhalingen = Alle(uit_, " = ", ".\n");
  EXPECT_GT(herhalingen.size(), 10U);
  for (const std::string& naam : herhalingen) EXPECT_TRUE(ankers.contains(naam)) << naam;
}

}  // namespace
}  // namespace lb77
