// Sessions that ask for the index or the chart of the sample family.
#pragma once

#include <string>

#include "descendants/GenKeten.h"

namespace lb77 {

class GenIdxKeten : public GenKeten {
 protected:
  GenIdxKeten() { soort_ = &kGenIdxPrs; }
  [[nodiscard]] static Keten Weg() {
    return Keten({
        {"GenIdxPrs", "Nummer Stamouder", "vul RecordNr 4\ndruk OKButton"},
        {"GenIdxParam", "Index Genealogie / Parenteel Uitvoeropties", "druk OKButton"},
        {"GenIdxUitsluit", "Takken uitsluiten", "druk OKButton", false},
        {"GenHTMLParam", "Genealogie / Parenteel Uitvoeropties voor Internet", "druk OKButton",
         false},
        {"GenBereken", "Opbouwen Genealogie / Parenteel", ""},
        {"GenMaakIdxTemp", "Genealogie / Parenteel Schrijven", ""},
        {"ToonTekst", "Index op Genealogie / Parenteel in Tekstvorm", "druk BackButton"},
    });
  }
};

class GenSchKeten : public GenKeten {
 protected:
  GenSchKeten() {
    soort_ = &kGenSchPrs;
    std::string ini(kIni);
    SchrijfBytes(
        Map() / "LIJNBOOM.INI",
        ini.replace(ini.find("[GEN]"), 5, "[GENB]\r\nVolgZonen=5\r\nVolgDochters=6\r\n[GEN]"));
  }
  [[nodiscard]] static Keten Weg() {
    return Keten({
        {"GenSchPrs", "Nummer Stamouder", "vul RecordNr 4\ndruk OKButton"},
        {"GenSchParam", "Genealogie / Parenteel Schema Uitvoeropties", "druk OKButton"},
        {"GenSchUitsluit", "Takken uitsluiten", "druk OKButton", false},
        {"GenHTMLParam", "Genealogie / Parenteel Uitvoeropties voor Internet", "druk OKButton",
         false},
        {"GenBereken", "Opbouwen Genealogie / Parenteel", ""},
        {"GenSchBlok", "Opbouwen Schema Genealogie / Parenteel", ""},
        {"GenSchTemp", "Schema Genealogie / Parenteel Schrijven", ""},
        {"ToonTekst", "Schema Genealogie / Parenteel", "druk BackButton"},
    });
  }
};

}  // namespace lb77
