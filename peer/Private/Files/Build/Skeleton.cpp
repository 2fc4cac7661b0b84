// SPDX-License-Identifier: MIT
#include "Files/Build/Skeleton.h"

#include <algorithm>
#include <cmath>

#include "Files/Model/Decompose.h"

namespace Zef::Peer
{

namespace
{

int ParentOf(const FModel& Model, int Node)
{
	return Model.Nodes[static_cast<std::size_t>(Node)].Parent;
}

/** Nodes from the roots down. */
std::vector<int> NodesInOrder(const FModel& Model)
{
	std::vector<std::vector<int>> Children(Model.Nodes.size());
	std::vector<int> Open, Order;
	for (int N = static_cast<int>(Model.Nodes.size()) - 1; N >= 0; --N)
	{
		const int Parent = ParentOf(Model, N);
		(Parent < 0 ? Open : Children[static_cast<std::size_t>(Parent)]).push_back(N);
	}
	while (!Open.empty())
	{
		const int Node = Open.back();
		Open.pop_back();
		Order.push_back(Node);
		const auto& Below = Children[static_cast<std::size_t>(Node)];
		Open.insert(Open.end(), Below.begin(), Below.end());
	}
	return Order;
}

std::vector<bool> NodesOfJoints(const FModel& Model)
{
	std::vector<bool> IsNamed(Model.Nodes.size()), IsJoint;
	for (const FModelPiece& Piece : Model.Pieces)
	{
		if (Piece.Skin >= 0)
		{
			for (const int Joint : Model.Skins[static_cast<std::size_t>(Piece.Skin)].Joints)
			{
				IsNamed[static_cast<std::size_t>(Joint)] = true;
			}
		}
	}
	IsJoint = IsNamed;
	const std::vector<int> Order = NodesInOrder(Model);
	std::vector<bool> HasNamedAbove(Model.Nodes.size()), HasNamedBelow = IsNamed;
	for (const int Node : Order)
	{
		const int Parent = ParentOf(Model, Node);
		HasNamedAbove[static_cast<std::size_t>(Node)] =
			Parent >= 0 &&
			(IsNamed[static_cast<std::size_t>(Parent)] || HasNamedAbove[static_cast<std::size_t>(Parent)]);
	}
	for (auto Node = Order.rbegin(); Node != Order.rend(); ++Node)
	{
		const int Parent = ParentOf(Model, *Node);
		if (Parent >= 0 && HasNamedBelow[static_cast<std::size_t>(*Node)])
		{
			HasNamedBelow[static_cast<std::size_t>(Parent)] = true;
		}
	}
	for (std::size_t N = 0; N < IsJoint.size(); ++N)
	{
		IsJoint[N] = IsNamed[N] || (HasNamedAbove[N] && HasNamedBelow[N]);
	}
	return IsJoint;
}

bool IsUsable(const FMatrix34& M)
{
	const float Size = std::fabs(Determinant(M));
	return std::isfinite(Size) && Size > 1e-18f;
}

} // namespace

std::vector<FMatrix34> PlaceNodes(const FModel& Model, const std::vector<FTransform>& Locals)
{
	std::vector<FMatrix34> Places(Model.Nodes.size(), FMatrix34::Identity());
	for (const int Node : NodesInOrder(Model))
	{
		const int Parent = ParentOf(Model, Node);
		const FMatrix34 Local = FMatrix34::From(Locals[static_cast<std::size_t>(Node)]);
		Places[static_cast<std::size_t>(Node)] = Parent < 0 ? Local : Places[static_cast<std::size_t>(Parent)] * Local;
	}
	return Places;
}

FModelSkeleton MakeSkeleton(const FModel& Model, const std::vector<FMatrix34>& NodePlaces)
{
	FModelSkeleton Made;
	const std::vector<bool> IsJoint = NodesOfJoints(Model);
	Made.JointOfNode.assign(Model.Nodes.size(), -1);
	int Roots = 0;
	for (const int Node : NodesInOrder(Model))
	{
		if (IsJoint[static_cast<std::size_t>(Node)])
		{
			const int Parent = ParentOf(Model, Node);
			const int ParentJoint = Parent < 0 ? -1 : Made.JointOfNode[static_cast<std::size_t>(Parent)];
			Roots += ParentJoint < 0 ? 1 : 0;
			Made.JointOfNode[static_cast<std::size_t>(Node)] = static_cast<int>(Made.Nodes.size());
			Made.Nodes.push_back(Node);
			Made.Parents.push_back(ParentJoint);
		}
	}
	if (Roots > 1)
	{
		Made.Nodes.insert(Made.Nodes.begin(), -1);
		Made.Parents.insert(Made.Parents.begin(), -2);
		for (int& Joint : Made.JointOfNode)
		{
			Joint += Joint >= 0 ? 1 : 0;
		}
		for (int& Parent : Made.Parents)
		{
			++Parent; // the former roots stand at the new one, which has none
		}
	}

	const std::size_t Count = Made.Nodes.size();
	std::vector<FMatrix34> Rest(Count, FMatrix34::Identity());
	for (std::size_t J = 0; J < Count; ++J)
	{
		if (Made.Nodes[J] >= 0)
		{
			Rest[J] = NodePlaces[static_cast<std::size_t>(Made.Nodes[J])];
		}
	}
	std::vector<bool> IsBound(Count);
	Made.BindPlace = Rest;
	for (const FModelSkin& Skin : Model.Skins)
	{
		std::size_t Top = Count, TopInSkin = 0;
		for (std::size_t I = 0; I < Skin.Joints.size(); ++I)
		{
			const int Joint = Made.JointOfNode[static_cast<std::size_t>(Skin.Joints[I])];
			if (Joint >= 0 && static_cast<std::size_t>(Joint) < Top)
			{
				Top = static_cast<std::size_t>(Joint);
				TopInSkin = I;
			}
		}
		if (Top == Count)
		{
			continue;
		}
		const FMatrix34 Stand = Rest[Top] * Skin.InverseBind[TopInSkin];
		for (std::size_t I = 0; I < Skin.Joints.size(); ++I)
		{
			const int Found = Made.JointOfNode[static_cast<std::size_t>(Skin.Joints[I])];
			if (Found < 0)
			{
				continue; // a skin that nothing wears
			}
			const auto Joint = static_cast<std::size_t>(Found);
			if (!IsBound[Joint] && IsUsable(Skin.InverseBind[I]))
			{
				IsBound[Joint] = true;
				Made.BindPlace[Joint] = Stand * Skin.InverseBind[I].Inverted();
			}
		}
	}
	bool bGood = true;
	for (std::size_t J = 0; J < Count; ++J)
	{
		const int Parent = Made.Parents[J];
		if (Parent < 0)
		{
			continue;
		}
		const auto P = static_cast<std::size_t>(Parent);
		if (!IsBound[J] && Made.Nodes[J] >= 0 && Made.Nodes[P] >= 0)
		{
			const FTransform& Local = Model.Nodes[static_cast<std::size_t>(Made.Nodes[J])].Local;
			Made.BindPlace[J] = Made.BindPlace[P] * FMatrix34::From(Local);
		}
		bGood = bGood && IsUsable(Made.BindPlace[P]) && !HasShear(Made.BindPlace[P].Inverted() * Made.BindPlace[J]);
	}
	if (!bGood)
	{
		Made.BindPlace = Rest;
	}
	return Made;
}

int JointAbove(const FModel& Model, const FModelSkeleton& Skeleton, int Node)
{
	for (; Node >= 0; Node = ParentOf(Model, Node))
	{
		if (Skeleton.JointOfNode[static_cast<std::size_t>(Node)] >= 0)
		{
			return Skeleton.JointOfNode[static_cast<std::size_t>(Node)];
		}
	}
	return 0;
}

} // namespace Zef::Peer
