// Shared by the conversion tests: calls made under each of the caller's
// rounding settings, and the sweep of one member over tail-crossing lengths
// and misaligned starts against a model's output.
#pragma once

#include <xmmintrin.h>

#include <functional>

#include "support/support.h"

namespace vtc {

// ---- calls under a caller's rounding setting --------------------------------

inline const unsigned kCallerRounding[] = {0x0000, 0x2000, 0x4000, 0x6000};  // nearest, down, up, toward zero

template <class F>
::testing::AssertionResult underCallerRounding(unsigned setting, F&& f) {
    const unsigned saved = _mm_getcsr();
    const unsigned set = (saved & ~0x6000u) | setting;
    _mm_setcsr(set);
    f();
    const unsigned after = _mm_getcsr();
    _mm_setcsr(saved);
    // The exception flags (bits 0-5) are sticky status, not setting.
    if ((after & ~0x3Fu) != (set & ~0x3Fu))
        return ::testing::AssertionFailure() << "rounding setting changed from " << std::hex << set << " to " << after;
    return ::testing::AssertionSuccess();
}

template <class TSrc, class TDst>
using Call = std::function<VekResult(const TSrc*, TDst*, int len, int mode, int sf)>;

// One member, one (mode, sf): the whole prefix family of `data` over every
// tail length and misalignment, against `want` (the model's output for all
// of `data`).
template <class TSrc, class TDst>
::testing::AssertionResult sweep(const Call<TSrc, TDst>& call, const std::vector<TSrc>& data,
                                 const std::vector<TDst>& want, int mode, int sf) {
    int k = 0;
    for (int len : vt::tailLengths()) {
        if (static_cast<size_t>(len) > data.size()) continue;
        for (int mis : vt::misalignments()) {
            vt::Guarded<TSrc> src(std::vector<TSrc>(data.begin(), data.begin() + len), mis);
            vt::Guarded<TDst> dst(static_cast<size_t>(len), mis);
            VekResult st = VEK_ERR_BAD_ARG;
            auto ok = underCallerRounding(kCallerRounding[k++ % 4],
                                          [&] { st = call(src.data(), dst.data(), len, mode, sf); });
            if (!ok) return ok << " (len " << len << ")";
            if (st != VEK_OK) return ::testing::AssertionFailure() << "status " << st << " len " << len;
            auto same = vt::sameElements(dst.data(), want.data(), static_cast<size_t>(len));
            if (!same) return same << " (len " << len << ", misalign " << mis << ")";
            if (!dst.intact() || !src.intact())
                return ::testing::AssertionFailure() << "guard zone written, len " << len;
        }
    }
    return ::testing::AssertionSuccess();
}

// Places edge values on lane boundaries across the data.
template <class T>
void sprinkle(std::vector<T>& v, const std::vector<T>& edges) {
    size_t pos = 0;
    for (size_t i = 0; i < edges.size() && pos < v.size(); ++i, pos += (i % 3 == 0 ? 7 : 4)) v[pos] = edges[i];
    for (size_t i = 0; i < edges.size(); ++i) v[v.size() - 1 - (i * 5) % v.size()] = edges[i];
}

constexpr size_t kData = 4099;

}  // namespace vtc
