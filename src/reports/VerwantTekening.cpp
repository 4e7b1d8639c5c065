#include "reports/VerwantTekening.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "text/Getallen.h"
#include "text/Namen.h"

namespace lb77 {
namespace {

constexpr std::size_t kVak = 10;                // characters a cell
constexpr std::size_t kMeesteVakken = 1000000;  // a sheet of ten million characters
constexpr std::string_view kLeeg = "   ";
constexpr std::string_view kPartner = "----";
constexpr std::string_view kTussenPartners = "-**-";
constexpr std::string_view kTak = "+";
constexpr std::string_view kLijn = "|";

// Partner: of the person to the left. Teken: the sign between those two, where the cell on its left is
// full. Tak: a branch of the person to the left.
enum class VakSoort : std::uint8_t { Leeg, Persoon, Partner, Teken, Tak };

struct Vak {
  VakSoort soort = VakSoort::Leeg;
  bool lijn = false;  // a line goes down to the row below
  std::int16_t persoon = 0;
};

// What stands in the cell of a person.
std::string PersoonTekst(const Vak& vak) {
  return std::string(vak.soort == VakSoort::Partner ? kPartner : std::string_view()) +
         GetalTekst(vak.persoon) + " ";
}

// Is there room for the sign behind it?
bool HeeftTekenruimte(const Vak& vak) {
  return PersoonTekst(vak).size() + kTussenPartners.size() <= kVak;
}

// A cell and its place: generations downward, columns from the right.
struct Plek {
  int rij = 0;
  int kolom = 0;
  Vak vak;
};

// The road of the chain over the sheet, from the second person on.
class Weg {
 public:
  explicit Weg(const std::vector<VerwantEntry>& keten) {
    for (const VerwantEntry& entry : keten) {
      Zet(entry);
      if (entry.soort != VerwantSoort::Begin) Stap(entry);
    }
  }

  [[nodiscard]] const std::vector<Plek>& Plekken() const { return plekken_; }

 private:
  void Zet(const VerwantEntry& entry);
  void Stap(const VerwantEntry& entry);

  std::vector<Plek> plekken_;
  int rij_ = 0;
  int kolom_ = 0;
  int richting_ = 0;           // of the step before: 1 down, -1 up, 0 neither
  bool lijn_ = false;          // the next cell has the line that the step before went up
  bool naastPartner_ = false;  // the next cell is to the left of a partner
};

void Weg::Zet(const VerwantEntry& entry) {
  const bool partner = entry.soort == VerwantSoort::Partner;
  const Vak vak{partner ? VakSoort::Partner : VakSoort::Persoon, lijn_, entry.persoon};
  if (naastPartner_ && !HeeftTekenruimte(vak)) {
    plekken_.push_back({rij_, kolom_++, {VakSoort::Teken, false, entry.persoon}});
  }
  plekken_.push_back({rij_, kolom_, vak});
  lijn_ = false;
  naastPartner_ = false;
}

// To where the person stands from whom `entry` was reached. Back up or down from where the chain
// came, he stands in a column of his own, and where he stood the branch begins.
void Weg::Stap(const VerwantEntry& entry) {
  if (entry.soort == VerwantSoort::Partner) {
    ++kolom_;
    richting_ = 0;
    naastPartner_ = true;
    return;
  }
  const int richting = entry.soort == VerwantSoort::Ouder ? 1 : -1;
  if (richting_ == -richting) {
    plekken_.back().vak.soort = VakSoort::Tak;
    ++kolom_;
    Zet(entry);
  }
  richting_ = richting;
  if (richting > 0) plekken_.back().vak.lijn = true;
  lijn_ = richting < 0;
  rij_ += richting;
}

// The cells in rows, from the left.
class Blad {
 public:
  explicit Blad(const std::vector<Plek>& plekken) {
    for (const Plek& plek : plekken) {
      boven_ = std::min(boven_, plek.rij);
      onder_ = std::max(onder_, plek.rij);
      links_ = std::max(links_, plek.kolom);
    }
    if (TeGroot()) return;
    vakken_.resize(Rijen() * Kolommen());
    for (const Plek& plek : plekken) {
      const auto rij = static_cast<std::size_t>(plek.rij - boven_);
      vakken_[rij * Kolommen() + static_cast<std::size_t>(links_ - plek.kolom)] = plek.vak;
    }
  }

  [[nodiscard]] std::vector<std::string> Regels() const;

 private:
  [[nodiscard]] std::size_t Rijen() const { return static_cast<std::size_t>(onder_ - boven_) + 1; }
  [[nodiscard]] std::size_t Kolommen() const { return static_cast<std::size_t>(links_) + 1; }
  [[nodiscard]] bool TeGroot() const { return Kolommen() > kMeesteVakken / Rijen(); }
  [[nodiscard]] std::string VakTekst(std::size_t rij, std::size_t kolom) const;

  int boven_ = 0;
  int onder_ = 0;
  int links_ = 0;
  std::vector<Vak> vakken_;
};

std::string Blad::VakTekst(std::size_t rij, std::size_t kolom) const {
  const std::size_t plek = rij * Kolommen() + kolom;
  const Vak& vak = vakken_[plek];
  if (vak.soort == VakSoort::Leeg) return std::string(kLeeg);
  if (vak.soort == VakSoort::Tak) return std::string(kTak);
  if (vak.soort == VakSoort::Teken) return std::string(kTussenPartners);
  const bool metPartner = kolom + 1 < Kolommen() && vakken_[plek + 1].soort == VakSoort::Partner;
  std::string tekst = PersoonTekst(vak);
  if (metPartner) tekst = Links(tekst, kVak - kTussenPartners.size()).append(kTussenPartners);
  return tekst;
}

std::vector<std::string> Blad::Regels() const {
  std::vector<std::string> uit;
  for (std::size_t rij = 0; rij < Rijen() && !vakken_.empty(); ++rij) {
    std::string regel;
    std::string lijnen;
    for (std::size_t kolom = 0; kolom < Kolommen(); ++kolom) {
      regel += Links(VakTekst(rij, kolom), kVak);
      lijnen += Links(vakken_[rij * Kolommen() + kolom].lijn ? kLijn : kLeeg, kVak);
    }
    uit.push_back(std::move(regel));
    if (rij + 1 < Rijen()) uit.push_back(std::move(lijnen));
  }
  return uit;
}

}  // namespace

std::vector<std::string> TekenVerwantschap(const std::vector<VerwantEntry>& keten) {
  if (keten.empty()) return {};
  return Blad(Weg(keten).Plekken()).Regels();
}

}  // namespace lb77
