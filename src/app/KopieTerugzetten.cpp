#include "app/KopieTerugzetten.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "app/NietVeilig.h"
#include "app/SetOpenen.h"
#include "app/VeiligTeksten.h"
#include "text/Getallen.h"

namespace lb77 {

KopieTerugzetten::KopieTerugzetten(Hoofdmodule& hoofd)
    : Formulier("KopieTerugzetten", "Veiligheidskopie Terugzetten"), hoofd_(hoofd) {
  ZetHulpOnderwerp("veilig-werken");
  ZetEersteVeld(KopieLijst);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void KopieTerugzetten::BijLaden() {
  OKButton.ZetIngeschakeld(false);
}

void KopieTerugzetten::BijActiveren() {
  ZetBezig(true);
  const bool geteld = Tel();
  ZetBezig(false);
  WisStop();
  TellingLabel.ZetBijschrift("");
  if (!geteld) return Sluit();
  KopieLijst.MaakLeeg();
  for (const KopieRij& rij : rijen_) KopieLijst.VoegToe(KopieTekst(rij));
  OKButton.ZetIngeschakeld(!rijen_.empty());
}

bool KopieTerugzetten::Tel() {
  bool gestopt = false;
  rijen_ = KopieVan(hoofd_).Lijst([&](std::size_t nummer, std::size_t aantal) {
    TellingLabel.ZetBijschrift("Kopie " + GetalTekst(static_cast<std::int64_t>(nummer)) + " van " +
                               GetalTekst(static_cast<std::int64_t>(aantal)) + " wordt geteld ...");
    hoofd_.gesprek.Ververs(*this);
    gestopt = hoofd_.gesprek.StopGevraagd(*this);
    return !gestopt;
  });
  return !gestopt;
}

void KopieTerugzetten::OKButtonKlik() {
  if (KopieLijst.Index() < 0) {
    hoofd_.gesprek.Waarschuw("Geen veiligheidskopie gekozen");
    return;
  }
  const KopieRij& rij = rijen_.at(static_cast<std::size_t>(KopieLijst.Index()));
  if (!hoofd_.gesprek.Vraag("De gegevens van " + hoofd_.ActieveSetNaam +
                            " vervangen door de veiligheidskopie van " + rij.tijd +
                            " ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt.")) {
    return;
  }
  const TerugUitslag uitslag = KopieVan(hoofd_).ZetTerug(rij.naam);
  hoofd_.volgers = {};  // a record that they name may be gone
  if (uitslag.fout) {
    hoofd_.gesprek.Fout(std::string(kKopieNietTerug) + uitslag.fout.tekst);
    return;
  }
  const std::string uitleg = TekstUitleg(uitslag);
  hoofd_.gesprek.Informeer("De veiligheidskopie is teruggezet" +
                           (uitleg.empty() ? "" : "\n" + uitleg));
  MeldNietVeilig(hoofd_.gesprek, uitslag.nietVeilig);
  if (uitslag.tekstFout) {
    hoofd_.gesprek.Fout(std::string(kTekstNietTerug) + uitslag.tekstFout.tekst);
  }
  Sluit();
}

}  // namespace lb77
