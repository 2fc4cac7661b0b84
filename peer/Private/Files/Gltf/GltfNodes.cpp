// SPDX-License-Identifier: MIT
#include "Files/Gltf/GltfLibrary.h"

#include "Files/Gltf/GltfAccessor.h"
#include "Files/Gltf/GltfParts.h"
#include "Files/Model/Decompose.h"

namespace Zef::Peer
{

namespace
{

template <class TNumber>
FMatrix34 MatrixOf(const TNumber* N)
{
	const auto F = [&](int I) { return static_cast<float>(N[I]); };
	return {{F(0), F(1), F(2)}, {F(4), F(5), F(6)}, {F(8), F(9), F(10)}, {F(12), F(13), F(14)}};
}

FTransform LocalOf(const tinygltf::Node& Node)
{
	if (Node.matrix.size() == 16)
	{
		return Decompose(MatrixOf(Node.matrix.data()));
	}
	FTransform Local;
	const auto F = [](const std::vector<double>& N, std::size_t I) { return static_cast<float>(N[I]); };
	if (Node.rotation.size() == 4)
	{
		const FVec4 Q{F(Node.rotation, 0), F(Node.rotation, 1), F(Node.rotation, 2), F(Node.rotation, 3)};
		Local.Rotation = UnitOrIdentity(Q);
	}
	if (Node.translation.size() == 3)
	{
		Local.Translation = {F(Node.translation, 0), F(Node.translation, 1), F(Node.translation, 2)};
	}
	if (Node.scale.size() == 3)
	{
		Local.Scale = {F(Node.scale, 0), F(Node.scale, 1), F(Node.scale, 2)};
	}
	return Local;
}

} // namespace

std::string ReadGltfNodes(const tinygltf::Model& File, FModel& Model)
{
	for (const tinygltf::Node& Node : File.nodes)
	{
		Model.Nodes.push_back({Node.name, -1, LocalOf(Node)});
	}
	const int Count = static_cast<int>(Model.Nodes.size());
	for (int N = 0; N < Count; ++N)
	{
		for (const int Child : File.nodes[static_cast<std::size_t>(N)].children)
		{
			if (Child < 0 || Child >= Count || Model.Nodes[static_cast<std::size_t>(Child)].Parent >= 0)
			{
				return "node " + std::to_string(N) + " names a child that does not exist or has another parent.";
			}
			Model.Nodes[static_cast<std::size_t>(Child)].Parent = N;
		}
	}
	for (const tinygltf::Skin& Skin : File.skins)
	{
		FModelSkin& Made = Model.Skins.emplace_back();
		Made.Joints = Skin.joints;
		for (const int Joint : Made.Joints)
		{
			if (Joint < 0 || Joint >= Count)
			{
				return "a skin names a joint that does not exist.";
			}
		}
		std::vector<float> Numbers;
		if (Skin.inverseBindMatrices >= 0 &&
			(!ReadFloats(File, Skin.inverseBindMatrices, 16, Numbers) || Numbers.size() < Made.Joints.size() * 16))
		{
			return "the inverse bind matrices of a skin do not lie in their buffer.";
		}
		for (std::size_t J = 0; J < Made.Joints.size(); ++J)
		{
			Made.InverseBind.push_back(Numbers.empty() ? FMatrix34::Identity() : MatrixOf(&Numbers[J * 16]));
		}
	}
	return {};
}

} // namespace Zef::Peer
