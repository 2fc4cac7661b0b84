// SPDX-License-Identifier: MIT
/** One value for each triangle of a mesh. */
#pragma once

#include "DynamicMesh/DynamicMesh3.h"
#include "Util/BlockArray.h"

namespace UE::Geometry
{

/**
 * AttribDimension numbers for each triangle, kept in step with the mesh: a triangle that was appended after
 * Initialize() starts at 0.
 */
template <typename AttribValueType, int AttribDimension>
class TDynamicMeshTriangleAttribute
{
public:
	explicit TDynamicMeshTriangleAttribute(const FDynamicMesh3* InParentMesh)
		: ParentMesh(InParentMesh)
	{
	}
	TDynamicMeshTriangleAttribute(const TDynamicMeshTriangleAttribute& Other, const FDynamicMesh3* InParentMesh)
		: ParentMesh(InParentMesh)
		, Values(Other.Values)
	{
	}

	/** Gives all triangles up to the mesh's MaxTriangleID() the value. */
	void Initialize(AttribValueType InitialValue = 0)
	{
		Values.Empty();
		GrowTo(ParentMesh->MaxTriangleID() - 1, InitialValue);
	}

	/** Data is [AttribDimension]; an id below 0 or past the mesh's MaxTriangleID() is a fault. */
	void SetValue(int TriangleID, const AttribValueType* Data)
	{
		checkf(TriangleID >= 0 && TriangleID < ParentMesh->MaxTriangleID(), TEXT("no triangle %d"), TriangleID);
		if (TriangleID * AttribDimension == Values.Num())
		{
			for (int Index = 0; Index < AttribDimension; ++Index)
			{
				Values.Add(Data[Index]);
			}
			return;
		}
		GrowTo(TriangleID, AttribValueType(0));
		for (int Index = 0; Index < AttribDimension; ++Index)
		{
			Values[TriangleID * AttribDimension + Index] = Data[Index];
		}
	}
	void GetValue(int TriangleID, AttribValueType* Data) const
	{
		checkf(TriangleID >= 0 && TriangleID < ParentMesh->MaxTriangleID(), TEXT("no triangle %d"), TriangleID);
		const int First = TriangleID * AttribDimension;
		for (int Index = 0; Index < AttribDimension; ++Index)
		{
			Data[Index] = First + Index < Values.Num() ? Values[First + Index] : AttribValueType(0);
		}
	}
	/** For a triangle that was appended just now. */
	void SetNewValue(int NewTriangleID, const AttribValueType* Data) { SetValue(NewTriangleID, Data); }

	/** The mesh calls it when the triangle goes: its id, used again, starts at 0. */
	void OnRemoveTriangle(int TriangleID)
	{
		const int First = TriangleID * AttribDimension;
		for (int Index = First; Index < First + AttribDimension && Index < Values.Num(); ++Index)
		{
			Values[Index] = AttribValueType(0);
		}
	}
	/** The mesh calls it when it was moved to another place. */
	void Reparent(const FDynamicMesh3* NewParent) { ParentMesh = NewParent; }
	const FDynamicMesh3* GetParentMesh() const { return ParentMesh; }

private:
	void GrowTo(int TriangleID, AttribValueType Value)
	{
		while (Values.Num() < (TriangleID + 1) * AttribDimension)
		{
			Values.Add(Value);
		}
	}

	/** Not owned; it owns this. */
	const FDynamicMesh3* ParentMesh;
	/** At most [MaxTriangleID() * AttribDimension]; what is missing is 0. */
	TBlockArray<AttribValueType> Values;
};

/** One number for each triangle. */
template <typename RealType>
class TDynamicMeshScalarTriangleAttribute : public TDynamicMeshTriangleAttribute<RealType, 1>
{
	using BaseType = TDynamicMeshTriangleAttribute<RealType, 1>;

public:
	using BaseType::BaseType;
	using BaseType::GetValue;
	using BaseType::SetNewValue;
	using BaseType::SetValue;

	RealType GetValue(int TriangleID) const
	{
		RealType Value;
		BaseType::GetValue(TriangleID, &Value);
		return Value;
	}
	/** Any value is kept, negative ones too. */
	void SetValue(int TriangleID, RealType Value) { BaseType::SetValue(TriangleID, &Value); }
	void SetNewValue(int NewTriangleID, RealType Value) { BaseType::SetNewValue(NewTriangleID, &Value); }
};

} // namespace UE::Geometry
