#include "exchange/ImportToets.h"

#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::string_view kIni =
    "\r\n[Genealogie]\r\nDatumForm=0\r\n[Namenfile]\r\nGez1=NHNederlands Hervormd\r\n"
    "Gez2=RKRooms Katholiek\r\nGez3=G Gemengd\r\nGez4=B Burgerlijk\r\n";

void Voeg(std::string& uit, std::string_view naam, std::string_view waarde) {
  if (waarde.empty()) return;
  if (!uit.empty()) uit += "; ";
  uit.append(naam).append(" ").append(waarde);
}

void VoegNr(std::string& uit, std::string_view naam, std::int16_t nr) {
  if (nr != 0) Voeg(uit, naam, GetalTekst(nr));
}

void VoegDatum(std::string& uit, std::string_view naam, std::string_view corr,
               std::string_view datum) {
  if (Trim(corr).empty() && datum == "  -  -    ") return;
  Voeg(uit, naam, std::string(corr).append(corr.empty() ? "" : " ").append(datum));
}

std::string Vertel(PersoonLB77& p) {
  std::string uit;
  Voeg(uit, "voor", p.VoorNaamTrue());
  Voeg(uit, "achter", p.AchterNaamTrue());
  Voeg(uit, "seks", p.Geslacht() == "O" ? "" : p.Geslacht());
  VoegDatum(uit, "geb", p.GebCorr(), p.GebDatum10());
  VoegNr(uit, "te", p.GebPlaatsNr());
  VoegDatum(uit, "doop", "", p.DoopDatum10());
  VoegNr(uit, "te", p.DoopPlaatsNr());
  Voeg(uit, "religie", p.Religie());
  VoegDatum(uit, "ovl", p.OvlCorr(), p.OvlDatum10());
  VoegNr(uit, "te", p.OvlPlaatsNr());
  VoegDatum(uit, "begr", "", p.BegrDatum10());
  VoegNr(uit, "te", p.BegrPlaatsNr());
  Voeg(uit, "beroep", p.beroep());
  VoegNr(uit, "rel1", p.relatie1());
  VoegNr(uit, "rel2", p.relatie2());
  VoegNr(uit, "rel3", p.relatie3());
  VoegNr(uit, "ouders", p.RelNrOuders());
  VoegNr(uit, "opm", p.OpmCode());
  return uit;
}

std::string Kinderen(const RelatieLB77& r) {
  std::string uit;
  int laatste = 15;
  while (laatste > 0 && r.KindNr(static_cast<std::int16_t>(laatste)) == 0) --laatste;
  for (int i = 1; i <= laatste; ++i) {
    uit += (i > 1 ? " " : "") + r.kind(static_cast<std::int16_t>(i));
  }
  return uit;
}

std::string Vertel(RelatieLB77& r) {
  std::string uit;
  VoegNr(uit, "man", r.ManNr());
  VoegNr(uit, "vrouw", r.VrouwNr());
  VoegDatum(uit, "otr", "", r.OtrDatum10());
  VoegNr(uit, "te", r.OtrPlaatsNr());
  VoegDatum(uit, "whuw", r.HuwCorr(), r.WetHuwDatum10());
  VoegNr(uit, "te", r.WetHuwPlaatsNr());
  VoegDatum(uit, "khuw", "", r.KHuwDatum10());
  VoegNr(uit, "te", r.KHuwPlaatsNr());
  Voeg(uit, "religie", r.Religie());
  Voeg(uit, "soort", r.HuwSoort());
  Voeg(uit, "scheiding", r.KHuwSch() ? "ja" : "");
  Voeg(uit, "bond", r.HuwSwPs());
  Voeg(uit, "kind", Kinderen(r));
  VoegNr(uit, "opm", r.OpmCode());
  return uit;
}

std::string Remarks(Hoofdmodule& hoofd, std::int16_t begin) {
  std::string uit;
  OpmLB77& opm = hoofd.Opmerking;
  for (std::int16_t nr = begin; nr != 0;) {
    hoofd.volgers.HuidigOpmNr = nr;
    if (!opm.Lees()) return uit + "onleesbaar";
    const std::int16_t zelfde = opm.BijZelfde();
    uit += GetalTekst(opm.Rubriek()) + " " + opm.Tekstregel();
    while (opm.VolgRegel() != 0) {
      hoofd.volgers.HuidigOpmNr = opm.VolgRegel();
      if (!opm.Lees()) return uit + "onleesbaar";
      uit += "|" + opm.Tekstregel();
    }
    uit += "\n";
    nr = zelfde;
  }
  return uit;
}

}  // namespace

std::string Ged(std::string_view regels) {
  return "0 HEAD\n" + TranscriptRegels(regels) + "0 TRLR\n";
}

std::string GedIn(std::string_view tekenset, std::string_view regels) {
  return "0 HEAD\n1 CHAR " + std::string(tekenset) + "\n" + TranscriptRegels(regels) + "0 TRLR\n";
}

ImportToets::ImportToets() {
  SchrijfBytes(Map() / "LIJNBOOM.INI",
               "[Systeem]\r\nSet=PROEF\r\nData=" + Map().string() + std::string(kIni));
}

void ImportToets::InSessie(const Taak& taak) {
  Stil([&](Hoofdmodule& hoofd) {
    hoofd.schrijfwijze.DatumScheider = '-';
    taak(hoofd);
  });
}

void ImportToets::Importeer(std::string_view bytes, std::string_view gemeld, const Plek& plek) {
  ImporteerMet(bytes, std::string(gemeld) + R"(
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
    )",
               true, plek);
}

void ImportToets::ImporteerMet(std::string_view bytes, std::string_view verslag, bool metViewer,
                               const Plek& plek) {
  SchrijfBytes(Bestand(), bytes);
  std::string draaiboek = "vul Bestandsnaam " + Bestand().string() + "\n";
  std::string vraag;
  if (!antwoord_.empty()) {
    draaiboek += "antwoord " + antwoord_ + "\n";
    vraag =
        "\n? vraag Ja/Nee \"Dit bestand is in Unicode opgeslagen. Omzetten naar de tekenset van "
        "het "
        "programma ?\" -> " +
        antwoord_;
  }
  draaiboek +=
      std::string("druk OKButton\n") + (metViewer ? "druk BackButton\n" : "") + "druk BackButton\n";
  const Taak taak = [](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    ImpGedcom form(hoofd);
    hoofd.gesprek.ToonModaal(form);
  };
  Verwacht(draaiboek, taak,
           "+ ImpGedcom \"Importeer Gegevens - Gedcom\"" + vraag + "\n" + std::string(verslag) +
               "\n- ImpGedcom\n",
           plek);
}

std::string ImportToets::Log() const {
  return LeesBytes(TekstMap() / "GEDCOM.LOG");
}

std::string ImportToets::LogRegels() const {
  std::string uit = Log();
  std::erase(uit, '\r');
  constexpr std::string_view kSlot = "Importeren voltooid\n";
  if (uit.ends_with(kSlot)) uit.resize(uit.size() - kSlot.size());
  const std::size_t rest = uit.rfind("LET OP: wat niet of niet heel is overgenomen staat in ");
  if (rest != std::string::npos) uit.erase(rest, uit.find('\n', rest) + 1 - rest);
  return uit;
}

std::string ImportToets::Rest() const {
  std::string uit = LeesBytes(TekstMap() / "GEDCOM.RST");
  std::erase(uit, '\r');
  return uit;
}

std::string ImportToets::Persoon(std::int16_t nr) {
  std::string uit = "onleesbaar";
  InSessie([&](Hoofdmodule& hoofd) {
    if (hoofd.Persoon.Lees(nr)) uit = Vertel(hoofd.Persoon);
  });
  return uit;
}

std::string ImportToets::Relatie(std::int16_t nr) {
  std::string uit = "onleesbaar";
  InSessie([&](Hoofdmodule& hoofd) {
    if (hoofd.Relatie.Lees(nr)) uit = Vertel(hoofd.Relatie);
  });
  return uit;
}

std::string ImportToets::Plaats(std::int16_t nr) {
  std::string uit;
  InSessie([&](Hoofdmodule& hoofd) { uit = hoofd.Plaats.Naam(nr); });
  return uit;
}

std::string ImportToets::OpmBijPersoon(std::int16_t nr) {
  std::string uit;
  InSessie([&](Hoofdmodule& hoofd) {
    ASSERT_TRUE(hoofd.Persoon.Lees(nr));
    uit = Remarks(hoofd, hoofd.Persoon.OpmRecord());
  });
  return uit;
}

std::string ImportToets::OpmBijRelatie(std::int16_t nr) {
  std::string uit;
  InSessie([&](Hoofdmodule& hoofd) {
    ASSERT_TRUE(hoofd.Relatie.Lees(nr));
    uit = Remarks(hoofd, hoofd.Relatie.OpmRecord());
  });
  return uit;
}

std::string ImportToets::Aantallen() {
  std::string uit;
  InSessie([&](Hoofdmodule& hoofd) {
    uit = GetalTekst(hoofd.Persoon.AantalRecords()) + " " +
          GetalTekst(hoofd.Relatie.AantalRecords()) + " " +
          GetalTekst(hoofd.Plaats.AantalRecords()) + " " +
          GetalTekst(hoofd.Opmerking.AantalRecords());
  });
  return uit;
}

}  // namespace lb77
