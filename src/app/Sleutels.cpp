#include "app/Sleutels.h"

#include <array>

#include "text/Getallen.h"

namespace lb77 {

namespace {

using enum SleutelSoort;

constexpr std::string_view kVoor1 = "van,von,op,ter,ten,'s,onder,aan,de,in,la,l',le,zum,am,zur,auf";
constexpr std::string_view kVoor2 = "de,den,der,het,du,la,'t,d',dem";

// clang-format off
constexpr Sleutel kSleutels[] = {
    {"Lijnboom", "Versie", "2.1"},
    {"Lijnboom", "Copyright", "LB77"},
    {"Systeem", "Set", ""},
    {"Systeem", "SetOms", ""},
    {"Systeem", "Data", "DATA", Pad},
    {"Systeem", "Prog", ".", Pad},
    {"Systeem", "Index", ""},
    {"Systeem", "Tekst", ""},
    {"Systeem", "Tempdir", "TEMP", Pad},
    {"Systeem", "Edit", "LBEDIT"},
    {"Systeem", "OpslaanVelden", "J"},
    {"Gebruiker", "Lidnr", ""},
    {"Gebruiker", "Voornaam", "", DosTekst},
    {"Gebruiker", "Naam", "", DosTekst},
    {"Gebruiker", "Adres", "", DosTekst},
    {"Gebruiker", "Postcode", ""},
    {"Gebruiker", "Plaats", "", DosTekst},
    {"Gebruiker", "Land", ""},
    {"Gebruiker", "Telefoon", ""},
    {"Gebruiker", "Geslacht", ""},
    {"Gebruiker", "Email", "INTERNET", Gedeeld},
    {"INTERNET", "Email", ""},
    {"INTERNET", "EmailLabel", ""},
    {"INTERNET", "HomePage", ""},
    {"INTERNET", "HomePageLink", ""},
    {"INTERNET", "HomePageLabel", ""},
    {"Sets", "Set", "", Tekst, 99},
    {"Namenfile", "Voor1", kVoor1, DosTekst},
    {"Namenfile", "Voor2", kVoor2, DosTekst},
    {"Namenfile", "Gez", "", DosTekst, 20},
    {"Funktietoetsen", "F", "", DosTekst, 12},
    {"Genealogie", "DatumForm", "0", Scheider},
    {"Genealogie", "Hoofdletters", ""},
    {"Genealogie", "FamNaamWeerg", ""},
    {"Genealogie", "Onderscheid", ""},
    {"Genealogie", "HuwData", "1"},
    {"KWST", "SoortUitv", ""},
    {"KWST", "OokNummers", "N"},
    {"KWST", "OokOpm", "J"},
    {"KWST", "VolgHerh", "N"},
    {"KWST", "HTML", "N"},
    {"KWST", "OokCopyRt", "J"},
    {"KWST", "OokLB77", "J"},
    {"KWST", "OokEmail", "N"},
    {"KWST", "OokHomePage", "N"},
    {"KWST", "OokHSKHome", "N"},
    {"GEN", "OokNummers", "N"},
    {"GEN", "OokOpm", "J"},
    {"GEN", "VolgHerh", "N"},
    {"GEN", "HTML", "N"},
    {"GEN", "OokCopyRt", "J"},
    {"GEN", "OokLB77", "J"},
    {"GEN", "OokEmail", "N"},
    {"GEN", "OokHomePage", "N"},
    {"GEN", "OokHSKHome", "N", NooitGelezen},
    {"GEN", "VolgZonen", "5"},
    {"GEN", "VolgDochters", "4"},
    {"GEN", "Verwijzing", "J"},
    {"GEN", "PerGeneratie", "N"},
    {"GEN", "Uitsluiten", "N"},
    {"GEN", "Leeftijd", "79"},
    {"GENB", "OokPrsNrs", "N"},
    {"GENB", "OokVolgNrs", "N"},
    {"GENB", "OokRelNrs", "N"},
    {"GENB", "OokOpm", "J"},
    {"GENB", "VoorNamen", "1"},
    {"GENB", "PosVNamen", "30"},
    {"GENB", "AchterNamen", "1"},
    {"GENB", "PosANamen", "25"},
    {"GENB", "Partners", "1"},
    {"GENB", "ToonDatums", "0"},
    {"GENB", "VolgHerh", "N"},
    {"GENB", "HTML", "N"},
    {"GENB", "OokCopyRt", "J"},
    {"GENB", "OokLB77", "J"},
    {"GENB", "OokEmail", "N"},
    {"GENB", "OokHomePage", "N"},
    {"GENB", "OokHSKHome", "N", NooitGelezen},
    {"GENB", "VolgZonen", "5"},
    {"GENB", "VolgDochters", "4"},
    {"GENB", "Vertikaal", "N"},
    {"GENB", "Centreren", ""},
    {"GENB", "Uitsluiten", "N"},
    {"GENB", "Leeftijd", "79"},
    {"GEZIN", "SoortUitv", "1"},
    {"GEZIN", "OokNummers", "J"},
    {"GEZIN", "OokOpm", "J"},
    {"KWGR", "Generaties", "4"},
    {"KWGR", "OokNummers", "N"},
    {"KWGR", "OokJaren", "N"},
    {"KWGR", "Uitlijnen", "N"},
    {"KWGR", "Breedte", "8"},
    {"KWGR", "HTML", "N"},
    {"KWGR", "OokCopyRt", "J"},
    {"KWGR", "OokLB77", "J"},
    {"KWBLD", "HSK_CBG", ""},
    {"KWBLD", "OokNummers", "KWST", Gedeeld},
    {"KWBLD", "OokCopyRt", "KWST", Gedeeld},
    {"KWBLD", "OokLB77", "KWST", Gedeeld},
    {"GCI", "Data", "", Pad},
    {"GCI", "AantalPersonen", ""},
    {"GCI", "MinJaren", ""},
    {"GCI", "MaxGat", ""},
    {"GCI", "MaxJaartal", ""},
    {"GCI", "MetCorrectie", ""},
    {"GCI", "GebPlaatsKind", ""},
    {"GCI", "PublicatieMag", ""},
    {"Scherm", "Kleur", "7,1"},
    {"Scherm", "MenuKleur", "7,1"},
    {"Scherm", "FoutKleur", "11,4"},
    {"Scherm", "MainX", "100", Positie},
    {"Scherm", "MainY", "50", Positie},
    {"Printer", "Tekstbr", "0", Getal},
    {"Printer", "TekstReg", "0", Getal},
    {"Printer", "Marge", "0", Getal},
    {"Printer", "Formulier", ""},
    {"Printer", "DoorvPag", ""},
    {"Printer", "PagNum", ""},
    {"Printer", "BovMar", "0", Getal},
    {"Printer", "OndMar", "0", Getal},
    {"Printer", "IBMSet", ""},
    {"Printer", "ControlPica", ""},
    {"Printer", "ControlElite", ""},
    {"Printer", "ControlCond", ""},
    {"Printer", "ControlReset", ""},
    {"Shell", "Prog", "", Tekst, 10},
    {"Einde", "Snel", ""},
    {"ZOEK", "Resultaat", ""},
};
// clang-format on

// The number behind the name of a list, 0 when it is none of the list's.
std::size_t Nummer(const Sleutel& sleutel, std::string_view naam) {
  if (!naam.starts_with(sleutel.naam)) return 0;
  const std::int32_t nummer = Getalwaarde(naam.substr(sleutel.naam.size()));
  return nummer >= 1 && nummer <= sleutel.aantal ? static_cast<std::size_t>(nummer) : 0;
}

}  // namespace

std::span<const Sleutel> AlleSleutels() {
  return kSleutels;
}

std::optional<SleutelPlaats> VindSleutel(std::string_view sectie, std::string_view naam) {
  for (std::size_t rij = 0; rij < std::size(kSleutels); ++rij) {
    const Sleutel& sleutel = kSleutels[rij];
    if (sleutel.sectie != sectie) continue;
    if (sleutel.aantal == 0) {
      if (sleutel.naam == naam) return SleutelPlaats{rij, 0};
    } else if (const std::size_t nummer = Nummer(sleutel, naam)) {
      return SleutelPlaats{rij, nummer};
    }
  }
  return std::nullopt;
}

SleutelPlaats Houder(SleutelPlaats plaats) {
  const Sleutel& sleutel = kSleutels[plaats.rij];
  if (sleutel.soort != Gedeeld) return plaats;
  return VindSleutel(sleutel.standaard, sleutel.naam).value_or(plaats);
}

}  // namespace lb77
