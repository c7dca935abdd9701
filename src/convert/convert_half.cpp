// Convert to and from IEEE 754 half precision.
#include "convert/convert_shapes.h"

VEKS_CONVERT_HALF_RND_SFS(veksConvert_16f16s_Sfs, T16f, T16s)
VEKS_CONVERT_HALF(veksConvert_16f32f, T16f, T32f)
VEKS_CONVERT_HALF_RND(veksConvert_16s16f, T16s, T16f)
VEKS_CONVERT_HALF_RND(veksConvert_32f16f, T32f, T16f)
