// SPDX-License-Identifier: MIT
#include "Materials/MaterialInstance.h"

#include "Engine/Texture.h"
#include "Logging/LogMacros.h"
#include "Materials/Material.h"
#include "Templates/Casts.h"

namespace
{
template <typename OverrideType>
const OverrideType* FindOverride(const TArray<OverrideType>& Overrides, const FHashedMaterialParameterInfo& Info)
{
	return Overrides.FindByPredicate(
		[&Info](const OverrideType& Override) { return Info.Matches(Override.ParameterInfo); });
}

/** The override of a parameter, so that a parameter stands once. */
template <typename OverrideType>
OverrideType& FindOrAddOverride(TArray<OverrideType>& Overrides, const FMaterialParameterInfo& Info)
{
	OverrideType* Found =
		Overrides.FindByPredicate([&Info](const OverrideType& Override) { return Override.ParameterInfo == Info; });
	if (Found)
	{
		return *Found;
	}
	OverrideType& Added = Overrides.AddDefaulted_GetRef();
	Added.ParameterInfo = Info;
	return Added;
}
} // namespace

bool UMaterialInstance::SetParentInternal(UMaterialInterface* NewParent, bool bResolve)
{
	for (const UMaterialInterface* Ancestor = NewParent; Ancestor;)
	{
		if (Ancestor == this)
		{
			UE_LOG(LogTemp, Warning, TEXT("%s does not become the parent of %s: its own parents lead back there."),
				*NewParent->GetPathName(), *GetPathName());
			return false;
		}
		const UMaterialInstance* Instance = Cast<UMaterialInstance>(Ancestor);
		Ancestor = Instance ? Instance->Parent.Get() : nullptr;
	}
	Parent = NewParent;
	if (bResolve)
	{
		ResolveOverrides();
	}
	return true;
}

void UMaterialInstance::SetVectorParameterValueInternal(
	const FMaterialParameterInfo& ParameterInfo, const FLinearColor& Value)
{
	FindOrAddOverride(VectorParameterValues, ParameterInfo).ParameterValue = Value;
}

void UMaterialInstance::SetScalarParameterValueInternal(const FMaterialParameterInfo& ParameterInfo, float Value)
{
	FindOrAddOverride(ScalarParameterValues, ParameterInfo).ParameterValue = Value;
}

void UMaterialInstance::SetTextureParameterValueInternal(const FMaterialParameterInfo& ParameterInfo, UTexture* Value)
{
	FindOrAddOverride(TextureParameterValues, ParameterInfo).ParameterValue = Value;
}

void UMaterialInstance::SetStaticSwitchParameterValueEditorOnly(const FMaterialParameterInfo& ParameterInfo, bool Value)
{
	FStaticSwitchParameter& Switch = FindOrAddOverride(StaticSwitches, ParameterInfo);
	Switch.Value = Value;
	Switch.bOverride = true;
}

void UMaterialInstance::ClearParameterValuesInternal()
{
	ScalarParameterValues.Empty();
	VectorParameterValues.Empty();
	TextureParameterValues.Empty();
	StaticSwitches.Empty();
}

UMaterial* UMaterialInstance::GetMaterial()
{
	return Parent ? Parent->GetMaterial() : Super::GetMaterial();
}

const UMaterial* UMaterialInstance::GetMaterial() const
{
	return Parent ? static_cast<const UMaterialInterface*>(Parent.Get())->GetMaterial() : Super::GetMaterial();
}

EBlendMode UMaterialInstance::GetBlendMode() const
{
	if (ResolvedOverrides.bOverride_BlendMode)
	{
		return ResolvedOverrides.BlendMode;
	}
	return Parent ? Parent->GetBlendMode() : Super::GetBlendMode();
}

bool UMaterialInstance::IsTwoSided() const
{
	if (ResolvedOverrides.bOverride_TwoSided)
	{
		return ResolvedOverrides.TwoSided;
	}
	return Parent ? Parent->IsTwoSided() : Super::IsTwoSided();
}

float UMaterialInstance::GetOpacityMaskClipValue() const
{
	if (ResolvedOverrides.bOverride_OpacityMaskClipValue)
	{
		return ResolvedOverrides.OpacityMaskClipValue;
	}
	return Parent ? Parent->GetOpacityMaskClipValue() : Super::GetOpacityMaskClipValue();
}

bool UMaterialInstance::GetTextureParameterValue(
	const FHashedMaterialParameterInfo& ParameterInfo, UTexture*& OutValue, bool bOveriddenOnly) const
{
	if (const FTextureParameterValue* Found = FindOverride(TextureParameterValues, ParameterInfo))
	{
		OutValue = Found->ParameterValue.Get();
		return true;
	}
	return Parent && Parent->GetTextureParameterValue(ParameterInfo, OutValue, bOveriddenOnly);
}

bool UMaterialInstance::GetScalarParameterValue(
	const FHashedMaterialParameterInfo& ParameterInfo, float& OutValue, bool bOveriddenOnly) const
{
	if (const FScalarParameterValue* Found = FindOverride(ScalarParameterValues, ParameterInfo))
	{
		OutValue = Found->ParameterValue;
		return true;
	}
	return Parent && Parent->GetScalarParameterValue(ParameterInfo, OutValue, bOveriddenOnly);
}

bool UMaterialInstance::GetVectorParameterValue(
	const FHashedMaterialParameterInfo& ParameterInfo, FLinearColor& OutValue, bool bOveriddenOnly) const
{
	if (const FVectorParameterValue* Found = FindOverride(VectorParameterValues, ParameterInfo))
	{
		OutValue = Found->ParameterValue;
		return true;
	}
	return Parent && Parent->GetVectorParameterValue(ParameterInfo, OutValue, bOveriddenOnly);
}

bool UMaterialInstance::GetStaticSwitchParameterValue(const FHashedMaterialParameterInfo& ParameterInfo, bool& OutValue,
	FGuid& OutExpressionGuid, bool bOveriddenOnly) const
{
	if (const FStaticSwitchParameter* Found = FindOverride(StaticSwitches, ParameterInfo))
	{
		OutValue = Found->Value;
		OutExpressionGuid = Found->ExpressionGUID;
		return true;
	}
	return Parent && Parent->GetStaticSwitchParameterValue(ParameterInfo, OutValue, OutExpressionGuid, bOveriddenOnly);
}

void UMaterialInstance::ResolveOverrides()
{
	for (FStaticSwitchParameter& Switch : StaticSwitches)
	{
		bool bUnusedValue = false;
		Switch.ExpressionGUID.Invalidate();
		static_cast<const UMaterialInterface*>(GetMaterial())
			->GetStaticSwitchParameterValue(Switch.ParameterInfo, bUnusedValue, Switch.ExpressionGUID);
	}
	ResolvedStaticSwitches = StaticSwitches;
	ResolvedOverrides = BasePropertyOverrides;
	BlendMode = GetBlendMode();
	TwoSided = IsTwoSided();
	OpacityMaskClipValue = GetOpacityMaskClipValue();
}

void UMaterialInstance::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	ResolveOverrides();
	Super::PostEditChangeProperty(PropertyChangedEvent);
}
