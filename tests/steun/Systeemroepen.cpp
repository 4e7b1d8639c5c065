#include "steun/Systeemroepen.h"

#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace lb77 {

namespace {

// The one that is alive. A function of the system knows no object, so that it stands here.
Systeemroepen*& Levende() {
  static Systeemroepen* levende = nullptr;
  return levende;
}

bool Mislukt(Roep roep, int greep) {
  return Levende() != nullptr && Levende()->Treft(roep, greep);
}

// The system's own function of that name.
template <class Functie>
Functie Echt(const char* naam) {
  return reinterpret_cast<Functie>(::dlsym(RTLD_NEXT, naam));
}

}  // namespace

Systeemroepen::Systeemroepen() {
  Levende() = this;
}

Systeemroepen::~Systeemroepen() {
  Levende() = nullptr;
}

void Systeemroepen::Faal(Roep roep, int bij, int fout) {
  roep_ = roep;
  bij_ = bij;
  fout_ = fout;
}

std::vector<std::filesystem::path> Systeemroepen::NeemNaarSchijf() {
  std::ranges::sort(naarSchijf_);
  return std::exchange(naarSchijf_, {});
}

bool Systeemroepen::Treft(Roep roep, int greep) {
  if (roep == Roep::NaarSchijf) {
    std::error_code code;
    naarSchijf_.push_back(
        std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(greep), code));
  }
  if (roep != roep_ || bij_ < 1 || --bij_ > 0) return false;
  errno = fout_;
  return true;
}

}  // namespace lb77

// In the place of those of the system, for whoever in this program calls them.
extern "C" {

int fsync(int greep) {
  if (lb77::Mislukt(lb77::Roep::NaarSchijf, greep)) return -1;
  return lb77::Echt<int (*)(int)>("fsync")(greep);
}

int ftruncate(int greep, off_t lengte) noexcept {
  if (lb77::Mislukt(lb77::Roep::Kap, greep)) return -1;
  return lb77::Echt<int (*)(int, off_t)>("ftruncate")(greep, lengte);
}

ssize_t read(int greep, void* doel, size_t aantal) {
  if (lb77::Mislukt(lb77::Roep::Lees, greep)) return -1;
  return lb77::Echt<ssize_t (*)(int, void*, size_t)>("read")(greep, doel, aantal);
}

ssize_t pread(int greep, void* doel, size_t aantal, off_t plaats) {
  if (lb77::Mislukt(lb77::Roep::Lees, greep)) return -1;
  return lb77::Echt<ssize_t (*)(int, void*, size_t, off_t)>("pread")(greep, doel, aantal, plaats);
}

ssize_t pwrite(int greep, const void* bron, size_t aantal, off_t plaats) {
  if (lb77::Mislukt(lb77::Roep::Schrijf, greep)) return -1;
  return lb77::Echt<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite")(greep, bron, aantal,
                                                                            plaats);
}
}
