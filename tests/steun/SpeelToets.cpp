#include "steun/SpeelToets.h"

#include <fstream>

#include "script/Instructie.h"
#include "script/Verslag.h"
#include "steun/Plekken.h"
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

namespace {

// Paths in a transcript read alike on each system: there with a slash for each backslash, as texts
// that a test puts together from both.
std::string Vergelijkbaar(std::string tekst) {
#ifdef _WIN32
  for (std::size_t i = tekst.find("\\\\"); i != std::string::npos; i = tekst.find("\\\\", i)) {
    tekst.replace(i, 2, "/");
  }
  std::size_t schijf = 0;
  while ((schijf = tekst.find(":\\", schijf)) != std::string::npos) {
    while (schijf < tekst.size() && tekst[schijf] != '"' && tekst[schijf] != '\n') {
      if (tekst[schijf] == '\\' && tekst.substr(schijf + 1, 1) != "n") tekst[schijf] = '/';
      ++schijf;
    }
  }
#endif
  return tekst;
}

}  // namespace

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
