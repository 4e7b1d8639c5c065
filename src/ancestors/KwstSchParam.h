// The options of the ancestor chart.
#pragma once

#include "ancestors/KwstParam.h"
#include "ancestors/KwstSchema.h"
#include "ancestors/KwstVelden.h"
#include "app/JaNeeVak.h"
#include "reporting/GrensVak.h"

namespace lb77 {

inline constexpr Generatiegrens kSchemaGeneraties{kMinSchemaGen, kMaxSchemaGen,
                                                  "Onjuist aantal generaties (2-10)", "4"};
inline constexpr GrensVakSoort kBreedteGen{
    "BreedteGen",
    "Breedte van een generatie:",
    2,
    2,
    10,
    "De breedte van een kolom voor een generaties is verplicht",
    "Onjuiste breedte voor een kolom (2-10)",
    "6"};

// OK puts the choices into `opties` and, when the user wants them kept, into the settings.
// BackButton stops the chain.
class KwstSchParam final : public KwstParam {
 public:
  KwstSchParam(Hoofdmodule& hoofd, KwstOpties& opties);

  KwartierVak KwNrProband;
  GeneratiesVak MaxGen;
  GrensVak BreedteGen;
  JaNeeVak OokNrsBox{*this, "OokNrsBox", "Ook Persoonsnummers uitvoeren ?"};
  JaNeeVak OokJaarBox{*this, "OokJaarBox", "Ook geb./overl. jaartallen uitvoeren ?"};
  JaNeeVak UitlijnBox{*this, "UitlijnBox", "Personen recht onder elkaar ?"};
  JaNeeVak InHTMLBox{*this, "InHTMLBox", "Uitvoer voor Internet (HTML) ?"};
  TitelVelden Titels;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  static constexpr std::string_view kSectie = "KWGR";

  void OKButtonKlik();

  OptieTabel keuzen_;
};

}  // namespace lb77
