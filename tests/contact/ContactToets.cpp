#include "contact/ContactToets.h"

#include <sstream>

#include "app/Start.h"
#include "contact/ExpGCI.h"
#include "store/SetPaden.h"
#include "text/Namen.h"

namespace lb77 {

std::string Dbf(std::size_t kop, std::size_t breedte, const std::vector<std::string>& rijen,
                std::int64_t aantal) {
  std::string uit(kop, '?');
  const auto telling =
      static_cast<std::uint64_t>(aantal < 0 ? static_cast<std::int64_t>(rijen.size()) : aantal);
  for (std::size_t i = 0; i < 4; ++i) {
    uit[4 + i] = static_cast<char>((telling >> (8 * i)) & 0xFFU);
  }
  for (const std::string& rij : rijen) uit += " " + Links(rij, breedte);
  return uit;
}

std::string PlaatsRij(std::string_view naam, std::string_view prov, std::string_view land) {
  return Links(naam, 25) + Links(prov, 3) + Links(land, 3);
}

std::string CodeRij(std::string_view code, std::string_view naam) {
  return Links(code, 3) + Links(naam, 20);
}

Antwoord NeeGesprek::Bericht(BerichtSoort, Knoppen knoppen, std::string_view) {
  ++getoond_;
  const bool zonderNee = knoppen == Knoppen::OK || knoppen == Knoppen::OKAnnuleren;
  return zonderNee ? Antwoord::OK : Antwoord::Nee;
}

ContactToets::ContactToets() {
  SchrijfIni();
  opties_.geslacht = "M";
}

void ContactToets::SchrijfIni(std::string_view meer) {
  SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\nData=" + Map().string() +
                                           "\r\n[GCI]\r\nData=gci\r\n" + std::string(meer));
}

void ContactToets::MaakTabellen(const std::vector<std::string>& plaatsen) {
  SchrijfBytes(Gci() / "GCIPLT!!.DBF", Dbf(130, 31, plaatsen));
  SchrijfBytes(
      Gci() / "GCIPRV!!.DBF",
      Dbf(98, 23,
          {CodeRij("ZH", "Zuid-Holland"), CodeRij("NB", "Noord-Brabant"), CodeRij("BLG", "Luik")}));
  SchrijfBytes(Gci() / "GCILND!!.DBF",
               Dbf(98, 23,
                   {CodeRij("B", "Belgi\x89"), CodeRij("D", "Duitsland"),
                    CodeRij("NL", "Nederland"), CodeRij("VS", "Verenigde Staten")}));
}

void ContactToets::Exporteer(std::string_view draaiboek, std::string_view verslag,
                             const Plek& plek) {
  const Taak taak = [this](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.volgers.HuidigPersoonNr = -1;
    ExpGCI form(hoofd, opties_);
    hoofd.gesprek.ToonModaal(form);
    EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
    EXPECT_EQ(form.Gelukt(), Log().find("\r\nExport voltooid\r\n") != std::string::npos);
  };
  Verwacht(draaiboek, taak,
           "+ ExpGCI \"Exporteer in HSK Contactdienst formaat (GCI)\"\n" + Regels(verslag) +
               "- ExpGCI\n",
           plek);
}

void ContactToets::Lukt(const Plek& plek) {
  Exporteer("druk BackButton", R"(
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )",
            plek);
}

void ContactToets::MetGesprek(Gesprek& gesprek, const Taak& taak) {
  const VasteKlok klok({.jaar = 2000, .maand = 1, .dag = 1});
  Hoofdmodule hoofd(gesprek, klok, Map());
  ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
  ASSERT_TRUE(Start(hoofd));
  taak(hoofd);
}

std::string ContactToets::LogRegels() const {
  std::string uit = Log();
  std::erase(uit, '\r');
  const std::string begin =
      "Log-file: " + (TekstMap() / "GCI.LOG").string() + "\nStart export (20000101000000)\n";
  EXPECT_EQ(uit.substr(0, begin.size()), begin);
  return uit.substr(std::min(begin.size(), uit.size()));
}

std::string ContactToets::Reeksen() const {
  std::istringstream in(Fam());
  std::string uit;
  std::string regel;
  while (std::getline(in, regel)) {
    EXPECT_EQ(regel.size(), 71U) << regel;  // and its CR
    std::istringstream woorden(regel);
    std::string woord;
    for (bool eerste = true; woorden >> woord; eerste = false) uit += (eerste ? "" : " ") + woord;
    uit += "\n";
  }
  return uit;
}

bool ContactToets::HeeftUitvoer() const {
  std::error_code code;
  for (const auto& plek : std::filesystem::directory_iterator(TekstMap(), code)) {
    if (plek.path().filename().string().starts_with("CONTACT")) return true;
  }
  return false;
}

}  // namespace lb77
