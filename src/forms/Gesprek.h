// The one door to the user: boxes, modal forms, file questions, printing, repainting.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lb77 {

class Formulier;
struct Tekening;
struct Vellen;

// The symbol of a message box: none, information, exclamation mark (warnings), question mark,
// stop symbol (errors).
enum class BerichtSoort { Geen, Info, Uitroep, Vraag, Stop };
// NeeJa is JaNee with No for whoever only presses Enter.
enum class Knoppen { OK, OKAnnuleren, JaNee, JaNeeAnnuleren, NeeJa };
enum class Antwoord { OK, Annuleren, Ja, Nee };

enum class BestandsWijze { Openen, Opslaan, Map };

// A question for a file or a directory. `filter` is "naam|patroon|naam|patroon...".
struct BestandsVraag {
  BestandsWijze wijze = BestandsWijze::Openen;
  std::string filter;
  std::filesystem::path beginmap;
};

// Pages of fixed-pitch text for the printer, each a list of lines.
struct Afdruk {
  std::string titel;
  std::vector<std::vector<std::string>> paginas;
  // Of pages that are some of many: the number of the first, and how many there are in all. 0 when
  // these are all.
  std::size_t eerste = 1;
  std::size_t totaal = 0;
};
// Does anything stand on the page? A page without gets no sheet.
[[nodiscard]] bool StaatErIets(const std::vector<std::string>& pagina);

// Two implementations: the window and the script player. A form cannot tell them apart.
class Gesprek {
 public:
  Gesprek() = default;
  virtual ~Gesprek() = default;
  Gesprek(const Gesprek&) = delete;
  Gesprek& operator=(const Gesprek&) = delete;

  // Shows a message box and gives the button that was pressed. With a single button the answer is
  // OK; closing the box counts as its Cancel or No.
  virtual Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) = 0;

  // An information box with OK that may carry a tick box `vinkje`; True when it was ticked. A
  // script sees every box, so there the answer is False.
  virtual bool BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) = 0;

  // The chosen path; empty when the user cancelled.
  virtual std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) = 0;

  // Sends pages to the printer; False when the user cancelled or the printer failed.
  virtual bool DrukAf(const Afdruk& afdruk) = 0;

  // Writes a drawing as a PDF with a page for each sheet; what went wrong, nothing when all of it is
  // written. Without a window there is nobody who can.
  [[nodiscard]] virtual std::optional<std::string> MaakPdf(const std::filesystem::path& pad,
                                                           const Tekening& tekening,
                                                           const Vellen& vellen);

  // Repaints a form during long work; cheap enough to be called for every record. What the user
  // does meanwhile is dropped, but for a stop request, which Formulier keeps.
  virtual void Ververs(Formulier& formulier) = 0;

  // The test for a stop request of a form that works.
  [[nodiscard]] virtual bool StopGevraagd(Formulier& formulier) = 0;

  // Runs the form's whole life: loaded, shown, activated, what the user does, closed. A form that
  // closes while it loads is never shown, and has no closed event. Returns when the form has closed;
  // one that is hidden when its handler is done counts as closed, as nobody could reach it.
  // Forms that have closed leave the screen before another is shown, also when a handler of theirs
  // shows it.
  void ToonModaal(Formulier& formulier);
  // Makes a form of kind F and shows it.
  template <class F, class... Args>
  void Toon(Args&&... args) {
    F formulier(std::forward<Args>(args)...);
    ToonModaal(formulier);
  }

  // The usual boxes.
  void Waarschuw(std::string_view tekst) { Meld(BerichtSoort::Uitroep, tekst); }
  void Fout(std::string_view tekst) { Meld(BerichtSoort::Stop, tekst); }
  void Informeer(std::string_view tekst) { Meld(BerichtSoort::Info, tekst); }
  void Meld(BerichtSoort soort, std::string_view tekst) {
    static_cast<void>(Bericht(soort, Knoppen::OK, tekst));
  }
  // Yes or No, with a question mark; True for Yes.
  [[nodiscard]] bool Vraag(std::string_view tekst) {
    return Bericht(BerichtSoort::Vraag, Knoppen::JaNee, tekst) == Antwoord::Ja;
  }
  // The same before something that cannot be undone: Enter is No.
  [[nodiscard]] bool VraagBedacht(std::string_view tekst) {
    return Bericht(BerichtSoort::Vraag, Knoppen::NeeJa, tekst) == Antwoord::Ja;
  }

 protected:
  // Puts the form on the screen, runs it until it has closed, and takes it away. A handler of the
  // form may still be at work when it is taken away; Vergeet comes when it will not be used again.
  virtual void Open(Formulier& formulier) = 0;
  virtual void Voer(Formulier& formulier) = 0;
  virtual void Dicht(Formulier& formulier) = 0;
  virtual void Vergeet(Formulier&) {}

 private:
  struct Getoond {
    Formulier* formulier;
    bool weg = false;
  };
  void HaalWeg(Getoond& getoond);
  void HaalGeslotenWeg();
  void RuimBovenste();

  std::vector<Getoond> getoond_;  // the forms that are open or have a handler at work
};

}  // namespace lb77
