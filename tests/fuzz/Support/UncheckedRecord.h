// SPDX-License-Identifier: MIT
/** An item as a record that nobody has checked: what a mutator changes, and what a sender may hold. */
#pragma once

#include "Support/Arrivals.h"
#include "Zef/Encode.h"

#include <optional>

namespace Fuzz
{

struct FUncheckedRecord
{
	Zef::EItem Item = Zef::EItem::None;
	Zef::FPackingOptions Options;
	Zef::FObjectTypeInfo Info;
	Zef::FAvailability Availability;
	Zef::FLinkFault Fault;
	Zef::FUpdateAnnouncement Announcement;
	/** The mesh of a reply or of an animation, and the animation's poses. */
	Zef::FJointAnimation Animation;
	Zef::FMeshSequenceFrame Frame;
	std::uint32_t Number = 0; // of the frame, or of frames at the end

	bool HasMesh() const;
	bool HasPoses() const;
};

/**
 * Reads an item without a check of its meaning. Arrays are as long as the header says, but never longer than the bytes
 * that are there. Nothing for a header that is no table, or for an item that would be large.
 */
std::optional<FUncheckedRecord> ReadUnchecked(const FArrival& Arrival);

/** The item of a record, as it is. */
FArrival WriteUnchecked(const FUncheckedRecord& Record);

} // namespace Fuzz
