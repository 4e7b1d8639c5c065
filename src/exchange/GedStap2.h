// Pass 2: fields and links are filled in.
#pragma once

#include "exchange/GedPersoon.h"
#include "exchange/GedRelatie.h"
#include "exchange/GedStap.h"

namespace lb77 {

class GedStap2 final : public GedStap {
 public:
  explicit GedStap2(GedLoop& loop) : GedStap(loop), persoon_(loop), relatie_(loop) {}

 private:
  enum class Record { Geen, Persoon, Relatie };

  [[nodiscard]] Verloop Verwerk(const GedcomRegel& regel) override;
  [[nodiscard]] Verloop NieuwRecord(const GedcomRegel& regel);
  [[nodiscard]] bool SchrijfRecord();
  [[nodiscard]] Verloop Veld(const GedcomRegel& regel);
  [[nodiscard]] bool Ander(std::string_view pad, std::string_view waarde);
  void MeldOnbekend(const GedcomRegel& regel, std::string_view pad);

  GedPersoon persoon_;
  GedRelatie relatie_;
  Record record_ = Record::Geen;
  std::size_t personen_ = 0;
  std::size_t relaties_ = 0;
  int bronnen_ = 0;
};

}  // namespace lb77
