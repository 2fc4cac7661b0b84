// SPDX-License-Identifier: MIT
#include <algorithm>

#include <assimp/scene.h>

#include "Files/Assimp/AssimpParts.h"

namespace Zef::Peer
{

namespace
{

template <class TKey, class TWrite>
void ReadKeys(const TKey* Keys, unsigned Count, double TicksPerSecond, FModelTrack& Track, TWrite Write)
{
	for (unsigned K = 0; K < Count; ++K)
	{
		const double Time = Keys[K].mTime / TicksPerSecond;
		if (!Track.Times.empty() && Time < Track.Times.back())
		{
			continue;
		}
		Track.Times.push_back(Time);
		Write(Keys[K].mValue);
	}
}

} // namespace

void ReadAssimpClips(const aiScene& Scene, const std::map<std::string, int>& NodeOf, FModel& Model)
{
	for (unsigned A = 0; A < Scene.mNumAnimations; ++A)
	{
		const aiAnimation& Animation = *Scene.mAnimations[A];
		const double TicksPerSecond = Animation.mTicksPerSecond > 0 ? Animation.mTicksPerSecond : 25;
		FModelClip Clip;
		Clip.Name = Animation.mName.C_Str();
		bool bFirst = true;
		for (unsigned C = 0; C < Animation.mNumChannels; ++C)
		{
			const aiNodeAnim& Channel = *Animation.mChannels[C];
			const auto Found = NodeOf.find(Channel.mNodeName.C_Str());
			if (Found == NodeOf.end())
			{
				continue;
			}
			FModelNodeTracks Tracks;
			Tracks.Node = Found->second;
			const auto Vector = [](FModelTrack& Track) {
				return [&](const aiVector3D& V) { Track.Values.insert(Track.Values.end(), {V.x, V.y, V.z}); };
			};
			ReadKeys(Channel.mPositionKeys, Channel.mNumPositionKeys, TicksPerSecond, Tracks.Translation,
				Vector(Tracks.Translation));
			ReadKeys(Channel.mScalingKeys, Channel.mNumScalingKeys, TicksPerSecond, Tracks.Scale, Vector(Tracks.Scale));
			ReadKeys(Channel.mRotationKeys, Channel.mNumRotationKeys, TicksPerSecond, Tracks.Rotation,
				[&](const aiQuaternion& Q) {
					Tracks.Rotation.Values.insert(Tracks.Rotation.Values.end(), {Q.x, Q.y, Q.z, Q.w});
				});
			for (const FModelTrack* Track : {&Tracks.Translation, &Tracks.Rotation, &Tracks.Scale})
			{
				if (!Track->Times.empty())
				{
					Clip.Start = bFirst ? Track->Times.front() : std::min(Clip.Start, Track->Times.front());
					Clip.End = bFirst ? Track->Times.back() : std::max(Clip.End, Track->Times.back());
					bFirst = false;
				}
			}
			Clip.Nodes.push_back(std::move(Tracks));
		}
		if (!bFirst)
		{
			Model.Clips.push_back(std::move(Clip));
		}
	}
}

} // namespace Zef::Peer
