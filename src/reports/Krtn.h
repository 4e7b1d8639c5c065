// The dialogs that ask which cards are wanted: those of persons, and those of relations.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "entry/InvoerVak.h"
#include "forms/Regels.h"
#include "reporting/KetenFormulier.h"
#include "reports/Kaarten.h"

namespace lb77 {

// What tells the two apart: names and texts, what is shown beside a number, and the card.
struct KrtnSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view vraag;
  std::string_view veld;
  std::string_view van;
  std::string_view tot;
  InvoerSoort invoer;
  std::string_view ernaast[2];
  std::string_view zoek;  // without a name there is no search
  std::string_view bestand;
  std::string_view verslag;  // the title of the viewer
  void (*toon)(Hoofdmodule& hoofd, std::int32_t nr, Teller& een, Teller& ander);
  void (*schrijf)(TekstSchrijver& uit, const Gegevens& gegevens, std::int32_t nr);
};

extern const KrtnSoort kPrsKrtn;
extern const KrtnSoort kRelKrtn;

// One end of the range, and who that is.
struct KrtnRij {
  KrtnRij(InvoerFormulier& formulier, int nummer, const KrtnSoort& soort);

  InvoerVak RecordNr;
  Teller Een;
  Teller Ander;
  std::optional<Knop> ZoekPersButton;
};

// It stays behind the cards, for another range.
class Krtn final : public KetenFormulier {
 public:
  Krtn(const KrtnSoort& soort, Hoofdmodule& hoofd);

  Label VraagLabel;
  Regels<KrtnRij, 2> RecordNr;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  [[nodiscard]] bool RecordNrVerlaten(KrtnRij& rij);
  void ToonErnaast(KrtnRij& rij);
  void ZoekPersButtonKlik(KrtnRij& rij);
  void OKButtonKlik();
  void Toon(KrtnRij& rij, std::string_view nr);
  void MaakKaarten(std::int32_t van, std::int32_t tot);

  const KrtnSoort& soort_;
};

}  // namespace lb77
