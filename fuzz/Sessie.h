// A session on record files in memory, with a user who says No.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "cli/Bediener.h"
#include "steun/TijdelijkeMap.h"

namespace lb77::fuzz {

// The bytes of the four record files.
struct SetBytes {
  std::string personen;
  std::string relaties;
  std::string opmerkingen;
  std::string plaatsen;
};

// The program's directory of this process, with the directory TEKST of the set FUZZ, and with a
// settings file by which no dialog keeps its choices.
[[nodiscard]] const std::filesystem::path& ProgrammaMap();

class Sessie {
 public:
  // Opens these files as the set FUZZ. They outlive the session.
  explicit Sessie(SetBytes& bytes);

  // Writes record 1 of all four files.
  void MaakNieuw();
  // Reads a GEDCOM file by the form of the program; one in Unicode is converted, or read as it stands.
  void Importeer(const std::filesystem::path& gedcom, Antwoord omzetten = Antwoord::Ja);

  // How a report is asked; each bit is a choice of its dialog. A Parenteel by kBroersZussen is one by
  // generations.
  enum Keuze : unsigned {
    kHTML = 1,
    kOpmerkingen = 2,
    kNummers = 4,
    kVolgHerhaling = 8,
    kBroersZussen = 16,
    kBroersZussenProband = 32
  };
  // Each writes its report and the index on it, from the prompt to the viewer; that of the descendants
  // also its chart, by kBroersZussen downward.
  void Kwartierstaat(int persoon, unsigned keuzen);
  // Draws the chart of one, and prints some of its sheets.
  void Kwartierbladen(int persoon, unsigned keuzen);
  void Parenteel(int persoon, unsigned keuzen);
  // Searches the kinship of two persons.
  void Verwantschap(int een, int ander);
  // Writes the cards of the persons and of the relations up to that number.
  void Kaarten(int tot);
  // Writes the selections that need no place, and the statistics, those on descendants of that person.
  void Lijsten(int persoon);

 private:
  using Keuzen = std::vector<std::pair<std::string_view, std::string_view>>;

  // What the report does with its prompt, its options and its links.
  void Verslag(int persoon, std::string_view prompt, std::string_view opties,
               std::string_view links, const std::function<void(Formulier&)>& vul);
  // The choices that all reports have.
  void VulParam(Formulier& formulier, unsigned keuzen, std::string_view herhaling,
                const Keuzen& eigen);

  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
  Bediener bediener_;

 public:
  Hoofdmodule hoofd;
};

}  // namespace lb77::fuzz
