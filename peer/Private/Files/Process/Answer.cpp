// SPDX-License-Identifier: MIT
// One walk over the fields serves both directions, so that they cannot differ.
#include "Files/Process/Answer.h"

#include <cstring>
#include <type_traits>

namespace Zef::Peer
{

namespace
{

constexpr std::uint64_t Mark = 0x31646d662d66657aull; // changes with the fields

class FPacker
{
public:
	std::string Bytes;

	template <class TPlain>
	void Plain(const TPlain& Value)
	{
		Bytes.append(reinterpret_cast<const char*>(&Value), sizeof Value);
	}
	template <class TPlain>
	void Array(const std::vector<TPlain>& Values)
	{
		Plain(static_cast<std::uint64_t>(Values.size()));
		Bytes.append(reinterpret_cast<const char*>(Values.data()), Values.size() * sizeof(TPlain));
	}
	void Text(const std::string& Value)
	{
		Plain(static_cast<std::uint64_t>(Value.size()));
		Bytes += Value;
	}
	template <class TItem, class TEach>
	void List(const std::vector<TItem>& Items, TEach Each)
	{
		Plain(static_cast<std::uint64_t>(Items.size()));
		for (const TItem& Item : Items)
		{
			Each(Item);
		}
	}
};

class FUnpacker
{
public:
	explicit FUnpacker(const std::string& InBytes)
		: Bytes(InBytes)
	{
	}

	bool bGood = true;
	bool AtEnd() const { return bGood && At == Bytes.size(); }

	template <class TPlain>
	void Plain(TPlain& Value)
	{
		if (Take(1, sizeof Value))
		{
			std::memcpy(&Value, Bytes.data() + At - sizeof Value, sizeof Value);
		}
	}
	void Plain(bool& bValue)
	{
		std::uint8_t Byte = 0;
		Plain(Byte);
		bGood = bGood && Byte < 2;
		bValue = Byte == 1;
	}
	template <class TPlain>
	void Array(std::vector<TPlain>& Values)
	{
		std::uint64_t Count = 0;
		Plain(Count);
		if (Take(Count, sizeof(TPlain)))
		{
			Values.resize(Count);
			if (Count > 0)
			{
				std::memcpy(Values.data(), Bytes.data() + At - Count * sizeof(TPlain), Count * sizeof(TPlain));
			}
		}
	}
	void Text(std::string& Value)
	{
		std::uint64_t Count = 0;
		Plain(Count);
		if (Take(Count, 1))
		{
			Value.assign(Bytes, At - Count, Count);
		}
	}
	template <class TItem, class TEach>
	void List(std::vector<TItem>& Items, TEach Each)
	{
		std::uint64_t Count = 0;
		Plain(Count);
		// Grows item by item: a false count ends with the bytes and not with the memory.
		for (std::uint64_t I = 0; bGood && I < Count; ++I)
		{
			Each(Items.emplace_back());
		}
	}

private:
	bool Take(std::uint64_t Count, std::uint64_t Size)
	{
		bGood = bGood && Count <= (Bytes.size() - At) / Size;
		At += bGood ? Count * Size : 0;
		return bGood;
	}

	const std::string& Bytes;
	std::size_t At = 0;
};

template <class TArchive>
class TWalk
{
public:
	explicit TWalk(TArchive& InArchive)
		: A(InArchive)
	{
	}

	void Joints(auto& Joints)
	{
		A.List(Joints,
			[&](auto& Joint)
			{
				A.Text(Joint.Name);
				A.Plain(Joint.ParentIndex);
				A.Plain(Joint.Transform);
			});
	}

	void Mesh(auto& Mesh)
	{
		A.List(Mesh.Surfaces, [&](auto& Surface) { this->Surface(Surface); });
		Joints(Mesh.Joints);
		A.Array(Mesh.VertexInfluences.FirstWeight);
		A.Array(Mesh.VertexInfluences.Weights);
		A.List(Mesh.Materials,
			[&](auto& Pair)
			{
				A.Plain(Pair.first);
				Material(Pair.second);
			});
		A.List(Mesh.Textures,
			[&](auto& Pair)
			{
				A.Plain(Pair.first);
				A.Plain(Pair.second.Format);
				A.Plain(Pair.second.Width);
				A.Plain(Pair.second.Height);
				A.Array(Pair.second.Pixels);
			});
	}

	void Answer(auto& Answer)
	{
		A.Text(Answer.Error);
		auto& Object = Answer.Object;
		A.List(Object.Warnings, [&](auto& Warning) { A.Text(Warning); });
		Mesh(Object.Mesh);
		A.List(Object.Sequence.Frames,
			[&](auto& Frame)
			{
				Joints(Frame.Joints);
				A.Plain(Frame.Time);
			});
		A.List(Object.Frames,
			[&](auto& Frame)
			{
				A.Array(Frame.Positions);
				A.Array(Frame.Normals);
				A.Array(Frame.Tangents);
				A.Plain(Frame.Time);
			});
	}

private:
	void Surface(auto& Surface)
	{
		A.Text(Surface.Name);
		A.Plain(Surface.SurfaceType);
		A.Plain(Surface.SurfaceMode);
		A.Plain(Surface.VertexOffset);
		A.Array(Surface.Positions);
		A.Array(Surface.Normals);
		A.Array(Surface.Tangents);
		A.Array(Surface.UVs);
		A.List(Surface.Sections,
			[&](auto& Section)
			{
				A.Plain(Section.MaterialIndex);
				A.Array(Section.Indices);
			});
	}

	void Material(auto& Material)
	{
		A.List(Material.Expressions,
			[&](auto& Pair)
			{
				A.Plain(Pair.first);
				A.Plain(Pair.second.TextureId);
				A.List(Pair.second.Scalars,
					[&](auto& Scalar)
					{
						A.Plain(Scalar.first);
						A.Plain(Scalar.second);
					});
				A.List(Pair.second.Vectors,
					[&](auto& Vector)
					{
						A.Plain(Vector.first);
						A.Plain(Vector.second);
					});
				A.Plain(Pair.second.UVTransform);
			});
		A.Plain(Material.Id);
		A.Text(Material.Name);
		A.Plain(Material.MaterialKind);
		A.Plain(Material.bUseTransparency);
		A.Plain(Material.bSubstance);
		A.Text(Material.SubstanceAssetPath);
		A.Text(Material.SubstanceGraphName);
		A.Plain(Material.UVTransform);
	}

	TArchive& A;
};

} // namespace

std::string PackAnswer(const FReaderAnswer& Answer)
{
	FPacker Packer;
	Packer.Plain(Mark);
	TWalk<FPacker>(Packer).Answer(Answer);
	return std::move(Packer.Bytes);
}

bool UnpackAnswer(const std::string& Bytes, FReaderAnswer& Answer)
{
	FUnpacker Unpacker(Bytes);
	std::uint64_t Found = 0;
	Unpacker.Plain(Found);
	if (!Unpacker.bGood || Found != Mark)
	{
		return false;
	}
	TWalk<FUnpacker>(Unpacker).Answer(Answer);
	return Unpacker.AtEnd();
}

} // namespace Zef::Peer
