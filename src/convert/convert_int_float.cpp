// Convert from integers to single and double precision, and between the
// two floating types.
#include "convert/convert_shapes.h"

VEKS_CONVERT(veksConvert_8s32f, T8s, T32f)
VEKS_CONVERT(veksConvert_8u32f, T8u, T32f)
VEKS_CONVERT(veksConvert_16s32f, T16s, T32f)
VEKS_CONVERT_SFS(veksConvert_16s32f_Sfs, T16s, T32f)
VEKS_CONVERT_SFS(veksConvert_16s64f_Sfs, T16s, T64f)
VEKS_CONVERT(veksConvert_16u32f, T16u, T32f)
VEKS_CONVERT(veksConvert_24s32f, T24s, T32f)
VEKS_CONVERT(veksConvert_24u32f, T24u, T32f)
VEKS_CONVERT(veksConvert_32s32f, T32s, T32f)
VEKS_CONVERT_SFS(veksConvert_32s32f_Sfs, T32s, T32f)
VEKS_CONVERT(veksConvert_32s64f, T32s, T64f)
VEKS_CONVERT_SFS(veksConvert_32s64f_Sfs, T32s, T64f)
VEKS_CONVERT(veksConvert_64s64f, T64s, T64f)
VEKS_CONVERT(veksConvert_32f64f, T32f, T64f)
VEKS_CONVERT(veksConvert_64f32f, T64f, T32f)
