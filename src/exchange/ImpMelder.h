// What an import tells while it works.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lb77 {

// How far an import has come, as the progress fields show it.
struct ImpStand {
  std::int32_t regels = 0;
  std::int32_t personen = 0;
  std::int32_t relaties = 0;
  std::int32_t bronnen = 0;
  std::string voornaam;  // of the last name read
  std::string achternaam;
  std::string bron;  // title of the last source read
};

// Implemented by the form; the passes know no other way to the user.
class ImpMelder {
 public:
  ImpMelder() = default;
  virtual ~ImpMelder() = default;
  ImpMelder(const ImpMelder&) = delete;
  ImpMelder& operator=(const ImpMelder&) = delete;

  // Adds a line to the log.
  virtual void Log(std::string_view regel) = 0;
  // Shows a warning.
  virtual void Waarschuw(std::string_view tekst) = 0;
  // Shows the message of a text converted from code page 850.
  virtual void MeldDos850() = 0;
  // A pass begins: 1, 2 or 3.
  virtual void BeginGang(int nummer) = 0;
  // Brings the progress fields up to date.
  virtual void Ververs(const ImpStand& stand) = 0;
  // A record has ended: here an import that the user stopped ends.
  virtual void BijRecordEinde() {}
};

}  // namespace lb77
