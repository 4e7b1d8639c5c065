// One line of a remark: a record of the .OPM file, and the chains that remarks form.
//
// An owner (person or relation) names the first record of its first remark; BijZelfde goes to the
// first record of its next remark; VolgRegel goes to the next line of the same remark. Every walk
// is bounded by the number of records, so that a damaged file ends in a message.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/Opslag.h"
#include "store/PersoonLB77.h"
#include "store/RecordRaam.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// The ten lines of a remark, and the records that they occupy (0 for none).
using OpmRegels = std::array<std::string, 10>;
using OpmRecnrs = std::array<std::int16_t, 10>;

// Where a line of a remark lies.
struct OpmVindplaats {
  std::int16_t Nr = 0;      // its record; 0 when there is no such line
  std::int16_t Vorige = 0;  // first record of the owner's remark before it; 0 for the first
};

// The rubrics of a code and one more: the bits together, negative when either is.
std::int16_t OpmCodeMet(std::int16_t code, std::int16_t rubriek);

// Holds one line. Reading and writing go by HuidigOpmNr, or by a number given.
class OpmLB77 final : public RecordRaam {
 public:
  // `persoon` and `relatie` are the owners that SchrijfOpmerking keeps in step.
  OpmLB77(const Opslag& opslag, PersoonLB77& persoon, RelatieLB77& relatie);

  // Stores the text of the buffer's line, cut to 80 characters.
  void ZetTekst(std::string_view Tekst);
  // Makes an empty record at `Nr` (from 2), counts it in record 1 and reads it back.
  // HuidigOpmNr is `Nr` after it.
  [[nodiscard]] bool Nieuw(std::int32_t Nr);
  // Writes record 1 of a new file.
  [[nodiscard]] bool NieuwAdm();
  // Empties the buffer; OpmBufNr is -1 after it.
  void LeegOpmBuffer();
  // Writes the buffer to HuidigOpmNr.
  [[nodiscard]] bool Schrijf();
  // Writes the buffer to record `Nr`, wherever HuidigOpmNr stands.
  [[nodiscard]] bool Schrijf(std::int16_t Nr);
  // Stores the three counters in the buffer, which must hold record 1, and writes record 1.
  [[nodiscard]] bool SchrijfAdm(std::int16_t Aantal, std::int16_t Vrij, std::int16_t Gebruikt);

  // Stores a remark of up to ten lines for a person, or for a relation when `Persoon` is 0.
  // `Recnrs` are the records it occupies now, `VorigeRecord` the first record of the remark before
  // it (0 for none), `Begin` the owner's first remark record. The owner is read, brought in step
  // and written. Stops at the first failure; what was written before it stays.
  [[nodiscard]] bool SchrijfOpmerking(OpmRegels Regels, const OpmRecnrs& Recnrs,
                                      std::int16_t VorigeRecord, std::int16_t Persoon,
                                      std::int16_t Relatie, std::int16_t Begin, std::int16_t Prog,
                                      std::int16_t Rubriek);

  // The first record of the last remark of a chain: 0 for `Begin` 0, -1 after a message.
  std::int16_t RecordnrEindeKetting(std::int16_t Begin);
  // The rubrics of a whole chain together, negative for a relation; 0 after a message.
  std::int16_t BepaalOpmCode(std::int16_t Begin);

  std::int16_t Rubriek() const;
  std::int16_t BijRecord() const;
  std::int16_t BijProg() const;
  std::int16_t VolgRegel() const;
  std::int16_t BijZelfde() const;
  std::string Tekstregel() const;
  // True when the remark is for HTML output only.
  [[nodiscard]] bool AlleenHTML() const;

  // Reads HuidigOpmNr. False, silently, for an absent record; OpmBufNr is -1 then.
  [[nodiscard]] bool Lees();
  // Reads record `Nr` likewise, wherever HuidigOpmNr stands.
  [[nodiscard]] bool Lees(std::int16_t Nr);

  // As in the frame, but the count includes record 1, and neither warns of a wrong count.
  std::int16_t AantalInAdmin() override;
  std::int16_t AantalRecords() override;

  // Line `Regel` (1 to 10) of the first remark of a rubric in the chain from `Begin`; 11 to 20 are
  // the lines of the second remark, and so on. Empty when there is none. A bad link gives a text
  // that says so, ">> ... <<". `NietHTML` passes over remarks for HTML only.
  std::string OpmerkingTekst(std::int16_t OpmCode, std::int16_t Begin, std::int16_t Rubriek,
                             std::int16_t Regel, bool NietHTML);
  // The BijProg of that line as text; "255" when there is none, "0" when nothing is to be found
  // or a link is bad.
  std::string OpmerkingProgs(std::int16_t OpmCode, std::int16_t Begin, std::int16_t Rubriek,
                             std::int16_t Regel, bool NietHTML);
  // Where that line lies, and the remark before its remark. A bad link counts as no line.
  OpmVindplaats OpmRecordNr(std::int16_t OpmCode, std::int16_t Begin, std::int16_t Rubriek,
                            std::int16_t Regel, bool NietHTML);

 private:
  struct Zoekvraag;
  struct Vondst;
  struct Opdracht;

  // What the owner of a remark knows of its remarks.
  struct Eigenaar {
    std::int16_t opmRecord = 0;
    std::int16_t opmCode = 0;
  };
  // The chain that grew last, as long as nothing else is written to the file.
  struct Keteneinde {
    std::int16_t begin = 0;  // its first record; 0 for none
    std::int16_t einde = 0;  // the first record of its last remark
    std::uint64_t stand = 0;
  };
  // A walk, bounded by the number of records.
  struct Wandeling {
    std::int16_t aantal = 0;
    std::int32_t stappen = 0;
  };
  enum class Stap { Gelukt, FouteVerwijzing, Leesfout };

  bool IsGat(Soort soort) const override;
  void HerstelSonde(Soort soort) override;
  [[nodiscard]] bool IsInGebruik() const override;

  // The count of record 1; nothing, silently, when it is absent.
  std::optional<std::int16_t> LeesTelling();
  Stap Betreed(std::int16_t nr, Wandeling& wandeling);
  Vondst Zoek(const Zoekvraag& vraag);
  Vondst ZoekRegel(std::int16_t eerste, std::int16_t regel, Wandeling& wandeling);
  [[nodiscard]] bool LoopKeten(std::int16_t begin, std::int16_t& laatste, std::int16_t& code);

  // As RecordnrEindeKetting; without a walk when the chain is the one that grew last, so that the
  // time of an import does not grow with the square of a person's remarks.
  std::int16_t ZoekEinde(std::int16_t begin);
  [[nodiscard]] bool SchrijfRegel(Opdracht& opdracht, std::size_t i);
  [[nodiscard]] bool GeefVrij(const Opdracht& opdracht, std::size_t i);
  [[nodiscard]] bool MaakLos(const Opdracht& opdracht, std::int16_t volgende);
  [[nodiscard]] bool Herschrijf(const Opdracht& opdracht, std::size_t i);
  [[nodiscard]] bool VoegToe(Opdracht& opdracht, std::size_t i);
  [[nodiscard]] bool Koppel(std::int16_t nr, const Veld& schakel, std::int16_t volgende);
  // Takes a free record for a line, fills and counts it; 0 after a message.
  std::int16_t NeemRecord(const Opdracht& opdracht, std::size_t i);
  // A free record, made when there is none; 0 after a message.
  std::int16_t Kandidaat();
  // The next free record behind `vanaf`, or the number behind the last record.
  std::int16_t ZoekVrij(std::int16_t vanaf);
  // The first record from `nr` on that is free, or that the system can't read; behind `aantal` when
  // there is none.
  std::int32_t ZoekVrijVanaf(std::int32_t nr, std::int16_t aantal);
  [[nodiscard]] bool TelGebruikt(std::int16_t nr);
  [[nodiscard]] bool LeesAdminVast();
  [[nodiscard]] bool LeesOpmerking(std::int16_t nr);
  [[nodiscard]] bool BewaarOpmerking(std::string_view fout);
  std::optional<Eigenaar> LeesEigenaar(const Opdracht& opdracht);
  [[nodiscard]] bool SchrijfEigenaar(const Opdracht& opdracht, const Eigenaar& eigenaar,
                                     std::string_view persoonFout);

  PersoonLB77& persoon_;
  RelatieLB77& relatie_;
  Keteneinde gegroeid_;
};

}  // namespace lb77
