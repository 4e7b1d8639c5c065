#include "descendants/GenSchPersoon.h"

#include <cstddef>

#include "text/Datum.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kNN = "N.N.";

std::string Voorletters(std::string_view namen) {
  std::string uit;
  char vorige = ' ';
  for (const char teken : namen) {
    if (vorige == ' ' && teken != ' ') uit.append(1, teken).append(1, '.');
    vorige = teken;
  }
  return uit;
}

std::string Voornamen(std::string_view namen, GenVoornaamWijze wijze) {
  switch (wijze) {
    case GenVoornaamWijze::Nee:
      return {};
    case GenVoornaamWijze::AlleenEerste:
      return std::string(namen.substr(0, namen.find(' ')));
    case GenVoornaamWijze::Voorletters:
      return Voorletters(namen);
    case GenVoornaamWijze::Volledig:
      break;
  }
  return std::string(namen);
}

std::string Afgekapt(std::string_view tekst, int posities) {
  return std::string(TrimRechts(tekst.substr(0, static_cast<std::size_t>(posities))));
}

// The first of two events that has a date, behind its sign; empty when neither has.
std::string Datum(const Gebeurtenis& een, char tekenEen, const Gebeurtenis& twee, char tekenTwee,
                  char scheider) {
  const Gebeurtenis& welke = een.DatumBekend() ? een : twee;
  if (!welke.DatumBekend()) return {};
  return (een.DatumBekend() ? tekenEen : tekenTwee) +
         DatumTekst(welke.dagMaand / 100, welke.dagMaand % 100, welke.jaar, scheider);
}

}  // namespace

std::string SchemaNaam::Voluit() const {
  return voornamen.empty() || achternaam.empty() ? voornamen + achternaam
                                                 : voornamen + " " + achternaam;
}

SchemaNaam MaakSchemaNaam(std::string_view voornaam, std::string_view achternaam,
                          const GenOpties& opties) {
  const bool onbekend = voornaam.empty() && achternaam.empty();
  const bool inVoornaam = opties.GenVoorNamen != GenVoornaamWijze::Nee;
  if (onbekend)
    return inVoornaam ? SchemaNaam{std::string(kNN), {}}
                      : SchemaNaam{{}, Afgekapt(kNN, opties.GenPosANamen)};
  return {Afgekapt(Voornamen(voornaam, opties.GenVoorNamen), opties.GenPosVNamen),
          Afgekapt(achternaam, opties.GenPosANamen)};
}

std::optional<SchemaPersoon> GenSchLezer::Lees(int i) {
  const std::int16_t nr = tabel_.Persoon(i);
  const auto blik = LeesPersoonBlik(bronnen_.persoon, nr);
  if (!blik) {
    fout_ = {BestandSoort::Personen, nr};
    return std::nullopt;
  }
  SchemaPersoon uit;
  if (opties_.GenOokVolgNrs) uit.label = tabel_.Label(i);
  if (tabel_.IsHerhaling(i)) {
    uit.elders = opties_.GenOokVolgNrs ? tabel_.Label(-tabel_.GenPersoon(i)) : std::string();
  }
  uit.naam = MaakSchemaNaam(blik->voornaam, blik->achternaam, opties_);
  if (opties_.GenOokPrsNrs) uit.nummer = "[" + GetalTekst(nr) + "]";
  uit.datums = Datums(*blik);
  if (opties_.GenPartners != GenPartnerWijze::Nee && !LeesPartners(nr, uit.partners)) {
    return std::nullopt;
  }
  return uit;
}

std::vector<std::string> GenSchLezer::Datums(const PersoonBlik& persoon) {
  std::vector<std::string> uit;
  if (opties_.GenToonDatums == GenDatums::Jaartallen) {
    uit.push_back(bronnen_.persoon.Periode(persoon.nr));
  } else if (opties_.GenToonDatums == GenDatums::Volledig) {
    const Levensloop& leven = persoon.leven;
    const char scheider = bronnen_.schrijfwijze.DatumScheider;
    uit.push_back(Datum(leven.geboorte, '*', leven.doop, '~', scheider));
    uit.push_back(Datum(leven.overlijden, '+', leven.begrafenis, '#', scheider));
    std::erase(uit, std::string());
  }
  return uit;
}

bool GenSchLezer::LeesPartners(std::int16_t nr, std::vector<SchemaPartner>& partners) {
  const auto gezinnen = LeesGezinnen(bronnen_.persoon, bronnen_.relatie, nr);
  if (!gezinnen) {
    fout_ = {BestandSoort::Personen, nr};
    return false;
  }
  for (const GezinBlik& gezin : gezinnen->lijst) {
    SchemaPartner partner{"x", {}};
    if (!gezin.gelezen) {
      fout_ = {BestandSoort::Relaties, gezin.relNr};
      return false;
    }
    if (gezinnen->lijst.size() > 1) partner.teken += "(" + GetalTekst(gezin.volgNr) + ")";
    if (opties_.GenOokRelNrs) partner.teken += "[" + GetalTekst(gezin.relNr) + "]";
    if (!LeesNaam(gezin.partner, partner.naam)) return false;
    partners.push_back(std::move(partner));
  }
  return true;
}

bool GenSchLezer::LeesNaam(std::int16_t nr, SchemaNaam& naam) {
  std::optional<PersoonBlik> blik{std::in_place};
  if (nr != 0) blik = LeesPersoonBlik(bronnen_.persoon, nr);
  if (blik) {
    naam = MaakSchemaNaam(blik->voornaam, blik->achternaam, opties_);
  } else {
    fout_ = {BestandSoort::Personen, nr};
  }
  return blik.has_value();
}

}  // namespace lb77
