#include "descendants/GenSchrijver.h"

#include <algorithm>
#include <cstdlib>

#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"
#include "store/Codes.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

// Labels are right-aligned in eight columns; the text hangs at column 10.
constexpr int kLabelBreedte = 8;
constexpr int kTekstKolom = 10;
// The number of a child stands two columns further, his text three more.
constexpr int kKindMarge = 2;
constexpr int kKindTekst = 3;
constexpr std::size_t kKindNummer = 2;

// The rubrics of a relation as a whole; what lies below belongs to its events.
constexpr int kGebeurtenisRubrieken = 255;

bool HeeftKind(const Kindtab& kinderen) {
  return std::any_of(kinderen.begin() + 1, kinderen.end(), [](std::int16_t nr) { return nr > 0; });
}

std::string_view Kinderkop(const GezinBlik& gezin) {
  if (gezin.partner == 0) return "Kinderen:";
  return gezin.verbintenis.bond.empty() ? "Uit dit huwelijk:" : "Uit deze relatie:";
}

}  // namespace

GenSchrijver::GenSchrijver(const GenTabel& tabel, const GenOpties& opties, const Gegevens& bronnen,
                           const ZinOpties& zinOpties, TekstSchrijver& uit, const Verloop& verloop)
    : tabel_(tabel),
      opties_(opties),
      bronnen_(bronnen),
      verteller_(bronnen, uit, zinOpties),
      uit_(uit),
      verloop_(verloop) {}

Uitslag GenSchrijver::Schrijf() {
  const PersoonLB77& persoon = bronnen_.persoon;
  if (!verteller_.LeesPersoon(opties_.GenStamouderNr)) return verteller_.Fout();
  uit_.ZetMarge(true, 0);
  if (opties_.GenInHTML) {
    SchrijfHTMLKop(uit_, opties_.teksten, "Genealogie", persoon.VoorNaamTrue(),
                   persoon.AchterNaamTrue());
  }
  SchrijfTitelInTekst(uit_, opties_.teksten);
  if (!SchrijfStamouder()) return verteller_.Fout();
  int aantal = 1;
  for (int i = Volgende(0); i > 0; i = Volgende(i)) {
    if (verloop_.afbreken()) return Einde::Afgebroken;
    verloop_.toon(tabel_.Persoon(i), ++aantal);
    if (!SchrijfHoofdpersoon(i)) return verteller_.Fout();
  }
  SchrijfSlot(uit_, opties_.teksten);
  return Einde::Klaar;
}

// The entry behind `i`; 0 behind the last.
int GenSchrijver::Volgende(int i) const {
  if (!opties_.GenPerGeneratie) return tabel_.VolgendeInTak(i);
  return i + 1 < tabel_.GenAantal() ? i + 1 : 0;
}

void GenSchrijver::SchrijfGeneratieKop() {
  if (huidigeGen_ > 1) uit_.LegeRegel();
  uit_.LegeRegel();
  uit_.Tag("<HR><H4>");
  SchrijfGeneratie(uit_, huidigeGen_, 1, tabel_.LaatsteGeneratie());
}

void GenSchrijver::SchrijfKop(const std::string& label) {
  const std::string kop = label + ".";
  const int lengte = static_cast<int>(kop.size());
  uit_.EindeRegel();
  uit_.ZetMarge(true, std::max(kLabelBreedte - lengte, 0));
  uit_.Vast(kop);
  uit_.ZetMarge(true, lengte >= kLabelBreedte ? lengte + 2 : kTekstKolom);
  uit_.Tag(Anker(label));
}

// A label; in HTML the way to its entry.
std::string GenSchrijver::MetLink(const std::string& label) const {
  return uit_.InHTML() ? VerwijzingNaar(label, label) : label;
}

bool GenSchrijver::SchrijfStamouder() {
  const std::int16_t nr = opties_.GenStamouderNr;
  verloop_.toon(nr, 1);
  if (opties_.GenPerGeneratie) SchrijfGeneratieKop();
  SchrijfKop(tabel_.Label(0));
  if (!verteller_.SchrijfPersoon(nr)) return false;
  const PersoonBlik stamouder = BlikVan(bronnen_.persoon, nr);
  if (!SchrijfOuders()) return false;
  verteller_.SchrijfAlgemeneOpm(stamouder.opmRecord, stamouder.opmCode, kRubriekPersoon);
  if (!SchrijfGezinnen(nr, Van::Hoofdpersoon)) return false;
  uit_.VolleRegel(".");
  return true;
}

// The parents of the person in the buffer.
bool GenSchrijver::SchrijfOuders() {
  const std::int16_t ouders = bronnen_.persoon.RelNrOuders();
  const bool isMan = IsCode(bronnen_.persoon.Geslacht(), geslacht::kMan);
  return ouders <= 0 || verteller_.SchrijfOuders(isMan ? 1 : 0, ouders);
}

bool GenSchrijver::SchrijfHoofdpersoon(int i) {
  if (opties_.GenPerGeneratie && tabel_.Generatie(i) != huidigeGen_) {
    uit_.ZetMarge(true, 0);
    huidigeGen_ = tabel_.Generatie(i);
    SchrijfGeneratieKop();
  }
  uit_.ZetMarge(true, 0);
  uit_.TagRegel("<BR>");
  if (!opties_.GenPerGeneratie) uit_.LegeRegel();
  SchrijfKop(tabel_.Label(i));
  if (opties_.GenVerwijzing) SchrijfVerwijzing(i);
  return SchrijfVerhaal(i);
}

// The parent through whom the person was found.
void GenSchrijver::SchrijfVerwijzing(int i) {
  const std::string ouder = tabel_.Label(tabel_.GenOuderIndex(i));
  const std::string code = tabel_.IsMan(i) ? "zn." : tabel_.IsVrouw(i) ? "dr." : "k.";
  uit_.Vast("(" + code + " van " + MetLink(ouder) + ") ");
}

bool GenSchrijver::SchrijfVerhaal(int i) {
  const std::int16_t nr = tabel_.Persoon(i);
  if (!verteller_.SchrijfPersoon(nr)) return false;
  verteller_.SchrijfAlgemeneOpm(bronnen_.persoon.OpmRecord(), bronnen_.persoon.OpmCode(),
                                kRubriekPersoon);
  if (tabel_.IsHerhaling(i)) {
    uit_.TekstUit("= " + tabel_.Label(-tabel_.GenPersoon(i)) + ".", true, false);
    return true;
  }
  if (!SchrijfGezinnen(nr, Van::Hoofdpersoon)) return false;
  uit_.VolleRegel(".");
  return true;
}

// Ends so many lines; in HTML a break stands for them.
void GenSchrijver::BreekAf(int regels) {
  uit_.TagRegel("<BR>");
  for (int i = 0; i < regels && !uit_.InHTML(); ++i) uit_.EindeRegel();
}

// Whoever has several relations has his name again at the head of each.
bool GenSchrijver::SchrijfGezinnen(std::int16_t nr, Van van) {
  if (!verteller_.LeesPersoon(nr)) return false;
  const std::string naam = verteller_.Gecodeerd(Trim(bronnen_.persoon.NaamVoluit()));
  const auto gezinnen = LeesGezinnen(bronnen_.persoon, bronnen_.relatie, nr);
  if (!gezinnen) return verteller_.LeesPersoon(nr);
  bool eerste = true;
  for (const GezinBlik& gezin : gezinnen->lijst) {
    if (!verteller_.LeesRelatie(gezin.relNr)) return false;
    const Kindtab kinderen =
        van == Van::Hoofdpersoon ? LeesKinderen(bronnen_.relatie, gezin.relNr).plaatsen : Kindtab{};
    const bool metIemand = gezin.partner != 0 || HeeftKind(kinderen);
    if ((van == Van::Hoofdpersoon && metIemand) || !eerste) {
      BreekAf(2);
      uit_.Vast(naam);
    }
    if (!SchrijfGezin(gezin, kinderen, van)) return false;
    eerste = false;
  }
  return true;
}

bool GenSchrijver::SchrijfGezin(const GezinBlik& gezin, const Kindtab& kinderen, Van van) {
  if (gezin.partner != 0) {
    if (!SchrijfPartner(gezin, van)) return false;
  } else {
    uit_.Tekst(gezin.volgNr == 1 ? "tr." : "tr.(" + GetalTekst(gezin.volgNr) + ")");
  }
  if (HeeftKind(kinderen)) {
    uit_.EindeRegel();
    uit_.Vast(Kinderkop(gezin));
    if (!SchrijfKinderen(kinderen)) return false;
  }
  SchrijfRelatieOpm(gezin);
  return true;
}

bool GenSchrijver::SchrijfPartner(const GezinBlik& gezin, Van van) {
  if (!verteller_.SchrijfRelatie(gezin.relNr, gezin.volgNr)) return false;
  uit_.Tekst(" ");
  if (!verteller_.SchrijfPersoon(gezin.partner)) return false;
  return van == Van::Kind || SchrijfOuders();
}

// kept: the line ends also where no remark is meant for this report.
void GenSchrijver::SchrijfRelatieOpm(const GezinBlik& gezin) {
  if (!verteller_.Opties().ookOpm || std::abs(int{gezin.opmCode}) <= kGebeurtenisRubrieken) return;
  BreekAf(1);
  verteller_.SchrijfRubriekOpm(gezin.opmRecord, gezin.opmCode, kRubriekRelatie, true);
}

bool GenSchrijver::SchrijfKinderen(const Kindtab& kinderen) {
  uit_.ZetMarge(false, kKindMarge);
  uit_.Tag("<OL>");
  for (std::size_t plaats = 1; plaats < kinderen.size(); ++plaats) {
    if (kinderen[plaats] > 0 && !SchrijfKind(static_cast<int>(plaats), kinderen[plaats])) {
      return false;
    }
  }
  uit_.Tag("</OL>");
  uit_.ZetMarge(false, -kKindMarge);
  return true;
}

// A child's own remarks are told at his entry; those of his relations here when he has none.
bool GenSchrijver::SchrijfKind(int plaats, std::int16_t kind) {
  const bool ookOpm = verteller_.Opties().ookOpm;
  uit_.EindeRegel();
  if (uit_.InHTML()) {
    uit_.Vast("<LI>");
  } else {
    uit_.Vast(Rechts(GetalTekst(plaats), kKindNummer) + ". ");
  }
  uit_.ZetMarge(false, kKindTekst);
  verteller_.ZetOokOpm(false);
  const bool geschreven = verteller_.SchrijfPersoon(kind);
  verteller_.ZetOokOpm(ookOpm);
  if (!geschreven) return false;
  if (const int i = tabel_.Vind(kind); i >= 0) {
    uit_.Vast(", volgt " + MetLink(tabel_.Label(i)));
  } else if (!SchrijfGezinnen(kind, Van::Kind)) {
    return false;
  }
  uit_.ZetMarge(false, -kKindTekst);
  return true;
}

}  // namespace lb77
