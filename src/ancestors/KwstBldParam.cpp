#include "ancestors/KwstBldParam.h"

#include <optional>

#include "ancestors/KwstBladSchrijver.h"
#include "ancestors/KwstBladTekening.h"
#include "app/Hoofdmodule.h"
#include "output/TekstOpslaan.h"
#include "output/TekstVenster.h"
#include "output/Tekstpaginas.h"
#include "reporting/Tijdelijk.h"

namespace lb77 {
namespace {

constexpr std::string_view kProgrammaRegel = "Gemaakt met Lijnboom/B77";

// The pages of a sheet, for the printer; nothing when the file can't be read.
std::optional<Afdruk> Paginas(const std::filesystem::path& pad) {
  Tekstpaginas paginas;
  if (!paginas.Open(pad)) return std::nullopt;
  Afdruk afdruk{"Kwartierblad", {}};
  for (int rij = 1; rij <= paginas.Rijen(); ++rij) {
    if (!paginas.Lees(1, rij, afdruk.paginas.emplace_back())) return std::nullopt;
  }
  return afdruk;
}

}  // namespace

KwstBldParam::KwstBldParam(Hoofdmodule& hoofd, KwstOpties& opties, const KwstTabel& tabel,
                           int wortel)
    : KwstParam("KwstBldParam", "Kwartierbladen Uitvoeropties", hoofd, opties),
      Titels(*this, kSectie),
      tabel_(tabel),
      wortel_(wortel),
      keuzen_(kSectie, {{HSK_CBG_Box, "HSK_CBG", opties.KwBldHSK},
                        {OokNrsBox, "OokNummers", true, opties.KwOokNrs}}) {
  ZetHulpOnderwerp("kwartierbladen");
  ZetEersteVeld(HSK_CBG_Box);
  OKButton(1).ZetBijschrift("&Afdrukken");
  OKButton(1).BijKlik([this] { OKButtonKlik(1); });
  OKButton(2).ZetBijschrift("&Opslaan");
  OKButton(2).BijKlik([this] { OKButtonKlik(2); });
  Koppel(keuzen_, Titels, BackButton);
}

std::filesystem::path KwstBldParam::Pad() const {
  return Hoofd().Ini.TempDir() / "KWSTBLAD.TMP";
}

bool KwstBldParam::MaakBlad() {
  Bewaar();
  std::string& programma = Opties().teksten.programmaRegel;
  if (!programma.empty()) programma = kProgrammaRegel;
  const Uitslag uitslag =
      SchrijfVerslag({Pad(), kBladBreedte}, Hoofd().gesprek, [this](TekstSchrijver& uit) {
        SchrijfBlad(tabel_, wortel_, Opties(), Hoofd().MaakGegevens(), uit);
        return Einde::Klaar;
      });
  return uitslag == Einde::Klaar;
}

void KwstBldParam::OKButtonKlik(int nummer) {
  nummer == 1 ? DrukAf() : SlaOp();
}

// A printer that fails is told by the printing itself.
void KwstBldParam::DrukAf() {
  if (!MaakBlad()) return;
  const std::optional<Afdruk> afdruk = Paginas(Pad());
  if (!afdruk) {
    Hoofd().gesprek.Fout(kPrintFout);
  } else if (Hoofd().gesprek.DrukAf(*afdruk)) {
    Sluit();
  }
}

void KwstBldParam::SlaOp() {
  if (!MaakBlad()) return;
  const BestandsVraag vraag{BestandsWijze::Opslaan, std::string(kTekstFilter),
                            Hoofd().Ini.TekstDir()};
  const std::filesystem::path naam =
      Opslagnaam("Kwartierblad " + Persoon.VoorNm.Tekst() + " " + Persoon.AchterNm.Tekst(), ".txt");
  const Tekencode code = UTF8Box.Gekozen() ? Tekencode::Utf8 : Tekencode::Zelfde;
  if (SlaTekstOp(Hoofd().gesprek, {Hoofd().programmaMap, Hoofd().Ini, Hoofd().ActieveSetNaam},
                 Pad(), vraag, naam, code))
    Sluit();
}

}  // namespace lb77
