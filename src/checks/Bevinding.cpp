#include "checks/Bevinding.h"

#include <cstddef>

namespace lb77 {

namespace {

struct SoortRij {
  BevindingSoort soort;
  std::string_view naam;
};

constexpr SoortRij kSoorten[] = {
    {BevindingSoort::GeboorteNaDoop, "Geboorte is na de doop"},
    {BevindingSoort::GeboorteNaOverlijden, "Geboorte is na het overlijden"},
    {BevindingSoort::GeboorteNaBegraven, "Geboorte is na het begraven"},
    {BevindingSoort::DoopNaOverlijden, "Doop is na het overlijden"},
    {BevindingSoort::DoopNaBegraven, "Doop is na het begraven"},
    {BevindingSoort::OverlijdenNaBegraven, "Overlijden is na het begraven"},
    {BevindingSoort::LeeftijdTeHoog, "Leeftijd is meer dan 100 jaar"},
    {BevindingSoort::OudersOnleesbaar, "Verwijzing naar ouders klopt niet"},
    {BevindingSoort::OuderDanVader, "Kind is ouder dan vader"},
    {BevindingSoort::VaderTeJong, "Leeftijd vader bij geboorte is minder dan 18 jaar"},
    {BevindingSoort::OuderDanMoeder, "Kind is ouder dan moeder"},
    {BevindingSoort::MoederTeJong, "Leeftijd moeder bij geboorte is minder dan 18 jaar"},
    {BevindingSoort::NietBijOuders, "Kind komt niet voor bij ouders"},
    {BevindingSoort::NietBijEigenRelatie, "Persoon komt niet voor bij eigen relatie"},
    {BevindingSoort::OndertrouwNaWettig, "Ondertrouw is na wettig huwelijk"},
    {BevindingSoort::OndertrouwNaKerkelijk, "Ondertrouw is na het kerkelijk huwelijk"},
    {BevindingSoort::WettigNaKerkelijk, "Wettelijk huwelijk is na het kerkelijk huwelijk"},
    {BevindingSoort::ManOnleesbaar, "Verwijzing naar man klopt niet"},
    {BevindingSoort::VrouwOnleesbaar, "Verwijzing naar vrouw klopt niet"},
    {BevindingSoort::NietBijPersoon, "Relatie komt niet voor bij persoon"},
    {BevindingSoort::ManNaHuwelijkGeboren, "Man is pas geboren na huwelijk !!"},
    {BevindingSoort::ManTeJong, "Man jonger dan 18 jaar"},
    {BevindingSoort::VrouwNaHuwelijkGeboren, "Vrouw is pas geboren na huwelijk !!"},
    {BevindingSoort::VrouwTeJong, "Vrouw jonger dan 18 jaar"},
    {BevindingSoort::PartnersVerschillen, "Leeftijdsverschil Partners is meer dan 15 jaar"},
    {BevindingSoort::KindOnleesbaar, "Kind komt niet voor"},
    {BevindingSoort::KindElders, "Kind heeft andere ouders"},
    {BevindingSoort::Naamloos, "Plaats heeft geen naam"},
    {BevindingSoort::Dubbel, "Plaats komt ook elders voor"},
    {BevindingSoort::LijktOp, "Plaats lijkt op een andere"},
    {BevindingSoort::Ongebruikt, "Plaats wordt niet gebruikt"},
    {BevindingSoort::LosseOpmerking, "Opmerking verwijst niet naar haar eigenaar"},
};

// The name is found by its place.
constexpr bool IsOpVolgorde() {
  std::size_t i = 0;
  for (const SoortRij& rij : kSoorten) {
    if (static_cast<std::size_t>(rij.soort) != i++) return false;
  }
  return i == static_cast<std::size_t>(BevindingSoort::LosseOpmerking) + 1;
}
static_assert(IsOpVolgorde());

}  // namespace

std::string_view SoortNaam(BevindingSoort soort) {
  return kSoorten[static_cast<std::size_t>(soort)].naam;
}

}  // namespace lb77
