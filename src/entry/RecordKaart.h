// What the card of a person and the card of a relation have in common: the record that they show, and
// the ways to another one.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/InvoerVak.h"
#include "forms/Kaart.h"
#include "forms/Keuzen.h"

namespace lb77 {

class OpmKnop;

// What such a card tells, and asks, in the words of its kind of record.
struct KaartWoorden {
  std::string_view nummer;
  std::string_view komtNietVoor;
  std::string_view leesfout;  // the number follows
  std::string_view eerste;
  std::string_view laatste;
};

// Nothing on it changes a record but the dialogs that its buttons open. A record that can't be shown
// is told, and the card stays on the one before it; without one it is empty, and closes by itself.
class RecordKaart : public KaartOp<InvoerFormulier> {
 public:
  // What the user types is gone to when the field is left.
  InvoerVak RecordNr;

 protected:
  struct Knoppenrij {
    Knop& vorige;
    Knop& volgende;
    Knop& nieuw;
    Knop& wijzig;
    Knop& terug;
  };

  // `nr` -1 asks the user for a new record first.
  RecordKaart(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd, std::int16_t nr,
              const KaartWoorden& woorden);
  // For the card's constructor: the buttons of the remarks find their handlers by themselves.
  void HangOp(const Knoppenrij& knoppen);

  // The record shown; -1 for none.
  [[nodiscard]] std::int16_t Nr() const { return nr_; }
  // Shows another record on this card.
  void Verplaats(std::int16_t nr);
  // The same record anew, behind a dialog; the user stays on the button that led to it.
  void LaadOpnieuw(Bediening& bij);
  // For ToonRecord: which fields have remarks.
  void ToonOpmKnoppen(std::int16_t opmCode);

  // The card's own record, as its class tells of it.
  [[nodiscard]] virtual std::int16_t Aantal() = 0;
  [[nodiscard]] virtual bool Lees(std::int16_t nr) = 0;
  [[nodiscard]] virtual bool IsVervolg() const = 0;
  // The tracker by which the dialog that edits knows its record.
  [[nodiscard]] virtual std::int16_t& Huidig() = 0;
  virtual void ToonWijzig() = 0;
  // Fills the controls with record Nr(), which lies in the buffer.
  virtual void ToonRecord() = 0;

  void BijLaden() override;
  // Page Up and Page Down are the previous and the next record.
  void BijToets(ToetsGebeurtenis& toets) override;

 private:
  [[nodiscard]] bool VraagNieuw();
  [[nodiscard]] bool MagTonen(std::int16_t laatste);
  void MeldLeesfout(std::int32_t nr);
  void RecordNrBetreden();
  [[nodiscard]] bool RecordNrVerlaten();
  void ToonNummer();
  void VorigeKlik();
  void VolgendeKlik();
  void Stap(int stap, Knop& knop);
  void NieuwKlik();
  void WijzigKlik(Knop& knop);
  void OpmKnopKlik(OpmKnop& knop);
  void TerugKlik();

  const KaartWoorden& woorden_;
  std::int16_t nr_ = -1;
  std::int16_t gevraagd_;  // what the next load is to show
  Knop* vorige_ = nullptr;
  Knop* volgende_ = nullptr;
};

// Such a card of one class of records.
template <class Record>
class RecordKaartVan : public RecordKaart {
 protected:
  // What the card shows: the record class, and the tracker of its dialog.
  struct Bron {
    Record& record;
    std::int16_t& huidig;
  };

  RecordKaartVan(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd, std::int16_t nr,
                 const KaartWoorden& woorden, const Bron& bron)
      : RecordKaart(naam, titel, hoofd, nr, woorden), bron_(bron) {}

  [[nodiscard]] std::int16_t Aantal() final { return bron_.record.AantalRecords(); }
  [[nodiscard]] bool Lees(std::int16_t nr) final { return bron_.record.Lees(nr); }
  [[nodiscard]] bool IsVervolg() const final { return bron_.record.IsVolgRecord(); }
  [[nodiscard]] std::int16_t& Huidig() final { return bron_.huidig; }

 private:
  Bron bron_;
};

}  // namespace lb77
