// Any bytes as the settings file. From the second visit to the program on the file does not change
// any more, so that no visit wears a setting down. (The first one may: a default that lies outside
// the bounds of its key is written, and moved within them when it is read.)
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "Doel.h"
#include "app/IniBestand.h"
#include "app/IniClass.h"
#include "app/Sleutels.h"
#include "cli/Bediener.h"
#include "steun/TijdelijkeMap.h"
#include "text/Getallen.h"

using namespace lb77;

namespace {

// All that the program asks of its settings.
void VraagAlles(const IniClass& ini) {
  for (const Sleutel& sleutel : AlleSleutels()) {
    for (int nummer = sleutel.aantal == 0 ? 0 : 1; nummer <= sleutel.aantal; ++nummer) {
      const std::string naam =
          std::string(sleutel.naam) + (nummer == 0 ? std::string() : GetalTekst(nummer));
      static_cast<void>(ini.IniWaarde(sleutel.sectie, naam));
      static_cast<void>(ini.IniPad(sleutel.sectie, naam));
    }
  }
  for (int index = 0; index <= 100; ++index) {
    static_cast<void>(ini.bestandenset(index));
    static_cast<void>(ini.SetOmschrijving(index));
    static_cast<void>(ini.BestandenSetOms(index));
  }
  static_cast<void>(ini.BestandenSetIndex(ini.ActieveSet()));
  static_cast<void>(ini.TekstDir());
  static_cast<void>(ini.IndexDir());
  static_cast<void>(ini.TempDir());
}

// Reads the settings as a program that starts, and writes them as one that ends; the file's bytes.
std::string Bezoek(const std::filesystem::path& map) {
  Bediener niemand([](std::string_view) {});
  Instellingen instellingen;
  Schrijfwijze schrijfwijze;
  IniClass ini(instellingen, schrijfwijze, niemand, map);
  if (!ini.IniLees()) return {};
  VraagAlles(ini);
  ini.IniSchrijf();
  return LeesBytes(map / kIniBestand);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t lengte) {
  static const TijdelijkeMap map;
  SchrijfBytes(map / kIniBestand, {reinterpret_cast<const char*>(bytes), lengte});
  static_cast<void>(Bezoek(map.Pad()));
  const std::string tweede = Bezoek(map.Pad());
  const std::string derde = Bezoek(map.Pad());
  if (tweede != derde) {
    std::cerr << "de instellingen veranderen:\n" << tweede << "\n" << derde;
    std::abort();
  }
  return 0;
}
