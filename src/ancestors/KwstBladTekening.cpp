#include "ancestors/KwstBladTekening.h"

#include <algorithm>
#include <array>

#include "ancestors/KwstSchema.h"

namespace lb77 {
namespace {

// The sheet from left to right. Each place has its own rows, in the order of the chart: who is not
// known leaves his rows free for the pen.
class CBGBlad {
 public:
  explicit CBGBlad(const BladTeksten& teksten) : teksten_(teksten) {}

  [[nodiscard]] Tekenvel Teken() {
    const KwstSchema volgorde(kBladGeneraties);
    for (int r = 1; r <= volgorde.Aantal(); ++r) Plaats(volgorde.SchemaRij(r));
    for (std::size_t p = 2; p < rij_.size(); p += 2) {
      vel_.LijnNeer(Kolom(static_cast<int>(p)), rij_[p] + 1, rij_[p + 1] - 1);
    }
    return std::move(vel_);
  }

 private:
  static constexpr int kStap = 3;  // columns a generation
  static constexpr int kInspringen = 3;

  // Where the line from a place to that of its child lies.
  [[nodiscard]] static int Kolom(int p) { return (KwstSchema::Generatie(p) - 2) * kStap; }

  void Plaats(int p) {
    const BladTekst& tekst = teksten_[static_cast<std::size_t>(p)];
    const int kolom = Kolom(p) + kStap;
    if (p == 1) ++volgende_;
    rij_[static_cast<std::size_t>(p)] = volgende_;
    if (p > 1) vel_.Zet(volgende_, Kolom(p), p % 2 == 0 ? "/-" : "\\-");
    vel_.Zet(volgende_, kolom, tekst.Kop(static_cast<std::size_t>(kBladBreedte - kolom)));
    ++volgende_;
    Regel(kolom, tekst.geboren);
    Regel(kolom, tekst.overleden);
    if (p % 2 == 0) Regel(kolom, tekst.gehuwd);
    if (p == 1) ++volgende_;
  }

  void Regel(int kolom, std::string_view tekst) {
    const int van = kolom + kInspringen;
    vel_.Zet(volgende_++, van, tekst.substr(0, static_cast<std::size_t>(kBladBreedte - van)));
  }

  const BladTeksten& teksten_;
  Tekenvel vel_;
  std::array<int, kBladPlaatsen + 1> rij_{};
  int volgende_ = 0;
};

// What a sheet from top to bottom takes at most: lines of a name and of an event, and empty rows
// between a father and the mother below him.
struct Ruimte {
  std::size_t kop;
  std::size_t regel;
  int lucht;
};
// The first one that leaves the sheet on its page.
constexpr std::array kRuimten{Ruimte{8, 6, 1}, Ruimte{8, 6, 0}, Ruimte{6, 3, 0}, Ruimte{6, 2, 0}};

// The sheet from top to bottom. A couple of the last generation and their child share a column, with
// a line along its left side; from there on lines come together in the middle.
class HSKBlad {
 public:
  HSKBlad(const BladTeksten& teksten, const Ruimte& ruimte) : teksten_(teksten), ruimte_(ruimte) {}

  [[nodiscard]] Tekenvel Teken() {
    const int moeders = Band(8, 2, 0) + ruimte_.lucht;
    const int kinderen = Band(9, 2, moeders) + 1;
    int einde = Band(4, 1, kinderen);
    for (int kolom = 0; kolom < kKolommen; ++kolom) Zijlijn(kolom, moeders, kinderen);
    einde = Onder(4, einde);
    Onder(2, einde);
    return std::move(vel_);
  }

 private:
  static constexpr int kKolommen = 4;
  static constexpr int kKolom = 20;      // with the blank between two of them
  static constexpr int kInspringen = 2;  // behind the line

  using Regels = std::vector<std::string>;

  [[nodiscard]] Regels Cel(int p, int breedte, std::size_t kop, std::size_t regel) const {
    const BladTekst& tekst = teksten_[static_cast<std::size_t>(p)];
    const auto breed = static_cast<std::size_t>(breedte);
    Regels uit = BreekTekst(tekst.Kop(), breed, kop);
    for (const std::string& gebeurtenis : tekst.Gebeurtenissen()) {
      for (std::string& deel : BreekTekst(gebeurtenis, breed, regel)) {
        uit.push_back(std::move(deel));
      }
    }
    return uit;
  }

  // Four places beside each other, from row `rij` on. The row below the longest.
  int Band(int eerste, int stap, int rij) {
    int einde = rij;
    for (int kolom = 0; kolom < kKolommen; ++kolom) {
      int op = rij;
      const int p = eerste + kolom * stap;
      const Regels cel = Cel(p, kKolom - kInspringen - 1, ruimte_.kop, ruimte_.regel);
      for (const std::string& regel : cel) {
        vel_.Zet(op++, kolom * kKolom + kInspringen, regel);
      }
      onder_[static_cast<std::size_t>(p)] = op;
      einde = std::max(einde, op);
    }
    return einde;
  }

  void Zijlijn(int kolom, int moeder, int kind) {
    const int x = kolom * kKolom;
    vel_.LijnNeer(x, 1, kind - 1);
    vel_.Zet(0, x, "/-");
    vel_.Zet(moeder, x, "+-");
    vel_.Zet(kind, x, "\\-");
  }

  // Joins the places `eerste` up to twice that by two, and puts their children below. The row below
  // the longest of these.
  int Onder(int eerste, int rij) {
    const int afstand = kKolom * kKolommen / eerste;  // between two that are joined
    const int begin = afstand / 2 - 1;
    int einde = rij;
    for (int p = eerste; p < 2 * eerste; p += 2) {
      const int links = begin + (p - eerste) * afstand;
      const int midden = links + afstand / 2;
      vel_.LijnDwars(rij + 1, links, links + afstand);
      vel_.LijnNeer(links, Onderkant(p), rij + 1);
      vel_.LijnNeer(links + afstand, Onderkant(p + 1), rij + 1);
      vel_.LijnNeer(midden, rij + 1, rij + 2);
      einde = std::max(einde, Gecentreerd(p / 2, midden, 2 * afstand - 1, rij + 3));
    }
    return einde;
  }

  int Gecentreerd(int p, int midden, int breedte, int rij) {
    constexpr std::size_t kKop = 2;
    const std::size_t regelOnder = p == 1 ? 1 : 2;
    for (const std::string& regel : Cel(p, breedte, kKop, regelOnder)) {
      vel_.Zet(rij++, midden - static_cast<int>(regel.size()) / 2, regel);
    }
    onder_[static_cast<std::size_t>(p)] = rij;
    return rij;
  }

  [[nodiscard]] int Onderkant(int p) const { return onder_[static_cast<std::size_t>(p)]; }

  const BladTeksten& teksten_;
  const Ruimte& ruimte_;
  Tekenvel vel_;
  std::array<int, kBladPlaatsen + 1> onder_{};  // the row below the text of a place
};

Tekenvel TekenHSK(const BladTeksten& teksten, int rijen) {
  Tekenvel vel;
  for (const Ruimte& ruimte : kRuimten) {
    vel = HSKBlad(teksten, ruimte).Teken();
    if (vel.Rijen() <= rijen) break;
  }
  return vel;
}

}  // namespace

Tekenvel TekenBlad(const BladTeksten& teksten, Bladvorm vorm, int rijen) {
  return vorm == Bladvorm::HSK ? TekenHSK(teksten, rijen) : CBGBlad(teksten).Teken();
}

}  // namespace lb77
