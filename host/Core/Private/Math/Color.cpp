// SPDX-License-Identifier: MIT
/** Colour constants and the sRGB curve. */

#include "Math/Color.h"

constinit const FLinearColor FLinearColor::White(1.0f, 1.0f, 1.0f);
constinit const FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
constinit const FLinearColor FLinearColor::Black(0.0f, 0.0f, 0.0f);
constinit const FLinearColor FLinearColor::Transparent(0.0f, 0.0f, 0.0f, 0.0f);
constinit const FLinearColor FLinearColor::Red(1.0f, 0.0f, 0.0f);
constinit const FLinearColor FLinearColor::Green(0.0f, 1.0f, 0.0f);
constinit const FLinearColor FLinearColor::Blue(0.0f, 0.0f, 1.0f);
constinit const FLinearColor FLinearColor::Yellow(1.0f, 1.0f, 0.0f);

constinit const FColor FColor::White(255, 255, 255);
constinit const FColor FColor::Black(0, 0, 0);
constinit const FColor FColor::Transparent(0, 0, 0, 0);
constinit const FColor FColor::Red(255, 0, 0);
constinit const FColor FColor::Green(0, 255, 0);
constinit const FColor FColor::Blue(0, 0, 255);
constinit const FColor FColor::Yellow(255, 255, 0);

namespace
{
/** The curve of IEC 61966-2-1, byte to linear light. */
struct FLinearOfByte
{
	float Values[256];

	FLinearOfByte()
	{
		for (int32 Byte = 0; Byte < 256; ++Byte)
		{
			const double Encoded = Byte / 255.0;
			Values[Byte] =
				static_cast<float>(Encoded <= 0.04045 ? Encoded / 12.92 : FMath::Pow((Encoded + 0.055) / 1.055, 2.4));
		}
	}
};

float EncodeSRGB(float Linear)
{
	return Linear <= 0.0031308f ? Linear * 12.92f : 1.055f * FMath::Pow(Linear, 1.0f / 2.4f) - 0.055f;
}

uint8 ToByte(float Value)
{
	// A value that is not a number fails both comparisons of a plain clamp; it counts as 0.
	const float Limited = Value > 0.0f ? FMath::Min(Value, 1.0f) : 0.0f;
	return static_cast<uint8>(Limited * 255.0f + 0.5f);
}
} // namespace

FLinearColor::FLinearColor(const FColor& Color)
{
	static const FLinearOfByte Table;
	R = Table.Values[Color.R];
	G = Table.Values[Color.G];
	B = Table.Values[Color.B];
	A = static_cast<float>(Color.A) / 255.0f;
}

FColor FLinearColor::QuantizeRound() const
{
	return FColor(ToByte(R), ToByte(G), ToByte(B), ToByte(A));
}

FColor FLinearColor::ToFColorSRGB() const
{
	return FColor(ToByte(EncodeSRGB(R)), ToByte(EncodeSRGB(G)), ToByte(EncodeSRGB(B)), ToByte(A));
}

FColor FLinearColor::ToFColor(bool bSRGB) const
{
	return bSRGB ? ToFColorSRGB() : QuantizeRound();
}
