#include "Samenhang.h"

#include <cstdint>
#include <stdexcept>
#include <string>

#include "text/Getallen.h"

namespace lb77::fuzz {
namespace {

void Eis(bool waar, const std::string& wat, int nr) {
  if (!waar) throw std::logic_error(wat + " van record " + GetalTekst(nr));
}

// The highest record number of a file.
template <class Klasse>
int Hoogste(Klasse& klasse, const std::string& bytes, BestandSoort soort) {
  const std::size_t lengte = RecordLengteVan(soort);
  const auto hoogste = static_cast<int>(bytes.size() / lengte);
  Eis(bytes.size() % lengte == 0, "de lengte", hoogste);
  Eis(klasse.AantalRecords() == hoogste, "de telling", 1);
  return hoogste;
}

// What may be linked to: records 2 up to the highest, or none.
class Grenzen {
 public:
  Grenzen(Hoofdmodule& hoofd, const SetBytes& bytes)
      : personen(Hoogste(hoofd.Persoon, bytes.personen, BestandSoort::Personen)),
        relaties(Hoogste(hoofd.Relatie, bytes.relaties, BestandSoort::Relaties)),
        plaatsen(Hoogste(hoofd.Plaats, bytes.plaatsen, BestandSoort::Plaatsen)) {
    Hoogste(hoofd.Opmerking, bytes.opmerkingen, BestandSoort::Opmerkingen);
  }

  [[nodiscard]] static bool Mag(int nr, int hoogste) {
    return nr == 0 || (nr > 1 && nr <= hoogste);
  }

  int personen;
  int relaties;
  int plaatsen;
};

void EisOpmerkingen(OpmLB77& opmerking, std::int16_t begin, std::int16_t code, int nr) {
  Eis(opmerking.RecordnrEindeKetting(begin) >= 0, "de ketting", nr);
  Eis(opmerking.BepaalOpmCode(begin) == code, "de rubrieken", nr);
}

void EisPersoon(Hoofdmodule& hoofd, const Grenzen& grenzen, std::int16_t nr) {
  PersoonLB77& p = hoofd.Persoon;
  Eis(p.Lees(nr), "de persoon", nr);
  for (const std::int16_t relatie : {p.relatie1(), p.relatie2(), p.RelNrOuders()}) {
    Eis(Grenzen::Mag(relatie, grenzen.relaties), "een relatie", nr);
  }
  const std::int16_t derde = p.relatie3();
  Eis(Grenzen::Mag(derde < 0 ? -derde : derde, derde < 0 ? grenzen.personen : grenzen.relaties),
      "de derde relatie", nr);
  for (const std::int16_t plaats :
       {p.GebPlaatsNr(), p.DoopPlaatsNr(), p.OvlPlaatsNr(), p.BegrPlaatsNr()}) {
    Eis(Grenzen::Mag(plaats, grenzen.plaatsen), "een plaats", nr);
  }
  EisOpmerkingen(hoofd.Opmerking, p.OpmRecord(), p.OpmCode(), nr);
}

void EisRelatie(Hoofdmodule& hoofd, const Grenzen& grenzen, std::int16_t nr) {
  RelatieLB77& r = hoofd.Relatie;
  Eis(r.Lees(nr), "de relatie", nr);
  for (const std::int16_t partner : {r.ManNr(), r.VrouwNr()}) {
    Eis(Grenzen::Mag(partner, grenzen.personen), "een partner", nr);
  }
  for (std::int16_t i = 1; i <= 15; ++i) {
    const std::int16_t kind = r.KindNr(i);
    const bool vervolg = kind < 0 && i == 15;
    Eis(Grenzen::Mag(vervolg ? -kind : kind, vervolg ? grenzen.relaties : grenzen.personen),
        "een kind", nr);
  }
  EisOpmerkingen(hoofd.Opmerking, r.OpmRecord(), r.OpmCode(), nr);
}

}  // namespace

void EisSamenhang(Hoofdmodule& hoofd, const SetBytes& bytes) {
  const Grenzen grenzen(hoofd, bytes);
  for (int nr = 2; nr <= grenzen.personen; ++nr) {
    EisPersoon(hoofd, grenzen, static_cast<std::int16_t>(nr));
  }
  for (int nr = 2; nr <= grenzen.relaties; ++nr) {
    EisRelatie(hoofd, grenzen, static_cast<std::int16_t>(nr));
  }
}

}  // namespace lb77::fuzz
