#include "descendants/GenKeten.h"

#include "app/Start.h"

namespace lb77 {

const std::string_view GenKeten::kIni =
    "[Systeem]\r\nSet=PROEF\r\nOpslaanVelden=J\r\n[Gebruiker]\r\nVoornaam=J.\r\nNaam=Jansen\r\n"
    "[Genealogie]\r\nDatumForm=0\r\n[GEN]\r\nVolgZonen=5\r\nVolgDochters=6\r\nLeeftijd=0\r\n"
    "[Printer]\r\nTekstbr=78\r\n";

GenKeten::GenKeten() {
  familie_ = BouwGenFamilie(Bouw());
  SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
}

void GenKeten::Speel(std::string_view draaiboek, std::string_view verslag, const Plek& plek) {
  const Taak taak = [this](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.schrijfwijze.DatumScheider = '-';
    GenPrs prompt(*soort_, hoofd);
    hoofd.gesprek.ToonModaal(prompt);
    gebleven_ = hoofd.volgers.HuidigPersoonNr;
  };
  Verwacht(draaiboek, taak, verslag, plek);
}

Keten GenKeten::Weg() {
  return Keten({
      {"GenTxtPrs", "Nummer Stamouder", "vul RecordNr 4\ndruk OKButton"},
      {"GenTxtParam", "Genealogie / Parenteel Uitvoeropties", "druk OKButton"},
      {"GenTxtUitsluit", "Takken uitsluiten", "druk OKButton", false},
      {"GenHTMLParam", "Genealogie / Parenteel Uitvoeropties voor Internet", "druk OKButton",
       false},
      {"GenBereken", "Opbouwen Genealogie / Parenteel", ""},
      {"GenMaakTemp", "Genealogie / Parenteel Schrijven", ""},
      {"ToonTekst", "Genealogie / Parenteel in Tekstvorm", "druk BackButton"},
  });
}

void GenKeten::ZetIni(std::string_view van, std::string_view naar) {
  std::string ini(kIni);
  ini.replace(ini.find(van), van.size(), naar);
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
}

bool GenKeten::IniHeeft(std::string_view regels) const {
  return Ini().find("\r\n" + std::string(regels) + "\r\n") != std::string::npos;
}

}  // namespace lb77
