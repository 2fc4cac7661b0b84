// SPDX-License-Identifier: MIT
// What a master material consists of: its parameters with their defaults, its render flags and its look.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "MaterialDomain.h"
#include "Host/MaterialLook.h"
#include "Misc/Guid.h"
#include "UObject/ObjectPtr.h"

class FReferenceCollector;
class UMaterial;
class UTexture;

namespace Host
{
/** One parameter of a master: a node of its graph, with the place of that node in the graph's view. */
template <typename ValueType>
struct TDeclaredParameter
{
	FName Name;

	/** What the parameter is where no instance overrides it. */
	ValueType Default;

	/** Identity of the node; new for each declaration, kept by duplicates. */
	FGuid ExpressionGuid = FGuid::NewGuid();

	/** Place of the node in the graph's view, in pixels. */
	int32 EditorX = 0;
	int32 EditorY = 0;
};

using FDeclaredScalar = TDeclaredParameter<float>;
using FDeclaredVector = TDeclaredParameter<FLinearColor>;
using FDeclaredTexture = TDeclaredParameter<TObjectPtr<UTexture>>;
using FDeclaredSwitch = TDeclaredParameter<bool>;

/** The parameters and the look of one master. Names are unique within each of the four lists. */
struct FMaterialDeclaration
{
	TArray<FDeclaredScalar> Scalars;
	TArray<FDeclaredVector> Vectors;
	TArray<FDeclaredTexture> Textures;
	TArray<FDeclaredSwitch> Switches;
	FMaterialLook Look;

	/** The parameter of that name, or null. */
	const FDeclaredScalar* FindScalar(FName Name) const;
	const FDeclaredVector* FindVector(FName Name) const;
	const FDeclaredTexture* FindTexture(FName Name) const;
	const FDeclaredSwitch* FindSwitch(FName Name) const;

	/** Reports the default textures to garbage collection. */
	void AddReferencedObjects(FReferenceCollector& Collector);
};

/** What `Material` declares; empty lists for a material that nobody has declared anything for. */
const FMaterialDeclaration& GetMaterialDeclaration(const UMaterial& Material);

/** The same to be changed; `PostEditChange` of the material must follow for its instances to see the change. */
FMaterialDeclaration& EditMaterialDeclaration(UMaterial& Material);
} // namespace Host
