// SPDX-License-Identifier: MIT
// Enumerations of texture assets: mip generation, compression, group, source format.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "TextureDefines.generated.h"

/** How the smaller mips of a texture are made. */
UENUM()
enum TextureMipGenSettings : int
{
	TMGS_FromTextureGroup = 0,
	TMGS_SimpleAverage = 1,
	TMGS_Sharpen0 = 2,
	TMGS_Sharpen1 = 3,
	TMGS_Sharpen2 = 4,
	TMGS_Sharpen3 = 5,
	TMGS_Sharpen4 = 6,
	TMGS_Sharpen5 = 7,
	TMGS_Sharpen6 = 8,
	TMGS_Sharpen7 = 9,
	TMGS_Sharpen8 = 10,
	TMGS_Sharpen9 = 11,
	TMGS_Sharpen10 = 12,
	TMGS_NoMipmaps = 13,
	TMGS_LeaveExistingMips = 14,
	TMGS_Blur1 = 15,
	TMGS_Blur2 = 16,
	TMGS_Blur3 = 17,
	TMGS_Blur4 = 18,
	TMGS_Blur5 = 19,
	TMGS_Unfiltered = 20,
	TMGS_Angular = 21,
	TMGS_MAX = 22
};

/** What the pixels of a texture mean, which decides how they are compressed. */
UENUM()
enum TextureCompressionSettings : int
{
	TC_Default = 0,
	TC_Normalmap = 1,
	TC_Masks = 2,
	TC_Grayscale = 3,
	TC_Displacementmap = 4,
	TC_VectorDisplacementmap = 5,
	TC_HDR = 6,
	TC_EditorIcon = 7,
	TC_Alpha = 8,
	TC_DistanceFieldFont = 9,
	TC_HDR_Compressed = 10,
	TC_BC7 = 11,
	TC_HalfFloat = 12,
	TC_LQ = 13,
	TC_EncodedReflectionCapture = 14,
	TC_SingleFloat = 15,
	TC_HDR_F32 = 16,
	TC_MAX = 17
};

/** The group whose settings apply to a texture. */
UENUM()
enum TextureGroup : int
{
	TEXTUREGROUP_World = 0,
	TEXTUREGROUP_WorldNormalMap = 1,
	TEXTUREGROUP_WorldSpecular = 2,
	TEXTUREGROUP_Character = 3,
	TEXTUREGROUP_CharacterNormalMap = 4,
	TEXTUREGROUP_CharacterSpecular = 5
};

/** How texels are interpolated. */
UENUM()
enum TextureFilter : int
{
	TF_Nearest = 0,
	TF_Bilinear = 1,
	TF_Trilinear = 2,
	/** As the texture's group says. */
	TF_Default = 3,
	TF_MAX = 4
};

/** Layout of one source pixel; the numbers follow the order of declaration. */
UENUM()
enum ETextureSourceFormat : int
{
	TSF_Invalid = 0,
	/** One byte. */
	TSF_G8 = 1,
	/** Four bytes: blue, green, red, alpha. */
	TSF_BGRA8 = 2,
	TSF_BGRE8 = 3,
	/** Four unsigned 16-bit values: red, green, blue, alpha. */
	TSF_RGBA16 = 4,
	TSF_RGBA16F = 5,
	TSF_RGBA8_DEPRECATED = 6,
	TSF_RGBE8_DEPRECATED = 7,
	/** One unsigned 16-bit value. */
	TSF_G16 = 8,
	TSF_RGBA32F = 9,
	TSF_R16F = 10,
	TSF_R32F = 11,
	TSF_MAX = 12
};
