// Computes and writes an ancestor index without a form.
#pragma once

#include <string>
#include <string_view>

#include "ancestors/KwstIdxSchrijver.h"
#include "ancestors/KwstSchrijverToets.h"
#include "steun/Gouden.h"

namespace lb77 {

class KwstIdxToets : public KwstSchrijverToets {
 protected:
  KwstIdxToets() { opties_.KwHTMLFile = "KWSTDATA.HTM"; }

  Uitslag SchrijfMet(TekstSchrijver& schrijver, const Gegevens& bronnen) override {
    schrijver.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
    return KwstIdxSchrijver(tabel_, opties_, bronnen, schrijver, verloop_).Schrijf();
  }
  // Expects the index in tests/gouden/kwidx, as text and as HTML.
  void VerwachtIndex(std::int16_t proband, const std::string& naam) {
    opties_.KwInHTML = false;
    EXPECT_EQ(Schrijf(proband), Einde::Klaar);
    VerwachtGouden("kwidx/" + naam + ".txt", uit_);
    opties_.KwInHTML = true;
    EXPECT_EQ(Schrijf(proband), Einde::Klaar);
    VerwachtGouden("kwidx/" + naam + ".htm", uit_);
  }
  // The rows of the text as "number code first name", one behind the other.
  [[nodiscard]] std::string Rijen() const {
    std::string uit;
    for (std::size_t p = 0; p < uit_.size(); p = uit_.find('\n', p) + 1) {
      const std::string_view regel = std::string_view(uit_).substr(p, uit_.find('\r', p) - p);
      if (regel.empty() || regel[0] == ' ') continue;
      const auto deel = [regel](std::size_t begin, std::size_t aantal) {
        return std::string(Trim(regel.substr(begin, aantal)));
      };
      uit += deel(61, 26) + " " + deel(88, 4) + " " + deel(30, 31) + "\n";
    }
    return uit;
  }
};

}  // namespace lb77
