// `selectie` and `statistiek`: the lists over a whole file, by the word that says which.
#include <ostream>
#include <span>
#include <string>

#include "cli/Opdrachten.h"
#include "cli/Rapport.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

struct Lijstwoord {
  std::string_view woord;
  Rapport rapport;
};

// All that such a dialog asks is a choice of --zet.
constexpr Rapport Lijst(std::string_view menuKeuze, std::string_view formulier) {
  return {menuKeuze, {{{formulier, {}, true}}}};
}

constexpr Rapport Plaatsen() {
  Rapport rapport = Lijst("RptSelPlts", "SelectPlts");
  rapport.vormen[0].plaats = "PltsNm";
  return rapport;
}

constexpr Lijstwoord kSelecties[] = {
    {"personen", Lijst("RptSelPrs", "SelectPrs")},
    {"relaties", Lijst("RptSelRel", "SelectRel")},
    {"plaatsen", Plaatsen()},
    {"opmerkingen", Lijst("RptSelOpm", "SelectOpm")},
};

constexpr Lijstwoord kStatistieken[] = {
    {"takken", Lijst("RapportTakken", "RptTakken")},
    {"families", Lijst("RapportFamilies", "RptFamilies")},
    {"tijdbalk", Lijst("RapportTijdbalk", "RptTijdbalk")},
};

int MaakLijst(std::span<const Lijstwoord> lijsten, const Omgeving& omgeving,
              const OpdrachtArgumenten& argumenten) {
  std::string keus;
  for (const Lijstwoord& lijst : lijsten) {
    if (lijst.woord == argumenten.woorden[1]) {
      return MaakRapport(lijst.rapport, omgeving, argumenten);
    }
    keus.append(keus.empty() ? "" : ", ").append(lijst.woord);
  }
  omgeving.fout << WindowsNaarUtf8(argumenten.woorden[1]) << " is er niet; kies uit: " << keus
                << '\n';
  return 2;
}

}  // namespace

int Selectie(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakLijst(kSelecties, omgeving, argumenten);
}

int Statistiek(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakLijst(kStatistieken, omgeving, argumenten);
}

}  // namespace lb77
