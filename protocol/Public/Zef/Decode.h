// SPDX-License-Identifier: MIT
/** From the bytes of items to checked records: structure first, then meaning, within a budget, with one copy of each
 * array. */
#pragma once

#include "Zef/Items.h"
#include "Zef/Limits.h"
#include "Zef/RecordSink.h"
#include "Zef/Wire.h"

#include <cstdint>
#include <memory>

namespace Zef
{

/** Which items an end takes, and how the indices of a mesh count. */
enum class EReceiver : std::uint8_t
{
	/** Takes replies; indices are local to their surface. */
	Editor,
	/** Takes requests; indices count in the whole model. */
	GarmentApplication
};

enum class EDecode : std::uint8_t
{
	/** More pieces, or more items of a sequence, are needed. */
	More,
	/** Take gives an item. */
	Complete,
	/** The item was dropped; Fault says why. Its further pieces will be ignored. */
	Refused,
	/** Belongs to an item that was dropped before. */
	Ignored
};

/** One decoded item; Item says which members count. */
struct FDecodedItem
{
	EItem Item = EItem::None;
	bool bEnabled = false;						   // Enable
	FPackingOptions Options;					   // RequestUpdate, RequestAnimation
	FObjectTypeInfo Info;						   // RequestAnimation, SendJointAnimation
	FAvailability Availability;					   // Availability
	FUpdateAnnouncement Announcement;			   // UpdateAnnouncement
	FLinkFault Fault;							   // Fault
	std::uint64_t FaultItem = 0;				   // Fault: number of the item that the other end refused
	EObjectType ObjectType = EObjectType::Invalid; // SurfaceMesh, JointAnimation, SequenceBegin
	/** SurfaceMesh, JointAnimation, SendJointAnimation, and SequenceBegin for a whole sequence: what the factory made.
	 */
	std::unique_ptr<IRecordSink> Record;
	/** Of header and arrays, of all items of a sequence. */
	std::uint64_t Bytes = 0;
};

/**
 * Decodes the items of one connection, in the order of arrival. Not thread-safe.
 *
 * Memory is taken for an array when its first piece arrives, after its length was held against the budget. After
 * Refused the decoder is ready for the next header; a mesh sequence with a refused frame is dropped to its end.
 */
class FItemDecoder
{
public:
	/** Factory must outlive the decoder. */
	FItemDecoder(IRecordFactory& Factory, EReceiver Receiver, const FLimits& Limits);
	~FItemDecoder();

	FItemDecoder(const FItemDecoder&) = delete;
	FItemDecoder& operator=(const FItemDecoder&) = delete;

	/** Begins the item of that number. An unfinished one before it is dropped: then TakeTruncation tells its fault. */
	EDecode Header(std::uint64_t ItemNumber, FByteView Bytes);

	/** Takes the next stretch of the arrays of the item that Header began. */
	EDecode Piece(std::uint64_t ItemNumber, std::uint64_t Offset, FByteView Bytes);

	/** Drops the item that waits for pieces, for instance because none arrive; None when there is no such item. */
	FLinkFault Abandon(EFault Code, const std::string& Message);

	/** True while an item waits for pieces. */
	bool IsItemOpen() const;

	/** The kind of the item that the last Header began; None when it could not be read. */
	EItem CurrentItem() const;

	/** Number of the item that Fault is about. */
	std::uint64_t FaultItem() const;
	const FLinkFault& Fault() const;

	/** The fault of an item or sequence that the last Header cut off, with the item's number; None mostly. Forgets it.
	 */
	FLinkFault TakeTruncation(std::uint64_t& OutItem);

	/** The item, once after Complete. */
	FDecodedItem Take();

private:
	class FImpl;
	std::unique_ptr<FImpl> Impl;
};

} // namespace Zef
