// SPDX-License-Identifier: MIT
#include "Engine/Texture.h"

#include "AssetRefresh.h"
#include "HAL/UnrealMemory.h"
#include "Host/TextureResource.h"

namespace Host
{
/** One block of bytes, filled once. */
struct FPixelStorage
{
	/** Takes the bytes from `Data`, or zeroes them when it is null. */
	FPixelStorage(const uint8* Data, int64 InSize)
		: Bytes(static_cast<uint8*>(Data ? FMemory::Malloc(SIZE_T(InSize)) : FMemory::MallocZeroed(SIZE_T(InSize))))
		, Size(InSize)
	{
		if (Data)
		{
			FMemory::Memcpy(Bytes, Data, SIZE_T(InSize));
		}
	}
	~FPixelStorage() { FMemory::Free(Bytes); }
	UE_NONCOPYABLE(FPixelStorage)

	uint8* Bytes;
	int64 Size;
};

struct FTextureAccess
{
	static uint32 GetVersion(const UTexture& Texture) { return Texture.ResourceVersion; }
};

uint32 GetTextureResourceVersion(const UTexture& Texture)
{
	return FTextureAccess::GetVersion(Texture);
}
} // namespace Host

void FTextureSource::Init(int32 NewSizeX, int32 NewSizeY, int32 NewNumSlices, int32 NewNumMips,
	ETextureSourceFormat NewFormat, const uint8* NewData)
{
	Storage.Reset();
	SizeX = NewSizeX;
	SizeY = NewSizeY;
	NumSlices = NewNumSlices;
	NumMips = NewNumMips;
	Format = NewFormat;
	Id = FGuid::NewGuid();

	const int64 NumBytes = CalcMipOffset(NumMips);
	if (NumBytes > 0)
	{
		Storage = MakeShared<Host::FPixelStorage>(NewData, NumBytes);
	}
}

bool FTextureSource::IsValid() const
{
	return Storage.IsValid();
}

int64 FTextureSource::GetBytesPerPixel(ETextureSourceFormat InFormat)
{
	switch (InFormat)
	{
		case TSF_G8:
			return 1;
		case TSF_G16:
		case TSF_R16F:
			return 2;
		case TSF_BGRA8:
		case TSF_BGRE8:
		case TSF_RGBA8_DEPRECATED:
		case TSF_RGBE8_DEPRECATED:
		case TSF_R32F:
			return 4;
		case TSF_RGBA16:
		case TSF_RGBA16F:
			return 8;
		case TSF_RGBA32F:
			return 16;
		default:
			return 0;
	}
}

int64 FTextureSource::CalcMipSize(int32 MipIndex) const
{
	if (MipIndex < 0 || MipIndex >= NumMips || SizeX <= 0 || SizeY <= 0 || NumSlices <= 0)
	{
		return 0;
	}
	const int64 Width = FMath::Max(SizeX >> MipIndex, 1);
	const int64 Height = FMath::Max(SizeY >> MipIndex, 1);
	return Width * Height * NumSlices * GetBytesPerPixel(Format);
}

int64 FTextureSource::CalcMipOffset(int32 MipIndex) const
{
	int64 Offset = 0;
	for (int32 Mip = 0; Mip < MipIndex; ++Mip)
	{
		Offset += CalcMipSize(Mip);
	}
	return Offset;
}

const uint8* FTextureSource::LockMipReadOnly(int32 MipIndex) const
{
	return Storage && CalcMipSize(MipIndex) > 0 ? Storage->Bytes + CalcMipOffset(MipIndex) : nullptr;
}

bool FTextureSource::GetMipData(TArray64<uint8>& OutMipData, int32 MipIndex) const
{
	OutMipData.Reset();
	const uint8* Bytes = LockMipReadOnly(MipIndex);
	if (!Bytes)
	{
		return false;
	}
	OutMipData.Append(Bytes, CalcMipSize(MipIndex));
	return true;
}

void UTexture::UpdateResource()
{
	++ResourceVersion;
}

void UTexture::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	UpdateResource();
	Host::RefreshComponents(*this);
	Super::PostEditChangeProperty(PropertyChangedEvent);
}
