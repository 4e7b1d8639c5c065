#include "exchange/AsciiSchrijver.h"

#include <array>
#include <cstddef>

#include "store/Rubrieken.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kNummer = 5;
constexpr std::size_t kDatum = 8;
constexpr std::size_t kPlaats = 25;
constexpr std::size_t kVoornaam = 30;
constexpr std::size_t kAchternaam = 25;
constexpr std::size_t kBeroep = 30;
constexpr std::size_t kGezindte = 40;

constexpr std::string_view kKetenfout = ">> ";

// In the order of the fields of a GEDCOM file. kept: of a relation these alone.
constexpr std::array kPersoonVolgorde = {
    persoonrubriek::kVoornaam,   persoonrubriek::kAchternaam, persoonrubriek::kAlgemeen,
    persoonrubriek::kGebDatum,   persoonrubriek::kGebPlaats,  persoonrubriek::kDoopDatum,
    persoonrubriek::kDoopPlaats, persoonrubriek::kReligie,    persoonrubriek::kOvlDatum,
    persoonrubriek::kOvlPlaats,  persoonrubriek::kBegrDatum,  persoonrubriek::kBegrPlaats,
    persoonrubriek::kBeroep};
constexpr std::array kRelatieVolgorde = {
    relatierubriek::kOtrDatum,     relatierubriek::kOtrPlaats, relatierubriek::kWetHuwDatum,
    relatierubriek::kWetHuwPlaats, relatierubriek::kKHuwDatum, relatierubriek::kKHuwPlaats};

constexpr std::array kRelatieZonder = {relatierubriek::kHuwSoort, relatierubriek::kReligie,
                                       relatierubriek::kAlgemeen};

// A line, field by field.
class Veldregel {
 public:
  [[nodiscard]] const std::string& Tekst() const { return regel_; }

  void Nr(std::int16_t nr) { regel_ += Kolom(nr, kNummer, Richting::Rechts); }
  void Tekst(std::string_view tekst, std::size_t breedte) { regel_ += Links(tekst, breedte); }
  void Feit(const GedcomFeit& feit, std::int16_t plaatsNr) {
    regel_ +=
        feit.datum == 0 ? std::string(kDatum, ' ') : Rechts(GetalTekst(feit.datum), kDatum, '0');
    Nr(plaatsNr);
    Tekst(feit.plaats, kPlaats);
  }
  // The number of a record that is selected too.
  void Verwijzing(std::int16_t nr, const SelectieLijst& lijst) {
    if (lijst.Bevat(nr)) {
      Nr(nr);
    } else {
      regel_.append(kNummer, ' ');
    }
  }

 private:
  std::string regel_;
};

std::string Cijfers(std::string_view tekst) {
  return Rechts(tekst, kNummer, '0');
}

// The numbers of the places, which the buffer loses to a continuation record.
struct PersoonPlaatsen {
  explicit PersoonPlaatsen(const PersoonLB77& persoon)
      : geb(persoon.GebPlaatsNr()),
        doop(persoon.DoopPlaatsNr()),
        ovl(persoon.OvlPlaatsNr()),
        begr(persoon.BegrPlaatsNr()) {}

  std::int16_t geb;
  std::int16_t doop;
  std::int16_t ovl;
  std::int16_t begr;
};

struct RelatiePlaatsen {
  explicit RelatiePlaatsen(const RelatieLB77& relatie)
      : otr(relatie.OtrPlaatsNr()), whuw(relatie.WetHuwPlaatsNr()), khuw(relatie.KHuwPlaatsNr()) {}

  std::int16_t otr;
  std::int16_t whuw;
  std::int16_t khuw;
};

}  // namespace

AsciiSchrijver::AsciiSchrijver(const AsciiBronnen& bronnen)
    : bronnen_(bronnen),
      plaatsen_(bronnen.gegevens.plaats),
      opmReeks_(bronnen.gegevens.opmerking) {}

void AsciiSchrijver::Persoon(std::int16_t nr) {
  PersoonLB77& persoon = bronnen_.gegevens.persoon;
  if (!persoon.Lees(nr)) return bronnen_.log.Regel(NietUitgevoerd(kPersoonLeesfout, nr));
  if (persoon.IsVolgRecord()) return;
  const PersoonPlaatsen plaatsNr(persoon);
  const std::string sorteernaam = persoon.AchterNaamVVC();
  const GedcomPersoon p = HaalPersoon(bronnen_.gegevens, plaatsen_, bronnen_.gesprek);
  Veldregel regel;
  regel.Nr(nr);
  regel.Tekst(p.geslacht, 1);
  regel.Tekst(p.voornaam, kVoornaam);
  regel.Tekst(sorteernaam, kAchternaam);
  regel.Tekst(p.gebCorr, 1);
  regel.Feit(p.geb, plaatsNr.geb);
  regel.Feit(p.doop, plaatsNr.doop);
  regel.Tekst(p.religie, kGezindte);
  regel.Tekst(p.ovlCorr, 1);
  regel.Feit(p.ovl, plaatsNr.ovl);
  regel.Tekst(p.crematie ? "C" : "B", 1);
  regel.Feit(p.begr, plaatsNr.begr);
  regel.Tekst(p.beroep, kBeroep);
  regel.Verwijzing(p.ouders, bronnen_.selectie.SelRelaties);
  for (const std::int16_t relatie : p.relaties) {
    regel.Verwijzing(relatie, bronnen_.selectie.SelRelaties);
  }
  bronnen_.personen.Regel(regel.Tekst());
  Opmerkingen({"P" + GetalTekst(nr), p.opmRecord, p.opmCode}, kPersoonVolgorde, {});
}

void AsciiSchrijver::Relatie(std::int16_t nr) {
  RelatieLB77& relatie = bronnen_.gegevens.relatie;
  if (!relatie.Lees(nr)) return bronnen_.log.Regel(NietUitgevoerd(kRelatieLeesfout, nr));
  if (relatie.IsVolgRecord()) return;
  const RelatiePlaatsen plaatsNr(relatie);
  const Eigenaar eigenaar{"R" + GetalTekst(nr), relatie.OpmRecord(), relatie.OpmCode()};
  const GedcomRelatie r = HaalRelatie(bronnen_.gegevens, plaatsen_, bronnen_.gesprek);
  Veldregel regel;
  regel.Nr(nr);
  regel.Verwijzing(r.man, bronnen_.selectie.SelPersonen);
  regel.Verwijzing(r.vrouw, bronnen_.selectie.SelPersonen);
  for (const std::int16_t kind : r.kinderen) {
    regel.Verwijzing(kind, bronnen_.selectie.SelPersonen);
  }
  regel.Feit(r.otr, plaatsNr.otr);
  regel.Tekst(r.huwCorr, 1);
  regel.Feit(r.whuw, plaatsNr.whuw);
  regel.Tekst(r.soort, kGezindte);
  regel.Tekst(r.scheiding ? "S" : "", 1);
  regel.Feit(r.khuw, plaatsNr.khuw);
  regel.Tekst(r.religie, kGezindte);
  bronnen_.relaties.Regel(regel.Tekst());
  Opmerkingen(eigenaar, kRelatieVolgorde, kRelatieZonder);
}

// kept: a number of five digits pushes the letter of its owner out of the field.
void AsciiSchrijver::Opmerkingen(const Eigenaar& eigenaar, std::span<const std::int16_t> rubrieken,
                                 std::span<const std::int16_t> zonder) {
  if (eigenaar.opmRecord == 0) return;
  opmReeks_.Lees(eigenaar.opmRecord);
  for (const std::int16_t rubriek : rubrieken) {
    const OpmReeks::Inhoud inhoud = opmReeks_.Rubriek(eigenaar.opmCode, rubriek);
    const std::string kop = Cijfers(eigenaar.id) + Cijfers(GetalTekst(rubriek));
    tweede_ += inhoud.over;
    std::int32_t nr = 0;
    for (const std::string& tekst : inhoud.regels) {
      std::string regel = kop;
      regel.append(Cijfers(GetalTekst(++nr))).append(tekst);
      if (BegintMet(tekst, kKetenfout)) {
        bronnen_.log.Regel(
            regel + " (opm-reeks start bij opm-record: " + GetalTekst(eigenaar.opmRecord) + ")");
        break;
      }
      bronnen_.opmerkingen.Regel(regel);
    }
  }
  for (const std::int16_t rubriek : zonder) {
    if (opmReeks_.Heeft(eigenaar.opmCode, rubriek)) zonder_ += opmReeks_.Koppen(rubriek).size();
  }
}

// kept: the word for the sources, which there are none of, lacks a letter.
void AsciiSchrijver::LogSlot(const ExpTelling& telling) {
  ExpUitvoer& log = bronnen_.log;
  log.Regel(Totaal(telling.personen, "Personen geëxporteerd"_w));
  log.Regel(Totaal(telling.relaties, "Relaties geëxporteerd"_w));
  log.Regel(Totaal(telling.bronnen, "Bronnen geëxpoteerd"_w));
  log.Regel(kExporterenVoltooid);
  MeldWeggelaten(log, tweede_, kTweedeOpmerking);
  MeldWeggelaten(log, zonder_, "bij de soort of de religie van een huwelijk, of een relatie zelf");
}

}  // namespace lb77
