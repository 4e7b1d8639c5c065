#include "app/IniSysteem.h"

#include <filesystem>
#include <optional>

namespace lb77 {

namespace {

constexpr int kJa = 0;

}  // namespace

IniSysteem::IniSysteem(Hoofdmodule& hoofd)
    : InstelFormulier("IniSysteem", "Systeem Instellingen - Systeem", hoofd) {
  ZetEersteVeld(ProgDirTekst);
  Koppel(ProgDirTekst, "Systeem", "Prog");
  Koppel(DataDirTekst, "Systeem", "Data");
  Koppel(TempDirTekst, "Systeem", "Tempdir");
  Koppel(GCIDirTekst, "GCI", "Data");
  Koppel(LB77EditorTekst, "Systeem", "Editor");
  Koppel(OpslaanParamsBox, "Systeem", "OpslaanVelden", {"J", "N"}, kJa);
  BrowseDataDir.BijKlik([this] { BrowseDataDirKlik(); });
  BrowseTempDir.BijKlik([this] { BrowseTempDirKlik(); });
  BrowseGCIDir.BijKlik([this] { BrowseGCIDirKlik(); });
  KoppelKnoppen(OKButton, BackButton);
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
