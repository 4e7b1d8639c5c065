// The text of the ancestor report on small families.
#include <gtest/gtest.h>

#include "ancestors/KwstFamilies.h"
#include "ancestors/KwstSchrijverToets.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

class KwstFamiliesToets : public KwstSchrijverToets {
 protected:
  // Expects the text in tests/gouden/kwtxt.
  void VerwachtTekst(std::int16_t proband, const std::string& naam) {
    EXPECT_EQ(Schrijf(proband), Einde::Klaar);
    VerwachtGouden("kwtxt/" + naam, uit_);
  }
};

TEST_F(KwstFamiliesToets, EenHerhalingVerwijstNaarHetEersteNummer) {
  VerwachtTekst(BouwNeefEnNicht(set_.bouw), "neven.txt");
}

TEST_F(KwstFamiliesToets, EenGevolgdeHerhalingHeeftOokHerhaaldeOuders) {
  opties_.KwVolgHerh = true;
  VerwachtTekst(BouwNeefEnNicht(set_.bouw), "neven_gevolgd.txt");
}

TEST_F(KwstFamiliesToets, InHTMLVerwijzenHerhalingenNaarKindEnOuders) {
  opties_.KwVolgHerh = opties_.KwInHTML = true;
  VerwachtTekst(BouwNeefEnNicht(set_.bouw), "neven_gevolgd.htm");
}

TEST_F(KwstFamiliesToets, WieNietBekendIsLaatGeenGatenInDeNummers) {
  VerwachtTekst(BouwHalveOuders(set_.bouw), "halve_ouders.txt");
}

TEST_F(KwstFamiliesToets, BeginMiddenInEenPaarLaatWieErvoorStaatWeg) {
  opties_.KwVanafNr = Kwartiernummer("5");
  VerwachtTekst(BouwNeefEnNicht(set_.bouw), "vanaf_vijf.txt");
}

TEST_F(KwstFamiliesToets, BroersEnZussenStaanMetHunPartners) {
  const std::int16_t proband = BouwBroersEnZussen(set_.bouw);
  VerwachtTekst(proband, "broerzus_1.txt");
  opties_.KwBroerZus = BroerZus::VanProband;
  VerwachtTekst(proband, "broerzus_2.txt");
  opties_.KwBroerZus = BroerZus::Alle;
  VerwachtTekst(proband, "broerzus_3.txt");
  opties_.KwInHTML = true;
  VerwachtTekst(proband, "broerzus_3.htm");
}

TEST_F(KwstFamiliesToets, LaterePartnersStaanErMetHunOuders) {
  VerwachtTekst(BouwHertrouwden(set_.bouw), "hertrouwden.txt");
}

}  // namespace
}  // namespace lb77
