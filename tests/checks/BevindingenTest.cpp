// The window of findings, by script.
#include "app/Start.h"
#include "checks/Bevindingen.h"
#include "checks/ControleSessie.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

class BevindingenToets : public ControleSessie {
 protected:
  BevindingenToets() {
    for (int i = 0; i < 2; ++i) {
      Bouw().Man("Jan", "Proef", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
    }
    Bouw().WijzigPersoon(3, {{"Ouders", "2"}});
    Bouw().Relatie(0, 0);
  }
};

TEST_F(BevindingenToets, StaanAlsLijstAchterHetVerslag) {
  Speel(kControlePrs, R"~(
    druk OKButton
    druk Bevindingen
    toon
    toon SoortBox
    toon BevindingenLijst
    stel SoortBox #2
    toon BevindingenLijst
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControlePrs "Controleer Persoonsbestand"
    + ToonTekst "Controle Persoonsbestand"
    + Bevindingen "Bevindingen"
    : Bevindingen "Bevindingen"
    = SoortBox "Alle soorten (3)"
    = BevindingenLijst "Persoon 2: Geboorte is na de doop"
    = Open "3"
    = MeerLabel "0 bevindingen meer staan alleen in het verslag" [verborgen]
    = KaartButton "&Kaart"
    = CorrigeerButton "&Corrigeren"
    = BackButton "&Terug"
    * BevindingenLijst
    = SoortBox "Alle soorten (3)"
    #0 "Alle soorten (3)"
    #1 "Geboorte is na de doop (2)"
    #2 "Kind komt niet voor bij ouders (1)"
    = BevindingenLijst "Persoon 2: Geboorte is na de doop"
    #0 "Persoon 2: Geboorte is na de doop"
    #1 "Persoon 3: Geboorte is na de doop"
    #2 "Persoon 3: Kind komt niet voor bij ouders"
    = BevindingenLijst "Persoon 3: Kind komt niet voor bij ouders"
    #0 "Persoon 3: Kind komt niet voor bij ouders"
    - Bevindingen
    - ToonTekst
    - ControlePrs
  )~");
}

TEST_F(BevindingenToets, ZonderFoutenIsErGeenLijst) {
  Bouw().WijzigPersoon(2, {{"DoopDatum", ""}});
  Bouw().WijzigPersoon(3, {{"DoopDatum", ""}, {"Ouders", "0"}});
  VerwachtFout("druk OKButton\ntoon Bevindingen\n", Sessie([](Hoofdmodule& hoofd) {
                 ASSERT_TRUE(Start(hoofd));
                 hoofd.gesprek.Toon<ControleForm>(kControlePrs, hoofd);
               }),
               "Bevindingen");
}

TEST_F(BevindingenToets, DrieWegenLeidenNaarDeKaart) {
  Speel(kControlePrs, R"~(
    druk OKButton
    druk Bevindingen
    stel BevindingenLijst #1
    toets BevindingenLijst Enter
    toon RecordNr
    druk BackButton
    dubbelklik BevindingenLijst
    druk BackButton
    toets BevindingenLijst NumEnter
    druk BackButton
    toets BevindingenLijst Down
    druk KaartButton
    druk BackButton
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControlePrs "Controleer Persoonsbestand"
    + ToonTekst "Controle Persoonsbestand"
    + Bevindingen "Bevindingen"
    + ToonPersoon "Toon Persoon"
    = RecordNr "3"
    - ToonPersoon
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
    - Bevindingen
    - ToonTekst
    - ControlePrs
  )~");
  EXPECT_EQ(na_.HuidigPersoonNr, voor_.HuidigPersoonNr);
}

// A user of the mouse, who clicks the first finding.
class Klikker final : public Gesprek {
 public:
  std::vector<std::string> geopend;

  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view) override { return Antwoord::OK; }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier& formulier) override { geopend.push_back(formulier.Naam()); }
  void Voer(Formulier& formulier) override {
    for (const std::string_view naam : {"OKButton", "Bevindingen", "BevindingenLijst"}) {
      if (Bediening* waar = formulier.Zoek(naam)) formulier.Klik(*waar);
    }
    if (!formulier.Gesloten()) formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}
};

TEST_F(BevindingenToets, EenKlikOpEenRegelOpentDeKaart) {
  Klikker klikker;
  Sessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.gesprek.Toon<ControleForm>(kControlePrs, hoofd);
  })(klikker);
  EXPECT_EQ(klikker.geopend,
            (std::vector<std::string>{"ControlePrs", "ToonTekst", "Bevindingen", "ToonPersoon"}));
}

TEST_F(BevindingenToets, WatHersteldIsStaatErZoBij) {
  Speel(kControlePrs, R"~(
    druk OKButton
    druk Bevindingen
    stel SoortBox #1
    stel BevindingenLijst #1
    druk KaartButton
    druk WijzigButton
    vul DoopDatum 01-01-1801
    druk Opslaan
    druk BackButton
    toon SoortBox
    toon BevindingenLijst
    toon Open
    druk BackButton
    druk Bevindingen
    toon BevindingenLijst
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControlePrs "Controleer Persoonsbestand"
    + ToonTekst "Controle Persoonsbestand"
    + Bevindingen "Bevindingen"
    + ToonPersoon "Toon Persoon"
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    - ToonPersoon
    = SoortBox "Geboorte is na de doop (2)"
    #0 "Alle soorten (3)"
    #1 "Geboorte is na de doop (2)"
    #2 "Kind komt niet voor bij ouders (1)"
    = BevindingenLijst "[hersteld] Persoon 3: Geboorte is na de doop"
    #0 "Persoon 2: Geboorte is na de doop"
    #1 "[hersteld] Persoon 3: Geboorte is na de doop"
    = Open "2"
    - Bevindingen
    + Bevindingen "Bevindingen"
    = BevindingenLijst "Persoon 2: Geboorte is na de doop"
    #0 "Persoon 2: Geboorte is na de doop"
    #1 "[hersteld] Persoon 3: Geboorte is na de doop"
    #2 "Persoon 3: Kind komt niet voor bij ouders"
    - Bevindingen
    - ToonTekst
    - ControlePrs
  )~");
}

TEST_F(BevindingenToets, EenVerwijzingWordtInHaarCorrectieHersteld) {
  Speel(kControlePrs, R"~(
    druk OKButton
    druk Bevindingen
    stel SoortBox #2
    druk CorrigeerButton
    toon RecordNr
    vul RelNrOuders ""
    druk OKButton
    toon BevindingenLijst
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControlePrs "Controleer Persoonsbestand"
    + ToonTekst "Controle Persoonsbestand"
    + Bevindingen "Bevindingen"
    + CorrPrsAlg "Corrigeer Verwijzingen Persoonsrecord"
    = RecordNr "3"
    - CorrPrsAlg
    = BevindingenLijst "[hersteld] Persoon 3: Kind komt niet voor bij ouders"
    #0 "[hersteld] Persoon 3: Kind komt niet voor bij ouders"
    - Bevindingen
    - ToonTekst
    - ControlePrs
  )~");
  EXPECT_EQ(na_.HuidigPersoonNr, voor_.HuidigPersoonNr);
}

TEST_F(BevindingenToets, ElkBestandHeeftZijnEigenCorrectie) {
  Bouw().WijzigRelatie(2, {{"VrouwNr", "99"}});
  Bouw().Plaats("Delft", "ZH");
  Bouw().OpmerkingBijPersoon(3, persoonrubriek::kBeroep, {"een"});
  Bouw().WijzigPersoon(3, {{"OpmRecord", "0"}});
  struct Rij {
    const ControleSoort& soort;
    std::string naam;
    std::string titel;
  };
  for (const Rij& rij :
       {Rij{kControleRel, "CorrRelAlg", "Corrigeer Verwijzingen Relatierecord"},
        Rij{kControlePlts, "CorrPltsAlg", "Vervang Plaatscode"},
        Rij{kControleOpm, "CorrOpmAlg", "Corrigeer Verwijzingen Opmerkingenrecord"}}) {
    const std::string naam(rij.soort.naam);
    Speel(rij.soort,
          "druk OKButton\ndruk Bevindingen\ndruk CorrigeerButton\ndruk BackButton\n"
          "druk BackButton\ndruk BackButton\n",
          "+ " + naam + " \"" + std::string(rij.soort.titel) + "\"\n+ ToonTekst \"" +
              std::string(rij.soort.verslag) + "\"\n+ Bevindingen \"Bevindingen\"\n+ " + rij.naam +
              " \"" + rij.titel + "\"\n- " + rij.naam + "\n- Bevindingen\n- ToonTekst\n- " + naam +
              "\n");
  }
}

TEST_F(BevindingenToets, VervangenBegintMetDePlaatsVanDeBevinding) {
  Bouw().Plaats("Delft", "ZH");
  Speel(kControlePlts, R"~(
    druk OKButton
    druk Bevindingen
    druk CorrigeerButton
    toon PlaatsNrOud
    druk BackButton
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControlePlts "Controleer Plaatsbestand"
    + ToonTekst "Controle Plaatsbestand"
    + Bevindingen "Bevindingen"
    + CorrPltsAlg "Vervang Plaatscode"
    = PlaatsNrOud "2"
    - CorrPltsAlg
    - Bevindingen
    - ToonTekst
    - ControlePlts
  )~");
}

TEST_F(BevindingenToets, EenRelatieEnEenPlaatsHebbenHunEigenKaart) {
  Bouw().WijzigRelatie(2, {{"VrouwNr", "99"}});
  Bouw().Plaats("Delft", "ZH");
  Bouw().Plaats("Leiden", "ZH");
  Speel(kControleRel, R"~(
    druk OKButton
    druk Bevindingen
    druk KaartButton
    toon RecordNr
    druk BackButton
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControleRel "Controleer Relatiebestand"
    + ToonTekst "Controle Relatiebestand"
    + Bevindingen "Bevindingen"
    + ToonRelatie "Toon Relatie"
    = RecordNr "2"
    - ToonRelatie
    - Bevindingen
    - ToonTekst
    - ControleRel
  )~");
  Speel(kControlePlts, R"~(
    druk OKButton
    druk Bevindingen
    stel BevindingenLijst #1
    druk KaartButton
    toon PlaatsnaamTekst(0)
    druk BackButton
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControlePlts "Controleer Plaatsbestand"
    + ToonTekst "Controle Plaatsbestand"
    + Bevindingen "Bevindingen"
    + ToonPlaatsen "Toon Plaatsen"
    = PlaatsnaamTekst(0) "Leiden"
    - ToonPlaatsen
    - Bevindingen
    - ToonTekst
    - ControlePlts
  )~");
}

TEST_F(BevindingenToets, EenOpmerkingLeidtNaarHaarEigenaar) {
  Bouw().OpmerkingBijPersoon(3, persoonrubriek::kBeroep, {"een", "twee", "drie"});
  Bouw().OpmerkingBijRelatie(2, relatierubriek::kOtrDatum, {"vier"});
  Bouw().WijzigPersoon(3, {{"OpmRecord", "0"}});
  Stil([](Hoofdmodule& hoofd) {
    EXPECT_TRUE(hoofd.Opmerking.Wijzig(3, {{"BijRecord", "0"}}));
    EXPECT_TRUE(hoofd.Opmerking.Wijzig(4, {{"BijRecord", "99"}}));
    EXPECT_TRUE(hoofd.Opmerking.Wijzig(5, {{"BijRecord", "-1"}}));
  });
  Speel(kControleOpm, R"~(
    druk OKButton
    druk Bevindingen
    toon BevindingenLijst
    druk KaartButton
    toon RecordNr
    druk BackButton
    stel BevindingenLijst #1
    druk KaartButton
    stel BevindingenLijst #2
    druk KaartButton
    stel BevindingenLijst #3
    druk KaartButton
    druk BackButton
    druk BackButton
  )~",
        R"~(
    + ControleOpm "Controleer Opmerkingenbestand"
    + ToonTekst "Controle Opmerkingenbestand"
    + Bevindingen "Bevindingen"
    = BevindingenLijst "Opmerking 2 verwijst niet naar P3"
    #0 "Opmerking 2 verwijst niet naar P3"
    #1 "Opmerking 3 verwijst niet naar P0"
    #2 "Opmerking 4 verwijst niet naar P99"
    #3 "Opmerking 5 verwijst niet naar R-1"
    + ToonPersoon "Toon Persoon"
    = RecordNr "3"
    - ToonPersoon
    ! uitroep "Het opgegeven Persoonsnummer komt niet voor"
    ! uitroep "Het opgegeven Persoonsnummer komt niet voor"
    ! uitroep "Het opgegeven Relatienummer komt niet voor"
    - Bevindingen
    - ToonTekst
    - ControleOpm
  )~");
}

}  // namespace
}  // namespace lb77
