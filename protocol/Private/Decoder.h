// SPDX-License-Identifier: MIT
/** State of a decoder: the item that is being received, and the mesh sequence around it. */
#pragma once

#include "HeaderReader.h"
#include "PayloadReader.h"
#include "Zef/Decode.h"

namespace Zef
{

class FItemDecoder::FImpl
{
public:
	FImpl(IRecordFactory& InFactory, EReceiver InReceiver, const FLimits& InLimits)
		: Factory(InFactory)
		, Receiver(InReceiver)
		, Limits(InLimits)
		, Structure(InLimits.MaxStructureBytes)
	{
	}

	EDecode Header(std::uint64_t Number, FByteView Bytes);
	EDecode Piece(std::uint64_t Number, std::uint64_t Offset, FByteView Bytes);
	FLinkFault Abandon(EFault Code, const std::string& Message);
	bool IsItemOpen() const { return bOpen; }
	EItem CurrentItem() const { return Kind; }

	FLinkFault Fault;
	std::uint64_t FaultNumber = 0;
	FLinkFault Truncation;
	std::uint64_t TruncationNumber = 0;
	FDecodedItem Done;

private:
	EDecode ReadHeader(FByteView Bytes);
	EDecode TakePiece(std::uint64_t Offset, FByteView Bytes);
	EDecode ReadBody(const Wire::Item& Item);
	EDecode BeginMesh(EObjectType ObjectType, const Wire::Mesh* Mesh, const Wire::JointSequence* Joints);
	EDecode ReadAnnouncement(const Wire::UpdateAnnouncement& Announcement);
	EDecode BeginFrame(const Wire::SequenceFrameReply& Frame);
	EDecode EndSequence(const Wire::SequenceEndReply& End);
	EDecode BeginPayload(std::vector<FArrayRule>&& Rules, FPackedJointSequence* Joints);
	EDecode FinishItem();
	EDecode Refuse(EFault Code, std::string Path, std::string Message);
	EDecode Refuse(FLinkFault&& InFault);
	EDecode RefuseForMemory(const char* What);
	void DropItem();
	EDecode Ignore();
	EDecode CompleteSmall();
	EDecode CheckInfo(std::int32_t ObjectType, std::int32_t Kind, bool bKindNeeded);
	void CutOff();
	void DropSequence();

	const char* MeshPrefix() const { return bJointAnimation ? "/Mesh" : ""; }

	IRecordFactory& Factory;
	const EReceiver Receiver;
	const FLimits Limits;
	FBytes HeaderBytes; // aligned copy, reused

	// The current item
	EItem Kind = EItem::None;
	std::uint64_t Number = 0;
	std::uint64_t PayloadBytes = 0;
	bool bOpen = false;
	bool bIgnored = false;
	bool bJointAnimation = false;
	std::uint64_t LastUnexpected = ~std::uint64_t(0);
	std::unique_ptr<IRecordSink> Sink;
	FPackedJointSequence Joints;
	FMemoryBudget Structure; // of the current header
	FPayloadReader Payload;
	std::uint64_t TransformCount = 0;

	/** The mesh sequence that is under way. */
	struct FSequence
	{
		bool bOpen = false;
		bool bDropped = false; // its frames are ignored up to its end
		std::unique_ptr<IRecordSink> Sink;
		EObjectType ObjectType = EObjectType::Invalid;
		std::uint64_t Vertices = 0;
		std::uint32_t Frames = 0;
		double LastTime = 0;
		std::uint64_t Bytes = 0;
		std::uint64_t ArrayBytes = 0;
	};
	FSequence Sequence;
};

} // namespace Zef
