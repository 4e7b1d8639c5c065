// What the dialogs of several reports have in common.
#include <string>

#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

Blok InternetOpties() {
  return Kolom({
      Groep("E-mail", {Velden({"EmailAdres", "EmailTekst"})}),
      Groep("Home Page", {Velden({"HomePageURL", "URLLabelTekst", "URLTekstTekst"})}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Persoonshoofd(const std::string& titel, const std::string& wie) {
  return Groep(titel, {Velden({
                          Rij({Veld("Nr" + wie), "Periode"}),
                          Rij({Veld("VoorNm" + wie), Veld("AchterNm" + wie)}),
                      })});
}

Blok Titels() {
  return Groep("Titel en inleiding",
               {Velden({"TitelTekst", "Inleiding1", "Inleiding2", "Inleiding3"})});
}

}  // namespace lb77::indeling
