#include "output/Tekenvel.h"

#include <algorithm>
#include <ostream>

#include "output/TekstSchrijver.h"
#include "text/HTML.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr char kKnoop = '+';

}  // namespace

Tekenvel::Rij& Tekenvel::RijOp(int rij) {
  const auto plaats = static_cast<std::size_t>(std::max(rij, 0));
  if (plaats >= rijen_.size()) rijen_.resize(plaats + 1);
  return rijen_[plaats];
}

Tekenvel::Cel& Tekenvel::CelOp(Rij& rij, int kolom) {
  const auto plaats = static_cast<std::size_t>(kolom);
  if (plaats >= rij.cellen.size()) rij.cellen.resize(plaats + 1);
  return rij.cellen[plaats];
}

void Tekenvel::Zet(int rij, int kolom, std::string_view tekst) {
  Rij& op = RijOp(rij);
  for (const char teken : tekst) {
    if (kolom >= 0) CelOp(op, kolom) = {teken, Soort::Tekst};
    ++kolom;
  }
}

void Tekenvel::Lijn(int rij, int kolom, Soort soort, char teken) {
  if (rij < 0 || kolom < 0) return;
  Cel& cel = CelOp(RijOp(rij), kolom);
  if (cel.soort == Soort::Leeg || cel.soort == soort) {
    cel = {teken, soort};
  } else if (cel.soort != Soort::Tekst) {
    cel = {kKnoop, Soort::Knoop};
  }
}

void Tekenvel::LijnDwars(int rij, int van, int tot, char teken) {
  for (int kolom = std::min(van, tot); kolom <= std::max(van, tot); ++kolom) {
    Lijn(rij, kolom, Soort::Dwars, teken);
  }
}

void Tekenvel::LijnNeer(int kolom, int van, int tot, char teken) {
  for (int rij = std::min(van, tot); rij <= std::max(van, tot); ++rij) {
    Lijn(rij, kolom, Soort::Neer, teken);
  }
}

void Tekenvel::Merk(int rij, int kolom, std::string_view merk) {
  std::vector<Merkteken>& merken = RijOp(rij).merken;
  const auto plaats = static_cast<std::size_t>(std::max(kolom, 0));
  const auto achter = std::upper_bound(
      merken.begin(), merken.end(), plaats,
      [](std::size_t links, const Merkteken& rechts) { return links < rechts.kolom; });
  merken.insert(achter, {plaats, std::string(merk)});
}

int Tekenvel::Kolommen() const {
  std::size_t breedste = 0;
  for (const Rij& rij : rijen_) breedste = std::max(breedste, rij.cellen.size());
  return static_cast<int>(breedste);
}

std::string Tekenvel::InTekst(const Rij& rij) {
  std::string uit;
  for (const Cel& cel : rij.cellen) uit += cel.teken;
  return std::string(TrimRechts(uit));
}

// A mark behind the last character stands at the line's end.
std::string Tekenvel::InHTML(const Rij& rij) {
  const std::string tekst = InTekst(rij);
  std::string uit;
  std::size_t gedaan = 0;
  for (const Merkteken& merk : rij.merken) {
    const std::size_t tot = std::min(merk.kolom, tekst.size());
    uit += TekstNaarHTML(std::string_view(tekst).substr(gedaan, tot - gedaan));
    uit += merk.tekst;
    gedaan = tot;
  }
  return uit + TekstNaarHTML(std::string_view(tekst).substr(gedaan));
}

std::vector<std::string> Tekenvel::Regels(bool inHTML) const {
  std::vector<std::string> uit;
  for (const Rij& rij : rijen_) uit.push_back(inHTML ? InHTML(rij) : InTekst(rij));
  return uit;
}

void Tekenvel::Schrijf(TekstSchrijver& uit) const {
  for (const std::string& regel : Regels(uit.InHTML())) uit.VolleRegel(regel);
}

void Tekenvel::Schrijf(std::ostream& uit) const {
  for (const std::string& regel : Regels()) uit << regel << "\r\n";
}

}  // namespace lb77
