// The player's side of the conversation: a script in the user's place, a transcript on the screen's.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Gesprek.h"
#include "script/Instructie.h"
#include "script/Voorraad.h"

namespace lb77 {

// How a script is played; all of it may be left out.
struct SpeelOpties {
  // Relative paths of `bestand` are resolved against it; empty leaves them as they are.
  std::filesystem::path basismap = {};
  // Tells each instruction ahead of what it does, as "$ vul Naam Jan", so that one that was swallowed
  // is seen.
  bool echo = false;
  // Called with each text that appears, in UTF-8: of a box, a form's title, a file question's filter.
  std::function<void(std::string_view utf8)> getoond = {};
};

// How it went. All texts are UTF-8.
struct SpeelUitslag {
  int status = 0;                       // 0: played to its end; 1: could not be played
  std::string reden;                    // why not, with the line; empty with status 0
  std::vector<std::string> ongebruikt;  // answers, files and stops that nothing asked for
};

// Plays a list of instructions against the program that talks to it. A form that a handler shows
// takes the next instructions until it has closed; then the handler goes on. When the script ends
// or cannot go on, an exception of its own unwinds the program; Speel alone starts and ends one.
class Speler final : public Gesprek {
 public:
  using Uitvoer = std::function<void(std::string_view regel)>;

  // The instructions outlive the player.
  Speler(const std::vector<Instructie>& instructies, Uitvoer uit, SpeelOpties opties);

  // Runs the program from its start-up to its end, or to the end of the script.
  [[nodiscard]] SpeelUitslag Speel(const std::function<void(Gesprek&)>& programma);

  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override;
  bool BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) override;
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override;
  bool DrukAf(const Afdruk& afdruk) override;
  void Ververs(Formulier& formulier) override;
  [[nodiscard]] bool StopGevraagd(Formulier& formulier) override;

 protected:
  void Open(Formulier& formulier) override;
  void Voer(Formulier& formulier) override;
  void Dicht(Formulier& formulier) override;

 private:
  struct Afgebroken {};  // unwinds the program; no std::exception, so that nobody else catches it

  void ZetKopKlaar();
  [[nodiscard]] const Instructie& Neem();
  [[nodiscard]] const Instructie& Volgende();
  void Doe(Formulier& formulier, const Instructie& instructie);
  void Toon(Formulier& formulier, const Instructie& instructie);
  [[nodiscard]] Antwoord Kies(Knoppen knoppen, std::string_view tekst);
  [[nodiscard]] bool IsAfgebroken() const;
  [[noreturn]] void Breek();
  [[noreturn]] void Weiger(std::string_view reden);
  void Noteer(std::string_view windows) const;

  const std::vector<Instructie>& instructies_;
  Uitvoer uit_;
  SpeelOpties opties_;
  Voorraad voorraad_;
  std::size_t volgende_ = 0;
  int regel_ = 0;  // of the last instruction taken, 0 before the first
  bool afgebroken_ = false;
  SpeelUitslag uitslag_;
};

// Plays a script from its first line to its last. `uit` gets the transcript line by line, in UTF-8
// and without line ends.
[[nodiscard]] SpeelUitslag Speel(const std::vector<Instructie>& instructies,
                                 const std::function<void(Gesprek&)>& programma,
                                 const std::function<void(std::string_view regel)>& uit,
                                 SpeelOpties opties = {});

}  // namespace lb77
