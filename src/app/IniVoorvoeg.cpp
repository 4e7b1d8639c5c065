#include "app/IniVoorvoeg.h"

namespace lb77 {

IniVoorvoeg::IniVoorvoeg(Hoofdmodule& hoofd)
    : InstelFormulier("IniVoorvoeg", "Systeem Instellingen - Voorvoegsels", hoofd) {
  ZetEersteVeld(Voorvoeg1Tekst);
  Koppel(Voorvoeg1Tekst, "Namenfile", "Voor1");
  Koppel(Voorvoeg2Tekst, "Namenfile", "Voor2");
  KoppelKnoppen(OKButton, BackButton);
}

}  // namespace lb77
