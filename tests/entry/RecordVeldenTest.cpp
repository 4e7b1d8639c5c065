#include <map>

#include "entry/CorrectieVak.h"
#include "entry/DatumVak.h"
#include "entry/GezindteVak.h"
#include "entry/PlaatsVak.h"
#include "entry/RecordNrVak.h"
#include "entry/RecordVelden.h"
#include "entry/VakToets.h"
#include "forms/Keuzen.h"
#include "store/PersoonVelden.h"
#include "store/RelatieVelden.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

// A form with a control of the right kind for each field of a byte table that Zet knows.
class Recordscherm final : public InvoerFormulier {
 public:
  Recordscherm(Hoofdmodule& hoofd, std::span<const Veld> alle)
      : InvoerFormulier("Recordscherm", "", hoofd) {
    for (const Veld& veld : alle) {
      // The year of birth has a name of its own beside that of its date.
      if (!veld.naam.empty() && veld.naam != "GebJaar") Bind(veld);
    }
  }

  RecordVelden velden;
  std::deque<DatumVak> datums;
  std::deque<PlaatsVak> plaatsen;
  std::deque<GezindteVak> gezindten;
  std::deque<Keuzevak> keuzen;
  std::deque<Tekstvak> teksten;
  std::map<std::string, std::function<void(const std::string&)>> vul;

 private:
  void Bind(const Veld& veld) {
    const std::string naam(veld.naam);
    if (veld.soort == VeldSoort::Datum) {
      DatumVak& vak = datums.emplace_back(*this, naam);
      velden.Bind(veld, vak);
      vul[naam] = [&vak](const std::string& t) { vak.ZetTekst(t); };
    } else if (veld.soort == VeldSoort::Keuze) {
      Keuzevak& vak = keuzen.emplace_back(*this, naam, "", std::vector<std::string>{"a", "b", "c"});
      velden.BindKeuze(veld, vak);
      vul[naam] = [&vak](const std::string& t) { vak.ZetIndex(Getalwaarde(t)); };
    } else if (naam.find("Plaats") != std::string::npos) {
      PlaatsVak& vak = plaatsen.emplace_back(*this, naam, "");
      velden.Bind(veld, vak);
      vul[naam] = [&vak](const std::string& t) {
        vak.Toon(static_cast<std::int16_t>(Getalwaarde(t)));
      };
    } else if (naam.find("Religie") != std::string::npos) {
      GezindteVak& vak = gezindten.emplace_back(*this, naam, "");
      velden.Bind(veld, vak);
      vul[naam] = [&vak](const std::string& t) { vak.Toon(t); };
    } else {
      Tekstvak& vak = teksten.emplace_back(*this, naam);
      velden.Bind(veld, vak);
      vul[naam] = [&vak](const std::string& t) { vak.ZetTekst(t); };
    }
  }
};

std::string Inhoud(const RecordRaam& record) {
  return {record.Bytes().data(), record.Bytes().size()};
}

// Bytes that no dialog would write, different in each record `zaad`; the probe stays readable.
std::string VreemdeBytes(std::size_t lengte, unsigned zaad, std::size_t sonde, char teken) {
  std::string bytes;
  for (unsigned i = 0; i < lengte; ++i) {
    bytes += static_cast<char>((zaad * 37U + i * (2 * zaad + 1U)) & 0xFFU);
  }
  bytes[sonde] = teken;
  return bytes;
}

class RecordVeldenToets : public VakToets {
 protected:
  static constexpr unsigned kAantal = 256;

  [[nodiscard]] SetPaden Paden() const { return SetPaden::Van(Map(), "PROEF"); }
  static void VoegToe(const std::filesystem::path& pad, std::size_t lengte, std::size_t sonde,
                      char teken) {
    std::string bytes = LeesBytes(pad);
    for (unsigned zaad = 0; zaad < kAantal; ++zaad) {
      bytes += VreemdeBytes(lengte, zaad, sonde, teken);
    }
    SchrijfBytes(pad, bytes);
  }
  // Shows the record in the buffer, and expects that storing nothing changes nothing.
  static void VerwachtOngemoeid(Hoofdmodule& hoofd, RecordRaam& record,
                                std::span<const Veld> velden) {
    const std::string voor = Inhoud(record);
    Recordscherm scherm(hoofd, velden);
    scherm.velden.Toon(record);
    for (DatumVak& datum : scherm.datums) {  // the focus comes and goes
      if (datum.IsLeeg()) datum.ZetTekst("");
    }
    EXPECT_FALSE(scherm.velden.Gewijzigd());
    scherm.velden.ZetGewijzigde(record);
    EXPECT_EQ(Inhoud(record), voor);
  }
  // Expects that changing one field touches its bytes alone; those of a date are four.
  template <class Klasse>
  static void VerwachtAlleen(Hoofdmodule& hoofd, Klasse& record, std::int16_t nr,
                             std::span<const Veld> velden, std::string_view naam,
                             const std::string& waarde, std::size_t plaats, std::size_t aantal) {
    ASSERT_TRUE(record.Lees(nr));
    const std::string voor = Inhoud(record);
    Recordscherm scherm(hoofd, velden);
    scherm.velden.Toon(record);
    scherm.vul.at(std::string(naam))(waarde);
    ASSERT_TRUE(record.Lees(nr));
    EXPECT_TRUE(scherm.velden.Gewijzigd()) << naam;
    scherm.velden.ZetGewijzigde(record);
    std::string na = Inhoud(record);
    EXPECT_NE(na.substr(plaats, aantal), voor.substr(plaats, aantal)) << naam;
    na.replace(plaats, aantal, voor, plaats, aantal);
    EXPECT_EQ(na, voor) << naam;
  }
  template <class Klasse>
  static void VerwachtElkVeldAlleen(Hoofdmodule& hoofd, Klasse& record,
                                    std::span<const Veld> velden) {
    for (const Veld& veld : velden) {
      if (veld.naam.empty() || veld.naam == "GebJaar") continue;
      const bool datum = veld.soort == VeldSoort::Datum;
      const std::string waarde = datum                            ? "03.05.1850"
                                 : veld.soort == VeldSoort::Keuze ? "1"
                                 : IsGetal(veld)                  ? "2"
                                                                  : "Q";
      VerwachtAlleen(hoofd, record, 9, velden, veld.naam, waarde, veld.plaats,
                     datum ? 4 : veld.breedte);
    }
  }
};

TEST_F(RecordVeldenToets, EenPersoonDieNiemandVerandertBlijftByteVoorByte) {
  VoegToe(Paden().prs, persoonveld::kLengte, persoonveld::Geslacht.plaats, 'M');
  Stil([](Hoofdmodule& hoofd) {
    for (std::int16_t nr = 2; nr < 2 + static_cast<std::int16_t>(kAantal); ++nr) {
      ASSERT_TRUE(hoofd.Persoon.Lees(nr)) << nr;
      VerwachtOngemoeid(hoofd, hoofd.Persoon, persoonveld::kVelden);
    }
  });
}

TEST_F(RecordVeldenToets, EenRelatieDieNiemandVerandertBlijftByteVoorByte) {
  VoegToe(Paden().rlt, relatieveld::kLengte, relatieveld::HuwCorr.plaats, ' ');
  Stil([](Hoofdmodule& hoofd) {
    for (std::int16_t nr = 2; nr < 2 + static_cast<std::int16_t>(kAantal); ++nr) {
      ASSERT_TRUE(hoofd.Relatie.Lees(nr)) << nr;
      VerwachtOngemoeid(hoofd, hoofd.Relatie, relatieveld::kVelden);
    }
  });
}

TEST_F(RecordVeldenToets, EenVeldVanEenPersoonRaaktAlleenZijnEigenBytes) {
  VoegToe(Paden().prs, persoonveld::kLengte, persoonveld::Geslacht.plaats, 'M');
  Stil([](Hoofdmodule& hoofd) {
    VerwachtElkVeldAlleen(hoofd, hoofd.Persoon, persoonveld::kVelden);
  });
}

TEST_F(RecordVeldenToets, EenVeldVanEenRelatieRaaktAlleenZijnEigenBytes) {
  VoegToe(Paden().rlt, relatieveld::kLengte, relatieveld::HuwCorr.plaats, ' ');
  Stil([](Hoofdmodule& hoofd) {
    VerwachtElkVeldAlleen(hoofd, hoofd.Relatie, relatieveld::kVelden);
  });
}

TEST_F(RecordVeldenToets, EenVeldNeemtZijnBreedteUitDeTabel) {
  Stil([](Hoofdmodule& hoofd) {
    Recordscherm scherm(hoofd, persoonveld::kVelden);
    const auto breedte = [&](std::string_view naam) {
      return dynamic_cast<Invoerveld&>(*scherm.Zoek(naam)).MaxLengte();
    };
    EXPECT_EQ(breedte("Achternaam"), 25U);
    EXPECT_EQ(breedte("Beroep"), 30U);
    EXPECT_EQ(breedte("GebCorr"), 1U);
    EXPECT_EQ(breedte("DoopReligieCode"), 2U);
    EXPECT_EQ(breedte("Ouders"), 5U);
    EXPECT_EQ(breedte("GebDatum"), 10U);
  });
}

TEST_F(RecordVeldenToets, WatErStaatIsWatZetZouNemen) {
  Bouw().Man("Jan", "Vos",
             {{"GebDatum", "03.05.1850"}, {"Ouders", "12"}, {"BegrCrem", "1"}, {"Beroep", "smid"}});
  Bouw().Relatie(2, 0, {}, {{"HuwSwPs", "2"}});
  Stil([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(hoofd.Persoon.Lees(2) && hoofd.Relatie.Lees(2));
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::beroep), "smid");
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::GebDagMaand), "03.05.1850");
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::DoopDagMaand), "  .  .    ");
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::RelNrOuders), "12");
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::OvlPlaatsNr), "");
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::BegrCrem), "1");
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::Vrij), "");
    EXPECT_EQ(hoofd.Relatie.Waarde(relatieveld::HuwSwPs), "2");
    EXPECT_EQ(hoofd.Relatie.Waarde(relatieveld::KHuwSch), "0");
  });
}

TEST_F(RecordVeldenToets, EenOnbekendTekenIsDeKeuzeDieErVoorStaat) {
  Bouw().Relatie(0, 0);
  std::string bytes = LeesBytes(Paden().rlt);
  bytes[64 + relatieveld::HuwSwPs.plaats] = 'x';
  bytes[64 + relatieveld::KHuwSch.plaats] = 'x';
  SchrijfBytes(Paden().rlt, bytes);
  Stil([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(hoofd.Relatie.Lees(2));
    EXPECT_EQ(hoofd.Relatie.Waarde(relatieveld::HuwSwPs), "2");
    EXPECT_EQ(hoofd.Relatie.Waarde(relatieveld::KHuwSch), "0");
  });
}

TEST_F(RecordVeldenToets, WatHetSchermZelfLaatZienTeltNietAlsWijziging) {
  Stil([](Hoofdmodule& hoofd) {
    hoofd.Persoon.LeegPersBuffer();
    Recordscherm scherm(hoofd, persoonveld::kVelden);
    scherm.velden.Toon(hoofd.Persoon);
    scherm.vul.at("Geslacht")("O");
    EXPECT_TRUE(scherm.velden.Gewijzigd());
    scherm.velden.Onthoud();
    scherm.velden.ZetGewijzigde(hoofd.Persoon);
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::Geslacht), "");
    scherm.velden.ZetAlle(hoofd.Persoon);
    EXPECT_EQ(hoofd.Persoon.Waarde(persoonveld::Geslacht), "O");
  });
}

}  // namespace
}  // namespace lb77
