#include "descendants/GenUitsluit.h"

#include <cstddef>
#include <string>

#include "app/Hoofdmodule.h"

namespace lb77 {
namespace {

constexpr PersoonVakSoort kVolgNiet = {.controle = PersoonControle::Tonen,
                                       .naamInvoer = false,
                                       .danOK = true,
                                       .onbekend = "<onbekend>",
                                       .nr = "RecordNrVolgNiet",
                                       .voor = "VoorNmVolgNiet",
                                       .achter = "AchterNmVolgNiet",
                                       .periode = "PeriodeVolgNiet"};

}  // namespace

GenUitsluit::Rij::Rij(InvoerFormulier& formulier, int nummer)
    : VolgNiet(formulier, Genummerd("", nummer), kVolgNiet),
      ZoekButton(formulier, Genummerd("ZoekButton", nummer), "Zoek") {}

GenUitsluit::GenUitsluit(const GenUitsluitSoort& soort, Hoofdmodule& hoofd, GenOpties& opties)
    : KetenFormulier(soort.naam, "Takken uitsluiten", hoofd), opties_(opties) {
  ZetHulpOnderwerp("genealogie");
  ZetEersteVeld(Rijen(1).VolgNiet.RecordNr);
  Rijen.Elk(
      [this](int, Rij& rij) { rij.ZoekButton.BijKlik([this, &rij] { ZoekButtonKlik(rij); }); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  KoppelTerug(BackButton);
}

void GenUitsluit::ZoekButtonKlik(Rij& rij) {
  if (rij.VolgNiet.Zoek()) ZetFocus(OKButton);
}

void GenUitsluit::OKButtonKlik() {
  Rijen.Elk([this](int nummer, const Rij& rij) {
    opties_.GenVolgNiet[static_cast<std::size_t>(nummer - 1)] = rij.VolgNiet.Nr();
  });
  Sluit();
}

}  // namespace lb77
