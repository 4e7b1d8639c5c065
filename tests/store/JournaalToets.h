// A set on a disk in memory, written through its journal, and a task that does a bit of everything.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "steun/ProefSchijf.h"
#include "store/Bestandenset.h"
#include "store/Handeling.h"
#include "store/Journaal.h"

namespace lb77 {

// The bytes of the four files.
using VierBestanden = std::map<BestandSoort, std::string>;

class JournaalToets : public ::testing::Test {
 protected:
  JournaalToets() { Open(); }

  static std::string Naam(BestandSoort soort) {
    return PadVanSoort(SetPaden::Van("/proef", "PROEF"), soort).filename().string();
  }

  // The program starts, as after a crash.
  void Open() {
    bestanden = std::make_unique<Bestandenset>(schijf.Opener());
    bestanden->ZetJournaal(schijf.Bron());
    ASSERT_FALSE(bestanden->OpenSet(SetPaden::Van("/proef", "PROEF")));
  }
  void Heropen() {
    bestanden.reset();
    schijf.Herstart();
    Open();
  }

  Journaal& Dagboek() { return *bestanden->HetJournaal(); }

  VierBestanden Stand() {
    VierBestanden stand;
    for (const BestandSoort soort : kBestandSoorten) stand[soort] = schijf.Bytes(Naam(soort));
    return stand;
  }
  void Zet(const VierBestanden& stand) {
    for (const auto& [soort, bytes] : stand) schijf.Bytes(Naam(soort)) = bytes;
  }

  SysteemFout Schrijf(BestandSoort soort, std::int32_t nr, char teken) {
    return bestanden->Bestand(soort).Schrijf(nr, std::string(RecordLengteVan(soort), teken));
  }
  // Several in one action; the first failure ends it.
  SysteemFout Doe(std::string_view label, std::initializer_list<RecordPlek> plekken, char teken) {
    Handeling handeling(*bestanden, label);
    for (const RecordPlek& plek : plekken) {
      if (SysteemFout fout = Schrijf(plek.soort, plek.nr, teken)) return fout;
    }
    return handeling.Voltooi();
  }

  // Five records in each file; the places end in the midst of the fifth.
  void Vul() {
    for (const BestandSoort soort : kBestandSoorten) {
      std::string& bytes = schijf.Bytes(Naam(soort));
      bytes.clear();
      for (char teken = 'a'; teken < 'f'; ++teken) bytes.append(RecordLengteVan(soort), teken);
    }
    schijf.Bytes(Naam(BestandSoort::Plaatsen)).resize(4 * 27 + 10);
    schijf.MaakVast();
    Heropen();
  }
  // Replaces, adds, leaves a gap, completes a record that is cut short, writes one twice.
  SysteemFout DoeAlles(char teken) {
    using enum BestandSoort;
    return Doe("Alles",
               {{Personen, 3},
                {Personen, 6},
                {Personen, 1},
                {Relaties, 2},
                {Opmerkingen, 8},
                {Plaatsen, 5},
                {Plaatsen, 6},
                {Personen, 7},
                {Personen, 6},
                {Personen, 3}},
               teken);
  }

  ProefSchijf schijf;
  std::unique_ptr<Bestandenset> bestanden;
};

}  // namespace lb77
