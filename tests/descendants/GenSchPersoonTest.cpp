// What a descendant chart says of a person.
#include "descendants/GenSchPersoon.h"
#include "descendants/GenSchToets.h"

namespace lb77 {
namespace {

using Teksten = std::vector<std::string>;

class GenSchPersoonToets : public GenSchToets {
 protected:
  GenSchPersoonToets() {
    opties_.GenPosVNamen = 30;
    opties_.GenPosANamen = 25;
  }
  Gegevens Bronnen() {
    return {set_.Persoon,   set_.Relatie, set_.Plaats,
            set_.Opmerking, set_.volgers, set_.schrijfwijze};
  }
  // The entry of that number in the table of the stamouder.
  SchemaPersoon Lees(std::int16_t stamouder, int i = 0) {
    EXPECT_EQ(Bouw(stamouder), Einde::Klaar);
    const auto persoon = GenSchLezer(tabel_, opties_, Bronnen()).Lees(i);
    EXPECT_TRUE(persoon);
    return persoon.value_or(SchemaPersoon());
  }
  std::string Naam(GenVoornaamWijze wijze) {
    opties_.GenVoorNamen = wijze;
    return MaakSchemaNaam("Jan Pieter  Willem", "van der Berg", opties_).Voluit();
  }
  Teksten Partners(std::int16_t persoon) {
    opties_.GenPartners = GenPartnerWijze::OnderElkaar;
    Teksten uit;
    for (const auto& partner : Lees(persoon).partners) {
      uit.push_back(partner.teken + "|" + partner.naam.Voluit());
    }
    return uit;
  }
  Leesfout Fout(std::int16_t stamouder) {
    opties_.GenPartners = GenPartnerWijze::NaastElkaar;
    tabel_.Begin(stamouder, "M");
    GenSchLezer lezer(tabel_, opties_, Bronnen());
    EXPECT_FALSE(lezer.Lees(0));
    return lezer.Fout();
  }
};

TEST_F(GenSchPersoonToets, VoornamenZijnErNaarKeuze) {
  EXPECT_EQ(Naam(GenVoornaamWijze::Nee), "van der Berg");
  EXPECT_EQ(Naam(GenVoornaamWijze::AlleenEerste), "Jan van der Berg");
  EXPECT_EQ(Naam(GenVoornaamWijze::Voorletters), "J.P.W. van der Berg");
  EXPECT_EQ(Naam(GenVoornaamWijze::Volledig), "Jan Pieter  Willem van der Berg");
}

TEST_F(GenSchPersoonToets, NamenWordenAfgekapt) {
  opties_.GenPosVNamen = 5;
  opties_.GenPosANamen = 7;
  EXPECT_EQ(Naam(GenVoornaamWijze::Volledig), "Jan P van der");
  EXPECT_EQ(Naam(GenVoornaamWijze::Voorletters), "J.P.W van der");
  opties_.GenPosANamen = 4;
  EXPECT_EQ(Naam(GenVoornaamWijze::AlleenEerste), "Jan van");
  opties_.GenPosANamen = 0;
  EXPECT_EQ(Naam(GenVoornaamWijze::AlleenEerste), "Jan");
  EXPECT_EQ(Naam(GenVoornaamWijze::Nee), "");
}

TEST_F(GenSchPersoonToets, EenLangeEersteNaamBlijftHeelTotZijnPosities) {
  opties_.GenVoorNamen = GenVoornaamWijze::AlleenEerste;
  EXPECT_EQ(MaakSchemaNaam("Wilhelminadina Anna", "", opties_).voornamen, "Wilhelminadina");
}

TEST_F(GenSchPersoonToets, WieGeenNaamHeeftIsNN) {
  EXPECT_EQ(MaakSchemaNaam("", "", opties_).Voluit(), "N.N.");
  EXPECT_EQ(MaakSchemaNaam("", "Bos", opties_).Voluit(), "Bos");
  opties_.GenVoorNamen = GenVoornaamWijze::Nee;
  EXPECT_EQ(MaakSchemaNaam("", "", opties_).achternaam, "N.N.");
  opties_.GenPosANamen = 0;
  EXPECT_EQ(MaakSchemaNaam("", "", opties_).Voluit(), "");
}

TEST_F(GenSchPersoonToets, NummersStaanErAlsErOmGevraagdIs) {
  const auto jan = bouw_.Man("Jan", "Bos");
  SchemaPersoon persoon = Lees(jan);
  EXPECT_EQ(persoon.label, "");
  EXPECT_EQ(persoon.nummer, "");
  opties_.GenOokVolgNrs = opties_.GenOokPrsNrs = true;
  persoon = Lees(jan);
  EXPECT_EQ(persoon.label, "I");
  EXPECT_EQ(persoon.nummer, "[2]");
  EXPECT_FALSE(persoon.elders);
}

TEST_F(GenSchPersoonToets, EenHerhalingNoemtHaarEersteKeer) {
  const auto jan = Kind("Jan");
  const auto piet = Kind("Piet");
  Gezin(jan, {piet});
  Gezin(jan, {piet});
  EXPECT_EQ(Lees(jan, 2).elders, "");
  opties_.GenOokVolgNrs = true;
  const SchemaPersoon persoon = Lees(jan, 2);
  EXPECT_EQ(persoon.label, "IIb");
  EXPECT_EQ(persoon.elders, "IIa");
  EXPECT_EQ(persoon.naam.Voluit(), "Piet");
}

TEST_F(GenSchPersoonToets, JaartallenZijnDieVanDePeriode) {
  opties_.GenToonDatums = GenDatums::Jaartallen;
  const auto jan = bouw_.Man("Jan", "", {{"DoopDatum", "03-05-1802"}, {"OvlDatum", "00-02-1870"}});
  EXPECT_EQ(Lees(jan).datums, Teksten{"1802-1870"});
  EXPECT_EQ(Lees(bouw_.Man("Piet", "")).datums, Teksten{"    -    "});
  EXPECT_EQ(Lees(bouw_.Man("Kees", "", {{"BegrDatum", "01-01-1900"}})).datums,
            Teksten{"    -1900"});
}

TEST_F(GenSchPersoonToets, VolledigeDatumsHebbenHunTeken) {
  opties_.GenToonDatums = GenDatums::Volledig;
  const auto jan = bouw_.Man("Jan", "",
                             {{"GebDatum", "03-05-1802"},
                              {"DoopDatum", "04-05-1802"},
                              {"OvlDatum", "00-02-1870"},
                              {"BegrDatum", "05-02-1870"}});
  EXPECT_EQ(Lees(jan).datums, (Teksten{"*3-5-1802", "+2-1870"}));
  const auto piet =
      bouw_.Man("Piet", "", {{"DoopDatum", "04-05-1802"}, {"BegrDatum", "05-02-1870"}});
  EXPECT_EQ(Lees(piet).datums, (Teksten{"~4-5-1802", "#5-2-1870"}));
  EXPECT_EQ(Lees(bouw_.Man("Kees", "", {{"OvlDatum", "01-01-1900"}})).datums, Teksten{"+1-1-1900"});
  EXPECT_EQ(Lees(bouw_.Man("Klaas", "")).datums, Teksten{});
}

TEST_F(GenSchPersoonToets, ZonderDatumsStaatErGeen) {
  EXPECT_EQ(Lees(bouw_.Man("Jan", "", {{"GebDatum", "03-05-1802"}})).datums, Teksten{});
}

TEST_F(GenSchPersoonToets, EenEnkelePartnerHeeftGeenVolgnummer) {
  const auto jan = bouw_.Man("Jan", "Bos");
  EXPECT_EQ(Partners(jan), Teksten{});
  bouw_.Relatie(jan, bouw_.Vrouw("Anna Maria", "Vis"));
  EXPECT_EQ(Partners(jan), Teksten{"x|Anna Maria Vis"});
  opties_.GenOokRelNrs = true;
  EXPECT_EQ(Partners(jan), Teksten{"x[2]|Anna Maria Vis"});
}

TEST_F(GenSchPersoonToets, MeerPartnersZijnGenummerdEnEenOnbekendeIsNN) {
  const auto jan = bouw_.Man("Jan", "Bos");
  const auto anna = bouw_.Vrouw("Anna Maria", "Visser");
  bouw_.Relatie(jan, anna);
  bouw_.Relatie(jan, 0);
  bouw_.Relatie(jan, bouw_.Vrouw("", ""));
  opties_.GenOokRelNrs = true;
  opties_.GenVoorNamen = GenVoornaamWijze::Voorletters;
  opties_.GenPosANamen = 3;
  EXPECT_EQ(Partners(jan), (Teksten{"x(1)[2]|A.M. Vis", "x(2)[3]|N.N.", "x(3)[4]|N.N."}));
  opties_.GenOokRelNrs = false;
  EXPECT_EQ(Partners(anna), Teksten{"x|J. Bos"});
}

TEST_F(GenSchPersoonToets, ZonderPartnersWordtGeenRelatieGelezen) {
  const auto jan = bouw_.Man("Jan", "Bos", {{"Relatie1", "99"}});
  tabel_.Begin(jan, "M");
  EXPECT_TRUE(GenSchLezer(tabel_, opties_, Bronnen()).Lees(0));
}

TEST_F(GenSchPersoonToets, WatNietTeLezenIsWordtGemeld) {
  const auto jan = bouw_.Man("Jan", "Bos", {{"Relatie1", "99"}});
  EXPECT_EQ(Fout(jan), (Leesfout{BestandSoort::Relaties, 99}));
  EXPECT_EQ(Fout(50), (Leesfout{BestandSoort::Personen, 50}));
  const auto piet = bouw_.Man("Piet", "Bos");
  bouw_.WijzigRelatie(bouw_.Relatie(piet, 0), {{"VrouwNr", "60"}});
  EXPECT_EQ(Fout(piet), (Leesfout{BestandSoort::Personen, 60}));
}

}  // namespace
}  // namespace lb77
