#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "descendants/GenSchTekening.h"
#include "output/Tekenvel.h"

namespace lb77 {
namespace {

using Regels = std::vector<std::string>;

constexpr int kTussenruimte = 2;  // between blocks, and between a person and a partner beside him
constexpr int kBovenlijnen = 2;   // the stroke of the children and a piece of line above each

int Breedte(const Regels& regels) {
  std::size_t uit = 0;
  for (const std::string& regel : regels) uit = std::max(uit, regel.size());
  return static_cast<int>(uit);
}

void Voeg(Regels& regels, std::string_view tekst) {
  if (!tekst.empty()) regels.emplace_back(tekst);
}

// The number, and of a repeat that of the first occurrence.
std::string KopRegel(const SchemaPersoon& persoon) {
  if (!persoon.elders) return persoon.label;
  const std::string vooraf = persoon.label.empty() ? "=" : persoon.label + " =";
  return persoon.elders->empty() ? vooraf : vooraf + " " + *persoon.elders;
}

Regels PartnerRegels(const SchemaPartner& partner) {
  const auto& [voornamen, achternaam] = partner.naam;
  Regels uit;
  if (voornamen.empty() || achternaam.empty()) {
    const std::string naam = voornamen + achternaam;
    return {naam.empty() ? partner.teken : partner.teken + " " + naam};
  }
  return {partner.teken + " " + voornamen, "  " + achternaam};
}

// Puts lines to the right of others, from line `vanaf` on.
void ZetNaast(Regels& regels, std::size_t vanaf, const Regels& rechts) {
  const auto kolom = static_cast<std::size_t>(Breedte(regels) + kTussenruimte);
  regels.resize(std::max(regels.size(), vanaf + rechts.size()));
  for (std::size_t k = 0; k < rechts.size(); ++k) {
    std::string& regel = regels[vanaf + k];
    regel.resize(kolom, ' ');
    regel += rechts[k];
  }
}

Regels RegelsVan(const SchemaPersoon& persoon, GenDatums datums, GenPartnerWijze wijze) {
  Regels uit;
  Voeg(uit, KopRegel(persoon));
  const std::size_t vanaf = uit.size();
  Voeg(uit, persoon.naam.voornamen);
  Voeg(uit, persoon.naam.achternaam);
  Voeg(uit, persoon.nummer);
  for (const std::string& datum : persoon.datums) {
    Voeg(uit, datums == GenDatums::Jaartallen ? "(" + datum + ")" : datum);
  }
  for (const SchemaPartner& partner : persoon.partners) {
    const Regels regels = PartnerRegels(partner);
    if (wijze == GenPartnerWijze::NaastElkaar) {
      ZetNaast(uit, vanaf, regels);
    } else {
      uit.insert(uit.end(), regels.begin(), regels.end());
    }
  }
  return uit;
}

class Verticaal {
 public:
  Verticaal(const SchemaBron& bron, TekstSchrijver& uit) : bron_(bron), uit_(uit) {}

  Uitslag Schrijf() {
    const int aantal = bron_.tabel.GenAantal();
    for (int i = 0; i < aantal; ++i) {
      if (bron_.verloop.afbreken()) return Einde::Afgebroken;
      bron_.verloop.toon(bron_.tabel.Persoon(i), i + 1);
      if (!LeesBlok(i)) return bron_.lezer.Fout();
    }
    for (int eerste = 0; eerste < aantal;) eerste = TekenGeneratie(eerste);
    return Einde::Klaar;
  }

 private:
  struct Blok {
    std::string label;
    std::string elders;
    Regels regels;
  };

  [[nodiscard]] bool LeesBlok(int i) {
    const auto persoon = bron_.lezer.Lees(i);
    if (!persoon) return false;
    const GenOpties& opties = bron_.opties;
    blokken_.push_back({persoon->label, persoon->elders.value_or(""),
                        RegelsVan(*persoon, opties.GenToonDatums, opties.GenPartners)});
    breedte_ = std::max(breedte_, Breedte(blokken_.back().regels) + kTussenruimte);
    return true;
  }
  [[nodiscard]] const Blok& BlokVan(int i) const { return blokken_[static_cast<std::size_t>(i)]; }
  [[nodiscard]] int Kolom(int i) const { return bron_.rijen.Rij(i) * breedte_; }

  // Draws the generation that begins at this entry, and gives the first entry of the next.
  [[nodiscard]] int TekenGeneratie(int eerste) {
    const int generatie = bron_.tabel.Generatie(eerste);
    const int top = generatie == 1 ? 0 : kBovenlijnen;
    int hoogte = 0;
    int tot = eerste;
    for (; tot < bron_.tabel.GenAantal() && bron_.tabel.Generatie(tot) == generatie; ++tot) {
      hoogte = std::max(hoogte, static_cast<int>(BlokVan(tot).regels.size()));
    }
    Tekenvel vel;
    for (int i = eerste; i < tot; ++i) {
      if (i > 0) TekenBoven(vel, i);
      TekenBlok(vel, i, top, top + hoogte);
    }
    vel.Schrijf(uit_);
    return tot;
  }

  // The stroke of brothers and sisters, once, and the line from it to one of them.
  void TekenBoven(Tekenvel& vel, int i) const {
    const int ouder = bron_.tabel.GenOuderIndex(i);
    const auto kinderen = bron_.rijen.Kinderen(ouder);
    const int kolom = Kolom(i);
    if (i == bron_.tabel.EersteKind(ouder)) {
      vel.LijnDwars(0, kinderen.van * breedte_, kinderen.tot * breedte_);
      vel.Zet(0, Kolom(ouder), "+");  // where the parent's line arrives, unless a child hangs there
    }
    vel.Zet(0, kolom, std::string(1, SchemaKnoop(bron_.rijen.Rij(i), kinderen, '|')));
    vel.LijnNeer(kolom, 1, kBovenlijnen - 1);
  }

  void TekenBlok(Tekenvel& vel, int i, int top, int onder) const {
    const Blok& blok = BlokVan(i);
    const int kolom = Kolom(i);
    int rij = top;
    for (const std::string& regel : blok.regels) vel.Zet(rij++, kolom, regel);
    if (bron_.tabel.EersteKind(i) > 0) vel.LijnNeer(kolom, rij, onder);
    MerkDoel(vel, top, kolom, blok.label);
    if (!blok.label.empty()) {
      MerkLink(vel, top, kolom + static_cast<int>(blok.label.size()) + 3, blok.elders);
    }
  }

  const SchemaBron& bron_;
  TekstSchrijver& uit_;
  std::vector<Blok> blokken_;
  int breedte_ = 0;
};

}  // namespace

Uitslag TekenVerticaal(const SchemaBron& bron, TekstSchrijver& uit) {
  return Verticaal(bron, uit).Schrijf();
}

}  // namespace lb77
