// SPDX-License-Identifier: MIT
/** Life, vertices and queries of the mesh. */

#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "Templates/UnrealTemplate.h"

namespace UE::Geometry
{

FDynamicMesh3::FDynamicMesh3() = default;

FDynamicMesh3::FDynamicMesh3(bool bWantNormals, bool bWantColors, bool bWantUVs, bool bWantTriGroups)
{
	if (bWantNormals)
	{
		EnableVertexNormals(FVector3f(0.0f, 1.0f, 0.0f));
	}
	if (bWantColors)
	{
		EnableVertexColors(FVector3f(1.0f, 1.0f, 1.0f));
	}
	if (bWantUVs)
	{
		EnableVertexUVs(FVector2f(0.0f, 0.0f));
	}
	if (bWantTriGroups)
	{
		EnableTriangleGroups();
	}
}

FDynamicMesh3::FDynamicMesh3(EMeshComponents Flags)
	: FDynamicMesh3(EnumHasAnyFlags(Flags, EMeshComponents::VertexNormals),
		  EnumHasAnyFlags(Flags, EMeshComponents::VertexColors), EnumHasAnyFlags(Flags, EMeshComponents::VertexUVs),
		  EnumHasAnyFlags(Flags, EMeshComponents::FaceGroups))
{
}

FDynamicMesh3::FDynamicMesh3(const FDynamicMesh3& CopyMesh)
{
	*this = CopyMesh;
}

FDynamicMesh3::FDynamicMesh3(FDynamicMesh3&& MoveMesh)
{
	*this = MoveTemp(MoveMesh);
}

FDynamicMesh3::~FDynamicMesh3() = default;

FDynamicMesh3& FDynamicMesh3::operator=(const FDynamicMesh3& CopyMesh)
{
	if (this == &CopyMesh)
	{
		return *this;
	}
	Vertices = CopyMesh.Vertices;
	Triangles = CopyMesh.Triangles;
	Edges = CopyMesh.Edges;
	HubEdges = CopyMesh.HubEdges;
	Positions = CopyMesh.Positions;
	VertexNormals = CopyMesh.VertexNormals;
	VertexColors = CopyMesh.VertexColors;
	VertexUVs = CopyMesh.VertexUVs;
	TriangleGroups = CopyMesh.TriangleGroups;
	AttributeSet.Reset();
	if (CopyMesh.AttributeSet.IsValid())
	{
		AttributeSet = MakeUnique<FDynamicMeshAttributeSet>(*CopyMesh.AttributeSet, this);
	}
	return *this;
}

FDynamicMesh3& FDynamicMesh3::operator=(FDynamicMesh3&& MoveMesh)
{
	if (this == &MoveMesh)
	{
		return *this;
	}
	Vertices = MoveTemp(MoveMesh.Vertices);
	Triangles = MoveTemp(MoveMesh.Triangles);
	Edges = MoveTemp(MoveMesh.Edges);
	HubEdges = MoveTemp(MoveMesh.HubEdges);
	Positions = MoveTemp(MoveMesh.Positions);
	VertexNormals = MoveTemp(MoveMesh.VertexNormals);
	VertexColors = MoveTemp(MoveMesh.VertexColors);
	VertexUVs = MoveTemp(MoveMesh.VertexUVs);
	TriangleGroups = MoveTemp(MoveMesh.TriangleGroups);
	AttributeSet = MoveTemp(MoveMesh.AttributeSet);
	if (AttributeSet.IsValid())
	{
		AttributeSet->Reparent(this);
	}
	MoveMesh.Clear();
	return *this;
}

void FDynamicMesh3::Clear()
{
	Vertices = TRecordPool<FVertex>();
	Triangles = TRecordPool<FTriangle>();
	Edges = TRecordPool<FEdge>();
	HubEdges.Empty();
	Positions.Empty();
	VertexNormals.Reset();
	VertexColors.Reset();
	VertexUVs.Reset();
	TriangleGroups.Reset();
	AttributeSet.Reset();
}

namespace
{
/** Stores the value of a vertex or triangle whose id is new at the array's end or used again. */
template <typename ArrayType, typename ValueType>
void StoreAt(ArrayType& Values, int Id, const ValueType& Value)
{
	if (Id == Values.Num())
	{
		Values.Add(Value);
	}
	else
	{
		Values[Id] = Value;
	}
}

template <typename ValueType>
void StoreAt(TOptional<TArray<ValueType>>& Values, int Id, const ValueType& Value)
{
	if (Values.IsSet())
	{
		StoreAt(Values.GetValue(), Id, Value);
	}
}

template <typename ValueType>
void EnableArray(TOptional<TArray<ValueType>>& Values, int Num, const ValueType& InitialValue)
{
	if (!Values.IsSet())
	{
		Values.Emplace();
		Values.GetValue().Init(InitialValue, Num);
	}
}
} // namespace

int FDynamicMesh3::AppendVertex(const FVertexInfo& VertInfo)
{
	const int VertexID = Vertices.Add(FVertex());
	StoreAt(Positions, VertexID, VertInfo.Position);
	StoreAt(VertexNormals, VertexID, VertInfo.bHaveN ? VertInfo.Normal : FVector3f(0.0f, 1.0f, 0.0f));
	StoreAt(VertexColors, VertexID, VertInfo.bHaveC ? VertInfo.Color : FVector3f(1.0f, 1.0f, 1.0f));
	StoreAt(VertexUVs, VertexID, VertInfo.bHaveUV ? VertInfo.UV : FVector2f(0.0f, 0.0f));
	return VertexID;
}

int FDynamicMesh3::AppendVertex(const FVector3d& Position)
{
	return AppendVertex(FVertexInfo(Position));
}

int FDynamicMesh3::AppendVertex(const FDynamicMesh3& SourceMesh, int SourceVertexID)
{
	FVertexInfo Info(SourceMesh.GetVertex(SourceVertexID));
	Info.bHaveN = SourceMesh.HasVertexNormals();
	Info.bHaveC = SourceMesh.HasVertexColors();
	Info.bHaveUV = SourceMesh.HasVertexUVs();
	Info.Normal = SourceMesh.GetVertexNormal(SourceVertexID);
	Info.Color = SourceMesh.GetVertexColor(SourceVertexID);
	Info.UV = SourceMesh.GetVertexUV(SourceVertexID);
	return AppendVertex(Info);
}

FVector3f FDynamicMesh3::GetVertexNormal(int VertexID) const
{
	return HasVertexNormals() ? VertexNormals.GetValue()[VertexID] : FVector3f(0.0f, 1.0f, 0.0f);
}

FVector3f FDynamicMesh3::GetVertexColor(int VertexID) const
{
	return HasVertexColors() ? VertexColors.GetValue()[VertexID] : FVector3f(1.0f, 1.0f, 1.0f);
}

FVector2f FDynamicMesh3::GetVertexUV(int VertexID) const
{
	return HasVertexUVs() ? VertexUVs.GetValue()[VertexID] : FVector2f(0.0f, 0.0f);
}

void FDynamicMesh3::SetVertex(int VertexID, const FVector3d& NewPosition)
{
	check(IsVertex(VertexID));
	Positions[VertexID] = NewPosition;
}

void FDynamicMesh3::SetVertexNormal(int VertexID, const FVector3f& NewNormal)
{
	check(IsVertex(VertexID));
	if (HasVertexNormals())
	{
		VertexNormals.GetValue()[VertexID] = NewNormal;
	}
}

void FDynamicMesh3::EnableVertexNormals(const FVector3f& InitialNormal)
{
	EnableArray(VertexNormals, MaxVertexID(), InitialNormal);
}

void FDynamicMesh3::EnableVertexColors(const FVector3f& InitialColor)
{
	EnableArray(VertexColors, MaxVertexID(), InitialColor);
}

void FDynamicMesh3::EnableVertexUVs(const FVector2f& InitialUV)
{
	EnableArray(VertexUVs, MaxVertexID(), InitialUV);
}

void FDynamicMesh3::EnableTriangleGroups(int InitialGroupID)
{
	EnableArray(TriangleGroups, MaxTriangleID(), static_cast<int32>(InitialGroupID));
}

int FDynamicMesh3::GetTriangleGroup(int TriangleID) const
{
	return HasTriangleGroups() ? TriangleGroups.GetValue()[TriangleID] : 0;
}

void FDynamicMesh3::SetTriangleGroup(int TriangleID, int GroupID)
{
	check(IsTriangle(TriangleID));
	if (HasTriangleGroups())
	{
		TriangleGroups.GetValue()[TriangleID] = GroupID;
	}
}

void FDynamicMesh3::GetTriVertices(int TriangleID, FVector3d& V0, FVector3d& V1, FVector3d& V2) const
{
	const FIndex3i Triangle = GetTriangle(TriangleID);
	V0 = GetVertex(Triangle.A);
	V1 = GetVertex(Triangle.B);
	V2 = GetVertex(Triangle.C);
}

FAxisAlignedBox3d FDynamicMesh3::GetBounds(bool) const
{
	FAxisAlignedBox3d Bounds = FAxisAlignedBox3d::Empty();
	for (const int VertexID : VertexIndicesItr())
	{
		Bounds.Contain(Positions.At(VertexID));
	}
	return Bounds;
}

void FDynamicMesh3::EnableAttributes()
{
	if (!HasAttributes())
	{
		AttributeSet = MakeUnique<FDynamicMeshAttributeSet>(this);
	}
}

void FDynamicMesh3::DiscardAttributes()
{
	AttributeSet.Reset();
}

} // namespace UE::Geometry
