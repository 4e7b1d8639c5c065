// Dumps and the fixed-width export of files in which any byte may be anything.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>

#include "exchange/AsciiToets.h"
#include "exchange/DumpSchrijver.h"
#include "steun/KaartFamilie.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

class ExpSchadeTest : public AsciiToets {
 protected:
  ExpSchadeTest() {
    BouwKaartFamilie(Bouw());
    Bouw().WijzigRelatie(2, {{"OpmRecord", "0"}, {"OpmCode", "0"}});
    Bouw().OpmerkingBijPersoon(3, persoonrubriek::kBeroep, {"een", "twee", "drie"});
    Bouw().OpmerkingBijRelatie(2, relatierubriek::kOtrDatum, {"vier"});
    for (const auto& pad : Paden()) heel_.push_back(LeesBytes(pad));
    KiesPersonen({2, 3, 4, 5, 6, 7, 8, 32767});
    KiesRelaties({2, 3, 4, 5, 6, 7, 32767});
  }
  [[nodiscard]] std::vector<std::filesystem::path> Paden() const {
    return {set_.paden.prs, set_.paden.rlt, set_.paden.plt, set_.paden.opm};
  }
  void Zet(const std::vector<std::string>& bytes) {
    const auto paden = Paden();
    for (std::size_t i = 0; i < paden.size(); ++i) SchrijfBytes(paden[i], bytes[i]);
    set_.Heropen();
  }
  // Every line of `tekst` must satisfy it.
  template <class Toets>
  void ElkeRegel(const std::string& tekst, Toets toets) {
    std::istringstream in(tekst);
    for (std::string regel; std::getline(in, regel);) EXPECT_TRUE(toets(regel)) << regel;
  }
  void Exporteer() {
    const Gegevens gegevens{set_.Persoon,   set_.Relatie, set_.Plaats,
                            set_.Opmerking, set_.volgers, set_.schrijfwijze};
    AsciiSchrijver schrijver(
        {gegevens, selectie_, set_.gesprek, personen_, relaties_, opmerkingen_, log_});
    LoopSelectie(schrijver, selectie_, {[] { return true; }, [](const ExpTelling&) {}});
    ElkeRegel(personen_.Neem(), [](const std::string& r) { return r.size() == 316; });
    ElkeRegel(relaties_.Neem(), [](const std::string& r) { return r.size() == 356; });
    ElkeRegel(opmerkingen_.Neem(), [](const std::string& r) { return r.size() > 15; });
    for (const DumpSoort* soort : {&kDumpPers, &kDumpRel, &kDumpPlts, &kDumpOpm}) {
      FaalUitvoer uit;
      SchrijfDump(*soort, gegevens, uit, log_, {[] { return true; }, [](std::int32_t) {}});
      ElkeRegel(uit.Regels(), [soort](const std::string& r) {
        return std::ranges::count(r, '\t') == soort->aantal;
      });
    }
    static_cast<void>(set_.Getoond());
  }

  std::vector<std::string> heel_;
};

TEST_F(ExpSchadeTest, WillekeurigeBytesBrekenGeenRegel) {
  std::mt19937 toeval(77);
  for (int ronde = 0; ronde < 60; ++ronde) {
    std::vector<std::string> bytes = heel_;
    for (std::string& bestand : bytes) {
      for (int keer = 0; keer < 12; ++keer) {
        bestand[toeval() % bestand.size()] = static_cast<char>(toeval());
      }
    }
    Zet(bytes);
    Exporteer();
  }
}

TEST_F(ExpSchadeTest, AfgekapteBestandenBrekenGeenRegel) {
  for (std::size_t bestand = 0; bestand < heel_.size(); ++bestand) {
    for (std::size_t lengte = 0; lengte < heel_[bestand].size(); lengte += 13) {
      std::vector<std::string> bytes = heel_;
      bytes[bestand].resize(lengte);
      Zet(bytes);
      Exporteer();
    }
  }
}

}  // namespace
}  // namespace lb77
