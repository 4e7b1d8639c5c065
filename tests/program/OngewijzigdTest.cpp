// What is opened and saved without a change stays as it is, on each record of whole families.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/Start.h"
#include "entry/Koppeltabel.h"
#include "entry/WijzigPersoon.h"
#include "entry/WijzigRelatie.h"
#include "exchange/ImpGedcom.h"
#include "steun/FamilieToets.h"
#include "steun/Plekken.h"

namespace lb77 {
namespace {

// What the user does ahead of Opslaan: nothing, or Tab from field to field.
enum class Weg { Meteen, LangsAlleVelden };

// A user who saves each form, leaves the one that refuses, and lets all dates be.
class Opslaander final : public Gesprek {
 public:
  explicit Opslaander(Weg weg) : weg_(weg) {}
  // What was told since the last time this was asked; a question about dates does not count.
  std::vector<std::string> Neem() { return std::exchange(gemeld_, {}); }

  Antwoord Bericht(BerichtSoort, Knoppen knoppen, std::string_view tekst) override {
    const bool datums = knoppen == Knoppen::JaNee && tekst.ends_with("\nCorrigeren ?");
    if (!datums) gemeld_.emplace_back(tekst);
    return knoppen == Knoppen::OK ? Antwoord::OK : Antwoord::Nee;
  }
  bool BerichtMetVinkje(std::string_view tekst, std::string_view) override {
    Informeer(tekst);
    return false;
  }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override {
    gemeld_.push_back(vraag.filter);
    return std::nullopt;
  }
  bool DrukAf(const Afdruk& afdruk) override {
    gemeld_.push_back(afdruk.titel);
    return false;
  }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier& formulier) override {
    Bediening* opslaan = formulier.Zoek("Opslaan");
    if (weg_ == Weg::LangsAlleVelden) Loop(formulier, opslaan);
    if (opslaan == nullptr || !formulier.Klik(*opslaan)) {
      gemeld_.push_back("niet opgeslagen: " + formulier.Naam());
    }
    if (formulier.Gesloten()) return;
    gemeld_.push_back("gebleven: " + formulier.Naam());
    formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}

 private:
  // As far as the button, or to where a field sends the user: the relation of known parents leads to
  // BackButton.
  void Loop(Formulier& formulier, const Bediening* tot) {
    for (std::size_t n = formulier.Bedieningen().size(); n > 0; --n) {
      Bediening* volgende = formulier.Buur(formulier.FocusVeld(), 1);
      if (volgende == nullptr || volgende == tot) return;
      if (formulier.GaNaar(*volgende)) continue;
      if (formulier.FocusVeld() == formulier.TerugKnop()) return;
      gemeld_.push_back("niet te bereiken: " + volgende->Naam());
      return;
    }
    gemeld_.push_back("geen eind: " + formulier.Naam());
  }

  Weg weg_;
  std::vector<std::string> gemeld_;
};

struct Geval {
  std::string_view naam;
  std::string_view bestand;  // from the root of the project
  int personen;
  int relaties;
  int vol;  // relations refused for a full list
};

void PrintTo(const Geval& geval, std::ostream* os) {
  *os << geval.naam;
}

// Each file under the directory, by its path.
using Bytes = std::map<std::string, std::string>;

class Ongewijzigd : public FamilieToets, public ::testing::WithParamInterface<Geval> {
 protected:
  // A kind of record: its numbers, its form on one of them, and when that may refuse.
  struct Soort {
    std::string_view naam;
    std::vector<std::int16_t> (*nummers)(Hoofdmodule&);
    void (*toon)(Hoofdmodule&, std::int16_t nr);
    bool (*magWeigeren)(Hoofdmodule&, std::int16_t nr, const std::vector<std::string>& gemeld);
  };

  void Importeer(const std::filesystem::path& pad) {
    SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\nData=" + Map().string() +
                                             "\r\n" +
                                             LeesBytes(BronMap() / "voorbeeld" / "LIJNBOOM.INI"));
    SchrijfBytes(Map() / "IN.GED", LeesBytes(pad));
    const SpeelUitslag uitslag = Speel("vul Bestandsnaam " + (Map() / "IN.GED").string() +
                                           "\ndruk OKButton\ndruk BackButton\ndruk BackButton\n",
                                       Sessie([](Hoofdmodule& hoofd) {
                                         ASSERT_TRUE(Start(hoofd));
                                         hoofd.gesprek.Toon<ImpGedcom>(hoofd);
                                       }));
    ASSERT_EQ(uitslag.reden, "");
    ASSERT_THAT(verslag_, ::testing::HasSubstr("! info \"Importeren voltooid\""));
  }

  [[nodiscard]] Bytes LeesAlles() const {
    Bytes uit;
    for (const auto& item : std::filesystem::recursive_directory_iterator(Map())) {
      if (item.is_regular_file()) uit[item.path().generic_string()] = LeesBytes(item.path());
    }
    return uit;
  }

  // The first place at which a file is not what it was; empty when all are.
  [[nodiscard]] static std::string Verschil(const Bytes& eerst, const Bytes& nu) {
    for (const auto& [pad, bytes] : nu) {
      const auto oud = eerst.find(pad);
      if (oud == eerst.end()) return pad + " is nieuw";
      if (oud->second == bytes) continue;
      const auto plaats = std::ranges::mismatch(oud->second, bytes).in2 - bytes.begin();
      return pad + " verschilt vanaf byte " + std::to_string(plaats) + ", lengte " +
             std::to_string(oud->second.size()) + " en " + std::to_string(bytes.size());
    }
    return eerst.size() == nu.size() ? "" : "een bestand is weg";
  }

  // Opens and saves these records in one session. How many were refused.
  int SlaOp(const Soort& soort, const std::vector<std::int16_t>& nummers, Weg weg) {
    Opslaander gebruiker(weg);
    int geweigerd = 0;
    Sessie([&](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      for (const std::int16_t nr : nummers) {
        soort.toon(hoofd, nr);
        const auto gemeld = gebruiker.Neem();
        if (gemeld.empty()) continue;
        ++geweigerd;
        if (soort.magWeigeren(hoofd, nr, gemeld)) continue;
        ADD_FAILURE() << soort.naam << " " << nr << ": " << ::testing::PrintToString(gemeld);
      }
    })(gebruiker);
    return geweigerd;
  }

  std::vector<std::int16_t> Nummers(const Soort& soort) {
    std::vector<std::int16_t> uit;
    Stil([&](Hoofdmodule& hoofd) { uit = soort.nummers(hoofd); });
    return uit;
  }

  void LaatAllesStaan(const Soort& soort, int aantal, int vol, Weg weg) {
    const auto nummers = Nummers(soort);
    ASSERT_EQ(nummers.size(), static_cast<std::size_t>(aantal));
    const Bytes eerst = LeesAlles();
    EXPECT_EQ(SlaOp(soort, nummers, weg), vol);
    const std::string verschil = Verschil(eerst, LeesAlles());
    if (verschil.empty()) return;
    ADD_FAILURE() << verschil;
    NoemEerste(soort, nummers, eerst, weg);
  }

  // One session for each record, from the files as they were: which one is it?
  void NoemEerste(const Soort& soort, const std::vector<std::int16_t>& nummers, const Bytes& eerst,
                  Weg weg) {
    for (const auto& [pad, bytes] : eerst) SchrijfBytes(pad, bytes);
    for (const std::int16_t nr : nummers) {
      static_cast<void>(SlaOp(soort, {nr}, weg));
      const std::string verschil = Verschil(eerst, LeesAlles());
      if (verschil.empty()) continue;
      ADD_FAILURE() << soort.naam << " " << nr << " is de eerste: " << verschil;
      return;
    }
  }
};

template <class Bestand>
std::vector<std::int16_t> Gewone(Bestand& bestand) {
  std::vector<std::int16_t> uit;
  for (std::int16_t nr = 2; nr <= bestand.AantalRecords(); ++nr) {
    if (bestand.Lees(nr) && !bestand.IsVolgRecord()) uit.push_back(nr);
  }
  return uit;
}

bool HeeftVijf(Hoofdmodule& hoofd, std::int16_t persoon) {
  Huwtab tab{};
  return persoon > 0 && hoofd.Persoon.VulHuwtab(persoon, tab).heel &&
         AantalBezet(PlaatsenVan(tab)) == 5;
}

// A full list of relations is full for the one that stands in it, too.
bool IsVol(Hoofdmodule& hoofd, std::int16_t nr, const std::vector<std::string>& gemeld) {
  if (gemeld.size() != 2 || gemeld[1] != "gebleven: WijzigRelatie") return false;
  if (!hoofd.Relatie.Lees(nr)) return false;
  const std::int16_t man = hoofd.Relatie.ManNr();
  const std::int16_t vrouw = hoofd.Relatie.VrouwNr();
  if (gemeld[0] == "De Man heeft al 5 relaties.") return HeeftVijf(hoofd, man);
  return gemeld[0] == "De Vrouw heeft al 5 relaties." && HeeftVijf(hoofd, vrouw);
}

bool Nooit(Hoofdmodule&, std::int16_t, const std::vector<std::string>&) {
  return false;
}

void ToonPersoonVorm(Hoofdmodule& hoofd, std::int16_t nr) {
  hoofd.volgers.HuidigPersoonNr = nr;
  hoofd.gesprek.Toon<WijzigPersoon>(hoofd);
  EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, nr);
}

void ToonRelatieVorm(Hoofdmodule& hoofd, std::int16_t nr) {
  hoofd.volgers.HuidigRelatieNr = nr;
  hoofd.gesprek.Toon<WijzigRelatie>(hoofd);
  EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, nr);
}

std::vector<std::int16_t> Personen(Hoofdmodule& hoofd) {
  return Gewone(hoofd.Persoon);
}

std::vector<std::int16_t> Relaties(Hoofdmodule& hoofd) {
  return Gewone(hoofd.Relatie);
}

TEST_P(Ongewijzigd, OpslaanLaatElkeByteStaan) {
  const Geval& geval = GetParam();
  const auto pad = BronMap() / geval.bestand;
  if (!std::filesystem::exists(pad)) GTEST_SKIP() << pad << " is absent";
  ASSERT_NO_FATAL_FAILURE(Importeer(pad));
  for (const Weg weg : {Weg::Meteen, Weg::LangsAlleVelden}) {
    SCOPED_TRACE(weg == Weg::Meteen ? "meteen" : "langs alle velden");
    LaatAllesStaan({"persoon", Personen, ToonPersoonVorm, Nooit}, geval.personen, 0, weg);
    LaatAllesStaan({"relatie", Relaties, ToonRelatieVorm, IsVol}, geval.relaties, geval.vol, weg);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Families, Ongewijzigd,
    ::testing::Values(Geval{"oranje", "voorbeeld/oranje-nassau.ged", 254, 113, 0},
                      Geval{"royal92", "../shared/data/royal92.ged", 3010, 1422, 11}));

}  // namespace
}  // namespace lb77
