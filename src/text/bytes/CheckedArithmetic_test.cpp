#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "text/bytes/CheckedArithmetic.h"

// Every answer is checked against the exact result in 128-bit arithmetic, which no operand
// width here can overflow.
namespace {

using Wide = __int128;

template <class T>
bool Fits(Wide value) {
    return value >= Wide(std::numeric_limits<T>::min()) &&
           value <= Wide(std::numeric_limits<T>::max());
}

// Returns the operands as text; the stream has no 128-bit insertion.
template <class A, class B>
std::string Show(A a, B b) {
    return std::to_string(a) + " " + std::to_string(b);
}

// The limits, zero and the halves with their neighbours, and random values of every magnitude;
// every value of a one-byte type.
template <class T>
std::vector<T> Operands(std::mt19937_64& random) {
    using L = std::numeric_limits<T>;
    std::vector<T> values;
    for (Wide v : {Wide(L::min()), Wide(L::max()), Wide(L::min()) / 2, Wide(L::max()) / 2, Wide(0)})
        for (int d = sizeof(T) == 1 ? -300 : -2; d <= (sizeof(T) == 1 ? 300 : 2); ++d)
            if (Fits<T>(v + d)) values.push_back(T(v + d));
    for (int i = 0; i < 60 && sizeof(T) > 1; ++i) values.push_back(T(random() >> (random() % 64)));
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
    return values;
}

template <class S>
void CheckWidth() {
    using U = std::make_unsigned_t<S>;
    std::mt19937_64 random(sizeof(S));
    std::vector<S> signedValues = Operands<S>(random);
    std::vector<U> unsignedValues = Operands<U>(random);
    for (S a : signedValues) {
        for (S b : signedValues) {
            ASSERT_EQ(Fits<S>(Wide(a) + b), CanAdd(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<S>(Wide(a) - b), CanSubtract(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<S>(Wide(a) * b), CanMultiply(a, b)) << Show(a, b);
        }
        for (U b : unsignedValues) {
            ASSERT_EQ(Fits<S>(Wide(a) + b), CanAddSigned(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<U>(Wide(a) + b), CanAddUnsigned(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<S>(Wide(a) - b), CanSubtractSigned(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<U>(Wide(a) - b), CanSubtractUnsigned(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<S>(Wide(b) - a), CanSubtractSigned(b, a)) << Show(b, a);
            ASSERT_EQ(Fits<U>(Wide(b) - a), CanSubtractUnsigned(b, a)) << Show(b, a);
        }
    }
    for (U a : unsignedValues) {
        for (U b : unsignedValues) {
            ASSERT_EQ(Fits<U>(Wide(a) + b), CanAdd(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<U>(Wide(a) - b), CanSubtract(a, b)) << Show(a, b);
            // Two 64-bit unsigned factors can pass the signed 128-bit range, not the unsigned one.
            unsigned __int128 product = static_cast<unsigned __int128>(a) * b;
            ASSERT_EQ(product <= std::numeric_limits<U>::max(), CanMultiply(a, b)) << Show(a, b);
            ASSERT_EQ(Fits<S>(Wide(a) - b), CanSubtractSigned(a, b)) << Show(a, b);
        }
    }
}

}  // namespace

TEST(CheckedArithmetic, AgreesWithWideArithmeticForEveryWidth) {
    CheckWidth<signed char>();
    CheckWidth<short>();
    CheckWidth<int>();
    CheckWidth<long>();
    CheckWidth<long long>();
    static_assert(!CanAdd(std::numeric_limits<unsigned char>::max(), (unsigned char)1));
}
