#include "exchange/GedUnicode.h"

#include <string>
#include <string_view>

#include "exchange/GedPad.h"
#include "exchange/GedRegel.h"
#include "exchange/OverigePaden.h"
#include "exchange/Padtabel.h"
#include "text/Bestandstekst.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// What is known after some lines of the file.
class Proef {
 public:
  // False when further lines tell nothing more.
  [[nodiscard]] bool Neem(std::string_view regel) {
    const Utf8Aard aard = AardVan(regel);
    if (aard == Utf8Aard::Ongeldig) ongeldig_ = true;
    if (aard == Utf8Aard::Meerbytes) meerbytes_ = true;
    if (!gevonden_) NeemTekenset(regel);
    return !besloten_ && !(ongeldig_ && gevonden_);
  }
  [[nodiscard]] bool IsUtf8() const { return besloten_ ? naam_ : meerbytes_ && !ongeldig_; }

 private:
  void NeemTekenset(std::string_view regel) {
    const GedDelen delen = GedRegel(regel);
    if (!delen.fout.empty()) return;
    pad_.Zet(delen.level, delen.tag);
    if (delen.level == 0 || delen.tag != "CHAR") return;
    const OverigPad* rij = overige_.Zoek(pad_.Van(delen.level));
    if (rij == nullptr || rij->actie != OverigeActie::Tekenset) return;
    gevonden_ = true;
    const std::string naam = Hoofdletters(Trim(delen.waarde));
    besloten_ = naam != "ANSI";
    naam_ = naam == "UTF-8" || naam == "UTF8" || naam == "UNICODE";
  }

  Padtabel<OverigPad> overige_{AlleOverigePaden()};
  GedPad pad_;
  bool gevonden_ = false;  // the CHAR line
  bool besloten_ = false;  // by its name
  bool naam_ = false;      // of Unicode
  bool meerbytes_ = false;
  bool ongeldig_ = false;
};

}  // namespace

Codering CoderingVan(RegelLezer& lezer) {
  if (lezer.Volgordeteken() != Codering::Bytes) return lezer.Volgordeteken();
  Proef proef;
  std::string_view regel;
  while (lezer.Volgende(regel) && proef.Neem(regel)) {
  }
  return proef.IsUtf8() ? Codering::Utf8 : Codering::Bytes;
}

}  // namespace lb77
