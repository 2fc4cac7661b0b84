// SPDX-License-Identifier: MIT
// Names of material parameters.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "MaterialTypes.generated.h"

/** Where a parameter belongs: to the whole material, or to one layer or blend of it. */
enum EMaterialParameterAssociation : int
{
	LayerParameter = 0,
	BlendParameter = 1,
	GlobalParameter = 2
};

/** The name of a material parameter, with the layer that it belongs to. */
USTRUCT()
struct FMaterialParameterInfo
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = MaterialParameterInfo)
	FName Name;

	/** What the parameter belongs to. */
	UPROPERTY(EditAnywhere, Category = MaterialParameterInfo)
	TEnumAsByte<EMaterialParameterAssociation> Association;

	/** Number of the layer or blend; INDEX_NONE for a global parameter. */
	UPROPERTY(EditAnywhere, Category = MaterialParameterInfo)
	int32 Index;

	FMaterialParameterInfo(
		const TCHAR* InName, EMaterialParameterAssociation InAssociation = GlobalParameter, int32 InIndex = INDEX_NONE)
		: Name(InName)
		, Association(InAssociation)
		, Index(InIndex)
	{
	}

	FMaterialParameterInfo(FName InName = FName(), EMaterialParameterAssociation InAssociation = GlobalParameter,
		int32 InIndex = INDEX_NONE)
		: Name(InName)
		, Association(InAssociation)
		, Index(InIndex)
	{
	}

	bool operator==(const FMaterialParameterInfo& Other) const
	{
		return Name == Other.Name && Association.GetValue() == Other.Association.GetValue() && Index == Other.Index;
	}

	bool operator!=(const FMaterialParameterInfo& Other) const { return !(*this == Other); }

	friend uint32 GetTypeHash(const FMaterialParameterInfo& Info)
	{
		return HashCombine(
			HashCombine(GetTypeHash(Info.Name), uint32(Info.Association.GetValue())), uint32(Info.Index));
	}
};

/** A parameter name ready for a look-up; made implicitly from a name or a full parameter info. */
struct FHashedMaterialParameterInfo
{
	FName Name;
	TEnumAsByte<EMaterialParameterAssociation> Association;
	int32 Index;

	FHashedMaterialParameterInfo(const TCHAR* InName)
		: FHashedMaterialParameterInfo(FName(InName))
	{
	}
	FHashedMaterialParameterInfo(FName InName = FName())
		: Name(InName)
		, Association(GlobalParameter)
		, Index(INDEX_NONE)
	{
	}
	FHashedMaterialParameterInfo(const FMaterialParameterInfo& Info)
		: Name(Info.Name)
		, Association(Info.Association)
		, Index(Info.Index)
	{
	}

	/** Whether `Info` names the same parameter. */
	bool Matches(const FMaterialParameterInfo& Info) const
	{
		return Name == Info.Name && Association.GetValue() == Info.Association.GetValue() && Index == Info.Index;
	}
};
