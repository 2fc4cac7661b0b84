// SPDX-License-Identifier: MIT
/** Conversions from the editor's records to the link's. */
#pragma once

#include "ZEFTandemRecords.h"
#include "ZefTandemCore.h"

namespace ZEFRuntimeUtils
{

/**
 * Turns a joint animation with its mesh into the form that UZEFTandemClientComponent::SendData takes. Values are copied
 * as they stand; nothing is checked here, the link refuses on sending what its protocol does not admit.
 * @param OutAnimation  its former record is released
 */
ZEFTANDEMRUNTIME_API void ConvertZEFJointAnimationToJointAnimation(
	const FZEFJointAnimation& Animation, ZefTandemCore::JointAnimation& OutAnimation);

} // namespace ZEFRuntimeUtils
