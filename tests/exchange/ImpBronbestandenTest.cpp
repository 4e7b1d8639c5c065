// Real files of other programs: no crash, no lost record, and links that the file and the records
// both have.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

#include "exchange/GedRegel.h"
#include "exchange/ImportToets.h"
#include "exchange/RegelLezer.h"
#include "steun/Plekken.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

// The records of a GEDCOM file and their links, as a plain reading gives them.
struct Bron {
  struct Record {
    std::string id;
    std::map<std::string, std::vector<std::string>> wijzers;  // by tag, in file order
  };
  std::vector<Record> personen;
  std::vector<Record> relaties;
};

Bron LeesBron(const std::filesystem::path& pad) {
  Bron bron;
  RegelLezer lezer;
  EXPECT_FALSE(lezer.Open(pad));
  Bron::Record* record = nullptr;
  std::string_view regel;
  while (lezer.Volgende(regel)) {
    const GedDelen delen = GedRegel(regel);
    if (delen.level == 0) {
      record = nullptr;
      auto* lijst = delen.tag == "INDI"  ? &bron.personen
                    : delen.tag == "FAM" ? &bron.relaties
                                         : nullptr;
      if (lijst != nullptr) record = &lijst->emplace_back(Bron::Record{std::string(delen.id), {}});
    } else if (delen.level == 1 && record != nullptr && delen.waarde.starts_with('@')) {
      record->wijzers[std::string(delen.tag)].emplace_back(delen.waarde);
    }
  }
  return bron;
}

std::map<std::string, std::int16_t> Nummers(const std::vector<Bron::Record>& records) {
  std::map<std::string, std::int16_t> uit;
  std::int16_t nr = 1;
  for (const Bron::Record& record : records) uit.try_emplace("@" + record.id + "@", ++nr);
  return uit;
}

// The pointers of a tag as record numbers, unknown ones as 0, as far as the table has slots.
template <class Tab>
Tab TabVan(const Bron::Record& record, const std::string& tag,
           const std::map<std::string, std::int16_t>& nummers) {
  Tab tab{};
  const auto gevonden = record.wijzers.find(tag);
  if (gevonden == record.wijzers.end()) return tab;
  std::size_t slot = 0;
  for (const std::string& wijzer : gevonden->second) {
    if (++slot >= tab.size()) break;
    const auto nummer = nummers.find(wijzer);
    tab[slot] = nummer == nummers.end() ? std::int16_t{0} : nummer->second;
  }
  return tab;
}

std::int16_t Laatste(const Bron::Record& record, const std::string& tag,
                     const std::map<std::string, std::int16_t>& nummers) {
  const auto gevonden = record.wijzers.find(tag);
  if (gevonden == record.wijzers.end()) return 0;
  const auto nummer = nummers.find(gevonden->second.back());
  return nummer == nummers.end() ? std::int16_t{0} : nummer->second;
}

struct Geval {
  std::string_view bestand;
  int personen;
  int relaties;
  std::string_view gemeld = "";
  bool unicode = false;
};

void PrintTo(const Geval& geval, std::ostream* os) {
  *os << geval.bestand;
}

class ImpBronbestanden : public ImportToets, public ::testing::WithParamInterface<Geval> {
 protected:
  static std::filesystem::path Pad(std::string_view naam) {
    return BronMap() / "../shared/data" / naam;
  }

  void VergelijkPersonen(Hoofdmodule& hoofd, const Bron& bron) {
    const auto relaties = Nummers(bron.relaties);
    std::int16_t nr = 1;
    for (const Bron::Record& record : bron.personen) {
      SCOPED_TRACE(record.id);
      Huwtab huwelijken{};
      EXPECT_TRUE(hoofd.Persoon.VulHuwtab(++nr, huwelijken).heel);
      EXPECT_EQ(huwelijken, TabVan<Huwtab>(record, "FAMS", relaties));
      ASSERT_TRUE(hoofd.Persoon.Lees(nr));
      EXPECT_FALSE(hoofd.Persoon.IsVolgRecord());
      EXPECT_EQ(hoofd.Persoon.RelNrOuders(), Laatste(record, "FAMC", relaties));
    }
    // Behind them lie the continuation records alone.
    while (hoofd.Persoon.Lees(++nr)) EXPECT_TRUE(hoofd.Persoon.IsVolgRecord());
  }

  void VergelijkRelaties(Hoofdmodule& hoofd, const Bron& bron) {
    const auto personen = Nummers(bron.personen);
    std::int16_t nr = 1;
    for (const Bron::Record& record : bron.relaties) {
      SCOPED_TRACE(record.id);
      Kindtab kinderen{};
      EXPECT_TRUE(hoofd.Relatie.VulKindtab(++nr, kinderen).heel);
      EXPECT_EQ(kinderen, TabVan<Kindtab>(record, "CHIL", personen));
      ASSERT_TRUE(hoofd.Relatie.Lees(nr));
      EXPECT_FALSE(hoofd.Relatie.IsVolgRecord());
      EXPECT_EQ(hoofd.Relatie.ManNr(), Laatste(record, "HUSB", personen));
      EXPECT_EQ(hoofd.Relatie.VrouwNr(), Laatste(record, "WIFE", personen));
    }
    while (hoofd.Relatie.Lees(++nr)) EXPECT_TRUE(hoofd.Relatie.IsVolgRecord());
  }
};

TEST_P(ImpBronbestanden, KomtBinnenMetAlZijnRecordsEnVerwijzingen) {
  const Geval& geval = GetParam();
  const auto pad = Pad(geval.bestand);
  if (!std::filesystem::exists(pad)) GTEST_SKIP() << pad << " is absent";
  const Bron bron = LeesBron(pad);
  EXPECT_EQ(bron.personen.size(), static_cast<std::size_t>(geval.personen));
  EXPECT_EQ(bron.relaties.size(), static_cast<std::size_t>(geval.relaties));
  if (geval.unicode) Antwoord("Ja");
  Importeer(LeesBytes(pad), geval.gemeld);
  InSessie([&](Hoofdmodule& hoofd) {
    VergelijkPersonen(hoofd, bron);
    VergelijkRelaties(hoofd, bron);
  });
  EXPECT_TRUE(Log().ends_with("Importeren voltooid\r\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Data, ImpBronbestanden,
    ::testing::Values(
        Geval{"royal92.ged", 3010, 1422, "! uitroep \"Meer dan 5 relaties voor Persoon 829\""},
        Geval{"ibmpc-cp437-broskeep.ged", 2145, 1042}, Geval{"ansi-cp1252-ftm17.ged", 178, 113},
        Geval{"ansel-lf.ged", 35, 1, "! uitroep \"Meer dan 29 kinderen voor Relatie 2\""},
        Geval{"tgc55clf.ged", 15, 7}, Geval{"kennedy.ged", 208, 75, "", true},
        Geval{"queen.ged", 4683, 2863,
              "! uitroep \"Meer dan 5 relaties voor Persoon 321\"\n"
              "! uitroep \"Meer dan 5 relaties voor Persoon 740\"",
              true},
        Geval{"bronte.ged", 14, 4, "", true}, Geval{"vendor-gramps.ged", 5, 2, "", true},
        Geval{"structural-edge-cases.ged", 10, 3, "", true}));

}  // namespace
}  // namespace lb77
