// The roads of the record classes, dying or failing at each operation of the files and the journal.
#include <gtest/gtest.h>

#include <functional>

#include "steun/NepGesprek.h"
#include "store/JournaalToets.h"
#include "store/OpmLB77.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"

using namespace lb77;
using enum BestandSoort;

namespace {

using Wijze = ProefSchijf::Wijze;

// The record classes of a session.
struct Klassen {
  explicit Klassen(Bestandenset& bestanden) : opslag{bestanden, volgers, gesprek, schrijfwijze} {}

  Volgers volgers;
  NepGesprek gesprek;
  Schrijfwijze schrijfwijze;
  Opslag opslag;
  PersoonLB77 Persoon{opslag};
  RelatieLB77 Relatie{opslag};
  PlaatsLB77 Plaats{opslag};
  OpmLB77 Opmerking{opslag, Persoon, Relatie};
};

using Weg = std::function<bool(Klassen&)>;

bool NieuweSet(Klassen& set) {
  return set.Persoon.NieuwAdm() && set.Relatie.NieuwAdm() && set.Opmerking.NieuwAdm() &&
         set.Plaats.NieuwAdm();
}

bool NieuwePersoon(Klassen& set) {
  const std::int32_t nr = set.Persoon.AantalRecords() + 1;
  if (!set.Persoon.Nieuw(nr)) return false;
  set.Persoon.Zet("Achternaam", "Jansen");
  set.Persoon.Zet("Geslacht", "M");
  return set.Persoon.Schrijf(static_cast<std::int16_t>(nr));
}

bool NieuweOpmerking(Klassen& set) {
  const OpmRegels regels{"een", "twee"};
  return set.Opmerking.SchrijfOpmerking(regels, {}, 0, 2, 0, 0, 23, 4096);
}

class JournaalWegenTest : public JournaalToets {
 protected:
  bool Loop(std::string_view label, const Weg& weg) {
    Klassen set(*bestanden);
    Handeling handeling(*bestanden, label);
    const bool gelukt = weg(set);
    return !handeling.Voltooi() && gelukt;
  }

  // Dies and fails at each operation; afterwards Yes gives what was there, or all is done.
  void Beproef(const Weg& weg) {
    schijf.MaakVast();
    const VierBestanden begin = Stand();
    for (const Wijze wijze : {Wijze::Dood, Wijze::Fout, Wijze::Kort, Wijze::Vol}) {
      bool verder = true;
      for (int k = 1; verder; ++k) {
        for (const std::string& naam : schijf.Journalen()) schijf.Verwijder(naam);
        Zet(begin);
        Heropen();
        schijf.bij = schijf.teller + k;
        schijf.wijze = wijze;
        const bool gelukt = Loop("Weg", weg);
        verder = schijf.Geweest();
        Heropen();
        Controleer(begin, gelukt, k);
      }
    }
  }

  void Controleer(const VierBestanden& begin, bool gelukt, int k) {
    const auto onvoltooid = Dagboek().Onvoltooid();
    EXPECT_FALSE(gelukt && onvoltooid) << k;
    if (onvoltooid) {
      EXPECT_EQ(onvoltooid->label, "Weg");
      ASSERT_FALSE(Dagboek().Herstel());
    } else if (!Dagboek().Geschiedenis().empty()) {
      EXPECT_TRUE(Dagboek().MaakOngedaan(1)) << k;
    }
    EXPECT_EQ(Stand(), begin) << k;
  }
};

}  // namespace

TEST_F(JournaalWegenTest, EenNieuweSet) {
  Beproef(NieuweSet);
}

TEST_F(JournaalWegenTest, EenNieuwePersoon) {
  ASSERT_TRUE(Loop("Nieuwe set", NieuweSet));
  ASSERT_TRUE(Loop("Eerste", NieuwePersoon));
  Beproef(NieuwePersoon);
}

TEST_F(JournaalWegenTest, EenNieuweOpmerking) {
  ASSERT_TRUE(Loop("Nieuwe set", NieuweSet));
  ASSERT_TRUE(Loop("Eerste", NieuwePersoon));
  ASSERT_TRUE(Loop("Opmerking", NieuweOpmerking));
  Beproef(NieuweOpmerking);
}
