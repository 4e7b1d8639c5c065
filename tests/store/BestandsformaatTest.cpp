// The worked examples of docs/bestandsformaat.md are what the record classes make of those fields.
#include <gtest/gtest.h>

#include <fstream>
#include <utility>

#include "steun/Plekken.h"
#include "steun/ProefSet.h"
#include "text/Letterlijk.h"

using namespace lb77;

namespace {

// Where the right column of a dump begins.
constexpr std::size_t kRechts = 55;

int HexCijfer(char teken) {
  return teken <= '9' ? teken - '0' : teken - 'a' + 10;
}

// One line, "0016  20 20 ... |  ...|": its bytes, which must be those that its right column shows.
std::string DumpRegel(const std::string& regel) {
  std::string bytes;
  std::string leesbaar = "|";
  for (std::size_t i = 6; i < kRechts; ++i) {
    if (regel[i] == ' ') continue;
    const int byte = HexCijfer(regel[i]) * 16 + HexCijfer(regel[i + 1]);
    bytes += static_cast<char>(byte);
    leesbaar += byte >= 32 && byte < 127 ? static_cast<char>(byte) : '.';
    ++i;
  }
  EXPECT_EQ(regel.substr(kRechts), leesbaar + "|");
  return bytes;
}

// All dumps of the document, in order.
std::vector<std::string> Voorbeelden() {
  std::ifstream in(BronMap() / "docs" / "bestandsformaat.md");
  std::vector<std::string> records;
  for (std::string regel; std::getline(in, regel);) {
    if (regel.find('|') != kRechts || !regel.starts_with("0")) continue;
    if (regel.starts_with("0000  ")) records.emplace_back();
    EXPECT_EQ(std::stoul(regel), records.back().size());
    records.back() += DumpRegel(regel);
  }
  return records;
}

template <class Klasse>
std::string Bytes(Klasse& klasse, VeldWaarden velden) {
  for (const VeldWaarde& paar : velden) klasse.Zet(paar.naam, paar.waarde);
  return {klasse.Bytes().data(), klasse.Bytes().size()};
}

struct BestandsformaatTest : ::testing::Test {
  BestandsformaatTest() { set.Heropen(); }
  ~BestandsformaatTest() override { EXPECT_EQ(set.Getoond(), std::vector<std::string>{}); }
  ProefSet set;
  std::vector<std::string> voorbeelden = Voorbeelden();
};

}  // namespace

TEST_F(BestandsformaatTest, HetDocumentHeeftVanElkBestandEenRecordEnZijnAdministratierecord) {
  std::vector<std::size_t> lengten;
  for (const std::string& record : voorbeelden) lengten.push_back(record.size());
  EXPECT_EQ(lengten, (std::vector<std::size_t>{128, 128, 64, 27, 27, 96, 96}));
}

TEST_F(BestandsformaatTest, DePersoonEnZijnAdministratierecord) {
  EXPECT_EQ(voorbeelden.at(0), Bytes(set.Persoon, {{"Achternaam", "van Oranje"},
                                                   {"Voornaam", "René"_w},
                                                   {"GebPlaats", "2"},
                                                   {"GebDatum", "05-02-1519"},
                                                   {"OvlPlaats", "3"},
                                                   {"OvlDatum", "18-07-1544"},
                                                   {"BegrPlaats", "10002"},
                                                   {"BegrDatum", "00-00-1544"},
                                                   {"DoopReligie", "RK"},
                                                   {"Geslacht", "M"},
                                                   {"Relatie1", "2"},
                                                   {"Ouders", "7"},
                                                   {"Beroep", "stadhouder"},
                                                   {"OpmRecord", "5"},
                                                   {"OpmCode", "4352"}}));
  ASSERT_TRUE(set.Persoon.LeesAdmin());
  set.Persoon.ZetAantal(300);
  EXPECT_EQ(voorbeelden.at(1), Bytes(set.Persoon, {}));
}

TEST_F(BestandsformaatTest, DeRelatie) {
  EXPECT_EQ(voorbeelden.at(2), Bytes(set.Relatie, {{"ManNr", "2"},
                                                   {"VrouwNr", "3"},
                                                   {"WHuwPlaats", "4"},
                                                   {"WHuwDatum", "24-08-1540"},
                                                   {"Religie", "RK"},
                                                   {"Kind1", "4"}}));
}

TEST_F(BestandsformaatTest, DePlaatsEnHaarAdministratierecord) {
  EXPECT_EQ(voorbeelden.at(3), Bytes(set.Plaats, {{"Provcode", "NB"}, {"Plaatsnaam", "Breda"}}));
  ASSERT_TRUE(set.Plaats.LeesAdmin());
  set.Plaats.ZetAantal(300);
  EXPECT_EQ(voorbeelden.at(4), Bytes(set.Plaats, {}));
}

TEST_F(BestandsformaatTest, DeOpmerkingEnHaarAdministratierecord) {
  EXPECT_EQ(voorbeelden.at(5),
            Bytes(set.Opmerking,
                  {{"Rubriek", "256"},
                   {"BijRecord", "2"},
                   {"BijProg", "5"},
                   {"VolgRegel", "6"},
                   {"BijZelfde", "7"},
                   {"Tekstregel",
                    "Gesneuveld bij het beleg van Saint-Dizier; zijn erfenis, het prinsdom "
                    "Oranje,"}}));
  ASSERT_TRUE(set.Opmerking.LeesAdmin());
  ASSERT_TRUE(set.Opmerking.SchrijfAdm(6, 7, 4));
  EXPECT_EQ(voorbeelden.at(6), Bytes(set.Opmerking, {}));
}
