// SPDX-License-Identifier: MIT
/** Unit vectors of four signed bytes or words, as vertex buffers hold them. */
#pragma once

#include "CoreTypes.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"
#include "Math/Vector4.h"

/** A unit vector with a sign, each component a signed byte of 127ths. */
struct FPackedNormal
{
	union
	{
		struct
		{
			int8 X;
			int8 Y;
			int8 Z;
			int8 W;
		};
		uint32 Packed;
	};

	/** Zero. */
	constexpr FPackedNormal()
		: Packed(0)
	{
	}
	/** Each component is rounded as FMath::RoundToInt does and limited to -128..127; W is 127. */
	FPackedNormal(const FVector3f& InVector) { Set(InVector); }
	FPackedNormal(const FVector3d& InVector) { Set(FVector3f(InVector)); }
	/** All four components likewise. */
	FPackedNormal(const FVector4f& InVector) { Set(InVector); }
	FPackedNormal(const FVector4d& InVector) { Set(FVector4f(InVector)); }

	void Set(const FVector3f& InVector)
	{
		X = Encode(InVector.X);
		Y = Encode(InVector.Y);
		Z = Encode(InVector.Z);
		W = 127;
	}
	void Set(const FVector4f& InVector)
	{
		X = Encode(InVector.X);
		Y = Encode(InVector.Y);
		Z = Encode(InVector.Z);
		W = Encode(InVector.W);
	}

	/** Components divided by 127, W dropped. */
	FVector3f ToFVector3f() const { return FVector3f(X / 127.0f, Y / 127.0f, Z / 127.0f); }
	FVector ToFVector() const { return FVector(ToFVector3f()); }
	FVector4f ToFVector4f() const { return FVector4f(X / 127.0f, Y / 127.0f, Z / 127.0f, W / 127.0f); }
	FVector4 ToFVector4() const { return FVector4(ToFVector4f()); }

	bool operator==(const FPackedNormal& Other) const { return Packed == Other.Packed; }

private:
	static int8 Encode(float Component)
	{
		return static_cast<int8>(FMath::Clamp(FMath::RoundToInt(Component * 127.0f), -128, 127));
	}
};

inline uint32 GetTypeHash(const FPackedNormal& Normal)
{
	return Normal.Packed;
}

/** A unit vector with a sign, each component a signed word of 32767ths: the high-precision tangent. */
struct FPackedRGBA16N
{
	int16 X;
	int16 Y;
	int16 Z;
	int16 W;

	/** Zero. */
	constexpr FPackedRGBA16N()
		: X(0)
		, Y(0)
		, Z(0)
		, W(0)
	{
	}
	/** W is 32767. */
	FPackedRGBA16N(const FVector3f& InVector)
		: FPackedRGBA16N(FVector4f(InVector, 1.0f))
	{
	}
	FPackedRGBA16N(const FVector3d& InVector)
		: FPackedRGBA16N(FVector3f(InVector))
	{
	}
	FPackedRGBA16N(const FVector4f& InVector)
		: X(Encode(InVector.X))
		, Y(Encode(InVector.Y))
		, Z(Encode(InVector.Z))
		, W(Encode(InVector.W))
	{
	}
	FPackedRGBA16N(const FVector4d& InVector)
		: FPackedRGBA16N(FVector4f(InVector))
	{
	}

	/** Components divided by 32767, W dropped. */
	FVector3f ToFVector3f() const { return FVector3f(X / 32767.0f, Y / 32767.0f, Z / 32767.0f); }
	FVector ToFVector() const { return FVector(ToFVector3f()); }
	FVector4f ToFVector4f() const { return FVector4f(X / 32767.0f, Y / 32767.0f, Z / 32767.0f, W / 32767.0f); }

	bool operator==(const FPackedRGBA16N& Other) const = default;

private:
	static int16 Encode(float Component)
	{
		return static_cast<int16>(FMath::Clamp(FMath::RoundToInt(Component * 32767.0f), -32768, 32767));
	}
};
