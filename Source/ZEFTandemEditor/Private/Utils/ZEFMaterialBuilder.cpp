// SPDX-License-Identifier: MIT
#include "Utils/ZEFTandemEditorUtils.h"

#include "EditorAssetLibrary.h"
#include "Engine/EngineTypes.h"
#include "Engine/Texture2D.h"
#include "MaterialTypes.h"
#include "Materials/Material.h"
#include "Materials/MaterialInstanceConstant.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/PackageName.h"
#include "ObjectTools.h"
#include "UObject/Package.h"
#include "Utils/ZEFFallbackMaterial.h"
#include "Utils/ZEFMaterialNames.h"

namespace ZEFEditorUtils
{

namespace
{

/** Keys of FZEFMaterial::Expressions. */
enum EMaterialChannel : int32
{
	Channel_BaseColor = 0,
	Channel_Normal = 1,
	Channel_Roughness = 3,
	Channel_Metallic = 4,
	Channel_Specular = 5,
	Channel_Opacity = 6,
};

/** Keys of FZEFMaterialExpression::Scalars. */
enum EScalarSlot : int32
{
	Slot_Intensity = 0, // of the map; the alpha mode in the Opacity channel
	Slot_Value = 1,
	Slot_RoughnessMap = 3, // its presence lets the Roughness channel use its map
};

/** One turn is 1.0 in the masters' angle parameters. */
constexpr float TurnsPerDegree = 1.0f / 360.0f;

/** Prefix of a channel's parameters, null for a channel that the masters do not have. */
const TCHAR* GetChannelPrefix(int32 Channel)
{
	switch (Channel)
	{
		case Channel_BaseColor:
			return TEXT("BaseColor");
		case Channel_Normal:
			return TEXT("Normal");
		case Channel_Roughness:
			return TEXT("Roughness");
		case Channel_Metallic:
			return TEXT("Metallic");
		case Channel_Specular:
			return TEXT("Specular");
		case Channel_Opacity:
			return TEXT("Opacity");
		default:
			return nullptr;
	}
}

FMaterialParameterInfo MakeParameter(const TCHAR* Prefix, const TCHAR* Suffix)
{
	return FMaterialParameterInfo(FName(*(FString(Prefix) + Suffix)));
}

/** The channel's parameter that applies with or without a map. */
void SetPlainParameter(
	UMaterialInstanceConstant* Instance, int32 Channel, const TCHAR* Prefix, const FZEFMaterialExpression& Expression)
{
	if (Channel == Channel_BaseColor)
	{
		const FVector4f* const Colour = Expression.Vectors.Find(0);
		Instance->SetVectorParameterValueEditorOnly(FMaterialParameterInfo(Prefix),
			Colour != nullptr ? FLinearColor(*Colour) : FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
	}
	else if (Channel != Channel_Normal)
	{
		Instance->SetScalarParameterValueEditorOnly(
			FMaterialParameterInfo(Prefix), Expression.Scalars.FindChecked(Slot_Value));
	}
}

/** The intensity that goes with a channel's map; the Opacity channel has a switch in its place. */
void SetMapIntensity(
	UMaterialInstanceConstant* Instance, int32 Channel, const TCHAR* Prefix, const FZEFMaterialExpression& Expression)
{
	if (Channel == Channel_Opacity)
	{
		Instance->SetStaticSwitchParameterValueEditorOnly(
			MakeParameter(Prefix, TEXT("_AlphaMode")), Expression.Scalars.FindChecked(Slot_Intensity) == 1.0f);
		return;
	}
	float Intensity = 1.0f;
	if (Channel == Channel_Normal)
	{
		const float* const Given = Expression.Scalars.Find(Slot_Intensity);
		Intensity = Given != nullptr ? *Given : 0.0f;
	}
	else if (Channel != Channel_BaseColor)
	{
		Intensity = Expression.Scalars.FindChecked(Slot_Intensity);
	}
	Instance->SetScalarParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_Intensity")), Intensity);
}

void SetMapParameters(UMaterialInstanceConstant* Instance, int32 Channel, const TCHAR* Prefix,
	const FZEFMaterialExpression& Expression, UTexture2D* Texture)
{
	Instance->SetStaticSwitchParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_HasMap")), true);
	Instance->SetTextureParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_Texture")), Texture);

	const FTransform3f& Placement = Expression.UVTransform;
	const float Yaw = Placement.GetRotation().Euler().Z;
	const FVector3f Scale = Placement.GetScale3D();
	const FVector3f Offset = Placement.GetTranslation();
	Instance->SetScalarParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_Angle")), Yaw * TurnsPerDegree);
	Instance->SetScalarParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_UAmount")), Scale.X);
	Instance->SetScalarParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_VAmount")), Scale.Y);
	Instance->SetScalarParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_UOffset")), Offset.X);
	Instance->SetScalarParameterValueEditorOnly(MakeParameter(Prefix, TEXT("_VOffset")), Offset.Y);
	SetMapIntensity(Instance, Channel, Prefix, Expression);
}

void OverrideBlendMode(UMaterialInstanceConstant* Instance, EBlendMode BlendMode)
{
	Instance->BasePropertyOverrides.bOverride_BlendMode = true;
	Instance->BasePropertyOverrides.BlendMode = BlendMode;
}

/** Without sorted order-independent transparency a transparent fabric is cut out, not blended. */
EBlendMode GetTransparentBlendMode()
{
	bool bSortedPixels = false;
	GConfig->GetBool(TEXT("/Script/Engine.RendererSettings"), TEXT("r.OIT.SortedPixels"), bSortedPixels, GEngineIni);
	return bSortedPixels ? BLEND_Translucent : BLEND_Masked;
}

void SetChannel(UMaterialInstanceConstant* Instance, int32 Channel, const FZEFMaterialExpression& Expression,
	const TMap<int32, UTexture2D*>& Textures, bool bUseTransparency)
{
	const TCHAR* const Prefix = GetChannelPrefix(Channel);
	if (Prefix == nullptr)
	{
		return;
	}
	SetPlainParameter(Instance, Channel, Prefix, Expression);
	if (Channel == Channel_Opacity && bUseTransparency)
	{
		OverrideBlendMode(Instance, GetTransparentBlendMode());
	}
	UTexture2D* const* const Texture = Textures.Find(Expression.TextureId);
	const bool bMayUseMap = Channel != Channel_Roughness || Expression.Scalars.Contains(Slot_RoughnessMap);
	if (Texture != nullptr && bMayUseMap)
	{
		SetMapParameters(Instance, Channel, Prefix, Expression, *Texture);
	}
}

UMaterial* LoadMaster(const TCHAR* Label)
{
	FString Path = GetMasterPath(Label);
	if (!UEditorAssetLibrary::DoesAssetExist(Path))
	{
		Path = GetMasterPath(TEXT("Default"));
	}
	return static_cast<UMaterial*>(StaticLoadObject(UMaterial::StaticClass(), GetTransientPackage(), *Path));
}

UMaterialInterface* CreateSubstanceOrFallback(UObject* Outer, const FString& Name, const FZEFMaterial& Material)
{
	const FString MaterialId = FString::FromInt(Material.Id);
	const FString PackagePath = FPackageName::GetLongPackagePath(Outer->GetOutermost()->GetName());
	TWeakObjectPtr<UMaterialInstance> Substance;
	if (CreateSubstanceMaterial(Material.SubstanceAssetPath, Material.SubstanceGraphName, Material.UVTransform,
			PackagePath, TEXT("Ds_") + Name + TEXT("_") + MaterialId, Substance))
	{
		return Substance.Get();
	}
	return DuplicateDefaultMaterial(Outer, FName(*(TEXT("TempMaterial") + MaterialId)));
}

} // namespace

void CreateMaterialInstance(UObject* Outer, const FString& Name, EObjectFlags /*Flags*/,
	const TMap<int32, UTexture2D*>& Textures, const FZEFMaterial& Material, UMaterialInterface*& OutMaterial,
	bool bForceTranslucent)
{
	if (Material.bSubstance)
	{
		OutMaterial = CreateSubstanceOrFallback(Outer, Name, Material);
		return;
	}

	const TCHAR* const Label = GetMasterLabel(Material.MaterialKind);
	UMaterial* const Master = LoadMaster(Label);
	const FString InstanceName = FString::Format(TEXT("MI_{0}_{1}_{2}"),
		{ObjectTools::SanitizeObjectName(Material.Name), FString(Label), FString::FromInt(Material.Id)});
	UMaterialInstanceConstant* const Instance =
		NewObject<UMaterialInstanceConstant>(Outer, FName(*InstanceName), RF_NoFlags);
	Instance->SetParentEditorOnly(Master, true);
	OutMaterial = Instance;

	Instance->BasePropertyOverrides.bOverride_TwoSided = true;
	Instance->BasePropertyOverrides.TwoSided = true;
	if (UMaterial* const Base = Instance->GetMaterial())
	{
		Base->bUsedWithGeometryCache = true;
		Base->bUsedWithSkeletalMesh = true;
	}

	for (const TPair<int32, FZEFMaterialExpression>& Channel : Material.Expressions)
	{
		SetChannel(Instance, Channel.Key, Channel.Value, Textures, Material.bUseTransparency);
	}
	if (bForceTranslucent)
	{
		OverrideBlendMode(Instance, BLEND_Translucent);
	}
	Instance->SetFlags(RF_Standalone);
	Instance->MarkPackageDirty();
	Instance->PostEditChange();
}

} // namespace ZEFEditorUtils
