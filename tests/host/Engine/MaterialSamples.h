// SPDX-License-Identifier: MIT
// Small materials for tests.
#pragma once

#include "Engine/Texture2D.h"
#include "Host/MaterialDeclaration.h"
#include "Materials/Material.h"
#include "Materials/MaterialInstanceConstant.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace MaterialSamples
{
template <typename ValueType>
Host::TDeclaredParameter<ValueType> Declare(const TCHAR* Name, ValueType Default)
{
	Host::TDeclaredParameter<ValueType> Parameter;
	Parameter.Name = FName(Name);
	Parameter.Default = Default;
	return Parameter;
}

inline UTexture2D* MakeTexture(const TCHAR* Name)
{
	return NewObject<UTexture2D>(GetTransientPackage(), FName(Name));
}

/** A one-sided opaque master with the base colour channel, roughness 0.5 and opacity switches. */
inline UMaterial* MakeMaster(const TCHAR* Name = TEXT("Master"))
{
	UMaterial* Master = NewObject<UMaterial>(GetTransientPackage(), FName(Name));
	Host::FMaterialDeclaration& Declaration = Host::EditMaterialDeclaration(*Master);
	Declaration.Vectors.Add(Declare(TEXT("BaseColor"), FLinearColor(0.25f, 0.5f, 0.75f, 1.0f)));
	Declaration.Scalars.Add(Declare(TEXT("Roughness"), 0.5f));
	Declaration.Scalars.Add(Declare(TEXT("BaseColor_UAmount"), 1.0f));
	Declaration.Scalars.Add(Declare(TEXT("BaseColor_Angle"), 0.0f));
	Declaration.Scalars.Add(Declare(TEXT("BaseColor_UOffset"), 0.0f));
	Declaration.Scalars.Add(Declare(TEXT("BaseColor_Intensity"), 1.0f));
	Declaration.Textures.Add(Declare(TEXT("BaseColor_Texture"), TObjectPtr<UTexture>()));
	Declaration.Textures.Add(Declare(TEXT("Opacity_Texture"), TObjectPtr<UTexture>()));
	Declaration.Switches.Add(Declare(TEXT("BaseColor_HasMap"), false));
	Declaration.Switches.Add(Declare(TEXT("Opacity_HasMap"), false));
	Declaration.Switches.Add(Declare(TEXT("Opacity_AlphaMode"), false));
	Declaration.Look.Sheen.Color = FLinearColor(0.5f, 0.25f, 0.125f, 1.0f);
	return Master;
}

inline UMaterialInstanceConstant* MakeInstance(UMaterialInterface* Parent, const TCHAR* Name = TEXT("Instance"))
{
	UMaterialInstanceConstant* Instance = NewObject<UMaterialInstanceConstant>(GetTransientPackage(), FName(Name));
	Instance->SetParentEditorOnly(Parent);
	return Instance;
}

inline FMaterialParameterInfo Info(const TCHAR* Name)
{
	return FMaterialParameterInfo(Name);
}
} // namespace MaterialSamples
