// SPDX-License-Identifier: MIT
// A material asset that declares parameters and that instances refer to.
#pragma once

#include "CoreMinimal.h"
#include "MaterialDomain.h"
#include "Materials/MaterialInterface.h"
#include "Templates/SharedPointer.h"
#include "UObject/ObjectMacros.h"
#include "Material.generated.h"

namespace Host
{
struct FMaterialAccess;
struct FMaterialDeclaration;
} // namespace Host

/** A material asset: the render settings, and the parameters that its instances override. */
UCLASS()
class UMaterial : public UMaterialInterface
{
	GENERATED_BODY()

public:
	/** What the material is applied to. */
	UPROPERTY(EditAnywhere, Category = Material)
	TEnumAsByte<EMaterialDomain> MaterialDomain = MD_Surface;

	/** How the surface meets what lies behind it. */
	UPROPERTY(EditAnywhere, Category = Material)
	TEnumAsByte<EBlendMode> BlendMode = BLEND_Opaque;

	/** A masked surface is absent where its opacity is less than this. */
	UPROPERTY(EditAnywhere, Category = Material)
	float OpacityMaskClipValue = 0.3333f;

	/** Whether both sides of a surface are drawn and lit. */
	UPROPERTY(EditAnywhere, Category = Material)
	uint8 TwoSided : 1 = 0;

	/** Whether the material may be shown on skeletal meshes. */
	UPROPERTY(EditAnywhere, Category = Usage)
	uint8 bUsedWithSkeletalMesh : 1 = 0;

	/** Whether the material may be shown on geometry caches. */
	UPROPERTY(EditAnywhere, Category = Usage)
	uint8 bUsedWithGeometryCache : 1 = 0;

	/** The engine's material for a domain: never null, the same object in every call, in an engine package. */
	ENGINE_API static UMaterial* GetDefaultMaterial(EMaterialDomain Domain);

	ENGINE_API virtual UMaterial* GetMaterial() override;
	ENGINE_API virtual const UMaterial* GetMaterial() const override;
	ENGINE_API virtual bool GetTextureParameterValue(const FHashedMaterialParameterInfo& ParameterInfo,
		UTexture*& OutValue, bool bOveriddenOnly = false) const override;
	ENGINE_API virtual bool GetScalarParameterValue(
		const FHashedMaterialParameterInfo& ParameterInfo, float& OutValue, bool bOveriddenOnly = false) const override;
	ENGINE_API virtual bool GetVectorParameterValue(const FHashedMaterialParameterInfo& ParameterInfo,
		FLinearColor& OutValue, bool bOveriddenOnly = false) const override;
	ENGINE_API virtual bool GetStaticSwitchParameterValue(const FHashedMaterialParameterInfo& ParameterInfo,
		bool& OutValue, FGuid& OutExpressionGuid, bool bOveriddenOnly = false) const override;

	/** Reports the default textures of the parameters. */
	ENGINE_API static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	friend struct Host::FMaterialAccess;

	/** Null until something is declared; shared with duplicates until one of them changes it. */
	TSharedPtr<Host::FMaterialDeclaration> Declaration;
};
