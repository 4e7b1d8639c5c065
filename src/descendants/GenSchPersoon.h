// What a descendant chart says of one entry, in the pieces that its drawings arrange.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "descendants/GenOpties.h"
#include "descendants/GenTabel.h"
#include "output/Blik.h"
#include "output/Leesfout.h"
#include "store/Gegevens.h"

namespace lb77 {

// First names and surname as far as the options want them; empty when they do not.
struct SchemaNaam {
  std::string voornamen;
  std::string achternaam;

  // Both on one line.
  [[nodiscard]] std::string Voluit() const;
};

struct SchemaPartner {
  std::string teken;  // "x(1)[12]"
  SchemaNaam naam;
};

// Texts that are not asked for are empty.
struct SchemaPersoon {
  std::string label;                  // "IIIa"
  std::optional<std::string> elders;  // of a repeat: "=", and the label of the first occurrence
  SchemaNaam naam;
  std::string nummer;               // "[12]"
  std::vector<std::string> datums;  // "1802-1870", or "*3-5-1802" and "+1-2-1870"
  std::vector<SchemaPartner> partners;
};

// First names as the options want them, and both names cut to their positions; "N.N." when neither
// is known.
[[nodiscard]] SchemaNaam MaakSchemaNaam(std::string_view voornaam, std::string_view achternaam,
                                        const GenOpties& opties);

// Reads entries of a table. Both outlive it, and so do the options.
class GenSchLezer {
 public:
  GenSchLezer(const GenTabel& tabel, const GenOpties& opties, const Gegevens& bronnen)
      : tabel_(tabel), opties_(opties), bronnen_(bronnen) {}

  // Nothing when a record could not be read; Fout() tells which.
  [[nodiscard]] std::optional<SchemaPersoon> Lees(int i);
  [[nodiscard]] const Leesfout& Fout() const { return fout_; }

 private:
  [[nodiscard]] std::vector<std::string> Datums(const PersoonBlik& persoon);
  [[nodiscard]] bool LeesPartners(std::int16_t nr, std::vector<SchemaPartner>& partners);
  [[nodiscard]] bool LeesNaam(std::int16_t nr, SchemaNaam& naam);

  const GenTabel& tabel_;
  const GenOpties& opties_;
  Gegevens bronnen_;
  Leesfout fout_;
};

}  // namespace lb77
