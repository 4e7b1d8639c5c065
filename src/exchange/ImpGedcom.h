// The dialog that reads a GEDCOM file into the active file set.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "exchange/GedLog.h"
#include "exchange/ImpLoop.h"
#include "exchange/RegelLezer.h"
#include "forms/Formulier.h"
#include "reporting/Gangen.h"

namespace lb77 {

class Hoofdmodule;

// The files that a question for a GEDCOM file offers.
inline constexpr std::string_view kGedcomFilter =
    "GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt";

// Whether the user starts the import, or it starts by itself, and leaves again when all went well.
enum class ImpWijze { Gevraagd, Vanzelf };

class ImpGedcom final : public Formulier {
 public:
  // `bestand` is filled in, unless it is empty.
  explicit ImpGedcom(Hoofdmodule& hoofd, std::filesystem::path bestand = {},
                     ImpWijze wijze = ImpWijze::Gevraagd);

  Padvak Bestandsnaam{*this, "Bestandsnaam", "GEDCOM-bestand:"};
  Knop BrowseButton{*this, "BrowseButton", "&Browse"};
  Label DoelLabel{*this, "DoelLabel"};
  Label TellingLabel{*this, "TellingLabel"};
  Gang Pass1{*this, 1, "Eerste analyse"};
  Gang Pass2{*this, 2, "Records schrijven"};
  Gang Pass3{*this, 3, "Opmerkingen verwerken"};
  Teller RegelNr{*this, "RegelNr", "Regelnummer:"};
  Teller AantalPersonen{*this, "AantalPersonen", "Aantal personen:"};
  Teller AantalRelaties{*this, "AantalRelaties", "Aantal relaties:"};
  Teller AantalBronnen{*this, "AantalBronnen", "Aantal bronnen:"};
  Teller VoorNm{*this, "VoorNm", "Voornamen:"};
  Teller AchterNm{*this, "AchterNm", "Achternaam:"};
  Teller BronNm{*this, "BronNm", "Bron:"};
  Knop OKButton{*this, "OKButton", "&Start Import"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The records that the last import made, remarks aside; some may have stayed empty.
  [[nodiscard]] std::size_t GelezenPersonen() const { return gelezenPersonen_; }
  [[nodiscard]] std::size_t GelezenRelaties() const { return gelezenRelaties_; }
  // All that it read has been stored but for the remarks that found no room.
  [[nodiscard]] bool OpmerkingenVol() const { return opmerkingenVol_; }
  // The last import came to the end of its file, with no error in it that ends the reading.
  [[nodiscard]] bool Gelukt() const { return gelukt_; }

 protected:
  void BijLaden() override;
  void BijActiveren() override;

 private:
  class Scherm;
  // How an import ended: by itself, quietly because a record class has told why not, by the user, or
  // by an error of the system.
  struct Afloop {
    bool gestopt = false;
    bool afgebroken = false;
    SysteemFout systeem{};
  };
  void BrowseButtonKlik();
  void OKButtonKlik();
  void WisVoortgang();
  [[nodiscard]] Afloop Importeer();
  [[nodiscard]] Afloop LeesAlsHandeling(const std::filesystem::path& bestand);
  void VraagBehouden();
  // Opens what is to be read, unless this import writes it.
  [[nodiscard]] SysteemFout OpenInvoer(RegelLezer& lezer,
                                       const std::filesystem::path& bestand) const;
  // A log of this import that tells nothing but that.
  void NoteerFout(const SysteemFout& fout, const std::filesystem::path& bestand);
  [[nodiscard]] Afloop Lees(const std::filesystem::path& bestand);
  // Asks whether a file in Unicode is to be converted; the reader stands at its first line then.
  void KiesCodering(RegelLezer& lezer);
  // Shows what will be added. False when the user stopped it, and, told, when the set has no room.
  [[nodiscard]] bool Past(RegelLezer& lezer, std::int16_t personen, std::int16_t relaties);
  // The test for a stop: True when the user asked for it and was sure. A No forgets it.
  [[nodiscard]] bool Afbreken();
  [[nodiscard]] SysteemFout Rond(const ImpUitslag& uitslag, ImpLoop& loop, GedLog& log);
  void SluitVerslag(const ImpUitslag& uitslag, ImpLoop& loop, GedLog& log);
  void SluitRest(ImpRest& rest, GedLog& log);
  void ToonDoel();
  void ToonGang(int nummer);
  void StelVeilig();
  void MeldFout(const SysteemFout& fout);
  void ToonLog();
  [[nodiscard]] std::filesystem::path LogPad() const;

  Hoofdmodule& hoofd_;
  const std::filesystem::path begin_;
  const ImpWijze wijze_;
  bool gelukt_ = false;
  bool heeftLog_ = false;  // the log is that of the last import
  bool opmerkingenVol_ = false;
  bool nietOmgezet_ = false;  // a Unicode file is read as bytes
  std::size_t gelezenPersonen_ = 0;
  std::size_t gelezenRelaties_ = 0;
  Gangen gangen_{&Pass1, &Pass2, &Pass3};
  std::array<Teller*, 7> tellers_{&RegelNr, &AantalPersonen, &AantalRelaties, &AantalBronnen,
                                  &VoorNm,  &AchterNm,       &BronNm};
};

}  // namespace lb77
