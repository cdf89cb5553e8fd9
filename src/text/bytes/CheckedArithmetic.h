#pragma once
// Overflow tests: whether an addition, subtraction or multiplication stays in the range of its
// type. One overload per width, so that a caller never relies on a wider type existing.

#include <limits>
#include <type_traits>

namespace CheckedArithmeticDetail {

template <class T>
constexpr bool CanAddSame(T a, T b) {
    using L = std::numeric_limits<T>;
    if constexpr (std::is_signed_v<T>) {
        return a < 0 ? b >= T(L::min() - a) : b <= T(L::max() - a);
    } else {
        return b <= T(L::max() - a);
    }
}

template <class S>
constexpr bool CanSubtractSame(S a, S b) {
    using L = std::numeric_limits<S>;
    if constexpr (std::is_signed_v<S>) {
        // a - b fits when a - b >= min and a - b <= max.
        return b < 0 ? a <= S(L::max() + b) : a >= S(L::min() + b);
    } else {
        return a >= b;
    }
}

// Signed a plus unsigned b fits the signed type.
template <class S>
constexpr bool CanAddSigned(S a, std::make_unsigned_t<S> b) {
    using U = std::make_unsigned_t<S>;
    // The room above a is max - a, which fits U for every a.
    U room = U(std::numeric_limits<S>::max()) - U(a);
    return b <= room;
}

// Signed a plus unsigned b fits the unsigned type.
template <class S>
constexpr bool CanAddUnsigned(S a, std::make_unsigned_t<S> b) {
    using U = std::make_unsigned_t<S>;
    if (a < 0) return b >= U(U(0) - U(a));
    return b <= U(std::numeric_limits<U>::max() - U(a));
}

// Signed a minus unsigned b fits the signed type.
template <class S>
constexpr bool CanSubtractSignedSU(S a, std::make_unsigned_t<S> b) {
    using U = std::make_unsigned_t<S>;
    // The room below a is a - min, which fits U for every a.
    U room = U(U(a) - U(std::numeric_limits<S>::min()));
    return b <= room;
}

// Unsigned a minus signed b fits the signed type.
template <class S>
constexpr bool CanSubtractSignedUS(std::make_unsigned_t<S> a, S b) {
    using U = std::make_unsigned_t<S>;
    U max = U(std::numeric_limits<S>::max());
    if (b < 0) return a <= max && U(max - a) >= U(U(0) - U(b));
    // a - b with b >= 0: fits when a - b <= max (a below b is always in range down to -max).
    return a <= U(b) || U(a - U(b)) <= max;
}

// Unsigned a minus unsigned b fits the signed type.
template <class U>
constexpr bool CanSubtractSignedUU(U a, U b) {
    using S = std::make_signed_t<U>;
    U max = U(std::numeric_limits<S>::max());
    if (a >= b) return U(a - b) <= max;
    return U(b - a) <= U(max + 1);
}

// Signed a minus unsigned b fits the unsigned type.
template <class S>
constexpr bool CanSubtractUnsignedSU(S a, std::make_unsigned_t<S> b) {
    using U = std::make_unsigned_t<S>;
    return a >= 0 && U(a) >= b;
}

// Unsigned a minus signed b fits the unsigned type.
template <class S>
constexpr bool CanSubtractUnsignedUS(std::make_unsigned_t<S> a, S b) {
    using U = std::make_unsigned_t<S>;
    if (b >= 0) return a >= U(b);
    return U(std::numeric_limits<U>::max() - a) >= U(U(0) - U(b));
}

template <class T>
constexpr bool CanMultiplySame(T a, T b) {
    using L = std::numeric_limits<T>;
    if (a == 0 || b == 0) return true;
    if constexpr (std::is_signed_v<T>) {
        if (a == -1) return b != L::min();
        if (b == -1) return a != L::min();
        if (a > 0) return b > 0 ? b <= T(L::max() / a) : b >= T(L::min() / a);
        return b > 0 ? b <= T(L::min() / a) : b >= T(L::max() / a);
    } else {
        return T(L::max() / a) >= b;
    }
}

}  // namespace CheckedArithmeticDetail

#define ZOL_CHECKED_SAME(T)                                       \
    constexpr bool CanAdd(T a, T b) {                             \
        return CheckedArithmeticDetail::CanAddSame<T>(a, b);      \
    }                                                             \
    constexpr bool CanSubtract(T a, T b) {                        \
        return CheckedArithmeticDetail::CanSubtractSame<T>(a, b); \
    }                                                             \
    constexpr bool CanMultiply(T a, T b) {                        \
        return CheckedArithmeticDetail::CanMultiplySame<T>(a, b); \
    }

#define ZOL_CHECKED_MIXED(S, U)                                         \
    constexpr bool CanAddSigned(S a, U b) {                             \
        return CheckedArithmeticDetail::CanAddSigned<S>(a, b);          \
    }                                                                   \
    constexpr bool CanAddUnsigned(S a, U b) {                           \
        return CheckedArithmeticDetail::CanAddUnsigned<S>(a, b);        \
    }                                                                   \
    constexpr bool CanSubtractSigned(S a, U b) {                        \
        return CheckedArithmeticDetail::CanSubtractSignedSU<S>(a, b);   \
    }                                                                   \
    constexpr bool CanSubtractSigned(U a, S b) {                        \
        return CheckedArithmeticDetail::CanSubtractSignedUS<S>(a, b);   \
    }                                                                   \
    constexpr bool CanSubtractSigned(U a, U b) {                        \
        return CheckedArithmeticDetail::CanSubtractSignedUU<U>(a, b);   \
    }                                                                   \
    constexpr bool CanSubtractUnsigned(S a, U b) {                      \
        return CheckedArithmeticDetail::CanSubtractUnsignedSU<S>(a, b); \
    }                                                                   \
    constexpr bool CanSubtractUnsigned(U a, S b) {                      \
        return CheckedArithmeticDetail::CanSubtractUnsignedUS<S>(a, b); \
    }

// CanAdd, CanSubtract, CanMultiply: Returns whether a op b stays in the range of the type.
// A signed CanMultiply with a of -1 refuses only a b of the minimum.
ZOL_CHECKED_SAME(unsigned char)
ZOL_CHECKED_SAME(unsigned short)
ZOL_CHECKED_SAME(unsigned int)
ZOL_CHECKED_SAME(unsigned long)
ZOL_CHECKED_SAME(unsigned long long)
ZOL_CHECKED_SAME(signed char)
ZOL_CHECKED_SAME(short)
ZOL_CHECKED_SAME(int)
ZOL_CHECKED_SAME(long)
ZOL_CHECKED_SAME(long long)

// CanAddSigned and CanSubtractSigned: Returns whether the result fits the signed type.
// CanAddUnsigned and CanSubtractUnsigned: Returns whether it fits the unsigned type.
ZOL_CHECKED_MIXED(signed char, unsigned char)
ZOL_CHECKED_MIXED(short, unsigned short)
ZOL_CHECKED_MIXED(int, unsigned int)
ZOL_CHECKED_MIXED(long, unsigned long)
ZOL_CHECKED_MIXED(long long, unsigned long long)

#undef ZOL_CHECKED_SAME
#undef ZOL_CHECKED_MIXED
