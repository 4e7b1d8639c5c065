#include "exchange/ExpSel.h"

#include <array>
#include <cstddef>

#include "entry/Invoer.h"
#include "entry/VolgersBewaker.h"
#include "entry/ZoekPersoon.h"
#include "forms/Rijnaam.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::size_t kCijfers = 5;
constexpr std::int32_t kEerste = 2;
constexpr std::string_view kOnbekend = "<onbekend>";

constexpr std::array<std::string_view, 3> kNaastPersoon = {"VoorNmPersoon", "AchterNmPersoon",
                                                           "PeriodePersoon"};
constexpr std::array<std::string_view, 6> kNaastRelatie = {
    "RecordNrMan", "VoorNmMan", "AchterNmMan", "RecordNrVrouw", "VoorNmVrouw", "AchterNmVrouw"};

std::int16_t LaatstePersoon(Hoofdmodule& hoofd) {
  return hoofd.Persoon.AantalRecords();
}

std::int16_t LaatsteRelatie(Hoofdmodule& hoofd) {
  return hoofd.Relatie.AantalRecords();
}

// Both names of a person, "<onbekend>" for what is not known.
std::array<std::string, 2> Namen(PersoonLB77& persoon, std::int16_t nr) {
  std::string voor;
  std::string achter;
  persoon.HeleNaam(nr, voor, achter, kOnbekend);
  if (voor.empty()) voor = achter = kOnbekend;
  return {voor, achter};
}

std::vector<std::string> WiePersoon(Hoofdmodule& hoofd, std::int16_t nr) {
  PersoonLB77& persoon = hoofd.Persoon;
  const auto [voor, achter] = Namen(persoon, nr);
  return {voor, achter, persoon.Lees(nr) ? persoon.Periode(nr) : std::string()};
}

void VoegPartnerToe(std::vector<std::string>& uit, PersoonLB77& persoon, std::int16_t nr) {
  auto namen = nr == 0 ? std::array<std::string, 2>{} : Namen(persoon, nr);
  uit.insert(uit.end(), {NrTekst(nr), namen[0], namen[1]});
}

std::vector<std::string> WieRelatie(Hoofdmodule& hoofd, std::int16_t nr) {
  const std::string onbekend(kOnbekend);
  if (!hoofd.Relatie.Lees(nr)) return {"", onbekend, onbekend, "", onbekend, onbekend};
  std::vector<std::string> uit;
  VoegPartnerToe(uit, hoofd.Persoon, hoofd.Relatie.ManNr());
  VoegPartnerToe(uit, hoofd.Persoon, hoofd.Relatie.VrouwNr());
  return uit;
}

}  // namespace

constexpr ExpSelSoort kExpSelPers{
    .naam = "ExpSelPers",
    .titel = "Exporteer gegevens - Selecteer Personen",
    .vraag = "Gegevens van de volgende Personen opnemen in het exportbestand",
    .veld = "RecordNrPers",
    .van = "Vanaf",
    .tot = "t/m",
    .invoer = InvoerSoort::Persoon,
    .ernaast = kNaastPersoon,
    .zoek = "ZoekPersButton",
    .bestand = BestandSoort::Personen,
    .laatste = LaatstePersoon,
    .wie = WiePersoon,
    .vol = "Maximaal aantal Persoonsrecords (32000) bereikt"};

constexpr ExpSelSoort kExpSelRel{
    .naam = "ExpSelRel",
    .titel = "Exporteer gegevens - Selecteer Relaties",
    .vraag = "Gegevens van de volgende Relaties opnemen in het exportbestand",
    .veld = "RecordNrRel",
    .van = "Vanaf relatienr",
    .tot = "t/m relatienr",
    .invoer = InvoerSoort::Tekst,
    .ernaast = kNaastRelatie,
    .zoek = {},
    .bestand = BestandSoort::Relaties,
    .laatste = LaatsteRelatie,
    .wie = WieRelatie,
    .vol = "Maximaal aantal Relatierecords (32000) bereikt"};

ExpSelRij::ExpSelRij(InvoerFormulier& formulier, int nummer, const ExpSelSoort& soort)
    : RecordNr(formulier, Genummerd(soort.veld, nummer), nummer == 0 ? soort.van : soort.tot,
               kCijfers, soort.invoer) {
  for (const std::string_view naam : soort.ernaast) {
    Ernaast.emplace_back(formulier, Genummerd(naam, nummer));
  }
  if (!soort.zoek.empty()) {
    ZoekPersButton.emplace(formulier, Genummerd(soort.zoek, nummer), "Zoek");
  }
  RecordNr.ZetEnter(EnterSoort::Door);
}

void ExpSelRij::Toon(const std::vector<std::string>& teksten) {
  for (std::size_t i = 0; i < Ernaast.size(); ++i) {
    Ernaast[i].ZetTekst(i < teksten.size() ? teksten[i] : std::string());
  }
}

void ExpSelRij::MaakLeeg() {
  RecordNr.ZetTekst({});
  Toon({});
}

ExpSel::ExpSel(const ExpSelSoort& soort, Hoofdmodule& hoofd, SelectieLijst& lijst)
    : InvoerFormulier(soort.naam, soort.titel, hoofd),
      VraagLabel(*this, "VraagLabel", soort.vraag),
      RecordNr(*this, 0, soort),
      soort_(soort),
      lijst_(lijst) {
  ZetHulpOnderwerp("exporteren");
  ZetEersteVeld(RecordNr(0).RecordNr);
  RecordNr.Elk([this](int, ExpSelRij& rij) {
    rij.RecordNr.BijVerlaten([this, &rij] { return RecordNrVerlaten(rij); });
    if (rij.ZoekPersButton) rij.ZoekPersButton->BijKlik([this, &rij] { ZoekPersButtonKlik(rij); });
  });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void ExpSel::BijLaden() {
  RecordNr.Elk([](int, ExpSelRij& rij) { rij.MaakLeeg(); });
  const std::int16_t laatste = soort_.laatste(Hoofd());
  if (laatste < kEerste) return;
  Toon(RecordNr(0), kEerste);
  Toon(RecordNr(1), laatste);
}

// As if the user had typed the number.
void ExpSel::Toon(ExpSelRij& rij, std::int32_t nr) {
  rij.RecordNr.ZetTekst(GetalTekst(nr));
  static_cast<void>(RecordNrVerlaten(rij));
}

// A continuation record will do: an export passes over it.
bool ExpSel::RecordNrVerlaten(ExpSelRij& rij) {
  const std::string tekst = rij.RecordNr.Tekst();
  if (!tekst.empty() && RecordNrGeldig(Hoofd().MaakGegevens(), Hoofd().gesprek, tekst,
                                       soort_.bestand, Vervolgtest::Geen)) {
    const auto nr = NaarInt16(Getalwaarde(tekst));
    rij.Toon(soort_.wie(Hoofd(), nr.value_or(std::int16_t{0})));
    return true;
  }
  rij.MaakLeeg();
  return tekst.empty();
}

void ExpSel::ZoekPersButtonKlik(ExpSelRij& rij) {
  const VolgersBewaker bewaker(Hoofd().volgers);
  const std::int32_t nr = VraagZoekPersoon(Hoofd());
  if (nr > 0) Toon(rij, nr);
}

void ExpSel::OKButtonKlik() {
  std::int32_t van = Getalwaarde(RecordNr(0).RecordNr.Tekst());
  const std::int32_t tot = Getalwaarde(RecordNr(1).RecordNr.Tekst());
  if (van == 0 && tot >= kEerste) {
    van = kEerste;
    RecordNr(0).RecordNr.ZetTekst(GetalTekst(van));
  }
  if (van >= kEerste && tot < van) {
    Hoofd().gesprek.Waarschuw("Ongeldige reeks: 2e recordnummer is kleiner dan het 1e");
    ZetFocus(RecordNr(1).RecordNr);
    return;
  }
  if (van >= 1) VoegToe(van, tot);
  Sluit();
}

void ExpSel::VoegToe(std::int32_t van, std::int32_t tot) {
  for (std::int32_t nr = van; nr <= tot && nr <= kMaxRecords; ++nr) {
    if (lijst_.Voeg(static_cast<std::int16_t>(nr))) continue;
    vol_ = true;
    Hoofd().gesprek.Waarschuw(soort_.vol);
    return;
  }
}

}  // namespace lb77
