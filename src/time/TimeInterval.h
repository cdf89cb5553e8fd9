#pragma once
// A signed length of time in microseconds.

#include <cstdint>

// Adds, subtracts and compares as a plain signed 64-bit count; sums wrap rather than trap.
class TimeInterval {
  public:
    TimeInterval() : count(0) {}
    explicit TimeInterval(std::int64_t microseconds) : count(microseconds) {}

    // Returns the length in microseconds.
    std::int64_t Microseconds() const { return count; }

    TimeInterval& operator+=(TimeInterval other) {
        count = Wrap(static_cast<std::uint64_t>(count) + static_cast<std::uint64_t>(other.count));
        return *this;
    }
    TimeInterval& operator-=(TimeInterval other) {
        count = Wrap(static_cast<std::uint64_t>(count) - static_cast<std::uint64_t>(other.count));
        return *this;
    }
    TimeInterval operator-() const {
        return TimeInterval(Wrap(0 - static_cast<std::uint64_t>(count)));
    }

    friend TimeInterval operator+(TimeInterval a, TimeInterval b) { return a += b; }
    friend TimeInterval operator-(TimeInterval a, TimeInterval b) { return a -= b; }
    friend bool operator==(TimeInterval a, TimeInterval b) { return a.count == b.count; }
    friend bool operator!=(TimeInterval a, TimeInterval b) { return a.count != b.count; }
    friend bool operator<(TimeInterval a, TimeInterval b) { return a.count < b.count; }
    friend bool operator>(TimeInterval a, TimeInterval b) { return a.count > b.count; }
    friend bool operator<=(TimeInterval a, TimeInterval b) { return a.count <= b.count; }
    friend bool operator>=(TimeInterval a, TimeInterval b) { return a.count >= b.count; }

    // Returns the two's complement reading of an unsigned sum.
    static std::int64_t Wrap(std::uint64_t bits) { return static_cast<std::int64_t>(bits); }

  private:
    std::int64_t count;
};
