// The settings dialog of the directories and what else the program itself keeps.
#pragma once

#include <filesystem>
#include <functional>

#include "app/InstelFormulier.h"
#include "app/JaNeeVak.h"

namespace lb77 {

class IniSysteem final : public InstelFormulier {
 public:
  // Asked with the data directory that was typed before it becomes the setting; False keeps the
  // dialog. Values are not judged without it.
  using DataVraag = std::function<bool(const std::filesystem::path&)>;
  explicit IniSysteem(Hoofdmodule& hoofd, DataVraag magData = {});

  Padvak ProgDirTekst{*this, "ProgDirTekst", "Programma Directory:"};
  Label ProgDirUitleg{*this, "ProgDirUitleg", "(Map met programmabestanden)"};
  Padvak DataDirTekst{*this, "DataDirTekst", "Data Directory:"};
  Knop BrowseDataDir{*this, "BrowseDataDir", "Bladeren..."};
  Label DataDirUitleg{*this, "DataDirUitleg", "(Map met gegevensbestanden)"};
  Padvak TempDirTekst{*this, "TempDirTekst", "Tijdelijke Directory:"};
  Knop BrowseTempDir{*this, "BrowseTempDir", "Bladeren..."};
  Label TempDirUitleg{*this, "TempDirUitleg",
                      "(Map die door het programma gebruikt wordt voor tijdelijke bestanden)"};
  Padvak GCIDirTekst{*this, "GCIDirTekst", "GCI Directory:"};
  Knop BrowseGCIDir{*this, "BrowseGCIDir", "Bladeren..."};
  Tekstvak LB77EditorTekst{*this, "LB77EditorTekst", "LB77 Editor:"};
  Label LB77EditorUitleg{*this, "LB77EditorUitleg",
                         "(Alleen opgenomen vanwege compatibiliteit met DOS-versie LB77)"};
  JaNeeVak OpslaanParamsBox{*this, "OpslaanParamsBox", "Keuzes opslaan bij invoerschermen ?"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  [[nodiscard]] bool MagBewaren() override;

 private:
  void BrowseDataDirKlik();
  void BrowseTempDirKlik();
  void BrowseGCIDirKlik();
  void KiesMap(Padvak& veld);

  const DataVraag magData_;
};

}  // namespace lb77
