#include "entry/Invoer.h"

#include <cstddef>
#include <optional>

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kOnleesbaar = "?????";
constexpr std::string_view kBestaatNiet = "Recordnummer bestaat niet";
constexpr std::size_t kCijfers = 5;

// The highest record number of the file; nothing when there is no such file.
std::optional<std::int16_t> HoogsteNr(const Gegevens& gegevens, BestandSoort bestand) {
  switch (bestand) {
    case BestandSoort::Personen:
      return gegevens.persoon.AantalRecords();
    case BestandSoort::Relaties:
      return gegevens.relatie.AantalRecords();
    case BestandSoort::Opmerkingen:
      return gegevens.opmerking.AantalRecords();
    case BestandSoort::Plaatsen:
      return gegevens.plaats.AantalRecords();
  }
  return std::nullopt;
}

// kept: one message for each character that is no digit.
bool IsNumeriek(Gesprek& gesprek, std::string_view tekst) {
  bool numeriek = true;
  for (const char teken : tekst) {
    if (IsCijfer(teken)) continue;
    gesprek.Waarschuw("Recordnummer is niet numeriek");
    numeriek = false;
  }
  return numeriek;
}

// Reads a person or a relation and puts it to the test.
template <class Klasse>
bool Voldoet(Gesprek& gesprek, Klasse& klasse, std::int16_t nr, Vervolgtest vervolgtest) {
  if (!klasse.Lees(nr)) {
    gesprek.Waarschuw(kBestaatNiet);
    return false;
  }
  if (vervolgtest == Vervolgtest::GeenVervolg && klasse.IsVolgRecord()) {
    gesprek.Waarschuw("Record is een vervolgrecord");
    return false;
  }
  if (vervolgtest == Vervolgtest::Vervolg && !klasse.IsVolgRecord()) {
    gesprek.Waarschuw("Record is geen vervolgrecord");
    return false;
  }
  return true;
}

}  // namespace

void HaalNaam(PersoonLB77& persoon, std::int16_t nr, std::string& voornaam, std::string& achternaam,
              std::string& nrtekst) {
  nrtekst = NrTekst(nr);
  if (nr == 0) {
    voornaam.clear();
    achternaam.clear();
  } else if (persoon.Lees(nr)) {
    voornaam = persoon.VoorNaamTrue();
    achternaam = persoon.AchterNaamTrue();
  } else {
    voornaam = achternaam = kOnleesbaar;
  }
}

bool RecordNrGeldig(const Gegevens& gegevens, Gesprek& gesprek, std::string_view tekst,
                    BestandSoort bestand, Vervolgtest vervolgtest) {
  const auto hoogste = HoogsteNr(gegevens, bestand);
  if (!hoogste) return false;
  const std::string_view cijfers = Trim(tekst.substr(0, kCijfers));
  if (cijfers.empty() || !IsNumeriek(gesprek, cijfers)) return false;
  const auto nr = NaarInt16(Getalwaarde(cijfers));
  if (!nr || *nr < 2 || *nr > *hoogste) {
    gesprek.Waarschuw(kBestaatNiet);
    return false;
  }
  if (bestand == BestandSoort::Personen) {
    return Voldoet(gesprek, gegevens.persoon, *nr, vervolgtest);
  }
  if (bestand == BestandSoort::Relaties) {
    return Voldoet(gesprek, gegevens.relatie, *nr, vervolgtest);
  }
  return true;
}

}  // namespace lb77
