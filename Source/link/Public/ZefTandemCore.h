// SPDX-License-Identifier: MIT
/** The tags and small records of the link, as the client component takes and gives them. */
#pragma once

#include "CoreMinimal.h"

#include <memory>

namespace Zef
{
struct FJointAnimation;
}

namespace ZefTandemCore
{

/** Kinds of objects. Single bits: the same values serve as a mask, and 30 means all four. */
enum class TandemObjectType : int32
{
	Garment = 2,
	Avatar = 4,
	Outfit = 8,
	Prop = 16,
	Invalid = 255
};

/** What a send asks for. */
enum class TandemMessage : int32
{
	/** Enable or disable the link; a bool goes with it. */
	Enable = 0,
	/** Update of all objects; PackingOptions go with it. */
	RequestUpdate = 1,
	/** Animation of one object; ObjectTypeInfo and PackingOptions go with it. */
	RequestAnimation = 2,
	/** The availability flags; nothing goes with it. */
	RequestAvailability = 3,
	/** Hands over a joint animation; ObjectTypeInfo and JointAnimation go with it. */
	SendJointAnimation = 4
};

/** How the garment application prepares what it sends. */
struct PackingOptions
{
	/** Weld the meshes before sending. */
	bool bWeld = false;
	/** Send the garment's materials as one unified material. */
	bool bUnifiedMaterial = false;
};

/** One object and the animation wanted of it. */
struct ObjectTypeInfo
{
	/** A TandemObjectType. */
	int32 ObjectType = 255;
	/** 0 mesh sequence, 1 joint animation, 2 none. */
	int32 AnimationKind = 2;
};

/** What the garment application can be asked for at the moment. */
struct TandemAvailability
{
	bool bFlag0 = false;
	bool bGarmentHasAnimation = false;
	bool bFlag2 = false;
	bool bAvatarHasAnimation = false;
	bool bAvatarHasSkeleton = false;
};

/**
 * A joint animation in the link's own form, made by ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation. Copies
 * share the record, which nothing changes any more; so sending it copies no array.
 */
struct JointAnimation
{
	/** Null until converted. */
	std::shared_ptr<const Zef::FJointAnimation> Record;
};

} // namespace ZefTandemCore
