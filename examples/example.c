/* A first program against veks: prints the library's version record and
 * what a few of its functions compute, from scaled integer arithmetic to the
 * spectrum of a tone. */
#include <math.h>
#include <stdio.h>

#include "veks.h"

static void print16s(const char* what, const T16s* v, int n) {
    printf("%-46s", what);
    for (int i = 0; i < n; ++i) printf(" %6d", v[i]);
    printf("\n");
}

int main(void) {
    const VekLibraryVersion* v = veksGetLibVersion();
    printf("%s %s, built %s\n\n", v->name, v->version, v->buildDate);

    /* Scaled integer arithmetic: sums halved with ties to even, saturated. */
    const T16s a[6] = {1, 2, -1, 32767, 3, -32768};
    const T16s b[6] = {2, 3, -2, 32767, 3, -32768};
    T16s sum[6];
    VekResult st = veksAdd_16s_Sfs(a, b, sum, 6, 1);
    print16s("a", a, 6);
    print16s("b", b, 6);
    print16s("veksAdd_16s_Sfs(a, b, scaleFactor 1)", sum, 6);
    st |= veksAdd_16s_Sfs(a, b, sum, 6, 0);
    print16s("veksAdd_16s_Sfs(a, b, scaleFactor 0)", sum, 6);

    /* Float to 16-bit with each rounding mode. */
    const T32f f[6] = {2.5f, -2.5f, 3.5f, 0.49999997f, 40000.0f, -1.5f};
    T16s r[6];
    printf("\n%-46s", "x");
    for (int i = 0; i < 6; ++i) printf(" %6g", f[i]);
    printf("\n");
    const char* modes[3] = {"toward zero", "nearest, ties to even", "nearest, ties away"};
    for (int mode = VEK_ROUND_ZERO; mode <= VEK_ROUND_HALF_AWAY; ++mode) {
        char label[64];
        st |= veksConvert_32f16s_Sfs(f, r, 6, mode, 0);
        snprintf(label, sizeof label, "veksConvert_32f16s_Sfs, %s", modes[mode]);
        print16s(label, r, 6);
    }

    /* The spectrum of a tone: 64 samples, 5 cycles, amplitude 1. */
    enum { kOrder = 6, kN = 1 << kOrder };
    T32f* x = veksMalloc_32f(kN);
    T32fc* spectrum = veksMalloc_32fc(kN / 2 + 1);
    T32f* mag = veksMalloc_32f(kN / 2 + 1);
    FftSpec_R_32f* spec = NULL;
    if (!x || !spectrum || !mag) return 1;
    for (int i = 0; i < kN; ++i) x[i] = (T32f)cos(2.0 * 3.14159265358979323846 * 5.0 * i / kN);
    st |= veksFFTInitAlloc_R_32f(&spec, kOrder, VEK_FFT_SCALE_FWD, VEK_HINT_NONE);
    st |= veksFFTFwd_RToCCS_32f(x, (T32f*)spectrum, spec, NULL);
    st |= veksMagnitude_32fc(spectrum, mag, kN / 2 + 1);
    printf("\nveksFFTFwd_RToCCS_32f of a 5-cycle cosine, N = %d, magnitudes above 1e-5:\n", kN);
    for (int k = 0; k <= kN / 2; ++k)
        if (mag[k] > 1e-5f) printf("  bin %2d: %.6f\n", k, mag[k]);
    veksFFTFree_R_32f(spec);
    veksFree(mag);
    veksFree(spectrum);
    veksFree(x);

    printf("\nall calls returned %s\n", st == VEK_OK ? "VEK_OK" : "an error or warning");
    return st == VEK_OK ? 0 : 1;
}
