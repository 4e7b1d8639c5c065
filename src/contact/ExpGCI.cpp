#include "contact/ExpGCI.h"

#include <cstddef>
#include <set>
#include <utility>

#include "contact/ExpGCICorr.h"
#include "contact/ExpGCIParam.h"
#include "contact/GciNamen.h"
#include "contact/GciOrde.h"
#include "entry/VolgersBewaker.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::string_view kAfgebroken = "Verwerking afgebroken.";
constexpr std::string_view kGeenReeksen = "Geen reeksen gevonden.";

std::string Tel(std::size_t aantal) {
  return GetalTekst(static_cast<std::int64_t>(aantal));
}

}  // namespace

ExpGCI::ExpGCI(Hoofdmodule& hoofd, const GciOpties& opties)
    : WerkFormulier("ExpGCI", "Exporteer in HSK Contactdienst formaat (GCI)", hoofd),
      opties_(opties),
      paden_(GciPaden::In(hoofd.Ini.TekstDir())) {
  ZetHulpOnderwerp("contactdienst");
  KoppelTerug(BackButton);
}

void ExpGCI::BijLaden() {
  gangen_.Rust();
}

void ExpGCI::ToonGang(int nummer) {
  gangen_.Toon(nummer);
  Ververs();
}

void ExpGCI::Werk() {
  const VolgersBewaker bewaker(Hoofd().volgers);
  verslag_.begin = Hoofd().klok.Nu();
  const Afloop afloop = Exporteer();
  if (afloop != Afloop::Mislukt) SluitAf(afloop);
  Sluit();
}

ExpGCI::Afloop ExpGCI::Exporteer() {
  Afloop afloop = LeesTabellen();
  if (afloop == Afloop::Klaar) afloop = BepaalReeksen();
  return afloop == Afloop::Klaar ? SchrijfBestanden() : afloop;
}

ExpGCI::Afloop ExpGCI::LeesTabellen() {
  std::vector<std::string> rijen;
  Afloop afloop = LeesTabel(1, {kGciPlaatsenBestand, PlaatsenGedaan}, rijen);
  if (afloop != Afloop::Klaar) return afloop;
  tabellen_.plaatsen = GciPlaatsen(std::move(rijen));
  afloop = LeesTabel(2, {kGciProvinciesBestand, ProvinciesGedaan}, rijen);
  if (afloop != Afloop::Klaar) return afloop;
  tabellen_.provincies = GciProvincies(rijen);
  afloop = LeesTabel(3, {kGciLandenBestand, LandenGedaan}, rijen);
  if (afloop != Afloop::Klaar) return afloop;
  tabellen_.landen = GciLanden(rijen);
  return Afloop::Klaar;
}

ExpGCI::Afloop ExpGCI::LeesTabel(int gang, const Tabel& tabel, std::vector<std::string>& rijen) {
  ToonGang(gang);
  const auto verder = [&](int aantal) {
    tabel.teller.ZetTekst(GetalTekst(aantal));
    Ververs();
    return !Afbreken();
  };
  Hoofdmodule& hoofd = Hoofd();
  const auto map = hoofd.programmaMap / hoofd.Ini.IniPad("GCI", "Data");
  switch (LeesGciBestand(tabel.bestand, map, hoofd.gesprek, verder, rijen)) {
    case GciLezing::Gelezen:
      return Afloop::Klaar;
    case GciLezing::Mislukt:
      return Afloop::Mislukt;
    case GciLezing::Gestopt:
      break;
  }
  return Afloop::Afgebroken;
}

ExpGCI::Afloop ExpGCI::BepaalReeksen() {
  ToonGang(4);
  Afloop afloop = Scan();
  if (afloop != Afloop::Klaar) return afloop;
  if (!SplitsNamen(reeksen_)) return TeVeel(kTeVeelReeksen);
  // A name stands in as many series as it has places and years.
  std::set<std::string> gemeld;
  const auto ongeldig = [&](const std::string& naam) {
    if (!gemeld.insert(naam).second) return;
    const std::string welke = naam + " (oneven aantal haakjes)";
    verslag_.namen.push_back(welke);
    Hoofd().gesprek.Waarschuw("Ongeldige naam: " + welke);
  };
  if (!LosHaakjesOp(reeksen_, ongeldig)) return TeVeel(kTeVeelReeksen);
  afloop = ZoekPlaatsen();
  if (afloop != Afloop::Klaar) return afloop;
  OrdenReeksen(reeksen_, tabellen_.plaatsen);
  if (!VoegReeksenSamen(reeksen_, opties_.maxGat)) return TeVeel(kTeVeelPersonen);
  ZeefReeksen(reeksen_, opties_);
  ZetHoofdletters(reeksen_);
  return reeksen_.empty() ? Afloop::GeenReeksen : Afloop::Klaar;
}

ExpGCI::Afloop ExpGCI::Scan() {
  GciReeksen reeksen;
  const Verloop verloop{[this] { return Afbreken(); },
                        [this](int personen, int aantal) {
                          PersonenGedaan.ZetTekst(GetalTekst(personen));
                          ReeksenGedaan.ZetTekst(GetalTekst(aantal));
                          Ververs();
                        }};
  GciScan scan(Hoofd().Persoon, Hoofd().Relatie, reeksen, opties_.gebPlaatsKind,
               [this](const std::string& naam) { return Keur(naam); });
  const Uitslag uitslag = scan.Voer(verloop);
  if (uitslag == Einde::Afgebroken) return Afloop::Afgebroken;
  if (uitslag == Einde::Vol) return TeVeel(kTeVeelReeksen);
  MeldGestopt(scan.GestoptBij());
  reeksen_ = reeksen.Neem();
  return Afloop::Klaar;
}

void ExpGCI::MeldGestopt(std::int16_t nr) {
  if (nr == 0 || !LigtErMeer(Hoofd().bestanden.Bestand(BestandSoort::Personen), nr)) return;
  verslag_.gestopt = "gestopt bij persoonsrecord " + GetalTekst(nr) +
                     "; de personen daarachter zijn niet meegenomen";
  Hoofd().gesprek.Waarschuw("LET OP: " + verslag_.gestopt);
}

NaamOordeel ExpGCI::Keur(const std::string& naam) {
  const auto teken = OngeldigTeken(naam);
  if (!teken) return NaamOordeel::Goed;
  const std::string vraag = std::string("Ongeldig teken ") + *teken + " in achternaam: " + naam +
                            "\nAchternaam wordt overgeslagen.";
  if (Hoofd().gesprek.Bericht(BerichtSoort::Uitroep, Knoppen::OKAnnuleren, vraag) != Antwoord::OK) {
    return NaamOordeel::Afbreken;
  }
  verslag_.namen.push_back(naam);
  return NaamOordeel::Overslaan;
}

ExpGCI::Afloop ExpGCI::ZoekPlaatsen() {
  GciPlaatsToets toets(tabellen_, Hoofd().Plaats, Hoofd().gesprek,
                       [this](const GciPlaats& plaats) { return Corrigeer(plaats); });
  if (opties_.neemEnige) toets.NeemEnige();
  Afloop afloop = Afloop::Klaar;
  std::size_t gedaan = 0;
  for (GciReeks& reeks : reeksen_) {
    if (Afbreken()) afloop = Afloop::Afgebroken;
    if (afloop != Afloop::Klaar) break;
    reeks.plaats = toets.Rij(reeks.plaats);
    if (reeks.plaats == GciPlaatsToets::kAfbreken) afloop = Afloop::Afgebroken;
    ReeksenGedaan.ZetTekst(Tel(++gedaan));
    Ververs();
  }
  verslag_.plaatsen = toets.Overgeslagen();
  std::erase_if(reeksen_,
                [](const GciReeks& reeks) { return reeks.plaats == GciPlaatsToets::kWeglaten; });
  return afloop;
}

std::int16_t ExpGCI::Corrigeer(const GciPlaats& plaats) {
  ExpGCICorr form(Hoofd().gesprek, tabellen_, plaats);
  ZetBezig(false);
  Hoofd().gesprek.ToonModaal(form);
  ZetBezig(true);
  return form.Gekozen();
}

ExpGCI::Afloop ExpGCI::TeVeel(std::string_view melding) {
  Hoofd().gesprek.Fout(melding);
  verslag_.reden = std::string(melding) + "\n" + std::string(kAfgebroken);
  return Afloop::Verteld;
}

GciInzender ExpGCI::Inzender() const {
  const IniClass& ini = Hoofd().Ini;
  const auto eigen = [&](std::string_view tag) { return ini.IniWaarde("Gebruiker", tag); };
  return {eigen("Lidnr"),    eigen("Naam"),   eigen("Voornaam"), opties_.geslacht, eigen("Adres"),
          eigen("Postcode"), eigen("Plaats"), eigen("Land"),     opties_.email};
}

// Nothing when the user stopped it.
std::optional<std::string> ExpGCI::MaakFam(std::string_view lidnr) {
  std::string fam;
  std::size_t namen = 0;
  for (std::size_t i = 0; i < reeksen_.size(); ++i) {
    if (Afbreken()) return std::nullopt;
    fam += FamRegel(reeksen_[i], tabellen_.plaatsen, lidnr) + "\r\n";
    if (i == 0 || reeksen_[i].naam != reeksen_[i - 1].naam) ++namen;
    ReeksenGedaan.ZetTekst(Tel(i + 1));
    NamenGedaan.ZetTekst(Tel(namen));
    Ververs();
  }
  return fam;
}

ExpGCI::Afloop ExpGCI::SchrijfBestanden() {
  ToonGang(5);
  const GciInzender inzender = Inzender();
  const auto fam = MaakFam(inzender.lidnr);
  if (!fam) return Afloop::Afgebroken;
  Bestandswerk werk;
  const auto melding = SchrijfContact(paden_, InzRegel(inzender) + "\r\n", *fam, werk);
  if (!melding) return Afloop::Klaar;
  Hoofd().gesprek.Fout(*melding);
  verslag_.reden = *melding;
  return Afloop::Verteld;
}

// The log is written and shown however the run ended.
void ExpGCI::SluitAf(Afloop afloop) {
  ToonGang(6);
  verslag_.reeksen = reeksen_.size();
  gelukt_ = afloop == Afloop::Klaar;
  if (afloop == Afloop::Afgebroken) verslag_.reden = kAfgebroken;
  if (afloop == Afloop::GeenReeksen) verslag_.reden = kGeenReeksen;
  Bestandswerk werk;
  const auto melding = SchrijfLog(paden_, LogTekst(verslag_, paden_), werk);
  Pass6.Klaar.Zet(true);
  gangen_.Rust();
  ZetBezig(false);
  if (gelukt_) {
    Hoofd().gesprek.Informeer("Export voltooid");
  } else if (afloop != Afloop::Verteld) {
    Hoofd().gesprek.Waarschuw(verslag_.reden + "\n" + std::string(kGeenBestanden));
  }
  if (melding) {
    Hoofd().gesprek.Fout(*melding);
  } else {
    ToonTekstbestand(paden_.log, "Exporteren - Resultaat", false);
  }
}

bool ExporteerContact(Hoofdmodule& hoofd, GciOpties opties) {
  hoofd.volgers.HuidigPersoonNr = -1;
  ExpGCIParam vraag(hoofd, opties);
  hoofd.gesprek.ToonModaal(vraag);
  if (!vraag.Gekozen()) return false;
  ExpGCI werk(hoofd, opties);
  hoofd.gesprek.ToonModaal(werk);
  return werk.Gelukt();
}

}  // namespace lb77
