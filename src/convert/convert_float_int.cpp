// Convert from single and double precision to integers.
#include "convert/convert_shapes.h"

VEKS_CONVERT_RND_SFS(veksConvert_32f8s_Sfs, T32f, T8s)
VEKS_CONVERT_RND_SFS(veksConvert_32f8u_Sfs, T32f, T8u)
VEKS_CONVERT_RND_SFS(veksConvert_32f16s_Sfs, T32f, T16s)
VEKS_CONVERT_RND_SFS(veksConvert_32f16u_Sfs, T32f, T16u)
VEKS_CONVERT_SFS(veksConvert_32f24s_Sfs, T32f, T24s)
VEKS_CONVERT_SFS(veksConvert_32f24u_Sfs, T32f, T24u)
VEKS_CONVERT_RND_SFS(veksConvert_32f32s_Sfs, T32f, T32s)
VEKS_CONVERT_RND_SFS(veksConvert_64f16s_Sfs, T64f, T16s)
VEKS_CONVERT_RND_SFS(veksConvert_64f32s_Sfs, T64f, T32s)
VEKS_CONVERT_RND_SFS(veksConvert_64f64s_Sfs, T64f, T64s)
