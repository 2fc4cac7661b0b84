// SPDX-License-Identifier: MIT
/** Receives items of the link as the editor's records, into storage that earlier items have already touched. */
#pragma once

#include "ZEFTandemRecords.h"

#include "Zef/ArrayPool.h"
#include "Zef/RecordSink.h"

#include <memory>

struct FZEFRecordPools;

/** One received item; after it is gone its arrays serve the next. Made and filled on the link's reader thread. */
class FZEFReceivedRecord final : public Zef::IRecordSink
{
public:
	explicit FZEFReceivedRecord(std::shared_ptr<FZEFRecordPools> InPools);
	virtual ~FZEFReceivedRecord() override;

	/** The mesh and, of a joint animation, its sequence. */
	FZEFJointAnimation Animation;
	/** Of a mesh sequence. */
	TArray<FZEFMeshSequenceFrame> Frames;

	virtual void Mesh(Zef::FMeshHeader&& Header) override;
	virtual void* Allocate(const Zef::FArraySlot& Slot) override;
	virtual void JointSequence(Zef::FPackedJointSequence&& Sequence) override;
	virtual void Frame(std::uint32_t Index, double Time) override;
	virtual void Finish() override;

private:
	void SpreadInfluences();

	std::shared_ptr<FZEFRecordPools> Pools;
	TArray<FZEFTexture*> TextureOfPosition; // values of the mesh's map, in the order of travel
	TArray<uint32> FirstWeight;
	TArray<FZEFBoneInfluence> Weights;
};

/** Makes the records of one client. */
class FZEFRecordFactory final : public Zef::IRecordFactory
{
public:
	FZEFRecordFactory();

	virtual std::unique_ptr<Zef::IRecordSink> MakeSink(Zef::EItem Item, Zef::EObjectType ObjectType) override;

private:
	std::shared_ptr<FZEFRecordPools> Pools;
};
