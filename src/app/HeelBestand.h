// A small text file, read and written whole, and the operations by which a new one takes its place.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "store/SysteemFout.h"

namespace lb77 {

// A longer file is none of ours.
inline constexpr std::uint64_t kMaxHeelBestand = 1024 * 1024;

// The bytes of the file in `inhoud`, which is empty after a failure. What is no ordinary file, or
// has more than kMaxHeelBestand bytes, is a failure; nothing is waited for.
[[nodiscard]] SysteemFout LeesHeelBestand(const std::filesystem::path& pad, std::string& inhoud);

// How far a writing came before it failed; Klaar is success.
enum class SchrijfStap { Openen, Schrijven, Klaar };
struct SchrijfUitslag {
  SchrijfStap stap = SchrijfStap::Klaar;
  SysteemFout fout;
};

// The operations on the disk by which a file is replaced. Tests derive from it to fail one of them,
// or to stop there as a power cut does.
class Bestandswerk {
 public:
  Bestandswerk() = default;
  virtual ~Bestandswerk() = default;
  Bestandswerk(const Bestandswerk&) = delete;
  Bestandswerk& operator=(const Bestandswerk&) = delete;

  // A new file with these bytes; what had the name goes first. After a failure of Schrijven the file
  // is cut short.
  [[nodiscard]] virtual SchrijfUitslag Maak(const std::filesystem::path& pad,
                                            std::string_view inhoud);
  // These bytes in the existing file itself. After a failure of Schrijven it holds some of both.
  [[nodiscard]] virtual SchrijfUitslag Overschrijf(const std::filesystem::path& pad,
                                                   std::string_view inhoud);
  // Brings the file, or the names in the directory, to the disk itself.
  [[nodiscard]] virtual SysteemFout Veiligstellen(const std::filesystem::path& pad);
  [[nodiscard]] virtual SysteemFout VeiligstellenMap(const std::filesystem::path& map);
  // An absent file is no failure, a directory is one.
  [[nodiscard]] virtual SysteemFout Verwijder(const std::filesystem::path& pad);
  // A second name for a file.
  [[nodiscard]] virtual SysteemFout Koppel(const std::filesystem::path& bestand,
                                           const std::filesystem::path& naam);
  // At one moment the name stands for the one file, at the next for the other.
  [[nodiscard]] virtual SysteemFout Hernoem(const std::filesystem::path& van,
                                            const std::filesystem::path& naar);
};

}  // namespace lb77
