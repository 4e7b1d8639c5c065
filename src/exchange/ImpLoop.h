// One run of the import: what its three passes hand on to each other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/GedDatum.h"
#include "exchange/GedIdTabel.h"
#include "exchange/GedKop.h"
#include "exchange/GedRegel.h"
#include "exchange/GedTekenset.h"
#include "exchange/ImpMelder.h"
#include "exchange/ImpPlaatsen.h"
#include "exchange/ImpRest.h"
#include "exchange/ImpTekens.h"
#include "exchange/ImpVerliezen.h"
#include "exchange/Regelmerken.h"
#include "store/Gegevens.h"

namespace lb77 {

// The records that an import fills, and what it needs beside them.
struct ImpDelen : Gegevens {
  ImpMelder& melder;
};

// How a pass ended.
struct ImpUitslag {
  std::string fout{};    // an error of the file: the passes behind it are skipped
  bool gestopt = false;  // a record could not be read or written, which its class has told
  // Where it ended, when it did before its time: the line, counted from 1, and how many records of the
  // file were made and got nothing.
  std::int32_t regel = 0;
  std::size_t legePersonen = 0;
  std::size_t legeRelaties = 0;

  [[nodiscard]] bool Gelukt() const { return fout.empty() && !gestopt; }
};

class ImpLoop {
 public:
  // `laatstePersoon` and `laatsteRelatie` are the highest numbers in use.
  ImpLoop(const ImpDelen& delen, std::int16_t laatstePersoon, std::int16_t laatsteRelatie);

  // Begins a pass: all counts from 0.
  void BeginGang();
  // Counts a line, and now and then brings the progress fields up to date.
  void TelRegel();
  // The parts of a line. In a file of ours "@@" in its value stands for one "@"; the value is then
  // valid until the next call.
  [[nodiscard]] GedDelen Ontleed(std::string_view regel);
  // Notes a line of level 0: its count and the context of log lines. The number of its record
  // becomes PersoonNr or RelatieNr.
  GedSoort Kop(const GedDelen& regel);

  // The records that the last INDI and FAM lines of this pass stand for; 0 before the first.
  [[nodiscard]] std::int16_t PersoonNr() const { return persoonNr_; }
  [[nodiscard]] std::int16_t RelatieNr() const { return relatieNr_; }

  // Makes the next record of its file, and gives its number; 0 after a failure.
  [[nodiscard]] std::int16_t NieuwePersoon();
  [[nodiscard]] std::int16_t NieuweRelatie();

  [[nodiscard]] const std::string& Context() const { return context_; }
  // Adds a log line: the context and what follows.
  void Log(std::string_view tekst) { delen.melder.Log(context_ + std::string(tekst)); }

  // Counts a loss in the line at hand, which is not stored whole then.
  void TelVerlies(Verlies soort) {
    verliezen.Tel(soort, stand.regels);
    Merk();
  }
  // The line at hand is not stored, or not whole.
  void Merk() { merken.Zet(stand.regels); }
  // The same of one that gave a field a text, when the field has no room for all of it, or no
  // character for part of it, which is counted.
  void MerkOpslag(std::string_view windows, std::size_t breedte);
  // The same for a tag of our own, whose text nobody has cut.
  void MerkEigen(std::string_view windows, std::size_t breedte);
  // Counts the characters of a text that are stored as "?", as those of the line at hand. True when
  // there are any.
  bool TelTekens(std::string_view windows);

  // A line of the file in UTF-8.
  [[nodiscard]] std::string BronUtf8(std::string_view bron) const;
  // A text of the file in Windows-1252.
  [[nodiscard]] std::string GedTekst(std::string_view tekst);
  // The value of a DATE line; what can't be read goes to the log.
  [[nodiscard]] GedDatumUitslag Datum(std::string_view waarde);
  // Takes a place record of a file of ours, by its id.
  void NeemPlaatsRecord(std::string_view id, std::string_view naam, std::string_view prov);
  // The number of the place that a link to such a record means; 0 for none.
  [[nodiscard]] std::int16_t EigenPlaats(std::string_view verwijzing);
  // The number of a place, as text, which is added when it is new; "0" for none.
  [[nodiscard]] std::string GedPlaats(std::string_view waarde);
  // The record number of a pointer as text; "0" for none.
  [[nodiscard]] std::string GedPersNr(std::string_view verwijzing);
  [[nodiscard]] std::string GedRelNr(std::string_view verwijzing);
  // The code of a religion or a kind of marriage.
  [[nodiscard]] std::string Gezindte(std::string_view waarde);

  ImpDelen delen;
  GedIdTabel GedPersId;
  GedIdTabel GedRelId;
  GedTekenset tekenset = GedTekenset::Geen;
  bool omgezet = false;  // the reader converts: no character set that the file names counts
  bool eigen = false;    // the file is one of ours, which doubles an "@" as the standard asks
  ImpStand stand;
  ImpVerliezen verliezen;
  Regelmerken merken;  // of the lines that the second pass did not store whole
  ImpRest rest;
  ImpTekens tekens;  // lost by the conversion of the lines, or in the records

 private:
  [[nodiscard]] std::string NrVan(const GedIdTabel& tabel, std::string_view verwijzing);

  GedIdTabel plaatsId_;
  ImpPlaatsen plaatsen_;
  std::string waarde_;  // of the line at hand, where it differs from what the file has
  std::string context_;
  std::int16_t laatstePersoon_;
  std::int16_t laatsteRelatie_;
  std::int16_t persoonNr_ = 0;
  std::int16_t relatieNr_ = 0;
};

}  // namespace lb77
