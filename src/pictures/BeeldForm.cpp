#include "pictures/BeeldForm.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <utility>

#include "app/Hoofdmodule.h"
#include "app/UitvoerNaam.h"
#include "forms/Toets.h"
#include "output/TekstOpslaan.h"
#include "output/Tekstpaginas.h"
#include "pictures/SvgSchrijver.h"
#include "store/StroomFout.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::array<std::string_view, 3> kKleuren{"Per generatie", "Per geslacht", "Zonder kleur"};
constexpr double kGrootstePdf = 14400;  // points: what readers of PDF promise to show
constexpr std::string_view kFilter = "SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf";

std::vector<std::string> Rijen(const std::array<std::string_view, 3>& namen) {
  std::vector<std::string> uit;
  for (const std::string_view naam : namen) {
    if (!naam.empty()) uit.emplace_back(naam);
  }
  return uit;
}

// Nothing to choose, nothing to see.
void Vul(Keuzevak& vak, std::vector<std::string> rijen, int index) {
  vak.ZetZichtbaar(rijen.size() > 1);
  vak.ZetRijen(std::move(rijen));
  vak.ZetIndex(index);
}

std::vector<std::string> Getallen(int tot) {
  std::vector<std::string> uit;
  for (int i = 1; i <= tot; ++i) uit.push_back(GetalTekst(i));
  return uit;
}

}  // namespace

const BeeldSoort kWaaierBeeld{
    "WaaierBeeld", "Waaier", "beelden", {"Halve cirkel", "Driekwart cirkel", "Hele cirkel"},
    kKleuren,      true,     true};
const BeeldSoort kKwartierBeeld{"KwartierBeeld",
                                "Stamboom van voorouders",
                                "beelden",
                                {"Naar rechts", "Omhoog", ""},
                                kKleuren,
                                true,
                                true};
const BeeldSoort kStamBeeld{"StamBeeld", "Stamboom van nakomelingen",
                            "beelden",   {"Naar rechts", "Omlaag", ""},
                            kKleuren,    false,
                            true};
const BeeldSoort kTijdBeeld{"TijdBeeld",
                            "Populatiegrafiek",
                            "beelden",
                            {"", "", ""},
                            {"In kleur", "Zonder kleur", ""},
                            false,
                            false};

BeeldForm::BeeldForm(const BeeldSoort& soort, Hoofdmodule& hoofd, int generaties, BeeldMaker maak,
                     const BeeldKeuzen& begin)
    : KetenFormulier(soort.naam, soort.titel, hoofd),
      soort_(soort),
      generaties_(generaties),
      maak_(std::move(maak)),
      begin_(begin) {
  ZetHulpOnderwerp(soort.hulp);
  ZetEersteVeld(Beeld);
  Beeld.BijToets([this](ToetsGebeurtenis& toets) { BeeldToets(toets); });
  Beeld.BijDubbelklik([this] { BeeldDubbelklik(); });
  for (Keuzevak* keuze :
       {&GeneratiesBox, &VormBox, &KleurBox, &NummerBox, static_cast<Keuzevak*>(&OokJaarBox)}) {
    keuze->BijWijziging([this] { KeuzeWijziging(); });
  }
  for (Keuzevak* papier : {&PapierBox, &StandBox, &VerdeelBox}) {
    papier->BijWijziging([this] { PapierWijziging(); });
  }
  KaartButton.BijKlik([this] { KaartButtonKlik(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void BeeldForm::BijLaden() {
  Vul(GeneratiesBox, Getallen(soort_.generaties ? generaties_ : 0),
      std::clamp(begin_.generaties, 1, std::max(generaties_, 1)) - 1);
  Vul(VormBox, Rijen(soort_.vormen), begin_.vorm);
  Vul(KleurBox, Rijen(soort_.kleuren), 0);
  NummerBox.ZetIndex(static_cast<int>(begin_.nummers));
  NummerBox.ZetZichtbaar(soort_.kwartieren);
  OokJaarBox.ZetJa(begin_.jaren);
  OokJaarBox.ZetZichtbaar(soort_.kwartieren);
  std::vector<std::string> maten;
  maten.reserve(kPapiermaten.size());
  for (const Papiermaat& maat : kPapiermaten) maten.emplace_back(maat.naam);
  Vul(PapierBox, std::move(maten), 0);
  StandBox.ZetIndex(1);
  VerdeelBox.ZetRijen({std::string("Op één vel"_w), "Ware grootte"});
  VerdeelBox.ZetIndex(0);
  KaartButton.ZetZichtbaar(soort_.generaties);
  Teken();
}

void BeeldForm::BijGesloten() {
  Hoofd().volgers.HuidigPersoonNr = 0;
}

BeeldKeuzen BeeldForm::Keuzen() const {
  return {std::max(GeneratiesBox.Index() + 1, 1), std::max(VormBox.Index(), 0),
          static_cast<Kleurwijze>(std::max(KleurBox.Index(), 0)),
          static_cast<Nummering>(NummerBox.Index()), OokJaarBox.Ja()};
}

void BeeldForm::Teken() {
  Beeld.ZetBeeld(maak_(Keuzen()));
  if (Beeld.Index() < 0) Beeld.ZetIndex(0);
  ToonVellen();
}

Vellen BeeldForm::MaakVellen() const {
  return VerdeelOverVellen(Beeld.Beeld(), kPapiermaten[static_cast<std::size_t>(PapierBox.Index())],
                           static_cast<Stand>(StandBox.Index()),
                           static_cast<Verdeling>(VerdeelBox.Index()));
}

static std::string InCentimeters(double punten) {
  return GetalTekst(std::llround(punten / 72 * 2.54));
}

// What the PDF will be, before it is made.
static std::string Vellentekst(const Vellen& vellen, bool eigenMaat) {
  const std::size_t aantal = vellen.vellen.size();
  if (aantal != 1) {
    return "Een PDF van " + GetalTekst(static_cast<std::int64_t>(aantal)) + " vellen papier (" +
           GetalTekst(vellen.kolommen) + " breed, " + GetalTekst(vellen.rijen) + " hoog)";
  }
  std::string uit = "Een PDF van 1 vel papier";
  if (!eigenMaat) return uit;
  uit += " van " + InCentimeters(vellen.breedte) + " bij " + InCentimeters(vellen.hoogte) + " cm";
  if (std::max(vellen.breedte, vellen.hoogte) > kGrootstePdf) {
    uit += ", groter dan de meeste programma's tonen";
  }
  return uit;
}

void BeeldForm::ToonVellen() {
  const bool eigenMaat = PapierBox.Index() + 1 == static_cast<int>(kPapiermaten.size());
  VellenLabel.ZetBijschrift(Vellentekst(MaakVellen(), eigenMaat));
}

void BeeldForm::KeuzeWijziging() {
  Teken();
}

void BeeldForm::PapierWijziging() {
  ToonVellen();
}

void BeeldForm::BeeldDubbelklik() {
  ToonKaart();
}

void BeeldForm::KaartButtonKlik() {
  ToonKaart();
}

void BeeldForm::BeeldToets(ToetsGebeurtenis& toets) {
  if (toets.code != toets::kEnter && toets.code != toets::kNumEnter) return;
  toets.verwerkt = true;
  ToonKaart();
}

// What is told of somebody may have changed meanwhile.
void BeeldForm::ToonKaart() {
  const std::int16_t nr = Beeld.GekozenNr();
  if (nr <= 0) return;
  ToonPersoonskaart(nr);
  Teken();
}

std::filesystem::path BeeldForm::Pad() const {
  return Hoofd().Ini.TempDir() / "BEELD.TMP";
}

bool BeeldForm::MaakBestand() {
  errno = 0;
  std::ofstream uit(Pad(), std::ios::binary);
  uit << SvgVan(Beeld.Beeld());
  uit.close();
  if (uit) return true;
  Hoofd().gesprek.Fout("Fout bij het schrijven van " + PadTekst(Pad()) + "\n" +
                       FoutVanStroom(Pad()).tekst);
  return false;
}

std::optional<std::string> BeeldForm::BewaarSvg(const std::filesystem::path& naar) const {
  const SysteemFout fout = KopieerTekst(Pad(), naar);
  return fout ? std::optional(fout.tekst) : std::nullopt;
}

void BeeldForm::OKButtonKlik() {
  if (!MaakBestand()) return;
  Gesprek& gesprek = Hoofd().gesprek;
  const BestandsVraag vraag{BestandsWijze::Opslaan, std::string(kFilter), Hoofd().Ini.TekstDir()};
  auto naar = VraagOpslag(gesprek, vraag, Opslagnaam(Beeld.Beeld().titel, ".svg"));
  if (!naar) return;
  if (!naar->has_extension()) *naar += ".svg";
  const bool pdf = Hoofdletters(PadTekst(naar->extension())) == ".PDF";
  const Beschermd beschermd{Hoofd().programmaMap, Hoofd().Ini, Hoofd().ActieveSetNaam};
  const auto fout = beschermd.Bevat(*naar) ? std::optional(FoutInGebruik().tekst)
                    : pdf                  ? gesprek.MaakPdf(*naar, Beeld.Beeld(), MaakVellen())
                                           : BewaarSvg(*naar);
  if (fout) return gesprek.Fout("Fout bij het opslaan van het beeld.\n" + *fout);
  gesprek.Informeer("Het beeld is opgeslagen.");
}

}  // namespace lb77
