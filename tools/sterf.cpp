// A preload library that kills the process at the k-th operation on the files of one directory, as a
// crash would: STERF_MAP names the directory, STERF_BIJ the operation, counted from 1. What the
// system was told before stands; nothing of what came behind does. STERF_TEL names a file that gets
// the number of operations of a process that came to its end. With STERF_STROMEN the operations of
// streams count, too: begun files, writes behind one another, removals and second names. For Linux.
#ifndef _GNU_SOURCE
#define _GNU_SOURCE
#endif
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

int geteld = 0;

bool IsVanDeMap(const char* pad) {
  const char* map = std::getenv("STERF_MAP");
  return map != nullptr && std::strncmp(pad, map, std::strlen(map)) == 0;
}

bool IsVanDeMap(int greep) {
  char link[64];
  char pad[PATH_MAX];
  std::snprintf(link, sizeof link, "/proc/self/fd/%d", greep);
  const ssize_t lengte = ::readlink(link, pad, sizeof pad - 1);
  if (lengte <= 0) return false;
  pad[lengte] = '\0';
  return IsVanDeMap(pad);
}

void Tel() {
  ++geteld;
  const char* bij = std::getenv("STERF_BIJ");
  if (bij != nullptr && geteld == std::atoi(bij)) ::kill(::getpid(), SIGKILL);
}

bool MetStromen() {
  return std::getenv("STERF_STROMEN") != nullptr;
}

bool IsStroomVanDeMap(int greep) {
  return MetStromen() && IsVanDeMap(greep);
}

bool IsStroomVanDeMap(const char* pad) {
  return MetStromen() && IsVanDeMap(pad);
}

// Tells how many there were, when the process ends by itself.
struct Slot {
  ~Slot() {
    const char* naar = std::getenv("STERF_TEL");
    std::FILE* bestand = naar != nullptr ? std::fopen(naar, "w") : nullptr;
    if (bestand == nullptr) return;
    std::fprintf(bestand, "%d\n", geteld);
    std::fclose(bestand);
  }
} slot;

template <class Functie>
Functie Echte(const char* naam) {
  return reinterpret_cast<Functie>(::dlsym(RTLD_NEXT, naam));
}

}  // namespace

extern "C" {

ssize_t pwrite(int greep, const void* bron, size_t lengte, off_t plaats) {
  if (IsVanDeMap(greep)) Tel();
  return Echte<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite")(greep, bron, lengte, plaats);
}

ssize_t pwrite64(int greep, const void* bron, size_t lengte, off64_t plaats) {
  if (IsVanDeMap(greep)) Tel();
  return Echte<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64")(greep, bron, lengte,
                                                                           plaats);
}

int fsync(int greep) {
  if (IsVanDeMap(greep)) Tel();
  return Echte<int (*)(int)>("fsync")(greep);
}

int ftruncate(int greep, off_t lengte) {
  if (IsVanDeMap(greep)) Tel();
  return Echte<int (*)(int, off_t)>("ftruncate")(greep, lengte);
}

int ftruncate64(int greep, off64_t lengte) {
  if (IsVanDeMap(greep)) Tel();
  return Echte<int (*)(int, off64_t)>("ftruncate64")(greep, lengte);
}

int rename(const char* van, const char* naar) {
  if (IsVanDeMap(van)) Tel();
  return Echte<int (*)(const char*, const char*)>("rename")(van, naar);
}

int unlink(const char* pad) {
  if (IsVanDeMap(pad)) Tel();
  return Echte<int (*)(const char*)>("unlink")(pad);
}

int mkdir(const char* pad, mode_t rechten) {
  if (IsVanDeMap(pad)) Tel();
  return Echte<int (*)(const char*, mode_t)>("mkdir")(pad, rechten);
}

ssize_t write(int greep, const void* bron, size_t lengte) {
  if (IsStroomVanDeMap(greep)) Tel();
  return Echte<ssize_t (*)(int, const void*, size_t)>("write")(greep, bron, lengte);
}

ssize_t writev(int greep, const struct iovec* stukken, int aantal) {
  if (IsStroomVanDeMap(greep)) Tel();
  return Echte<ssize_t (*)(int, const struct iovec*, int)>("writev")(greep, stukken, aantal);
}

FILE* fopen(const char* pad, const char* wijze) {
  if (wijze[0] == 'w' && IsStroomVanDeMap(pad)) Tel();
  return Echte<FILE* (*)(const char*, const char*)>("fopen")(pad, wijze);
}

FILE* fopen64(const char* pad, const char* wijze) {
  if (wijze[0] == 'w' && IsStroomVanDeMap(pad)) Tel();
  return Echte<FILE* (*)(const char*, const char*)>("fopen64")(pad, wijze);
}

int remove(const char* pad) {
  if (IsStroomVanDeMap(pad)) Tel();
  return Echte<int (*)(const char*)>("remove")(pad);
}

int link(const char* van, const char* naar) {
  if (IsStroomVanDeMap(naar)) Tel();
  return Echte<int (*)(const char*, const char*)>("link")(van, naar);
}

}  // extern "C"
