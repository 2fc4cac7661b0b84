// SPDX-License-Identifier: MIT
// Being told of objects that are about to change.
#pragma once

class UObject;

namespace Host
{
/** @return true when the object's present values are kept, so that they can be brought back */
using FChangeRecorder = bool (*)(UObject& Object);

/** Called by UObject::Modify for objects with RF_Transactional; null for none. */
void SetChangeRecorder(FChangeRecorder Recorder);
} // namespace Host
