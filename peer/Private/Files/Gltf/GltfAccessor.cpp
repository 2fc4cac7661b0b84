// SPDX-License-Identifier: MIT
#include "Files/Gltf/GltfAccessor.h"

#include <algorithm>
#include <cstring>

#include "Files/Gltf/GltfLibrary.h"

namespace Zef::Peer
{

namespace
{

template <class TNumber>
TNumber Load(const unsigned char* Bytes)
{
	TNumber Value;
	std::memcpy(&Value, Bytes, sizeof Value);
	return Value;
}

double ReadNumber(const unsigned char* Bytes, int Type, bool bNormalized)
{
	switch (Type)
	{
		case TINYGLTF_COMPONENT_TYPE_BYTE:
			return bNormalized ? std::max(Load<std::int8_t>(Bytes) / 127.0, -1.0) : Load<std::int8_t>(Bytes);
		case TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE:
			return *Bytes / (bNormalized ? 255.0 : 1.0);
		case TINYGLTF_COMPONENT_TYPE_SHORT:
			return bNormalized ? std::max(Load<std::int16_t>(Bytes) / 32767.0, -1.0) : Load<std::int16_t>(Bytes);
		case TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT:
			return Load<std::uint16_t>(Bytes) / (bNormalized ? 65535.0 : 1.0);
		case TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT:
			return Load<std::uint32_t>(Bytes);
		case TINYGLTF_COMPONENT_TYPE_FLOAT:
			return Load<float>(Bytes);
		default:
			return 0;
	}
}

std::size_t SizeOf(int Type)
{
	const int Size = tinygltf::GetComponentSizeInBytes(static_cast<std::uint32_t>(Type));
	return Size > 0 && Type != TINYGLTF_COMPONENT_TYPE_DOUBLE && Type != TINYGLTF_COMPONENT_TYPE_INT
			   ? static_cast<std::size_t>(Size)
			   : 0;
}

/** Start of Count elements of Size bytes, Stride apart, in a view; null when they do not lie in its buffer. */
const unsigned char* Locate(const tinygltf::Model& Model, int View, std::size_t Offset, std::size_t Count,
	std::size_t Size, std::size_t& Stride)
{
	if (View < 0 || static_cast<std::size_t>(View) >= Model.bufferViews.size())
	{
		return nullptr;
	}
	const tinygltf::BufferView& Bytes = Model.bufferViews[static_cast<std::size_t>(View)];
	if (Bytes.buffer < 0 || static_cast<std::size_t>(Bytes.buffer) >= Model.buffers.size())
	{
		return nullptr;
	}
	const std::vector<unsigned char>& Data = Model.buffers[static_cast<std::size_t>(Bytes.buffer)].data;
	Stride = Bytes.byteStride > 0 ? Bytes.byteStride : Size;
	if (Bytes.byteOffset > Data.size() || Bytes.byteLength > Data.size() - Bytes.byteOffset ||
		Offset > Bytes.byteLength || Size > Bytes.byteLength - Offset ||
		(Count > 0 && (Count - 1) > (Bytes.byteLength - Offset - Size) / Stride))
	{
		return nullptr;
	}
	return Data.data() + Bytes.byteOffset + Offset;
}

template <class TOut>
bool Patch(const tinygltf::Model& Model, const tinygltf::Accessor& Accessor, std::size_t Width, std::vector<TOut>& Out)
{
	if (!Accessor.sparse.isSparse)
	{
		return true;
	}
	const auto& Sparse = Accessor.sparse;
	const std::size_t IndexSize = SizeOf(Sparse.indices.componentType), Number = SizeOf(Accessor.componentType);
	if (Sparse.count < 0 || IndexSize == 0)
	{
		return false;
	}
	const auto Count = static_cast<std::size_t>(Sparse.count);
	std::size_t IndexStride = 0, Stride = 0;
	const unsigned char* Indices = Locate(Model, Sparse.indices.bufferView,
		static_cast<std::size_t>(Sparse.indices.byteOffset), Count, IndexSize, IndexStride);
	const unsigned char* Values = Locate(Model, Sparse.values.bufferView,
		static_cast<std::size_t>(Sparse.values.byteOffset), Count, Number * Width, Stride);
	if (!Indices || !Values)
	{
		return false;
	}
	for (std::size_t I = 0; I < Count; ++I)
	{
		const auto At =
			static_cast<std::size_t>(ReadNumber(Indices + I * IndexStride, Sparse.indices.componentType, false));
		if (At >= Accessor.count)
		{
			return false;
		}
		for (std::size_t C = 0; C < Width; ++C)
		{
			Out[At * Width + C] = static_cast<TOut>(
				ReadNumber(Values + I * Stride + C * Number, Accessor.componentType, Accessor.normalized));
		}
	}
	return true;
}

template <class TOut>
bool Read(const tinygltf::Model& Model, int Index, int Width, std::vector<TOut>& Out)
{
	if (Index < 0 || static_cast<std::size_t>(Index) >= Model.accessors.size())
	{
		return false;
	}
	const tinygltf::Accessor& Accessor = Model.accessors[static_cast<std::size_t>(Index)];
	const std::size_t Number = SizeOf(Accessor.componentType);
	if (Number == 0 || tinygltf::GetNumComponentsInType(static_cast<std::uint32_t>(Accessor.type)) != Width)
	{
		return false;
	}
	const auto Columns = static_cast<std::size_t>(Width);
	if (Accessor.bufferView < 0)
	{
		// Zeros, of which a file may ask for any number at no cost to itself.
		constexpr std::size_t MostZeros = std::size_t(1) << 28;
		if (Accessor.count > MostZeros / Columns)
		{
			return false;
		}
		Out.assign(Accessor.count * Columns, TOut(0));
		return Patch(Model, Accessor, Columns, Out);
	}
	std::size_t Stride = 0;
	const unsigned char* Data =
		Locate(Model, Accessor.bufferView, Accessor.byteOffset, Accessor.count, Number * Columns, Stride);
	if (!Data)
	{
		return false;
	}
	Out.resize(Accessor.count * Columns);
	for (std::size_t I = 0; I < Accessor.count; ++I)
	{
		for (std::size_t C = 0; C < Columns; ++C)
		{
			Out[I * Columns + C] = static_cast<TOut>(
				ReadNumber(Data + I * Stride + C * Number, Accessor.componentType, Accessor.normalized));
		}
	}
	return Patch(Model, Accessor, Columns, Out);
}

} // namespace

bool ReadFloats(const tinygltf::Model& Model, int Accessor, int Width, std::vector<float>& Out)
{
	return Read(Model, Accessor, Width, Out);
}

bool ReadIntegers(const tinygltf::Model& Model, int Accessor, int Width, std::vector<std::uint32_t>& Out)
{
	// A negative or floating number has no meaning as an index, and no defined conversion either.
	if (Accessor < 0 || static_cast<std::size_t>(Accessor) >= Model.accessors.size())
	{
		return false;
	}
	switch (Model.accessors[static_cast<std::size_t>(Accessor)].componentType)
	{
		case TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE:
		case TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT:
		case TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT:
			return Read(Model, Accessor, Width, Out);
		default:
			return false;
	}
}

} // namespace Zef::Peer
