// Every road that writes, dying, failing or losing the power at each operation of the four files and
// of the journal: what stood there comes back, or what stands there opens.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "app/KopieBestanden.h"
#include "app/Start.h"
#include "checks/CorrAdm.h"
#include "checks/CorrOpmAdm.h"
#include "checks/CorrOpmAlg.h"
#include "checks/CorrPlts.h"
#include "checks/CorrVerwijzingen.h"
#include "entry/HuwActies.h"
#include "entry/KindActies.h"
#include "entry/ToonPlaatsen.h"
#include "entry/WijzigOpm.h"
#include "entry/WijzigPersoon.h"
#include "entry/WijzigRelatie.h"
#include "exchange/ImpGedcom.h"
#include "steun/FamilieToets.h"
#include "steun/NepGesprek.h"
#include "steun/ProefSchijf.h"
#include "store/Handeling.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

using Wijze = ProefSchijf::Wijze;

// What the user does, and what he has in front of him.
struct Weg {
  const char* naam;
  const char* draaiboek;
  void (*doe)(Hoofdmodule&);
  bool inLegeSet = false;
};

void PrintTo(const Weg& weg, std::ostream* uit) {
  *uit << weg.naam;
}

template <class F>
void ToonPersoonVan(Hoofdmodule& hoofd, std::int16_t nr) {
  hoofd.volgers.HuidigPersoonNr = nr;
  hoofd.gesprek.Toon<F>(hoofd);
}

void ToonOpmerking(Hoofdmodule& hoofd, std::int16_t rubriek) {
  hoofd.gesprek.Toon<WijzigOpm>(hoofd, MaakOpmVraag(2, rubriek, "Jan"), std::int16_t{1});
}

// The set with each byte of the second half of its records another, and longer or shorter.
void ZetKopieTerug(Hoofdmodule& hoofd) {
  std::map<BestandSoort, std::string> inhoud;
  for (const BestandSoort soort : kBestandSoorten) {
    RecordBestand& bestand = hoofd.bestanden.Bestand(soort);
    std::string& bytes = inhoud[soort];
    for (std::int32_t nr = 1; BeginVan({soort, nr}) < bestand.Lengte(); ++nr) {
      std::string record(bestand.RecordLengte(), '\0');
      if (bestand.Lees(nr, record).fout) return;
      bytes += record;
    }
    const std::size_t half = bytes.size() / 2;
    for (std::size_t i = half; i < bytes.size(); ++i) bytes[i] = static_cast<char>(bytes[i] ^ 1);
    bytes.resize(soort == BestandSoort::Relaties ? half + 7 : bytes.size() + 300, 'x');
  }
  SysteemFout nietVeilig;
  static_cast<void>(
      VervangInhoud(hoofd.bestanden, inhoud, "Veiligheidskopie teruggezet", nietVeilig));
}

constexpr const char* kImport =
    "vul Bestandsnaam IN.GED\ndruk OKButton\ndruk BackButton\ndruk BackButton";

void Importeer(Hoofdmodule& hoofd) {
  hoofd.gesprek.Toon<ImpGedcom>(hoofd);
}

const Weg kWegen[] = {
    {"PersoonWijzigen", "vul BeroepTekst smid\ndruk Opslaan",
     [](Hoofdmodule& h) { ToonPersoonVan<WijzigPersoon>(h, 2); }},
    {"PersoonToevoegen",
     "vul VoorNm Bram\nvul RecordNrPa 2\nvul RecordNrMa 7\nantwoord Ja\ndruk Opslaan",
     [](Hoofdmodule& h) { ToonPersoonVan<WijzigPersoon>(h, -1); }},
    {"PersoonVerhuizen", "vul VoorNm Kees\nvul RelNrOuders 3\nantwoord Ja\ndruk Opslaan",
     [](Hoofdmodule& h) { ToonPersoonVan<WijzigPersoon>(h, 4); }},
    {"RelatieWijzigen", "vul OtrDatum 1-2-1900\nvul RecordNrMan 6\ndruk Opslaan",
     [](Hoofdmodule& h) {
       h.volgers.HuidigRelatieNr = 2;
       h.gesprek.Toon<WijzigRelatie>(h);
     }},
    {"KindErbij", "antwoord Ja\nvul RecordNr 8\ndruk OKButton",
     [](Hoofdmodule& h) { VoegKindToe(h, 2); }},
    {"KindEraf", "vul RecordNr 4\ndruk OKButton", [](Hoofdmodule& h) { HaalKindWeg(h, 2, false); }},
    {"KinderenOrdenen", "antwoord Ja", [](Hoofdmodule& h) { OrdenKinderen(h, 2); }},
    {"KindVerplaatsen", "antwoord Nee\nvul RecordNr 5\ndruk OKButton\nvul VolgNum 1\ndruk OKButton",
     [](Hoofdmodule& h) { OrdenKinderen(h, 2); }},
    {"RelatieVerplaatsen",
     "antwoord Nee\nvul RecordNr 4\ndruk OKButton\nvul VolgNum 1\ndruk OKButton",
     [](Hoofdmodule& h) { OrdenRelaties(h, 2); }},
    {"RelatieToevoegen", "antwoord Ja\nvul RecordNr 7\ndruk OKButton",
     [](Hoofdmodule& h) { NieuweRelatieVan(h, 2); }},
    {"OpmerkingToevoegen", "vul OpmTekst Zo heette zijn grootvader ook\ndruk Opslaan",
     [](Hoofdmodule& h) { ToonOpmerking(h, persoonrubriek::kVoornaam); }},
    {"OpmerkingWeg", "vul OpmTekst\ndruk Opslaan",
     [](Hoofdmodule& h) { ToonOpmerking(h, persoonrubriek::kBeroep); }},
    {"PlaatsToevoegen", "",
     [](Hoofdmodule& h) { static_cast<void>(h.Plaats.NrOfNieuw("Goes", "ZE")); }},
    {"PlaatsenWijzigen",
     "vul PlaatsnaamTekst(0) Leiden\nvul PlaatsnaamTekst(5) Goes\ndruk OKButton",
     [](Hoofdmodule& h) { h.gesprek.Toon<ToonPlaatsen>(h); }},
    {"AantalCorrigeren", "antwoord Ja\nvul nieuw_aantal 3\ndruk OKButton\ndruk BackButton",
     [](Hoofdmodule& h) { h.gesprek.Toon<CorrAdm>(kCorrPrsAdm, h); }},
    {"OpmerkingentellingCorrigeren",
     "antwoord Ja\nvul nieuw_in_gebruik 1\ndruk OKButton\ndruk BackButton",
     [](Hoofdmodule& h) { h.gesprek.Toon<CorrOpmAdm>(h); }},
    {"VerwijzingenCorrigeren",
     "vul RelNrOuders 3\nvul RubriekTekst(1) +\ndruk OKButton\ndruk BackButton",
     [](Hoofdmodule& h) {
       h.volgers.HuidigPersoonNr = 2;
       h.gesprek.Toon<CorrVerwijzingen>(kCorrPrsAlg, h);
     }},
    {"OpmerkingCorrigeren", "vul BijRecordTekst 3\ndruk OKButton\ndruk BackButton",
     [](Hoofdmodule& h) {
       h.volgers.HuidigOpmNr = 2;
       h.gesprek.Toon<CorrOpmAlg>(h);
     }},
    {"PlaatsOveralVervangen", "druk OKButton",
     [](Hoofdmodule& h) {
       h.gesprek.Toon<CorrPltsTemp>(h, std::int16_t{0}, std::int16_t{2}, "Plaatscode vervangen");
     }},
    {"KopieTerugzetten", "", ZetKopieTerug},
    {"OngedaanMaken", "",
     [](Hoofdmodule& h) { static_cast<void>(h.bestanden.HetJournaal()->MaakOngedaan(1)); }},
    {"Inlezen", kImport, Importeer},
    {"InlezenInEenLegeSet", kImport, Importeer, true},
};

class VeiligeWegen : public FamilieToets, public ::testing::WithParamInterface<Weg> {
 protected:
  void SetUp() override {
    SchrijfBytes(Map() / "LIJNBOOM.INI", "[Sets]\r\nSet1=PROEF,proef\r\n");
    SchrijfBytes(Map() / "IN.GED",
                 "0 HEAD\n0 @I1@ INDI\n1 NAME Jan /Dam/\n1 BIRT\n2 PLAC Delft\n1 NOTE een\n"
                 "2 CONT twee\n1 FAMS @F1@\n0 @I2@ INDI\n1 NAME Anna //\n1 FAMC @F1@\n"
                 "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n0 TRLR\n");
    std::filesystem::create_directories(Paden().tekst);
    if (!GetParam().inLegeSet) MaakFamilie();
    for (const BestandSoort soort : kBestandSoorten) {
      schijf_.Bytes(Naam(soort)) = LeesBytes(PadVanSoort(Paden(), soort));
    }
    Open();
    {
      Handeling handeling(bestanden_, "Eerder");
      for (const BestandSoort soort : kBestandSoorten) {
        const auto laatste =
            static_cast<std::int32_t>(bestanden_.Bestand(soort).Lengte() / RecordLengteVan(soort));
        std::string bytes(RecordLengteVan(soort), '\0');
        ASSERT_FALSE(bestanden_.Bestand(soort).Lees(laatste, bytes).fout);
        bytes.back() = static_cast<char>(bytes.back() ^ 1);
        ASSERT_FALSE(bestanden_.Bestand(soort).Schrijf(laatste, bytes));
      }
      ASSERT_FALSE(handeling.Voltooi());
    }
    bestanden_.SluitAlles();
    begin_ = schijf_.Neem();
  }

  void MaakFamilie() {
    Bouw().Plaats("Amsterdam", "NH");
    Bouw().Man("Jan", "Dam");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("Kees", "Dam", {{"GebDatum", "01-01-1902"}});
    Bouw().Vrouw("Truus", "Dam", {{"GebDatum", "01-01-1901"}});
    Bouw().Man("Piet", "Berg");
    Bouw().Vrouw("Mien", "Kuil");
    Bouw().Man("Wim", "Berg");
    Bouw().Relatie(2, 3, {4, 5});
    Bouw().Relatie(6, 7, {8});
    Bouw().Relatie(2, 0);
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"eerste regel", "tweede"}, 4096);
  }

  [[nodiscard]] SetPaden Paden() const { return SetPaden::Van(Map(), "PROEF"); }
  [[nodiscard]] std::string Naam(BestandSoort soort) const {
    return PadVanSoort(Paden(), soort).filename().string();
  }
  // The four files of a disk.
  ProefSchijf::Beeld Vier(const ProefSchijf::Beeld& beeld) const {
    ProefSchijf::Beeld vier;
    for (const BestandSoort soort : kBestandSoorten) vier[Naam(soort)] = beeld.at(Naam(soort));
    return vier;
  }

  void OpenIn(Bestandenset& bestanden) {
    bestanden = Bestandenset(schijf_.Opener());
    bestanden.ZetJournaal(schijf_.Bron());
    ASSERT_FALSE(bestanden.OpenSet(Paden()));
  }
  void Open() { OpenIn(bestanden_); }
  Journaal& Dagboek() { return *bestanden_.HetJournaal(); }

  // The user goes the road; at operation `k` of it something happens. False when there are fewer.
  bool Loop(Wijze wijze, int k) {
    schijf_.Zet(begin_);
    schijf_.wijze = wijze;
    schijf_.lezenTelt = wijze == Wijze::Fout;
    static_cast<void>(Speel(GetParam().draaiboek, Sessie([&](Hoofdmodule& hoofd) {
                              if (!Start(hoofd)) return;
                              hoofd.ActieveSetNaam = "PROEF";
                              hoofd.Ini.IniZet("Systeem", "Set", "PROEF");
                              OpenIn(hoofd.bestanden);
                              schijf_.bij = k == 0 ? 0 : schijf_.teller + k;
                              GetParam().doe(hoofd);
                            })));
    return schijf_.Geweest();
  }

  // The program is started again. What came of the road is nothing, all, or asked about.
  void Controleer(const ProefSchijf::Beeld& klaar, bool gestorven) {
    Open();
    const ProefSchijf::Beeld nu = schijf_.Neem();
    if (Dagboek().Onvoltooid()) {
      ASSERT_FALSE(Dagboek().Herstel());
      EXPECT_EQ(Vier(schijf_.Neem()), Vier(begin_)) << "na Ja";
      EXPECT_FALSE(Dagboek().Onvoltooid());
      bestanden_.SluitAlles();
      schijf_.Zet(nu);
      Open();
      ASSERT_FALSE(Dagboek().Behoud());
      EXPECT_EQ(Vier(schijf_.Neem()), Vier(nu)) << "na Nee";
      ControleerAnderen();
      ControleerOpenen();
    } else if (gestorven) {
      EXPECT_TRUE(Vier(nu) == Vier(begin_) || Vier(nu) == klaar) << "half, en niet gevraagd";
    }
    if (Vier(schijf_.Neem()) != Vier(begin_)) {
      const OngedaanUitslag uitslag = Dagboek().MaakOngedaan(2);
      EXPECT_TRUE(uitslag) << OngedaanTekst(uitslag);
    }
    EXPECT_EQ(Vier(schijf_.Neem()), Vier(begin_)) << "na ongedaan maken";
    bestanden_.SluitAlles();
  }

  // No record but those of the action is another.
  void ControleerAnderen() {
    std::set<RecordPlek> geraakt;
    for (const RecordWijziging& wijziging : Dagboek().Wijzigingen(2))
      geraakt.insert(wijziging.plek);
    for (const BestandSoort soort : kBestandSoorten) {
      const std::string& voor = begin_.at(Naam(soort));
      const std::string& na = schijf_.Bytes(Naam(soort));
      const std::size_t lengte = RecordLengteVan(soort);
      for (std::int32_t nr = 1; BeginVan({soort, nr}) < voor.size(); ++nr) {
        if (geraakt.contains({soort, nr})) continue;
        const auto plaats = static_cast<std::size_t>(BeginVan({soort, nr}));
        ASSERT_LE(plaats, na.size());
        EXPECT_EQ(na.substr(plaats, lengte), voor.substr(plaats, lengte)) << nr;
      }
    }
  }
  void ControleerOpenen() {
    Volgers volgers;
    NepGesprek gesprek;
    Schrijfwijze schrijfwijze;
    const Opslag opslag{bestanden_, volgers, gesprek, schrijfwijze};
    EXPECT_GE(PersoonLB77(opslag).AantalRecords(), 1);
    EXPECT_GE(RelatieLB77(opslag).AantalRecords(), 1);
    EXPECT_GE(PlaatsLB77(opslag).AantalRecords(), 1);
  }

  ProefSchijf schijf_;
  Bestandenset bestanden_;
  ProefSchijf::Beeld begin_;
  std::mt19937 toeval_{77};
};

TEST_P(VeiligeWegen, OveralGestorvenOfMisluktKomtAllesTerug) {
  EXPECT_FALSE(Loop(Wijze::Fout, 0));
  const ProefSchijf::Beeld klaar = Vier(schijf_.Neem());
  ASSERT_NE(klaar, Vier(begin_)) << verslag_;
  int operaties = 0;
  for (const Wijze wijze : {Wijze::Dood, Wijze::Fout, Wijze::Kort, Wijze::Vol}) {
    for (int k = 1; Loop(wijze, k) && !HasFailure(); ++k) {
      const ::testing::ScopedTrace spoor(__FILE__, __LINE__,
                                         "wijze " + std::to_string(static_cast<int>(wijze)) +
                                             ", operatie " + std::to_string(k) + "\n" + verslag_);
      schijf_.Herstart();
      Controleer(klaar, wijze == Wijze::Dood);
      ++operaties;
    }
  }
  EXPECT_GT(operaties, 30);
}

// Of what was not brought to the disk any part is lost.
TEST_P(VeiligeWegen, StroomuitvalKostHoogstensDeBewerkingZelf) {
  static_cast<void>(Loop(Wijze::Dood, 0));
  const ProefSchijf::Beeld klaar = Vier(schijf_.Neem());
  schijf_.Stroomuitval(toeval_);
  EXPECT_EQ(Vier(schijf_.Neem()), klaar);
  for (int k = 1; Loop(Wijze::Dood, k) && !HasFailure(); ++k) {
    const ::testing::ScopedTrace spoor(__FILE__, __LINE__, "operatie " + std::to_string(k));
    schijf_.Stroomuitval(toeval_);
    Controleer(klaar, true);
  }
}

INSTANTIATE_TEST_SUITE_P(Lijst, VeiligeWegen, ::testing::ValuesIn(kWegen),
                         [](const auto& info) { return std::string(info.param.naam); });

}  // namespace
}  // namespace lb77
