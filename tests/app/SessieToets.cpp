#include "app/SessieToets.h"

#include "app/Geschiedenis.h"
#include "app/IniGebruiker.h"
#include "app/KopiePlaats.h"
#include "app/KopieTerugzetten.h"
#include "app/NieuweSet.h"
#include "app/Ongedaan.h"
#include "app/OpenSetForm.h"
#include "app/OverLB77Form.h"
#include "app/SetOpenen.h"
#include "app/Start.h"
#include "app/VerwijderSetForm.h"
#include "store/SetPaden.h"

namespace lb77 {

namespace {

void VervangAlles(std::string& tekst, std::string_view wat, std::string_view door) {
  for (std::size_t i = tekst.find(wat); i != std::string::npos;
       i = tekst.find(wat, i + door.size())) {
    tekst.replace(i, wat.size(), door);
  }
}

}  // namespace

void SessieToets::ZetIni(std::string_view tekst) const {
  std::string inhoud(tekst);
  VervangAlles(inhoud, "\n", "\r\n");
  Schrijf("LIJNBOOM.INI", inhoud);
  std::filesystem::remove(map_ / "LB77_INI.BAK");
}

bool SessieToets::Bestaat(const std::filesystem::path& naam) const {
  return std::filesystem::exists(std::filesystem::symlink_status(map_ / naam));
}

bool SessieToets::IniHeeft(std::string_view regel) const {
  return ("\r\n" + Ini()).find("\r\n" + std::string(regel) + "\r\n") != std::string::npos;
}

std::string SessieToets::MetMap(std::string_view tekst) const {
  std::string uit(tekst);
  VervangAlles(uit, "<map>", map_.string());
  return uit;
}

SpeelToets::Programma SessieToets::Sessie() {
  return [this](Gesprek& gesprek) {
    Hoofdmodule hoofd(gesprek, klok_, map_);
    if (!Start(hoofd)) return;
    MenuWindow menu(hoofd);
    menu.Hang("MaakSet", [&] { Toont<NieuweSet>(hoofd, menu)(gesprek); });
    menu.Hang("OpenSet", [&] { Toont<OpenSetForm>(hoofd, menu)(gesprek); });
    menu.Hang("VerwijderSet", [&] { Toont<VerwijderSetForm>(hoofd, menu)(gesprek); });
    menu.Hang("SetupGebruiker", [&] { Toont<IniGebruiker>(hoofd)(gesprek); });
    menu.Hang("VeiligOngedaan", [&] { MaakLaatsteOngedaan(hoofd.MaakOpslag()); });
    menu.Hang("VeiligGeschiedenis", [&] { Toont<Geschiedenis>(hoofd)(gesprek); });
    menu.Hang("VeiligKopie", [&] { MaakVeiligheidskopie(KopieVan(hoofd), gesprek); });
    menu.Hang("VeiligTerugzetten", [&] { Toont<KopieTerugzetten>(hoofd)(gesprek); });
    menu.Hang("VeiligPlaats", [&] { Toont<KopiePlaats>(hoofd)(gesprek); });
    menu.Hang("AboutLB77", [&] { Toont<OverLB77Form>()(gesprek); });
    gesprek.ToonModaal(menu);
  };
}

SpeelToets::Programma SessieToets::Met(std::function<void(Hoofdmodule&)> doe) {
  return [this, doe = std::move(doe)](Gesprek& gesprek) {
    Hoofdmodule hoofd(gesprek, klok_, map_);
    doe(hoofd);
  };
}

SpeelToets::Programma SessieToets::MetMenu(std::function<void(Hoofdmodule&, MenuWindow&)> doe) {
  return Met([doe = std::move(doe)](Hoofdmodule& hoofd) {
    if (!Start(hoofd)) return;
    MenuWindow menu(hoofd);
    doe(hoofd, menu);
  });
}

void SessieToets::MaakSet(std::string_view naam) {
  Speel("", Met([&](Hoofdmodule& hoofd) {
          const SetPaden paden = SetPaden::Van(map_ / "DATA", naam);
          std::filesystem::create_directories(paden.tekst);
          ASSERT_FALSE(hoofd.bestanden.OpenSet(paden));
          ASSERT_TRUE(hoofd.Persoon.NieuwAdm());
          ASSERT_TRUE(hoofd.Relatie.NieuwAdm());
          ASSERT_TRUE(hoofd.Opmerking.NieuwAdm());
          ASSERT_TRUE(hoofd.Plaats.NieuwAdm());
        }));
}

}  // namespace lb77
