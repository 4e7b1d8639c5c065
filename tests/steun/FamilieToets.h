// A family on disk, and sessions on it that a script plays.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string_view>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "steun/ProefSet.h"
#include "steun/SpeelToets.h"

namespace lb77 {

// Each session opens the files anew; what was written stays.
class FamilieToets : public SpeelToets {
 protected:
  using Taak = std::function<void(Hoofdmodule&)>;

  // What the verbs complained about fails the test.
  void TearDown() override;

  // The program's directory of the session.
  [[nodiscard]] const std::filesystem::path& Map() const { return set_.map.Pad(); }
  // The verbs that fill the files.
  BouwFamilie& Bouw() { return set_.bouw; }
  // Adds men "A1 Reeks" ... "An Reeks".
  void Reeks(int aantal);
  void MaakVervolg(std::int16_t persoon) { Bouw().WijzigPersoon(persoon, {{"GebCorr", "Z"}}); }
  // Makes a part of the file that was never written.
  void MaakGat(std::int16_t persoon);
  // The system fails on each read of that record.
  void MaakOnleesbaar(BestandSoort soort, std::int16_t nr) { onleesbaar_[soort].insert(nr); }
  // The reads of the last session.
  int Gelezen(BestandSoort soort) { return gelezen_[soort]; }

  // The program that opens a session and does `taak` in it.
  Programma Sessie(const Taak& taak);
  // Does something in a session that shows nothing.
  void Stil(const Taak& taak, const Plek& plek = Plek::current());
  // Plays a script against `taak` and expects this transcript.
  void Verwacht(std::string_view draaiboek, const Taak& taak, std::string_view verslag,
                const Plek& plek = Plek::current());

 private:
  Bestandenset::Opening Open(const std::filesystem::path& pad, std::size_t lengte);

  ProefSet set_;
  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
  std::map<BestandSoort, std::set<std::int32_t>> onleesbaar_;
  std::map<BestandSoort, int> gelezen_;
};

}  // namespace lb77
