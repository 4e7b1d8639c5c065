// The pick box of every report option: "Ja" or "Nee", and its keeping in the settings.
#pragma once

#include <string_view>

#include "app/IniClass.h"
#include "forms/Keuzen.h"

namespace lb77 {

class JaNeeVak : public Keuzevak {
 public:
  JaNeeVak(Formulier& formulier, std::string_view naam, std::string_view bijschrift)
      : Keuzevak(formulier, naam, bijschrift, {"Ja", "Nee"}) {}

  [[nodiscard]] bool Ja() const { return Index() == 0; }
  void ZetJa(bool ja) { ZetIndex(ja ? 0 : 1); }
};

// One option and the key that remembers it. Of a value that is neither "J" nor "N" the default of
// the option holds.
struct JaNeeSleutel {
  JaNeeVak& vak;
  std::string_view tag;
  bool anders;  // what an unknown value means
};

// Fills the box from the settings, and puts the box into them as "J" or "N".
inline void LeesKeuze(IniClass& ini, std::string_view sectie, const JaNeeSleutel& sleutel) {
  const std::string waarde = ini.IniWaarde(sectie, sleutel.tag);
  sleutel.vak.ZetJa(sleutel.anders ? waarde != "N" : waarde == "J");
}

inline void BewaarKeuze(IniClass& ini, std::string_view sectie, const JaNeeSleutel& sleutel) {
  ini.IniZet(sectie, sleutel.tag, sleutel.vak.Ja() ? "J" : "N");
}

}  // namespace lb77
