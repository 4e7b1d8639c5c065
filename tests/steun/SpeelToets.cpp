#include "steun/SpeelToets.h"

#include <fstream>

#include "script/Instructie.h"
#include "script/Verslag.h"
#include "steun/Plekken.h"
#include "steun/Vergelijkbaar.h"
#include "text/Tekens.h"

namespace lb77 {

std::string TranscriptRegels(std::string_view tekst) {
  std::string uit;
  while (!tekst.empty()) {
    const std::size_t eind = std::min(tekst.find('\n'), tekst.size());
    const std::string_view regel = Trim(tekst.substr(0, eind));
    tekst.remove_prefix(std::min(eind + 1, tekst.size()));
    if (!regel.empty()) uit += std::string(regel) + '\n';
  }
  return uit;
}

void NoteerGetoond(std::string_view utf8) {
  // Test programs run side by side: a line goes out in one write at the end of the file.
  std::ofstream bestand(BouwMap() / "getoond.txt", std::ios::app | std::ios::binary);
  const std::string regel = AangehaaldUtf8(utf8) + '\n';
  bestand << regel << std::flush;
}

SpeelUitslag SpeelToets::Speel(std::string_view draaiboek, const Programma& programma) {
  verslag_.clear();
  const Draaiboek boek = LeesDraaiboek(draaiboek);
  if (!boek.fout.empty()) return {1, boek.fout, {}};
  return lb77::Speel(boek.instructies, programma,
                     [&](std::string_view regel) { verslag_ += std::string(regel) + '\n'; },
                     {.basismap = basismap_, .echo = echo_, .getoond = NoteerGetoond});
}

void SpeelToets::Verwacht(std::string_view draaiboek, const Programma& programma,
                          std::string_view verslag, const Plek& plek) {
  const ::testing::ScopedTrace spoor(plek.file_name(), static_cast<int>(plek.line()), "draaiboek");
  const SpeelUitslag uitslag = Speel(draaiboek, programma);
  EXPECT_EQ(uitslag.reden, "");
  EXPECT_EQ(uitslag.status, 0);
  EXPECT_EQ(Vergelijkbaar(verslag_), Vergelijkbaar(Regels(verslag)));
  for (const std::string& over : uitslag.ongebruikt) ADD_FAILURE() << "niet gebruikt: " << over;
}

void SpeelToets::VerwachtFout(std::string_view draaiboek, const Programma& programma,
                              std::string_view reden, const Plek& plek) {
  const ::testing::ScopedTrace spoor(plek.file_name(), static_cast<int>(plek.line()), "draaiboek");
  const SpeelUitslag uitslag = Speel(draaiboek, programma);
  EXPECT_EQ(uitslag.status, 1);
  EXPECT_NE(uitslag.reden.find(reden), std::string::npos) << "reden: " << uitslag.reden;
}

}  // namespace lb77
