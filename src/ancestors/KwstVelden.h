// The number fields that the parameter dialogs of the ancestor reports share.
#pragma once

#include <string_view>

#include "ancestors/KwstOpties.h"
#include "forms/Velden.h"
#include "reporting/GeneratiesVak.h"
#include "reporting/HTMLParam.h"

namespace lb77 {

class Formulier;
class Gesprek;

// What tells one field for a kwartier number from another; `verplicht` is said of an empty one.
struct KwartierVakSoort {
  std::string_view naam;
  std::string_view bijschrift;
  std::string_view verplicht;
  bool nulMag = false;  // 0 is for a check of the dialog's own
};

inline constexpr KwartierVakSoort kNrProbandVak{"KwNrProband", "Kwartiernummer van de proband:",
                                                "Het kwartiernummer van de proband is verplicht"};
inline constexpr KwartierVakSoort kVanafVak{"VanafKwartier", "Eerst uit te voeren kwartiernummer:",
                                            "Het eerst uit te voeren kwartiernummer is verplicht",
                                            true};

// The links of the ancestor report.
inline constexpr HTMLParamSoort kKwHTMLParam{
    "KwHTMLParam", "Kwartierstaat Uitvoeropties voor Internet", "KWST", "kwartierstaat"};

// The links of its index.
inline constexpr HTMLParamSoort kKwidxHTMLParam{"KwidxHTMLParam", kKwHTMLParam.titel,
                                                kKwHTMLParam.sectie, kKwHTMLParam.hulp};

// A field for a kwartier number. Its leave check is Geldig().
class KwartierVak final : public Tekstvak {
 public:
  KwartierVak(Formulier& formulier, Gesprek& gesprek, const KwartierVakSoort& soort);

  // Digits and nothing else, and more than 0 unless that may be? Tells the user why not.
  [[nodiscard]] bool Geldig() const;
  [[nodiscard]] Kwartiernummer Nummer() const { return Kwartiernummer(Tekst()); }

 private:
  Gesprek& gesprek_;
  std::string_view verplicht_;
  bool nulMag_;
};

// Number of the proband, first number to write, last generation; each with its leave check.
struct KwstNummerVelden {
  KwstNummerVelden(Formulier& formulier, Gesprek& gesprek);

  // Number 1, from number 1, 80 generations.
  void Laad();
  void Bewaar(KwstOpties& opties) const;

  KwartierVak KwNrProband;
  KwartierVak VanafKwartier;
  GeneratiesVak MaxGen;

 private:
  [[nodiscard]] bool VanafKwartierVerlaten();

  Gesprek& gesprek_;
};

}  // namespace lb77
