// A user who may read a directory and change nothing in it, or less.
#pragma once

#ifndef _WIN32
#include <sys/types.h>
#include <unistd.h>
#endif

#include <exception>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace lb77 {

#ifdef _WIN32

// What a directory there refuses lies in lists that no standard library writes.
class ZonderRechten {
 public:
  static constexpr bool kKan = false;
  static constexpr const char* kWaarom = "hier weigert een directory niets";
  explicit ZonderRechten(const std::filesystem::path&,
                         std::filesystem::perms = std::filesystem::perms(0555)) {}
};

#else

// For as long as it lives. The administrator, whom no directory refuses anything, becomes nobody.
class ZonderRechten {
 public:
  static constexpr bool kKan = true;
  static constexpr const char* kWaarom = "";
  explicit ZonderRechten(std::filesystem::path map,
                         std::filesystem::perms rechten = std::filesystem::perms(0555))
      : map_(std::move(map)), wie_(geteuid()) {
    std::filesystem::permissions(map_, rechten);
    if (wie_ == 0 && seteuid(kNiemand) != 0) throw std::runtime_error("seteuid");
  }
  ~ZonderRechten() {
    if (wie_ == 0 && seteuid(wie_) != 0) std::terminate();
    std::filesystem::permissions(map_, std::filesystem::perms(0755));
  }
  ZonderRechten(const ZonderRechten&) = delete;
  ZonderRechten& operator=(const ZonderRechten&) = delete;

 private:
  static constexpr uid_t kNiemand = 65534;
  std::filesystem::path map_;
  uid_t wie_;
};

#endif

}  // namespace lb77
