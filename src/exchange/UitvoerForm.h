// The dialog of an export: the names of its files, the run with its log, and how that ends.
#pragma once

#include <cstddef>
#include <deque>
#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

#include "app/Hoofdmodule.h"
#include "exchange/EenmaalGesprek.h"
#include "exchange/ExpUitvoer.h"
#include "forms/Formulier.h"
#include "store/Gegevens.h"
#include "store/OpmLB77.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// The name of one file: its field with the button beside it, and how the name that is offered ends
// behind that of the set.
struct UitvoerVeld {
  std::string_view naam;
  std::string_view bijschrift;
  std::string_view knop;
  std::string_view einde;
};

// What tells one export from another.
struct UitvoerSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view hulp;  // chapter of the manual
  std::span<const UitvoerVeld> velden;
  std::string_view filter;  // of the file question
  std::string_view leeg;    // the message of a file that has nothing to export
  std::string_view log;     // the name of the log
};

struct UitvoerRij {
  UitvoerRij(Formulier& formulier, const UitvoerVeld& veld)
      : Bestandsnaam(formulier, veld.naam, veld.bijschrift),
        BrowseButton(formulier, veld.knop, "&Browse") {}

  Padvak Bestandsnaam;
  Knop BrowseButton;
};

// The records for a run: what is told of one that can't be read is not told of all.
class UitvoerRecords {
 public:
  explicit UitvoerRecords(Hoofdmodule& hoofd);
  // A run begins.
  void Begin() { eenmaal_.Opnieuw(); }
  [[nodiscard]] Gegevens Alle() {
    return {persoon_, relatie_, plaats_, opmerking_, opslag_.volgers, opslag_.schrijfwijze};
  }

 private:
  EenmaalGesprek eenmaal_;
  Opslag opslag_;
  PersoonLB77 persoon_;
  RelatieLB77 relatie_;
  PlaatsLB77 plaats_;
  OpmLB77 opmerking_;
};

// The files of a run, open.
class UitvoerBestanden {
 public:
  explicit UitvoerBestanden(std::size_t aantal) : uit_(aantal) {}

  [[nodiscard]] ExpBestand& Uit(std::size_t i) { return uit_.at(i); }
  [[nodiscard]] ExpBestand& Log() { return log_; }
  // Has any writing failed?
  [[nodiscard]] bool Mislukt() const;
  // Closes the outputs, not the log; the first failure.
  [[nodiscard]] SysteemFout SluitUit();

 private:
  std::deque<ExpBestand> uit_;
  ExpBestand log_;
};

// A derived form declares its further controls and hands its buttons over. It closes behind a run
// that came to its end. Behind one that failed or was stopped it stays, its log is shown, and its start
// button works again when a file has been picked by Browse; what was written stands, unless it was
// written beside its place.
class UitvoerForm : public Formulier {
 public:
  std::deque<UitvoerRij> Uitvoeren;

 protected:
  // `soort` must outlive the form.
  UitvoerForm(const UitvoerSoort& soort, Hoofdmodule& hoofd);

  void Koppel(Knop& start, Knop& terug);
  void BijLaden() override;
  void BijActiveren() override;
  [[nodiscard]] Hoofdmodule& Hoofd() { return hoofd_; }
  // The records that a run reads.
  [[nodiscard]] Gegevens Records() { return records_.Alle(); }
  // The name of an output as the user gave it, trimmed.
  [[nodiscard]] std::string Naam(std::size_t i) const;

  // The highest record of the file that must hold something.
  [[nodiscard]] virtual std::int16_t AantalRecords() = 0;
  // Are the outputs written beside their places, and take these when all are whole?
  [[nodiscard]] virtual bool IsErnaast() { return false; }
  // What else must hold before a run; a False has been told.
  [[nodiscard]] virtual bool MagBeginnen() { return true; }
  // Puts the running counts to 0.
  virtual void WisVoortgang() = 0;
  // Writes the outputs. It may end at a failure, which the files keep.
  virtual void Schrijf(UitvoerBestanden& bestanden) = 0;
  // Behind the closing of the outputs: all that ends the log.
  virtual void SchrijfLogSlot(ExpUitvoer& log) = 0;
  // The run has ended well.
  virtual void MeldVoltooid() {}
  // The test of the walk before each record: False when an output has failed, and when the user
  // stops the run. A run that was stopped ends its log with that.
  [[nodiscard]] bool Doorgaan(const UitvoerBestanden& bestanden);

 private:
  void BrowseButtonKlik(UitvoerRij& rij);
  void StartKlik();
  [[nodiscard]] bool HeeftNamen();
  [[nodiscard]] SysteemFout Voer(bool& metLog);
  [[nodiscard]] SysteemFout VoerMetLog(UitvoerBestanden& bestanden);
  [[nodiscard]] SysteemFout OpenUit(UitvoerBestanden& bestanden);
  [[nodiscard]] SysteemFout OpenEen(ExpBestand& uit, const std::filesystem::path& pad);
  [[nodiscard]] bool IsBezet(std::size_t i) const;
  [[nodiscard]] std::filesystem::path UitvoerPad(std::size_t i) const;
  [[nodiscard]] std::filesystem::path LogPad() const;
  [[nodiscard]] SysteemFout OpenLog(ExpBestand& log);
  void MeldFout(const SysteemFout& fout);

  const UitvoerSoort& soort_;
  Hoofdmodule& hoofd_;
  UitvoerRecords records_;
  Knop* start_ = nullptr;
  std::vector<std::filesystem::path> ernaast_;  // the places of what the run writes beside them
  bool gestopt_ = false;
};

}  // namespace lb77
