// SPDX-License-Identifier: MIT
/** Copying the values of objects. */
#pragma once

#include "UObject/ObjectMacros.h"

namespace Host
{

/**
 * Copies the reflected values of a template, and of the parts that it owns, into a new object. References into the
 * template become references into the object.
 */
void CopyTemplate(UObject* Template, UObject* Object, bool bWithTransients);

} // namespace Host
