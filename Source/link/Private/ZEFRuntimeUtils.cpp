// SPDX-License-Identifier: MIT
#include "ZEFRuntimeUtils.h"

#include "ZEFRecordConversion.h"

#include "Zef/Records.h"

void ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(
	const FZEFJointAnimation& Animation, ZefTandemCore::JointAnimation& OutAnimation)
{
	auto Record = std::make_shared<Zef::FJointAnimation>();
	Record->Mesh = ZEFRecordConversion::FromSurfaceMesh(Animation.Mesh);
	Record->Sequence = ZEFRecordConversion::FromSequence(Animation.Sequence);
	OutAnimation.Record = MoveTemp(Record);
}
