// A disk that takes no more.
#pragma once

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

namespace lb77 {

#ifdef _WIN32

// The system there has no such limit.
class VolleSchijf {
 public:
  static constexpr bool kKan = false;
  static constexpr const char* kWaarom = "hier is geen grens aan een bestand";
  explicit VolleSchijf(unsigned long long) {}
};

#else

// For as long as it lives no file of the process grows beyond `bytes` bytes.
class VolleSchijf {
 public:
  static constexpr bool kKan = true;
  static constexpr const char* kWaarom = "";
  explicit VolleSchijf(rlim_t bytes) : signaal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &oud_);
    const rlimit klein{bytes, oud_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &klein);
  }
  ~VolleSchijf() {
    setrlimit(RLIMIT_FSIZE, &oud_);
    std::signal(SIGXFSZ, signaal_);
  }
  VolleSchijf(const VolleSchijf&) = delete;
  VolleSchijf& operator=(const VolleSchijf&) = delete;

 private:
  rlimit oud_{};
  void (*signaal_)(int);
};

#endif

}  // namespace lb77
