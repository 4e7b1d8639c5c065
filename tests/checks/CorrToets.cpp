#include "checks/CorrToets.h"

#include <cstddef>

#include "steun/FaalBestand.h"
#include "steun/TijdelijkeMap.h"
#include "store/Journaal.h"
#include "store/SetPaden.h"

namespace lb77 {

namespace {

SetPaden Paden(const std::filesystem::path& map) {
  return SetPaden::Van(map, "PROEF");
}

std::size_t Plaats(BestandSoort soort, int nr, const Veld& veld) {
  return RecordLengteVan(soort) * static_cast<std::size_t>(nr - 1) + veld.plaats;
}

std::string TweeBytes(int getal) {
  std::string bytes(2, '\0');
  ZetGetalOp(bytes, 0, static_cast<std::int16_t>(getal));
  return bytes;
}

}  // namespace

void CorrToets::Speelt(std::string_view draaiboek, const Taak& taak, std::string_view vorm,
                       std::string_view titel, std::string_view verslag, const Plek& plek) {
  const std::string naam(vorm);
  Verwacht(draaiboek, taak,
           "+ " + naam + " \"" + std::string(titel) + "\"\n" + Regels(verslag) + "- " + naam + "\n",
           plek);
}

CorrToets::Taak CorrToets::Verwijzingen(const CorrSoort& soort, std::int16_t nr) {
  return [&soort, nr](Hoofdmodule& hoofd) {
    hoofd.volgers.HuidigPersoonNr = hoofd.volgers.HuidigRelatieNr = nr;
    hoofd.gesprek.Toon<CorrVerwijzingen>(soort, hoofd);
  };
}

CorrToets::Taak CorrToets::Opmerking(std::int16_t nr) {
  return [nr](Hoofdmodule& hoofd) {
    hoofd.volgers.HuidigOpmNr = nr;
    hoofd.gesprek.Toon<CorrOpmAlg>(hoofd);
  };
}

CorrToets::Beeld CorrToets::Bytes() const {
  Beeld beeld;
  for (const BestandSoort soort : kBestandSoorten) {
    beeld.push_back(LeesBytes(PadVanSoort(Paden(Map()), soort)));
  }
  return beeld;
}

void CorrToets::ZetTerug(const Beeld& beeld) const {
  for (std::size_t i = 0; i < beeld.size(); ++i) {
    SchrijfBytes(PadVanSoort(Paden(Map()), kBestandSoorten.at(i)), beeld[i]);
  }
}

void CorrToets::ZetBytes(BestandSoort soort, int nr, const Veld& veld,
                         std::string_view bytes) const {
  const std::filesystem::path pad = PadVanSoort(Paden(Map()), soort);
  std::string bestand = LeesBytes(pad);
  ASSERT_LE(Plaats(soort, nr, veld) + bytes.size(), bestand.size());
  bestand.replace(Plaats(soort, nr, veld), bytes.size(), bytes);
  SchrijfBytes(pad, bestand);
}

void CorrToets::ZetGetal(BestandSoort soort, int nr, const Veld& veld, int getal) const {
  ZetBytes(soort, nr, veld, TweeBytes(getal));
}

int CorrToets::Getal(BestandSoort soort, int nr, const Veld& veld) const {
  const std::string bestand = LeesBytes(PadVanSoort(Paden(Map()), soort));
  return Plaats(soort, nr, veld) + 2 <= bestand.size() ? GetalOp(bestand, Plaats(soort, nr, veld))
                                                       : -99999;
}

void CorrToets::VerwachtAlleen(Beeld voor, BestandSoort soort, int nr,
                               std::initializer_list<VeldGetal> velden, const Plek& plek) {
  const ::testing::ScopedTrace spoor(plek.file_name(), static_cast<int>(plek.line()), "bytes");
  std::string* bestand = nullptr;
  for (std::size_t i = 0; i < voor.size(); ++i) {
    if (kBestandSoorten.at(i) == soort) bestand = &voor[i];
  }
  for (const VeldGetal& deze : velden) {
    bestand->replace(Plaats(soort, nr, deze.veld), 2, TweeBytes(deze.getal));
  }
  EXPECT_EQ(Bytes(), voor);
}

std::vector<std::string> CorrToets::Labels(const std::string& draaiboek, const Taak& taak) {
  const Beeld voor = Bytes();
  std::vector<std::string> labels;
  const SpeelUitslag uitslag = Speel(
      draaiboek, Sessie([&](Hoofdmodule& hoofd) {
        hoofd.bestanden = Bestandenset();
        hoofd.bestanden.ZetJournaal({[] { return std::string("2000-01-01 00:00:00"); }, {}, {}});
        ASSERT_FALSE(hoofd.bestanden.OpenSet(Paden(Map())));
        taak(hoofd);
        Journaal& journaal = *hoofd.bestanden.HetJournaal();
        for (const HandelingRegel& regel : journaal.Geschiedenis()) labels.push_back(regel.label);
        if (labels.empty()) return;
        EXPECT_NE(Bytes(), voor);
        static_cast<void>(journaal.MaakOngedaan(journaal.Geschiedenis().back().nummer));
      }));
  EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
  EXPECT_EQ(Bytes(), voor);
  std::filesystem::remove_all(Paden(Map()).prs.parent_path() / "JOURNAAL");
  return labels;
}

void CorrToets::BijElkeStoring(const std::string& draaiboek, const Taak& taak,
                               const std::function<void(bool gelukt)>& na) {
  const Beeld voor = Bytes();
  for (int k = 1;; ++k) {
    ASSERT_LT(k, 2000);
    ZetTerug(voor);
    Storing storing;
    storing.bij = k;
    const SpeelUitslag uitslag = Speel(draaiboek, Sessie([&](Hoofdmodule& hoofd) {
                                         hoofd.bestanden = Bestandenset(FalendeOpener(storing));
                                         if (!hoofd.bestanden.OpenSet(Paden(Map()))) taak(hoofd);
                                       }));
    const bool gelukt = !storing.Geweest();
    const ::testing::ScopedTrace spoor(
        __FILE__, __LINE__, "operatie " + std::to_string(k) + "\n" + verslag_ + uitslag.reden);
    na(gelukt);
    if (gelukt || HasFailure()) break;
  }
}

}  // namespace lb77
