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

void BouwFamilie::ZetPersoon(const std::string& veld, std::int32_t waarde) {
  persoon_.Zet(veld, std::to_string(waarde));
}

void BouwFamilie::ZetRelatie(const std::string& veld, std::int32_t waarde) {
  relatie_.Zet(veld, std::to_string(waarde));
}

void BouwFamilie::SchrijfPersoon(std::int16_t nr) {
  volgers_.HuidigPersoonNr = nr;
  EXPECT_TRUE(persoon_.Schrijf());
}

void BouwFamilie::SchrijfRelatie(std::int16_t nr) {
  volgers_.HuidigRelatieNr = nr;
  EXPECT_TRUE(relatie_.Schrijf());
}

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
  if (geslacht != '?') persoon_.Zet("Geslacht", std::string(1, geslacht));
  persoon_.Zet("Voornaam", voornaam);
  persoon_.Zet("Achternaam", achternaam);
  for (const auto& [veld, waarde] : velden) persoon_.Zet(veld, waarde);
  SchrijfPersoon(nr);
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
  ZetRelatie("ManNr", man);
  ZetRelatie("VrouwNr", vrouw);
  for (const auto& [veld, waarde] : velden) relatie_.Zet(veld, waarde);
  SchrijfRelatie(nr);
  ZetKinderen(nr, kinderen);
  if (man != 0) VoegRelatieBij(man, nr);
  if (vrouw != 0) VoegRelatieBij(vrouw, nr);
  return nr;
}

void BouwFamilie::ZetKinderen(std::int16_t relatie, const std::vector<std::int16_t>& kinderen) {
  ASSERT_LE(kinderen.size(), 29U) << "een relatie heeft hoogstens 29 kinderen";
  const std::int16_t vervolg = kinderen.size() > 15 ? NieuweRelatie() : std::int16_t{0};
  EXPECT_TRUE(relatie_.Lees(relatie));
  for (std::size_t i = 0; i < std::min<std::size_t>(kinderen.size(), 15); ++i) {
    ZetRelatie("Kind" + std::to_string(i + 1), kinderen[i]);
  }
  if (vervolg != 0) ZetRelatie("Kind15", -vervolg);
  SchrijfRelatie(relatie);
  if (vervolg != 0) {
    EXPECT_TRUE(relatie_.Lees(vervolg));
    relatie_.Zet("HuwCorr", "Z");
    for (std::size_t i = 14; i < kinderen.size(); ++i) {
      ZetRelatie("Kind" + std::to_string(i - 13), kinderen[i]);
    }
    SchrijfRelatie(vervolg);
  }
  for (const std::int16_t kind : kinderen) {
    EXPECT_TRUE(persoon_.Lees(kind));
    ZetPersoon("Ouders", relatie);
    SchrijfPersoon(kind);
  }
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
  EXPECT_TRUE(persoon_.Lees(persoon));
  ZetPersoon("Relatie1", tab[1]);
  ZetPersoon("Relatie2", tab[2]);
  ZetPersoon("Relatie3", vervolg != 0 ? -vervolg : tab[3]);
  SchrijfPersoon(persoon);
  if (vervolg == 0) return;
  EXPECT_TRUE(persoon_.Lees(vervolg));
  persoon_.Zet("GebCorr", "Z");
  for (std::size_t i = 3; i <= 5; ++i) ZetPersoon("Relatie" + std::to_string(i - 2), tab[i]);
  SchrijfPersoon(vervolg);
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
  ASSERT_TRUE(persoon_.Lees(nr));
  for (const auto& [veld, waarde] : velden) persoon_.Zet(veld, waarde);
  SchrijfPersoon(nr);
}

void BouwFamilie::WijzigRelatie(std::int16_t nr, VeldWaarden velden) {
  ASSERT_TRUE(relatie_.Lees(nr));
  for (const auto& [veld, waarde] : velden) relatie_.Zet(veld, waarde);
  SchrijfRelatie(nr);
}

}  // namespace lb77
