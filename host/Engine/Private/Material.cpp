// SPDX-License-Identifier: MIT
#include "Materials/Material.h"

#include "Host/MaterialDeclaration.h"
#include "Host/NativeCopy.h"
#include "UObject/GCObject.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
struct FMaterialAccess
{
	static TSharedPtr<FMaterialDeclaration>& Get(UMaterial& Material) { return Material.Declaration; }
	static const TSharedPtr<FMaterialDeclaration>& Get(const UMaterial& Material) { return Material.Declaration; }
};

namespace
{
TNativeCopy<UMaterial> CopyMaterial(
	[](const UMaterial& Source, UMaterial& Target) { FMaterialAccess::Get(Target) = FMaterialAccess::Get(Source); });

template <typename ParameterType>
const ParameterType* FindByName(const TArray<ParameterType>& Parameters, FName Name)
{
	return Parameters.FindByPredicate([Name](const ParameterType& Parameter) { return Parameter.Name == Name; });
}

/** The parameter that a look-up asks for; only global ones exist. */
template <typename ParameterType>
const ParameterType* FindGlobal(const TArray<ParameterType>& Parameters, const FHashedMaterialParameterInfo& Info)
{
	const bool bGlobal = Info.Association.GetValue() == GlobalParameter && Info.Index == INDEX_NONE;
	return bGlobal ? FindByName(Parameters, Info.Name) : nullptr;
}
} // namespace

const FDeclaredScalar* FMaterialDeclaration::FindScalar(FName Name) const
{
	return FindByName(Scalars, Name);
}

const FDeclaredVector* FMaterialDeclaration::FindVector(FName Name) const
{
	return FindByName(Vectors, Name);
}

const FDeclaredTexture* FMaterialDeclaration::FindTexture(FName Name) const
{
	return FindByName(Textures, Name);
}

const FDeclaredSwitch* FMaterialDeclaration::FindSwitch(FName Name) const
{
	return FindByName(Switches, Name);
}

void FMaterialDeclaration::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (FDeclaredTexture& Texture : Textures)
	{
		Collector.AddReferencedObject(Texture.Default);
	}
}

const FMaterialDeclaration& GetMaterialDeclaration(const UMaterial& Material)
{
	static const FMaterialDeclaration Empty;
	const TSharedPtr<FMaterialDeclaration>& Declaration = FMaterialAccess::Get(Material);
	return Declaration ? *Declaration : Empty;
}

FMaterialDeclaration& EditMaterialDeclaration(UMaterial& Material)
{
	TSharedPtr<FMaterialDeclaration>& Declaration = FMaterialAccess::Get(Material);
	if (!Declaration)
	{
		Declaration = MakeShared<FMaterialDeclaration>();
	}
	else if (!Declaration.IsUnique())
	{
		// Duplicates share what they have not changed.
		Declaration = MakeShared<FMaterialDeclaration>(*Declaration);
	}
	return *Declaration;
}
} // namespace Host

UMaterial* UMaterial::GetMaterial()
{
	return this;
}

const UMaterial* UMaterial::GetMaterial() const
{
	return this;
}

bool UMaterial::GetTextureParameterValue(
	const FHashedMaterialParameterInfo& ParameterInfo, UTexture*& OutValue, bool bOveriddenOnly) const
{
	const Host::FDeclaredTexture* Found =
		bOveriddenOnly ? nullptr : Host::FindGlobal(Host::GetMaterialDeclaration(*this).Textures, ParameterInfo);
	if (Found)
	{
		OutValue = Found->Default.Get();
	}
	return Found != nullptr;
}

bool UMaterial::GetScalarParameterValue(
	const FHashedMaterialParameterInfo& ParameterInfo, float& OutValue, bool bOveriddenOnly) const
{
	const Host::FDeclaredScalar* Found =
		bOveriddenOnly ? nullptr : Host::FindGlobal(Host::GetMaterialDeclaration(*this).Scalars, ParameterInfo);
	if (Found)
	{
		OutValue = Found->Default;
	}
	return Found != nullptr;
}

bool UMaterial::GetVectorParameterValue(
	const FHashedMaterialParameterInfo& ParameterInfo, FLinearColor& OutValue, bool bOveriddenOnly) const
{
	const Host::FDeclaredVector* Found =
		bOveriddenOnly ? nullptr : Host::FindGlobal(Host::GetMaterialDeclaration(*this).Vectors, ParameterInfo);
	if (Found)
	{
		OutValue = Found->Default;
	}
	return Found != nullptr;
}

bool UMaterial::GetStaticSwitchParameterValue(const FHashedMaterialParameterInfo& ParameterInfo, bool& OutValue,
	FGuid& OutExpressionGuid, bool bOveriddenOnly) const
{
	const Host::FDeclaredSwitch* Found =
		bOveriddenOnly ? nullptr : Host::FindGlobal(Host::GetMaterialDeclaration(*this).Switches, ParameterInfo);
	if (Found)
	{
		OutValue = Found->Default;
		OutExpressionGuid = Found->ExpressionGuid;
	}
	return Found != nullptr;
}

void UMaterial::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UMaterial* This = static_cast<UMaterial*>(InThis);
	if (TSharedPtr<Host::FMaterialDeclaration>& Declaration = Host::FMaterialAccess::Get(*This))
	{
		Declaration->AddReferencedObjects(Collector);
	}
	Super::AddReferencedObjects(InThis, Collector);
}
