#include "exchange/GedcomSchrijver.h"

#include <string>
#include <string_view>
#include <utility>

#include "exchange/GedcomKop.h"
#include "exchange/GedcomPersoon.h"
#include "exchange/GedcomRelatie.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"

namespace lb77 {

namespace {

constexpr std::string_view kLetOp[] = {
    "LET OP: Het GEDCOM-bestand is volgens de GEDCOM 5.5-standaard",
    "        uitgevoerd in de zogenaamd ANSEL-tekenset.",
    "        Hiermee worden accentletters universeel uitgewisseld.",
    "        Lijnboom/B77 voor DOS gebruikt ANSI (= DOS-codepage 437)",
    "        wat geen garantie is voor correcte uitwisseling van",
    "        accentletters !!",
    "LET OP: RELI is volgens standaard GEDCOM geen sub-tag van BAPM",
    "        Lijnboom/B77 voor DOS gebruikt RELI wel als sub-tag !!",
    "        Hier is de tag zowel als sub-tag van BAPM als",
    "        zelfstandige tag uitgevoerd.",
    "LET OP: LMAR is gebruikt als GEDCOM-tag voor Soort Huwelijk",
    "        Dit is GEEN standaard GEDCOM-tag, maar een tag",
    "        van Lijnboom/B77 voor DOS !!",
};

}  // namespace

GedcomSchrijver::GedcomSchrijver(const GedBronnen& bronnen, GedKopGegevens kop)
    : bronnen_(bronnen),
      kop_(std::move(kop)),
      plaatsen_(bronnen.gegevens.plaats),
      opmerkingen_(bronnen.gegevens.opmerking, bronnen.uit, bronnen.log),
      vanRelaties_(bronnen.gegevens.opmerking) {}

void GedcomSchrijver::Kop() {
  SchrijfKop(kop_, bronnen_.uit);
}

// kept: the first line comes before anything is known of the record, and stays alone when it is not
// there.
void GedcomSchrijver::Persoon(std::int16_t nr) {
  bronnen_.uit.Regel("0 @I" + GetalTekst(nr) + "@ INDI");
  PersoonLB77& persoon = bronnen_.gegevens.persoon;
  if (!persoon.Lees(nr)) {
    bronnen_.log.Regel(NietUitgevoerd(kPersoonLeesfout, nr));
    return;
  }
  if (persoon.IsVolgRecord()) return;
  const GedcomPersoon p = HaalPersoon(bronnen_.gegevens, plaatsen_, bronnen_.gesprek);
  opmerkingen_.Neem("P" + GetalTekst(nr), p.opmRecord, p.opmCode);
  SchrijfPersoon(p, bronnen_.selectie, bronnen_.uit, opmerkingen_);
}

// kept: the remarks are those of the last person, whose code turns on lines of every relation.
void GedcomSchrijver::Relatie(std::int16_t nr) {
  bronnen_.uit.Regel("0 @F" + GetalTekst(nr) + "@ FAM");
  RelatieLB77& relatie = bronnen_.gegevens.relatie;
  if (!relatie.Lees(nr) || relatie.IsVolgRecord()) return;
  const std::int16_t opmRecord = relatie.OpmCode() == 0 ? std::int16_t{0} : relatie.OpmRecord();
  GedcomRelatie r = HaalRelatie(bronnen_.gegevens, plaatsen_, bronnen_.gesprek);
  r.opmCode = opmerkingen_.Code();
  opmerkingen_.Noem("R" + GetalTekst(nr));
  SchrijfRelatie(r, bronnen_.selectie, bronnen_.uit, opmerkingen_);
  vanRelaties_.Lees(opmRecord);
  bijRelaties_ += vanRelaties_.Aantal();
}

void GedcomSchrijver::Slot() {
  bronnen_.uit.Regel("0 TRLR");
}

// kept: the persons are told twice, and the sources, which there are none of, in a word that lacks
// a letter.
void GedcomSchrijver::LogSlot(const ExpTelling& telling) {
  ExpUitvoer& log = bronnen_.log;
  for (const std::string_view regel : kLetOp) log.Regel(regel);
  for (int keer = 1; keer <= 2; ++keer)
    log.Regel(Totaal(telling.personen, "Personen geëxporteerd"_w));
  log.Regel(Totaal(telling.relaties, "Relaties geëxporteerd"_w));
  log.Regel(Totaal(telling.bronnen, "Bronnen geëxpoteerd"_w));
  log.Regel(kExporterenVoltooid);
  MeldWeggelaten(log, opmerkingen_.Weggelaten(), kTweedeOpmerking);
  MeldWeggelaten(log, opmerkingen_.Overgeslagen(), "bij een doop of begrafenis zonder eigen datum");
  MeldWeggelaten(log, bijRelaties_, "bij een relatie");
}

}  // namespace lb77
