#include "output/Zinsbouw.h"

#include "output/DatumZin.h"
#include "output/HuwVorm.h"
#include "store/Codes.h"
#include "store/Rubrieken.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"

namespace lb77 {

// The rubrics of one event; 0 where no remark can follow.
struct Zinsbouw::Rubrieken {
  int label = 0;
  int plaats = 0;
  int datum = 0;

  [[nodiscard]] int Alle() const { return label | plaats | datum; }
};

// Birth with baptism, or death with burial.
struct Zinsbouw::Levenspaar {
  std::string label1;
  std::string label2;
  std::string label2InPaar;  // in the phrase of both
  std::string corr;
  Gebeurtenis een;
  Gebeurtenis twee;
  Rubrieken rubrieken1;
  Rubrieken rubrieken2;
  int uiteenBij = 0;  // the remarks that part the two
};

struct Zinsbouw::Huwelijk : Verbintenis {
  std::string label1;
  std::string label2;
  std::string voorvoegsel;
  unsigned bekend = 0;
};

namespace {

namespace rubriek = persoonrubriek;

constexpr std::string_view kOndertrouwLabel = "ondertr.";

std::string MetKomma(std::string_view tekst, std::string_view erachter = {}) {
  return std::string(", ").append(tekst).append(erachter);
}

std::string BondLabel(const Verbintenis& verbintenis) {
  if (verbintenis.bond.empty()) return "tr.";
  return IsCode(verbintenis.bond, bond::kSamenwonen) ? "samenwonend" : "partnerschap";
}

}  // namespace

std::string Zinsbouw::Datum(const Gebeurtenis& gebeurtenis, std::string_view corr) const {
  return KaleDatum(gebeurtenis.dagMaand, gebeurtenis.jaar, corr,
                   bronnen_.schrijfwijze.DatumScheider);
}

void Zinsbouw::PlaatsVan(const Gebeurtenis& gebeurtenis, int rubriek) {
  if (gebeurtenis.plaatsNr != 0) uit_.Los(bronnen_.plaats.Naam2(gebeurtenis.plaatsNr));
  uit_.Rubriek(rubriek);
}

void Zinsbouw::DatumVan(const Gebeurtenis& gebeurtenis, std::string_view corr, int rubriek) {
  if (gebeurtenis.DatumBekend()) uit_.Los(Datum(gebeurtenis, corr));
  uit_.Rubriek(rubriek);
}

void Zinsbouw::Alleen(std::string_view label, const Gebeurtenis& gebeurtenis, std::string_view corr,
                      const Rubrieken& rubrieken) {
  uit_.Aan(MetKomma(label));
  uit_.Rubriek(rubrieken.label);
  PlaatsVan(gebeurtenis, rubrieken.plaats);
  DatumVan(gebeurtenis, corr, rubrieken.datum);
}

// Two dates that are the bounds of one span.
void Zinsbouw::Tussen(std::string_view label, const Gebeurtenis& begin,
                      const Rubrieken& rubriekenBegin, const Gebeurtenis& einde,
                      const Rubrieken& rubriekenEinde) {
  uit_.Aan(MetKomma(label));
  uit_.Rubriek(rubriekenBegin.label);
  PlaatsVan(begin, rubriekenBegin.plaats);
  uit_.Los("tussen");
  DatumVan(begin, {}, rubriekenBegin.datum);
  uit_.Los("en");
  PlaatsVan(einde, rubriekenEinde.plaats);
  DatumVan(einde, {}, rubriekenEinde.datum);
}

void Zinsbouw::Leven(int opmCode) {
  const Levensloop leven = LevensloopVan(bronnen_.persoon);
  const std::string beroep = bronnen_.persoon.beroep();
  GeboorteEnDoop(leven, opmCode);
  if (!beroep.empty()) uit_.Aan(MetKomma(beroep));
  uit_.Rubriek(persoonrubriek::kBeroep);
  OverlijdenEnBegraven(leven, opmCode);
}

void Zinsbouw::GeboorteEnDoop(const Levensloop& leven, int opmCode) {
  const std::string gedoopt = "ged." + GezindteNaam(leven.religie, bronnen_.schrijfwijze.gezindten);
  Levenspaar paar;
  paar.label1 = "geb.";
  paar.label2 = paar.label2InPaar = gedoopt;
  paar.corr = leven.gebCorr;
  paar.een = leven.geboorte;
  paar.twee = leven.doop;
  paar.rubrieken1 = {0, rubriek::kGebPlaats, rubriek::kGebDatum};
  paar.rubrieken2 = {rubriek::kReligie, rubriek::kDoopPlaats, rubriek::kDoopDatum};
  // kept: a remark on the denomination parts nothing
  paar.uiteenBij = RubriekBits(rubriek::kGebPlaats, rubriek::kGebDatum, rubriek::kDoopPlaats,
                               rubriek::kDoopDatum);
  Paar(paar, opmCode);
}

void Zinsbouw::OverlijdenEnBegraven(const Levensloop& leven, int opmCode) {
  Levenspaar paar;
  paar.label1 = "overl.";
  paar.label2 = leven.crematie ? "crematie" : "begr.";
  paar.label2InPaar = "begr.";  // kept: also for a cremation
  paar.corr = leven.ovlCorr;
  paar.een = leven.overlijden;
  paar.twee = leven.begrafenis;
  paar.rubrieken1 = {0, rubriek::kOvlPlaats, rubriek::kOvlDatum};
  paar.rubrieken2 = {0, rubriek::kBegrPlaats, rubriek::kBegrDatum};
  paar.uiteenBij = paar.rubrieken1.Alle() | paar.rubrieken2.Alle();
  Paar(paar, opmCode);
}

void Zinsbouw::Paar(const Levenspaar& paar, int opmCode) {
  if ((opmCode & paar.uiteenBij) != 0) {
    PaarUiteen(paar);
    return;
  }
  const std::string zin =
      DatumZin(DelenVan(paar.label1, paar.een, paar.corr, paar.label2InPaar, paar.twee),
               bronnen_.plaats, bronnen_.schrijfwijze.DatumScheider);
  if (!zin.empty()) uit_.Aan(MetKomma(zin));
}

// A range of which a bound is missing is none: the events are told by themselves then.
void Zinsbouw::PaarUiteen(const Levenspaar& paar) {
  if (IsCode(paar.corr, correctie::kTussen) && paar.een.DatumBekend() && paar.twee.DatumBekend()) {
    Tussen(paar.label1, paar.een, paar.rubrieken1, paar.twee, paar.rubrieken2);
    return;
  }
  const std::string_view corr =
      IsCode(paar.corr, correctie::kTussen) ? std::string_view{} : paar.corr;
  if (paar.een.Bekend()) Alleen(paar.label1, paar.een, corr, paar.rubrieken1);
  if (paar.twee.Bekend()) Alleen(paar.label2, paar.twee, {}, paar.rubrieken2);
}

namespace {

using relatierubriek::kHuwSoort;
using relatierubriek::kKHuwDatum;
using relatierubriek::kKHuwPlaats;
using relatierubriek::kOtrDatum;
using relatierubriek::kOtrPlaats;
using relatierubriek::kWetHuwDatum;
using relatierubriek::kWetHuwPlaats;

// What may be remarked of each marriage event.
constexpr int kOtrBits = RubriekBits(kOtrPlaats, kOtrDatum);
constexpr int kWetBits = RubriekBits(kWetHuwPlaats, kWetHuwDatum, kHuwSoort);
constexpr int kKerkBits = RubriekBits(kKHuwPlaats, kKHuwDatum);

}  // namespace

Zinsbouw::Huwelijk Zinsbouw::LeesHuwelijk(int opmCode) const {
  Huwelijk uit{VerbintenisVan(bronnen_.relatie), {}, {}, {}, 0};
  uit.label1 = BondLabel(uit);
  uit.label2 = uit.scheiding ? "sch." : "tr.kerk";
  if (uit.ondertrouw.Bekend() || (opmCode & kOtrBits) != 0) uit.bekend |= huw::kOndertrouw;
  if (uit.wettig.Bekend() || (opmCode & kWetBits) != 0) uit.bekend |= huw::kWettig;
  if (uit.kerk.Bekend() || (opmCode & kKerkBits) != 0) uit.bekend |= huw::kKerk;
  return uit;
}

void Zinsbouw::Relatie(int opmCode, std::string_view voorvoegsel, std::string_view toonTrouw) {
  Huwelijk huwelijk = LeesHuwelijk(opmCode);
  huwelijk.voorvoegsel = voorvoegsel;
  if (huwelijk.bekend == 0) {
    uit_.Aan(MetKomma(huwelijk.label1, voorvoegsel));
    return;
  }
  const Gezindten& gezindten = bronnen_.schrijfwijze.gezindten;
  huwelijk.label1 += GezindteNaam(huwelijk.huwSoort, gezindten);
  huwelijk.label2 += GezindteNaam(huwelijk.religie, gezindten);
  const bool tussen = IsCode(huwelijk.corr, correctie::kTussen);
  if (tussen && huwelijk.wettig.DatumBekend() && huwelijk.kerk.DatumBekend()) {
    // kept: the banns do not take the number of the relation away from the marriage.
    if ((huwelijk.bekend & huw::kOndertrouw) != 0) Ondertrouw(huwelijk);
    Tussen(huwelijk.label1 + huwelijk.voorvoegsel, huwelijk.wettig,
           {kHuwSoort, kWetHuwPlaats, kWetHuwDatum}, huwelijk.kerk, {0, kKHuwPlaats, kKHuwDatum});
    return;
  }
  if (tussen) huwelijk.corr.clear();
  Huwelijken(huwelijk, opmCode, toonTrouw);
}

void Zinsbouw::Ondertrouw(const Huwelijk& huwelijk) {
  Alleen(std::string(kOndertrouwLabel) + huwelijk.voorvoegsel, huwelijk.ondertrouw, {},
         {0, kOtrPlaats, kOtrDatum});
}

// In the order banns, civil, church; a pair comes behind what is told by itself.
void Zinsbouw::Huwelijken(Huwelijk& huwelijk, int opmCode, std::string_view toonTrouw) {
  const HuwVorm vorm = KiesHuwVorm(huwelijk.bekend, opmCode, toonTrouw);
  if ((vorm.alleen & huw::kOndertrouw) != 0) {
    Ondertrouw(huwelijk);
    huwelijk.voorvoegsel.clear();
  }
  if ((vorm.alleen & huw::kWettig) != 0) {
    Alleen(huwelijk.label1 + huwelijk.voorvoegsel, huwelijk.wettig, huwelijk.corr,
           {kHuwSoort, kWetHuwPlaats, kWetHuwDatum});
    huwelijk.voorvoegsel.clear();
  }
  if ((vorm.alleen & huw::kKerk) != 0) {  // kept: a pair behind it has the number again
    Alleen(huwelijk.label2 + huwelijk.voorvoegsel, huwelijk.kerk, {}, {0, kKHuwPlaats, kKHuwDatum});
  }
  if (vorm.samen != 0) Samen(huwelijk, vorm.samen);
}

void Zinsbouw::Samen(const Huwelijk& huwelijk, unsigned samen) {
  const bool metOndertrouw = (samen & huw::kOndertrouw) != 0;
  const bool metKerk = (samen & huw::kKerk) != 0;
  const Gebeurtenis& een = metOndertrouw ? huwelijk.ondertrouw : huwelijk.wettig;
  const Gebeurtenis& twee = metKerk ? huwelijk.kerk : huwelijk.wettig;
  // kept: only the pair of civil and church marriage tells the correction of the date.
  DatumZinDelen delen = DelenVan(metOndertrouw ? kOndertrouwLabel : huwelijk.label1, een,
                                 metOndertrouw ? std::string_view{} : huwelijk.corr,
                                 metKerk ? huwelijk.label2 : huwelijk.label1, twee);
  delen.Woord = huwelijk.voorvoegsel;
  uit_.Aan(MetKomma(DatumZin(delen, bronnen_.plaats, bronnen_.schrijfwijze.DatumScheider)));
  // kept: a report tells the general remark here, and again on lines of its own
  uit_.Rubriek(relatierubriek::kAlgemeen);
}

std::string RelatieVoorvoegsel(std::int16_t relNr, int volgNr, bool isEerste, bool ookNrs) {
  std::string uit;
  if (!isEerste) uit = "(" + GetalTekst(volgNr) + ")";
  if (ookNrs) uit += " [" + GetalTekst(relNr) + "]";
  return uit;
}

}  // namespace lb77
