#include "Sessie.h"

#include <memory>
#include <stdexcept>

#include "ancestors/KwstPrs.h"
#include "app/Start.h"
#include "cli/Werk.h"
#include "descendants/GenPrs.h"
#include "exchange/ImpGedcom.h"
#include "reports/Krtn.h"
#include "reports/RptFamilies.h"
#include "reports/RptTakken.h"
#include "reports/RptTijdbalk.h"
#include "reports/SchemaVerwantschap.h"
#include "reports/SelectOpm.h"
#include "reports/SelectPrs.h"
#include "reports/SelectRel.h"
#include "steun/FaalBestand.h"
#include "text/Getallen.h"

namespace lb77::fuzz {
namespace {

constexpr std::string_view kInstellingen =
    "[Systeem]\r\nSet=FUZZ\r\nOpslaanVelden=N\r\n[Sets]\r\nSet1=FUZZ,\r\n"
    "[Namenfile]\r\nGez1=NHNederlands Hervormd\r\n[Printer]\r\nTekstbr=80\r\nTekstReg=60\r\n";

std::string& BytesVan(SetBytes& bytes, std::size_t recordLengte) {
  if (recordLengte == RecordLengteVan(BestandSoort::Personen)) return bytes.personen;
  if (recordLengte == RecordLengteVan(BestandSoort::Relaties)) return bytes.relaties;
  if (recordLengte == RecordLengteVan(BestandSoort::Opmerkingen)) return bytes.opmerkingen;
  return bytes.plaatsen;
}

std::unique_ptr<TijdelijkeMap> MaakMap() {
  auto map = std::make_unique<TijdelijkeMap>();
  SchrijfBytes(*map / "LIJNBOOM.INI", kInstellingen);
  std::filesystem::create_directories(*map / "DATA" / "FUZZ" / "TEKST");
  return map;
}

}  // namespace

const std::filesystem::path& ProgrammaMap() {
  static const std::unique_ptr<TijdelijkeMap> map = MaakMap();
  return map->Pad();
}

Sessie::Sessie(SetBytes& bytes)
    : bediener_([](std::string_view) {}), hoofd(bediener_, klok_, ProgrammaMap()) {
  if (!Start(hoofd)) throw std::runtime_error("het programma start niet");
  hoofd.bestanden = Bestandenset([&bytes](const std::filesystem::path&, std::size_t lengte) {
    return Bestandenset::Opening{std::make_unique<GeheugenBestand>(BytesVan(bytes, lengte), lengte),
                                 {}};
  });
  hoofd.ActieveSetNaam = hoofd.Ini.ActieveSet();
  if (hoofd.bestanden.OpenSet(SetPaden::Van(hoofd.Ini.DataDir(), hoofd.ActieveSetNaam))) {
    throw std::runtime_error("de bestanden gaan niet open");
  }
}

void Sessie::MaakNieuw() {
  if (!hoofd.Persoon.NieuwAdm() || !hoofd.Relatie.NieuwAdm() || !hoofd.Plaats.NieuwAdm() ||
      !hoofd.Opmerking.NieuwAdm()) {
    throw std::runtime_error("een nieuwe set is niet te maken");
  }
}

void Sessie::Importeer(const std::filesystem::path& gedcom, Antwoord omzetten) {
  bediener_.HoudKlaar("ImpGedcom", omzetten);
  bediener_.Bij("ImpGedcom", [&](Formulier& formulier) {
    dynamic_cast<Padvak&>(*formulier.Zoek("Bestandsnaam")).ZetPad(gedcom);
    Werk(bediener_, formulier).Druk("OKButton");
  });
  ImpGedcom formulier(hoofd);
  hoofd.gesprek.ToonModaal(formulier);
}

void Sessie::Verslag(int persoon, std::string_view prompt, std::string_view opties,
                     std::string_view links, const std::function<void(Formulier&)>& vul) {
  bediener_.Bij(prompt, [this, persoon](Formulier& formulier) {
    Werk werk(bediener_, formulier);
    if (werk.Zet("RecordNr", GetalTekst(persoon))) werk.Druk("OKButton");
  });
  bediener_.Bij(opties, vul);
  bediener_.Bij(links,
                [this](Formulier& formulier) { Werk(bediener_, formulier).Druk("OKButton"); });
}

void Sessie::Kwartierstaat(int persoon, unsigned keuzen) {
  const std::string_view broers = (keuzen & kBroersZussenProband) != 0
                                      ? "Met Broers en Zussen van de Proband"
                                  : (keuzen & kBroersZussen) != 0 ? "Met Alle Broers en Zussen"
                                                                  : "Zonder Broers en Zussen";
  struct Soort {
    const KwstPrsSoort& prompt;
    std::string_view opties;
  };
  for (const Soort& soort :
       {Soort{kKwstTxtPrs, "KwstTxtParam"}, Soort{kKwstIdxPrs, "KwstIdxParam"}}) {
    Verslag(persoon, soort.prompt.naam, soort.opties, soort.prompt.links->naam,
            [&](Formulier& formulier) {
              VulParam(formulier, keuzen, "KwHerhaalBox", {{"BroerZusBox", broers}});
            });
    KwstPrs formulier(soort.prompt, hoofd);
    hoofd.gesprek.ToonModaal(formulier);
  }
}

void Sessie::Kwartierbladen(int persoon, unsigned keuzen) {
  Verslag(persoon, kKwstSchPrs.naam, "KwstSchParam", kKwstSchPrs.links->naam,
          [this, keuzen](Formulier& formulier) {
            VulParam(formulier, keuzen, "UitlijnBox", {{"OokJaarBox", "Ja"}});
          });
  KwstPrs schema(kKwstSchPrs, hoofd);
  hoofd.gesprek.ToonModaal(schema);
  Verslag(persoon, kKwstBldPrs.naam, "KwstBladen", "", [this](Formulier& formulier) {
    Werk werk(bediener_, formulier);
    for (const std::string_view knop : {"Proband(1)", "Proband(15)", "Proband(8)", "NaarKind"}) {
      werk.Druk(knop);
      werk.Druk("UitvoerButton");
    }
  });
  bediener_.BijAfdruk([](const Afdruk&) {});
  bediener_.Bij("KwstBldParam", [this, keuzen](Formulier& formulier) {
    Werk werk(bediener_, formulier);
    const std::string_view vorm = (keuzen & kHTML) != 0 ? "HSK" : "CBG";
    if (!werk.Zet("HSK_CBG_Box", vorm)) throw std::logic_error("HSK_CBG_Box is er niet");
    werk.Druk("OKButton(1)");
  });
  KwstPrs bladen(kKwstBldPrs, hoofd);
  hoofd.gesprek.ToonModaal(bladen);
}

void Sessie::Parenteel(int persoon, unsigned keuzen) {
  const std::string_view volgorde = (keuzen & kBroersZussen) != 0 ? "Per generatie" : "Per tak";
  const std::string_view richting = (keuzen & kBroersZussen) != 0 ? "Verticaal" : "Horizontaal";
  const std::string_view partners =
      (keuzen & kBroersZussenProband) != 0 ? "Naast elkaar" : "Onder elkaar";
  const std::string_view nummers = (keuzen & kNummers) != 0 ? "Ja" : "Nee";
  struct Soort {
    const GenPrsSoort& prompt;
    std::string_view opties;
    Keuzen eigen;
  };
  for (const Soort& soort : {Soort{kGenTxtPrs, "GenTxtParam", {{"PerTakBox", volgorde}}},
                             Soort{kGenIdxPrs, "GenIdxParam", {{"PerTakBox", volgorde}}},
                             Soort{kGenSchPrs,
                                   "GenSchParam",
                                   {{"HorVerBox", richting},
                                    {"OokPartnersBox", partners},
                                    {"OokVNrsBox", nummers},
                                    {"OokRNrsBox", nummers},
                                    {"OokDatumsBox", "Volledig"},
                                    {"OokVNamenBox", "Volledig"},
                                    {"PosVNamen", "5"}}}}) {
    Verslag(persoon, soort.prompt.naam, soort.opties, "GenHTMLParam", [&](Formulier& formulier) {
      Keuzen eigen{{"ZonenBox", "Alle Zonen"}, {"DochtersBox", "Alle Dochters"}};
      eigen.insert(eigen.end(), soort.eigen.begin(), soort.eigen.end());
      VulParam(formulier, keuzen, "PrsHerhaalBox", eigen);
    });
    GenPrs formulier(soort.prompt, hoofd);
    hoofd.gesprek.ToonModaal(formulier);
  }
}

void Sessie::Verwantschap(int een, int ander) {
  bediener_.Bij("SchemaVerwantschap", [&](Formulier& formulier) {
    Werk werk(bediener_, formulier);
    if (werk.Zet("PersNr(0)", GetalTekst(een)) && werk.Zet("PersNr(1)", GetalTekst(ander))) {
      werk.Druk("OKButton");
    }
  });
  hoofd.gesprek.Toon<SchemaVerwantschap>(hoofd);
}

void Sessie::Kaarten(int tot) {
  struct Soort {
    const KrtnSoort& soort;
    std::string_view tot;
  };
  for (const Soort& kaart :
       {Soort{kPrsKrtn, "RecordNrPers(1)"}, Soort{kRelKrtn, "RecordNrRel(1)"}}) {
    bediener_.Bij(kaart.soort.naam, [&](Formulier& formulier) {
      Werk werk(bediener_, formulier);
      if (werk.Zet(kaart.tot, GetalTekst(tot))) werk.Druk("OKButton");
    });
    hoofd.gesprek.Toon<Krtn>(kaart.soort, hoofd);
  }
}

void Sessie::Lijsten(int persoon) {
  const std::string nr = GetalTekst(persoon);
  const auto vul = [&](std::string_view formulier, std::string_view veld, std::string_view waarde) {
    bediener_.Bij(formulier, [this, veld, tekst = std::string(waarde)](Formulier& form) {
      Werk werk(bediener_, form);
      if (werk.Zet(veld, tekst)) werk.Druk("OKButton");
    });
  };
  vul("SelectPrs", "VanDatumGeb", "1-1-1700");
  vul("SelectRel", "VoorNm", "a");
  vul("SelectOpm", "ZoekTekst", "e");
  vul("RptTakken", "PersNr", nr);
  vul("RptTijdbalk", "PersNr", nr);
  vul("RptFamilies", "MinimumAantal", "1");
  hoofd.gesprek.Toon<SelectPrs>(hoofd);
  hoofd.gesprek.Toon<SelectRel>(hoofd);
  hoofd.gesprek.Toon<SelectOpm>(hoofd);
  hoofd.gesprek.Toon<RptTakken>(hoofd);
  hoofd.gesprek.Toon<RptTijdbalk>(hoofd);
  hoofd.gesprek.Toon<RptFamilies>(hoofd);
}

void Sessie::VulParam(Formulier& formulier, unsigned keuzen, std::string_view herhaling,
                      const Keuzen& eigen) {
  Werk werk(bediener_, formulier);
  bool goed = true;
  const auto zet = [&](std::string_view naam, std::string_view waarde) {
    goed = werk.Zet(naam, waarde) && goed;
  };
  const auto jaNee = [&](std::string_view naam, unsigned keuze) {
    zet(naam, (keuzen & keuze) != 0 ? "Ja" : "Nee");
  };
  jaNee("InHTMLBox", kHTML);
  if (formulier.Zoek("OokOpmBox")) jaNee("OokOpmBox", kOpmerkingen);
  if (formulier.Zoek("OokNrsBox")) jaNee("OokNrsBox", kNummers);
  jaNee(herhaling, kVolgHerhaling);
  // Persons in a circle fill the whole table when repeats are followed.
  if ((keuzen & kVolgHerhaling) != 0) zet("MaxGen", "9");
  for (const auto& [naam, waarde] : eigen) zet(naam, waarde);
  if (!goed) throw std::logic_error("een keuze van " + formulier.Naam() + " is er niet");
  werk.Druk("OKButton");
}

}  // namespace lb77::fuzz
