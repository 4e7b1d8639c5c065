// The export to the contact service: reads the tables, makes the series, and writes both files.
#pragma once

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
#include "reporting/Gangen.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

class ExpGCI final : public WerkFormulier {
 public:
  ExpGCI(Hoofdmodule& hoofd, const GciOpties& opties);

  Gang Pass1{*this, 1, "Inlezen GCI-Plaatsenbestand"};
  Teller PlaatsenGedaan{*this, "PlaatsenGedaan", "Plaatsen:"};
  Gang Pass2{*this, 2, "Inlezen GCI-Provinciebestand"};
  Teller ProvinciesGedaan{*this, "ProvinciesGedaan", "Provincies:"};
  Gang Pass3{*this, 3, "Inlezen GCI-Landenbestand"};
  Teller LandenGedaan{*this, "LandenGedaan", "Landen:"};
  Gang Pass4{*this, 4, "Reeksen bepalen en controleren plaatsnamen"};
  Teller PersonenGedaan{*this, "PersonenGedaan", "Personen:"};
  Gang Pass5{*this, 5, "Reeksen Schrijven"};
  Teller ReeksenGedaan{*this, "ReeksenGedaan", "Reeksen:"};
  Teller NamenGedaan{*this, "NamenGedaan", "Namen:"};
  Gang Pass6{*this, 6, "Verslag schrijven"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // Both files were made.
  [[nodiscard]] bool Gelukt() const { return gelukt_; }

 protected:
  void BijLaden() override;
  void Werk() override;

 private:
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
  Gangen gangen_{&Pass1, &Pass2, &Pass3, &Pass4, &Pass5, &Pass6};
};

// The whole export, from its questions to its log. True when both files were made. Of `opties` only what
// the questions do not ask has a meaning.
bool ExporteerContact(Hoofdmodule& hoofd, GciOpties opties = {});

}  // namespace lb77
