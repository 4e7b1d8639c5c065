// A small text file, read and written whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "store/SysteemFout.h"

namespace lb77 {

// The bytes of the file in `inhoud`, which is empty after a failure.
[[nodiscard]] SysteemFout LeesHeelBestand(const std::filesystem::path& pad, std::string& inhoud);

// How far a writing came before it failed; Klaar is success.
enum class SchrijfStap { Openen, Schrijven, Klaar };
struct SchrijfUitslag {
  SchrijfStap stap = SchrijfStap::Klaar;
  SysteemFout fout;
};

// Replaces what the file held. After a failure of Schrijven the file is cut short.
[[nodiscard]] SchrijfUitslag SchrijfHeelBestand(const std::filesystem::path& pad,
                                                std::string_view inhoud);

}  // namespace lb77
