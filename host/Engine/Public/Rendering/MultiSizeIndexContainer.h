// SPDX-License-Identifier: MIT
// An index buffer that holds 16 or 32 bits an index.
#pragma once

#include "CoreMinimal.h"
#include "RawIndexBuffer.h"
#include "Templates/UniquePtr.h"

/** An index buffer that holds 16 or 32 bits an index. */
class FMultiSizeIndexContainer
{
public:
	/** Replaces the buffer by an empty one. @param DataTypeSize bytes of an index, 2 or 4 */
	ENGINE_API void CreateIndexBuffer(uint8 DataTypeSize);

	/** Copies the indices into the buffer, which must have been created. */
	ENGINE_API void CopyIndexBuffer(const TArray<uint32>& NewArray);

	/** All indices as 32 bits; empty without a buffer. */
	ENGINE_API void GetIndexBuffer(TArray<uint32>& OutArray) const;

	/** Null without a buffer. */
	FRawStaticIndexBuffer16or32Interface* GetIndexBuffer() { return IndexBuffer.Get(); }
	const FRawStaticIndexBuffer16or32Interface* GetIndexBuffer() const { return IndexBuffer.Get(); }

	/** Bytes of an index, 2 or 4. */
	uint8 GetDataTypeSize() const { return DataTypeSize; }
	bool IsIndexBufferValid() const { return IndexBuffer.IsValid(); }

private:
	TUniquePtr<FRawStaticIndexBuffer16or32Interface> IndexBuffer;
	uint8 DataTypeSize = 2;
};
