#pragma once
#include <cstdint>

// A linear congruential generator of our own: the standard library's distributions differ between makes.
class DemoDice {
  public:
    explicit DemoDice(std::uint64_t seed) : state_(seed) {}
    // The next number, 0 to limit - 1.
    int below(int limit) {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(limit));
    }

  private:
    std::uint64_t state_;
};
