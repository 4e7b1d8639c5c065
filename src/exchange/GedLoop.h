// What the three passes of one import share.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "exchange/GedIdTabel.h"
#include "exchange/GedTekst.h"
#include "exchange/RegelLezer.h"
#include "forms/Gesprek.h"
#include "store/OpmLB77.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"

namespace lb77 {

// The parts of the session that an import works on.
struct GedBronnen {
  PersoonLB77& persoon;
  RelatieLB77& relatie;
  PlaatsLB77& plaats;
  OpmLB77& opmerking;
  Volgers& volgers;
  Gesprek& gesprek;
  const Gezindten& gezindten;
};

// The log: a text file in Windows-1252, line by line.
class GedLog {
 public:
  [[nodiscard]] bool Open(const std::filesystem::path& pad);
  void Regel(std::string_view regel);
  // False when not all of it could be written.
  [[nodiscard]] bool Sluit();

 private:
  std::ofstream bestand_;
};

// Who shows how far it is. Numbers count from 1; texts are Windows-1252.
class GedVoortgang {
 public:
  GedVoortgang() = default;
  virtual ~GedVoortgang() = default;
  GedVoortgang(const GedVoortgang&) = delete;
  GedVoortgang& operator=(const GedVoortgang&) = delete;

  virtual void Regel(int nr) = 0;
  virtual void Personen(int aantal) = 0;
  virtual void Relaties(int aantal) = 0;
  virtual void Bronnen(int aantal) = 0;
  virtual void Naam(std::string_view voornaam, std::string_view achternaam) = 0;
  virtual void Bron(std::string_view naam) = 0;
};

// How a pass ended: at its end; with an error text for the user, which ends the passes behind it
// too; or after a failure that the record classes have told, which ends the run quietly.
enum class GedUitslag { Klaar, Fout, Stil };

// One run.
struct GedLoop {
  GedBronnen bronnen;
  GedVoortgang& voortgang;
  RegelLezer& lezer;
  GedLog& log;

  GedIdTabel personen{};
  GedIdTabel relaties{};
  GedTekenset tekenset = GedTekenset::Onbekend;
  // The highest record numbers in use.
  std::int16_t laatstePersoon = 1;
  std::int16_t laatsteRelatie = 1;
  std::string fout{};
  // What is logged once a run.
  bool eigenTagGemeld = false;
  bool eventGemeld = false;
  bool schemaGemeld = false;
  bool geen850Melding = false;

  // Converts a text by the file's character set.
  [[nodiscard]] std::string Tekst(std::string_view tekst);
  // The text cut to `lengte`, trimmed and converted.
  [[nodiscard]] std::string Veld(std::string_view tekst, std::size_t lengte);
  // The number of a place as text, added when it is new; "0" for none.
  [[nodiscard]] std::string Plaats(std::string_view waarde);
  // The code of a denomination or a kind of marriage; "0" for an empty value.
  [[nodiscard]] std::string Gezindte(std::string_view waarde);
  // What names a level-0 record in the log.
  [[nodiscard]] static std::string Context(std::string_view tag, std::string_view id);
};

}  // namespace lb77
