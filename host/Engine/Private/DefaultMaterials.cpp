// SPDX-License-Identifier: MIT
// The engine's own material for each domain.
#include "Host/MaterialDeclaration.h"
#include "Materials/Material.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"

namespace
{
const TCHAR* GetDefaultMaterialName(EMaterialDomain Domain)
{
	switch (Domain)
	{
		case MD_DeferredDecal:
			return TEXT("DefaultDeferredDecalMaterial");
		case MD_LightFunction:
			return TEXT("DefaultLightFunctionMaterial");
		case MD_PostProcess:
			return TEXT("DefaultPostProcessMaterial");
		case MD_UI:
			return TEXT("DefaultUIMaterial");
		case MD_Volume:
			return TEXT("DefaultVolumeMaterial");
		default:
			return TEXT("WorldGridMaterial");
	}
}

template <typename ParameterType, typename ValueType>
void Declare(TArray<ParameterType>& Parameters, const TCHAR* Name, const ValueType& Default)
{
	ParameterType Parameter;
	Parameter.Name = FName(Name);
	Parameter.Default = Default;
	Parameters.Add(Parameter);
}

UMaterial* MakeDefaultMaterial(EMaterialDomain Domain)
{
	const FString Name = GetDefaultMaterialName(Domain);
	UPackage* Package = CreatePackage(*(FString(TEXT("/Engine/EngineMaterials/")) + Name));
	UMaterial* Material = NewObject<UMaterial>(Package, FName(*Name), EObjectFlags(RF_Public | RF_Standalone));
	Material->AddToRoot();
	Material->MaterialDomain = Domain;
	Material->bUsedWithSkeletalMesh = true;
	Material->bUsedWithGeometryCache = true;

	// A neutral grey that shows the form and looks like nothing in particular.
	Host::FMaterialDeclaration& Declaration = Host::EditMaterialDeclaration(*Material);
	Declare(Declaration.Vectors, TEXT("BaseColor"), FLinearColor(0.4f, 0.4f, 0.4f, 1.0f));
	Declare(Declaration.Scalars, TEXT("Roughness"), 0.7f);
	Declare(Declaration.Scalars, TEXT("Metallic"), 0.0f);
	Declare(Declaration.Scalars, TEXT("Specular"), 0.5f);
	Declare(Declaration.Scalars, TEXT("Opacity"), 1.0f);
	return Material;
}
} // namespace

UMaterial* UMaterial::GetDefaultMaterial(EMaterialDomain Domain)
{
	// Weak, because the object system may go down and come up again within one process.
	static TWeakObjectPtr<UMaterial> Defaults[MD_MAX];
	const EMaterialDomain Known = Domain >= MD_Surface && Domain < MD_MAX ? Domain : MD_Surface;
	UMaterial* Material = Defaults[Known].Get();
	if (!Material)
	{
		Material = MakeDefaultMaterial(Known);
		Defaults[Known] = Material;
	}
	return Material;
}
