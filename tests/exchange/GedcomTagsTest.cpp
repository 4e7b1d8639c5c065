// The tags of an export, held against the standard and against the tables of our own import.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "exchange/FaalUitvoer.h"
#include "exchange/Ged551Toets.h"
#include "exchange/Ged551Vulling.h"
#include "exchange/GedcomKeuring.h"
#include "exchange/GedcomSchrijver.h"
#include "exchange/OverigePaden.h"
#include "exchange/Padtabel.h"
#include "exchange/PersoonPaden.h"
#include "exchange/RelatiePaden.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

// As the file has it.
std::string Bytes(ProefSet& set) {
  const ExpSelectie selectie = AllesVan(set);
  FaalUitvoer uit;
  FaalUitvoer log;
  GedcomSchrijver schrijver(
      {{set.Persoon, set.Relatie, set.Plaats, set.Opmerking, set.volgers, set.schrijfwijze},
       selectie,
       set.gesprek,
       uit,
       log},
      {.nu = {2026, 11, 2, 9, 5, 7},
       .bestandsnaam = "UIT.GED",
       .set = "PROEF",
       .inzender = {.voornaam = "Jan",
                    .naam = "Bos",
                    .adres = "Markt 1",
                    .postcode = "1234 AB",
                    .plaats = "Breda",
                    .land = "Nederland",
                    .telefoon = "076"}});
  const ExpVerloop verloop{.doorgaan = [] { return true; }, .toon = [](const ExpTelling&) {}};
  schrijver.LogSlot(LoopSelectie(schrijver, selectie, verloop));
  std::string bytes;
  for (const char teken : uit.Regels()) bytes.append(teken == '\n' ? "\r" : "").append(1, teken);
  return bytes;
}

// A family that has every line of the export, with a remark at each element.
void MaakAlles(ProefSet& set) {
  BouwFamilie& bouw = set.bouw;
  const std::string plaats = std::to_string(bouw.Plaats("Breda"));
  const std::initializer_list<VeldWaarde> velden = {
      {"GebDatum", "12-03-1890"}, {"GebPlaats", plaats},       {"DoopDatum", "14-03-1890"},
      {"DoopPlaats", plaats},     {"DoopReligie", "RK"},       {"OvlDatum", "01-01-1950"},
      {"OvlPlaats", plaats},      {"BegrDatum", "04-01-1950"}, {"BegrPlaats", plaats},
      {"Beroep", "smid"}};
  const std::int16_t man = bouw.Man("Jan", "van Dam", velden);
  const std::int16_t vrouw = bouw.Vrouw("An", "van den Bos", velden);
  bouw.WijzigPersoon(vrouw, {{"BegrCrem", "1"}});
  const std::int16_t kind = bouw.Man("Piet", "van Dam");
  for (const RubriekNaam& naam : kPersoonRubrieken) {
    bouw.OpmerkingBijPersoon(man, naam.rubriek, {"een", "twee"});
    bouw.OpmerkingBijPersoon(vrouw, naam.rubriek, {"een", "twee"});
  }
  const std::initializer_list<VeldWaarde> huwelijk = {
      {"OtrDatum", "01-04-1910"}, {"OtrPlaats", plaats}, {"WHuwDatum", "20-04-1910"},
      {"WHuwPlaats", plaats},     {"HuwSoort", "NH"},    {"KHuwDatum", "21-04-1910"},
      {"KHuwPlaats", plaats},     {"Religie", "RK"}};
  static_cast<void>(bouw.Relatie(man, vrouw, {kind}, huwelijk));
  bouw.WijzigRelatie(bouw.Relatie(man, vrouw, {}, huwelijk), {{"HuwSwPs", "1"}, {"KHuwSch", "1"}});
}

// What the standard does not have, and why it is written all the same.
const std::map<std::string, std::string> kEigen = {
    {"INDI-NAME-GIVN-NOTE", "a remark stands behind its own part of the name"},
    {"INDI-NAME-GIVN-NOTE-CONT", "the same"},
    {"INDI-NAME-SURN-NOTE", "the same"},
    {"INDI-NAME-SURN-NOTE-CONT", "the same"},
    {"INDI-BAPM-RELI", "told in the log: for an older program"},
    {"INDI-BAPM-RELI-NOTE", "its remark"},
    {"INDI-BAPM-RELI-NOTE-CONT", "its remark"},
    {"*-DATE-NOTE", "a remark stands behind its own part of the event"},
    {"*-DATE-NOTE-CONT", "the same"},
    {"FAM-MARR-LMAR", "told in the log: for an older program"},
    {"FAM-MARC-LMAR", "the same"},
    {"FAM-ORDI", "a church marriage; the standard has the tag for a person"},
    {"FAM-ORDI-DATE", "the same"},
    {"FAM-ORDI-PLAC", "the same"},
    {"FAM-ORDI-RELI", "the same"},
};

bool IsEigen(const std::string& pad) {
  if (kEigen.contains(pad)) return true;
  const std::size_t tweede = pad.find('-', pad.find('-') + 1);
  return tweede != std::string::npos && kEigen.contains("*" + pad.substr(tweede));
}

// What our own import does not look for, and what becomes of it.
const std::map<std::string, std::string> kOnbekend = {
    {"HEAD", "level 0 is told by its tag"},
    {"SUBN", "the same"},
    {"SUBM", "the same"},
    {"INDI", "the same"},
    {"FAM", "the same"},
    {"TRLR", "the same"},
    {"SUBN-SUBM", "told as unknown: the submitter is not kept"},
    {"INDI-CREM", "told as unknown, and its date and place with it"},
    {"INDI-CREM-DATE", "the same"},
    {"INDI-CREM-PLAC", "the same"},
    {"FAM-MARC-LMAR", "told as unknown"},
};

TEST(GedcomTags, DeStandaardHeeftElkeTagOfWijWetenWaarom) {
  ProefSet set;
  MaakAlles(set);
  const GedcomBeeld beeld = KeurGedcom(Bytes(set));
  EXPECT_EQ(beeld.fouten, std::vector<std::string>());
  for (const std::string& pad : beeld.vreemd) EXPECT_TRUE(IsEigen(pad)) << pad;
  // Each own tag is there: a list of what is no more would hide the next one.
  for (const auto& [pad, reden] : kEigen) {
    if (pad.starts_with('*')) continue;
    EXPECT_TRUE(beeld.vreemd.contains(pad)) << pad;
  }
}

TEST(GedcomTags, OnsInlezenKentElkeTagOfWijWetenWaarom) {
  ProefSet set;
  MaakAlles(set);
  const GedcomBeeld beeld = KeurGedcom(Bytes(set));
  const Padtabel<PersoonPad> personen(AllePersoonPaden());
  const Padtabel<RelatiePad> relaties(AlleRelatiePaden());
  const Padtabel<OverigPad> overige(AlleOverigePaden());
  for (const auto& [pad, keer] : beeld.tags) {
    const bool opmerking = pad.ends_with("-NOTE") || pad.ends_with("-NOTE-CONT");
    const bool bekend = opmerking || personen.Zoek(pad) || relaties.Zoek(pad) || overige.Zoek(pad);
    EXPECT_NE(bekend, kOnbekend.contains(pad)) << pad;
  }
  for (const auto& [pad, reden] : kOnbekend) EXPECT_TRUE(beeld.tags.contains(pad)) << pad;
}

// Whatever the records hold, each line is one: a level, a tag, an end.
class GedcomTagsGevuld : public ::testing::TestWithParam<unsigned> {};

TEST_P(GedcomTagsGevuld, ElkeRegelIsEenRegel) {
  ProefSet set;
  VulMetToeval(set, GetParam());
  for (const std::string& fout : KeurGedcom(Bytes(set)).fouten) {
    // A remark alone stands below no event and no name.
    const bool kan = fout.starts_with("verwijzing") || fout.starts_with("geen weg") ||
                     fout.starts_with("level overgeslagen");
    EXPECT_TRUE(kan) << fout;
  }
}

INSTANTIATE_TEST_SUITE_P(Zaden, GedcomTagsGevuld, ::testing::Range(1U, 9U));

}  // namespace
}  // namespace lb77
