#include "app/OpenSetForm.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class OpenSetVenster : public SessieToets {
 protected:
  void SetUp() override {
    MaakSet("EEN");
    MaakSet("TWEE");
    ZetIni("[Sets]\nSet1=EEN,de eerste\nSet2=TWEE,de tweede\n");
  }
  void Speelt(std::string_view script, std::string_view verslag) {
    Verwacht("kies OpenSet\n" + std::string(script) + "\ntoon Statusbalk\nsluit", Sessie(),
             "+ MenuWindow \"LB77 voor Windows\"\n+ OpenSetForm \"Open Bestandendset\"\n" +
                 MetMap(verslag) + "\n- MenuWindow");
  }
};

TEST_F(OpenSetVenster, DeActieveSetIsGekozen) {
  Speelt("toon\ntoon SetPicklist\ndruk CancelButton",
         R"(: OpenSetForm "Open Bestandendset"
            = SetPicklist "EEN,de eerste"
            = OKButton "&OK"
            = CancelButton "&Annuleren"
            * SetPicklist
            = SetPicklist "EEN,de eerste"
            #0 "EEN,de eerste"
            #1 "TWEE,de tweede"
            - OpenSetForm
            = Statusbalk "Actieve bestandenset: EEN")");
}

TEST_F(OpenSetVenster, EenAndereSetWordtDeActieve) {
  Speelt("stel SetPicklist #1\ndruk OKButton",
         R"(- OpenSetForm
            = Statusbalk "Actieve bestandenset: TWEE,de tweede")");
  EXPECT_TRUE(IniHeeft("Set=TWEE"));
  EXPECT_TRUE(IniHeeft("SetOms=de tweede"));
}

TEST_F(OpenSetVenster, EenDubbelklikOpEenSetOpentHaar) {
  Speelt("stel SetPicklist #1\ndubbelklik SetPicklist",
         R"(- OpenSetForm
            = Statusbalk "Actieve bestandenset: TWEE,de tweede")");
}

TEST_F(OpenSetVenster, EscapeEnHetKaderDoenAlsAnnuleren) {
  Speelt("stel SetPicklist #1\ntoets Escape",
         R"(- OpenSetForm
            = Statusbalk "Actieve bestandenset: EEN")");
  EXPECT_TRUE(IniHeeft("Set=EEN"));
}

TEST_F(OpenSetVenster, EenMislukteOpeningLaatGeenSetActiefEnDaarnaKanEenAndere) {
  std::filesystem::remove_all(map_ / "DATA/TWEE");
  Speelt(
      R"(stel SetPicklist #1
            druk OKButton
            toon MenuInvoer
            kies OpenSet
            druk OKButton
            stel SetPicklist #0
            druk OKButton
            toon MenuInvoer)",
      R"~(! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/TWEE/TWEE.PRS, 53 Bestand niet gevonden)"
            - OpenSetForm
            = MenuInvoer "&Tonen" [uit]
            + OpenSetForm "Open Bestandendset"
            ! uitroep "Geen Bestandenset gekozen"
            - OpenSetForm
            = MenuInvoer "&Tonen"
            = Statusbalk "Actieve bestandenset: EEN,de eerste")~");
  EXPECT_TRUE(IniHeeft("Set=EEN"));
}

TEST_F(OpenSetVenster, AnnulerenZonderActieveSetLaatHetMenuUit) {
  std::filesystem::remove_all(map_ / "DATA");
  Verwacht(
      "kies OpenSet\ndruk CancelButton\ntoon Rapport\ntoon OpenSet\nsluit", Sessie(),
      MetMap(
          R"~(! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/EEN/EEN.PRS, 53 Bestand niet gevonden)"
              + MenuWindow "LB77 voor Windows"
              + OpenSetForm "Open Bestandendset"
              - OpenSetForm
              = Rapport "&Rapporten" [uit]
              = OpenSet "&Open Bestandenset"
              - MenuWindow)~"));
}

TEST_F(OpenSetVenster, EenLegeLijstHeeftAlleenDeTekstDieGeenSetZegt) {
  ZetIni("");
  Verwacht("toon SetPicklist\ndruk OKButton", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             Toont<OpenSetForm>(hoofd, menu)(hoofd.gesprek);
             EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset aanwezig>");
             EXPECT_FALSE(menu.Zoek("MenuInvoer")->Ingeschakeld());
           }),
           R"(+ OpenSetForm "Open Bestandendset"
              = SetPicklist "<geen bestandenset aanwezig>"
              #0 "<geen bestandenset aanwezig>"
              - OpenSetForm)");
}

}  // namespace
}  // namespace lb77
