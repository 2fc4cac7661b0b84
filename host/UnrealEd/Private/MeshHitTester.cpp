// SPDX-License-Identifier: MIT
#include "MeshHitTester.h"

#include "Components/DynamicMeshComponent.h"
#include "Components/SkinnedMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "Host/Scene.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "SceneView.h"
#include "Templates/Casts.h"

namespace Host
{
namespace
{
/** A line from a point, in the space of one component: the parameter counts the same in every space. */
struct FRay
{
	FVector Origin;
	FVector Direction;
};

/** The nearest triangle so far. */
struct FNearest
{
	double At = TNumericLimits<double>::Max();
	int32 Section = INDEX_NONE;
	int32 Material = INDEX_NONE;
};

bool HitsBounds(const FRay& Ray, const FBoxSphereBounds& Bounds, double Before)
{
	double First = 0.0;
	double Last = Before;
	const double Origin[3] = {Ray.Origin.X, Ray.Origin.Y, Ray.Origin.Z};
	const double Direction[3] = {Ray.Direction.X, Ray.Direction.Y, Ray.Direction.Z};
	const double Center[3] = {Bounds.Origin.X, Bounds.Origin.Y, Bounds.Origin.Z};
	const double Extent[3] = {Bounds.BoxExtent.X, Bounds.BoxExtent.Y, Bounds.BoxExtent.Z};
	for (int32 Axis = 0; Axis < 3; ++Axis)
	{
		const double Low = Center[Axis] - Extent[Axis] - Origin[Axis];
		const double High = Center[Axis] + Extent[Axis] - Origin[Axis];
		if (Direction[Axis] == 0.0)
		{
			if (Low > 0.0 || High < 0.0)
			{
				return false;
			}
			continue;
		}
		const double A = Low / Direction[Axis];
		const double B = High / Direction[Axis];
		First = FMath::Max(First, FMath::Min(A, B));
		Last = FMath::Min(Last, FMath::Max(A, B));
	}
	return First <= Last;
}

/** Moeller and Trumbore, "Fast, minimum storage ray/triangle intersection", 1997. Negative for a miss. */
double HitTriangle(const FRay& Ray, const FVector& A, const FVector& B, const FVector& C)
{
	const FVector AB = B - A;
	const FVector AC = C - A;
	const FVector Across = Ray.Direction ^ AC;
	const double Determinant = AB | Across;
	if (Determinant == 0.0)
	{
		return -1.0;
	}
	const FVector FromA = Ray.Origin - A;
	const double U = (FromA | Across) / Determinant;
	if (U < 0.0 || U > 1.0)
	{
		return -1.0;
	}
	const FVector Turned = FromA ^ AB;
	const double V = (Ray.Direction | Turned) / Determinant;
	return V < 0.0 || U + V > 1.0 ? -1.0 : (AC | Turned) / Determinant;
}

void Take(FNearest& Nearest, double At, int32 Section, int32 Material)
{
	if (At >= 0.0 && At < Nearest.At)
	{
		Nearest = {At, Section, Material};
	}
}

void HitMesh(const FRay& Ray, const UE::Geometry::FDynamicMesh3& Mesh, FNearest& Nearest)
{
	const auto* const Attributes = Mesh.Attributes();
	const auto* const Materials = Attributes ? Attributes->GetMaterialID() : nullptr;
	for (const int Triangle : Mesh.TriangleIndicesItr())
	{
		FVector A, B, C;
		Mesh.GetTriVertices(Triangle, A, B, C);
		const double At = HitTriangle(Ray, A, B, C);
		if (At >= 0.0 && At < Nearest.At)
		{
			const int32 Material = Materials ? Materials->GetValue(Triangle) : 0;
			Take(Nearest, At, Material, Material);
		}
	}
}

void HitMesh(const FRay& Ray, const FSkeletalMeshLODRenderData& Level, FNearest& Nearest)
{
	const FPositionVertexBuffer& Positions = Level.StaticVertexBuffers.PositionVertexBuffer;
	TArray<uint32> Indices;
	Level.MultiSizeIndexContainer.GetIndexBuffer(Indices);
	for (int32 Index = 0; Index < Level.RenderSections.Num(); ++Index)
	{
		const FSkelMeshRenderSection& Section = Level.RenderSections[Index];
		const uint64 End = uint64(Section.BaseIndex) + uint64(Section.NumTriangles) * 3;
		if (Section.bDisabled || End > uint64(Indices.Num()))
		{
			continue;
		}
		for (uint64 Corner = Section.BaseIndex; Corner < End; Corner += 3)
		{
			const auto Place = [&](uint64 At) { return FVector(Positions.VertexPosition(Indices[int32(At)])); };
			Take(Nearest, HitTriangle(Ray, Place(Corner), Place(Corner + 1), Place(Corner + 2)), Index,
				Section.MaterialIndex);
		}
	}
}

void HitComponent(const FRay& WorldRay, const UPrimitiveComponent& Component, FNearest& Nearest)
{
	const FTransform& Place = Component.GetComponentTransform();
	const FRay Ray{Place.InverseTransformPosition(WorldRay.Origin), Place.InverseTransformVector(WorldRay.Direction)};
	if (const auto* const Dynamic = Cast<const UDynamicMeshComponent>(&Component))
	{
		Dynamic->ProcessMesh([&](const UE::Geometry::FDynamicMesh3& Mesh) { HitMesh(Ray, Mesh, Nearest); });
	}
	else if (const auto* const Skinned = Cast<const USkinnedMeshComponent>(&Component))
	{
		const FSkeletalMeshRenderData* const Data = Skinned->GetSkeletalMeshRenderData();
		if (Data && Data->LODRenderData.Num() > 0)
		{
			HitMesh(Ray, Data->LODRenderData[0], Nearest);
		}
	}
}
} // namespace

FPrimitiveHit FMeshHitTester::HitTest(const FSceneView& View, const FIntPoint& Pixel)
{
	FPrimitiveHit Hit;
	if (!View.Family || !View.Family->Scene)
	{
		return Hit;
	}
	FRay Ray;
	View.DeprojectFVector2D(FVector2D(Pixel.X + 0.5, Pixel.Y + 0.5), Ray.Origin, Ray.Direction);
	if (!View.bPerspective)
	{
		// A parallel view has no eye: what lies behind its plane is seen too.
		constexpr double FarBack = 1.0e6; // cm
		Ray.Origin -= Ray.Direction * FarBack;
	}
	double Nearest = TNumericLimits<double>::Max();
	for (const FScene::FPrimitive& Primitive : static_cast<FScene*>(View.Family->Scene)->GetPrimitives())
	{
		UPrimitiveComponent& Component = *Primitive.Component;
		if (!Component.IsVisible() || !HitsBounds(Ray, Component.Bounds, Nearest))
		{
			continue;
		}
		FNearest Here;
		Here.At = Nearest;
		HitComponent(Ray, Component, Here);
		if (Here.At < Nearest)
		{
			Nearest = Here.At;
			Hit.Component = &Component;
			Hit.SectionIndex = Here.Section;
			Hit.MaterialIndex = Here.Material;
			Hit.Distance = Here.At;
			Hit.Location = Ray.Origin + Ray.Direction * Here.At;
		}
	}
	return Hit;
}
} // namespace Host
