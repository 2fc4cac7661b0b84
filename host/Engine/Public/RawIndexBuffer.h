// SPDX-License-Identifier: MIT
// Index buffers of 16 or 32 bits behind one interface.
#pragma once

#include "CoreMinimal.h"

/** An index buffer whose width the reader need not know. */
class FRawStaticIndexBuffer16or32Interface
{
public:
	virtual ~FRawStaticIndexBuffer16or32Interface() = default;

	virtual int32 Num() const = 0;
	virtual uint32 Get(uint32 Index) const = 0;

	/** The first byte; null for an empty buffer. */
	virtual const void* GetPointer() const = 0;
};

/** An index buffer of one width. */
template <typename IndexType>
class FRawStaticIndexBuffer16or32 final : public FRawStaticIndexBuffer16or32Interface
{
public:
	virtual int32 Num() const override { return Indices.Num(); }
	virtual uint32 Get(uint32 Index) const override { return Indices[int32(Index)]; }
	virtual const void* GetPointer() const override { return Indices.GetData(); }

	/** Takes over the indices, cut down to the width of the buffer. */
	void Assign(const TArray<uint32>& InIndices)
	{
		Indices.SetNumUninitialized(InIndices.Num(), false);
		for (int32 Index = 0; Index < InIndices.Num(); ++Index)
		{
			Indices.GetData()[Index] = static_cast<IndexType>(InIndices.GetData()[Index]);
		}
	}

private:
	TArray<IndexType> Indices;
};
