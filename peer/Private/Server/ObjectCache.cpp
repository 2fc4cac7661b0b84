// SPDX-License-Identifier: MIT
#include "Server/ObjectCache.h"

#include "Zef/Peer/SkinnedSequence.h"

namespace Zef::Peer
{

FObjectCache::FObjectCache(FProject Project)
	: Source(std::make_shared<const FProject>(std::move(Project)))
{
}

FObjectCache::FPacked& FObjectCache::Packed(EObjectType Type, const FPackingOptions& Options)
{
	FPacked& Form = Forms[{Type, Options.bWeld, Options.bUnifiedMaterial}];
	if (Form.Mesh)
	{
		return Form;
	}
	const FProjectObject* Object = Source->Find(Type);
	if (!Object)
	{
		Form.Mesh = std::make_shared<const FSurfaceMesh>();
	}
	else if (!Options.bWeld && !(Options.bUnifiedMaterial && Type == EObjectType::Garment))
	{
		// As it is: shares the project's memory.
		Form.Mesh = std::shared_ptr<const FSurfaceMesh>(Source, &Object->Mesh);
	}
	else
	{
		auto Copy = std::make_shared<FSurfaceMesh>(Object->Mesh);
		Form.Kept = Pack(*Copy, Type, Options);
		Form.Mesh = std::move(Copy);
	}
	return Form;
}

std::shared_ptr<const FSurfaceMesh> FObjectCache::Mesh(EObjectType Type, const FPackingOptions& Options)
{
	return Packed(Type, Options).Mesh;
}

std::shared_ptr<const FJointAnimation> FObjectCache::JointAnimation(EObjectType Type, const FPackingOptions& Options)
{
	FPacked& Form = Packed(Type, Options);
	if (!Form.JointAnimation)
	{
		auto Animation = std::make_shared<FJointAnimation>();
		Animation->Mesh = *Form.Mesh;
		if (const FProjectObject* Object = Source->Find(Type))
		{
			Animation->Sequence = Object->JointSequence;
		}
		Form.JointAnimation = std::move(Animation);
	}
	return Form.JointAnimation;
}

const std::vector<FMeshSequenceFrame>& FObjectCache::WholeSequence(const FProjectObject& Object)
{
	const auto [Found, bNew] = Sequences.try_emplace(Object.Type);
	if (bNew)
	{
		Found->second = Object.MakeMeshSequence ? Object.MakeMeshSequence()
												: MakeSkinnedSequence(Object.Mesh, Object.JointSequence);
	}
	return Found->second;
}

std::shared_ptr<const FFrameList> FObjectCache::MeshSequence(EObjectType Type, const FPackingOptions& Options)
{
	FPacked& Form = Packed(Type, Options);
	if (!Form.Frames)
	{
		auto List = std::make_shared<FFrameList>();
		if (const FProjectObject* Object = Source->Find(Type))
		{
			std::vector<FMeshSequenceFrame> Frames = WholeSequence(*Object);
			PackFrames(Frames, Form.Kept);
			for (FMeshSequenceFrame& Frame : Frames)
			{
				List->push_back(std::make_shared<const FMeshSequenceFrame>(std::move(Frame)));
			}
		}
		Form.Frames = std::move(List);
	}
	return Form.Frames;
}

bool FObjectCache::IsMeshSequenceWaiting(EObjectType Type) const
{
	const FProjectObject* Object = Source->Find(Type);
	return Object && Object->HasMeshSequence() && !Sequences.contains(Type);
}

} // namespace Zef::Peer
