// How the rest file takes its name.
#include <gtest/gtest.h>

#include "exchange/ImpRest.h"
#include "steun/Plekken.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

// Tells what happens to the file; making it safe may fail.
class VerteldWerk final : public Bestandswerk {
 public:
  SysteemFout Veiligstellen(const std::filesystem::path& pad) override {
    verteld += "veilig " + pad.filename().string() + ";";
    return faalt ? SysteemFout{61, "Schijf vol"} : Bestandswerk::Veiligstellen(pad);
  }
  SysteemFout Hernoem(const std::filesystem::path& van,
                      const std::filesystem::path& naar) override {
    verteld += "naam " + naar.filename().string() + ";";
    return Bestandswerk::Hernoem(van, naar);
  }

  bool faalt = false;
  std::string verteld;
};

class ImpRestSluit : public ::testing::Test {
 protected:
  SysteemFout Schrijf(Bestandswerk& werk) {
    ImpRest rest;
    rest.Begin(map_ / "GEDCOM.RST", [](std::string_view bron) { return std::string(bron); });
    rest.NeemKop("0 @I1@ INDI", GedSoort::Persoon, 2);
    rest.Neem(1, "1 XYZ iets");
    rest.Schrijf();
    return rest.Sluit(werk);
  }

  TijdelijkeMap map_;
};

TEST_F(ImpRestSluit, HetBestandKrijgtZijnNaamAlsHetVeiligOpDeSchijfStaat) {
  VerteldWerk werk;
  EXPECT_FALSE(Schrijf(werk));
  EXPECT_EQ(werk.verteld, "veilig GEDCOM.RS~;naam GEDCOM.RST;");
  EXPECT_EQ(LeesBytes(map_ / "GEDCOM.RST"),
            "0 HEAD\r\n1 CHAR UTF-8\r\n0 @I1@ INDI\r\n1 REFN 2\r\n1 XYZ iets\r\n0 TRLR\r\n");
}

TEST_F(ImpRestSluit, WatNietVeiligStaatKrijgtGeenNaam) {
  VerteldWerk werk;
  werk.faalt = true;
  EXPECT_EQ(Schrijf(werk).tekst, "Schijf vol");
  EXPECT_EQ(werk.verteld, "veilig GEDCOM.RS~;");
  EXPECT_FALSE(std::filesystem::exists(map_ / "GEDCOM.RST"));
  EXPECT_FALSE(std::filesystem::exists(map_ / "GEDCOM.RS~"));
}

}  // namespace
}  // namespace lb77
