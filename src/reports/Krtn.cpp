#include "reports/Krtn.h"

#include "entry/VolgersBewaker.h"
#include "entry/ZoekPersoon.h"
#include "forms/Rijnaam.h"
#include "reporting/Tijdelijk.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kCijfers = 5;
constexpr std::int32_t kEerste = 2;
constexpr std::string_view kOnbekend = "<onbekend>";

// Nothing for a number of no record, and for record 1, which can be read but is nobody.
std::optional<std::int16_t> RecordVan(std::int32_t nr) {
  return nr < kEerste ? std::nullopt : NaarInt16(nr);
}

void ToonPersoon(Hoofdmodule& hoofd, std::int32_t nr, Teller& een, Teller& ander) {
  const auto record = RecordVan(nr);
  const bool bekend = record && hoofd.Persoon.Lees(*record);
  een.ZetTekst(bekend ? hoofd.Persoon.NaamVoluit() : std::string(kOnbekend));
  ander.ZetTekst(bekend ? hoofd.Persoon.Periode(*record) : std::string());
}

std::string MetNummer(PersoonLB77& persoon, std::int16_t nr) {
  if (nr == 0) return std::string(kOnbekend);
  const bool bekend = RecordVan(nr) && persoon.Lees(nr);
  return GetalTekst(nr) + " " + (bekend ? persoon.NaamVoluit() : std::string(kOnbekend));
}

void ToonRelatie(Hoofdmodule& hoofd, std::int32_t nr, Teller& een, Teller& ander) {
  const auto record = RecordVan(nr);
  const bool bekend = record && hoofd.Relatie.Lees(*record);
  een.ZetTekst(bekend ? MetNummer(hoofd.Persoon, hoofd.Relatie.ManNr()) : std::string(kOnbekend));
  ander.ZetTekst(bekend ? MetNummer(hoofd.Persoon, hoofd.Relatie.VrouwNr())
                        : std::string(kOnbekend));
}

}  // namespace

constexpr KrtnSoort kPrsKrtn{.naam = "PrsKrtn",
                             .titel = "Persoonskaarten",
                             .vraag = "Geef de gewenste Persoonsnummers:",
                             .veld = "RecordNrPers",
                             .van = "Vanaf",
                             .tot = "t/m",
                             .invoer = InvoerSoort::Persoon,
                             .ernaast = {"Naam", "Periode"},
                             .zoek = "ZoekPersButton",
                             .bestand = "PERS_KRT.TMP",
                             .verslag = "Toon Persoonskaart",
                             .toon = ToonPersoon,
                             .schrijf = SchrijfPersoonskaart};

constexpr KrtnSoort kRelKrtn{.naam = "RelKrtn",
                             .titel = "Relatiekaarten",
                             .vraag = "Geef de gewenste Relatienummers:",
                             .veld = "RecordNrRel",
                             .van = "Vanaf relatienr",
                             .tot = "t/m relatienr",
                             .invoer = InvoerSoort::Tekst,
                             .ernaast = {"Man", "Vrouw"},
                             .zoek = {},
                             .bestand = "REL_KRT.TMP",
                             .verslag = "Toon Relatiekaart",
                             .toon = ToonRelatie,
                             .schrijf = SchrijfRelatiekaart};

KrtnRij::KrtnRij(InvoerFormulier& formulier, int nummer, const KrtnSoort& soort)
    : RecordNr(formulier, Genummerd(soort.veld, nummer), nummer == 0 ? soort.van : soort.tot,
               kCijfers, soort.invoer),
      Een(formulier, Genummerd(soort.ernaast[0], nummer)),
      Ander(formulier, Genummerd(soort.ernaast[1], nummer)) {
  if (!soort.zoek.empty()) {
    ZoekPersButton.emplace(formulier, Genummerd(soort.zoek, nummer), "Zoek");
  }
  RecordNr.ZetFilter(AlleenCijfers);
  RecordNr.ZetDanOK();
}

Krtn::Krtn(const KrtnSoort& soort, Hoofdmodule& hoofd)
    : KetenFormulier(soort.naam, soort.titel, hoofd),
      VraagLabel(*this, "VraagLabel", soort.vraag),
      RecordNr(*this, 0, soort),
      soort_(soort) {
  ZetHulpOnderwerp("kaarten");
  ZetEersteVeld(RecordNr(0).RecordNr);
  RecordNr.Elk([this](int, KrtnRij& rij) {
    rij.RecordNr.BijVerlaten([this, &rij] { return RecordNrVerlaten(rij); });
    if (rij.ZoekPersButton) rij.ZoekPersButton->BijKlik([this, &rij] { ZoekPersButtonKlik(rij); });
  });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void Krtn::BijLaden() {
  RecordNr.Elk([this](int, KrtnRij& rij) { Toon(rij, "2"); });
}

void Krtn::Toon(KrtnRij& rij, std::string_view nr) {
  rij.RecordNr.ZetTekst(nr);
  ToonErnaast(rij);
}

// Any number will do: what is no record has its line among the cards.
bool Krtn::RecordNrVerlaten(KrtnRij& rij) {
  ToonErnaast(rij);
  return true;
}

// An empty field is number 0.
void Krtn::ToonErnaast(KrtnRij& rij) {
  const VolgersBewaker bewaker(Hoofd().volgers);
  soort_.toon(Hoofd(), Getalwaarde(rij.RecordNr.Tekst()), rij.Een, rij.Ander);
}

void Krtn::ZoekPersButtonKlik(KrtnRij& rij) {
  const VolgersBewaker bewaker(Hoofd().volgers);
  const std::int32_t nr = VraagZoekPersoon(Hoofd());
  if (nr < 1) return;
  Toon(rij, GetalTekst(nr));
  ZetFocus(OKButton);
}

void Krtn::OKButtonKlik() {
  std::int32_t van = Getalwaarde(RecordNr(0).RecordNr.Tekst());
  const std::int32_t tot = Getalwaarde(RecordNr(1).RecordNr.Tekst());
  if (van == 0 && tot >= kEerste) {
    van = kEerste;
    Toon(RecordNr(0), GetalTekst(van));
  }
  if (van >= kEerste && tot < van) {
    Hoofd().gesprek.Waarschuw("Ongeldige reeks: 2e recordnummer is kleiner dan het 1e");
    return;
  }
  MaakKaarten(van, tot);
}

void Krtn::MaakKaarten(std::int32_t van, std::int32_t tot) {
  const VerslagBestand bestand{Hoofd().Ini.TempDir() / soort_.bestand,
                               Hoofd().instellingen.Tekstbr()};
  const auto schrijf = [&](TekstSchrijver& uit) -> Uitslag {
    const VolgersBewaker bewaker(Hoofd().volgers);
    const Gegevens gegevens = Hoofd().MaakGegevens();
    for (std::int32_t nr = van; nr <= tot; ++nr) soort_.schrijf(uit, gegevens, nr);
    return Einde::Klaar;
  };
  if (SchrijfVerslag(bestand, Hoofd().gesprek, schrijf) == Einde::Klaar) {
    ToonTekstbestand(bestand.pad, soort_.verslag, false);
  } else {
    Sluit();
  }
}

}  // namespace lb77
