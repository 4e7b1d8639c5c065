#include "descendants/GezinSchrijver.h"

#include <cstddef>

#include "output/DatumZin.h"
#include "text/Namen.h"

namespace lb77 {
namespace {

namespace prs = persoonrubriek;
namespace rel = relatierubriek;

// Other programs have their family sheet at the second bit.
constexpr int kOpmMasker = uitvoer::kGezinsblad | 16;

constexpr int kKindMarge = 4;
constexpr int kGegevensMarge = 2;
constexpr std::size_t kNummerBreedte = 5;

constexpr NaarGeslacht kNaamlozen{"een man", "een vrouw", "een persoon"};
constexpr NaarGeslacht kKindVan{"zn. v.", "dr. v.", "kind v."};

ZinOpties ZinOptiesVan(const GezinOpties& opties) {
  ZinOpties zin;
  zin.ookOpm = opties.GezinOokOpm;
  zin.ookNrs = opties.GezinOokNrs;
  zin.opmMasker = kOpmMasker;
  return zin;
}

}  // namespace

GezinSchrijver::GezinSchrijver(const GezinOpties& opties, const Gegevens& bronnen,
                               TekstSchrijver& uit)
    : opties_(opties),
      bronnen_(bronnen),
      uit_(uit),
      verteller_(bronnen, uit, ZinOptiesVan(opties)),
      delen_(bronnen, opties) {}

Uitslag GezinSchrijver::Schrijf() {
  const auto hoofd = LeesPersoonBlik(bronnen_.persoon, opties_.GezinHoofdNr);
  SchrijfGezinsHoofd(opties_.GezinHoofdNr, true);
  if (opties_.HuidigRelatieNr > 0) return SchrijfGezin(hoofd && hoofd->IsMan());
  EindeMetLeeg(2);
  uit_.VolleRegel(kGeenRelatie);
  return Einde::Klaar;
}

Uitslag GezinSchrijver::SchrijfGezin(bool hoofdIsMan) {
  const std::int16_t relNr = opties_.HuidigRelatieNr;
  if (!verteller_.LeesRelatie(relNr)) return verteller_.Fout();
  const GezinBlik gezin = GezinVan(bronnen_.relatie, relNr, opties_.GezinHoofdNr, hoofdIsMan);
  SchrijfVerbintenis(gezin);
  EindeMetLeeg(1);
  if (gezin.partner == 0) {
    uit_.Vast(kNietBekend);
  } else {
    SchrijfGezinsHoofd(gezin.partner, false);
  }
  EindeMetLeeg(2);
  SchrijfKinderen(LeesKinderen(bronnen_.relatie, relNr));
  return Einde::Klaar;
}

void GezinSchrijver::SchrijfGezinsHoofd(std::int16_t nr, bool metRelatie) {
  const auto persoon = LeesPersoonBlik(bronnen_.persoon, nr);
  if (!persoon) {
    uit_.Vast(kOnleesbaar);
    return;
  }
  const Eigenaar van{persoon->opmRecord, persoon->opmCode};
  SchrijfNamen(van, *persoon, metRelatie);
  SchrijfLeven(van, *persoon);
  verteller_.SchrijfAlgemeneOpm(van.opmRecord, van.opmCode, kRubriekPersoon);
  SchrijfBladOuders(*persoon);
}

void GezinSchrijver::SchrijfNamen(const Eigenaar& van, const PersoonBlik& persoon,
                                  bool metRelatie) {
  const bool naamloos = persoon.voornaam.empty() && persoon.achternaam.empty();
  uit_.Vast(naamloos ? kNaamlozen.Voor(persoon) : persoon.voornaam);
  SchrijfOpm(van, prs::kVoornaam);
  Los(persoon.achternaam);
  Los(delen_.Nummer(persoon.nr));
  if (metRelatie) uit_.Vast(delen_.RelatieNummer());
  SchrijfOpm(van, prs::kAchternaam);
}

void GezinSchrijver::SchrijfLeven(const Eigenaar& van, const PersoonBlik& persoon) {
  const Levensloop& leven = persoon.leven;
  SchrijfPaar(van, GeboortePaar(leven, "ged." + delen_.GezindteVan(leven.religie)),
              {{0, prs::kGebPlaats, prs::kGebDatum},
               {prs::kReligie, prs::kDoopPlaats, prs::kDoopDatum},
               {},
               {}},
              true);
  SchrijfPaar(
      van, OverlijdenPaar(leven),
      {{0, prs::kOvlPlaats, prs::kOvlDatum}, {0, prs::kBegrPlaats, prs::kBegrDatum}, {}, {}}, true);
  if (!persoon.beroep.empty()) OpNieuweRegel(persoon.beroep);
  SchrijfOpm(van, prs::kBeroep);
}

void GezinSchrijver::SchrijfBladOuders(const PersoonBlik& persoon) {
  if (persoon.relNrOuders <= 0) return;
  if (!bronnen_.relatie.Lees(persoon.relNrOuders)) {
    OpNieuweRegel(kKindVan.Voor(persoon));
    Los(kOnleesbaar);
    return;
  }
  const std::int16_t vader = bronnen_.relatie.ManNr();
  const std::int16_t moeder = bronnen_.relatie.VrouwNr();
  if (vader == 0 && moeder == 0) return;
  OpNieuweRegel(kKindVan.Voor(persoon));
  if (vader != 0) Los(delen_.Naam(vader));
  if (vader != 0 && moeder != 0) Los("en van");
  if (moeder != 0) Los(delen_.Naam(moeder));
}

// kept: every bond is told as a marriage, and a divorce under the label of the church.
void GezinSchrijver::SchrijfVerbintenis(const GezinBlik& gezin) {
  const Eigenaar van{gezin.opmRecord, gezin.opmCode};
  const Verbintenis& bond = gezin.verbintenis;
  if (bond.ondertrouw.Bekend()) {
    OpNieuweRegel("ondertr.");
    SchrijfGebeurtenis(van, bond.ondertrouw, {}, {}, {0, rel::kOtrPlaats, rel::kOtrDatum});
  }
  SchrijfPaar(van, {"tr.", "tr.k.", bond.wettig, bond.kerk, bond.corr},
              {{rel::kHuwSoort, rel::kWetHuwPlaats, rel::kWetHuwDatum},
               {0, rel::kKHuwPlaats, rel::kKHuwDatum},
               delen_.GezindteVan(bond.huwSoort),
               delen_.GezindteVan(bond.religie)},
              true);
  verteller_.SchrijfAlgemeneOpm(van.opmRecord, van.opmCode, kRubriekRelatie);
}

void GezinSchrijver::SchrijfKinderen(const KinderenBlik& kinderen) {
  if (opties_.GezinSoort == BladSoort::Compact && opties_.GezinOokNrs) SchrijfKindNummers(kinderen);
  uit_.Vast("Kinderen:");
  for (std::size_t plaats = 1; plaats < kinderen.plaatsen.size(); ++plaats) {
    const std::int16_t kind = kinderen.plaatsen[plaats];
    if (kind > 0) SchrijfKind(static_cast<int>(plaats), kind);
  }
  if (!kinderen.heel) OpNieuweRegel(kOnleesbaar);
  uit_.EindeRegel();
}

// In one call: the writer takes blanks at the end of a call for those between two words.
void GezinSchrijver::SchrijfKindNummers(const KinderenBlik& kinderen) {
  uit_.VolleRegel("Persoonsnummers van kinderen :");
  std::string nummers;
  for (const std::int16_t nr : kinderen.Lijst()) {
    if (!nummers.empty()) nummers += ' ';
    nummers += Kolom(nr, kNummerBreedte, Richting::Rechts);
  }
  if (!nummers.empty()) uit_.VolleRegel(nummers);
}

void GezinSchrijver::SchrijfKind(int plaats, std::int16_t nr) {
  OpNieuweRegel(Kolom(plaats, 2, Richting::Rechts) + ". ");
  uit_.ZetMarge(false, kKindMarge);
  if (const auto kind = LeesPersoonBlik(bronnen_.persoon, nr)) {
    uit_.Vast(delen_.KindNaam(*kind));
    Los(delen_.Nummer(nr));
    SchrijfKindLeven(*kind);
  } else {
    uit_.Vast(kOnleesbaar);
  }
  uit_.ZetMarge(false, -kKindMarge);
}

void GezinSchrijver::SchrijfKindLeven(const PersoonBlik& kind) {
  SchrijfKindPaar(
      kind, GeboortePaar(kind.leven, "ged." + delen_.GezindteVan(kind.leven.religie)),
      {{0, prs::kGebPlaats, prs::kGebDatum}, {0, prs::kDoopPlaats, prs::kDoopDatum}, {}, {}});
  SchrijfKindPaar(
      kind, OverlijdenPaar(kind.leven),
      {{0, prs::kOvlPlaats, prs::kOvlDatum}, {0, prs::kBegrPlaats, prs::kBegrDatum}, {}, {}});
  for (const KindHuwelijk& huwelijk : delen_.Huwelijken(kind.nr)) {
    // The margin rises behind the line: a short name would lie to the left of it.
    uit_.EindeRegel();
    uit_.ZetMarge(false, kGegevensMarge);
    uit_.Vast("tr." + huwelijk.volgNr);
    Los(huwelijk.partner);
    uit_.ZetMarge(false, -kGegevensMarge);
  }
}

// kept: a baptism is told with its birth, and a burial with its death, never by itself.
void GezinSchrijver::SchrijfKindPaar(const PersoonBlik& kind, const Gebeurtenispaar& paar,
                                     const PaarRubrieken& rubrieken) {
  if (!paar.een.Bekend()) return;
  const int gevraagd = RubriekBits(rubrieken.een.plaats, rubrieken.een.datum, rubrieken.twee.plaats,
                                   rubrieken.twee.datum);
  uit_.EindeRegel();
  uit_.ZetMarge(false, kGegevensMarge);
  if (opties_.GezinOokOpm && (kind.opmCode & gevraagd) != 0) {
    SchrijfPaar({kind.opmRecord, kind.opmCode}, paar, rubrieken, false);
  } else {
    uit_.Vast(delen_.Zin(paar));
  }
  uit_.ZetMarge(false, -kGegevensMarge);
}

// A range of which a bound is missing is none: the events are told by themselves then.
void GezinSchrijver::SchrijfPaar(const Eigenaar& van, const Gebeurtenispaar& paar,
                                 const PaarRubrieken& rubrieken, bool eigenRegels) {
  const bool span = paar.IsSpan();
  const bool halveSpan = !span && IsCode(paar.corr, correctie::kTussen);
  if (paar.een.Bekend()) {
    if (eigenRegels) uit_.EindeRegel();
    uit_.Vast(paar.label1);
    SchrijfGebeurtenis(van, paar.een, rubrieken.soort1,
                       halveSpan ? std::string_view{} : std::string_view(paar.corr), rubrieken.een);
  }
  if (span) return SchrijfTot(van, paar.twee, rubrieken.twee);
  if (!paar.twee.Bekend()) return;
  if (eigenRegels) {
    OpNieuweRegel(paar.label2);
  } else {
    uit_.Vast(", " + paar.label2);
  }
  SchrijfGebeurtenis(van, paar.twee, rubrieken.soort2, {}, rubrieken.twee);
}

void GezinSchrijver::SchrijfGebeurtenis(const Eigenaar& van, const Gebeurtenis& gebeurtenis,
                                        std::string_view soort, std::string_view corr,
                                        const Rubrieken& rubrieken) {
  Los(soort);
  SchrijfOpm(van, rubrieken.label);
  Los(bronnen_.plaats.Naam2(gebeurtenis.plaatsNr));
  SchrijfOpm(van, rubrieken.plaats);
  SchrijfDatum(gebeurtenis, corr);
  SchrijfOpm(van, rubrieken.datum);
}

// The end of a span. It has no place, but what was remarked of one is not lost.
void GezinSchrijver::SchrijfTot(const Eigenaar& van, const Gebeurtenis& einde,
                                const Rubrieken& rubrieken) {
  Los("en");
  SchrijfDatum(einde, {});
  SchrijfOpm(van, rubrieken.label);
  SchrijfOpm(van, rubrieken.plaats);
  SchrijfOpm(van, rubrieken.datum);
}

void GezinSchrijver::SchrijfDatum(const Gebeurtenis& gebeurtenis, std::string_view corr) {
  if (!gebeurtenis.DatumBekend()) return;
  if (IsCode(corr, correctie::kTussen)) Los("tussen");
  Los(KaleDatum(gebeurtenis.dagMaand, gebeurtenis.jaar, corr, bronnen_.schrijfwijze.DatumScheider));
}

void GezinSchrijver::SchrijfOpm(const Eigenaar& van, int rubriek) {
  if (rubriek != 0) verteller_.SchrijfRubriekOpm(van.opmRecord, van.opmCode, rubriek, false);
}

void GezinSchrijver::OpNieuweRegel(std::string_view tekst) {
  uit_.EindeRegel();
  uit_.Vast(tekst);
}

void GezinSchrijver::EindeMetLeeg(int aantal) {
  uit_.EindeRegel();
  for (int i = 0; i < aantal; ++i) uit_.LegeRegel();
}

void GezinSchrijver::Los(std::string_view tekst) {
  if (!tekst.empty()) uit_.Tekst(tekst);
}

}  // namespace lb77
