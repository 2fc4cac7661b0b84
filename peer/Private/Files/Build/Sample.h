// SPDX-License-Identifier: MIT
/** Clips as frames. */
#pragma once

#include "Files/Build/Skeleton.h"

namespace Zef::Peer
{

constexpr double FramesPerSecond = 30;

/** Frames of a clip: 30 per second, the first at its beginning, the last at its end or within half a frame of it. */
std::size_t CountFrames(const FModelClip& Clip);

/** The place of a node at a time of the clip. */
FTransform SampleNode(const FModelNodeTracks& Tracks, const FTransform& Rest, double Time);

/** Weights of the node's morph targets at a time; empty when the tracks hold none for that many. */
std::vector<float> SampleMorph(const FModelNodeTracks& Tracks, std::size_t Targets, double Time);

/** The longest clip for which Accept says true of one of its nodes' tracks; null when there is none. */
template <class TAccept>
const FModelClip* LongestClip(const FModel& Model, TAccept Accept)
{
	const FModelClip* Longest = nullptr;
	for (const FModelClip& Clip : Model.Clips)
	{
		bool bAccepted = false;
		for (const FModelNodeTracks& Tracks : Clip.Nodes)
		{
			bAccepted = bAccepted || Accept(Tracks);
		}
		if (bAccepted && (!Longest || Clip.End - Clip.Start > Longest->End - Longest->Start))
		{
			Longest = &Clip;
		}
	}
	return Longest;
}

} // namespace Zef::Peer
