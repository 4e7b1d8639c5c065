#include "app/KopieTerugzetten.h"

#include <cstddef>

#include "app/SetOpenen.h"

namespace lb77 {

KopieTerugzetten::KopieTerugzetten(Hoofdmodule& hoofd)
    : Formulier("KopieTerugzetten", "Veiligheidskopie Terugzetten"), hoofd_(hoofd) {
  ZetHulpOnderwerp("veilig-werken");
  ZetEersteVeld(KopieLijst);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void KopieTerugzetten::BijLaden() {
  rijen_ = KopieVan(hoofd_).Lijst();
  KopieLijst.MaakLeeg();
  for (const KopieRij& rij : rijen_) KopieLijst.VoegToe(KopieTekst(rij));
  OKButton.ZetIngeschakeld(!rijen_.empty());
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
  const SysteemFout fout = KopieVan(hoofd_).ZetTerug(rij.naam);
  hoofd_.volgers = {};  // a record that they name may be gone
  if (fout) {
    hoofd_.gesprek.Fout("De veiligheidskopie is niet teruggezet\n" + fout.tekst);
    return;
  }
  hoofd_.gesprek.Informeer("De veiligheidskopie is teruggezet");
  Sluit();
}

}  // namespace lb77
