// A disk in memory that fails, dies and forgets on demand, with the files of a set and its journal.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "store/Bestandenset.h"
#include "store/JournaalMap.h"
#include "store/RecordBestand.h"

namespace lb77 {

// Operations are counted from 1: all that touches a byte or a name, of whatever file.
class ProefSchijf {
 public:
  // What happens at operation `bij`.
  enum class Wijze {
    Fout,  // it fails and does nothing
    Kort,  // a write has written half of its bytes and fails
    Vol,   // it and all writes behind it fail
    Dood,  // a write has written half of its bytes; the program does nothing more
  };
  int bij = 0;            // 0 is never
  bool lezenTelt = true;  // False: only what changes something is an operation
  Wijze wijze = Wijze::Fout;
  int teller = 0;

  // True when operation `bij` has come.
  [[nodiscard]] bool Geweest() const { return bij > 0 && teller >= bij; }
  // The program starts anew on what stands there.
  void Herstart();
  // The same after a power cut: of what was not brought to the disk any part is lost.
  void Stroomuitval(std::mt19937& toeval);

  // The bytes of a file, "PROEF.PRS" or "00000001.HND"; to be changed as another program would.
  std::string& Bytes(const std::string& naam);
  // The names of the journal.
  [[nodiscard]] std::vector<std::string> Journalen() const;
  // Takes a file away.
  void Verwijder(const std::string& naam) { namen_.erase(naam); }
  // Everything that stands on the disk is safe.
  void MaakVast();
  // All files with their bytes, and a disk that has these, safely, in a program that starts anew.
  using Beeld = std::map<std::string, std::string>;
  [[nodiscard]] Beeld Neem() const;
  void Zet(const Beeld& beeld);

  // The files of a set on this disk, with a journal whose clock stands still.
  Bestandenset::Opener Opener();
  JournaalBron Bron();

 private:
  friend class ProefBestand;
  friend class ProefJournaalMap;

  struct Ingreep {
    bool kap = false;
    std::uint64_t plaats = 0;
    std::string bytes;
  };
  struct Inhoud {
    std::string nu;
    std::string vast;
    std::vector<Ingreep> los;
    std::int64_t tijd = 0;
  };
  using Namen = std::map<std::string, std::shared_ptr<Inhoud>>;
  using NaamIngreep = std::function<void(Namen&)>;

  // Counts an operation: what it gives, and how much of it is done.
  SysteemFout Tel(bool schrijft, bool& half);
  SysteemFout TelLezen();
  static void Doe(std::string& bytes, const Ingreep& ingreep);
  SysteemFout Verander(Inhoud& inhoud, Ingreep ingreep);
  SysteemFout Leg(Inhoud& inhoud);
  SysteemFout Noem(const NaamIngreep& ingreep);
  SysteemFout LegNamen();

  bool dood_ = false;
  std::int64_t klok_ = 0;
  Namen namen_;
  Namen vasteNamen_;
  std::vector<NaamIngreep> losseNamen_;
};

}  // namespace lb77
