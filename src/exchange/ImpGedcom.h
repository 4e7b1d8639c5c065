// The dialog that reads a GEDCOM file into the active file set.
#pragma once

#include "exchange/GedImport.h"
#include "forms/Formulier.h"

namespace lb77 {

class Hoofdmodule;

class ImpGedcom final : public Formulier, private GedToeschouwer {
 public:
  explicit ImpGedcom(Hoofdmodule& hoofd);

  Padvak Bestandsnaam{*this, "Bestandsnaam", "GEDCOM-bestand:"};
  Knop BrowseButton{*this, "BrowseButton", "&Browse"};
  Label Pass1Label{*this, "Pass1Label", kBezig};
  Vinkje Pass1box{*this, "Pass1box", "Eerste analyse"};
  Label Pass2Label{*this, "Pass2Label", kBezig};
  Vinkje Pass2box{*this, "Pass2box", "Records schrijven"};
  Label Pass3Label{*this, "Pass3Label", kBezig};
  Vinkje Pass3box{*this, "Pass3box", "Opmerkingen verwerken"};
  Teller RegelNr{*this, "RegelNr", "Regelnummer:"};
  Teller AantalPersonen{*this, "AantalPersonen", "Aantal personen:"};
  Teller AantalRelaties{*this, "AantalRelaties", "Aantal relaties:"};
  Teller AantalBronnen{*this, "AantalBronnen", "Aantal bronnen:"};
  Teller VoorNm{*this, "VoorNm", "Voornamen:"};
  Teller AchterNm{*this, "AchterNm", "Achternaam:"};
  Teller BronNm{*this, "BronNm", "Bron:"};
  Knop OKButton{*this, "OKButton", "&Start Import"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  static constexpr std::string_view kBezig = "Bezig met ... ==>";

  void Regel(int nr) override;
  void Personen(int aantal) override;
  void Relaties(int aantal) override;
  void Bronnen(int aantal) override;
  void Naam(std::string_view voornaam, std::string_view achternaam) override;
  void Bron(std::string_view naam) override;
  void Stap(int nr) override;

  void BrowseKlik();
  void OKKlik();
  void Importeer();
  void WisVoortgang();
  void ToonFout(const SysteemFout& fout);
  void ToonLog(const std::filesystem::path& log);

  Hoofdmodule& hoofd_;
  int regelNr_ = 0;
};

}  // namespace lb77
