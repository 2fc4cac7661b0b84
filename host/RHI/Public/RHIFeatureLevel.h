// SPDX-License-Identifier: MIT
/** Levels of what a graphics device can do. */
#pragma once

#include "CoreTypes.h"

/** Feature levels in ascending order. */
namespace ERHIFeatureLevel
{
enum Type : int
{
	/** No longer supported by any device. */
	ES2_REMOVED,
	/** What OpenGL ES 3.1 and Metal on mobile devices can do. */
	ES3_1,
	/** No longer supported by any device. */
	SM4_REMOVED,
	/** What DirectX shader model 5 can do. */
	SM5,
	/** What DirectX shader model 6 can do. */
	SM6,
	/** Number of levels; as an argument it stands for the level in use. */
	Num
};
}
