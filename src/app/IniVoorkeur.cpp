#include "app/IniVoorkeur.h"

namespace lb77 {

namespace {

constexpr int kNee = 1;
constexpr int kNietInkorten = 2;  // what an empty setting means to the reports

}  // namespace

IniVoorkeur::IniVoorkeur(Hoofdmodule& hoofd)
    : InstelFormulier("IniVoorkeur", "Systeem Instellingen - Genealogische Voorkeuren", hoofd) {
  ZetEersteVeld(NaamCapsBox);
  Koppel(HuwInkortenBox, "Genealogie", "HuwData", {"0", "1", "2"}, kNietInkorten);
  Koppel(FamNaamUitvoerBox, "Genealogie", "FamNaamWeerg", {"1", "0"}, kNee);
  Koppel(DatumSeparatorBox, "Genealogie", "DatumForm", {"0", "1"});
  Koppel(NaamCapsBox, "Genealogie", "Hoofdletters", {"0", "1", "2"});
  Koppel(CapsZoekenBox, "Genealogie", "Onderscheid", {"J", "N"}, kNee);
  KoppelKnoppen(OKButton, BackButton);
}

}  // namespace lb77
