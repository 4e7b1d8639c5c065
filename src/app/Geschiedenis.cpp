#include "app/Geschiedenis.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>

#include "app/HandelingTekst.h"
#include "app/Ongedaan.h"
#include "app/VeiligTeksten.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

std::string Vraagtekst(const HandelingRegel& regel, int aantal) {
  const std::string wat = "\"" + regel.label + "\" (" + regel.tijd + ")";
  if (aantal == 1) return "De bewerking " + wat + " ongedaan maken ?";
  return GetalTekst(aantal) + " bewerkingen ongedaan maken, tot en met " + wat + " ?";
}

}  // namespace

Geschiedenis::Geschiedenis(Hoofdmodule& hoofd)
    : Formulier("Geschiedenis", "Geschiedenis van de Bestandenset"), hoofd_(hoofd) {
  ZetHulpOnderwerp("veilig-werken");
  ZetEersteVeld(HandelingLijst);
  HandelingLijst.BijWijziging([this] { HandelingLijstWijziging(); });
  HandelingLijst.BijDubbelklik([this] { HandelingLijstDubbelklik(); });
  OngedaanButton.BijKlik([this] { OngedaanButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void Geschiedenis::BijLaden() {
  Vul();
}

void Geschiedenis::Vul() {
  HandelingLijst.MaakLeeg();
  InhoudLijst.MaakLeeg();
  regels_.clear();
  if (const std::shared_ptr<Journaal> journaal = hoofd_.bestanden.HetJournaal()) {
    regels_ = journaal->Geschiedenis();
  }
  std::ranges::reverse(regels_);
  for (const HandelingRegel& regel : regels_) HandelingLijst.VoegToe(HandelingTekst(regel));
  OngedaanButton.ZetIngeschakeld(!regels_.empty());
}

std::optional<HandelingRegel> Geschiedenis::Gekozen() const {
  const int index = HandelingLijst.Index();
  if (index < 0) return std::nullopt;
  return regels_.at(static_cast<std::size_t>(index));
}

void Geschiedenis::HandelingLijstWijziging() {
  InhoudLijst.MaakLeeg();
  const auto regel = Gekozen();
  const std::shared_ptr<Journaal> journaal = hoofd_.bestanden.HetJournaal();
  if (!regel || !journaal) return;
  InhoudLijst.ZetRijen(
      WijzigingTekst(journaal->Wijzigingen(regel->nummer), hoofd_.schrijfwijze.DatumScheider));
}

// The question that follows tells what the choice means.
void Geschiedenis::HandelingLijstDubbelklik() {
  OngedaanButtonKlik();
}

void Geschiedenis::OngedaanButtonKlik() {
  const auto regel = Gekozen();
  if (!regel) {
    hoofd_.gesprek.Waarschuw("Geen bewerking gekozen");
    return;
  }
  if (regel->ongedaan) {
    hoofd_.gesprek.Waarschuw(kAlOngedaan);
    return;
  }
  if (!hoofd_.gesprek.Vraag(Vraagtekst(*regel, HandelingLijst.Index() + 1))) return;
  if (MaakOngedaan(hoofd_.MaakOpslag(), regel->nummer)) Vul();
}

}  // namespace lb77
