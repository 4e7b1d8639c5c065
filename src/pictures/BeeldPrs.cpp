#include "pictures/BeeldPrs.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>

#include "ancestors/KwstBereken.h"
#include "ancestors/KwstSchParam.h"
#include "app/Hoofdmodule.h"
#include "descendants/GenBereken.h"
#include "descendants/GenPrs.h"
#include "descendants/GenSchParam.h"
#include "pictures/Boombeeld.h"
#include "pictures/Waaier.h"
#include "reporting/RecordGang.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kVraagProband = "Geef het Persoonsnummer van de Proband";
constexpr std::string_view kVraagStamouder = "Geef het Persoonsnummer van de Stamouder";
constexpr std::array<double, 3> kSpannen{180, 270, 360};

// The choices of a form have as many values as the table that they stand for.
template <class T, std::size_t N>
T Keuze(const std::array<T, N>& tabel, int index) {
  return tabel[static_cast<std::size_t>(index)];
}

Tekening TekenWaaier(const BeeldPersonen& personen, const BeeldKeuzen& keuzen,
                     const std::string& titel) {
  return MaakWaaier(personen, {Keuze(kSpannen, keuzen.vorm), keuzen.kleuren, titel},
                    Helveticamaat());
}

Tekening TekenKwartierboom(const BeeldPersonen& personen, const BeeldKeuzen& keuzen,
                           const std::string& titel) {
  constexpr std::array kRichtingen{Groei::Rechts, Groei::Omhoog};
  return MaakBoom(personen, {Keuze(kRichtingen, keuzen.vorm), keuzen.kleuren, titel},
                  Helveticamaat());
}

Tekening TekenStamboom(const BeeldPersonen& personen, const BeeldKeuzen& keuzen,
                       const std::string& titel) {
  constexpr std::array kRichtingen{Groei::Rechts, Groei::Omlaag};
  return MaakBoom(personen, {Keuze(kRichtingen, keuzen.vorm), keuzen.kleuren, titel},
                  Helveticamaat());
}

// The user's own title, if he gave one.
std::string BeeldTitel(const PaginaTeksten& eigen, std::string_view wat, PersoonLB77& persoon,
                       std::int16_t nr) {
  if (!eigen.titel.empty()) return eigen.titel;
  return std::string(wat) + (persoon.Lees(nr) ? persoon.NaamVoluit() : std::string());
}

constexpr BerekenSoort kTijdBereken{"TijdBereken",
                                    "Opbouwen Populatiegrafiek",
                                    "Opbouwen van de populatiegrafiek.",
                                    {"Nazaten", "NazatenLabel", "Aantal nazaten:"},
                                    ""};

}  // namespace

const KwartierPrsSoort kWaaierPrs{
    {"WaaierPrs", "Waaier", kVraagProband}, kWaaierBeeld, 1, TekenWaaier};
const KwartierPrsSoort kKwartierPrs{{"KwartierPrs", "Stamboom van voorouders", kVraagProband},
                                    kKwartierBeeld,
                                    0,
                                    TekenKwartierboom};

KwartierBeeldPrs::KwartierBeeldPrs(const KwartierPrsSoort& soort, Hoofdmodule& hoofd)
    : PersoonPrompt(soort.prompt, hoofd), soort_(soort) {
  ZetHulpOnderwerp("beelden");
}

// Columns of characters, and what stands around a text, are no matter of a drawing.
static void VerbergTekstkeuzen(TitelVelden& titels) {
  for (Bediening* een :
       {static_cast<Bediening*>(&titels.Inleiding1), static_cast<Bediening*>(&titels.Inleiding2),
        static_cast<Bediening*>(&titels.Inleiding3), static_cast<Bediening*>(&titels.CopyrightBox),
        static_cast<Bediening*>(&titels.OokLB77Box)}) {
    een->ZetZichtbaar(false);
  }
}

static std::unique_ptr<KwstSchParam> VraagOpties(Hoofdmodule& hoofd, KwstOpties& opties) {
  auto uit = std::make_unique<KwstSchParam>(hoofd, opties);
  // Numbers and years are chosen beside the picture.
  for (Bediening* een :
       {static_cast<Bediening*>(&uit->BreedteGen), static_cast<Bediening*>(&uit->UitlijnBox),
        static_cast<Bediening*>(&uit->InHTMLBox), static_cast<Bediening*>(&uit->OokNrsBox),
        static_cast<Bediening*>(&uit->OokJaarBox)}) {
    een->ZetZichtbaar(false);
  }
  VerbergTekstkeuzen(uit->Titels);
  return uit;
}

// What the options of the chart say of a picture. A proband with a number of his own is shown with it.
static BeeldKeuzen BeginKeuzen(const KwstOpties& opties, int vorm) {
  BeeldKeuzen uit;
  uit.generaties = opties.KwMaxGen - opties.KwBeginNr.Generatie() + 1;
  uit.vorm = vorm;
  if (opties.KwBeginNr.Generatie() > 1) uit.nummers = Nummering::Kwartier;
  return uit;
}

void KwartierBeeldPrs::Keten(std::int16_t persoonNr) {
  Hoofdmodule& hoofd = Hoofd();
  KwstOpties opties;
  opties.KwProbandNr = persoonNr;
  Stap(std::move(*VraagOpties(hoofd, opties)));
  const BeeldKeuzen begin = BeginKeuzen(opties, soort_.vorm);
  opties.KwMaxGen = kMaxWaaierGen + opties.KwBeginNr.Generatie() - 1;
  opties.KwVolgHerh = true;
  KwstTabel tabel;
  Verberg();
  Stap(KwstBereken(hoofd, opties, tabel));
  if (!GaatDoor()) return;
  const auto maak = [&](const BeeldKeuzen& keuzen) {
    const KwartierKeuzen lees{keuzen.generaties, keuzen.nummers, keuzen.jaren};
    return soort_.teken(LeesKwartieren(tabel, lees, hoofd.MaakGegevens()), keuzen,
                        BeeldTitel(opties.teksten, "Kwartierstaat van ", hoofd.Persoon, persoonNr));
  };
  const int generaties = tabel.Generatie(tabel.KwstAantal() - 1) + 1;
  Stap(BeeldForm(soort_.beeld, hoofd, generaties, maak, begin));
}

StamBeeldPrs::StamBeeldPrs(Hoofdmodule& hoofd)
    : PersoonPrompt({"StamPrs", "Stamboom van nakomelingen", kVraagStamouder}, hoofd) {
  ZetHulpOnderwerp("beelden");
}

void StamBeeldPrs::Keten(std::int16_t persoonNr) {
  Hoofdmodule& hoofd = Hoofd();
  GenRun run;
  run.opties.GenStamouderNr = persoonNr;
  GenSchParam opties(hoofd, run.opties);
  opties.InHTMLBox.ZetZichtbaar(false);  // a picture is no page
  VerbergTekstkeuzen(opties.Titels);
  Stap(std::move(opties));
  if (run.opties.GenUitsluiten) Stap(GenUitsluit(kGenSchUitsluit, hoofd, run.opties));
  Verberg();
  Stap(GenBereken(hoofd, run.opties, run.tabel));
  if (!GaatDoor()) return;
  const auto maak = [&](const BeeldKeuzen& keuzen) {
    return TekenStamboom(
        LeesStam(run.tabel, run.opties, keuzen.generaties, hoofd.MaakGegevens()), keuzen,
        BeeldTitel(run.opties.teksten, "Nakomelingen van ", hoofd.Persoon, persoonNr));
  };
  BeeldKeuzen begin;
  begin.generaties = run.tabel.LaatsteGeneratie();
  begin.vorm = run.opties.GenVertikaal ? 1 : 0;
  Stap(BeeldForm(kStamBeeld, hoofd, run.tabel.LaatsteGeneratie(), maak, begin));
}

TijdBeeldPrs::TijdBeeldPrs(Hoofdmodule& hoofd)
    : PersoonPrompt({"TijdPrs", "Populatiegrafiek", kVraagStamouder}, hoofd) {
  ZetHulpOnderwerp("beelden");
}

void TijdBeeldPrs::Keten(std::int16_t persoonNr) {
  Hoofdmodule& hoofd = Hoofd();
  Tijdbalk tijdbalk;
  Verberg();
  Stap(TijdBereken(hoofd, persoonNr, tijdbalk));
  if (!GaatDoor()) return;
  const std::string titel = BeeldTitel({}, "Nakomelingen van ", hoofd.Persoon, persoonNr);
  Stap(BeeldForm(kTijdBeeld, hoofd, 0, [&](const BeeldKeuzen& keuzen) {
    return TekenTijdbalk(tijdbalk, keuzen, titel);
  }));
}

TijdBereken::TijdBereken(Hoofdmodule& hoofd, std::int16_t stamouder, Tijdbalk& tijdbalk)
    : BerekenForm(kTijdBereken, hoofd,
                  [&hoofd, stamouder, &tijdbalk](const Verloop& verloop) -> Uitslag {
                    if (!LeesHoofdrecord(hoofd.Persoon, stamouder)) {
                      return Leesfout{BestandSoort::Personen, stamouder};
                    }
                    RecordBron bron(hoofd.MaakOpslag());
                    const bool heel = TelTijdbalk(stamouder, bron, verloop, tijdbalk);
                    hoofd.volgers.HuidigPersoonNr = 0;
                    return heel ? Einde::Klaar : Einde::Afgebroken;
                  },
                  {}) {
  ZetHulpOnderwerp("beelden");
}

Tekening TekenTijdbalk(const Tijdbalk& tijdbalk, const BeeldKeuzen& keuzen,
                       const std::string& titel) {
  const std::int64_t aantal = tijdbalk.afstammelingen;
  return MaakTijdbeeld(
      StavenVan(tijdbalk),
      {keuzen.kleuren == Kleurwijze::Generatie, titel,
       "Totaal: " + GetalTekst(aantal) + (aantal == 1 ? " afstammeling" : " afstammelingen")},
      Helveticamaat());
}

}  // namespace lb77
