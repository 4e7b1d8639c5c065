// What the shared tests must know of each record class.
#pragma once

#include <cstdint>
#include <string>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "text/Tekens.h"

namespace lb77 {

struct PersoonProef {
  using Klasse = PersoonLB77;
  static constexpr BestandSoort kSoort = BestandSoort::Personen;
  static constexpr std::int16_t kGeenNr = -1;
  static constexpr std::int16_t kNieuwAantal = 0;
  static constexpr int kHoogste = 32767;
  static constexpr const char* kVol = "Het maximum van 32767 records is bereikt";
  static constexpr const char* kVeld = "Voornaam";
  static constexpr const char* kLees = "Fout bij het lezen van Persoonsrecord ";
  static constexpr const char* kSchrijf = "Fout bij het schrijven van Persoonsrecord ";
  static constexpr const char* kLeesAdmin =
      "Fout bij het lezen van het Administratierecord van het Persoonsbestand";
  static constexpr const char* kSchrijfAdmin =
      "Fout bij het schrijven van het Administratierecord van het Persoonsbestand";
  static constexpr const char* kAantal = "Aantal persoonsrecords in administratierecord is onjuist";
  static constexpr const char* kNaam = "Persoonsrecord";
  static Klasse& Van(ProefSet& set) { return set.Persoon; }
  static std::int16_t BufNr(const ProefSet& set) { return set.volgers.PersBufNr; }
  static bool Lees(ProefSet& set, std::int16_t nr) { return set.Persoon.Lees(nr); }
  static bool Schrijf(ProefSet& set, std::int16_t nr) { return set.Persoon.Schrijf(nr); }
  static std::string Tekst(const Klasse& klasse) { return klasse.VoorNaamTrue(); }
};

struct RelatieProef {
  using Klasse = RelatieLB77;
  static constexpr BestandSoort kSoort = BestandSoort::Relaties;
  static constexpr std::int16_t kGeenNr = -1;
  static constexpr std::int16_t kNieuwAantal = 0;
  static constexpr int kHoogste = 32767;
  static constexpr const char* kVol = "Het maximum van 32767 records is bereikt";
  static constexpr const char* kVeld = "HuwSoort";
  static constexpr const char* kLees = "Fout bij het lezen van Relatierecord ";
  static constexpr const char* kSchrijf = "Fout bij het schrijven van Relatierecord ";
  static constexpr const char* kLeesAdmin =
      "Fout bij het lezen van het Administratierecord van het Relatiebestand";
  static constexpr const char* kSchrijfAdmin =
      "Fout bij het schrijven van het Administratierecord van het Relatiebestand";
  static constexpr const char* kAantal = "Aantal relatierecords in administratierecord is onjuist";
  static constexpr const char* kNaam = "Relatierecord";
  static Klasse& Van(ProefSet& set) { return set.Relatie; }
  static std::int16_t BufNr(const ProefSet& set) { return set.volgers.RelBufNr; }
  static bool Lees(ProefSet& set, std::int16_t nr) { return set.Relatie.Lees(nr); }
  static bool Schrijf(ProefSet& set, std::int16_t nr) { return set.Relatie.Schrijf(nr); }
  static std::string Tekst(const Klasse& klasse) { return klasse.HuwSoort(); }
};

struct PlaatsProef {
  using Klasse = PlaatsLB77;
  static constexpr BestandSoort kSoort = BestandSoort::Plaatsen;
  static constexpr std::int16_t kGeenNr = 0;
  static constexpr std::int16_t kNieuwAantal = 0;
  static constexpr int kHoogste = 10000;
  static constexpr const char* kVol = "Het maximum van 10000 plaatsen is bereikt";
  static constexpr const char* kVeld = "Plaatsnaam";
  static constexpr const char* kLees = "Fout bij het lezen van Plaatsrecord ";
  static constexpr const char* kSchrijf = "Fout bij het schrijven van Plaatsrecord ";
  static constexpr const char* kLeesAdmin =
      "Fout bij het lezen van het administratierecord van het Plaatsbestand";
  static constexpr const char* kSchrijfAdmin =
      "Fout bij het schrijven van het Administratierecord van het Plaatsbestand";
  static constexpr const char* kAantal = "Aantal plaatsrecords in administratierecord is onjuist";
  static constexpr const char* kNaam = "Plaatsrecord";
  static Klasse& Van(ProefSet& set) { return set.Plaats; }
  static std::int16_t BufNr(const ProefSet& set) { return set.volgers.PlaatsBufNr; }
  static bool Lees(ProefSet& set, std::int16_t nr) { return set.Plaats.Lees(nr); }
  static bool Schrijf(ProefSet& set, std::int16_t nr) { return set.Plaats.Schrijf(nr); }
  static std::string Tekst(const Klasse& klasse) {
    return std::string(Trim(std::string_view(klasse.Bytes().data() + 2, 25)));
  }
};

struct OpmProef {
  using Klasse = OpmLB77;
  static constexpr BestandSoort kSoort = BestandSoort::Opmerkingen;
  static constexpr std::int16_t kGeenNr = -1;
  static constexpr std::int16_t kNieuwAantal = 1;
  static constexpr int kHoogste = 32767;
  static constexpr const char* kVol = "Het maximum van 32767 records is bereikt";
  static constexpr const char* kVeld = "Tekstregel";
  static constexpr const char* kLees = "Fout bij het lezen van Opmrecord ";
  static constexpr const char* kSchrijf = "Fout bij het schrijven van Opmerkingenrecord ";
  static constexpr const char* kLeesAdmin = "Fout bij het lezen van Opmrecord 1";
  static constexpr const char* kSchrijfAdmin =
      "Fout bij het schrijven van het Administratierecord van het Opmerkingenbestand";
  static constexpr const char* kAantal = "";
  static constexpr const char* kNaam = "Opmrecord";
  static Klasse& Van(ProefSet& set) { return set.Opmerking; }
  static std::int16_t BufNr(const ProefSet& set) { return set.volgers.OpmBufNr; }
  static bool Lees(ProefSet& set, std::int16_t nr) { return set.Opmerking.Lees(nr); }
  static bool Schrijf(ProefSet& set, std::int16_t nr) { return set.Opmerking.Schrijf(nr); }
  static std::string Tekst(const Klasse& klasse) { return klasse.Tekstregel(); }
};

// The typed tests are named after the records.
struct RaamNamen {
  template <class Proef>
  static std::string GetName(int) {
    return Proef::kNaam;
  }
};

}  // namespace lb77
