#include "cli/Opdrachten.h"

#include <fstream>
#include <ostream>
#include <system_error>

#include "app/Bestandensets.h"
#include "cli/Bediener.h"
#include "exchange/ImpGedcom.h"
#include "output/Tekstpaginas.h"
#include "output/ToonTekst.h"
#include "program/Programma.h"
#include "store/Bestandenset.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "store/SysteemFout.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

constexpr std::size_t kSetNaam = 8;

// One session without a screen. `inMenu` is what the user does in the main window.
class Sessie {
 public:
  explicit Sessie(const Omgeving& omgeving)
      : bediener([&omgeving](std::string_view regel) { omgeving.fout << regel << '\n'; }),
        programma(bediener, omgeving.klok, omgeving.programmaMap) {}

  int Voer(const std::function<void(Werk&)>& inMenu) {
    bediener.Bij("MenuWindow", [this, &inMenu](Formulier& menu) {
      Werk werk(bediener, menu);
      inMenu(werk);
    });
    if (!programma.Start()) return 1;
    programma.Voer();
    return bediener.Status();
  }

  // True when the set of that name is the active one afterwards.
  [[nodiscard]] bool OpenSet(Werk& menu, std::string_view naam) {
    const std::string set = Hoofdletters(naam);
    Hoofdmodule& hoofd = programma.Hoofd();
    if (hoofd.ActieveSetNaam == set) return true;
    const int index = hoofd.Ini.BestandenSetIndex(set);
    if (index == 0) {
      bediener.Mislukt("Bestandenset " + set + " staat niet in de lijst");
      return false;
    }
    bediener.Bij("OpenSetForm", [this, index](Formulier& form) {
      Werk werk(bediener, form);
      if (auto* lijst = dynamic_cast<Lijst*>(form.Zoek("SetPicklist")))
        form.Kies(*lijst, index - 1);
      werk.Druk("OKButton");
    });
    menu.Kies("OpenSet");
    return hoofd.ActieveSetNaam == set;
  }

  Bediener bediener;
  Programma programma;
};

// Onto standard output, in UTF-8 with plain line ends.
void Druk(const Omgeving& omgeving, const std::filesystem::path& bron) {
  std::ifstream in(bron, std::ios::binary);
  std::string regel;
  while (std::getline(in, regel)) {
    if (!regel.empty() && regel.back() == '\r') regel.pop_back();
    omgeving.uit << WindowsNaarUtf8(regel) << '\n';
  }
}

// The program's own bytes in a file. What it held is there until the copy is whole; a device is
// written to.
void Bewaar(Bediener& bediener, const std::filesystem::path& bron,
            const std::filesystem::path& naar) {
  std::error_code code;
  SysteemFout fout;
  if (std::filesystem::exists(naar, code) && !std::filesystem::is_regular_file(naar, code)) {
    std::ifstream in(bron, std::ios::binary);
    std::ofstream uit(naar, std::ios::binary);
    uit << in.rdbuf();
    uit.close();
    if (!uit) fout = FoutVanStroom();
  } else {
    fout = KopieerTekst(bron, naar);
  }
  if (fout) {
    bediener.Mislukt("Fout bij het schrijven van " + PadTekst(naar) + "\n" + fout.tekst);
  }
}

// The records of a file that are no continuation of another.
template <class Klasse>
int Aantal(Klasse& klasse) {
  int aantal = 0;
  const std::int16_t laatste = klasse.AantalRecords();
  for (int nr = 2; nr <= laatste; ++nr) {
    if (klasse.Lees(static_cast<std::int16_t>(nr)) && !klasse.IsVolgRecord()) ++aantal;
  }
  return aantal;
}

struct Telling {
  int personen = 0;
  int relaties = 0;
};

// Counts in files of its own, so that the set in use stays that; nothing when they can't be opened.
std::optional<Telling> Tel(Hoofdmodule& hoofd, const std::string& set) {
  if (!IsSetNaam(set)) return std::nullopt;
  const SetPaden paden = SetPaden::Van(hoofd.Ini.DataDir(), set);
  const std::filesystem::path prs = VindPad(paden.prs);
  const std::filesystem::path rlt = VindPad(paden.rlt);
  std::error_code code;  // an absent file would be made
  if (!std::filesystem::exists(prs, code) || !std::filesystem::exists(rlt, code))
    return std::nullopt;
  Bestandenset bestanden;
  Volgers volgers;
  if (bestanden.Open(BestandSoort::Personen, prs) || bestanden.Open(BestandSoort::Relaties, rlt)) {
    return std::nullopt;
  }
  const Opslag opslag{bestanden, volgers, hoofd.gesprek, hoofd.schrijfwijze};
  PersoonLB77 persoon(opslag);
  RelatieLB77 relatie(opslag);
  return Telling{Aantal(persoon), Aantal(relatie)};
}

int Sets(const Omgeving& omgeving, const OpdrachtArgumenten&) {
  Sessie sessie(omgeving);
  return sessie.Voer([&](Werk&) {
    Hoofdmodule& hoofd = sessie.programma.Hoofd();
    const int aantal = hoofd.Ini.AantalBestandenSets();
    for (int i = 1; i <= aantal; ++i) {
      const std::string naam = hoofd.Ini.bestandenset(i);
      const std::string omschrijving = hoofd.Ini.BestandenSetOms(i);
      omgeving.uit << WindowsNaarUtf8(Links(naam, kSetNaam)) << "  ";
      if (!omschrijving.empty()) omgeving.uit << WindowsNaarUtf8(omschrijving) << "  ";
      if (const auto telling = Tel(hoofd, naam)) {
        omgeving.uit << GetalTekst(telling->personen) << " personen, "
                     << GetalTekst(telling->relaties) << " relaties\n";
      } else {
        omgeving.uit << "niet te openen\n";
      }
    }
  });
}

int Nieuw(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving);
  bool gemaakt = false;
  if (argumenten.woorden[0].size() > kSetNaam) {
    sessie.bediener.Mislukt("De naam van een bestandenset heeft hoogstens 8 tekens");
    return sessie.bediener.Status();
  }
  sessie.bediener.Bij("NieuweSet", [&](Formulier& form) {
    Werk werk(sessie.bediener, form);
    if (!werk.Zet("SetNaam", argumenten.woorden[0])) return;
    if (!werk.Zet("SetOmsch", argumenten.woorden[1])) return;
    werk.Druk("OKButton");
    gemaakt = form.Gesloten() && sessie.programma.Hoofd().SetActief();
  });
  return sessie.Voer([&](Werk& menu) {
    menu.Kies("MaakSet");
    if (!gemaakt) sessie.bediener.Mislukt("De bestandenset is niet gemaakt");
  });
}

int Importeer(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving);
  const ImpGedcom* import = nullptr;
  bool gelukt = false;
  sessie.bediener.Bij("ImpGedcom", [&](Formulier& form) {
    import = dynamic_cast<const ImpGedcom*>(&form);
    if (auto* veld = dynamic_cast<Padvak*>(form.Zoek("Bestandsnaam"))) {
      veld->ZetPad(argumenten.bestand);
    }
    Werk(sessie.bediener, form).Druk("OKButton");
    gelukt = import && import->Gelukt();
  });
  sessie.bediener.Bij("ToonTekst", [&](Formulier& form) {
    const auto* toon = dynamic_cast<ToonTekst*>(&form);
    // Behind a file that could not be opened the viewer has the log of another import.
    if (toon && import && import->Pass3box.Gekozen()) Druk(omgeving, toon->UitvoerPad());
  });
  return sessie.Voer([&](Werk& menu) {
    if (!sessie.OpenSet(menu, argumenten.woorden[0])) return;
    menu.Kies("ImportGedcom");
    if (!gelukt) sessie.bediener.Mislukt("Het bestand is niet ingelezen");
  });
}

// What tells one report command from another: the menu entry and the forms that it meets.
struct Rapport {
  std::string_view menuKeuze;
  std::string_view prompt;
  std::string_view param;
  std::string_view htmlParam;
};

constexpr Rapport kKwartierstaat{"TekstKwst", "KwstTxtPrs", "KwstTxtParam", "KwHTMLParam"};

void VulParam(Bediener& bediener, Formulier& form, const OpdrachtArgumenten& argumenten) {
  Werk werk(bediener, form);
  bool goed = werk.Zet("InHTMLBox", argumenten.html ? "Ja" : "Nee");
  for (const std::string& zet : argumenten.zet) {
    const std::size_t teken = zet.find('=');
    if (!werk.Zet(zet.substr(0, teken), zet.substr(teken + 1))) goed = false;
  }
  if (goed) werk.Druk("OKButton");
}

// The samples of the link dialog are for who sees it: here a link is told only when the settings
// have it.
void AanvaardLinks(Bediener& bediener, Formulier& form, const IniClass& ini) {
  struct LinkVeld {
    std::string_view veld;
    std::string_view tag;
  };
  constexpr LinkVeld kVelden[] = {{"EmailAdres", "Email"},
                                  {"EmailTekst", "EmailLabel"},
                                  {"HomePageURL", "HomePage"},
                                  {"URLTekstTekst", "HomePageLink"},
                                  {"URLLabelTekst", "HomePageLabel"}};
  Werk werk(bediener, form);
  for (const LinkVeld& veld : kVelden) {
    if (ini.IniWaarde("INTERNET", veld.tag).empty() && !werk.Zet(veld.veld, "")) return;
  }
  werk.Druk("OKButton");
}

int MaakRapport(const Rapport& rapport, const Omgeving& omgeving,
                const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving);
  Bediener& bediener = sessie.bediener;
  bool getoond = false;
  bediener.Bij(rapport.prompt, [&](Formulier& form) {
    Werk werk(bediener, form);
    if (werk.Zet("RecordNr", argumenten.woorden[1])) werk.Druk("OKButton");
  });
  bediener.Bij(rapport.param, [&](Formulier& form) { VulParam(bediener, form, argumenten); });
  bediener.Bij(rapport.htmlParam, [&](Formulier& form) {
    AanvaardLinks(bediener, form, sessie.programma.Hoofd().Ini);
  });
  bediener.Bij("ToonTekst", [&](Formulier& form) {
    const auto* toon = dynamic_cast<ToonTekst*>(&form);
    if (!toon) return;
    getoond = true;
    if (argumenten.naar) {
      Bewaar(bediener, toon->UitvoerPad(), *argumenten.naar);
    } else {
      Druk(omgeving, toon->UitvoerPad());
    }
  });
  return sessie.Voer([&](Werk& menu) {
    if (!sessie.OpenSet(menu, argumenten.woorden[0])) return;
    menu.Kies(rapport.menuKeuze);
    if (!getoond) bediener.Mislukt("Er is geen verslag gemaakt");
  });
}

int Kwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kKwartierstaat, omgeving, argumenten);
}

bool Bevat(std::string_view naam, std::string_view zoek) {
  return Hoofdletters(naam).find(zoek) != std::string::npos;
}

int Zoek(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving);
  const std::string zoek = Hoofdletters(argumenten.woorden[1]);
  return sessie.Voer([&](Werk& menu) {
    if (!sessie.OpenSet(menu, argumenten.woorden[0])) return;
    PersoonLB77& persoon = sessie.programma.Hoofd().Persoon;
    const int laatste = persoon.AantalRecords();
    for (int nr = 2; nr <= laatste; ++nr) {
      const auto recordNr = static_cast<std::int16_t>(nr);
      if (!persoon.Lees(recordNr) || persoon.IsVolgRecord()) continue;
      if (!Bevat(persoon.AchterNaamTrue(), zoek) && !Bevat(persoon.VoorNaamTrue(), zoek)) continue;
      omgeving.uit << Kolom(nr, 6, Richting::Rechts) << "  " << persoon.Periode(recordNr) << "  "
                   << WindowsNaarUtf8(persoon.NaamVoluit()) << '\n';
    }
  });
}

}  // namespace

const std::vector<Opdracht>& Opdrachten() {
  static const std::vector<Opdracht> kOpdrachten = {
      {"sets", "toont de bestandensets", {}, Extra::Geen, Sets},
      {"nieuw", "maakt een bestandenset", {"SET", "[OMSCHRIJVING]"}, Extra::Geen, Nieuw},
      {"importeer", "leest een GEDCOM-bestand in", {"SET"}, Extra::Bestand, Importeer},
      {"kwartierstaat",
       "schrijft de Kwartierstaat van een persoon",
       {"SET", "PERSOON"},
       Extra::Rapport,
       Kwartierstaat},
      {"zoek", "zoekt personen op een deel van hun naam", {"SET", "NAAM"}, Extra::Geen, Zoek},
  };
  return kOpdrachten;
}

}  // namespace lb77
