// SPDX-License-Identifier: MIT
#include "Rendering/MultiSizeIndexContainer.h"

void FMultiSizeIndexContainer::CreateIndexBuffer(uint8 InDataTypeSize)
{
	const bool bWide = InDataTypeSize == sizeof(uint32);
	// A buffer of the same width keeps its memory for the next content.
	if (!IndexBuffer || DataTypeSize != InDataTypeSize)
	{
		DataTypeSize = InDataTypeSize;
		IndexBuffer.Reset(
			bWide ? static_cast<FRawStaticIndexBuffer16or32Interface*>(new FRawStaticIndexBuffer16or32<uint32>())
				  : new FRawStaticIndexBuffer16or32<uint16>());
	}
	CopyIndexBuffer({});
}

void FMultiSizeIndexContainer::CopyIndexBuffer(const TArray<uint32>& NewArray)
{
	check(IndexBuffer.IsValid());
	if (DataTypeSize == sizeof(uint32))
	{
		static_cast<FRawStaticIndexBuffer16or32<uint32>*>(IndexBuffer.Get())->Assign(NewArray);
	}
	else
	{
		static_cast<FRawStaticIndexBuffer16or32<uint16>*>(IndexBuffer.Get())->Assign(NewArray);
	}
}

void FMultiSizeIndexContainer::GetIndexBuffer(TArray<uint32>& OutArray) const
{
	const int32 Num = IndexBuffer ? IndexBuffer->Num() : 0;
	OutArray.SetNumUninitialized(Num);
	for (int32 Index = 0; Index < Num; ++Index)
	{
		OutArray.GetData()[Index] = IndexBuffer->Get(uint32(Index));
	}
}
