#pragma once
// A pair of positions, used for byte positions in a stream.

// A start and an end position; the end is exclusive by the callers' convention.
template <class T>
struct Range {
    T start;
    T end;

    Range() : start(), end() {}
    Range(T s, T e) : start(s), end(e) {}

    // Returns the distance from start to end.
    T Length() const { return end - start; }
    bool operator==(Range const& other) const { return start == other.start && end == other.end; }
    bool operator!=(Range const& other) const { return !(*this == other); }
};
