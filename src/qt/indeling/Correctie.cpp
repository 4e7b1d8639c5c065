// The dialogs that mend records by hand.
#include <string>
#include <utility>

#include "forms/Rijnaam.h"
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Aantal() {
  return Kolom({
      Velden({"aantal_in_rec1", "gevonden_aantal", "nieuw_aantal"}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Opmerkingen3() {
  return Kolom({
      Rooster(
          {
              Rij({"aantal_in_rec1", "gevonden_aantal", "nieuw_aantal"}),
              Rij({"gebruikt_in_rec1", "gevonden_in_gebruik", "nieuw_in_gebruik"}),
              Rij({"ongebruikt_in_rec1", "gevonden_ongebruikt", "nieuw_ongebruikt"}),
          },
          {"Administratierecord", "Gevonden", "Nieuw"}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Vraag() {
  return Kolom({"VraagLabel", Velden({"RecordNr"}), Knoppen({"OKButton", "BackButton"})});
}

// A number, and behind it whom it means.
Blok Verwijzing(const std::string& naam, int nummer = 0) {
  const std::string wie = naam + "Naam";
  if (nummer == 0) return Rij({Veld(naam), Veld(wie)});
  return Rij({Veld(Genummerd(naam, nummer)), Veld(Genummerd(wie, nummer))});
}

void VoegLijstToe(std::vector<Blok>& delen, const std::string& naam, int van, int tot) {
  for (int nummer = van; nummer <= tot; ++nummer) delen.push_back(Verwijzing(naam, nummer));
}

// The flags in columns, read from above to below.
Blok Rubrieken(int aantal, int regels) {
  std::vector<Blok> rijen;
  for (int regel = 1; regel <= regels; ++regel) {
    std::vector<Blok> cellen;
    for (int nummer = regel; nummer <= aantal; nummer += regels) {
      cellen.push_back(Veld(Genummerd("RubriekTekst", nummer)));
    }
    rijen.push_back(Rij(std::move(cellen)));
  }
  return Groep("Opmerkingen aanwezig (+ of -)", {Rooster(std::move(rijen))});
}

Blok Persoon() {
  std::vector<Blok> velden{"RecordNr", Verwijzing("RelNrOuders")};
  VoegLijstToe(velden, "RelNrPartner", 1, 3);
  velden.insert(velden.end(), {"Vervolgrecord", "EersteOpm"});
  return Kolom({Velden(std::move(velden)), Rubrieken(13, 5), Knoppen({"OKButton", "BackButton"})});
}

Blok Relatie() {
  std::vector<Blok> velden{"RecordNr", Verwijzing("PersNrMan"), Verwijzing("PersNrVrouw")};
  VoegLijstToe(velden, "PersNrKind", 1, 15);
  return Kolom({
      Rij({
          Velden(std::move(velden)),
          Kolom({Velden({"Vervolgrecord", "EersteOpm"}), Rubrieken(9, 9)}),
      }),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Vervolg(const std::string& lijst, int lengte) {
  std::vector<Blok> velden{"RecordNr", Verwijzing("HoortBijTekst")};
  VoegLijstToe(velden, lijst, 1, lengte);
  return Kolom({Velden(std::move(velden)), Knoppen({"OKButton", "BackButton"})});
}

Blok Opmerking() {
  return Kolom({
      Velden({
          "RecordNr",
          "Tekstregel",
          Rij({"RubriekCode", "RubriekNaam"}),
          "HoortBijSoort",
          Rij({"BijRecordTekst", "BijRecordNaam"}),
          Rij({"VolgRegelTekst", "VolgRegelTekstRegel"}),
          Rij({"VolgOpmTekst", "VolgOpmTekstRegel"}),
      }),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Plaats() {
  return Kolom({
      Velden({
          Rij({"PlaatsNrOud", "PltsNmOud", "ProvOud"}),
          "Verwijzingen",
          Rij({"PlaatsNrNieuw", "PltsNmNieuw", "ProvNieuw"}),
      }),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Vervanging() {
  return Kolom({
      Rooster({
          Rij({"PersNrLabel", "PersoonsNr"}),
          Rij({"RelNrLabel", "RelatieNr"}),
          Rij({"VervangingenLabel", "Vervangingen"}),
      }),
      "GeduldLabel",
      Knoppen({"OKButton"}),
  });
}

}  // namespace

std::vector<Indeling> Correctie() {
  return {
      {"CorrPrsAdm", Aantal()},
      {"CorrRelAdm", Aantal()},
      {"CorrOpmAdm", Opmerkingen3()},
      {"CorrPltsAdm", Aantal()},
      {"VraagPersRecord", Vraag()},
      {"VraagRelRecord", Vraag()},
      {"VraagOpmRecord", Vraag()},
      {"VraagPersVervolg", Vraag()},
      {"VraagRelVervolg", Vraag()},
      {"CorrPrsAlg", Persoon()},
      {"CorrRelAlg", Relatie()},
      {"CorrOpmAlg", Opmerking()},
      {"CorrPltsAlg", Plaats()},
      {"CorrPltsTemp", Vervanging()},
      {"CorrPrsVlg", Vervolg("RelNrPartner", 3)},
      {"CorrRelVlg", Vervolg("PersNrKind", 15)},
  };
}

}  // namespace lb77::indeling
