// SPDX-License-Identifier: MIT
/** Values of the link's library in the editor's types and back. */
#pragma once

#include "ZEFTandemRecords.h"

#include "Zef/Items.h"

#include <string>

namespace ZEFRecordConversion
{

// Arrays of these are copied as bytes between the two.
static_assert(sizeof(FVector3f) == sizeof(Zef::FVec3) && sizeof(FVector2f) == sizeof(Zef::FVec2));
static_assert(sizeof(FZEFBoneInfluence) == sizeof(Zef::FBoneWeight));

FString ToString(const std::string& Text);
std::string FromString(const FString& Text);

FTransform3f ToTransform(const Zef::FTransform& Transform);
Zef::FTransform FromTransform(const FTransform3f& Transform);

FZEFMaterial ToMaterial(const Zef::FMaterial& Material);
Zef::FMaterial FromMaterial(const FZEFMaterial& Material);

FZEFJoint ToJoint(const Zef::FJoint& Joint);
Zef::FJoint FromJoint(const FZEFJoint& Joint);

/** A whole mesh with its arrays. */
Zef::FSurfaceMesh FromSurfaceMesh(const FZEFSurfaceMesh& Mesh);

Zef::FJointSequence FromSequence(const FZEFJointSequence& Sequence);
void ToSequence(const Zef::FPackedJointSequence& Packed, FZEFJointSequence& OutSequence);

} // namespace ZEFRecordConversion
