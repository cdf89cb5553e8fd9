#pragma once
// A plain pair of two values with public fields, as the parser hands attributes to its handler:
// `first` is the attribute's name, `second` its value.

template <typename A, typename B>
struct Pair {
    A first;
    B second;
};
