#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "descendants/GenSchTekening.h"
#include "output/Tekenvel.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr int kLabelBreedte = 8;
constexpr int kJoint = 2;        // the joint and a dash in front of an entry
constexpr int kAansluiting = 2;  // at least so much of the line behind a parent

// Lines of one text; no line is longer than `ruimte`, unless that is 0.
class Regelvuller {
 public:
  Regelvuller(std::string begin, std::size_t ruimte)
      : regels_{std::move(begin)},
        ruimte_(ruimte),
        inspringing_(std::min(regels_.front().size(), ruimte / 2)) {}

  // A piece, on the next line when it does not fit; behind a blank unless it begins its line.
  void Voeg(std::string_view stuk, bool blanco = true) {
    if (stuk.empty()) return;
    const std::size_t lengte = stuk.size() + (blanco ? 1 : 0);
    if (!vers_ && ruimte_ > 0 && regels_.back().size() + lengte > ruimte_) NieuweRegel();
    if (!vers_ && blanco) regels_.back() += ' ';
    regels_.back() += stuk;
    vers_ = false;
    BreekAf();
  }
  void NieuweRegel() {
    regels_.emplace_back(inspringing_, ' ');
    vers_ = true;
  }
  // Without blanks at their ends: a line may begin there.
  [[nodiscard]] std::vector<std::string> Neem() {
    for (std::string& regel : regels_) regel.resize(TrimRechts(regel).size());
    return std::move(regels_);
  }

 private:
  // What is longer than a whole line goes on on the next, from a blank where it has one.
  void BreekAf() {
    while (ruimte_ > 0 && regels_.back().size() > ruimte_) {
      const std::string regel = regels_.back();
      const std::size_t blanco = regel.rfind(' ', ruimte_);
      const bool opBlanco = blanco != std::string::npos && blanco > inspringing_;
      const std::size_t tot = opBlanco ? blanco : ruimte_;
      regels_.back().resize(tot);
      NieuweRegel();
      regels_.back() += TrimLinks(std::string_view(regel).substr(tot));
      vers_ = false;
    }
  }

  std::vector<std::string> regels_;
  std::size_t ruimte_;
  std::size_t inspringing_;
  bool vers_ = true;  // nothing stands on the last line yet
};

std::string LabelVeld(const std::string& label, bool gevraagd) {
  if (!gevraagd) return {};
  return label.size() < kLabelBreedte ? Links(label, kLabelBreedte) : label + " ";
}

std::string DatumTekst(const std::vector<std::string>& datums) {
  std::string uit;
  for (const std::string& datum : datums) uit += (uit.empty() ? "" : " ") + datum;
  return uit.empty() ? uit : "(" + uit + ")";
}

// An entry on the lines of its position.
struct Vak {
  int index = 0;
  SchemaPersoon persoon;
  std::vector<std::string> regels;
};

class Horizontaal {
 public:
  Horizontaal(const SchemaBron& bron, TekstSchrijver& uit)
      : bron_(bron), uit_(uit), breedte_(SchemaKolom(bron.opties)) {}

  Uitslag Schrijf() {
    for (int rij = 0; rij < bron_.rijen.Aantal(); ++rij) {
      if (bron_.verloop.afbreken()) return Einde::Afgebroken;
      if (!TekenRij(rij)) return bron_.lezer.Fout();
    }
    return Einde::Klaar;
  }

 private:
  [[nodiscard]] int Kolom(int i) const { return (bron_.tabel.Generatie(i) - 1) * breedte_; }
  [[nodiscard]] int TekstKolom(int i) const { return Kolom(i) + (i == 0 ? 0 : kJoint); }
  [[nodiscard]] bool HeeftKinderen(int i) const { return bron_.tabel.EersteKind(i) > 0; }

  // Who stands at a position are its leaf and ancestors of that: their generations run down.
  [[nodiscard]] bool TekenRij(int rij) {
    std::vector<Vak> vakken;
    const int blad = bron_.rijen.Blad(rij);
    for (int i = blad; i >= 0; i = bron_.tabel.GenOuderIndex(i)) {
      if (bron_.rijen.Rij(i) != rij) continue;
      bron_.verloop.toon(bron_.tabel.Persoon(i), rij);
      auto persoon = bron_.lezer.Lees(i);
      if (!persoon) return false;
      vakken.push_back({i, *persoon, RegelsVan(i, *persoon)});
    }
    std::size_t hoogte = 1;
    for (const Vak& vak : vakken) hoogte = std::max(hoogte, vak.regels.size());
    Tekenvel vel;
    for (const Vak& vak : vakken) TekenVak(vel, vak);
    for (int i = blad; i > 0; i = bron_.tabel.GenOuderIndex(i)) {
      TekenTak(vel, i, rij, static_cast<int>(hoogte));
    }
    vel.Schrijf(uit_);
    return true;
  }

  // Behind a leaf nothing is drawn, so its text needs no end.
  [[nodiscard]] std::vector<std::string> RegelsVan(int i, const SchemaPersoon& persoon) const {
    const int ruimte = Kolom(i) + breedte_ - kAansluiting - TekstKolom(i);
    const GenOpties& opties = bron_.opties;
    Regelvuller vuller(LabelVeld(persoon.label, opties.GenOokVolgNrs),
                       HeeftKinderen(i) ? static_cast<std::size_t>(ruimte) : 0);
    if (persoon.elders) vuller.Voeg("=");
    if (persoon.elders) vuller.Voeg(*persoon.elders);
    vuller.Voeg(persoon.naam.Voluit());
    vuller.Voeg(persoon.nummer);
    vuller.Voeg(DatumTekst(persoon.datums));
    const bool eronder = opties.GenPartners == GenPartnerWijze::NaastElkaar;
    for (std::size_t k = 0; k < persoon.partners.size(); ++k) {
      const SchemaPartner& partner = persoon.partners[k];
      const bool komma = !eronder && k + 1 < persoon.partners.size();
      const std::string naam = partner.naam.Voluit();
      if (eronder) vuller.NieuweRegel();
      vuller.Voeg(partner.teken + (naam.empty() ? "" : " ") + naam + (komma ? "," : ""), k == 0);
    }
    return vuller.Neem();
  }

  void TekenVak(Tekenvel& vel, const Vak& vak) const {
    const int kolom = TekstKolom(vak.index);
    for (std::size_t k = 0; k < vak.regels.size(); ++k) {
      vel.Zet(static_cast<int>(k), kolom, vak.regels[k]);
    }
    MerkDoel(vel, 0, kolom, vak.persoon.label);
    MerkElders(vel, kolom, vak);
    if (!HeeftKinderen(vak.index)) return;
    const int einde = Kolom(vak.index) + breedte_ - 1;
    vel.LijnDwars(0, kolom + static_cast<int>(vak.regels.front().size()), einde);
    const auto kinderen = bron_.rijen.Kinderen(vak.index);
    if (kinderen.van != kinderen.tot) vel.Zet(0, einde, "<");
  }

  // The label of the first occurrence, unless it had to go to another line.
  void MerkElders(Tekenvel& vel, int kolom, const Vak& vak) const {
    const std::string elders = vak.persoon.elders.value_or("");
    const std::size_t plek = vak.regels.front().find("= " + elders);
    if (elders.empty() || plek == std::string::npos) return;
    MerkLink(vel, 0, kolom + static_cast<int>(plek) + 2, elders);
  }

  // The stroke on which entry `i` hangs, as far as it runs beside this position.
  void TekenTak(Tekenvel& vel, int i, int rij, int hoogte) const {
    const auto kinderen = bron_.rijen.Kinderen(bron_.tabel.GenOuderIndex(i));
    if (rij < kinderen.van || rij > kinderen.tot) return;
    const int kolom = Kolom(i);
    const bool hier = bron_.rijen.Rij(i) == rij;
    if (!hier || rij < kinderen.tot) vel.LijnNeer(kolom, 0, hoogte - 1);
    if (hier) vel.Zet(0, kolom, std::string{SchemaKnoop(rij, kinderen, '='), '-'});
  }

  const SchemaBron& bron_;
  TekstSchrijver& uit_;
  int breedte_;
};

}  // namespace

int SchemaKolom(const GenOpties& opties) {
  int uit = 5;
  if (opties.GenOokVolgNrs) uit += kLabelBreedte;
  switch (opties.GenVoorNamen) {
    case GenVoornaamWijze::Nee:
      break;
    case GenVoornaamWijze::AlleenEerste:
      uit += std::min(opties.GenPosVNamen, 10);
      break;
    case GenVoornaamWijze::Voorletters:
      uit += std::min(opties.GenPosVNamen, 8);
      break;
    case GenVoornaamWijze::Volledig:
      uit += opties.GenPosVNamen;
      break;
  }
  uit += opties.GenPosANamen;
  if (opties.GenOokPrsNrs) uit += 9;
  if (opties.GenToonDatums == GenDatums::Jaartallen) uit += 12;
  if (opties.GenToonDatums == GenDatums::Volledig) uit += 30;
  if (opties.GenPartners == GenPartnerWijze::OnderElkaar) uit += 45;
  return uit;
}

Uitslag TekenHorizontaal(const SchemaBron& bron, TekstSchrijver& uit) {
  return Horizontaal(bron, uit).Schrijf();
}

}  // namespace lb77
