// The chains of forms of the ancestor reports.
#include <cstddef>
#include <string>
#include <utility>

#include "qt/indeling/Indelingen.h"
#include "text/Getallen.h"

namespace lb77::indeling {

namespace {

Blok Proband() {
  return Persoonshoofd("Proband", "Proband");
}

Blok Opties(const std::vector<Blok>& uitvoer) {
  return Kolom({
      Proband(),
      Groep("Kwartieren", {Velden({
                              Rij({"KwNrProband", "VanafKwartier"}),
                              "MaxGen",
                              "BroerZusBox",
                          })}),
      Groep("Uitvoer", {Velden(uitvoer)}),
      Titels(),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok SchemaOpties() {
  return Kolom({
      Proband(),
      Groep("Schema", {Velden({
                          "KwNrProband",
                          Rij({"MaxGen", "BreedteGen"}),
                      })}),
      Groep("Uitvoer", {Velden({Rij({"OokNrsBox", "OokJaarBox"}), Rij({"UitlijnBox", "InHTMLBox"}),
                                Rij({"CopyrightBox", "OokLB77Box"})})}),
      Titels(),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok BladOpties() {
  return Kolom({
      Proband(),
      Groep("Blad",
            {Velden({Rij({"HSK_CBG_Box", "OokNrsBox"}), Rij({"CopyrightBox", "OokLB77Box"})})}),
      Titels(),
      "UTF8Box",
      Knoppen({"OKButton(*)", "BackButton"}),
  });
}

// Fathers above and mothers below their child, each generation further to the right; a name may take
// what the columns behind it leave.
void Stamlijn(int plaats, int generatie, std::vector<Blok>& regels) {
  constexpr int kGeneraties = 4;
  constexpr int kCellen = 3;  // that a generation moves to the right
  if (generatie < kGeneraties) Stamlijn(2 * plaats, generatie + 1, regels);
  const auto veld = [plaats](const std::string& naam, int breedte = 0) {
    return Veld(naam + "(" + GetalTekst(plaats) + ")", {}, breedte);
  };
  std::vector<Blok> regel(static_cast<std::size_t>((generatie - 1) * kCellen), "");
  regel.push_back(Over((kGeneraties - generatie) * kCellen + 1,
                       Rij({veld("Proband"), veld("InfoPersoon"), veld("Kwartier"),
                            veld("Periode", 8), veld("Kwartier_A")})));
  regel.push_back(
      Rij({veld("KW_Index", 1), veld("KW_Nr", 1)}));  // hidden, but they keep their room
  regels.push_back(Rij(std::move(regel)));
  if (generatie < kGeneraties) Stamlijn(2 * plaats + 1, generatie + 1, regels);
}

Blok Blad() {
  std::vector<Blok> regels;
  Stamlijn(1, 1, regels);
  return Kolom({
      Rooster(std::move(regels)),
      Knoppen({"NaarKind", "UitvoerButton"}, {"OKButton", "BackButton"}),
  });
}

Blok Schrijven() {
  return Kolom({
      "SchrijfLabel",
      Velden({Rij({"KwartierenLabel", "Kwartieren"})}),
      "GeduldLabel",
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Kwartierstaat() {
  return {
      {"KwstTxtPrs", PersoonPrompt()},
      {"KwstTxtParam", Opties({Rij({"OokNrsBox", "OokOpmBox"}), Rij({"KwHerhaalBox", "InHTMLBox"}),
                               Rij({"CopyrightBox", "OokLB77Box"})})},
      {"KwHTMLParam", InternetOpties()},
      {"KwstBereken",
       Kolom({
           "OpbouwLabel",
           Velden({Rij({"PersNrLabel", "PersoonsNr"}), Rij({"KwartierenLabel", "Kwartieren"})}),
           Velden({"GeduldLabel", "MaximumLabel"}),
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"KwstMaakTemp", Schrijven()},
      {"KwstIdxPrs", PersoonPrompt()},
      {"KwstIdxParam", Opties({Rij({"OokNrsBox", "KwHerhaalBox"}), "InHTMLBox", "HTMLfileTekst",
                               Rij({"CopyrightBox", "OokLB77Box"})})},
      {"KwidxHTMLParam", InternetOpties()},
      {"KwstIdxTemp", Schrijven()},
      {"KwstSchPrs", PersoonPrompt()},
      {"KwstSchParam", SchemaOpties()},
      {"KwstSchTemp",
       Kolom({
           "SchrijfLabel",
           Velden({Rij({"PersonenLabel", "Personen"}), Rij({"PersNrLabel", "PersoonsNr"})}),
           "GeduldLabel",
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"KwstBldPrs", PersoonPrompt()},
      {"KwstBladen", Blad()},
      {"KwstBldParam", BladOpties()},
  };
}

}  // namespace lb77::indeling
