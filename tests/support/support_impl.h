// Template parts of support.h that need GoogleTest.
#pragma once

#include <gtest/gtest.h>

#include <sstream>

namespace vt {

namespace detail {
template <class T>
void show(std::ostream& o, const T& v) {
    if constexpr (std::is_arithmetic<T>::value) {
        if constexpr (sizeof(T) == 1)
            o << static_cast<int>(v);
        else
            o << v;
    } else {
        const unsigned char* p = reinterpret_cast<const unsigned char*>(&v);
        o << "bytes";
        for (size_t i = 0; i < sizeof(T); ++i) o << ' ' << static_cast<int>(p[i]);
    }
}
}  // namespace detail

template <class T>
::testing::AssertionResult sameElements(const T* got, const T* want, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        if (memcmp(&got[i], &want[i], sizeof(T)) != 0) {
            std::ostringstream o;
            o << "element " << i << " of " << n << ": got ";
            detail::show(o, got[i]);
            o << ", want ";
            detail::show(o, want[i]);
            return ::testing::AssertionFailure() << o.str();
        }
    }
    return ::testing::AssertionSuccess();
}

}  // namespace vt
