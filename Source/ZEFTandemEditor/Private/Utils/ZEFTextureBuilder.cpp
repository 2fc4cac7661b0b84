// SPDX-License-Identifier: MIT
#include "Utils/ZEFTandemEditorUtils.h"

#include "Engine/Texture2D.h"
#include "Engine/TextureDefines.h"
#include "Utils/ZEFAssetObject.h"

namespace ZEFEditorUtils
{

namespace
{

constexpr int64 RunBytes = 256;

/** Copies whole pixels with their first and third byte exchanged. */
template <int32 NumPixels>
void SwapRedAndBlue(const uint8* Source, uint8* Target)
{
	uint32 Pixels[NumPixels];
	FMemory::Memcpy(Pixels, Source, sizeof(Pixels));
	for (uint32& Pixel : Pixels)
	{
		Pixel = (Pixel & 0xFF00FF00u) | ((Pixel & 0xFFu) << 16) | ((Pixel >> 16) & 0xFFu);
	}
	FMemory::Memcpy(Target, Pixels, sizeof(Pixels));
}

/**
 * Copies the pixels into a buffer of exactly the size that the source will read, and turns R, G, B, A bytes into
 * B, G, R, A on the way. Bytes that the record lacks are zero, so a short record is never read past its end.
 */
void CopyPixels(const FZEFTexture& Texture, int64 Size, bool bSwapRedAndBlue, TArray64<uint8>& OutPixels)
{
	OutPixels.SetNumUninitialized(Size);
	const int64 Available = FMath::Min<int64>(Texture.Pixels.Num(), Size);
	const uint8* const Source = Texture.Pixels.GetData();
	uint8* const Target = OutPixels.GetData();
	int64 Byte = 0;
	if (bSwapRedAndBlue)
	{
		// A fixed number of whole pixels at a time, for which the compiler uses vector instructions.
		for (; Byte + RunBytes <= Available; Byte += RunBytes)
		{
			SwapRedAndBlue<RunBytes / 4>(Source + Byte, Target + Byte);
		}
		for (; Byte + 4 <= Available; Byte += 4)
		{
			SwapRedAndBlue<1>(Source + Byte, Target + Byte);
		}
	}
	if (Byte < Available)
	{
		FMemory::Memcpy(Target + Byte, Source + Byte, Available - Byte);
	}
	if (Available < Size)
	{
		FMemory::Memzero(Target + Available, Size - Available);
	}
}

} // namespace

UTexture2D* CreateTextureFromData(UObject* Outer, const FString& Name, EObjectFlags Flags, uint8 CompressionKind,
	const FZEFTexture& Texture, bool bSRGB)
{
	ETextureSourceFormat SourceFormat = TSF_Invalid;
	int64 BytesPerPixel = 0;
	switch (Texture.Format)
	{
		case 0:
			SourceFormat = TSF_BGRA8;
			BytesPerPixel = 4;
			break;
		case 1:
			SourceFormat = TSF_RGBA16;
			BytesPerPixel = 8;
			break;
		default:
			checkf(false, TEXT("Unknown texture format %d"), Texture.Format);
			break;
	}
	TArray64<uint8> Pixels;
	CopyPixels(
		Texture, static_cast<int64>(Texture.Width) * Texture.Height * BytesPerPixel, Texture.Format == 0, Pixels);

	UTexture2D* const Result = CreateAssetObject<UTexture2D>(Outer, Name, Flags);
	Result->Source.Init(Texture.Width, Texture.Height, 1, 1, SourceFormat, Pixels.GetData());
	Result->SRGB = bSRGB;
	Result->CompressionNoAlpha = false;
	const bool bHasMips = FMath::IsPowerOfTwo(Texture.Width) && FMath::IsPowerOfTwo(Texture.Height);
	Result->MipGenSettings = bHasMips ? TMGS_FromTextureGroup : TMGS_NoMipmaps;
	Result->CompressionSettings = static_cast<TextureCompressionSettings>(CompressionKind);
	Result->LODGroup = CompressionKind == 1 ? TEXTUREGROUP_WorldNormalMap : TEXTUREGROUP_World;
	Result->UpdateResource();
	Result->PostEditChange();
	Result->MarkPackageDirty();
	return Result;
}

} // namespace ZEFEditorUtils
