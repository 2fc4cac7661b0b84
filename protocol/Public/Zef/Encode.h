// SPDX-License-Identifier: MIT
/** From records to the bytes of an item: a header, and the arrays as stretches of memory that are sent where they lie.
 */
#pragma once

#include "Zef/Items.h"
#include "Zef/Limits.h"
#include "Zef/Wire.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Zef
{

/** A stretch of an item's arrays. Owner keeps the memory alive. */
struct FChunk
{
	const std::uint8_t* Data = nullptr;
	std::size_t Size = 0;
	std::shared_ptr<const void> Owner;
};

/** An item ready to be sent. Chunks follow each other without gap in the order of docs/protocol.md. */
struct FEncodedItem
{
	EItem Item = EItem::None;
	FBytes Header;
	std::vector<FChunk> Chunks;
	std::uint64_t PayloadBytes = 0;
};

/**
 * The encoders copy no array of 64 KiB or more: chunks point into the record, which they keep alive. Smaller arrays are
 * gathered. No chunk is longer than PieceBytes. The records are taken as they are; Zef/Check.h says whether a receiver
 * will take them.
 */
FEncodedItem EncodeEnable(bool bEnabled);
FEncodedItem EncodeUpdateRequest(const FPackingOptions& Options);
FEncodedItem EncodeAnimationRequest(const FObjectTypeInfo& Info, const FPackingOptions& Options);
FEncodedItem EncodeAvailabilityRequest();
FEncodedItem EncodeJointAnimationRequest(const FObjectTypeInfo& Info, std::shared_ptr<const FJointAnimation> Animation,
	std::uint32_t PieceBytes = DefaultPieceBytes);

FEncodedItem EncodeSurfaceMesh(
	EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh, std::uint32_t PieceBytes = DefaultPieceBytes);
FEncodedItem EncodeJointAnimation(EObjectType ObjectType, std::shared_ptr<const FJointAnimation> Animation,
	std::uint32_t PieceBytes = DefaultPieceBytes);
FEncodedItem EncodeSequenceBegin(
	EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh, std::uint32_t PieceBytes = DefaultPieceBytes);
FEncodedItem EncodeSequenceFrame(
	std::uint32_t Index, std::shared_ptr<const FMeshSequenceFrame> Frame, std::uint32_t PieceBytes = DefaultPieceBytes);
FEncodedItem EncodeSequenceEnd(std::uint32_t FrameCount);
FEncodedItem EncodeAvailability(const FAvailability& Availability);

/** Version 2 only. */
FEncodedItem EncodeUpdateAnnouncement(const FUpdateAnnouncement& Announcement);

/** @param ItemNumber  the refused item of the other end, 0 when the fault is not about one */
FEncodedItem EncodeFault(const FLinkFault& Fault, std::uint64_t ItemNumber = 0);

} // namespace Zef
