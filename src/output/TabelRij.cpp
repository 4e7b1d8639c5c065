#include "output/TabelRij.h"

#include <cstddef>

#include "output/TekstSchrijver.h"
#include "text/HTML.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

std::string OpBreedte(const TabelCel& cel) {
  const auto breedte = static_cast<std::size_t>(cel.breedte);
  if (cel.breedte <= 0) return cel.tekst;
  if (cel.richting == Richting::Links) return Links(cel.tekst, breedte);
  if (cel.tekst.size() >= breedte) return cel.tekst;
  return std::string(breedte - cel.tekst.size(), ' ') + cel.tekst;
}

std::string InHTML(const TabelCel& cel) {
  const std::string tekst = OpBreedte(cel);
  std::string uit = TekstNaarHTML(cel.link.empty() ? std::string_view(tekst) : Trim(tekst));
  if (!cel.link.empty()) uit = "<A HREF=\"" + cel.link + "\">" + uit + "</A>";
  if (cel.vet) uit = "<STRONG>" + uit + "</STRONG>";
  return "<TD>" + uit + "</TD>";
}

}  // namespace

void SchrijfTabelRij(TekstSchrijver& uit, const std::vector<TabelCel>& cellen) {
  std::string regel;
  for (const TabelCel& cel : cellen) regel += uit.InHTML() ? InHTML(cel) : OpBreedte(cel);
  uit.TagRegel("<TR>");
  uit.VolleRegel(regel);
  uit.TagRegel("</TR>");
}

}  // namespace lb77
