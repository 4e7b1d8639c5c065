// The lists over whole files: what tells one from another.
#pragma once

#include <string_view>

namespace lb77 {

// The file lies in the directory for temporary files.
struct LijstSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view bestand;
  std::string_view venster;  // title of the viewer
  std::string_view leeg;     // said when too little was given
  std::string_view hulp;     // chapter of the manual
};

inline constexpr std::string_view kGeenGegevens = "Geen gegevens om naar te zoeken opgegeven";
inline constexpr std::string_view kGeenStamouder = "Geen stamouder opgegeven";

inline constexpr LijstSoort kSelectPrs{"SelectPrs",    "Selecteer Personen",
                                       "ZOEK_PRS.TMP", "Resultaat Selectie Personen",
                                       kGeenGegevens,  "selecties"};
inline constexpr LijstSoort kSelectRel{"SelectRel",    "Selecteer Relaties",
                                       "ZOEK_REL.TMP", "Resultaat Selectie Relaties",
                                       kGeenGegevens,  "selecties"};
inline constexpr LijstSoort kSelectPlts{"SelectPlts",
                                        "Selecteer Plaatsen",
                                        "ZOEKPLTS.TMP",
                                        "Resultaat Selectie Plaatsen",
                                        "Geen plaats om naar te zoeken opgegeven",
                                        "selecties"};
inline constexpr LijstSoort kSelectOpm{"SelectOpm",
                                       "Selecteer Opmerkingen",
                                       "ZOEK_OPM.TMP",
                                       "Resultaat Selectie Opmerkingen",
                                       "Geen tekst om naar te zoeken opgegeven",
                                       "selecties"};

inline constexpr LijstSoort kRptTakken{"RptTakken",    "Rapport Takkenverdeling",
                                       "ZOEK_TAK.TMP", "Takkenverdeling",
                                       kGeenStamouder, "statistieken"};
// kept: its viewer has the title of the report above.
inline constexpr LijstSoort kRptFamilies{"RptFamilies",
                                         "Rapport Verdeling Familienamen",
                                         "ZOEK_FAM.TMP",
                                         "Takkenverdeling",
                                         "Onjuist minimum aantal naamdragers opgegeven (1-1000)",
                                         "statistieken"};
inline constexpr LijstSoort kRptTijdbalk{"RptTijdbalk",  "Rapport Populatiegrafiek",
                                         "ZOEK_TYD.TMP", "Populatiegrafiek",
                                         kGeenStamouder, "statistieken"};

}  // namespace lb77
