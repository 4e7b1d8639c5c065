#include "ancestors/KwstSchrijver.h"

#include <algorithm>
#include <cstdlib>

#include "output/TekstSchrijver.h"
#include "output/Zinsbouw.h"
#include "reporting/HTMLPagina.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

// The rubrics of a relation's events: their remarks are told even when the events are not known.
constexpr int kHuwelijksRubrieken =
    RubriekBits(relatierubriek::kOtrPlaats, relatierubriek::kOtrDatum,
                relatierubriek::kWetHuwPlaats, relatierubriek::kWetHuwDatum,
                relatierubriek::kHuwSoort, relatierubriek::kKHuwPlaats, relatierubriek::kKHuwDatum);

// Generations from the proband to the first entry that is written; 0 when none is.
int AfstandVanEerste(const KwstTabel& tabel, const Kwartiernummer& vanaf) {
  for (int i = 0; i < tabel.KwstAantal(); ++i) {
    if (tabel.KwNummer(i).Vanaf(vanaf)) return tabel.Generatie(i);
  }
  return 0;
}

}  // namespace

KwstSchrijver::KwstSchrijver(const KwstTabel& tabel, const KwstOpties& opties,
                             const Gegevens& bronnen, const ZinOpties& zinOpties,
                             TekstSchrijver& uit, const Verloop& verloop)
    : tabel_(tabel),
      opties_(opties),
      bronnen_(bronnen),
      verteller_(bronnen, uit, zinOpties),
      uit_(uit),
      gang_(tabel, opties, bronnen, verloop),
      beginGen_(opties.KwBeginNr.Generatie()),
      eersteGen_(beginGen_ + AfstandVanEerste(tabel, opties.KwVanafNr)),
      maxGen_(std::min(opties.KwMaxGen, tabel.KwNummer(tabel.KwstAantal() - 1).Generatie())),
      huidigeGen_(beginGen_) {}

Uitslag KwstSchrijver::Schrijf() {
  if (const Uitslag kop = BeginKwst(opties_, bronnen_.persoon, uit_); kop.einde != Einde::Klaar) {
    return kop;
  }
  if (gang_.Ouder(0).geschreven && !SchrijfProband()) return verteller_.Fout();
  const Uitslag uitslag = gang_.Loop([this](const KwstStel& stel) -> Uitslag {
    Paar paar{{stel.vader}, {stel.moeder}, stel.relatie};
    if (!SchrijfPaar(paar)) return verteller_.Fout();
    return Einde::Klaar;
  });
  if (uitslag == Einde::Klaar) SchrijfSlot(uit_, opties_.teksten);
  return uitslag;
}

void KwstSchrijver::SchrijfGeneratieKop(int generatie) {
  uit_.Tag("<HR><H4>");
  if (generatie > opties_.KwVanafNr.Generatie()) {
    uit_.LegeRegel();
    uit_.LegeRegel();
  }
  SchrijfGeneratie(uit_, generatie, eersteGen_, maxGen_);
}

// Numbers are right-aligned in six columns; the text hangs at column 8.
void KwstSchrijver::SchrijfKop(std::string_view nummer) {
  const int lengte = static_cast<int>(nummer.size());
  uit_.EindeRegel();
  uit_.ZetMarge(true, lengte >= 6 ? 0 : 6 - lengte);
  uit_.Vast(nummer);
  uit_.ZetMarge(true, lengte >= 6 ? lengte + 2 : 8);
}

// The anchor of an entry and the links to its child and its parents.
void KwstSchrijver::SchrijfLinks(int index) {
  if (!uit_.InHTML()) return;
  uit_.Vast(Anker(tabel_.KwNummer(index).Tekst()));
  if (index > 0) {
    uit_.Vast(VerwijzingNaar(tabel_.KwNummer(tabel_.KwKindIndex(index) - 1).Tekst(), "K"));
  }
  // The parents stand in the table in the order of their children.
  while (linkIndex_ < tabel_.KwstAantal() && tabel_.KwKindIndex(linkIndex_) <= index) ++linkIndex_;
  for (; linkIndex_ < tabel_.KwstAantal() && tabel_.KwKindIndex(linkIndex_) == index + 1;
       ++linkIndex_) {
    uit_.Vast(VerwijzingNaar(tabel_.KwNummer(linkIndex_).Tekst(),
                             tabel_.IsMoeder(linkIndex_) ? "V" : "M"));
  }
}

bool KwstSchrijver::SchrijfProband() {
  Ouder proband{gang_.Ouder(0)};
  if (!LeesOuder(proband)) return false;
  SchrijfGeneratieKop(beginGen_);
  if (opties_.KwBroerZus == BroerZus::Zonder || proband.relNrOuders <= 0) {
    return SchrijfProbandAlleen(proband);
  }
  bronnen_.volgers.HuidigRelatieNr = proband.relNrOuders;
  if (!verteller_.LeesRelatie(proband.relNrOuders)) return false;
  uit_.Tag("<BR>");
  SchrijfLinks(0);
  uit_.Tag("<UL>");
  if (!SchrijfKinderen(proband, true)) return false;
  uit_.Tag("</UL>");
  return true;
}

bool KwstSchrijver::SchrijfProbandAlleen(const Ouder& proband) {
  int volgNr = 1;
  SchrijfKop(opties_.KwBeginNr.Tekst());
  SchrijfLinks(0);
  if (!verteller_.SchrijfPersoon(proband.nr)) return false;
  if (!SchrijfAndereRelaties(proband.nr, 0, false, volgNr)) return false;
  uit_.VolleRegel(".");
  verteller_.SchrijfAlgemeneOpm(proband.opmRecord, proband.opmCode, kRubriekPersoon);
  return true;
}

// The children of the parents of `van`, lettered by slot: the letter is right-aligned in six columns, the text hangs at column 8,
// in the proband's own list further by the letter's length.
bool KwstSchrijver::SchrijfKinderen(const Ouder& van, bool vanProband) {
  for (const KwstKind& kind : gang_.Kinderen(van.relNrOuders, van.nr)) {
    if (!bronnen_.persoon.Lees(kind.nr)) return true;  // ends the list, not the report
    if (!SchrijfKind(kind, vanProband)) return false;
  }
  return true;
}

bool KwstSchrijver::SchrijfKind(const KwstKind& kind, bool vanProband) {
  const std::int16_t opmRecord = bronnen_.persoon.OpmRecord();
  const std::int16_t opmCode = bronnen_.persoon.OpmCode();
  const std::string letter = KindLetter(kind.plaats);
  const int lengte = static_cast<int>(letter.size());
  int volgNr = 1;
  uit_.EindeRegel();
  uit_.ZetMarge(true, 0);
  uit_.Tag("<BR>");
  uit_.ZetMarge(true, 6 - lengte);
  uit_.Vast(letter + ".");
  uit_.ZetMarge(true, vanProband ? 8 + lengte : 8);
  if (!verteller_.SchrijfPersoon(kind.nr)) return false;
  if (!SchrijfAndereRelaties(kind.nr, 0, false, volgNr)) return false;
  uit_.Vast(".");
  verteller_.SchrijfAlgemeneOpm(opmRecord, opmCode, kRubriekPersoon);
  return true;
}

bool KwstSchrijver::SchrijfAndereRelaties(std::int16_t nr, std::int16_t hoofdRel, bool eenOverslaan,
                                          int& volgNr) {
  // kept: with a continuation record there is more than one, also when its places are empty.
  PersoonLB77& persoon = bronnen_.persoon;
  if (eenOverslaan && persoon.Lees(nr) && persoon.AantalHuw(nr) == 1) return true;
  const auto gezinnen = LeesGezinnen(persoon, bronnen_.relatie, nr);
  if (!gezinnen) return true;
  for (const GezinBlik& gezin : gezinnen->lijst) {
    if (gezin.relNr == hoofdRel) {
      volgNr = gezin.volgNr;
    } else if (verteller_.SchrijfPartner(gezin, true) == PartnerVerteld::Onleesbaar) {
      return false;
    }
  }
  return true;
}

// Has the relation in the buffer anything that can be told between its partners?
bool KwstSchrijver::ZegtIets(const RelatieLB77& relatie) const {
  const int opmCode = opties_.KwOokOpm ? std::abs(int{relatie.OpmCode()}) : 0;
  return VerbintenisVan(relatie).HeeftGegevens() || (opmCode & kHuwelijksRubrieken) != 0;
}

bool KwstSchrijver::LeesOuder(Ouder& ouder) {
  if (!verteller_.LeesPersoon(ouder.nr)) return false;
  ouder.opmRecord = bronnen_.persoon.OpmRecord();
  ouder.opmCode = bronnen_.persoon.OpmCode();
  ouder.relNrOuders = bronnen_.persoon.RelNrOuders();
  return true;
}

bool KwstSchrijver::SchrijfPaar(Paar& paar) {
  uit_.ZetMarge(true, 0);
  if (!SchrijfOuder(paar.vader, paar) || !SchrijfHuwelijk(paar) ||
      !SchrijfOuder(paar.moeder, paar)) {
    return false;
  }
  if (paar.vader.geschreven || paar.moeder.geschreven) {
    uit_.VolleRegel(".");
    uit_.Tag("<BR>");
  }
  SchrijfOpmerkingen(paar);
  return opties_.KwBroerZus != BroerZus::Alle || SchrijfBroersZussen(paar);
}

bool KwstSchrijver::SchrijfOuder(Ouder& ouder, Paar& paar) {
  if (!ouder.geschreven) return true;
  if (!LeesOuder(ouder)) return false;
  const int generatie = beginGen_ + tabel_.Generatie(ouder.index);
  if (generatie != huidigeGen_) {
    huidigeGen_ = generatie;
    SchrijfGeneratieKop(generatie);
  }
  uit_.Tag("<BR>");
  SchrijfKop(tabel_.KwNummer(ouder.index).Tekst());
  SchrijfLinks(ouder.index);
  if (ouder.herhaling) {
    uit_.Tekst("= " + tabel_.KwNummer(-tabel_.KwPersoon(ouder.index)).Tekst());
    return true;
  }
  int volgNr = 1;
  if (!verteller_.SchrijfPersoon(ouder.nr)) return false;
  if (!SchrijfAndereRelaties(ouder.nr, paar.relatie, true, volgNr)) return false;
  if (!tabel_.IsMoeder(ouder.index)) paar.volgNr = volgNr;
  return true;
}

// What stands between a father and a mother who are both told.
bool KwstSchrijver::SchrijfHuwelijk(Paar& paar) {
  if (!paar.Beiden()) return true;
  if (!verteller_.LeesRelatie(paar.relatie)) return false;
  paar.opmRecord = bronnen_.relatie.OpmRecord();
  paar.opmCode = bronnen_.relatie.OpmCode();
  if (!ZegtIets(bronnen_.relatie)) return true;
  if (!verteller_.SchrijfRelatie(paar.relatie, paar.volgNr)) return false;
  uit_.Vast(".");
  return true;
}

void KwstSchrijver::SchrijfOpmerkingen(const Paar& paar) {
  for (const Ouder& ouder : {paar.vader, paar.moeder}) {
    if (ouder.Verteld()) {
      verteller_.SchrijfAlgemeneOpm(ouder.opmRecord, ouder.opmCode, kRubriekPersoon);
    }
  }
  if (paar.Beiden()) verteller_.SchrijfAlgemeneOpm(paar.opmRecord, paar.opmCode, kRubriekRelatie);
}

// kept: also those of the mother are left out when the father is a repeat, and not when she is.
bool KwstSchrijver::SchrijfBroersZussen(const Paar& paar) {
  const auto heeft = [&paar](const Ouder& ouder) {
    return ouder.geschreven && ouder.relNrOuders > 0 && !paar.vader.herhaling;
  };
  if (!heeft(paar.vader) && !heeft(paar.moeder)) return true;
  uit_.Tag("<UL>");
  if (heeft(paar.vader) && !SchrijfBroersZussenVan(paar.vader)) return false;
  if (heeft(paar.moeder) && !SchrijfBroersZussenVan(paar.moeder)) return false;
  uit_.Tag("</UL>");
  return true;
}

bool KwstSchrijver::SchrijfBroersZussenVan(const Ouder& ouder) {
  if (!verteller_.LeesRelatie(ouder.relNrOuders)) return false;
  return SchrijfKinderen(ouder, false);
}

}  // namespace lb77
