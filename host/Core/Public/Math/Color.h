// SPDX-License-Identifier: MIT
/** Colours: bytes in sRGB, and linear floats. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"
#include "Math/Vector4.h"

class FString;

/** A colour in linear light; alpha is opacity. Components are not limited to 0..1. */
struct FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	/** Leaves the components uninitialised. */
	FLinearColor() = default;
	explicit constexpr FLinearColor(EForceInit)
		: R(0)
		, G(0)
		, B(0)
		, A(0)
	{
	}
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}
	/** From sRGB bytes: red, green and blue are made linear, alpha is divided by 255. */
	FLinearColor(const FColor& Color);
	/** Alpha is 1. */
	explicit constexpr FLinearColor(const FVector3f& V)
		: FLinearColor(V.X, V.Y, V.Z)
	{
	}
	explicit constexpr FLinearColor(const FVector3d& V)
		: FLinearColor(FVector3f(V))
	{
	}
	explicit constexpr FLinearColor(const FVector4f& V)
		: FLinearColor(V.X, V.Y, V.Z, V.W)
	{
	}
	explicit constexpr FLinearColor(const FVector4d& V)
		: FLinearColor(FVector4f(V))
	{
	}

	static const FLinearColor White;
	/** (0.5, 0.5, 0.5, 1) */
	static const FLinearColor Gray;
	static const FLinearColor Black;
	/** (0, 0, 0, 0) */
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;
	static const FLinearColor Yellow;

	constexpr FLinearColor operator+(const FLinearColor& C) const { return {R + C.R, G + C.G, B + C.B, A + C.A}; }
	constexpr FLinearColor operator-(const FLinearColor& C) const { return {R - C.R, G - C.G, B - C.B, A - C.A}; }
	constexpr FLinearColor operator*(const FLinearColor& C) const { return {R * C.R, G * C.G, B * C.B, A * C.A}; }
	/** Scales all four components, alpha included. */
	constexpr FLinearColor operator*(float Scalar) const { return {R * Scalar, G * Scalar, B * Scalar, A * Scalar}; }
	constexpr FLinearColor operator/(float Scalar) const { return *this * (1.0f / Scalar); }
	constexpr FLinearColor& operator+=(const FLinearColor& C) { return *this = *this + C; }
	constexpr FLinearColor& operator*=(float Scalar) { return *this = *this * Scalar; }
	constexpr bool operator==(const FLinearColor& C) const { return R == C.R && G == C.G && B == C.B && A == C.A; }

	/** Whether no component differs by more than Tolerance. */
	bool Equals(const FLinearColor& C, float Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(R - C.R) < Tolerance && FMath::Abs(G - C.G) < Tolerance && FMath::Abs(B - C.B) < Tolerance &&
			   FMath::Abs(A - C.A) < Tolerance;
	}
	FLinearColor GetClamped(float InMin = 0.0f, float InMax = 1.0f) const
	{
		return {FMath::Clamp(R, InMin, InMax), FMath::Clamp(G, InMin, InMax), FMath::Clamp(B, InMin, InMax),
			FMath::Clamp(A, InMin, InMax)};
	}
	constexpr FLinearColor CopyWithNewOpacity(float NewOpacity) const { return {R, G, B, NewOpacity}; }
	constexpr float GetLuminance() const { return R * 0.3f + G * 0.59f + B * 0.11f; }
	constexpr bool IsAlmostBlack() const { return R * R + G * G + B * B < UE_DELTA; }

	/**
	 * Bytes, limited to 0..255 and rounded to the nearest.
	 *
	 * @param bSRGB  whether red, green and blue get the sRGB curve; alpha never does
	 */
	FColor ToFColor(bool bSRGB) const;
	FColor ToFColorSRGB() const;
	/** Without the sRGB curve. */
	FColor QuantizeRound() const;

	/** "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)" */
	FString ToString() const;
};

constexpr FLinearColor operator*(float Scalar, const FLinearColor& Color)
{
	return Color * Scalar;
}

/** A colour of four bytes; in memory blue, green, red, alpha. */
struct FColor
{
	union
	{
		struct
		{
			uint8 B;
			uint8 G;
			uint8 R;
			uint8 A;
		};
		/** 0xAARRGGBB on a little-endian machine. */
		uint32 Bits;
	};

	/** Leaves the colour uninitialised. */
	FColor() = default;
	explicit constexpr FColor(EForceInit)
		: B(0)
		, G(0)
		, R(0)
		, A(0)
	{
	}
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}
	/** From 0xAARRGGBB. */
	explicit constexpr FColor(uint32 InColor)
		: B(static_cast<uint8>(InColor))
		, G(static_cast<uint8>(InColor >> 8))
		, R(static_cast<uint8>(InColor >> 16))
		, A(static_cast<uint8>(InColor >> 24))
	{
	}

	static const FColor White;
	/** 0xFF000000 */
	static const FColor Black;
	static const FColor Transparent;
	static const FColor Red;
	static const FColor Green;
	static const FColor Blue;
	static const FColor Yellow;

	/** 0xAARRGGBB */
	uint32& DWColor() { return Bits; }
	const uint32& DWColor() const { return Bits; }
	constexpr uint32 ToPackedARGB() const { return Pack(A, R, G, B); }
	constexpr uint32 ToPackedABGR() const { return Pack(A, B, G, R); }
	constexpr uint32 ToPackedRGBA() const { return Pack(R, G, B, A); }
	constexpr uint32 ToPackedBGRA() const { return Pack(B, G, R, A); }

	constexpr bool operator==(const FColor& C) const { return ToPackedARGB() == C.ToPackedARGB(); }
	constexpr FColor WithAlpha(uint8 Alpha) const { return {R, G, B, Alpha}; }
	/** Each byte divided by 255, without the sRGB curve. */
	FLinearColor ReinterpretAsLinear() const { return FLinearColor(R / 255.0f, G / 255.0f, B / 255.0f, A / 255.0f); }
	static FLinearColor FromSRGBColor(const FColor& Color) { return FLinearColor(Color); }

	/** "(R=255,G=128,B=0,A=255)" */
	FString ToString() const;
	/** "FF8000FF", red first and alpha last. */
	FString ToHex() const;

private:
	static constexpr uint32 Pack(uint8 First, uint8 Second, uint8 Third, uint8 Fourth)
	{
		return uint32{First} << 24 | uint32{Second} << 16 | uint32{Third} << 8 | uint32{Fourth};
	}
};

constexpr uint32 GetTypeHash(const FColor& Color)
{
	return Color.ToPackedARGB();
}

template <typename T>
UE::Math::TVector<T>::TVector(const FLinearColor& InColor)
	: X(static_cast<T>(InColor.R))
	, Y(static_cast<T>(InColor.G))
	, Z(static_cast<T>(InColor.B))
{
}

template <typename T>
UE::Math::TVector4<T>::TVector4(const FLinearColor& InColor)
	: X(static_cast<T>(InColor.R))
	, Y(static_cast<T>(InColor.G))
	, Z(static_cast<T>(InColor.B))
	, W(static_cast<T>(InColor.A))
{
}
