#include "script/Verslag.h"

#include <utility>

#include "forms/Keuzen.h"
#include "forms/Weergave.h"
#include "script/Rijtabel.h"
#include "text/Getallen.h"
#include "text/Unicode.h"

namespace lb77 {

std::string_view Woord(BerichtSoort soort) {
  switch (soort) {
    case BerichtSoort::Geen:
      return "geen";
    case BerichtSoort::Info:
      return "info";
    case BerichtSoort::Uitroep:
      return "uitroep";
    case BerichtSoort::Vraag:
      return "vraag";
    case BerichtSoort::Stop:
      return "stop";
  }
  return {};
}

std::string_view Woord(Antwoord antwoord) {
  switch (antwoord) {
    case Antwoord::OK:
      return "OK";
    case Antwoord::Annuleren:
      return "Annuleren";
    case Antwoord::Ja:
      return "Ja";
    case Antwoord::Nee:
      return "Nee";
  }
  return {};
}

std::string_view Woord(BestandsWijze wijze) {
  switch (wijze) {
    case BestandsWijze::Openen:
      return "openen";
    case BestandsWijze::Opslaan:
      return "opslaan";
    case BestandsWijze::Map:
      return "map";
  }
  return {};
}

std::optional<Antwoord> AntwoordVan(std::string_view woord) {
  for (const Antwoord antwoord : {Antwoord::OK, Antwoord::Annuleren, Antwoord::Ja, Antwoord::Nee}) {
    if (Woord(antwoord) == woord) return antwoord;
  }
  return std::nullopt;
}

std::vector<Antwoord> Keuzen(Knoppen knoppen) {
  switch (knoppen) {
    case Knoppen::OK:
      return {Antwoord::OK};
    case Knoppen::OKAnnuleren:
      return {Antwoord::OK, Antwoord::Annuleren};
    case Knoppen::JaNee:
    case Knoppen::NeeJa:  // the last one is the one that does nothing
      return {Antwoord::Ja, Antwoord::Nee};
    case Knoppen::JaNeeAnnuleren:
      return {Antwoord::Ja, Antwoord::Nee, Antwoord::Annuleren};
  }
  return {};
}

std::string Woorden(Knoppen knoppen) {
  std::string uit;
  for (const Antwoord antwoord : Keuzen(knoppen)) {
    if (!uit.empty()) uit += '/';
    uit += Woord(antwoord);
  }
  return uit;
}

std::string AangehaaldUtf8(std::string_view utf8) {
  std::string uit = "\"";
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const char teken = utf8[i];
    if (teken == '\r' && i + 1 < utf8.size() && utf8[i + 1] == '\n') continue;
    if (teken == '\n' || teken == '\r') {
      uit += "\\n";
      continue;
    }
    if (teken == '"' || teken == '\\') uit += '\\';
    uit += teken;
  }
  return uit + '"';
}

std::string Aangehaald(std::string_view windows) {
  return AangehaaldUtf8(WindowsNaarUtf8(windows));
}

std::string WaardeTekst(const Bediening& bediening) {
  const bool schakelaar =
      bediening.Soort() == BedieningSoort::Vinkje || bediening.Soort() == BedieningSoort::Optie;
  return schakelaar ? bediening.Waarde() : Aangehaald(bediening.Waarde());
}

std::string BedieningRegel(const Bediening& bediening) {
  std::string uit = "= " + WindowsNaarUtf8(bediening.Naam()) + " " + WaardeTekst(bediening);
  const auto* keuze = dynamic_cast<const MenuKeuze*>(&bediening);
  if (keuze && !keuze->Toelichting().empty()) {
    uit += " [status " + Aangehaald(keuze->Toelichting()) + "]";
  }
  if (!bediening.Ingeschakeld()) uit += " [uit]";
  if (!bediening.Zichtbaar()) uit += " [verborgen]";
  return uit;
}

std::vector<std::string> BedieningRegels(const Bediening& bediening) {
  std::vector<std::string> uit{BedieningRegel(bediening)};
  if (const auto* lijst = dynamic_cast<const Lijst*>(&bediening)) {
    for (const std::string& rij : lijst->Rijen()) {
      uit.push_back("#" + GetalTekst(static_cast<std::int64_t>(uit.size()) - 1) + " " +
                    Aangehaald(rij));
    }
  }
  return uit;
}

std::vector<std::string> FormulierRegels(const Formulier& formulier) {
  std::vector<std::string> uit{": " + WindowsNaarUtf8(formulier.Naam()) + " " +
                               Aangehaald(formulier.Titel())};
  for (std::string& regel : BedieningenRegels(formulier.Bedieningen())) {
    uit.push_back(std::move(regel));
  }
  if (formulier.FocusVeld()) uit.push_back("* " + WindowsNaarUtf8(formulier.FocusVeld()->Naam()));
  return uit;
}

std::string OpRegel(int regel, std::string_view reden) {
  const std::string plaats = regel > 0 ? "regel " + GetalTekst(regel) : "voor de eerste instructie";
  return plaats + ": " + std::string(reden);
}

}  // namespace lb77
