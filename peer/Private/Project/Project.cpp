// SPDX-License-Identifier: MIT
#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

const char* ObjectTypeName(EObjectType Type)
{
	switch (Type)
	{
		case EObjectType::Garment:
			return "garment";
		case EObjectType::Avatar:
			return "avatar";
		case EObjectType::Outfit:
			return "outfit";
		case EObjectType::Prop:
			return "prop";
		case EObjectType::Invalid:
			break;
	}
	return "invalid";
}

FObjectCounts CountObject(const FSurfaceMesh& Mesh)
{
	FObjectCounts Counts;
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		Counts.Vertices += Surface.Positions.size();
		for (const FSection& Section : Surface.Sections)
		{
			Counts.Triangles += Section.Indices.size() / 3;
		}
	}
	for (const auto& [Key, Texture] : Mesh.Textures)
	{
		Counts.TextureBytes += Texture.Pixels.size();
	}
	return Counts;
}

FAvailability ProjectAvailability(const FProject& Project)
{
	FAvailability Flags;
	if (const FProjectObject* Garment = Project.Find(EObjectType::Garment))
	{
		Flags.bFlag0 = true;
		Flags.bGarmentHasAnimation = Garment->HasMeshSequence();
	}
	if (const FProjectObject* Avatar = Project.Find(EObjectType::Avatar))
	{
		Flags.bFlag2 = true;
		Flags.bAvatarHasAnimation = Avatar->HasMeshSequence();
		Flags.bAvatarHasSkeleton = !Avatar->Mesh.Joints.empty();
	}
	return Flags;
}

} // namespace Zef::Peer
