// The two files for the contact service, and the log of the run.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/HeelBestand.h"
#include "app/Klok.h"
#include "contact/GciReeksen.h"
#include "contact/GciTabellen.h"

namespace lb77 {

inline constexpr std::string_view kGeenBestanden = "Geen uitvoerbestanden aangemaakt.";

// Who sends the series.
struct GciInzender {
  std::string lidnr;
  std::string naam;
  std::string voornaam;
  std::string geslacht;
  std::string adres;
  std::string postcode;
  std::string plaats;
  std::string land;
  std::string email;
};

// A line of CONTACT.INZ, and one of CONTACT.FAM, without its end.
[[nodiscard]] std::string InzRegel(const GciInzender& inzender);
[[nodiscard]] std::string FamRegel(const GciReeks& reeks, const GciPlaatsen& plaatsen,
                                   std::string_view lidnr);

// Where the output of a run goes.
struct GciPaden {
  std::filesystem::path inz;
  std::filesystem::path fam;
  std::filesystem::path log;

  // In the text directory of a set; files under another case are those.
  [[nodiscard]] static GciPaden In(const std::filesystem::path& map);
};

// Makes both files; each takes its place when both are whole. What went wrong, as the user reads it:
// then those that were there before are there again, unless the text says that one could not be put
// back (it is beside its place as .oud).
[[nodiscard]] std::optional<std::string> SchrijfContact(const GciPaden& paden, std::string_view inz,
                                                        std::string_view fam, Bestandswerk& werk);

// What the log tells of a run.
struct GciVerslag {
  Tijdstip begin;
  std::vector<std::string> namen;  // left out
  std::vector<std::string> plaatsen;
  std::size_t reeksen = 0;
  std::string reden;      // why there are no files, in one or more lines; empty when there are
  std::string gestopt{};  // where the persons ended before their time; empty when they did not
};

[[nodiscard]] std::string LogTekst(const GciVerslag& verslag, const GciPaden& paden);

// Writes the log; what went wrong, as the user reads it.
[[nodiscard]] std::optional<std::string> SchrijfLog(const GciPaden& paden, std::string_view tekst,
                                                    Bestandswerk& werk);

}  // namespace lb77
