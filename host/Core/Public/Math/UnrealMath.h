// SPDX-License-Identifier: MIT
/** The whole math library. */
#pragma once

#include "Math/Axis.h"
#include "Math/Box.h"
#include "Math/BoxSphereBounds.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/IntVector.h"
#include "Math/MathFwd.h"
#include "Math/Matrix.h"
#include "Math/NumericLimits.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "Math/Sphere.h"
#include "Math/Transform.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
