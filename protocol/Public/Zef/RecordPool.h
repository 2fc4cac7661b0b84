// SPDX-License-Identifier: MIT
/** Receives items as plain records of the standard library, into storage that earlier items have already touched. */
#pragma once

#include "Zef/ClientEndpoint.h"
#include "Zef/RecordSink.h"

#include <memory>
#include <vector>

namespace Zef
{

class FVectorPools;

/**
 * One received item. Which members are filled follows from the item: Sequence of a joint animation, Frames of a mesh
 * sequence. Members may be moved out; what is left goes back to the pool with the record.
 */
class FReceivedRecord final : public IRecordSink
{
public:
	explicit FReceivedRecord(std::shared_ptr<FVectorPools> InPools);
	~FReceivedRecord() override;

	/** Of SurfaceMesh and SequenceBegin, and the mesh of a joint animation. */
	FSurfaceMesh SurfaceMesh;
	FJointSequence Sequence;
	std::vector<FMeshSequenceFrame> Frames;

	void Mesh(FMeshHeader&& Header) override;
	void* Allocate(const FArraySlot& Slot) override;
	void JointSequence(FPackedJointSequence&& Packed) override;
	void Frame(std::uint32_t Index, double Time) override;
	void Finish() override;

private:
	std::shared_ptr<FVectorPools> Pools;
};

/** Factory of FReceivedRecord; its pool lives as long as the last record. */
class FRecordFactory final : public IRecordFactory
{
public:
	FRecordFactory();

	std::unique_ptr<IRecordSink> MakeSink(EItem Item, EObjectType ObjectType) override;

private:
	std::shared_ptr<FVectorPools> Pools;
};

/** Client handler that sees plain records; for endpoints opened with an FRecordFactory. */
class IRecordHandler : public IClientHandler
{
public:
	virtual void OnSurfaceMesh(EObjectType ObjectType, FSurfaceMesh&& Mesh) = 0;
	virtual void OnJointAnimation(EObjectType ObjectType, FJointAnimation&& Animation) = 0;
	virtual void OnMeshSequence(
		EObjectType ObjectType, FSurfaceMesh&& Mesh, std::vector<FMeshSequenceFrame>&& Frames) = 0;

	void OnItem(FReceivedItem& Item) final;
};

} // namespace Zef
