// SPDX-License-Identifier: MIT
#include "Sample/Garment/GarmentMotion.h"

#include <array>

#include "Sample/Rig/Poses.h"

namespace Zef::Peer
{

namespace
{

/** From standing into the walk, in frames. */
constexpr int LeadIn = 20;
/** Frames over which the end of the loop leads back to its beginning. */
constexpr int CrossOver = 12;
/** The air comes towards her at the speed of the walk, cm/s. */
constexpr FVec3 Wind{-100, 0, 0};

class FWalkSimulation
{
public:
	FWalkSimulation(const FFigure& Figure, const FGarmentPieces& Garment)
		: Figure(Figure)
		, Body(Figure)
		, Cloths{Garment.Skirt(), Garment.Capelet()}
	{
		Cloths[0].Cloth.Rest();
		Cloths[1].Cloth.Rest();
		Standing = Moment(Figure.StandingPlaces);
		for (int F = 0; F < WalkFrames; ++F)
		{
			Walk.push_back(Moment(PlaceJoints(Figure.Skeleton, WalkPose(Figure.Skeleton, F))));
		}
		Body.SetPose(Standing.Body, Standing.Body, 0);
	}

	/** Runs from one frame to the next; frames below 0 lead in from standing. */
	void Advance(int Frame)
	{
		Body.Sort();
		for (FHangingCloth& Hanging : Cloths)
		{
			Hanging.Cloth.FindContacts(Body);
		}
		for (int S = 1; S <= StepsPerFrame; ++S)
		{
			Place(static_cast<float>(Frame) + static_cast<float>(S) / StepsPerFrame);
			const float Gentle = SmoothStep(-LeadIn, 0, static_cast<float>(Frame));
			for (FHangingCloth& Hanging : Cloths)
			{
				Hanging.Cloth.Step(Body, StepSeconds, Wind * Gentle);
			}
		}
	}

	std::array<std::vector<FVec3>, 2> Points() const { return {Cloths[0].Cloth.Positions, Cloths[1].Cloth.Positions}; }

private:
	/** Body and seams with the joints at a place. */
	struct FMoment
	{
		FColliderPose Body;
		std::array<std::vector<FVec3>, 2> Seams;
	};

	FMoment Moment(const std::vector<FRigid>& Places) const
	{
		return {Body.PoseAt(Figure, Places), {SeamAt(Cloths[0], Figure, Places), SeamAt(Cloths[1], Figure, Places)}};
	}

	void Place(float Time)
	{
		const int Whole = static_cast<int>(std::floor(Time));
		const auto At = [&](int Frame) -> const FMoment&
		{ return Walk[static_cast<std::size_t>(((Frame % WalkFrames) + WalkFrames) % WalkFrames)]; };
		const float Part = Time - static_cast<float>(Whole);
		Body.SetPose(At(Whole).Body, At(Whole + 1).Body, Part);
		for (std::size_t C = 0; C < Cloths.size(); ++C)
		{
			HoldSeam(Cloths[C], At(Whole).Seams[C], At(Whole + 1).Seams[C], Part);
		}
		const float Into = SmoothStep(-LeadIn, 0, Time);
		if (Into < 1)
		{
			Body.BlendFrom(Standing.Body, Into);
			for (std::size_t C = 0; C < Cloths.size(); ++C)
			{
				BlendSeamFrom(Cloths[C], Standing.Seams[C], Into);
			}
		}
	}

	const FFigure& Figure;
	FBodyCollider Body;
	std::array<FHangingCloth, 2> Cloths;
	FMoment Standing;
	std::vector<FMoment> Walk;
};

FMeshSequenceFrame MakeFrame(const FFigure& Figure, const FGarmentPieces& Garment, int Number,
	const std::array<std::vector<FVec3>, 2>& Points, std::array<FCloth, 2>& Cloths)
{
	FMeshSequenceFrame Frame;
	Frame.Time = Number / WalkFramesPerSecond;
	Cloths[0].Positions = Points[0];
	Cloths[1].Positions = Points[1];
	const std::vector<FRigid> Moves =
		MovesFromSymmetric(Figure.Skeleton, PlaceJoints(Figure.Skeleton, WalkPose(Figure.Skeleton, Number)));
	for (const FGarmentPiece& Piece : Garment.All())
	{
		FTriangleMesh Mesh;
		if (Piece.Mover == EMover::Skin)
		{
			Mesh = Piece.Symmetric;
			ApplyMoves(Mesh, Piece.Weights, Moves);
		}
		else
		{
			FClothSample Sample = SampleCloth(Cloths[Piece.Mover == EMover::Skirt ? 0 : 1], Piece.Patch);
			Mesh.UVs = Piece.Mesh.UVs;
			Mesh.Triangles = Piece.Mesh.Triangles;
			Mesh.Positions = std::move(Sample.Positions);
			Mesh.Normals = std::move(Sample.Normals);
			ComputeTangents(Mesh);
		}
		Frame.Positions.insert(Frame.Positions.end(), Mesh.Positions.begin(), Mesh.Positions.end());
		Frame.Normals.insert(Frame.Normals.end(), Mesh.Normals.begin(), Mesh.Normals.end());
		Frame.Tangents.insert(Frame.Tangents.end(), Mesh.Tangents.begin(), Mesh.Tangents.end());
	}
	return Frame;
}

} // namespace

std::vector<FMeshSequenceFrame> SimulateWalk(const FFigure& Figure, const FGarmentPieces& Garment)
{
	FWalkSimulation Simulation(Figure, Garment);
	for (int F = -LeadIn; F < WalkFrames; ++F)
	{
		Simulation.Advance(F);
	}
	// The second loop is kept, and a little of the third, over which the end is led back to the beginning.
	std::vector<std::array<std::vector<FVec3>, 2>> Loop;
	for (int F = 0; F < WalkFrames; ++F)
	{
		Loop.push_back(Simulation.Points());
		Simulation.Advance(F);
	}
	for (int F = 0; F < CrossOver; ++F)
	{
		// What follows the last frame fades out of the first ones.
		const float Share = SmoothStep(CrossOver, 0, static_cast<float>(F));
		const auto After = Simulation.Points();
		for (std::size_t C = 0; C < After.size(); ++C)
		{
			for (std::size_t V = 0; V < After[C].size(); ++V)
			{
				FVec3& P = Loop[static_cast<std::size_t>(F)][C][V];
				P = Lerp(P, After[C][V], Share);
			}
		}
		Simulation.Advance(F);
	}

	std::array<FCloth, 2> Cloths{Garment.Skirt().Cloth, Garment.Capelet().Cloth};
	std::vector<FMeshSequenceFrame> Frames;
	for (int F = 0; F < WalkFrames; ++F)
	{
		Frames.push_back(MakeFrame(Figure, Garment, F, Loop[static_cast<std::size_t>(F)], Cloths));
	}
	return Frames;
}

} // namespace Zef::Peer
