// Test support: guarded buffers, lengths that cross every vector width,
// fixed seeds, edge values and comparators. Reference models live in ref/.
#pragma once

#include <math.h>
#include <stdint.h>
#include <string.h>

#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "veks.h"

namespace vt {

// Lengths from 1 up that cross the tails of 16- and 64-byte blocks for any
// element width, the unroll limits of the kernels and a few long vectors.
const std::vector<int>& tailLengths();

// Misalignments (in elements) applied to buffer starts.
inline const std::vector<int>& misalignments() {
    static const std::vector<int> m = {0, 1, 3};
    return m;
}

// A buffer of n elements of T whose data starts `misalign` elements after a
// 64-byte boundary, surrounded by guard zones of a fixed byte pattern.
// intact() tells whether the guards (and, after freeze(), the data) are
// unchanged, which proves that nothing was written outside, or at all.
template <class T>
class Guarded {
public:
    static constexpr size_t kGuardBytes = 64;
    static constexpr unsigned char kPattern = 0xA5;

    explicit Guarded(size_t n, int misalign = 0)
        : n_(n), offset_(kGuardBytes + static_cast<size_t>(misalign) * sizeof(T)),
          raw_(offset_ + n * sizeof(T) + kGuardBytes + 64) {
        base_ = alignUp(raw_.data());
        memset(base_, kPattern, offset_ + n * sizeof(T) + kGuardBytes);
    }
    Guarded(const std::vector<T>& init, int misalign = 0) : Guarded(init.size(), misalign) {
        if (!init.empty()) memcpy(data(), init.data(), init.size() * sizeof(T));
    }
    T* data() { return reinterpret_cast<T*>(base_ + offset_); }
    const T* data() const { return reinterpret_cast<const T*>(base_ + offset_); }
    T& operator[](size_t i) { return data()[i]; }
    const T& operator[](size_t i) const { return data()[i]; }
    size_t size() const { return n_; }
    std::vector<T> vec() const { return std::vector<T>(data(), data() + n_); }

    // Remember the current contents: intact() then also requires them.
    void freeze() { frozen_.assign(base_, base_ + offset_ + n_ * sizeof(T) + kGuardBytes); }

    bool intact() const {
        const unsigned char* p = base_;
        const size_t total = offset_ + n_ * sizeof(T) + kGuardBytes;
        if (!frozen_.empty()) return memcmp(p, frozen_.data(), total) == 0;
        for (size_t i = 0; i < offset_; ++i)
            if (p[i] != kPattern) return false;
        for (size_t i = offset_ + n_ * sizeof(T); i < total; ++i)
            if (p[i] != kPattern) return false;
        return true;
    }

private:
    static unsigned char* alignUp(unsigned char* p) {
        return reinterpret_cast<unsigned char*>((reinterpret_cast<uintptr_t>(p) + 63) & ~uintptr_t(63));
    }
    size_t n_;
    size_t offset_;
    std::vector<unsigned char> raw_;
    unsigned char* base_;
    std::vector<unsigned char> frozen_;
};

// Deterministic random data; every test names its own seed.
class Rng {
public:
    explicit Rng(uint64_t seed) : g_(seed) {}
    // Uniform over the whole range of an integer type, or [lo, hi) for floats.
    template <class T>
    T next(double lo = -1.0, double hi = 1.0) {
        if constexpr (std::is_floating_point<T>::value) {
            return static_cast<T>(std::uniform_real_distribution<double>(lo, hi)(g_));
        } else {
            using W = typename std::conditional<std::is_signed<T>::value, int64_t, uint64_t>::type;
            return static_cast<T>(std::uniform_int_distribution<W>(std::numeric_limits<T>::min(),
                                                                   std::numeric_limits<T>::max())(g_));
        }
    }
    int64_t range(int64_t lo, int64_t hi) { return std::uniform_int_distribution<int64_t>(lo, hi)(g_); }
    template <class T>
    std::vector<T> vec(size_t n, double lo = -1.0, double hi = 1.0) {
        std::vector<T> v(n);
        for (auto& x : v) x = next<T>(lo, hi);
        return v;
    }
    std::mt19937_64& engine() { return g_; }

private:
    std::mt19937_64 g_;
};

// Values that break careless code: range ends, zero, +-1, and for floats
// signed zeros, infinities, NaN, subnormals and halfway points.
template <class T>
std::vector<T> edgeValues() {
    using L = std::numeric_limits<T>;
    if constexpr (std::is_floating_point<T>::value) {
        return {T(0), -T(0), T(1), T(-1), T(0.5), T(-0.5), T(1.5), T(2.5), T(-2.5), L::max(), L::lowest(),
                L::min(), L::denorm_min(), -L::denorm_min(), L::infinity(), -L::infinity(), L::quiet_NaN()};
    } else if constexpr (std::is_signed<T>::value) {
        return {T(0), T(1), T(-1), T(2), T(-2), L::max(), L::min(), T(L::max() - 1), T(L::min() + 1)};
    } else {
        return {T(0), T(1), T(2), L::max(), T(L::max() - 1), T(L::max() / 2), T(L::max() / 2 + 1)};
    }
}

// Distance in units in the last place between two finite values of one
// sign; differing signs count through zero. NaN against NaN is 0.
int64_t ulpDistance(float a, float b);
int64_t ulpDistance(double a, double b);

// Relative error |a - b| / max(|b|, floor), for tolerance checks whose
// reason is written beside them.
inline double relError(double a, double b, double floor = 1e-300) {
    const double d = fabs(a - b), m = fabs(b) > floor ? fabs(b) : floor;
    return d / m;
}

// Exact comparison of two arrays; the message names the first difference.
template <class T>
::testing::AssertionResult sameElements(const T* got, const T* want, size_t n);

}  // namespace vt

#include "support_impl.h"
