// The four checks, as a table of what tells them apart.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "checks/Controleur.h"
#include "reporting/RecordBron.h"

namespace lb77 {

// An optional test: its tick box, and its line in the head of the report.
struct ControleOptie {
  std::string_view naam;
  std::string_view bijschrift;
  std::string_view regel;
};

struct ControleSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view verslag;  // title of the report and of the viewer
  std::string_view bestand;
  std::string_view teller;
  std::string_view telling;
  std::string_view geenRecords;
  std::span<const ControleOptie> opties;
  std::unique_ptr<Controleur> (*maak)(RecordBron&, const ControleKeuzen&);
};

extern const ControleSoort kControlePrs;
extern const ControleSoort kControleRel;
extern const ControleSoort kControlePlts;
extern const ControleSoort kControleOpm;

}  // namespace lb77
