#include "qt/StartVenster.h"

#include <QApplication>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qt/QtGesprek.h"
#include "qt/Stijl.h"
#include "store/Uitzondering.h"
#include "text/Letterlijk.h"

namespace lb77 {

namespace {

// As a constant: clang 14 ends on its own error where the literal stands within a function.
constexpr std::string_view kOnverwacht =
    "Er is een onverwachte fout opgetreden. Het programma wordt beëindigd."_w;

// Without a conversation the failure lies before the first window.
void Meld(std::optional<QtGesprek>& gesprek, const std::string& reden) {
  if (!gesprek) gesprek.emplace();
  gesprek->Fout(std::string(kOnverwacht) + (reden.empty() ? "" : "\n(" + reden + ")"));
}

std::vector<std::string> Woorden() {
  std::vector<std::string> uit;
  for (const QString& woord : QCoreApplication::arguments().mid(1))
    uit.push_back(woord.toStdString());
  return uit;
}

}  // namespace

int VoerMetVangnet(const Vensterprogramma& programma) {
  std::optional<QtGesprek> gesprek;
  try {
    const std::filesystem::path map = programma.map();
    gesprek.emplace(map);
    programma.voer(*gesprek, map);
    return 0;
  } catch (const std::exception& fout) {
    Meld(gesprek, UitzonderingTekst(fout));
  } catch (...) {
    Meld(gesprek, {});
  }
  return 1;
}

int StartVenster(int argc, char** argv, const Vensterprogramma& programma) {
  QApplication toepassing(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lb77"));
  QApplication::setQuitOnLastWindowClosed(false);  // the program ends when its main form has closed
  ZetStijl(toepassing);
  const std::optional<int> status = programma.aanroep ? programma.aanroep(Woorden()) : std::nullopt;
  return status ? *status : VoerMetVangnet(programma);
}

}  // namespace lb77
