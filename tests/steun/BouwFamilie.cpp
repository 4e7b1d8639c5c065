#include "steun/BouwFamilie.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lb77 {

namespace {

OpmRegels TienRegels(const std::vector<std::string>& regels) {
  EXPECT_LE(regels.size(), OpmRegels{}.size());
  OpmRegels tien;
  std::copy_n(regels.begin(), std::min(regels.size(), tien.size()), tien.begin());
  return tien;
}

}  // namespace

std::int16_t BouwFamilie::NieuwePersoon() {
  const auto nr = static_cast<std::int16_t>(persoon_.AantalRecords() + 1);
  EXPECT_TRUE(persoon_.Nieuw(nr));
  return nr;
}

std::int16_t BouwFamilie::NieuweRelatie() {
  const auto nr = static_cast<std::int16_t>(relatie_.AantalRecords() + 1);
  EXPECT_TRUE(relatie_.Nieuw(nr));
  return nr;
}

std::int16_t BouwFamilie::Persoon(char geslacht, std::string_view voornaam,
                                  std::string_view achternaam, VeldWaarden velden) {
  const std::int16_t nr = NieuwePersoon();
  std::vector<VeldWaarde> alle{{"Voornaam", voornaam}, {"Achternaam", achternaam}};
  if (geslacht != '?') alle.emplace_back("Geslacht", geslacht);
  alle.insert(alle.end(), velden);
  EXPECT_TRUE(persoon_.Wijzig(nr, alle));
  return nr;
}

std::int16_t BouwFamilie::Plaats(std::string_view naam, std::string_view prov) {
  const auto nr = static_cast<std::int16_t>(plaats_.AantalRecords() + 1);
  EXPECT_TRUE(plaats_.Nieuw(nr));
  plaats_.Zet("Plaatsnaam", naam);
  plaats_.Zet("Provcode", prov);
  EXPECT_TRUE(plaats_.Schrijf(nr));
  return nr;
}

std::int16_t BouwFamilie::Relatie(std::int16_t man, std::int16_t vrouw,
                                  const std::vector<std::int16_t>& kinderen, VeldWaarden velden) {
  const std::int16_t nr = NieuweRelatie();
  std::vector<VeldWaarde> alle{{"ManNr", man}, {"VrouwNr", vrouw}};
  alle.insert(alle.end(), velden);
  EXPECT_TRUE(relatie_.Wijzig(nr, alle));
  ZetKinderen(nr, kinderen);
  if (man != 0) VoegRelatieBij(man, nr);
  if (vrouw != 0) VoegRelatieBij(vrouw, nr);
  return nr;
}

void BouwFamilie::ZetKinderen(std::int16_t relatie, const std::vector<std::int16_t>& kinderen) {
  ASSERT_LE(kinderen.size(), 29U) << "een relatie heeft hoogstens 29 kinderen";
  const std::int16_t vervolg = kinderen.size() > 15 ? NieuweRelatie() : std::int16_t{0};
  std::vector<std::string> namen;
  for (int slot = 1; slot <= 15; ++slot) namen.push_back("Kind" + std::to_string(slot));
  std::vector<VeldWaarde> eerste;
  for (std::size_t i = 0; i < std::min<std::size_t>(kinderen.size(), 15); ++i) {
    eerste.emplace_back(namen[i], kinderen[i]);
  }
  if (vervolg != 0) eerste.emplace_back(namen[14], -vervolg);
  EXPECT_TRUE(relatie_.Wijzig(relatie, eerste));
  if (vervolg != 0) {
    std::vector<VeldWaarde> rest{{"HuwCorr", 'Z'}};
    for (std::size_t i = 14; i < kinderen.size(); ++i)
      rest.emplace_back(namen[i - 14], kinderen[i]);
    EXPECT_TRUE(relatie_.Wijzig(vervolg, rest));
  }
  for (const std::int16_t kind : kinderen)
    EXPECT_TRUE(persoon_.Wijzig(kind, {{"Ouders", relatie}}));
}

void BouwFamilie::VoegRelatieBij(std::int16_t persoon, std::int16_t relatie) {
  Huwtab tab{};
  ASSERT_TRUE(persoon_.VulHuwtab(persoon, tab).heel);
  // A slot between two others may be free.
  const auto vrij = std::find(tab.begin() + 1, tab.end(), 0);
  ASSERT_NE(vrij, tab.end()) << "een persoon heeft hoogstens vijf relaties";
  *vrij = relatie;
  EXPECT_TRUE(persoon_.Lees(persoon));
  std::int16_t vervolg =
      persoon_.relatie3() < 0 ? static_cast<std::int16_t>(-persoon_.relatie3()) : std::int16_t{0};
  if (tab[4] != 0 && vervolg == 0) vervolg = NieuwePersoon();
  EXPECT_TRUE(persoon_.Wijzig(persoon, {{"Relatie1", tab[1]},
                                        {"Relatie2", tab[2]},
                                        {"Relatie3", vervolg != 0 ? -vervolg : tab[3]}}));
  if (vervolg == 0) return;
  EXPECT_TRUE(persoon_.Wijzig(
      vervolg,
      {{"GebCorr", 'Z'}, {"Relatie1", tab[3]}, {"Relatie2", tab[4]}, {"Relatie3", tab[5]}}));
}

void BouwFamilie::OpmerkingBijPersoon(std::int16_t nr, std::int16_t rubriek,
                                      const std::vector<std::string>& regels, std::int16_t prog) {
  ASSERT_TRUE(persoon_.Lees(nr));
  EXPECT_TRUE(opmerking_.SchrijfOpmerking(TienRegels(regels), {}, 0, nr, 0, persoon_.OpmRecord(),
                                          prog, rubriek));
}

void BouwFamilie::OpmerkingBijRelatie(std::int16_t nr, std::int16_t rubriek,
                                      const std::vector<std::string>& regels, std::int16_t prog) {
  ASSERT_TRUE(relatie_.Lees(nr));
  EXPECT_TRUE(opmerking_.SchrijfOpmerking(TienRegels(regels), {}, 0, 0, nr, relatie_.OpmRecord(),
                                          prog, rubriek));
}

void BouwFamilie::WijzigPersoon(std::int16_t nr, VeldWaarden velden) {
  EXPECT_TRUE(persoon_.Wijzig(nr, velden));
}

void BouwFamilie::WijzigRelatie(std::int16_t nr, VeldWaarden velden) {
  EXPECT_TRUE(relatie_.Wijzig(nr, velden));
}

void BouwFamilie::ZetAantalPersonen(std::int16_t aantal) {
  EXPECT_TRUE(persoon_.LeesAdmin());
  persoon_.ZetAantal(aantal);
  EXPECT_TRUE(persoon_.SchrijfAdmin());
}

}  // namespace lb77
