// The dialogs that write all records of one file: of persons, relations, places, remarks.
#pragma once

#include <cstdint>

#include "exchange/DumpSoorten.h"
#include "exchange/UitvoerForm.h"
#include "forms/Keuzen.h"
#include "forms/Weergave.h"

namespace lb77 {

struct ExpDumpSoort {
  UitvoerSoort uitvoer;
  std::string_view teller;  // the running count, and its prompt
  std::string_view tellerTekst;
  const DumpSoort& dump;
};

extern const ExpDumpSoort kExpDumpPers;
extern const ExpDumpSoort kExpDumpRel;
extern const ExpDumpSoort kExpDumpPlts;
extern const ExpDumpSoort kExpDumpOpm;

class ExpDump final : public UitvoerForm {
 public:
  ExpDump(const ExpDumpSoort& soort, Hoofdmodule& hoofd);

  Teller Gedaan;
  Knop OKButton{*this, "OKButton", "&Start Export"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  [[nodiscard]] std::int16_t AantalRecords() override;
  void WisVoortgang() override { Gedaan.ZetTekst("0"); }
  void Schrijf(UitvoerBestanden& bestanden) override;
  void SchrijfLogSlot(ExpUitvoer& log) override;

 private:
  const DumpSoort& soort_;
  std::int32_t aantal_ = 0;
};

}  // namespace lb77
