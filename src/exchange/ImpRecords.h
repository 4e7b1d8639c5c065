// The second pass of the import: the records get their fields and links.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/GedPad.h"
#include "exchange/ImpLoop.h"
#include "exchange/ImpPersoon.h"
#include "exchange/ImpRelatie.h"
#include "exchange/OverigePaden.h"
#include "exchange/Padtabel.h"
#include "exchange/RegelLezer.h"

namespace lb77 {

// Every line is looked up by its path in one of three tables; what no table has goes to the log.
class ImpRecords {
 public:
  explicit ImpRecords(ImpLoop& loop);

  // Reads the file from where the reader stands. A record is written when the next one begins, so
  // that the last one needs a TRLR.
  [[nodiscard]] ImpUitslag Voer(RegelLezer& lezer);

 private:
  enum class Groep { Persoon, Relatie, Overig };

  [[nodiscard]] bool NeemKop(const GedDelen& delen);
  [[nodiscard]] bool BewaarRecord();
  [[nodiscard]] bool BeginRecord(GedSoort soort);
  [[nodiscard]] bool NeemRegel(GedDelen delen);
  void TelTekst(const GedDelen& delen);
  [[nodiscard]] static bool WordtNietBewaard(OverigeActie actie);
  void MerkNiets(const GedDelen& delen);
  void MerkVanaf(std::int32_t regel);
  void NeemOverig(OverigeActie actie, std::string_view waarde);
  void NeemProv(const std::string& prov);
  [[nodiscard]] bool InPersoon() const { return loop_.Context().starts_with("P-"); }
  [[nodiscard]] bool InRelatie() const { return loop_.Context().starts_with("R-"); }
  [[nodiscard]] static Groep GroepVan(std::string_view ouder);
  void LogOnbekend(Groep groep, const GedDelen& delen);
  void LogEenmaal(bool& gemeld, std::string_view tekst, std::string_view pad);

  ImpLoop& loop_;
  ImpPersoon persoon_;
  ImpRelatie relatie_;
  Padtabel<PersoonPad> persoonPaden_;
  Padtabel<RelatiePad> relatiePaden_;
  Padtabel<OverigPad> overigePaden_;
  GedPad pad_;
  std::int32_t kop_ = 0;  // the line of the record that is being built
  std::string id_;        // of the record at hand
  std::string prov_;      // of the place at hand
  bool einde_ = false;
  bool schemaGemeld_ = false;
  bool eigenTagGemeld_ = false;
  bool eventGemeld_ = false;
};

}  // namespace lb77
