// The lists over whole files: selections and statistics.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Sluitknoppen() {
  return Knoppen({"OKButton", "BackButton"});
}

Blok Stamouder() {
  return Rij({"PersNr", "ZoekButton"});
}

Blok PersonenKeus() {
  return Kolom({
      "ZoekLabel",
      Velden({"VoorNm", "AchterNm", "BeroepTekst", Rij({"ZoekMan", "ZoekVrouw"})}),
      "GebLabel",
      Velden({Rij({"VanDatumGeb", "TotDatumGeb"})}),
      "OvLabel",
      Velden({Rij({"VanDatumOv", "TotDatumOv"})}),
      Sluitknoppen(),
  });
}

Blok RelatiesKeus() {
  return Kolom({
      Velden({"VoorNm", "AchterNm", Rij({"ZoekMan", "ZoekVrouw"})}),
      "HuwLabel",
      Velden({Rij({"VanDatumHuw", "TotDatumHuw"})}),
      Sluitknoppen(),
  });
}

Blok PlaatsKeus() {
  return Kolom({
      Velden({"PltsNm", Rij({"PltsNr", "PltsProv"})}),
      Rij({
          Groep("Personen", {"ZoekGeb", "ZoekDoop", "ZoekOv", "ZoekBegr"}),
          Groep("Relaties", {"ZoekOtr", "ZoekWetHuw", "ZoekKerkHuw"}),
      }),
      Sluitknoppen(),
  });
}

}  // namespace

std::vector<Indeling> Lijsten() {
  return {
      {"SelectPrs", PersonenKeus()},
      {"SelectRel", RelatiesKeus()},
      {"SelectPlts", PlaatsKeus()},
      {"SelectOpm",
       Kolom({Velden({"ZoekTekst"}), "OptionCapsJa", "OptionCapsNee", Sluitknoppen()})},
      {"RptTakken", Kolom({"UitlegLabel", Velden({Stamouder(), "AantalTakken"}), Sluitknoppen()})},
      {"RptFamilies",
       Kolom({"UitlegLabel", Velden({"MinimumAantal", "AantalNamen"}), Sluitknoppen()})},
      {"RptTijdbalk", Kolom({"UitlegLabel", Velden({Stamouder()}), Sluitknoppen()})},
  };
}

}  // namespace lb77::indeling
