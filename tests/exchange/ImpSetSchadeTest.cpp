// Imports into a set whose own files are damaged: messages, no hang, and the files as they were.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <tuple>

#include "exchange/ImpGedcom.h"
#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

enum class Schade { Weg, Leeg, MiddenInRecord1, MiddenInRecord, Nul, Willekeurig, Admin };

std::string Beschadigd(Schade schade, std::string bytes) {
  switch (schade) {
    case Schade::Weg:
    case Schade::Leeg:
      return "";
    case Schade::MiddenInRecord1:
      return bytes.substr(0, 10);
    case Schade::MiddenInRecord:
      return bytes.substr(0, bytes.size() - 10);
    case Schade::Nul:
      return std::string(bytes.size(), '\0');
    case Schade::Willekeurig: {
      std::uint32_t zaad = 12345;
      for (char& byte : bytes) {
        zaad = zaad * 1664525U + 1013904223U;
        byte = static_cast<char>(zaad >> 24);
      }
      return bytes;
    }
    case Schade::Admin:
      return std::string(20, '\x7F') + bytes.substr(20);
  }
  return bytes;
}

class ImpSetSchade : public ImportToets,
                     public ::testing::WithParamInterface<std::tuple<const char*, Schade>> {};

TEST_P(ImpSetSchade, EindigtMetWeinigMeldingen) {
  const auto [soort, schade] = GetParam();
  const auto oud = Bouw().Man("Oude", "Man");
  Bouw().Relatie(oud, 0);
  Bouw().Plaats("Delft");
  Bouw().OpmerkingBijPersoon(oud, 4096, {"oude opmerking"});
  const auto pad = Map() / "PROEF" / ("PROEF." + std::string(soort));
  const std::string bytes = Beschadigd(schade, LeesBytes(pad));
  SchrijfBytes(pad, bytes);
  std::string regels;
  for (int i = 0; i < 50; ++i) {
    regels += "0 @I1@ INDI\n1 NAME Jan //\n1 BIRT\n2 PLAC Delft\n1 NOTE a\n0 @F1@ FAM\n1 NOTE b\n";
  }
  SchrijfBytes(Bestand(), Ged(regels));
  const SpeelUitslag uitslag = Speel("vul Bestandsnaam " + Bestand().string() + "\ndruk OKButton",
                                     Sessie([](Hoofdmodule& hoofd) {
                                       ImpGedcom form(hoofd);
                                       hoofd.gesprek.ToonModaal(form);
                                     }));
  EXPECT_EQ(uitslag.reden, "");
  EXPECT_LE(std::count(verslag_.begin(), verslag_.end(), '!'), 12) << verslag_;
  // What was there is still there, but for the count.
  const std::string daarna = LeesBytes(pad);
  ASSERT_GE(daarna.size(), bytes.size());
}

INSTANTIATE_TEST_SUITE_P(Bestanden, ImpSetSchade,
                         ::testing::Combine(::testing::Values("PRS", "RLT", "OPM", "PLT"),
                                            ::testing::Values(Schade::Weg, Schade::Leeg,
                                                              Schade::MiddenInRecord1,
                                                              Schade::MiddenInRecord, Schade::Nul,
                                                              Schade::Willekeurig, Schade::Admin)));

}  // namespace
}  // namespace lb77
