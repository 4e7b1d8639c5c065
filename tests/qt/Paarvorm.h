// A form whose checks ask, move the focus, change captions and hide fields.
#pragma once

#include <string>
#include <vector>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"

namespace lb77 {

// The number of the man: "1" is a man, "2" a woman (who is asked about), anything else is refused.
// A correction "T" hides the place. Saving compares two dates and asks.
class Paarvorm final : public Formulier {
 public:
  explicit Paarvorm(Gesprek& deur) : Formulier("Paarvorm", "Een paar"), gesprek(deur) {
    ZetEersteVeld(RecordNrMan);
    for (Bediening* een : Bedieningen()) {
      een->BijBetreden([this, een] { log.push_back("in " + een->Naam()); });
    }
    RecordNrMan.BijBetreden([this] {
      oudeTekst = RecordNrMan.Tekst();
      log.push_back("in RecordNrMan \"" + oudeTekst + "\"");
    });
    RecordNrMan.BijVerlaten([this] { return ManVerlaten(); });
    HuwCorr.ZetFilter(InHoofdletters);
    HuwCorr.BijVerlaten([this] { return CorrVerlaten(); });
    HuwLabel.BijDubbelklik([this] {
      HuwLabel.ZetBijschrift(HuwLabel.Bijschrift() == "Samenwonen" ? "Huwelijk" : "Samenwonen");
      log.push_back("dubbelklik " + HuwLabel.Bijschrift());
    });
    Opslaan.BijKlik([this] { SlaOp(); });
    BackButton.BijKlik([this] {
      log.emplace_back("terug");
      Sluit();
    });
  }

  Label ManLabel{*this, "ManLabel", "Partner1"};
  Tekstvak RecordNrMan{*this, "RecordNrMan", "", 5};
  Tekstvak RecordNrVrouw{*this, "RecordNrVrouw", "Vrouw", 5};
  Tekstvak OtrDatum{*this, "OtrDatum", "Ondertrouw", 10};
  Label HuwLabel{*this, "HuwLabel", "Huwelijk"};
  Tekstvak HuwDatum{*this, "HuwDatum", "", 10};
  Tekstvak HuwCorr{*this, "HuwCorr", "Corr", 1};
  Tekstvak HuwPltsNm{*this, "HuwPltsNm", "Plaats"};
  Optie Wet{*this, "Wet", "&Wet"};
  Optie Kerk{*this, "Kerk", "&Kerk"};
  Knop Opslaan{*this, "Opslaan", "&Opslaan"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  Gesprek& gesprek;
  std::string oudeTekst;
  std::vector<std::string> log;

 protected:
  void BijToets(ToetsGebeurtenis& toets) override {
    if (toets.code == toets::kF10) {
      toets.verwerkt = true;
      Terug();
    } else if (toets.code == toets::kF9) {
      toets.verwerkt = true;
      Klik(Opslaan);
    }
  }

 private:
  bool Vraag(std::string_view tekst) {
    const bool ja = gesprek.Vraag(tekst);
    log.push_back(std::string(tekst) + (ja ? " ja" : " nee"));
    return ja;
  }

  bool ManVerlaten() {
    log.emplace_back("controle RecordNrMan");
    const std::string& nummer = RecordNrMan.Tekst();
    if (nummer == oudeTekst || nummer.empty()) return true;
    ManLabel.ZetBijschrift("Man");
    if (nummer != "1" && nummer != "2") {
      gesprek.Waarschuw("Onbekend nummer");
      log.emplace_back("Onbekend nummer");
      return false;
    }
    if (nummer == "2") {
      if (!Vraag("Opgegeven Persoon is een Vrouw. Doorgaan ?")) return false;
      ManLabel.ZetBijschrift("Partner1");
    }
    ZetFocus(RecordNrVrouw);
    return true;
  }

  bool CorrVerlaten() {
    log.emplace_back("controle HuwCorr");
    HuwPltsNm.ZetZichtbaar(HuwCorr.Tekst() != "T");
    return true;
  }

  void SlaOp() {
    log.emplace_back("opslaan");
    if (OtrDatum.Tekst() > HuwDatum.Tekst() && Vraag("Corrigeren ?")) return ZetFocus(OtrDatum);
    log.emplace_back("geschreven");
    Sluit();
  }
};

}  // namespace lb77
