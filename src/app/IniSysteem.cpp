#include "app/IniSysteem.h"

#include <filesystem>
#include <optional>
#include <utility>

namespace lb77 {

namespace {

constexpr int kNee = 1;  // also for what is neither: no dialog keeps anything then

}  // namespace

IniSysteem::IniSysteem(Hoofdmodule& hoofd, DataVraag magData)
    : InstelFormulier("IniSysteem", "Systeem Instellingen - Systeem", hoofd),
      magData_(std::move(magData)) {
  ZetEersteVeld(ProgDirTekst);
  Koppel(ProgDirTekst, "Systeem", "Prog");
  Koppel(DataDirTekst, "Systeem", "Data");
  Koppel(TempDirTekst, "Systeem", "Tempdir");
  Koppel(GCIDirTekst, "GCI", "Data");
  Koppel(LB77EditorTekst, "Systeem", "Editor");
  Koppel(OpslaanParamsBox, "Systeem", "OpslaanVelden", {"J", "N"}, kNee);
  BrowseDataDir.BijKlik([this] { BrowseDataDirKlik(); });
  BrowseTempDir.BijKlik([this] { BrowseTempDirKlik(); });
  BrowseGCIDir.BijKlik([this] { BrowseGCIDirKlik(); });
  KoppelKnoppen(OKButton, BackButton);
}

bool IniSysteem::MagBewaren() {
  if (!magData_) return true;
  // As the settings read it: relative to the program's directory, which an empty one is itself.
  const std::filesystem::path data = DataDirTekst.Pad();
  if (magData_(data.empty() ? Hoofd().programmaMap : Hoofd().programmaMap / data)) return true;
  ZetFocus(DataDirTekst);
  return false;
}

void IniSysteem::BrowseDataDirKlik() {
  KiesMap(DataDirTekst);
}

void IniSysteem::BrowseTempDirKlik() {
  KiesMap(TempDirTekst);
}

void IniSysteem::BrowseGCIDirKlik() {
  KiesMap(GCIDirTekst);
}

void IniSysteem::KiesMap(Padvak& veld) {
  const std::optional<std::filesystem::path> map =
      Hoofd().gesprek.VraagBestand({.wijze = BestandsWijze::Map,
                                    .filter = "Directories (*.)|*.dir|Alle Bestanden (*.*)|*.*",
                                    .beginmap = Hoofd().programmaMap / veld.Pad()});
  if (map) veld.ZetPad(*map);
}

}  // namespace lb77
