/* veks: signal-processing primitives with a plain C interface.
 *
 * Every function returns a VekResult (0 success, negative error with nothing
 * written, positive warning after the whole output was written), takes
 * lengths in elements, and keeps no state outside the caller's blocks. */
#ifndef VEKS_H
#define VEKS_H

#if defined(VEKS_BUILDING_LIBRARY) && defined(__GNUC__)
#define VEKS_API __attribute__((visibility("default")))
#else
#define VEKS_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- element types ---------------------------------------------------- */

typedef unsigned char T1u; /* bit strings: a byte pointer plus a bit offset */
typedef unsigned char T8u;
typedef signed char T8s;
typedef unsigned short T16u;
typedef short T16s;
typedef int T32s;
typedef unsigned int T32u;
typedef long long T64s;
typedef unsigned long long T64u;
typedef unsigned short T16f; /* IEEE 754 half precision bit pattern */
typedef float T32f;
typedef double T64f;

/* 24-bit integers packed little-endian in three bytes; byte 2 is the top. */
typedef struct { unsigned char b[3]; } T24u;
typedef struct { unsigned char b[3]; } T24s;

/* Complex elements: re first, im second, no gap. */
typedef struct { T8s re; T8s im; } T8sc;
typedef struct { T16s re; T16s im; } T16sc;
typedef struct { T32s re; T32s im; } T32sc;
typedef struct { T64s re; T64s im; } T64sc;
typedef struct { T32f re; T32f im; } T32fc;
typedef struct { T64f re; T64f im; } T64fc;

/* ---- status values ---------------------------------------------------- */

typedef int VekResult;

enum {
    VEK_OK = 0,
    VEK_ERR_BAD_ARG = -5,
    VEK_ERR_SIZE = -6,
    VEK_ERR_ZERO_CROSSING_TYPE = -7,
    VEK_ERR_NULL_POINTER = -8,
    VEK_ERR_NO_MEMORY = -9,
    VEK_ERR_DIV_BY_ZERO = -10,
    VEK_ERR_CAUCHY_PARAM = -11,
    VEK_ERR_DATA_TYPE = -12,
    VEK_ERR_TAPS_SCALE = -13,
    VEK_ERR_FFT_ORDER = -15,
    VEK_ERR_FFT_FLAG = -16,
    VEK_ERR_CONTEXT_MISMATCH = -17,
    VEK_ERR_LEVEL_ORDER = -18,
    VEK_ERR_NEGATIVE_LEVEL = -19,
    VEK_ERR_DLY_INDEX = -24,
    VEK_ERR_IIR_ORDER = -25,
    VEK_ERR_FIR_LEN = -26,
    VEK_ERR_REL_FREQ = -27,
    VEK_ERR_FIRMR_PHASE = -28,
    VEK_ERR_FIRMR_FACTOR = -29,
    VEK_ERR_SAMPLE_PHASE = -30,
    VEK_ERR_SAMPLE_FACTOR = -31,
    VEK_ERR_SHIFT = -32,
    VEK_ERR_MASK_SIZE = -33,
    VEK_ERR_WT_OFFSET = -35,
    VEK_ERR_JAEHNE_MAGN = -38,
    VEK_ERR_KAISER_ALPHA = -39,
    VEK_ERR_TRIANGLE_ASYM = -40,
    VEK_ERR_TRIANGLE_PHASE = -41,
    VEK_ERR_TRIANGLE_FREQ = -42,
    VEK_ERR_TRIANGLE_MAGN = -43,
    VEK_ERR_TONE_PHASE = -44,
    VEK_ERR_TONE_FREQ = -45,
    VEK_ERR_TONE_MAGN = -46,
    VEK_ERR_CHANNEL_COUNT = -47,
    VEK_ERR_NUM_CHANNELS = -53,
    VEK_ERR_SIZE_MULTIPLE = -182,
    VEK_ERR_SPARSE_TAPS = -194,
    VEK_ERR_ZERO_COEFF = -195,
    VEK_ERR_IIR_GEN_ORDER = -206,
    VEK_ERR_IIR_GEN_FREQ = -208,
    VEK_ERR_IIR_GEN_DEVIATION = -209,
    VEK_ERR_ROUND_MODE = -213,
    VEK_ERR_ALG_TYPE = -228,
    VEK_WRN_SQRT_NEGATIVE = 3,
    VEK_WRN_INV_ZERO = 4,
    VEK_WRN_EVEN_MEDIAN_MASK = 5,
    VEK_WRN_DIV_BY_ZERO = 6,
    VEK_WRN_LOG_ZERO = 7,
    VEK_WRN_LOG_NEGATIVE = 8,
    VEK_WRN_NON_FINITE = 9
};

/* ---- argument constants ----------------------------------------------- */

enum { VEK_ROUND_ZERO = 0, VEK_ROUND_NEAR = 1, VEK_ROUND_HALF_AWAY = 2 };
enum { VEK_HINT_NONE = 0, VEK_HINT_FAST = 1, VEK_HINT_ACCURATE = 2 };
enum {
    VEK_FFT_SCALE_FWD = 1,
    VEK_FFT_SCALE_INV = 2,
    VEK_FFT_SCALE_SQRT = 4,
    VEK_FFT_SCALE_NONE = 8
};
enum { VEK_ALG_AUTO = 0, VEK_ALG_DIRECT = 1, VEK_ALG_FFT = 2 };
enum { VEK_NORM_NONE = 0, VEK_NORM_BIASED = 256, VEK_NORM_UNBIASED = 512 };
enum { VEK_DATATYPE_32F = 13, VEK_DATATYPE_64F = 19 };
enum { VEK_CMP_LT = 0, VEK_CMP_LE = 1, VEK_CMP_EQ = 2, VEK_CMP_GE = 3, VEK_CMP_GT = 4 };
enum { VEK_IIR_BUTTERWORTH = 0, VEK_IIR_CHEBYSHEV1 = 1 };

/* ---- version record --------------------------------------------------- */

typedef struct {
    int major;
    int minor;
    int update;
    int build;
    char targetCode[4];
    const char* name;
    const char* version;
    const char* buildDate;
} VekLibraryVersion;

/* ---- opaque blocks ---------------------------------------------------- */

typedef struct FftSpec_C_16s FftSpec_C_16s;
typedef struct FftSpec_C_16sc FftSpec_C_16sc;
typedef struct FftSpec_C_32f FftSpec_C_32f;
typedef struct FftSpec_C_32fc FftSpec_C_32fc;
typedef struct FftSpec_C_32s FftSpec_C_32s;
typedef struct FftSpec_C_32sc FftSpec_C_32sc;
typedef struct FftSpec_C_64f FftSpec_C_64f;
typedef struct FftSpec_C_64fc FftSpec_C_64fc;
typedef struct FftSpec_R_16s FftSpec_R_16s;
typedef struct FftSpec_R_16s32s FftSpec_R_16s32s;
typedef struct FftSpec_R_32f FftSpec_R_32f;
typedef struct FftSpec_R_32s FftSpec_R_32s;
typedef struct FftSpec_R_64f FftSpec_R_64f;
typedef struct DftSpec_C_16s DftSpec_C_16s;
typedef struct DftSpec_C_16sc DftSpec_C_16sc;
typedef struct DftSpec_C_32f DftSpec_C_32f;
typedef struct DftSpec_C_32fc DftSpec_C_32fc;
typedef struct DftSpec_C_64f DftSpec_C_64f;
typedef struct DftSpec_C_64fc DftSpec_C_64fc;
typedef struct DftSpec_R_16s DftSpec_R_16s;
typedef struct DftSpec_R_32f DftSpec_R_32f;
typedef struct DftSpec_R_64f DftSpec_R_64f;
typedef struct DftOutOrdSpec_C_32fc DftOutOrdSpec_C_32fc;
typedef struct DftOutOrdSpec_C_64fc DftOutOrdSpec_C_64fc;
typedef struct DctFwdSpec_16s DctFwdSpec_16s;
typedef struct DctFwdSpec_32f DctFwdSpec_32f;
typedef struct DctFwdSpec_64f DctFwdSpec_64f;
typedef struct DctInvSpec_16s DctInvSpec_16s;
typedef struct DctInvSpec_32f DctInvSpec_32f;
typedef struct DctInvSpec_64f DctInvSpec_64f;
typedef struct HilbertSpec_16s16sc HilbertSpec_16s16sc;
typedef struct HilbertSpec_16s32fc HilbertSpec_16s32fc;
typedef struct HilbertSpec_32f32fc HilbertSpec_32f32fc;
typedef struct WtFwdState_16s32f WtFwdState_16s32f;
typedef struct WtFwdState_16u32f WtFwdState_16u32f;
typedef struct WtFwdState_32f WtFwdState_32f;
typedef struct WtFwdState_8s32f WtFwdState_8s32f;
typedef struct WtFwdState_8u32f WtFwdState_8u32f;
typedef struct WtInvState_32f WtInvState_32f;
typedef struct WtInvState_32f16s WtInvState_32f16s;
typedef struct WtInvState_32f16u WtInvState_32f16u;
typedef struct WtInvState_32f8s WtInvState_32f8s;
typedef struct WtInvState_32f8u WtInvState_32f8u;
typedef struct FirState_16s FirState_16s;
typedef struct FirState_32f FirState_32f;
typedef struct FirState_32fc FirState_32fc;
typedef struct FirState_32s FirState_32s;
typedef struct FirState_64f FirState_64f;
typedef struct FirState_64fc FirState_64fc;
typedef struct FirState32f_16s FirState32f_16s;
typedef struct FirState32fc_16sc FirState32fc_16sc;
typedef struct FirState32s_16s FirState32s_16s;
typedef struct FirState32sc_16sc FirState32sc_16sc;
typedef struct FirState64f_16s FirState64f_16s;
typedef struct FirState64f_32f FirState64f_32f;
typedef struct FirState64f_32s FirState64f_32s;
typedef struct FirState64fc_16sc FirState64fc_16sc;
typedef struct FirState64fc_32fc FirState64fc_32fc;
typedef struct FirState64fc_32sc FirState64fc_32sc;
typedef struct FirLmsState_32f FirLmsState_32f;
typedef struct FirLmsState32f_16s FirLmsState32f_16s;
typedef struct FirLmsMrState32s_16s FirLmsMrState32s_16s;
typedef struct FirLmsMrState32sc_16sc FirLmsMrState32sc_16sc;
typedef struct FirSrSpec_32f FirSrSpec_32f;
typedef struct FirSrSpec_64f FirSrSpec_64f;
typedef struct FirSparseState_32f FirSparseState_32f;
typedef struct IirState_32f IirState_32f;
typedef struct IirState_32fc IirState_32fc;
typedef struct IirState_64f IirState_64f;
typedef struct IirState_64fc IirState_64fc;
typedef struct IirState32f_16s IirState32f_16s;
typedef struct IirState32fc_16sc IirState32fc_16sc;
typedef struct IirState32s_16s IirState32s_16s;
typedef struct IirState32sc_16sc IirState32sc_16sc;
typedef struct IirState64f_16s IirState64f_16s;
typedef struct IirState64f_32f IirState64f_32f;
typedef struct IirState64f_32s IirState64f_32s;
typedef struct IirState64fc_16sc IirState64fc_16sc;
typedef struct IirState64fc_32fc IirState64fc_32fc;
typedef struct IirState64fc_32sc IirState64fc_32sc;
typedef struct IirSparseState_32f IirSparseState_32f;
typedef struct RandGaussState_16s RandGaussState_16s;
typedef struct RandGaussState_32f RandGaussState_32f;
typedef struct RandGaussState_8u RandGaussState_8u;
typedef struct RandUniState_16s RandUniState_16s;
typedef struct RandUniState_32f RandUniState_32f;
typedef struct RandUniState_8u RandUniState_8u;
typedef struct ResamplePolyphaseState_16s ResamplePolyphaseState_16s;
typedef struct ResamplePolyphaseState_32f ResamplePolyphaseState_32f;
typedef struct ResamplePolyphaseFixedState_16s ResamplePolyphaseFixedState_16s;
typedef struct ResamplePolyphaseFixedState_32f ResamplePolyphaseFixedState_32f;
typedef struct ToneState_16s ToneState_16s;
typedef struct TriangleState_16s TriangleState_16s;

/* ======================================================================== *
 * Exports, grouped by family. Each prototype matches the project's export  *
 * list (api/ tables) character for character once white space is folded.    *
 * ======================================================================== */

/* ---- library frame ---------------------------------------------------- */

VEKS_API const VekLibraryVersion* veksGetLibVersion(void);
VEKS_API T8u* veksMalloc_8u(int len);
VEKS_API T8s* veksMalloc_8s(int len);
VEKS_API T16u* veksMalloc_16u(int len);
VEKS_API T16s* veksMalloc_16s(int len);
VEKS_API T8sc* veksMalloc_8sc(int len);
VEKS_API T32f* veksMalloc_32f(int len);
VEKS_API T32s* veksMalloc_32s(int len);
VEKS_API T32u* veksMalloc_32u(int len);
VEKS_API T16sc* veksMalloc_16sc(int len);
VEKS_API T64f* veksMalloc_64f(int len);
VEKS_API T64s* veksMalloc_64s(int len);
VEKS_API T32fc* veksMalloc_32fc(int len);
VEKS_API T32sc* veksMalloc_32sc(int len);
VEKS_API T64fc* veksMalloc_64fc(int len);
VEKS_API T64sc* veksMalloc_64sc(int len);
VEKS_API void veksFree(void* ptr);

/* ---- arithmetic: add, subtract, multiply, divide ------------------------ */
/* (section: arith) */
VEKS_API VekResult veksAddC_16s_I(T16s val, T16s* pSrcDst, int len);
VEKS_API VekResult veksAddC_16s_ISfs(T16s val, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_16s_Sfs(const T16s* pSrc, T16s val, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_16sc_ISfs(T16sc val, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_16sc_Sfs(const T16sc* pSrc, T16sc val, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_16u_ISfs(T16u val, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_16u_Sfs(const T16u* pSrc, T16u val, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_32f(const T32f* pSrc, T32f val, T32f* pDst, int len);
VEKS_API VekResult veksAddC_32f_I(T32f val, T32f* pSrcDst, int len);
VEKS_API VekResult veksAddC_32fc(const T32fc* pSrc, T32fc val, T32fc* pDst, int len);
VEKS_API VekResult veksAddC_32fc_I(T32fc val, T32fc* pSrcDst, int len);
VEKS_API VekResult veksAddC_32s_ISfs(T32s val, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_32s_Sfs(const T32s* pSrc, T32s val, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_32sc_ISfs(T32sc val, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_32sc_Sfs(const T32sc* pSrc, T32sc val, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_64f(const T64f* pSrc, T64f val, T64f* pDst, int len);
VEKS_API VekResult veksAddC_64f_I(T64f val, T64f* pSrcDst, int len);
VEKS_API VekResult veksAddC_64fc(const T64fc* pSrc, T64fc val, T64fc* pDst, int len);
VEKS_API VekResult veksAddC_64fc_I(T64fc val, T64fc* pSrcDst, int len);
VEKS_API VekResult veksAddC_64s_Sfs(const T64s* pSrc, T64s val, T64s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_64u_Sfs(const T64u* pSrc, T64u val, T64u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_8u_ISfs(T8u val, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddC_8u_Sfs(const T8u* pSrc, T8u val, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAddProductC_32f(const T32f* pSrc, T32f val, T32f* pSrcDst, int len);
VEKS_API VekResult veksAddProduct_16s32s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddProduct_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddProduct_32f(const T32f* pSrc1, const T32f* pSrc2, T32f* pSrcDst, int len);
VEKS_API VekResult veksAddProduct_32fc(const T32fc* pSrc1, const T32fc* pSrc2, T32fc* pSrcDst, int len);
VEKS_API VekResult veksAddProduct_32s_Sfs(const T32s* pSrc1, const T32s* pSrc2, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAddProduct_64f(const T64f* pSrc1, const T64f* pSrc2, T64f* pSrcDst, int len);
VEKS_API VekResult veksAddProduct_64fc(const T64fc* pSrc1, const T64fc* pSrc2, T64fc* pSrcDst, int len);
VEKS_API VekResult veksAdd_16s(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len);
VEKS_API VekResult veksAdd_16s32f(const T16s* pSrc1, const T16s* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksAdd_16s32s_I(const T16s* pSrc, T32s* pSrcDst, int len);
VEKS_API VekResult veksAdd_16s_I(const T16s* pSrc, T16s* pSrcDst, int len);
VEKS_API VekResult veksAdd_16s_ISfs(const T16s* pSrc, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_16sc_ISfs(const T16sc* pSrc, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_16sc_Sfs(const T16sc* pSrc1, const T16sc* pSrc2, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_16u(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len);
VEKS_API VekResult veksAdd_16u_ISfs(const T16u* pSrc, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_16u_Sfs(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_32f(const T32f* pSrc1, const T32f* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksAdd_32f_I(const T32f* pSrc, T32f* pSrcDst, int len);
VEKS_API VekResult veksAdd_32fc(const T32fc* pSrc1, const T32fc* pSrc2, T32fc* pDst, int len);
VEKS_API VekResult veksAdd_32fc_I(const T32fc* pSrc, T32fc* pSrcDst, int len);
VEKS_API VekResult veksAdd_32s_ISfs(const T32s* pSrc, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_32s_Sfs(const T32s* pSrc1, const T32s* pSrc2, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_32sc_ISfs(const T32sc* pSrc, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_32sc_Sfs(const T32sc* pSrc1, const T32sc* pSrc2, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_32u(const T32u* pSrc1, const T32u* pSrc2, T32u* pDst, int len);
VEKS_API VekResult veksAdd_64f(const T64f* pSrc1, const T64f* pSrc2, T64f* pDst, int len);
VEKS_API VekResult veksAdd_64f_I(const T64f* pSrc, T64f* pSrcDst, int len);
VEKS_API VekResult veksAdd_64fc(const T64fc* pSrc1, const T64fc* pSrc2, T64fc* pDst, int len);
VEKS_API VekResult veksAdd_64fc_I(const T64fc* pSrc, T64fc* pSrcDst, int len);
VEKS_API VekResult veksAdd_64s_Sfs(const T64s* pSrc1, const T64s* pSrc2, T64s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_8u16u(const T8u* pSrc1, const T8u* pSrc2, T16u* pDst, int len);
VEKS_API VekResult veksAdd_8u_ISfs(const T8u* pSrc, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksAdd_8u_Sfs(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDivCRev_16u(const T16u* pSrc, T16u val, T16u* pDst, int len);
VEKS_API VekResult veksDivCRev_16u_I(T16u val, T16u* pSrcDst, int len);
VEKS_API VekResult veksDivCRev_32f(const T32f* pSrc, T32f val, T32f* pDst, int len);
VEKS_API VekResult veksDivCRev_32f_I(T32f val, T32f* pSrcDst, int len);
VEKS_API VekResult veksDivC_16s_ISfs(T16s val, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_16s_Sfs(const T16s* pSrc, T16s val, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_16sc_ISfs(T16sc val, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_16sc_Sfs(const T16sc* pSrc, T16sc val, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_16u_ISfs(T16u val, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_16u_Sfs(const T16u* pSrc, T16u val, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_32f(const T32f* pSrc, T32f val, T32f* pDst, int len);
VEKS_API VekResult veksDivC_32f_I(T32f val, T32f* pSrcDst, int len);
VEKS_API VekResult veksDivC_32fc(const T32fc* pSrc, T32fc val, T32fc* pDst, int len);
VEKS_API VekResult veksDivC_32fc_I(T32fc val, T32fc* pSrcDst, int len);
VEKS_API VekResult veksDivC_64f(const T64f* pSrc, T64f val, T64f* pDst, int len);
VEKS_API VekResult veksDivC_64f_I(T64f val, T64f* pSrcDst, int len);
VEKS_API VekResult veksDivC_64fc(const T64fc* pSrc, T64fc val, T64fc* pDst, int len);
VEKS_API VekResult veksDivC_64fc_I(T64fc val, T64fc* pSrcDst, int len);
VEKS_API VekResult veksDivC_64s_ISfs(T64s val, T64s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_8u_ISfs(T8u val, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDivC_8u_Sfs(const T8u* pSrc, T8u val, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_16s_ISfs(const T16s* pSrc, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_16sc_ISfs(const T16sc* pSrc, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_16sc_Sfs(const T16sc* pSrc1, const T16sc* pSrc2, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_16u_ISfs(const T16u* pSrc, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_16u_Sfs(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_32f(const T32f* pSrc1, const T32f* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksDiv_32f_I(const T32f* pSrc, T32f* pSrcDst, int len);
VEKS_API VekResult veksDiv_32fc(const T32fc* pSrc1, const T32fc* pSrc2, T32fc* pDst, int len);
VEKS_API VekResult veksDiv_32fc_I(const T32fc* pSrc, T32fc* pSrcDst, int len);
VEKS_API VekResult veksDiv_32s16s_Sfs(const T32s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_32s_ISfs(const T32s* pSrc, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_32s_Sfs(const T32s* pSrc1, const T32s* pSrc2, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_64f(const T64f* pSrc1, const T64f* pSrc2, T64f* pDst, int len);
VEKS_API VekResult veksDiv_64f_I(const T64f* pSrc, T64f* pSrcDst, int len);
VEKS_API VekResult veksDiv_64fc(const T64fc* pSrc1, const T64fc* pSrc2, T64fc* pDst, int len);
VEKS_API VekResult veksDiv_64fc_I(const T64fc* pSrc, T64fc* pSrcDst, int len);
VEKS_API VekResult veksDiv_8u_ISfs(const T8u* pSrc, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_8u_Sfs(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksDiv_Round_16s_ISfs(const T16s* pSrc, T16s* pSrcDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksDiv_Round_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksDiv_Round_16u_ISfs(const T16u* pSrc, T16u* pSrcDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksDiv_Round_16u_Sfs(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksDiv_Round_8u_ISfs(const T8u* pSrc, T8u* pSrcDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksDiv_Round_8u_Sfs(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksMulC_16s_I(T16s val, T16s* pSrcDst, int len);
VEKS_API VekResult veksMulC_16s_ISfs(T16s val, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_16s_Sfs(const T16s* pSrc, T16s val, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_16sc_ISfs(T16sc val, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_16sc_Sfs(const T16sc* pSrc, T16sc val, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_16u_ISfs(T16u val, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_16u_Sfs(const T16u* pSrc, T16u val, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_32f(const T32f* pSrc, T32f val, T32f* pDst, int len);
VEKS_API VekResult veksMulC_32f16s_Sfs(const T32f* pSrc, T32f val, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_32f_I(T32f val, T32f* pSrcDst, int len);
VEKS_API VekResult veksMulC_32fc(const T32fc* pSrc, T32fc val, T32fc* pDst, int len);
VEKS_API VekResult veksMulC_32fc_I(T32fc val, T32fc* pSrcDst, int len);
VEKS_API VekResult veksMulC_32s_ISfs(T32s val, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_32s_Sfs(const T32s* pSrc, T32s val, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_32sc_ISfs(T32sc val, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_32sc_Sfs(const T32sc* pSrc, T32sc val, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_64f(const T64f* pSrc, T64f val, T64f* pDst, int len);
VEKS_API VekResult veksMulC_64f64s_ISfs(T64f val, T64s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_64f_I(T64f val, T64f* pSrcDst, int len);
VEKS_API VekResult veksMulC_64fc(const T64fc* pSrc, T64fc val, T64fc* pDst, int len);
VEKS_API VekResult veksMulC_64fc_I(T64fc val, T64fc* pSrcDst, int len);
VEKS_API VekResult veksMulC_64s_ISfs(T64s val, T64s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_8u_ISfs(T8u val, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_8u_Sfs(const T8u* pSrc, T8u val, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulC_Low_32f16s(const T32f* pSrc, T32f val, T16s* pDst, int len);
VEKS_API VekResult veksMul_16s(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len);
VEKS_API VekResult veksMul_16s32f(const T16s* pSrc1, const T16s* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksMul_16s32s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_16s_I(const T16s* pSrc, T16s* pSrcDst, int len);
VEKS_API VekResult veksMul_16s_ISfs(const T16s* pSrc, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_16sc_ISfs(const T16sc* pSrc, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_16sc_Sfs(const T16sc* pSrc1, const T16sc* pSrc2, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_16u16s_Sfs(const T16u* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_16u_ISfs(const T16u* pSrc, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_16u_Sfs(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_32f(const T32f* pSrc1, const T32f* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksMul_32f32fc(const T32f* pSrc1, const T32fc* pSrc2, T32fc* pDst, int len);
VEKS_API VekResult veksMul_32f32fc_I(const T32f* pSrc, T32fc* pSrcDst, int len);
VEKS_API VekResult veksMul_32f_I(const T32f* pSrc, T32f* pSrcDst, int len);
VEKS_API VekResult veksMul_32fc(const T32fc* pSrc1, const T32fc* pSrc2, T32fc* pDst, int len);
VEKS_API VekResult veksMul_32fc_I(const T32fc* pSrc, T32fc* pSrcDst, int len);
VEKS_API VekResult veksMul_32s32sc_ISfs(const T32s* pSrc, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_32s32sc_Sfs(const T32s* pSrc1, const T32sc* pSrc2, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_32s_ISfs(const T32s* pSrc, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_32s_Sfs(const T32s* pSrc1, const T32s* pSrc2, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_32sc_ISfs(const T32sc* pSrc, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_32sc_Sfs(const T32sc* pSrc1, const T32sc* pSrc2, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_64f(const T64f* pSrc1, const T64f* pSrc2, T64f* pDst, int len);
VEKS_API VekResult veksMul_64f_I(const T64f* pSrc, T64f* pSrcDst, int len);
VEKS_API VekResult veksMul_64fc(const T64fc* pSrc1, const T64fc* pSrc2, T64fc* pDst, int len);
VEKS_API VekResult veksMul_64fc_I(const T64fc* pSrc, T64fc* pSrcDst, int len);
VEKS_API VekResult veksMul_8u16u(const T8u* pSrc1, const T8u* pSrc2, T16u* pDst, int len);
VEKS_API VekResult veksMul_8u_ISfs(const T8u* pSrc, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_8u_Sfs(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMul_Low_32s_Sfs(const T32s* pSrc1, const T32s* pSrc2, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_16s_ISfs(T16s val, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_16s_Sfs(const T16s* pSrc, T16s val, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_16sc_ISfs(T16sc val, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_16sc_Sfs(const T16sc* pSrc, T16sc val, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_16u_ISfs(T16u val, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_16u_Sfs(const T16u* pSrc, T16u val, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_32f(const T32f* pSrc, T32f val, T32f* pDst, int len);
VEKS_API VekResult veksSubCRev_32f_I(T32f val, T32f* pSrcDst, int len);
VEKS_API VekResult veksSubCRev_32fc(const T32fc* pSrc, T32fc val, T32fc* pDst, int len);
VEKS_API VekResult veksSubCRev_32fc_I(T32fc val, T32fc* pSrcDst, int len);
VEKS_API VekResult veksSubCRev_32s_ISfs(T32s val, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_32s_Sfs(const T32s* pSrc, T32s val, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_32sc_ISfs(T32sc val, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_32sc_Sfs(const T32sc* pSrc, T32sc val, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_64f(const T64f* pSrc, T64f val, T64f* pDst, int len);
VEKS_API VekResult veksSubCRev_64f_I(T64f val, T64f* pSrcDst, int len);
VEKS_API VekResult veksSubCRev_64fc(const T64fc* pSrc, T64fc val, T64fc* pDst, int len);
VEKS_API VekResult veksSubCRev_64fc_I(T64fc val, T64fc* pSrcDst, int len);
VEKS_API VekResult veksSubCRev_8u_ISfs(T8u val, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubCRev_8u_Sfs(const T8u* pSrc, T8u val, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_16s_I(T16s val, T16s* pSrcDst, int len);
VEKS_API VekResult veksSubC_16s_ISfs(T16s val, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_16s_Sfs(const T16s* pSrc, T16s val, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_16sc_ISfs(T16sc val, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_16sc_Sfs(const T16sc* pSrc, T16sc val, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_16u_ISfs(T16u val, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_16u_Sfs(const T16u* pSrc, T16u val, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_32f(const T32f* pSrc, T32f val, T32f* pDst, int len);
VEKS_API VekResult veksSubC_32f_I(T32f val, T32f* pSrcDst, int len);
VEKS_API VekResult veksSubC_32fc(const T32fc* pSrc, T32fc val, T32fc* pDst, int len);
VEKS_API VekResult veksSubC_32fc_I(T32fc val, T32fc* pSrcDst, int len);
VEKS_API VekResult veksSubC_32s_ISfs(T32s val, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_32s_Sfs(const T32s* pSrc, T32s val, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_32sc_ISfs(T32sc val, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_32sc_Sfs(const T32sc* pSrc, T32sc val, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_64f(const T64f* pSrc, T64f val, T64f* pDst, int len);
VEKS_API VekResult veksSubC_64f_I(T64f val, T64f* pSrcDst, int len);
VEKS_API VekResult veksSubC_64fc(const T64fc* pSrc, T64fc val, T64fc* pDst, int len);
VEKS_API VekResult veksSubC_64fc_I(T64fc val, T64fc* pSrcDst, int len);
VEKS_API VekResult veksSubC_8u_ISfs(T8u val, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSubC_8u_Sfs(const T8u* pSrc, T8u val, T8u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_16s(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len);
VEKS_API VekResult veksSub_16s32f(const T16s* pSrc1, const T16s* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksSub_16s_I(const T16s* pSrc, T16s* pSrcDst, int len);
VEKS_API VekResult veksSub_16s_ISfs(const T16s* pSrc, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_16sc_ISfs(const T16sc* pSrc, T16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_16sc_Sfs(const T16sc* pSrc1, const T16sc* pSrc2, T16sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_16u_ISfs(const T16u* pSrc, T16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_16u_Sfs(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_32f(const T32f* pSrc1, const T32f* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksSub_32f_I(const T32f* pSrc, T32f* pSrcDst, int len);
VEKS_API VekResult veksSub_32fc(const T32fc* pSrc1, const T32fc* pSrc2, T32fc* pDst, int len);
VEKS_API VekResult veksSub_32fc_I(const T32fc* pSrc, T32fc* pSrcDst, int len);
VEKS_API VekResult veksSub_32s_ISfs(const T32s* pSrc, T32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_32s_Sfs(const T32s* pSrc1, const T32s* pSrc2, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_32sc_ISfs(const T32sc* pSrc, T32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_32sc_Sfs(const T32sc* pSrc1, const T32sc* pSrc2, T32sc* pDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_64f(const T64f* pSrc1, const T64f* pSrc2, T64f* pDst, int len);
VEKS_API VekResult veksSub_64f_I(const T64f* pSrc, T64f* pSrcDst, int len);
VEKS_API VekResult veksSub_64fc(const T64fc* pSrc1, const T64fc* pSrc2, T64fc* pDst, int len);
VEKS_API VekResult veksSub_64fc_I(const T64fc* pSrc, T64fc* pSrcDst, int len);
VEKS_API VekResult veksSub_8u_ISfs(const T8u* pSrc, T8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksSub_8u_Sfs(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len, int scaleFactor);

/* ---- arithmetic: logic and shifts --------------------------------------- */
/* (section: logic) */
VEKS_API VekResult veksAndC_16u(const T16u* pSrc, T16u val, T16u* pDst, int len);
VEKS_API VekResult veksAndC_16u_I(T16u val, T16u* pSrcDst, int len);
VEKS_API VekResult veksAndC_32u(const T32u* pSrc, T32u val, T32u* pDst, int len);
VEKS_API VekResult veksAndC_32u_I(T32u val, T32u* pSrcDst, int len);
VEKS_API VekResult veksAndC_8u(const T8u* pSrc, T8u val, T8u* pDst, int len);
VEKS_API VekResult veksAndC_8u_I(T8u val, T8u* pSrcDst, int len);
VEKS_API VekResult veksAnd_16u(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len);
VEKS_API VekResult veksAnd_16u_I(const T16u* pSrc, T16u* pSrcDst, int len);
VEKS_API VekResult veksAnd_32u(const T32u* pSrc1, const T32u* pSrc2, T32u* pDst, int len);
VEKS_API VekResult veksAnd_32u_I(const T32u* pSrc, T32u* pSrcDst, int len);
VEKS_API VekResult veksAnd_8u(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len);
VEKS_API VekResult veksAnd_8u_I(const T8u* pSrc, T8u* pSrcDst, int len);
VEKS_API VekResult veksLShiftC_16s(const T16s* pSrc, int val, T16s* pDst, int len);
VEKS_API VekResult veksLShiftC_16s_I(int val, T16s* pSrcDst, int len);
VEKS_API VekResult veksLShiftC_16u(const T16u* pSrc, int val, T16u* pDst, int len);
VEKS_API VekResult veksLShiftC_16u_I(int val, T16u* pSrcDst, int len);
VEKS_API VekResult veksLShiftC_32s(const T32s* pSrc, int val, T32s* pDst, int len);
VEKS_API VekResult veksLShiftC_32s_I(int val, T32s* pSrcDst, int len);
VEKS_API VekResult veksLShiftC_32u(const T32u* pSrc, int val, T32u* pDst, int len);
VEKS_API VekResult veksLShiftC_32u_I(int val, T32u* pSrcDst, int len);
VEKS_API VekResult veksLShiftC_8u(const T8u* pSrc, int val, T8u* pDst, int len);
VEKS_API VekResult veksLShiftC_8u_I(int val, T8u* pSrcDst, int len);
VEKS_API VekResult veksNot_16u(const T16u* pSrc, T16u* pDst, int len);
VEKS_API VekResult veksNot_16u_I(T16u* pSrcDst, int len);
VEKS_API VekResult veksNot_32u(const T32u* pSrc, T32u* pDst, int len);
VEKS_API VekResult veksNot_32u_I(T32u* pSrcDst, int len);
VEKS_API VekResult veksNot_8u(const T8u* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksNot_8u_I(T8u* pSrcDst, int len);
VEKS_API VekResult veksOrC_16u(const T16u* pSrc, T16u val, T16u* pDst, int len);
VEKS_API VekResult veksOrC_16u_I(T16u val, T16u* pSrcDst, int len);
VEKS_API VekResult veksOrC_32u(const T32u* pSrc, T32u val, T32u* pDst, int len);
VEKS_API VekResult veksOrC_32u_I(T32u val, T32u* pSrcDst, int len);
VEKS_API VekResult veksOrC_8u(const T8u* pSrc, T8u val, T8u* pDst, int len);
VEKS_API VekResult veksOrC_8u_I(T8u val, T8u* pSrcDst, int len);
VEKS_API VekResult veksOr_16u(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len);
VEKS_API VekResult veksOr_16u_I(const T16u* pSrc, T16u* pSrcDst, int len);
VEKS_API VekResult veksOr_32u(const T32u* pSrc1, const T32u* pSrc2, T32u* pDst, int len);
VEKS_API VekResult veksOr_32u_I(const T32u* pSrc, T32u* pSrcDst, int len);
VEKS_API VekResult veksOr_8u(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len);
VEKS_API VekResult veksOr_8u_I(const T8u* pSrc, T8u* pSrcDst, int len);
VEKS_API VekResult veksRShiftC_16s(const T16s* pSrc, int val, T16s* pDst, int len);
VEKS_API VekResult veksRShiftC_16s_I(int val, T16s* pSrcDst, int len);
VEKS_API VekResult veksRShiftC_16u(const T16u* pSrc, int val, T16u* pDst, int len);
VEKS_API VekResult veksRShiftC_16u_I(int val, T16u* pSrcDst, int len);
VEKS_API VekResult veksRShiftC_32s(const T32s* pSrc, int val, T32s* pDst, int len);
VEKS_API VekResult veksRShiftC_32s_I(int val, T32s* pSrcDst, int len);
VEKS_API VekResult veksRShiftC_32u(const T32u* pSrc, int val, T32u* pDst, int len);
VEKS_API VekResult veksRShiftC_32u_I(int val, T32u* pSrcDst, int len);
VEKS_API VekResult veksRShiftC_8u(const T8u* pSrc, int val, T8u* pDst, int len);
VEKS_API VekResult veksRShiftC_8u_I(int val, T8u* pSrcDst, int len);
VEKS_API VekResult veksXorC_16u(const T16u* pSrc, T16u val, T16u* pDst, int len);
VEKS_API VekResult veksXorC_16u_I(T16u val, T16u* pSrcDst, int len);
VEKS_API VekResult veksXorC_32u(const T32u* pSrc, T32u val, T32u* pDst, int len);
VEKS_API VekResult veksXorC_32u_I(T32u val, T32u* pSrcDst, int len);
VEKS_API VekResult veksXorC_8u(const T8u* pSrc, T8u val, T8u* pDst, int len);
VEKS_API VekResult veksXorC_8u_I(T8u val, T8u* pSrcDst, int len);
VEKS_API VekResult veksXor_16u(const T16u* pSrc1, const T16u* pSrc2, T16u* pDst, int len);
VEKS_API VekResult veksXor_16u_I(const T16u* pSrc, T16u* pSrcDst, int len);
VEKS_API VekResult veksXor_32u(const T32u* pSrc1, const T32u* pSrc2, T32u* pDst, int len);
VEKS_API VekResult veksXor_32u_I(const T32u* pSrc, T32u* pSrcDst, int len);
VEKS_API VekResult veksXor_8u(const T8u* pSrc1, const T8u* pSrc2, T8u* pDst, int len);
VEKS_API VekResult veksXor_8u_I(const T8u* pSrc, T8u* pSrcDst, int len);

/* ---- set, zero, copy, move ---------------------------------------------- */
/* (section: init) */
VEKS_API VekResult veksCopyBE_1u(const T8u* pSrc, int srcBitOffset, T8u* pDst, int dstBitOffset, int len);
VEKS_API VekResult veksCopyLE_1u(const T8u* pSrc, int srcBitOffset, T8u* pDst, int dstBitOffset, int len);
VEKS_API VekResult veksCopy_16s(const T16s* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksCopy_16sc(const T16sc* pSrc, T16sc* pDst, int len);
VEKS_API VekResult veksCopy_1u(const T8u* pSrc, int srcBitOffset, T8u* pDst, int dstBitOffset, int len);
VEKS_API VekResult veksCopy_32f(const T32f* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksCopy_32fc(const T32fc* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksCopy_32s(const T32s* pSrc, T32s* pDst, int len);
VEKS_API VekResult veksCopy_32sc(const T32sc* pSrc, T32sc* pDst, int len);
VEKS_API VekResult veksCopy_64f(const T64f* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksCopy_64fc(const T64fc* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksCopy_64s(const T64s* pSrc, T64s* pDst, int len);
VEKS_API VekResult veksCopy_64sc(const T64sc* pSrc, T64sc* pDst, int len);
VEKS_API VekResult veksCopy_8u(const T8u* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksMove_16s(const T16s* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksMove_16sc(const T16sc* pSrc, T16sc* pDst, int len);
VEKS_API VekResult veksMove_32f(const T32f* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksMove_32fc(const T32fc* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksMove_32s(const T32s* pSrc, T32s* pDst, int len);
VEKS_API VekResult veksMove_32sc(const T32sc* pSrc, T32sc* pDst, int len);
VEKS_API VekResult veksMove_64f(const T64f* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksMove_64fc(const T64fc* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksMove_64s(const T64s* pSrc, T64s* pDst, int len);
VEKS_API VekResult veksMove_64sc(const T64sc* pSrc, T64sc* pDst, int len);
VEKS_API VekResult veksMove_8u(const T8u* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksSet_16s(T16s val, T16s* pDst, int len);
VEKS_API VekResult veksSet_16sc(T16sc val, T16sc* pDst, int len);
VEKS_API VekResult veksSet_32f(T32f val, T32f* pDst, int len);
VEKS_API VekResult veksSet_32fc(T32fc val, T32fc* pDst, int len);
VEKS_API VekResult veksSet_32s(T32s val, T32s* pDst, int len);
VEKS_API VekResult veksSet_32sc(T32sc val, T32sc* pDst, int len);
VEKS_API VekResult veksSet_64f(T64f val, T64f* pDst, int len);
VEKS_API VekResult veksSet_64fc(T64fc val, T64fc* pDst, int len);
VEKS_API VekResult veksSet_64s(T64s val, T64s* pDst, int len);
VEKS_API VekResult veksSet_64sc(T64sc val, T64sc* pDst, int len);
VEKS_API VekResult veksSet_8u(T8u val, T8u* pDst, int len);
VEKS_API VekResult veksZero_16s(T16s* pDst, int len);
VEKS_API VekResult veksZero_16sc(T16sc* pDst, int len);
VEKS_API VekResult veksZero_32f(T32f* pDst, int len);
VEKS_API VekResult veksZero_32fc(T32fc* pDst, int len);
VEKS_API VekResult veksZero_32s(T32s* pDst, int len);
VEKS_API VekResult veksZero_32sc(T32sc* pDst, int len);
VEKS_API VekResult veksZero_64f(T64f* pDst, int len);
VEKS_API VekResult veksZero_64fc(T64fc* pDst, int len);
VEKS_API VekResult veksZero_64s(T64s* pDst, int len);
VEKS_API VekResult veksZero_64sc(T64sc* pDst, int len);
VEKS_API VekResult veksZero_8u(T8u* pDst, int len);

/* ---- type conversion ---------------------------------------------------- */
/* (section: convert) */
VEKS_API VekResult veksConvert_16f16s_Sfs(const T16f* pSrc, T16s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_16f32f(const T16f* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_16s16f(const T16s* pSrc, T16f* pDst, int len, int rndMode);
VEKS_API VekResult veksConvert_16s32f(const T16s* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_16s32f_Sfs(const T16s* pSrc, T32f* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_16s32s(const T16s* pSrc, T32s* pDst, int len);
VEKS_API VekResult veksConvert_16s64f_Sfs(const T16s* pSrc, T64f* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_16s8s_Sfs(const T16s* pSrc, T8s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_16u32f(const T16u* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_24s32f(const T24s* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_24s32s(const T24s* pSrc, T32s* pDst, int len);
VEKS_API VekResult veksConvert_24u32f(const T24u* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_24u32u(const T24u* pSrc, T32u* pDst, int len);
VEKS_API VekResult veksConvert_32f16f(const T32f* pSrc, T16f* pDst, int len, int rndMode);
VEKS_API VekResult veksConvert_32f16s_Sfs(const T32f* pSrc, T16s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_32f16u_Sfs(const T32f* pSrc, T16u* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_32f24s_Sfs(const T32f* pSrc, T24s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_32f24u_Sfs(const T32f* pSrc, T24u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_32f32s_Sfs(const T32f* pSrc, T32s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_32f64f(const T32f* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksConvert_32f8s_Sfs(const T32f* pSrc, T8s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_32f8u_Sfs(const T32f* pSrc, T8u* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_32s16s(const T32s* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksConvert_32s16s_Sfs(const T32s* pSrc, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_32s24s_Sfs(const T32s* pSrc, T24s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_32s32f(const T32s* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_32s32f_Sfs(const T32s* pSrc, T32f* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_32s64f(const T32s* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksConvert_32s64f_Sfs(const T32s* pSrc, T64f* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_32u24u_Sfs(const T32u* pSrc, T24u* pDst, int len, int scaleFactor);
VEKS_API VekResult veksConvert_64f16s_Sfs(const T64f* pSrc, T16s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_64f32f(const T64f* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_64f32s_Sfs(const T64f* pSrc, T32s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_64f64s_Sfs(const T64f* pSrc, T64s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_64s32s_Sfs(const T64s* pSrc, T32s* pDst, int len, int rndMode, int scaleFactor);
VEKS_API VekResult veksConvert_64s64f(const T64s* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksConvert_8s16s(const T8s* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksConvert_8s32f(const T8s* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksConvert_8u32f(const T8u* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksJoinScaled_32f16s_D2L(const T32f* const* pSrc, int nChannels, int chanLen, T16s* pDst);
VEKS_API VekResult veksJoinScaled_32f24s_D2L(const T32f* const* pSrc, int nChannels, int chanLen, T24s* pDst);
VEKS_API VekResult veksPackBits_32u8u(const T32u* pSrc, const int* pSrcBitsLen, int len, T8u* pDst, int dstBitOffset, int* pDstLenBit);
VEKS_API VekResult veksSplitScaled_16s32f_D2L(const T16s* pSrc, T32f** pDst, int nChannels, int chanLen);
VEKS_API VekResult veksSplitScaled_24s32f_D2L(const T24s* pSrc, T32f** pDst, int nChannels, int chanLen);
VEKS_API VekResult veksSwapBytes_16u(const T16u* pSrc, T16u* pDst, int len);
VEKS_API VekResult veksSwapBytes_16u_I(T16u* pSrcDst, int len);
VEKS_API VekResult veksSwapBytes_24u(const T24u* pSrc, T24u* pDst, int len);
VEKS_API VekResult veksSwapBytes_24u_I(T24u* pSrcDst, int len);
VEKS_API VekResult veksSwapBytes_32u(const T32u* pSrc, T32u* pDst, int len);
VEKS_API VekResult veksSwapBytes_32u_I(T32u* pSrcDst, int len);
VEKS_API VekResult veksSwapBytes_64u(const T64u* pSrc, T64u* pDst, int len);
VEKS_API VekResult veksSwapBytes_64u_I(T64u* pSrcDst, int len);
VEKS_API VekResult veksALawToLin_8u16s(const T8u* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksALawToLin_8u32f(const T8u* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksLinToALaw_16s8u(const T16s* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksLinToALaw_32f8u(const T32f* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksLinToMuLaw_16s8u(const T16s* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksLinToMuLaw_32f8u(const T32f* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksMuLawToLin_8u16s(const T8u* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksMuLawToLin_8u32f(const T8u* pSrc, T32f* pDst, int len);

/* ---- complex and polar data, flip, preemphasis ------------------------- */
/* (section: complex) */
VEKS_API VekResult veksCartToPolar_16sc_Sfs(const T16sc* pSrc, T16s* pDstMagn, T16s* pDstPhase, int len, int magnScaleFactor, int phaseScaleFactor);
VEKS_API VekResult veksCartToPolar_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32f* pDstMagn, T32f* pDstPhase, int len);
VEKS_API VekResult veksCartToPolar_32fc(const T32fc* pSrc, T32f* pDstMagn, T32f* pDstPhase, int len);
VEKS_API VekResult veksCartToPolar_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64f* pDstMagn, T64f* pDstPhase, int len);
VEKS_API VekResult veksCartToPolar_64fc(const T64fc* pSrc, T64f* pDstMagn, T64f* pDstPhase, int len);
VEKS_API VekResult veksConjFlip_16sc(const T16sc* pSrc, T16sc* pDst, int len);
VEKS_API VekResult veksConjFlip_32fc(const T32fc* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksConjFlip_64fc(const T64fc* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksConj_16sc(const T16sc* pSrc, T16sc* pDst, int len);
VEKS_API VekResult veksConj_16sc_I(T16sc* pSrcDst, int len);
VEKS_API VekResult veksConj_32fc(const T32fc* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksConj_32fc_I(T32fc* pSrcDst, int len);
VEKS_API VekResult veksConj_64fc(const T64fc* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksConj_64fc_I(T64fc* pSrcDst, int len);
VEKS_API VekResult veksCplxToReal_16sc(const T16sc* pSrc, T16s* pDstRe, T16s* pDstIm, int len);
VEKS_API VekResult veksCplxToReal_32fc(const T32fc* pSrc, T32f* pDstRe, T32f* pDstIm, int len);
VEKS_API VekResult veksCplxToReal_64fc(const T64fc* pSrc, T64f* pDstRe, T64f* pDstIm, int len);
VEKS_API VekResult veksImag_16sc(const T16sc* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksImag_32fc(const T32fc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksImag_64fc(const T64fc* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksMagSquared_32fc64f(const T32fc* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksMagSquared_32sc32s_Sfs(const T32sc* pSrc, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMagnitude_16s32f(const T16s* pSrcRe, const T16s* pSrcIm, T32f* pDst, int len);
VEKS_API VekResult veksMagnitude_16s_Sfs(const T16s* pSrcRe, const T16s* pSrcIm, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMagnitude_16sc32f(const T16sc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksMagnitude_16sc_Sfs(const T16sc* pSrc, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMagnitude_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32f* pDst, int len);
VEKS_API VekResult veksMagnitude_32fc(const T32fc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksMagnitude_32sc_Sfs(const T32sc* pSrc, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMagnitude_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64f* pDst, int len);
VEKS_API VekResult veksMagnitude_64fc(const T64fc* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksPhase_16s32f(const T16s* pSrcRe, const T16s* pSrcIm, T32f* pDst, int len);
VEKS_API VekResult veksPhase_16s_Sfs(const T16s* pSrcRe, const T16s* pSrcIm, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksPhase_16sc32f(const T16sc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksPhase_16sc_Sfs(const T16sc* pSrc, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksPhase_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32f* pDst, int len);
VEKS_API VekResult veksPhase_32fc(const T32fc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksPhase_32sc_Sfs(const T32sc* pSrc, T32s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksPhase_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64f* pDst, int len);
VEKS_API VekResult veksPhase_64fc(const T64fc* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksPolarToCart_16sc(const T16s* pSrcMagn, const T16s* pSrcPhase, int phaseFixedPoint, T16sc* pDst, int len);
VEKS_API VekResult veksPolarToCart_16sc_Sfs(const T16s* pSrcMagn, const T16s* pSrcPhase, T16sc* pDst, int len, int magnScaleFactor, int phaseScaleFactor);
VEKS_API VekResult veksPolarToCart_32f(const T32f* pSrcMagn, const T32f* pSrcPhase, T32f* pDstRe, T32f* pDstIm, int len);
VEKS_API VekResult veksPolarToCart_32fc(const T32f* pSrcMagn, const T32f* pSrcPhase, T32fc* pDst, int len);
VEKS_API VekResult veksPolarToCart_32sc(const T32s* pSrcMagn, const T32s* pSrcPhase, T32sc* pDst, int len);
VEKS_API VekResult veksPolarToCart_64f(const T64f* pSrcMagn, const T64f* pSrcPhase, T64f* pDstRe, T64f* pDstIm, int len);
VEKS_API VekResult veksPolarToCart_64fc(const T64f* pSrcMagn, const T64f* pSrcPhase, T64fc* pDst, int len);
VEKS_API VekResult veksPowerSpectr_16s32f(const T16s* pSrcRe, const T16s* pSrcIm, T32f* pDst, int len);
VEKS_API VekResult veksPowerSpectr_16s_Sfs(const T16s* pSrcRe, const T16s* pSrcIm, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksPowerSpectr_16sc32f(const T16sc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksPowerSpectr_16sc_Sfs(const T16sc* pSrc, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksPowerSpectr_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32f* pDst, int len);
VEKS_API VekResult veksPowerSpectr_32fc(const T32fc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksPowerSpectr_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64f* pDst, int len);
VEKS_API VekResult veksPowerSpectr_64fc(const T64fc* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksRealToCplx_16s(const T16s* pSrcRe, const T16s* pSrcIm, T16sc* pDst, int len);
VEKS_API VekResult veksRealToCplx_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32fc* pDst, int len);
VEKS_API VekResult veksRealToCplx_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64fc* pDst, int len);
VEKS_API VekResult veksReal_16sc(const T16sc* pSrc, T16s* pDst, int len);
VEKS_API VekResult veksReal_32fc(const T32fc* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksReal_64fc(const T64fc* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksFlip_16u(const T16u* pSrc, T16u* pDst, int len);
VEKS_API VekResult veksFlip_16u_I(T16u* pSrcDst, int len);
VEKS_API VekResult veksFlip_32f(const T32f* pSrc, T32f* pDst, int len);
VEKS_API VekResult veksFlip_32f_I(T32f* pSrcDst, int len);
VEKS_API VekResult veksFlip_32fc(const T32fc* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksFlip_32fc_I(T32fc* pSrcDst, int len);
VEKS_API VekResult veksFlip_64f(const T64f* pSrc, T64f* pDst, int len);
VEKS_API VekResult veksFlip_64f_I(T64f* pSrcDst, int len);
VEKS_API VekResult veksFlip_64fc(const T64fc* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksFlip_64fc_I(T64fc* pSrcDst, int len);
VEKS_API VekResult veksFlip_8u(const T8u* pSrc, T8u* pDst, int len);
VEKS_API VekResult veksFlip_8u_I(T8u* pSrcDst, int len);
VEKS_API VekResult veksPreemphasize_16s(const T16s* pSrc, T16s* pDst, int len, T32f val, T16s* pMem);
VEKS_API VekResult veksPreemphasize_16s_I(T16s* pSrcDst, int len, T32f val, T16s* pMem);
VEKS_API VekResult veksPreemphasize_32f(const T32f* pSrc, T32f* pDst, int len, T32f val, T32f* pMem);
VEKS_API VekResult veksPreemphasize_32f_I(T32f* pSrcDst, int len, T32f val, T32f* pMem);

/* ---- FFT ---------------------------------------------------------------- */
/* (section: fft) */
VEKS_API VekResult veksConjCcs_16sc(const T16sc* pSrc, T16sc* pDst, int len);
VEKS_API VekResult veksConjCcs_16sc_I(T16sc* pSrcDst, int len);
VEKS_API VekResult veksConjCcs_32fc(const T32fc* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksConjCcs_32fc_I(T32fc* pSrcDst, int len);
VEKS_API VekResult veksConjCcs_64fc(const T64fc* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksConjCcs_64fc_I(T64fc* pSrcDst, int len);
VEKS_API VekResult veksConjPack_16sc(const T16s* pSrc, T16sc* pDst, int len);
VEKS_API VekResult veksConjPack_16sc_I(T16sc* pSrcDst, int len);
VEKS_API VekResult veksConjPack_32fc(const T32f* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksConjPack_32fc_I(T32fc* pSrcDst, int len);
VEKS_API VekResult veksConjPack_64fc(const T64f* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksConjPack_64fc_I(T64fc* pSrcDst, int len);
VEKS_API VekResult veksConjPerm_16sc(const T16s* pSrc, T16sc* pDst, int len);
VEKS_API VekResult veksConjPerm_16sc_I(T16sc* pSrcDst, int len);
VEKS_API VekResult veksConjPerm_32fc(const T32f* pSrc, T32fc* pDst, int len);
VEKS_API VekResult veksConjPerm_32fc_I(T32fc* pSrcDst, int len);
VEKS_API VekResult veksConjPerm_64fc(const T64f* pSrc, T64fc* pDst, int len);
VEKS_API VekResult veksConjPerm_64fc_I(T64fc* pSrcDst, int len);
VEKS_API VekResult veksFFTFree_C_16s(FftSpec_C_16s* pSpec);
VEKS_API VekResult veksFFTFree_C_16sc(FftSpec_C_16sc* pSpec);
VEKS_API VekResult veksFFTFree_C_32f(FftSpec_C_32f* pSpec);
VEKS_API VekResult veksFFTFree_C_32fc(FftSpec_C_32fc* pSpec);
VEKS_API VekResult veksFFTFree_C_32s(FftSpec_C_32s* pSpec);
VEKS_API VekResult veksFFTFree_C_32sc(FftSpec_C_32sc* pSpec);
VEKS_API VekResult veksFFTFree_C_64f(FftSpec_C_64f* pSpec);
VEKS_API VekResult veksFFTFree_C_64fc(FftSpec_C_64fc* pSpec);
VEKS_API VekResult veksFFTFree_R_16s(FftSpec_R_16s* pSpec);
VEKS_API VekResult veksFFTFree_R_16s32s(FftSpec_R_16s32s* pSpec);
VEKS_API VekResult veksFFTFree_R_32f(FftSpec_R_32f* pSpec);
VEKS_API VekResult veksFFTFree_R_32s(FftSpec_R_32s* pSpec);
VEKS_API VekResult veksFFTFree_R_64f(FftSpec_R_64f* pSpec);
VEKS_API VekResult veksFFTFwd_CToC_16s_ISfs(T16s* pSrcDstRe, T16s* pSrcDstIm, const FftSpec_C_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_16s_Sfs(const T16s* pSrcRe, const T16s* pSrcIm, T16s* pDstRe, T16s* pDstIm, const FftSpec_C_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_16sc_ISfs(T16sc* pSrcDst, const FftSpec_C_16sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_16sc_Sfs(const T16sc* pSrc, T16sc* pDst, const FftSpec_C_16sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32f* pDstRe, T32f* pDstIm, const FftSpec_C_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32f_I(T32f* pSrcDstRe, T32f* pSrcDstIm, const FftSpec_C_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32fc(const T32fc* pSrc, T32fc* pDst, const FftSpec_C_32fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32fc_I(T32fc* pSrcDst, const FftSpec_C_32fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32s_ISfs(T32s* pSrcDstRe, T32s* pSrcDstIm, const FftSpec_C_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32s_Sfs(const T32s* pSrcRe, const T32s* pSrcIm, T32s* pDstRe, T32s* pDstIm, const FftSpec_C_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32sc_ISfs(T32sc* pSrcDst, const FftSpec_C_32sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_32sc_Sfs(const T32sc* pSrc, T32sc* pDst, const FftSpec_C_32sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64f* pDstRe, T64f* pDstIm, const FftSpec_C_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_64f_I(T64f* pSrcDstRe, T64f* pSrcDstIm, const FftSpec_C_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_64fc(const T64fc* pSrc, T64fc* pDst, const FftSpec_C_64fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_CToC_64fc_I(T64fc* pSrcDst, const FftSpec_C_64fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_16s32s_Sfs(const T16s* pSrc, T32sc* pDst, const FftSpec_R_16s32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_16s_ISfs(T16s* pSrcDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_16s_Sfs(const T16s* pSrc, T16s* pDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_32f(const T32f* pSrc, T32f* pDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_32f_I(T32f* pSrcDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_32s_ISfs(T32s* pSrcDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_32s_Sfs(const T32s* pSrc, T32s* pDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_64f(const T64f* pSrc, T64f* pDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToCCS_64f_I(T64f* pSrcDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_16s_ISfs(T16s* pSrcDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_16s_Sfs(const T16s* pSrc, T16s* pDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_32f(const T32f* pSrc, T32f* pDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_32f_I(T32f* pSrcDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_32s_ISfs(T32s* pSrcDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_32s_Sfs(const T32s* pSrc, T32s* pDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_64f(const T64f* pSrc, T64f* pDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPack_64f_I(T64f* pSrcDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_16s_ISfs(T16s* pSrcDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_16s_Sfs(const T16s* pSrc, T16s* pDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_32f(const T32f* pSrc, T32f* pDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_32f_I(T32f* pSrcDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_32s_ISfs(T32s* pSrcDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_32s_Sfs(const T32s* pSrc, T32s* pDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_64f(const T64f* pSrc, T64f* pDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTFwd_RToPerm_64f_I(T64f* pSrcDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTGetBufSize_C_16s(const FftSpec_C_16s* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_C_16sc(const FftSpec_C_16sc* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_C_32f(const FftSpec_C_32f* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_C_32fc(const FftSpec_C_32fc* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_C_32s(const FftSpec_C_32s* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_C_32sc(const FftSpec_C_32sc* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_C_64f(const FftSpec_C_64f* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_C_64fc(const FftSpec_C_64fc* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_R_16s(const FftSpec_R_16s* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_R_16s32s(const FftSpec_R_16s32s* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_R_32f(const FftSpec_R_32f* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_R_32s(const FftSpec_R_32s* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetBufSize_R_64f(const FftSpec_R_64f* pSpec, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_16s(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_16sc(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_32f(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_32fc(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_32s(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_32sc(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_64f(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_C_64fc(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_R_16s(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_R_16s32s(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_R_32f(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_R_32s(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTGetSize_R_64f(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
VEKS_API VekResult veksFFTInitAlloc_C_16s(FftSpec_C_16s** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_C_16sc(FftSpec_C_16sc** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_C_32f(FftSpec_C_32f** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_C_32fc(FftSpec_C_32fc** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_C_32s(FftSpec_C_32s** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_C_32sc(FftSpec_C_32sc** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_C_64f(FftSpec_C_64f** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_C_64fc(FftSpec_C_64fc** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_R_16s(FftSpec_R_16s** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_R_16s32s(FftSpec_R_16s32s** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_R_32f(FftSpec_R_32f** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_R_32s(FftSpec_R_32s** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInitAlloc_R_64f(FftSpec_R_64f** ppSpec, int order, int flag, int hint);
VEKS_API VekResult veksFFTInit_C_16s(FftSpec_C_16s** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_C_16sc(FftSpec_C_16sc** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_C_32f(FftSpec_C_32f** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_C_32fc(FftSpec_C_32fc** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_C_32s(FftSpec_C_32s** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_C_32sc(FftSpec_C_32sc** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_C_64f(FftSpec_C_64f** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_C_64fc(FftSpec_C_64fc** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_R_16s(FftSpec_R_16s** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_R_16s32s(FftSpec_R_16s32s** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_R_32f(FftSpec_R_32f** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_R_32s(FftSpec_R_32s** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInit_R_64f(FftSpec_R_64f** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf);
VEKS_API VekResult veksFFTInv_CCSToR_16s_ISfs(T16s* pSrcDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_16s_Sfs(const T16s* pSrc, T16s* pDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_32f(const T32f* pSrc, T32f* pDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_32f_I(T32f* pSrcDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_32s16s_Sfs(const T32sc* pSrc, T16s* pDst, const FftSpec_R_16s32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_32s_ISfs(T32s* pSrcDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_32s_Sfs(const T32s* pSrc, T32s* pDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_64f(const T64f* pSrc, T64f* pDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CCSToR_64f_I(T64f* pSrcDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_16s_ISfs(T16s* pSrcDstRe, T16s* pSrcDstIm, const FftSpec_C_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_16s_Sfs(const T16s* pSrcRe, const T16s* pSrcIm, T16s* pDstRe, T16s* pDstIm, const FftSpec_C_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_16sc_ISfs(T16sc* pSrcDst, const FftSpec_C_16sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_16sc_Sfs(const T16sc* pSrc, T16sc* pDst, const FftSpec_C_16sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32f* pDstRe, T32f* pDstIm, const FftSpec_C_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32f_I(T32f* pSrcDstRe, T32f* pSrcDstIm, const FftSpec_C_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32fc(const T32fc* pSrc, T32fc* pDst, const FftSpec_C_32fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32fc_I(T32fc* pSrcDst, const FftSpec_C_32fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32s_ISfs(T32s* pSrcDstRe, T32s* pSrcDstIm, const FftSpec_C_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32s_Sfs(const T32s* pSrcRe, const T32s* pSrcIm, T32s* pDstRe, T32s* pDstIm, const FftSpec_C_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32sc_ISfs(T32sc* pSrcDst, const FftSpec_C_32sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_32sc_Sfs(const T32sc* pSrc, T32sc* pDst, const FftSpec_C_32sc* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64f* pDstRe, T64f* pDstIm, const FftSpec_C_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_64f_I(T64f* pSrcDstRe, T64f* pSrcDstIm, const FftSpec_C_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_64fc(const T64fc* pSrc, T64fc* pDst, const FftSpec_C_64fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_CToC_64fc_I(T64fc* pSrcDst, const FftSpec_C_64fc* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_16s_ISfs(T16s* pSrcDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_16s_Sfs(const T16s* pSrc, T16s* pDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_32f(const T32f* pSrc, T32f* pDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_32f_I(T32f* pSrcDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_32s_ISfs(T32s* pSrcDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_32s_Sfs(const T32s* pSrc, T32s* pDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_64f(const T64f* pSrc, T64f* pDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PackToR_64f_I(T64f* pSrcDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_16s_ISfs(T16s* pSrcDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_16s_Sfs(const T16s* pSrc, T16s* pDst, const FftSpec_R_16s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_32f(const T32f* pSrc, T32f* pDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_32f_I(T32f* pSrcDst, const FftSpec_R_32f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_32s_ISfs(T32s* pSrcDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_32s_Sfs(const T32s* pSrc, T32s* pDst, const FftSpec_R_32s* pSpec, int scaleFactor, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_64f(const T64f* pSrc, T64f* pDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksFFTInv_PermToR_64f_I(T64f* pSrcDst, const FftSpec_R_64f* pSpec, T8u* pBuffer);
VEKS_API VekResult veksMulPackConj_32f_I(const T32f* pSrc, T32f* pSrcDst, int len);
VEKS_API VekResult veksMulPackConj_64f_I(const T64f* pSrc, T64f* pSrcDst, int len);
VEKS_API VekResult veksMulPack_16s_ISfs(const T16s* pSrc, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulPack_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulPack_32f(const T32f* pSrc1, const T32f* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksMulPack_32f_I(const T32f* pSrc, T32f* pSrcDst, int len);
VEKS_API VekResult veksMulPack_64f(const T64f* pSrc1, const T64f* pSrc2, T64f* pDst, int len);
VEKS_API VekResult veksMulPack_64f_I(const T64f* pSrc, T64f* pSrcDst, int len);
VEKS_API VekResult veksMulPerm_16s_ISfs(const T16s* pSrc, T16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekResult veksMulPerm_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor);
VEKS_API VekResult veksMulPerm_32f(const T32f* pSrc1, const T32f* pSrc2, T32f* pDst, int len);
VEKS_API VekResult veksMulPerm_32f_I(const T32f* pSrc, T32f* pSrcDst, int len);
VEKS_API VekResult veksMulPerm_64f(const T64f* pSrc1, const T64f* pSrc2, T64f* pDst, int len);
VEKS_API VekResult veksMulPerm_64f_I(const T64f* pSrc, T64f* pSrcDst, int len);

#ifdef __cplusplus
}
#endif

#endif /* VEKS_H */
