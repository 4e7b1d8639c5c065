#include "reporting/HTMLPagina.h"

#include <cstdint>
#include <vector>

#include "output/TekstSchrijver.h"
#include "text/HTML.h"
#include "text/RomeinsGetal.h"

namespace lb77 {
namespace {

std::string Romeins(int generatie) {
  return RomeinsGetal(static_cast<std::int16_t>(generatie));
}

std::string Link(std::string_view adres, std::string_view tekst) {
  return "<A HREF=" + TussenQuotes(adres) + ">" + std::string(tekst) + "</A><BR>";
}

// Title and introduction without what is empty.
std::vector<std::string> TitelRegels(const PaginaTeksten& t) {
  std::vector<std::string> uit{t.titel};
  uit.insert(uit.end(), t.inleiding.begin(), t.inleiding.end());
  std::erase(uit, std::string());
  return uit;
}

void SlotRegel(TekstSchrijver& uit, std::string_view waarde, const std::string& regel) {
  if (waarde.empty()) return;
  uit.LegeRegel();
  uit.VolleRegel(regel);
}

void SlotInHTML(TekstSchrijver& uit, const PaginaTeksten& t) {
  uit.LegeRegel();
  uit.VolleRegel("<HR>");
  SlotRegel(uit, t.copyrightRegel,
            "<BR><CENTER>&copy;" + TekstNaarHTML(t.copyrightRegel) + "</CENTER><BR>");
  SlotRegel(uit, t.programmaRegel, "<CENTER>" + t.programmaRegel + "</CENTER><BR>");
  SlotRegel(uit, t.email, t.emailTekst + " " + Link("mailto:" + t.email, t.email));
  SlotRegel(uit, t.homePage, t.homePageLabel + " " + Link(t.homePage, t.homePageTekst));
  SlotRegel(uit, t.hskHome, Link(t.hskHome, t.hskHomeTekst));
  uit.LegeRegel();
  uit.VolleRegel("<CENTER><A HREF=#TOP>Terug naar de top</A></CENTER><BR>");
  uit.VolleRegel("<HR>");
  uit.VolleRegel("</BODY>");
  uit.VolleRegel("</HTML>");
}

void SlotInTekst(TekstSchrijver& uit, const PaginaTeksten& t) {
  const std::string inspringing(10, ' ');
  if (!t.copyrightRegel.empty()) uit.VolleRegel(inspringing + t.copyrightRegel);
  if (!t.programmaRegel.empty()) uit.VolleRegel(inspringing + t.programmaRegel);
}

}  // namespace

std::string TussenQuotes(std::string_view tekst) {
  return '"' + std::string(tekst) + '"';
}

std::string Anker(std::string_view naam) {
  return "<A NAME=" + TussenQuotes(naam) + "></A>";
}

std::string VerwijzingNaar(std::string_view naam, std::string_view tekst) {
  return "<A HREF=" + TussenQuotes("#" + std::string(naam)) + ">" + std::string(tekst) + "</A>";
}

void SchrijfHTMLKop(TekstSchrijver& uit, const PaginaTeksten& teksten, std::string_view kop,
                    std::string_view voornaam, std::string_view achternaam) {
  uit.VolleRegel("<HTML>");
  uit.VolleRegel("<HEAD>");
  uit.VolleRegel("<TITLE>");
  uit.VolleRegel(std::string(kop) + " " + TekstNaarHTML(voornaam) + " " +
                 TekstNaarHTML(achternaam));
  uit.VolleRegel("</TITLE>");
  uit.VolleRegel("</HEAD>");
  uit.VolleRegel("<!--Gemaakt met LB77 voor Windows -->");
  uit.VolleRegel("<BODY>");
  uit.VolleRegel("<A NAME=TOP>");
  if (!teksten.titel.empty()) {
    uit.VolleRegel("<CENTER><H1>" + TekstNaarHTML(teksten.titel) + "</H1></CENTER>");
  }
  for (const std::string& regel : teksten.inleiding) {
    if (!regel.empty()) uit.VolleRegel("<H3>" + TekstNaarHTML(regel) + "</H3><BR>");
  }
}

void SchrijfGeneratie(TekstSchrijver& uit, int generatie, int eerste, int laatste) {
  uit.Vast("Generatie " + Romeins(generatie));
  if (!uit.InHTML()) {
    uit.EindeRegel();
    return;
  }
  const auto link = [&uit](int gen) {
    uit.Vast(VerwijzingNaar(Romeins(gen), "(Generatie " + Romeins(gen) + ")"));
  };
  uit.Vast(Anker(Romeins(generatie)));
  if (generatie > eerste) link(generatie - 1);
  if (generatie < laatste) link(generatie + 1);
  uit.VolleRegel("</H4>");
  uit.LegeRegel();
}

void SchrijfSlot(TekstSchrijver& uit, const PaginaTeksten& teksten) {
  uit.ZetMarge(true, 0);
  if (uit.InHTML()) {
    SlotInHTML(uit, teksten);
  } else {
    uit.LegeRegel();
    uit.LegeRegel();
    SlotInTekst(uit, teksten);
  }
  uit.LegeRegel();
}

void SchrijfTitelInTekst(TekstSchrijver& uit, const PaginaTeksten& teksten) {
  if (uit.InHTML()) return;
  for (const std::string& regel : TitelRegels(teksten)) uit.VolleRegel(regel);
}

void SchrijfSchemaKop(TekstSchrijver& uit, const PaginaTeksten& teksten, std::string_view kop,
                      std::string_view voornaam, std::string_view achternaam) {
  uit.ZetMarge(true, 0);
  if (uit.InHTML()) SchrijfHTMLKop(uit, teksten, kop, voornaam, achternaam);
  SchrijfTitelInTekst(uit, teksten);
  if (!uit.InHTML() && !TitelRegels(teksten).empty()) uit.LegeRegel();
  uit.TagRegel("<BR>");
  uit.TagRegel("<PRE>");
}

void SchrijfSchemaSlot(TekstSchrijver& uit, const PaginaTeksten& teksten) {
  uit.LegeRegel();
  uit.TagRegel("</PRE>");
  if (uit.InHTML()) {
    SchrijfSlot(uit, teksten);
  } else {
    SlotInTekst(uit, teksten);
  }
}

}  // namespace lb77
