// SPDX-License-Identifier: MIT
/** Keys, buttons and modifiers from Qt to the model. */
#pragma once

#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"

#include <Qt>

class QKeyEvent;

namespace Host
{

/** The model's key; Invalid for one that it has not. */
FKey ToKey(const QKeyEvent& Event);
/** LeftMouseButton, ...; Invalid for one that the model has not. */
FKey ToKey(Qt::MouseButton Button);
FModifierKeysState ToModifiers(Qt::KeyboardModifiers Modifiers);

} // namespace Host
