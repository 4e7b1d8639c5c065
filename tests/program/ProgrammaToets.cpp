#include "program/ProgrammaToets.h"

#include "steun/BouwFamilie.h"
#include "store/Rubrieken.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

constexpr std::string_view kIni =
    "[Systeem]\r\nSet=PROEF\r\nSetOms=Proeffamilie\r\n\r\n[Sets]\r\nSet1=PROEF,Proeffamilie\r\n\r\n"
    "[Genealogie]\r\nDatumForm=0\r\n\r\n[Printer]\r\nTekstbr=80\r\n";

void Vul(Hoofdmodule& hoofd) {
  BouwFamilie bouw(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking);
  bouw.Plaats("Delft", "ZH");
  const auto kind = bouw.Man("Jan", "van Dam", {{"GebDatum", "01-02-1900"}, {"GebPlaats", "2"}});
  const auto vader = bouw.Man("Piet", "van Dam");
  const auto moeder = bouw.Vrouw("Anna", "Blom");
  bouw.Relatie(vader, moeder, {kind}, {{"WHuwDatum", "05-06-1899"}});
  // For no output, so that only the dialogs show it.
  bouw.OpmerkingBijPersoon(kind, persoonrubriek::kVoornaam, {"Naar zijn grootvader"}, 0);
}

}  // namespace

void ProgrammaToets::MaakFamilie() {
  SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
  const SetPaden paden = SetPaden::Van(Map() / "DATA", "PROEF");
  std::filesystem::create_directories(paden.tekst);
  Speel("", [&](Gesprek& gesprek) {
    Hoofdmodule hoofd(gesprek, klok_, Map());
    ASSERT_FALSE(hoofd.bestanden.OpenSet(paden));
    ASSERT_TRUE(hoofd.Persoon.NieuwAdm() && hoofd.Relatie.NieuwAdm() &&
                hoofd.Opmerking.NieuwAdm() && hoofd.Plaats.NieuwAdm());
    Vul(hoofd);
  });
}

SpeelToets::Programma ProgrammaToets::Sessie() {
  return [this](Gesprek& gesprek) { VoerProgramma(gesprek, klok_, Map()); };
}

SpeelToets::Programma ProgrammaToets::Met(std::function<void(lb77::Programma&)> doe) {
  return [this, doe = std::move(doe)](Gesprek& gesprek) {
    lb77::Programma programma(gesprek, klok_, Map());
    ASSERT_TRUE(programma.Start());
    ASSERT_TRUE(programma.Menu().Laad());
    doe(programma);
  };
}

}  // namespace lb77
