// How the sheet that is shown goes to the printer or into a file.
#pragma once

#include <filesystem>

#include "ancestors/KwstParam.h"
#include "ancestors/KwstTabel.h"
#include "app/JaNeeVak.h"
#include "forms/Rij.h"

namespace lb77 {

// OKButton 1 prints the sheet of which entry `wortel` is the root, 2 saves it; both keep the choices
// when the user wants that. It closes when the sheet has gone out.
class KwstBldParam final : public KwstParam {
 public:
  KwstBldParam(Hoofdmodule& hoofd, KwstOpties& opties, const KwstTabel& tabel, int wortel);

  Keuzevak HSK_CBG_Box{*this, "HSK_CBG_Box", "Layout volgens CBG of HSK ?", {"CBG", "HSK"}};
  JaNeeVak OokNrsBox{*this, "OokNrsBox", "Ook Persoonsnummers uitvoeren ?"};
  TitelVelden Titels;
  Vinkje UTF8Box{*this, "UTF8Box", "Opslaan in &UTF-8"};
  Rij<Knop, 2> OKButton{*this, "OKButton", 1, std::string_view{}};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  static constexpr std::string_view kSectie = "KWBLD";

  void OKButtonKlik(int nummer);
  void DrukAf();
  void SlaOp();
  // Keeps the choices and writes the sheet. False after a message.
  [[nodiscard]] bool MaakBlad();
  [[nodiscard]] std::filesystem::path Pad() const;

  const KwstTabel& tabel_;
  int wortel_;
  OptieTabel keuzen_;
};

}  // namespace lb77
