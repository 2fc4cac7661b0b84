// SPDX-License-Identifier: MIT
#include "Engine/EngineTypes.h"

namespace
{
FAttachmentTransformRules SnapWithoutScale()
{
	FAttachmentTransformRules Rules(EAttachmentRule::SnapToTarget, false);
	Rules.ScaleRule = EAttachmentRule::KeepWorld;
	return Rules;
}
} // namespace

const FAttachmentTransformRules FAttachmentTransformRules::KeepRelativeTransform(EAttachmentRule::KeepRelative, false);
const FAttachmentTransformRules FAttachmentTransformRules::KeepWorldTransform(EAttachmentRule::KeepWorld, false);
const FAttachmentTransformRules FAttachmentTransformRules::SnapToTargetNotIncludingScale = SnapWithoutScale();

const FDetachmentTransformRules FDetachmentTransformRules::KeepRelativeTransform(EDetachmentRule::KeepRelative, true);
const FDetachmentTransformRules FDetachmentTransformRules::KeepWorldTransform(EDetachmentRule::KeepWorld, true);
