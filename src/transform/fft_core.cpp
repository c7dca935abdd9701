// The unscaled complex engine and the real transforms built on it.
//
// Two-level orders: N = N1 x N2 with N1 = 2^k. With n = n1 + N1*n2 and
// k = N2*k1 + k2, X[N2*k1 + k2] = sum_n1 w_N1^(n1*k1) w_N^(n1*k2) Z[n1][k2],
// where Z[n1] is the N2-point transform of the column x[n1 + N1*n2]. So:
// 1. every column is transformed into row n1 of the destination (columns are
//    gathered a block at a time, or, in place, the whole array is first
//    transposed so that the columns become rows);
// 2. row n1 is multiplied by w_N^(n1*k2) (the FFT spec's half-circle table);
// 3. N1-point transforms run down the columns, a block of columns at a time,
//    and land exactly where the natural order wants them.
#include "transform/fft_exec.h"

namespace veks {
namespace fftexec {

using fftspec::Prec;

namespace {

template <class T>
inline Cx<T> halfTwiddle(const Cx<T>* half, size_t top, size_t idx) {
    return idx < top / 2 ? half[idx] : Cx<T>{-half[idx - top / 2].re, -half[idx - top / 2].im};
}

// Destination access of the two-level path: interleaved or split arrays.
template <class T>
struct InterleavedData {
    Cx<T>* p;
    Cx<T>* rowTarget(size_t off, Cx<T>*) const { return p + off; }
    void commitRow(size_t, const Cx<T>*, size_t) const {}
    void loadRow(size_t off, Cx<T>* to, size_t n) const { memcpy(to, p + off, n * sizeof(Cx<T>)); }
    void storeRow(size_t off, const Cx<T>* from, size_t n) const { memcpy(p + off, from, n * sizeof(Cx<T>)); }
    Cx<T> get(size_t i) const { return p[i]; }
    void set(size_t i, Cx<T> v) const { p[i] = v; }
    bool rowsAreDirect() const { return true; }
};
template <class T>
struct SplitData {
    SplitPtr<T> p;
    Cx<T>* rowTarget(size_t, Cx<T>* temp) const { return temp; }
    void commitRow(size_t off, const Cx<T>* row, size_t n) const {
        for (size_t i = 0; i < n; ++i) {
            p.re[off + i] = row[i].re;
            p.im[off + i] = row[i].im;
        }
    }
    void loadRow(size_t off, Cx<T>* to, size_t n) const {
        for (size_t i = 0; i < n; ++i) to[i] = {p.re[off + i], p.im[off + i]};
    }
    void storeRow(size_t off, const Cx<T>* from, size_t n) const { commitRow(off, from, n); }
    Cx<T> get(size_t i) const { return {p.re[i], p.im[i]}; }
    void set(size_t i, Cx<T> v) const {
        p.re[i] = v.re;
        p.im[i] = v.im;
    }
    bool rowsAreDirect() const { return false; }
};
template <class T>
struct InterleavedSource {
    const Cx<T>* p;
    Cx<T> get(size_t i) const { return p[i]; }
};
template <class T>
struct SplitSource {
    SplitPtr<const T> p;
    Cx<T> get(size_t i) const { return {p.re[i], p.im[i]}; }
};

// In-place transposition of an R x C matrix (C = 2^k columns, R = L*C rows)
// in two cache-friendly steps: every C x C block is transposed in place;
// then the chunks of C values, an L x C arrangement, are transposed by
// following the cycles of the chunk-index rotation u -> rotr(u, k). tmp holds
// two chunks.
template <class T, class D>
void transposeInPlace(const D& d, int order, int k, Cx<T>* tmp) {
    const size_t C = size_t(1) << k, N = size_t(1) << order, U = N / C;
    for (size_t base = 0; base < N; base += C * C) {
        for (size_t i = 0; i < C; ++i) {
            for (size_t j = i + 1; j < C; ++j) {
                const Cx<T> a = d.get(base + i * C + j), b = d.get(base + j * C + i);
                d.set(base + i * C + j, b);
                d.set(base + j * C + i, a);
            }
        }
    }
    const int bits = order - k;
    const size_t mask = U - 1;
    auto dest = [&](size_t u) { return ((u >> k) | (u << (bits - k))) & mask; };
    Cx<T>* carry = tmp;
    Cx<T>* held = tmp + C;
    for (size_t u = 1; u + 1 < U; ++u) {
        size_t j = dest(u);
        while (j > u) j = dest(j);
        if (j < u) continue;  // not the smallest index of its cycle
        d.loadRow(u * C, carry, C);
        for (size_t c = dest(u); c != u; c = dest(c)) {
            d.loadRow(c * C, held, C);
            d.storeRow(c * C, carry, C);
            Cx<T>* t = carry;
            carry = held;
            held = t;
        }
        d.storeRow(u * C, carry, C);
    }
}

template <class T>
void ordinaryOrLarge(const View<T>& v, size_t top, int order, const Cx<T>* src, Cx<T>* dst, uint8_t* work,
                     bool inverse);

template <class T, class S, class D>
void twoLevel(const View<T>& v, size_t top, int order, const S& src, bool inPlace, const D& dst, uint8_t* work,
              bool inverse) {
    const int k = fftspec::splitExponent(order), inner = order - k;
    const size_t N1 = size_t(1) << k, N2 = size_t(1) << inner, B = Prec<T>::kBlock;
    const size_t stride = top >> order;  // this level's w_N in the top table
    Cx<T>* gather = reinterpret_cast<Cx<T>*>(work);
    uint8_t* innerWork = work + fftspec::align64(static_cast<int64_t>(B * N2) * Prec<T>::kCx);
    Cx<T>* cols = reinterpret_cast<Cx<T>*>(
        innerWork + fftspec::align64(fftspec::complexSizes<T>(inner).work));

    // 1. and 2.: column transforms into rows, then the twist.
    if (!inPlace) {
        for (size_t n1b = 0; n1b < N1; n1b += B) {
            for (size_t n2 = 0; n2 < N2; ++n2)
                for (size_t b = 0; b < B; ++b) gather[b * N2 + n2] = src.get(N1 * n2 + n1b + b);
            for (size_t b = 0; b < B; ++b) {
                const size_t n1 = n1b + b;
                Cx<T>* g = gather + b * N2;
                Cx<T>* row = dst.rowTarget(n1 * N2, g);
                ordinaryOrLarge<T>(v, top, inner, g, row, innerWork, inverse);
                fft::twistRow<T>(row, N2, n1 * stride, v.half, top, inverse);
                dst.commitRow(n1 * N2, row, N2);
            }
        }
    } else {
        transposeInPlace<T>(dst, order, k, gather);
        for (size_t n1 = 0; n1 < N1; ++n1) {
            Cx<T>* row = gather;
            if (dst.rowsAreDirect())
                row = dst.rowTarget(n1 * N2, gather);
            else
                dst.loadRow(n1 * N2, gather, N2);
            ordinaryOrLarge<T>(v, top, inner, row, row, innerWork, inverse);
            fft::twistRow<T>(row, N2, n1 * stride, v.half, top, inverse);
            dst.commitRow(n1 * N2, row, N2);
        }
    }

    // 3. N1-point transforms down the columns, B columns at a time.
    Cx<T> twk[256];
    fft::fillStageTwiddles<T>(twk, k, [&](size_t i, double& c, double& s) {
        const Cx<T> w = halfTwiddle(v.half, top, i * (top >> k));
        c = static_cast<double>(w.re);
        s = -static_cast<double>(w.im);
    });
    Cx<T>* colScratch = cols + N1 * B;
    for (size_t k2b = 0; k2b < N2; k2b += B) {
        for (size_t n1 = 0; n1 < N1; ++n1)
            for (size_t b = 0; b < B; ++b) cols[n1 * B + b] = dst.get(n1 * N2 + k2b + b);
        fft::stockham<T>(cols, cols, colScratch, k, B, twk, inverse);
        for (size_t k1 = 0; k1 < N1; ++k1)
            for (size_t b = 0; b < B; ++b) dst.set(k1 * N2 + k2b + b, cols[k1 * B + b]);
    }
}

template <class T>
void ordinaryOrLarge(const View<T>& v, size_t top, int order, const Cx<T>* src, Cx<T>* dst, uint8_t* work,
                     bool inverse) {
    if (order <= fftspec::kComplexFixedMax) {
        fft::smallTransform<T>(src, dst, order, inverse);
    } else if (order < Prec<T>::kLargeFrom) {
        fft::stockham<T>(src, dst, reinterpret_cast<Cx<T>*>(work), order, 1, v.tw, inverse);
    } else {
        twoLevel<T>(v, top, order, InterleavedSource<T>{src}, src == dst, InterleavedData<T>{dst}, work, inverse);
    }
}

// The split coefficients A[k] = (1 - i W^k)/2 for k in [k0, k0 + n).
template <class T>
void splitCoefficients(const View<T>& v, int m, size_t k0, size_t n, Cx<T>* out) {
    if (v.coarse) {
        for (size_t i = 0; i < n; ++i) {
            const size_t k = k0 + i;
            const Cx<double> c = v.coarse[k / fftspec::kFineCount];
            const Cx<T> f = v.A[k % fftspec::kFineCount];
            const double wr = c.re * f.re - c.im * f.im, wi = c.re * f.im + c.im * f.re;
            out[i] = {static_cast<T>((1.0 + wi) * 0.5), static_cast<T>(-wr * 0.5)};
        }
        return;
    }
    // Short real orders without tables: from the constant table.
    const size_t N = size_t(1) << m;
    for (size_t i = 0; i < n; ++i) {
        double c, s;
        fft::quarterCosSin(kQuarterSine1024, 1024 / N, N, k0 + i, c, s);
        out[i] = {static_cast<T>((1.0 - s) * 0.5), static_cast<T>(-c * 0.5)};
    }
}

template <class T>
void splitPass(const View<T>& v, int m, Cx<T>* z, bool inverse) {
    const size_t M = size_t(1) << (m - 1);  // complex values
    const size_t last = M / 2 + 1;          // pairs k = 1 .. M/2
    if (M < 2) return;
    if (v.A && !v.coarse) {
        if (inverse)
            fft::realSplitInverse<T>(z, M, v.A + 1, 1, last);
        else
            fft::realSplitForward<T>(z, M, v.A + 1, 1, last);
        return;
    }
    Cx<T> A[256];
    for (size_t k0 = 1; k0 < last; k0 += 256) {
        const size_t k1 = k0 + 256 < last ? k0 + 256 : last;
        splitCoefficients<T>(v, m, k0, k1 - k0, A);
        if (inverse)
            fft::realSplitInverse<T>(z, M, A, k0, k1);
        else
            fft::realSplitForward<T>(z, M, A, k0, k1);
    }
}

}  // namespace

template <class T>
void complexCore(const View<T>& v, int order, const Cx<T>* src, Cx<T>* dst, uint8_t* work, bool inverse) {
    ordinaryOrLarge<T>(v, size_t(1) << order, order, src, dst, work, inverse);
}

template <class T>
void splitCore(const View<T>& v, int order, SplitPtr<const T> src, SplitPtr<T> dst, uint8_t* work, bool inverse) {
    const size_t N = size_t(1) << order;
    if (order <= fftspec::kComplexFixedMax) {
        Cx<T> a[32], b[32];
        for (size_t i = 0; i < N; ++i) a[i] = {src.re[i], src.im[i]};
        fft::smallTransform<T>(a, b, order, inverse);
        for (size_t i = 0; i < N; ++i) {
            dst.re[i] = b[i].re;
            dst.im[i] = b[i].im;
        }
    } else if (order < Prec<T>::kLargeFrom) {
        T* w = reinterpret_cast<T*>(work);
        fft::stockhamSplit<T>(src, dst, SplitPtr<T>{w, w + N}, order, v.tw, inverse);
    } else {
        const bool inPlace = src.re == dst.re || src.im == dst.im || src.re == dst.im || src.im == dst.re;
        twoLevel<T>(v, N, order, SplitSource<T>{src}, inPlace, SplitData<T>{dst}, work, inverse);
    }
}

template <class T>
void realForward(const View<T>& v, const T* src, T* dst, uint8_t* work) {
    const int m = v.order;
    const size_t N = size_t(1) << m;
    if (m == 0) {
        dst[0] = v.fwdScale ? src[0] * v.scale : src[0];
        return;
    }
    Cx<T>* z = reinterpret_cast<Cx<T>*>(dst);
    ordinaryOrLarge<T>(v, N / 2, m - 1, reinterpret_cast<const Cx<T>*>(src), z, work, false);
    if (v.fwdScale) fft::scaleValues<T>(dst, dst, N, v.scale);
    const T a = dst[0], b = dst[1];
    dst[0] = a + b;
    dst[1] = a - b;
    splitPass<T>(v, m, z, false);
}

template <class T>
void realInverse(const View<T>& v, T* data, uint8_t* work) {
    const int m = v.order;
    const size_t N = size_t(1) << m;
    if (m > 0) {
        const T a = data[0], b = data[1];
        data[0] = a + b;
        data[1] = a - b;
        Cx<T>* z = reinterpret_cast<Cx<T>*>(data);
        splitPass<T>(v, m, z, true);
        ordinaryOrLarge<T>(v, N / 2, m - 1, z, z, work, true);
    }
    if (v.invScale) fft::scaleValues<T>(data, data, N, v.scale);
}

template void complexCore<float>(const View<float>&, int, const Cx<float>*, Cx<float>*, uint8_t*, bool);
template void complexCore<double>(const View<double>&, int, const Cx<double>*, Cx<double>*, uint8_t*, bool);
template void splitCore<float>(const View<float>&, int, SplitPtr<const float>, SplitPtr<float>, uint8_t*, bool);
template void splitCore<double>(const View<double>&, int, SplitPtr<const double>, SplitPtr<double>, uint8_t*,
                                bool);
template void realForward<float>(const View<float>&, const float*, float*, uint8_t*);
template void realForward<double>(const View<double>&, const double*, double*, uint8_t*);
template void realInverse<float>(const View<float>&, float*, uint8_t*);
template void realInverse<double>(const View<double>&, double*, uint8_t*);

}  // namespace fftexec
}  // namespace veks
