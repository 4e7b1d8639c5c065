// The frame that the four record classes share: one buffer, its file, its trackers, its messages.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "store/Bestandenset.h"
#include "store/Opslag.h"
#include "store/RecordBestand.h"
#include "store/SysteemFout.h"
#include "store/Veld.h"
#include "store/VeldWaarde.h"
#include "store/Volgers.h"
#include "text/Getallen.h"

namespace lb77 {

// How one record class differs from the others, as data.
struct RaamTabel {
  BestandSoort soort;
  std::span<const Veld> velden;
  std::span<const char> leeg;      // an empty record, of the record's length
  std::size_t sonde;               // offset of the field that tells whether a record is there
  std::string_view schildwacht;    // what it holds before a read
  std::size_t telling;             // offset of the count in record 1
  std::int16_t Volgers::*bufNr;    // the tracker of the buffer
  std::int16_t geenNr;             // its value when nothing valid lies in the buffer
  std::string_view recordNaam;     // "Persoonsrecord", in "... lezen van Persoonsrecord 12"
  std::string_view schrijfNaam;    // the same in the message of a write
  std::string_view leesAdminFout;  // message of a record 1 that can't be read
  std::string_view schrijfAdminFout;
  std::string_view aantalFout;         // warning of a wrong count; empty when there is none
  std::int16_t laagste;                // what AantalRecords gives when no record is found at all
  std::int32_t hoogste = kMaxRecords;  // the last number that Nieuw takes
  std::string_view volFout = kMaximumBereikt;
};

// Holds one record. Reading replaces it; every write reaches the file at once. A failure is shown
// to the user here and returns False. A read that fails leaves the buffer empty.
class RecordRaam {
 public:
  RecordRaam(const RecordRaam&) = delete;
  RecordRaam& operator=(const RecordRaam&) = delete;

  // Reads record 1 into the buffer. A record 1 that is absent or no admin record is a failure
  // with its message.
  [[nodiscard]] bool LeesAdmin();

  // Writes the buffer to record 1.
  [[nodiscard]] bool SchrijfAdmin();

  // The count that record 1 states; 0 when it can't be read. The buffer then holds record 1.
  virtual std::int16_t AantalInAdmin();

  // The highest record number, found downward from the count of record 1; warns when they differ.
  // An empty set gives 1; a file without a record 1 gives 0, one of places 1. The buffer then
  // holds that record.
  virtual std::int16_t AantalRecords();

  // The highest number reached by reading upward from 2 until a read fails. The buffer is empty
  // after it.
  std::int16_t MaxRecordNr();

  // Stores one field of the buffer from text. A name that the class doesn't know shows a warning,
  // a number that doesn't fit in 16 bits an error; both change nothing.
  void Zet(std::string_view veld, std::string_view waarde);

  // Reads record `nr` (from 2), sets fields of it and writes it; no tracker of a current number
  // moves. False for a record that can't be read (silently when it is absent), a value that Zet
  // refuses, and a failed write; nothing is written but by the last. Afterwards the buffer holds
  // the record as written, or nothing.
  [[nodiscard]] bool Wijzig(std::int16_t nr, std::span<const VeldWaarde> velden);
  [[nodiscard]] bool Wijzig(std::int16_t nr, std::initializer_list<VeldWaarde> velden) {
    return Wijzig(nr, std::span(velden.begin(), velden.size()));
  }
  // A field of the buffer as the text that Zet would take: a number without its zero, a date in its
  // entry form, a choice by its position. Damaged dates come out whole.
  [[nodiscard]] std::string Waarde(const Veld& veld) const;

  // Stores the count in the buffer, which must hold record 1.
  void ZetAantal(std::int16_t aantal);

  // The bytes of the buffer, for tests and dumps.
  std::span<const char> Bytes() const { return {buffer_.data(), tabel_.leeg.size()}; }

 protected:
  RecordRaam(const Opslag& opslag, const RaamTabel& tabel);
  ~RecordRaam() = default;

  enum class Soort { Gewoon, Admin };

  // What came of a read or a write, without a message shown.
  struct Uitslag {
    bool gelukt = false;
    SysteemFout fout;  // of the system; none when the record is merely absent
  };

  // Reads a record into the buffer, or empties it. An absent record fails silently.
  [[nodiscard]] bool LeesRecord(std::int32_t nr);
  // The same without any message.
  Uitslag LeesStil(std::int32_t nr, Soort soort = Soort::Gewoon);
  // Writes the buffer and makes it the buffer's record.
  [[nodiscard]] bool SchrijfRecord(std::int32_t nr);
  // The same without any message.
  [[nodiscard]] SysteemFout SchrijfStil(std::int32_t nr);
  // Writes an empty record at `nr`, raises the count in record 1 and reads `nr` back.
  [[nodiscard]] bool NieuwRecord(std::int32_t nr);
  // Writes an empty record at `nr`, the first step of a new one. A record that is in use is never
  // overwritten, and one that could not be counted never written: both fail with a message.
  [[nodiscard]] bool SchrijfLeeg(std::int32_t nr);
  // Raises the count of the admin record in the buffer; fails with a message when it is full.
  [[nodiscard]] bool VerhoogAantal();
  // The highest number that can be read, from `vanaf` downward.
  std::int16_t ZoekHoogste(std::int32_t vanaf);
  // Empties the buffer and its tracker.
  void Leeg();

  // Shows a message as an error; the system's text, if any, goes behind a line break.
  void MeldFout(std::string_view tekst, const SysteemFout& fout = {}) const;

  std::string Tekst(const Veld& veld) const;
  // The stored bytes of a text without surrounding blanks.
  std::string_view Kaal(const Veld& veld) const;
  std::int16_t Getal(const Veld& veld) const { return GetalOp(buffer_, veld.plaats); }
  char Teken(const Veld& veld) const { return buffer_[veld.plaats]; }
  void ZetGetal(const Veld& veld, std::int16_t getal) { ZetGetalOp(buffer_, veld.plaats, getal); }
  void ZetTekstIn(const Veld& veld, std::string_view windows);
  void ZetBytesIn(const Veld& veld, std::string_view bytes) { ZetBytes(Buffer(), veld, bytes); }

  std::span<char> Buffer() { return {buffer_.data(), tabel_.leeg.size()}; }
  RecordBestand& Bestand() const { return opslag_.bestanden.Bestand(tabel_.soort); }
  Volgers& Trackers() const { return opslag_.volgers; }
  Gesprek& Door() const { return opslag_.gesprek; }
  const Opslag& DeOpslag() const { return opslag_; }

 private:
  // True when the buffer, fully read, is a part of the file that was never written.
  virtual bool IsGat(Soort soort) const = 0;
  // True when the stored text of the probe may equal its sentinel.
  virtual bool MagSchildwachtZijn(Soort) const { return false; }
  // What Zet stores for a value of this field.
  virtual std::string_view WaardeVoor(const Veld&, std::string_view waarde) const { return waarde; }
  // Puts the probe right after a read that was accepted.
  virtual void HerstelSonde(Soort) {}

  // True when the buffer, read as far as its probe, holds something that may not be lost.
  [[nodiscard]] virtual bool IsInGebruik() const;

  [[nodiscard]] bool HeeftSonde(std::size_t gelezen) const;
  [[nodiscard]] bool IsAanwezig(std::size_t gelezen, Soort soort) const;
  [[nodiscard]] bool MagNieuw(std::int32_t nr);
  // The records that the file's size has room for, one cut short included; the maximum when the
  // size is not known.
  std::int32_t RecordsInBestand() const;
  // Reads a record of a scan; shows an error of the system unless one was shown before.
  [[nodiscard]] bool Probeer(std::int32_t nr, bool& gemeld);
  // The field of this name; none after a warning.
  const Veld* VindVeld(std::string_view naam) const;
  // Stores a value; False after a message.
  [[nodiscard]] bool Verwerk(const Veld& veld, std::string_view tekst);
  [[nodiscard]] bool ZetGetalTekst(const Veld& veld, std::string_view waarde);

  static constexpr std::size_t kGrootste = 128;

  Opslag opslag_;
  const RaamTabel& tabel_;
  std::array<char, kGrootste> buffer_{};
};

}  // namespace lb77
