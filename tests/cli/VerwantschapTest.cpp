// `verwantschap`: kinship as a command, and its chains beside those of a plain search.
#include <array>
#include <map>
#include <queue>

#include "cli/OpdrachtToets.h"
#include "steun/NepGesprek.h"
#include "steun/Plekken.h"
#include "store/Bestandenset.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class VerwantschapOpdracht : public OpdrachtToets {
 protected:
  using Nrs = std::vector<std::int16_t>;

  // The numbers in brackets at the ends of the lines of the report.
  [[nodiscard]] Nrs Keten() const {
    Nrs uit;
    for (std::size_t eind = uit_.find(")\n"); eind != std::string::npos;
         eind = uit_.find(")\n", eind + 1)) {
      const std::size_t begin = uit_.rfind('(', eind) + 1;
      uit.push_back(
          NaarInt16(Getalwaarde(uit_.substr(begin, eind - begin))).value_or(std::int16_t{0}));
    }
    return uit;
  }
};

// Everybody's nearest kin in memory, and a search that knows nothing but that.
class KaalZoeken {
 public:
  explicit KaalZoeken(const SetPaden& paden) {
    Volgers volgers;
    NepGesprek gesprek;
    const Schrijfwijze schrijfwijze;
    Bestandenset bestanden;
    EXPECT_FALSE(bestanden.OpenSet(paden));
    const Opslag opslag{bestanden, volgers, gesprek, schrijfwijze};
    PersoonLB77 persoon(opslag);
    RelatieLB77 relatie(opslag);
    for (std::int16_t nr = 2; persoon.Lees(nr); ++nr) {
      if (!persoon.IsVolgRecord()) naasten_[nr] = Naasten(persoon, relatie, nr);
    }
  }

  [[nodiscard]] const std::map<std::int16_t, std::vector<std::int16_t>>& Alle() const {
    return naasten_;
  }
  // From each person reached to the one before him.
  [[nodiscard]] std::map<std::int16_t, std::int16_t> Vanaf(std::int16_t begin) const {
    std::map<std::int16_t, std::int16_t> vorige{{begin, begin}};
    std::queue<std::int16_t> wachtend;
    laatste_ = begin;
    for (wachtend.push(begin); !wachtend.empty(); wachtend.pop()) {
      laatste_ = wachtend.front();
      for (const std::int16_t naaste : naasten_.at(laatste_)) {
        if (vorige.emplace(naaste, laatste_).second) wachtend.push(naaste);
      }
    }
    return vorige;
  }
  // Who was reached last: nobody is further away.
  [[nodiscard]] std::int16_t Verste() const { return laatste_; }

 private:
  // Parents, then by relation the partner and the children.
  static std::vector<std::int16_t> Naasten(PersoonLB77& persoon, RelatieLB77& relatie,
                                           std::int16_t nr) {
    std::vector<std::int16_t> uit;
    const auto voeg = [&uit](std::int16_t wie) {
      if (wie > 1) uit.push_back(wie);
    };
    if (persoon.RelNrOuders() > 0 && relatie.Lees(persoon.RelNrOuders())) {
      voeg(relatie.ManNr());
      voeg(relatie.VrouwNr());
    }
    Huwtab huwtab{};
    static_cast<void>(persoon.VulHuwtab(nr, huwtab));
    for (const std::int16_t relNr : huwtab) {
      if (relNr <= 0 || !relatie.Lees(relNr)) continue;
      voeg(relatie.ManNr() == nr ? relatie.VrouwNr() : relatie.ManNr());
      Kindtab kindtab{};
      static_cast<void>(relatie.VulKindtab(relNr, kindtab));
      for (const std::int16_t kind : kindtab) voeg(kind);
    }
    EXPECT_TRUE(persoon.Lees(nr));
    return uit;
  }

  std::map<std::int16_t, std::vector<std::int16_t>> naasten_;
  mutable std::int16_t laatste_ = 0;
};

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @I2@ INDI\n1 NAME Els /Vos/\n1 SEX F\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 FAMC @F1@\n"
    "0 @I4@ INDI\n1 NAME Mia /Mos/\n1 SEX F\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n0 TRLR\n";

TEST_F(VerwantschapOpdracht, SchrijftDeKeten) {
  MaakFamilie(kGedcom);
  EXPECT_EQ(Doe("verwantschap", {"familie", "els", "jan"}), 0) << fout_;
  EXPECT_EQ(uit_,
            "Schema Verwantschap\n"
            "Verwantschap tussen Els Vos en Jan van Dam:\n"
            "\n"
            "Jan van Dam (4)\n"
            "ouder: \n"
            "Els Vos (3)\n"
            "\n"
            "3         \n"
            "|         \n"
            "4         \n");
}

TEST_F(VerwantschapOpdracht, ZonderVerbandZegtHetVerslagDat) {
  MaakFamilie(kGedcom);
  EXPECT_EQ(Doe("verwantschap", {"familie", "2", "mia"}), 0) << fout_;
  EXPECT_EQ(uit_, "Schema Verwantschap\nGeen verwantschap gevonden\n");
}

TEST_F(VerwantschapOpdracht, TweeKeerDezelfdeIsGeenVerslag) {
  MaakFamilie(kGedcom);
  EXPECT_EQ(Doe("verwantschap", {"familie", "2", "2"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_NE(fout_.find("Geef 2 verschillende personen op a.u.b."), std::string::npos) << fout_;
}

// Some persons, and of each the one who is furthest from him and some others.
TEST_F(VerwantschapOpdracht, DeKetensVanEenGroteStamboomZijnDeKortste) {
  const auto gedcom = BronMap() / "../shared/data/royal92.ged";
  if (!std::filesystem::exists(gedcom)) GTEST_SKIP() << gedcom << " is absent";
  MaakFamilie(LeesBytes(gedcom));
  const KaalZoeken kaal(SetPaden::Van(map_ / "DATA", "FAMILIE"));
  std::size_t langste = 0;
  for (const std::int16_t een : {std::int16_t{2}, std::int16_t{117}, std::int16_t{1500}}) {
    const auto vorige = kaal.Vanaf(een);
    EXPECT_GT(vorige.size(), 100U) << een;
    const std::array<std::int16_t, 4> anderen{kaal.Verste(), 830, 2222, 2999};
    for (const std::int16_t ander : anderen) {
      ASSERT_EQ(Doe("verwantschap", {"familie", GetalTekst(een), GetalTekst(ander)}), 0) << fout_;
      Nrs verwacht;
      if (vorige.contains(ander)) {
        for (std::int16_t nr = ander; nr != een; nr = vorige.at(nr)) verwacht.push_back(nr);
        verwacht.push_back(een);
      }
      EXPECT_EQ(Keten(), verwacht) << een << " " << ander;
      langste = std::max(langste, verwacht.size());
    }
  }
  EXPECT_GT(langste, 15U);
}

}  // namespace
}  // namespace lb77
