// A disk that takes no more.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace lb77 {

// For as long as it lives no file of the process grows beyond `bytes` bytes.
class VolleSchijf {
 public:
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

}  // namespace lb77
