// SPDX-License-Identifier: MIT
// An object that holds one dynamic mesh.
#pragma once

#include "CoreMinimal.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Templates/Function.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UDynamicMesh.generated.h"

UCLASS()
class UDynamicMesh : public UObject
{
	GENERATED_BODY()

public:
	/** Never null; valid for the life of this object. */
	UE::Geometry::FDynamicMesh3* GetMeshPtr() { return &Mesh; }
	const UE::Geometry::FDynamicMesh3& GetMeshRef() const { return Mesh; }
	void ProcessMesh(TFunctionRef<void(const UE::Geometry::FDynamicMesh3&)> ProcessFunc) const { ProcessFunc(Mesh); }

	/** A copy of the mesh, with its attributes. */
	void SetMesh(const UE::Geometry::FDynamicMesh3& NewMesh) { Mesh = NewMesh; }
	void SetMesh(UE::Geometry::FDynamicMesh3&& NewMesh) { Mesh = MoveTemp(NewMesh); }

private:
	UE::Geometry::FDynamicMesh3 Mesh;
};
