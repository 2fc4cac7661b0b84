// SPDX-License-Identifier: MIT
#include <algorithm>

#include "Files/Gltf/GltfLibrary.h"

#include "Files/Gltf/GltfAccessor.h"
#include "Files/Gltf/GltfParts.h"

namespace Zef::Peer
{

namespace
{

bool ReadTrack(const tinygltf::Model& File, const tinygltf::AnimationSampler& Sampler, int Width, FModelTrack& Track)
{
	std::vector<float> Times;
	if (!ReadFloats(File, Sampler.input, 1, Times) || !ReadFloats(File, Sampler.output, Width, Track.Values) ||
		Times.empty() || !std::is_sorted(Times.begin(), Times.end()))
	{
		return false;
	}
	Track.Times.assign(Times.begin(), Times.end());
	Track.Curve = Sampler.interpolation == "STEP"		   ? EModelCurve::Step
				  : Sampler.interpolation == "CUBICSPLINE" ? EModelCurve::Cubic
														   : EModelCurve::Linear;
	const std::size_t Rows = Times.size() * (Track.Curve == EModelCurve::Cubic ? 3 : 1);
	// Morph weights come one after the other, so their width shows only in the count.
	return Width == 1 ? Track.Values.size() >= Rows && Track.Values.size() % Rows == 0
					  : Track.Values.size() == Rows * static_cast<std::size_t>(Width);
}

FModelNodeTracks& TracksOf(FModelClip& Clip, int Node)
{
	for (FModelNodeTracks& Tracks : Clip.Nodes)
	{
		if (Tracks.Node == Node)
		{
			return Tracks;
		}
	}
	Clip.Nodes.emplace_back().Node = Node;
	return Clip.Nodes.back();
}

} // namespace

void ReadGltfClips(const tinygltf::Model& File, FModel& Model)
{
	for (const tinygltf::Animation& Animation : File.animations)
	{
		FModelClip Clip;
		Clip.Name = Animation.name;
		bool bFirst = true;
		for (const tinygltf::AnimationChannel& Channel : Animation.channels)
		{
			if (Channel.target_node < 0 || static_cast<std::size_t>(Channel.target_node) >= Model.Nodes.size() ||
				Channel.sampler < 0 || static_cast<std::size_t>(Channel.sampler) >= Animation.samplers.size())
			{
				continue;
			}
			const std::string& Path = Channel.target_path;
			FModelTrack Track;
			const int Width = Path == "rotation" ? 4 : Path == "weights" ? 1 : 3;
			if (!ReadTrack(File, Animation.samplers[static_cast<std::size_t>(Channel.sampler)], Width, Track))
			{
				Model.Warnings.push_back("a track of the clip \"" + Clip.Name + "\" is damaged and left out.");
				continue;
			}
			Clip.Start = bFirst ? Track.Times.front() : std::min(Clip.Start, Track.Times.front());
			Clip.End = bFirst ? Track.Times.back() : std::max(Clip.End, Track.Times.back());
			bFirst = false;
			FModelNodeTracks& Tracks = TracksOf(Clip, Channel.target_node);
			(Path == "rotation"		? Tracks.Rotation
				: Path == "weights" ? Tracks.Morph
				: Path == "scale"	? Tracks.Scale
									: Tracks.Translation) = std::move(Track);
		}
		if (!Clip.Nodes.empty())
		{
			Model.Clips.push_back(std::move(Clip));
		}
	}
}

} // namespace Zef::Peer
