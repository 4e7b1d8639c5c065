// The viewer of texts.
#include <filesystem>
#include <fstream>

#include "output/BekijkTekst.h"
#include "output/ToonTekst.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

std::filesystem::path VoorbeeldTekst(Hoofdmodule& hoofd) {
  std::filesystem::path pad = hoofd.Ini.TempDir() / "KWSTDATA.TMP";
  std::ofstream(pad, std::ios::binary) << "Generatie I\r\n\r\n     1  Voorbeeld.\r\n";
  return pad;
}

constexpr FormulierRij kRijen[] = {
    {"BekijkTekst", [](Programma& p) { return Maak<BekijkTekst>(p.Hoofd()); }},
    {"ToonTekst",
     [](Programma& p) {
       return Maak<ToonTekst>(p.Hoofd(), VoorbeeldTekst(p.Hoofd()), "Kwartierstaat in Tekstvorm");
     }},
};

}  // namespace

std::span<const FormulierRij> Output() {
  return kRijen;
}

}  // namespace lb77::formulieren
