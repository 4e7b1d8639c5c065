// A session on record files in memory, with a user who says No.
#pragma once

#include <filesystem>
#include <string>

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
  // Reads a GEDCOM file by the form of the program.
  void Importeer(const std::filesystem::path& gedcom);

  // How a Kwartierstaat is asked; each bit is a choice of its dialog.
  enum Keuze : unsigned {
    kHTML = 1,
    kOpmerkingen = 2,
    kNummers = 4,
    kVolgHerhaling = 8,
    kBroersZussen = 16,
    kBroersZussenProband = 32
  };
  // Writes it and its index, each from the prompt to the viewer.
  void Kwartierstaat(int persoon, unsigned keuzen);

 private:
  void VulParam(Formulier& formulier, unsigned keuzen);

  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
  Bediener bediener_;

 public:
  Hoofdmodule hoofd;
};

}  // namespace lb77::fuzz
