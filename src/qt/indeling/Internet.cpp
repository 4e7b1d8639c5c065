#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

Blok InternetOpties() {
  return Kolom({
      Groep("E-mail", {Velden({"EmailAdres", "EmailTekst"})}),
      Groep("Home Page", {Velden({"HomePageURL", "URLLabelTekst", "URLTekstTekst"})}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace lb77::indeling
