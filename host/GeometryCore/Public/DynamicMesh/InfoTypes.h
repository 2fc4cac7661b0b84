// SPDX-License-Identifier: MIT
/** What a vertex brings when it is appended to a mesh. */
#pragma once

#include "Math/Vector.h"
#include "Math/Vector2D.h"

namespace UE::Geometry
{

/** A vertex with up to three attributes; the flags say which of them count. */
struct FVertexInfo
{
	FVector3d Position;
	FVector3f Normal;
	FVector3f Color;
	FVector2f UV;
	bool bHaveN;
	bool bHaveUV;
	bool bHaveC;

	/** At the origin, without attributes. */
	FVertexInfo()
		: FVertexInfo(FVector3d(0.0, 0.0, 0.0))
	{
	}
	/** Without attributes; their values are zero. */
	FVertexInfo(const FVector3d& InPosition)
		: Position(InPosition)
		, Normal(0.0f)
		, Color(0.0f)
		, UV(0.0f)
		, bHaveN(false)
		, bHaveUV(false)
		, bHaveC(false)
	{
	}
	FVertexInfo(const FVector3d& InPosition, const FVector3f& InNormal)
		: FVertexInfo(InPosition)
	{
		Normal = InNormal;
		bHaveN = true;
	}
	FVertexInfo(const FVector3d& InPosition, const FVector3f& InNormal, const FVector3f& InColor)
		: FVertexInfo(InPosition, InNormal)
	{
		Color = InColor;
		bHaveC = true;
	}
	FVertexInfo(const FVector3d& InPosition, const FVector3f& InNormal, const FVector3f& InColor, const FVector2f& InUV)
		: FVertexInfo(InPosition, InNormal, InColor)
	{
		UV = InUV;
		bHaveUV = true;
	}
};

} // namespace UE::Geometry
