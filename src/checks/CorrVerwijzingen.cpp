#include "checks/CorrVerwijzingen.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "app/NietVeilig.h"
#include "checks/CorrNamen.h"
#include "checks/LaatsteRecord.h"
#include "forms/Rijnaam.h"
#include "store/Handeling.h"
#include "store/PersoonVelden.h"
#include "store/RelatieVelden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr BestandSoort kPersonen = BestandSoort::Personen;
constexpr BestandSoort kRelaties = BestandSoort::Relaties;
constexpr std::string_view kPijl = ">> ";

constexpr CorrVerwijzing kPersoonKoppen[] = {
    {"RelNrOuders", "Relatie van de ouders:", persoonveld::RelNrOuders, kRelaties},
};
constexpr CorrVerwijzing kRelatieKoppen[] = {
    {"PersNrMan", "Man:", relatieveld::ManNr, kPersonen},
    {"PersNrVrouw", "Vrouw:", relatieveld::VrouwNr, kPersonen},
};
// A continuation record names its owner where others have a year.
constexpr CorrVerwijzing kPersoonVervolgKoppen[] = {
    {"HoortBijTekst", "Hoort bij persoon", persoonveld::GebJaar, kPersonen},
};
constexpr CorrVerwijzing kRelatieVervolgKoppen[] = {
    {"HoortBijTekst", "Hoort bij relatie", relatieveld::WetHuwJaar, kRelaties},
};

constexpr Veld kRelatieVelden[] = {persoonveld::relatie1, persoonveld::relatie2,
                                   persoonveld::relatie3};
constexpr Veld kKindVelden[] = {relatieveld::Kind1,  relatieveld::Kind2,  relatieveld::Kind3,
                                relatieveld::Kind4,  relatieveld::Kind5,  relatieveld::Kind6,
                                relatieveld::Kind7,  relatieveld::Kind8,  relatieveld::Kind9,
                                relatieveld::Kind10, relatieveld::Kind11, relatieveld::Kind12,
                                relatieveld::Kind13, relatieveld::Kind14, relatieveld::Kind15};

// The list goes on in the continuation record from the last place of the main record.
constexpr CorrLijst RelatiesVanaf(int eerste) {
  return {"RelNrPartner", "Relatie ", kRelatieVelden, kRelaties, eerste};
}
constexpr CorrLijst KinderenVanaf(int eerste) {
  return {"PersNrKind", "Kind ", kKindVelden, kPersonen, eerste};
}

constexpr CorrEigenaar kPersoon{persoonveld::OpmRecord, persoonveld::OpmCode, kPersoonRubrieken};
constexpr CorrEigenaar kRelatie{relatieveld::OpmRecord, relatieveld::OpmCode, kRelatieRubrieken};

std::deque<VerwijzingVak> MaakKoppen(InvoerFormulier& formulier,
                                     std::span<const CorrVerwijzing> koppen) {
  std::deque<VerwijzingVak> uit;
  for (const CorrVerwijzing& kop : koppen) {
    uit.emplace_back(formulier, kop.naam, kop.bijschrift, kop.naar);
  }
  return uit;
}

std::deque<VerwijzingVak> MaakLijst(InvoerFormulier& formulier, const CorrLijst& lijst) {
  std::deque<VerwijzingVak> uit;
  for (int i = 0; i < static_cast<int>(lijst.velden.size()); ++i) {
    uit.emplace_back(formulier, lijst.naam,
                     std::string(lijst.bijschrift) + GetalTekst(lijst.eerste + i) + ":", lijst.naar,
                     i + 1);
  }
  return uit;
}

std::deque<RubriekVak> MaakRubrieken(InvoerFormulier& formulier, const CorrEigenaar* eigenaar) {
  std::deque<RubriekVak> uit;
  if (!eigenaar) return uit;
  int nummer = 0;
  for (const RubriekNaam& rubriek : eigenaar->rubrieken) {
    uit.emplace_back(formulier, ++nummer, rubriek.rubriek);
  }
  return uit;
}

}  // namespace

const CorrSoort kCorrPrsAlg{"CorrPrsAlg",     "Corrigeer Verwijzingen Persoonsrecord",
                            "Persoonsrecord", kPersonen,
                            kPersoonKoppen,   RelatiesVanaf(1),
                            &kPersoon,        ""};
const CorrSoort kCorrRelAlg{"CorrRelAlg",    "Corrigeer Verwijzingen Relatierecord",
                            "Relatierecord", kRelaties,
                            kRelatieKoppen,  KinderenVanaf(1),
                            &kRelatie,       ""};
const CorrSoort kCorrPrsVlg{"CorrPrsVlg",
                            "Corrigeer Verwijzingen Vervolgrecord Persoonsbestand",
                            "Persoonsrecord",
                            kPersonen,
                            kPersoonVervolgKoppen,
                            RelatiesVanaf(3),
                            nullptr,
                            "Fout bij het schrijven van het Persoonsrecord"};
const CorrSoort kCorrRelVlg{"CorrRelVlg", "Corrigeer Verwijzingen Vervolgrecord Relatiebestand",
                            "Relatierecord", kRelaties, kRelatieVervolgKoppen, KinderenVanaf(15),
                            nullptr,
                            // kept: the same text for both files.
                            "Fout bij het schrijven van het Persoonsrecord"};

RubriekVak::RubriekVak(InvoerFormulier& formulier, int nummer, std::int16_t rubriek)
    : InvoerVak(formulier, Genummerd("RubriekTekst", nummer),
                CorrRubriekNaam(rubriek).substr(kPijl.size()), 1),
      rubriek_(rubriek) {}

void RubriekVak::Toon(std::int32_t opmCode) {
  ZetTekst((std::abs(opmCode) & std::abs(rubriek_)) != 0 ? "+" : "-");
}

bool RubriekVak::OpVerlaten() {
  if (!InvoerVak::OpVerlaten()) return false;
  if (Tekst() == "+" || Tekst() == "-") return true;
  Hoofd().gesprek.Waarschuw("Alleen - en + toegestaan.");
  return false;
}

CorrVerwijzingen::CorrVerwijzingen(const CorrSoort& soort, Hoofdmodule& hoofd)
    : InvoerFormulier(soort.naam, soort.titel, hoofd),
      RecordNr(*this, "RecordNr", std::string(soort.recordNaam) + ":"),
      Koppen(MaakKoppen(*this, soort.koppen)),
      Lijst(MaakLijst(*this, soort.lijst)),
      Vervolgrecord(soort.eigenaar ? std::optional<RecordNrVak>(
                                         std::in_place, *this, "Vervolgrecord",
                                         "Vervolgrecord:", soort.bestand, Vervolgtest::Vervolg)
                                   : std::nullopt),
      EersteOpm(soort.eigenaar
                    ? std::optional<RecordNrVak>(
                          std::in_place, *this, "EersteOpm",
                          "Eerste opmerkingenrecord:", BestandSoort::Opmerkingen, Vervolgtest::Geen)
                    : std::nullopt),
      RubriekTekst(MaakRubrieken(*this, soort.eigenaar)),
      soort_(soort) {
  ZetHulpOnderwerp("corrigeren");
  ZetEersteVeld(Koppen.front().Nr);
  Bind();
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void CorrVerwijzingen::Bind() {
  for (std::size_t i = 0; i < soort_.koppen.size(); ++i) {
    velden_.Bind(soort_.koppen[i].veld, Koppen[i].Nr);
  }
  const std::size_t laatste = soort_.lijst.velden.size() - 1;
  for (std::size_t i = 0; i < laatste; ++i) velden_.Bind(soort_.lijst.velden[i], Lijst[i].Nr);
  if (!soort_.eigenaar) {
    velden_.Bind(soort_.lijst.velden[laatste], Lijst[laatste].Nr);
    return;
  }
  BindLaatste(soort_.lijst.velden[laatste]);
  velden_.Bind(soort_.eigenaar->opmRecord, *EersteOpm);
}

void CorrVerwijzingen::BindLaatste(const Veld& veld) {
  RecordNrVak& plaats = Lijst.back().Nr;
  RecordNrVak& vervolg = *Vervolgrecord;
  velden_.Bind(
      veld,
      [&plaats, &vervolg](const std::string& waarde) {
        const std::int32_t getal = Getalwaarde(waarde);
        plaats.ZetTekst(NrTekst(std::max(getal, 0)));
        vervolg.ZetTekst(NrTekst(std::max(-getal, 0)));
      },
      [&plaats, &vervolg] {
        return vervolg.Tekst().empty() ? plaats.Tekst() : "-" + vervolg.Tekst();
      });
}

void CorrVerwijzingen::BijLaden() {
  nr_ = Volger();
  RecordNr.ZetTekst(GetalTekst(nr_));
  if (!Lees()) {
    Sluit();
    return;
  }
  const std::int32_t code =
      soort_.eigenaar ? Getalwaarde(Record().Waarde(soort_.eigenaar->opmCode)) : 0;
  velden_.Toon(Record());
  for (RubriekVak& rubriek : RubriekTekst) rubriek.Toon(code);
  for (VerwijzingVak& kop : Koppen) kop.ToonNaam();
  for (VerwijzingVak& plaats : Lijst) plaats.ToonNaam();
}

std::int16_t CorrVerwijzingen::Volger() const {
  const Volgers& volgers = Hoofd().volgers;
  return soort_.bestand == kPersonen ? volgers.HuidigPersoonNr : volgers.HuidigRelatieNr;
}

RecordRaam& CorrVerwijzingen::Record() const {
  if (soort_.bestand == kPersonen) return Hoofd().Persoon;
  return Hoofd().Relatie;
}

bool CorrVerwijzingen::Lees() {
  const auto lees = [this](auto& record) {
    return LeesOfMeld(Hoofd().gesprek, record, Hoofd().bestanden.Bestand(soort_.bestand), nr_,
                      "Recordnummer bestaat niet");
  };
  return soort_.bestand == kPersonen ? lees(Hoofd().Persoon) : lees(Hoofd().Relatie);
}

bool CorrVerwijzingen::Schrijf() {
  const bool gelukt =
      soort_.bestand == kPersonen ? Hoofd().Persoon.Schrijf(nr_) : Hoofd().Relatie.Schrijf(nr_);
  if (!gelukt && !soort_.schrijfFout.empty()) Hoofd().gesprek.Fout(soort_.schrijfFout);
  return gelukt;
}

void CorrVerwijzingen::OKButtonKlik() {
  WaarschuwZonderOpm();
  Handeling handeling(Hoofd().bestanden,
                      std::string(soort_.recordNaam) + " " + GetalTekst(nr_) + " gecorrigeerd");
  if (Bewaar()) Sluit();
  MeldNietVeilig(Hoofd().gesprek, handeling.Voltooi());
}

void CorrVerwijzingen::WaarschuwZonderOpm() {
  if (!EersteOpm || !EersteOpm->Tekst().empty()) return;
  if (std::none_of(RubriekTekst.begin(), RubriekTekst.end(),
                   [](const RubriekVak& rubriek) { return rubriek.Aan(); })) {
    return;
  }
  Hoofd().gesprek.Waarschuw(
      "Waarschuwing: geen eerste opmerkingenrecord en wel opmerkingencodes opgegeven");
}

// A record that would stay as it is, is not written.
bool CorrVerwijzingen::Bewaar() {
  if (!Lees()) return false;
  RecordRaam& record = Record();
  const std::string voor(record.Bytes().begin(), record.Bytes().end());
  velden_.ZetGewijzigde(record);
  if (soort_.eigenaar) {
    std::int32_t code = 0;
    for (const RubriekVak& rubriek : RubriekTekst) code += rubriek.Code();
    record.Zet(soort_.eigenaar->opmCode.naam, GetalTekst(code));
  }
  return std::equal(voor.begin(), voor.end(), record.Bytes().begin()) || Schrijf();
}

}  // namespace lb77
