// What every transform export shares: the work buffer rule and the
// unscaled complex engine over the FFT spec's tables (short routines, one
// radix kernel, or the two-level decomposition), instantiated once per
// precision in fft_core.cpp.
#pragma once

#include "transform/fft_state.h"

namespace veks {
namespace fftexec {

using fft::Cx;
using fft::SplitPtr;
using fftspec::View;

// The work buffer of one call: the caller's, aligned up to 64 bytes, or one
// allocated for the call (released on every return path).
class Work {
public:
    Work() = default;
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() {
        if (owned_) vekFree(owned_);
    }
    VekResult acquire(int64_t bytes, uint8_t* caller) {
        if (bytes < 1) return VEK_OK;
        if (caller) {
            p_ = fftspec::alignPtr64(caller);
            return VEK_OK;
        }
        owned_ = static_cast<uint8_t*>(vekMalloc(static_cast<size_t>(bytes)));
        if (owned_ == nullptr) return VEK_ERR_NO_MEMORY;
        p_ = owned_;
        return VEK_OK;
    }
    uint8_t* get() const { return p_; }

private:
    uint8_t* p_ = nullptr;
    uint8_t* owned_ = nullptr;
};

// Unscaled transform of length 2^order with the tables of view v (whose own
// order is `order` for complex specs, order + 1 for real specs). src may
// equal dst. work holds at least the complex work size of `order`.
template <class T>
void complexCore(const View<T>& v, int order, const Cx<T>* src, Cx<T>* dst, uint8_t* work, bool inverse);
template <class T>
void splitCore(const View<T>& v, int order, SplitPtr<const T> src, SplitPtr<T> dst, uint8_t* work,
               bool inverse);

// Real transforms of length 2^m in the Perm layout, scaling included.
// Forward: src (m real values) to dst; inverse: in place on dst (Perm).
template <class T>
void realForward(const View<T>& v, const T* src, T* dst, uint8_t* work);
template <class T>
void realInverse(const View<T>& v, T* data, uint8_t* work);

}  // namespace fftexec
}  // namespace veks
