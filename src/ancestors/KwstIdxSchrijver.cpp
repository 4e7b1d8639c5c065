#include "ancestors/KwstIdxSchrijver.h"

#include <vector>

#include "output/Blik.h"
#include "output/TabelRij.h"
#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr int kAchternaam = 30;
constexpr int kVoornaam = 31;
constexpr int kNummer = 26;
constexpr int kCode = 4;
constexpr int kBreedteNr = 8;

}  // namespace

KwstIdxSchrijver::KwstIdxSchrijver(const KwstTabel& tabel, const KwstOpties& opties,
                                   const Gegevens& bronnen, TekstSchrijver& uit,
                                   const Verloop& verloop)
    : tabel_(tabel),
      opties_(opties),
      bronnen_(bronnen),
      uit_(uit),
      gang_(tabel, opties, bronnen, verloop) {}

Uitslag KwstIdxSchrijver::Schrijf() {
  if (const Uitslag kop = BeginKwst(opties_, bronnen_.persoon, uit_); kop != Einde::Klaar) {
    return kop;
  }
  uit_.TagRegel("<TABLE>");
  if (!SchrijfProband()) return fout_;
  const Uitslag uitslag = gang_.Loop([this](const KwstStel& stel) -> Uitslag {
    if (!SchrijfStel(stel)) return fout_;
    return Einde::Klaar;
  });
  if (uitslag != Einde::Klaar) return uitslag;
  uit_.TagRegel("</TABLE>");
  SchrijfSlot(uit_, opties_.teksten);
  return uitslag;
}

bool KwstIdxSchrijver::SchrijfProband() {
  const KwstOuder proband = gang_.Ouder(0);
  if (!proband.geschreven) return true;
  if (opties_.KwBroerZus != BroerZus::Zonder && bronnen_.persoon.RelNrOuders() > 0) {
    return SchrijfKinderenIndex(bronnen_.persoon.RelNrOuders(), proband);
  }
  return SchrijfOuder(proband, 0, "K");
}

bool KwstIdxSchrijver::SchrijfStel(const KwstStel& stel) {
  return SchrijfOuder(stel.vader, stel.relatie, "M") &&
         SchrijfOuder(stel.moeder, stel.relatie, "V") &&
         (opties_.KwBroerZus != BroerZus::Alle ||
          (SchrijfBroersZussen(stel.vader) && SchrijfBroersZussen(stel.moeder)));
}

// A row of his own, and those of the partners whom he has besides.
bool KwstIdxSchrijver::SchrijfOuder(const KwstOuder& ouder, std::int16_t relatie,
                                    std::string_view code) {
  if (!ouder.Verteld()) return true;
  const Vindplaats waar{NummerVan(ouder)};
  SchrijfIndexRegel(ouder.nr, waar, code);
  return SchrijfPartnersIndex(ouder.nr, relatie, waar);
}

bool KwstIdxSchrijver::SchrijfBroersZussen(const KwstOuder& ouder) {
  if (!ouder.Verteld() || !bronnen_.persoon.Lees(ouder.nr)) return true;
  const std::int16_t ouders = bronnen_.persoon.RelNrOuders();
  return ouders <= 0 || SchrijfKinderenIndex(ouders, ouder);
}

// In HTML the number leads to its kwartier: a brother or sister is told there, without an anchor of
// his own.
void KwstIdxSchrijver::SchrijfIndexRegel(std::int16_t nr, const Vindplaats& waar,
                                         std::string_view code) {
  PersoonLB77& persoon = bronnen_.persoon;
  if (!persoon.Lees(nr)) return;
  std::vector<TabelCel> rij{{persoon.AchterNaamVVC(), kAchternaam},
                            {persoon.VoorNaamTrue(), kVoornaam},
                            {.tekst = waar.Nummer(),
                             .breedte = kNummer,
                             .richting = Richting::Rechts,
                             .link = opties_.KwHTMLFile + "#" + waar.kwartier}};
  const std::string tussen(uit_.InHTML() ? 0 : 1, ' ');  // a number may fill its column
  rij.push_back({tussen + std::string(code), kCode + static_cast<int>(tussen.size())});
  if (opties_.KwOokNrs) rij.push_back({"[" + GetalTekst(nr) + "]", kBreedteNr});
  rij.push_back({persoon.Periode(nr)});
  SchrijfTabelRij(uit_, rij);
}

bool KwstIdxSchrijver::SchrijfPartnersIndex(std::int16_t nr, std::int16_t hoofdRel,
                                            const Vindplaats& waar) {
  const auto gezinnen = LeesGezinnen(bronnen_.persoon, bronnen_.relatie, nr);
  if (!gezinnen || gezinnen->lijst.size() == 1) return true;
  for (const GezinBlik& gezin : gezinnen->lijst) {
    if (gezin.relNr == hoofdRel) continue;
    if (!gezin.gelezen) {
      fout_ = {BestandSoort::Relaties, gezin.relNr};
      return false;
    }
    if (gezin.partner == 0) continue;
    SchrijfIndexRegel(gezin.partner, waar, "P");
    if (!bronnen_.persoon.Lees(gezin.partner)) continue;
    const std::int16_t ouders = bronnen_.persoon.RelNrOuders();
    if (ouders > 0 && !SchrijfOudersIndex(ouders, waar)) return false;
  }
  return true;
}

bool KwstIdxSchrijver::SchrijfOudersIndex(std::int16_t relNr, const Vindplaats& waar) {
  if (!LeesRelatie(relNr)) return false;
  for (const std::int16_t ouder : {bronnen_.relatie.ManNr(), bronnen_.relatie.VrouwNr()}) {
    if (ouder != 0) SchrijfIndexRegel(ouder, waar, "SO");
  }
  return true;
}

bool KwstIdxSchrijver::SchrijfKinderenIndex(std::int16_t relNr, const KwstOuder& van) {
  if (!LeesRelatie(relNr)) return false;
  for (const KwstKind& kind : gang_.Kinderen(relNr, van.nr)) {
    const Vindplaats waar{NummerVan(van), KindLetter(kind.plaats)};
    SchrijfIndexRegel(kind.nr, waar, "BZ");
    if (!SchrijfPartnersIndex(kind.nr, 0, waar)) return false;
  }
  return true;
}

bool KwstIdxSchrijver::LeesRelatie(std::int16_t relNr) {
  if (bronnen_.relatie.Lees(relNr)) return true;
  fout_ = {BestandSoort::Relaties, relNr};
  return false;
}

std::string KwstIdxSchrijver::NummerVan(const KwstOuder& ouder) const {
  return tabel_.KwNummer(ouder.index).Tekst();
}

}  // namespace lb77
