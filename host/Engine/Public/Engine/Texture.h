// SPDX-License-Identifier: MIT
// The base of texture assets, and the uncompressed pixels that a texture was made from.
#pragma once

#include "CoreMinimal.h"
#include "Engine/StreamableRenderAsset.h"
#include "Engine/TextureDefines.h"
#include "Misc/Guid.h"
#include "Templates/SharedPointer.h"
#include "UObject/ObjectMacros.h"
#include "Texture.generated.h"

namespace Host
{
struct FPixelStorage;
struct FTextureAccess;
} // namespace Host

/**
 * The uncompressed pixels that a texture was made from: mip after mip in one block, each mip slice after slice, each
 * slice row after row from the top, without padding. Copies of a source share the block.
 */
USTRUCT()
struct FTextureSource
{
	GENERATED_BODY()

	/**
	 * Replaces the source and gives it a new id.
	 *
	 * @param NewFormat  TSF_Invalid has no pixel size: the source is then without pixels and not valid
	 * @param NewData    `CalcMipSize` of all mips in bytes, copied whatever the caller's buffer really holds, so it
	 * must hold that much; null reserves zeroed pixels instead
	 */
	ENGINE_API void Init(int32 NewSizeX, int32 NewSizeY, int32 NewNumSlices, int32 NewNumMips,
		ETextureSourceFormat NewFormat, const uint8* NewData = nullptr);

	int32 GetSizeX() const { return SizeX; }
	int32 GetSizeY() const { return SizeY; }
	int32 GetNumSlices() const { return NumSlices; }
	int32 GetNumMips() const { return NumMips; }
	ETextureSourceFormat GetFormat() const { return Format; }

	/** Changes with every Init. */
	const FGuid& GetId() const { return Id; }

	/** Whether there are pixels. */
	ENGINE_API bool IsValid() const;

	/** Bytes of one pixel; 0 for TSF_Invalid. */
	ENGINE_API static int64 GetBytesPerPixel(ETextureSourceFormat InFormat);
	int64 GetBytesPerPixel() const { return GetBytesPerPixel(Format); }

	/** Bytes of one mip over all slices; 0 for a mip that is not there. */
	ENGINE_API int64 CalcMipSize(int32 MipIndex) const;

	/** Copies one mip into `OutMipData`; false, with the array empty, for a mip that is not there. */
	ENGINE_API bool GetMipData(TArray64<uint8>& OutMipData, int32 MipIndex) const;

	/** The first byte of one mip, or null; stays valid until the next Init. */
	ENGINE_API const uint8* LockMipReadOnly(int32 MipIndex) const;

	/** Ends what LockMipReadOnly began. */
	void UnlockMip(int32) const {}

private:
	int64 CalcMipOffset(int32 MipIndex) const;

	TSharedPtr<Host::FPixelStorage> Storage;
	FGuid Id;
	int32 SizeX = 0;
	int32 SizeY = 0;
	int32 NumSlices = 0;
	int32 NumMips = 0;
	ETextureSourceFormat Format = TSF_Invalid;
};

/** A texture asset: source pixels and how they are to be sampled. */
UCLASS(Abstract)
class UTexture : public UStreamableRenderAsset
{
	GENERATED_BODY()

public:
	/** Change it between PreEditChange and PostEditChange. */
	UPROPERTY()
	FTextureSource Source;

	/** What the pixels mean. */
	UPROPERTY(EditAnywhere, Category = Compression)
	TEnumAsByte<TextureCompressionSettings> CompressionSettings = TC_Default;

	/** How the smaller mips are made. */
	UPROPERTY(EditAnywhere, Category = LevelOfDetail)
	TEnumAsByte<TextureMipGenSettings> MipGenSettings = TMGS_FromTextureGroup;

	/** The group whose settings apply. */
	UPROPERTY(EditAnywhere, Category = LevelOfDetail)
	TEnumAsByte<TextureGroup> LODGroup = TEXTUREGROUP_World;

	/** How texels are interpolated. */
	UPROPERTY(EditAnywhere, Category = Texture)
	TEnumAsByte<TextureFilter> Filter = TF_Default;

	/** Whether the colour channels are sRGB encoded; alpha is always linear. */
	UPROPERTY(EditAnywhere, Category = Texture)
	uint8 SRGB : 1 = 1;

	/** Whether compression leaves the alpha channel out. */
	UPROPERTY(EditAnywhere, Category = Compression)
	uint8 CompressionNoAlpha : 1 = 0;

	/** Whether compression waits until the texture is saved. */
	UPROPERTY(EditAnywhere, Category = Compression)
	uint8 DeferCompression : 1 = 0;

	/** Whether the green channel of a normal map points the other way. */
	UPROPERTY(EditAnywhere, Category = Texture)
	uint8 bFlipGreenChannel : 1 = 0;

	/** Recreates what a renderer samples from the source and the settings; the source stays as it is. */
	ENGINE_API virtual void UpdateResource();

	/** Width of the texture in pixels. */
	virtual float GetSurfaceWidth() const { return static_cast<float>(Source.GetSizeX()); }

	/** Height of the texture in pixels. */
	virtual float GetSurfaceHeight() const { return static_cast<float>(Source.GetSizeY()); }

	ENGINE_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

private:
	friend struct Host::FTextureAccess;

	uint32 ResourceVersion = 0;
};
