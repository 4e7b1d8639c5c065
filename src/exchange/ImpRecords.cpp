#include "exchange/ImpRecords.h"

#include <algorithm>
#include <array>

#include "exchange/EigenPaden.h"
#include "exchange/EigenWaarde.h"
#include "exchange/GedRegel.h"
#include "exchange/OpmTags.h"
#include "store/PlaatsVelden.h"
#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kSchema = "SUBM-SCHEMA";
constexpr std::string_view kVoorvoegsel = "INDI-NAME-SPFX";
// Whose value is no loss: the third pass has it, the name holds it too, or it tells of the file.
constexpr std::array<std::string_view, 3> kZonderVerlies = {"ADDR", "SPFX", "DATE"};

bool IsVoorOpmerkingen(std::string_view tag) {
  return tag == "NOTE" || IsVervolgTag(tag) || WordtOpmerking(tag) || HoortBijOpmerking(tag);
}

}  // namespace

ImpRecords::ImpRecords(ImpLoop& loop)
    : loop_(loop),
      persoon_(loop),
      relatie_(loop),
      persoonPaden_(AllePersoonPaden()),
      relatiePaden_(AlleRelatiePaden()),
      overigePaden_(AlleOverigePaden()) {}

ImpUitslag ImpRecords::Voer(RegelLezer& lezer) {
  loop_.BeginGang();
  std::string_view regel;
  while (!einde_ && lezer.Volgende(regel)) {
    loop_.TelRegel();
    const GedDelen delen = loop_.Ontleed(regel);
    const bool goed = delen.fout.empty();
    if (goed) pad_.Zet(delen.level, delen.tag);
    if (!goed || !(delen.level == 0 ? NeemKop(delen) : NeemRegel(delen))) {
      // The record at hand may be stored in part, or not at all.
      MerkVanaf(kop_ + 1);
      return {.fout = std::string(delen.fout), .gestopt = goed, .regel = loop_.stand.regels};
    }
  }
  // Without an end the last record keeps no field.
  if (!einde_ && (InPersoon() || InRelatie())) MerkVanaf(kop_ + 1);
  return {};
}

void ImpRecords::MerkVanaf(std::int32_t regel) {
  for (; regel <= loop_.stand.regels; ++regel) loop_.merken.Zet(regel);
}

bool ImpRecords::NeemKop(const GedDelen& delen) {
  if (!BewaarRecord()) return false;
  kop_ = loop_.stand.regels;
  id_ = delen.id;
  prov_.clear();
  if (!Trim(delen.waarde).empty()) loop_.Merk();
  return BeginRecord(loop_.Kop(delen));
}

bool ImpRecords::BewaarRecord() {
  if (InPersoon()) {
    persoon_.RondAf();
    return persoon_.Bewaar();
  }
  return !InRelatie() || relatie_.Bewaar();
}

bool ImpRecords::BeginRecord(GedSoort soort) {
  einde_ = soort == GedSoort::Einde;
  if (soort == GedSoort::Persoon) return persoon_.Begin(loop_.PersoonNr());
  return soort != GedSoort::Relatie || relatie_.Begin(loop_.RelatieNr());
}

ImpRecords::Groep ImpRecords::GroepVan(std::string_view ouder) {
  if (ouder.starts_with('I')) return Groep::Persoon;
  return ouder.starts_with('F') ? Groep::Relatie : Groep::Overig;
}

bool ImpRecords::NeemRegel(GedDelen delen) {
  if (delen.tag == "_ORIG") {
    delen.tag = "BIRT";
    pad_.Zet(delen.level, delen.tag);
  }
  if (NoemGebeurtenis(pad_, delen)) return true;
  if (IsVoorOpmerkingen(delen.tag)) {
    // An adoption is told by what stands below it.
    if (delen.tag != "ADOP" || !Trim(delen.waarde).empty()) loop_.Merk();
    return true;
  }
  const std::string& ouder = pad_.Ouder(delen.level);
  const std::string& pad = pad_.Van(delen.level);
  if (ouder == kSchema) {
    loop_.Merk();
    LogEenmaal(schemaGemeld_, " - SCHEMA tags worden niet geïnterpreteerd: "_w, pad);
    return true;
  }
  const Groep groep = GroepVan(ouder);
  // A level that was skipped may leave a path of a record that is not being built any more.
  if (groep == Groep::Persoon && InPersoon()) {
    if (const auto* rij = persoonPaden_.Zoek(pad)) {
      if (rij->actie == PersoonActie::Niets) {
        TelTekst(delen);
        if (rij->pad != kVoorvoegsel) MerkNiets(delen);
      }
      return persoon_.Neem(*rij, delen.waarde);
    }
  } else if (groep == Groep::Relatie && InRelatie()) {
    if (const auto* rij = relatiePaden_.Zoek(pad)) {
      if (rij->actie == RelatieActie::Niets) {
        TelTekst(delen);
        MerkNiets(delen);
      }
      return relatie_.Neem(*rij, delen.waarde, persoon_.LaatsteOvlCorr());
    }
  } else if (const auto* rij = overigePaden_.Zoek(pad)) {
    NeemOverig(rij->actie, delen.waarde);
    if (WordtNietBewaard(rij->actie)) MerkNiets(delen);
    return true;
  }
  if (loop_.eigen && IsBekendInEigen(pad)) return true;
  loop_.Merk();
  LogOnbekend(groep, delen);
  return true;
}

bool ImpRecords::WordtNietBewaard(OverigeActie actie) {
  return actie == OverigeActie::Niets || actie == OverigeActie::BronNaam;
}

// A line that is passed over is a loss when it says anything by itself.
void ImpRecords::MerkNiets(const GedDelen& delen) {
  if (!Trim(delen.waarde).empty()) loop_.Merk();
}

// A line that is there for those below it has no value but Y: the event took place.
void ImpRecords::TelTekst(const GedDelen& delen) {
  const std::string_view waarde = Trim(delen.waarde);
  if (waarde.empty() || waarde == "Y") return;
  if (std::ranges::find(kZonderVerlies, delen.tag) != kZonderVerlies.end()) return;
  loop_.TelVerlies(Verlies::Tekst);
}

void ImpRecords::NeemOverig(OverigeActie actie, std::string_view waarde) {
  switch (actie) {
    case OverigeActie::Tekenset:
      if (!loop_.omgezet) loop_.tekenset = GedTekensetVan(waarde);
      break;
    case OverigeActie::BronNaam:
      loop_.stand.bron = loop_.GedTekst(waarde);
      break;
    case OverigeActie::EigenVorm:
      loop_.eigen = true;
      break;
    case OverigeActie::PlaatsProv:
      NeemProv(loop_.GedTekst(Trim(waarde)));
      break;
    case OverigeActie::PlaatsNaam:
      loop_.NeemPlaatsRecord(id_, loop_.GedTekst(Trim(waarde)), prov_);
      break;
    case OverigeActie::Niets:
      break;
  }
}

void ImpRecords::NeemProv(const std::string& prov) {
  if (!MagInVeld(plaatsveld::Prov.naam, prov)) return loop_.Merk();
  loop_.MerkEigen(prov, plaatsveld::Prov.breedte);
  prov_ = prov;
}

void ImpRecords::LogEenmaal(bool& gemeld, std::string_view tekst, std::string_view pad) {
  if (!gemeld) loop_.Log(std::string(tekst).append(pad));
  gemeld = true;
}

void ImpRecords::LogOnbekend(Groep groep, const GedDelen& delen) {
  const std::string& pad = pad_.Van(delen.level);
  const bool isPersoon = groep == Groep::Persoon;
  if (delen.tag.starts_with('_')) {
    const std::string_view nog = isPersoon ? "" : "(nog) ";
    const std::string tekst =
        " - Eigen tags van externe programma's worden " + std::string(nog) + "niet ondersteund: ";
    LogEenmaal(eigenTagGemeld_, tekst, pad);
  } else if (isPersoon ? pad.ends_with("EVEN") : delen.tag == "EVEN") {
    // kept: the misspelling for persons and relations, by which users know the line
    LogEenmaal(eventGemeld_,
               groep == Groep::Overig ? " - EVENT tags worden opgeslagen als ALGEMENE OPMERKING: "
                                      : " - EVENT tags worden opgelsagen als ALGEMENE OPMERKING: ",
               pad);
  } else {
    loop_.Log(" - Onbekende tag: " + pad + " : " + std::string(delen.waarde));
  }
}

}  // namespace lb77
