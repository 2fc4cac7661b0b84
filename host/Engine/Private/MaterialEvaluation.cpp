// SPDX-License-Identifier: MIT
#include "Host/MaterialEvaluation.h"

#include "Engine/Texture2D.h"
#include "Host/MaterialDeclaration.h"
#include "MaterialInstanceAccess.h"
#include "Materials/Material.h"
#include "Templates/Casts.h"
#include "Materials/MaterialInstance.h"

namespace Host
{
namespace
{
/** Names of one channel's parameters, made once. */
struct FChannelNames
{
	explicit FChannelNames(EMaterialChannel Channel)
	{
		const FString Prefix = GetChannelPrefix(Channel);
		Plain = FName(*Prefix);
		HasMap = FName(*(Prefix + TEXT("_HasMap")));
		Texture = FName(*(Prefix + TEXT("_Texture")));
		Angle = FName(*(Prefix + TEXT("_Angle")));
		UAmount = FName(*(Prefix + TEXT("_UAmount")));
		VAmount = FName(*(Prefix + TEXT("_VAmount")));
		UOffset = FName(*(Prefix + TEXT("_UOffset")));
		VOffset = FName(*(Prefix + TEXT("_VOffset")));
		Intensity = FName(*(Prefix + TEXT("_Intensity")));
	}

	FName Plain;
	FName HasMap;
	FName Texture;
	FName Angle;
	FName UAmount;
	FName VAmount;
	FName UOffset;
	FName VOffset;
	FName Intensity;
};

const FChannelNames& GetNames(EMaterialChannel Channel)
{
	static const FChannelNames Names[NumMaterialChannels] = {FChannelNames(EMaterialChannel::BaseColor),
		FChannelNames(EMaterialChannel::Normal), FChannelNames(EMaterialChannel::Roughness),
		FChannelNames(EMaterialChannel::Metallic), FChannelNames(EMaterialChannel::Specular),
		FChannelNames(EMaterialChannel::Opacity)};
	return Names[int32(Channel)];
}

/** Reads the values in effect of one material; what the base material does not declare stays as it was. */
struct FParameterReader
{
	explicit FParameterReader(const UMaterialInterface& InMaterial)
		: Material(InMaterial)
		, Declaration(GetMaterialDeclaration(*InMaterial.GetMaterial()))
	{
	}

	void Read(FName Name, float& Value) const
	{
		if (Declaration.FindScalar(Name))
		{
			Material.GetScalarParameterValue(Name, Value);
		}
	}

	void Read(FName Name, FLinearColor& Value) const
	{
		if (Declaration.FindVector(Name))
		{
			Material.GetVectorParameterValue(Name, Value);
		}
	}

	void Read(FName Name, UTexture2D*& Value) const
	{
		UTexture* Texture = nullptr;
		if (Declaration.FindTexture(Name) && Material.GetTextureParameterValue(Name, Texture))
		{
			Value = Cast<UTexture2D>(Texture);
		}
	}

	/** Static switches count as of the last PostEditChange of the instance that overrides them. */
	void Read(FName Name, bool& Value) const
	{
		const FDeclaredSwitch* Declared = Declaration.FindSwitch(Name);
		if (!Declared)
		{
			return;
		}
		Value = Declared->Default;
		const FHashedMaterialParameterInfo Info(Name);
		for (const UMaterialInstance* Instance = Cast<UMaterialInstance>(&Material); Instance;
			 Instance = Cast<UMaterialInstance>(Instance->Parent.Get()))
		{
			for (const FStaticSwitchParameter& Switch : FMaterialInstanceAccess::GetSwitches(*Instance))
			{
				if (Info.Matches(Switch.ParameterInfo))
				{
					Value = Switch.Value;
					return;
				}
			}
		}
	}

	const UMaterialInterface& Material;
	const FMaterialDeclaration& Declaration;
};

FEvaluatedMap ReadMap(const FParameterReader& Reader, const FChannelNames& Names)
{
	FEvaluatedMap Map;
	Reader.Read(Names.HasMap, Map.bHasMap);
	if (Map.bHasMap)
	{
		Reader.Read(Names.Texture, Map.Texture);
		Reader.Read(Names.Angle, Map.Angle);
		Reader.Read(Names.UAmount, Map.UAmount);
		Reader.Read(Names.VAmount, Map.VAmount);
		Reader.Read(Names.UOffset, Map.UOffset);
		Reader.Read(Names.VOffset, Map.VOffset);
		Reader.Read(Names.Intensity, Map.Intensity);
	}
	return Map;
}
} // namespace

const TCHAR* GetChannelPrefix(EMaterialChannel Channel)
{
	static const TCHAR* const Prefixes[NumMaterialChannels] = {
		TEXT("BaseColor"), TEXT("Normal"), TEXT("Roughness"), TEXT("Metallic"), TEXT("Specular"), TEXT("Opacity")};
	return Prefixes[int32(Channel)];
}

FVector2f FEvaluatedMap::Place(const FVector2f& UV) const
{
	float Sine = 0.0f;
	float Cosine = 1.0f;
	FMath::SinCos(&Sine, &Cosine, Angle * UE_TWO_PI);
	const float U = UV.X * UAmount;
	const float V = UV.Y * VAmount;
	return FVector2f(U * Cosine - V * Sine + UOffset, U * Sine + V * Cosine + VOffset);
}

FEvaluatedMaterial EvaluateMaterial(const UMaterialInterface* Material)
{
	if (!Material)
	{
		Material = UMaterial::GetDefaultMaterial(MD_Surface);
	}
	const FParameterReader Reader(*Material);
	FEvaluatedMaterial Result;
	Reader.Read(GetNames(EMaterialChannel::BaseColor).Plain, Result.BaseColor);
	Reader.Read(GetNames(EMaterialChannel::Roughness).Plain, Result.Roughness);
	Reader.Read(GetNames(EMaterialChannel::Metallic).Plain, Result.Metallic);
	Reader.Read(GetNames(EMaterialChannel::Specular).Plain, Result.Specular);
	Reader.Read(GetNames(EMaterialChannel::Opacity).Plain, Result.Opacity);
	for (int32 Channel = 0; Channel < NumMaterialChannels; ++Channel)
	{
		Result.Maps[Channel] = ReadMap(Reader, GetNames(EMaterialChannel(Channel)));
	}
	static const FName AlphaMode(TEXT("Opacity_AlphaMode"));
	Reader.Read(AlphaMode, Result.bOpacityAlphaMode);
	Result.BlendMode = Material->GetBlendMode();
	Result.bTwoSided = Material->IsTwoSided();
	Result.OpacityMaskClipValue = Material->GetOpacityMaskClipValue();
	Result.Look = Reader.Declaration.Look;
	Result.Master = Material->GetMaterial()->GetFName();
	return Result;
}
} // namespace Host
