// Descendant charts of a family with a cousin marriage, a remarriage and somebody of unknown sex.
#include "descendants/GenFamilie.h"
#include "descendants/GenSchToets.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

class GenSchGouden : public GenSchToets {
 protected:
  GenSchGouden() {
    opties_.teksten.titel = "Genealogie van Jan Kok";
    opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  }
  void MetAlles() {
    opties_.GenOokVolgNrs = opties_.GenOokPrsNrs = opties_.GenOokRelNrs = true;
    opties_.GenToonDatums = GenDatums::Volledig;
  }
  void Verwacht(std::string_view naam) {
    VerwachtGouden(naam, Teken(BouwGenFamilie(bouw_).stamouder));
  }
};

TEST_F(GenSchGouden, HorizontaalMetVolgnummers) {
  opties_.GenOokVolgNrs = true;
  Verwacht("schema_gen.txt");
}

TEST_F(GenSchGouden, HorizontaalMetPartnersAchterIeder) {
  opties_.GenVoorNamen = GenVoornaamWijze::Voorletters;
  opties_.GenToonDatums = GenDatums::Jaartallen;
  opties_.GenPartners = GenPartnerWijze::OnderElkaar;
  Verwacht("schema_gen_partners.txt");
}

TEST_F(GenSchGouden, HorizontaalGecentreerdMetAllesEnPartnersOnderIeder) {
  MetAlles();
  opties_.GenCentreren = true;
  opties_.GenPartners = GenPartnerWijze::NaastElkaar;
  Verwacht("schema_gen_alles.txt");
}

TEST_F(GenSchGouden, HorizontaalMetHerhalingenDieGevolgdWorden) {
  opties_.GenVolgHerh = opties_.GenOokVolgNrs = opties_.GenCentreren = true;
  Verwacht("schema_gen_herhaling.txt");
}

TEST_F(GenSchGouden, HorizontaalVoorInternet) {
  opties_.GenInHTML = opties_.GenOokVolgNrs = true;
  opties_.GenPartners = GenPartnerWijze::OnderElkaar;
  Verwacht("schema_gen_html.txt");
}

TEST_F(GenSchGouden, VerticaalMetPartnersOnderIeder) {
  opties_.GenVertikaal = opties_.GenOokVolgNrs = true;
  opties_.GenToonDatums = GenDatums::Jaartallen;
  opties_.GenPartners = GenPartnerWijze::OnderElkaar;
  Verwacht("schema_gen_verticaal.txt");
}

TEST_F(GenSchGouden, VerticaalGecentreerdMetAllesEnPartnersNaastIeder) {
  MetAlles();
  opties_.GenVertikaal = opties_.GenCentreren = true;
  opties_.GenPartners = GenPartnerWijze::NaastElkaar;
  Verwacht("schema_gen_verticaal_alles.txt");
}

TEST_F(GenSchGouden, VerticaalVoorInternetVanDeZonen) {
  opties_.GenVertikaal = opties_.GenInHTML = opties_.GenOokVolgNrs = true;
  opties_.GenVolgDochters = GenDochters::Geen;
  Verwacht("schema_gen_verticaal_html.txt");
}

}  // namespace
}  // namespace lb77
