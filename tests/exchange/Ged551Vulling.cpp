#include "exchange/Ged551Vulling.h"

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "store/Rubrieken.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr int kPersonen = 50;
constexpr int kRelaties = 30;
constexpr int kPlaatsen = 20;

// The characters that come back from a record as they were.
std::string Alfabet() {
  std::string uit;
  for (int byte = 32; byte < 256; ++byte) {
    const std::string teken(1, static_cast<char>(byte));
    if (byte != 127 && DosNaarWindows(WindowsNaarDos(teken)) == teken) uit += teken;
  }
  return uit;
}

class Vuller {
 public:
  Vuller(ProefSet& set, unsigned zaad) : set_(set), toeval_(zaad) {}

  void Voer() {
    auto& gezindten = set_.schrijfwijze.gezindten;
    gezindten[1] = "NHNederlands Hervormd";
    gezindten[2] = "RKRooms @ Katholiek";
    gezindten[3] = "B Burgerlijk";
    gezindten[4] = "XX";
    for (int i = 0; i < kPlaatsen; ++i) {
      static_cast<void>(
          set_.bouw.Plaats(Onder(8) == 0 ? "Delft" : Tekst(25), Een("", "NH", "nh", "B", ",@")));
    }
    for (int i = 0; i < kPersonen; ++i) Persoon();
    for (int i = 0; i < kRelaties; ++i) Relatie();
    for (const std::int16_t nr : personen_) {
      if (Onder(4) == 0) Gat(nr);
    }
    for (const std::int16_t nr : personen_) OpmerkingenVan(nr, true);
    for (const std::int16_t nr : relaties_) OpmerkingenVan(nr, false);
  }

 private:
  int Onder(int grens) { return static_cast<int>(toeval_() % static_cast<unsigned>(grens)); }

  template <class... T>
  std::string Een(T... keuzen) {
    const std::vector<std::string> alle{keuzen...};
    return alle[static_cast<std::size_t>(Onder(static_cast<int>(alle.size())))];
  }

  // Trimmed, up to that long, and often just so long; never empty.
  std::string Tekst(std::size_t hoogstens) {
    const auto lengte = Onder(2) == 0
                            ? hoogstens
                            : 1 + static_cast<std::size_t>(Onder(static_cast<int>(hoogstens)));
    std::string uit;
    for (std::size_t i = 0; i < lengte; ++i) {
      const bool rand = i == 0 || i + 1 == lengte;
      // Now and then signs that mean something in the file.
      if (Onder(12) == 0) {
        uit += Een("@", "/", ",", "@@", "|").front();
      } else {
        const char teken =
            alfabet_[static_cast<std::size_t>(Onder(static_cast<int>(alfabet_.size())))];
        uit += rand && teken == ' ' ? 'x' : teken;
      }
    }
    return uit;
  }

  std::string TekstOfLeeg(std::size_t hoogstens) { return Onder(4) == 0 ? "" : Tekst(hoogstens); }

  std::string Naam() {
    if (Onder(2) == 0) return TekstOfLeeg(25);
    return Een("van den ", "Van der ", "de ", "'t ", "van  ") +
           Een("Berg", "Oranje Nassau", "Bo/er");
  }

  std::string Datum() {
    switch (Onder(6)) {
      case 0:
        return "00-00-0000";
      case 1:
        return "00-00-" + NulGevuld(Onder(10000), 4);
      case 2:
        return NulGevuld(Onder(100), 2) + "-" + NulGevuld(Onder(100), 2) + "-" +
               NulGevuld(Onder(10000), 4);
      default:
        return NulGevuld(Onder(32), 2) + "-" + NulGevuld(Onder(13), 2) + "-" +
               NulGevuld(1 + Onder(2100), 4);
    }
  }

  std::string Corr() { return Een("", "", "C", "N", "V", "T", "T", "Q"); }

  std::string PlaatsNr() {
    if (Onder(4) == 0) return "0";
    return GetalTekst(2 + Onder(kPlaatsen) + 10000 * Onder(4));
  }

  std::string Code() { return Een("", "", "NH", "nh", "RK", "B", "XX", "ZZ", "Q", "@@", "/"); }

  void Persoon() {
    const std::int16_t nr = set_.bouw.Persoon('?', TekstOfLeeg(30), Naam());
    personen_.push_back(nr);
    set_.bouw.WijzigPersoon(nr, {{"Geslacht", Een("", "M", "V", "O", "Q")},
                                 {"GebDatum", Datum()},
                                 {"GebCorr", Corr()},
                                 {"GebPlaats", PlaatsNr()},
                                 {"DoopDatum", Datum()},
                                 {"DoopPlaats", PlaatsNr()},
                                 {"DoopReligie", Code()},
                                 {"OvlDatum", Datum()},
                                 {"OvlCorr", Corr()},
                                 {"OvlPlaats", PlaatsNr()},
                                 {"BegrDatum", Datum()},
                                 {"BegrPlaats", PlaatsNr()},
                                 {"BegrCrem", Een("0", "1")},
                                 {"Beroep", TekstOfLeeg(30)}});
  }

  // One who has room for one more relation.
  std::int16_t Partner() {
    for (int poging = 0; poging < 20; ++poging) {
      const std::int16_t nr = personen_[static_cast<std::size_t>(Onder(kPersonen / 4))];
      Huwtab tab{};
      if (set_.Persoon.VulHuwtab(nr, tab).aantal < 5) return nr;
    }
    return 0;
  }

  void Relatie() {
    std::vector<std::int16_t> kinderen;
    const int aantal = Onder(3) == 0 ? Onder(30) : Onder(4);
    for (int i = 0; i < aantal; ++i) {
      kinderen.push_back(personen_[static_cast<std::size_t>(Onder(kPersonen))]);
    }
    const std::int16_t man = Partner();
    std::int16_t vrouw = Onder(5) == 0 ? std::int16_t{0} : Partner();
    if (vrouw == man) vrouw = 0;
    const std::int16_t nr = set_.bouw.Relatie(man, vrouw, kinderen);
    relaties_.push_back(nr);
    set_.bouw.WijzigRelatie(nr, {{"OtrDatum", Datum()},
                                 {"OtrPlaats", PlaatsNr()},
                                 {"WHuwDatum", Datum()},
                                 {"HuwCorr", Corr()},
                                 {"WHuwPlaats", PlaatsNr()},
                                 {"KHuwDatum", Datum()},
                                 {"KHuwPlaats", PlaatsNr()},
                                 {"KHuwSch", Een("0", "1")},
                                 {"HuwSwPs", Een("0", "1", "2")},
                                 {"HuwSoort", Code()},
                                 {"Religie", Code()}});
    if (aantal > 3 && Onder(2) == 0) set_.bouw.WijzigRelatie(nr, {{"Kind2", "0"}});
  }

  void Gat(std::int16_t nr) { set_.bouw.WijzigPersoon(nr, {{Een("Relatie1", "Relatie2"), "0"}}); }

  void OpmerkingenVan(std::int16_t nr, bool vanPersoon) {
    if (Onder(3) == 0) return;
    const int aantal = Onder(6);
    for (int i = 0; i < aantal; ++i) {
      std::vector<std::string> regels(1 + static_cast<std::size_t>(Onder(10)));
      for (std::string& regel : regels) regel = Tekst(80);
      const int bit = 1 << Onder(vanPersoon ? 13 : 9);
      const auto rubriek = static_cast<std::int16_t>(vanPersoon ? bit : -bit);
      const auto prog = static_cast<std::int16_t>(Onder(256));
      if (vanPersoon) {
        set_.bouw.OpmerkingBijPersoon(nr, rubriek, regels, prog);
      } else {
        set_.bouw.OpmerkingBijRelatie(nr, rubriek, regels, prog);
      }
    }
  }

  ProefSet& set_;
  std::mt19937 toeval_;
  std::string alfabet_ = Alfabet();
  std::vector<std::int16_t> personen_;
  std::vector<std::int16_t> relaties_;
};

}  // namespace

void VulMetToeval(ProefSet& set, unsigned zaad) {
  Vuller(set, zaad).Voer();
}

}  // namespace lb77
