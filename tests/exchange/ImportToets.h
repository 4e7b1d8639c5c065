// Imports of small GEDCOM files by the dialog, and what they leave in the record files.
#pragma once

#include <string>
#include <string_view>

#include "steun/FamilieToets.h"

namespace lb77 {

// A raw literal as a GEDCOM file: HEAD before its lines, TRLR behind them. Blanks around a line do
// not count.
[[nodiscard]] std::string Ged(std::string_view regels);
// The same for a file whose character set is `tekenset`.
[[nodiscard]] std::string GedIn(std::string_view tekenset, std::string_view regels);

class ImportToets : public FamilieToets {
 protected:
  ImportToets();

  // Imports a file of these bytes. `gemeld` are the boxes before "Importeren voltooid".
  void Importeer(std::string_view bytes, std::string_view gemeld = "",
                 const Plek& plek = Plek::current());
  // Imports a file of these bytes and expects these lines between the opening and the closing of
  // the dialog, the viewer included when it comes.
  void ImporteerMet(std::string_view bytes, std::string_view verslag, bool metViewer = true,
                    const Plek& plek = Plek::current());

  // The log as the dialog wrote it.
  [[nodiscard]] std::string Log() const;
  // The lines of the log, each ended by a line feed, without the closing line and the one that tells
  // of the rest file.
  [[nodiscard]] std::string LogRegels() const;
  // The lines of the rest file, each ended by a line feed; empty without one.
  [[nodiscard]] std::string Rest() const;

  // What one record holds, fields that are empty left out; a remark or place by its text.
  [[nodiscard]] std::string Persoon(std::int16_t nr);
  [[nodiscard]] std::string Relatie(std::int16_t nr);
  [[nodiscard]] std::string Plaats(std::int16_t nr);
  // The lines of all remarks of an owner: rubric, blank, lines joined by "|"; remarks by line feeds.
  [[nodiscard]] std::string OpmBijPersoon(std::int16_t nr);
  [[nodiscard]] std::string OpmBijRelatie(std::int16_t nr);
  // The highest record numbers: persons, relations, places, remarks.
  [[nodiscard]] std::string Aantallen();

  [[nodiscard]] std::filesystem::path Bestand() const { return Map() / "IN.GED"; }
  [[nodiscard]] std::filesystem::path TekstMap() const { return Map() / "PROEF" / "TEKST"; }

  // The files of the imports from here on are Unicode; the question whether to convert gets this.
  void Antwoord(std::string_view antwoord) { antwoord_ = antwoord; }

  // A session with the settings read, as the program starts.
  void InSessie(const Taak& taak);

 private:
  std::string antwoord_;
};

}  // namespace lb77
