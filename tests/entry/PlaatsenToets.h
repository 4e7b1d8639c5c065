// The page of places, played by scripts.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/ToonPlaatsen.h"
#include "steun/FamilieToets.h"
#include "store/PlaatsVelden.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"

namespace lb77 {

// "2 Amsterdam NH" and so on, a line for each place; what can't be read is left out.
inline std::string PlaatsenIn(PlaatsLB77& plaats, std::int16_t laatste) {
  std::string uit;
  for (std::int16_t nr = 2; nr <= laatste; ++nr) {
    if (!plaats.Lees(nr)) continue;
    uit += GetalTekst(nr) + " " + plaats.Waarde(plaatsveld::Naam) + " " +
           plaats.Waarde(plaatsveld::Prov) + "\n";
  }
  return uit;
}

class PlaatsenToets : public FamilieToets {
 protected:
  // Amsterdam NH (2), Delft ZH (3) and Breda (4).
  void MaakDrie() {
    Bouw().Plaats("Amsterdam", "NH");
    Bouw().Plaats("Delft", "ZH");
    Bouw().Plaats("Breda");
  }
  // Places "P2" to "P<laatste>", written at once.
  void MaakReeks(std::int16_t laatste) {
    const auto aantal = static_cast<std::uint16_t>(laatste - 1);
    std::string bytes{static_cast<char>(aantal & 0xFF), static_cast<char>(aantal >> 8)};
    bytes += Naam("87");
    for (std::int16_t nr = 2; nr <= laatste; ++nr) bytes += "  " + Naam("P" + GetalTekst(nr));
    SchrijfBytes(Bestand(), bytes);
  }
  [[nodiscard]] std::filesystem::path Bestand() const { return SetPaden::Van(Map(), "PROEF").plt; }
  // Makes that place a part of the file that was never written.
  void MaakPlaatsGat(std::size_t nr) {
    std::string bytes = LeesBytes(Bestand());
    bytes.replace((nr - 1) * plaatsveld::kLengte, plaatsveld::kLengte, plaatsveld::kLengte, '\0');
    SchrijfBytes(Bestand(), bytes);
  }

  // Plays a script on the page that starts at `begin`, and expects what stands between its opening
  // and its closing. Focus_ is where the focus was in the end.
  void Speelt(std::string_view draaiboek, std::string_view verslag, std::int16_t begin = 0,
              const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          hoofd.volgers.PlaatsBufNr = begin;
          ToonPlaatsen pagina(hoofd);
          hoofd.gesprek.ToonModaal(pagina);
          focus_ = pagina.FocusVeld() ? pagina.FocusVeld()->Naam() : "";
        },
        "+ ToonPlaatsen \"Toon Plaatsen\"\n" + Regels(verslag) + "- ToonPlaatsen\n", plek);
  }
  // The first and the last code of the page, and the names on it, after a script.
  std::string Pagina(std::string_view draaiboek, std::int16_t begin = 0) {
    std::string uit;
    const SpeelUitslag uitslag =
        Speel(std::string(draaiboek) + "\ndruk BackButton", Sessie([&](Hoofdmodule& hoofd) {
                hoofd.volgers.PlaatsBufNr = begin;
                ToonPlaatsen pagina(hoofd);
                hoofd.gesprek.ToonModaal(pagina);
                uit = pagina.Plaatsen(0).PlaatsnrTekst.Tekst() + "-" +
                      pagina.Plaatsen(9).PlaatsnrTekst.Tekst() + ":";
                pagina.Plaatsen.Elk(
                    [&](int, auto& regel) { uit += " " + regel.PlaatsnaamTekst.Tekst(); });
              }));
    EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
    return uit;
  }
  // The places in the file.
  std::string Plaatsen(std::int16_t laatste = 12) {
    std::string uit;
    Stil([&](Hoofdmodule& hoofd) { uit = "\n" + PlaatsenIn(hoofd.Plaats, laatste); });
    return uit;
  }

  std::string focus_;

 private:
  static std::string Naam(std::string naam) {
    naam.resize(plaatsveld::Naam.breedte, ' ');
    return naam;
  }
};

}  // namespace lb77
