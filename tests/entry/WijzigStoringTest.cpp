#include "entry/VreemdeSet.h"
#include "entry/WijzigToets.h"
#include "steun/FaalBestand.h"

namespace lb77 {
namespace {

// Plays a script again and again on the same files, of which another operation fails each time.
template <class Basis>
class StoringToets : public Basis {
 protected:
  using Na = std::function<void(bool gelukt)>;

  // `na` looks at the files after each try; the last one meets no failure.
  void BijElkeStoring(std::int16_t nr, const std::string& draaiboek, const Na& na) {
    const auto voor = this->Bytes();
    for (int k = 1;; ++k) {
      ASSERT_LT(k, 2000);
      this->ZetTerug(voor);
      Storing storing;
      storing.bij = k;
      const SpeelUitslag uitslag = this->Speel(
          draaiboek + "\ndruk Opslaan\ndruk BackButton", this->Sessie([&](Hoofdmodule& hoofd) {
            hoofd.bestanden = Bestandenset(FalendeOpener(storing));
            if (hoofd.bestanden.OpenSet(this->Paden())) return;
            this->Dialoog(nr)(hoofd);
          }));
      const bool gelukt = !storing.Geweest();
      verteld_ = this->verslag_;
      alles_ += verteld_;
      const ::testing::ScopedTrace spoor(
          __FILE__, __LINE__,
          "operatie " + std::to_string(k) + "\n" + this->verslag_ + uitslag.reden);
      na(gelukt);
      if (gelukt || this->HasFailure()) break;
    }
  }

  std::string verteld_;  // the transcript of the try
  std::string alles_;    // those of all
};

using PersoonStoringTest = StoringToets<WijzigPersoonToets>;
using RelatieStoringTest = StoringToets<WijzigRelatieToets>;

// All bytes of a file but those of one record.
std::string Zonder(std::string bytes, std::size_t lengte, std::size_t nr) {
  return bytes.replace(lengte * (nr - 1), lengte, "");
}

TEST_F(PersoonStoringTest, EenVerhuizingNaarAndereOudersIsGeheelOfNiet) {
  Bouw().Man("Jan", "Vos");
  Bouw().Vrouw("Anna", "Bos");
  Bouw().Man("Piet", "Vos");
  Bouw().Man("Kees", "Dam");
  Bouw().Relatie(2, 3, {4, 5});
  Bouw().Relatie(5, 3);
  const std::string voor = LeesBytes(Paden().prs);
  BijElkeStoring(4, "vul VoorNm Pieter\nvul RelNrOuders 3\nantwoord Ja", [&](bool gelukt) {
    const std::string naam = VanPersoon(4, persoonveld::Voornaam);
    EXPECT_EQ(VanPersoon(4, persoonveld::RelNrOuders), naam == "Pieter" ? "3" : "2");
    EXPECT_EQ(Zonder(LeesBytes(Paden().prs), 128, 4), Zonder(voor, 128, 4));
    // His brother stays, and he himself stands in one list at most.
    const std::string oud = Kinderen(2);
    EXPECT_TRUE(oud == "4 5" || oud == "5") << oud;
    const std::string nieuw = Kinderen(3);
    EXPECT_TRUE(nieuw.empty() || (nieuw == "4" && oud == "5")) << nieuw;
    if (naam == "Pieter") {
      EXPECT_EQ(nieuw, "4");
    }
    if (gelukt) {
      EXPECT_EQ(naam, "Pieter");
    } else if (naam != "Pieter") {
      EXPECT_NE(verteld_.find("! "), std::string::npos);
    }
    if (verteld_.find("het schrijven van het Persoonsrecord\"") != std::string::npos) {
      EXPECT_EQ(na_, -1);
    }
  });
  EXPECT_NE(alles_.find("! geen \"Fout bij het schrijven van het Persoonsrecord\"\n- Wijzig"),
            std::string::npos);
  EXPECT_NE(alles_.find("! uitroep \"Fout bij het koppelen aan de ouders\""), std::string::npos);
}

TEST_F(PersoonStoringTest, EenNieuwKindVanNieuweOudersOverschrijftNiemand) {
  Bouw().Man("Jan", "Vos");
  Bouw().Vrouw("Anna", "Bos");
  for (int i = 0; i < 3; ++i) Bouw().Relatie(2, 0);
  const std::string voor = LeesBytes(Paden().prs);
  BijElkeStoring(-1, "vul VoorNm Bram\nvul RecordNrPa 2\nvul RecordNrMa 3\nantwoord Ja",
                 [&](bool gelukt) {
                   const std::string na = LeesBytes(Paden().prs);
                   // The names of both stand where they stood.
                   EXPECT_EQ(na.substr(128, 55), voor.substr(128, 55));
                   EXPECT_EQ(na.substr(256, 55), voor.substr(256, 55));
                   const std::string zijn = Huwelijken(2);
                   EXPECT_TRUE(zijn == "2 3 4" || zijn == "2 3 4 5") << zijn;
                   const std::string kinderen = Kinderen(5);
                   EXPECT_TRUE(kinderen.empty() || kinderen == "5") << kinderen;
                   if (gelukt) {
                     EXPECT_EQ(zijn, "2 3 4 5");
                     EXPECT_EQ(VanPersoon(5, persoonveld::Voornaam), "Bram");
                     EXPECT_EQ(VanPersoon(5, persoonveld::RelNrOuders), "5");
                   }
                 });
}

TEST_F(RelatieStoringTest, EenAnderePartnerKostNiemandEenAndereRelatie) {
  Bouw().Man("Jan", "Vos");
  Bouw().Vrouw("Anna", "Bos");
  Bouw().Man("Kees", "Dam");
  Bouw().Relatie(2, 3, {});
  Bouw().Relatie(2, 0);
  for (int i = 0; i < 3; ++i) Bouw().Relatie(4, 0);
  BijElkeStoring(2, "vul OtrDatum 1-2-1900\nvul RecordNrMan 4", [&](bool gelukt) {
    const bool nieuw = VanRelatie(2, relatieveld::ManNr) == "4";
    EXPECT_EQ(VanRelatie(2, relatieveld::OtrDagMaand), nieuw ? "01-02-1900" : "  -  -    ");
    const std::string oude = Huwelijken(2);
    EXPECT_TRUE(oude == "2 3" || oude == "3") << oude;
    const std::string nieuwe = Huwelijken(4);
    EXPECT_TRUE(nieuwe == "4 5 6" || nieuwe == "4 5 6 2") << nieuwe;
    EXPECT_EQ(Huwelijken(3), "2");
    if (gelukt) {
      EXPECT_TRUE(nieuw);
      EXPECT_EQ(oude, "3");
      EXPECT_EQ(nieuwe, "4 5 6 2");
    } else if (!nieuw) {
      EXPECT_NE(verteld_.find("! "), std::string::npos);
    }
  });
  // kept: the links are brought in step all the same.
  EXPECT_NE(alles_.find("! geen \"Fout bij het schrijven van het Relatierecord\"\n- Wijzig"),
            std::string::npos);
}

// Opens and saves; whatever is asked or refused, nothing may change.
template <class Basis>
class OngemoeidToets : public Basis {
 protected:
  void Vreemden(const std::filesystem::path& pad, std::size_t lengte, std::size_t sonde,
                char teken) {
    SchrijfBytes(pad, LeesBytes(pad) + VreemdeRecords(lengte, sonde, teken));
  }
  // How many came to their end: nobody answers more than No.
  int SlaElkOp() {
    const auto voor = this->Bytes();
    int gesloten = 0;
    for (std::int16_t nr = 2; nr < 2 + kVreemden; ++nr) {
      static_cast<void>(this->Speel("antwoord Nee Nee Nee Nee Nee Nee\ndruk Opslaan",
                                    this->Sessie(this->Dialoog(nr))));
      EXPECT_EQ(this->Bytes(), voor) << nr;
      if (this->verslag_.find("- Wijzig") != std::string::npos) ++gesloten;
    }
    return gesloten;
  }
};

using PersoonOngemoeidTest = OngemoeidToets<WijzigPersoonToets>;
using RelatieOngemoeidTest = OngemoeidToets<WijzigRelatieToets>;

TEST_F(PersoonOngemoeidTest, EenPersoonVolVreemdeBytesBlijftByteVoorByte) {
  Vreemden(Paden().prs, persoonveld::kLengte, persoonveld::Geslacht.plaats, 'M');
  Bouw().ZetAantalPersonen(kVreemden);
  SlaElkOp();
}

TEST_F(RelatieOngemoeidTest, EenRelatieVolVreemdeBytesBlijftByteVoorByte) {
  Vreemden(Paden().rlt, relatieveld::kLengte, relatieveld::HuwCorr.plaats, ' ');
  ZetByte(Paden().rlt, relatieveld::ManNr.plaats, kVreemden);
  EXPECT_GT(SlaElkOp(), 0);
}

// Nothing but the links is whole here, so that every save comes to its end.
TEST_F(PersoonOngemoeidTest, WieVanDeKoppelingenAfAllesVreemdHeeftWordtOpgeslagen) {
  Vreemden(Paden().prs, persoonveld::kLengte, persoonveld::Geslacht.plaats, 'q');
  std::string bytes = LeesBytes(Paden().prs);
  for (std::size_t nr = 2; nr < 2 + kVreemden; ++nr) {
    const std::size_t begin = (nr - 1) * persoonveld::kLengte;
    bytes.replace(begin + persoonveld::relatie1.plaats, 8, 8, '\0');
    if (bytes[begin + persoonveld::GebCorr.plaats] == 'Z') {
      bytes[begin + persoonveld::GebCorr.plaats] = 'z';
    }
  }
  SchrijfBytes(Paden().prs, bytes);
  Bouw().ZetAantalPersonen(kVreemden);
  EXPECT_EQ(SlaElkOp(), kVreemden);
}

}  // namespace
}  // namespace lb77
