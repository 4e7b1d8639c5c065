// A form with fields of one kind, and scripts played on it.
#pragma once

#include <string>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "steun/FamilieToets.h"

namespace lb77 {

// The field, one behind it to leave for, and the way out.
template <class Soort>
class Vakscherm final : public InvoerFormulier {
 public:
  template <class... Args>
  explicit Vakscherm(Hoofdmodule& hoofd, const Args&... args)
      : InvoerFormulier("Vakscherm", "Proef", hoofd), Vak(*this, args...) {
    BackButton.BijKlik([this] { Sluit(); });
  }

  Soort Vak;
  Tekstvak Volgend{*this, "Volgend"};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

class VakToets : public FamilieToets {
 protected:
  // Plays a script on a form, made by `maak`; the lines of its opening and closing go by themselves.
  void SpeeltOp(std::string_view draaiboek, const std::function<void(Hoofdmodule&)>& taak,
                std::string_view verslag, const Plek& plek = Plek::current()) {
    Verwacht(std::string(draaiboek) + "\ndruk BackButton", taak,
             "+ Vakscherm \"Proef\"\n" + Regels(verslag) + "- Vakscherm\n", plek);
  }
};

}  // namespace lb77
