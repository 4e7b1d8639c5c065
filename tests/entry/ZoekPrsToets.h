// The list of persons, played by scripts.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/ZoekPrs.h"
#include "steun/FamilieToets.h"
#include "text/Getallen.h"

namespace lb77 {

class ZoekPrsToets : public FamilieToets {
 protected:
  // Plays a script on the list and expects what stands between its opening and its closing. The
  // list is left by its BackButton.
  void Speelt(std::string_view draaiboek, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    Verwacht(
        std::string(draaiboek) + "\ndruk BackButton",
        [](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = 0;
          ZoekPrs lijst(hoofd);
          hoofd.gesprek.ToonModaal(lijst);
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 0);
        },
        "+ ZoekPrs \"Zoek Persoon\"\n" + Regels(verslag) + "- ZoekPrs\n", plek);
  }

  // The numbers that the list shows after the clicks of a script.
  std::string Pagina(std::string_view draaiboek, std::int16_t begin = 0) {
    const auto programma = Sessie([begin](Hoofdmodule& hoofd) {
      hoofd.volgers.HuidigPersoonNr = begin;
      ZoekPrs lijst(hoofd);
      hoofd.gesprek.ToonModaal(lijst);
    });
    std::string boek(draaiboek);
    for (int rij = 1; rij <= ZoekPrs::kRijen; ++rij) {
      boek += "\ntoon RecordNrPrs(" + GetalTekst(rij) + ")";
    }
    const SpeelUitslag uitslag = Speel(boek, programma);
    EXPECT_EQ(uitslag.reden, "");
    return Zichtbaar();
  }

 private:
  std::string Zichtbaar() const {
    std::string uit;
    std::size_t begin = 0;
    while (begin < verslag_.size()) {
      const std::size_t eind = verslag_.find('\n', begin);
      const std::string regel = verslag_.substr(begin, eind - begin);
      begin = eind + 1;
      if (!regel.starts_with("= RecordNrPrs") || regel.ends_with("[verborgen]")) continue;
      const std::size_t nr = regel.find('"') + 1;
      uit += regel.substr(nr, regel.find('"', nr) - nr) + " ";
    }
    return uit;
  }
};

// The numbers of a page, as Pagina tells them.
inline std::string Nummers(int van, int tot) {
  std::string uit;
  for (int nr = van; nr <= tot; ++nr) uit += GetalTekst(nr) + " ";
  return uit;
}

}  // namespace lb77
