#include "qt/StartVenster.h"

#include <QApplication>
#include <exception>
#include <string>

#include "qt/QtGesprek.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"
#include "text/Letterlijk.h"

namespace lb77 {

namespace {

void Meld(Gesprek& gesprek, const char* wat) {
  gesprek.Fout(
      std::string("Er is een onverwachte fout opgetreden. Het programma wordt beëindigd."_w) +
      "\n(" + wat + ")");
}

}  // namespace

int VoerProgramma(const Programma& programma, const std::filesystem::path& bestand) {
  const std::filesystem::path map = programma.map ? programma.map(bestand) : bestand.parent_path();
  QtGesprek gesprek(map);
  try {
    programma.voer(gesprek, map);
    return 0;
  } catch (const std::exception& fout) {
    if (programma.red) programma.red();
    Meld(gesprek, fout.what());
  } catch (...) {
    if (programma.red) programma.red();
    Meld(gesprek, "onbekende fout");
  }
  return 1;
}

int StartVenster(int argc, char** argv, const Programma& programma) {
  QApplication toepassing(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lb77"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setQuitOnLastWindowClosed(false);  // the program ends when its main form has closed
  ZetStijl(toepassing);
  return VoerProgramma(programma, PadVanQt(QApplication::applicationFilePath()));
}

}  // namespace lb77
