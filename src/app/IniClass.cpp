#include "app/IniClass.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>

#include "app/IniPaden.h"
#include "store/Paden.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kOnbekend = "???";
// What the older program leaves behind in place of a name.
constexpr std::string_view kOnbestemd = "*???*";
constexpr int kAantalSets = 99;

const Sleutel& SleutelVan(SleutelPlaats plaats) {
  return AlleSleutels()[plaats.rij];
}

// The row of a key as callers name it; nothing when they may not ask for it.
std::optional<SleutelPlaats> Vraag(std::string_view sectie, std::string_view tag) {
  if (sectie == "Systeem") {
    // kept: the editor is "Edit" in the file and "Editor" in every call
    if (tag == "Edit") return std::nullopt;
    if (tag == "Editor") tag = "Edit";
  }
  const std::optional<SleutelPlaats> plaats = VindSleutel(sectie, tag);
  return plaats ? std::optional(Houder(*plaats)) : std::nullopt;
}

// "ToonTrouw" is an older name of HuwData that is understood but never given.
bool IsToonTrouw(std::string_view sectie, std::string_view tag) {
  return sectie == "Genealogie" && tag == "ToonTrouw";
}

// The number in 16 bits; what does not fit becomes the nearest limit.
std::string Getal16(std::string_view waarde) {
  return GetalTekst(std::clamp(Getalwaarde(waarde), -kMaxRecords - 1, kMaxRecords));
}

std::string ScheiderVan(std::string_view waarde) {
  return Getalwaarde(waarde) == 0 ? "-" : ".";
}

// The value as memory holds it, from a text that the user or the file gives.
std::string InGeheugen(const Sleutel& sleutel, std::string_view waarde) {
  switch (sleutel.soort) {
    case SleutelSoort::Getal:
      return Getal16(waarde);
    case SleutelSoort::Positie:
      return GetalTekst(Getalwaarde(waarde));
    case SleutelSoort::Scheider:
      return ScheiderVan(waarde);
    case SleutelSoort::Tekst:
    case SleutelSoort::DosTekst:
    case SleutelSoort::Pad:
    case SleutelSoort::Gedeeld:
    case SleutelSoort::NooitGelezen:
      break;
  }
  return std::string(waarde);
}

// A value of the file that lies outside the bounds of its key, which differ from the defaults.
struct Grens {
  std::string_view sectie;
  std::string_view naam;
  std::int32_t laagst;
  std::int32_t hoogst;
  std::string_view anders;
};
constexpr std::int32_t kZonderGrens = 2147483647;
constexpr Grens kGrenzen[] = {
    // kept: MainX and MainY fall back on other numbers than their defaults
    {"Scherm", "MainX", 50, 40000, "50"},
    {"Scherm", "MainY", 100, 40000, "100"},
    {"Printer", "Tekstbr", 10, kZonderGrens, "80"},
    {"Printer", "TekstReg", 5, kZonderGrens, "60"},
};

std::string_view Begrensd(const Sleutel& sleutel, std::string_view waarde) {
  for (const Grens& grens : kGrenzen) {
    if (grens.sectie != sleutel.sectie || grens.naam != sleutel.naam) continue;
    const std::int32_t getal = Getalwaarde(waarde);
    if (getal < grens.laagst || getal > grens.hoogst) return grens.anders;
  }
  return waarde;
}

}  // namespace

IniClass::IniClass(Instellingen& instellingen, Schrijfwijze& schrijfwijze, Gesprek& gesprek,
                   std::filesystem::path programmaMap)
    : instellingen_(instellingen),
      schrijfwijze_(schrijfwijze),
      gesprek_(gesprek),
      programmaMap_(std::move(programmaMap)) {
  if (instellingen_.waarden.empty()) ZetStandaard();
}

std::string& IniClass::Cel(SleutelPlaats plaats) const {
  const Sleutel& sleutel = SleutelVan(plaats);
  if (sleutel.sectie == "Namenfile" && sleutel.naam == "Voor1") {
    return schrijfwijze_.voorvoegsels.Voor1;
  }
  if (sleutel.sectie == "Namenfile" && sleutel.naam == "Voor2") {
    return schrijfwijze_.voorvoegsels.Voor2;
  }
  return instellingen_.waarden[plaats.rij][plaats.nummer];
}

void IniClass::ZetStandaard() {
  const std::span<const Sleutel> sleutels = AlleSleutels();
  instellingen_.waarden.assign(sleutels.size(), {});
  instellingen_.paden.assign(sleutels.size(), {});
  for (std::size_t rij = 0; rij < sleutels.size(); ++rij) {
    const Sleutel& sleutel = sleutels[rij];
    instellingen_.waarden[rij].resize(static_cast<std::size_t>(sleutel.aantal) + 1);
    if (sleutel.soort != SleutelSoort::Pad) {
      Cel({rij, 0}) = sleutel.standaard;
    } else if (!sleutel.standaard.empty()) {
      instellingen_.paden[rij] =
          sleutel.standaard == "." ? programmaMap_ : programmaMap_ / sleutel.standaard;
    }
  }
}

std::string IniClass::IniWaarde(std::string_view sectie, std::string_view tag) const {
  const std::optional<SleutelPlaats> plaats = Vraag(sectie, tag);
  if (!plaats) {
    gesprek_.Fout("Onbekende Sectie/Tag:" + std::string(sectie) + "," + std::string(tag));
    return std::string(kOnbekend);
  }
  const Sleutel& sleutel = SleutelVan(*plaats);
  if (sleutel.soort == SleutelSoort::Pad) return PadTekst(instellingen_.paden[plaats->rij]);
  // kept: a separator that was never chosen is not "-", and counts as the other one
  if (sleutel.soort == SleutelSoort::Scheider) return Cel(*plaats) == "-" ? "0" : "1";
  return Cel(*plaats);
}

void IniClass::IniZet(std::string_view sectie, std::string_view tag, std::string_view waarde) {
  const std::optional<SleutelPlaats> plaats =
      Vraag(sectie, IsToonTrouw(sectie, tag) ? "HuwData" : tag);
  if (!plaats) {
    gesprek_.Fout("Onbekende Sectie/Tag (in IniZet):" + std::string(sectie) + "," +
                  std::string(tag));
    return;
  }
  const Sleutel& sleutel = SleutelVan(*plaats);
  if (sleutel.soort != SleutelSoort::Pad) {
    Cel(*plaats) = InGeheugen(sleutel, waarde);
  } else if (PadTekst(instellingen_.paden[plaats->rij]) != waarde) {
    instellingen_.paden[plaats->rij] = PadVan(waarde);
  }
}

std::filesystem::path IniClass::IniPad(std::string_view sectie, std::string_view tag) const {
  const std::optional<SleutelPlaats> plaats = Vraag(sectie, tag);
  return plaats ? instellingen_.paden[plaats->rij] : std::filesystem::path();
}

void IniClass::IniZetPad(std::string_view sectie, std::string_view tag,
                         const std::filesystem::path& pad) {
  const std::optional<SleutelPlaats> plaats = Vraag(sectie, tag);
  if (plaats && SleutelVan(*plaats).soort == SleutelSoort::Pad) {
    instellingen_.paden[plaats->rij] = pad;
  }
}

void IniClass::PasToe(std::string_view sectie, std::string_view sleutel, std::string_view waarde) {
  if (sectie == "Gebruiker" && (sleutel == "Email" || sleutel == "E-mail")) {
    // kept: the file is written with "Email" and read with "E-mail", so that only the address of
    // INTERNET comes back; older files have the other spelling
    const SleutelPlaats adres = VindSleutel("INTERNET", "Email").value();
    if (sleutel == "E-mail" && Cel(adres).empty()) Cel(adres) = waarde;
    return;
  }
  const std::optional<SleutelPlaats> gevonden =
      VindSleutel(sectie, IsToonTrouw(sectie, sleutel) ? "HuwData" : sleutel);
  if (!gevonden) return;
  const Sleutel& rij = SleutelVan(*gevonden);
  const SleutelPlaats plaats = Houder(*gevonden);
  if (rij.soort == SleutelSoort::NooitGelezen) return;
  if (rij.soort == SleutelSoort::Pad) {
    instellingen_.paden[plaats.rij] = PadVanRegel(waarde);
  } else if (rij.soort == SleutelSoort::DosTekst) {
    Cel(plaats) = DosNaarWindows(waarde);
  } else {
    Cel(plaats) = InGeheugen(rij, Begrensd(rij, waarde));
  }
}

std::string IniClass::Regel(SleutelPlaats plaats) const {
  plaats = Houder(plaats);
  const Sleutel& sleutel = SleutelVan(plaats);
  if (sleutel.soort == SleutelSoort::Pad) return PadRegel(instellingen_.paden[plaats.rij]);
  if (sleutel.soort == SleutelSoort::DosTekst) return WindowsNaarDos(Cel(plaats));
  if (sleutel.soort == SleutelSoort::Scheider) return Cel(plaats) == "." ? "1" : "0";
  return Cel(plaats);
}

// The program's directory is where it lies today, and takes along the paths that lay in it.
void IniClass::HerplaatsPaden() {
  const SleutelPlaats prog = VindSleutel("Systeem", "Prog").value();
  const std::filesystem::path vorige = instellingen_.paden[prog.rij];
  if (vorige == programmaMap_) return;
  for (std::filesystem::path& pad : instellingen_.paden)
    pad = Herplaatst(pad, vorige, programmaMap_);
  instellingen_.paden[prog.rij] = programmaMap_;
}

std::string IniClass::bestandenset(int index) const {
  const std::string regel = SetOmschrijving(index);
  if (regel.empty() && index == 1) return std::string(kGeenSetAanwezig);
  return Hoofdletters(std::string_view(regel).substr(0, regel.find(',')));
}

std::string IniClass::BestandenSetOms(int index) const {
  const std::string regel = SetOmschrijving(index);
  const std::size_t komma = regel.find(',');
  return komma == std::string::npos ? std::string() : regel.substr(komma + 1);
}

std::string IniClass::SetOmschrijving(int index) const {
  if (index < 1 || index > kAantalSets) return {};
  return IniWaarde("Sets", "Set" + GetalTekst(index));
}

std::string IniClass::ActieveSet() const {
  const std::string naam = Hoofdletters(IniWaarde("Systeem", "Set"));
  return naam.empty() || naam == kOnbestemd ? std::string(kGeenSetActief) : naam;
}

std::string IniClass::ActieveSetOms() const {
  const std::string oms = IniWaarde("Systeem", "SetOms");
  return oms == kOnbestemd ? std::string() : oms;
}

std::string IniClass::ToonTrouw() const {
  const std::string waarde = IniWaarde("Genealogie", "HuwData");
  return waarde.empty() ? "2" : waarde;
}

std::int16_t IniClass::BestandenSetIndex(std::string_view naam) const {
  for (std::int16_t i = 1; i <= kAantalSets; ++i) {
    const std::string set = bestandenset(i);
    if (set.empty()) return 0;
    if (set == naam) return i;
  }
  return 0;
}

std::int16_t IniClass::AantalBestandenSets() const {
  std::int16_t aantal = 0;
  while (aantal < kAantalSets && !SetOmschrijving(aantal + 1).empty()) ++aantal;
  return aantal;
}

std::filesystem::path IniClass::DataDir() const {
  const std::filesystem::path pad = IniPad("Systeem", "Data");
  return pad.empty() ? programmaMap_ : programmaMap_ / pad;
}

std::filesystem::path IniClass::ProgDir() const {
  return IniPad("Systeem", "Prog");
}

std::filesystem::path IniClass::TempDir() const {
  if (!instellingen_.tijdelijk.empty()) return instellingen_.tijdelijk;
  const std::filesystem::path pad = IniPad("Systeem", "Tempdir");
  return VindPad(pad.empty() ? programmaMap_ : programmaMap_ / pad);
}

std::filesystem::path IniClass::SetMap(std::string_view map) const {
  return VindPad(DataDir() / PadVan(ActieveSet()) / map);
}

std::filesystem::path IniClass::TekstDir() const {
  return SetMap("TEKST");
}

std::filesystem::path IniClass::IndexDir() const {
  return SetMap("INDEX");
}

std::string IniClass::TekstF(int nr) const {
  return IniWaarde("Funktietoetsen", "F" + GetalTekst(nr));
}

std::string IniClass::separator() const {
  return Getalwaarde(IniWaarde("Genealogie", "DatumForm")) == 0 ? "-" : ".";
}

}  // namespace lb77
