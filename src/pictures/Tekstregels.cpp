#include "pictures/Tekstregels.h"

#include <string_view>
#include <utility>

#include "pictures/Palet.h"

namespace lb77 {
namespace {

constexpr double kDatumdeel = 0.85;  // size of the dates, in sizes of the names

std::string Samen(std::string_view een, std::string_view twee) {
  std::string uit(een);
  if (!een.empty() && !twee.empty()) uit += ' ';
  return uit.append(twee);
}

// Dates, or where he is told already.
std::string Rest(const BeeldPersoon& persoon) {
  std::string uit;
  for (const std::string& datum : persoon.datums) uit = Samen(uit, datum);
  return Samen(uit, persoon.elders);
}

std::string Past(std::string tekst, const Letter& letter, double ruimte) {
  return letter.Breedte(tekst) <= ruimte ? std::move(tekst) : std::string();
}

// The number stays as long as there is room for it and some of the name.
std::string MetNummer(const BeeldPersoon& persoon, const Letter& letter, double ruimte,
                      const std::function<std::string(double)>& naam) {
  if (persoon.nummer.empty()) return naam(ruimte);
  const double voor = letter.Breedte(persoon.nummer + " ");
  const std::string rest = naam(ruimte - voor);
  return rest.empty() ? naam(ruimte) : Samen(persoon.nummer, rest);
}

}  // namespace

std::vector<Schrift> Schriften(int regels, double grootte) {
  const Schrift naam{grootte, regels > 1, kInkt};
  const Schrift datum{grootte * kDatumdeel, false, kZacht};
  if (regels == 1) return {naam};
  if (regels == 2) return {naam, datum};
  return {naam, naam, datum};
}

std::vector<Regel> MaakRegels(const BeeldPersoon& persoon, const std::vector<Schrift>& schriften,
                              const std::function<double(std::size_t)>& ruimte,
                              const Lettermaat& maat) {
  std::vector<Regel> uit;
  const auto letter = [&](std::size_t i) {
    return Letter{maat, schriften[i].grootte, schriften[i].vet};
  };
  const auto voeg = [&](std::size_t i, std::string tekst) {
    if (!tekst.empty()) uit.push_back({std::move(tekst), schriften[i]});
  };
  const bool samen =
      schriften.size() < 3 || persoon.voornamen.empty() || persoon.achternaam.empty();
  if (samen) {
    voeg(0, MetNummer(persoon, letter(0), ruimte(0), [&](double breed) {
           return PasNaam(persoon.voornamen, persoon.achternaam, letter(0), breed);
         }));
  } else {
    voeg(0, MetNummer(persoon, letter(0), ruimte(0), [&](double breed) {
           return PasVoornamen(persoon.voornamen, letter(0), breed);
         }));
    voeg(1, Ingekort(persoon.achternaam, letter(1), ruimte(1)));
  }
  if (schriften.size() == 1 && !uit.empty()) {
    const std::string alles = Past(Samen(uit[0].tekst, Rest(persoon)), letter(0), ruimte(0));
    if (!alles.empty()) uit[0].tekst = alles;
    return uit;
  }
  const std::size_t laatste = schriften.size() - 1;
  voeg(laatste, Past(Rest(persoon), letter(laatste), ruimte(laatste)));
  return uit;
}

double HoogteVan(const std::vector<Schrift>& schriften) {
  return BovenVan(schriften, schriften.size());
}

double HoogteVan(const std::vector<Regel>& regels) {
  double hoogte = 0;
  for (const Regel& regel : regels) hoogte += regel.schrift.grootte * kRegelhoogte;
  return hoogte;
}

double BovenVan(const std::vector<Schrift>& schriften, std::size_t regel) {
  double op = 0;
  for (std::size_t i = 0; i < regel; ++i) op += schriften[i].grootte * kRegelhoogte;
  return op;
}

}  // namespace lb77
