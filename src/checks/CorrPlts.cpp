#include "checks/CorrPlts.h"

#include "app/NietVeilig.h"
#include "checks/PlaatsVervanging.h"
#include "entry/Invoer.h"
#include "store/Handeling.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfers = 5;
constexpr std::string_view kTitel = "Vervang Plaatscode";

PlaatsVervanging VervangingIn(Hoofdmodule& hoofd) {
  return {hoofd.Persoon, hoofd.Relatie, hoofd.bestanden};
}

}  // namespace

PlaatsNrVak::PlaatsNrVak(InvoerFormulier& formulier, std::string_view achtervoegsel,
                         std::string_view bijschrift)
    : Nr(*this, formulier, "PlaatsNr" + std::string(achtervoegsel), bijschrift),
      Nm(formulier, "PltsNm" + std::string(achtervoegsel), "Plaatsnaam:"),
      Prov(formulier, "Prov" + std::string(achtervoegsel), "Provincie:"),
      formulier_(formulier) {}

PlaatsNrVak::NrVak::NrVak(PlaatsNrVak& geheel, InvoerFormulier& formulier, const std::string& naam,
                          std::string_view bijschrift)
    : InvoerVak(formulier, naam, bijschrift, kCijfers, InvoerSoort::Persoon), geheel_(geheel) {}

bool PlaatsNrVak::NrVak::OpVerlaten() {
  if (!InvoerVak::OpVerlaten()) return false;
  if (!Tekst().empty() && !RecordNrGeldig(Hoofd().MaakGegevens(), Hoofd().gesprek, Tekst(),
                                          BestandSoort::Plaatsen, Vervolgtest::Geen)) {
    return false;
  }
  geheel_.Toon();
  return true;
}

std::int16_t PlaatsNrVak::Code() const {
  return NaarInt16(Getalwaarde(Nr.Tekst())).value_or(std::int16_t{0});
}

std::string PlaatsNrVak::Omschrijving() const {
  return Nr.Tekst() + "(" + Nm.Tekst() + "," + Prov.Tekst() + ")";
}

// Without a number both are empty.
void PlaatsNrVak::Toon() {
  PlaatsLB77& plaats = formulier_.Hoofd().Plaats;
  Nm.ZetTekst(plaats.Naam(Code()));
  Prov.ZetTekst(plaats.Prov(Code()));
}

CorrPltsAlg::CorrPltsAlg(Hoofdmodule& hoofd, std::int16_t oud)
    : InvoerFormulier("CorrPltsAlg", kTitel, hoofd) {
  ZetHulpOnderwerp("corrigeren");
  ZetEersteVeld(Oud.Nr);
  Oud.Nr.BijVerlaten([this] { return OudNrVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  if (oud > 0) Oud.Nr.ZetTekst(GetalTekst(oud));
}

bool CorrPltsAlg::OudNrVerlaten() {
  const std::int16_t oud = Oud.Code();
  Verwijzingen.ZetTekst(oud > 0 ? GetalTekst(VervangingIn(Hoofd()).Tel(oud)) : std::string());
  return true;
}

bool CorrPltsAlg::IsCompleet() {
  std::string_view fout;
  InvoerVak* vak = &Nieuw.Nr;
  if (Oud.Nr.Tekst().empty()) {
    fout = "geen oude Plaatscode opgegeven";
    vak = &Oud.Nr;
  } else if (Nieuw.Nr.Tekst().empty()) {
    fout = "geen nieuwe Plaatscode opgegeven";
  } else if (Oud.Code() == Nieuw.Code()) {
    fout = "Oude en Nieuw Plaatscode zijn gelijk";
  }
  if (fout.empty()) return true;
  Hoofd().gesprek.Waarschuw(fout);
  ZetFocus(*vak);
  return false;
}

void CorrPltsAlg::OKButtonKlik() {
  if (!IsCompleet()) return;
  Gesprek& gesprek = Hoofd().gesprek;
  const std::string wat = Oud.Omschrijving() + " ==> " + Nieuw.Omschrijving();
  if (!gesprek.Vraag("Vervang " + wat + " in alle Persoonsrecords en Relatierecords ?")) return;
  gesprek.Toon<CorrPltsTemp>(Hoofd(), Oud.Code(), Nieuw.Code(), "Plaatscode vervangen: " + wat);
  Sluit();
}

CorrPltsTemp::CorrPltsTemp(Hoofdmodule& hoofd, std::int16_t oud, std::int16_t nieuw,
                           std::string_view label)
    : InvoerFormulier("CorrPltsTemp", kTitel, hoofd), oud_(oud), nieuw_(nieuw), label_(label) {
  ZetHulpOnderwerp("corrigeren");
  OKButton.BijKlik([this] { Sluit(); });
}

void CorrPltsTemp::BijLaden() {
  Vervangingen.Stand.ZetTekst("0");
  OKButton.ZetIngeschakeld(false);
}

void CorrPltsTemp::BijActiveren() {
  ZetBezig(true);
  GeduldLabel.ZetBijschrift(Vervang() ? "Klaar" : "Afgebroken");
  ZetBezig(false);
  OKButton.ZetIngeschakeld(true);
  ZetFocus(OKButton);
}

bool CorrPltsTemp::Vervang() {
  Handeling handeling(Hoofd().bestanden, label_);
  const auto toon = [this](TellerRegel& regel) {
    return [this, &regel](std::int16_t nr) {
      regel.Stand.ZetTekst(GetalTekst(nr));
      Hoofd().gesprek.Ververs(*this);
    };
  };
  const auto tel = [this](std::int32_t vervangen) {
    Vervangingen.Stand.ZetTekst(GetalTekst(vervangen));
  };
  const bool gelukt =
      VervangingIn(Hoofd()).Vervang(oud_, nieuw_, {toon(PersoonsNr), toon(RelatieNr), tel});
  MeldNietVeilig(Hoofd().gesprek, handeling.Voltooi());
  return gelukt;
}

}  // namespace lb77
