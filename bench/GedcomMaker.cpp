#include "GedcomMaker.h"

#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Stamboom.h"

namespace lb77::bench {
namespace {

// ANSEL: a mark stands before its letter.
constexpr std::string_view kMannen[] = {"Jan",
                                        "Pieter",
                                        "Cornelis",
                                        "Willem",
                                        "Hendrik",
                                        "Gerrit",
                                        "Dirk",
                                        "Jacob",
                                        "Klaas",
                                        "Johannes",
                                        "Adriaan",
                                        "Arie",
                                        "Teunis",
                                        "Maarten",
                                        "Simon",
                                        "Ren\xE2"
                                        "e",
                                        "Aart",
                                        "Huibert",
                                        "Leendert",
                                        "Antonie",
                                        "Evert",
                                        "Bastiaan",
                                        "Joris",
                                        "Floris",
                                        "Wouter",
                                        "Reinier",
                                        "Job",
                                        "Isra\xE8"
                                        "el"};
constexpr std::string_view kVrouwen[] = {"Anna",
                                         "Maria",
                                         "Cornelia",
                                         "Neeltje",
                                         "Trijntje",
                                         "Aaltje",
                                         "Grietje",
                                         "Johanna",
                                         "Hendrika",
                                         "Elisabeth",
                                         "Jannetje",
                                         "Marijtje",
                                         "Adriana",
                                         "Geertje",
                                         "Catharina",
                                         "Pietertje",
                                         "Willemina",
                                         "Zo\xE8"
                                         "e",
                                         "Lijsbeth",
                                         "Dirkje",
                                         "Ariaantje",
                                         "Petronella",
                                         "Sijtje",
                                         "Barbara",
                                         "Antje",
                                         "Hester",
                                         "Margaretha",
                                         "Ida"};
constexpr std::string_view kVoorvoegsels[] = {"",     "",         "",         "",     "de ",
                                              "van ", "van der ", "van den ", "ten ", "van de "};
constexpr std::string_view kNaamBegin[] = {
    "Groen", "Hooge", "Linden", "Water", "Ooster", "Wester", "Noord", "Brug",  "Kerk",  "Molen",
    "Berg",  "Roode", "Zand",   "Veen",  "Steen",  "Beek",   "Wit",   "Bosch", "Heide", "Veld"};
constexpr std::string_view kNaamEind[] = {"man",  "huizen", "boom",  "kamp", "dijk",
                                          "hoek", "laar",   "horst", "stra", "sma"};
constexpr std::string_view kPlaatsEind[] = {"dam",   "drecht", "veen",  "wijk",  "hoven",
                                            "meer",  "oord",   "loo",   "berg",  "kerke",
                                            "monde", "burg",   "stede", "woude", "zijl"};
constexpr std::string_view kMaanden[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                         "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
constexpr std::string_view kBeroepen[] = {
    "landbouwer", "timmerman",   "smid",     "schoolmeester", "bakker",   "schipper", "arbeider",
    "kleermaker", "schoenmaker", "molenaar", "dienstbode",    "naaister", "wever",    "predikant"};
constexpr std::string_view kWoorden[] = {
    "volgens", "het",   "doopboek", "van",     "de",        "kerk",    "getuige", "was",
    "zijn",    "broer", "bij",      "notaris", "testament", "koopt",   "huis",    "en",
    "erf",     "aan",   "gracht",   "poorter", "sinds",     "vermeld", "als",     "weduwnaar"};

constexpr int kNaamAantal = 20;

// The lines of one file; what is asked of `toeval` is asked in the order of the lines.
class Schrijver {
 public:
  Schrijver(const std::filesystem::path& pad, const Stamboom& boom, Toeval& toeval)
      : bestand_(pad, std::ios::binary | std::ios::trunc), boom_(boom), toeval_(toeval) {}

  void Alles() {
    tekst_ = "0 HEAD\n1 SOUR LB77\n1 GEDC\n2 VERS 5.5\n1 CHAR ANSEL\n";
    for (std::size_t i = 0; i < boom_.mensen.size(); ++i) Persoon(i);
    for (std::size_t i = 0; i < boom_.gezinnen.size(); ++i) Relatie(i);
    tekst_ += "0 TRLR\n";
    Leeg();
    bestand_.close();
    if (!bestand_) throw std::runtime_error("het GEDCOM-bestand kan niet worden geschreven");
  }

 private:
  void Persoon(std::size_t nr) {
    const Mens& mens = boom_.mensen[nr];
    Record('I', nr, "INDI");
    Regel("1 NAME ", Naam(mens));
    Regel("1 SEX ", mens.man ? "M" : "F");
    Geboorte(mens);
    if (mens.sterfjaar != 0) Overlijden(mens);
    if (toeval_.Kans(35)) Regel("1 OCCU ", toeval_.Een(kBeroepen));
    if (toeval_.Kans(12)) Opmerking();
    for (const int gezin : mens.gezinnen) Verwijzing("1 FAMS ", 'F', gezin);
    if (mens.ouders != kGeen) Verwijzing("1 FAMC ", 'F', mens.ouders);
    Leeg(kBlok);
  }

  void Geboorte(const Mens& mens) {
    const Dag dag = EenDag(mens.jaar);
    const bool gedoopt = toeval_.Kans(30);
    if (!gedoopt || toeval_.Kans(80)) Gebeurtenis("BIRT", dag);
    if (gedoopt) Gebeurtenis("BAPM", Later(dag));
  }

  void Overlijden(const Mens& mens) {
    const Dag dag = EenDag(mens.sterfjaar);
    Gebeurtenis("DEAT", dag);
    if (toeval_.Kans(15)) Gebeurtenis("BURI", Later(dag));
  }

  void Relatie(std::size_t nr) {
    const Gezin& gezin = boom_.gezinnen[nr];
    Record('F', nr, "FAM");
    Verwijzing("1 HUSB ", 'I', gezin.man);
    Verwijzing("1 WIFE ", 'I', gezin.vrouw);
    Gebeurtenis("MARR", EenDag(gezin.jaar));
    for (const int kind : gezin.kinderen) Verwijzing("1 CHIL ", 'I', kind);
    Leeg(kBlok);
  }

  struct Dag {
    int dag;
    int maand;
    int jaar;
  };

  Dag EenDag(int jaar) {
    const int dag = toeval_.Tussen(1, 28);
    return {dag, toeval_.Onder(12), jaar};
  }

  // A day of the same month, not before `dag`.
  Dag Later(Dag dag) { return {toeval_.Tussen(dag.dag, 28), dag.maand, dag.jaar}; }

  void Gebeurtenis(std::string_view tag, Dag dag) {
    Regel("1 ", tag);
    Regel("2 DATE ", Datum(dag));
    if (toeval_.Kans(85)) Regel("2 PLAC ", Plaatsnaam());
  }

  void Opmerking() {
    Regel("1 NOTE ", Zin());
    for (int n = toeval_.Onder(3); n > 0; --n) {
      const std::string_view begin = toeval_.Kans(50) ? "2 CONT " : "2 CONC ";
      Regel(begin, Zin());
    }
  }

  std::string Naam(const Mens& mens) {
    std::string naam(mens.man ? toeval_.Een(kMannen) : toeval_.Een(kVrouwen));
    if (toeval_.Kans(30))
      naam.append(" ").append(mens.man ? toeval_.Een(kMannen) : toeval_.Een(kVrouwen));
    return naam + " /" + Familienaam(mens.familie) + "/";
  }

  static std::string Familienaam(int familie) {
    const auto n = static_cast<std::size_t>(familie);
    return std::string(kVoorvoegsels[n % std::size(kVoorvoegsels)])
        .append(kNaamBegin[n % kNaamAantal])
        .append(kNaamEind[n / kNaamAantal % std::size(kNaamEind)]);
  }

  // One of three hundred.
  std::string Plaatsnaam() {
    return std::string(toeval_.Een(kNaamBegin)).append(toeval_.Een(kPlaatsEind));
  }

  // Exact, about a year, or before a month.
  std::string Datum(Dag dag) {
    const int soort = toeval_.Onder(20);
    std::string datum = soort == 0 ? "ABT " : soort == 1 ? "BEF " : "";
    if (soort > 1) datum.append(std::to_string(dag.dag)).append(" ");
    if (soort > 0) datum.append(kMaanden[dag.maand]).append(" ");
    return datum + std::to_string(dag.jaar);
  }

  std::string Zin() {
    std::string zin(toeval_.Een(kWoorden));
    for (int n = toeval_.Tussen(3, 10); n > 0; --n) zin.append(" ").append(toeval_.Een(kWoorden));
    return zin;
  }

  void Record(char soort, std::size_t nr, std::string_view tag) {
    tekst_.append("0 ").append(Id(soort, nr)).append(" ").append(tag).append("\n");
  }

  void Verwijzing(std::string_view begin, char soort, int nr) {
    Regel(begin, Id(soort, static_cast<std::size_t>(nr)));
  }

  static std::string Id(char soort, std::size_t nr) {
    return std::string("@") + soort + std::to_string(nr + 1) + "@";
  }

  void Regel(std::string_view begin, std::string_view rest) {
    tekst_.append(begin).append(rest).append("\n");
  }

  // Gives the file what has gathered, once it is more than `blok`.
  void Leeg(std::size_t blok = 0) {
    if (tekst_.size() <= blok) return;
    bestand_.write(tekst_.data(), static_cast<std::streamsize>(tekst_.size()));
    tekst_.clear();
  }

  static constexpr std::size_t kBlok = 65536;

  std::ofstream bestand_;
  const Stamboom& boom_;
  Toeval& toeval_;
  std::string tekst_;
};

}  // namespace

void MaakGedcom(const std::filesystem::path& pad, int personen, int gezinnen, std::uint64_t zaad) {
  Toeval toeval(zaad);
  const Stamboom boom = MaakBevolking(personen, gezinnen, toeval);
  Schrijver(pad, boom, toeval).Alles();
}

void MaakKwartieren(const std::filesystem::path& pad, int generaties, std::uint64_t zaad) {
  Toeval toeval(zaad);
  const Stamboom boom = MaakVoorouders(generaties, toeval);
  Schrijver(pad, boom, toeval).Alles();
}

void MaakParenteel(const std::filesystem::path& pad, int aantal, std::uint64_t zaad) {
  Toeval toeval(zaad);
  const Stamboom boom = MaakNakomelingen(aantal, toeval);
  Schrijver(pad, boom, toeval).Alles();
}

}  // namespace lb77::bench
