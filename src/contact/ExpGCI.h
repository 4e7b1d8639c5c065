// The export to the contact service: reads the tables, makes the series, and writes both files.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contact/GciLezer.h"
#include "contact/GciOpties.h"
#include "contact/GciPlaatsToets.h"
#include "contact/GciScan.h"
#include "contact/GciTabellen.h"
#include "contact/GciUitvoer.h"
#include "forms/Keuzen.h"
#include "forms/Weergave.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

class ExpGCI final : public WerkFormulier {
 public:
  ExpGCI(Hoofdmodule& hoofd, const GciOpties& opties);

  Label Pass1Label{*this, "Pass1Label", kBezig};
  Vinkje Pass1box{*this, "Pass1box", "Inlezen GCI-Plaatsenbestand"};
  Teller PlaatsenGedaan{*this, "PlaatsenGedaan", "Plaatsen:"};
  Label Pass2Label{*this, "Pass2Label", kBezig};
  Vinkje Pass2box{*this, "Pass2box", "Inlezen GCI-Provinciebestand"};
  Teller ProvinciesGedaan{*this, "ProvinciesGedaan", "Provincies:"};
  Label Pass3Label{*this, "Pass3Label", kBezig};
  Vinkje Pass3box{*this, "Pass3box", "Inlezen GCI-Landenbestand"};
  Teller LandenGedaan{*this, "LandenGedaan", "Landen:"};
  Label Pass4Label{*this, "Pass4Label", kBezig};
  Vinkje Pass4box{*this, "Pass4box", "Reeksen bepalen en controleren plaatsnamen"};
  Teller PersonenGedaan{*this, "PersonenGedaan", "Personen:"};
  Label Pass5Label{*this, "Pass5Label", kBezig};
  Vinkje Pass5box{*this, "Pass5box", "Reeksen Schrijven"};
  Teller ReeksenGedaan{*this, "ReeksenGedaan", "Reeksen:"};
  Teller NamenGedaan{*this, "NamenGedaan", "Namen:"};
  Label Pass6Label{*this, "Pass6Label", kBezig};
  Vinkje Pass6box{*this, "Pass6box", "Verslag schrijven"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // Both files were made.
  [[nodiscard]] bool Gelukt() const { return gelukt_; }

 protected:
  void BijLaden() override;
  void Werk() override;

 private:
  static constexpr std::string_view kBezig = "Bezig met ... ==>";

  // How a step ended. Mislukt ends the run without a log; of any other end that is not Klaar the log
  // has the reason, which Verteld says the user knows already.
  enum class Afloop { Klaar, Mislukt, Afgebroken, GeenReeksen, Verteld };
  // A table, and where its progress shows.
  struct Tabel {
    const GciBestand& bestand;
    Teller& teller;
  };

  [[nodiscard]] Afloop Exporteer();
  [[nodiscard]] Afloop LeesTabellen();
  [[nodiscard]] Afloop LeesTabel(int gang, const Tabel& tabel, std::vector<std::string>& rijen);
  [[nodiscard]] Afloop BepaalReeksen();
  [[nodiscard]] Afloop Scan();
  // Tells of a scan that ended there, when there are persons behind it.
  void MeldGestopt(std::int16_t nr);
  [[nodiscard]] Afloop ZoekPlaatsen();
  [[nodiscard]] Afloop TeVeel(std::string_view melding);
  [[nodiscard]] Afloop SchrijfBestanden();
  [[nodiscard]] std::optional<std::string> MaakFam(std::string_view lidnr);
  [[nodiscard]] NaamOordeel Keur(const std::string& naam);
  [[nodiscard]] std::int16_t Corrigeer(const GciPlaats& plaats);
  [[nodiscard]] GciInzender Inzender() const;
  void SluitAf(Afloop afloop);
  void ToonGang(int nummer);

  GciOpties opties_;
  GciTabellen tabellen_;
  GciPaden paden_;
  GciVerslag verslag_;
  std::vector<GciReeks> reeksen_;
  bool gelukt_ = false;
  std::array<Label*, 6> labels_{&Pass1Label, &Pass2Label, &Pass3Label,
                                &Pass4Label, &Pass5Label, &Pass6Label};
  std::array<Vinkje*, 6> vinkjes_{&Pass1box, &Pass2box, &Pass3box, &Pass4box, &Pass5box, &Pass6box};
};

// The whole export, from its questions to its log. True when both files were made. Of `opties` only what
// the questions do not ask has a meaning.
bool ExporteerContact(Hoofdmodule& hoofd, GciOpties opties = {});

}  // namespace lb77
