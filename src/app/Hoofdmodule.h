// The session: a desk on which all parts of the program find what they share.
#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "app/Gezien.h"
#include "app/IniClass.h"
#include "app/Instellingen.h"
#include "app/Klok.h"
#include "forms/Gesprek.h"
#include "store/Bestandenset.h"
#include "store/Gegevens.h"
#include "store/OpmLB77.h"
#include "store/Opslag.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"
#include "text/Schrijfwijze.h"

namespace lb77 {

// Made once a session, and handed by reference to every form. It only holds; it does nothing beyond
// opening and closing, and shall stay so: what works is a class of its own that takes the parts it
// needs. What one dialog tells the next is an argument or a result, never parked here.
class Hoofdmodule {
 public:
  // `programmaMap` is the program's directory, in which the settings file lies.
  Hoofdmodule(Gesprek& metWie, const Klok& hoeLaat, std::filesystem::path map)
      : gesprek(metWie), klok(hoeLaat), programmaMap(std::move(map)) {}
  Hoofdmodule(const Hoofdmodule&) = delete;
  Hoofdmodule& operator=(const Hoofdmodule&) = delete;

  // What a record class of one's own needs; it reaches the same open files.
  [[nodiscard]] Opslag MaakOpslag() { return {bestanden, volgers, gesprek, schrijfwijze}; }
  // What a reader of records needs.
  [[nodiscard]] Gegevens MaakGegevens() {
    return {Persoon, Relatie, Plaats, Opmerking, volgers, schrijfwijze};
  }

  Gesprek& gesprek;
  const Klok& klok;
  const std::filesystem::path programmaMap;
  Schrijfwijze schrijfwijze;
  Volgers volgers;
  Gezien gezien;
  Bestandenset bestanden;
  Instellingen instellingen;
  IniClass Ini{instellingen, schrijfwijze, gesprek, programmaMap};

  // The one working instance of each record class.
  PersoonLB77 Persoon{MaakOpslag()};
  RelatieLB77 Relatie{MaakOpslag()};
  PlaatsLB77 Plaats{MaakOpslag()};
  OpmLB77 Opmerking{MaakOpslag(), Persoon, Relatie};

  // Name of the active set in capitals, or one of the two texts that stand for none.
  std::string ActieveSetNaam{kGeenSetAanwezig};
  [[nodiscard]] bool SetActief() const {
    return ActieveSetNaam != kGeenSetAanwezig && ActieveSetNaam != kGeenSetActief;
  }
};

}  // namespace lb77
