#include "checks/ControleSessie.h"

#include "app/Start.h"

namespace lb77 {

ControleSessie::ControleSessie() {
  SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\n[Genealogie]\r\nDatumForm=0\r\n");
}

void ControleSessie::Speel(const ControleSoort& soort, std::string_view draaiboek,
                           std::string_view verslag, const Plek& plek) {
  const Taak taak = [&](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.schrijfwijze.DatumScheider = '-';
    hoofd.volgers.HuidigPersoonNr = 5;
    hoofd.volgers.HuidigRelatieNr = 6;
    hoofd.volgers.HuidigOpmNr = 7;
    voor_ = hoofd.volgers;
    ControleForm form(soort, hoofd);
    hoofd.gesprek.ToonModaal(form);
    geteld_ = form.Gedaan.Tekst();
    gevonden_ = form.Gevonden();
    na_ = hoofd.volgers;
  };
  Verwacht(draaiboek, taak, verslag, plek);
}

std::string ControleSessie::Rapport(const ControleSoort& soort, std::string_view vooraf,
                                    const Plek& plek) {
  const std::string naam(soort.naam);
  const std::string vorm = "+ " + naam + " \"" + std::string(soort.titel) + "\"\n";
  const std::string kijker = "+ ToonTekst \"" + std::string(soort.verslag) + "\"\n- ToonTekst\n";
  Speel(soort, std::string(vooraf) + "\ndruk OKButton\ndruk BackButton\n",
        vorm + kijker + "- " + naam + "\n", plek);
  std::string uit = LeesBytes(PadVan(soort));
  const std::string pad = PadVan(soort).string();
  const std::size_t waar = uit.find(pad);
  if (waar != std::string::npos) uit.replace(waar, pad.size(), soort.bestand);
  return uit;
}

std::string ControleSessie::Resultaat(const ControleSoort& soort, const Plek& plek) {
  const std::string uit = Rapport(soort, "", plek);
  const std::string_view eind = "):\r\n\r\n";
  const std::size_t kop = uit.find(eind);
  return kop == std::string::npos ? uit : uit.substr(kop + eind.size());
}

}  // namespace lb77
