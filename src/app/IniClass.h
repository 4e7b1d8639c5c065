// The settings: asked and changed in memory, read once from LIJNBOOM.INI, rewritten whole.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "app/Instellingen.h"
#include "app/Sleutels.h"
#include "forms/Gesprek.h"
#include "text/Schrijfwijze.h"

namespace lb77 {

// What stands for the name of a file set when there is none in the list, or none in use.
inline constexpr std::string_view kGeenSetAanwezig = "<geen bestandenset aanwezig>";
inline constexpr std::string_view kGeenSetActief = "<geen bestandenset actief>";

// The values live in the settings block and, for the prefix lists, in the shared Schrijfwijze, so
// that all instances see the same ones. All texts are Windows-1252. A path is a text in IniWaarde
// and IniZet, and itself in the functions that give a path; a relative one lies in the program's
// directory.
class IniClass {
 public:
  // `programmaMap` is the program's directory, in which the settings file lies. The values are the
  // defaults until IniLees.
  IniClass(Instellingen& instellingen, Schrijfwijze& schrijfwijze, Gesprek& gesprek,
           std::filesystem::path programmaMap);

  // The value of a setting; "???" after an error message when there is no such setting.
  [[nodiscard]] std::string IniWaarde(std::string_view sectie, std::string_view tag) const;
  // Sets the defaults and reads the file; tells when it had to be made again from a copy. False when
  // the user chose to stop, or when no file can be made: the program must end then. Where nothing is
  // kept, the defaults stand for a missing file.
  [[nodiscard]] bool IniLees();
  // Sets the defaults and writes a file of them, where there was none.
  void IniNieuw();
  // Writes the whole file and keeps the last one as LB77_INI.BAK; nothing where nothing is kept. What
  // another run of the program has changed in it meanwhile stays, where this one changed nothing since
  // it last read or wrote; its list of sets is taken over. Tells its failures itself; the last file is
  // still there after one. When the user answers one with Cancel, EindeGevraagd is
  // True from then on.
  void IniSchrijf();
  // Changes a value in memory; an error message when there is no such setting.
  void IniZet(std::string_view sectie, std::string_view tag, std::string_view waarde);
  // The parent of all file sets.
  [[nodiscard]] std::filesystem::path DataDir() const;
  // Name of file set `index`, 1 to 99, in capitals; kGeenSetAanwezig when entry 1 is empty, the
  // empty text when another is.
  [[nodiscard]] std::string bestandenset(int index) const;
  // Its description: what follows the first comma.
  [[nodiscard]] std::string BestandenSetOms(int index) const;
  // The set that was used last, in capitals; kGeenSetActief when there is none.
  [[nodiscard]] std::string ActieveSet() const;
  [[nodiscard]] std::string ActieveSetOms() const;
  // The whole entry of a file set: name, comma, description.
  [[nodiscard]] std::string SetOmschrijving(int index) const;
  // How marriage data are shortened: "1", "2" or "0".
  [[nodiscard]] std::string ToonTrouw() const;
  // Index of the set of that name; 0 when no entry before the first empty one has it.
  [[nodiscard]] std::int16_t BestandenSetIndex(std::string_view naam) const;
  // The number of entries before the first empty one.
  [[nodiscard]] std::int16_t AantalBestandenSets() const;
  [[nodiscard]] std::filesystem::path ProgDir() const;
  // Directories of the active set's text output and index output. One that exists under another
  // case is given as it is spelled, as is the next one.
  [[nodiscard]] std::filesystem::path TekstDir() const;
  [[nodiscard]] std::filesystem::path IndexDir() const;
  // The directory of temporary files.
  [[nodiscard]] std::filesystem::path TempDir() const;
  // Text of function key `nr`, 1 to 12.
  [[nodiscard]] std::string TekstF(int nr) const;
  // Separator of dates: "-" or ".".
  [[nodiscard]] std::string separator() const;

  // For path fields, which keep a path that no text can hold: the path of a setting as it is stored,
  // and its change. The empty path, and no effect, for a setting that is none.
  [[nodiscard]] std::filesystem::path IniPad(std::string_view sectie, std::string_view tag) const;
  void IniZetPad(std::string_view sectie, std::string_view tag, const std::filesystem::path& pad);
  // The user chose to end the program in a message about the settings file.
  [[nodiscard]] bool EindeGevraagd() const { return instellingen_.eindeGevraagd; }

 private:
  void ZetStandaard();
  void LeesRegels(std::string_view inhoud);
  // All settings in the form of the file: those in memory, and those of such a text.
  [[nodiscard]] IniBeeld Beeld() const;
  [[nodiscard]] IniBeeld BeeldVan(std::string_view inhoud) const;
  // Takes what is in memory for what the file holds.
  void Onthoud();
  // The text of the file, over the one that is there; `stand` is how things are once it is written.
  [[nodiscard]] std::string NieuweTekst(const std::string* huidig, IniStand& stand) const;
  void NeemSetsOver(IniStand& stand);
  void PasToe(std::string_view sectie, std::string_view sleutel, std::string_view waarde);
  void HerplaatsPaden();
  // Where a value stands in memory; not for a row that holds a path.
  [[nodiscard]] std::string& Cel(SleutelPlaats plaats) const;
  // A value in the form of the file.
  [[nodiscard]] std::string Regel(SleutelPlaats plaats) const;
  [[nodiscard]] std::filesystem::path SetMap(std::string_view map) const;

  Instellingen& instellingen_;
  Schrijfwijze& schrijfwijze_;
  Gesprek& gesprek_;
  std::filesystem::path programmaMap_;
};

}  // namespace lb77
