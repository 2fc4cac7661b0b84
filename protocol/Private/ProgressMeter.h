// SPDX-License-Identifier: MIT
/** How far an announced update has come. */
#pragma once

#include "Zef/Items.h"
#include "Zef/LinkWatch.h"

#include <algorithm>
#include <utility>

namespace Zef
{

/** Counts the bytes of objects against the announcement, which names them in the order in which they come. */
class FProgressMeter
{
public:
	void Begin(FUpdateAnnouncement InAnnouncement)
	{
		Announcement = std::move(InAnnouncement);
		Now = {};
		Now.AnnouncedObjects = static_cast<std::uint32_t>(Announcement.Objects.size());
		for (const FAnnouncedObject& Object : Announcement.Objects)
		{
			Now.AnnouncedBytes += Object.Bytes;
		}
		bOpen = false;
		Before = 0;
	}

	/**
	 * Bytes of an object have come.
	 * @param bHeader  they begin it: one that was under way was cut off
	 * @param bDone  it is complete, or refused: the rest will not come
	 * @return false when nothing was announced that these could belong to
	 */
	bool Take(std::uint64_t Bytes, bool bHeader, bool bDone)
	{
		if (bHeader && bOpen)
		{
			Finish();
		}
		if (!Now.IsUnderWay())
		{
			return false;
		}
		bOpen = true;
		// What a sender announced is its own word; more than that is not shown.
		Now.ReceivedBytes =
			std::min(Now.ReceivedBytes + Bytes, Before + Announcement.Objects[Now.ReceivedObjects].Bytes);
		if (bDone)
		{
			Finish();
		}
		return true;
	}

	const FUpdateProgress& Progress() const { return Now; }

private:
	void Finish()
	{
		bOpen = false;
		if (Now.IsUnderWay())
		{
			Before += Announcement.Objects[Now.ReceivedObjects++].Bytes;
			Now.ReceivedBytes = Before;
		}
	}

	FUpdateAnnouncement Announcement;
	FUpdateProgress Now;
	std::uint64_t Before = 0; // of the objects that are done
	bool bOpen = false;
};

} // namespace Zef
