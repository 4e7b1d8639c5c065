// A picture on the screen: what it tells, and how it goes to paper or into a file.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "app/JaNeeVak.h"
#include "forms/Beeldvlak.h"
#include "pictures/BeeldPersoon.h"
#include "pictures/Beeldlezer.h"
#include "pictures/Papier.h"
#include "reporting/KetenFormulier.h"

namespace lb77 {

// What the user chose, for whoever makes the picture.
struct BeeldKeuzen {
  int generaties = 1;
  int vorm = 0;  // which of the shapes of the kind, from 0
  Kleurwijze kleuren = Kleurwijze::Generatie;
  Nummering nummers = Nummering::Geen;
  bool jaren = true;
};

// What tells one picture from another. An empty name ends the choices; without any the field is hidden.
struct BeeldSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view hulp;
  std::array<std::string_view, 3> vormen;
  std::array<std::string_view, 3> kleuren;
  bool kwartieren = false;  // asks for numbers and years, which others have in their options
  bool generaties = false;  // its persons stand in generations
};

extern const BeeldSoort kWaaierBeeld;
extern const BeeldSoort kKwartierBeeld;
extern const BeeldSoort kStamBeeld;
extern const BeeldSoort kTijdBeeld;

using BeeldMaker = std::function<Tekening(const BeeldKeuzen&)>;

// `Beeld` opens the card of the person on whom the user stands. The file is an SVG, or a PDF when its
// name ends that way. HuidigPersoonNr is 0 afterwards.
class BeeldForm final : public KetenFormulier {
 public:
  // `generaties` is how many there are; `begin` what is chosen at first.
  BeeldForm(const BeeldSoort& soort, Hoofdmodule& hoofd, int generaties, BeeldMaker maak,
            const BeeldKeuzen& begin = {});

  Beeldvlak Beeld{*this, "Beeld", "Beeld van de familie"};
  Keuzevak GeneratiesBox{*this, "GeneratiesBox", "Generaties:"};
  Keuzevak VormBox{*this, "VormBox", "Vorm:"};
  Keuzevak KleurBox{*this, "KleurBox", "Kleuren:"};
  Keuzevak NummerBox{*this, "NummerBox", "Nummers:", {"Nee", "Kwartiernummers", "Persoonsnummers"}};
  JaNeeVak OokJaarBox{*this, "OokJaarBox", "Jaartallen:"};
  Keuzevak PapierBox{*this, "PapierBox", "Papier:"};
  Keuzevak StandBox{*this, "StandBox", "Stand:", {"Staand", "Liggend"}};
  Keuzevak VerdeelBox{*this, "VerdeelBox", "Grootte:"};
  Label VellenLabel{*this, "VellenLabel"};
  Knop KaartButton{*this, "KaartButton", "Persoons&kaart..."};
  Knop OKButton{*this, "OKButton", "&Opslaan als..."};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // Writes the picture as an SVG file of its own. False after a message.
  [[nodiscard]] bool MaakBestand();
  [[nodiscard]] std::filesystem::path Pad() const;

 protected:
  void BijLaden() override;
  void BijGesloten() override;

 private:
  [[nodiscard]] BeeldKeuzen Keuzen() const;
  [[nodiscard]] Vellen MaakVellen() const;
  void Teken();
  void ToonVellen();
  void ToonKaart();
  void KeuzeWijziging();
  void PapierWijziging();
  void BeeldToets(ToetsGebeurtenis& toets);
  void BeeldDubbelklik();
  void KaartButtonKlik();
  void OKButtonKlik();
  [[nodiscard]] std::optional<std::string> BewaarSvg(const std::filesystem::path& naar) const;

  const BeeldSoort& soort_;
  int generaties_;
  BeeldMaker maak_;
  BeeldKeuzen begin_;
};

}  // namespace lb77
