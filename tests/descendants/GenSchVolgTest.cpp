// Every line of a descendant chart can be followed with a finger: from each person up to his parent,
// without a break, and nobody is covered.
#include <algorithm>
#include <string_view>

#include "descendants/GenSchTekening.h"
#include "descendants/GenSchToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

struct Plek {
  int rij = -1;
  int kolom = -1;
};

class GenSchVolgToets : public GenSchToets {
 protected:
  // A tree of `aantal` men "P0002." ... who have up to `meeste` followed children; some have partners,
  // some a repeated child.
  std::int16_t MaakBoom(int aantal, unsigned zaad, unsigned meeste) {
    const auto trek = [&zaad](unsigned onder) {
      zaad = zaad * 1103515245U + 12345U;
      return (zaad >> 16U) % onder;
    };
    std::vector<std::int16_t> mensen{Mens()};
    for (std::size_t ouder = 0; ouder < mensen.size(); ++ouder) {
      std::vector<std::int16_t> kinderen;
      unsigned erbij = static_cast<int>(mensen.size()) < aantal ? trek(meeste + 1) : 0;
      if (ouder + 1 == mensen.size() && static_cast<int>(mensen.size()) < aantal) erbij = meeste;
      for (; erbij > 0; --erbij) kinderen.push_back(Mens());
      const bool partner = trek(3) == 0;
      if (partner || !kinderen.empty()) {
        bouw_.Relatie(mensen[ouder], partner ? bouw_.Vrouw("Partner Anna", "van Dijk") : 0,
                      kinderen);
      }
      if (trek(4) == 0) bouw_.Relatie(mensen[ouder], bouw_.Vrouw("Elisabeth Maria", "Smit"));
      mensen.insert(mensen.end(), kinderen.begin(), kinderen.end());
    }
    return mensen.front();
  }
  std::int16_t Mens() {
    ++mensen_;
    return bouw_.Man("P" + NulGevuld(mensen_, 4) + ".", "Bos");
  }

  void Lees(std::int16_t stamouder) {
    const std::string tekening = Tekening(stamouder);
    regels_.clear();
    for (std::size_t van = 0; van < tekening.size();) {
      const std::size_t tot = tekening.find('\n', van);
      regels_.push_back(tekening.substr(van, tot - van));
      van = tot + 1;
    }
  }
  [[nodiscard]] char Teken(int rij, int kolom) const {
    if (rij < 0 || kolom < 0 || rij >= static_cast<int>(regels_.size())) return ' ';
    const std::string& regel = regels_[static_cast<std::size_t>(rij)];
    return kolom < static_cast<int>(regel.size()) ? regel[static_cast<std::size_t>(kolom)] : ' ';
  }
  [[nodiscard]] static bool Is(std::string_view tekens, char teken) {
    return tekens.find(teken) != std::string_view::npos;
  }
  // The only place of a word in the drawing: no letter stands beside it.
  [[nodiscard]] Plek Vind(const std::string& woord) const {
    Plek uit;
    for (int rij = 0; rij < static_cast<int>(regels_.size()); ++rij) {
      const std::string& regel = regels_[static_cast<std::size_t>(rij)];
      for (std::size_t plek = regel.find(woord); plek != std::string::npos;
           plek = regel.find(woord, plek + 1)) {
        const int kolom = static_cast<int>(plek);
        if (!Is("-= ", Teken(rij, kolom - 1))) continue;
        if (!Is("- ", Teken(rij, kolom + static_cast<int>(woord.size())))) continue;
        EXPECT_EQ(uit.rij, -1) << woord << " stands there twice";
        uit = {rij, kolom};
      }
    }
    EXPECT_NE(uit.rij, -1) << woord << " is not to be found";
    return uit;
  }
  // By his label when there is one, else by his name.
  [[nodiscard]] Plek VindPersoon(int i) {
    if (opties_.GenOokVolgNrs) return Vind(tabel_.Label(i));
    EXPECT_TRUE(set_.Persoon.Lees(tabel_.Persoon(i)));
    return Vind(set_.Persoon.VoorNaamTrue());
  }

  // From the joint in front of a child along the stroke, and along the line of the parent to the end of
  // his text.
  [[nodiscard]] bool VolgHorizontaal(Plek kind, Plek ouder, bool enig) const {
    const int streep = kind.kolom - 2;
    if (!Is(enig ? "=" : "/\\+", Teken(kind.rij, streep)) || Teken(kind.rij, streep + 1) != '-') {
      return false;
    }
    const auto [boven, onder] = std::minmax(kind.rij, ouder.rij);
    for (int rij = boven + 1; rij < onder; ++rij) {
      if (!Is("|/\\+", Teken(rij, streep))) return false;
    }
    int kolom = streep - 1;
    if (Teken(ouder.rij, kolom) != (enig ? '-' : '<')) return false;
    while (Teken(ouder.rij, kolom - 1) == '-') --kolom;
    return kolom > ouder.kolom && Teken(ouder.rij, kolom - 1) != ' ';
  }
  // From the line above a child along the stroke, and up to the text of the parent.
  [[nodiscard]] bool VolgVerticaal(Plek kind, Plek ouder, bool enig) const {
    const int streep = kind.rij - 2;
    if (Teken(kind.rij - 1, kind.kolom) != '|') return false;
    if (!Is(enig ? "|" : "/\\+", Teken(streep, kind.kolom))) return false;
    const auto [links, rechts] = std::minmax(kind.kolom, ouder.kolom);
    for (int kolom = links; kolom <= rechts; ++kolom) {
      if (!Is(enig ? "|" : "-/\\+", Teken(streep, kolom))) return false;
    }
    int rij = streep - 1;
    if (Teken(rij, ouder.kolom) != '|') return false;
    while (Teken(rij, ouder.kolom) == '|') --rij;
    return rij >= ouder.rij;
  }
  void VerwachtTeVolgen() {
    for (int i = 1; i < tabel_.GenAantal(); ++i) {
      const int ouder = tabel_.GenOuderIndex(i);
      const bool enig = tabel_.EersteKind(ouder) == i && tabel_.VolgendKind(i) == 0;
      const Plek kind = VindPersoon(i);
      const Plek van = VindPersoon(ouder);
      EXPECT_TRUE(opties_.GenVertikaal ? VolgVerticaal(kind, van, enig)
                                       : VolgHorizontaal(kind, van, enig))
          << "entry " << i << " of " << ouder;
    }
  }

  int mensen_ = 0;
  std::vector<std::string> regels_;
};

TEST_F(GenSchVolgToets, ElkeLijnVanKindNaarOuderIsHeel) {
  opties_.GenPosVNamen = 6;
  opties_.GenPosANamen = 3;
  for (unsigned zaad = 1; zaad <= 12; ++zaad) {
    const auto stamouder = MaakBoom(10 + static_cast<int>(zaad) * 5, zaad, 1 + zaad % 4);
    for (int keuze = 0; keuze < 12; ++keuze) {
      opties_.GenVertikaal = keuze % 2 != 0;
      opties_.GenCentreren = keuze / 2 % 2 != 0;
      opties_.GenPartners = static_cast<GenPartnerWijze>(keuze / 4);
      Lees(stamouder);
      VerwachtTeVolgen();
      if (HasFailure()) FAIL() << "zaad " << zaad << " keuze " << keuze << "\n" << uit_;
    }
  }
}

// The widest of everything: what does not fit goes on beneath itself and runs through no line.
TEST_F(GenSchVolgToets, OokWatNietPastLaatDeLijnenHeel) {
  opties_.GenVoorNamen = GenVoornaamWijze::Volledig;
  opties_.GenPosVNamen = 6;
  opties_.GenPosANamen = 0;
  opties_.GenOokRelNrs = true;
  opties_.GenPartners = GenPartnerWijze::NaastElkaar;
  const auto stamouder = MaakBoom(40, 7, 3);
  for (const bool centreren : {false, true}) {
    opties_.GenCentreren = centreren;
    Lees(stamouder);
    VerwachtTeVolgen();
  }
  // A column has room for seven characters of the text of somebody with children.
  EXPECT_NE(uit_.find("Partne"), std::string::npos);
}

TEST_F(GenSchVolgToets, ElkeKeuzeLaatDeLijnenHeel) {
  const auto stamouder = MaakBoom(14, 3, 3);
  opties_.GenOokVolgNrs = opties_.GenCentreren = true;
  for (int keuze = 0; keuze < 864 && !HasFailure(); keuze += 5) {
    int rest = keuze;
    const auto een = [&rest](int van) {
      const int uit = rest % van;
      rest /= van;
      return uit;
    };
    opties_.GenVertikaal = een(2) == 1;
    opties_.GenOokPrsNrs = een(2) == 1;
    opties_.GenOokRelNrs = een(2) == 1;
    opties_.GenToonDatums = static_cast<GenDatums>(een(3));
    opties_.GenPartners = static_cast<GenPartnerWijze>(een(3));
    opties_.GenVoorNamen = static_cast<GenVoornaamWijze>(een(4));
    opties_.GenPosVNamen = 5;
    opties_.GenPosANamen = een(3) * 12;
    Lees(stamouder);
    VerwachtTeVolgen();
    if (HasFailure()) ADD_FAILURE() << "keuze " << keuze << "\n" << uit_;
  }
}

TEST_F(GenSchVolgToets, GeenTekstLooptInDeKolomVanDeVolgendeGeneratie) {
  opties_.GenPosVNamen = 6;
  opties_.GenPosANamen = 3;
  opties_.GenPartners = GenPartnerWijze::OnderElkaar;
  const auto stamouder = MaakBoom(40, 5, 3);
  Lees(stamouder);
  const int kolom = SchemaKolom(opties_);
  for (int i = 1; i < tabel_.GenAantal(); ++i) {
    EXPECT_EQ(VindPersoon(i).kolom, (tabel_.Generatie(i) - 1) * kolom + 2);
  }
}

}  // namespace
}  // namespace lb77
