// SPDX-License-Identifier: MIT
#include "Materials/MaterialInterface.h"

#include "AssetRefresh.h"
#include "Host/MaterialDeclaration.h"
#include "Materials/Material.h"

UMaterial* UMaterialInterface::GetMaterial()
{
	return UMaterial::GetDefaultMaterial(MD_Surface);
}

const UMaterial* UMaterialInterface::GetMaterial() const
{
	return UMaterial::GetDefaultMaterial(MD_Surface);
}

UMaterial* UMaterialInterface::GetBaseMaterial()
{
	return GetMaterial();
}

const UMaterial* UMaterialInterface::GetBaseMaterial() const
{
	return GetMaterial();
}

EBlendMode UMaterialInterface::GetBlendMode() const
{
	return GetMaterial()->BlendMode;
}

bool UMaterialInterface::IsTwoSided() const
{
	return GetMaterial()->TwoSided;
}

float UMaterialInterface::GetOpacityMaskClipValue() const
{
	return GetMaterial()->OpacityMaskClipValue;
}

void UMaterialInterface::GetAllTextureParameterInfo(
	TArray<FMaterialParameterInfo>& OutParameterInfo, TArray<FGuid>& OutParameterIds) const
{
	OutParameterInfo.Empty();
	OutParameterIds.Empty();
	for (const Host::FDeclaredTexture& Texture : Host::GetMaterialDeclaration(*GetMaterial()).Textures)
	{
		OutParameterInfo.Add(FMaterialParameterInfo(Texture.Name));
		OutParameterIds.Add(Texture.ExpressionGuid);
	}
}

bool UMaterialInterface::GetTextureParameterValue(const FHashedMaterialParameterInfo&, UTexture*&, bool) const
{
	return false;
}

bool UMaterialInterface::GetScalarParameterValue(const FHashedMaterialParameterInfo&, float&, bool) const
{
	return false;
}

bool UMaterialInterface::GetVectorParameterValue(const FHashedMaterialParameterInfo&, FLinearColor&, bool) const
{
	return false;
}

bool UMaterialInterface::GetStaticSwitchParameterValue(const FHashedMaterialParameterInfo&, bool&, FGuid&, bool) const
{
	return false;
}

void UMaterialInterface::GetUsedTextures(
	TArray<UTexture*>& OutTextures, EMaterialQualityLevel::Type, bool, ERHIFeatureLevel::Type, bool) const
{
	OutTextures.Empty();
	for (const Host::FDeclaredTexture& Declared : Host::GetMaterialDeclaration(*GetMaterial()).Textures)
	{
		UTexture* Texture = nullptr;
		if (GetTextureParameterValue(Declared.Name, Texture) && Texture)
		{
			OutTextures.AddUnique(Texture);
		}
	}
}

void UMaterialInterface::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Host::RefreshComponents(*this);
	Super::PostEditChangeProperty(PropertyChangedEvent);
}
