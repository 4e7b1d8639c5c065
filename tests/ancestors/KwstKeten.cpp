#include "ancestors/KwstKeten.h"

#include "app/Start.h"

namespace lb77 {

const std::string_view KwstKeten::kIni =
    "[Systeem]\r\nSet=PROEF\r\nOpslaanVelden=J\r\n[Gebruiker]\r\nVoornaam=J.\r\nNaam=Jansen\r\n"
    "[Genealogie]\r\nDatumForm=0\r\n[KWST]\r\nSoortUitv=1\r\n[Printer]\r\nTekstbr=78\r\n";

KwstKeten::KwstKeten() {
  familie_ = BouwKwstFamilie(Bouw());
  SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
}

void KwstKeten::Speel(std::string_view draaiboek, std::string_view verslag, const Plek& plek) {
  const Taak taak = [this](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.schrijfwijze.DatumScheider = '-';
    KwstPrs prompt(*soort_, hoofd);
    hoofd.gesprek.ToonModaal(prompt);
    gebleven_ = hoofd.volgers.HuidigPersoonNr;
  };
  Verwacht(draaiboek, taak, verslag, plek);
}

Keten KwstKeten::Weg() {
  return Keten({
      {"KwstTxtPrs", "Nummer Proband", "vul RecordNr 9\ndruk OKButton"},
      {"KwstTxtParam", "Kwartierstaat Uitvoeropties", "druk OKButton"},
      {"KwHTMLParam", "Kwartierstaat Uitvoeropties voor Internet", "druk OKButton", false},
      {"KwstBereken", "Opbouwen Kwartierstaat", ""},
      {"KwstMaakTemp", "Kwartierstaat Schrijven", ""},
      {"ToonTekst", "Kwartierstaat in Tekstvorm", "druk BackButton"},
  });
}

bool KwstKeten::IniHeeft(std::string_view regel) const {
  return Ini().find("\r\n" + std::string(regel) + "\r\n") != std::string::npos;
}

}  // namespace lb77
