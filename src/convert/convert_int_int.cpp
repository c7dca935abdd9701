// Convert between integer types, the packed 24-bit ones included.
#include "convert/convert_shapes.h"

VEKS_CONVERT(veksConvert_8s16s, T8s, T16s)
VEKS_CONVERT_RND_SFS_COUNT(veksConvert_16s8s_Sfs, T16s, T8s)
VEKS_CONVERT(veksConvert_16s32s, T16s, T32s)
VEKS_CONVERT(veksConvert_24s32s, T24s, T32s)
VEKS_CONVERT(veksConvert_24u32u, T24u, T32u)
VEKS_CONVERT(veksConvert_32s16s, T32s, T16s)
VEKS_CONVERT_SFS(veksConvert_32s16s_Sfs, T32s, T16s)
VEKS_CONVERT_SFS(veksConvert_32s24s_Sfs, T32s, T24s)
VEKS_CONVERT_SFS(veksConvert_32u24u_Sfs, T32u, T24u)
VEKS_CONVERT_RND_SFS(veksConvert_64s32s_Sfs, T64s, T32s)
