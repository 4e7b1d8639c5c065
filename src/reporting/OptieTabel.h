// The options of a report: an option is one row.
#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "app/IniClass.h"
#include "app/JaNeeVak.h"
#include "forms/Velden.h"
#include "text/Getallen.h"

namespace lb77 {

// What an option of a list is kept in: a number or an enumeration.
template <class T>
concept Keuzewaarde = std::is_enum_v<T> ||(std::integral<T> && !std::same_as<T, bool>);

// The numbers that an option takes.
struct Getalbereik {
  int laagste;
  int hoogste;
};

// A control, the key that remembers it, its default, and the member of the options that it fills.
class OptieRij {
 public:
  // "Ja" and "Nee", kept as "J" and "N". `anders` is what any other value means.
  OptieRij(JaNeeVak& vak, std::string_view tag, bool anders, bool& doel)
      : tag_(tag),
        toon_([&vak, anders](std::string_view waarde) {
          vak.ZetJa(anders ? waarde != "N" : waarde == "J");
        }),
        bewaar_([&vak] { return std::string(vak.Ja() ? "J" : "N"); }),
        neem_([&vak, &doel] { doel = vak.Ja(); }) {}

  // Two choices of which the second one is kept as "J".
  OptieRij(Keuzevak& vak, std::string_view tag, bool anders, bool& doel)
      : tag_(tag),
        toon_([&vak, anders](std::string_view waarde) {
          vak.ZetIndex((anders ? waarde != "N" : waarde == "J") ? 1 : 0);
        }),
        bewaar_([&vak] { return std::string(vak.Index() == 1 ? "J" : "N"); }),
        neem_([&vak, &doel] { doel = vak.Index() == 1; }) {}

  // One of a list, kept as its number: `eerste` for the first one, which is the default.
  template <Keuzewaarde T>
  OptieRij(Keuzevak& vak, std::string_view tag, int eerste, T& doel)
      : tag_(tag),
        toon_([&vak, eerste](std::string_view waarde) { ToonKeuze(vak, eerste, waarde); }),
        bewaar_([&vak, eerste] { return GetalTekst(vak.Index() + eerste); }),
        neem_([&vak, eerste, &doel] { doel = static_cast<T>(vak.Index() + eerste); }) {}

  // One of a list, kept as its text; the first one is the default.
  template <class T>
  requires std::is_enum_v<T> OptieRij(Keuzevak& vak, std::string_view tag, T& doel)
      : tag_(tag),
        toon_([&vak](std::string_view waarde) { ToonTekst(vak, waarde); }),
        bewaar_([&vak] { return vak.Tekst(); }),
        neem_([&vak, &doel] { doel = static_cast<T>(vak.Index()); }) {}

  // A number. One that is kept outside `bereik` gives `anders`.
  OptieRij(Tekstvak& vak, std::string_view tag, Getalbereik bereik, int anders, int& doel)
      : tag_(tag),
        toon_([&vak, bereik, anders](std::string_view waarde) {
          const int getal = Getalwaarde(waarde);
          const bool binnen = getal >= bereik.laagste && getal <= bereik.hoogste;
          vak.ZetTekst(GetalTekst(binnen ? getal : anders));
        }),
        bewaar_([&vak] { return GetalTekst(Getalwaarde(vak.Tekst())); }),
        neem_([&vak, &doel] { doel = Getalwaarde(vak.Tekst()); }) {}

  [[nodiscard]] const std::string& Tag() const { return tag_; }
  // The kept value into the control.
  void Toon(std::string_view waarde) const { toon_(waarde); }
  // What is kept of the control.
  [[nodiscard]] std::string Waarde() const { return bewaar_(); }
  // The control into the options.
  void Neem() const { neem_(); }

 private:
  static void ToonKeuze(Keuzevak& vak, int eerste, std::string_view waarde);
  static void ToonTekst(Keuzevak& vak, std::string_view waarde);

  std::string tag_;
  std::function<void(std::string_view)> toon_;
  std::function<std::string()> bewaar_;
  std::function<void()> neem_;
};

// The rows of one dialog and the section that keeps them. Controls and options outlive it.
class OptieTabel {
 public:
  OptieTabel(std::string_view sectie, std::vector<OptieRij> rijen)
      : sectie_(sectie), rijen_(std::move(rijen)) {}

  void Laad(const IniClass& ini) const;
  void Neem() const;
  // Into the settings, in memory.
  void Bewaar(IniClass& ini) const;

 private:
  std::string sectie_;
  std::vector<OptieRij> rijen_;
};

// Does the user want the choices of the dialogs kept?
[[nodiscard]] bool BewaartVelden(const IniClass& ini);

}  // namespace lb77
