// Every road that writes, with each of its operations failing in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"

using namespace lb77;

namespace {

// One road: what lies there before, what is done, and which boxes it may show.
struct Weg {
  const char* naam;
  void (*vooraf)(ProefSet&);
  bool (*doe)(ProefSet&);
};

OpmRegels Regels(std::initializer_list<const char*> regels) {
  OpmRegels tien;
  std::copy(regels.begin(), regels.end(), tien.begin());
  return tien;
}

void Gezin(ProefSet& set) {
  const auto man = set.bouw.Man("Jan", "Jansen");
  set.bouw.Relatie(man, 0);
  set.bouw.Plaats("Delft");
}

void GezinMetOpmerkingen(ProefSet& set) {
  Gezin(set);
  set.bouw.OpmerkingBijPersoon(2, 1, {"een", "twee"});
  set.bouw.OpmerkingBijPersoon(2, 8, {"drie"});
  set.bouw.OpmerkingBijRelatie(2, -1, {"vier"});
}

const Weg kWegen[] = {
    {"nieuwe persoon", Gezin, [](ProefSet& set) { return set.Persoon.Nieuw(3); }},
    {"nieuwe relatie", Gezin, [](ProefSet& set) { return set.Relatie.Nieuw(3); }},
    {"nieuwe plaats", Gezin, [](ProefSet& set) { return set.Plaats.Nieuw(3); }},
    {"nieuw opmerkingenrecord", Gezin, [](ProefSet& set) { return set.Opmerking.Nieuw(2); }},
    {"plaats zoeken en toevoegen", Gezin,
     [](ProefSet& set) { return set.Plaats.NrOfNieuw("Leiden", "") == 3; }},
    {"eerste opmerking van een persoon", Gezin,
     [](ProefSet& set) {
       return set.Opmerking.SchrijfOpmerking(Regels({"een", "twee"}), {}, 0, 2, 0, 0, 23, 1);
     }},
    {"eerste opmerking van een relatie", Gezin,
     [](ProefSet& set) {
       return set.Opmerking.SchrijfOpmerking(Regels({"een"}), {}, 0, 0, 2, 0, 23, -1);
     }},
    {"volgende opmerking", GezinMetOpmerkingen,
     [](ProefSet& set) {
       return set.Opmerking.SchrijfOpmerking(Regels({"vijf"}), {}, 0, 2, 0, 2, 23, 16);
     }},
    {"opmerking wijzigen", GezinMetOpmerkingen,
     [](ProefSet& set) {
       return set.Opmerking.SchrijfOpmerking(Regels({"x", "y", "z"}), {2, 3}, 0, 2, 0, 2, 7, 1);
     }},
    {"eerste opmerking wissen", GezinMetOpmerkingen,
     [](ProefSet& set) {
       return set.Opmerking.SchrijfOpmerking({}, {2, 3}, 0, 2, 0, 2, 23, 1);
     }},
    {"tweede opmerking wissen", GezinMetOpmerkingen,
     [](ProefSet& set) { return set.Opmerking.SchrijfOpmerking({}, {4}, 2, 2, 0, 2, 23, 8); }},
    {"opmerking van een relatie wissen", GezinMetOpmerkingen,
     [](ProefSet& set) { return set.Opmerking.SchrijfOpmerking({}, {5}, 0, 0, 2, 5, 23, -1); }},
};

std::array<std::string, 4> Inhoud(const ProefSet& set) {
  return {LeesBytes(set.paden.prs), LeesBytes(set.paden.rlt), LeesBytes(set.paden.opm),
          LeesBytes(set.paden.plt)};
}

// What lay in the files before must still lie there, but for the records that the road writes.
void VerwachtLeesbaar(ProefSet& set) {
  set.Heropen();
  std::string voor;
  std::string achter;
  set.Persoon.HeleNaam(2, voor, achter, "?");
  EXPECT_EQ(voor + achter, "JanJansen");
  EXPECT_TRUE(set.Relatie.Lees(2));
  EXPECT_EQ(set.Relatie.ManNr(), 2);
  EXPECT_EQ(set.Plaats.Naam(2), "Delft");
}

// Runs the road with operation `bij` failing. True when it came through without reaching it.
bool Beloop(const Weg& weg, const Storing& met, std::set<std::string>& boxen) {
  Storing storing;
  ProefSet set(FalendeOpener(storing));
  weg.vooraf(set);
  set.Heropen();
  const auto voor = Inhoud(set);
  storing = met;
  const bool gelukt = weg.doe(set);
  const bool geraakt = storing.Geweest();
  storing = {};
  const auto getoond = set.Getoond();
  boxen.insert(getoond.begin(), getoond.end());
  if (!geraakt) {
    EXPECT_TRUE(gelukt);
    EXPECT_TRUE(getoond.empty());
    return true;
  }
  EXPECT_FALSE(getoond.empty()) << "een fout zonder melding";
  const bool schrijffout = std::any_of(getoond.begin(), getoond.end(), [](const std::string& box) {
    return box.find(kSchrijfStoring) != std::string::npos;
  });
  EXPECT_FALSE(schrijffout && gelukt) << "een mislukte schrijfactie telt als gelukt";
  if (met.bij == 1 && !met.kort) {
    EXPECT_EQ(Inhoud(set), voor);
  }
  VerwachtLeesbaar(set);
  return false;
}

std::set<std::string> BeloopAlles(bool kort, bool blijvend) {
  std::set<std::string> boxen;
  for (const Weg& weg : kWegen) {
    for (int bij = 1;; ++bij) {
      const ::testing::ScopedTrace spoor(__FILE__, __LINE__,
                                         weg.naam + std::string(" ") + std::to_string(bij));
      if (Beloop(weg, {.bij = bij, .kort = kort, .blijvend = blijvend}, boxen)) break;
      if (bij > 100) {
        ADD_FAILURE() << "er komt geen einde aan";
        break;
      }
    }
  }
  return boxen;
}

}  // namespace

TEST(FoutenTest, EenFoutBijElkeOperatieHeeftEenMeldingEnLaatDeRestHeel) {
  const std::set<std::string> boxen = BeloopAlles(false, false);
  for (
      const char* tekst : {
          "! stop \"Fout bij het lezen van Opmerking\"",
          "! stop \"Schrijffout bij opmerking\"",
          "! stop \"Fout bij het schrijven van Opmerking\"",
          "! stop \"Fout bij het schrijven van Persoon\"",
          "! stop \"Fout bij het schrijvan van Persoon\"",
          "! stop \"Fout bij het schrijven van Relatie\"",
          "! stop \"Leesfout bij Persoon 2\"",
          "! stop \"Leesfout bij Relatie 2\"",
          "! stop \"Fout bij het lezen van Opmerking6\"",
          R"(! stop "Fatale leesfout (Admin.record v.h. Opm.bestand)\nFout van de schijf")",
          R"(! stop "Fout bij het schrijven (Admin.record v.h. Opm.bestand)\nSchijf vol")",
          R"(! stop "Fatale fout bij bijwerken v.h. Adm.record v.h. Opm.bestand\nFout van de schijf")",
          R"(! stop "Fout bij het schrijven van het Administratierecord\nSchijf vol")",
          R"(! stop "Fout bij het schrijven van het Administratierecord van het Opmerkingenbestand\nSchijf vol")",
      }) {
    EXPECT_EQ(boxen.count(tekst), 1U) << tekst;
  }
}

TEST(FoutenTest, EenHalfGeschrevenRecordHeeftEenMeldingEnLaatDeRestLeesbaar) {
  EXPECT_FALSE(BeloopAlles(true, false).empty());
}

TEST(FoutenTest, EenSchijfDieUitvaltHeeftEenMeldingEnLaatDeRestLeesbaar) {
  EXPECT_FALSE(BeloopAlles(false, true).empty());
}
