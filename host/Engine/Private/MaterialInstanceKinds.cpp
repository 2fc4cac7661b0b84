// SPDX-License-Identifier: MIT
#include "Materials/MaterialInstanceConstant.h"
#include "Materials/MaterialInstanceDynamic.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

void UMaterialInstanceConstant::SetParentEditorOnly(UMaterialInterface* NewParent, bool RecacheShader)
{
	SetParentInternal(NewParent, RecacheShader);
}

void UMaterialInstanceConstant::SetVectorParameterValueEditorOnly(
	const FMaterialParameterInfo& ParameterInfo, FLinearColor Value)
{
	SetVectorParameterValueInternal(ParameterInfo, Value);
}

void UMaterialInstanceConstant::SetScalarParameterValueEditorOnly(
	const FMaterialParameterInfo& ParameterInfo, float Value)
{
	SetScalarParameterValueInternal(ParameterInfo, Value);
}

void UMaterialInstanceConstant::SetTextureParameterValueEditorOnly(
	const FMaterialParameterInfo& ParameterInfo, UTexture* Value)
{
	SetTextureParameterValueInternal(ParameterInfo, Value);
}

void UMaterialInstanceConstant::ClearParameterValuesEditorOnly()
{
	ClearParameterValuesInternal();
}

UMaterialInstanceDynamic* UMaterialInstanceDynamic::Create(UMaterialInterface* ParentMaterial, UObject* InOuter)
{
	return Create(ParentMaterial, InOuter, NAME_None);
}

UMaterialInstanceDynamic* UMaterialInstanceDynamic::Create(
	UMaterialInterface* ParentMaterial, UObject* InOuter, FName Name)
{
	UObject* Outer = InOuter ? InOuter : GetTransientPackage();
	UMaterialInstanceDynamic* Instance = NewObject<UMaterialInstanceDynamic>(Outer, Name, RF_NoFlags);
	Instance->SetParentInternal(ParentMaterial, true);
	return Instance;
}
