// The start page of the main window: the ways to a family, or the family at hand and the daily jobs.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/Hoofdmodule.h"
#include "app/Wegknoppen.h"
#include "forms/Formulier.h"

namespace lb77 {

// The main window takes it as one member, in a session that a user works by hand.
class Startblad {
 public:
  Startblad(Formulier& formulier, Hoofdmodule& hoofd);

  Label StartKop;
  Label StartTelling;
  Label StartWijziging;
  Knop ZoekButton;
  Knop InvoerButton;
  Knop KwstButton;
  Knop KopieButton;
  Keuzelijst GezienLijst;
  Label StartUitleg;
  Wegknoppen Wegen;
  Knop OpenButton;

  // What a choice in the list of persons does, with the number of that one.
  void BijPersoon(std::function<void(std::int16_t)> doe) { bijPersoon_ = std::move(doe); }
  // Brings all of it in line with the session, and keeps who was seen. Counts only what has changed.
  void WerkBij();

 private:
  // The count of one file, for as long as nobody writes to it.
  struct Telling {
    std::uint64_t stand = 0;
    int aantal = 0;
  };
  void GezienLijstDubbelklik() const;
  void ToonSet();
  void ToonGezien();
  // Takes over who was seen when the set was last used, and keeps who was seen since.
  void Onthoud();
  template <class Tel>
  int Geteld(BestandSoort soort, Tel tel);
  [[nodiscard]] std::string TellingTekst();
  [[nodiscard]] std::string WijzigingTekst() const;
  // When a file of the set was last changed, by whatever program.
  [[nodiscard]] std::optional<Tijdstip> LaatsteBestand() const;

  Hoofdmodule& hoofd_;
  std::function<void(std::int16_t)> bijPersoon_;
  std::array<Telling, 4> tellingen_{};
  std::string gezienVan_;              // the set whose persons are held
  std::vector<std::int16_t> bewaard_;  // as they are on the disk
  std::vector<std::int16_t> inLijst_;  // whom the rows of the list stand for
};

}  // namespace lb77
