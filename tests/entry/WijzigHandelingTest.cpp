// Saving a person or a relation is one action of the journal.
#include "entry/WijzigToets.h"
#include "store/Journaal.h"

namespace lb77 {
namespace {

using Namen = std::vector<std::string>;

template <class Basis>
class HandelingToets : public Basis {
 protected:
  void SetUp() override {
    this->Bouw().Man("Jan", "de Vries");
    this->Bouw().Vrouw("Anna", "Bos");
    for (int i = 0; i < 3; ++i) this->Bouw().Relatie(2, 0);
  }
  // The labels of what the script did; undoing the last of them gives back the files.
  Namen Labels(std::int16_t nr, const std::string& draaiboek) {
    const auto voor = this->Bytes();
    Namen labels;
    const SpeelUitslag uitslag = this->Speel(draaiboek, this->Sessie([&](Hoofdmodule& hoofd) {
      hoofd.bestanden = Bestandenset();
      hoofd.bestanden.ZetJournaal({[] { return std::string("2000-01-01 00:00:00"); }, {}, {}});
      ASSERT_FALSE(hoofd.bestanden.OpenSet(this->Paden()));
      this->Dialoog(nr)(hoofd);
      Journaal& journaal = *hoofd.bestanden.HetJournaal();
      for (const HandelingRegel& regel : journaal.Geschiedenis()) labels.push_back(regel.label);
      if (labels.empty()) return;
      EXPECT_NE(this->Bytes(), voor);
      static_cast<void>(journaal.MaakOngedaan(journaal.Geschiedenis().back().nummer));
    }));
    EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
    EXPECT_EQ(this->Bytes(), voor);
    std::filesystem::remove_all(this->Paden().prs.parent_path() / "JOURNAAL");
    return labels;
  }
};

using PersoonHandelingTest = HandelingToets<WijzigPersoonToets>;
using RelatieHandelingTest = HandelingToets<WijzigRelatieToets>;

TEST_F(PersoonHandelingTest, EenWijzigingHeetNaarDePersoon) {
  EXPECT_EQ(Labels(2, "vul BeroepTekst smid\ndruk Opslaan"),
            Namen{"Persoon 2 gewijzigd: Jan de Vries"});
  EXPECT_EQ(Labels(3, "vul VoorNm\nvul AchterNm\ndruk Opslaan"),
            Namen{"Persoon 3 gewijzigd: <onbekend>"});
}

// With the parents' new relation, his continuation record, and the child in it.
TEST_F(PersoonHandelingTest, EenNieuwePersoonMetAllesWatErbijKomtIsErEen) {
  EXPECT_EQ(
      Labels(-1, "vul VoorNm Bram\nvul RecordNrPa 2\nvul RecordNrMa 3\nantwoord Ja\ndruk Opslaan"),
      Namen{"Persoon 4 toegevoegd: Bram"});
}

TEST_F(PersoonHandelingTest, ZonderWijzigingIsErGeenHandeling) {
  EXPECT_EQ(Labels(2, "druk Opslaan"), Namen{});
  EXPECT_EQ(Labels(2, "vul BeroepTekst smid\ndruk BackButton"), Namen{});
}

TEST_F(RelatieHandelingTest, EenRelatieHeetNaarDePartners) {
  EXPECT_EQ(Labels(2, "vul RecordNrVrouw 3\ndruk Opslaan"),
            Namen{"Relatie 2 gewijzigd: Jan de Vries en Anna Bos"});
  EXPECT_EQ(Labels(-1, "vul RecordNrVrouw 3\ndruk Opslaan"),
            Namen{"Relatie 5 toegevoegd: <onbekend> en Anna Bos"});
  EXPECT_EQ(Labels(2, "druk Opslaan"), Namen{});
}

}  // namespace
}  // namespace lb77
