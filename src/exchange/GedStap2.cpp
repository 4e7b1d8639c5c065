#include "exchange/GedStap2.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

// Tags whose text becomes a remark, in the next pass.
constexpr std::array<std::string_view, 11> kOpmerkingTags = {
    "CONT", "CONC", "NOTE", "_COMM", "_ALIA", "RFN", "AFN", "SOUR", "CAUS", "TYPE", "ADOP"};

enum class Actie { Tekenset, Bron, Voorbij };

struct AnderPad {
  std::string_view pad;
  Actie actie = Actie::Voorbij;
};

constexpr AnderPad kPaden[] = {
    {"HEAD-CHAR", Actie::Tekenset},
    {"SUBM-CHAR", Actie::Tekenset},
    {"SOUR-NAME", Actie::Bron},
    {"SOUR-TITL", Actie::Bron},
    {"HEAD-SOUR"},
    {"HEAD-SOUR-VERS"},
    {"HEAD-SOUR-VER"},
    {"HEAD-SOUR-NAME"},
    {"HEAD-SOUR-DATA"},
    {"HEAD-SOUR-DATA-COPR"},
    {"HEAD-SOUR-DATA-DATE"},
    {"HEAD-SOUR-CORP"},
    {"HEAD-SOUR-CORP-WWW"},
    {"HEAD-SOUR-CORP-ADDR"},
    {"HEAD-DEST"},
    {"HEAD-DATE"},
    {"HEAD-DATE-TIME"},
    {"HEAD-FILE"},
    {"HEAD-COPR"},
    {"HEAD-GEDC"},
    {"HEAD-GEDC-VERS"},
    {"HEAD-GEDC-FORM"},
    {"HEAD-LANG"},
    {"HEAD-SUBM"},
    {"HEAD-SUBN"},
    {"SUBM-GEDC"},
    {"SUBM-GEDC-VERS"},
    {"SUBM-SCHEMA"},
    {"SUBM-NAME"},
    {"SUBM-ADDR"},
    {"SUBM-ADDR-CONT"},
    {"SUBM-ADDR-CONC"},
    {"SUBM-ADDR-ADR1"},
    {"SUBM-ADDR-ADR2"},
    {"SUBM-ADDR-POST"},
    {"SUBM-ADDR-CITY"},
    {"SUBM-ADDR-CTRY"},
    {"SUBM-PHON"},
    {"SUBM-LANG"},
    {"SUBM-CHAN"},
    {"SUBM-CHAN-DATE"},
    {"SUBM-FILE"},
    {"SUBN-DESC"},
    {"SUBN-ORDI"},
    {"SOUR-AUTH"},
    {"SOUR-PUBL"},
    {"SOUR-REPO"},
    {"REPO-NAME"},
    {"REPO-ADDR"},
};

constexpr std::string_view kSchema = "SUBM-SCHEMA";

bool IsOpmerking(std::string_view tag) {
  return std::find(kOpmerkingTags.begin(), kOpmerkingTags.end(), tag) != kOpmerkingTags.end();
}

}  // namespace

GedStap::Verloop GedStap2::Verwerk(const GedcomRegel& regel) {
  // "_ORIG" counts as a birth, also for the lines under it.
  const bool origineel = regel.niveau > 0 && regel.tag == "_ORIG";
  pad_.Zet(regel.niveau, origineel ? "BIRT" : regel.tag);
  if (regel.niveau == 0) return NieuwRecord(regel);
  return IsOpmerking(regel.tag) ? Verloop::Verder : Veld(regel);
}

GedStap::Verloop GedStap2::NieuwRecord(const GedcomRegel& regel) {
  if (!SchrijfRecord()) return Verloop::Stil;
  if (regel.tag == "REPO") return Verloop::Verder;  // the context stays
  context_ = GedLoop::Context(regel.tag, regel.id);
  record_ = Record::Geen;
  if (regel.tag == "TRLR") return Verloop::Einde;
  if (regel.tag == "INDI") {
    record_ = Record::Persoon;
    return persoon_.Begin(loop_.personen.Nummer(personen_++)) ? Verloop::Verder : Verloop::Stil;
  }
  if (regel.tag == "FAM") {
    record_ = Record::Relatie;
    return relatie_.Begin(loop_.relaties.Nummer(relaties_++)) ? Verloop::Verder : Verloop::Stil;
  }
  if (regel.tag == "SOUR") loop_.voortgang.Bronnen(++bronnen_);
  return Verloop::Verder;
}

bool GedStap2::SchrijfRecord() {
  switch (record_) {
    case Record::Geen:
      return true;
    case Record::Persoon:
      return persoon_.Schrijf();
    case Record::Relatie:
      return relatie_.Schrijf();
  }
  return true;
}

GedStap::Verloop GedStap2::Veld(const GedcomRegel& regel) {
  const std::string_view ouder = pad_.Ouder(regel.niveau);
  const std::string_view pad = pad_.Pad(regel.niveau);
  GedGevolg gevolg = GedGevolg::Onbekend;
  if (BegintMet(ouder, "I") && record_ == Record::Persoon) {
    gevolg = persoon_.Verwerk(pad, regel.waarde, context_);
  } else if (BegintMet(ouder, "F") && record_ == Record::Relatie) {
    gevolg = relatie_.Verwerk(pad, regel.waarde, context_, persoon_.OvlCorrectie());
  } else if (ouder == kSchema) {
    if (!loop_.schemaGemeld) {
      loop_.log.Regel(context_ +
                      std::string(" - SCHEMA tags worden niet geïnterpreteerd: "_w).append(pad));
    }
    loop_.schemaGemeld = true;
    return Verloop::Verder;
  } else if (Ander(pad, regel.waarde)) {
    gevolg = GedGevolg::Gedaan;
  }
  if (gevolg == GedGevolg::Stil) return Verloop::Stil;
  if (gevolg == GedGevolg::Onbekend) MeldOnbekend(regel, pad);
  return Verloop::Verder;
}

bool GedStap2::Ander(std::string_view pad, std::string_view waarde) {
  const auto* const rij = std::find_if(std::begin(kPaden), std::end(kPaden),
                                       [pad](const AnderPad& p) { return p.pad == pad; });
  if (rij == std::end(kPaden)) return false;
  if (rij->actie == Actie::Tekenset) loop_.tekenset = GedTekensetVan(waarde);
  if (rij->actie == Actie::Bron) loop_.voortgang.Bron(loop_.Tekst(waarde));
  return true;
}

void GedStap2::MeldOnbekend(const GedcomRegel& regel, std::string_view pad) {
  const std::string_view ouder = pad_.Ouder(regel.niveau);
  const bool persoon = BegintMet(ouder, "I");
  const bool relatie = BegintMet(ouder, "F");
  const auto meld = [this](bool& gemeld, std::string_view wat, std::string_view waar) {
    if (!gemeld) loop_.log.Regel(std::string(context_).append(wat).append(waar));
    gemeld = true;
  };
  if (BegintMet(regel.tag, "_")) {
    meld(loop_.eigenTagGemeld,
         persoon ? " - Eigen tags van externe programma's worden niet ondersteund: "
                 : " - Eigen tags van externe programma's worden (nog) niet ondersteund: ",
         pad);
  } else if (persoon ? EindigtOp(pad, "EVEN") : regel.tag == "EVEN") {
    // kept: the misspelling, and that other records have it right.
    meld(loop_.eventGemeld,
         persoon || relatie ? " - EVENT tags worden opgelsagen als ALGEMENE OPMERKING: "
                            : " - EVENT tags worden opgeslagen als ALGEMENE OPMERKING: ",
         pad);
  } else {
    loop_.log.Regel(std::string(context_)
                        .append(" - Onbekende tag: ")
                        .append(pad)
                        .append(" : ")
                        .append(regel.waarde));
  }
}

}  // namespace lb77
